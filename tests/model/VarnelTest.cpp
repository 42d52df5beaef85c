#include "varnel/model/Varnel.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/VirtualSlot.h"
#include "varnel/contracts/KzMaterial.h"
#include "varnel/contracts/KzMaterialHandler.h"
#include "varnel/contracts/SDBSection.h"
#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/geometry/VarnelAreaPolygon.h"
#include "varnel/geometry/VarnelPlatePosition.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/geometry/VarnelStraight.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/loads/VarnelBeamLoad.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelAttributeArea.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelDesignData.h"
#include "varnel/members/VarnelGap.h"
#include "varnel/members/VarnelHole.h"
#include "varnel/members/VarnelLineBoundary.h"
#include "varnel/members/VarnelLoadDistributionArea.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/members/VarnelRefinePolygon.h"
#include "varnel/model/VarnelDB.h"
#include "varnel/model/VarnelObjectGroup.h"
#include "varnel/results/VarnelResultSection.h"

namespace {

VarnelStraight *newLine() {
    return new VarnelStraight(KzVector3D(0, 0, 0), KzVector3D(1, 0, 0));
}

/// Opens what a derived model sees.
class OpenModel : public VarnelDB {
  public:
    using VarnelDB::add;
    using VarnelDB::setupNumbersOfAreaPoints;
    using VarnelDB::setupNumbersOfLinePoints;
    using VarnelDB::setupNumbersOfPoint;
    using VarnelDB::VarnelDB;
};

std::string notes;  // letters of the objects that something happened to, in that order

/// Notes when it is asked for a change and when it is told of one.
template <class Base, char letter>
class Noting : public Base {
  public:
    using Base::Base;
    bool getChanged() const override {
        notes += letter;
        return Base::getChanged();
    }
    void setChanged(bool changed) override {
        notes += letter;
        Base::setChanged(changed);
    }
};

/// The same for a plate, which a model asks through the non-const question.
class NotingPlate : public VarnelPlate {
  public:
    NotingPlate() : VarnelPlate(nullptr) {}
    using VarnelPlate::getChanged;
    bool getChanged() override {
        notes += 'P';
        return VarnelPlate::getChanged();
    }
    void setChanged(bool changed) override {
        notes += 'P';
        VarnelPlate::setChanged(changed);
    }
};

/// Notes its death.
template <class Base, char letter>
class Dying : public Base {
  public:
    using Base::Base;
    ~Dying() override { notes += letter; }
};

/// One object of each kind that has a flag, all unchanged.
void fillNoting(OpenModel &model) {
    auto *gap = new Noting<VarnelGap, 'g'>;
    model.add(new Noting<VarnelObjectGroup, 'G'>(""));
    model.add(static_cast<VarnelGap *>(gap));
    model.add(new Noting<VarnelLineBoundary, 'W'>(newLine()));
    model.add(new Noting<VarnelPointBoundary, 'S'>(KzVector3D(), 0, nullptr));
    model.add(new Noting<VarnelHole, 'H'>);
    model.add(new Noting<VarnelBeam, 'B'>);
    model.add(new NotingPlate);
    model.add(new Noting<VarnelAreaLoad, 'a'>);
    model.add(new Noting<VarnelBeamLoad, 'b'>);
    model.add(new Noting<VarnelPointLoad, 'p'>);
    model.add(new Noting<VarnelLineLoad, 'l'>(newLine()));
    model.setChanged(false);
    gap->setChanged(false);
    notes.clear();
}

/// A way to make one thing of a model changed, on a model whose flags are clear otherwise.
struct Change {
    const char *name;
    std::function<void(VarnelDB &)> make;
    bool system;
    bool load;
};

std::vector<Change> changes() {
    return {
        {"plate", [](VarnelDB &m) { m.getPlates().front()->setThick(0.3); }, true, false},
        {"beam", [](VarnelDB &m) { m.getBeams().front()->setChanged(true); }, true, false},
        {"hole", [](VarnelDB &m) { m.getHoles().front()->setChanged(true); }, true, false},
        {"point boundary", [](VarnelDB &m) { m.getPointBoundaries().front()->setChanged(true); }, true,
         false},
        {"line boundary", [](VarnelDB &m) { m.getLineBoundaries().front()->setChanged(true); }, true, false},
        {"group", [](VarnelDB &m) { m.getObjectGroups().front()->setChanged(true); }, true, false},
        {"point load", [](VarnelDB &m) { m.getPointLoads().front()->setChanged(true); }, false, true},
        {"line load", [](VarnelDB &m) { m.getLineLoads().front()->setChanged(true); }, false, true},
        {"area load", [](VarnelDB &m) { m.getAreaLoads().front()->setChanged(true); }, false, true},
        {"beam load", [](VarnelDB &m) { m.getBeamLoads().front()->setChanged(true); }, false, true},
        {"plate's own load",
         [](VarnelDB &m) { m.getPlates().front()->getAreaLoads().front()->setChanged(true); }, false, false},
        {"gravity", [](VarnelDB &m) { m.setAcceleration(KzVector3D(0, 0, 1)); }, false, true},
    };
}

/// One object of every kind but a gap, and clear flags.
void fill(VarnelDB &model) {
    VarnelPlate *plate = model.givePlate(true);
    plate->setArea(model.giveAreaPolygon({{0, 0, 0}, {4, 0, 0}, {4, 4, 0}}));
    model.add(plate, new VarnelAreaLoad);
    model.giveBeam(true);
    model.add(model.giveHole());
    model.givePointBoundary(KzVector3D(1, 1, 0), 7);
    model.add(new VarnelLineBoundary(newLine()));
    model.add(new VarnelObjectGroup("G"));
    model.givePointLoad();
    model.giveLineLoad(newLine());
    model.giveAreaLoad();
    model.giveBeamLoad();
    model.setChanged(false);
    plate->getAreaLoads().front()->setChanged(false);
}

}  // namespace

