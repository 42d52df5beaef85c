#include "varnel/contracts/Found/FoundationManager.h"

#include <gtest/gtest.h>

#include <climits>
#include <limits>
#include <random>

#include "tests/support/VirtualSlot.h"
#include "tests/support/XmlText.h"
#include "varnel/contracts/Found/Foundation.h"
#include "varnel/contracts/Found/FoundationUser.h"

using Found::Foundation;
using Found::FoundationManager;
using testsupport::build;
using testsupport::textOf;

namespace {

class OneFoundationUser : public Found::FoundationUser {
  public:
    bool checkUsed(const Foundation *foundation) override {
        ++asked;
        return foundation == used;
    }

    const Foundation *used = nullptr;
    int asked = 0;
};

KzVector3D lineOf(const Foundation &foundation) {
    KzVector3D line;
    foundation.getDispLine(line);
    return line;
}

Foundation *walkToLine(const FoundationManager &manager, const KzVector3D &line) {
    for (Foundation *foundation : manager.getFoundations())
        if (lineOf(*foundation) == line) return foundation;
    return nullptr;
}

/// Looks for all foundations, and takes another line, when it dies.
class AskingFoundation : public Foundation {
  public:
    AskingFoundation(int number, FoundationManager &manager, int &found)
        : Foundation(number, "F", KzVector3D(number, 0.0, 0.0)), manager_(manager), found_(found) {}
    AskingFoundation(const AskingFoundation &) = delete;
    AskingFoundation &operator=(const AskingFoundation &) = delete;
    ~AskingFoundation() override {
        setDispLine(KzVector3D(7.0, 7.0, 7.0));
        if (manager_.findFoundation("F")) ++found_;
        for (const int number : {1, 2}) {
            if (manager_.findFoundation(number)) ++found_;
            if (manager_.giveFoundation(Foundation(KzVector3D(number, 0.0, 0.0)), false)) ++found_;
        }
        if (manager_.giveFoundation(*this, false)) ++found_;
    }

  private:
    FoundationManager &manager_;
    int &found_;
};

constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

}  // namespace

TEST(Foundation, HoldsADisplacementLine) {
    const Foundation foundation(KzVector3D(1.0, 2.0, 3.0));
    KzVector3D line(9.0, 9.0, 9.0);
    EXPECT_TRUE(foundation.getDispLine(line));
    EXPECT_EQ(line, KzVector3D(1.0, 2.0, 3.0));
    EXPECT_EQ(foundation.getNumber(), 0);
    EXPECT_EQ(foundation.getName(), "");
    EXPECT_TRUE(foundation.getChanged());
}

TEST(Foundation, EqualsByItsDisplacementLineAlone) {
    const Foundation foundation(1, "a", KzVector3D(0.0, 2.0, 3.0));
    EXPECT_TRUE(foundation == Foundation(2, "b", KzVector3D(-0.0, 2.0, 3.0)));
    EXPECT_TRUE(foundation != Foundation(1, "a", KzVector3D(1e-300, 2.0, 3.0)));
    const Foundation broken(KzVector3D(noNumber, 0.0, 0.0));
    EXPECT_FALSE(broken == broken);
}

TEST(Foundation, SettersRaiseTheFlagWhenAValueDiffers) {
    Foundation foundation(1, "a", KzVector3D(0.0, 2.0, 3.0));
    foundation.setChanged(false);
    foundation.setName("a");
    foundation.setDispLine(KzVector3D(0.0, 2.0, 3.0));
    EXPECT_FALSE(foundation.getChanged());
    foundation.setName("b");
    EXPECT_TRUE(foundation.getChanged());
    foundation.setChanged(false);
    foundation.setDispLine(KzVector3D(0.0, 2.0, 4.0));
    EXPECT_TRUE(foundation.getChanged());
}

TEST(FoundationManager, GivesTheEqualFoundationOrMakesIt) {
    FoundationManager manager;
    const Foundation wanted(KzVector3D(0.0, 0.0, 1000.0));
    EXPECT_EQ(manager.giveFoundation(wanted, false), nullptr);
    Foundation *made = manager.giveFoundation(wanted, true);
    ASSERT_NE(made, nullptr);
    EXPECT_NE(made, &wanted);
    EXPECT_EQ(made->getNumber(), 1);
    EXPECT_EQ(made->getName(), "F1");
    EXPECT_TRUE(made->getChanged());
    EXPECT_EQ(lineOf(*made), KzVector3D(0.0, 0.0, 1000.0));
    EXPECT_EQ(manager.giveFoundation(wanted, true), made);
    EXPECT_EQ(manager.giveFoundation(wanted, false), made);
    EXPECT_EQ(manager.giveFoundation(Foundation(KzVector3D(-0.0, 0.0, 1000.0)), true), made);
    EXPECT_NE(manager.giveFoundation(Foundation(KzVector3D(1e-300, 0.0, 1000.0)), true), made);
    EXPECT_EQ(manager.getFoundations().size(), 2U);
}

