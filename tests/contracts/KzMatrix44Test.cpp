#include "varnel/contracts/KzMatrix44.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <type_traits>

#include "varnel/contracts/KzMath.h"

namespace {

static_assert(std::is_trivially_copyable<KzMatrix44>::value, "copied byte for byte");
static_assert(sizeof(KzMatrix44) == 16 * sizeof(double), "a homogeneous matrix");

void expectNear(const KzVector3D &expected, const KzVector3D &actual, double tolerance = 1e-12) {
    EXPECT_NEAR(expected.getX(), actual.getX(), tolerance);
    EXPECT_NEAR(expected.getY(), actual.getY(), tolerance);
    EXPECT_NEAR(expected.getZ(), actual.getZ(), tolerance);
}

KzMatrix44 frame(const KzVector3D &x, const KzVector3D &y, const KzVector3D &z, const KzVector3D &origin) {
    KzMatrix44 matrix;
    matrix.setVector(0, x);
    matrix.setVector(1, y);
    matrix.setVector(2, z);
    matrix.setVector(3, origin);
    return matrix;
}

/// Unit axes, turned about an inclined axis.
KzMatrix44 inclinedFrame() {
    KzMatrix44 matrix;
    matrix.rotate(1.0, 2.0, -0.5, 0.7, 0.01);
    matrix.setVector(3, KzVector3D(10.0, -20.0, 3.0));
    return matrix;
}

TEST(KzMatrix44, IsBornAsTheIdentity) {
    const KzMatrix44 matrix;
    EXPECT_EQ(KzVector3D(1.0, 0.0, 0.0), matrix.getVector(0));
    EXPECT_EQ(KzVector3D(0.0, 1.0, 0.0), matrix.getVector(1));
    EXPECT_EQ(KzVector3D(0.0, 0.0, 1.0), matrix.getVector(2));
    EXPECT_EQ(KzVector3D(), matrix.getVector(3));
}

TEST(KzMatrix44, SetIdResetsAllVectors) {
    KzMatrix44 matrix = inclinedFrame();
    EXPECT_EQ(&matrix, &matrix.setId());
    for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(KzMatrix44::getId().getVector(i), matrix.getVector(i));
}

TEST(KzMatrix44, SettingOneVectorLeavesTheOthers) {
    for (std::size_t set = 0; set < 4; ++set) {
        SCOPED_TRACE(set);
        KzMatrix44 matrix;
        matrix.setVector(set, KzVector3D(7.0, 8.0, 9.0));
        for (std::size_t i = 0; i < 4; ++i)
            EXPECT_EQ(i == set ? KzVector3D(7.0, 8.0, 9.0) : KzMatrix44::getId().getVector(i),
                      matrix.getVector(i));
    }
}

TEST(KzMatrix44, IgnoresIndicesPastTheOrigin) {
    KzMatrix44 matrix;
    for (const std::size_t index : {std::size_t(4), std::size_t(1000), static_cast<std::size_t>(-1)}) {
        matrix.setVector(index, KzVector3D(7.0, 8.0, 9.0));
        EXPECT_EQ(KzVector3D(), matrix.getVector(index));
    }
    for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(KzMatrix44::getId().getVector(i), matrix.getVector(i));
}

TEST(KzMatrix44, TheIdentityLeavesPointsAsTheyAre) {
    const KzVector3D point(1.1, -2.2, 3.3);
    EXPECT_EQ(point, KzMatrix44::getId().transform(point));
    EXPECT_EQ(point, KzMatrix44::getId().transformBack(point));
}

TEST(KzMatrix44, TransformsIntoAFrameAndBack) {
    const KzMatrix44 matrix = frame(KzVector3D(0.0, 1.0, 0.0), KzVector3D(-1.0, 0.0, 0.0),
                                    KzVector3D(0.0, 0.0, 1.0), KzVector3D(10.0, 0.0, 5.0));
    EXPECT_EQ(KzVector3D(2.0, -1.0, 3.0), matrix.transform(KzVector3D(11.0, 2.0, 8.0)));
    EXPECT_EQ(KzVector3D(11.0, 2.0, 8.0), matrix.transformBack(KzVector3D(2.0, -1.0, 3.0)));
    const KzVector3D point(3.0, 4.0, -5.0);
    expectNear(point, inclinedFrame().transformBack(inclinedFrame().transform(point)));
    expectNear(point, inclinedFrame().transform(inclinedFrame().transformBack(point)));
}

TEST(KzMatrix44, AnyFrameOfUnitAxesTakesPointsThereAndBack) {
    std::mt19937 random(44);
    std::uniform_real_distribution<double> number(-100.0, 100.0);
    const auto some = [&] { return KzVector3D(number(random), number(random), number(random)); };
    for (int i = 0; i < 100; ++i) {
        SCOPED_TRACE(i);
        const KzVector3D z = some().normalize();
        const KzVector3D x = some().crossProduct(z).normalize();
        const KzVector3D y = i % 2 ? z.crossProduct(x) : x.crossProduct(z);  // of either hand
        const KzMatrix44 matrix = frame(x, y, z, some());
        const KzVector3D point = some();
        const KzVector3D local = matrix.transform(point);
        expectNear(point, matrix.transformBack(local), 1e-10);
        EXPECT_NEAR((point - matrix.getVector(3)).dotProduct(z), local.getZ(), 1e-10);
        double t = 0.0;
        ASSERT_TRUE(matrix.cutWithLine(point, z, t));
        EXPECT_NEAR(-local.getZ(), t, 1e-10);
    }
}

TEST(KzMatrix44, TheLengthOfAxesDoesNotCount) {
    const KzMatrix44 matrix = frame(KzVector3D(4.0, 0.0, 0.0), KzVector3D(0.0, 0.5, 0.0),
                                    KzVector3D(0.0, 0.0, 100.0), KzVector3D(0.0, 0.0, 1.0));
    EXPECT_EQ(KzVector3D(2.0, 3.0, 4.0), matrix.transform(KzVector3D(2.0, 3.0, 5.0)));
    EXPECT_EQ(KzVector3D(2.0, 3.0, 5.0), matrix.transformBack(KzVector3D(2.0, 3.0, 4.0)));
}

TEST(KzMatrix44, ANullAxisGivesZeroCoordinates) {
    KzMatrix44 matrix;
    matrix.setVector(1, KzVector3D());
    EXPECT_EQ(KzVector3D(2.0, 0.0, 4.0), matrix.transform(KzVector3D(2.0, 3.0, 4.0)));
    EXPECT_EQ(KzVector3D(2.0, 0.0, 4.0), matrix.transformBack(KzVector3D(2.0, 3.0, 4.0)));
}

TEST(KzMatrix44, ComposesAParentWithAChild) {
    const KzMatrix44 parent = frame(KzVector3D(0.0, 1.0, 0.0), KzVector3D(-1.0, 0.0, 0.0),
                                    KzVector3D(0.0, 0.0, 1.0), KzVector3D(10.0, 0.0, 0.0));
    KzMatrix44 child;
    child.setVector(3, KzVector3D(5.0, 0.0, 2.0));
    const KzMatrix44 both = parent * child;
    EXPECT_EQ(KzVector3D(0.0, 1.0, 0.0), both.getVector(0));
    EXPECT_EQ(KzVector3D(10.0, 5.0, 2.0), both.getVector(3));
    const KzVector3D point(1.0, 2.0, 3.0);
    const KzMatrix44 nested = inclinedFrame() * inclinedFrame();
    expectNear(inclinedFrame().transformBack(inclinedFrame().transformBack(point)),
               nested.transformBack(point));
}

TEST(KzMatrix44, RotatesTheAxesRightHandedAndLeavesTheOrigin) {
    KzMatrix44 matrix;
    matrix.setVector(3, KzVector3D(1.0, 2.0, 3.0));
    EXPECT_EQ(&matrix, &matrix.rotate(0.0, 0.0, 5.0, KzMath::Pi / 2.0, 0.01));
    expectNear(KzVector3D(0.0, 1.0, 0.0), matrix.getVector(0));
    expectNear(KzVector3D(-1.0, 0.0, 0.0), matrix.getVector(1));
    expectNear(KzVector3D(0.0, 0.0, 1.0), matrix.getVector(2));
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), matrix.getVector(3));
}

