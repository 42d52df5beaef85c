#include "varnel/members/VarnelAttributeArea.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "tests/support/RecordingObjectVisitor.h"
#include "tests/support/VirtualSlot.h"
#include "varnel/contracts/KzConcrete.h"
#include "varnel/geometry/VarnelAreaRectangle.h"

namespace {

VarnelArea *square(double side) {
    return new VarnelAreaRectangle(KzVector3D(), side, side, 0.0);
}

TEST(VarnelAttributeArea, IsBornWithDefaults) {
    const VarnelAttributeArea area;
    EXPECT_EQ(0, area.getNumber());
    EXPECT_EQ(nullptr, area.getGeo());
    EXPECT_EQ(0.2, area.getThickness());
    EXPECT_EQ(0.5, area.getMeshSize());
    EXPECT_EQ("", area.getName());
    EXPECT_EQ(nullptr, area.getMaterial(0));
    EXPECT_EQ(nullptr, area.getConcrete(0));
    EXPECT_FALSE(area.getChanged());
}

TEST(VarnelAttributeArea, NoSetterShowsAsAChange) {
    static KzConcrete concrete("C", 2500.0, 25.0);
    const std::pair<const char *, std::function<void(VarnelAttributeArea &)>> rows[] = {
        {"thickness", [](VarnelAttributeArea &a) { a.setThickness(0.3); }},
        {"mesh size", [](VarnelAttributeArea &a) { a.setMeshSize(0.3); }},
        {"material", [](VarnelAttributeArea &a) { a.setMaterial(&concrete, 0); }},
        {"name", [](VarnelAttributeArea &a) { a.setName("A"); }},
        {"number", [](VarnelAttributeArea &a) { a.setNumber(3); }},
    };
    for (const auto &[setter, call] : rows) {
        SCOPED_TRACE(setter);
        VarnelAttributeArea area;
        area.setArea(square(2));
        area.setChanged(false);
        call(area);
        EXPECT_FALSE(area.getChanged());
        area.setChanged(true);
        call(area);
        EXPECT_TRUE(area.getChanged());
    }
}

TEST(VarnelAttributeArea, OnlyAChangedOutlineShows) {
    VarnelAttributeArea area;
    area.setChanged(true);
    EXPECT_FALSE(area.getChanged());
    area.setArea(square(2));
    EXPECT_TRUE(area.getChanged());
    area.setChanged(false);
    EXPECT_FALSE(area.getChanged());
    area.getGeo()->setCoor(0, KzVector3D(-1, 0, 0));
    EXPECT_TRUE(area.getChanged());
}

TEST(VarnelAttributeArea, IgnoresTheNumberOfAMaterial) {
    VarnelAttributeArea area;
    KzConcrete concrete("C", 2500.0, 25.0);
    KzMaterial timber("T", 420.0, 4.2);
    area.setMaterial(&concrete, 4);
    EXPECT_EQ(&concrete, area.getMaterial(-1));
    EXPECT_EQ(&concrete, area.getConcrete(99));
    area.setMaterial(&timber, 0);
    EXPECT_EQ(&timber, area.getMaterial(0));
    EXPECT_EQ(nullptr, area.getConcrete(0));
}

class VarnelAttributeAreaCopy : public testing::Test {
  protected:
    VarnelAttributeAreaCopy() {
        source_->setNumber(4);
        source_->setName("A");
        source_->setThickness(0.3);
        source_->setMeshSize(0.4);
        source_->setMaterial(&concrete_, 0);
        source_->setArea(square(2));
        source_->setChanged(false);
    }

    void expectValues(const VarnelAttributeArea &area) {
        EXPECT_EQ("A", area.getName());
        EXPECT_EQ(0.3, area.getThickness());
        EXPECT_EQ(0.4, area.getMeshSize());
        EXPECT_EQ(&concrete_, area.getMaterial(0));
        ASSERT_NE(nullptr, area.getGeo());
        EXPECT_DOUBLE_EQ(4.0, area.getGeo()->getArea());
    }

    KzConcrete concrete_{"C", 2500.0, 25.0};
    std::unique_ptr<VarnelAttributeArea> source_ = std::make_unique<VarnelAttributeArea>();
};

TEST_F(VarnelAttributeAreaCopy, HasAnOutlineOfItsOwnAndNumberZero) {
    const VarnelAttributeArea copy(*source_);
    EXPECT_NE(source_->getGeo(), copy.getGeo());
    source_.reset();
    expectValues(copy);
    EXPECT_EQ(0, copy.getNumber());
}

TEST_F(VarnelAttributeAreaCopy, AssignedSharesTheOutlineAndHasTheNumber) {
    VarnelAttributeArea target;
    target.setArea(square(3));
    target = *source_;
    EXPECT_EQ(source_->getGeo(), target.getGeo());
    EXPECT_FALSE(target.getChanged());
    source_.reset();
    const VarnelAttributeArea &same = target;
    target = same;
    expectValues(target);
    EXPECT_EQ(4, target.getNumber());
}

TEST(VarnelAttributeArea, IsUnknownToVisitorsAndWidensNoBox) {
    VarnelAttributeArea area;
    area.setArea(square(2));
    varnel::RecordingObjectVisitor visitor;
    EXPECT_EQ(0, static_cast<VarnelObject &>(area).getVisited(&visitor));
    EXPECT_EQ(0, visitor.visits);
    EXPECT_EQ(0, area.getVisited(nullptr));
    KzVector3D min(1, 1, 1), max(1, 1, 1);
    area.updateMinMax(&min, &max, KzMatrix44());
    EXPECT_EQ(KzVector3D(1, 1, 1), min);
    EXPECT_EQ(KzVector3D(1, 1, 1), max);
}

TEST(VarnelAttributeArea, KeepsItsSlots) {
    EXPECT_EQ(7, varnel::virtualSlot(&VarnelAttributeArea::getChanged));
    EXPECT_EQ(8, varnel::virtualSlot(&VarnelAttributeArea::setChanged));
}

}  // namespace
