#include "varnel/geometry/VarnelArea.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <set>
#include <vector>

#include "tests/support/CountedPoint.h"
#include "tests/support/Places.h"
#include "tests/support/VirtualSlot.h"
#include "varnel/geometry/VarnelCircle.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/geometry/VarnelStraight.h"

namespace {

using varnel::CountedPoint;
using varnel::isNear;
using varnel::virtualSlot;

using Points = std::vector<KzVector3D>;

const KzVector3D p(0.0, 0.0, 0.0), q(2.0, 0.0, 0.0), r(2.0, 1.0, 0.0), s(0.0, 1.0, 0.0);
const KzVector3D east(1.0, 0.0, 0.0);

VarnelArea ring(const Points &points) {
    VarnelArea area;
    for (const KzVector3D &point : points) area.addVertex(point);
    return area;
}

Points starts(const VarnelArea &area) {
    Points places;
    for (const VarnelLine *line : area.getEdges()) places.push_back(line->getStartVec());
    return places;
}

void expectClosed(const VarnelArea &area) {
    const std::vector<VarnelLine *> edges = area.getEdges();
    for (std::size_t i = 0; i < edges.size(); ++i)
        EXPECT_EQ(edges[i]->getEnd(), edges[(i + 1) % edges.size()]->getStart()) << i;
}

TEST(VarnelArea, AppendsItsVirtualOperationsToThoseOfAHolder) {
    EXPECT_EQ(7, virtualSlot(&VarnelArea::addVertex));
    EXPECT_EQ(9, virtualSlot(&VarnelArea::getNumPoints));
    EXPECT_EQ(11, virtualSlot(&VarnelArea::isDegenerated));
    EXPECT_EQ(12, virtualSlot(&VarnelArea::clone));
    EXPECT_EQ(13, virtualSlot(&VarnelArea::operator=));
    EXPECT_EQ(14, virtualSlot(&VarnelArea::getArea));
    EXPECT_EQ(15, virtualSlot(&VarnelArea::checkPointOn));
    EXPECT_EQ(16, virtualSlot(&VarnelArea::checkRightHandedXY));
}

TEST(VarnelArea, TheSecondVertexMakesTwoLinesOutAndBack) {
    VarnelArea area;
    area.addVertex(p);
    EXPECT_EQ(0u, area.getNumLines());
    EXPECT_EQ(0u, area.getNumPoints());
    area.addVertex(q);
    ASSERT_EQ(2u, area.getNumLines());
    EXPECT_EQ(2u, area.getNumPoints());
    EXPECT_EQ((Points{p, q}), starts(area));
    expectClosed(area);
    EXPECT_EQ(0.0, area.getArea());
    EXPECT_TRUE(area.isDegenerated());
}

TEST(VarnelArea, TheClosingLineStaysTheSameObjectWithItsDivision) {
    VarnelArea area = ring({p, q});
    VarnelLine *closing = area.getLine(1);
    closing->setNumberOfParts(6);
    area.addVertex(r);
    ASSERT_EQ(3u, area.getNumLines());
    EXPECT_EQ(closing, area.getLine(2));
    expectClosed(area);
    area.setChanged(false);
    area.addVertex(s);
    ASSERT_EQ(4u, area.getNumLines());
    EXPECT_EQ(closing, area.getLine(3));
    EXPECT_EQ(6, closing->getNumberOfParts());
    EXPECT_EQ((Points{p, q, r, s}), starts(area));
    expectClosed(area);
    for (const VarnelLine *line : area.getEdges()) line->getStart()->setChanged(false);
    EXPECT_FALSE(closing->getChanged()) << "its own flag stays";
    EXPECT_TRUE(area.getLine(2)->getChanged()) << "a new line";
}

TEST(VarnelArea, AnAddedLineIsClosedByTheSecondVertex) {
    VarnelArea area;
    area.addLine(new VarnelStraight(p, q));
    area.addVertex(p);
    EXPECT_EQ(1u, area.getNumLines()) << "the first vertex is only remembered";
    area.addVertex(r);
    EXPECT_EQ((Points{p, q, r}), starts(area));
    expectClosed(area);
}

TEST(VarnelArea, AVertexBeforeALooseClosingLineFreesItsFormerStart) {
    {
        VarnelArea area;
        area.addLine(new VarnelStraight(new CountedPoint(p), new CountedPoint(q)));
        area.addLine(new VarnelStraight(new CountedPoint(q), new CountedPoint(p)));
        area.addVertex(p);
        area.addVertex(r);
        EXPECT_EQ((Points{p, q, r}), starts(area));
        EXPECT_EQ(3, CountedPoint::alive);
    }
    EXPECT_EQ(0, CountedPoint::alive);
}

TEST(VarnelArea, TheEdgesAreACopyOfTheListOfLines) {
    const VarnelArea area = ring({p, q, r});
    std::vector<VarnelLine *> edges = area.getEdges();
    ASSERT_EQ(3u, edges.size());
    EXPECT_EQ(area.getLine(1), edges[1]);
    edges.clear();
    EXPECT_EQ(3u, area.getNumLines());
}

TEST(VarnelArea, TheCoordinatesOfATriangleAreFourWithTheFirstOneTwice) {
    EXPECT_EQ((Points{p, q, r, p}), ring({p, q, r}).getCoordinatesOfPoints());
    EXPECT_TRUE(VarnelArea().getCoordinatesOfPoints().empty());
}

TEST(VarnelArea, TheAreaIsMeasuredInItsOwnPlaneWhateverTheDirection) {
    EXPECT_DOUBLE_EQ(2.0, ring({p, q, r, s}).getArea());
    EXPECT_DOUBLE_EQ(2.0, ring({s, r, q, p}).getArea());
    EXPECT_NEAR(2.0, ring({{5.0, 0.0, 0.0}, {5.0, 2.0, 0.0}, {5.0, 2.0, 1.0}, {5.0, 0.0, 1.0}}).getArea(),
                1e-12);
    const Points lShape{{0.0, 0.0, 0.0},  {1.0, 0.0, 0.0}, {1.0, -1.0, 0.0},
                        {2.0, -1.0, 0.0}, {2.0, 1.0, 0.0}, {0.0, 1.0, 0.0}};
    EXPECT_NEAR(3.0, ring(lShape).getArea(), 1e-12);
    EXPECT_FALSE(ring(lShape).isDegenerated());
    EXPECT_EQ(0.0, VarnelArea().getArea());
    VarnelArea one;
    one.addLine(new VarnelStraight(p, q));
    EXPECT_EQ(0.0, one.getArea());
}

TEST(VarnelArea, AnArcCountsByItsChord) {
    VarnelArea area;
    area.addLine(new VarnelCircle(KzVector3D(1.0, -1.0, 0.0), p, q));
    area.addLine(new VarnelStraight(q, r));
    area.addLine(new VarnelStraight(r, p));
    area.meltFirstAndLast();
    EXPECT_DOUBLE_EQ(1.0, area.getArea());
}

TEST(VarnelArea, TheCentreOfGravityIsThatOfTheAreaInSpace) {
    EXPECT_TRUE(isNear(KzVector3D(1.0, 0.5, 0.0), ring({p, q, r, s}).getCOG()));
    EXPECT_TRUE(isNear(KzVector3D(1.0, 0.5, 0.0), ring({s, r, q, p}).getCOG()));
    EXPECT_TRUE(isNear(KzVector3D(5.0, 1.0, 0.5),
                       ring({{5.0, 0.0, 0.0}, {5.0, 2.0, 0.0}, {5.0, 2.0, 1.0}, {5.0, 0.0, 1.0}}).getCOG()));
    EXPECT_TRUE(isNear(KzVector3D(4.0 / 3.0, 1.0 / 3.0, 0.0), ring({p, q, r}).getCOG()));
    EXPECT_EQ(KzVector3D(), VarnelArea().getCOG());
    // Two lines enclose nothing: the middle of them.
    EXPECT_TRUE(isNear(KzVector3D(1.0, 0.0, 0.0), ring({p, q}).getCOG()));
}

TEST(VarnelArea, APlaceIsOnTheAreaInsideAndUpToOneMillimetreAround) {
    const VarnelArea area = ring({p, q, r, s});
    const struct {
        double x, y;
        bool on;
    } rows[] = {{1.0, 0.5, true},        {0.0, 0.0, true},       {2.0, 0.5, true},
                {2.000999, 0.5, true},   {2.001001, 0.5, false}, {1.0, -0.000999, true},
                {1.0, -0.001001, false}, {-5.0, 0.5, false}};
    for (const auto &row : rows) {
        SCOPED_TRACE(testing::Message() << row.x << ' ' << row.y);
        EXPECT_EQ(row.on, area.checkPointOn(KzVector3D(row.x, row.y, 0.0)));
        EXPECT_EQ(row.on, area.checkPointOn(KzVector3D(row.x, row.y, 1000.0))) << "heights do not count";
    }
    EXPECT_FALSE(VarnelArea().checkPointOn(p));
}

TEST(VarnelArea, HeightsOfTheOutlineDoNotCountForAPlaceOnIt) {
    EXPECT_TRUE(ring({p, q, r + KzVector3D(0.0, 0.0, 7.0), s}).checkPointOn(KzVector3D(1.0, 0.5, -3.0)));
    const VarnelArea upright = ring({{0.0, 0.0, 0.0}, {2.0, 0.0, 0.0}, {2.0, 0.0, 3.0}, {0.0, 0.0, 3.0}});
    EXPECT_FALSE(upright.checkPointOn(KzVector3D(1.0, 0.1, 1.0)));
}

TEST(VarnelArea, HeightsThatAreNoNumbersDoNotCountForAPlaceOnItEither) {
    for (const double height :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
        SCOPED_TRACE(height);
        const VarnelArea area = ring({p, q, {2.0, 1.0, height}, s});
        EXPECT_TRUE(area.checkPointOn(KzVector3D(1.0, 0.5, height)));
        EXPECT_FALSE(area.checkPointOn(KzVector3D(3.0, 0.5, height)));
    }
}

TEST(VarnelArea, IsRightHandedIfItRunsAnticlockwiseSeenFromAbove) {
    EXPECT_TRUE(ring({p, q, r, s}).checkRightHandedXY());
    EXPECT_TRUE(ring({p, 1e-3 * q, 1e-3 * r, 1e-3 * s}).checkRightHandedXY()) << "however small";
    EXPECT_FALSE(ring({s, r, q, p}).checkRightHandedXY());
    EXPECT_FALSE(
        ring({{0.0, 0.0, 0.0}, {2.0, 0.0, 0.0}, {2.0, 0.0, 3.0}, {0.0, 0.0, 3.0}}).checkRightHandedXY());
    EXPECT_FALSE(VarnelArea().checkRightHandedXY());
}

TEST(VarnelArea, IsDegeneratedBelowTheSquaredToleranceHoweverLongItsEdges) {
    const struct {
        double area;
        bool degenerated;
    } rows[] = {{0.99e-8, true}, {1.01e-8, false}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.area);
        const double h = row.area;
        EXPECT_EQ(row.degenerated,
                  ring({{0.0, 0.0, 0.0}, {100.0, 0.0, 0.0}, {100.0, h / 100.0, 0.0}, {0.0, h / 100.0, 0.0}})
                      .isDegenerated());
    }
    EXPECT_FALSE(ring({p, q, r, s}).isDegenerated());
}

