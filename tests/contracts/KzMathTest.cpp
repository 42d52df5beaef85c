#include "varnel/contracts/KzMath.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>

namespace {

using Points = std::vector<KzVector3D>;

void expectNear(const KzVector3D &expected, const KzVector3D &actual, double tolerance = 1e-12) {
    EXPECT_NEAR(expected.getX(), actual.getX(), tolerance);
    EXPECT_NEAR(expected.getY(), actual.getY(), tolerance);
    EXPECT_NEAR(expected.getZ(), actual.getZ(), tolerance);
}

Points shifted(Points points, const KzVector3D &by) {
    for (KzVector3D &point : points) point += by;
    return points;
}

Points closed(Points ring) {
    ring.push_back(ring.front());
    return ring;
}

Points reversed(Points ring) {
    std::reverse(ring.begin(), ring.end());
    return ring;
}

const Points square = {{0.0, 0.0, 0.0}, {4.0, 0.0, 0.0}, {4.0, 4.0, 0.0}, {0.0, 4.0, 0.0}};
const Points angle = {{0.0, 0.0, 0.0}, {4.0, 0.0, 0.0}, {4.0, 1.0, 0.0},
                      {1.0, 1.0, 0.0}, {1.0, 3.0, 0.0}, {0.0, 3.0, 0.0}};
const KzVector3D angleCentroid(1.5, 1.0, 0.0);

TEST(KzMath, HasItsConstants) {
    EXPECT_DOUBLE_EQ(std::acos(-1.0), KzMath::Pi);
    EXPECT_DOUBLE_EQ(std::acos(-1.0) / 180.0, KzMath::Pi_180);
    EXPECT_EQ(std::numeric_limits<double>::max(), KzMath::maxDouble);
    EXPECT_EQ(1e-9, KzMath::getEpsReal());
}

TEST(KzMath, FuzzyZeroIsStrictlyBelowTheTolerance) {
    EXPECT_TRUE(KzMath::isFuzzyZero(0.0, 1e-6));
    EXPECT_TRUE(KzMath::isFuzzyZero(-0.9e-6, 1e-6));
    EXPECT_FALSE(KzMath::isFuzzyZero(1e-6, 1e-6));
    EXPECT_FALSE(KzMath::isFuzzyZero(-1e-6, 1e-6));
    EXPECT_FALSE(KzMath::isFuzzyZero(std::nan(""), 1e-6));
}

TEST(KzMath, TheAngleAtACentreIsUnsignedUpToPi) {
    const KzVector3D centre(1.0, 1.0, 0.0);
    const auto at = [&centre](double phi) {
        return centre + KzVector3D(2.0 * std::cos(phi), 2.0 * std::sin(phi), 0.0);
    };
    for (const double phi : {0.0, 0.1, 1.0, 2.0, 3.0}) {
        EXPECT_NEAR(phi, KzMath::getPhi(at(0.0), at(phi), centre), 1e-14);
        EXPECT_NEAR(phi, KzMath::getPhi(at(0.0), at(-phi), centre), 1e-14);
    }
    EXPECT_NEAR(KzMath::Pi, KzMath::getPhi(at(0.0), at(KzMath::Pi), centre), 1e-14);
    EXPECT_EQ(0.0, KzMath::getPhi(centre, at(1.0), centre));
}

TEST(KzMath, SmallAnglesKeepTheirDigits) {
    EXPECT_NEAR(1e-9, KzMath::getPhi(KzVector3D(1.0, 0.0, 0.0), KzVector3D(1.0, 1e-9, 0.0), KzVector3D()),
                1e-24);
}

TEST(KzMath, StationsOfAStraightAreRelative) {
    const KzVector3D a(1.0, 2.0, 3.0);
    const KzVector3D b(5.0, 2.0, 1.0);
    EXPECT_EQ(a, KzMath::getCoorOnStraight(a, b, 0.0));
    EXPECT_EQ(KzVector3D(2.0, 2.0, 2.5), KzMath::getCoorOnStraight(a, b, 0.25));
    EXPECT_EQ(KzVector3D(9.0, 2.0, -1.0), KzMath::getCoorOnStraight(a, b, 2.0));
}

TEST(KzMath, StationOneIsTheEndItself) {
    const KzVector3D a(0.1, 1e16, 0.3);
    const KzVector3D b(0.7, 0.1, 1e-9);
    ASSERT_NE(b, a + (b - a));
    EXPECT_EQ(b, KzMath::getCoorOnStraight(a, b, 1.0));
}

TEST(KzMath, StraightsMeetAtTheirParameters) {
    double ta = -1.0;
    double tb = -1.0;
    EXPECT_EQ(1, KzMath::lineIntersection3D(KzVector3D(0.0, 0.0, 1.0), KzVector3D(4.0, 0.0, 1.0),
                                            KzVector3D(1.0, -1.0, 1.0), KzVector3D(1.0, 3.0, 1.0), ta, tb,
                                            KzMath::getEpsReal()));
    EXPECT_DOUBLE_EQ(0.25, ta);
    EXPECT_DOUBLE_EQ(0.25, tb);
    EXPECT_EQ(1, KzMath::lineIntersection3D(KzVector3D(0.0, 0.0, 0.0), KzVector3D(1.0, 1.0, 1.0),
                                            KzVector3D(3.0, 3.0, 0.0), KzVector3D(3.0, 3.0, 1.0), ta, tb,
                                            KzMath::getEpsReal()));
    EXPECT_DOUBLE_EQ(3.0, ta);
    EXPECT_DOUBLE_EQ(3.0, tb);
}

TEST(KzMath, ParallelAndSkewStraightsDoNotMeet) {
    double ta = 42.0;
    double tb = 43.0;
    const KzVector3D o;
    const KzVector3D x(1.0, 0.0, 0.0);
    const double eps = KzMath::getEpsReal();
    EXPECT_EQ(0, KzMath::lineIntersection3D(o, x, KzVector3D(0.0, 1.0, 0.0), KzVector3D(5.0, 1.0, 0.0), ta,
                                            tb, eps));
    EXPECT_EQ(0, KzMath::lineIntersection3D(o, x, o, x, ta, tb, eps));
    EXPECT_EQ(0, KzMath::lineIntersection3D(o, o, o, x, ta, tb, eps));
    EXPECT_EQ(0, KzMath::lineIntersection3D(o, x, KzVector3D(0.0, 0.0, 1.01e-9),
                                            KzVector3D(0.0, 1.0, 1.01e-9), ta, tb, eps));
    EXPECT_EQ(0, KzMath::lineIntersection3D(o, x, KzVector3D(0.0, 0.0, std::nan("")),
                                            KzVector3D(0.0, 1.0, 0.0), ta, tb, eps));
    EXPECT_EQ(42.0, ta);
    EXPECT_EQ(43.0, tb);
    EXPECT_EQ(1, KzMath::lineIntersection3D(o, x, KzVector3D(0.0, 0.0, 0.99e-9),
                                            KzVector3D(0.0, 1.0, 0.99e-9), ta, tb, eps));
}

TEST(KzMath, StraightsCountAsParallelUpToASineOfTheTolerance) {
    double ta = 42.0;
    double tb = 43.0;
    const KzVector3D o;
    const auto meet = [&](double sine) {
        return KzMath::lineIntersection3D(o, KzVector3D(2.0, 0.0, 0.0), o,
                                          KzVector3D(3.0 * std::sqrt(1.0 - sine * sine), 3.0 * sine, 0.0), ta,
                                          tb, 1e-3);
    };
    EXPECT_EQ(0, meet(0.99e-3));
    EXPECT_EQ(0, meet(-0.99e-3));
    EXPECT_EQ(42.0, ta);
    EXPECT_EQ(43.0, tb);
    EXPECT_EQ(1, meet(1.01e-3));
    EXPECT_EQ(1, meet(-1.01e-3));
    EXPECT_EQ(0, KzMath::lineIntersection3D(o, KzVector3D(2.0, 0.0, 0.0), o, KzVector3D(0.0, 3.0, 0.0), ta,
                                            tb, 1.0));
}

TEST(KzMath, TheGapOfSkewStraightsScalesWithTheirSize) {
    double ta = 0.0;
    double tb = 0.0;
    const KzVector3D far(100.0, 0.0, 0.0);
    EXPECT_EQ(1, KzMath::lineIntersection3D(KzVector3D(), far, KzVector3D(50.0, 0.0, 0.9e-7),
                                            KzVector3D(50.0, 1.0, 0.9e-7), ta, tb, 1e-9));
    EXPECT_EQ(0, KzMath::lineIntersection3D(KzVector3D(), far, KzVector3D(50.0, 0.0, 1.1e-7),
                                            KzVector3D(50.0, 1.0, 1.1e-7), ta, tb, 1e-9));
}

TEST(KzMath, TellsInsideFromBoundaryAndOutside) {
    struct Row {
        KzVector3D point;
        int expected;
    };
    for (const Row &row :
         {Row{{2.0, 2.0, 0.0}, 1}, Row{{2.0, 2.0, 50.0}, 1}, Row{{0.0, 0.0, 0.0}, 2}, Row{{4.0, 2.0, 0.0}, 2},
          Row{{4.001, 2.0, 0.0}, 2}, Row{{3.9995, 2.0, 0.0}, 2}, Row{{4.0011, 2.0, 0.0}, 0},
          Row{{4.0, -0.001, 0.0}, 2}, Row{{-1.0, 0.0, 0.0}, 0}, Row{{-1.0, 4.0, 0.0}, 0},
          Row{{4.0, 2.0, 50.0}, 2}, Row{{4.0 + 0.001 * (1.0 + 2e-9), 2.0, 0.0}, 0},
          Row{{std::nan(""), 2.0, 0.0}, 0}, Row{{2.0, std::nan(""), 0.0}, 0}}) {
        SCOPED_TRACE(testing::Message() << row.point.getX() << " " << row.point.getY());
        EXPECT_EQ(row.expected, KzMath::pointInPolygon2d(row.point, square, 0.001));
        EXPECT_EQ(row.expected, KzMath::pointInPolygon2d(row.point, reversed(square), 0.001));
    }
}

TEST(KzMath, AReentrantCornerIsOutside) {
    EXPECT_EQ(0, KzMath::pointInPolygon2d(KzVector3D(2.0, 2.0, 0.0), angle, 0.001));
    EXPECT_EQ(1, KzMath::pointInPolygon2d(KzVector3D(0.5, 2.0, 0.0), angle, 0.001));
    EXPECT_EQ(1, KzMath::pointInPolygon2d(KzVector3D(3.0, 0.5, 0.0), angle, 0.001));
}

TEST(KzMath, ARayThroughAVertexCountsOnce) {
    const Points diamond = {{0.0, -2.0, 0.0}, {2.0, 0.0, 0.0}, {0.0, 2.0, 0.0}, {-2.0, 0.0, 0.0}};
    EXPECT_EQ(1, KzMath::pointInPolygon2d(KzVector3D(-0.5, 0.0, 0.0), diamond, 0.001));
    EXPECT_EQ(0, KzMath::pointInPolygon2d(KzVector3D(-3.0, 0.0, 0.0), diamond, 0.001));
    EXPECT_EQ(0, KzMath::pointInPolygon2d(KzVector3D(-3.0, 2.0, 0.0), diamond, 0.001));
}

TEST(KzMath, DegeneratePolygonsHaveABoundaryOnly) {
    EXPECT_EQ(0, KzMath::pointInPolygon2d(KzVector3D(), Points(), 0.001));
    EXPECT_EQ(2, KzMath::pointInPolygon2d(KzVector3D(), Points(1), 0.001));
    EXPECT_EQ(0, KzMath::pointInPolygon2d(KzVector3D(1.0, 0.0, 0.0), Points(1), 0.001));
    const Points edge = {{0.0, 0.0, 0.0}, {4.0, 0.0, 0.0}};
    EXPECT_EQ(2, KzMath::pointInPolygon2d(KzVector3D(2.0, 0.0, 0.0), edge, 0.001));
    EXPECT_EQ(0, KzMath::pointInPolygon2d(KzVector3D(2.0, 1.0, 0.0), edge, 0.001));
}

TEST(KzMath, TheAreaOfAPolygonIsNeverNegative) {
    EXPECT_DOUBLE_EQ(16.0, KzMath::polygonArea(square));
    EXPECT_DOUBLE_EQ(16.0, KzMath::polygonArea(reversed(square)));
    EXPECT_DOUBLE_EQ(6.0, KzMath::polygonArea(angle));
    EXPECT_EQ(0.0, KzMath::polygonArea({{0.0, 0.0, 0.0}, {4.0, 0.0, 0.0}}));
    EXPECT_EQ(0.0, KzMath::polygonArea({}));
}

TEST(KzMath, TheAreaIsThatOfTheProjectionOntoThePlane) {
    const Points roof = {{0.0, 0.0, 1.0}, {4.0, 0.0, 1.0}, {4.0, 4.0, 9.0}, {0.0, 4.0, 9.0}};
    EXPECT_DOUBLE_EQ(16.0, KzMath::polygonArea(roof));
    EXPECT_DOUBLE_EQ(16.0, KzMath::polygonAreaXYZ(roof, KzVector3D(0.0, 0.0, 1.0)));
    EXPECT_DOUBLE_EQ(16.0 * std::sqrt(5.0), KzMath::polygonAreaXYZ(roof, KzVector3D(0.0, -2.0, 1.0)));
    const Points wall = {{0.0, 0.0, 0.0}, {4.0, 0.0, 0.0}, {4.0, 0.0, 3.0}, {0.0, 0.0, 3.0}};
    EXPECT_EQ(0.0, KzMath::polygonArea(wall));
    EXPECT_EQ(KzVector3D(2.0, 0.0, 1.5), KzMath::polygonCentroid(closed(wall)));
}

TEST(KzMath, AnAreaFarFromTheOriginKeepsItsDigits) {
    EXPECT_DOUBLE_EQ(16.0, KzMath::polygonArea(shifted(square, KzVector3D(1e9, 1e9, 0.0))));
}

TEST(KzMath, TheAreaSeenAlongANormalIsSigned) {
    EXPECT_DOUBLE_EQ(16.0, KzMath::polygonAreaXYZ(square, KzVector3D(0.0, 0.0, 1.0)));
    EXPECT_DOUBLE_EQ(16.0, KzMath::polygonAreaXYZ(square, KzVector3D(0.0, 0.0, 7.0)));
    EXPECT_DOUBLE_EQ(-16.0, KzMath::polygonAreaXYZ(square, KzVector3D(0.0, 0.0, -1.0)));
    EXPECT_DOUBLE_EQ(-16.0, KzMath::polygonAreaXYZ(reversed(square), KzVector3D(0.0, 0.0, 1.0)));
    EXPECT_DOUBLE_EQ(0.0, KzMath::polygonAreaXYZ(square, KzVector3D(1.0, 0.0, 0.0)));
    EXPECT_EQ(0.0, KzMath::polygonAreaXYZ(square, KzVector3D()));
    EXPECT_EQ(0.0, KzMath::polygonAreaXYZ({}, KzVector3D(0.0, 0.0, 1.0)));
    const Points wall = {{0.0, 0.0, 0.0}, {0.0, 2.0, 0.0}, {0.0, 2.0, 3.0}, {0.0, 0.0, 3.0}};
    EXPECT_DOUBLE_EQ(6.0, KzMath::polygonAreaXYZ(wall, KzVector3D(1.0, 0.0, 0.0)));
}

TEST(KzMath, TheCentroidOfAPolygonTakesClosedAndOpenRings) {
    const KzVector3D offset(100.0, -50.0, 7.0);
    for (const Points &ring : {angle, closed(angle), reversed(angle), closed(reversed(angle))}) {
        expectNear(angleCentroid, KzMath::polygonCentroid(ring));
        expectNear(angleCentroid + offset, KzMath::polygonCentroid(shifted(ring, offset)));
    }
}

TEST(KzMath, WithoutAreaTheCentroidIsThatOfTheEdges) {
    expectNear(KzVector3D(2.0, 0.0, 0.0),
               KzMath::polygonCentroid({{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {4.0, 0.0, 0.0}}));
    expectNear(KzVector3D(2.0, 2.0, 0.0), KzMath::polygonCentroid({{0.0, 0.0, 0.0}, {4.0, 4.0, 0.0}}));
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), KzMath::polygonCentroid(Points(3, KzVector3D(1.0, 2.0, 3.0))));
    EXPECT_EQ(KzVector3D(), KzMath::polygonCentroid({}));
}