TEST(KzMatrix44, AnAxisShorterThanTheToleranceRotatesNothing) {
    struct Row {
        double length;
        double tolerance;
        bool turned;
    };
    for (const Row &row : {Row{0.0099, 0.01, false}, Row{0.01, 0.01, true}, Row{0.0101, 0.01, true},
                           Row{0.0, 0.0, false}, Row{std::nan(""), 0.01, false}, Row{1e200, 0.01, false}}) {
        SCOPED_TRACE(row.length);
        KzMatrix44 matrix;
        matrix.rotate(0.0, 0.0, row.length, 1.0, row.tolerance);
        EXPECT_EQ(row.turned, matrix.getVector(0) != KzVector3D(1.0, 0.0, 0.0));
        EXPECT_FALSE(std::isnan(matrix.getVector(0).getX()));
    }
}

TEST(KzMatrix44, CutsALineWithItsPlane) {
    KzMatrix44 plane;
    plane.setVector(3, KzVector3D(0.0, 0.0, 2.0));
    double t = -1.0;
    EXPECT_TRUE(plane.cutWithLine(KzVector3D(3.0, 4.0, 7.0), KzVector3D(0.0, 0.0, -1.0), t));
    EXPECT_EQ(5.0, t);
    EXPECT_TRUE(plane.cutWithLine(KzVector3D(3.0, 4.0, 7.0), KzVector3D(0.0, 3.0, 2.0), t));
    EXPECT_EQ(-2.5, t);
}

TEST(KzMatrix44, ALineParallelToThePlaneIsNotCut) {
    const KzMatrix44 plane;
    KzMatrix44 flat;
    flat.setVector(2, KzVector3D());
    double t = 42.0;
    EXPECT_FALSE(plane.cutWithLine(KzVector3D(0.0, 0.0, 1.0), KzVector3D(1.0, 1.0, 0.0), t));
    EXPECT_FALSE(plane.cutWithLine(KzVector3D(0.0, 0.0, 1.0), KzVector3D(1.0, 0.0, 0.9e-12), t));
    EXPECT_FALSE(plane.cutWithLine(KzVector3D(0.0, 0.0, 1.0), KzVector3D(), t));
    EXPECT_FALSE(plane.cutWithLine(KzVector3D(0.0, 0.0, 1.0), KzVector3D(0.0, 0.0, std::nan("")), t));
    EXPECT_FALSE(flat.cutWithLine(KzVector3D(0.0, 0.0, 1.0), KzVector3D(0.0, 0.0, 1.0), t));
    EXPECT_EQ(42.0, t);
    EXPECT_TRUE(plane.cutWithLine(KzVector3D(0.0, 0.0, 1.0), KzVector3D(1.0, 0.0, 1.1e-12), t));
}

}  // namespace
