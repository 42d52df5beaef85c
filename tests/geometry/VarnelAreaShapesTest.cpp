#include <gtest/gtest.h>

#include <memory>
#include <typeinfo>
#include <vector>

#include "tests/support/Places.h"
#include "tests/support/VirtualSlot.h"
#include "varnel/contracts/KzMath.h"
#include "varnel/geometry/VarnelAreaPolygon.h"
#include "varnel/geometry/VarnelAreaRectangle.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/geometry/VarnelPolyline.h"

namespace {

using varnel::isNear;
using varnel::virtualSlot;

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

TEST(VarnelAreaPolygon, AddsNoVirtualOperations) {
    EXPECT_EQ(16, virtualSlot(&VarnelAreaPolygon::checkRightHandedXY));
    EXPECT_EQ(16, virtualSlot(&VarnelAreaRectangle::checkRightHandedXY));
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
    EXPECT_EQ(typeid(VarnelArea), typeid(*clone.get()));
    EXPECT_EQ(3u, clone->getNumLines());
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
    EXPECT_EQ(typeid(VarnelArea), typeid(*clone.get()));
    EXPECT_EQ(4u, clone->getNumLines());
}

TEST(VarnelPolyline, CountsLinesBetweenItsPoints) {
    VarnelPolyline polyline;
    EXPECT_EQ(0, polyline.numberOfLines());
    polyline.add(p);
    EXPECT_EQ(0, polyline.numberOfLines());
    polyline.add(q);
    EXPECT_EQ(1, polyline.numberOfLines());
    polyline.add(q);
    EXPECT_EQ(2, polyline.numberOfLines());
    EXPECT_EQ(p, polyline.getVertex(0));
    EXPECT_EQ(q, polyline.getPoint(2).getCoor());
}

TEST(VarnelPolyline, APointPastTheEndIsTheOrigin) {
    VarnelPolyline polyline;
    EXPECT_EQ(KzVector3D(), polyline.getVertex(0));
    polyline.add(q);
    EXPECT_EQ(KzVector3D(), polyline.getVertex(1));
    EXPECT_EQ(KzVector3D(), polyline.getPoint(static_cast<std::size_t>(-1)).getCoor());
}

TEST(VarnelPolyline, CopiesShareTheirPointsAndTheLastOneFreesThem) {
    VarnelPolyline target;
    target.add(s);
    {
        VarnelPolyline source;
        source.add(p);
        source.add(q);
        VarnelPolyline copy(source);
        target = copy;
        const VarnelPolyline &itself = target;
        target = itself;
        EXPECT_EQ(&source.getPoint(1), &copy.getPoint(1));
        EXPECT_EQ(&source.getPoint(1), &target.getPoint(1));
        copy.add(r);
        EXPECT_EQ(1, source.numberOfLines()) << "the lists are their own";
    }
    EXPECT_EQ(1, target.numberOfLines());
    EXPECT_EQ(q, target.getVertex(1));
    EXPECT_EQ(1u, target.getPoint(1).owners());
}

}  // namespace
