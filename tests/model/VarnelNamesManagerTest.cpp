#include "varnel/model/VarnelNamesManager.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <string>

#include "tests/support/VirtualSlot.h"
#include "varnel/geometry/VarnelAreaPolygon.h"
#include "varnel/geometry/VarnelStraight.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/loads/VarnelBeamLoad.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelBeamProperties.h"
#include "varnel/members/VarnelHole.h"
#include "varnel/members/VarnelLineBoundary.h"
#include "varnel/members/VarnelLineBoundaryData.h"
#include "varnel/members/VarnelLoadDistributionArea.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPlateProperties.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/model/FreeNames.h"
#include "varnel/model/VarnelDB.h"
#include "varnel/model/VarnelDefaultProperties.h"
#include "varnel/model/VarnelObjectGroup.h"

namespace {

void addLineBoundary(Varnel &model, const std::string &name) {
    auto *boundary = new VarnelLineBoundary(new VarnelStraight(KzVector3D(), KzVector3D(1, 0, 0)));
    boundary->getData().setName(name);
    model.add(boundary);
}

/// Puts the names of the default records back when a test is over.
class VarnelNamesManagerDefaults : public ::testing::Test {
  protected:
    void TearDown() override {
        VarnelDefaultProperties &defaults = *VarnelDefaultProperties::get();
        defaults.setPlateProp(VarnelPlateProperties());
        defaults.setBeamProp(VarnelBeamProperties());
        defaults.setLBData(VarnelLineBoundaryData(0, ""));
        defaults.setPBData(VarnelPointBoundaryData());
        defaults.setHole(VarnelHole());
        defaults.setLDA(VarnelLoadDistributionArea());
    }
};

}  // namespace

TEST(VarnelNamesManager, FreshModelsStartAtOne) {
    Varnel model(nullptr);
    VarnelNamesManager names(&model);
    std::string plate;
    names.nextPlateP(&plate);
    names.nextPlateP(nullptr);
    EXPECT_EQ(plate, "1");
    EXPECT_EQ(names.nextPlate(), "1");
    EXPECT_EQ(names.nextHole(), "1");
    EXPECT_EQ(names.nextLDA(), "1");
    EXPECT_EQ(names.nextPointBoundary(), "1");
    EXPECT_EQ(names.nextLineBoundary(), "1");
    EXPECT_EQ(names.nextLoad(), "L1");
    EXPECT_EQ(names.nextBeam(), "1");
    EXPECT_EQ(names.nextObjectGroup(), "Group 1");
    EXPECT_EQ(names.nextBeam(), "1") << "nothing is kept between calls";
}

TEST(VarnelNamesManager, TheLowestFreeNumberWins) {
    Varnel model(nullptr);
    addLineBoundary(model, "1");
    addLineBoundary(model, "3");
    VarnelNamesManager names(&model);
    EXPECT_EQ(names.nextLineBoundary(), "2");
    addLineBoundary(model, "2");
    EXPECT_EQ(names.nextLineBoundary(), "4");
    model.remove(model.getLineBoundaries().front(), true);
    EXPECT_EQ(names.nextLineBoundary(), "1");
    EXPECT_TRUE(names.findLineBoundary("3"));
    EXPECT_FALSE(names.findLineBoundary("1"));
}

TEST(VarnelNamesManager, EachKindLooksAtItsOwnList) {
    VarnelDB model(nullptr);
    model.giveBeam(true)->setName("1");
    VarnelHole *hole = model.giveHole();
    hole->setName("2");
    model.add(hole);
    VarnelLoadDistributionArea *area = model.giveLoadDistributionArea();
    area->setName("1");
    model.add(area);
    model.givePointBoundary(KzVector3D(), 0)->setName("1");
    model.add(new VarnelObjectGroup("Group 1"));
    VarnelNamesManager names(&model);
    EXPECT_EQ(names.nextBeam(), "2");
    EXPECT_EQ(names.nextHole(), "1");
    EXPECT_EQ(names.nextLDA(), "2");
    EXPECT_EQ(names.nextPointBoundary(), "2");
    EXPECT_EQ(names.nextObjectGroup(), "Group 2");
    EXPECT_TRUE(names.findBeam("1"));
    EXPECT_FALSE(names.findBeam("2"));
    EXPECT_TRUE(names.findHole("2"));
    EXPECT_TRUE(names.findLDA("1"));
    EXPECT_TRUE(names.findPointBoundary("1"));
    EXPECT_TRUE(names.findObjectGroup("Group 1"));
    EXPECT_FALSE(names.findObjectGroup("Group"));
}

TEST(VarnelNamesManager, NullEntriesHaveNoNames) {
    Varnel model(nullptr);
    model.add(static_cast<VarnelBeam *>(nullptr));
    model.add(static_cast<VarnelPointLoad *>(nullptr));
    model.add(static_cast<VarnelLineBoundary *>(nullptr));
    VarnelNamesManager names(&model);
    EXPECT_EQ(names.nextBeam(), "1");
    EXPECT_EQ(names.nextLoad(), "L1");
    EXPECT_EQ(names.nextLineBoundary(), "1");
    EXPECT_FALSE(names.findBeam(""));
    EXPECT_FALSE(names.findLineBoundary(""));
}

TEST(VarnelNamesManager, BoundariesOfPlateEdgesAreNotLookedAt) {
    VarnelDB model(nullptr);
    VarnelPlate *plate = model.givePlate(false);
    plate->setArea(model.giveAreaPolygon({{0, 0, 0}, {4, 0, 0}, {4, 4, 0}}));
    plate->setBoundary(0, VarnelLineBoundaryData(7, "1"));
    model.add(plate);
    ASSERT_NE(model.findLineBoundaryToName("1"), nullptr);
    VarnelNamesManager names(&model);
    EXPECT_EQ(names.nextLineBoundary(), "1");
    EXPECT_FALSE(names.findLineBoundary("1"));
}

