#include "varnel/geometry/VarnelObject.h"

#include <gtest/gtest.h>

#include "tests/support/RecordingObjectVisitor.h"
#include "tests/support/VirtualSlot.h"
#include "varnel/contracts/KzMatrix44.h"
#include "varnel/geometry/VarnelLineVisitor.h"
#include "varnel/geometry/VarnelPlatePosition.h"
#include "varnel/geometry/VarnelPointBoundaryVisitor.h"

namespace {

using varnel::virtualSlot;

/// The least object.
class PlainObject : public VarnelObject {
  public:
    int getVisited(VarnelObjectVisitor *) override { return 0; }
    bool isInPlane(const KzMatrix44 &) const override { return false; }
    bool touchesPlane(const KzMatrix44 &) const override { return false; }
};

TEST(VarnelObject, WidensNoBoxByDefault) {
    const PlainObject object;
    KzVector3D min(1.0, 1.0, 1.0);
    KzVector3D max(2.0, 2.0, 2.0);
    object.updateMinMax(&min, &max, KzMatrix44());
    object.updateMinMax(nullptr, nullptr, KzMatrix44());
    EXPECT_EQ(KzVector3D(1.0, 1.0, 1.0), min);
    EXPECT_EQ(KzVector3D(2.0, 2.0, 2.0), max);
}

TEST(VarnelObject, TakesPartInEveryLoadcaseAlsoInANullOne) {
    PlainObject object;
    EXPECT_TRUE(object.isIn(nullptr));
    EXPECT_TRUE(object.isIn(reinterpret_cast<const SysBase::Loadcase *>(&object)));
}

TEST(VarnelObject, CopyingCopiesNothing) {
    PlainObject object;
    PlainObject copy(object);
    EXPECT_EQ(&copy, &(copy = object));
    EXPECT_EQ(sizeof(void *), sizeof(VarnelObject));
}

TEST(VarnelObject, ItsOperationsKeepTheirSlots) {
    EXPECT_EQ(2, virtualSlot(&VarnelObject::updateMinMax));
    EXPECT_EQ(3, virtualSlot(&VarnelObject::getVisited));
    EXPECT_EQ(4, virtualSlot(&VarnelObject::isInPlane));
    EXPECT_EQ(5, virtualSlot(&VarnelObject::touchesPlane));
    EXPECT_EQ(6, virtualSlot(&VarnelObject::isIn));
}

TEST(VarnelObjectVisitor, ItsOperationsKeepTheirSlots) {
    using Visitor = VarnelObjectVisitor;
    EXPECT_EQ(2, virtualSlot<int(VarnelLoadDistributionArea *)>(&Visitor::visit));
    EXPECT_EQ(3, virtualSlot<int(VarnelBeamLoad *)>(&Visitor::visit));
    EXPECT_EQ(4, virtualSlot<int(VarnelAreaLoad *)>(&Visitor::visit));
    EXPECT_EQ(5, virtualSlot<int(VarnelLineLoad *)>(&Visitor::visit));
    EXPECT_EQ(6, virtualSlot<int(VarnelPointLoad *)>(&Visitor::visit));
    EXPECT_EQ(7, virtualSlot<int(VarnelPointBoundary *)>(&Visitor::visit));
    EXPECT_EQ(8, virtualSlot<int(VarnelLineBoundary *)>(&Visitor::visit));
    EXPECT_EQ(9, virtualSlot<int(VarnelHole *)>(&Visitor::visit));
    EXPECT_EQ(10, virtualSlot<int(VarnelBeam *)>(&Visitor::visit));
    EXPECT_EQ(11, virtualSlot<int(VarnelPlate *)>(&Visitor::visit));
    EXPECT_EQ(12, virtualSlot<int(VarnelPoint *)>(&Visitor::visit));
}

TEST(VarnelObjectVisitor, APlatePositionArrivesAsAPoint) {
    VarnelPoint point(KzVector3D(1.0, 2.0, 3.0));
    VarnelPlatePosition position(1.0, 2.0, 3.0);
    for (VarnelPoint *visited : {&point, static_cast<VarnelPoint *>(&position)}) {
        varnel::RecordingObjectVisitor visitor;
        EXPECT_EQ(7, visited->getVisited(&visitor));
        EXPECT_EQ("point", visitor.kind);
        EXPECT_EQ(visited, visitor.object);
        EXPECT_EQ(1, visitor.visits);
    }
}

TEST(VarnelLineVisitor, ItsOperationsKeepTheirSlots) {
    EXPECT_EQ(0, virtualSlot<int(VarnelCircle *)>(&VarnelLineVisitor::visit));
    EXPECT_EQ(1, virtualSlot<int(VarnelStraight *)>(&VarnelLineVisitor::visit));
}

TEST(VarnelPointBoundaryVisitor, ItsOperationsKeepTheirSlots) {
    EXPECT_EQ(0, virtualSlot<void(VarnelPointBoundaryRectan *)>(&VarnelPointBoundaryVisitor::visit));
    EXPECT_EQ(1, virtualSlot<void(VarnelPointBoundaryCircle *)>(&VarnelPointBoundaryVisitor::visit));
}

}  // namespace