TEST(Varnel, StartsEmptyAndUnchanged) {
    Varnel model(nullptr);
    EXPECT_FALSE(model.systemChanged());
    EXPECT_FALSE(model.loadChanged());
    EXPECT_FALSE(model.getChanged());
    EXPECT_EQ(model.getDBaseFactory(), nullptr);
    EXPECT_EQ(model.getManager(), nullptr);
    EXPECT_EQ(model.getDescription(), "");
    EXPECT_EQ(model.getSystemMode(), 0);
    EXPECT_EQ(model.getCurrentStatus(), 0);
    EXPECT_EQ(model.getNumberOfBeamLocations(), 5);
    EXPECT_EQ(model.getAcceleration(), KzVector3D(0.0, 0.0, 9.81));
    std::list<VarnelPlate *> plates{nullptr};
    EXPECT_FALSE(model.getPlates(&plates));
    EXPECT_TRUE(plates.empty());
    EXPECT_FALSE(model.getPlates(nullptr));
}

TEST(Varnel, OpensTheMaterialDatabase) {
    const Varnel model(nullptr);
    EXPECT_NE(KzMaterialHandler::get()->findMaterialToName("S235"), nullptr);
}

TEST(Varnel, SettersStoreAndOnlyGravityMarksAChange) {
    Varnel model(nullptr);
    model.setDescription(std::string("House"));
    EXPECT_EQ(model.getDescription(), "House");
    model.setDescription("Barn");
    EXPECT_EQ(model.getDescription(), "Barn");
    model.setDescription(static_cast<const char *>(nullptr));
    EXPECT_EQ(model.getDescription(), "");
    model.setSystemMode(2);
    EXPECT_EQ(model.getSystemMode(), 2);
    model.setNumberOfBeamLocations(9);
    EXPECT_EQ(model.getNumberOfBeamLocations(), 9);
    EXPECT_FALSE(model.getChanged());
    model.setAcceleration(KzVector3D(1, 2, 3));
    EXPECT_EQ(model.getAcceleration(), KzVector3D(1, 2, 3));
    EXPECT_TRUE(model.loadChanged());
    EXPECT_FALSE(model.systemChanged());
}

