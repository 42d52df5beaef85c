#include "varnel/geometry/VarnelLine.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "tests/support/RecordingObjectVisitor.h"
#include "tests/support/VirtualSlot.h"
#include "varnel/geometry/VarnelCircle.h"
#include "varnel/geometry/VarnelStraight.h"

namespace {

using varnel::virtualSlot;

const KzVector3D origin;
const KzVector3D east(1.0, 0.0, 0.0);
const KzVector3D north(0.0, 1.0, 0.0);

VarnelStraight straightLine() {
    return {origin, east};
}

std::vector<double> stations(const VarnelLine &line) {
    std::vector<double> xis;
    for (int i = 0; i <= line.getNumberOfParts() && line.hasXis(); ++i) xis.push_back(line.xiToPosition(i));
    return xis;
}

TEST(VarnelLine, KeepsTheOrderOfItsVirtualOperations) {
    EXPECT_EQ(2, virtualSlot(&VarnelLine::updateMinMax));
    EXPECT_EQ(3, virtualSlot<int (VarnelLine::*)(VarnelObjectVisitor *)>(&VarnelLine::getVisited));
    EXPECT_EQ(4, virtualSlot(&VarnelLine::isInPlane));
    EXPECT_EQ(5, virtualSlot(&VarnelLine::touchesPlane));
    EXPECT_EQ(6, virtualSlot(&VarnelLine::isIn));
    EXPECT_EQ(7, virtualSlot(&VarnelLine::operator==));
    EXPECT_EQ(8, virtualSlot(&VarnelLine::operator!=));
    EXPECT_EQ(9, virtualSlot(&VarnelLine::operator=));
    EXPECT_EQ(10, virtualSlot(&VarnelLine::setStart));
    EXPECT_EQ(11, virtualSlot(&VarnelLine::setEnd));
    EXPECT_EQ(12, virtualSlot(&VarnelLine::setP1));
    EXPECT_EQ(13, virtualSlot(&VarnelLine::getStartVec));
    EXPECT_EQ(14, virtualSlot(&VarnelLine::getEndVec));
    EXPECT_EQ(15, virtualSlot(&VarnelLine::getStart));
    EXPECT_EQ(16, virtualSlot(&VarnelLine::getEnd));
    EXPECT_EQ(17, virtualSlot(&VarnelLine::getCoor));
    EXPECT_EQ(18, virtualSlot(&VarnelLine::getCoors));
    EXPECT_EQ(19, virtualSlot(&VarnelLine::setCoors));
    EXPECT_EQ(20, virtualSlot(&VarnelLine::checkPointOn));
    EXPECT_EQ(21, virtualSlot(&VarnelLine::getChanged));
    EXPECT_EQ(22, virtualSlot(&VarnelLine::setChanged));
    EXPECT_EQ(23, virtualSlot(&VarnelLine::getLength));
    EXPECT_EQ(24, virtualSlot(&VarnelLine::swap));
    EXPECT_EQ(25, virtualSlot(&VarnelLine::distance));
    EXPECT_EQ(26, virtualSlot(&VarnelLine::isConnected));
    EXPECT_EQ(27, virtualSlot(&VarnelLine::getBase));
    EXPECT_EQ(28, virtualSlot(&VarnelLine::hasSamePoints));
    EXPECT_EQ(29, virtualSlot<int (VarnelLine::*)(VarnelLineVisitor *)>(&VarnelLine::getVisited));
    EXPECT_EQ(30, virtualSlot(&VarnelLine::clone));
}

TEST(VarnelLine, TheKindsOfLineAddNoSlots) {
    using Assign = VarnelLine &(VarnelStraight::*)(const VarnelLine &);
    using AssignArc = VarnelLine &(VarnelCircle::*)(const VarnelLine &);
    EXPECT_EQ(9, virtualSlot<Assign>(&VarnelStraight::operator=));
    EXPECT_EQ(9, virtualSlot<AssignArc>(&VarnelCircle::operator=));
    EXPECT_EQ(30, virtualSlot(&VarnelStraight::clone));
    EXPECT_EQ(30, virtualSlot(&VarnelCircle::clone));
}

TEST(VarnelLine, HasNoPartsUntilADivisionIsSet) {
    VarnelStraight line = straightLine();
    EXPECT_EQ(0, line.getNumberOfParts());
    EXPECT_FALSE(line.hasXis());
    EXPECT_EQ(0.0, line.xiToPosition(0));
    line.clearXis();
    EXPECT_EQ(0, line.getNumberOfParts());
    line.setNumberOfParts(5);
    EXPECT_EQ(5, line.getNumberOfParts());
    EXPECT_FALSE(line.hasXis());
}

TEST(VarnelLine, AnyNumberOfPartsIsStored) {
    VarnelStraight line = straightLine();
    for (const int parts : {-1, 0, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        line.setNumberOfParts(parts);
        EXPECT_EQ(parts, line.getNumberOfParts());
    }
}

TEST(VarnelLine, OneStationGivesNoPartsAndTwoGiveOne) {
    VarnelStraight line = straightLine();
    line.addXi(0.25);
    EXPECT_EQ(0, line.getNumberOfParts());
    EXPECT_TRUE(line.hasXis());
    line.addXi(0.75);
    EXPECT_EQ(1, line.getNumberOfParts());
}

TEST(VarnelLine, TheNumberOfPartsHasNoEffectWhileThereAreStations) {
    VarnelStraight line = straightLine();
    line.addXi(0.0);
    line.addXi(0.5);
    line.addXi(1.0);
    line.setNumberOfParts(7);
    EXPECT_EQ(2, line.getNumberOfParts());
    line.clearXis();
    EXPECT_EQ(7, line.getNumberOfParts());
    EXPECT_FALSE(line.hasXis());
}

TEST(VarnelLine, WithoutStationsADivisionHasTenPartsByDefault) {
    VarnelStraight line = straightLine();
    line.addXi(0.5);
    line.clearXis();
    EXPECT_EQ(10, line.getNumberOfParts());
}

TEST(VarnelLine, TheFirstOfNearStationsStays) {
    VarnelStraight line = straightLine();
    line.addXi(0.505);
    line.addXi(0.5);
    EXPECT_EQ(std::vector<double>{0.505}, stations(line));
}

TEST(VarnelLine, StationsStandInAscendingOrder) {
    VarnelStraight line = straightLine();
    for (const double xi : {0.5, 0.52, 1.0, 0.0, 0.25, -0.5, 2.0}) line.addXi(xi);
    EXPECT_EQ((std::vector<double>{-0.5, 0.0, 0.25, 0.5, 0.52, 1.0, 2.0}), stations(line));
}

TEST(VarnelLine, StationsOneHundredthApartAreTwo) {
    const struct {
        double first, second;
        bool both;
    } rows[] = {{0.0, 0.01, true},         {0.0, -0.01, true},      {0.0, 0.00999999, false},
                {0.0, -0.00999999, false}, {0.0, 0.01000001, true}, {0.0, -0.01000001, true},
                {0.0, 0.0, false}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.second);
        VarnelStraight line = straightLine();
        line.addXi(row.first);
        line.addXi(row.second);
        EXPECT_EQ(row.both ? 1 : 0, line.getNumberOfParts());
        line.addXi(row.second);
        EXPECT_EQ(row.both ? 1 : 0, line.getNumberOfParts());
    }
}

TEST(VarnelLine, StationsOneHundredthApartAreTwoBeforeALaterOneToo) {
    VarnelStraight line = straightLine();
    line.addXi(0.0);
    line.addXi(1.0);
    line.addXi(0.01);
    EXPECT_EQ((std::vector<double>{0.0, 0.01, 1.0}), stations(line));
}

TEST(VarnelLine, AStationBetweenTwoNearOnesIsDroppedForEither) {
    VarnelStraight line = straightLine();
    line.addXi(0.1);
    line.addXi(0.115);
    line.addXi(0.107);
    EXPECT_EQ((std::vector<double>{0.1, 0.115}), stations(line));
}

TEST(VarnelLine, StationsThatAreNoNumbersAreHarmless) {
    VarnelStraight line = straightLine();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double xi : {0.5, nan, 0.1, infinity, nan, -infinity, 0.9}) line.addXi(xi);
    EXPECT_EQ(6, line.getNumberOfParts());
}

