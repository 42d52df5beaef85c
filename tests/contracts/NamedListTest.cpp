#include "varnel/contracts/NamedList.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>

namespace {

struct Item {
    explicit Item(const std::string &name) : name_(name) {}
    varnel::ListedName<Item> name_;
};

using List = varnel::NamedList<Item>;

/// Looks for its neighbours when it dies.
struct Asking {
    Asking(const std::string &name, const varnel::NamedList<Asking> &list, int &found)
        : name_(name), list_(list), found_(found) {}
    Asking(const Asking &) = delete;
    Asking &operator=(const Asking &) = delete;
    ~Asking() {
        for (const char *name : {"a", "b", "c"})
            if (list_.find(name)) ++found_;
        name_.set("d");
    }

    varnel::ListedName<Asking> name_;
    const varnel::NamedList<Asking> &list_;
    int &found_;
};

Item *walk(const List &list, const std::string &name) {
    for (Item *item : list.items())
        if (item->name_.get() == name) return item;
    return nullptr;
}

}  // namespace

TEST(NamedList, TakesOverAnObjectOnce) {
    List list;
    List other;
    auto *item = new Item("a");
    EXPECT_TRUE(list.add(item));
    EXPECT_FALSE(list.add(item));
    EXPECT_FALSE(other.add(item));
    EXPECT_FALSE(list.add(nullptr));
    EXPECT_EQ(list.items(), std::vector<Item *>{item});
    EXPECT_TRUE(list.owns(item));
    EXPECT_FALSE(other.owns(item));
    EXPECT_FALSE(list.owns(nullptr));
}

TEST(NamedList, HandsAnObjectOut) {
    List list;
    auto *item = new Item("a");
    list.add(item);
    list.setChanged(false);
    EXPECT_TRUE(list.take(item));
    const std::unique_ptr<Item> mine(item);
    EXPECT_TRUE(list.changed());
    EXPECT_FALSE(list.take(item));
    EXPECT_EQ(list.find("a"), nullptr);
    list.setChanged(false);
    EXPECT_TRUE(item->name_.set("b"));
    EXPECT_FALSE(list.changed());
}

TEST(NamedList, RaisesItsFlagForAnotherName) {
    List list;
    auto *item = new Item("a");
    list.add(item);
    EXPECT_TRUE(list.changed());
    list.setChanged(false);
    EXPECT_FALSE(item->name_.set("a"));
    EXPECT_FALSE(list.changed());
    EXPECT_TRUE(item->name_.set("b"));
    EXPECT_TRUE(list.changed());
    list.setChanged(false);
    item->name_.markChanged();
    EXPECT_TRUE(list.changed());
}

TEST(NamedList, CopiesAndAssignmentsOfANameLeaveTheListAlone) {
    List list;
    auto *item = new Item("a");
    list.add(item);
    Item copy(*item);
    EXPECT_FALSE(list.owns(&copy));
    copy.name_.set("c");
    EXPECT_EQ(list.find("a"), item);
    item->name_ = copy.name_;
    EXPECT_EQ(list.find("c"), item);
    EXPECT_EQ(list.find("a"), nullptr);
    EXPECT_TRUE(list.owns(item));
}

TEST(NamedList, DeletesWhatATestPicks) {
    List list;
    for (const char *name : {"keep", "drop", "keep", "drop", "last"}) list.add(new Item(name));
    list.deleteIf([](const Item *item) { return item->name_.get() == "drop"; });
    ASSERT_EQ(list.items().size(), 3U);
    EXPECT_EQ(list.items()[2]->name_.get(), "last");
    EXPECT_EQ(list.find("drop"), nullptr);
    EXPECT_EQ(list.find("keep"), list.items()[0]);
}

TEST(NamedList, WhenItDiesItsObjectsFindNoneOfEachOther) {
    int found = 0;
    {
        varnel::NamedList<Asking> list;
        for (const char *name : {"a", "b", "c"}) list.add(new Asking(name, list, found));
        ASSERT_NE(list.find("a"), nullptr);
    }
    EXPECT_EQ(found, 0);
}

TEST(NamedList, LookUpsAgreeWithThePlainWalk) {
    std::mt19937 random(3);
    const auto below = [&random](std::size_t limit) { return random() % limit; };
    List list;
    for (int step = 0; step < 100000; ++step) {
        const std::string name = std::to_string(below(6));
        const auto action = below(10);
        if (action < 4 || list.items().empty()) {
            list.add(new Item(name));
        } else if (action < 7) {
            list.items()[below(list.items().size())]->name_.set(name);
        } else if (action < 9) {
            Item *item = list.items()[below(list.items().size())];
            ASSERT_TRUE(list.take(item));
            delete item;
        } else {
            list.deleteIf([&name](const Item *item) { return item->name_.get() == name; });
        }
        for (const char *asked : {"0", "1", "2", "3", "4", "5", "6"})
            ASSERT_EQ(list.find(asked), walk(list, asked));
    }
}
