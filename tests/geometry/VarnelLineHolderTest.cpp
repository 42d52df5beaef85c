#include "varnel/geometry/VarnelLineHolder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <type_traits>
#include <vector>

#include "tests/support/CountedPoint.h"
#include "tests/support/Places.h"
#include "tests/support/RecordingObjectVisitor.h"
#include "tests/support/StubbornPoint.h"
#include "tests/support/VirtualSlot.h"
#include "varnel/geometry/VarnelArea.h"
#include "varnel/geometry/VarnelBeamGeo.h"
#include "varnel/geometry/VarnelCircle.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/geometry/VarnelStraight.h"

namespace {

using varnel::CountedPoint;
using varnel::isNear;
using varnel::planeAtHeight;
using varnel::virtualSlot;

using Points = std::vector<KzVector3D>;

constexpr std::size_t huge = std::numeric_limits<std::size_t>::max();
const Points square{{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {1.0, 1.0, 0.0}, {0.0, 1.0, 0.0}};
const Points pentagon{{0.0, 0.0, 0.0}, {2.0, 0.0, 0.0}, {3.0, 2.0, 0.0}, {1.0, 3.0, 0.0}, {-1.0, 2.0, 0.0}};

template <class Holder>
Holder made(const Points &points) {
    Holder holder;
    for (const KzVector3D &point : points) holder.addVertex(point);
    return holder;
}

VarnelArea ring(const Points &points) {
    return made<VarnelArea>(points);
}
VarnelBeamGeo chain(const Points &points) {
    return made<VarnelBeamGeo>(points);
}

TEST(VarnelLineHolder, KeepsTheOrderOfItsVirtualOperations) {
    EXPECT_EQ(2, virtualSlot(&VarnelLineHolder::updateMinMax));
    EXPECT_EQ(3, virtualSlot(&VarnelLineHolder::getVisited));
    EXPECT_EQ(4, virtualSlot(&VarnelLineHolder::isInPlane));
    EXPECT_EQ(5, virtualSlot(&VarnelLineHolder::touchesPlane));
    EXPECT_EQ(6, virtualSlot(&VarnelLineHolder::isIn));
    EXPECT_EQ(7, virtualSlot(&VarnelLineHolder::addVertex));
    EXPECT_EQ(8, virtualSlot(&VarnelLineHolder::getChanged));
    EXPECT_EQ(9, virtualSlot(&VarnelLineHolder::getNumPoints));
    EXPECT_EQ(10, virtualSlot(&VarnelLineHolder::reset));
    EXPECT_EQ(11, virtualSlot(&VarnelLineHolder::isDegenerated));
    EXPECT_EQ(12, virtualSlot(&VarnelLineHolder::clone));
    EXPECT_EQ(-1, virtualSlot(&VarnelLineHolder::setChanged));
    EXPECT_EQ(-1, virtualSlot(&VarnelLineHolder::addLine));
    EXPECT_EQ(-1, virtualSlot(&VarnelLineHolder::getLength));
    EXPECT_EQ(-1, virtualSlot(&VarnelLineHolder::getBase));
    EXPECT_EQ(-1, virtualSlot(&VarnelLineHolder::operator==));
}

TEST(VarnelLineHolder, MovingAPointMovesAndChangesBothLinesThatShareIt) {
    VarnelBeamGeo axis = chain(square);
    axis.setChanged(false);
    EXPECT_FALSE(axis.getChanged());
    const KzVector3D place(5.0, 6.0, 7.0);
    axis.setCoor(1, place);
    EXPECT_EQ(place, axis.getLine(0)->getEndVec());
    EXPECT_EQ(place, axis.getLine(1)->getStartVec());
    EXPECT_TRUE(axis.getLine(0)->getChanged());
    EXPECT_TRUE(axis.getLine(1)->getChanged());
    EXPECT_FALSE(axis.getLine(2)->getChanged());
    EXPECT_TRUE(axis.getChanged());
}

TEST(VarnelLineHolder, AnIndexFromTheNumberOfLinesOnMovesTheEndOfLineIndexPlusThree) {
    const KzVector3D place(9.0, 9.0, 9.0);
    for (std::size_t n = 1; n <= 7; ++n) {
        for (const std::size_t index : {n, n + 1, n + 2, std::size_t{1000}, huge}) {
            SCOPED_TRACE(testing::Message() << n << " lines, index " << index);
            VarnelBeamGeo axis;
            for (std::size_t i = 0; i <= n; ++i) axis.addVertex(KzVector3D(static_cast<double>(i), 0.0, 0.0));
            axis.setCoor(index, place);
            for (std::size_t i = 0; i < n; ++i)
                EXPECT_EQ(i == (index + 3) % n, place == axis.getLine(i)->getEndVec()) << i;
        }
    }
}

TEST(VarnelLineHolder, WithThreeLinesIndexThreeMovesTheEndOfTheFirst) {
    VarnelBeamGeo axis = chain(square);
    ASSERT_EQ(3u, axis.getNumLines());
    axis.setCoor(3, KzVector3D(9.0, 9.0, 9.0));
    EXPECT_EQ(KzVector3D(9.0, 9.0, 9.0), axis.getCoor(1));
    EXPECT_EQ(square[3], axis.getCoor(3));
}

TEST(VarnelLineHolder, EveryPointPastTheEndIsTheEndOfTheLastLine) {
    const VarnelBeamGeo axis = chain(square);
    const VarnelArea area = ring(square);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(square[i], axis.getCoor(i));
        EXPECT_EQ(square[i], area.getCoor(i));
    }
    for (const std::size_t index : {std::size_t{4}, std::size_t{5}, huge}) {
        EXPECT_EQ(square[3], axis.getCoor(index));
        EXPECT_EQ(&area.getPoint(0), &area.getPoint(index)) << "a ring comes back to its first point";
    }
}

TEST(VarnelLineHolder, LinesAndEdgesPastTheEndAreNothing) {
    const VarnelArea area = ring(square);
    EXPECT_EQ(square[2], area.getLine(2)->getStartVec());
    EXPECT_EQ(square[1], area.getEdgeCoor(1).first);
    EXPECT_EQ(square[2], area.getEdgeCoor(1).second);
    for (const std::size_t index : {std::size_t{4}, huge}) {
        EXPECT_EQ(nullptr, area.getLine(index));
        EXPECT_EQ(KzVector3D(), area.getEdgeCoor(index).first);
        EXPECT_EQ(KzVector3D(), area.getEdgeCoor(index).second);
    }
}

TEST(VarnelLineHolder, SetsThePartsOfOneLineAndIgnoresAnIndexPastTheEnd) {
    const VarnelArea area = ring(square);
    area.setNumParts(2, 6);
    area.setNumParts(4, 7);
    area.setNumParts(huge, 7);
    EXPECT_EQ(0, area.getLine(1)->getNumberOfParts());
    EXPECT_EQ(6, area.getLine(2)->getNumberOfParts());
    EXPECT_EQ(0, area.getLine(3)->getNumberOfParts());
}

TEST(VarnelLineHolder, TheLengthIsTheSumOfTheLines) {
    EXPECT_EQ(4.0, ring(square).getLength());
    EXPECT_EQ(3.0, chain(square).getLength());
    VarnelBeamGeo axis;
    axis.addLine(new VarnelCircle(KzVector3D(), KzVector3D(2.0, 0.0, 0.0), KzVector3D(0.0, 2.0, 0.0)));
    EXPECT_NEAR(3.14159265358979, axis.getLength(), 1e-12);
}

TEST(VarnelLineHolder, TheFlagIsThatOfTheLines) {
    VarnelArea area = ring(square);
    EXPECT_TRUE(area.getChanged());
    area.setChanged(false);
    EXPECT_FALSE(area.getChanged());
    area.getLine(3)->setChanged(true);
    EXPECT_TRUE(area.getChanged());
    area.setChanged(true);
    for (std::size_t i = 0; i < 4; ++i) EXPECT_TRUE(area.getLine(i)->getChanged());
}

TEST(VarnelLineHolder, TheBoxIsThatOfThePoints) {
    KzVector3D min(-99.0, -99.0, -99.0), max(99.0, 99.0, 99.0);
    chain({{1.0, 2.0, 3.0}, {-1.0, 5.0, 0.0}, {0.0, -2.0, 8.0}}).getMinMax(&min, &max);
    EXPECT_EQ(KzVector3D(-1.0, -2.0, 0.0), min);
    EXPECT_EQ(KzVector3D(1.0, 5.0, 8.0), max);
}

TEST(VarnelLineHolder, ABoxWithAMissingCornerStaysAsItIs) {
    const VarnelArea area = ring(square);
    KzVector3D corner(5.0, 5.0, 5.0);
    area.getMinMax(&corner, nullptr);
    area.getMinMax(nullptr, &corner);
    area.updateMinMax(&corner, nullptr, KzMatrix44::getId());
    area.updateMinMax(nullptr, &corner, KzMatrix44::getId());
    EXPECT_EQ(KzVector3D(5.0, 5.0, 5.0), corner);
}

TEST(VarnelLineHolder, WidensAGlobalBoxByAllItsPoints) {
    KzVector3D min, max;
    chain({{1.0, 2.0, 0.0}, {-1.0, 5.0, 0.0}, {0.0, -2.0, 8.0}}).updateMinMax(&min, &max, planeAtHeight(2.0));
    EXPECT_EQ(KzVector3D(-1.0, -2.0, 0.0), min);
    EXPECT_EQ(KzVector3D(1.0, 5.0, 10.0), max);
}

TEST(VarnelLineHolder, AnArcWidensTheBoxByItsEndsAlone) {
    VarnelBeamGeo axis;
    axis.addLine(new VarnelCircle(KzVector3D(), KzVector3D(1.0, -1.0, 0.0), KzVector3D(1.0, 1.0, 0.0)));
    KzVector3D min, max;
    axis.getMinMax(&min, &max);
    EXPECT_EQ(KzVector3D(1.0, -1.0, 0.0), min);
    EXPECT_EQ(KzVector3D(1.0, 1.0, 0.0), max);
}

TEST(VarnelLineHolder, AHeightOfExactlyOneHundredthIsInThePlaneButDoesNotTouchIt) {
    const struct {
        double height;
        bool inside, touching;
    } rows[] = {{0.0, true, true},    {0.00999999, true, true},   {0.01, true, false},
                {-0.01, true, false}, {0.01000001, false, false}, {0.09, false, false}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.height);
        const VarnelArea area = ring(square);
        EXPECT_EQ(row.inside, area.isInPlane(planeAtHeight(row.height)));
        EXPECT_EQ(row.touching, area.touchesPlane(planeAtHeight(row.height)));
    }
}