TEST(Varnel, StatusOnlyGrows) {
    Varnel model(nullptr);
    model.setCurrentStatus(1);
    EXPECT_EQ(model.getCurrentStatus(), 1);
    model.setCurrentStatus(Varnel::ResultsTakenOver);
    model.setCurrentStatus(1);
    EXPECT_EQ(model.getCurrentStatus(), 3);
    model.removeAll();
    EXPECT_EQ(model.getCurrentStatus(), 0);
}

TEST(Varnel, RemovingEverythingFromAnEmptyModelMarksBothChanges) {
    Varnel model(nullptr);
    model.removeAll();
    EXPECT_TRUE(model.systemChanged());
    EXPECT_TRUE(model.loadChanged());
}

TEST(Varnel, AsksItsObjectsForChanges) {
    for (const Change &change : changes()) {
        SCOPED_TRACE(change.name);
        VarnelDB model(nullptr);
        fill(model);
        ASSERT_FALSE(model.getChanged());
        change.make(model);
        EXPECT_EQ(model.systemChanged(), change.system);
        EXPECT_EQ(model.loadChanged(), change.load);
        EXPECT_EQ(model.getChanged(), change.system || change.load);
        model.setChanged(false);
        EXPECT_FALSE(model.getChanged());
        model.setChanged(true);
        EXPECT_TRUE(model.systemChanged());
        EXPECT_TRUE(model.loadChanged());
    }
}

TEST(Varnel, AsksItsObjectsInAFixedOrderUntilOneIsChanged) {
    OpenModel model(nullptr);
    fillNoting(model);
    EXPECT_FALSE(model.systemChanged());
    EXPECT_EQ(notes, "PBHSWgG");
    notes.clear();
    EXPECT_FALSE(model.loadChanged());
    EXPECT_EQ(notes, "abpl");
    model.getHoles().front()->setChanged(true);
    model.getPointLoads().front()->setChanged(true);
    notes.clear();
    EXPECT_TRUE(model.systemChanged());
    EXPECT_EQ(notes, "PBH");
    notes.clear();
    EXPECT_TRUE(model.loadChanged());
    EXPECT_EQ(notes, "abp");
}

TEST(Varnel, TellsItsObjectsInAFixedOrderAndLeavesGapsOut) {
    OpenModel model(nullptr);
    fillNoting(model);
    model.setSystemChanged(true);
    EXPECT_EQ(notes, "PBHSWG");
    notes.clear();
    model.setLoadChanged(true);
    EXPECT_EQ(notes, "plab");
    notes.clear();
    model.setChanged(false);
    EXPECT_EQ(notes, "PBHSWGplab");
}

TEST(Varnel, SettingTheLoadFlagReachesAllLoads) {
    VarnelDB model(nullptr);
    fill(model);
    model.setLoadChanged(true);
    EXPECT_TRUE(model.getPointLoads().front()->getChanged());
    EXPECT_TRUE(model.getLineLoads().front()->getChanged());
    EXPECT_TRUE(model.getAreaLoads().front()->getChanged());
    EXPECT_TRUE(model.getBeamLoads().front()->getChanged());
    EXPECT_FALSE(model.getPlates().front()->getAreaLoads().front()->getChanged());
}

TEST(Varnel, AChangedBoundaryOfAPlateEdgeShows) {
    VarnelDB model(nullptr);
    fill(model);
    VarnelPlate *plate = model.getPlates().front();
    plate->setBoundary(0, VarnelLineBoundaryData(7, ""));
    EXPECT_TRUE(model.systemChanged()) << "the const question of the plate would not see it";
}

TEST(Varnel, AGapKeepsTheStructureChanged) {
    VarnelDB model(nullptr);
    VarnelGap *gap = model.giveGap();
    model.setSystemChanged(false);
    EXPECT_TRUE(model.systemChanged());
    gap->setChanged(false);
    EXPECT_FALSE(model.systemChanged());
    model.setSystemChanged(true);
    EXPECT_FALSE(gap->getChanged());
}

