#include <gtest/gtest.h>

#include <cmath>
#include <utility>
#include <vector>

#include "tests/support/Places.h"
#include "varnel/geometry/VarnelArea.h"
#include "varnel/geometry/VarnelBeamGeo.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/geometry/VarnelStraight.h"

// Frames, planes and equality of chains that lie anywhere, so that no coordinate is zero by chance.
namespace {

using varnel::isNear;

using Points = std::vector<KzVector3D>;

template <class Holder>
Holder made(const Points &points) {
    Holder holder;
    for (const KzVector3D &point : points) holder.addVertex(point);
    return holder;
}

/// The places of a figure that was drawn in a tilted frame away from the origin.
Points tilted(Points points) {
    KzMatrix44 frame;
    frame.setVector(0, KzVector3D(1.0, 2.0, 2.0));
    frame.setVector(1, KzVector3D(2.0, 1.0, -2.0));
    frame.setVector(2, KzVector3D(-2.0, 2.0, -1.0));
    frame.setVector(3, KzVector3D(5.0, -4.0, 3.0));
    for (KzVector3D &point : points) point = frame.transformBack(point);
    return points;
}

/// Keeps the last frame that it was asked about.
class WitnessPoint : public VarnelPoint {
  public:
    using VarnelPoint::VarnelPoint;
    bool isInPlane(const KzMatrix44 &plane) const override {
        asked.push_back(plane);
        return true;
    }
    mutable std::vector<KzMatrix44> asked;
};

TEST(VarnelLineHolder, ATiltedFigureIsPlanarByTheHeightsOverItsOwnPlane) {
    const struct {
        double height;
        bool planar;
    } rows[] = {{0.0, true}, {0.0099, true}, {-0.0099, true}, {0.0101, false}, {-0.0101, false}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.height);
        const Points corners{{0.0, 0.0, 0.0}, {2.0, 0.0, 0.0}, {2.0, 1.0, 0.0}, {0.0, 1.0, row.height}};
        EXPECT_EQ(row.planar, made<VarnelArea>(tilted(corners)).isPlanar());
    }
}

TEST(VarnelLineHolder, OnlyPointsFromTheFourthOnAreAskedAboutTheFrameOfTheFirstThree) {
    const Points corners{{1.0, 1.0, 1.0}, {3.0, 1.0, 1.0}, {3.0, 2.0, 1.0}, {1.0, 2.0, 1.0}};
    VarnelArea area;
    std::vector<WitnessPoint *> points;
    for (std::size_t i = 0; i < 4; ++i) {
        points.push_back(new WitnessPoint(corners[i]));
        area.addLine(new VarnelStraight(points.back(), new VarnelPoint(corners[(i + 1) % 4])));
    }
    EXPECT_TRUE(area.isPlanar());
    for (std::size_t i = 0; i < 3; ++i) EXPECT_TRUE(points[i]->asked.empty()) << i;
    ASSERT_EQ(1u, points[3]->asked.size());
    const KzMatrix44 &frame = points[3]->asked.front();
    EXPECT_EQ(KzVector3D(-2.0, 0.0, 0.0), frame.getVector(0));
    EXPECT_EQ(KzVector3D(0.0, 4.0, 0.0), frame.getVector(1));
    EXPECT_EQ(KzVector3D(0.0, 0.0, 2.0), frame.getVector(2));
    EXPECT_EQ(corners[0], frame.getVector(3));
}

TEST(VarnelLineHolder, TheFirstPointCountsForAPlaneAsTheOthersDo) {
    for (std::size_t off = 0; off < 3; ++off) {
        SCOPED_TRACE(off);
        Points points{{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {2.0, 0.0, 0.0}};
        points[off].setZ(5.0);
        EXPECT_FALSE(made<VarnelBeamGeo>(points).isInPlane(KzMatrix44::getId()));
        EXPECT_TRUE(made<VarnelBeamGeo>(points).touchesPlane(varnel::planeAtHeight(5.0)));
    }
}

TEST(VarnelLineHolder, TheFirstPointOffTheFirstLineGivesTheNormal) {
    const Points triangle{{5.0, 5.0, 5.0}, {7.0, 5.0, 5.0}, {7.0, 6.0, 5.0}};
    EXPECT_EQ(KzVector3D(0.0, 0.0, -1.0), made<VarnelArea>(triangle).getNormal());
    Points concave = triangle;
    concave.push_back(KzVector3D(4.0, 4.0, 5.0));  // on the other side of the first line
    EXPECT_EQ(KzVector3D(0.0, 0.0, -1.0), made<VarnelArea>(concave).getNormal());
    EXPECT_TRUE(
        isNear(KzVector3D(2.0, -2.0, 1.0) * (1.0 / 3.0),
               made<VarnelArea>(tilted({{0.0, 0.0, 0.0}, {2.0, 0.0, 0.0}, {2.0, 1.0, 0.0}})).getNormal()));
}

TEST(VarnelLineHolder, ASineOfOneHundredthIsStillAlongTheFirstLineForTheNormal) {
    const struct {
        double sine;
        bool passedOver;
    } rows[] = {{0.00999, true}, {0.01001, false}, {-0.00999, true}, {-0.01001, false}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.sine);
        const KzVector3D third(std::sqrt(1.0 - row.sine * row.sine), 0.0, row.sine);
        const KzVector3D normal =
            made<VarnelArea>({{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, third, {0.0, 1.0, 0.0}}).getNormal();
        EXPECT_EQ(
            row.passedOver ? KzVector3D(0.0, 0.0, -1.0) : KzVector3D(0.0, std::copysign(1.0, row.sine), 0.0),
            normal);
    }
}

TEST(VarnelLineHolder, TheLastPointOfAnOpenChainGivesNeitherBaseNorNormal) {
    const auto axis =
        made<VarnelBeamGeo>({{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {2.0, 0.0, 0.0}, {3.0, 1.0, 0.0}});
    EXPECT_EQ(KzVector3D(1.0, 0.0, 0.0), axis.getBase().getVector(0));
    EXPECT_EQ(KzVector3D(), axis.getBase().getVector(2));
    EXPECT_EQ(KzVector3D(), axis.getNormal());
}

TEST(VarnelLineHolder, WithoutLinesAChainEqualsItselfAlone) {
    const VarnelBeamGeo empty;
    const VarnelBeamGeo &itself = empty;
    EXPECT_EQ(1, empty == itself);
    EXPECT_EQ(0, empty == VarnelBeamGeo());
}

TEST(VarnelLineHolder, EachLineBehindTheSecondIsComparedToo) {
    const Points ends{{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {2.0, 1.0, 0.0}, {2.0, 2.0, 0.0}, {1.0, 3.0, 0.0}};
    for (std::size_t other = 2; other < 4; ++other) {
        SCOPED_TRACE(other);
        VarnelBeamGeo left, right;
        for (std::size_t i = 0; i < 4; ++i) {
            left.addLine(new VarnelStraight(ends[i], ends[i + 1]));
            right.addLine(new VarnelStraight(ends[i], i == other ? KzVector3D(9.0, 9.0, 9.0) : ends[i + 1]));
        }
        EXPECT_EQ(0, left == right);
        EXPECT_EQ(0, right == left);
    }
}

}  // namespace
