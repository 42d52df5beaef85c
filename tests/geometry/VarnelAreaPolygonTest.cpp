#include "varnel/geometry/VarnelAreaPolygon.h"

#include <gtest/gtest.h>

#include <memory>
#include <typeinfo>
#include <vector>

#include "tests/support/Places.h"
#include "tests/support/VirtualSlot.h"
#include "varnel/geometry/VarnelAreaRectangle.h"
#include "varnel/geometry/VarnelLine.h"

namespace {

using Points = std::vector<KzVector3D>;

const KzVector3D p(0.0, 0.0, 0.0), q(2.0, 0.0, 0.0), r(2.0, 1.0, 0.0), s(0.0, 1.0, 0.0);

TEST(VarnelAreaPolygon, AddsNoVirtualOperations) {
    EXPECT_EQ(16, varnel::virtualSlot(&VarnelAreaPolygon::checkRightHandedXY));
}

TEST(VarnelAreaPolygon, IsBuiltOfItsVerticesInOrder) {
    const VarnelAreaPolygon polygon(Points{p, q, r, s});
    EXPECT_EQ((Points{p, q, r, s, p}), polygon.getCoordinatesOfPoints());
    EXPECT_TRUE(polygon.getChanged());
    EXPECT_EQ(0u, VarnelAreaPolygon(Points{}).getNumLines());
    EXPECT_EQ(0u, VarnelAreaPolygon(Points{p}).getNumLines());
    EXPECT_EQ(2u, VarnelAreaPolygon(Points{p, q}).getNumLines());
}

TEST(VarnelAreaPolygon, WithoutVerticesIsNotChanged) {
    EXPECT_EQ(0u, VarnelAreaPolygon().getNumLines());
    EXPECT_FALSE(VarnelAreaPolygon().getChanged());
}

TEST(VarnelAreaPolygon, CopiesAndAssignmentsAreIndependent) {
    auto source = std::make_unique<VarnelAreaPolygon>(Points{p, q, r});
    const VarnelAreaPolygon copy(*source);
    VarnelAreaPolygon target;
    target = *source;
    const VarnelAreaPolygon &itself = target;
    const VarnelLine *line = target.getLine(0);
    target = itself;
    EXPECT_EQ(line, target.getLine(0));
    source.reset();
    EXPECT_EQ(1, copy == target);
    EXPECT_EQ((Points{p, q, r, p}), copy.getCoordinatesOfPoints());
    target = VarnelArea(VarnelAreaRectangle(p, q, r, s));
    EXPECT_EQ(4u, target.getNumLines());
}

TEST(VarnelAreaPolygon, ItsCloneIsAPlainArea) {
    const std::unique_ptr<VarnelLineHolder> clone(VarnelAreaPolygon(Points{p, q, r}).clone());
    const VarnelLineHolder &made = *clone;
    EXPECT_EQ(typeid(VarnelArea), typeid(made));
    EXPECT_EQ(3u, clone->getNumLines());
}

}  // namespace
