#include <gtest/gtest.h>

#include <limits>

#include "tests/support/Document.h"
#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelGap.h"

namespace {

class LoadcaseElements : public testing::Test {
  protected:
    void readCases(const std::string &content, const std::string &attributes = "") {
        document.read("<VARNEL><LOADCASES " + attributes + ">" + content + "</LOADCASES></VARNEL>");
    }
    /// The element of a model in the state of its last calculation.
    std::string writtenUnchanged() {
        document.manager.setSystemChanged(false);
        document.manager.setLoadChanged(false);
        document.exchange().updateSystem(&document.manager);
        return textOf(document.find({"LOADCASES"}));
    }
    SysBase::Loadcase *loadcase(int number) { return document.manager.giveLoadcaseToNumber(number, false); }

    Document document;
};

TEST_F(LoadcaseElements, CasesOfAnUnchangedModelAreWrittenInOrder) {
    for (const int number : {3, 1}) document.manager.giveLoadcaseToNumber(number, true);
    loadcase(3)->setName("wind");
    loadcase(3)->setType(2);
    loadcase(3)->setOwnWeight(true);
    loadcase(3)->enableCalculateEigen(true);
    loadcase(3)->setPrimary(false);
    EXPECT_EQ(
        writtenUnchanged(),
        "<LOADCASES><LOADCASE NUMBER=\"3\" NAME=\"wind\" TYPE=\"2\" OWN=\"1\" EIGEN=\"1\" PRIMARY=\"0\">"
        "</LOADCASE><LOADCASE NUMBER=\"1\" NAME=\"\" TYPE=\"1\" OWN=\"0\" EIGEN=\"0\" PRIMARY=\"1\">"
        "</LOADCASE></LOADCASES>");
}

TEST_F(LoadcaseElements, CurrentCaseIsWrittenIfThereIsOne) {
    document.manager.giveLoadcaseToNumber(4, true);
    EXPECT_EQ(writtenUnchanged().find("CURRENT"), std::string::npos);
    document.manager.setCurrentLoadcase(4);
    EXPECT_EQ(writtenUnchanged().find("<LOADCASES CURRENT=\"4\"><LOADCASE NUMBER=\"4\""), 0u);
}

// Load cases belong to the last calculation; after a change they come back through the loads that name them.
TEST_F(LoadcaseElements, ChangedModelHasAnEmptyElement) {
    document.manager.giveLoadcaseToNumber(4, true);
    document.manager.setCurrentLoadcase(4);
    ASSERT_NE(writtenUnchanged(), "<LOADCASES></LOADCASES>");
    document.model().setSystemChanged(true);
    document.exchange().updateSystem(&document.manager);
    EXPECT_EQ(textOf(document.find({"LOADCASES"})), "<LOADCASES></LOADCASES>");
    ASSERT_NE(writtenUnchanged(), "<LOADCASES></LOADCASES>");
    document.model().setLoadChanged(true);
    document.exchange().updateSystem(&document.manager);
    EXPECT_EQ(textOf(document.find({"LOADCASES"})), "<LOADCASES></LOADCASES>");
    ASSERT_NE(writtenUnchanged(), "<LOADCASES></LOADCASES>");
    loadcase(4)->setName("new");
    document.exchange().updateSystem(&document.manager);
    EXPECT_EQ(textOf(document.find({"LOADCASES"})), "<LOADCASES></LOADCASES>");
}

// A gap never becomes unchanged by the manager.
TEST_F(LoadcaseElements, ModelWithAGapNeverHasItsCasesWritten) {
    document.manager.giveLoadcaseToNumber(4, true);
    document.model().giveGap();
    EXPECT_EQ(writtenUnchanged(), "<LOADCASES></LOADCASES>");
    document.model().getGaps().front()->setChanged(false);
    EXPECT_NE(writtenUnchanged(), "<LOADCASES></LOADCASES>");
}

TEST_F(LoadcaseElements, ElementIsEmptiedAlsoWithoutAManager) {
    readCases("<LOADCASE NUMBER=\"9\"/>", "CURRENT=\"9\"");
    document.exchange().updateLoadcases(nullptr);
    EXPECT_EQ(textOf(document.find({"LOADCASES"})), "<LOADCASES></LOADCASES>");
}

TEST_F(LoadcaseElements, ElementIsRebuilt) {
    readCases("<LOADCASE NUMBER=\"9\" OLD=\"1\"><OLD/></LOADCASE>", "OLD=\"1\" CURRENT=\"9\"");
    document.manager.remove(loadcase(9), true);
    document.manager.giveLoadcaseToNumber(2, true);
    EXPECT_EQ(writtenUnchanged(),
              "<LOADCASES><LOADCASE NUMBER=\"2\" NAME=\"\" TYPE=\"1\" OWN=\"0\" EIGEN=\"0\" PRIMARY=\"1\">"
              "</LOADCASE></LOADCASES>");
}

TEST_F(LoadcaseElements, CasesAreRead) {
    readCases(
        "<LOADCASE NUMBER=\"3\" NAME=\"wind\" TYPE=\"2\" OWN=\"1\" EIGEN=\"1\" PRIMARY=\"0\"/>"
        "<ANY NUMBER=\"1\" NAME=\"dead\"/>",
        "CURRENT=\"3\"");
    ASSERT_EQ(document.manager.getLoadcases().size(), 2u);
    EXPECT_EQ(document.manager.getCurrentLoadcase(), loadcase(3));
    EXPECT_EQ(loadcase(3)->getName(), "wind");
    EXPECT_EQ(loadcase(3)->getType(), 2);
    EXPECT_TRUE(loadcase(3)->isOwnWeight());
    EXPECT_TRUE(loadcase(3)->doCalculateEigen());
    EXPECT_FALSE(loadcase(3)->isPrimary());
    EXPECT_EQ(loadcase(1)->getName(), "dead");
    EXPECT_EQ(loadcase(1)->getType(), 1);
    EXPECT_FALSE(loadcase(1)->isOwnWeight());
    EXPECT_FALSE(loadcase(1)->doCalculateEigen());
    EXPECT_TRUE(loadcase(1)->isPrimary());
}

TEST_F(LoadcaseElements, AnyNumberButZeroSwitchesOn) {
    readCases(
        "<LOADCASE NUMBER=\"1\" NAME=\"\" OWN=\"2\" EIGEN=\"-1\" PRIMARY=\"7\"/>"
        "<LOADCASE NUMBER=\"2\" NAME=\"\" OWN=\"x\" EIGEN=\"\" PRIMARY=\"no\"/>");
    EXPECT_TRUE(loadcase(1)->isOwnWeight() && loadcase(1)->doCalculateEigen() && loadcase(1)->isPrimary());
    EXPECT_FALSE(loadcase(2)->isOwnWeight() || loadcase(2)->doCalculateEigen() || loadcase(2)->isPrimary());
}

TEST_F(LoadcaseElements, MissingItemsOfANamedCaseAreSetToTheirDefaults) {
    SysBase::Loadcase *known = document.manager.giveLoadcaseToNumber(3, true);
    known->setType(2);
    known->setOwnWeight(true);
    known->enableCalculateEigen(true);
    known->setPrimary(false);
    readCases("<LOADCASE NUMBER=\"3\" NAME=\"a\"/>");
    EXPECT_EQ(loadcase(3), known);
    EXPECT_EQ(known->getType(), 1);
    EXPECT_FALSE(known->isOwnWeight());
    EXPECT_FALSE(known->doCalculateEigen());
    EXPECT_TRUE(known->isPrimary());
}

// The writer always gives a name, so an element without one tells nothing but its number.
TEST_F(LoadcaseElements, CaseWithoutANameKeepsWhatItHad) {
    readCases("<LOADCASE NUMBER=\"3\" TYPE=\"2\" OWN=\"1\" EIGEN=\"1\" PRIMARY=\"0\"/>");
    ASSERT_NE(loadcase(3), nullptr);
    EXPECT_EQ(loadcase(3)->getName(), "");
    EXPECT_EQ(loadcase(3)->getType(), 1);
    EXPECT_FALSE(loadcase(3)->isOwnWeight());
    EXPECT_FALSE(loadcase(3)->doCalculateEigen());
    EXPECT_TRUE(loadcase(3)->isPrimary());
}

TEST_F(LoadcaseElements, CaseThatALoadMadeIsCompleted) {
    document.read(
        "<VARNEL><LOADCASES><LOADCASE NUMBER=\"5\" NAME=\"crane\" TYPE=\"2\"/></LOADCASES>"
        "<SUBSYSTEM><POINTLOADS><POINTLOAD NUMBER=\"1\" LC=\"5\"/></POINTLOADS></SUBSYSTEM></VARNEL>");
    ASSERT_EQ(document.manager.getLoadcases().size(), 1u);
    EXPECT_EQ(document.model().getPointLoads().front()->getLoadcase(), loadcase(5));
    EXPECT_EQ(loadcase(5)->getName(), "crane");
    EXPECT_EQ(loadcase(5)->getType(), 2);
}

TEST_F(LoadcaseElements, OddNumbersMakeCases) {
    readCases(
        "<LOADCASE/><LOADCASE NUMBER=\"0\" NAME=\"zero\"/><LOADCASE NUMBER=\"-4\"/>"
        "<LOADCASE NUMBER=\"99999999999\"/><LOADCASE NUMBER=\"x\"/>");
    std::vector<int> numbers;
    for (const SysBase::Loadcase *entry : document.manager.getLoadcases())
        numbers.push_back(entry->getNumber());
    EXPECT_EQ(numbers, (std::vector<int>{0, -4, std::numeric_limits<int>::max()}));
    EXPECT_EQ(loadcase(0)->getName(), "zero");
    EXPECT_EQ(document.manager.giveLoadcaseToName("next")->getNumber(), std::numeric_limits<int>::max());
    writtenUnchanged();
}

TEST_F(LoadcaseElements, UnknownCurrentNumberLeavesNone) {
    document.manager.giveLoadcaseToNumber(4, true);
    document.manager.setCurrentLoadcase(4);
    readCases("");
    EXPECT_EQ(document.manager.getCurrentLoadcase(), loadcase(4));  // absent: unchanged
    readCases("", "CURRENT=\"7\"");
    EXPECT_EQ(document.manager.getCurrentLoadcase(), nullptr);
    document.manager.setCurrentLoadcase(4);
    readCases("", "CURRENT=\"-1\"");
    EXPECT_EQ(document.manager.getCurrentLoadcase(), nullptr);
}

TEST_F(LoadcaseElements, ElementIsFoundOnlyDirectlyBelowTheRoot) {
    document.read("<VARNEL><A><LOADCASES><LOADCASE NUMBER=\"1\"/></LOADCASES></A></VARNEL>");
    EXPECT_TRUE(document.manager.getLoadcases().empty());
}

TEST_F(LoadcaseElements, CasesSurviveAnUnchangedDocument) {
    document.manager.giveLoadcaseToNumber(4, true)->setName("a");
    document.manager.giveLoadcaseToNumber(2, true)->setName("b");
    document.manager.setCurrentLoadcase(2);
    const std::string written = writtenUnchanged();
    Document other;
    other.read(document.text());
    other.manager.setSystemChanged(false);
    other.manager.setLoadChanged(false);
    other.exchange().updateSystem(&other.manager);
    EXPECT_EQ(textOf(other.find({"LOADCASES"})), written);
}

TEST_F(LoadcaseElements, HostAddsToACaseThroughTheVirtualOperations) {
    class Own : public VarnelExchangeXml {
      public:
        void updateOneLoadcase(VarnelManager *manager, SysBase::Loadcase *loadcase) override {
            VarnelExchangeXml::updateOneLoadcase(manager, loadcase);
            setAttribute("OWN-DATA", 5);
        }
        SysBase::Loadcase *createOneLoadcase(KzXmlData *element, VarnelManager *manager) override {
            SysBase::Loadcase *loadcase = VarnelExchangeXml::createOneLoadcase(element, manager);
            loadcase->setName("read " + loadcase->getName());
            return loadcase;
        }
    } exchange;
    std::istringstream stream("<VARNEL><LOADCASES><A NUMBER=\"1\" NAME=\"a\"/></LOADCASES></VARNEL>");
    exchange.getTree()->buildOfStream(stream);
    exchange.get(&document.manager);
    EXPECT_EQ(loadcase(1)->getName(), "read a");
    document.manager.setSystemChanged(false);
    document.manager.setLoadChanged(false);
    exchange.updateSystem(&document.manager);
    EXPECT_NE(textOf(exchange.getTree()->getRoot()->findChild("LOADCASES")).find("OWN-DATA=\"5\""),
              std::string::npos);
}

// The load forgets a case before it dies, so the document that follows does not name it.
TEST_F(LoadcaseElements, DeletedCaseIsNotWrittenWithItsLoads) {
    document.read(
        "<VARNEL><SUBSYSTEM><SUBSYSTEMS><SUBSYSTEM NAME=\"A\"><POINTLOADS><A NUMBER=\"1\" LC=\"5\"/>"
        "</POINTLOADS></SUBSYSTEM></SUBSYSTEMS></SUBSYSTEM></VARNEL>");
    ASSERT_NE(loadcase(5), nullptr);
    document.manager.remove(loadcase(5), true);
    EXPECT_EQ(document.write().find("LC="), std::string::npos);
}

}  // namespace
