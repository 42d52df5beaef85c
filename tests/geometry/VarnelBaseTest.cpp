#include "varnel/geometry/VarnelBase.h"

#include <gtest/gtest.h>

#include <cmath>
#include <type_traits>

namespace {

static_assert(!std::is_polymorphic<VarnelBase>::value, "a plain record");

KzMatrix44 someFrame() {
    KzMatrix44 matrix;
    matrix.rotate(1.0, 2.0, 3.0, 0.4, 0.01);
    matrix.setVector(3, KzVector3D(7.0, 8.0, 9.0));
    return matrix;
}

void expectFrame(const KzMatrix44 &expected, const KzMatrix44 *actual) {
    ASSERT_NE(nullptr, actual);
    for (std::size_t i = 0; i < 4; ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(expected.getVector(i), actual->getVector(i));
    }
}

TEST(VarnelBase, IsBornChangedAndWithoutAFrame) {
    const VarnelBase base;
    EXPECT_TRUE(base.getChanged());
    EXPECT_EQ(nullptr, base.getMatrix());
    EXPECT_EQ(KzVector3D(), base.getOffset());
    for (const int axis : {0, 1, 2, 3, -1}) EXPECT_EQ(0.0, base.getAngle(axis));
}

TEST(VarnelBase, SettersMarkAChangeButNotTheOffset) {
    struct Row {
        const char *what;
        void (*set)(VarnelBase &);
        bool changed;
    };
    for (const Row &row :
         {Row{"angle about y", [](VarnelBase &b) { b.setAngle(0.5, 1); }, true},
          Row{"angle about z", [](VarnelBase &b) { b.setAngle(0.5, 2); }, true},
          Row{"no angle", [](VarnelBase &b) { b.setAngle(0.0, 2); }, true},
          Row{"other axis", [](VarnelBase &b) { b.setAngle(0.5, 7); }, true},
          Row{"matrix", [](VarnelBase &b) { b.setMatrix(KzMatrix44()); }, true},
          Row{"offset", [](VarnelBase &b) { b.setOffset(KzVector3D(1.0, 2.0, 3.0)); }, false},
          Row{"flag", [](VarnelBase &b) { b.setChanged(true); }, true}}) {
        SCOPED_TRACE(row.what);
        VarnelBase base;
        base.setChanged(false);
        row.set(base);
        EXPECT_EQ(row.changed, base.getChanged());
    }
}

TEST(VarnelBase, AnAngleAboutYTurnsLeftHanded) {
    VarnelBase base;
    base.setAngle(0.5, 1);
    KzMatrix44 expected;
    expected.setVector(0, KzVector3D(std::cos(0.5), 0.0, std::sin(0.5)));
    expected.setVector(2, KzVector3D(-std::sin(0.5), 0.0, std::cos(0.5)));
    expectFrame(expected, base.getMatrix());
    EXPECT_DOUBLE_EQ(0.5, base.getAngle(1));
    EXPECT_EQ(0.0, base.getAngle(2));
}

TEST(VarnelBase, AnAngleAboutZTurnsRightHanded) {
    VarnelBase base;
    base.setAngle(0.5, 2);
    KzMatrix44 expected;
    expected.setVector(0, KzVector3D(std::cos(0.5), std::sin(0.5), 0.0));
    expected.setVector(1, KzVector3D(-std::sin(0.5), std::cos(0.5), 0.0));
    expectFrame(expected, base.getMatrix());
    EXPECT_DOUBLE_EQ(0.5, base.getAngle(2));
    EXPECT_EQ(0.0, base.getAngle(1));
}

TEST(VarnelBase, AnyOtherAxisLeavesTheIdentity) {
    for (const int axis : {0, 3, -1}) {
        VarnelBase base;
        base.setMatrix(someFrame());
        base.setAngle(0.5, axis);
        expectFrame(KzMatrix44(), base.getMatrix());
        EXPECT_EQ(0.0, base.getAngle(axis));
    }
}

TEST(VarnelBase, AnAngleDropsTheOffset) {
    VarnelBase base;
    base.setOffset(KzVector3D(1.0, 2.0, 3.0));
    base.setAngle(0.5, 2);
    EXPECT_EQ(KzVector3D(), base.getOffset());
}

TEST(VarnelBase, AnAngleOfZeroDropsFrameAndOffset) {
    for (const double zero : {0.0, -0.0}) {
        VarnelBase base;
        base.setOffset(KzVector3D(1.0, 2.0, 3.0));
        base.setAngle(zero, 1);
        EXPECT_EQ(nullptr, base.getMatrix());
        EXPECT_EQ(KzVector3D(), base.getOffset());
    }
}

TEST(VarnelBase, AnglesAreReadOffTheXAxisOfAnyFrame) {
    VarnelBase base;
    KzMatrix44 matrix;
    matrix.setVector(0, KzVector3D(-1.0, 1.0, 2.0));
    base.setMatrix(matrix);
    EXPECT_DOUBLE_EQ(std::atan2(2.0, -1.0), base.getAngle(1));
    EXPECT_DOUBLE_EQ(std::atan2(1.0, -1.0), base.getAngle(2));
}

TEST(VarnelBase, SetMatrixCopiesIntoOneFrame) {
    VarnelBase base;
    base.setMatrix(KzMatrix44());
    const KzMatrix44 *frame = base.getMatrix();
    base.setMatrix(someFrame());
    EXPECT_EQ(frame, base.getMatrix());
    expectFrame(someFrame(), base.getMatrix());
    base.setMatrix(*base.getMatrix());
    expectFrame(someFrame(), base.getMatrix());
}

TEST(VarnelBase, AnOffsetMakesAnIdentityFrameOrMovesTheOneThatIsThere) {
    VarnelBase base;
    base.setOffset(KzVector3D(1.0, 2.0, 3.0));
    KzMatrix44 expected;
    expected.setVector(3, KzVector3D(1.0, 2.0, 3.0));
    expectFrame(expected, base.getMatrix());
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), base.getOffset());
    base.setMatrix(someFrame());
    base.setOffset(KzVector3D(1.0, 2.0, 3.0));
    EXPECT_EQ(someFrame().getVector(0), base.getMatrix()->getVector(0));
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), base.getOffset());
}

