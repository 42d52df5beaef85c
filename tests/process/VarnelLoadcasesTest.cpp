#include <gtest/gtest.h>

#include <memory>
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
#include "varnel/model/VarnelSetupHelper.h"
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
    SysBase::Loadcase *own = named("Own weight");
    own->setType(5);
    manager.setCurrentLoadcase(own->getNumber());
    manager.updateAll();
    EXPECT_EQ(named("Own weight"), own);  // found again by its name
    EXPECT_EQ(own->getType(), 1);
    EXPECT_EQ(manager.getCurrentLoadcase(), own);
    manager.setLoadChanged(false);
    factory.script.take();
    manager.setup();
    EXPECT_EQ(factory.script.take(), (recording::Calls{"converter.setCurrentLoadcase -1"}));
    EXPECT_EQ(named("old"), nullptr);
    EXPECT_TRUE(model->loadChanged());
    EXPECT_TRUE(manager.hasLoadChanged());
    EXPECT_EQ(manager.getCurrentLoadcase(), nullptr);
}

TEST_F(VarnelLoadcases, SetupLeavesNoFormerCaseInLoadsThatTakeNoPartInIt) {
    SysBase::Loadcase *former = manager.giveLoadcaseToName("former");
    VarnelBeamLoad *load = model->giveBeamLoad();
    load->setLoadcase(former);
    VarnelPointLoad byDefault;
    byDefault.setLoadcase(former);
    VarnelDefaultProperties::get()->setPointLoad(byDefault);
    manager.updateAll();
    EXPECT_EQ(load->getLoadcase(), former);
    manager.setup();
    EXPECT_EQ(load->getLoadcase(), nullptr);
    EXPECT_EQ(VarnelDefaultProperties::get()->getPointLoad().getLoadcase(), nullptr);
}

TEST_F(VarnelLoadcases, PointLoadsComeBeforeLineLoadsAndAreaLoads) {
    for (const double x : {0.0, 10.0, 20.0}) addPlate(x, 0, 4, 4);
    VarnelAreaLoad *area = model->giveAreaLoad();
    area->setArea(new VarnelAreaRectangle(KzVector3D(1, 1, 0), 2, 2, 0));
    VarnelLineLoad *line =
        model->giveLineLoad(new VarnelStraight(KzVector3D(11, 1, 0), KzVector3D(13, 1, 0)));
    for (VarnelLoad *load : {static_cast<VarnelLoad *>(area), static_cast<VarnelLoad *>(line)})
        load->setLcType(type(live));
    addLoad(22, 2, live);
    manager.setup();
    std::vector<int> numbers;
    for (const SysBase::Loadcase *loadcase : manager.getLoadcases()) {
        numbers.push_back(loadcase->getNumber());
        EXPECT_EQ(loadcase->getFlag(), 0);
    }
    EXPECT_EQ(numbers, (std::vector<int>{1, 4, 3, 2}));
    ASSERT_NE(area->getLoadcase(), nullptr);
    EXPECT_EQ(area->getLoadcase()->getNumber(), 2);
}

TEST_F(VarnelLoadcases, CasesThatNoLoadUsesAnyMoreStayInTheList) {
    VarnelPlate *plate = addPlate(0, 0, 4, 4);
    plate->setName("P");
    VarnelAreaLoad *load = plate->giveAreaLoad(type(live), nullptr);
    manager.updateAll();
    SysBase::Loadcase *loadcase = named("Load P");
    ASSERT_NE(loadcase, nullptr);
    plate->remove(load);
    delete load;
    manager.updateAll();
    EXPECT_EQ(named("Load P"), loadcase);
    EXPECT_EQ(loadcase->getFlag(), 1);
}

// Each subsystem marks all cases anew, so the marks tell of the last one. Hosts see them so.
TEST_F(VarnelLoadcases, SubSystemsShareCasesByNameAndTheLastOneLeavesTheMarks) {
    VarnelSubSystem *child = manager.giveSubSystem("child", manager.getCurrentSubSystem());
    VarnelPlate *plates[] = {addPlate(0, 0, 4, 4), addPlate(10, 0, 4, 4),
                             child->getDatabase()->givePlate(true)};
    const char *names[] = {"P", "Q", "P"};
    for (int i = 0; i < 3; ++i) {
        plates[i]->setName(names[i]);
        plates[i]->giveAreaLoad(type(live), nullptr);
    }
    manager.setup();
    EXPECT_EQ(manager.getLoadcases().size(), 3u);
    EXPECT_EQ(plates[2]->getAreaLoads().front()->getLoadcase(), named("Load P"));
    EXPECT_EQ(plates[0]->getAreaLoads().front()->getLoadcase(), named("Load P"));
    EXPECT_EQ(named("Load P")->getFlag(), 0);
    EXPECT_EQ(named("Load Q")->getFlag(), 1);
}