TEST(VarnelArea, IsDegeneratedIfItsFirstLineHasNoLengthAndNoOther) {
    EXPECT_TRUE(ring({p, p, q, r}).isDegenerated());
    EXPECT_FALSE(ring({p, q, q, r}).isDegenerated());
    EXPECT_FALSE(ring({p, q, r, p}).isDegenerated()) << "the closing line has no length";
}

TEST(VarnelArea, IsDegeneratedIfTwoLinesEndOnOnePoint) {
    VarnelArea odd = ring({p, q, r, {1.0, 2.0, 0.0}, s});
    EXPECT_FALSE(odd.isDegenerated());
    odd.swap();  // leaves the middle line as it was
    EXPECT_TRUE(odd.isDegenerated());
}

TEST(VarnelArea, AsksTheVirtualAreaWhetherItIsDegenerated) {
    class Hollow : public VarnelArea {
      public:
        double getArea() const override { return area; }
        double area = 0.0;
    } hollow;
    hollow.area = 1.0;
    EXPECT_FALSE(hollow.isDegenerated()) << "without lines none of them is zero";
    for (const KzVector3D &corner : {p, q, r, s}) hollow.addVertex(corner);
    EXPECT_FALSE(hollow.isDegenerated());
    hollow.area = 0.0;
    EXPECT_TRUE(hollow.isDegenerated());
    hollow.area = KzVector3D::getTolerance() * KzVector3D::getTolerance();
    EXPECT_FALSE(hollow.isDegenerated()) << "only below the squared tolerance";
}

