#include "varnel/geometry/VarnelStraight.h"

#include <gtest/gtest.h>

#include <memory>
#include <typeinfo>
#include <vector>

#include "tests/support/CountedPoint.h"
#include "tests/support/Places.h"
#include "tests/support/StubbornPoint.h"
#include "varnel/geometry/VarnelCircle.h"
#include "varnel/geometry/VarnelLineVisitor.h"

struct VarnelStraightInspector {
    static void maxSpan(const VarnelStraight &line, double *span, const KzVector3D *other, double *value) {
        line.maxSpan(span, other, value);
    }
};

namespace {

using varnel::CountedPoint;
using varnel::isNear;
using varnel::planeAtHeight;

const KzVector3D origin;
const KzVector3D east(1.0, 0.0, 0.0);
const KzVector3D north(0.0, 1.0, 0.0);
const KzVector3D up(0.0, 0.0, 1.0);

TEST(VarnelStraight, IsBornChangedWithTwoPointsOfItsOwn) {
    const VarnelStraight line(KzVector3D(1.0, 2.0, 3.0), KzVector3D(2.0, 4.0, 5.0));
    EXPECT_TRUE(line.getChanged());
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), line.getStartVec());
    EXPECT_EQ(KzVector3D(2.0, 4.0, 5.0), line.getEndVec());
    EXPECT_EQ(line.getStartVec(), line.getStart()->getCoor());
    EXPECT_EQ(line.getEndVec(), line.getEnd()->getCoor());
    EXPECT_EQ(KzVector3D(1.0, 2.0, 2.0), line.getDir());
    EXPECT_EQ(3.0, line.getLength());
}

TEST(VarnelStraight, TakesOverPoints) {
    {
        auto *start = new CountedPoint(origin);
        auto *end = new CountedPoint(east);
        const VarnelStraight line(start, end);
        EXPECT_EQ(start, line.getStart());
        EXPECT_EQ(end, line.getEnd());
        EXPECT_EQ(2, CountedPoint::alive);
    }
    EXPECT_EQ(0, CountedPoint::alive);
}

TEST(VarnelStraight, ContinuesAnotherLineFromItsEnd) {
    auto first = std::make_unique<VarnelStraight>(new CountedPoint(origin), new CountedPoint(east));
    auto second = std::make_unique<VarnelStraight>(*first, new CountedPoint(north));
    EXPECT_EQ(first->getEnd(), second->getStart());
    EXPECT_EQ(3, CountedPoint::alive);
    first.reset();
    EXPECT_EQ(2, CountedPoint::alive);
    EXPECT_EQ(east, second->getStartVec());
    second.reset();
    EXPECT_EQ(0, CountedPoint::alive);
}

TEST(VarnelStraight, CoordinatesRunOnBeyondTheEnds) {
    const VarnelStraight line(KzVector3D(1.0, 1.0, 0.0), KzVector3D(3.0, 5.0, 2.0));
    EXPECT_EQ(KzVector3D(1.0, 1.0, 0.0), line.getCoor(0.0));
    EXPECT_EQ(KzVector3D(2.0, 3.0, 1.0), line.getCoor(0.5));
    EXPECT_EQ(KzVector3D(3.0, 5.0, 2.0), line.getCoor(1.0));
    EXPECT_EQ(KzVector3D(5.0, 9.0, 4.0), line.getCoor(2.0));
    EXPECT_EQ(KzVector3D(-1.0, -3.0, -2.0), line.getCoor(-1.0));
}

TEST(VarnelStraight, ItsDefiningCoordinatesAreStartAndEnd) {
    VarnelStraight line(origin, east);
    EXPECT_EQ((std::vector<KzVector3D>{origin, east}), line.getCoors());
    line.setChanged(false);
    line.setCoors({north, up, east});
    EXPECT_EQ((std::vector<KzVector3D>{north, up}), line.getCoors());
    EXPECT_TRUE(line.getStart()->getChanged());
    EXPECT_TRUE(line.getEnd()->getChanged());
}

