#include "varnel/geometry/VarnelPolyline.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "tests/support/Places.h"

namespace {

static_assert(!std::is_polymorphic<VarnelPolyline>::value, "a plain list");

const KzVector3D p(0.0, 0.0, 0.0), q(2.0, 0.0, 0.0), r(2.0, 1.0, 0.0), s(0.0, 1.0, 0.0);

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
