#include <gtest/gtest.h>

#include <memory>

#include "varnel/contracts/KzConcrete.h"
#include "varnel/geometry/VarnelAreaRectangle.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/members/VarnelDesignData.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPlateEdgeData.h"
#include "varnel/members/VarnelPlateProperties.h"
#include "varnel/model/VarnelDB.h"

namespace {

class VarnelPlateCopy : public testing::Test {
  protected:
    /// One of everything, and unchanged.
    std::unique_ptr<VarnelPlate> fullPlate() {
        auto plate = std::make_unique<VarnelPlate>(&model_);
        plate->setArea(new VarnelAreaRectangle(KzVector3D(), 4.0, 3.0, 0.0));
        plate->setNumber(8);
        plate->setActive(false);
        plate->setName("P1");
        plate->setThick(0.4);
        plate->setPlateType(3);
        plate->setMaterial(&concrete_, 0);
        VarnelDesignData design;
        design.setTheta(0.5);
        plate->setDesign(&design);
        plate->setBoundary(0, VarnelLineBoundaryData(7, "S0"));
        plate->setBoundary(1, VarnelLineBoundaryData(3, "S1"));
        plate->setEdgeJoint(1, 5);
        plate->giveAreaLoad(SysBase::LoadcaseData::DEAD, nullptr);
        plate->giveResultPosition(1, 1, 0);
        plate->setChanged(false);
        return plate;
    }

    VarnelDB model_{nullptr};
    KzConcrete concrete_{"C", 2500.0, 25.0};
};

TEST_F(VarnelPlateCopy, HasOutlinePropertiesAndSupportsOfItsOwn) {
    auto source = fullPlate();
    const VarnelPlate copy(*source);
    EXPECT_NE(source->getGeo(), copy.getGeo());
    EXPECT_NE(source->getBoundary(0), copy.getBoundary(0));
    EXPECT_NE(source->getDesign(), copy.getDesign());
    source.reset();
    EXPECT_DOUBLE_EQ(12.0, copy.getGeo()->getArea());
    EXPECT_EQ("P1", copy.getName());
    EXPECT_EQ(0.4, copy.getThick());
    EXPECT_EQ(3, copy.getPlateType());
    EXPECT_EQ(&concrete_, copy.getMaterial(0));
    EXPECT_EQ(0.5, copy.getDesign()->getTheta());
    EXPECT_EQ(7, copy.getBoundary(0)->getDof());
    EXPECT_EQ("S1", copy.getBoundary(1)->getName());
}

TEST_F(VarnelPlateCopy, LeavesTheRestAsInANewPlate) {
    VarnelPlate copy(*fullPlate());
    EXPECT_EQ(0, copy.getNumber());
    EXPECT_TRUE(copy.getActive());
    EXPECT_TRUE(copy.getChanged());
    EXPECT_EQ(nullptr, copy.getParent());
    EXPECT_EQ(0, copy.getEdgeData(1)->getJoint());
    EXPECT_TRUE(copy.getAreaLoads().empty());
    EXPECT_TRUE(copy.getResultPositions().empty());
    EXPECT_EQ(nullptr, copy.findPlatePosition(1, 1, 0));
}

TEST_F(VarnelPlateCopy, OfAPlateWithoutAnOutlineHasNone) {
    const VarnelPlate source(nullptr);
    const VarnelPlate copy(source);
    EXPECT_EQ(nullptr, copy.getGeo());
    EXPECT_EQ(0.2, copy.getThick());
}

TEST_F(VarnelPlateCopy, AssigningTakesPropertiesTypeAndSupportsOnly) {
    auto source = fullPlate();
    VarnelPlate target(nullptr);
    target.setNumber(2);
    target.setArea(new VarnelAreaRectangle(KzVector3D(), 2.0, 1.0, 0.0));
    target.setBoundary(0, VarnelLineBoundaryData(1, "own"));
    target.setEdgeJoint(2, 6);
    VarnelArea *outline = target.getGeo();
    VarnelAreaLoad *load = target.giveAreaLoad(SysBase::LoadcaseData::LIVE, nullptr);
    VarnelPlatePosition *position = target.giveResultPosition(9, 9, 0);
    target.setChanged(false);
    target = *source;
    source.reset();
    EXPECT_EQ("P1", target.getName());
    EXPECT_EQ(0.4, target.getThick());
    EXPECT_EQ(3, target.getPlateType());
    EXPECT_EQ(0.5, target.getDesign()->getTheta());
    EXPECT_EQ("own", target.getBoundary(0)->getName());
    EXPECT_EQ("S1", target.getBoundary(1)->getName());
    EXPECT_EQ(0, target.getEdgeData(1)->getJoint());
    EXPECT_EQ(6, target.getEdgeData(2)->getJoint());
    EXPECT_EQ(outline, target.getGeo());
    EXPECT_DOUBLE_EQ(2.0, outline->getArea());
    EXPECT_EQ((std::list<VarnelAreaLoad *>{load}), target.getAreaLoads());
    EXPECT_EQ((std::list<VarnelPlatePosition *>{position}), target.getResultPositions());
    EXPECT_EQ(nullptr, target.getParent());
    EXPECT_EQ(2, target.getNumber());
    EXPECT_TRUE(target.getActive());
    EXPECT_TRUE(target.getChanged());
}

TEST_F(VarnelPlateCopy, AssigningDoesNotTellTheModelOfTheName) {
    const auto source = fullPlate();
    VarnelDB other(nullptr);
    VarnelPlate target(&other);
    target.setName("old");
    target = *source;
    EXPECT_EQ("P1", target.getName());
    EXPECT_TRUE(other.hasPlatewithName("old"));
    EXPECT_FALSE(other.hasPlatewithName("P1"));
}

TEST_F(VarnelPlateCopy, AssigningAnswersTheSourceNotTheTarget) {
    const auto source = fullPlate();
    VarnelPlate target(nullptr);
    const VarnelPlate &answer = (target = *source);
    EXPECT_EQ(source.get(), &answer);
}

TEST_F(VarnelPlateCopy, AssigningToAPlateWithoutAnOutlineGivesNoSupports) {
    VarnelPlate target(nullptr);
    target = *fullPlate();
    EXPECT_EQ(nullptr, target.getEdgeData(0));
    EXPECT_EQ(0.4, target.getThick());
}

TEST_F(VarnelPlateCopy, SupportsBehindAGapAreNotTaken) {
    VarnelPlate source(nullptr);
    source.setArea(new VarnelAreaRectangle(KzVector3D(), 4.0, 3.0, 0.0));
    source.setBoundary(0, VarnelLineBoundaryData(7, "S0"));
    source.setBoundary(2, VarnelLineBoundaryData(7, "S2"));
    const VarnelPlate copy(source);
    EXPECT_NE(nullptr, copy.getBoundary(0));
    EXPECT_EQ(nullptr, copy.getBoundary(2));
}

TEST_F(VarnelPlateCopy, AssigningAPlateToItselfChangesOnlyTheFlag) {
    const auto plate = fullPlate();
    const VarnelPlate &same = *plate;
    const VarnelLineBoundaryData *boundary = plate->getBoundary(0);
    *plate = same;
    EXPECT_EQ("P1", plate->getName());
    EXPECT_EQ(0.5, plate->getDesign()->getTheta());
    EXPECT_EQ(boundary, plate->getBoundary(0));
    EXPECT_EQ(1u, plate->getAreaLoads().size());
    EXPECT_TRUE(plate->getChanged());
}

}  // namespace