TEST(FoundationManager, NumbersNewFoundationsBehindTheHighest) {
    FoundationManager manager;
    manager.add(new Foundation(7, "x", KzVector3D(7.0, 0.0, 0.0)));
    Foundation *made = manager.giveFoundation(Foundation(KzVector3D()), true);
    EXPECT_EQ(made->getNumber(), 8);
    EXPECT_EQ(made->getName(), "F8");
    manager.add(new Foundation(INT_MAX, "y", KzVector3D(8.0, 0.0, 0.0)));
    EXPECT_EQ(manager.giveFoundation(Foundation(KzVector3D(9.0, 0.0, 0.0)), true)->getNumber(), INT_MAX);
}

TEST(FoundationManager, MakesANewOneForEachLineWithNaN) {
    FoundationManager manager;
    const Foundation wanted(KzVector3D(noNumber, 0.0, 0.0));
    Foundation *first = manager.giveFoundation(wanted, true);
    EXPECT_NE(manager.giveFoundation(wanted, true), first);
    EXPECT_EQ(manager.giveFoundation(wanted, false), nullptr);
    EXPECT_TRUE(manager.remove(first));
}

TEST(FoundationManager, FindsByNameAndNumber) {
    FoundationManager manager;
    auto *first = new Foundation(3, "a", KzVector3D());
    auto *second = new Foundation(3, "a", KzVector3D(1.0, 0.0, 0.0));
    manager.add(first);
    manager.add(second);
    manager.add(first);
    manager.add(nullptr);
    EXPECT_EQ(manager.getFoundations().size(), 2U);
    EXPECT_EQ(manager.findFoundation(3), first);
    EXPECT_EQ(manager.findFoundation("a"), first);
    EXPECT_EQ(manager.findFoundation(4), nullptr);
    EXPECT_EQ(manager.findFoundation("b"), nullptr);
    first->setName("b");
    EXPECT_EQ(manager.findFoundation("a"), second);
    EXPECT_EQ(manager.findFoundation("b"), first);
    EXPECT_TRUE(manager.remove(first));
    EXPECT_EQ(manager.findFoundation(3), second);
}

TEST(FoundationManager, FollowsANewDisplacementLine) {
    FoundationManager manager;
    Foundation *foundation = manager.giveFoundation(Foundation(KzVector3D(1.0, 0.0, 0.0)), true);
    foundation->setDispLine(KzVector3D(2.0, 0.0, 0.0));
    EXPECT_EQ(manager.giveFoundation(Foundation(KzVector3D(1.0, 0.0, 0.0)), false), nullptr);
    EXPECT_EQ(manager.giveFoundation(Foundation(KzVector3D(2.0, 0.0, 0.0)), false), foundation);
    foundation->setDispLine(KzVector3D(noNumber, 0.0, 0.0));
    EXPECT_EQ(manager.giveFoundation(Foundation(KzVector3D(2.0, 0.0, 0.0)), false), nullptr);
    Foundation copy(*foundation);
    copy.setDispLine(KzVector3D(3.0, 0.0, 0.0));
    EXPECT_EQ(manager.giveFoundation(Foundation(KzVector3D(3.0, 0.0, 0.0)), false), nullptr);
}

TEST(FoundationManager, RemovesNothingThatAUserNeeds) {
    OneFoundationUser user;
    {
        FoundationManager manager;
        manager.addUser(&user);
        Foundation *needed = manager.giveFoundation(Foundation(KzVector3D(1.0, 0.0, 0.0)), true);
        Foundation *spare = manager.giveFoundation(Foundation(KzVector3D(2.0, 0.0, 0.0)), true);
        Foundation stranger{KzVector3D()};
        user.used = needed;
        EXPECT_FALSE(manager.remove(needed));
        EXPECT_TRUE(manager.remove(spare));
        EXPECT_FALSE(manager.remove(&stranger));
        EXPECT_FALSE(manager.remove(nullptr));
        EXPECT_EQ(manager.getFoundations(), std::vector<Foundation *>{needed});
        manager.removeUser(&user);
        user.asked = 0;
        EXPECT_TRUE(manager.remove(needed));
        manager.addUser(&user);
        manager.giveFoundation(Foundation(KzVector3D()), true);
    }
    EXPECT_EQ(user.asked, 0);  // nobody is asked while the manager dies
}

TEST(FoundationManager, ADyingFoundationIsFoundNoMore) {
    int found = 0;
    FoundationManager manager;
    auto *foundation = new AskingFoundation(1, manager, found);
    manager.add(foundation);
    EXPECT_TRUE(manager.remove(foundation));
    EXPECT_EQ(found, 0);
    EXPECT_EQ(manager.giveFoundation(Foundation(KzVector3D(7.0, 7.0, 7.0)), false), nullptr);
}