TEST(VarnelStraight, TooFewCoordinatesAreIgnored) {
    VarnelStraight line(origin, east);
    line.setCoors({});
    line.setCoors({north});
    EXPECT_EQ((std::vector<KzVector3D>{origin, east}), line.getCoors());
}

TEST(VarnelStraight, MovingAnEndSetsThePointsFlagAndSoThatOfEveryLineThatSharesIt) {
    VarnelStraight line(origin, east);
    VarnelStraight next(line, new VarnelPoint(north));
    line.setChanged(false);
    next.setChanged(false);
    ASSERT_FALSE(line.getChanged() || next.getChanged());
    line.setEnd(up);
    EXPECT_EQ(up, next.getStartVec());
    EXPECT_TRUE(line.getChanged());
    EXPECT_TRUE(next.getChanged());
    // The flag is the point's: with the point unmarked, neither line is changed.
    line.getEnd()->setChanged(false);
    EXPECT_FALSE(line.getChanged());
    EXPECT_FALSE(next.getChanged());
    line.setStart(north);
    EXPECT_TRUE(line.getChanged());
    EXPECT_FALSE(next.getChanged());
}

TEST(VarnelStraight, TheFlagIsPassedDownToBothPoints) {
    VarnelStraight line(origin, east);
    for (const bool changed : {false, true}) {
        line.setChanged(changed);
        EXPECT_EQ(changed, line.getStart()->getChanged());
        EXPECT_EQ(changed, line.getEnd()->getChanged());
        EXPECT_EQ(changed, line.getChanged());
    }
    line.getStart()->setChanged(false);
    line.getEnd()->setChanged(false);
    EXPECT_TRUE(line.getChanged());
}

TEST(VarnelStraight, AnotherStartPointMarksNoChangeAndLeavesTheFormerOneToTheCaller) {
    VarnelStraight line(new CountedPoint(origin), new CountedPoint(east));
    VarnelPoint *former = line.getStart();
    auto *other = new CountedPoint(north);
    other->setChanged(false);
    line.setChanged(false);
    line.setP1(other);
    EXPECT_EQ(other, line.getStart());
    EXPECT_FALSE(line.getChanged());
    EXPECT_EQ(3, CountedPoint::alive);
    EXPECT_EQ(origin, former->getCoor());
    delete former;
    line.setP1(line.getStart());
    EXPECT_EQ(north, line.getStartVec());
}

TEST(VarnelStraight, AStartThatAnotherLineHoldsStaysWithThatLine) {
    VarnelStraight line(origin, east);
    VarnelStraight next(line, new VarnelPoint(north));
    next.setP1(nullptr);
    EXPECT_EQ(east, line.getEndVec());
}

