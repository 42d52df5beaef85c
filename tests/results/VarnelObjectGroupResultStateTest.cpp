#include "varnel/results/VarnelObjectGroupResultState.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <random>
#include <type_traits>
#include <vector>

#include "varnel/results/VarnelNodeResultLocation.h"

namespace {

/// The record that a plain walk along the list finds.
VarnelNodeResultLocation *walkTo(const VarnelObjectGroupResultState &state, const KzVector3D &position) {
    for (VarnelNodeResultLocation *record : state.getNodalResults())
        if (record->getCoor() == position) return record;
    return nullptr;
}

TEST(VarnelObjectGroupResultState, GivesOneRecordForEachExactPosition) {
    VarnelObjectGroupResultState state;
    EXPECT_TRUE(state.getNodalResults().empty());
    EXPECT_FALSE(std::is_polymorphic<VarnelObjectGroupResultState>::value);
    const KzVector3D position(1.0, 2.0, 3.0);
    VarnelNodeResultLocation *record = state.giveResultPosition(position);
    ASSERT_NE(nullptr, record);
    EXPECT_EQ(position, record->getCoor());
    EXPECT_EQ(record, state.giveResultPosition(position));
    VarnelNodeResultLocation *near = state.giveResultPosition(KzVector3D(std::nextafter(1.0, 2.0), 2.0, 3.0));
    EXPECT_NE(record, near);
    EXPECT_EQ((std::list<VarnelNodeResultLocation *>{record, near}), state.getNodalResults());
}

TEST(VarnelObjectGroupResultState, TheSignOfZeroMakesNoPosition) {
    VarnelObjectGroupResultState state;
    EXPECT_EQ(state.giveResultPosition(KzVector3D(0.0, 0.0, 0.0)),
              state.giveResultPosition(KzVector3D(-0.0, 0.0, -0.0)));
}

TEST(VarnelObjectGroupResultState, EveryNaNGetsARecordOfItsOwn) {
    VarnelObjectGroupResultState state;
    const KzVector3D position(std::nan(""), 0.0, 0.0);
    EXPECT_NE(state.giveResultPosition(position), state.giveResultPosition(position));
    EXPECT_EQ(2U, state.getNodalResults().size());
}

TEST(VarnelObjectGroupResultState, ClearFreesAllRecords) {
    VarnelObjectGroupResultState state;
    state.giveResultPosition(KzVector3D(1.0, 0.0, 0.0))->setForce(KzVector3D(9.0, 0.0, 0.0));
    state.clear();
    EXPECT_TRUE(state.getNodalResults().empty());
    EXPECT_EQ(KzVector3D(), state.giveResultPosition(KzVector3D(1.0, 0.0, 0.0))->getForce());
    EXPECT_EQ(1U, state.getNodalResults().size());
}

TEST(VarnelObjectGroupResultState, CopiesShareTheirRecords) {
    auto source = std::make_unique<VarnelObjectGroupResultState>();
    VarnelNodeResultLocation *record = source->giveResultPosition(KzVector3D(1.0, 0.0, 0.0));
    VarnelObjectGroupResultState copy(*source);
    VarnelObjectGroupResultState assigned;
    assigned.giveResultPosition(KzVector3D(5.0, 0.0, 0.0));
    assigned = *source;
    const VarnelObjectGroupResultState &same = assigned;
    assigned = same;
    VarnelNodeResultLocation *own = copy.giveResultPosition(KzVector3D(2.0, 0.0, 0.0));
    EXPECT_EQ(1U, source->getNodalResults().size());
    source.reset();
    record->setCoor(KzVector3D(3.0, 0.0, 0.0));
    EXPECT_EQ(record, copy.giveResultPosition(KzVector3D(3.0, 0.0, 0.0)));
    EXPECT_EQ(own, copy.giveResultPosition(KzVector3D(2.0, 0.0, 0.0)));
    EXPECT_EQ(record, assigned.giveResultPosition(KzVector3D(3.0, 0.0, 0.0)));
    EXPECT_EQ(2U, copy.getNodalResults().size());
    EXPECT_EQ(1U, assigned.getNodalResults().size());
}

TEST(VarnelObjectGroupResultState, ClearingOneOfTwoLeavesTheOther) {
    VarnelObjectGroupResultState source;
    VarnelNodeResultLocation *record = source.giveResultPosition(KzVector3D(1.0, 0.0, 0.0));
    VarnelObjectGroupResultState copy(source);
    source.clear();
    EXPECT_EQ(record, copy.giveResultPosition(KzVector3D(1.0, 0.0, 0.0)));
    EXPECT_NE(record, source.giveResultPosition(KzVector3D(1.0, 0.0, 0.0)));
}

TEST(VarnelObjectGroupResultState, FindsARecordWhereItWasMovedTo) {
    VarnelObjectGroupResultState state;
    VarnelNodeResultLocation *first = state.giveResultPosition(KzVector3D(1.0, 0.0, 0.0));
    VarnelNodeResultLocation *second = state.giveResultPosition(KzVector3D(2.0, 0.0, 0.0));
    first->setCoor(KzVector3D(2.0, 0.0, 0.0));
    EXPECT_EQ(first, state.giveResultPosition(KzVector3D(2.0, 0.0, 0.0)));
    static_cast<VarnelPoint &>(*first) = VarnelPoint(KzVector3D(7.0, 0.0, 0.0));
    EXPECT_EQ(second, state.giveResultPosition(KzVector3D(2.0, 0.0, 0.0)));
    EXPECT_EQ(first, state.giveResultPosition(KzVector3D(7.0, 0.0, 0.0)));
    EXPECT_EQ(2U, state.getNodalResults().size());
}

TEST(VarnelObjectGroupResultState, AnswersAsAPlainWalkDoes) {
    std::mt19937 random(3);
    std::uniform_int_distribution<int> coordinate(-4, 4);
    std::uniform_int_distribution<int> hundred(0, 99);
    const auto place = [&] { return KzVector3D(coordinate(random), 0.1 * coordinate(random), -0.0); };
    std::vector<std::unique_ptr<VarnelObjectGroupResultState>> states(2);
    for (auto &state : states) state = std::make_unique<VarnelObjectGroupResultState>();
    for (int step = 0; step < 100000; ++step) {
        auto &state = states[static_cast<std::size_t>(step % 2)];
        const int what = hundred(random);
        const auto &records = state->getNodalResults();
        if (what < 10 && !records.empty()) {
            records.front()->setCoor(place());
        } else if (what == 10) {
            state->clear();
        } else if (what == 11) {
            *state = *states[static_cast<std::size_t>((step + 1) % 2)];
        } else if (what == 12) {
            state = std::make_unique<VarnelObjectGroupResultState>(*state);
        } else {
            const KzVector3D position = place();
            VarnelNodeResultLocation *expected = walkTo(*state, position);
            VarnelNodeResultLocation *given = state->giveResultPosition(position);
            ASSERT_EQ(expected ? expected : state->getNodalResults().back(), given);
            ASSERT_EQ(given, walkTo(*state, position));
        }
    }
}

}  // namespace
