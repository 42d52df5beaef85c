#include "varnel/geometry/PointWatch.h"

#include <gtest/gtest.h>

#include <limits>

#include "varnel/geometry/VarnelPoint.h"

namespace {

using varnel::PointWatch;

TEST(PointWatch, APointHasOneWatchThatOnlyTheWatcherEnds) {
    VarnelPoint point(KzVector3D(1.0, 2.0, 3.0));
    PointWatch first, second;
    EXPECT_TRUE(first.watch(point));
    EXPECT_TRUE(first.watch(point)) << "it is the point's watch already";
    EXPECT_FALSE(second.watch(point));
    second.unwatch(point);
    point.setCoor(KzVector3D());
    EXPECT_TRUE(first.hasMoved());
    EXPECT_FALSE(second.hasMoved());
    first.unwatch(point);
    EXPECT_TRUE(second.watch(point));
    first.reset();
    point.setCoor(KzVector3D(1.0, 2.0, 3.0));
    EXPECT_FALSE(first.hasMoved());
    EXPECT_TRUE(second.hasMoved());
}

TEST(PointWatch, IsToldOfNewNumbersApartFromMoves) {
    const VarnelPoint point((KzVector3D()));
    PointWatch watch;
    ASSERT_TRUE(watch.watch(point));
    point.setNumber(0);
    EXPECT_FALSE(watch.hasNewNumbers()) << "it has that number";
    point.setNumber(7);
    EXPECT_TRUE(watch.hasNewNumbers());
    EXPECT_FALSE(watch.hasMoved());
    watch.forgetNumbers();
    EXPECT_FALSE(watch.hasNewNumbers());
    point.setNumber(8);
    watch.reset();
    EXPECT_FALSE(watch.hasNewNumbers());
}

TEST(PointWatch, APlaceThatIsNoNumberCountsAsAMove) {
    const KzVector3D nowhere(std::numeric_limits<double>::quiet_NaN(), 0.0, 0.0);
    VarnelPoint point(nowhere);
    PointWatch watch;
    ASSERT_TRUE(watch.watch(point));
    point.setCoor(nowhere);
    EXPECT_TRUE(watch.hasMoved());
}

}  // namespace
