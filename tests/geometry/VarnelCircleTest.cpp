#include "varnel/geometry/VarnelCircle.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <typeinfo>
#include <vector>

#include "tests/support/CountedPoint.h"
#include "tests/support/Places.h"
#include "tests/support/StubbornPoint.h"
#include "varnel/contracts/KzMath.h"
#include "varnel/geometry/VarnelLineVisitor.h"
#include "varnel/geometry/VarnelStraight.h"

struct VarnelCircleInspector {
    static bool checkInvariant(const VarnelCircle &arc) { return arc.checkInvariant(); }
};

namespace {

using varnel::CountedPoint;
using varnel::isNear;
using varnel::planeAtHeight;

const KzVector3D origin;
const KzVector3D east(1.0, 0.0, 0.0);
const KzVector3D west(-1.0, 0.0, 0.0);
const KzVector3D north(0.0, 1.0, 0.0);
const KzVector3D south(0.0, -1.0, 0.0);
const KzVector3D up(0.0, 0.0, 1.0);

VarnelCircle quarter() {
    return {origin, east, north};
}

/// Place on the unit circle at an angle in degrees.
KzVector3D at(double degrees, double radius = 1.0) {
    const double angle = degrees * KzMath::Pi_180;
    return {radius * std::cos(angle), radius * std::sin(angle), 0.0};
}

TEST(VarnelCircle, IsBornChangedFromCentreStartAndEnd) {
    const VarnelCircle arc = quarter();
    EXPECT_TRUE(arc.getChanged());
    EXPECT_EQ(origin, arc.getCenterVec());
    EXPECT_EQ(east, arc.getStartVec());
    EXPECT_EQ(north, arc.getEndVec());
    EXPECT_EQ(arc.getStartVec(), arc.getStart()->getCoor());
    EXPECT_EQ(arc.getEndVec(), arc.getEnd()->getCoor());
    EXPECT_EQ(0, arc.getNumberOfParts());
    EXPECT_EQ(1.0, arc.getRadius());
    EXPECT_EQ(up, arc.getNormal());
    EXPECT_DOUBLE_EQ(KzMath::Pi / 2.0, arc.getPhi());
    EXPECT_DOUBLE_EQ(KzMath::Pi / 2.0, arc.getLength());
}

TEST(VarnelCircle, TheRadiusIsThatOfTheStartWhereverTheEndLies) {
    const VarnelCircle arc(origin, KzVector3D(2.0, 0.0, 0.0), KzVector3D(0.0, 5.0, 0.0));
    EXPECT_EQ(2.0, arc.getRadius());
    EXPECT_DOUBLE_EQ(KzMath::Pi, arc.getLength());
    EXPECT_FALSE(VarnelCircleInspector::checkInvariant(arc));
    EXPECT_TRUE(VarnelCircleInspector::checkInvariant(quarter()));
    EXPECT_FALSE(VarnelCircleInspector::checkInvariant(VarnelCircle(origin, east, at(90.0, 1.0 + 1e-15))));
    const KzVector3D centre(5.0, 6.0, 7.0);
    EXPECT_TRUE(VarnelCircleInspector::checkInvariant(VarnelCircle(centre, centre + east, centre + up)));
}

TEST(VarnelCircle, RunsFromItsStartToItsEnd) {
    const KzVector3D centre(3.0, -2.0, 5.0);
    const VarnelCircle arcs[] = {
        quarter(), VarnelCircle(origin, north, east), VarnelCircle(origin, at(20.0, 3.0), at(170.0, 3.0)),
        VarnelCircle(centre, centre + KzVector3D(0.0, 0.0, 2.0), centre + 2.0 * east),
        VarnelCircle(origin, east, west)};
    for (const VarnelCircle &arc : arcs) {
        SCOPED_TRACE(testing::PrintToString(arc.getCoors()));
        EXPECT_TRUE(isNear(arc.getStartVec(), arc.getCoor(0.0)));
        EXPECT_TRUE(isNear(arc.getEndVec(), arc.getCoor(1.0), 1e-9));
        const KzVector3D middle = arc.getCoor(0.5);
        EXPECT_NEAR(arc.getRadius(), middle.distanceTo(arc.getCenterVec()), 1e-9);
        EXPECT_NEAR(arc.getStartVec().distanceTo(middle), arc.getEndVec().distanceTo(middle), 1e-9);
        double xi = 0.0;
        EXPECT_EQ(1, arc.checkPointOn(middle, xi));
        EXPECT_NEAR(0.5, xi, 1e-9);
    }
}

TEST(VarnelCircle, StationsBeyondTheEndsRunOnAroundTheCircle) {
    const VarnelCircle arc = quarter();
    EXPECT_TRUE(isNear(west, arc.getCoor(2.0)));
    EXPECT_TRUE(isNear(south, arc.getCoor(-1.0)));
    EXPECT_TRUE(isNear(east, arc.getCoor(4.0)));
}

TEST(VarnelCircle, TheNormalTurnsWithTheDirectionAndIsNullForHalfACircle) {
    VarnelCircle arc = quarter();
    arc.swap();
    EXPECT_EQ(KzVector3D(0.0, 0.0, -1.0), arc.getNormal());
    EXPECT_EQ(origin, arc.getCenterVec());
    EXPECT_EQ(KzVector3D(), VarnelCircle(origin, east, west).getNormal());
    EXPECT_EQ(KzVector3D(), VarnelCircle(origin, east, east).getNormal());
    EXPECT_EQ(KzVector3D(), VarnelCircle(origin, origin, origin).getNormal());
}

TEST(VarnelCircle, HalfACircleWithRoundedEndsHasNoNormalEither) {
    const KzVector3D centre(0.1, 0.2, 0.3);
    for (const double radius : {1e-3, 1.0, 1e3}) {
        SCOPED_TRACE(radius);
        const KzVector3D toStart = KzVector3D(0.3, 0.7, -0.9) * radius;
        const VarnelCircle arc(centre, centre + toStart, centre - toStart);
        EXPECT_EQ(KzVector3D(), arc.getNormal());
        EXPECT_TRUE(isNear(arc.getEndVec(), arc.getCoor(1.0), 1e-9 * radius));
        const auto almostHalf = [radius](double sine) {
            return VarnelCircle(origin, radius * east, radius * (west + sine * north));
        };
        EXPECT_EQ(KzVector3D(), almostHalf(0.99e-12).getNormal());
        EXPECT_EQ(up, almostHalf(1.01e-12).getNormal());
    }
}

TEST(VarnelCircle, PlacesFromTheStartToTheEndAreOnTheArcAndOthersAreNot) {
    const VarnelCircle arc = quarter();
    const struct {
        double station;
        int on;
    } rows[] = {{0.0, 1}, {0.05, 1}, {0.95, 1}, {1.0, 1}, {1.001, 0}, {1.5, 0}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.station);
        const KzVector3D place = row.station == 1.0 ? arc.getEndVec() : at(90.0 * row.station);
        double xi = -7.0;
        EXPECT_EQ(row.on, arc.checkPointOn(place, xi));
        EXPECT_NEAR(row.station, xi, 1e-9);
    }
}

