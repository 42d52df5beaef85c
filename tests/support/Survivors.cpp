#include "tests/support/Survivors.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <map>
#include <vector>

#include "varnel/contracts/Design/ShearData.h"
#include "varnel/varnel.h"

namespace varnel::test {

namespace {

/// Collects the facts of one line.
class Facts {
  public:
    explicit Facts(std::string &text, const char *kind) : text_(text) { text_ += kind; }
    Facts(const Facts &) = delete;
    Facts &operator=(const Facts &) = delete;
    ~Facts() { text_ += '\n'; }

    Facts &add(const std::string &value) {
        text_ += " [" + value + "]";
        return *this;
    }
    Facts &add(int value) { return add(std::to_string(value)); }
    Facts &add(bool value) { return add(value ? 1 : 0); }
    Facts &add(double value) {
        std::array<char, 40> digits;
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value);
        return add(std::string(digits.data(), end.ptr));
    }
    Facts &add(const KzVector3D &v) { return add(v.getX()).add(v.getY()).add(v.getZ()); }
    Facts &round(double value) {
        std::array<char, 400> digits;
        const double positive = std::fabs(value) < 5e-10 ? 0.0 : value;
        std::snprintf(digits.data(), digits.size(), "%.9f", positive);
        return add(std::string(digits.data()));
    }
    Facts &round(const KzVector3D &v) { return round(v.getX()).round(v.getY()).round(v.getZ()); }
    /// A direction, of which the length does not come back.
    Facts &direction(KzVector3D v) { return round(v.normalize()); }
    template <class Named>
    Facts &nameOf(const Named *named) {
        return add(named ? named->getName() : std::string("none"));
    }
    template <class Numbered>
    Facts &numberOf(const Numbered *numbered) {
        return add(numbered ? numbered->getNumber() : -1);
    }