TEST(Varnel, ClearingEverythingKeepsWhatIsNoObject) {
    VarnelDB model(nullptr);
    fill(model);
    const std::string name = model.getPlates().front()->getName();
    model.setDescription("House");
    model.setNumberOfBeamLocations(7);
    model.setAcceleration(KzVector3D(1, 0, 0));
    SDBSection section("S", 0.1);
    model.addGeneratedSection(&section);
    model.removeAll();
    EXPECT_TRUE(model.hasPlatewithName(name));
    EXPECT_EQ(model.getDescription(), "House");
    EXPECT_EQ(model.getNumberOfBeamLocations(), 7);
    EXPECT_EQ(model.getAcceleration(), KzVector3D(1, 0, 0));
    EXPECT_TRUE(model.check(&section));
}

TEST(Varnel, ClearingEverythingEmptiesAllLists) {
    VarnelDB model(nullptr);
    fill(model);
    model.add(newLine());
    model.giveGap();
    model.add(model.giveLoadDistributionArea());
    model.giveDesignData();
    auto *polygon = new VarnelRefinePolygon;
    polygon->setArea(model.giveArea());
    model.add(polygon);
    model.giveAttributeArea();
    model.add(model.giveResultSection(KzVector3D(), KzVector3D(1, 0, 0)));
    model.givePoint(KzVector3D());
    model.removeAll();
    EXPECT_TRUE(model.getPoints().empty());
    EXPECT_TRUE(model.getLines().empty());
    EXPECT_TRUE(model.getPlates().empty());
    EXPECT_TRUE(model.getBeams().empty());
    EXPECT_TRUE(model.getHoles().empty());
    EXPECT_TRUE(model.getGaps().empty());
    EXPECT_TRUE(model.getPointLoads().empty());
    EXPECT_TRUE(model.getLineLoads().empty());
    EXPECT_TRUE(model.getAreaLoads().empty());
    EXPECT_TRUE(model.getBeamLoads().empty());
    EXPECT_TRUE(model.getPointBoundaries().empty());
    EXPECT_TRUE(model.getLineBoundaries().empty());
    EXPECT_TRUE(model.getLineBoundaryDatas().empty());
    EXPECT_TRUE(model.getLoadDistributionAreas().empty());
    EXPECT_TRUE(model.getDesignParameters().empty());
    EXPECT_TRUE(model.getRefinePolygons().empty());
    EXPECT_TRUE(model.getAttributeAreas().empty());
    EXPECT_TRUE(model.getResultSections().empty());
    EXPECT_TRUE(model.getObjectGroups().empty());
}

TEST(Varnel, DeletesItsObjectsInAFixedOrder) {
    notes.clear();
    {
        OpenModel model(nullptr);
        model.add(new Dying<VarnelObjectGroup, 'G'>(""));
        model.add(new Dying<VarnelResultSection, 'R'>(nullptr));
        model.add(new Dying<VarnelAttributeArea, 'A'>);
        model.add(new Dying<VarnelLoadDistributionArea, 'D'>);
        model.add(new Dying<VarnelLineBoundary, 'W'>(newLine()));
        model.add(new Dying<VarnelPointBoundary, 'S'>(KzVector3D(), 0, nullptr));
        model.add(new Dying<VarnelBeamLoad, 'b'>);
        model.add(new Dying<VarnelAreaLoad, 'a'>);
        model.add(new Dying<VarnelLineLoad, 'l'>(newLine()));
        model.add(new Dying<VarnelPointLoad, 'p'>);
        model.add(static_cast<VarnelGap *>(new Dying<VarnelGap, 'g'>));
        model.add(new Dying<VarnelHole, 'H'>);
        model.add(new Dying<VarnelBeam, 'B'>);
        model.add(new Dying<VarnelPlate, 'P'>(nullptr));
        model.add(new Dying<VarnelPlate, 'P'>(nullptr));
        model.add(new Dying<VarnelStraight, 'L'>(KzVector3D(), KzVector3D()));
        model.add(static_cast<VarnelPlate *>(nullptr));
    }
    EXPECT_EQ(notes, "LPPBHgplabSWDARG");
}

