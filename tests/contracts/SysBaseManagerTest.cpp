#include "varnel/contracts/SysBase/Manager.h"

#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <random>
#include <vector>

#include "tests/support/VirtualSlot.h"
#include "varnel/contracts/Found/FoundationManager.h"
#include "varnel/contracts/SysBase/Loadcase.h"

using SysBase::Loadcase;
using SysBase::Manager;

namespace {

/// Counts its instances, so that deletions can be seen.
class CountedCase : public Loadcase {
  public:
    explicit CountedCase(int number) : Loadcase(number) { ++alive; }
    CountedCase(const CountedCase &) = delete;
    ~CountedCase() override { --alive; }

    static int alive;
};

int CountedCase::alive = 0;

class CountingManager : public Manager {
  public:
    Loadcase *giveLoadcase(int number) override { return new CountedCase(number); }
    using Manager::removeAllLoadcases;
};

class BarrenManager : public Manager {
  public:
    Loadcase *giveLoadcase(int) override { return nullptr; }
};

Loadcase *walkToNumber(const Manager &manager, int number) {
    for (Loadcase *loadcase : manager.getLoadcases())
        if (loadcase->getNumber() == number) return loadcase;
    return nullptr;
}

Loadcase *walkToName(const Manager &manager, const std::string &name) {
    for (Loadcase *loadcase : manager.getLoadcases())
        if (loadcase->getName() == name) return loadcase;
    return nullptr;
}

}  // namespace

TEST(Manager, BeginsEmpty) {
    const Manager manager;
    EXPECT_TRUE(manager.getLoadcases().empty());
    EXPECT_EQ(manager.getCurrentLoadcase(), nullptr);
    EXPECT_FALSE(manager.hasLoadChanged());
    EXPECT_EQ(manager.getSystemBoundary(), 0);
    ASSERT_NE(manager.getFoundationManager(), nullptr);
    EXPECT_TRUE(manager.getFoundationManager()->getFoundations().empty());
}

TEST(Manager, GiveLoadcaseAddsNothing) {
    Manager manager;
    const std::unique_ptr<Loadcase> loadcase(manager.giveLoadcase(5));
    EXPECT_EQ(loadcase->getNumber(), 5);
    EXPECT_TRUE(manager.getLoadcases().empty());
}

TEST(Manager, GivesACaseToItsNumberAndMakesItOnlyWhenAsked) {
    Manager manager;
    EXPECT_EQ(manager.giveLoadcaseToNumber(3, false), nullptr);
    Loadcase *made = manager.giveLoadcaseToNumber(3, true);
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->getNumber(), 3);
    EXPECT_EQ(manager.giveLoadcaseToNumber(3, true), made);
    EXPECT_EQ(manager.giveLoadcaseToNumber(3, false), made);
    EXPECT_EQ(manager.getLoadcases().size(), 1U);
}

TEST(Manager, GivesACaseToItsNameWithTheHighestNumberPlusOne) {
    Manager manager;
    EXPECT_EQ(manager.giveLoadcaseToName("Own weight")->getNumber(), 1);
    manager.giveLoadcaseToNumber(10, true);
    Loadcase *wind = manager.giveLoadcaseToName("Wind");
    EXPECT_EQ(wind->getNumber(), 11);
    EXPECT_EQ(wind->getName(), "Wind");
    EXPECT_EQ(manager.giveLoadcaseToName("Wind"), wind);
    manager.removeLoadcase(wind, true);
    EXPECT_EQ(manager.giveLoadcaseToName("Snow")->getNumber(), 11);
}

TEST(Manager, NumbersNewCasesFromOneAfterCasesWithoutPositiveNumber) {
    Manager manager;
    manager.giveLoadcaseToNumber(-7, true);
    EXPECT_EQ(manager.giveLoadcaseToName("Wind")->getNumber(), 1);
}

TEST(Manager, NumbersSaturate) {
    Manager manager;
    manager.giveLoadcaseToNumber(INT_MAX, true);
    EXPECT_EQ(manager.giveLoadcaseToName("Wind")->getNumber(), INT_MAX);
}

TEST(Manager, FindsTheFirstOfSeveralInTheList) {
    Manager manager;
    auto *first = new Loadcase(2);
    auto *second = new Loadcase(2);
    first->setName("Wind");
    second->setName("Wind");
    manager.add(first);
    manager.add(second);
    EXPECT_EQ(manager.giveLoadcaseToNumber(2, false), first);
    EXPECT_EQ(manager.giveLoadcaseToName("Wind"), first);
    first->setName("Snow");
    EXPECT_EQ(manager.giveLoadcaseToName("Wind"), second);
    first->setName("Wind");
    EXPECT_EQ(manager.giveLoadcaseToName("Wind"), first);
    manager.removeLoadcase(first, true);
    EXPECT_EQ(manager.giveLoadcaseToNumber(2, false), second);
    EXPECT_EQ(manager.giveLoadcaseToName("Wind"), second);
}

