#include "varnel/model/PointerList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <list>
#include <random>
#include <vector>

#include "varnel/contracts/KzVector3D.h"
#include "varnel/geometry/VarnelPoint.h"

using varnel::PointerList;

namespace {

struct Thing {
    int value = 0;
};

}  // namespace

TEST(PointerList, KeepsTheOrderOfEntries) {
    std::vector<Thing> things(40);
    PointerList<Thing> list;
    for (Thing &thing : things) list.append(&thing);
    list.erase(&things[20]);
    auto entry = list.list().begin();
    for (std::size_t i = 0; i < things.size(); ++i) {
        if (i == 20) continue;
        EXPECT_EQ(*entry++, &things[i]);
    }
    EXPECT_EQ(entry, list.list().end());
}

TEST(PointerList, ErasesEveryEntryOfOneObject) {
    for (const std::size_t length : {3U, 100U}) {
        std::vector<Thing> things(length);
        PointerList<Thing> list;
        for (Thing &thing : things) list.append(&thing);
        list.append(&things[1]);
        list.append(nullptr);
        list.append(nullptr);
        EXPECT_EQ(list.erase(&things[1]), 2U);
        EXPECT_EQ(list.erase(&things[1]), 0U);
        EXPECT_TRUE(list.contains(nullptr));
        EXPECT_EQ(list.erase(nullptr), 2U);
        EXPECT_FALSE(list.contains(nullptr));
        EXPECT_EQ(list.list().size(), length - 1);
    }
}

TEST(PointerList, ComparesAddressesOfObjectParts) {
    VarnelPoint point{KzVector3D()};
    PointerList<VarnelPoint> list;
    list.append(&point);
    EXPECT_TRUE(list.containsAddress(static_cast<const VarnelObject *>(&point)));
    EXPECT_TRUE(list.contains(&point));
}

TEST(PointerList, CopiesTheEntriesAndNotTheTable) {
    std::vector<Thing> things(50);
    PointerList<Thing> list;
    for (Thing &thing : things) list.append(&thing);
    EXPECT_TRUE(list.contains(&things[3]));
    PointerList<Thing> copied(list);
    list.erase(&things[3]);
    EXPECT_TRUE(copied.contains(&things[3]));
    copied = list;
    EXPECT_FALSE(copied.contains(&things[3]));
    copied = *&copied;
    EXPECT_EQ(copied.list().size(), 49U);
}

TEST(PointerList, UpdatesEntriesInPlace) {
    std::vector<Thing> things(30);
    for (std::size_t i = 0; i < things.size(); ++i) things[i].value = static_cast<int>(i);
    Thing substitute;
    PointerList<Thing> list;
    for (Thing &thing : things) list.append(&thing);
    EXPECT_TRUE(list.contains(&things[0]));
    list.update([&substitute](Thing *&thing) {
        if (thing->value == 5) thing = &substitute;
        return thing->value % 2 == 0;
    });
    EXPECT_EQ(list.list().size(), 16U);
    EXPECT_TRUE(list.contains(&substitute));
    EXPECT_FALSE(list.contains(&things[5]));
    EXPECT_FALSE(list.contains(&things[7]));
}

TEST(PointerList, AnswersAsAPlainListDoes) {
    std::mt19937 random(7);
    std::vector<Thing> things(60);
    PointerList<Thing> list;
    std::list<Thing *> plain;
    for (int step = 0; step < 100000; ++step) {
        const std::size_t pick = random() % (things.size() + 1);
        Thing *thing = pick == things.size() ? nullptr : &things[pick];
        switch (random() % 5) {
            case 0:
            case 1:
                list.append(thing);
                plain.push_back(thing);
                break;
            case 2: {
                const std::size_t before = plain.size();
                plain.remove(thing);
                ASSERT_EQ(list.erase(thing), before - plain.size());
                break;
            }
            case 3:
                ASSERT_EQ(list.contains(thing), std::find(plain.begin(), plain.end(), thing) != plain.end());
                break;
            default:
                if (random() % 200 == 0) {
                    ASSERT_EQ(list.take(), plain);
                    plain.clear();
                }
        }
        if (step % 100 == 0) {
            ASSERT_EQ(list.list(), plain);
        }
    }
}
