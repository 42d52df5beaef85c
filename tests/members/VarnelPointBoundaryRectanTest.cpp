#include "varnel/members/VarnelPointBoundaryRectan.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/support/Places.h"
#include "tests/support/VirtualSlot.h"
#include "varnel/geometry/VarnelPointBoundaryVisitor.h"

namespace {

const KzVector3D place(1.0, 2.0, 3.0);

struct RecordingVisitor : VarnelPointBoundaryVisitor {
    void visit(VarnelPointBoundaryRectan *boundary) override { rectangle = boundary; }
    void visit(VarnelPointBoundaryCircle *) override { ++others; }

    VarnelPointBoundaryRectan *rectangle = nullptr;
    int others = 0;
};

TEST(VarnelPointBoundaryRectan, IsBornWithItsSidesAndWithoutAStage) {
    const VarnelPointBoundaryRectan rectangle(place, 7, 0.3, 0.5);
    EXPECT_EQ(0.3, rectangle.getB());
    EXPECT_EQ(0.5, rectangle.getD());
    EXPECT_EQ(place, rectangle.getCoor());
    EXPECT_EQ(7, rectangle.getDof());
    EXPECT_EQ(nullptr, rectangle.getAssignedConstructionStage());
    EXPECT_TRUE(rectangle.getChanged());
}

TEST(VarnelPointBoundaryRectan, VisitsTheFirstOperation) {
    VarnelPointBoundaryRectan rectangle(place, 0, 0.3, 0.5);
    VarnelPointBoundary &boundary = rectangle;
    RecordingVisitor visitor;
    boundary.getVisited(&visitor);
    EXPECT_EQ(&rectangle, visitor.rectangle);
    EXPECT_EQ(0, visitor.others);
    boundary.getVisited(static_cast<VarnelPointBoundaryVisitor *>(nullptr));
}

TEST(VarnelPointBoundaryRectan, TheVisitorKeepsItsSlots) {
    using varnel::virtualSlot;
    EXPECT_EQ(0, virtualSlot<void(VarnelPointBoundaryRectan *)>(&VarnelPointBoundaryVisitor::visit));
    EXPECT_EQ(1, virtualSlot<void(VarnelPointBoundaryCircle *)>(&VarnelPointBoundaryVisitor::visit));
}

TEST(VarnelPointBoundaryRectan, SettingTheSidesMarksNoChange) {
    VarnelPointBoundaryRectan rectangle(place, 0, 0.3, 0.5);
    rectangle.setChanged(false);
    rectangle.setB(0.6);
    rectangle.setD(0.7);
    EXPECT_EQ(0.6, rectangle.getB());
    EXPECT_EQ(0.7, rectangle.getD());
    EXPECT_FALSE(rectangle.getChanged());
}

TEST(VarnelPointBoundaryRectan, CopiesTakeTheSidesToo) {
    auto source = std::make_unique<VarnelPointBoundaryRectan>(place, 7, 0.3, 0.5);
    source->setName("column");
    source->setNumber(3);
    const VarnelPointBoundaryRectan copy(*source);
    VarnelPointBoundaryRectan assigned(KzVector3D(), 0, 0.1, 0.2);
    assigned = *source;
    EXPECT_NE(source->getGeo(), copy.getGeo());
    source.reset();
    const VarnelPointBoundaryRectan &same = assigned;
    assigned = same;
    for (const VarnelPointBoundaryRectan *taken : {&copy, &same}) {
        EXPECT_EQ(0.3, taken->getB());
        EXPECT_EQ(0.5, taken->getD());
        EXPECT_EQ("column", taken->getName());
        EXPECT_EQ(3, taken->getNumber());
        EXPECT_EQ(place, taken->getCoor());
    }
}

}  // namespace
