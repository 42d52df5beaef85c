#include "tests/support/CompleteProject.h"

#include <sstream>

#include "varnel/contracts/Design/ShearData.h"
#include "varnel/contracts/KzMaterialReinforcement.h"
#include "varnel/varnel.h"

namespace {

constexpr int dead = 1;
constexpr int live = 2;

SysBase::LoadcaseData::Type type(int value) {
    return static_cast<SysBase::LoadcaseData::Type>(value);
}

KzMatrix44 tiltedFrame() {
    KzMatrix44 frame;
    frame.setVector(0, KzVector3D(0, 1, 0));
    frame.setVector(1, KzVector3D(0, 0, 1));
    frame.setVector(2, KzVector3D(1, 0, 0));
    return frame;
}

}  // namespace

CompleteProject::CompleteProject() {
    manager.setLoadcaseAutomation(false);
    manager.setSystemBoundary(4);
    manager.setDesignLocation(1);
    addResources();
    addPlates();
    addBeams();
    addAreas();
    addSupports();
    addLoads();
    addSubSystems();
    addGroupsAndSections();
    addStages();
    addResults();
}

std::string CompleteProject::write() {
    VarnelSetupHelper helper;
    manager.setup(manager.getCurrentSubSystem(), helper, false, false);
    int stage = 0;
    for (SysBase::ConstructionStage *entry : manager.getCurrentSubSystem()->getConstructionStages())
        entry->setNumber(++stage);
    manager.setSystemChanged(false);
    manager.setLoadChanged(false);
    exchange().updateSystem(&manager);
    exchange().updateResults(&manager);
    std::ostringstream stream;
    exchange().getTree()->putToStream(stream, true);
    return stream.str();
}

void CompleteProject::addResources() {
    manager.getMaterialManager()->add(new KzConcrete("C28/35 own", 2450.0, 24.5));
    manager.getMaterialManager()->add(new KzMaterial("Steel own", 7850.0, 78.5));
    manager.getSectionManager()->add(new SDBSectionLine("Own 20/45", 0.09));
    auto *line = new KzReinfLine(3, "Edge beams");
    manager.getDgnList()->add(line);
    manager.giveFoundation(nullptr, KzVector3D(1000, 2000, 30000));
    const char *names[] = {"Dead", "Live & \"wind\""};
    for (int number = 1; number <= 2; ++number) {
        SysBase::Loadcase *loadcase = manager.giveLoadcaseToNumber(number, true);
        loadcase->setName(names[number - 1]);
        loadcase->setType(type(number));
        loadcase->setOwnWeight(number == 1);
        loadcase->enableCalculateEigen(number == 2);
        loadcase->setPrimary(number == 1);
    }
    manager.setCurrentLoadcase(2);
}

