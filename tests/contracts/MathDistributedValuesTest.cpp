#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "varnel/contracts/Math/DistributedValues.h"

namespace {

using Values = std::vector<double>;

struct Answer {
    bool usable;
    double result;
    double second;
};

Answer linearly(const Values &xi, const Values &values, double length, double from = 0.0, double to = 1.0) {
    Answer answer{false, 42.0, 43.0};
    answer.usable =
        Math::DistributedValues(xi, values, length).integrateLinearly(from, to, answer.result, answer.second);
    return answer;
}

Answer quadratically(const Values &xi, const Values &values, double length, double from = 0.0,
                     double to = 1.0) {
    Answer answer{false, 42.0, 43.0};
    answer.usable = Math::DistributedValues(xi, values, length)
                        .integrateQuadratically(from, to, answer.result, answer.second);
    return answer;
}

void expectAnswer(double result, double second, const Answer &answer) {
    EXPECT_TRUE(answer.usable);
    EXPECT_NEAR(result, answer.result, 1e-12 * (1.0 + std::fabs(result)));
    EXPECT_NEAR(second, answer.second, 1e-12 * (1.0 + std::fabs(second)));
}

TEST(MathDistributedValues, AConstantGivesLengthTimesValue) {
    expectAnswer(20.0, 50.0, linearly({0.0, 1.0}, {4.0, 4.0}, 5.0));
    expectAnswer(20.0, 50.0, quadratically({0.0, 1.0}, {4.0, 4.0}, 5.0));
    expectAnswer(20.0, 50.0, quadratically({0.0, 0.3, 1.0}, {4.0, 4.0, 4.0}, 5.0));
}

TEST(MathDistributedValues, ATriangleHasItsMomentAtTwoThirds) {
    expectAnswer(6.0, 24.0, linearly({0.0, 1.0}, {0.0, 2.0}, 6.0));
    expectAnswer(6.0, 24.0, quadratically({0.0, 1.0}, {0.0, 2.0}, 6.0));
}

TEST(MathDistributedValues, LinearGoesStraightBetweenStations) {
    EXPECT_DOUBLE_EQ(2.0, linearly({0.0, 0.5, 1.0}, {0.0, 4.0, 0.0}, 1.0).result);
    EXPECT_DOUBLE_EQ(0.5 * 0.25 * 2.0, linearly({0.0, 0.5, 1.0}, {0.0, 4.0, 0.0}, 1.0, 0.0, 0.25).result);
}

TEST(MathDistributedValues, ParabolasAreIntegratedExactly) {
    const auto parabola = [](double x) { return 3.0 - 2.0 * x + 5.0 * x * x; };
    for (const Values &xi : {Values{0.0, 0.5, 1.0}, Values{0.0, 0.2, 1.0}, Values{0.0, 0.1, 0.7, 1.0},
                             Values{0.0, 0.2, 0.4, 0.9, 1.0}}) {
        SCOPED_TRACE(xi.size());
        Values values;
        for (const double x : xi) values.push_back(parabola(x));
        expectAnswer(2.0 * (3.0 - 1.0 + 5.0 / 3.0), 4.0 * (1.5 - 2.0 / 3.0 + 1.25),
                     quadratically(xi, values, 2.0));
        const auto primitive = [](double x) { return 3.0 * x - x * x + 5.0 / 3.0 * x * x * x; };
        EXPECT_NEAR(2.0 * (primitive(0.8) - primitive(0.15)),
                    quadratically(xi, values, 2.0, 0.15, 0.8).result, 1e-12);
    }
}

TEST(MathDistributedValues, BeyondTheOuterStationsAValueGoesOn) {
    expectAnswer(0.25 * 2.0 + 0.5 * 3.0 + 0.25 * 4.0,
                 0.0625 + 0.5 * 3.0 * 0.5 + 4.0 * 0.5 * 0.5 * 0.5 / 12.0 + 0.875,
                 linearly({0.25, 0.75}, {2.0, 4.0}, 1.0));
    EXPECT_DOUBLE_EQ(3.0, quadratically({0.25, 0.75}, {2.0, 4.0}, 1.0).result);
    EXPECT_DOUBLE_EQ(2.0 * 3.0 + 3.0 + 2.0 * 3.5, linearly({0.0, 1.0}, {3.0, 3.0}, 1.0, -2.0, 1.0).result +
                                                      linearly({0.0, 1.0}, {2.0, 3.5}, 1.0, 1.0, 3.0).result);
}

TEST(MathDistributedValues, ASingleStationIsAConstant) {
    expectAnswer(14.0, 14.0, linearly({0.5}, {7.0}, 2.0));
    expectAnswer(14.0, 14.0, quadratically({0.5}, {7.0}, 2.0));
}

TEST(MathDistributedValues, TwoValuesAtOneStationAreAJump) {
    const Values xi = {0.0, 0.5, 0.5, 1.0};
    expectAnswer(0.5 * 1.0 + 0.5 * 3.0, 0.125 + 1.125, linearly(xi, {1.0, 1.0, 3.0, 3.0}, 1.0));
    expectAnswer(0.5 * 1.0 + 0.5 * 3.0, 0.125 + 1.125, quadratically(xi, {1.0, 1.0, 3.0, 3.0}, 1.0));
    EXPECT_DOUBLE_EQ(3.0, linearly({0.0, 0.0}, {1.0, 3.0}, 1.0).result);
}

TEST(MathDistributedValues, BackwardLimitsChangeTheSign) {
    EXPECT_DOUBLE_EQ(-20.0, linearly({0.0, 1.0}, {4.0, 4.0}, 5.0, 1.0, 0.0).result);
    EXPECT_DOUBLE_EQ(0.0, linearly({0.0, 1.0}, {4.0, 4.0}, 5.0, 0.5, 0.5).result);
}

TEST(MathDistributedValues, UnusableStationsLeaveTheOutputsAlone) {
    const double nan = std::nan("");
    struct Row {
        const char *what;
        Values xi;
        Values values;
        double to;
    };
    for (const Row &row :
         {Row{"none", {}, {}, 1.0}, Row{"falling", {0.0, 1.0, 0.5}, {1.0, 1.0, 1.0}, 1.0},
          Row{"too few values", {0.0, 1.0}, {1.0}, 1.0}, Row{"too many values", {0.0}, {1.0, 1.0}, 1.0},
          Row{"not a number", {0.0, nan, 1.0}, {1.0, 1.0, 1.0}, 1.0},
          Row{"endless", {0.0, INFINITY}, {1.0, 1.0}, 1.0}, Row{"limit", {0.0, 1.0}, {1.0, 1.0}, nan}}) {
        SCOPED_TRACE(row.what);
        for (const Answer &answer : {linearly(row.xi, row.values, 1.0, 0.0, row.to),
                                     quadratically(row.xi, row.values, 1.0, 0.0, row.to)}) {
            EXPECT_FALSE(answer.usable);
            EXPECT_EQ(42.0, answer.result);
            EXPECT_EQ(43.0, answer.second);
        }
    }
}

}  // namespace