TEST_F(VarnelLoadcases, PlatesWithoutLoadsOfTheirOwnHaveNoCase) {
    addPlate(0, 0, 4, 4)->setName("P");
    manager.setup();
    EXPECT_EQ(named("Load P"), nullptr);
    EXPECT_EQ(manager.getLoadcases().size(), 1u);
}

TEST_F(VarnelLoadcases, SetupWithoutLoadsMakesNoCases) {
    VarnelSetupHelper helper;
    manager.setup(manager.getCurrentSubSystem(), helper, false, true);
    EXPECT_TRUE(manager.getLoadcases().empty());
    manager.setup(manager.getCurrentSubSystem(), helper, true, false);
    EXPECT_EQ(manager.getLoadcases().size(), 1u);
}

TEST_F(VarnelLoadcases, CasesAreMadeFoundAndRemovedThroughTheVirtualOperations) {
    class Noting : public VarnelManager {
      public:
        using VarnelManager::VarnelManager;
        SysBase::Loadcase *giveLoadcase(int number) override {
            calls.push_back("give " + std::to_string(number));
            return VarnelManager::giveLoadcase(number);
        }
        void removeLoadcase(SysBase::Loadcase *loadcase, bool destroy) override {
            calls.push_back(destroy ? "remove 1" : "remove 0");
            VarnelManager::removeLoadcase(loadcase, destroy);
        }
        SysBase::Loadcase *giveLoadcaseToNumber(int number, bool create) override {
            calls.push_back("number " + std::to_string(number));
            return VarnelManager::giveLoadcaseToNumber(number, create);
        }
        void setCurrentLoadcase(int number) override {
            calls.push_back("current " + std::to_string(number));
            VarnelManager::setCurrentLoadcase(number);
        }
        SysBase::Loadcase *giveLoadcaseToName(const std::string &name) override {
            calls.push_back("name " + name);
            return VarnelManager::giveLoadcaseToName(name);
        }
        recording::Calls calls;
    } noting(&factory);
    noting.setLoadcaseAutomation(true);
    model = noting.getDatabase();
    VarnelPlate *plate = addPlate(0, 0, 4, 4);
    plate->setName("P");
    plate->giveAreaLoad(type(live), nullptr);
    const std::unique_ptr<VarnelPointLoad> load(addLoad(1, 1, live));
    noting.setup();
    noting.remove(load->getLoadcase(), true);
    EXPECT_EQ(noting.calls, (recording::Calls{"current -1", "name Own weight", "give 1", "name Load P",
                                              "give 2", "number 2", "remove 1"}));
}

TEST_F(VarnelLoadcases, HostThatMakesNoCasesIsHarmless) {
    class Barren : public VarnelManager {
      public:
        using VarnelManager::VarnelManager;
        SysBase::Loadcase *giveLoadcase(int) override { return nullptr; }
    } barren(&factory);
    barren.setLoadcaseAutomation(true);
    model = barren.getDatabase();
    addPlate(0, 0, 4, 4)->giveAreaLoad(type(live), nullptr);
    VarnelPointLoad *load = addLoad(1, 1, live);
    barren.setup();
    EXPECT_EQ(load->getLoadcase(), nullptr);
    EXPECT_EQ(barren.findLoadcase(KzVector3D(1, 1, 0)), nullptr);
}

