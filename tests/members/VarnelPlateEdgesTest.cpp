#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/Places.h"
#include "varnel/geometry/VarnelAreaPolygon.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPlateEdgeData.h"

namespace {

constexpr std::size_t huge = std::numeric_limits<std::size_t>::max();
const std::vector<double> noSprings;

std::unique_ptr<VarnelPlate> plateWithEdges(std::size_t count) {
    std::vector<KzVector3D> corners{{0, 0, 0}, {4, 0, 0}, {4, 3, 0}, {0, 3, 0}, {-1, 2, 0}};
    corners.resize(count);
    auto plate = std::make_unique<VarnelPlate>(nullptr);
    plate->setArea(new VarnelAreaPolygon(corners));
    return plate;
}

/// Names the support of each edge after its first place: "0", "1" and so on.
std::unique_ptr<VarnelPlate> plateSupportedAt(const std::vector<std::size_t> &edges) {
    auto plate = plateWithEdges(4);
    for (const std::size_t edge : edges)
        plate->setBoundary(edge, VarnelLineBoundaryData(1, std::to_string(edge)));
    return plate;
}

/// Names of the supports, one word an edge.
std::string supports(const VarnelPlate &plate) {
    std::string names;
    for (std::size_t edge = 0; edge < 4; ++edge) {
        const VarnelLineBoundaryData *boundary = plate.getBoundary(edge);
        names += boundary ? boundary->getName() : "-";
    }
    return names;
}

std::vector<KzVector3D> corners(const VarnelPlate &plate) {
    std::vector<KzVector3D> places;
    for (const VarnelLine *line : plate.getGeo()->getEdges()) places.push_back(line->getStartVec());
    return places;
}

TEST(VarnelPlateEdgeData, IsBornEmptyAndTakesOverTheSupport) {
    VarnelPlateEdgeData data;
    EXPECT_EQ(0, data.getJoint());
    EXPECT_EQ(nullptr, data.getBoundary());
    data.setJoint(5);
    EXPECT_EQ(5, data.getJoint());
    auto *boundary = new VarnelLineBoundaryData(1, "");
    data.setBoundary(boundary);
    data.setBoundary(boundary);
    EXPECT_EQ(boundary, data.getBoundary());
    data.setBoundary(new VarnelLineBoundaryData(2, ""));
    EXPECT_EQ(2, data.getBoundary()->getDof());
    data.setBoundary(nullptr);
    EXPECT_EQ(nullptr, data.getBoundary());
}

TEST(VarnelPlateEdges, HoldACopyOfTheSupport) {
    const auto plate = plateWithEdges(4);
    VarnelLineBoundaryData data(7, "S");
    data.setWidth(0.3);
    plate->setBoundary(2, data);
    ASSERT_NE(nullptr, plate->getBoundary(2));
    EXPECT_NE(&data, plate->getBoundary(2));
    EXPECT_EQ(7, plate->getBoundary(2)->getDof());
    EXPECT_EQ("S", plate->getBoundary(2)->getName());
    EXPECT_EQ(0.3, plate->getBoundary(2)->getWidth());
    EXPECT_EQ(nullptr, plate->getBoundary(1));
}

TEST(VarnelPlateEdges, KeepTheFirstSupport) {
    const auto plate = plateWithEdges(4);
    plate->setBoundary(2, VarnelLineBoundaryData(7, "first"));
    const VarnelLineBoundaryData *first = plate->getBoundary(2);
    plate->setBoundary(2, VarnelLineBoundaryData(1, "second"));
    EXPECT_EQ(first, plate->getBoundary(2));
    EXPECT_EQ(7, first->getDof());
    EXPECT_EQ("first", first->getName());
}

TEST(VarnelPlateEdges, WithAJointGetNoSupport) {
    const auto plate = plateWithEdges(4);
    plate->setEdgeJoint(1, 3);
    plate->setBoundary(1, VarnelLineBoundaryData(7, "S"));
    ASSERT_NE(nullptr, plate->getEdgeData(1));
    EXPECT_EQ(3, plate->getEdgeData(1)->getJoint());
    EXPECT_EQ(nullptr, plate->getBoundary(1));
    EXPECT_EQ(nullptr, plate->getBoundaryReference(1));
}

TEST(VarnelPlateEdges, WithASupportGetAJoint) {
    const auto plate = plateSupportedAt({1});
    const VarnelPlateEdgeData *data = plate->getEdgeData(1);
    plate->setEdgeJoint(1, 3);
    plate->setEdgeJoint(1, 5);
    EXPECT_EQ(data, plate->getEdgeData(1));
    EXPECT_EQ(5, data->getJoint());
    EXPECT_EQ("1", data->getBoundary()->getName());
}

TEST(VarnelPlateEdges, TakeTheValuesOfASupportThatIsThere) {
    const auto plate = plateWithEdges(4);
    plate->setBoundary(0, 7, {1, 2, 3, 4, 5, 6}, "S");
    VarnelLineBoundaryData *boundary = plate->getBoundary(0);
    ASSERT_NE(nullptr, boundary);
    EXPECT_EQ(7, boundary->getDof());
    EXPECT_EQ((std::vector<double>{1, 2, 3, 4, 5, 6}), boundary->getStiffness());
    EXPECT_EQ("S", boundary->getName());
    boundary->setChanged(false);
    static_cast<VarnelBoundaryData *>(boundary)->setChanged(false);
    plate->setBoundary(0, 1, noSprings, nullptr);
    EXPECT_EQ(boundary, plate->getBoundary(0));
    EXPECT_EQ(1, boundary->getDof());
    EXPECT_EQ(nullptr, boundary->getStiffnessData());
    EXPECT_EQ("S", boundary->getName());
    EXPECT_FALSE(boundary->getChanged());
    EXPECT_TRUE(static_cast<VarnelBoundaryData *>(boundary)->getChanged());
    plate->setBoundary(0, 1, noSprings, "");
    EXPECT_EQ("", boundary->getName());
}

TEST(VarnelPlateEdges, TakeTheValuesOfASupportBesideAJoint) {
    const auto plate = plateWithEdges(4);
    plate->setEdgeJoint(0, 3);
    plate->setBoundary(0, 7, noSprings, nullptr);
    ASSERT_NE(nullptr, plate->getBoundary(0));
    EXPECT_EQ("", plate->getBoundary(0)->getName());
    EXPECT_EQ(3, plate->getEdgeData(0)->getJoint());
}

TEST(VarnelPlateEdges, OfOtherLinesThanTheOutlineHasAreIgnored) {
    const auto plate = plateWithEdges(4);
    for (const std::size_t edge : {std::size_t(4), std::size_t(5), huge, static_cast<std::size_t>(-7)}) {
        SCOPED_TRACE(edge);
        plate->setBoundary(edge, VarnelLineBoundaryData(1, ""));
        plate->setBoundary(edge, 1, noSprings, "S");
        plate->setEdgeJoint(edge, 1);
        EXPECT_EQ(nullptr, plate->getEdgeData(edge));
        EXPECT_EQ(nullptr, plate->getBoundary(edge));
        EXPECT_EQ(nullptr, plate->getBoundaryReference(edge));
    }
    plate->setEdgeJoint(3, 1);
    EXPECT_NE(nullptr, plate->getEdgeData(3));
}

TEST(VarnelPlateEdges, OfAPlateWithoutAnOutlineAreIgnored) {
    VarnelPlate plate(nullptr);
    plate.setBoundary(0, VarnelLineBoundaryData(1, ""));
    plate.setBoundary(0, 1, noSprings, "S");
    plate.setEdgeJoint(0, 1);
    plate.cycle(1);
    plate.swap();
    EXPECT_EQ(nullptr, plate.getEdgeData(0));
}

TEST(VarnelPlateEdges, AreRepresentedByTheReferenceOrThemselves) {
    const auto plate = plateSupportedAt({0, 1});
    EXPECT_EQ(plate->getBoundary(0), plate->getBoundaryReference(0));
    plate->getBoundary(0)->setReference(plate->getBoundary(1));
    EXPECT_EQ(plate->getBoundary(1), plate->getBoundaryReference(0));
    plate->getBoundary(0)->setReference(plate->getBoundary(0));
    EXPECT_EQ(plate->getBoundary(0), plate->getBoundaryReference(0));
    EXPECT_EQ(nullptr, plate->getBoundaryReference(2));
}

TEST(VarnelPlateEdges, CycleWithTheOutline) {
    struct Row {
        std::vector<std::size_t> edges;
        int steps;
        const char *expected;
    };
    const std::vector<std::size_t> all{0, 1, 2, 3};
    const Row rows[] = {
        {all, 0, "0123"},
        {all, 1, "1230"},
        {all, 3, "3012"},
        {all, 4, "0123"},
        {all, 5, "1230"},
        {all, std::numeric_limits<int>::max(), "3012"},
        // A negative number leaves what is known of the edges where it is.
        {all, -1, "0123"},
        {all, std::numeric_limits<int>::min(), "0123"},
        // With some edges known it moves among these, not along the outline.
        {{0, 2}, 1, "2-0-"},
        {{0, 2}, 2, "0-2-"},
        {{0, 1, 3}, 1, "13-0"},
        {{0, 1, 3}, 7, "13-0"},
        {{2}, 1, "--2-"},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(testing::Message() << supports(*plateSupportedAt(row.edges)) << " by " << row.steps);
        const auto plate = plateSupportedAt(row.edges);
        plate->cycle(row.steps);
        EXPECT_EQ(row.expected, supports(*plate));
        const auto outline = plateWithEdges(4);
        outline->getGeo()->cycle(static_cast<std::size_t>(row.steps));
        EXPECT_EQ(corners(*outline), corners(*plate));
    }
}

TEST(VarnelPlateEdges, CycleTakesJointsAlong) {
    const auto plate = plateSupportedAt({0, 1, 2, 3});
    plate->setEdgeJoint(1, 9);
    plate->cycle(1);
    EXPECT_EQ(9, plate->getEdgeData(0)->getJoint());
    EXPECT_EQ(0, plate->getEdgeData(1)->getJoint());
    EXPECT_EQ(KzVector3D(4, 0, 0), plate->getGeo()->getLine(0)->getStartVec());
}

TEST(VarnelPlateEdges, SwapWithTheOutline) {
    struct Row {
        std::vector<std::size_t> edges;
        const char *expected;
    };
    const Row rows[] = {
        {{0, 1, 2, 3}, "3210"}, {{0, 1, 3}, "31-0"}, {{0, 1}, "10--"}, {{1}, "-1--"}, {{}, "----"},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.expected);
        const auto plate = plateSupportedAt(row.edges);
        plate->swap();
        EXPECT_EQ(row.expected, supports(*plate));
        EXPECT_EQ((std::vector<KzVector3D>{{0, 0, 0}, {0, 3, 0}, {4, 3, 0}, {4, 0, 0}}), corners(*plate));
        plate->swap();
        EXPECT_EQ(supports(*plateSupportedAt(row.edges)), supports(*plate));
    }
}

TEST(VarnelPlateEdges, SwapLeavesTheMiddleOfAnOddNumberOfLines) {
    const auto plate = plateWithEdges(3);
    const VarnelLine *middle = plate->getGeo()->getLine(1);
    plate->swap();
    EXPECT_EQ(middle, plate->getGeo()->getLine(1));
    EXPECT_EQ((std::vector<KzVector3D>{{0, 0, 0}, {4, 0, 0}, {4, 0, 0}}), corners(*plate));
}

}  // namespace