TEST(Varnel, RemovesResultsOfPlatesAndBeamsOnly) {
    VarnelDB model(nullptr);
    VarnelPlate *plate = model.givePlate(true);
    plate->giveResultPosition(1, 2, 0);
    VarnelBeam *beam = model.giveBeam(true);
    beam->giveResultState(3);
    auto *group = new VarnelObjectGroup("G");
    model.add(group);
    group->giveResultState(3);
    model.removeResults();
    EXPECT_TRUE(plate->getResultPositions().empty());
    EXPECT_EQ(beam->findResultState(3), nullptr);
    EXPECT_NE(group->findResultState(3), nullptr);
}

TEST(Varnel, RemovesSettings) {
    Varnel model(nullptr);
    model.giveDesignData();
    model.removeSettings();
    EXPECT_TRUE(model.getDesignParameters().empty());
    EXPECT_FALSE(model.getChanged());
}

TEST(Varnel, RemovingPointBoundariesLeavesNoneInGroups) {
    Varnel model(nullptr);
    VarnelPointBoundary *boundary = model.givePointBoundary(KzVector3D(), 7);
    auto *group = new VarnelObjectGroup("G");
    model.add(group);
    auto *load = model.givePointLoad();
    group->add(boundary);
    group->add(nullptr);
    group->add(load);
    group->setChanged(false);
    model.removePointBoundaries();
    EXPECT_TRUE(model.getPointBoundaries().empty());
    EXPECT_EQ(group->getObjects(), (std::list<VarnelObject *>{nullptr, load}));
    EXPECT_FALSE(group->getChanged());
}

TEST(Varnel, NullEntriesAreHarmless) {
    Varnel model(nullptr);
    model.add(static_cast<VarnelPlate *>(nullptr));
    model.add(static_cast<VarnelBeam *>(nullptr));
    model.add(static_cast<VarnelHole *>(nullptr));
    model.add(static_cast<VarnelLine *>(nullptr));
    model.add(static_cast<VarnelPointBoundary *>(nullptr));
    model.add(static_cast<VarnelLineBoundary *>(nullptr));
    model.add(static_cast<VarnelLineBoundaryData *>(nullptr));
    model.add(static_cast<VarnelPointLoad *>(nullptr));
    model.add(static_cast<VarnelLineLoad *>(nullptr));
    model.add(static_cast<VarnelAreaLoad *>(nullptr));
    model.add(static_cast<VarnelBeamLoad *>(nullptr));
    model.add(static_cast<VarnelObjectGroup *>(nullptr));
    model.setChanged(false);
    EXPECT_FALSE(model.getChanged());
    EXPECT_EQ(model.getNumberOfPlates(), 1);
    EXPECT_EQ(model.findPlateToNumber(0), nullptr);
    EXPECT_EQ(model.findLineBoundaryToName(""), nullptr);
    model.removeResults();
    model.removeLoadsToLoadcase(true, nullptr);
    model.removeFromObjectGroups(nullptr);
    model.setupBoundaryReferences();
    model.setupResultLocations();
    model.mergePointsInVarnelObjects();
    const VarnelStraight line(KzVector3D(), KzVector3D(1, 0, 0));
    EXPECT_EQ(model.findLineBoundaryToLine(&line), nullptr);
    EXPECT_FALSE(model.check(static_cast<const KzMaterial *>(nullptr)));
    EXPECT_FALSE(model.check(static_cast<const Found::Foundation *>(nullptr)));
    EXPECT_FALSE(model.check(static_cast<const KzReinfStockMesh *>(nullptr)));
    EXPECT_EQ(model.getNumberOfPointLoadsToLoadcase(nullptr), 0);
    KzVector3D min, max;
    model.getMinMax(&min, &max);
    EXPECT_EQ(max, KzVector3D());
    EXPECT_EQ(model.getNumberOfPointLoads(), 1);
    model.remove(static_cast<VarnelBeam *>(nullptr), true);
    EXPECT_EQ(model.getNumberOfBeams(), 0);
}

