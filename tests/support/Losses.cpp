#include "tests/support/Losses.h"

#include <algorithm>
#include <cmath>

#include "varnel/varnel.h"

namespace varnel::test {

namespace {

class Search {
  public:
    explicit Search(Losses &losses) : losses_(losses) {}

    void addSubSystem(const VarnelSubSystem &subSystem) {
        addModel(*subSystem.getDatabase());
        for (const VarnelSubSystem *child : subSystem.getChildren()) addSubSystem(*child);
    }
    void addProject(const VarnelManager &manager) {
        note(!manager.doCalculation(), "switched off calculation");
        note(manager.doUseEquidistantBeamParts(), "equidistant parts");
        addSubSystem(*manager.getSubSystems().front());
    }

  private:
    void note(bool isThere, const char *what) {
        losses_.asked.insert(what);
        if (isThere) losses_.found.insert(what);
    }

    void addLine(const VarnelLine *line) {
        note(dynamic_cast<const VarnelCircle *>(line) != nullptr, "arc");
        note(line && line->hasXis(), "stations of a line");
    }
    void addOutline(const VarnelArea *area) {
        for (std::size_t i = 0; area && i < area->getNumLines(); ++i) addLine(area->getLine(i));
    }
    void addBeam(const VarnelBeam &beam) {
        for (std::size_t i = 0; beam.getGeo() && i < beam.getGeo()->getNumLines(); ++i)
            addLine(beam.getGeo()->getLine(i));
        note(!beam.getJoints().empty(), "joints of a beam");
        note(beam.hasOffset(), "offset of a beam");
        note(beam.isFireExposed(), "fire at a beam");
        note(!beam.getActive(), "switched off beam");
        note(beam.getDesign() != nullptr, "design data of a beam");
        note(!beam.getResultStates().empty(), "results of a beam");
        note(beam.getLeftGap() && beam.getLeftGap()->getThick() != VarnelGapControl().getThick(),
             "width of a beam's gap");
        for (const VarnelFoundedPart *part : beam.getFoundations()) {
            KzVector3D stiffness;
            if (part->getFStart()) part->getFStart()->getDispLine(stiffness);
            note(stiffness != KzVector3D(), "stiffness under a span");
        }
    }
    void addPlate(const VarnelPlate &plate) {
        addOutline(plate.getGeo());
        note(plate.getMinMeshSize() != VarnelPlate(nullptr).getMinMeshSize(), "least mesh size");
        note(!plate.getActive(), "switched off plate");
        note(!plate.getResultPositions().empty(), "result positions");
        if (const VarnelDesignData *design = plate.getDesign()) {
            note(design->getPrestressingSteel() != nullptr, "prestressing steel");
            note(design->getStressDesignType() != VarnelDesignData().getStressDesignType(),
                 "kind of stress design");
        } else {
            note(true, "plate without design data");
        }
        for (std::size_t i = 0; plate.getGeo() && i < plate.getGeo()->getNumLines(); ++i) addEdge(plate, i);
        std::set<int> types;
        for (const VarnelAreaLoad *load : plate.getAreaLoads()) {
            note(!types.insert(load->getLcType()).second, "second plate load of a type");
            note(static_cast<int>(load->getType()) != 0, "direction of a plate load");
            note(static_cast<int>(load->getData().getTransmissionType()) != 0,
                 "transmission of a plate load");
        }
    }
    void addEdge(const VarnelPlate &plate, std::size_t index) {
        const VarnelLineBoundaryData *data = plate.getBoundary(index);
        note(data == nullptr, "edge without a support");
        if (data) addSupport(*data);
        if (data) note(data->getLocsys() != KzVector3D(0, 0, 1), "direction at an edge");
    }
    void addSupport(const VarnelLineBoundaryData &data) {
        note(data.getType() != VarnelLineBoundaryData(0, "").getType(), "kind of a support's frame");
        note(data.getReference() != nullptr, "reference between supports");
    }
    void addPointBoundary(const VarnelPointBoundary &boundary) {
        note(boundary.getSpacing() == 0.0, "no spacing");
        note(!boundary.getActive(), "switched off column");
        note(boundary.getTypInd() != VarnelPointBoundary(KzVector3D(), 0, nullptr).getTypInd(),
             "kind of a column");
        note(boundary.getData().getBase().getMatrix() == nullptr, "column without a frame");
        note(boundary.getData().getBase().getOffset() != KzVector3D(), "origin of a column's frame");
        const std::vector<double> springs = boundary.getStiffness();
        const bool acts = std::any_of(springs.begin(), springs.end(),
                                      [](double value) { return std::fabs(value) > 0.001; });
        const bool some =
            std::any_of(springs.begin(), springs.end(), [](double value) { return value != 0.0; });
        note(some && !acts, "weak springs");
    }
    void addModel(Varnel &model) {
        note(model.getSystemMode() != VarnelFactory().getMode(), "mode of the model");
        note(model.getNumberOfBeamLocations() != 5, "number of locations along beams");
        note(model.getAcceleration() != KzVector3D(0, 0, 9.81), "gravity");
        note(!model.getLines().empty(), "free line");
        note(!model.getPoints().empty(), "system point");
        note(!model.getBeamLoads().empty(), "beam load");
        note(!model.getGaps().empty(), "gap of the model");
        note(!model.getRefinePolygons().empty(), "refine polygon");
        addMembers(model);
        addLoads(model);
        addGroups(model);
    }
    void addMembers(Varnel &model) {
        for (VarnelBeam *beam : model.getBeams()) {
            note(beam == nullptr, "null entry");
            if (beam) addBeam(*beam);
        }
        for (VarnelPlate *plate : model.getPlates())
            if (plate) addPlate(*plate);
        for (const VarnelHole *hole : model.getHoles()) addOutline(hole->getGeo());
        for (const VarnelAttributeArea *area : model.getAttributeAreas()) {
            addOutline(area->getGeo());
            note(!area->getName().empty(), "name of an attribute area");
            note(area->getThickness() != VarnelAttributeArea().getThickness(),
                 "thickness of an attribute area");
            note(area->getMeshSize() != VarnelAttributeArea().getMeshSize(),
                 "mesh size of an attribute area");
            note(area->getGeo() == nullptr, "attribute area without an outline");
        }
        for (const VarnelPointBoundary *boundary : model.getPointBoundaries())
            if (boundary) addPointBoundary(*boundary);
        for (const VarnelLineBoundary *boundary : model.getLineBoundaries()) {
            addLine(boundary->getGeo());
            addSupport(boundary->getData());
        }
        for (const VarnelResultSection *section : model.getResultSections()) {
            note(section->getInPlane() != VarnelResultSection(nullptr).getInPlane(), "section in the plane");
            note(!section->getLocations().empty(), "locations of a section");
        }
    }
    void addLoads(const Varnel &model) {
        for (const VarnelPointLoad *load : model.getPointLoads()) {
            note(load->isDispLoad(), "displacement load");
            note(load->getAngle(2) != 0.0, "frame of a point load");
            note(!load->getActive(), "switched off load");
        }
        for (const VarnelLineLoad *load : model.getLineLoads()) addLine(load->getLine());
    }
    void addGroups(const Varnel &model) {
        for (const VarnelObjectGroup *group : model.getObjectGroups()) {
            note(group->findResultState(1) != nullptr, "results of a group");
            for (VarnelObject *object : group->getObjects()) {
                note(dynamic_cast<VarnelLoadDistributionArea *>(object) != nullptr,
                     "load distribution area in a group");
                note(dynamic_cast<VarnelBeamLoad *>(object) != nullptr, "beam load in a group");
            }
        }
    }

    Losses &losses_;
};

}  // namespace

void Losses::add(const VarnelManager &manager) {
    Search(*this).addProject(manager);
}

}  // namespace varnel::test