TEST(FoundationManager, WhenItDiesItsFoundationsFindNoneOfEachOther) {
    int found = 0;
    {
        FoundationManager manager;
        for (const int number : {1, 2}) manager.add(new AskingFoundation(number, manager, found));
        ASSERT_NE(manager.findFoundation(1), nullptr);
    }
    EXPECT_EQ(found, 0);
}

TEST(FoundationManager, LookUpsAgreeWithThePlainWalk) {
    std::mt19937 random(5);
    const auto value = [&random]() {
        const double values[] = {0.0, -0.0, 1.0, noNumber};
        return values[random() % 4];
    };
    FoundationManager manager;
    for (int step = 0; step < 100000; ++step) {
        const KzVector3D line(value(), value(), 0.0);
        const auto &all = manager.getFoundations();
        const auto action = random() % 10;
        if (action < 3 || all.empty()) {
            manager.add(new Foundation(static_cast<int>(random() % 9), "", line));
        } else if (action < 6) {
            all[random() % all.size()]->setDispLine(line);
        } else if (action < 9) {
            ASSERT_TRUE(manager.remove(all[random() % all.size()]));
        }
        ASSERT_EQ(manager.giveFoundation(Foundation(line), false), walkToLine(manager, line));
    }
}

TEST(FoundationManager, WritesAndReadsItsElement) {
    FoundationManager source;
    source.giveFoundation(Foundation(KzVector3D(0.1, -0.0, 1e30)), true);
    source.add(new Foundation(12, "soft", KzVector3D(1.0, 2.0, 3.0)));
    KzXmlTree tree("VARNEL");
    source.updateXml(&tree);
    EXPECT_EQ(tree.getCursor(), tree.getRoot());
    const std::string text = textOf(tree);
    EXPECT_NE(textOf(tree, false).find(R"(<FOUNDATIONS><FOUNDATION NUMBER="1" NAME="F1"><DISP><X>0.1</X>)"),
              std::string::npos)
        << text;
    FoundationManager target;
    target.createFromXml(tree.getRoot());
    ASSERT_EQ(target.getFoundations().size(), 2U);
    EXPECT_EQ(lineOf(*target.findFoundation(1)), KzVector3D(0.1, 0.0, 1e30));
    EXPECT_EQ(lineOf(*target.findFoundation("soft")), KzVector3D(1.0, 2.0, 3.0));
    EXPECT_EQ(target.findFoundation(12)->getName(), "soft");
    target.updateXml(&tree);
    EXPECT_EQ(textOf(tree), text);
}

TEST(FoundationManager, ReadsHostileElementsSafely) {
    FoundationManager manager;
    KzXmlTree tree("VARNEL");
    build(tree,
          R"(<VARNEL><FOUNDATIONS><FOUNDATION NAME="no number"/><OTHER NUMBER="1"/>)"
          R"(<FOUNDATION NUMBER="2"/><FOUNDATION NUMBER="2" NAME="two"><DISP><Y>5</Y></DISP></FOUNDATION>)"
          R"(<FOUNDATION NUMBER="99999999999"><DISP><X>nan</X></DISP></FOUNDATION>)"
          R"(</FOUNDATIONS></VARNEL>)");
    manager.createFromXml(tree.getRoot());
    ASSERT_EQ(manager.getFoundations().size(), 2U);
    EXPECT_EQ(manager.findFoundation(2)->getName(), "two");
    EXPECT_EQ(lineOf(*manager.findFoundation(2)), KzVector3D(0.0, 5.0, 0.0));
    EXPECT_EQ(manager.findFoundation(INT_MAX)->getName(), "F2147483647");
    manager.createFromXml(nullptr);
    manager.updateXml(nullptr);
}

TEST(FoundationManager, DropsFoundationsThatAreGoneAndLeavesForeignElements) {
    FoundationManager manager;
    manager.giveFoundation(Foundation(KzVector3D(1.0, 0.0, 0.0)), true);
    KzXmlTree tree("VARNEL");
    build(tree, R"(<VARNEL><FOUNDATIONS><FOUNDATION NUMBER="9"/><NOTE>n</NOTE>)"
                R"(<FOUNDATION NUMBER="1"><SOIL/></FOUNDATION></FOUNDATIONS></VARNEL>)");
    manager.updateXml(&tree);
    const auto &children = tree.getRoot()->findChild("FOUNDATIONS")->getChildren();
    ASSERT_EQ(children.size(), 2U);
    EXPECT_EQ(children[0]->getData(), "n");
    EXPECT_NE(children[1]->findChild("SOIL"), nullptr);
    EXPECT_NE(children[1]->findChild("DISP"), nullptr);
}

TEST(FoundationUser, AsksThroughItsSecondSlot) {
    EXPECT_EQ(varnel::virtualSlot(&Found::FoundationUser::checkUsed), 2);
}
