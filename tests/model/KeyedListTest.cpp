#include "varnel/model/KeyedList.h"

#include <gtest/gtest.h>

#include <limits>
#include <list>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "varnel/geometry/VarnelPosition.h"
#include "varnel/model/VarnelObjectGroup.h"

using varnel::NumberedList;

namespace {

class Numbered : public VarnelPosition {
  public:
    explicit Numbered(int number = 0) { setNumber(number); }
    void setName(const std::string &name) override { name_ = name; }
    const std::string &getName() const override { return name_; }

  private:
    std::string name_;
};

/// More objects than are walked, numbered from 1.
std::vector<std::unique_ptr<Numbered>> fill(NumberedList<Numbered> &list, int count = 50) {
    std::vector<std::unique_ptr<Numbered>> objects;
    for (int i = 1; i <= count; ++i) {
        objects.push_back(std::make_unique<Numbered>(i));
        list.append(objects.back().get());
    }
    return objects;
}

Numbered *walk(const std::list<Numbered *> &list, int number) {
    for (Numbered *object : list)
        if (object && object->getNumber() == number) return object;
    return nullptr;
}

int walkToNext(const std::list<Numbered *> &list) {
    int highest = 0;
    for (const Numbered *object : list)
        if (object && object->getNumber() > highest) highest = object->getNumber();
    return highest == std::numeric_limits<int>::max() ? highest : highest + 1;
}

}  // namespace

TEST(NumberedList, FollowsNumbersThatAreSetOnTheObjects) {
    NumberedList<Numbered> list;
    const auto objects = fill(list);
    EXPECT_EQ(list.find(7), objects[6].get());
    objects[6]->setNumber(700);
    EXPECT_EQ(list.find(7), nullptr);
    EXPECT_EQ(list.find(700), objects[6].get());
    EXPECT_EQ(list.nextNumber(), 701);
    const Numbered other(9);
    *objects[6] = other;
    EXPECT_EQ(list.find(700), nullptr);
    EXPECT_EQ(list.find(9), objects[6].get()) << "it stands before the other 9";
    EXPECT_EQ(list.nextNumber(), 51);
}

TEST(NumberedList, FindsTheFirstOfSeveralWithOneNumber) {
    NumberedList<Numbered> list;
    const auto objects = fill(list);
    EXPECT_EQ(list.find(40), objects[39].get());
    objects[45]->setNumber(40);
    EXPECT_EQ(list.find(40), objects[39].get());
    objects[2]->setNumber(40);
    EXPECT_EQ(list.find(40), objects[2].get());
    list.erase(objects[2].get());
    EXPECT_EQ(list.find(40), objects[39].get());
}

TEST(NumberedList, NextNumberIsAtLeastOneAndStaysAtTheLargest) {
    for (const int count : {1, 50}) {
        NumberedList<Numbered> list;
        EXPECT_EQ(list.nextNumber(), 1);
        const auto objects = fill(list, count);
        for (const auto &object : objects) object->setNumber(-5);
        EXPECT_EQ(list.nextNumber(), 1);
        objects[0]->setNumber(std::numeric_limits<int>::max());
        EXPECT_EQ(list.nextNumber(), std::numeric_limits<int>::max());
    }
}

TEST(NumberedList, CopiesOfAnObjectAreNotFound) {
    NumberedList<Numbered> list;
    const auto objects = fill(list);
    EXPECT_EQ(list.nextNumber(), 51);
    Numbered copied(*objects[3]);
    copied.setNumber(99);
    EXPECT_EQ(list.find(99), nullptr);
    EXPECT_EQ(list.find(4), objects[3].get());
}

TEST(NumberedList, AnObjectThatDiesLeavesTheNumbers) {
    NumberedList<Numbered> list;
    auto objects = fill(list);
    EXPECT_EQ(list.nextNumber(), 51);
    objects[49].reset();
    EXPECT_EQ(list.nextNumber(), 50);
    EXPECT_EQ(list.find(50), nullptr);
    list.clear();
}

TEST(NumberedList, TwoListsThatShareObjectsAnswerIndependently) {
    NumberedList<Numbered> first;
    const auto objects = fill(first);
    EXPECT_EQ(first.find(5), objects[4].get());
    NumberedList<Numbered> second(first);
    EXPECT_EQ(second.find(5), objects[4].get());
    objects[4]->setNumber(500);
    EXPECT_EQ(first.find(500), objects[4].get());
    EXPECT_EQ(second.find(500), objects[4].get());
    first.erase(objects[4].get());
    EXPECT_EQ(first.find(500), nullptr);
    EXPECT_EQ(second.find(500), objects[4].get());
    EXPECT_EQ(second.nextNumber(), 501);
}

TEST(NumberedList, AListThatHoldsAnObjectTwiceIsWalked) {
    NumberedList<Numbered> list;
    const auto objects = fill(list);
    EXPECT_EQ(list.nextNumber(), 51);
    list.append(objects[0].get());
    EXPECT_EQ(list.find(1), objects[0].get());
    list.erase(objects[0].get());
    EXPECT_EQ(list.find(1), nullptr);
    EXPECT_EQ(list.find(2), objects[1].get());
}