void CompleteProject::addPlates() {
    VarnelPlate *slab = model().givePlate(true);
    slab->setName("Slab <1>");
    slab->setArea(new VarnelAreaRectangle(KzVector3D(1, 2, 3), 6.5, 4.25, 0.0));
    slab->setElementType(1);
    slab->setMeshType(3);
    slab->setPlateType(4);
    slab->setAutoMeshSize(false);
    slab->setMeshSizeX(0.25);
    slab->setMeshSizeY(0.75);
    slab->setMeshAngle(60.0);
    slab->setThick(0.22);
    slab->setMaterial(manager.getMaterialManager()->findConcreteToName("C28/35 own", 0), 0);
    slab->setFoundation(manager.getFoundationManager()->getFoundations().front());
    slab->setBoundary(0, 4, {1, 2, 3, 4, 5, 6}, "South");
    slab->setEdgeJoint(0, 8);
    slab->getBoundary(0)->setWidth(0.24);
    slab->getBoundary(0)->setLocal(true);
    slab->getBoundary(0)->setTransferOwnWeight(true);
    slab->getGeo()->setNumParts(1, 12);
    VarnelAreaLoad *load = slab->giveAreaLoad(type(dead), manager.giveLoadcaseToNumber(1, true));
    load->setName("Screed");
    load->setP(0.5, -0.25, 1.5);
    VarnelDesignData design(0.0, 0.025, 0.035, 0.045, 0.055);
    design.setCnom(0.02);
    design.setMinimumSteel(0.3);
    design.setBasicMeshL(manager.getStockMesh("Q335A"));
    design.setBasicMeshU(manager.getStockMesh("R257A"));
    design.setReinforcement(KzMaterialHandler::get()->findReinforcementToName("B500A", 0));
    design.setShearJointSurface(3);
    design.setStrutAngle(45.0);
    slab->setDesign(&design);

    VarnelPlate *wall = model().givePlate(true);
    wall->setName("Arched");
    wall->setMaterial(manager.getMaterialManager()->findMaterialToName("Steel own", 0), 0);
    auto *area = new VarnelArea;
    area->addLine(new VarnelStraight(KzVector3D(0, 0, 0), KzVector3D(4, 0, 0)));
    area->addLine(new VarnelCircle(KzVector3D(2, 0, 0), KzVector3D(4, 0, 0), KzVector3D(0, 0, 0)));
    area->getLine(0)->addXi(0.0);
    area->getLine(0)->addXi(0.5);
    area->getLine(0)->addXi(1.0);
    wall->setArea(area);
}

void CompleteProject::addBeams() {
    VarnelBeam *beam = model().giveBeam(true);
    beam->setName("Lintel");
    beam->setLine(KzVector3D(0, 0, 3), KzVector3D(4, 0, 3), 0);
    beam->setElementType(2);
    beam->setBeamType(1);
    beam->setMeshSize(0.4);
    beam->setAngle(30.0);
    beam->setParts(5);
    beam->setReinfLine(manager.getDgnList()->findBeamReinf(3));
    beam->setFoundation(manager.getFoundationManager()->getFoundations().front());
    beam->setMaterial(KzMaterialHandler::get()->findConcreteToName("C30/37", 0), 0);
    beam->setSection(
        dynamic_cast<SDBSectionLine *>(manager.getSectionManager()->findSectionToName("Own 20/45")), 0);
    beam->setSection(dynamic_cast<SDBSectionLine *>(SDBSectionDatabase::get()->findSectionToName("R 30/50")),
                     1);
    beam->setLeftGap(new VarnelGapControl);
    beam->setRightGap(new VarnelGapControl);
    beam->addFoundation(KzVector3D(0, 0, 10), 0.25, KzVector3D(0, 0, 20), 0.75, &manager);
    VarnelBeam *kinked = model().giveBeam(true);
    auto *axis = new VarnelBeamGeo;
    axis->addVertex(KzVector3D(0, 5, 0));
    axis->addVertex(KzVector3D(2, 5, 0));
    axis->addVertex(KzVector3D(4, 6, 0));
    kinked->setGeo(axis);
    kinked->setMaterial(KzMaterialHandler::get()->findMaterialToName("S235", 0), 0);
}

void CompleteProject::addAreas() {
    VarnelHole *hole = model().giveHole();
    hole->setName("Stairs");
    hole->setLoadDistribution(true);
    hole->setArea(new VarnelAreaPolygon({KzVector3D(2, 3, 3), KzVector3D(3, 3, 3), KzVector3D(2, 4, 3)}));
    model().add(hole);
    VarnelAttributeArea *thick = model().giveAttributeArea();
    thick->setArea(new VarnelAreaRectangle(KzVector3D(4, 4, 3), 1, 1, 0));
    thick->setMaterial(KzMaterialHandler::get()->findConcreteToName("C50/60", 0), 0);
    VarnelLoadDistributionArea *field = model().giveLoadDistributionArea();
    field->setName("Field");
    field->setArea(new VarnelAreaRectangle(KzVector3D(0, 0, 3), 2, 2, 0));
    model().add(field);
}