TEST(Manager, LeavesNullAndListedCasesAlone) {
    Manager manager;
    Manager other;
    manager.add(nullptr);
    Loadcase *loadcase = manager.giveLoadcaseToNumber(1, true);
    manager.add(loadcase);
    other.add(loadcase);
    EXPECT_EQ(manager.getLoadcases().size(), 1U);
    EXPECT_TRUE(other.getLoadcases().empty());
    other.removeLoadcase(loadcase, true);
    EXPECT_EQ(manager.giveLoadcaseToNumber(1, false), loadcase);
    manager.removeLoadcase(nullptr, true);
    manager.remove(nullptr, true);
    EXPECT_EQ(manager.getLoadcases().size(), 1U);
}

TEST(Manager, AddingACaseThatWasAlteredRaisesTheFlag) {
    Manager manager;
    manager.add(new Loadcase(1));
    EXPECT_FALSE(manager.hasLoadChanged());
    auto altered = std::make_unique<Loadcase>(2);
    altered->setName("Wind");
    manager.add(altered.release());
    EXPECT_TRUE(manager.hasLoadChanged());
}

TEST(Manager, ANewNamedCaseCountsAsAChange) {
    Manager manager;
    manager.giveLoadcaseToName("Wind");
    EXPECT_TRUE(manager.hasLoadChanged());
}

TEST(Manager, SetsTheLoadFlag) {
    Manager manager;
    manager.setLoadChanged(true);
    EXPECT_TRUE(manager.hasLoadChanged());
    manager.setLoadChanged(false);
    EXPECT_FALSE(manager.hasLoadChanged());
}

TEST(Manager, ALoadChangeStaysWhenTheChangedCaseGoes) {
    Manager manager;
    Loadcase *loadcase = manager.giveLoadcaseToNumber(1, true);
    loadcase->setPrimary(false);
    manager.removeLoadcase(loadcase, true);
    EXPECT_TRUE(manager.hasLoadChanged());
}

TEST(Manager, HandsARemovedCaseToTheCallerOrDeletesIt) {
    CountingManager manager;
    const int before = CountedCase::alive;
    const std::unique_ptr<Loadcase> kept(manager.giveLoadcaseToNumber(1, true));
    Loadcase *deleted = manager.giveLoadcaseToNumber(2, true);
    manager.removeLoadcase(kept.get(), false);
    manager.remove(deleted, true);
    EXPECT_EQ(CountedCase::alive, before + 1);
    EXPECT_TRUE(manager.getLoadcases().empty());
    EXPECT_EQ(manager.giveLoadcaseToNumber(1, false), nullptr);
    EXPECT_EQ(manager.giveLoadcaseToNumber(2, false), nullptr);
    kept->setName("still alive");
    EXPECT_FALSE(manager.hasLoadChanged());
}

TEST(Manager, TakesAHandedOutCaseBack) {
    Manager manager;
    Loadcase *loadcase = manager.giveLoadcaseToNumber(1, true);
    manager.removeLoadcase(loadcase, false);
    manager.add(loadcase);
    EXPECT_EQ(manager.giveLoadcaseToNumber(1, false), loadcase);
}

TEST(Manager, DeletesACaseThatIsInNoList) {
    CountingManager manager;
    const int before = CountedCase::alive;
    manager.removeLoadcase(new CountedCase(1), true);
    EXPECT_EQ(CountedCase::alive, before);
}

TEST(Manager, DeletesItsCases) {
    const int before = CountedCase::alive;
    {
        CountingManager manager;
        manager.giveLoadcaseToNumber(1, true);
        manager.giveLoadcaseToName("Wind");
        EXPECT_EQ(CountedCase::alive, before + 2);
    }
    EXPECT_EQ(CountedCase::alive, before);
}

TEST(Manager, EmptiesTheListWithoutAFlag) {
    CountingManager manager;
    const int before = CountedCase::alive;
    manager.giveLoadcaseToNumber(4, true);
    manager.setCurrentLoadcase(4);
    manager.removeAllLoadcases();
    EXPECT_EQ(CountedCase::alive, before);
    EXPECT_TRUE(manager.getLoadcases().empty());
    EXPECT_EQ(manager.getCurrentLoadcase(), nullptr);
    EXPECT_FALSE(manager.hasLoadChanged());
    EXPECT_EQ(manager.giveLoadcaseToNumber(4, false), nullptr);
    EXPECT_EQ(manager.giveLoadcaseToName("Wind")->getNumber(), 1);
}