TEST(KzMath, TheCentroidOfAChainWeighsItsLengths) {
    const Points chain = {{0.0, 0.0, 0.0}, {2.0, 0.0, 0.0}, {2.0, 6.0, 0.0}};
    expectNear(KzVector3D(1.75, 2.25, 0.0), KzMath::polylineCentroid(chain.data(), chain.size()));
    EXPECT_EQ(KzVector3D(2.0, 0.0, 0.0), KzMath::polylineCentroid(chain.data() + 1, 1));
    const Points standing(2, KzVector3D(1.0, 2.0, 3.0));
    EXPECT_EQ(standing[0], KzMath::polylineCentroid(standing.data(), standing.size()));
    EXPECT_EQ(KzVector3D(), KzMath::polylineCentroid(chain.data(), 0));
    EXPECT_EQ(KzVector3D(), KzMath::polylineCentroid(nullptr, 5));
}

TEST(KzMath, RotatesPointsLeftHandedForPositiveDegrees) {
    Points points = {{3.0, 1.0, 5.0}, {1.0, 1.0, 5.0}};
    KzMath::rotatePoints(points, KzVector3D(0.0, 0.0, 9.0), KzVector3D(1.0, 1.0, 5.0), 90.0);
    expectNear(KzVector3D(1.0, -1.0, 5.0), points[0]);
    expectNear(KzVector3D(1.0, 1.0, 5.0), points[1]);
}