TEST(VarnelLineHolder, OnePointInThePlaneTouchesItAndOneOutsideLeavesIt) {
    const VarnelBeamGeo axis = chain({{0.0, 0.0, 5.0}, {1.0, 0.0, 4.0}, {2.0, 0.0, 0.0}});
    EXPECT_TRUE(axis.touchesPlane(KzMatrix44::getId()));
    EXPECT_FALSE(axis.isInPlane(KzMatrix44::getId()));
    EXPECT_FALSE(chain({{0.0, 0.0, 5.0}, {1.0, 0.0, -4.0}}).touchesPlane(KzMatrix44::getId()));
}

TEST(VarnelLineHolder, PointsAnswerForTouchingAndPlanarButNotForLyingInAPlane) {
    auto *stubborn = new varnel::StubbornPoint(square[3]);
    VarnelArea area;
    area.addLine(new VarnelStraight(square[0], square[1]));
    area.addLine(new VarnelStraight(*area.getLine(0), new VarnelPoint(square[2])));
    area.addLine(new VarnelStraight(*area.getLine(1), stubborn));
    area.addLine(new VarnelStraight(*area.getLine(2), new VarnelPoint(square[0])));
    area.meltFirstAndLast();
    ASSERT_EQ(stubborn, &area.getPoint(3));
    for (const bool answer : {false, true}) {
        SCOPED_TRACE(answer);
        stubborn->inPlane = answer;
        EXPECT_EQ(answer, area.touchesPlane(planeAtHeight(5.0)));
        EXPECT_EQ(answer, area.isPlanar());
        EXPECT_TRUE(area.isInPlane(KzMatrix44::getId())) << "by the place itself";
        EXPECT_FALSE(area.isInPlane(planeAtHeight(5.0)));
    }
    KzVector3D min, max;
    area.updateMinMax(&min, &max, KzMatrix44::getId());
    EXPECT_EQ(1, stubborn->boxes);
    area.getMinMax(&min, &max);
    EXPECT_EQ(1, stubborn->boxes) << "the plain box takes the places";
}