TEST(VarnelBase, ACopyKeepsTheFlagAndHasAFrameOfItsOwn) {
    VarnelBase source;
    source.setMatrix(someFrame());
    source.setChanged(false);
    const VarnelBase copy(source);
    EXPECT_FALSE(copy.getChanged());
    source.setOffset(KzVector3D());
    expectFrame(someFrame(), copy.getMatrix());
    EXPECT_EQ(nullptr, VarnelBase(VarnelBase()).getMatrix());
}

TEST(VarnelBase, AnAssignmentMarksAChangeWhateverTheSourcesFlag) {
    VarnelBase source;
    source.setMatrix(someFrame());
    source.setChanged(false);
    VarnelBase target;
    target.setChanged(false);
    EXPECT_EQ(&target, &(target = source));
    EXPECT_TRUE(target.getChanged());
    expectFrame(someFrame(), target.getMatrix());
    EXPECT_NE(source.getMatrix(), target.getMatrix());
    const KzMatrix44 *frame = target.getMatrix();
    source.setAngle(0.5, 2);
    target = source;
    EXPECT_EQ(frame, target.getMatrix()) << "a frame that is there takes the values";
    expectFrame(*source.getMatrix(), frame);
    VarnelBase none;
    none.setChanged(false);
    target.setChanged(false);
    target = none;
    EXPECT_TRUE(target.getChanged());
    EXPECT_EQ(nullptr, target.getMatrix());
}

TEST(VarnelBase, AssigningItselfKeepsTheFrameAndMarksAChange) {
    VarnelBase base;
    base.setMatrix(someFrame());
    base.setChanged(false);
    const VarnelBase &same = base;
    base = same;
    EXPECT_TRUE(base.getChanged());
    expectFrame(someFrame(), base.getMatrix());
}

}  // namespace
