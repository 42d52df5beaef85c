#include "varnel/members/VarnelHole.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "tests/support/RecordingObjectVisitor.h"
#include "tests/support/VirtualSlot.h"
#include "varnel/geometry/VarnelAreaRectangle.h"

namespace {

VarnelArea *square(double side) {
    return new VarnelAreaRectangle(KzVector3D(), side, side, 0.0);
}

TEST(VarnelHole, IsBornUnchangedWithoutAnOutlineAndWithANumberOfNoHole) {
    const VarnelHole hole;
    EXPECT_EQ(-1, hole.getNumber());
    EXPECT_FALSE(hole.getChanged());
    EXPECT_EQ(nullptr, hole.getGeo());
    EXPECT_EQ("", hole.getName());
    EXPECT_FALSE(hole.getLoadDistribution());
    EXPECT_EQ(&hole, &hole.getData());
}

TEST(VarnelHole, SettingLoadDistributionMarksAChangeEvenWithTheOldValue) {
    VarnelHole hole;
    hole.setLoadDistribution(false);
    EXPECT_FALSE(hole.getLoadDistribution());
    EXPECT_TRUE(hole.getChanged());
}

TEST(VarnelHole, MarksAChangeWhereItIsMeantTo) {
    struct Row {
        const char *setter;
        std::function<void(VarnelHole &)> call;
        bool own;
        bool outline;
    };
    const Row rows[] = {
        {"load distribution", [](VarnelHole &h) { h.setLoadDistribution(true); }, true, false},
        {"name", [](VarnelHole &h) { h.setName("H"); }, false, false},
        {"number", [](VarnelHole &h) { h.setNumber(2); }, false, false},
        {"a corner", [](VarnelHole &h) { h.getGeo()->setCoor(0, KzVector3D(-1, 0, 0)); }, true, true},
        {"all", [](VarnelHole &h) { h.setChanged(true); }, true, true},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.setter);
        VarnelHole hole;
        hole.setArea(square(2));
        hole.setChanged(false);
        EXPECT_FALSE(hole.getChanged());
        row.call(hole);
        EXPECT_EQ(row.own, hole.getChanged());
        EXPECT_EQ(row.outline, hole.getGeo()->getChanged());
    }
}

TEST(VarnelHole, ItsOwnFlagShowsThroughItsBase) {
    VarnelHole hole;
    VarnelPolyObject &outlined = hole;
    outlined.setChanged(true);
    EXPECT_TRUE(outlined.getChanged());
    outlined.setChanged(false);
    EXPECT_FALSE(hole.getChanged());
    VarnelPosition &position = hole;
    position.setName("H");
    EXPECT_EQ("H", hole.getName());
}

TEST(VarnelHole, ACopyHasAnOutlineOfItsOwnAndTheNumberOfANewHole) {
    auto source = std::make_unique<VarnelHole>();
    source->setNumber(5);
    source->setName("H");
    source->setLoadDistribution(true);
    source->setArea(square(2));
    source->setChanged(false);
    const VarnelHole copy(*source);
    EXPECT_NE(source->getGeo(), copy.getGeo());
    source.reset();
    EXPECT_EQ(-1, copy.getNumber());
    EXPECT_EQ("H", copy.getName());
    EXPECT_TRUE(copy.getLoadDistribution());
    EXPECT_DOUBLE_EQ(4.0, copy.getGeo()->getArea());
    EXPECT_TRUE(copy.getChanged());
}

TEST(VarnelHole, ACopyOfAHoleWithoutAnOutlineIsChanged) {
    const VarnelHole source;
    const VarnelHole copy(source);
    EXPECT_EQ(nullptr, copy.getGeo());
    EXPECT_TRUE(copy.getChanged());
}

TEST(VarnelHole, AssigningKeepsTheOutlineThatIsThere) {
    VarnelHole source, target;
    source.setNumber(5);
    source.setName("H");
    source.setArea(square(2));
    target.setNumber(6);
    target.setArea(square(3));
    target.setChanged(false);
    VarnelArea *outline = target.getGeo();
    EXPECT_EQ(&target, &(target = source));
    EXPECT_EQ(outline, target.getGeo());
    EXPECT_DOUBLE_EQ(9.0, outline->getArea());
    EXPECT_EQ("H", target.getName());
    EXPECT_EQ(6, target.getNumber());
    EXPECT_FALSE(target.getChanged());
}

TEST(VarnelHole, AssigningCopiesOrFreesAnOutlineThatOneSideLacks) {
    VarnelHole bare, outlined, target;
    outlined.setArea(square(2));
    outlined.setLoadDistribution(true);
    target.setData(outlined);
    EXPECT_NE(outlined.getGeo(), target.getGeo());
    EXPECT_DOUBLE_EQ(4.0, target.getGeo()->getArea());
    EXPECT_TRUE(target.getLoadDistribution());
    target.setChanged(false);
    target.setData(bare);
    EXPECT_EQ(nullptr, target.getGeo());
    EXPECT_FALSE(target.getLoadDistribution());
    EXPECT_TRUE(target.getChanged());
}

TEST(VarnelHole, AssignedToItselfStaysAsItIs) {
    VarnelHole hole;
    hole.setName("H");
    hole.setArea(square(2));
    const VarnelHole &same = hole;
    hole = same;
    EXPECT_EQ("H", hole.getName());
    EXPECT_DOUBLE_EQ(4.0, hole.getGeo()->getArea());
}

TEST(VarnelHole, DoesNotWidenABox) {
    VarnelHole hole;
    hole.setArea(square(2));
    KzVector3D min(1, 1, 1), max(1, 1, 1);
    hole.updateMinMax(&min, &max, KzMatrix44());
    EXPECT_EQ(KzVector3D(1, 1, 1), min);
    EXPECT_EQ(KzVector3D(1, 1, 1), max);
}

TEST(VarnelHole, IsVisitedAsAHole) {
    VarnelHole hole;
    varnel::RecordingObjectVisitor visitor;
    EXPECT_EQ(7, static_cast<VarnelObject &>(hole).getVisited(&visitor));
    EXPECT_EQ("hole", visitor.kind);
    EXPECT_EQ(&hole, visitor.object);
    EXPECT_EQ(0, hole.getVisited(nullptr));
}

TEST(VarnelHole, KeepsItsSlots) {
    EXPECT_EQ(7, varnel::virtualSlot(&VarnelHole::getChanged));
    EXPECT_EQ(8, varnel::virtualSlot(&VarnelHole::setChanged));
}

}  // namespace