TEST(Manager, CurrentCaseIsTheOneOfTheNumberOrNone) {
    Manager manager;
    Loadcase *loadcase = manager.giveLoadcaseToNumber(4, true);
    manager.setCurrentLoadcase(4);
    EXPECT_EQ(manager.getCurrentLoadcase(), loadcase);
    manager.setCurrentLoadcase(5);
    EXPECT_EQ(manager.getCurrentLoadcase(), nullptr);
    manager.setCurrentLoadcase(4);
    manager.setCurrentLoadcase(-1);
    EXPECT_EQ(manager.getCurrentLoadcase(), nullptr);
}

TEST(Manager, MinusOneMeansNoCurrentCaseEvenIfACaseBearsIt) {
    Manager manager;
    manager.giveLoadcaseToNumber(-1, true);
    manager.setCurrentLoadcase(-1);
    EXPECT_EQ(manager.getCurrentLoadcase(), nullptr);
}

TEST(Manager, RemovingTheCurrentCaseLeavesNone) {
    Manager manager;
    Loadcase *loadcase = manager.giveLoadcaseToNumber(4, true);
    manager.giveLoadcaseToNumber(5, true);
    manager.setCurrentLoadcase(4);
    manager.removeLoadcase(manager.giveLoadcaseToNumber(5, false), true);
    EXPECT_EQ(manager.getCurrentLoadcase(), loadcase);
    manager.removeLoadcase(loadcase, true);
    EXPECT_EQ(manager.getCurrentLoadcase(), nullptr);
}

TEST(Manager, BearsAHostThatMakesNoCases) {
    BarrenManager manager;
    EXPECT_EQ(manager.giveLoadcaseToNumber(1, true), nullptr);
    EXPECT_EQ(manager.giveLoadcaseToName("Wind"), nullptr);
    EXPECT_TRUE(manager.getLoadcases().empty());
}

TEST(Manager, KeepsTheSystemBoundary) {
    Manager manager;
    manager.setSystemBoundary(5);
    EXPECT_EQ(manager.getSystemBoundary(), 5);
}

TEST(Manager, LookUpsAgreeWithThePlainWalk) {
    std::mt19937 random(20);
    const auto below = [&random](int limit) { return static_cast<int>(random() % unsigned(limit)); };
    Manager manager;
    std::vector<Loadcase *> cases;
    for (int step = 0; step < 100000; ++step) {
        const int action = below(10);
        const std::string name = "case " + std::to_string(below(8));
        if (cases.empty() || (action < 4 && cases.size() < 60)) {
            cases.push_back(new Loadcase(below(12)));
            if (action < 2) cases.back()->setName(name);
            manager.add(cases.back());
        } else if (action < 8) {
            cases[std::size_t(below(int(cases.size())))]->setName(name);
        } else {
            const auto place = cases.begin() + below(int(cases.size()));
            manager.removeLoadcase(*place, true);
            cases.erase(place);
        }
        ASSERT_EQ(std::vector<Loadcase *>(manager.getLoadcases().begin(), manager.getLoadcases().end()),
                  cases);
        const int number = below(12);
        ASSERT_EQ(manager.giveLoadcaseToNumber(number, false), walkToNumber(manager, number));
        if (Loadcase *found = walkToName(manager, name)) {
            ASSERT_EQ(manager.giveLoadcaseToName(name), found);
        }
    }
}

TEST(Manager, RenamesManyCasesOfOneName) {
    Manager manager;
    constexpr int count = 20000;
    for (int number = 1; number <= count; ++number) manager.giveLoadcaseToNumber(number, true);
    for (int number = 1; number <= count; ++number)
        manager.giveLoadcaseToNumber(number, false)->setName("case " + std::to_string(number));
    EXPECT_EQ(manager.giveLoadcaseToName("case 12345")->getNumber(), 12345);
    EXPECT_EQ(manager.getLoadcases().size(), std::size_t(count));
}

TEST(Manager, VirtualOperationsStandInTheirSlots) {
    EXPECT_EQ(varnel::virtualSlot(&Manager::giveLoadcase), 2);
    EXPECT_EQ(varnel::virtualSlot(&Manager::removeLoadcase), 3);
    EXPECT_EQ(varnel::virtualSlot(&Manager::giveLoadcaseToNumber), 4);
    EXPECT_EQ(varnel::virtualSlot(&Manager::setCurrentLoadcase), 5);
    EXPECT_EQ(varnel::virtualSlot(&Manager::giveLoadcaseToName), 6);
    EXPECT_EQ(varnel::virtualSlot(&Manager::remove), 7);
}
