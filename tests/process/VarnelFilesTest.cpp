// The steps of the manager that read and write the project.

#include <gtest/gtest.h>

#include "tests/support/RecordingServices.h"
#include "tests/support/TemporaryFolder.h"
#include "varnel/contracts/SysBase/ConstructionStage.h"
#include "varnel/exchange/VarnelExchangeXml.h"
#include "varnel/members/VarnelLoadDistributionArea.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/model/Varnel.h"
#include "varnel/model/VarnelSubSystem.h"
#include "varnel/process/VarnelManager.h"

namespace {

using recording::Calls;

class VarnelFiles : public testing::Test {
  protected:
    VarnelFiles() { model->givePlate(true); }

    recording::Factory factory;
    VarnelManager manager{&factory};
    Varnel *model = manager.getDatabase();
    VarnelSubSystem *root = manager.getCurrentSubSystem();
};

TEST_F(VarnelFiles, OutputOfAChangedModelSkipsResultsAndLeavesItUnchanged) {
    manager.output("villa.xml");
    EXPECT_EQ(factory.script.take(), (Calls{"exchange.updateSystem", "exchange.fileOutput villa"}));
    EXPECT_FALSE(manager.modelChanged());
    EXPECT_EQ(manager.getProjectPath().path(), "villa.xml");
    manager.output("villa.xml");
    EXPECT_EQ(factory.script.take(),
              (Calls{"exchange.updateSystem", "exchange.updateResults", "exchange.fileOutput villa"}));
}

TEST_F(VarnelFiles, OutputThatCannotBeWrittenLeavesTheModelUnchangedToo) {
    recording::DocumentFactory documents;
    VarnelManager other(&documents);
    other.getDatabase()->givePlate(true);
    other.output("/no/such/folder/house.xml");
    EXPECT_FALSE(static_cast<VarnelExchangeXml *>(other.getExchange())->lastOutputOk());
    EXPECT_FALSE(other.modelChanged());
}

TEST_F(VarnelFiles, OutputOfAChangedLoadSkipsResults) {
    manager.output("villa.xml");
    model->setLoadChanged(true);
    factory.script.take();
    manager.output("villa.xml");
    EXPECT_EQ(factory.script.take(), (Calls{"exchange.updateSystem", "exchange.fileOutput villa"}));
    EXPECT_FALSE(manager.loadChanged());
}

TEST_F(VarnelFiles, InputAddsToTheCurrentModelAndOutputWritesTheFirstRoot) {
    const varnel::test::TemporaryFolder folder;
    const std::string path = folder.file("house.xml");
    recording::DocumentFactory documents;
    {
        VarnelManager writer(&documents);
        VarnelSubSystem *child = writer.giveSubSystem("child", writer.getCurrentSubSystem());
        writer.getDatabase()->giveBeam(true);
        writer.setCurrentSubSystem(child);
        writer.output(path.c_str());
    }
    VarnelManager reader(&documents);
    VarnelSubSystem *tower = reader.giveSubSystem("tower", reader.getCurrentSubSystem());
    const VarnelPlate *kept = tower->getDatabase()->givePlate(true);
    reader.setCurrentSubSystem(tower);
    EXPECT_TRUE(reader.input(path.c_str()));
    EXPECT_EQ(tower->getDatabase()->getPlates(), std::list<VarnelPlate *>{const_cast<VarnelPlate *>(kept)});
    EXPECT_EQ(tower->getDatabase()->getNumberOfBeams(), 1);
    EXPECT_EQ(reader.getSubSystems().front()->getDatabase()->getNumberOfBeams(), 0);
    EXPECT_TRUE(reader.input(folder.file("missing.xml").c_str()));
    EXPECT_EQ(tower->getDatabase()->getNumberOfBeams(), 1);
    EXPECT_EQ(reader.getProjectPath().file(), "missing");
}

TEST_F(VarnelFiles, OutputWithoutAnExchangeNumbersAndKeepsTheFlags) {
    factory.hasExchange = false;
    model->getPlates().front()->setNumber(77);
    manager.output("villa.xml");
    EXPECT_EQ(model->getPlates().front()->getNumber(), 1);
    EXPECT_TRUE(manager.modelChanged());
    EXPECT_FALSE(manager.input("villa.xml"));
}

TEST_F(VarnelFiles, OutputNumbersTheWholeTreeWhateverIsCurrent) {
    VarnelSubSystem *child = manager.giveSubSystem("child", root);
    VarnelPlate *below = child->getDatabase()->givePlate(true);
    child->getDatabase()->add(new VarnelLoadDistributionArea);
    model->add(new VarnelLoadDistributionArea);
    child->giveConstructionStageToNumber(7);
    root->giveConstructionStageToNumber(7);
    manager.setCurrentSubSystem(child);
    manager.output("villa.xml");
    EXPECT_EQ(model->getPlates().front()->getNumber(), 1);
    EXPECT_EQ(below->getNumber(), 2);
    EXPECT_EQ(child->getDatabase()->getLoadDistributionAreas().front()->getNumber(), 1);
    EXPECT_EQ(model->getLoadDistributionAreas().front()->getNumber(), 1);
    EXPECT_EQ(child->getConstructionStages().front()->getNumber(), 1);  // below comes first
    EXPECT_EQ(root->getConstructionStages().front()->getNumber(), 2);
}

TEST_F(VarnelFiles, InputOfAMissingFileIsTrueAndReadsNothing) {
    factory.script.fileInput = false;
    EXPECT_TRUE(manager.input("gone.xml"));
    EXPECT_EQ(factory.script.take(), (Calls{"exchange.fileInput gone"}));
    EXPECT_EQ(model->getNumberOfPlates(), 1);
    factory.script.fileInput = true;
    EXPECT_TRUE(manager.input(nullptr));
    EXPECT_EQ(factory.script.take(), (Calls{"exchange.fileInput ", "exchange.get"}));
    EXPECT_EQ(manager.getProjectPath().path(), "");
}

TEST_F(VarnelFiles, UpdateExchangeWritesIntoTheDocumentOnly) {
    manager.updateExchange();
    EXPECT_EQ(factory.script.take(), (Calls{"exchange.updateSystem"}));
    EXPECT_TRUE(manager.modelChanged());
}

}  // namespace
