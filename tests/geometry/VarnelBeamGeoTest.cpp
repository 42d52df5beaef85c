#include "varnel/geometry/VarnelBeamGeo.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "tests/support/Places.h"
#include "tests/support/VirtualSlot.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/geometry/VarnelStraight.h"

namespace {

using varnel::isNear;
using varnel::virtualSlot;

using Points = std::vector<KzVector3D>;

VarnelBeamGeo chain(const Points &points) {
    VarnelBeamGeo axis;
    for (const KzVector3D &point : points) axis.addVertex(point);
    return axis;
}

const KzVector3D a(0.0, 0.0, 0.0), b(4.0, 0.0, 0.0), c(4.0, 3.0, 0.0), d(4.0, 3.0, 12.0);

TEST(VarnelBeamGeo, AppendsItsCentreOfGravityToTheVirtualOperations) {
    EXPECT_EQ(7, virtualSlot(&VarnelBeamGeo::addVertex));
    EXPECT_EQ(9, virtualSlot(&VarnelBeamGeo::getNumPoints));
    EXPECT_EQ(11, virtualSlot(&VarnelBeamGeo::isDegenerated));
    EXPECT_EQ(12, virtualSlot(&VarnelBeamGeo::clone));
    EXPECT_EQ(13, virtualSlot(&VarnelBeamGeo::getCOG));
}

TEST(VarnelBeamGeo, GrowsFromTheSecondVertexOn) {
    VarnelBeamGeo axis;
    EXPECT_EQ(0u, axis.getNumLines());
    EXPECT_EQ(1u, axis.getNumPoints());
    axis.addVertex(a);
    EXPECT_EQ(0u, axis.getNumLines());
    EXPECT_EQ(1u, axis.getNumPoints());
    axis.addVertex(b);
    EXPECT_EQ(1u, axis.getNumLines());
    EXPECT_EQ(2u, axis.getNumPoints());
    EXPECT_EQ(a, axis.getLine(0)->getStartVec());
    EXPECT_EQ(b, axis.getLine(0)->getEndVec());
    axis.addVertex(c);
    EXPECT_EQ(2u, axis.getNumLines());
    EXPECT_EQ(axis.getLine(0)->getEnd(), axis.getLine(1)->getStart());
    EXPECT_EQ(c, axis.getCoor(2));
}

TEST(VarnelBeamGeo, AVertexFromItsOwnChainIsCopied) {
    VarnelBeamGeo axis = chain({a, b, c});
    axis.addVertex(axis.getCoor(0));
    EXPECT_EQ(a, axis.getCoor(3));
    EXPECT_NE(&axis.getPoint(0), &axis.getPoint(3));
}

TEST(VarnelBeamGeo, AddedLinesAreContinuedFromTheSecondVertexOn) {
    VarnelBeamGeo axis;
    axis.addLine(new VarnelStraight(a, b));
    axis.addVertex(d);
    EXPECT_EQ(1u, axis.getNumLines()) << "the first vertex is only remembered";
    axis.addVertex(c);
    ASSERT_EQ(2u, axis.getNumLines());
    EXPECT_EQ(axis.getLine(0)->getEnd(), axis.getLine(1)->getStart());
    EXPECT_EQ(c, axis.getCoor(2));
}

TEST(VarnelBeamGeo, ListsAllItsPoints) {
    EXPECT_EQ((Points{a, b, c, d}), chain({a, b, c, d}).getCoordinatesOfPoints());
    EXPECT_EQ((Points{a, b}), chain({a, b}).getCoordinatesOfPoints());
    EXPECT_TRUE(chain({a}).getCoordinatesOfPoints().empty());
    EXPECT_TRUE(chain({}).getCoordinatesOfPoints().empty());
}

TEST(VarnelBeamGeo, CopiesAndClonesAreIndependent) {
    auto source = std::make_unique<VarnelBeamGeo>(chain({a, b, c, d}));
    const VarnelBeamGeo copy(*source);
    const std::unique_ptr<VarnelLineHolder> clone(source->clone());
    ASSERT_NE(nullptr, dynamic_cast<VarnelBeamGeo *>(clone.get()));
    VarnelBeamGeo target = chain({d, c});
    target = *source;
    source->setCoor(1, d);
    source.reset();
    for (const VarnelLineHolder *made :
         {static_cast<const VarnelLineHolder *>(&copy), static_cast<const VarnelLineHolder *>(clone.get()),
          static_cast<const VarnelLineHolder *>(&target)}) {
        ASSERT_EQ(3u, made->getNumLines());
        EXPECT_EQ(b, made->getCoor(1));
        EXPECT_TRUE(made->getChanged());
    }
}

TEST(VarnelBeamGeo, AssignmentToItselfChangesNothing) {
    VarnelBeamGeo axis = chain({a, b, c});
    const VarnelLine *line = axis.getLine(1);
    const VarnelBeamGeo &itself = axis;
    axis = itself;
    EXPECT_EQ(2u, axis.getNumLines());
    EXPECT_EQ(line, axis.getLine(1));
}

TEST(VarnelBeamGeo, AssignmentOfAChainWithoutLinesEmptiesTheTarget) {
    VarnelBeamGeo axis = chain({a, b, c});
    axis = chain({d});
    EXPECT_EQ(0u, axis.getNumLines());
    EXPECT_EQ(0u, VarnelBeamGeo(axis).getNumLines());
    axis.addVertex(b);
    EXPECT_EQ(0u, axis.getNumLines()) << "no vertex is left over";
}

TEST(VarnelBeamGeo, IsDegeneratedIfItIsShortOrItsFirstLineIs) {
    EXPECT_FALSE(chain({a, b}).isDegenerated());
    const struct {
        double length;
        bool degenerated;
    } rows[] = {{0.0, true}, {0.99e-4, true}, {1e-4, false}, {1.01e-4, false}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.length);
        const KzVector3D end(row.length, 0.0, 0.0);
        EXPECT_EQ(row.degenerated, chain({a, end}).isDegenerated());
        EXPECT_EQ(row.degenerated, chain({a, end, c}).isDegenerated()) << "long, but its first line is not";
    }
}

