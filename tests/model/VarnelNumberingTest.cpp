#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <limits>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/support/ProcessDefaults.h"
#include "tests/support/RecordingServices.h"
#include "varnel/contracts/SysBase/ConstructionStage.h"
#include "varnel/geometry/VarnelAreaPolygon.h"
#include "varnel/geometry/VarnelBeamGeo.h"
#include "varnel/geometry/VarnelPlatePosition.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/geometry/VarnelStraight.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/loads/VarnelBeamLoad.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelGap.h"
#include "varnel/members/VarnelHole.h"
#include "varnel/members/VarnelJoint.h"
#include "varnel/members/VarnelLineBoundary.h"
#include "varnel/members/VarnelLoadDistributionArea.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/model/VarnelDB.h"
#include "varnel/model/VarnelDefaultProperties.h"
#include "varnel/model/VarnelNamesManager.h"
#include "varnel/model/VarnelObjectGroup.h"
#include "varnel/model/VarnelSetupHelper.h"
#include "varnel/model/VarnelSubSystem.h"
#include "varnel/process/VarnelManager.h"

namespace {

VarnelStraight *newLine(double x, double y) {
    return new VarnelStraight(KzVector3D(x, y, 0), KzVector3D(x + 1, y, 0));
}

std::vector<KzVector3D> square(double x, double y) {
    return {{x, y, 0}, {x + 1, y, 0}, {x + 1, y + 1, 0}, {x, y + 1, 0}};
}

VarnelPlate *addPlate(VarnelDB &model, const std::vector<KzVector3D> &corners) {
    VarnelPlate *plate = model.givePlate(true);
    plate->setArea(model.giveAreaPolygon(corners));
    return plate;
}

VarnelSetupHelper number(Varnel &model) {
    VarnelSetupHelper helper;
    model.setupNumbers(helper);
    return helper;
}

std::array<int, 13> counters(const VarnelSetupHelper &helper) {
    std::array<int, 13> values{};
    static_assert(sizeof values == sizeof helper);
    std::memcpy(values.data(), &helper, sizeof values);
    return values;
}

/// Notes the hooks in the order in which they are called.
class HookedModel : public VarnelDB {
  public:
    HookedModel() : VarnelDB(nullptr) {}
    std::string calls;

  protected:
    void setupNumbersOfAreaPoints(const VarnelArea *area) override {
        calls += 'A';
        VarnelDB::setupNumbersOfAreaPoints(area);
    }
    void setupNumbersOfLinePoints(const VarnelLine *line) override {
        calls += 'L';
        VarnelDB::setupNumbersOfLinePoints(line);
    }
    void setupNumbersOfPoint(const VarnelPoint *point) override {
        calls += 'p';
        VarnelDB::setupNumbersOfPoint(point);
    }
};

}  // namespace

TEST(VarnelSetupHelper, StartsAtZero) {
    EXPECT_EQ(counters(VarnelSetupHelper()), (std::array<int, 13>{}));
}

TEST(VarnelSetupHelper, HoldsItsCountersInAFixedOrder) {
    const VarnelSetupHelper helper{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13};
    EXPECT_EQ(helper.plateCount, 1);
    EXPECT_EQ(helper.beamCount, 2);
    EXPECT_EQ(helper.holeCount, 3);
    EXPECT_EQ(helper.gapCount, 4);
    EXPECT_EQ(helper.pointBoundaryCount, 5);
    EXPECT_EQ(helper.lineBoundaryCount, 6);
    EXPECT_EQ(helper.pointLoadCount, 7);
    EXPECT_EQ(helper.lineLoadCount, 8);
    EXPECT_EQ(helper.areaLoadCount, 9);
    EXPECT_EQ(helper.beamLoadCount, 10);
    EXPECT_EQ(helper.constructionStageCount, 11);
}