TEST(VarnelStraight, WithoutAStartPointEveryQuestionIsHarmless) {
    VarnelStraight line(origin, east);
    const std::unique_ptr<VarnelPoint> former(line.getStart());
    line.setP1(nullptr);
    EXPECT_EQ(nullptr, line.getStart());
    EXPECT_EQ(KzVector3D(), line.getStartVec());
    EXPECT_EQ(KzVector3D(), line.getDir());
    EXPECT_EQ(0.0, line.getLength());
    EXPECT_EQ(KzVector3D(), line.getCoor(0.5));
    line.setStart(up);
    line.setCoors({up, up});
    line.setChanged(true);
    EXPECT_TRUE(line.getChanged());
    EXPECT_TRUE(line.isInPlane(planeAtHeight(1.0)));
    EXPECT_FALSE(line.touchesPlane(planeAtHeight(0.0)));
    KzVector3D min(9.0, 9.0, 9.0), max(-9.0, -9.0, -9.0);
    line.updateMinMax(&min, &max, KzMatrix44::getId());
    EXPECT_EQ(up, min);
    EXPECT_EQ(up, max);
    const VarnelStraight whole(origin, up);
    const KzVector3D besideTheMiddle(1.0, 0.0, 0.5);
    double value = 5.0;
    EXPECT_FALSE(line.distance(besideTheMiddle, -east, KzMatrix44::getId(), value));
    EXPECT_EQ(5.0, value);
    EXPECT_TRUE(whole.distance(besideTheMiddle, -east, KzMatrix44::getId(), value));
    EXPECT_EQ(0, line.checkPointOn(east, value));
    EXPECT_EQ(0, line == whole);
    EXPECT_EQ(0, whole == line);
    EXPECT_FALSE(line.hasSamePoints(&whole));
    EXPECT_FALSE(line.isConnected(VarnelStraight(east, north)));
    EXPECT_EQ(KzVector3D(), line.getBase(true, true, up).getVector(0));
    const VarnelStraight copy(line);
    EXPECT_EQ(up, copy.getEndVec());
    line.swap();
    EXPECT_EQ(up, line.getStartVec());
    EXPECT_EQ(nullptr, line.getEnd());
    EXPECT_EQ(KzVector3D(), line.getEndVec());
    EXPECT_EQ(0.0, line.getLength());
    EXPECT_EQ(KzVector3D(), line.getDir());
    EXPECT_FALSE(line.distance(besideTheMiddle, -east, KzMatrix44::getId(), value));
}

TEST(VarnelStraight, TheStationOfAMiddlePointIsOneHalfWhateverTheLength) {
    for (const double length : {1e-3, 1.0, 7.0, 1e6}) {
        SCOPED_TRACE(length);
        const KzVector3D start(2.0, 3.0, 4.0);
        const VarnelStraight line(start, start + KzVector3D(length, 2.0 * length, -length));
        double xi = -1.0;
        EXPECT_EQ(1, line.checkPointOn(line.getCoor(0.5), xi));
        EXPECT_NEAR(0.5, xi, 1e-9);
    }
}

TEST(VarnelStraight, APlaceBehindTheStartCountsAsItsMirrorImage) {
    const VarnelStraight line(origin, KzVector3D(2.0, 0.0, 0.0));
    double xi = -1.0;
    EXPECT_EQ(1, line.checkPointOn(KzVector3D(-1.0, 0.0, 0.0), xi));
    EXPECT_EQ(0.5, xi);
    EXPECT_EQ(0, line.checkPointOn(KzVector3D(-3.0, 0.0, 0.0), xi));
    EXPECT_EQ(1.5, xi);
}

TEST(VarnelStraight, APlaceBeyondTheEndIsNotOnTheLineButHasAStation) {
    const VarnelStraight line(origin, KzVector3D(2.0, 0.0, 0.0));
    double xi = -1.0;
    EXPECT_EQ(0, line.checkPointOn(KzVector3D(3.0, 0.0, 0.0), xi));
    EXPECT_EQ(1.5, xi);
    EXPECT_EQ(0, line.checkPointOn(KzVector3D(2.0 + 1e-9, 0.0, 0.0), xi));
    EXPECT_EQ(1, line.checkPointOn(KzVector3D(2.0, 0.0, 0.0), xi));
    EXPECT_EQ(1.0, xi);
    EXPECT_EQ(1, line.checkPointOn(origin, xi));
    EXPECT_EQ(0.0, xi);
}

TEST(VarnelStraight, APlaceBesideTheLineLeavesTheStationAlone) {
    const VarnelStraight line(origin, KzVector3D(2.0, 0.0, 0.0));
    double xi = -1.0;
    EXPECT_EQ(0, line.checkPointOn(KzVector3D(1.0, 0.1, 0.0), xi));
    EXPECT_EQ(-1.0, xi);
    EXPECT_EQ(0, line.checkPointOn(KzVector3D(1.0, 1.01e-4, 0.0), xi));
    EXPECT_EQ(1, line.checkPointOn(KzVector3D(1.0, 0.99e-4, 0.0), xi));
}

