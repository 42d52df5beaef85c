#include "varnel/contracts/SDBSectionVisitorXml.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/support/XmlText.h"
#include "varnel/contracts/SDBSectionLine.h"
#include "varnel/contracts/SDBSectionManager.h"

using testsupport::build;
using testsupport::textOf;

namespace {

void read(SDBSectionManager &manager, const std::string &sections) {
    KzXmlTree tree("VARNEL");
    build(tree, "<VARNEL><SECTIONS>" + sections + "</SECTIONS></VARNEL>");
    SDBSectionVisitorXml(&manager).createSections(tree.getRoot());
}

const SDBSectionLine *find(const SDBSectionManager &manager, const char *name) {
    return dynamic_cast<const SDBSectionLine *>(manager.findSectionToName(name));
}

}  // namespace

TEST(SDBSectionVisitorXml, WritesEveryShapeAndReadsItAgain) {
    SDBSectionManager source;
    source.add(SDBSectionLine::makeRectangle("R", 0.3, 0.7).release());
    source.add(SDBSectionLine::makeCircle("D", 0.4).release());
    source.add(new SDBSectionLine("G", 0.123));
    source.add(new SDBSection("plain", 0.5));
    source.getSections()[2]->setUserDefined(false);
    KzXmlTree tree("VARNEL");
    SDBSectionVisitorXml(&source).writeSections(&tree);
    EXPECT_EQ(tree.getCursor(), tree.getRoot());
    const std::string text = textOf(tree);
    EXPECT_NE(text.find(R"(<SECTION NAME="R" KIND="RECT" B="0.3" H="0.7" AREA="0.21" USER="1"/>)"),
              std::string::npos)
        << text;
    EXPECT_NE(text.find(R"(<SECTION NAME="D" KIND="CIRCLE" D="0.4" AREA=")"), std::string::npos);
    EXPECT_NE(text.find(R"(<SECTION NAME="G" KIND="GENERAL" AREA="0.123" USER="0"/>)"), std::string::npos);

    SDBSectionManager target;
    SDBSectionVisitorXml(&target).createSections(tree.getRoot());
    ASSERT_EQ(target.getSections().size(), 4U);
    EXPECT_EQ(find(target, "R")->getKind(), SDBSectionLine::RECT);
    EXPECT_EQ(find(target, "R")->getHeight(), 0.7);
    EXPECT_EQ(find(target, "D")->getDiameter(), 0.4);
    EXPECT_EQ(find(target, "D")->getArea(), source.getSections()[1]->getArea());
    EXPECT_FALSE(find(target, "G")->isUserDefined());
    EXPECT_TRUE(find(target, "R")->isUserDefined());
    EXPECT_EQ(target.findSectionToName("plain")->getArea(), 0.5);
    SDBSectionVisitorXml(&target).writeSections(&tree);
    EXPECT_EQ(textOf(tree), text);
}

TEST(SDBSectionVisitorXml, TakesAShapeWithoutItsDimensionsForAGeneralOne) {
    SDBSectionManager manager;
    read(manager,
         R"(<SECTION NAME="a" KIND="RECT" B="1" AREA="3"/><SECTION NAME="b" KIND="CIRCLE" AREA="4"/>)"
         R"(<SECTION NAME="c" KIND="STAR" AREA="5"/><SECTION NAME="d"/>)");
    const struct {
        const char *name;
        double area;
    } rows[] = {{"a", 3.0}, {"b", 4.0}, {"c", 5.0}, {"d", 0.0}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        ASSERT_NE(find(manager, row.name), nullptr);
        EXPECT_EQ(find(manager, row.name)->getKind(), SDBSectionLine::GENERAL);
        EXPECT_EQ(find(manager, row.name)->getArea(), row.area);
        EXPECT_TRUE(find(manager, row.name)->isUserDefined());
    }
}

TEST(SDBSectionVisitorXml, SkipsElementsWithoutNameOrOfOtherNames) {
    SDBSectionManager manager;
    read(manager, R"(<SECTION KIND="RECT" B="1" H="1"/><OTHER NAME="a"/>)");
    EXPECT_TRUE(manager.getSections().empty());
}

TEST(SDBSectionVisitorXml, FillsASectionThatExists) {
    SDBSectionManager manager;
    manager.add(SDBSectionLine::makeRectangle("R", 0.3, 0.7).release());
    manager.add(new SDBSection("plain", 0.5));
    SDBSection *section = manager.getSections()[0];
    read(manager, R"(<SECTION NAME="R" KIND="CIRCLE" D="1" USER="0"/><SECTION NAME="plain" AREA="2"/>)");
    EXPECT_EQ(manager.getSections().size(), 2U);
    EXPECT_EQ(find(manager, "R"), section);
    EXPECT_EQ(find(manager, "R")->getDiameter(), 1.0);
    EXPECT_FALSE(section->isUserDefined());
    EXPECT_EQ(manager.findSectionToName("plain")->getArea(), 2.0);
}

TEST(SDBSectionVisitorXml, DropsSectionsThatAreGoneAndLeavesForeignElements) {
    SDBSectionManager manager;
    manager.add(new SDBSectionLine("a", 1.0));
    manager.add(new SDBSectionLine("a", 2.0));
    KzXmlTree tree("VARNEL");
    build(tree,
          R"(<VARNEL><SECTIONS><SECTION NAME="gone"/><NOTE/><SECTION NAME="a" X="1"/></SECTIONS></VARNEL>)");
    SDBSectionVisitorXml(&manager).writeSections(&tree);
    const auto &children = tree.getRoot()->findChild("SECTIONS")->getChildren();
    ASSERT_EQ(children.size(), 2U);
    EXPECT_EQ(children[0]->getName(), "NOTE");
    EXPECT_EQ(children[1]->findAttribute("X")->getData(), "1");
    EXPECT_EQ(children[1]->findAttribute("AREA")->getDouble(), 1.0);
}

TEST(SDBSectionVisitorXml, BearsNullArguments) {
    SDBSectionManager manager;
    KzXmlTree tree("VARNEL");
    SDBSectionVisitorXml(&manager).createSections(nullptr);
    SDBSectionVisitorXml(&manager).createSections(tree.getRoot());
    SDBSectionVisitorXml(&manager).writeSections(nullptr);
    build(tree, R"(<VARNEL><SECTIONS><SECTION NAME="a"/></SECTIONS></VARNEL>)");
    SDBSectionVisitorXml(nullptr).createSections(tree.getRoot());
    EXPECT_TRUE(manager.getSections().empty());
    SDBSectionVisitorXml(nullptr).writeSections(&tree);
    EXPECT_TRUE(tree.getRoot()->findChild("SECTIONS")->getChildren().empty());
}