TEST(VarnelLine, AStationPastTheEndIsZero) {
    VarnelStraight line = straightLine();
    line.addXi(0.5);
    EXPECT_EQ(0.5, line.xiToPosition(0));
    for (const int index : {1, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        EXPECT_EQ(0.0, line.xiToPosition(index)) << index;
}

TEST(VarnelLine, CopyTakesTheDivisionOrItsAbsence) {
    VarnelStraight source = straightLine();
    source.setNumberOfParts(4);
    source.addXi(0.2);
    source.addXi(0.4);
    VarnelCircle target(origin, east, north);
    target.copy(source);
    EXPECT_EQ((std::vector<double>{0.2, 0.4}), stations(target));
    source.addXi(0.6);
    EXPECT_EQ(1, target.getNumberOfParts());
    target.clearXis();
    EXPECT_EQ(4, target.getNumberOfParts());
    target.copy(target);
    EXPECT_EQ(4, target.getNumberOfParts());
    target.copy(straightLine());
    EXPECT_EQ(0, target.getNumberOfParts());
}

TEST(VarnelLine, IsConnectedByAnyPairOfEnds) {
    const KzVector3D a(0.0, 0.0, 0.0), b(1.0, 0.0, 0.0), c(2.0, 0.0, 0.0), d(3.0, 0.0, 0.0);
    const VarnelStraight line(a, b);
    EXPECT_TRUE(line.isConnected(VarnelStraight(a, c)));
    EXPECT_TRUE(line.isConnected(VarnelStraight(c, a)));
    EXPECT_TRUE(line.isConnected(VarnelStraight(b, c)));
    EXPECT_TRUE(line.isConnected(VarnelStraight(c, b)));
    EXPECT_TRUE(line.isConnected(line));
    EXPECT_FALSE(line.isConnected(VarnelStraight(c, d)));
    EXPECT_FALSE(line.isConnected(VarnelStraight(KzVector3D(1.0 + 1e-9, 0.0, 0.0), c)));
    EXPECT_TRUE(line.isConnected(VarnelCircle(c, d, b)));
    EXPECT_FALSE(line.isConnected(VarnelCircle(a, c, d)));
}

TEST(VarnelLine, IsNoObjectOfAModelAndVisitsAsZero) {
    VarnelStraight straight = straightLine();
    VarnelCircle circle(origin, east, north);
    for (VarnelObject *object :
         {static_cast<VarnelObject *>(&straight), static_cast<VarnelObject *>(&circle)}) {
        varnel::RecordingObjectVisitor visitor;
        EXPECT_EQ(0, object->getVisited(&visitor));
        EXPECT_EQ(0, visitor.visits);
        EXPECT_TRUE(object->isIn(nullptr));
    }
    varnel::RecordingObjectVisitor visitor;
    EXPECT_EQ(0, straight.getVisited(&visitor));
    EXPECT_EQ(0, circle.getVisited(&visitor));
}

}  // namespace
