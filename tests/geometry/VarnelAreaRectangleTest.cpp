#include "varnel/geometry/VarnelAreaRectangle.h"

#include <gtest/gtest.h>

#include <memory>
#include <typeinfo>
#include <vector>

#include "tests/support/Places.h"
#include "tests/support/VirtualSlot.h"
#include "varnel/contracts/KzMath.h"
#include "varnel/geometry/VarnelLine.h"

namespace {

using varnel::isNear;

using Points = std::vector<KzVector3D>;

const KzVector3D p(0.0, 0.0, 0.0), q(2.0, 0.0, 0.0), r(2.0, 1.0, 0.0), s(0.0, 1.0, 0.0);

struct Parameters {
    explicit Parameters(const VarnelAreaRectangle &rectangle) {
        rectangle.getAreaRectangle(origin, width, height, angle);
    }
    KzVector3D origin{9.0, 9.0, 9.0};
    double width = 9.0;
    double height = 9.0;
    double angle = 9.0;
};

TEST(VarnelAreaRectangle, AddsNoVirtualOperations) {
    EXPECT_EQ(16, varnel::virtualSlot(&VarnelAreaRectangle::checkRightHandedXY));
}

TEST(VarnelAreaRectangle, TakesFourCornersInOrder) {
    const VarnelAreaRectangle rectangle(p, q, r, s);
    EXPECT_EQ((Points{p, q, r, s, p}), rectangle.getCoordinatesOfPoints());
    EXPECT_TRUE(rectangle.getChanged());
    const Parameters read(rectangle);
    EXPECT_EQ(p, read.origin);
    EXPECT_EQ(2.0, read.width);
    EXPECT_EQ(1.0, read.height);
    EXPECT_EQ(0.0, read.angle);
}

TEST(VarnelAreaRectangle, NothingKeepsItRectangular) {
    VarnelAreaRectangle rectangle(p, q, r, s);
    rectangle.setCoor(3, KzVector3D(-3.0, -4.0, 0.0));
    EXPECT_EQ(5.0, Parameters(rectangle).height);
    rectangle.setCoor(2, KzVector3D(7.0, 7.0, 7.0));
    EXPECT_EQ(2.0, Parameters(rectangle).width);
}

TEST(VarnelAreaRectangle, IsTurnedAboutItsOriginByTheAngle) {
    const VarnelAreaRectangle rectangle(KzVector3D(), 2.0, 1.0, KzMath::Pi / 2.0);
    EXPECT_TRUE(isNear(KzVector3D(0.0, 2.0, 0.0), rectangle.getCoor(1)));
    EXPECT_TRUE(isNear(KzVector3D(-1.0, 2.0, 0.0), rectangle.getCoor(2)));
    EXPECT_TRUE(isNear(KzVector3D(-1.0, 0.0, 0.0), rectangle.getCoor(3)));
    const Parameters read(rectangle);
    EXPECT_DOUBLE_EQ(2.0, read.width);
    EXPECT_DOUBLE_EQ(1.0, read.height);
    EXPECT_DOUBLE_EQ(KzMath::Pi / 2.0, read.angle);
}

TEST(VarnelAreaRectangle, GivesBackItsParametersForAnyAngle) {
    const KzVector3D origin(3.0, -4.0, 5.0);
    for (const double angle : {0.0, 0.3, 1.5, 3.0, -0.3, -3.0}) {
        SCOPED_TRACE(angle);
        const VarnelAreaRectangle rectangle(origin, 6.0, 2.5, angle);
        const Parameters read(rectangle);
        EXPECT_EQ(origin, read.origin);
        EXPECT_NEAR(6.0, read.width, 1e-12);
        EXPECT_NEAR(2.5, read.height, 1e-12);
        EXPECT_NEAR(angle, read.angle, 1e-12);
        EXPECT_NEAR(15.0, rectangle.getArea(), 1e-9);
        EXPECT_TRUE(rectangle.isInPlane(varnel::planeAtHeight(5.0)));
        EXPECT_TRUE(rectangle.checkRightHandedXY());
        EXPECT_TRUE(rectangle.getChanged());
    }
}

TEST(VarnelAreaRectangle, TheUnitSquareIsRightHandedUntilItIsSwapped) {
    VarnelAreaRectangle rectangle(KzVector3D(), 1.0, 1.0, 0.0);
    EXPECT_EQ((Points{{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {1.0, 1.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 0.0}}),
              rectangle.getCoordinatesOfPoints());
    EXPECT_TRUE(rectangle.checkRightHandedXY());
    rectangle.swap();
    EXPECT_FALSE(rectangle.checkRightHandedXY());
}

TEST(VarnelAreaRectangle, WithoutVerticesItsParametersAreZeros) {
    const VarnelAreaRectangle rectangle;
    EXPECT_EQ(0u, rectangle.getNumLines());
    EXPECT_FALSE(rectangle.getChanged());
    const Parameters read(rectangle);
    EXPECT_EQ(KzVector3D(), read.origin);
    EXPECT_EQ(0.0, read.width);
    EXPECT_EQ(0.0, read.height);
    EXPECT_EQ(0.0, read.angle);
}

TEST(VarnelAreaRectangle, CopiesAndAssignmentsAreIndependent) {
    auto source = std::make_unique<VarnelAreaRectangle>(p, q, r, s);
    const VarnelAreaRectangle copy(*source);
    VarnelAreaRectangle target;
    target = *source;
    const VarnelAreaRectangle &itself = target;
    const VarnelLine *line = target.getLine(0);
    target = itself;
    EXPECT_EQ(line, target.getLine(0));
    source.reset();
    EXPECT_EQ(1, copy == target);
    EXPECT_EQ(2.0, Parameters(target).width);
}

TEST(VarnelAreaRectangle, ItsCloneIsAPlainArea) {
    const std::unique_ptr<VarnelLineHolder> clone(VarnelAreaRectangle(p, q, r, s).clone());
    const VarnelLineHolder &made = *clone;
    EXPECT_EQ(typeid(VarnelArea), typeid(made));
    EXPECT_EQ(4u, clone->getNumLines());
}

}  // namespace