TEST_F(VarnelLoadcases, HostThatMakesTheFirstCaseOnlyIsHarmless) {
    class Sparing : public VarnelManager {
      public:
        using VarnelManager::VarnelManager;
        SysBase::Loadcase *giveLoadcase(int number) override {
            return number == 1 ? VarnelManager::giveLoadcase(number) : nullptr;
        }
    } sparing(&factory);
    sparing.setLoadcaseAutomation(true);
    model = sparing.getDatabase();
    VarnelAreaLoad *ofPlate = addPlate(0, 0, 4, 4)->giveAreaLoad(type(live), nullptr);
    VarnelPointLoad *own = addLoad(1, 1, dead);
    sparing.setup();
    EXPECT_EQ(ofPlate->getLoadcase(), nullptr);
    ASSERT_EQ(sparing.getLoadcases().size(), 1u);
    EXPECT_EQ(own->getLoadcase(), sparing.getLoadcases().front());
}

TEST_F(VarnelLoadcases, MissingObjectsAndModelsArePassedOver) {
    model->add(static_cast<VarnelPlate *>(nullptr));
    model->add(static_cast<VarnelPointLoad *>(nullptr));
    model->add(static_cast<VarnelLineLoad *>(nullptr));
    model->add(static_cast<VarnelAreaLoad *>(nullptr));
    model->add(static_cast<VarnelBeamLoad *>(nullptr));
    VarnelPlate *plate = addPlate(0, 0, 4, 4);
    plate->setName("P");
    plate->add(static_cast<VarnelAreaLoad *>(nullptr));
    VarnelPointLoad *load = addLoad(1, 1, live);
    manager.setup();
    EXPECT_NE(named("Load P"), nullptr);
    const std::unique_ptr<VarnelPointLoad> removed(load);
    ASSERT_NE(load->getLoadcase(), nullptr);
    manager.remove(load->getLoadcase(), true);
    EXPECT_EQ(model->getPointLoads().size(), 1u);
    VarnelSubSystem bare("bare", nullptr, nullptr);
    const std::size_t cases = manager.getLoadcases().size();
    manager.setupLoads(&bare);
    manager.setupLoads(nullptr);
    EXPECT_EQ(manager.getLoadcases().size(), cases);
}

