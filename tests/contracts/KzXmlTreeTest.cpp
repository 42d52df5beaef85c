#include "varnel/contracts/KzXmlTree.h"

#include <gtest/gtest.h>

#include <sstream>

#include "tests/support/XmlText.h"

using testsupport::textOf;

TEST(KzXmlTree, BeginsWithItsRootAndTheCursorOnIt) {
    const KzXmlTree tree("VARNEL");
    EXPECT_EQ(tree.getName(), "VARNEL");
    EXPECT_EQ(tree.getCursor(), tree.getRoot());
    EXPECT_EQ(tree.getRoot()->getParent(), nullptr);
    EXPECT_TRUE(tree.getRoot()->getChildren().empty());
    EXPECT_TRUE(tree.getRoot()->getData().empty());
}

TEST(KzXmlTree, OpenMakesAChildOnceAndReachesItAgain) {
    KzXmlTree tree("R");
    KzXmlData *made = tree.open("A", false);
    EXPECT_EQ(tree.getCursor(), made);
    tree.close();
    EXPECT_EQ(tree.getCursor(), tree.getRoot());
    EXPECT_EQ(tree.open("A", false), made);
    EXPECT_EQ(tree.getRoot()->getChildren().size(), 1U);
}

TEST(KzXmlTree, OpenTakesTheFirstOfSeveral) {
    KzXmlTree tree("R");
    KzXmlData *first = tree.getRoot()->makeChild("A");
    tree.getRoot()->makeChild("A");
    EXPECT_EQ(tree.open("A"), first);
}

TEST(KzXmlTree, CloseAboveTheRootMakesTheCursorNullAndNothingHappensFromThenOn) {
    KzXmlTree tree("R");
    tree.close();
    EXPECT_EQ(tree.getCursor(), nullptr);
    tree.close();
    tree.flush();
    tree.remove("A");
    tree.setAttribute("K", 1.0);
    EXPECT_EQ(tree.open("A"), nullptr);
    EXPECT_EQ(tree.getCursor(), nullptr);
    EXPECT_EQ(textOf(tree), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<R/>\n");
}

TEST(KzXmlTree, FlushDropsChildrenTextAndAttributesOfTheCursorOnly) {
    KzXmlTree tree("R");
    tree.getRoot()->setAttribute("K", "v", true);
    tree.open("LIST");
    tree.setAttribute("N", 1.5);
    tree.getCursor()->setData("text");
    tree.open("ITEM");
    tree.close();
    tree.flush();
    EXPECT_EQ(tree.getCursor()->getName(), "LIST");
    EXPECT_TRUE(tree.getCursor()->getChildren().empty());
    EXPECT_TRUE(tree.getCursor()->getData().empty());
    EXPECT_EQ(tree.getCursor()->findAttribute("N"), nullptr);
    EXPECT_NE(tree.getRoot()->findAttribute("K"), nullptr);
}

TEST(KzXmlTree, FlushRootKeepsTheRootAndPutsTheCursorOnIt) {
    KzXmlTree tree("R");
    KzXmlData *root = tree.getRoot();
    tree.open("A");
    tree.open("B");
    tree.flushRoot();
    EXPECT_EQ(tree.getRoot(), root);
    EXPECT_EQ(tree.getCursor(), root);
    EXPECT_EQ(tree.getName(), "R");
    EXPECT_TRUE(root->getChildren().empty());
}

TEST(KzXmlTree, RemoveFreesTheFirstChildOfThatName) {
    KzXmlTree tree("R");
    tree.getRoot()->makeChild("A")->setData("1");
    tree.getRoot()->makeChild("B");
    tree.getRoot()->makeChild("A")->setData("2");
    tree.remove("A");
    tree.remove("C");
    ASSERT_EQ(tree.getRoot()->getChildren().size(), 2U);
    EXPECT_EQ(tree.getRoot()->findChild("A")->getData(), "2");
}

TEST(KzXmlTree, FindRootFindsTheRootThenItsChildrenAndDeepTheNearestBelow) {
    KzXmlTree tree("VARNEL");
    KzXmlData *system = tree.getRoot()->makeChild("SYSTEM");
    KzXmlData *far = system->makeChild("DEEP")->makeChild("MATERIALS");
    EXPECT_EQ(tree.findRoot("VARNEL", false), tree.getRoot());
    EXPECT_EQ(tree.findRoot("VARNEL", true), tree.getRoot());
    EXPECT_EQ(tree.findRoot("SYSTEM", false), system);
    EXPECT_EQ(tree.findRoot("MATERIALS", false), nullptr);
    EXPECT_EQ(tree.findRoot("MATERIALS", true), far);
    KzXmlData *near = tree.getRoot()->makeChild("LAST")->makeChild("MATERIALS");
    EXPECT_EQ(tree.findRoot("MATERIALS", true), near);
    EXPECT_EQ(tree.findRoot("NONE", true), nullptr);
    EXPECT_EQ(tree.getCursor(), tree.getRoot());
}

TEST(KzXmlTree, TheRootCanBeRenamed) {
    KzXmlTree tree("");
    EXPECT_EQ(tree.getName(), "");
    tree.setName("VARNEL");
    EXPECT_EQ(tree.getName(), "VARNEL");
    EXPECT_EQ(tree.findRoot("VARNEL", false), tree.getRoot());
}

TEST(KzXmlTree, SetsADoubleAtTheCursorAndReplacesIt) {
    KzXmlTree tree("R");
    tree.setAttribute("K", 0.1);
    tree.setAttribute("K", 0.25);
    EXPECT_EQ(tree.getRoot()->findAttribute("K")->getData(), "0.25");
    EXPECT_EQ(tree.getRoot()->getAttributes().size(), 1U);
}

TEST(KzXmlTree, TheCursorCanBeReadAndSet) {
    KzXmlTree tree("R");
    KzXmlData *child = tree.getRoot()->makeChild("A");
    tree.setCursor(child);
    EXPECT_EQ(tree.open("B")->getParent(), child);
    tree.setCursor(nullptr);
    EXPECT_EQ(tree.getCursor(), nullptr);
}