  private:
    std::string &text_;
};

/// The chord of an arc; a line that is missing lies in the origin.
void addLine(Facts &facts, const VarnelLine *line) {
    facts.add(line ? line->getStartVec() : KzVector3D()).add(line ? line->getEndVec() : KzVector3D());
}

void addOutline(Facts &facts, const VarnelArea *area) {
    const bool rectangle = dynamic_cast<const VarnelAreaRectangle *>(area) != nullptr;
    facts.add(std::string(!area ? "no outline" : rectangle ? "rectangle" : "outline"));
    for (std::size_t i = 0; area && i < area->getNumLines(); ++i) {
        if (rectangle)
            facts.round(area->getCoor(i));
        else
            addLine(facts, area->getLine(i));
    }
}

void addWeight(Facts &facts, const VarnelBoundaryData &data) {
    facts.add(data.doTransferOwnWeight()).add(data.getSpecificWeight()).add(data.getHeight());
}

/// A vector whose length vanishes, also for its tiny components, is not written.
void addStiffness(Facts &facts, const VarnelBoundaryData &data) {
    const VarnelBoundaryStiffnessData *springs = data.getStiffnessData();
    for (const bool displacement : {true, false}) {
        KzVector3D vector;
        if (springs) vector = displacement ? springs->getDispStiff() : springs->getRotStiff();
        facts.add(vector.length() != 0.0 ? vector : KzVector3D());
    }
}

void addSettings(std::string &text, const VarnelManager &manager) {
    Facts(text, "settings")
        .add(manager.getLoadcaseAutomation())
        .add(manager.getSystemBoundary())
        .add(manager.getOwnWeight())
        .add(manager.doUseQuadraticShape())
        .add(static_cast<int>(manager.getDesignLocation()));
}

void addResources(std::string &text, const VarnelManager &manager) {
    for (const KzMaterial *material : manager.getMaterialManager()->getMaterials())
        if (material->getName().find("own") != std::string::npos)  // stock that is used joins them
            Facts(text, "material")
                .add(material->getName())
                .add(static_cast<int>(material->getKind()))
                .add(material->getRho())
                .add(material->getGammaValue());
    for (const SDBSection *section : manager.getSectionManager()->getSections())
        Facts(text, "section").add(section->getName()).add(section->getArea());
    for (const KzReinfStockMesh *mesh : manager.getDgnMeshList()->getMeshes())
        Facts(text, "mesh").add(mesh->getName());
    for (const KzReinfLine *line : manager.getDgnList()->getLines())
        Facts(text, "line").add(line->getNumber()).add(line->getName()).nameOf(line->getSection());
    for (const Found::Foundation *foundation : manager.getFoundationManager()->getFoundations()) {
        KzVector3D stiffness;
        foundation->getDispLine(stiffness);
        if (stiffness == KzVector3D()) continue;  // joins them with every founded span that is read
        Facts(text, "foundation").add(foundation->getNumber()).add(foundation->getName()).add(stiffness);
    }
}

/// An edge without a support gets one, and with it loses its joint.
void addEdge(std::string &text, const VarnelPlate &plate, std::size_t index) {
    const VarnelLineBoundaryData none(0, "");
    const VarnelLineBoundaryData *data = plate.getBoundary(index);
    const int joint = data ? plate.getEdgeData(index)->getJoint() : 0;
    if (!data) data = &none;
    Facts facts(text, "edge");
    facts.add(plate.getGeo()->getLine(index)->getNumberOfParts()).add(joint).add(data->getName());
    facts.add(data->getNumber()).add(data->getDof()).add(data->getLocal()).add(data->getWidth());
    addStiffness(facts, *data);
    addWeight(facts, *data);
}

/// Loads of one type become one, with the name and the value of the last and the last case of all.
void addPlateLoads(std::string &text, const VarnelPlate &plate) {
    struct Merged {
        int type;
        std::string name;
        int loadcase;
        KzVector3D value;
    };
    std::vector<Merged> merged;
    for (const VarnelAreaLoad *load : plate.getAreaLoads()) {
        std::size_t i = 0;
        while (i < merged.size() && merged[i].type != load->getLcType()) ++i;
        if (i == merged.size()) merged.push_back({load->getLcType(), "", -1, KzVector3D()});
        merged[i].name = load->getName();
        if (load->getLoadcase()) merged[i].loadcase = load->getLoadcase()->getNumber();
        merged[i].value = load->getP();
    }
    for (const Merged &load : merged)
        Facts(text, "plate load").add(load.type).add(load.name).add(load.loadcase).add(load.value);
}

void addDesign(std::string &text, const VarnelDesignData &data) {
    Facts facts(text, "design");
    facts.round(data.getTheta()).add(data.getCoverXu()).add(data.getCoverYu()).add(data.getCoverXl());
    facts.add(data.getCoverYl()).add(data.getCnom()).add(data.getMinimumSteel());
    facts.nameOf(data.getBasicMeshL()).nameOf(data.getBasicMeshU()).nameOf(data.getReinforcement());
    facts.add(data.getMinShearReinforcement()).add(data.getShearAngle()).add(data.getStrutAngle());
    facts.add(data.getJointPosition()).add(data.getBondReinfAngle()).add(data.getShearReinfStrength());
    facts.add(static_cast<int>(data.getShearJointSurface()));
}

void addPlate(std::string &text, const VarnelPlate &plate) {
    {
        Facts facts(text, "plate");
        facts.add(plate.getNumber()).add(plate.getName()).add(static_cast<int>(plate.getElementType()));
        facts.add(static_cast<int>(plate.getMeshType())).add(static_cast<int>(plate.getPlateType()));
        facts.add(plate.getAutoMeshSize()).add(plate.getMeshSizeX()).add(plate.getMeshSizeY());
        facts.add(plate.getMeshAngle()).add(plate.getThick()).nameOf(plate.getMaterial(0));
        facts.numberOf(plate.getFoundation());
        addOutline(facts, plate.getGeo());
    }
    for (std::size_t i = 0; plate.getGeo() && i < plate.getGeo()->getNumLines(); ++i) addEdge(text, plate, i);
    addPlateLoads(text, plate);
    addDesign(text, plate.getDesign() ? *plate.getDesign() : VarnelDesignData());
}

void addBeam(std::string &text, const VarnelBeam &beam) {
    Facts facts(text, "beam");
    facts.add(beam.getNumber()).add(beam.getName()).add(static_cast<int>(beam.getElementType()));
    facts.add(static_cast<int>(beam.getBeamType())).add(beam.getMeshSize()).add(beam.getAngle());
    facts.add(beam.getParts()).nameOf(beam.getMaterial(0)).nameOf(beam.getSection(0));
    facts.nameOf(beam.getSection(1)).nameOf(beam.getFoundation()).numberOf(beam.getReinfLine());
    facts.add(beam.getLeftGap() != nullptr).add(beam.getRightGap() != nullptr);
    for (const VarnelFoundedPart *part : beam.getFoundations())
        facts.add(part->getPosA()).add(part->getPosE());
    if (!beam.getGeo() || beam.getGeo()->getNumLines() == 0) addLine(facts, nullptr);
    for (std::size_t i = 0; beam.getGeo() && i < beam.getGeo()->getNumLines(); ++i)
        addLine(facts, beam.getGeo()->getLine(i));
}

void addAreaObjects(std::string &text, const Varnel &model) {
    for (const VarnelHole *hole : model.getHoles()) {
        Facts facts(text, "hole");
        facts.add(hole->getNumber()).add(hole->getName()).add(hole->getLoadDistribution());
        addOutline(facts, hole->getGeo());
    }
    for (const VarnelAttributeArea *area : model.getAttributeAreas()) {
        if (!area->getGeo()) continue;
        Facts facts(text, "attribute area");
        facts.add(area->getNumber()).nameOf(area->getMaterial(0));
        addOutline(facts, area->getGeo());
    }
    for (const VarnelLoadDistributionArea *area : model.getLoadDistributionAreas()) {
        Facts facts(text, "load distribution area");
        facts.add(area->getName());
        addOutline(facts, area->getGeo());
    }
    for (const VarnelResultSection *section : model.getResultSections())
        Facts(text, "result section").add(section->getName()).add(section->getP1()).add(section->getP2());
}

/// Springs of which none exceeds the limit go.
void addActingStiffness(Facts &facts, const VarnelBoundaryData &data) {
    const std::vector<double> springs = data.getStiffness();
    const auto acts = [](double value) { return std::fabs(value) > 0.001; };
    const VarnelBoundaryData none;
    addStiffness(facts, std::any_of(springs.begin(), springs.end(), acts) ? data : none);
}

/// No spacing and no frame become those of a new support.
void addPointBoundary(std::string &text, const VarnelPointBoundary &boundary) {
    Facts facts(text, "point boundary");
    facts.add(boundary.getNumber()).add(boundary.getName()).add(boundary.getDof()).add(boundary.getCoor());
    facts.add(boundary.getSpacing() != 0.0 ? boundary.getSpacing() : 1.0);
    if (const auto *circle = dynamic_cast<const VarnelPointBoundaryCircle *>(&boundary))
        facts.add(circle->getD());
    if (const auto *rectangle = dynamic_cast<const VarnelPointBoundaryRectan *>(&boundary))
        facts.add(rectangle->getB()).add(rectangle->getD());
    for (const std::size_t axis : {0u, 1u, 2u}) facts.round(boundary.getBase().getVector(axis));
    addActingStiffness(facts, boundary.getData());
    addWeight(facts, boundary.getData());
}

void addLineBoundary(std::string &text, const VarnelLineBoundary &boundary) {
    const VarnelLineBoundaryData &data = boundary.getData();
    Facts facts(text, "line boundary");
    facts.add(boundary.getNumber()).add(boundary.getName()).add(data.getDof()).add(data.getWidth());
    facts.add(boundary.getLocal()).direction(boundary.getLocsys());
    addLine(facts, boundary.getGeo());
    addStiffness(facts, data);
    addWeight(facts, data);
}

void addLoads(std::string &text, const Varnel &model) {
    for (const VarnelPointLoad *load : model.getPointLoads())
        Facts(text, "point load")
            .add(load->getNumber())
            .add(load->getName())
            .add(static_cast<int>(load->getLcType()))
            .numberOf(load->getLoadcase())
            .add(load->getCoor())
            .add(load->getForce())
            .add(load->getMoment());
    for (const VarnelLineLoad *load : model.getLineLoads()) {
        Facts facts(text, "line load");
        facts.add(load->getNumber()).add(load->getName()).add(static_cast<int>(load->getLcType()));
        facts.add(static_cast<int>(load->getType())).numberOf(load->getLoadcase());
        facts.add(load->getP1()).add(load->getP2()).add(load->getM1()).add(load->getM2());
        facts.direction(load->getLocsys()).add(static_cast<int>(load->getLocsysType()));
        addLine(facts, load->getLine());
    }
    for (const VarnelAreaLoad *load : model.getAreaLoads()) {
        if (!load) continue;
        Facts facts(text, "area load");
        facts.add(load->getName()).add(static_cast<int>(load->getLcType()));
        facts.add(static_cast<int>(load->getType())).numberOf(load->getLoadcase()).add(load->getP());
        facts.add(static_cast<int>(load->getData().getTransmissionType()));
        addOutline(facts, load->getArea());
    }
}

/// A member of a group by kind and number; kinds that are not read back are left out.
class Member : public VarnelObjectVisitor {
  public:
    explicit Member(Facts &facts) : facts_(facts) {}
    int visit(VarnelLoadDistributionArea *) override { return 0; }
    int visit(VarnelBeamLoad *) override { return 0; }
    int visit(VarnelPoint *) override { return 0; }
    int visit(VarnelAreaLoad *load) override { return add("area load", load->getNumber()); }
    int visit(VarnelLineLoad *load) override { return add("line load", load->getNumber()); }
    int visit(VarnelPointLoad *load) override { return add("point load", load->getNumber()); }
    int visit(VarnelPointBoundary *boundary) override { return add("column", boundary->getNumber()); }
    int visit(VarnelLineBoundary *boundary) override { return add("wall", boundary->getNumber()); }
    int visit(VarnelHole *hole) override { return add("hole", hole->getNumber()); }
    int visit(VarnelBeam *beam) override { return add("beam", beam->getNumber()); }
    int visit(VarnelPlate *plate) override { return add("plate", plate->getNumber()); }