TEST_F(VarnelLoadcases, DyingCasesAreForgottenInACurrentSubSystemOutsideTheTree) {
    VarnelSubSystem *child = manager.giveSubSystem("child", manager.getCurrentSubSystem());
    ASSERT_EQ(manager.removeSubSystem(child, true), 1);
    const std::unique_ptr<VarnelSubSystem> removed(child);
    manager.setCurrentSubSystem(child);
    VarnelBeamLoad *ofBeam = child->getDatabase()->giveBeamLoad();
    VarnelAreaLoad *ofPlate = child->getDatabase()->givePlate(true)->giveAreaLoad(type(live), nullptr);
    ofBeam->setLoadcase(manager.giveLoadcaseToName("former"));
    manager.setup();
    EXPECT_EQ(ofBeam->getLoadcase(), nullptr);
    SysBase::Loadcase *loadcase = manager.giveLoadcaseToName("another");
    ofPlate->setLoadcase(loadcase);
    manager.remove(loadcase, true);
    EXPECT_EQ(ofPlate->getLoadcase(), nullptr);
    manager.setCurrentSubSystem(manager.getSubSystems().front());
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
    SysBase::Loadcase *living = manager.giveLoadcaseToNumber(2, true);
    VarnelPointLoad *ofLiving = child->getDatabase()->givePointLoad();
    ofLiving->setLoadcase(living);
    manager.setLoadChanged(false);
    manager.setSystemChanged(false);
    manager.remove(loadcase, true);
    EXPECT_EQ(below->getLoadcase(), nullptr);
    EXPECT_EQ(ofPlate->getLoadcase(), nullptr);
    EXPECT_EQ(ofLiving->getLoadcase(), living);
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

TEST_F(VarnelLoadcases, RemovingNoCaseLeavesTheLoadsOfNoCaseInTheModel) {
    VarnelPointLoad *load = model->givePointLoad();
    model->setLoadChanged(false);
    manager.remove(static_cast<SysBase::Loadcase *>(nullptr), true);
    manager.remove(static_cast<SysBase::Loadcase *>(nullptr), false);
    EXPECT_EQ(model->getPointLoads(), (std::list<VarnelPointLoad *>{load}));
    EXPECT_FALSE(model->loadChanged());
}

TEST_F(VarnelLoadcases, DestroyingACaseLetsItsLoadsGoUndeletedAndWithoutTheCase) {
    class Mortal : public SysBase::Loadcase {
      public:
        Mortal(int number, bool &died) : Loadcase(number), died_(died) {}
        ~Mortal() override { died_ = true; }

      private:
        bool &died_;
    };
    bool died = false;
    auto *loadcase = new Mortal(1, died);
    manager.add(loadcase);
    const std::unique_ptr<VarnelLoad> loads[] = {std::unique_ptr<VarnelLoad>(model->givePointLoad()),
                                                 std::unique_ptr<VarnelLoad>(model->giveLineLoad(
                                                     new VarnelStraight(KzVector3D(), KzVector3D(1, 0, 0)))),
                                                 std::unique_ptr<VarnelLoad>(model->giveAreaLoad()),
                                                 std::unique_ptr<VarnelLoad>(model->giveBeamLoad())};
    for (const auto &load : loads) {
        load->setLoadcase(loadcase);
        load->setChanged(false);
    }
    VarnelPointLoad *other = addLoad(0, 0, live);
    manager.remove(loadcase, true);
    EXPECT_TRUE(died);
    EXPECT_TRUE(manager.getLoadcases().empty());
    EXPECT_EQ(model->getPointLoads(), std::list<VarnelPointLoad *>{other});
    EXPECT_TRUE(model->getLineLoads().empty());
    EXPECT_TRUE(model->getAreaLoads().empty());
    EXPECT_TRUE(model->getBeamLoads().empty());
    for (const auto &load : loads) {
        EXPECT_EQ(load->getLoadcase(), nullptr);  // their case is dead
        EXPECT_FALSE(load->getChanged());
    }
}

TEST_F(VarnelLoadcases, LoadsOfOtherSubSystemsStayWhenACaseIsRemoved) {
    VarnelSubSystem *child = manager.giveSubSystem("child", manager.getCurrentSubSystem());
    const std::unique_ptr<SysBase::Loadcase> loadcase(manager.giveLoadcaseToNumber(1, true));
    VarnelPointLoad *below = child->getDatabase()->givePointLoad();
    below->setLoadcase(loadcase.get());
    manager.remove(loadcase.get(), false);
    EXPECT_EQ(child->getDatabase()->getPointLoads().size(), 1u);
    EXPECT_EQ(below->getLoadcase(), loadcase.get());
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
            const double wide = size(random), high = size(random);
            if (i % 7 == 5)  // a wall, and a roof that leans
                plate->setArea(new VarnelAreaPolygon({corner, corner + KzVector3D(wide, 0, 0),
                                                      corner + KzVector3D(wide, i % 2 ? high : 0, high),
                                                      corner + KzVector3D(0, i % 2 ? high : 0, high)}));
            else
                plate->setArea(new VarnelAreaRectangle(corner, wide, high, turn(random)));
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

// A ring with a corner that is not a number is open, and rounding takes one that is far away beyond its box.
TEST_F(VarnelLoadcases, LocatorFindsWhatTheWalkFindsOnOutlinesThatAreNoRings) {
    std::mt19937 random(20261121);
    std::uniform_real_distribution<double> place(-1.0, 1.0);
    const double infinity = std::numeric_limits<double>::infinity();
    const double odd[] = {std::nan(""), infinity, -infinity, 1e308, -1e308, 1e98, 1e10};
    int found = 0;
    for (const double coordinate : odd) {
        SCOPED_TRACE(coordinate);
        for (int round = 0; round < 60; ++round) {
            model->removeAll();
            for (int plates = 0; plates < 6; ++plates) {
                std::vector<KzVector3D> corners;
                for (int i = 0; i < 5; ++i) corners.emplace_back(place(random), place(random), 0);
                double components[] = {corners[1].getX(), corners[1].getY(), 0.0};
                components[random() % 3] = coordinate;
                corners[1].setXYZ(components[0], components[1], components[2]);
                model->givePlate(true)->setArea(new VarnelAreaPolygon(corners));
            }
            model->givePlate(true)->setArea(new VarnelArea);
            const varnel::PlateLocator locator(model->getPlates());
            for (int i = 0; i < 50; ++i) {
                const KzVector3D p(2.0 * place(random), 2.0 * place(random), 0);
                const VarnelPlate *expected = model->findPlateToCoor(p);
                ASSERT_EQ(locator.find(p), expected);
                if (expected) ++found;
            }
        }
    }
    EXPECT_GT(found, 0);
}

}  // namespace