TEST(VarnelNumbering, AnEmptyModelMovesNoCounter) {
    Varnel model(nullptr);
    model.givePoint(KzVector3D());
    EXPECT_EQ(counters(number(model)), (std::array<int, 13>{}));
    EXPECT_TRUE(model.getPoints().empty());
    EXPECT_FALSE(model.getChanged());
}

TEST(VarnelNumbering, NullEntriesUseUpNoNumber) {
    VarnelDB model(nullptr);
    model.add(static_cast<VarnelPlate *>(nullptr));
    model.add(static_cast<VarnelBeam *>(nullptr));
    model.add(static_cast<VarnelHole *>(nullptr));
    model.add(static_cast<VarnelPointBoundary *>(nullptr));
    model.add(static_cast<VarnelLineBoundary *>(nullptr));
    model.add(static_cast<VarnelLoadDistributionArea *>(nullptr));
    model.add(static_cast<VarnelPointLoad *>(nullptr));
    model.add(static_cast<VarnelLineLoad *>(nullptr));
    model.add(static_cast<VarnelAreaLoad *>(nullptr));
    model.add(static_cast<VarnelBeamLoad *>(nullptr));
    const VarnelPlate *plate = addPlate(model, square(0, 0));
    EXPECT_EQ(counters(number(model)), (std::array<int, 13>{1}));
    EXPECT_EQ(plate->getNumber(), 1);
}

TEST(VarnelNumbering, PlatesThatMeetShareTheirPoints) {
    VarnelDB model(nullptr);
    VarnelPlate *left = addPlate(model, square(0, 0));
    VarnelPlate *right = addPlate(model, square(1, 0));
    number(model);
    EXPECT_EQ(model.getNumberOfPoints(), 6);
    EXPECT_EQ(left->getGeo()->getPoint(1).getNumber(), 2);
    EXPECT_EQ(right->getGeo()->getPoint(0).getNumber(), 2);
    EXPECT_NE(&left->getGeo()->getPoint(1), &right->getGeo()->getPoint(0));
}

TEST(VarnelNumbering, CountersRunOnThroughModelsAndPointsStartAfresh) {
    VarnelDB first(nullptr);
    VarnelDB second(nullptr);
    for (VarnelDB *model : {&first, &second}) {
        addPlate(*model, square(0, 0));
        addPlate(*model, square(1, 0));
        model->add(model->giveLoadDistributionArea());
        model->givePointLoad();
        model->giveLineLoad(newLine(0, 0));
        model->giveAreaLoad();
        model->giveBeamLoad();
        model->giveBeam(true);
        model->add(model->giveHole());
        model->giveGap();
        model->givePointBoundary(KzVector3D(), 7);
        model->add(new VarnelLineBoundary(newLine(0, 0)));
    }
    VarnelSetupHelper helper;
    first.setupNumbers(helper);
    second.setupNumbers(helper);
    EXPECT_EQ(first.getPlates().back()->getNumber(), 2);
    EXPECT_EQ(second.getPlates().front()->getNumber(), 3);
    EXPECT_EQ(second.getPlates().back()->getNumber(), 4);
    EXPECT_EQ(second.getPoints().front()->getNumber(), 1);
    EXPECT_EQ(second.getLoadDistributionAreas().front()->getNumber(), 1);
    EXPECT_EQ(second.getBeams().front()->getNumber(), 2);
    EXPECT_EQ(second.getHoles().front()->getNumber(), 2);
    EXPECT_EQ(second.getGaps().front()->getNumber(), 2);
    EXPECT_EQ(second.getPointBoundaries().front()->getNumber(), 2);
    EXPECT_EQ(second.getLineBoundaries().front()->getNumber(), 2);
    EXPECT_EQ(second.getPointLoads().front()->getNumber(), 2);
    EXPECT_EQ(second.getLineLoads().front()->getNumber(), 2);
    EXPECT_EQ(second.getAreaLoads().front()->getNumber(), 2);
    EXPECT_EQ(second.getBeamLoads().front()->getNumber(), 2);
    EXPECT_EQ(helper.plateCount, 4);
    EXPECT_EQ(helper.constructionStageCount, 0);
}

