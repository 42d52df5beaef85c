#include <gtest/gtest.h>

#include <cmath>

#include "varnel/contracts/KzMath.h"
#include "varnel/geometry/VarnelBase.h"
#include "varnel/geometry/VarnelBeamGeo.h"
#include "varnel/members/VarnelBeam.h"

namespace {

const KzVector3D origin(1.0, 2.0, 3.0);

/// A beam from (1, 2, 3) along a direction.
struct BeamAlong : VarnelBeam {
    BeamAlong(double x, double y, double z) { setLine(origin, KzVector3D(1.0 + x, 2.0 + y, 3.0 + z), 0); }
};

void expectNear(const KzVector3D &expected, const KzVector3D &vector) {
    EXPECT_NEAR(expected.getX(), vector.getX(), 1e-12);
    EXPECT_NEAR(expected.getY(), vector.getY(), 1e-12);
    EXPECT_NEAR(expected.getZ(), vector.getZ(), 1e-12);
}

void expectFrame(const KzMatrix44 &frame, const KzVector3D &x, const KzVector3D &y, const KzVector3D &z) {
    expectNear(x, frame.getVector(0));
    expectNear(y, frame.getVector(1));
    expectNear(z, frame.getVector(2));
    EXPECT_EQ(origin, frame.getVector(3));
}

TEST(VarnelBeamFrame, OfHorizontalVerticalAndSkewBeams) {
    const double h = std::sqrt(0.5);
    struct Row {
        const char *beam;
        KzVector3D direction, x, y, z;
    };
    const Row rows[] = {
        {"along x", {4.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}},
        {"along -x", {-4.0, 0.0, 0.0}, {-1.0, 0.0, 0.0}, {0.0, -1.0, 0.0}, {0.0, 0.0, 1.0}},
        {"along y", {0.0, 2.0, 0.0}, {0.0, 1.0, 0.0}, {-1.0, 0.0, 0.0}, {0.0, 0.0, 1.0}},
        {"diagonal", {3.0, 3.0, 0.0}, {h, h, 0.0}, {-h, h, 0.0}, {0.0, 0.0, 1.0}},
        {"rising", {2.0, 0.0, 2.0}, {h, 0.0, h}, {0.0, 1.0, 0.0}, {-h, 0.0, h}},
        {"falling", {0.0, 2.0, -2.0}, {0.0, h, -h}, {-1.0, 0.0, 0.0}, {0.0, h, h}},
        {"up", {0.0, 0.0, 5.0}, {0.0, 0.0, 1.0}, {0.0, 1.0, 0.0}, {-1.0, 0.0, 0.0}},
        {"down", {0.0, 0.0, -5.0}, {0.0, 0.0, -1.0}, {0.0, 1.0, 0.0}, {1.0, 0.0, 0.0}},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.beam);
        const BeamAlong beam(row.direction.getX(), row.direction.getY(), row.direction.getZ());
        expectFrame(beam.getMatrix(), row.x, row.y, row.z);
        expectFrame(beam.getBaseMatrix(), row.x, row.y, row.z);
    }
}

TEST(VarnelBeamFrame, OfAKinkedBeamLiesOnItsStraight) {
    VarnelBeam beam;
    auto *axis = new VarnelBeamGeo();
    axis->addVertex(origin);
    axis->addVertex(KzVector3D(9.0, 9.0, 9.0));
    axis->addVertex(KzVector3D(1.0, 5.0, 3.0));
    beam.setGeo(axis);
    expectNear(KzVector3D(0.0, 1.0, 0.0), beam.getMatrix().getVector(0));
    expectNear(KzVector3D(0.0, 1.0, 0.0), beam.getBaseMatrix().getVector(0));
}

TEST(VarnelBeamFrame, OfABeamWithoutLengthHasNoNumbersThatAreNone) {
    const BeamAlong beam(0.0, 0.0, 0.0);
    for (const KzMatrix44 &frame : {beam.getMatrix(), beam.getBaseMatrix()}) {
        EXPECT_EQ(KzVector3D(), frame.getVector(0));
        EXPECT_EQ(KzVector3D(0.0, 1.0, 0.0), frame.getVector(1));
        EXPECT_EQ(KzVector3D(), frame.getVector(2));
        EXPECT_EQ(origin, frame.getVector(3));
    }
}

