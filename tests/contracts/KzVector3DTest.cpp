#include "varnel/contracts/KzVector3D.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <type_traits>

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

static_assert(std::is_trivially_copyable<KzVector3D>::value, "copied byte for byte");
static_assert(sizeof(KzVector3D) == 3 * sizeof(double), "three components and nothing else");
static_assert(KzVector3D(1.0, 2.0, 3.0).crossProduct(KzVector3D()) == KzVector3D(), "usable in constants");

TEST(KzVector3D, IsBornAtTheOrigin) {
    EXPECT_EQ(KzVector3D::getOrigin(), KzVector3D());
    EXPECT_EQ(KzVector3D(0.0, 0.0, 0.0), KzVector3D());
    EXPECT_EQ(KzVector3D(0.0, 0.0, 1.0), KzVector3D::getGlobalZ());
}

TEST(KzVector3D, HoldsItsComponents) {
    const KzVector3D v(1.0, 2.0, 3.0);
    EXPECT_EQ(1.0, v.getX());
    EXPECT_EQ(2.0, v.getY());
    EXPECT_EQ(3.0, v.getZ());
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    v.getXYZ(x, y, z);
    EXPECT_EQ(v, KzVector3D(x, y, z));
}

TEST(KzVector3D, SettersAnswerTheVectorItself) {
    KzVector3D v;
    EXPECT_EQ(&v, &v.setXYZ(1.0, 2.0, 3.0));
    EXPECT_EQ(&v, &v.setZ(4.0));
    EXPECT_EQ(KzVector3D(1.0, 2.0, 4.0), v);
    EXPECT_EQ(&v, &v.setX(5.0).setY(6.0));
    EXPECT_EQ(KzVector3D(5.0, 6.0, 4.0), v);
}

TEST(KzVector3D, MeasuresLengthsAndDistances) {
    EXPECT_EQ(7.0, KzVector3D(2.0, 3.0, 6.0).length());
    EXPECT_EQ(7.0, KzVector3D(3.0, 4.0, 7.0).distanceTo(KzVector3D(1.0, 1.0, 1.0)));
}

TEST(KzVector3D, NormalizesBehindACrossProduct) {
    const KzVector3D normal = KzVector3D(2.0, 0.0, 0.0).crossProduct(KzVector3D(0.0, 5.0, 0.0)).normalize();
    EXPECT_EQ(KzVector3D::getGlobalZ(), normal);
}

TEST(KzVector3D, NormalizingNeverMakesNaN) {
    EXPECT_EQ(KzVector3D(), KzVector3D().normalize());
    EXPECT_EQ(KzVector3D(1e-300, 0.0, 0.0), KzVector3D(1e-300, 0.0, 0.0).normalize());
    EXPECT_EQ(KzVector3D(1e300, 1e300, 0.0), KzVector3D(1e300, 1e300, 0.0).normalize());
    EXPECT_EQ(KzVector3D(infinity, 0.0, 0.0), KzVector3D(infinity, 0.0, 0.0).normalize());
}

TEST(KzVector3D, CrossProductIsRightHanded) {
    const KzVector3D x(1.0, 0.0, 0.0);
    const KzVector3D y(0.0, 1.0, 0.0);
    EXPECT_EQ(KzVector3D::getGlobalZ(), x.crossProduct(y));
    EXPECT_EQ(-KzVector3D::getGlobalZ(), y.crossProduct(x));
    EXPECT_EQ(KzVector3D(-3.0, 6.0, -3.0), KzVector3D(1.0, 2.0, 3.0).crossProduct(KzVector3D(4.0, 5.0, 6.0)));
}

TEST(KzVector3D, IsNullUpToTenToTheMinusTwelveInEachComponent) {
    const double above = std::nextafter(1e-12, 1.0);
    EXPECT_TRUE(KzVector3D().isNull());
    EXPECT_TRUE(KzVector3D(1e-12, -1e-12, 1e-12).isNull());
    EXPECT_FALSE(KzVector3D(above, 0.0, 0.0).isNull());
    EXPECT_FALSE(KzVector3D(0.0, -above, 0.0).isNull());
    EXPECT_FALSE(KzVector3D(0.0, 0.0, above).isNull());
    EXPECT_FALSE(KzVector3D(0.0, nan, 0.0).isNull());
}