TEST(VarnelCircle, APlaceOffTheCircleLeavesTheStationAloneWhateverItsAngle) {
    const VarnelCircle arc = quarter();
    for (const double degrees : {0.0, 45.0, 90.0, 200.0}) {
        SCOPED_TRACE(degrees);
        double xi = -7.0;
        EXPECT_EQ(0, arc.checkPointOn(at(degrees, 1.0 + 2e-7), xi));
        EXPECT_EQ(0, arc.checkPointOn(at(degrees, 1.0 - 2e-7), xi));
        EXPECT_EQ(-7.0, xi);
    }
}

TEST(VarnelCircle, APlaceOneTenMillionthOffTheCircleIsOnIt) {
    const VarnelCircle arc = quarter();
    double xi = -7.0;
    EXPECT_EQ(1, arc.checkPointOn(at(45.0, 1.0 + 0.9e-7), xi));
    EXPECT_NEAR(0.5, xi, 1e-6);
    EXPECT_EQ(1, arc.checkPointOn(at(45.0, 1.0 - 0.9e-7), xi));
    EXPECT_EQ(0, arc.checkPointOn(at(45.0, 1.0 + 1.1e-7), xi));
    const VarnelCircle tiny(origin, 1e-7 * east, 1e-7 * north);
    EXPECT_EQ(1, tiny.checkPointOn(origin, xi)) << "exactly one ten-millionth off";
}