TEST(VarnelNumbering, NothingIsMarkedAsChanged) {
    VarnelDB model(nullptr);
    addPlate(model, square(0, 0))->setBoundary(0, VarnelLineBoundaryData(7, ""));
    model.giveBeam(true);
    model.add(model.giveHole());
    model.givePointBoundary(KzVector3D(), 7);
    model.add(new VarnelLineBoundary(newLine(0, 0)));
    model.givePointLoad();
    model.giveLineLoad(newLine(0, 0));
    model.giveAreaLoad();
    model.giveBeamLoad();
    model.setChanged(false);
    number(model);
    EXPECT_FALSE(model.getChanged());
}

TEST(VarnelNumbering, StagesOfASubsystemComeAfterThoseOfItsChildren) {
    recording::Factory factory;
    factory.hasExchange = false;  // so that output() numbers the tree and writes nothing
    VarnelManager manager(&factory);
    VarnelSubSystem *root = manager.getCurrentSubSystem();
    VarnelSubSystem *first = manager.giveSubSystem("first", root);
    VarnelSubSystem *below = manager.giveSubSystem("below", first);
    VarnelSubSystem *second = manager.giveSubSystem("second", root);
    std::vector<VarnelPlate *> plates;
    for (VarnelSubSystem *subSystem : {second, below, first, root}) {
        plates.push_back(subSystem->getDatabase()->givePlate(true));
        subSystem->giveConstructionStageToNumber(50);
        subSystem->giveConstructionStageToNumber(60);
    }
    manager.output("house.xml");
    std::vector<int> numbers;
    for (const VarnelPlate *plate : plates) numbers.push_back(plate->getNumber());
    EXPECT_EQ(numbers, (std::vector<int>{4, 3, 2, 1}));
    numbers.clear();
    for (const VarnelSubSystem *subSystem : {below, first, second, root})
        for (const SysBase::ConstructionStage *stage : subSystem->getConstructionStages())
            numbers.push_back(stage->getNumber());
    EXPECT_EQ(numbers, (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST(VarnelNumbering, PointsAreMetPassByPass) {
    VarnelDB model(nullptr);
    model.giveAreaLoad()->setArea(new VarnelAreaPolygon(square(70, 0)));
    model.giveLineLoad(newLine(60, 0));
    VarnelPointLoad *pointLoad = model.givePointLoad();
    pointLoad->setCoor(KzVector3D(50, 0, 0));
    model.add(new VarnelLineBoundary(newLine(40, 0)));
    model.givePointBoundary(KzVector3D(30, 0, 0), 7);
    model.giveGap()->add(KzVector3D(99, 0, 0));
    VarnelHole *hole = model.giveHole();
    hole->setArea(model.giveAreaPolygon(square(20, 0)));
    model.add(hole);
    VarnelBeam *beam = model.giveBeam(KzVector3D(10, 0, 0), KzVector3D(14, 0, 0));
    beam->add(new VarnelJoint(0.25, 1));
    model.add(beam);
    VarnelLoadDistributionArea *area = model.giveLoadDistributionArea();
    area->setArea(model.giveAreaPolygon(square(5, 0)));
    model.add(area);
    VarnelPlate *plate = addPlate(model, square(0, 0));
    plate->giveResultPosition(30, 0, 0);
    plate->giveResultPosition(45, 0, 0);
    number(model);
    std::vector<double> met;
    for (const VarnelPoint *point : model.getPoints()) met.push_back(point->getCoor().getX());
    EXPECT_EQ(met, (std::vector<double>{0,  1,  1,  0,  5,  6,  6,  5,  10, 11, 14, 20, 21,
                                        21, 20, 30, 40, 41, 45, 50, 60, 61, 70, 71, 71, 70}));
    int expected = 0;
    for (const VarnelPoint *point : model.getPoints()) EXPECT_EQ(point->getNumber(), ++expected);
    EXPECT_EQ(plate->findPlatePosition(30, 0, 0)->getNumber(), 16) << "that of the support";
    EXPECT_EQ(pointLoad->getPoint()->getNumber(), 20);
}

TEST(VarnelNumbering, TheBeamOfABeamLoadAndThePlatesOwnLoadsAreNotVisited) {
    VarnelDB model(nullptr);
    VarnelBeam beam;
    beam.setLine(KzVector3D(5, 5, 0), KzVector3D(6, 5, 0), 0);
    model.giveBeamLoad()->setBeam(&beam);
    VarnelPlate *plate = addPlate(model, square(0, 0));
    auto *own = new VarnelAreaLoad;
    own->setNumber(17);
    model.add(plate, own);
    const VarnelSetupHelper helper = number(model);
    EXPECT_EQ(model.getNumberOfPoints(), 4);
    EXPECT_EQ(helper.areaLoadCount, 0);
    EXPECT_EQ(own->getNumber(), 17);
}

TEST(VarnelNumbering, InnerPointsOfBeamsAreNotVisited) {
    VarnelDB model(nullptr);
    auto *axis = new VarnelBeamGeo;
    axis->addLine(new VarnelStraight(KzVector3D(0, 0, 0), KzVector3D(1, 1, 0)));
    axis->addLine(new VarnelStraight(*axis->getLine(0), new VarnelPoint(KzVector3D(2, 0, 0))));
    VarnelBeam *beam = model.giveBeam(true);
    beam->setGeo(axis);
    beam->getStart().setNumber(7);
    number(model);
    EXPECT_EQ(model.getNumberOfPoints(), 2);
    EXPECT_EQ(beam->getStart().getNumber(), 1);
    EXPECT_EQ(beam->getEnd().getNumber(), 2);
    EXPECT_EQ(axis->getLine(0)->getEnd()->getNumber(), 0);
}

TEST(VarnelNumbering, OnlyTheFirstFourEdgesAreNumberedAndNamed) {
    VarnelDB model(nullptr);
    VarnelPlate *plate = addPlate(model, {{0, 0, 0}, {2, 0, 0}, {3, 1, 0}, {1, 2, 0}, {0, 1, 0}});
    plate->setBoundary(1, VarnelLineBoundaryData(7, ""));
    plate->setBoundary(3, VarnelLineBoundaryData(7, ""));
    plate->setBoundary(4, VarnelLineBoundaryData(7, ""));
    plate->getBoundary(4)->setNumber(77);
    const VarnelSetupHelper helper = number(model);
    EXPECT_EQ(plate->getBoundary(1)->getNumber(), 1);
    EXPECT_EQ(plate->getBoundary(3)->getNumber(), 2);
    EXPECT_EQ(plate->getBoundary(4)->getNumber(), 77);
    EXPECT_EQ(plate->getBoundary(4)->getName(), "");
    EXPECT_EQ(plate->getBoundary(1)->getName(), "1");
    EXPECT_EQ(plate->getBoundary(3)->getName(), "1") << "names of edges are not among the line boundaries";
    EXPECT_EQ(helper.lineBoundaryCount, 2);
    EXPECT_EQ(model.getNumberOfPoints(), 5);
}

TEST(VarnelNumbering, NamelessLineBoundariesGetTheLowestFreeNames) {
    Varnel model(nullptr);
    for (const char *name : {"", "2", "", "W", ""}) {
        auto *boundary = new VarnelLineBoundary(newLine(0, 0));
        boundary->getData().setName(name);
        model.add(boundary);
    }
    number(model);
    std::vector<std::string> names;
    std::vector<int> numbers;
    for (const VarnelLineBoundary *boundary : model.getLineBoundaries()) {
        names.push_back(boundary->getName());
        numbers.push_back(boundary->getNumber());
    }
    EXPECT_EQ(names, (std::vector<std::string>{"1", "2", "3", "W", "4"}));
    EXPECT_EQ(numbers, (std::vector<int>{1, 2, 3, 4, 5}));
}

TEST(VarnelNumbering, NamesAreThoseThatANamesManagerProposes) {
    const ProcessDefaults defaults;
    VarnelDefaultProperties::get()->setLBData(VarnelLineBoundaryData(0, "W"));
    for (unsigned seed = 0; seed < 200; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        VarnelDB model(nullptr);
        VarnelDB plain(nullptr);
        for (int i = 0; i < 12; ++i) {
            static const char *const prefixes[] = {"W", "W0", "", "w"};
            std::string name;
            if (random() % 2 == 0) name = prefixes[random() % 4] + std::to_string(random() % 8);
            for (VarnelDB *one : {&model, &plain}) {
                auto *boundary = new VarnelLineBoundary(newLine(0, 0));
                boundary->getData().setName(name);
                one->add(boundary);
            }
        }
        number(model);
        VarnelNamesManager names(&plain);
        auto named = model.getLineBoundaries().begin();
        for (VarnelLineBoundary *boundary : plain.getLineBoundaries()) {
            if (boundary->getName().empty()) boundary->getData().setName(names.nextLineBoundary());
            EXPECT_EQ((*named++)->getName(), boundary->getName());
        }
    }
}

TEST(VarnelNumbering, EdgesAreNamedBeforeLineBoundaries) {
    VarnelDB model(nullptr);
    VarnelPlate *plate = addPlate(model, square(0, 0));
    plate->setBoundary(0, VarnelLineBoundaryData(7, ""));
    model.add(new VarnelLineBoundary(newLine(0, 0)));
    number(model);
    EXPECT_EQ(plate->getBoundary(0)->getName(), "1");
    EXPECT_EQ(model.getLineBoundaries().front()->getName(), "1");
    EXPECT_EQ(model.getLineBoundaries().front()->getNumber(), 2) << "one series for both";
}

TEST(VarnelNumbering, RepeatedRunsGiveTheSameNumbers) {
    VarnelDB model(nullptr);
    for (int i = 0; i < 30; ++i) addPlate(model, square(i, 0));
    number(model);
    const KzVector3D place = model.getPoints().back()->getCoor();
    number(model);
    EXPECT_EQ(model.getPoints().back()->getCoor(), place);
    EXPECT_EQ(model.getPoints().back()->getNumber(), 62);
    EXPECT_EQ(model.findPlateToNumber(30), model.getPlates().back());
}

TEST(VarnelNumbering, DerivedModelsHookIn) {
    HookedModel model;
    addPlate(model, square(0, 0));
    model.giveLineLoad(newLine(0, 0));
    model.giveBeam(true)->add(new VarnelJoint(0.5, 1));  // not by way of a hook
    model.givePointLoad();
    model.getPlates().front()->giveResultPosition(0, 0, 0);
    model.getPlates().front()->giveResultPosition(9, 0, 0);
    number(model);
    EXPECT_EQ(model.calls,
              "Apppp"
              "pp"
              "p"
              "p"
              "Lpp");
    model.calls.clear();
    model.setupResultLocations();
    EXPECT_EQ(model.calls, "pp");
}

TEST(VarnelNumbering, MissingGeometryIsHarmless) {
    VarnelDB model(nullptr);
    model.givePlate(true)->setBoundary(0, VarnelLineBoundaryData());
    model.add(model.giveHole());
    model.add(model.giveLoadDistributionArea());
    model.add(new VarnelLineBoundary(nullptr));
    model.giveLineLoad(nullptr);
    model.giveAreaLoad();
    model.giveBeam(true)->setGeo(nullptr);
    model.giveGap();
    const VarnelSetupHelper helper = number(model);
    EXPECT_EQ(helper.beamCount, 1);
    EXPECT_TRUE(model.getPoints().empty());
    model.setupBoundaryReferences();
    model.mergePointsInVarnelObjects();
    KzVector3D min, max;
    model.getMinMax(&min, &max);
    EXPECT_EQ(max, KzVector3D());
}

TEST(VarnelNumbering, CountersStayAtTheLargestNumber) {
    Varnel model(nullptr);
    model.givePointLoad();
    VarnelSetupHelper helper;
    helper.pointLoadCount = std::numeric_limits<int>::max();
    model.setupNumbers(helper);
    EXPECT_EQ(helper.pointLoadCount, std::numeric_limits<int>::max());
}

TEST(VarnelNumbering, GroupsFollowTheSystemPointsWithoutAChange) {
    VarnelDB model(nullptr);
    addPlate(model, square(0, 0));
    number(model);
    auto *group = new VarnelObjectGroup("G");
    model.add(group);
    VarnelPoint *gone = model.givePoint(KzVector3D(50, 50, 0));
    VarnelPlate *plate = model.getPlates().front();
    group->add(model.getPoints().front());
    group->add(plate);
    group->add(gone);
    group->add(nullptr);
    group->setChanged(false);
    number(model);
    EXPECT_EQ(group->getObjects(),
              (std::list<VarnelObject *>{model.findPoint(KzVector3D()), plate, nullptr}));
    EXPECT_FALSE(group->getChanged());
}

TEST(VarnelNumbering, HooksAreNeverAskedAboutMissingGeometry) {
    class Strict : public VarnelDB {
      public:
        Strict() : VarnelDB(nullptr) {}

      private:
        void setupNumbersOfAreaPoints(const VarnelArea *area) override { EXPECT_NE(area, nullptr); }
        void setupNumbersOfLinePoints(const VarnelLine *line) override { EXPECT_NE(line, nullptr); }
        void setupNumbersOfPoint(const VarnelPoint *point) override { EXPECT_NE(point, nullptr); }
    } model;
    model.givePlate(true);
    model.add(model.giveHole());
    model.add(model.giveLoadDistributionArea());
    model.giveBeam(true)->setGeo(nullptr);
    model.add(new VarnelLineBoundary(nullptr));
    model.giveLineLoad(nullptr);
    model.giveAreaLoad();
    number(model);
    model.setupResultLocations();
    EXPECT_EQ(model.getNumberOfPoints(), 0);
}

TEST(VarnelNumbering, AnExceptionLeavesNoFormerPointInAGroup) {
    class Failing : public VarnelDB {
      public:
        Failing() : VarnelDB(nullptr) {}
        bool fails = false;

      private:
        void setupNumbersOfAreaPoints(const VarnelArea *area) override {
            VarnelDB::setupNumbersOfAreaPoints(area);
            if (fails) throw std::runtime_error("no more points");
        }
    } model;
    addPlate(model, square(0, 0));
    addPlate(model, square(5, 0));
    number(model);
    auto *group = new VarnelObjectGroup("G");
    model.add(group);
    group->add(model.getPoints().front());
    group->add(model.getPoints().back());
    model.fails = true;
    EXPECT_THROW(number(model), std::runtime_error);
    EXPECT_EQ(group->getObjects(), (std::list<VarnelObject *>{model.getPoints().front()}));
}

TEST(VarnelNumbering, ResultPositionsTakeNumbersLater) {
    VarnelDB model(nullptr);
    VarnelPlate *plate = addPlate(model, square(0, 0));
    number(model);
    VarnelPlatePosition *known = plate->giveResultPosition(1, 0, 0);
    VarnelPlatePosition *fresh = plate->giveResultPosition(0.5, 0.5, 0);
    model.setupResultLocations();
    EXPECT_EQ(known->getNumber(), 2);
    EXPECT_EQ(fresh->getNumber(), 5);
    EXPECT_EQ(model.getNumberOfPoints(), 5);
}