TEST(VarnelStraight, NothingLiesOnALineWithoutLength) {
    const VarnelStraight line(east, east);
    double xi = -1.0;
    EXPECT_EQ(0, line.checkPointOn(north, xi));
    EXPECT_EQ(0, line.checkPointOn(east, xi));
}

TEST(VarnelStraight, SwapExchangesThePointsAndLeavesTheStations) {
    VarnelStraight line(origin, east);
    line.addXi(0.1);
    line.addXi(0.3);
    VarnelPoint *start = line.getStart();
    VarnelPoint *end = line.getEnd();
    line.setChanged(false);
    line.swap();
    EXPECT_EQ(end, line.getStart());
    EXPECT_EQ(start, line.getEnd());
    EXPECT_EQ(0.1, line.xiToPosition(0));
    EXPECT_EQ(0.3, line.xiToPosition(1));
    EXPECT_FALSE(line.getChanged());
}

TEST(VarnelStraight, LiesInAPlaneWithBothPointsAndTouchesItWithOne) {
    const KzMatrix44 plane = KzMatrix44::getId();
    const KzVector3D low(1.0, 1.0, 0.0), rim(1.0, 1.0, 0.01), high(1.0, 1.0, 2.0);
    EXPECT_TRUE(VarnelStraight(origin, low).isInPlane(plane));
    EXPECT_FALSE(VarnelStraight(origin, rim).isInPlane(plane));
    EXPECT_FALSE(VarnelStraight(rim, origin).isInPlane(plane));
    EXPECT_TRUE(VarnelStraight(origin, high).touchesPlane(plane));
    EXPECT_TRUE(VarnelStraight(high, origin).touchesPlane(plane));
    EXPECT_FALSE(VarnelStraight(high, rim).touchesPlane(plane));
    // A line that crosses the plane between its points does not touch it.
    EXPECT_FALSE(VarnelStraight(KzVector3D(0.0, 0.0, -1.0), high).touchesPlane(plane));
}

TEST(VarnelStraight, WidensTheBoxByBothPoints) {
    KzVector3D min, max;
    VarnelStraight(KzVector3D(-1.0, 4.0, 0.0), KzVector3D(2.0, -3.0, 1.0))
        .updateMinMax(&min, &max, planeAtHeight(5.0));
    EXPECT_EQ(KzVector3D(-1.0, -3.0, 0.0), min);
    EXPECT_EQ(KzVector3D(2.0, 4.0, 6.0), max);
}

TEST(VarnelStraight, EqualityForgetsTheDirectionOnly) {
    const VarnelStraight line(origin, east);
    const VarnelStraight same(origin, east), reversed(east, origin), other(origin, north);
    const VarnelLine &itself = line;
    EXPECT_EQ(1, line == itself);
    EXPECT_EQ(1, line == same);
    EXPECT_EQ(1, line == reversed);
    EXPECT_EQ(0, line == other);
    EXPECT_EQ(0, line != same);
    EXPECT_EQ(0, line != reversed);
    EXPECT_EQ(1, line != other);
    EXPECT_TRUE(line.hasSamePoints(&line));
    EXPECT_TRUE(line.hasSamePoints(&reversed));
    EXPECT_FALSE(line.hasSamePoints(&other));
    EXPECT_FALSE(line.hasSamePoints(nullptr));
}

TEST(VarnelStraight, NeverEqualsAnArc) {
    const VarnelStraight line(east, north);
    const VarnelCircle arc(origin, east, north);
    EXPECT_EQ(0, line == arc);
    EXPECT_EQ(0, arc == line);
    EXPECT_EQ(1, line != arc);
    EXPECT_EQ(1, arc != line);
    EXPECT_FALSE(line.hasSamePoints(&arc));
    EXPECT_FALSE(arc.hasSamePoints(&line));
}

