#include "varnel/contracts/Shared.h"

#include <gtest/gtest.h>

#include <functional>
#include <list>
#include <utility>

#include "varnel/contracts/Lists.h"

namespace {

struct Counted : varnel::Shared {
    explicit Counted(int *dead) : dead_(dead) {}
    Counted(const Counted &) = default;
    Counted &operator=(const Counted &) = default;
    ~Counted() { ++*dead_; }
    int *dead_;
};

using Held = varnel::Held<Counted>;

TEST(Shared, IsBornAndCopiedWithoutOwners) {
    int dead = 0;
    Counted source(&dead);
    source.acquire();
    const Counted copy(source);
    EXPECT_EQ(copy.owners(), 0U);
    Counted target(&dead);
    target.acquire();
    target.acquire();
    target = source;
    EXPECT_EQ(target.owners(), 2U);
    EXPECT_EQ(source.owners(), 1U);
}

TEST(Shared, AnObjectThatNobodyAcquiredIsNeverFreed) {
    int dead = 0;
    Counted local(&dead);
    EXPECT_FALSE(local.release());
    varnel::release(&local);
    EXPECT_EQ(dead, 0);
    EXPECT_EQ(local.owners(), 0U);
}

TEST(Shared, TheLastReleaseDeletesAndLettingGoNeverDoes) {
    int dead = 0;
    auto *object = new Counted(&dead);
    varnel::acquire(object);
    varnel::acquire(object);
    varnel::release(object);
    EXPECT_EQ(dead, 0);
    varnel::letGo(object);
    EXPECT_EQ(dead, 0);
    varnel::acquire(object);
    varnel::release(object);
    EXPECT_EQ(dead, 1);
    varnel::acquire<Counted>(nullptr);
    varnel::release<Counted>(nullptr);
    varnel::letGo<Counted>(nullptr);
}

TEST(Held, KeepsItsObjectAliveTogetherWithItsCopies) {
    int dead = 0;
    Held first(new Counted(&dead));
    {
        Held second(first);
        Held third;
        third = second;
        EXPECT_EQ(first->owners(), 3U);
        const Held fourth(std::move(third));
        EXPECT_EQ(first->owners(), 3U);
        EXPECT_FALSE(third);
    }
    EXPECT_EQ(first->owners(), 1U);
    EXPECT_EQ(dead, 0);
    first.reset();
    EXPECT_EQ(dead, 1);
    EXPECT_EQ(first.get(), nullptr);
}

TEST(Held, MayBeSetToWhatItHolds) {
    int dead = 0;
    Held held(new Counted(&dead));
    held.reset(held.get());
    const Held &self = held;
    held = self;
    held.replace(held.get());
    EXPECT_EQ(dead, 0);
    EXPECT_EQ(held->owners(), 1U);
}

TEST(Held, ReplacingHandsTheFormerObjectToTheCaller) {
    int dead = 0;
    auto *former = new Counted(&dead);
    Held held(former);
    held.replace(new Counted(&dead));
    EXPECT_EQ(dead, 0);
    EXPECT_EQ(former->owners(), 0U);
    delete former;
    EXPECT_EQ(dead, 1);
    held.reset();
    EXPECT_EQ(dead, 2);
    held.replace();
    EXPECT_EQ(held.get(), nullptr);
}

TEST(Held, LeavesTheObjectThatReplacementLetGo) {
    int dead = 0;
    auto *former = new Counted(&dead);
    {
        Held held(former);
        held.replace();
    }
    EXPECT_EQ(dead, 0);
    delete former;
}

TEST(Lists, AreEmptyBeforeTheFirstDestructorRuns) {
    struct Looking {
        explicit Looking(std::function<void()> look) : look_(std::move(look)) {}
        Looking(const Looking &) = delete;
        ~Looking() { look_(); }
        std::function<void()> look_;
    };
    std::list<Looking *> list;
    int seen = 0;
    const auto look = [&] {
        EXPECT_TRUE(list.empty());
        ++seen;
    };
    for (int i = 0; i < 3; ++i) list.push_back(new Looking(look));
    list.push_back(nullptr);
    varnel::deleteAll(list);
    EXPECT_EQ(seen, 3);
    EXPECT_TRUE(list.empty());
}

TEST(Lists, ShareTheirObjects) {
    int dead = 0;
    std::list<Counted *> first = {new Counted(&dead), nullptr, new Counted(&dead)};
    varnel::acquireAll(first);
    std::list<Counted *> second = first;
    varnel::acquireAll(second);
    varnel::releaseAll(first);
    EXPECT_TRUE(first.empty());
    EXPECT_EQ(dead, 0);
    varnel::releaseAll(second);
    EXPECT_EQ(dead, 2);
}

}  // namespace