TEST(VarnelNamesManager, APlateThatIsNotAddedIsAvoidedByOneOfTheTwoWays) {
    VarnelDB model(nullptr);
    const std::unique_ptr<VarnelPlate> plate(model.givePlate(false));
    plate->setName("1");
    VarnelNamesManager names(&model);
    EXPECT_EQ(names.nextPlate(), "2");
    std::string name = "former";
    names.nextPlateP(&name);
    EXPECT_EQ(name, "1");
    EXPECT_FALSE(names.findPlate("1"));
    plate->setName("Roof");
    EXPECT_EQ(names.nextPlate(), "1") << "a freed name is proposed again";
}

TEST(VarnelNamesManager, LoadsAreLookedAtButNotBeamLoads) {
    Varnel model(nullptr);
    model.giveBeamLoad()->setName("L1");
    VarnelNamesManager names(&model);
    EXPECT_EQ(names.nextLoad(), "L1");
    EXPECT_FALSE(names.findLoad("L1"));
    model.givePointLoad()->setName("L1");
    model.giveLineLoad(nullptr)->setName("L2");
    model.giveAreaLoad()->setName("L3");
    EXPECT_EQ(names.nextLoad(), "L4");
    EXPECT_TRUE(names.findLoad("L1"));
    EXPECT_TRUE(names.findLoad("L2"));
    EXPECT_TRUE(names.findLoad("L3"));
}

TEST(VarnelNamesManager, NamesOfRemovedPlatesAreAvoidedByOneOfTheTwoWays) {
    VarnelDB model(nullptr);
    model.givePlate(true)->setName("1");
    VarnelNamesManager names(&model);
    EXPECT_TRUE(names.findPlate("1"));
    model.removeAll();
    EXPECT_EQ(names.nextPlate(), "2");
    std::string plate;
    names.nextPlateP(&plate);
    EXPECT_EQ(plate, "1");
    EXPECT_FALSE(names.findPlate("1"));
}

TEST(VarnelNamesManager, TemporaryNamesPlayNoPart) {
    Varnel model(nullptr);
    VarnelNamesManager names(&model);
    names.addTemporaryLineBoundary("1");
    EXPECT_EQ(names.nextLineBoundary(), "1");
    EXPECT_FALSE(names.findLineBoundary("1"));
    names.removeTemporaryLineBoundary("1");
    names.resetTemporaryLineBoundary();
}

TEST(VarnelNamesManager, ACopyProposesForTheSameModel) {
    Varnel model(nullptr);
    addLineBoundary(model, "1");
    const VarnelNamesManager names(&model);
    VarnelNamesManager copied(names);
    EXPECT_EQ(copied.nextLineBoundary(), "2");
    EXPECT_EQ(copied.nextPlate(), "1");
}

TEST(VarnelNamesManager, AMissingModelHasNoNamesInUse) {
    VarnelNamesManager names(nullptr);
    EXPECT_EQ(names.nextPlate(), "1");
    EXPECT_EQ(names.nextBeam(), "1");
    EXPECT_FALSE(names.findLoad("L1"));
}

TEST_F(VarnelNamesManagerDefaults, PrefixesComeFromTheDefaultRecords) {
    VarnelDefaultProperties &defaults = *VarnelDefaultProperties::get();
    Varnel model(nullptr);
    VarnelNamesManager names(&model);
    VarnelPlateProperties plate;
    plate.setName("P");
    defaults.setPlateProp(plate);
    VarnelBeamProperties beam;
    beam.setName("B");
    defaults.setBeamProp(beam);
    defaults.setLBData(VarnelLineBoundaryData(0, "W"));
    VarnelPointBoundaryData support;
    support.setName("S");
    defaults.setPBData(support);
    VarnelHole hole;
    hole.setName("H");
    defaults.setHole(hole);
    VarnelLoadDistributionArea area;
    area.setName("A");
    defaults.setLDA(area);
    EXPECT_EQ(names.nextPlate(), "P1") << "the record is the one that the manager took at its birth";
    EXPECT_EQ(names.nextBeam(), "B1");
    EXPECT_EQ(names.nextLineBoundary(), "W1");
    EXPECT_EQ(names.nextPointBoundary(), "S1");
    EXPECT_EQ(names.nextHole(), "H1");
    EXPECT_EQ(names.nextLDA(), "A1");
    addLineBoundary(model, "W1");
    EXPECT_EQ(names.nextLineBoundary(), "W2");
}

TEST(VarnelNamesManager, VirtualOperationsStandInTheirSlots) {
    EXPECT_EQ(varnel::virtualSlot(&VarnelNamesManager::nextLineBoundary), 0);
    EXPECT_EQ(varnel::virtualSlot(&VarnelNamesManager::findLineBoundary), 1);
    EXPECT_EQ(varnel::virtualSlot(&VarnelNamesManager::nextBeam), -1);
    EXPECT_FALSE(std::has_virtual_destructor_v<VarnelNamesManager>);
}

TEST(FreeNames, OnlyNamesOfTheProposedFormStandInTheWay) {
    varnel::FreeNames names("A");
    for (const char *name :
         {"A", "A0", "A01", "A+1", "A-1", "A1x", "a1", "B1", "A 1", "A99999999999999999999"})
        names.use(name);
    EXPECT_EQ(names.next(), "A1");
    names.use("A1");
    names.use("A2");
    EXPECT_EQ(names.next(), "A3");
}