TEST(KzMath, ANegativeOpeningLeadsFromTheStartOfAnArcToItsEnd) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> number(-5.0, 5.0);
    const auto some = [&] { return KzVector3D(number(random), number(random), number(random)); };
    for (int i = 0; i < 100; ++i) {
        const KzVector3D centre = some();
        const KzVector3D u = some().normalize();
        const KzVector3D w = some().normalize();
        const KzVector3D start = centre + u * 3.0;
        const KzVector3D end = centre + w * 3.0;
        Points points = {start};
        KzMath::rotatePoints(points, u.crossProduct(w), centre,
                             -KzMath::getPhi(start, end, centre) / KzMath::Pi_180);
        expectNear(end, points[0], 1e-9);
    }
}

TEST(KzMath, ANullAxisTurnsAboutTheHorizontalPlanesNormal) {
    const KzVector3D centre(1.0, 0.0, 2.0);
    Points points = {{3.0, 0.0, 2.0}};
    KzMath::rotatePoints(points, KzVector3D(), centre, -180.0);
    expectNear(KzVector3D(-1.0, 0.0, 2.0), points[0]);
    points = {{3.0, 0.0, 2.0}};
    KzMath::rotatePoints(points, KzVector3D(), centre, -90.0);
    expectNear(KzVector3D(1.0, 2.0, 2.0), points[0]);
}

TEST(KzMath, ANullAxisOfAVerticalRadiusTurnsAboutGlobalX) {
    Points points = {{0.0, 0.0, 2.0}};
    KzMath::rotatePoints(points, KzVector3D(), KzVector3D(), -90.0);
    expectNear(KzVector3D(0.0, -2.0, 0.0), points[0]);
    points = {KzVector3D()};
    KzMath::rotatePoints(points, KzVector3D(), KzVector3D(), -90.0);
    EXPECT_EQ(KzVector3D(), points[0]);
    points.clear();
    KzMath::rotatePoints(points, KzVector3D(), KzVector3D(), -90.0);
    EXPECT_TRUE(points.empty());
}

}  // namespace