TEST(VarnelCircle, APlaceBeforeTheStartCountsAsItsMirrorImage) {
    const VarnelCircle arc = quarter();
    double xi = -7.0;
    EXPECT_EQ(1, arc.checkPointOn(at(-45.0), xi));
    EXPECT_NEAR(0.5, xi, 1e-9);
    EXPECT_EQ(0, arc.checkPointOn(at(135.0), xi));
    EXPECT_NEAR(1.5, xi, 1e-9);
}

TEST(VarnelCircle, AnArcWithoutExtentIsHarmless) {
    const VarnelCircle none(east, east, east);
    double xi = 0.0;
    EXPECT_EQ(0.0, none.getRadius());
    EXPECT_EQ(0.0, none.getLength());
    EXPECT_EQ(0, none.checkPointOn(east, xi));
    EXPECT_TRUE(isNear(east, none.getCoor(0.5)));
}

TEST(VarnelCircle, ItsDefiningCoordinatesAreCentreStartAndEnd) {
    VarnelCircle arc = quarter();
    EXPECT_EQ((std::vector<KzVector3D>{origin, east, north}), arc.getCoors());
    arc.setChanged(false);
    arc.setCoors({up, west, south, east});
    EXPECT_EQ((std::vector<KzVector3D>{up, west, south}), arc.getCoors());
    EXPECT_TRUE(arc.getChanged());
    arc.setCoors({east, east});
    EXPECT_EQ((std::vector<KzVector3D>{up, west, south}), arc.getCoors());
}

TEST(VarnelCircle, MovingAnyOfItsPointsChangesIt) {
    VarnelCircle arc = quarter();
    const auto moves = {&VarnelCircle::setStart, &VarnelCircle::setEnd, &VarnelCircle::setCenter};
    for (const auto move : moves) {
        arc.setChanged(false);
        ASSERT_FALSE(arc.getChanged());
        (arc.*move)(up);
        EXPECT_TRUE(arc.getChanged());
    }
    EXPECT_EQ((std::vector<KzVector3D>{up, up, up}), arc.getCoors());
}

TEST(VarnelCircle, LiesInAPlaneWithItsCentreToo) {
    EXPECT_TRUE(quarter().isInPlane(KzMatrix44::getId()));
    EXPECT_FALSE(VarnelCircle(KzVector3D(0.0, 0.0, 0.01), east, north).isInPlane(KzMatrix44::getId()));
    EXPECT_FALSE(VarnelCircle(origin, up, north).isInPlane(KzMatrix44::getId()));
    EXPECT_FALSE(VarnelCircle(origin, east, up).isInPlane(KzMatrix44::getId()));
}

TEST(VarnelCircle, AsksItsPointsThroughTheirVirtualOperations) {
    const KzMatrix44 plane = KzMatrix44::getId();
    VarnelCircle arc = quarter();
    const std::unique_ptr<VarnelPoint> former(arc.getStart());
    auto *start = new varnel::StubbornPoint(up);
    arc.setP1(start);
    EXPECT_FALSE(arc.isInPlane(plane));
    start->inPlane = true;
    EXPECT_TRUE(arc.isInPlane(plane));
    KzVector3D min, max;
    arc.updateMinMax(&min, &max, plane);
    EXPECT_EQ(1, start->boxes);
    EXPECT_EQ(KzVector3D(0.0, 1.0, 0.0), max) << "the end alone has widened the box";
    arc.setChanged(false);
    start->changed = true;
    EXPECT_TRUE(arc.getChanged());
}

TEST(VarnelCircle, AnArcInThePlaneDoesNotTouchIt) {
    EXPECT_FALSE(quarter().touchesPlane(KzMatrix44::getId()));
}

TEST(VarnelCircle, TouchesAPlaneOnlyAtExactlyItsRadius) {
    const struct {
        double height;
        bool touches;
    } rows[] = {{1.0, true},  {-1.0, true}, {1.0 + 1e-12, false}, {1.0 - 1e-12, false},
                {0.5, false}, {0.0, false}, {2.0, false}};
    const VarnelCircle arc(origin, up, east);
    for (const auto &row : rows) {
        SCOPED_TRACE(row.height);
        EXPECT_EQ(row.touches, arc.touchesPlane(planeAtHeight(row.height)));
    }
    KzMatrix44 flat = KzMatrix44::getId();
    flat.setVector(2, KzVector3D());
    EXPECT_FALSE(arc.touchesPlane(flat));
}