TEST(NumberedList, ObjectsOutliveTheList) {
    std::vector<std::unique_ptr<Numbered>> objects;
    {
        NumberedList<Numbered> list;
        objects = fill(list);
        EXPECT_EQ(list.nextNumber(), 51);
    }
    for (const auto &object : objects) object->setNumber(3);
    EXPECT_EQ(objects[0]->getNumber(), 3);
}

TEST(NumberedList, NumbersAnewWithoutLosingAnybody) {
    NumberedList<Numbered> list;
    const auto objects = fill(list, 1000);
    EXPECT_EQ(list.nextNumber(), 1001);
    for (const auto &object : objects) object->setNumber(object->getNumber() + 5000);
    EXPECT_EQ(list.nextNumber(), 6001);
    for (const auto &object : objects) EXPECT_EQ(list.find(object->getNumber()), object.get());
}

TEST(NumberedList, AnswersAsAPlainWalkDoes) {
    std::mt19937 random(11);
    std::vector<std::unique_ptr<Numbered>> objects;
    NumberedList<Numbered> list;
    std::list<Numbered *> plain;
    for (int step = 0; step < 100000; ++step) {
        const int number = static_cast<int>(random() % 60) - 5;
        Numbered *object = objects.empty() ? nullptr : objects[random() % objects.size()].get();
        switch (random() % 8) {
            case 0:
                if (objects.size() > 200) break;
                objects.push_back(std::make_unique<Numbered>(number));
                list.append(objects.back().get());
                plain.push_back(objects.back().get());
                break;
            case 1:
                if (random() % 50 == 0) {  // now and then a second entry, or none
                    list.append(object);
                    plain.push_back(object);
                }
                break;
            case 2:
                list.erase(object);
                plain.remove(object);
                break;
            case 3:
            case 4:
                if (object) object->setNumber(number);
                break;
            case 5:
                ASSERT_EQ(list.nextNumber(), walkToNext(plain));
                break;
            case 6:
                ASSERT_EQ(list.find(number), walk(plain, number));
                break;
            default:
                if (random() % 2000 == 0) {
                    list.clear();
                    plain.clear();
                    objects.clear();
                } else if (random() % 500 == 0) {
                    const auto low = [number](const Numbered *one) {
                        return one && one->getNumber() < number;
                    };
                    list.eraseIf(low);
                    plain.remove_if(low);
                }
        }
    }
    ASSERT_EQ(list.list(), plain);
}

TEST(KeyedListOfNames, FollowsNamesThatAreSetOnTheObjects) {
    varnel::NamedObjects<VarnelObjectGroup> list;
    std::vector<std::unique_ptr<VarnelObjectGroup>> groups;
    for (int i = 0; i < 40; ++i) {
        groups.push_back(std::make_unique<VarnelObjectGroup>("G" + std::to_string(i)));
        list.append(groups.back().get());
    }
    EXPECT_EQ(list.find("G7"), groups[7].get());
    groups[7]->setName("roof");
    EXPECT_EQ(list.find("G7"), nullptr);
    EXPECT_EQ(list.find("roof"), groups[7].get());
    *groups[3] = *groups[7];
    EXPECT_EQ(list.find("roof"), groups[3].get()) << "it stands before the other one";
    const VarnelObjectGroup copied(*groups[9]);
    EXPECT_EQ(list.find("G9"), groups[9].get());
    list.update([&](VarnelObjectGroup *&group) { return group != groups[3].get(); });
    EXPECT_EQ(list.find("roof"), groups[7].get());
    EXPECT_TRUE(list.eraseFirst(groups[7].get()));
    EXPECT_FALSE(list.eraseFirst(groups[7].get()));
    EXPECT_EQ(list.find("roof"), nullptr);
}

TEST(KeyedListOfNames, AnObjectThatIsGoneIsTakenOutUntouched) {
    varnel::NamedObjects<VarnelObjectGroup> list;
    std::vector<std::unique_ptr<VarnelObjectGroup>> groups;
    for (int i = 0; i < 50; ++i) {
        groups.push_back(std::make_unique<VarnelObjectGroup>(std::to_string(i)));
        list.append(groups.back().get());
    }
    EXPECT_EQ(list.find("4"), groups[4].get());
    const VarnelObjectGroup *gone = groups[4].get();
    groups[4].reset();
    EXPECT_EQ(list.erase(gone), 1U);
    EXPECT_EQ(list.list().size(), 49U);
    EXPECT_EQ(list.find("4"), nullptr);
    EXPECT_EQ(list.find("5"), groups[5].get());
    gone = groups[5].get();
    groups[5].reset();
    EXPECT_TRUE(list.eraseFirst(gone));
    EXPECT_EQ(list.find("6"), groups[6].get());
}