TEST(VarnelArea, MeasuresToTheNearestEdgeByMagnitudeWithItsSign) {
    const VarnelArea area = ring({p, q, r, s});
    const KzMatrix44 plane = KzMatrix44::getId();
    double result = 0.0;
    EXPECT_TRUE(area.distance(KzVector3D(0.5, 0.5, 0.0), east, plane, result));
    EXPECT_DOUBLE_EQ(-0.5, result);
    EXPECT_TRUE(area.distance(KzVector3D(1.5, 0.5, 0.0), east, plane, result));
    EXPECT_DOUBLE_EQ(0.5, result);
    EXPECT_TRUE(area.distance(KzVector3D(-3.0, 0.5, 0.0), east, plane, result));
    EXPECT_DOUBLE_EQ(3.0, result);
    EXPECT_TRUE(area.distance(KzVector3D(1.5, 0.5, 0.0), 0.25 * east, plane, result));
    EXPECT_DOUBLE_EQ(2.0, result);
}

TEST(VarnelArea, OfTwoEdgesEquallyFarTheFirstOneCounts) {
    const KzMatrix44 plane = KzMatrix44::getId();
    VarnelArea area = ring({p, q, r, s});
    double result = 0.0;
    EXPECT_TRUE(area.distance(KzVector3D(1.0, 0.5, 0.0), east, plane, result));
    EXPECT_DOUBLE_EQ(1.0, result);
    area.cycle(2);
    EXPECT_TRUE(area.distance(KzVector3D(1.0, 0.5, 0.0), east, plane, result));
    EXPECT_DOUBLE_EQ(-1.0, result);
}