TEST(VarnelCircle, TheBulgeAndTheCentreDoNotWidenTheBox) {
    KzVector3D min(9.0, 9.0, 9.0), max(-9.0, -9.0, -9.0);
    VarnelCircle(KzVector3D(0.0, -5.0, 0.0), at(45.0), at(135.0))
        .updateMinMax(&min, &max, planeAtHeight(2.0));
    EXPECT_TRUE(isNear(at(135.0) + 2.0 * up, min));
    EXPECT_TRUE(isNear(at(45.0) + 2.0 * up, max, 1e-12));
}

TEST(VarnelCircle, IsNeverHitAndHasNoLocalBase) {
    VarnelCircle arc = quarter();
    double result = 42.0;
    EXPECT_FALSE(arc.distance(origin, at(45.0), KzMatrix44::getId(), result));
    EXPECT_EQ(42.0, result);
    const KzMatrix44 base = arc.getBase(true, true, KzVector3D(1.0, 1.0, 0.0));
    EXPECT_EQ(east, base.getVector(0));
    EXPECT_EQ(north, base.getVector(1));
    EXPECT_EQ(up, base.getVector(2));
    EXPECT_EQ(origin, base.getVector(3));
}

TEST(VarnelCircle, EqualityNeedsTheCentreAndForgetsTheDirection) {
    const VarnelCircle arc = quarter();
    const VarnelLine &itself = arc;
    EXPECT_EQ(1, arc == itself);
    EXPECT_EQ(1, arc == quarter());
    EXPECT_EQ(1, arc == VarnelCircle(origin, north, east));
    EXPECT_EQ(0, arc == VarnelCircle(KzVector3D(1.0, 1.0, 0.0), east, north));
    EXPECT_EQ(0, arc == VarnelCircle(origin, east, south));
    EXPECT_EQ(0, arc != quarter());
    EXPECT_EQ(1, arc != VarnelCircle(origin, east, south));
}

TEST(VarnelCircle, ArcsOfOneCentreNeverHaveTheSamePoints) {
    const VarnelCircle arc = quarter();
    const VarnelCircle copy(arc);
    const VarnelCircle mirrored(KzVector3D(1.0, 1.0, 0.0), north, east);
    EXPECT_EQ(1, arc == copy);
    EXPECT_FALSE(arc.hasSamePoints(&copy));
    EXPECT_FALSE(arc.hasSamePoints(&arc));
    EXPECT_TRUE(arc.hasSamePoints(&mirrored));
    const VarnelCircle elsewhere(KzVector3D(1.0, 1.0, 0.0), north, west);
    EXPECT_FALSE(arc.hasSamePoints(&elsewhere));
    EXPECT_FALSE(arc.hasSamePoints(nullptr));
}

TEST(VarnelCircle, ACopyHasPointsOfItsOwnAndNoDivision) {
    VarnelCircle source = quarter();
    source.setNumberOfParts(5);
    source.getStart()->setNumber(3);
    source.setChanged(false);
    const VarnelCircle copy(source);
    const std::unique_ptr<VarnelLine> clone(source.clone());
    for (const VarnelLine *made :
         {static_cast<const VarnelLine *>(&copy), static_cast<const VarnelLine *>(clone.get())}) {
        EXPECT_EQ(1, *made == source);
        EXPECT_NE(source.getStart(), made->getStart());
        EXPECT_EQ(0, made->getStart()->getNumber());
        EXPECT_EQ(0, made->getNumberOfParts());
        EXPECT_TRUE(made->getChanged());
    }
    source.setCenter(up);
    EXPECT_EQ(origin, copy.getCenterVec());
}

TEST(VarnelCircle, VirtualAssignmentMovesItsOwnPointsAndKeepsItsDivision) {
    VarnelCircle target(up, up, up);
    VarnelPoint *start = target.getStart();
    target.setNumberOfParts(4);
    target.setChanged(false);
    VarnelCircle source = quarter();
    source.setNumberOfParts(9);
    VarnelLine &line = target;
    line = source;
    EXPECT_EQ(1, target == source);
    EXPECT_EQ(start, target.getStart());
    EXPECT_EQ(4, target.getNumberOfParts());
    EXPECT_TRUE(target.getChanged());
    EXPECT_FALSE(start->getChanged());
    const VarnelStraight straight(east, north);
    target.setChanged(false);
    EXPECT_THROW(line = straight, std::bad_cast);
    EXPECT_FALSE(target.getChanged());
}