TEST(KzVector3D, IsCollinearWithinATolerancedSine) {
    const KzVector3D x(2.0, 0.0, 0.0);
    EXPECT_TRUE(x.isCollinear(KzVector3D(5.0, 0.0, 0.0)));
    EXPECT_TRUE(x.isCollinear(KzVector3D(-5.0, 0.0, 0.0)));
    EXPECT_FALSE(x.isCollinear(KzVector3D(0.0, 1.0, 0.0)));
    const auto inclined = [](double sine) { return KzVector3D(std::sqrt(1.0 - sine * sine), sine, 0.0); };
    EXPECT_TRUE(x.isCollinear(inclined(0.99e-4)));
    EXPECT_FALSE(x.isCollinear(inclined(1.01e-4)));
    EXPECT_TRUE(x.isCollinear(inclined(0.0099), 0.01));
    EXPECT_FALSE(x.isCollinear(inclined(0.0101), 0.01));
}

TEST(KzVector3D, ASineOfExactlyTheToleranceIsCollinear) {
    const KzVector3D x(2.0, 0.0, 0.0);
    const KzVector3D y(0.0, 3.0, 0.0);
    EXPECT_TRUE(x.isCollinear(y, 1.0));
    EXPECT_FALSE(x.isCollinear(y, std::nextafter(1.0, 0.0)));
    EXPECT_TRUE(x.isCollinear(-x, 0.0));
    EXPECT_FALSE(KzVector3D(nan, 0.0, 0.0).isCollinear(x));
}

TEST(KzVector3D, ANullVectorIsCollinearWithEverything) {
    const KzVector3D some(1.0, 2.0, 3.0);
    EXPECT_TRUE(some.isCollinear(KzVector3D()));
    EXPECT_TRUE(KzVector3D().isCollinear(some, 0.01));
    EXPECT_TRUE(KzVector3D().isCollinear(KzVector3D()));
}

TEST(KzVector3D, EqualityIsExact) {
    const double next = std::nextafter(1.0, 2.0);
    EXPECT_TRUE(KzVector3D(1.0, 1.0, 1.0) == KzVector3D(1.0, 1.0, 1.0));
    for (const KzVector3D &other :
         {KzVector3D(next, 1.0, 1.0), KzVector3D(1.0, next, 1.0), KzVector3D(1.0, 1.0, next)}) {
        EXPECT_FALSE(KzVector3D(1.0, 1.0, 1.0) == other);
        EXPECT_TRUE(KzVector3D(1.0, 1.0, 1.0) != other);
        EXPECT_TRUE(other != KzVector3D(1.0, 1.0, 1.0));
    }
    EXPECT_TRUE(KzVector3D(-0.0, 0.0, -0.0) == KzVector3D());
    const KzVector3D notANumber(nan, 0.0, 0.0);
    EXPECT_FALSE(notANumber == notANumber);
    EXPECT_TRUE(notANumber != notANumber);
}

TEST(KzVector3D, Calculates) {
    KzVector3D v(1.0, 2.0, 3.0);
    EXPECT_EQ(&v, &(v += KzVector3D(1.0, 1.0, 1.0)));
    EXPECT_EQ(KzVector3D(2.0, 3.0, 4.0), v);
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), v -= KzVector3D(1.0, 1.0, 1.0));
    EXPECT_EQ(KzVector3D(2.0, 4.0, 6.0), v *= 2.0);
    EXPECT_EQ(KzVector3D(3.0, 4.0, 6.0), v + KzVector3D(1.0, 0.0, 0.0));
    EXPECT_EQ(KzVector3D(1.0, 4.0, 6.0), v - KzVector3D(1.0, 0.0, 0.0));
    EXPECT_EQ(KzVector3D(-2.0, -4.0, -6.0), -v);
    EXPECT_EQ(v * 0.5, 0.5 * v);
    EXPECT_EQ(32.0, KzVector3D(1.0, 2.0, 3.0).dotProduct(KzVector3D(4.0, 5.0, 6.0)));
}

TEST(KzVector3D, WidensABoxByComponents) {
    KzVector3D min(0.0, 0.0, 0.0);
    KzVector3D max(1.0, 1.0, 1.0);
    KzVector3D(0.5, 0.5, 0.5).updateMinMax(min, max);
    EXPECT_EQ(KzVector3D(), min);
    EXPECT_EQ(KzVector3D(1.0, 1.0, 1.0), max);
    KzVector3D(-1.0, 2.0, nan).updateMinMax(min, max);
    EXPECT_EQ(KzVector3D(-1.0, 0.0, 0.0), min);
    EXPECT_EQ(KzVector3D(1.0, 2.0, 1.0), max);
    KzVector3D(5.0, -6.0, 7.0).updateMinMax(min, max);
    EXPECT_EQ(KzVector3D(-1.0, -6.0, 0.0), min);
    EXPECT_EQ(KzVector3D(5.0, 2.0, 7.0), max);
}

TEST(KzVector3D, ItsToleranceIsATenthOfAMillimetre) {
    EXPECT_EQ(1e-4, KzVector3D::getTolerance());
}

}  // namespace
