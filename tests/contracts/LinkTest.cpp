#include "varnel/contracts/Link.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <vector>

namespace {

struct Target : varnel::LinkTarget {
    int value = 7;
};

using Link = varnel::Link<Target>;

TEST(Link, IsNullAtFirstAndHoldsWhatIsSet) {
    Target target;
    Link link;
    EXPECT_EQ(link.get(), nullptr);
    link.set(&target);
    EXPECT_EQ(link.get(), &target);
    link.set(&target);
    EXPECT_EQ(link.get(), &target);
    link.set(nullptr);
    EXPECT_EQ(link.get(), nullptr);
}

TEST(Link, BecomesNullWhenItsTargetDies) {
    Link first, second;
    {
        Target target;
        first.set(&target);
        second.set(&target);
    }
    EXPECT_EQ(first.get(), nullptr);
    EXPECT_EQ(second.get(), nullptr);
    Target next;
    first.set(&next);
    EXPECT_EQ(first.get(), &next);
}

TEST(Link, CopiesOfATargetHaveNoLinks) {
    auto target = std::make_unique<Target>();
    Link link;
    link.set(target.get());
    {
        Target copy(*target);
        copy = *target;
    }
    EXPECT_EQ(link.get(), target.get());
    target.reset();
    EXPECT_EQ(link.get(), nullptr);
}

TEST(Link, MayLieInItsOwnTarget) {
    struct Selfish : varnel::LinkTarget {
        varnel::Link<Selfish> self;
    };
    auto selfish = std::make_unique<Selfish>();
    selfish->self.set(selfish.get());
    EXPECT_EQ(selfish->self.get(), selfish.get());
}

TEST(Link, FollowsRandomSettingsAndDeaths) {
    std::mt19937 random(7);
    std::vector<std::unique_ptr<Target>> targets(20);
    std::vector<std::unique_ptr<Link>> links(100);
    std::vector<Target *> expected(links.size());
    for (int step = 0; step < 20000; ++step) {
        const std::size_t at = random() % targets.size();
        const std::size_t link = random() % links.size();
        switch (random() % 4) {
            case 0:
                for (Target *&target : expected)
                    if (target == targets[at].get()) target = nullptr;
                targets[at].reset();
                break;
            case 1:
                if (!targets[at]) targets[at] = std::make_unique<Target>();
                break;
            case 2:
                links[link].reset();
                expected[link] = nullptr;
                break;
            default:
                if (!links[link]) links[link] = std::make_unique<Link>();
                links[link]->set(targets[at].get());
                expected[link] = targets[at].get();
        }
        for (std::size_t i = 0; i < links.size(); ++i)
            ASSERT_EQ(links[i] ? links[i]->get() : nullptr, expected[i]);
    }
}

}  // namespace