TEST(VarnelArea, AMissAndAnArcLeaveTheResultAlone) {
    const KzMatrix44 plane = KzMatrix44::getId();
    double result = 42.0;
    EXPECT_FALSE(ring({p, q, r, s}).distance(KzVector3D(0.5, 7.0, 0.0), east, plane, result));
    EXPECT_FALSE(VarnelArea().distance(p, east, plane, result));
    VarnelArea area;
    area.addLine(new VarnelCircle(KzVector3D(), KzVector3D(1.0, -1.0, 0.0), KzVector3D(1.0, 1.0, 0.0)));
    EXPECT_FALSE(area.distance(p, east, plane, result));
    EXPECT_EQ(42.0, result);
}

TEST(VarnelArea, CycleTurnsTheRingByWholeLines) {
    VarnelArea area = ring({p, q, r, s});
    const std::vector<VarnelLine *> before = area.getEdges();
    area.cycle(1);
    EXPECT_EQ((Points{q, r, s, p}), starts(area));
    EXPECT_EQ(before[1], area.getLine(0));
    EXPECT_EQ(before[0], area.getLine(3));
    expectClosed(area);
}

TEST(VarnelArea, CycleByTheNumberOfLinesChangesNothing) {
    const VarnelArea start = ring({p, q, r, s});
    const auto negative = static_cast<std::size_t>(-1);
    for (const std::size_t steps :
         {std::size_t{0}, std::size_t{4}, std::size_t{5}, std::size_t{6}, negative}) {
        SCOPED_TRACE(steps);
        VarnelArea area(start);
        area.cycle(steps);
        VarnelArea expected(start);
        for (std::size_t i = 0; i < steps % 4; ++i) expected.cycle(1);
        EXPECT_EQ(starts(expected), starts(area));
    }
    VarnelArea empty;
    empty.cycle(3);
    EXPECT_EQ(0u, empty.getNumLines());
}

TEST(VarnelArea, SwapReversesARingOfEvenLinesAndTwiceGivesItBack) {
    VarnelArea area = ring({p, q, r, s});
    EXPECT_TRUE(area.checkRightHandedXY());
    const std::vector<VarnelLine *> before = area.getEdges();
    area.swap();
    EXPECT_EQ((Points{p, s, r, q}), starts(area));
    expectClosed(area);
    EXPECT_FALSE(area.checkRightHandedXY());
    area.swap();
    EXPECT_EQ(before, area.getEdges());
    EXPECT_EQ((Points{p, q, r, s}), starts(area));
}

TEST(VarnelArea, SwapLeavesTheMiddleLineOfATriangleAsItWas) {
    VarnelArea area = ring({p, q, r});
    area.swap();
    const std::pair<KzVector3D, KzVector3D> expected[] = {{p, r}, {q, r}, {q, p}};
    for (std::size_t i = 0; i < 3; ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(expected[i].first, area.getEdgeCoor(i).first);
        EXPECT_EQ(expected[i].second, area.getEdgeCoor(i).second);
    }
    EXPECT_EQ(p, area.getCoor(0));
    EXPECT_EQ(q, area.getCoor(1));
    EXPECT_EQ(q, area.getCoor(2));
}

TEST(VarnelArea, SwapOfASingleLineDoesNothing) {
    VarnelArea area;
    area.swap();
    area.addLine(new VarnelStraight(p, q));
    area.swap();
    area.cycle(5);
    EXPECT_EQ(p, area.getLine(0)->getStartVec());
}

