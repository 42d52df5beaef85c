#include "varnel/contracts/KeyedElements.h"

#include <gtest/gtest.h>

#include "tests/support/XmlText.h"

using testsupport::build;
using testsupport::textOf;

namespace {

std::string written(const std::string &text, const std::vector<const char *> &names) {
    KzXmlTree tree("LIST");
    build(tree, text);
    varnel::KeyedElements elements(tree.getRoot(), "ITEM", "NAME");
    for (const char *name : names)
        if (KzXmlData *element = elements.give(name)) element->setAttribute("SEEN", 1);
    elements.dropOthers();
    const std::string result = textOf(tree, false);
    return result.substr(result.find("<LIST"));
}

}  // namespace

TEST(KeyedElements, MakesWhatIsMissingInTheOrderGiven) {
    EXPECT_NE(written("<LIST/>", {"b", "a"})
                  .find(R"(<LIST><ITEM NAME="b" SEEN="1"/><ITEM NAME="a" SEEN="1"/></LIST>)"),
              std::string::npos);
}

TEST(KeyedElements, UpdatesInPlaceAndKeepsWhatOthersWrote) {
    EXPECT_NE(written(R"(<LIST><ITEM NAME="a" NOTE="n"><X>1</X></ITEM><ITEM NAME="b"/></LIST>)", {"b", "a"})
                  .find(R"(<LIST><ITEM NAME="a" NOTE="n" SEEN="1"><X>1</X></ITEM>)"
                        R"(<ITEM NAME="b" SEEN="1"/></LIST>)"),
              std::string::npos);
}

TEST(KeyedElements, DropsItsOwnElementsAndLeavesForeignOnes) {
    const std::string text =
        R"(<LIST KEEP="yes"><OTHER><DEEP A="1"><E>text</E><F/></DEEP></OTHER><ITEM NAME="gone"/><ITEM/>)"
        R"(<ITEM NAME="a" NOTE="n"><X>1</X><Y/></ITEM><TAIL/></LIST>)";
    EXPECT_NE(written(text, {"a"})
                  .find(R"(<LIST KEEP="yes"><OTHER><DEEP A="1"><E>text</E><F/></DEEP></OTHER>)"
                        R"(<ITEM NAME="a" NOTE="n" SEEN="1"><X>1</X><Y/></ITEM><TAIL/></LIST>)"),
              std::string::npos);
}

TEST(KeyedElements, DropsSecondElementsOfAKey) {
    EXPECT_NE(written(R"(<LIST><ITEM NAME="a"/><ITEM NAME="a" SECOND="1"/></LIST>)", {"a"})
                  .find(R"(<LIST><ITEM NAME="a" SEEN="1"/></LIST>)"),
              std::string::npos);
}

TEST(KeyedElements, GivesAKeyOnlyOnce) {
    KzXmlTree tree("LIST");
    varnel::KeyedElements elements(tree.getRoot(), "ITEM", "NUMBER");
    EXPECT_NE(elements.give(7), nullptr);
    EXPECT_EQ(elements.give(7), nullptr);
    EXPECT_NE(elements.give(8), nullptr);
    EXPECT_EQ(tree.getRoot()->getChildren().size(), 2U);
}

TEST(KeyedElements, GivesTheFirstChildOfANameOrMakesIt) {
    KzXmlData parent("LIST", nullptr);
    KzXmlData *made = varnel::giveChild(parent, "A");
    parent.makeChild("A");
    EXPECT_EQ(made->getName(), "A");
    EXPECT_EQ(varnel::giveChild(parent, "A"), made);
    EXPECT_EQ(parent.getChildren().size(), 2U);
}

TEST(KeyedElements, BearsDeepForeignContent) {
    KzXmlTree tree("LIST");
    tree.open("FOREIGN");
    for (int depth = 0; depth < 100000; ++depth) tree.open("D");
    tree.setCursor(tree.getRoot());
    tree.getRoot()->makeChild("ITEM");
    varnel::KeyedElements(tree.getRoot(), "ITEM", "NAME").dropOthers();
    EXPECT_EQ(tree.getRoot()->findChild("ITEM"), nullptr);
    int depth = 0;
    for (const KzXmlData *element = tree.getRoot()->findChild("FOREIGN"); element;
         element = element->findChild("D"))
        ++depth;
    EXPECT_EQ(depth, 100001);
}