  private:
    int add(const char *kind, int number) {
        facts_.add(std::string(kind)).add(number);
        return 1;
    }

    Facts &facts_;
};

void addGroups(std::string &text, const Varnel &model) {
    for (const VarnelObjectGroup *group : model.getObjectGroups()) {
        Facts facts(text, "group");
        facts.add(group->getName()).add(group->getUserDefined()).add(group->getCalculate());
        facts.add(group->getBase().getVector(3));
        Member member(facts);
        for (VarnelObject *object : group->getObjects())
            if (object) object->getVisited(&member);
    }
}

void addModel(std::string &text, const Varnel &model) {
    for (const VarnelPlate *plate : model.getPlates())
        if (plate) addPlate(text, *plate);
    for (const VarnelBeam *beam : model.getBeams())
        if (beam) addBeam(text, *beam);
    addAreaObjects(text, model);
    for (const VarnelPointBoundary *boundary : model.getPointBoundaries())
        if (boundary) addPointBoundary(text, *boundary);
    for (const VarnelLineBoundary *boundary : model.getLineBoundaries()) addLineBoundary(text, *boundary);
    addLoads(text, model);
    addGroups(text, model);
}

void addSubSystem(std::string &text, const VarnelSubSystem &subSystem) {
    addModel(text, *subSystem.getDatabase());
    for (const VarnelSubSystem *child : subSystem.getChildren()) {
        Facts(text, "subsystem").add(child->getName()).add(child->getOffset());
        addSubSystem(text, *child);
        Facts(text, "end of the subsystem");
    }
}

/// A state by the kind and the number of its object.
class State : public VarnelObjectStateVisitor {
  public:
    explicit State(Facts &facts) : facts_(facts) {}
    void visit(VarnelLineLoadState *state) override { add("line load", state, state->getLineLoad()); }
    void visit(VarnelPointLoadState *state) override { add("point load", state, state->getPointLoad()); }
    void visit(VarnelPointBoundaryState *state) override { add("column", state, state->getPointBoundary()); }
    void visit(VarnelBeamState *state) override {
        add("beam", state, state->getBeam());
        facts_.nameOf(state->getMaterial());
    }
    void visit(VarnelPlateState *state) override {
        add("plate", state, state->getPlate());
        facts_.nameOf(state->getMaterial());
    }