TEST(VarnelLineHolder, AsksItsLinesThroughTheirVirtualOperations) {
    class Stretched : public VarnelStraight {
      public:
        using VarnelStraight::VarnelStraight;
        double getLength() const override { return length; }
        bool getChanged() const override { return changed; }
        void setChanged(bool value) override { changed = value; }
        double length = 7.0;
        bool changed = false;
    };
    auto *first = new Stretched(square[0], square[1]);
    VarnelBeamGeo axis;
    axis.addLine(first);
    axis.addVertex(square[2]);
    axis.addVertex(square[2]);
    EXPECT_EQ(8.0, axis.getLength());
    EXPECT_FALSE(axis.isDegenerated());
    first->length = 0.5e-4;
    EXPECT_TRUE(axis.isDegenerated());
    axis.setChanged(false);
    EXPECT_FALSE(axis.getChanged());
    first->changed = true;
    EXPECT_TRUE(axis.getChanged());
}

TEST(VarnelLineHolder, ThreeLinesAreAlwaysPlanar) {
    EXPECT_TRUE(chain({{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {1.0, 1.0, 0.0}, {0.0, 1.0, 9.0}}).isPlanar());
}

TEST(VarnelLineHolder, AFourthCornerOffThePlaneIsNotPlanar) {
    const struct {
        double height;
        bool planar;
    } rows[] = {{0.0, true}, {0.00999, true}, {0.01001, false}, {0.02, false}, {-0.02, false}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.height);
        Points corners = square;
        corners[3].setZ(row.height);
        EXPECT_EQ(row.planar, ring(corners).isPlanar());
        // The height counts in metres, whatever the size of the figure.
        for (KzVector3D &corner : corners)
            corner.setXYZ(50.0 * corner.getX(), 50.0 * corner.getY(), corner.getZ());
        EXPECT_EQ(row.planar, ring(corners).isPlanar());
    }
}