TEST(VarnelArea, MeltingTiesTheFirstStartToTheLastEnd) {
    {
        VarnelArea area;
        area.addLine(new VarnelStraight(new CountedPoint(p), new CountedPoint(q)));
        area.addLine(new VarnelStraight(new CountedPoint(q), new CountedPoint(r)));
        area.addLine(new VarnelStraight(new CountedPoint(r), new CountedPoint(s)));
        area.meltFirstAndLast();
        EXPECT_EQ(area.getLine(2)->getEnd(), area.getLine(0)->getStart());
        EXPECT_EQ((Points{s, q, r}), starts(area)) << "the place is that of the last end";
        EXPECT_NE(area.getLine(0)->getEnd(), area.getLine(1)->getStart()) << "inner joints stay";
        EXPECT_EQ(5, CountedPoint::alive);
        area.meltFirstAndLast();
        EXPECT_EQ(5, CountedPoint::alive);
    }
    EXPECT_EQ(0, CountedPoint::alive);
}

TEST(VarnelArea, MeltingARingThatIsClosedDoesNothing) {
    VarnelArea area = ring({p, q, r});
    const VarnelPoint *start = area.getLine(0)->getStart();
    area.meltFirstAndLast();
    EXPECT_EQ(start, area.getLine(0)->getStart());
    expectClosed(area);
    VarnelArea().meltFirstAndLast();
}

TEST(VarnelArea, MeltingKeepsAStartThatAnotherLineEndsOn) {
    // A melted ring that grows by further lines: the former start is the end of a line in the middle.
    {
        VarnelArea area;
        area.addLine(new VarnelStraight(new CountedPoint(p), new CountedPoint(q)));
        area.addLine(new VarnelStraight(new CountedPoint(q), new CountedPoint(p)));
        area.meltFirstAndLast();
        area.addLine(new VarnelStraight(new CountedPoint(r), new CountedPoint(s)));
        area.meltFirstAndLast();
        EXPECT_EQ(p, area.getLine(1)->getEndVec());
        EXPECT_EQ(area.getLine(2)->getEnd(), area.getLine(0)->getStart());
        EXPECT_EQ(5, CountedPoint::alive);
    }
    EXPECT_EQ(0, CountedPoint::alive);
}

TEST(VarnelArea, MeltingToAMissingEndDoesNothing) {
    VarnelArea area = ring({p, q, r});
    area.getLine(2)->setP1(nullptr);
    area.getLine(2)->swap();
    ASSERT_EQ(nullptr, area.getLine(2)->getEnd());
    area.meltFirstAndLast();
    EXPECT_EQ(p, area.getCoor(0));
    ASSERT_NE(nullptr, area.getLine(0)->getStart());
}

TEST(VarnelArea, MeltingASingleLineTiesItToItself) {
    VarnelArea area;
    area.addLine(new VarnelStraight(p, q));
    area.meltFirstAndLast();
    EXPECT_EQ(area.getLine(0)->getEnd(), area.getLine(0)->getStart());
    EXPECT_EQ(q, area.getCoor(0));
}

TEST(VarnelArea, AssignmentRebuildsTheRingAndOutlivesItsSource) {
    auto source = std::make_unique<VarnelArea>(ring({p, q, r, s}));
    VarnelArea target = ring({p, q, r});
    VarnelArea &base = target;
    EXPECT_EQ(&target, &(base = *source));
    source.reset();
    EXPECT_EQ((Points{p, q, r, s}), starts(target));
    expectClosed(target);
    EXPECT_TRUE(target.getChanged());
    target = VarnelArea();
    EXPECT_EQ(0u, target.getNumLines());
}

TEST(VarnelArea, AssignmentToItselfChangesNothing) {
    VarnelArea area = ring({p, q, r});
    const std::vector<VarnelLine *> before = area.getEdges();
    const VarnelArea &itself = area;
    area = itself;
    EXPECT_EQ(before, area.getEdges());
}

TEST(VarnelArea, InequalityNegatesEquality) {
    EXPECT_EQ(1, ring({p, q, r}) == ring({r, q, p}));
    EXPECT_EQ(0, ring({p, q, r}) != ring({r, q, p}));
    EXPECT_EQ(1, ring({p, q, r}) != ring({p, q, s}));
}

TEST(VarnelArea, ARingKeepsExactlyItsOwnPointsAlive) {
    const VarnelArea area = ring({p, q, r, s});
    std::set<const VarnelPoint *> points;
    for (std::size_t i = 0; i < 4; ++i) {
        points.insert(&area.getPoint(i));
        EXPECT_EQ(2u, area.getPoint(i).owners()) << "the lines before and behind it";
    }
    EXPECT_EQ(4u, points.size());
}

}  // namespace