TEST(VarnelBeamGeo, OnlyTheFirstLineIsAskedForItsLength) {
    EXPECT_FALSE(chain({a, b, b, c}).isDegenerated());
    EXPECT_FALSE(chain({a, b, c, c}).isDegenerated());
    EXPECT_TRUE(chain({a, a, b, c}).isDegenerated());
}

TEST(VarnelBeamGeo, IsDegeneratedIfTwoOfFourLinesEndOnOnePoint) {
    const auto withSharedEnd = [](const Points &corners) {
        auto axis = std::make_unique<VarnelBeamGeo>(chain(corners));
        axis->addLine(new VarnelStraight(new VarnelPoint(d), axis->getLine(0)->getEnd()));
        return axis;
    };
    EXPECT_FALSE(withSharedEnd({a, b, c})->isDegenerated()) << "three lines are not asked";
    EXPECT_TRUE(withSharedEnd({a, b, c, d})->isDegenerated());
    EXPECT_FALSE(chain({a, b, c, b, c}).isDegenerated()) << "equal places are no shared point";
}

TEST(VarnelBeamGeo, TheCentreOfGravityLeavesTheLastPointOut) {
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), chain({{1.0, 2.0, 3.0}, {9.0, 9.0, 9.0}}).getCOG())
        << "a single line has it in its start";
    EXPECT_TRUE(isNear(KzVector3D(2.0, 0.0, 0.0), chain({a, b, c}).getCOG()));
    // a-b of length 4 and b-c of length 3; c-d does not count.
    EXPECT_TRUE(
        isNear(KzVector3D((4.0 * 2.0 + 3.0 * 4.0) / 7.0, 4.5 / 7.0, 0.0), chain({a, b, c, d}).getCOG()));
    EXPECT_EQ(KzVector3D(), VarnelBeamGeo().getCOG());
}

TEST(VarnelBeamGeo, TheCentreOfGravityIsFoundForChainsOfAnyLength) {
    for (const std::size_t n : {2u, 63u, 64u, 65u, 66u, 1000u}) {
        SCOPED_TRACE(n);
        VarnelBeamGeo axis;
        for (std::size_t i = 0; i <= n; ++i) axis.addVertex(KzVector3D(1.0, static_cast<double>(i), 5.0));
        const double middle = static_cast<double>(n - 1) / 2.0;
        EXPECT_TRUE(isNear(KzVector3D(1.0, middle, 5.0), axis.getCOG(), 1e-9));
    }
}

}  // namespace