TEST(VarnelLineHolder, TheLastPointOfAnOpenChainNeedNotBePlanar) {
    Points points = pentagon;
    points[4].setZ(7.0);
    EXPECT_TRUE(chain(points).isPlanar());
    EXPECT_FALSE(ring(points).isPlanar());
}

TEST(VarnelLineHolder, HasTheIdentityBaseForUpToTwoLines) {
    const VarnelBeamGeo axis = chain({{5.0, 5.0, 5.0}, {5.0, 9.0, 5.0}, {1.0, 9.0, 5.0}});
    const KzMatrix44 base = axis.getBase();
    EXPECT_EQ(KzVector3D(1.0, 0.0, 0.0), base.getVector(0));
    EXPECT_EQ(KzVector3D(0.0, 1.0, 0.0), base.getVector(1));
    EXPECT_EQ(KzVector3D(0.0, 0.0, 1.0), base.getVector(2));
    EXPECT_EQ(KzVector3D(), base.getVector(3));
}

TEST(VarnelLineHolder, TheBaseRunsAlongTheFirstLineInItsFirstPoint) {
    const VarnelArea area = ring({{1.0, 1.0, 1.0}, {1.0, 3.0, 1.0}, {1.0, 4.0, 1.0}, {1.0, 3.0, 4.0}});
    const KzMatrix44 base = area.getBase();
    EXPECT_EQ(KzVector3D(0.0, 1.0, 0.0), base.getVector(0));
    EXPECT_TRUE(isNear(KzVector3D(0.0, 0.0, 1.0), base.getVector(1)));
    EXPECT_TRUE(isNear(KzVector3D(1.0, 0.0, 0.0), base.getVector(2)));
    EXPECT_EQ(KzVector3D(1.0, 1.0, 1.0), base.getVector(3));
}

TEST(VarnelLineHolder, TheNormalIsOppositeToTheThirdAxisOfTheBase) {
    for (const Points &points :
         {square, pentagon, Points{{0.0, 0.0, 0.0}, {1.0, 2.0, 3.0}, {2.0, 4.0, 6.0}, {-4.0, 1.0, 2.0}}}) {
        const VarnelArea area = ring(points);
        EXPECT_TRUE(isNear(-area.getBase().getVector(2), area.getNormal()));
    }
    EXPECT_EQ(KzVector3D(0.0, 0.0, -1.0), ring(square).getNormal());
}