void CompleteProject::addSupports() {
    VarnelPointBoundary *column = model().givePointBoundaryRectan(KzVector3D(1, 2, 3), 7, 0.3, 0.4);
    column->setName("Column A");
    column->setAngle(0.0, 2);
    column->setStiffness({0, 0, 1000, 0, 0, 50});
    column->setTransferOwnWeight(true);
    column->setHeight(2.75);
    VarnelPointBoundary *round = model().givePointBoundaryCircle(KzVector3D(7.5, 2, 3), 4, 0.35);
    round->setName("Column B");
    round->setBase(tiltedFrame());
    model().givePointBoundary(KzVector3D(7.5, 6.25, 3), 7)->setSpacing(2.5);
    auto *wall = new VarnelLineBoundary(new VarnelStraight(KzVector3D(1, 4, 3), KzVector3D(7.5, 4, 3)));
    wall->setName("Wall");
    wall->getData().setDof(4);
    wall->getData().setWidth(0.175);
    wall->setLocal(true);
    wall->setLocsys(0, 1, 0);
    wall->setStiffness({0, 0, 500, 0, 0, 0});
    model().add(wall);
    auto *arched = new VarnelLineBoundary(
        new VarnelCircle(KzVector3D(2, 0, 0), KzVector3D(4, 0, 0), KzVector3D(2, 2, 0)));
    arched->setName("Arch");
    model().add(arched);
}

void CompleteProject::addLoads() {
    VarnelPointLoad *point = model().givePointLoad();
    point->setName("Chimney");
    point->setCoor(KzVector3D(2.5, 2.5, 3));
    point->setForce(KzVector3D(1, 2, 35));
    point->setMoment(KzVector3D(0, 2.5, 0));
    point->setLoadcase(manager.giveLoadcaseToNumber(1, true));
    VarnelLineLoad *line = model().giveLineLoad(new VarnelStraight(KzVector3D(2, 3, 3), KzVector3D(6, 3, 3)));
    line->setName("Partition");
    line->setLcType(type(live));
    line->setType(static_cast<VarnelLoadData::loadType>(1));
    line->setP1(0, 0, 4.2);
    line->setP2(0, 0, 2.1);
    line->setM1(0.5, 0, 0);
    line->setM2(0, 0.25, 0);
    line->setLocsysType(2);
    line->setLoadcase(manager.giveLoadcaseToNumber(2, true));
    VarnelAreaLoad *area = model().giveAreaLoad();
    area->setName("Snow");
    area->setLcType(type(live));
    area->setArea(new VarnelAreaRectangle(KzVector3D(2, 3, 3), 3, 1, 0));
    area->setP(0, 0, 0.85);
    area->setLoadcase(manager.giveLoadcaseToNumber(2, true));
    VarnelAreaLoad *everywhere = model().giveAreaLoad();
    everywhere->setName("Everywhere");
    VarnelBeamLoad *onBeam = model().giveBeamLoad();
    onBeam->setBeam(model().getBeams().front());
}

void CompleteProject::addSubSystems() {
    VarnelSubSystem *tower = manager.giveSubSystem("Tower", manager.getCurrentSubSystem());
    tower->setOffset(KzVector3D(10, 20, 30));
    VarnelSubSystem *cabin = manager.giveSubSystem("Cabin", tower);
    for (VarnelSubSystem *subSystem : {tower, cabin}) {
        VarnelPlate *plate = subSystem->getDatabase()->givePlate(true);
        plate->setArea(new VarnelAreaRectangle(KzVector3D(0, 0, 0), 2, 2, 0));
    }
    tower->getDatabase()->giveBeam(true)->setLine(KzVector3D(0, 0, 0), KzVector3D(0, 0, 3), 0);
}