TEST(VarnelStraight, AsksItsPointsThroughTheirVirtualOperations) {
    const KzMatrix44 plane = KzMatrix44::getId();
    auto *start = new varnel::StubbornPoint(origin);
    auto *end = new varnel::StubbornPoint(east);
    VarnelStraight line(start, end);
    EXPECT_FALSE(line.touchesPlane(plane));
    end->inPlane = true;
    EXPECT_TRUE(line.touchesPlane(planeAtHeight(9.0)));
    EXPECT_FALSE(line.isInPlane(plane));
    start->inPlane = true;
    EXPECT_TRUE(line.isInPlane(planeAtHeight(9.0)));
    KzVector3D min, max;
    line.updateMinMax(&min, &max, plane);
    EXPECT_EQ(1, start->boxes);
    EXPECT_EQ(1, end->boxes);
    line.setChanged(false);
    EXPECT_FALSE(line.getChanged());
    for (varnel::StubbornPoint *point : {start, end}) {
        point->changed = true;
        EXPECT_TRUE(line.getChanged());
        point->changed = false;
    }
}

TEST(VarnelStraight, EqualityDoesNotDependOnWhatAHostCallsTheSamePoints) {
    class Lonely : public VarnelStraight {
      public:
        using VarnelStraight::VarnelStraight;
        bool hasSamePoints(const VarnelLine *) const override { return false; }
    };
    EXPECT_EQ(1, Lonely(origin, east) == VarnelStraight(east, origin));
}

TEST(VarnelStraight, InequalityAsksTheArgument) {
    class Odd : public VarnelStraight {
      public:
        using VarnelStraight::VarnelStraight;
        int operator==(const VarnelLine &) const override { return 1; }
    };
    const VarnelStraight line(origin, east);
    const Odd odd(north, up);
    EXPECT_EQ(0, line != odd);
    EXPECT_EQ(1, odd != line);
}

TEST(VarnelStraight, MeasuresInMultiplesOfTheDirection) {
    const VarnelStraight wall(KzVector3D(2.0, -1.0, 0.0), KzVector3D(2.0, 1.0, 0.0));
    const KzMatrix44 plane = KzMatrix44::getId();
    double result = 0.0;
    EXPECT_TRUE(wall.distance(origin, east, plane, result));
    EXPECT_DOUBLE_EQ(2.0, result);
    EXPECT_TRUE(wall.distance(origin, KzVector3D(4.0, 0.0, 0.0), plane, result));
    EXPECT_DOUBLE_EQ(0.5, result);
    EXPECT_TRUE(wall.distance(origin, KzVector3D(-1.0, 0.0, 0.0), plane, result));
    EXPECT_DOUBLE_EQ(-2.0, result);
    EXPECT_TRUE(wall.distance(KzVector3D(0.0, 1.0, 0.0), east, plane, result))
        << "the end belongs to the line";
    EXPECT_TRUE(wall.distance(KzVector3D(0.0, -1.0, 0.0), east, plane, result)) << "so does the start";
}

TEST(VarnelStraight, AMissLeavesTheResultAlone) {
    const VarnelStraight wall(KzVector3D(2.0, -1.0, 0.0), KzVector3D(2.0, 1.0, 0.0));
    const KzMatrix44 plane = KzMatrix44::getId();
    double result = 42.0;
    EXPECT_FALSE(wall.distance(KzVector3D(0.0, 1.001, 0.0), east, plane, result)) << "past the end";
    EXPECT_FALSE(wall.distance(KzVector3D(0.0, -1.001, 0.0), east, plane, result)) << "before the start";
    EXPECT_FALSE(wall.distance(origin, north, plane, result)) << "parallel";
    EXPECT_FALSE(wall.distance(up, east, plane, result)) << "skew";
    EXPECT_FALSE(VarnelStraight(east, east).distance(origin, east, plane, result)) << "no length";
    EXPECT_EQ(42.0, result);
}

