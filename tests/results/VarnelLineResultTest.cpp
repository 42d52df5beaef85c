#include "varnel/results/VarnelLineResult.h"

#include <gtest/gtest.h>

#include <cmath>
#include <type_traits>

namespace {

VarnelLineResultData support(double pos, double minFz, double maxFz = 1000.0) {
    VarnelLineResultData data;
    data.setPos(pos);
    data.setMinFz(minFz);
    data.setMaxFz(maxFz);
    return data;
}

TEST(VarnelLineResultData, BeginsAsAnEmptyEnvelope) {
    const VarnelLineResultData data;
    EXPECT_EQ(1e10, data.getMinFz());
    EXPECT_EQ(-1e10, data.getMaxFz());
    EXPECT_EQ(1e10, data.getMinMx());
    EXPECT_EQ(-1e10, data.getMaxMx());
    EXPECT_EQ(1e10, data.getMinMy());
    EXPECT_EQ(-1e10, data.getMaxMy());
    EXPECT_TRUE(std::is_trivially_copyable<VarnelLineResultData>::value);
}

TEST(VarnelLineResultData, HoldsAndCopiesItsValues) {
    VarnelLineResultData data;
    data.setMinFz(1.0);
    data.setMaxFz(2.0);
    data.setMinMx(3.0);
    data.setMaxMx(4.0);
    data.setMinMy(5.0);
    data.setMaxMy(6.0);
    data.setPos(7.0);
    const VarnelLineResultData copy = data;
    EXPECT_EQ(1.0, copy.getMinFz());
    EXPECT_EQ(2.0, copy.getMaxFz());
    EXPECT_EQ(3.0, copy.getMinMx());
    EXPECT_EQ(4.0, copy.getMaxMx());
    EXPECT_EQ(5.0, copy.getMinMy());
    EXPECT_EQ(6.0, copy.getMaxMy());
    EXPECT_EQ(7.0, copy.getPos());
}

TEST(VarnelLineResult, GivesItsEnvelopesByReference) {
    VarnelLineResult result;
    result.getStart().setMinFz(1.0);
    result.getMid().setMinFz(2.0);
    result.getEnd().setMinFz(3.0);
    const VarnelLineResult &read = result;
    EXPECT_EQ(1.0, read.getStart().getMinFz());
    EXPECT_EQ(2.0, read.getMid().getMinFz());
    EXPECT_EQ(3.0, read.getEnd().getMinFz());
    EXPECT_TRUE(std::has_virtual_destructor<VarnelLineResult>::value);
}

TEST(VarnelLineResult, CopiesAllFields) {
    VarnelLineResult source;
    source.getStart().setMinFz(1.0);
    source.getMid().setMinFz(2.0);
    source.getEnd().setMinFz(3.0);
    source.add(support(0.0, 4.0));
    const VarnelLineResult copy(source);
    VarnelLineResult assigned;
    assigned.add(support(0.0, 9.0));
    assigned = source;
    const VarnelLineResult &same = assigned;
    assigned = same;
    source.removeSupports();
    EXPECT_TRUE(source.getSupports().empty());
    for (const VarnelLineResult *result : {&copy, static_cast<const VarnelLineResult *>(&assigned)}) {
        EXPECT_EQ(1.0, result->getStart().getMinFz());
        EXPECT_EQ(2.0, result->getMid().getMinFz());
        EXPECT_EQ(3.0, result->getEnd().getMinFz());
        ASSERT_EQ(1U, result->getSupports().size());
        EXPECT_EQ(4.0, result->getSupports()[0].getMinFz());
    }
}

TEST(VarnelLineResult, TheResultantOfNoSupportsIsZero) {
    EXPECT_EQ(0.0, VarnelLineResult().getResultant(true));
    EXPECT_EQ(0.0, VarnelLineResult().getResultant(false));
}

TEST(VarnelLineResult, TheResultantTakesTheMinimaNotTheMaxima) {
    VarnelLineResult result;
    result.add(support(0.0, 10.0, 99.0));
    result.add(support(4.0, 20.0, 99.0));
    EXPECT_DOUBLE_EQ(60.0, result.getResultant(true));
    EXPECT_DOUBLE_EQ(60.0, result.getResultant(false));
}

TEST(VarnelLineResult, TheResultantGoesStraightOrAlongParabolas) {
    VarnelLineResult result;
    result.add(support(0.0, 0.0));
    result.add(support(3.0, 9.0));
    result.add(support(6.0, 0.0));
    EXPECT_DOUBLE_EQ(27.0, result.getResultant(true));
    EXPECT_DOUBLE_EQ(36.0, result.getResultant(false));
}

TEST(VarnelLineResult, TheResultantGoesOnBeforeTheFirstSupport) {
    VarnelLineResult result;
    result.add(support(1.0, 10.0));
    result.add(support(2.0, 10.0));
    EXPECT_DOUBLE_EQ(20.0, result.getResultant(true));
}

TEST(VarnelLineResult, PositionsThatMakeNoLineGiveZero) {
    VarnelLineResult atZero;
    atZero.add(support(0.0, 10.0));
    VarnelLineResult endsAtZero;
    endsAtZero.add(support(1.0, 10.0));
    endsAtZero.add(support(0.0, 10.0));
    VarnelLineResult unordered;
    for (const double pos : {0.0, 2.0, 1.0, 3.0}) unordered.add(support(pos, 10.0));
    VarnelLineResult notANumber;
    notANumber.add(support(std::nan(""), 10.0));
    for (const VarnelLineResult *result : {&atZero, &endsAtZero, &unordered, &notANumber}) {
        EXPECT_EQ(0.0, result->getResultant(true));
        EXPECT_EQ(0.0, result->getResultant(false));
    }
}

}  // namespace