TEST(VarnelBeamFrame, JustBelowTheLimitIsVertical) {
    const BeamAlong beam(0.00099, 0.0, 1.0);
    EXPECT_EQ(KzVector3D(0.0, 1.0, 0.0), beam.getMatrix().getVector(1));
    EXPECT_EQ(KzVector3D(0.0, 1.0, 0.0), beam.getBaseMatrix().getVector(1));
    const BeamAlong across(0.0, 0.00099, 1.0);
    EXPECT_EQ(KzVector3D(0.0, 1.0, 0.0), across.getMatrix().getVector(1));
    EXPECT_EQ(KzVector3D(0.0, 1.0, 0.0), across.getBaseMatrix().getVector(1));
}

TEST(VarnelBeamFrame, JustAboveTheLimitIsSkew) {
    const BeamAlong across(0.0, 0.00101, 1.0);
    expectNear(KzVector3D(-1.0, 0.0, 0.0), across.getMatrix().getVector(1));
    expectNear(KzVector3D(-1.0, 0.0, 0.0), across.getBaseMatrix().getVector(1));
}

TEST(VarnelBeamFrame, AtTheLimitTheTwoFramesDiffer) {
    // An end at a distance of exactly 1 from the origin, so that the unit axis leans by exactly 0.001.
    const KzVector3D end(0.0, 0.001, std::sqrt(1.0 - 1e-6));
    ASSERT_EQ(1.0, end.length());
    VarnelBeam beam;
    beam.setLine(KzVector3D(), end, 0);
    ASSERT_EQ(0.001, beam.getMatrix().getVector(0).getY());
    expectNear(KzVector3D(0.0, 1.0, 0.0), beam.getMatrix().getVector(1));
    expectNear(KzVector3D(-1.0, 0.0, 0.0), beam.getBaseMatrix().getVector(1));
}

TEST(VarnelBeamFrame, IsTurnedAboutTheAxisByTheAngleInDegrees) {
    BeamAlong beam(4.0, 0.0, 0.0);
    beam.setAngle(90.0);
    expectFrame(beam.getMatrix(), {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0});
    expectFrame(beam.getBaseMatrix(), {1.0, 0.0, 0.0}, {0.0, 0.0, 1.0}, {0.0, -1.0, 0.0});
    beam.setAngle(30.0);
    expectFrame(beam.getBaseMatrix(), {1.0, 0.0, 0.0}, {0.0, std::sqrt(0.75), 0.5},
                {0.0, -0.5, std::sqrt(0.75)});
}

TEST(VarnelBeamFrame, IsTurnedForAVerticalBeamToo) {
    BeamAlong beam(0.0, 0.0, 4.0);
    beam.setAngle(90.0);
    expectFrame(beam.getBaseMatrix(), {0.0, 0.0, 1.0}, {-1.0, 0.0, 0.0}, {0.0, -1.0, 0.0});
}

TEST(VarnelBeamFrame, OfABaseIgnoresAxisAndAngle) {
    KzMatrix44 matrix = KzMatrix44::getId();
    matrix.setVector(0, KzVector3D(0.0, 0.0, 1.0));
    matrix.setVector(3, KzVector3D(9.0, 9.0, 9.0));
    VarnelBase base;
    BeamAlong beam(4.0, 0.0, 0.0);
    beam.setAngle(90.0);
    beam.setBase(&base);
    EXPECT_EQ(&base, beam.getBase());
    EXPECT_EQ(KzVector3D(), beam.getBaseMatrix().getVector(3)) << "a base without a matrix is the identity";
    EXPECT_EQ(KzVector3D(0.0, 1.0, 0.0), beam.getBaseMatrix().getVector(1));
    base.setMatrix(matrix);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(matrix.getVector(i), beam.getBaseMatrix().getVector(i)) << i;
    expectFrame(beam.getMatrix(), {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0});
}

}  // namespace