TEST(VarnelStraight, HasALocalBaseOnlyIfBothFlagsAreSet) {
    VarnelStraight line(KzVector3D(5.0, 5.0, 5.0), KzVector3D(5.0, 8.0, 5.0));
    for (const auto &[local, reference] : {std::pair(false, false), {true, false}, {false, true}}) {
        const KzMatrix44 base = line.getBase(local, reference, up);
        EXPECT_EQ(east, base.getVector(0));
        EXPECT_EQ(north, base.getVector(1));
        EXPECT_EQ(up, base.getVector(2));
    }
    const KzMatrix44 base = line.getBase(true, true, KzVector3D(0.0, 0.0, 4.0));
    EXPECT_EQ(north, base.getVector(0));
    EXPECT_EQ(KzVector3D(-1.0, 0.0, 0.0), base.getVector(1));
    EXPECT_EQ(up, base.getVector(2));
    EXPECT_EQ(origin, base.getVector(3)) << "the frame is not placed at the line";
}

TEST(VarnelStraight, AReferenceAlongTheLineGivesGlobalY) {
    VarnelStraight line(origin, KzVector3D(0.0, 0.0, 3.0));
    const KzMatrix44 base = line.getBase(true, true, up);
    EXPECT_EQ(up, base.getVector(0));
    EXPECT_EQ(north, base.getVector(1));
    EXPECT_EQ(KzVector3D(-1.0, 0.0, 0.0), base.getVector(2));
    const KzMatrix44 flat = VarnelStraight(origin, north).getBase(true, true, north);
    EXPECT_EQ(north, flat.getVector(1));
    EXPECT_EQ(KzVector3D(), flat.getVector(2));
}

TEST(VarnelStraight, TheAxisOfTheLargestSpanIsChosenBySignedComponents) {
    const struct {
        KzVector3D direction;
        double start, end, other;
    } rows[] = {
        {{3.0, 1.0, 1.0}, 10.0, 13.0, 1.0},   {{1.0, 3.0, 1.0}, 20.0, 23.0, 2.0},
        {{1.0, 1.0, 3.0}, 30.0, 33.0, 3.0},   {{1.0, 1.0, 1.0}, 10.0, 11.0, 1.0},
        {{1.0, 2.0, 2.0}, 20.0, 22.0, 2.0},   {{2.0, 1.0, 2.0}, 10.0, 12.0, 1.0},
        {{-9.0, 1.0, 0.5}, 20.0, 21.0, 2.0},  // the long span runs against its axis
        {{-1.0, -2.0, -2.0}, 10.0, 9.0, 1.0},
    };
    const KzVector3D start(10.0, 20.0, 30.0), other(1.0, 2.0, 3.0);
    for (const auto &row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.direction));
        const VarnelStraight line(start, start + row.direction);
        double span[2] = {0.0, 0.0};
        double value = 0.0;
        VarnelStraightInspector::maxSpan(line, span, &other, &value);
        EXPECT_EQ(row.start, span[0]);
        EXPECT_EQ(row.end, span[1]);
        EXPECT_EQ(row.other, value);
        VarnelStraightInspector::maxSpan(line, span, nullptr, &value);
        EXPECT_EQ(row.other, value);
    }
}

TEST(VarnelStraight, ACopyHasPointsOfItsOwnWithoutNumbersAndTheDivision) {
    VarnelStraight source(origin, east);
    source.getStart()->setNumber(3);
    source.setNumberOfParts(5);
    source.setChanged(false);
    const VarnelStraight copy(source);
    const std::unique_ptr<VarnelLine> clone(source.clone());
    for (const VarnelLine *made :
         {static_cast<const VarnelLine *>(&copy), static_cast<const VarnelLine *>(clone.get())}) {
        EXPECT_EQ(1, *made == source);
        EXPECT_NE(source.getStart(), made->getStart());
        EXPECT_NE(source.getEnd(), made->getEnd());
        EXPECT_EQ(0, made->getStart()->getNumber());
        EXPECT_EQ(5, made->getNumberOfParts());
        EXPECT_TRUE(made->getChanged());
    }
    source.setStart(up);
    EXPECT_EQ(origin, copy.getStartVec());
}

