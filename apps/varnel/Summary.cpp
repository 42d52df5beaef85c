#include "apps/varnel/Summary.h"

#include <algorithm>

#include "apps/varnel/Document.h"
#include "varnel/varnel.h"

namespace varnel::tool {
namespace {

using Forces = std::map<const SysBase::Loadcase *, KzVector3D>;

/// A vector in the axes of a frame as a global one.
KzVector3D turned(KzMatrix44 frame, const KzVector3D &vector) {
    frame.setVector(3, KzVector3D());
    return frame.transformBack(vector);
}

double areaOf(const VarnelArea *outline) {
    return outline ? outline->getArea() : 0.0;
}

void addAreaLoad(Forces &forces, const VarnelAreaLoad &load) {
    forces[load.getLoadcase()] += turned(load.getBase(), load.getP()) * areaOf(load.getArea());
}

void addLoads(Forces &forces, const Varnel &model) {
    for (const VarnelPointLoad *load : model.getPointLoads()) {
        // An imposed displacement is no force.
        const KzVector3D force = load->isDispLoad() ? KzVector3D() : load->getForce();
        forces[load->getLoadcase()] += turned(load->getBase(), force);
    }
    for (const VarnelLineLoad *load : model.getLineLoads()) {
        const double length = load->getLine() ? load->getLine()->getLength() : 0.0;
        forces[load->getLoadcase()] +=
            turned(load->getBase(), load->getP1() + load->getP2()) * (length / 2.0);
    }
    for (const VarnelAreaLoad *load : model.getAreaLoads()) addAreaLoad(forces, *load);
    for (const VarnelPlate *plate : model.getPlates())
        for (const VarnelAreaLoad *load : plate->getAreaLoads()) addAreaLoad(forces, *load);
}

int supportedEdges(const VarnelPlate &plate) {
    int count = 0;
    for (std::size_t edge = 0; plate.getGeo() && edge < plate.getGeo()->getNumLines(); ++edge) {
        const VarnelLineBoundaryData *support = plate.getBoundary(edge);
        if (support && support->getDof() != 0) ++count;
    }
    return count;
}

Figures figuresOf(const Varnel &model) {
    Figures figures{};
    figures[Plates] = model.getNumberOfPlates();
    figures[Beams] = model.getNumberOfBeams();
    figures[Holes] = model.getNumberOfHoles();
    figures[PointSupports] = model.getNumberOfPointBoundaries();
    figures[LineSupports] = model.getNumberOfLineBoundaries();
    figures[Gaps] = static_cast<double>(model.getGaps().size());
    figures[Groups] = static_cast<double>(model.getObjectGroups().size());
    figures[ResultSections] = static_cast<double>(model.getResultSections().size());
    figures[PointLoads] = model.getNumberOfPointLoads();
    figures[LineLoads] = model.getNumberOfLineLoads();
    figures[AreaLoads] = model.getNumberOfAreaLoads();
    for (const VarnelPlate *plate : model.getPlates()) {
        const KzMaterial *material = plate->getMaterial(0);
        figures[SupportedEdges] += supportedEdges(*plate);
        figures[PlateLoads] += static_cast<double>(plate->getAreaLoads().size());
        figures[PlateArea] += areaOf(plate->getGeo());
        figures[PlateVolume] += plate->getVolumen();
        // The plate's own weight is made of the density: here it is a force, as that of beams.
        if (material) figures[Weight] += plate->getVolumen() * material->getGammaValue();
    }
    for (const VarnelBeam *beam : model.getBeams()) {
        figures[BeamLength] += beam->getLength();
        figures[BeamVolume] += beam->getVolumen();
        figures[Weight] += beam->getWeight();
    }
    return figures;
}

template <class Named>
void addUse(Uses &uses, const Named *named) {
    if (named) ++uses[named->getName()];
}

void addUses(Summary &summary, const Varnel &model) {
    for (const VarnelPlate *plate : model.getPlates()) {
        addUse(summary.materials, plate->getMaterial(0));
        addUse(summary.foundations, plate->getFoundation());
    }
    for (const VarnelAttributeArea *area : model.getAttributeAreas())
        addUse(summary.materials, area->getMaterial(0));
    for (const VarnelBeam *beam : model.getBeams()) {
        addUse(summary.materials, beam->getMaterial(0));
        addUse(summary.foundations, beam->getFoundation());
        addUse(summary.sections, beam->getSection(0));
        if (beam->getSection(1) != beam->getSection(0)) addUse(summary.sections, beam->getSection(1));
        for (const VarnelFoundedPart *part : beam->getFoundations()) {
            addUse(summary.foundations, part->getFStart());
            if (part->getFEnd() != part->getFStart()) addUse(summary.foundations, part->getFEnd());
        }
    }
}

/// As deep as the document is, which readers limit.
Node nodeOf(const VarnelSubSystem &subSystem) {
    Node node{subSystem.getName(), subSystem.getOffset(), figuresOf(*subSystem.getDatabase()), {}};
    for (const VarnelSubSystem *child : subSystem.getChildren()) node.children.push_back(nodeOf(*child));
    return node;
}

void addFigures(Figures &total, const Node &node) {
    std::transform(node.figures.begin(), node.figures.end(), total.begin(), total.begin(), std::plus<>());
    for (const Node &child : node.children) addFigures(total, child);
}

std::vector<LoadSum> sumsOf(const Document &document) {
    Forces forces;
    for (const VarnelSubSystem *node : subSystems(document.root())) addLoads(forces, *node->getDatabase());
    std::vector<LoadSum> sums;
    for (const SysBase::Loadcase *loadcase : document.manager().getLoadcases())
        sums.push_back({loadcase->getNumber(), loadcase->getName(), forces[loadcase]});
    const auto none = forces.find(nullptr);
    if (none != forces.end()) sums.push_back({std::nullopt, "no load case", none->second});
    return sums;
}

}  // namespace

Summary summaryOf(const Document &document) {
    Summary summary;
    summary.root = nodeOf(document.root());
    addFigures(summary.total, summary.root);
    for (const VarnelSubSystem *node : subSystems(document.root())) addUses(summary, *node->getDatabase());
    summary.loadcases = sumsOf(document);
    return summary;
}

}  // namespace varnel::tool
