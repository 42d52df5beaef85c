#include "varnel/contracts/SDBSection.h"

#include <gtest/gtest.h>

#include <functional>

#include "tests/support/VirtualSlot.h"
#include "varnel/contracts/SDBSectionDatabase.h"
#include "varnel/contracts/SDBSectionLine.h"
#include "varnel/contracts/SDBSectionUser.h"

namespace {

class OneSectionUser : public SDBSectionUser {
  public:
    bool checkUsed(const SDBSection *section) override {
        ++asked;
        return section == used;
    }

    const SDBSection *used = nullptr;
    int asked = 0;
};

}  // namespace

TEST(SDBSection, HoldsNameAndArea) {
    const SDBSection section("slab", 0.25);
    EXPECT_EQ(section.getName(), "slab");
    EXPECT_EQ(section.getArea(), 0.25);
    EXPECT_TRUE(section.getChanged());
    EXPECT_TRUE(section.isUserDefined());
}

TEST(SDBSectionLine, HasAShapeAndItsArea) {
    const SDBSectionLine general("G", 0.06);
    EXPECT_EQ(general.getKind(), SDBSectionLine::GENERAL);
    EXPECT_EQ(general.getArea(), 0.06);
    EXPECT_EQ(general.getWidth(), 0.0);
    EXPECT_EQ(general.getHeight(), 0.0);
    EXPECT_EQ(general.getDiameter(), 0.0);
    const auto rectangle = SDBSectionLine::makeRectangle("R", 0.25, 0.5);
    EXPECT_EQ(rectangle->getKind(), SDBSectionLine::RECT);
    EXPECT_EQ(rectangle->getWidth(), 0.25);
    EXPECT_EQ(rectangle->getHeight(), 0.5);
    EXPECT_EQ(rectangle->getDiameter(), 0.0);
    EXPECT_EQ(rectangle->getArea(), 0.125);
    const auto circle = SDBSectionLine::makeCircle("D", 2.0);
    EXPECT_EQ(circle->getKind(), SDBSectionLine::CIRCLE);
    EXPECT_EQ(circle->getDiameter(), 2.0);
    EXPECT_EQ(circle->getWidth(), 0.0);
    EXPECT_NEAR(circle->getArea(), 3.14159265358979, 1e-14);
}

TEST(SDBSectionLine, SettersRaiseTheFlagWhenAValueDiffers) {
    const struct {
        const char *name;
        std::function<void(SDBSectionLine &)> apply;
        bool counts;
    } rows[] = {
        {"name", [](SDBSectionLine &section) { section.setName("other"); }, true},
        {"same name", [](SDBSectionLine &section) { section.setName("R"); }, false},
        {"width", [](SDBSectionLine &section) { section.setRectangle(0.3, 0.5); }, true},
        {"turned", [](SDBSectionLine &section) { section.setRectangle(0.5, 0.25); }, true},
        {"same rectangle", [](SDBSectionLine &section) { section.setRectangle(0.25, 0.5); }, false},
        {"circle", [](SDBSectionLine &section) { section.setCircle(0.5); }, true},
        {"general of that area", [](SDBSectionLine &section) { section.setArea(0.125); }, true},
        {"generated", [](SDBSectionLine &section) { section.setUserDefined(false); }, true},
        {"same origin", [](SDBSectionLine &section) { section.setUserDefined(true); }, false},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const auto section = SDBSectionLine::makeRectangle("R", 0.25, 0.5);
        section->setChanged(false);
        row.apply(*section);
        EXPECT_EQ(section->getChanged(), row.counts);
    }
}

TEST(SDBSectionManager, FindsTheFirstOfAName) {
    SDBSectionManager manager;
    auto *first = new SDBSectionLine("R", 1.0);
    auto *second = new SDBSection("R", 2.0);
    manager.add(first);
    manager.add(second);
    manager.add(first);
    manager.add(nullptr);
    EXPECT_EQ(manager.getSections(), (std::vector<SDBSection *>{first, second}));
    EXPECT_EQ(manager.findSectionToName("R"), first);
    EXPECT_EQ(manager.findSectionToName("S"), nullptr);
    first->setName("S");
    EXPECT_EQ(manager.findSectionToName("R"), second);
    EXPECT_EQ(manager.findSectionToName("S"), first);
}