TEST(VarnelCircle, AssignmentBetweenArcsSharesThePointsAndTakesTheDivision) {
    VarnelCircle target(up, up, up);
    {
        VarnelCircle source = quarter();
        source.setNumberOfParts(9);
        source.setChanged(false);
        target = source;
        EXPECT_EQ(source.getStart(), target.getStart());
        EXPECT_EQ(source.getEnd(), target.getEnd());
        EXPECT_EQ(9, target.getNumberOfParts());
        EXPECT_FALSE(target.getChanged());
        target.setCenter(west);
        EXPECT_EQ(west, source.getCenterVec());
        const VarnelCircle &itself = target;
        target = itself;
    }
    EXPECT_EQ(east, target.getStartVec());
    EXPECT_EQ(north, target.getEndVec());
    EXPECT_EQ(west, target.getCenterVec());
}

TEST(VarnelCircle, AnotherStartPointIsSharedAndFreedOnce) {
    {
        const VarnelStraight before(new CountedPoint(origin), new CountedPoint(east));
        VarnelCircle arc = quarter();
        const std::unique_ptr<VarnelPoint> former(arc.getStart());
        arc.setP1(before.getEnd());
        EXPECT_EQ(before.getEnd(), arc.getStart());
        EXPECT_EQ(east, former->getCoor());
    }
    EXPECT_EQ(0, CountedPoint::alive);
}

TEST(VarnelCircle, WithoutAStartPointEveryQuestionIsHarmless) {
    VarnelCircle arc = quarter();
    const std::unique_ptr<VarnelPoint> former(arc.getStart());
    arc.setP1(nullptr);
    EXPECT_EQ(0.0, arc.getRadius());
    EXPECT_EQ(0.0, arc.getLength());
    EXPECT_EQ(KzVector3D(), arc.getStartVec());
    EXPECT_EQ(KzVector3D(), arc.getNormal());
    arc.getCoor(0.5);
    double xi = 0.0;
    EXPECT_EQ(0, arc.checkPointOn(north, xi));
    arc.setCoors({origin, east, up});
    EXPECT_EQ(up, arc.getEndVec());
    arc.setChanged(false);
    EXPECT_FALSE(arc.getChanged());
    EXPECT_FALSE(arc.isInPlane(KzMatrix44::getId()));
    EXPECT_FALSE(arc.touchesPlane(planeAtHeight(1.0)));
    EXPECT_FALSE(arc.touchesPlane(KzMatrix44::getId()));
    KzVector3D min(9.0, 9.0, 9.0), max(-9.0, -9.0, -9.0);
    arc.updateMinMax(&min, &max, KzMatrix44::getId());
    EXPECT_EQ(up, min);
    EXPECT_EQ(0, arc == quarter());
    EXPECT_FALSE(arc.hasSamePoints(&arc));
    const VarnelCircle copy(arc);
    EXPECT_EQ(up, copy.getEndVec());
}

TEST(VarnelCircle, WithoutAStartOrAnEndAnArcHasNoLength) {
    const KzVector3D centre(5.0, 6.0, 7.0);
    VarnelCircle arc(centre, centre + east, centre + north);
    const std::unique_ptr<VarnelPoint> former(arc.getStart());
    arc.setP1(nullptr);
    EXPECT_EQ(0.0, arc.getLength());
    EXPECT_EQ(0.0, arc.getPhi());
    EXPECT_EQ(KzVector3D(), arc.getNormal());
    arc.swap();
    EXPECT_EQ(nullptr, arc.getEnd());
    EXPECT_EQ(1.0, arc.getRadius());
    EXPECT_EQ(0.0, arc.getPhi());
    EXPECT_EQ(0.0, arc.getLength());
    EXPECT_EQ(KzVector3D(), arc.getNormal());
    EXPECT_TRUE(isNear(arc.getStartVec(), arc.getCoor(0.5)));
}

TEST(VarnelCircle, VisitsAsACircle) {
    class Visitor : public VarnelLineVisitor {
      public:
        int visit(VarnelCircle *line) override {
            circle = line;
            return 1;
        }
        int visit(VarnelStraight *) override { return 2; }
        VarnelCircle *circle = nullptr;
    } visitor;
    VarnelCircle arc = quarter();
    VarnelLine &base = arc;
    EXPECT_EQ(1, base.getVisited(&visitor));
    EXPECT_EQ(&arc, visitor.circle);
    EXPECT_EQ(0, base.getVisited(static_cast<VarnelLineVisitor *>(nullptr)));
}

}  // namespace