TEST(Varnel, EmptyHooksDoNothing) {
    Varnel model(nullptr);
    model.updateSections();
    model.initInstance();
    model.setupLoads();
    model.removeFromConstructionStage(nullptr);
    model.storeCurrentCSTProperties(nullptr);
    EXPECT_FALSE(model.getChanged());
}

TEST(Varnel, ADatabaseHasAFactoryAndAPlainModelHasNone) {
    VarnelDB database(nullptr);
    EXPECT_NE(database.getDBaseFactory(), nullptr);
    Varnel model(nullptr);
    EXPECT_EQ(model.givePlate(true), nullptr);
    EXPECT_EQ(model.giveBeam(true), nullptr);
    EXPECT_EQ(model.giveBeam(KzVector3D(), KzVector3D(1, 0, 0)), nullptr);
    EXPECT_EQ(model.giveResultSection(KzVector3D(), KzVector3D(1, 0, 0)), nullptr);
    EXPECT_FALSE(model.getChanged());
}

TEST(Varnel, VirtualOperationsStandInTheirSlots) {
    EXPECT_EQ(varnel::virtualSlot(&Varnel::removeAll), 2);
    EXPECT_EQ(varnel::virtualSlot(&Varnel::setupNumbers), 3);
    EXPECT_EQ(varnel::virtualSlot(&Varnel::updateSections), 4);
    EXPECT_EQ(varnel::virtualSlot(&Varnel::storeCurrentCSTProperties), 5);
    EXPECT_EQ(varnel::virtualSlot(&Varnel::copy), 6);
    EXPECT_EQ(varnel::virtualSlot(&Varnel::initInstance), 7);
    EXPECT_EQ(varnel::virtualSlot(&Varnel::getStandardMode), 8);
    EXPECT_EQ(varnel::virtualSlot(&Varnel::setStandardMode), 9);
    EXPECT_EQ(varnel::virtualSlot(&Varnel::getSituation), 10);
    EXPECT_EQ(varnel::virtualSlot(&Varnel::setSituation), 11);
    EXPECT_EQ(varnel::virtualSlot(&Varnel::getBuildingType), 12);
    EXPECT_EQ(varnel::virtualSlot(&Varnel::setBuildingType), 13);
    EXPECT_EQ(varnel::virtualSlot(&Varnel::getDesignMaterial), 14);
    EXPECT_EQ(varnel::virtualSlot(&Varnel::setDesignMaterial), 15);
    EXPECT_EQ(varnel::virtualSlot(&Varnel::getClassification), 16);
    EXPECT_EQ(varnel::virtualSlot(&Varnel::setClassification), 17);
    EXPECT_EQ(varnel::virtualSlot<bool(const Found::Foundation *)>(&Varnel::check), 18);
    EXPECT_EQ(varnel::virtualSlot<bool(const KzMaterial *)>(&Varnel::check), 19);
    EXPECT_EQ(varnel::virtualSlot<bool(const SDBSection *)>(&Varnel::check), 20);
    EXPECT_EQ(varnel::virtualSlot(&OpenModel::setupNumbersOfAreaPoints), 21);
    EXPECT_EQ(varnel::virtualSlot(&OpenModel::setupNumbersOfLinePoints), 22);
    EXPECT_EQ(varnel::virtualSlot(&OpenModel::setupNumbersOfPoint), 23);
    EXPECT_EQ(varnel::virtualSlot<bool(const KzReinfStockMesh *)>(&Varnel::check), -1);
    EXPECT_EQ(varnel::virtualSlot(&Varnel::mergePointsInVarnelObjects), -1);
}
