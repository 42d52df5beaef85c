#include <gtest/gtest.h>

#include <random>

#include "tests/support/RecordingServices.h"
#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/geometry/VarnelArea.h"
#include "varnel/geometry/VarnelAreaPolygon.h"
#include "varnel/geometry/VarnelAreaRectangle.h"
#include "varnel/geometry/VarnelStraight.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/loads/VarnelBeamLoad.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/model/Varnel.h"
#include "varnel/model/VarnelDefaultProperties.h"
#include "varnel/model/VarnelSubSystem.h"
#include "varnel/process/PlateLocator.h"
#include "varnel/process/VarnelManager.h"

namespace {

constexpr int dead = 1;
constexpr int live = 2;

SysBase::LoadcaseData::Type type(int value) {
    return static_cast<SysBase::LoadcaseData::Type>(value);
}

class VarnelLoadcases : public testing::Test {
  protected:
    VarnelLoadcases() { manager.setLoadcaseAutomation(true); }

    VarnelPlate *addPlate(double x, double y, double width, double height) {
        VarnelPlate *plate = model->givePlate(true);
        plate->setArea(new VarnelAreaRectangle(KzVector3D(x, y, 0), width, height, 0));
        return plate;
    }
    VarnelPointLoad *addLoad(double x, double y, int lcType) {
        VarnelPointLoad *load = model->givePointLoad();
        load->setCoor(KzVector3D(x, y, 0));
        load->setLcType(type(lcType));
        return load;
    }
    SysBase::Loadcase *named(const std::string &name) {
        for (SysBase::Loadcase *loadcase : manager.getLoadcases())
            if (loadcase->getName() == name) return loadcase;
        return nullptr;
    }