TEST(SDBSectionManager, RemovesNothingThatAUserNeeds) {
    SDBSectionManager manager;
    OneSectionUser user;
    auto *needed = new SDBSectionLine("R", 1.0);
    auto *spare = new SDBSectionLine("S", 1.0);
    SDBSectionLine stranger("T", 1.0);
    manager.add(needed);
    manager.add(spare);
    manager.addUser(&user);
    user.used = needed;
    EXPECT_FALSE(manager.remove(needed));
    EXPECT_TRUE(manager.remove(spare));
    EXPECT_FALSE(manager.remove(&stranger));
    EXPECT_FALSE(manager.remove(nullptr));
    EXPECT_EQ(manager.getSections().size(), 1U);
    manager.removeUser(&user);
    EXPECT_TRUE(manager.remove(needed));
    EXPECT_EQ(manager.findSectionToName("R"), nullptr);
}

TEST(SDBSectionManager, RemovesGeneratedSectionsThatNobodyNeeds) {
    SDBSectionManager manager;
    OneSectionUser user;
    auto *own = new SDBSectionLine("own", 1.0);
    auto *generated = new SDBSectionLine("generated", 1.0);
    auto *needed = new SDBSectionLine("needed", 1.0);
    generated->setUserDefined(false);
    needed->setUserDefined(false);
    user.used = needed;
    manager.addUser(&user);
    manager.add(own);
    manager.add(generated);
    manager.add(needed);
    manager.removeNotUserDefined();
    EXPECT_EQ(manager.getSections(), (std::vector<SDBSection *>{own, needed}));
    EXPECT_EQ(manager.findSectionToName("generated"), nullptr);
}

TEST(SDBSectionManager, AsksNobodyWhileItDies) {
    OneSectionUser user;
    std::weak_ptr<const void> life;
    {
        SDBSectionManager manager;
        life = manager.lifetime();
        manager.add(new SDBSectionLine("R", 1.0));
        manager.addUser(&user);
        EXPECT_FALSE(life.expired());
    }
    EXPECT_EQ(user.asked, 0);
    EXPECT_TRUE(life.expired());
}

TEST(SDBSectionDatabase, HoldsRectanglesAndCircles) {
    const SDBSectionDatabase &database = *SDBSectionDatabase::get();
    EXPECT_EQ(database.getSections().size(), 6U * 9U + 9U);
    for (const int width : {20, 24, 25, 30, 40, 50})
        for (int height = 20; height <= 100; height += 10) {
            const std::string name = "R " + std::to_string(width) + "/" + std::to_string(height);
            SCOPED_TRACE(name);
            const auto *section = dynamic_cast<SDBSectionLine *>(database.findSectionToName(name));
            ASSERT_NE(section, nullptr);
            EXPECT_EQ(section->getKind(), SDBSectionLine::RECT);
            EXPECT_EQ(section->getWidth(), width / 100.0);
            EXPECT_EQ(section->getHeight(), height / 100.0);
            EXPECT_FALSE(section->getChanged());
        }
    for (int diameter = 20; diameter <= 100; diameter += 10) {
        const auto *section =
            dynamic_cast<SDBSectionLine *>(database.findSectionToName("D " + std::to_string(diameter)));
        ASSERT_NE(section, nullptr);
        EXPECT_EQ(section->getDiameter(), diameter / 100.0);
    }
    EXPECT_EQ(database.findSectionToName("R 21/20"), nullptr);
    EXPECT_EQ(database.findSectionToName(""), nullptr);
}

TEST(SDBSectionUser, AsksThroughItsSecondSlot) {
    EXPECT_EQ(varnel::virtualSlot(&SDBSectionUser::checkUsed), 2);
}
