// Files that hold the data of a project without its objects.

#include <gtest/gtest.h>

#include "tests/support/Document.h"
#include "tests/support/ProcessDefaults.h"
#include "tests/support/TemporaryFolder.h"
#include "varnel/varnel.h"

namespace {

using varnel::test::TemporaryFolder;

class ProjectSettings : public testing::Test {
  protected:
    VarnelSubSystem *root() { return document.manager.getSubSystems().front(); }

    const ProcessDefaults defaults;
    Document document;
    const TemporaryFolder folder;
    const std::string file = folder.write(
        "settings.xml",
        "<VARNEL><SETTINGS SYSBOUNDARY=\"6\"/><MATERIALS><MATERIAL NAME=\"M\"/></MATERIALS>"
        "<SECTIONS><SECTION NAME=\"S\" AREA=\"1\"/></SECTIONS><MESHES><MESH NAME=\"Q\"/></MESHES>"
        "<DESIGNS><REINFLINE NUMBER=\"4\"/></DESIGNS>"
        "<FOUNDATIONS><FOUNDATION NUMBER=\"2\"/></FOUNDATIONS><LOADCASES><LOADCASE NUMBER=\"1\"/></LOADCASES>"
        "<SUBSYSTEM STANDARD=\"7\"><HOLES><HOLE/></HOLES><CONSTRUCTIONSTATES><CONSTRUCTIONSTATE/>"
        "</CONSTRUCTIONSTATES></SUBSYSTEM></VARNEL>");
};

TEST_F(ProjectSettings, OnlyProjectWideDataComeFromAnotherFile) {
    document.readSubSystem("<MARK/>");
    const std::string before = document.text();
    document.manager.loadProjectSettings(file);
    EXPECT_EQ(document.text(), before);  // the exchange's own tree is not touched
    EXPECT_EQ(document.manager.getSystemBoundary(), 6);
    EXPECT_EQ(KzStandard::get()->getMode(), 7);
    EXPECT_NE(document.manager.getMaterialManager()->findMaterialToName("M", 0), nullptr);
    EXPECT_NE(document.manager.getSectionManager()->findSectionToName("S"), nullptr);
    EXPECT_NE(document.manager.getDgnMeshList()->findMesh("Q"), nullptr);
    EXPECT_NE(document.manager.getFoundationManager()->findFoundation(2), nullptr);
    EXPECT_EQ(document.manager.getDgnList()->findBeamReinf(4), nullptr);
    EXPECT_TRUE(document.manager.getLoadcases().empty());
    EXPECT_EQ(document.model().getNumberOfHoles(), 0);
    EXPECT_TRUE(root()->getConstructionStages().empty());
}

TEST_F(ProjectSettings, FileWithoutASubSystemLeavesTheStandard) {
    KzStandard::get()->setMode(5);
    document.manager.loadProjectSettings(
        folder.write("plain.xml", "<SETT><SETTINGS SYSBOUNDARY=\"6\"/></SETT>"));
    EXPECT_EQ(KzStandard::get()->getMode(), 5);
    EXPECT_EQ(document.manager.getSystemBoundary(), 6);  // whatever the root is named
}

TEST_F(ProjectSettings, ReadersRunWithoutEffectOnAFileThatCannotBeOpened) {
    class Counting : public VarnelExchangeXml {
      public:
        using VarnelExchangeXml::loadProjectSettings;
        void loadProjectSettings(KzXmlData *settings) override {
            ++count;
            name = settings->getName();
            VarnelExchangeXml::loadProjectSettings(settings);
        }
        int count = 0;
        std::string name;
    } exchange;
    exchange.setManager(&document.manager);
    document.manager.setSystemBoundary(3);
    const std::string before = document.write();
    exchange.loadProjectSettings("/no/such/file");
    exchange.loadProjectSettings(folder.path());
    exchange.loadProjectSettings("");
    EXPECT_EQ(exchange.count, 3);
    EXPECT_EQ(exchange.name, "SETT");
    EXPECT_EQ(document.write(), before);
}

TEST_F(ProjectSettings, MalformedFileThrowsAndChangesNothing) {
    const std::string before = document.write();
    EXPECT_THROW(document.manager.loadProjectSettings(folder.write("broken.xml", "<VARNEL><SETTINGS>")),
                 Tools::Error);
    EXPECT_EQ(document.write(), before);
}

TEST_F(ProjectSettings, AreSavedAsAWholeDocument) {
    document.readSubSystem("<HOLES><HOLE/></HOLES><FOREIGN/>");
    document.manager.saveProjectSettings(folder.file("saved.xml"));
    EXPECT_EQ(folder.read("saved.xml"), document.text());
    EXPECT_NE(document.find({"SETTINGS"}), nullptr);
    EXPECT_TRUE(document.exchange().lastOutputOk());
    document.manager.saveProjectSettings("/no/such/folder/saved.xml");
    EXPECT_FALSE(document.exchange().lastOutputOk());
}

}  // namespace