TEST(VarnelLineHolder, TheNormalPassesOverPointsNearTheFirstLineAndTheBaseDoesNot) {
    // The third point lies 0.5 % off the first line: too little for the normal, enough for the base.
    const VarnelArea area = ring({{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {1.0, 0.0, 0.005}, {0.0, 1.0, 0.0}});
    EXPECT_TRUE(isNear(KzVector3D(0.0, 0.0, -1.0), area.getNormal()));
    EXPECT_TRUE(isNear(KzVector3D(0.0, -1.0, 0.0), area.getBase().getVector(2)));
}

TEST(VarnelLineHolder, AChainAlongOneStraightHasNoNormal) {
    const VarnelBeamGeo axis = chain({{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {2.0, 0.0, 0.0}, {3.0, 0.0, 0.0}});
    EXPECT_EQ(KzVector3D(), axis.getNormal());
    EXPECT_EQ(KzVector3D(), axis.getBase().getVector(2));
    EXPECT_EQ(KzVector3D(), chain({{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}}).getNormal());
}

TEST(VarnelLineHolder, RingsAreEqualUnderRotationAndReversal) {
    for (const Points &points : {square, pentagon, Points(pentagon.begin(), pentagon.begin() + 3)}) {
        const VarnelArea area = ring(points);
        const std::size_t n = points.size();
        for (std::size_t first = 0; first < n; ++first) {
            Points forward, backward;
            for (std::size_t i = 0; i < n; ++i) {
                forward.push_back(points[(first + i) % n]);
                backward.push_back(points[(first + n - i) % n]);
            }
            SCOPED_TRACE(testing::Message() << n << " points from " << first);
            EXPECT_EQ(1, area.VarnelLineHolder::operator==(ring(forward)));
            EXPECT_EQ(1, area.VarnelLineHolder::operator==(ring(backward)));
        }
    }
}

TEST(VarnelLineHolder, ChainsOfOtherLengthOrWithAnotherCornerDiffer) {
    const VarnelArea area = ring(pentagon);
    const VarnelArea &itself = area;
    EXPECT_EQ(1, area == itself);
    EXPECT_EQ(0, area == ring(square));
    for (std::size_t moved = 0; moved < 5; ++moved) {
        Points other = pentagon;
        other[moved] += KzVector3D(0.0, 0.0, 1e-7);
        EXPECT_EQ(0, area == ring(other)) << moved;
    }
    EXPECT_EQ(0, chain({}) == chain({})) << "without lines nothing matches";
    EXPECT_EQ(0, chain({}) == chain(square));
}

TEST(VarnelLineHolder, OpenChainsCompareAsRings) {
    // The same lines with another one as the first, which no open chain could be.
    const VarnelBeamGeo axis = chain(square);
    VarnelBeamGeo turned;
    for (const std::size_t i : {1u, 2u, 0u}) turned.addLine(new VarnelStraight(square[i], square[i + 1]));
    EXPECT_EQ(1, axis == turned);
    EXPECT_EQ(1, chain({square[3], square[2], square[1], square[0]}) == axis);
    EXPECT_EQ(1, chain({square[0], square[1]}) == chain({square[1], square[0]}));
}

TEST(VarnelLineHolder, OnlyTheFirstMatchingLineIsTriedAsTheBeginning) {
    const KzVector3D a(0.0, 0.0, 0.0), b(1.0, 0.0, 0.0), c(2.0, 0.0, 0.0), d(3.0, 0.0, 0.0);
    const auto lines = [](const std::vector<std::pair<KzVector3D, KzVector3D>> &ends) {
        auto axis = std::make_unique<VarnelBeamGeo>();
        for (const auto &[start, end] : ends) axis->addLine(new VarnelStraight(start, end));
        return axis;
    };
    // The ring a-b, b-c, a-b, c-d has its first line twice, and starts with the second of the two.
    const auto left = lines({{a, b}, {b, c}, {a, b}, {c, d}, {d, a}});
    const auto right = lines({{a, b}, {c, d}, {d, a}, {a, b}, {b, c}});
    EXPECT_EQ(0, *left == *right);
}

TEST(VarnelLineHolder, ArcsCountInEqualityByCentre) {
    const auto withArc = [](const KzVector3D &centre) {
        auto area = std::make_unique<VarnelArea>();
        area->addLine(new VarnelStraight(square[0], square[1]));
        area->addLine(new VarnelCircle(centre, square[1], square[0]));
        area->meltFirstAndLast();
        return area;
    };
    EXPECT_EQ(1, *withArc(square[2]) == *withArc(square[2]));
    EXPECT_EQ(0, *withArc(square[2]) == *withArc(square[3]));
    EXPECT_EQ(0, *withArc(square[2]) == ring({square[0], square[1]}));
}

TEST(VarnelLineHolder, AddedLinesKeepTheirOwnPointsAndAreFreedWithThem) {
    {
        VarnelBeamGeo axis;
        auto *first = new VarnelStraight(new CountedPoint(square[0]), new CountedPoint(square[1]));
        axis.addLine(first);
        axis.addLine(new VarnelStraight(new CountedPoint(square[1]), new CountedPoint(square[2])));
        axis.addLine(nullptr);
        EXPECT_EQ(2u, axis.getNumLines());
        EXPECT_EQ(first, axis.getLine(0));
        EXPECT_NE(axis.getLine(0)->getEnd(), axis.getLine(1)->getStart());
        EXPECT_EQ(4, CountedPoint::alive);
    }
    EXPECT_EQ(0, CountedPoint::alive);
}

TEST(VarnelLineHolder, SharedPointsDieOnceWhateverSharesThem) {
    {
        VarnelArea area;
        auto *a = new VarnelStraight(new CountedPoint(square[0]), new CountedPoint(square[1]));
        auto *b = new VarnelStraight(*a, new CountedPoint(square[2]));
        auto *c = new VarnelStraight(b->getEnd(), a->getStart());
        for (VarnelLine *line : {a, b, c}) area.addLine(line);
        VarnelBeamGeo other;
        other.addLine(b);
        area.reset();
        EXPECT_EQ(0u, area.getNumLines());
        EXPECT_EQ(2, CountedPoint::alive);
        EXPECT_EQ(square[2], other.getLine(0)->getEndVec());
    }
    EXPECT_EQ(0, CountedPoint::alive);
}

TEST(VarnelLineHolder, ALineThatStandsTwiceInAChainDiesOnce) {
    {
        VarnelArea area;
        auto *line = new VarnelStraight(new CountedPoint(square[0]), new CountedPoint(square[1]));
        area.addLine(line);
        area.addLine(line);
        area.swap();
        area.meltFirstAndLast();
    }
    EXPECT_EQ(0, CountedPoint::alive);
}

TEST(VarnelLineHolder, ResetForgetsTheLinesAndTheFirstVertex) {
    VarnelBeamGeo axis = chain(square);
    axis.reset();
    EXPECT_EQ(0u, axis.getNumLines());
    axis.addVertex(square[2]);
    EXPECT_EQ(0u, axis.getNumLines());
    axis.addVertex(square[3]);
    EXPECT_EQ(square[2], axis.getCoor(0));
    axis.reset();
    axis.reset();
    EXPECT_EQ(0u, axis.getNumLines());
}

TEST(VarnelLineHolder, ACopyIsStraightUndividedAndChangedWithPointsOfItsOwn) {
    VarnelArea source;
    source.addLine(new VarnelCircle(square[2], square[0], square[1]));
    source.addLine(new VarnelStraight(square[1], square[2]));
    source.addLine(new VarnelStraight(square[2], square[0]));
    source.meltFirstAndLast();
    source.setNumParts(1, 5);
    source.getPoint(1).setNumber(7);
    source.setChanged(false);
    const std::unique_ptr<VarnelLineHolder> clone(source.clone());
    ASSERT_EQ(3u, clone->getNumLines());
    EXPECT_EQ(3u, clone->getNumPoints());
    for (std::size_t i = 0; i < 3; ++i) {
        SCOPED_TRACE(i);
        EXPECT_NE(nullptr, dynamic_cast<VarnelStraight *>(clone->getLine(i)));
        EXPECT_EQ(source.getCoor(i), clone->getCoor(i));
        EXPECT_NE(&source.getPoint(i), &clone->getPoint(i));
        EXPECT_EQ(0, clone->getPoint(i).getNumber());
        EXPECT_EQ(0, clone->getLine(i)->getNumberOfParts());
        EXPECT_TRUE(clone->getLine(i)->getChanged());
        EXPECT_EQ(clone->getLine(i)->getEnd(), clone->getLine((i + 1) % 3)->getStart());
    }
}

TEST(VarnelLineHolder, WithoutLinesEveryQuestionIsAnsweredByZeros) {
    VarnelBeamGeo axis;
    VarnelArea area;
    VarnelBeamGeo begun;
    begun.addVertex(square[1]);
    for (VarnelLineHolder *holder :
         {static_cast<VarnelLineHolder *>(&axis), static_cast<VarnelLineHolder *>(&area),
          static_cast<VarnelLineHolder *>(&begun)}) {
        EXPECT_EQ(0u, holder->getNumLines());
        EXPECT_EQ(nullptr, holder->getLine(0));
        EXPECT_EQ(KzVector3D(), holder->getCoor(0));
        EXPECT_EQ(KzVector3D(), holder->getPoint(huge).getCoor());
        EXPECT_EQ(&axis.getPoint(0), &holder->getPoint(3)) << "one point stands for all";
        holder->setCoor(0, square[2]);
        holder->setCoor(huge, square[2]);
        EXPECT_EQ(KzVector3D(), holder->getCoor(0));
        EXPECT_EQ(KzVector3D(), holder->getEdgeCoor(0).second);
        EXPECT_EQ(0.0, holder->getLength());
        EXPECT_FALSE(holder->getChanged());
        holder->setChanged(true);
        EXPECT_FALSE(holder->getChanged());
        KzVector3D min, max;
        holder->updateMinMax(&min, &max, planeAtHeight(3.0));
        EXPECT_EQ(KzVector3D(), max);
        holder->getMinMax(&min, &max);
        EXPECT_EQ(std::numeric_limits<double>::max(), min.getX());
        EXPECT_EQ(std::numeric_limits<double>::lowest(), max.getZ());
        EXPECT_TRUE(holder->isInPlane(planeAtHeight(7.0)));
        EXPECT_FALSE(holder->touchesPlane(KzMatrix44::getId()));
        EXPECT_TRUE(holder->isPlanar());
        EXPECT_TRUE(holder->isDegenerated());
        EXPECT_EQ(KzVector3D(), holder->getNormal());
        EXPECT_EQ(KzVector3D(1.0, 0.0, 0.0), holder->getBase().getVector(0));
        const std::unique_ptr<VarnelLineHolder> clone(holder->clone());
        EXPECT_EQ(0u, clone->getNumLines());
    }
}

TEST(VarnelLineHolder, LinesWithoutAStartPointAreHarmless) {
    VarnelArea area = ring(square);
    for (std::size_t i = 0; i < 4; ++i) area.getLine(i)->setP1(nullptr);
    EXPECT_EQ(KzVector3D(), area.getCoor(2));
    EXPECT_EQ(square[0], area.getCoor(4));
    KzVector3D min, max;
    area.getMinMax(&min, &max);
    EXPECT_EQ(std::numeric_limits<double>::max(), min.getX()) << "missing points widen no box";
    area.updateMinMax(&min, &max, KzMatrix44::getId());
    EXPECT_TRUE(area.isInPlane(planeAtHeight(5.0)));
    EXPECT_FALSE(area.touchesPlane(KzMatrix44::getId()));
    EXPECT_EQ(0.0, area.getLength());
    EXPECT_EQ(0.0, area.getArea());
    EXPECT_TRUE(area.isDegenerated());
    EXPECT_EQ(KzVector3D(), area.getCOG());
    EXPECT_EQ(0, area == ring(square));
    area.setCoor(1, square[2]);
    area.addVertex(square[1]);
    area.cycle(2);
    area.swap();
    area.meltFirstAndLast();
    EXPECT_EQ(5u, VarnelArea(area).getNumLines());
}

TEST(VarnelLineHolder, IsNoObjectOfAModelAndVisitsAsZero) {
    VarnelArea area = ring(square);
    varnel::RecordingObjectVisitor visitor;
    EXPECT_EQ(0, area.getVisited(&visitor));
    EXPECT_EQ(0, visitor.visits);
    EXPECT_TRUE(area.isIn(nullptr));
}

TEST(VarnelLineHolder, LongChainsAreHandledInOneWalk) {
    const std::size_t n = 100000;
    VarnelArea area;
    for (std::size_t i = 0; i < n; ++i) {
        const double angle = 2.0 * 3.14159265358979 * static_cast<double>(i) / static_cast<double>(n);
        area.addVertex(KzVector3D(1000.0 * std::cos(angle), 1000.0 * std::sin(angle), 0.0));
    }
    VarnelArea copy(area);
    EXPECT_EQ(n, copy.getNumLines());
    EXPECT_FALSE(copy.isDegenerated());
    copy.cycle(huge);
    EXPECT_EQ(area.getCoor(huge % n), copy.getCoor(0));
    copy.swap();
    EXPECT_EQ(1, copy == area);
    EXPECT_NEAR(0.0, copy.getCOG().length(), 1e-6);
}

static_assert(!std::is_copy_assignable_v<VarnelLineHolder>, "a chain is assigned by its own class");

}  // namespace
