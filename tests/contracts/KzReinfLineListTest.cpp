#include "varnel/contracts/KzReinfLineList.h"

#include <gtest/gtest.h>

#include <climits>
#include <memory>

#include "tests/support/VirtualSlot.h"
#include "tests/support/XmlText.h"
#include "varnel/contracts/KzMaterialManager.h"
#include "varnel/contracts/KzMaterialReinforcement.h"
#include "varnel/contracts/KzReinfLine.h"
#include "varnel/contracts/KzReinfLineUser.h"
#include "varnel/contracts/SDBSectionDatabase.h"
#include "varnel/contracts/SDBSectionLine.h"

using testsupport::build;
using testsupport::textOf;

namespace {

class OneLineUser : public KzReinfLineUser {
  public:
    bool checkUsed(const KzReinfLine *line) override {
        ++asked;
        return line == used;
    }

    const KzReinfLine *used = nullptr;
    int asked = 0;
};

}  // namespace

TEST(KzReinfLine, HoldsNumberNameSectionAndSteel) {
    KzReinfLine line(4, "top");
    EXPECT_EQ(line.getNumber(), 4);
    EXPECT_EQ(line.getName(), "top");
    EXPECT_EQ(line.getSection(), nullptr);
    EXPECT_EQ(line.getReinforcement(), nullptr);
    SDBSectionLine section("R", 1.0);
    KzMaterialReinforcement steel("B", 1.0, 1.0);
    line.setName("bottom");
    line.setSection(&section);
    line.setReinforcement(&steel);
    EXPECT_EQ(line.getName(), "bottom");
    EXPECT_EQ(line.getSection(), &section);
    EXPECT_EQ(line.getReinforcement(), &steel);
}

TEST(KzReinfLineList, FindsTheFirstOfANumber) {
    KzReinfLineList list(nullptr);
    auto *first = new KzReinfLine(2, "a");
    auto *second = new KzReinfLine(2, "b");
    list.add(first);
    list.add(second);
    list.add(first);
    list.add(nullptr);
    EXPECT_EQ(list.getLines(), (std::vector<KzReinfLine *>{first, second}));
    EXPECT_EQ(list.findBeamReinf(2), first);
    EXPECT_EQ(list.findBeamReinf(3), nullptr);
    EXPECT_TRUE(list.remove(first));
    EXPECT_EQ(list.findBeamReinf(2), second);
    EXPECT_TRUE(list.remove(second));
    EXPECT_EQ(list.findBeamReinf(2), nullptr);
}

TEST(KzReinfLineList, RemovesNothingThatAUserNeeds) {
    OneLineUser user;
    {
        KzReinfLineList list(nullptr);
        list.addUser(&user);
        auto *line = new KzReinfLine(1, "a");
        KzReinfLine stranger(2, "b");
        list.add(line);
        user.used = line;
        EXPECT_FALSE(list.remove(line));
        EXPECT_FALSE(list.remove(&stranger));
        EXPECT_FALSE(list.remove(nullptr));
        EXPECT_EQ(user.asked, 1);
    }
    EXPECT_EQ(user.asked, 1);  // nobody is asked while the list dies
}

TEST(KzReinfLineList, WhenItDiesItsLinesFindNoneOfEachOther) {
    struct Asking : KzReinfLine {
        Asking(int number, const KzReinfLineList &lines, int &hits)
            : KzReinfLine(number, ""), list(lines), found(hits) {}
        Asking(const Asking &) = delete;
        Asking &operator=(const Asking &) = delete;
        ~Asking() override {
            for (const int number : {1, 2})
                if (list.findBeamReinf(number)) ++found;
        }
        const KzReinfLineList &list;
        int &found;
    };
    int found = 0;
    {
        KzReinfLineList list(nullptr);
        for (const int number : {1, 2}) list.add(new Asking(number, list, found));
        ASSERT_NE(list.findBeamReinf(1), nullptr);
    }
    EXPECT_EQ(found, 0);
}

TEST(KzReinfLineList, IsAUserOfTheSteelOfItsLines) {
    KzMaterialManager materials("List");
    auto *steel = new KzMaterialReinforcement("B", 1.0, 1.0);
    materials.add(steel);
    KzReinfLineList list(nullptr);
    materials.addUser(&list);
    auto *line = new KzReinfLine(1, "a");
    list.add(line);
    EXPECT_FALSE(list.checkUsed(steel));
    EXPECT_FALSE(list.checkUsed(nullptr));
    line->setReinforcement(steel);
    EXPECT_TRUE(list.checkUsed(steel));
    EXPECT_FALSE(materials.remove(steel));
    line->setReinforcement(nullptr);
    EXPECT_TRUE(materials.remove(steel));
    materials.removeUser(&list);
}

