#include "varnel/members/BoundaryListing.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <vector>

#include "varnel/members/VarnelLineBoundaryData.h"

namespace {

using varnel::BoundaryList;

TEST(BoundaryListing, AppendsInOrderNullsIncluded) {
    VarnelLineBoundaryData a, b;
    BoundaryList entries;
    varnel::list(&a, entries);
    varnel::list(nullptr, entries);
    varnel::list(&b, entries);
    EXPECT_EQ((BoundaryList{&a, nullptr, &b}), entries);
    varnel::unlistAll(entries);
    EXPECT_TRUE(entries.empty());
}

TEST(BoundaryListing, ADyingRecordLeavesEveryListThatListsIt) {
    BoundaryList first, second;
    VarnelLineBoundaryData neighbour;
    auto dying = std::make_unique<VarnelLineBoundaryData>();
    varnel::list(dying.get(), first);
    varnel::list(&neighbour, first);
    varnel::list(dying.get(), second);
    varnel::list(dying.get(), first);
    dying.reset();
    EXPECT_EQ((BoundaryList{&neighbour}), first);
    EXPECT_TRUE(second.empty());
    varnel::unlistAll(first);
}

TEST(BoundaryListing, RemovesAllEntriesOfARecordFromThatListOnly) {
    BoundaryList first, second;
    VarnelLineBoundaryData a, b;
    for (VarnelLineBoundaryData *record : {&a, &b, &a}) varnel::list(record, first);
    varnel::list(&a, second);
    varnel::unlist(&a, first);
    EXPECT_EQ((BoundaryList{&b}), first);
    EXPECT_EQ((BoundaryList{&a}), second);
    varnel::unlist(&a, first);
    EXPECT_EQ((BoundaryList{&b}), first);
    varnel::unlistAll(first);
    varnel::unlistAll(second);
}

TEST(BoundaryListing, RemovesNullEntriesToo) {
    BoundaryList entries;
    VarnelLineBoundaryData a;
    varnel::list(nullptr, entries);
    varnel::list(&a, entries);
    varnel::list(nullptr, entries);
    varnel::unlist(nullptr, entries);
    EXPECT_EQ((BoundaryList{&a}), entries);
    varnel::unlistAll(entries);
}

TEST(BoundaryListing, RecordsForgetAListThatWasEmptied) {
    VarnelLineBoundaryData outliving;
    {
        BoundaryList entries;
        varnel::list(&outliving, entries);
        varnel::list(&outliving, entries);
        varnel::unlistAll(entries);
    }
    BoundaryList next;
    varnel::list(&outliving, next);
    EXPECT_EQ((BoundaryList{&outliving}), next);
    varnel::unlistAll(next);
}

TEST(BoundaryListing, CopiesOfARecordAreNotListed) {
    BoundaryList entries;
    VarnelLineBoundaryData listed;
    varnel::list(&listed, entries);
    {
        VarnelLineBoundaryData copy(listed), assigned;
        assigned = listed;
    }
    EXPECT_EQ((BoundaryList{&listed}), entries);
    listed = VarnelLineBoundaryData();
    EXPECT_EQ((BoundaryList{&listed}), entries);
    varnel::unlistAll(entries);
}

TEST(BoundaryListing, AgreesWithPlainListsOverManySteps) {
    std::mt19937 random(11);
    std::vector<std::unique_ptr<VarnelLineBoundaryData>> records(12);
    BoundaryList entries[2], expected[2];
    for (int step = 0; step < 100000; ++step) {
        auto &record = records[random() % records.size()];
        const std::size_t which = random() % 2;
        switch (random() % 8) {
            case 0:
                for (BoundaryList &plain : expected) plain.remove(record.get());
                if (!record)
                    for (BoundaryList &listed : entries) varnel::unlist(nullptr, listed);
                record.reset();
                break;
            case 1:
                varnel::unlist(record.get(), entries[which]);
                expected[which].remove(record.get());
                break;
            case 2:
                if (random() % 20 != 0) break;
                varnel::unlistAll(entries[which]);
                expected[which].clear();
                break;
            default:
                if (!record && random() % 4 != 0) record = std::make_unique<VarnelLineBoundaryData>();
                varnel::list(record.get(), entries[which]);
                expected[which].push_back(record.get());
        }
        ASSERT_EQ(expected[0], entries[0]) << "step " << step;
        ASSERT_EQ(expected[1], entries[1]) << "step " << step;
    }
    for (BoundaryList &listed : entries) varnel::unlistAll(listed);
}

}  // namespace