void CompleteProject::addGroupsAndSections() {
    VarnelObjectGroup *group = model().giveObjectGroup("Ground floor");
    model().add(group);
    group->setUserDefined(false);
    group->setCalculate(false);
    group->setOffset(KzVector3D(1, 2, 3));
    group->add(model().getPlates().front());
    group->add(model().getBeams().front());
    group->add(model().getHoles().front());
    group->add(model().getLineBoundaries().front());
    group->add(model().getPointBoundaries().front());
    group->add(model().getPointLoads().front());
    group->add(model().getLineLoads().front());
    group->add(model().getAreaLoads().front());
    group->add(model().getLoadDistributionAreas().front());
    group->add(model().getBeamLoads().front());
    VarnelResultSection *section = model().giveResultSection(KzVector3D(1, 4, 3), KzVector3D(7.5, 4, 3));
    section->setName("A-A");
    model().add(section);
}

void CompleteProject::addStages() {
    VarnelSubSystem *root = manager.getCurrentSubSystem();
    for (const char *name : {"Carcass", "Finish"}) {
        VarnelConstructionStage *stage = model().getDBaseFactory()->giveConstructionStage();
        stage->setName(name);
        root->add(stage);
        model().storeCurrentCSTProperties(stage);
    }
    auto *stage = dynamic_cast<VarnelConstructionStage *>(root->getConstructionStages().front());
    stage->giveState(model().getPlates().front())->setActive(false);
    stage->giveState(model().getPlates().back())
        ->setMaterial(KzMaterialHandler::get()->findMaterialToName("C24", 0));
    stage->giveState(root->getChildren().front()->getDatabase()->getBeams().front());
}

void CompleteProject::addResults() {
    VarnelBeam *beam = model().getBeams().front();
    SysBase::BeamResultState *state = beam->giveResultState(1);
    state->add(new SysBase::BeamDeformationsLocation(0.0, KzVector3D(0, 0, 0)));
    state->add(new SysBase::BeamDeformationsLocation(2.0, KzVector3D(0.001, 0, -0.0125)));
    state->add(new SysBase::BeamStressResultantsLocation(2.0, 84.5));
}

ChangedDefaults::ChangedDefaults() {
    VarnelDefaultProperties &defaults = *VarnelDefaultProperties::get();
    VarnelLineBoundaryData support(4, "W");
    support.setWidth(0.3);
    defaults.setLBData(support);
    VarnelPlateProperties plate;
    plate.setName("P");
    plate.setThick(0.18);
    defaults.setPlateProp(plate);
    VarnelLineLoadData lineLoad;
    lineLoad.setName("LL");
    lineLoad.setP1(KzVector3D(0, 0, 3));
    defaults.setLineLoad(lineLoad);
    VarnelPointLoad pointLoad;
    pointLoad.setName("PL");
    pointLoad.setForce(KzVector3D(0, 0, 10));
    defaults.setPointLoad(pointLoad);
    VarnelAreaLoad areaLoad;
    areaLoad.setName("AL");
    areaLoad.setP(0, 0, 2.5);
    defaults.setAreaLoad(areaLoad);
    VarnelBeamProperties beam;
    beam.setName("B");
    beam.setAngle(15.0);
    defaults.setBeamProp(beam);
    VarnelPointBoundaryData column(7, {0, 0, 100, 0, 0, 0});
    column.setName("C");
    column.setAngle(0.0, 2);
    defaults.setPBData(column);
    VarnelHole hole;
    hole.setName("H");
    defaults.setHole(hole);
    VarnelLoadDistributionArea area;
    area.setName("F");
    defaults.setLDA(area);
}

ChangedDefaults::~ChangedDefaults() {
    resetDefaults();
}

void resetDefaults() {
    VarnelDefaultProperties &defaults = *VarnelDefaultProperties::get();
    defaults.setLBData(VarnelLineBoundaryData(0, ""));
    defaults.setPlateProp(VarnelPlateProperties());
    defaults.setLineLoad(VarnelLineLoadData());
    defaults.setPointLoad(VarnelPointLoad());
    defaults.setAreaLoad(VarnelAreaLoad());
    defaults.setBeamProp(VarnelBeamProperties());
    defaults.setPBData(VarnelPointBoundaryData());
    defaults.setHole(VarnelHole());
    defaults.setLDA(VarnelLoadDistributionArea());
}