  private:
    template <class Object>
    void add(const char *kind, const VarnelObjectState *state, const Object *object) {
        facts_.add(std::string(kind)).numberOf(object).add(state->isActive());
    }

    Facts &facts_;
};

void addStages(std::string &text, const VarnelSubSystem &root) {
    for (const SysBase::ConstructionStage *entry : root.getConstructionStages()) {
        const auto *stage = dynamic_cast<const VarnelConstructionStage *>(entry);
        Facts facts(text, "stage");
        facts.nameOf(entry);
        if (!stage) continue;
        State visitor(facts);
        for (VarnelObjectState *state : stage->getObjectStates()) state->getVisited(&visitor);
    }
}

void addDefaultLoads(std::string &text, const VarnelDefaultProperties &defaults) {
    const VarnelPointLoad &pointLoad = defaults.getPointLoad();
    Facts(text, "default point load")
        .add(pointLoad.getName())
        .add(static_cast<int>(pointLoad.getLcType()))
        .numberOf(pointLoad.getLoadcase())
        .add(pointLoad.getForce())
        .add(pointLoad.getMoment());
    const VarnelLineLoadData &lineLoad = defaults.getLineLoad();
    Facts(text, "default line load")
        .add(lineLoad.getName())
        .add(static_cast<int>(lineLoad.getType()))
        .add(lineLoad.getP1())
        .add(lineLoad.getP2())
        .add(lineLoad.getM1())
        .add(lineLoad.getM2());
    const VarnelAreaLoad &areaLoad = defaults.getAreaLoad();
    Facts(text, "default area load")
        .add(areaLoad.getName())
        .add(static_cast<int>(areaLoad.getLcType()))
        .add(static_cast<int>(areaLoad.getType()))
        .add(static_cast<int>(areaLoad.getData().getTransmissionType()))
        .numberOf(areaLoad.getLoadcase())
        .add(areaLoad.getP());
}

void addDefaultMembers(std::string &text, const VarnelDefaultProperties &defaults) {
    const VarnelBeamProperties &beam = defaults.getBeamProp();
    Facts(text, "default beam")
        .add(beam.getName())
        .add(static_cast<int>(beam.getElementType()))
        .add(static_cast<int>(beam.getBeamType()))
        .add(beam.getAngle())
        .add(beam.getParts())
        .nameOf(beam.getMaterial())
        .nameOf(beam.getSection(0))
        .nameOf(beam.getSection(1));
    const VarnelPlateProperties &plate = defaults.getPlateProp();
    Facts(text, "default plate")
        .add(plate.getName())
        .add(static_cast<int>(plate.getElementType()))
        .add(static_cast<int>(plate.getMeshType()))
        .add(plate.getAutoMeshSize())
        .add(plate.getMeshSizeX())
        .add(plate.getMeshSizeY())
        .add(plate.getMeshAngle())
        .add(plate.getThick())
        .nameOf(plate.getMaterial());
}

void addDefaults(std::string &text) {
    const VarnelDefaultProperties &defaults = *VarnelDefaultProperties::get();
    addDefaultLoads(text, defaults);
    addDefaultMembers(text, defaults);
    const VarnelLineBoundaryData &wall = defaults.getLBData();
    Facts(text, "default line boundary").add(wall.getName()).add(wall.getDof()).add(wall.getWidth());
    const VarnelPointBoundaryData &column = defaults.getPBData();
    Facts facts(text, "default point boundary");
    facts.add(column.getName()).add(column.getDof()).round(column.getBase().getAngle(2));
    addActingStiffness(facts, column);
    addWeight(facts, column);
    Facts(text, "default hole")
        .add(defaults.getHole().getName())
        .add(defaults.getHole().getLoadDistribution());
    Facts(text, "default load distribution area").add(defaults.getLDA().getName());
}

}  // namespace

std::string survivors(const VarnelManager &manager) {
    std::string text;
    addSettings(text, manager);
    addDefaults(text);
    addResources(text, manager);
    addSubSystem(text, *manager.getSubSystems().front());
    addStages(text, *manager.getSubSystems().front());
    return text;
}

std::string loadcasesOf(const VarnelManager &manager) {
    std::string text;
    const SysBase::Loadcase *current = manager.getCurrentLoadcase();
    Facts(text, "current").numberOf(current);
    std::map<int, const SysBase::Loadcase *>
        byNumber;  // they come back in the order in which loads name them
    for (const SysBase::Loadcase *loadcase : manager.getLoadcases())
        byNumber[loadcase->getNumber()] = loadcase;
    for (const auto &[number, loadcase] : byNumber)
        Facts(text, "load case")
            .add(number)
            .add(loadcase->getName())
            .add(static_cast<int>(loadcase->getType()))
            .add(loadcase->isOwnWeight())
            .add(loadcase->doCalculateEigen())
            .add(loadcase->isPrimary());
    return text;
}

}  // namespace varnel::test