TEST(VarnelStraight, VirtualAssignmentMovesItsOwnPointsAndMarksAChange) {
    VarnelStraight target(origin, east);
    VarnelStraight follower(target, new VarnelPoint(up));
    VarnelPoint *start = target.getStart();
    VarnelPoint *end = target.getEnd();
    end->setNumber(6);
    target.setNumberOfParts(2);
    target.setChanged(false);
    follower.setChanged(false);
    VarnelStraight source(north, KzVector3D(7.0, 7.0, 0.0));
    VarnelLine &line = target;
    line = source;
    EXPECT_EQ(start, target.getStart());
    EXPECT_EQ(end, target.getEnd());
    EXPECT_EQ(6, end->getNumber());
    EXPECT_EQ(north, target.getStartVec());
    EXPECT_EQ(KzVector3D(7.0, 7.0, 0.0), follower.getStartVec());
    EXPECT_EQ(0, target.getNumberOfParts()) << "the source has no division";
    EXPECT_TRUE(target.getChanged());
    EXPECT_FALSE(end->getChanged()) << "points take the place without a mark";
    EXPECT_FALSE(follower.getChanged());
    const VarnelLine &itself = target;
    line = itself;
    EXPECT_EQ(1, target == source);
}

TEST(VarnelStraight, AssignmentFromAnArcThrowsAndChangesNothing) {
    VarnelStraight target(origin, east);
    target.setNumberOfParts(3);
    target.setChanged(false);
    VarnelLine &line = target;
    const VarnelCircle arc(origin, east, north);
    EXPECT_THROW(line = arc, std::bad_cast);
    EXPECT_EQ(east, target.getEndVec());
    EXPECT_EQ(3, target.getNumberOfParts());
    EXPECT_FALSE(target.getChanged());
}

TEST(VarnelStraight, AssignmentBetweenStraightsSharesThePointsAndFreesEachOnce) {
    auto source = std::make_unique<VarnelStraight>(new CountedPoint(origin), new CountedPoint(east));
    source->setNumberOfParts(8);
    source->setChanged(false);
    {
        VarnelStraight target(new CountedPoint(north), new CountedPoint(up));
        target = *source;
        EXPECT_EQ(2, CountedPoint::alive);
        EXPECT_EQ(source->getStart(), target.getStart());
        EXPECT_EQ(source->getEnd(), target.getEnd());
        EXPECT_EQ(8, target.getNumberOfParts());
        EXPECT_FALSE(target.getChanged());
        const VarnelStraight &itself = target;
        target = itself;
        EXPECT_EQ(east, target.getEndVec());
        source.reset();
        EXPECT_EQ(2, CountedPoint::alive);
        EXPECT_EQ(east, target.getEndVec());
    }
    EXPECT_EQ(0, CountedPoint::alive);
}

TEST(VarnelStraight, VisitsAsAStraight) {
    class Visitor : public VarnelLineVisitor {
      public:
        int visit(VarnelCircle *) override { return 1; }
        int visit(VarnelStraight *line) override {
            straight = line;
            return 2;
        }
        VarnelStraight *straight = nullptr;
    } visitor;
    VarnelStraight line(origin, east);
    VarnelLine &base = line;
    EXPECT_EQ(2, base.getVisited(&visitor));
    EXPECT_EQ(&line, visitor.straight);
    EXPECT_EQ(0, base.getVisited(static_cast<VarnelLineVisitor *>(nullptr)));
}

}  // namespace
