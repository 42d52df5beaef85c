#include "varnel/members/VarnelGap.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <memory>
#include <type_traits>

#include "tests/support/VirtualSlot.h"
#include "varnel/geometry/VarnelArea.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/members/VarnelGapControl.h"
#include "varnel/results/VarnelGapResultState.h"

namespace {

/// An outline that counts its vertices and always says that it is changed.
class RestlessArea : public VarnelArea {
  public:
    void addVertex(const KzVector3D &coordinates) override {
        ++vertices;
        VarnelArea::addVertex(coordinates);
    }
    bool getChanged() const override { return true; }

    int vertices = 0;
};

TEST(VarnelGapControl, IsBornThinAndWithoutResults) {
    EXPECT_FALSE(std::is_polymorphic<VarnelGapControl>::value);
    const VarnelGapControl control;
    EXPECT_EQ(0.01, control.getThick());
    EXPECT_TRUE(control.getResultStates().empty());
    EXPECT_EQ(nullptr, control.findResultState(0));
}

TEST(VarnelGapControl, GivesOneStateForEachNumber) {
    VarnelGapControl control;
    VarnelGapResultState *three = control.giveResultState(3);
    VarnelGapResultState *one = control.giveResultState(1);
    EXPECT_EQ(three, control.giveResultState(3));
    EXPECT_EQ(3, three->getNumber());
    EXPECT_EQ(one, control.findResultState(1));
    EXPECT_EQ(nullptr, control.findResultState(2));
    ASSERT_EQ(2u, control.getResultStates().size());
    EXPECT_EQ(three, control.getResultStates().front());
}

TEST(VarnelGapControl, FindsTheFirstStateThatBearsTheNumberNow) {
    VarnelGapControl control;
    VarnelGapResultState *first = control.giveResultState(1);
    VarnelGapResultState *second = control.giveResultState(2);
    first->setNumber(2);
    EXPECT_EQ(first, control.findResultState(2));
    EXPECT_EQ(nullptr, control.findResultState(1));
    first->setNumber(5);
    EXPECT_EQ(second, control.giveResultState(2));
    EXPECT_EQ(first, control.giveResultState(5));
}

TEST(VarnelGapControl, RemovesAllResults) {
    VarnelGapControl control;
    control.giveResultState(1);
    control.giveResultState(2);
    control.removeResults();
    EXPECT_TRUE(control.getResultStates().empty());
    EXPECT_EQ(nullptr, control.findResultState(1));
    control.removeResults();
    EXPECT_NE(nullptr, control.giveResultState(1));
}

TEST(VarnelGapControl, CopiesShareTheStates) {
    auto source = std::make_unique<VarnelGapControl>();
    source->setThick(0.5);
    VarnelGapResultState *state = source->giveResultState(1);
    const VarnelGapControl copy(*source);
    VarnelGapControl assigned;
    assigned.giveResultState(9);
    assigned = *source;
    source->giveResultState(2);
    source->removeResults();
    source.reset();
    for (const VarnelGapControl *control : {&copy, static_cast<const VarnelGapControl *>(&assigned)}) {
        EXPECT_EQ(0.5, control->getThick());
        ASSERT_EQ(1u, control->getResultStates().size());
        EXPECT_EQ(state, control->findResultState(1));
    }
    const VarnelGapControl &same = assigned;
    assigned = same;
    EXPECT_EQ(state, assigned.findResultState(1));
}

TEST(VarnelGap, IsBornChangedActiveWithAControlAndNoOutline) {
    const VarnelGap gap;
    EXPECT_EQ(0, gap.getNumber());
    EXPECT_TRUE(gap.getChanged());
    EXPECT_TRUE(gap.getActive());
    ASSERT_NE(nullptr, gap.getControl());
    EXPECT_EQ(0.01, gap.getControl()->getThick());
    EXPECT_EQ(nullptr, gap.getPolyline());
    EXPECT_EQ(0u, gap.numberOfLines());
    EXPECT_EQ(KzVector3D(), gap.getVertex(0));
    EXPECT_EQ(KzVector3D(), gap.getVertex(99));
}

TEST(VarnelGap, WithTwoVerticesRunsOutAndBack) {
    VarnelGap gap;
    gap.add(KzVector3D(1.0, 0.0, 0.0));
    ASSERT_NE(nullptr, gap.getPolyline());
    EXPECT_EQ(0u, gap.numberOfLines());
    gap.add(KzVector3D(3.0, 0.0, 0.0));
    EXPECT_EQ(2u, gap.numberOfLines());
    EXPECT_EQ(KzVector3D(1.0, 0.0, 0.0), gap.getVertex(0));
    EXPECT_EQ(KzVector3D(3.0, 0.0, 0.0), gap.getVertex(1));
    gap.add(KzVector3D(3.0, 2.0, 0.0));
    EXPECT_EQ(3u, gap.numberOfLines());
    EXPECT_EQ(KzVector3D(3.0, 2.0, 0.0), gap.getVertex(2));
    EXPECT_EQ(KzVector3D(1.0, 0.0, 0.0), gap.getVertex(3)) << "the end of the last line";
    EXPECT_EQ(KzVector3D(1.0, 0.0, 0.0), gap.getVertex(std::numeric_limits<std::size_t>::max()));
}

TEST(VarnelGap, AsksTheOutlineThatItHasThroughItsVirtualOperations) {
    VarnelGap gap;
    auto *outline = new RestlessArea;
    gap.setPolyline(outline);
    gap.add(KzVector3D());
    gap.add(KzVector3D(1.0, 0.0, 0.0));
    EXPECT_EQ(outline, gap.getPolyline());
    EXPECT_EQ(2, outline->vertices);
    gap.setChanged(false);
    EXPECT_TRUE(gap.getChanged());
}

TEST(VarnelGap, IsChangedWithItsOutlineAndPassesTheFlagToIt) {
    VarnelGap gap;
    gap.setChanged(false);
    EXPECT_FALSE(gap.getChanged());
    gap.add(KzVector3D());
    gap.add(KzVector3D(1.0, 0.0, 0.0));
    EXPECT_TRUE(gap.getChanged());
    gap.setChanged(false);
    EXPECT_FALSE(gap.getChanged());
    EXPECT_FALSE(gap.getPolyline()->getChanged());
    gap.getPolyline()->getLine(0)->setEnd(KzVector3D(2.0, 0.0, 0.0));
    EXPECT_TRUE(gap.getChanged());
    gap.setChanged(false);
    gap.setChanged(true);
    EXPECT_TRUE(gap.getPolyline()->getChanged());
}

TEST(VarnelGap, TakesOverControlAndOutline) {
    VarnelGap gap;
    auto *control = new VarnelGapControl();
    gap.setControl(control);
    gap.setControl(control);
    EXPECT_EQ(control, gap.getControl());
    gap.setControl(nullptr);
    EXPECT_EQ(nullptr, gap.getControl());
    gap.add(KzVector3D());
    auto *outline = new VarnelArea();
    gap.setPolyline(outline);
    gap.setPolyline(outline);
    EXPECT_EQ(outline, gap.getPolyline());
    gap.setPolyline(nullptr);
    EXPECT_EQ(0u, gap.numberOfLines());
}

TEST(VarnelGap, SeveralGapsMayHaveOneOutline) {
    auto first = std::make_unique<VarnelGap>();
    VarnelGap second;
    auto *outline = new VarnelArea();
    first->setPolyline(outline);
    second.setPolyline(outline);
    first.reset();
    second.add(KzVector3D());
    second.add(KzVector3D(1.0, 0.0, 0.0));
    EXPECT_EQ(2u, second.numberOfLines());
}

TEST(VarnelGap, CopiesShareOutlineAndControl) {
    auto source = std::make_unique<VarnelGap>();
    source->setNumber(4);
    source->add(KzVector3D());
    source->add(KzVector3D(1.0, 0.0, 0.0));
    source->setChanged(false);
    const VarnelGap copy(*source);
    VarnelGap assigned;
    assigned = *source;
    EXPECT_EQ(source->getControl(), copy.getControl());
    EXPECT_EQ(source->getPolyline(), copy.getPolyline());
    source.reset();
    for (const VarnelGap *gap : {&copy, static_cast<const VarnelGap *>(&assigned)}) {
        EXPECT_EQ(4, gap->getNumber());
        EXPECT_FALSE(gap->getChanged());
        EXPECT_TRUE(gap->getActive());
        EXPECT_EQ(2u, gap->numberOfLines());
        EXPECT_EQ(0.01, gap->getControl()->getThick());
    }
    const VarnelGap &same = assigned;
    assigned = same;
    EXPECT_EQ(2u, assigned.numberOfLines());
}

TEST(VarnelGap, SettersMarkNoChange) {
    VarnelGap gap;
    gap.setChanged(false);
    gap.setNumber(2);
    gap.setControl(new VarnelGapControl());
    gap.setPolyline(nullptr);
    EXPECT_FALSE(gap.getChanged());
}

TEST(VarnelGap, KeepsItsSlots) {
    EXPECT_EQ(0, varnel::virtualSlot(&VarnelGap::getChanged));
    EXPECT_EQ(1, varnel::virtualSlot(&VarnelGap::setChanged));
}

}  // namespace