    recording::Factory factory;
    VarnelManager manager{&factory};
    Varnel *model = manager.getDatabase();
};

TEST_F(VarnelLoadcases, WithoutAutomationNothingIsTouched) {
    manager.setLoadcaseAutomation(false);
    SysBase::Loadcase *loadcase = manager.giveLoadcaseToNumber(4, true);
    VarnelPointLoad *load = addLoad(0, 0, dead);
    load->setLoadcase(loadcase);
    manager.setup();
    manager.setupLoads(manager.getCurrentSubSystem());
    EXPECT_EQ(load->getLoadcase(), loadcase);
    EXPECT_EQ(manager.getLoadcases().size(), 1u);
}

TEST_F(VarnelLoadcases, DeadAndLiveAreaLoadsOfAPlateGoToTheirCases) {
    VarnelPlate *plate = addPlate(0, 0, 4, 4);
    plate->setName("P");
    VarnelAreaLoad *deadLoad = plate->giveAreaLoad(type(dead), nullptr);
    VarnelAreaLoad *liveLoad = plate->giveAreaLoad(type(live), nullptr);
    manager.setup();
    ASSERT_NE(named("Own weight"), nullptr);
    ASSERT_NE(named("Load P"), nullptr);
    EXPECT_EQ(deadLoad->getLoadcase(), named("Own weight"));
    EXPECT_EQ(liveLoad->getLoadcase(), named("Load P"));
    EXPECT_EQ(named("Own weight")->getType(), 1);
    EXPECT_EQ(named("Load P")->getType(), 2);
    EXPECT_TRUE(named("Own weight")->isOwnWeight());
    EXPECT_EQ(named("Own weight")->getFlag(), 0);
    EXPECT_EQ(named("Load P")->getFlag(), 0);
}

TEST_F(VarnelLoadcases, OwnWeightOffWithoutDeadLoadsLeavesAnUnusedCase) {
    manager.setOwnWeight(false);
    manager.setup();
    ASSERT_NE(named("Own weight"), nullptr);
    EXPECT_FALSE(named("Own weight")->isOwnWeight());
    EXPECT_EQ(named("Own weight")->getFlag(), 1);
    addLoad(0, 0, dead);
    manager.setup();
    EXPECT_EQ(named("Own weight")->getFlag(), 0);
}

TEST_F(VarnelLoadcases, FreeLoadsTakeTheCaseOfThePlateBelow) {
    addPlate(0, 0, 4, 4);
    addPlate(10, 0, 4, 4);
    VarnelPointLoad *on = addLoad(12, 2, live);
    VarnelPointLoad *beside = addLoad(7, 2, live);
    VarnelPointLoad *own = addLoad(7, 2, dead);
    VarnelLineLoad *line = model->giveLineLoad(new VarnelStraight(KzVector3D(0, 1, 0), KzVector3D(4, 1, 0)));
    line->setLcType(type(live));
    VarnelBeamLoad *beamLoad = model->giveBeamLoad();
    beamLoad->setLcType(type(live));
    manager.setup();
    ASSERT_NE(on->getLoadcase(), nullptr);
    EXPECT_EQ(on->getLoadcase()->getNumber(), 3);  // the number of the plate + 1
    EXPECT_EQ(on->getLoadcase()->getFlag(), 0);
    EXPECT_EQ(beside->getLoadcase(), nullptr);
    EXPECT_EQ(own->getLoadcase(), named("Own weight"));
    ASSERT_NE(line->getLoadcase(), nullptr);
    EXPECT_EQ(line->getLoadcase()->getNumber(), 2);
    EXPECT_EQ(beamLoad->getLoadcase(), nullptr);
    EXPECT_EQ(manager.findLoadcase(KzVector3D(12, 2, 0)), on->getLoadcase());
    EXPECT_EQ(manager.findLoadcase(KzVector3D(7, 2, 0)), nullptr);
}

TEST_F(VarnelLoadcases, PlacesAreLookedForInTheCurrentSubSystem) {
    VarnelSubSystem *child = manager.giveSubSystem("child", manager.getCurrentSubSystem());
    addPlate(0, 0, 4, 4);
    VarnelPointLoad *load = child->getDatabase()->givePointLoad();
    load->setLcType(type(live));
    load->setCoor(KzVector3D(1, 1, 0));
    manager.setup();
    ASSERT_NE(load->getLoadcase(), nullptr);
    EXPECT_EQ(load->getLoadcase()->getNumber(), 2);
}

TEST_F(VarnelLoadcases, SetupMakesCasesAnewAndUpdateAllKeepsThem) {
    manager.giveLoadcaseToNumber(50, true)->setName("old");
    manager.updateAll();
    EXPECT_NE(named("old"), nullptr);
    manager.setLoadChanged(false);
    factory.script.take();
    manager.setup();
    EXPECT_EQ(named("old"), nullptr);
    EXPECT_TRUE(manager.loadChanged());
    EXPECT_EQ(manager.getCurrentLoadcase(), nullptr);
}

TEST_F(VarnelLoadcases, DyingCasesAreForgottenEverywhereWithoutAChange) {
    manager.setLoadcaseAutomation(false);
    SysBase::Loadcase *loadcase = manager.giveLoadcaseToNumber(1, true);
    VarnelSubSystem *child = manager.giveSubSystem("child", manager.getCurrentSubSystem());
    VarnelPointLoad *below = child->getDatabase()->givePointLoad();
    VarnelAreaLoad *ofPlate = addPlate(0, 0, 1, 1)->giveAreaLoad(type(live), loadcase);
    below->setLoadcase(loadcase);
    VarnelPointLoad byDefault(VarnelDefaultProperties::get()->getPointLoad());
    byDefault.setLoadcase(loadcase);
    VarnelDefaultProperties::get()->setPointLoad(byDefault);
    manager.setLoadChanged(false);
    manager.setSystemChanged(false);
    manager.remove(loadcase, true);
    EXPECT_EQ(below->getLoadcase(), nullptr);
    EXPECT_EQ(ofPlate->getLoadcase(), nullptr);
    EXPECT_EQ(VarnelDefaultProperties::get()->getPointLoad().getLoadcase(), nullptr);
    EXPECT_FALSE(below->getChanged());
}

TEST_F(VarnelLoadcases, RemovingACaseLetsItsLoadsGoUndeleted) {
    manager.setLoadcaseAutomation(false);
    SysBase::Loadcase *loadcase = manager.giveLoadcaseToNumber(1, true);
    const std::unique_ptr<VarnelPointLoad> load(addLoad(0, 0, live));
    load->setLoadcase(loadcase);
    manager.remove(loadcase, false);
    EXPECT_TRUE(model->getPointLoads().empty());
    EXPECT_TRUE(manager.getLoadcases().empty());
    EXPECT_EQ(load->getLoadcase(), loadcase);
    delete loadcase;
}

TEST_F(VarnelLoadcases, CurrentCaseIsToldToTheConverter) {
    manager.giveLoadcaseToNumber(2, true);
    manager.getConverter();
    factory.script.take();
    manager.setCurrentLoadcase(2);
    EXPECT_EQ(manager.getCurrentLoadcase()->getNumber(), 2);
    manager.setCurrentLoadcase(9);
    EXPECT_EQ(manager.getCurrentLoadcase(), nullptr);
    EXPECT_EQ(factory.script.take(),
              (recording::Calls{"converter.setCurrentLoadcase 2", "converter.setCurrentLoadcase 9"}));
}

TEST_F(VarnelLoadcases, GivenCasesAreNotAdded) {
    const std::unique_ptr<SysBase::Loadcase> loadcase(manager.giveLoadcase(8));
    EXPECT_EQ(loadcase->getNumber(), 8);
    EXPECT_TRUE(manager.getLoadcases().empty());
}

TEST_F(VarnelLoadcases, LargestPlateNumberDoesNotOverflow) {
    VarnelPlate *plate = addPlate(0, 0, 1, 1);
    plate->setNumber(std::numeric_limits<int>::max());
    ASSERT_NE(manager.findLoadcase(KzVector3D(0.5, 0.5, 0)), nullptr);
    EXPECT_EQ(manager.findLoadcase(KzVector3D(0.5, 0.5, 0))->getNumber(), std::numeric_limits<int>::max());
}

/// An outline that contains everything: its box says nothing.
class Everywhere : public VarnelArea {
  public:
    bool checkPointOn(const KzVector3D &) const override { return true; }
};

TEST_F(VarnelLoadcases, LocatorFindsWhatTheWalkFinds) {
    std::mt19937 random(20261121);
    std::uniform_real_distribution<double> place(0.0, 100.0), size(0.1, 12.0), turn(0.0, 6.0);
    for (int round = 0; round < 20; ++round) {
        model->removeAll();
        const int plates = 1 + static_cast<int>(random() % 300);
        for (int i = 0; i < plates; ++i) {
            VarnelPlate *plate = model->givePlate(true);
            const KzVector3D corner(place(random), place(random), 0);
            if (i % 7 == 6) continue;  // without an outline
            plate->setArea(new VarnelAreaRectangle(corner, size(random), size(random), turn(random)));
        }
        if (round % 5 == 4) {
            VarnelPlate *plate = model->givePlate(true);
            auto *area = new Everywhere;
            area->addVertex(KzVector3D(0, 0, 0));
            area->addVertex(KzVector3D(1, 0, 0));
            plate->setArea(area);
        }
        const varnel::PlateLocator locator(model->getPlates());
        for (int i = 0; i < 500; ++i) {
            const KzVector3D p(place(random), place(random), 0);
            ASSERT_EQ(locator.find(p), model->findPlateToCoor(p));
        }
        for (const VarnelPlate *plate : model->getPlates()) {
            if (!plate->getGeo()) continue;
            const KzVector3D corner = plate->getGeo()->getCoor(0);
            for (const double off : {-0.0011, -0.00099, 0.0, 0.00099, 0.0011}) {
                const KzVector3D p(corner.getX() + off, corner.getY() + off, 0);
                ASSERT_EQ(locator.find(p), model->findPlateToCoor(p));
            }
        }
    }
    EXPECT_EQ(varnel::PlateLocator({}).find(KzVector3D()), nullptr);
    EXPECT_EQ(varnel::PlateLocator({nullptr}).find(KzVector3D(std::nan(""), 0, 0)), nullptr);
}

}  // namespace