TEST(KzReinfLineList, KeepsTheSectionsOfItsLinesAlive) {
    SDBSectionManager sections;
    auto *section = new SDBSectionLine("R", 1.0);
    sections.add(section);
    {
        KzReinfLineList list(&sections);
        list.add(new KzReinfLine(1, "a"));
        list.findBeamReinf(1)->setSection(section);
        EXPECT_FALSE(sections.remove(section));
    }
    EXPECT_TRUE(sections.remove(section));
}

TEST(KzReinfLineList, OutlivesItsSections) {
    auto sections = std::make_unique<SDBSectionManager>();
    KzReinfLineList list(sections.get());
    sections.reset();
    KzXmlTree tree("DESIGNS");
    build(tree, R"(<DESIGNS><REINFLINE NUMBER="1" NAME="a" SECTION="none"/></DESIGNS>)");
    list.importXml(tree.getRoot());
    ASSERT_NE(list.findBeamReinf(1), nullptr);
    EXPECT_EQ(list.findBeamReinf(1)->getSection(), nullptr);
}

TEST(KzReinfLineList, WritesAndReadsItsElements) {
    SDBSectionManager sections;
    auto *own = new SDBSectionLine("own", 1.0);
    sections.add(own);
    KzReinfLineList source(&sections);
    source.add(new KzReinfLine(3, "third"));
    source.add(new KzReinfLine(1, "first"));
    source.add(new KzReinfLine(2, "bare"));
    source.add(new KzReinfLine(3, "namesake"));
    source.getLines()[0]->setSection(own);
    auto *stock = dynamic_cast<SDBSectionLine *>(SDBSectionDatabase::get()->findSectionToName("D 30"));
    source.getLines()[1]->setSection(stock);
    KzXmlTree tree("VARNEL");
    KzXmlData *designs = tree.open("DESIGNS");
    source.exportXml(&tree);
    EXPECT_EQ(tree.getCursor(), designs);
    const std::string text = textOf(tree);
    EXPECT_NE(textOf(tree, false)
                  .find(R"(<DESIGNS><REINFLINE NUMBER="3" NAME="third" SECTION="own"/>)"
                        R"(<REINFLINE NUMBER="1" NAME="first" SECTION="D 30"/>)"
                        R"(<REINFLINE NUMBER="2" NAME="bare"/></DESIGNS>)"),
              std::string::npos)
        << text;
    KzReinfLineList target(&sections);
    target.importXml(designs);
    ASSERT_EQ(target.getLines().size(), 3U);
    EXPECT_EQ(target.findBeamReinf(3)->getSection(), own);
    EXPECT_EQ(target.findBeamReinf(1)->getSection(), stock);
    EXPECT_EQ(target.findBeamReinf(2)->getSection(), nullptr);
    EXPECT_EQ(target.findBeamReinf(2)->getName(), "bare");
    target.exportXml(&tree);
    EXPECT_EQ(textOf(tree), text);
    target.findBeamReinf(3)->setSection(nullptr);
    target.exportXml(&tree);
    EXPECT_EQ(designs->getChildren()[0]->findAttribute("SECTION")->getData(), "");
}

TEST(KzReinfLineList, ReadsHostileElementsSafely) {
    KzReinfLineList list(nullptr);
    KzXmlTree tree("DESIGNS");
    build(tree, R"(<DESIGNS><REINFLINE NAME="no number"/><OTHER NUMBER="1"/>)"
                R"(<REINFLINE NUMBER="-99999999999" SECTION="unknown"/><REINFLINE NUMBER="5"/>)"
                R"(<REINFLINE NUMBER="5" NAME="five" SECTION="R 30/50"/></DESIGNS>)");
    list.importXml(tree.getRoot());
    list.importXml(nullptr);
    ASSERT_EQ(list.getLines().size(), 2U);
    EXPECT_EQ(list.findBeamReinf(INT_MIN)->getSection(), nullptr);
    EXPECT_EQ(list.findBeamReinf(5)->getName(), "five");
    ASSERT_NE(list.findBeamReinf(5)->getSection(), nullptr);
    EXPECT_EQ(list.findBeamReinf(5)->getSection()->getName(), "R 30/50");
    list.exportXml(nullptr);
    tree.setCursor(nullptr);
    list.exportXml(&tree);
}

TEST(KzReinfLineUser, AsksThroughItsSecondSlot) {
    EXPECT_EQ(varnel::virtualSlot(&KzReinfLineUser::checkUsed), 2);
    EXPECT_EQ(varnel::virtualSlot(&KzReinfLineList::checkUsed), 2);
}
