#include "varnel/process/VarnelManager.h"

#include <gtest/gtest.h>

#include <fstream>
#include <memory>

#include "tests/support/RecordingServices.h"
#include "tests/support/TemporaryFolder.h"
#include "varnel/contracts/Found/Foundation.h"
#include "varnel/contracts/Found/FoundationManager.h"
#include "varnel/contracts/KzConcrete.h"
#include "varnel/contracts/KzMaterialHandler.h"
#include "varnel/contracts/KzMaterialManager.h"
#include "varnel/contracts/KzReinfLine.h"
#include "varnel/contracts/KzReinfLineList.h"
#include "varnel/contracts/KzReinfMeshHandler.h"
#include "varnel/contracts/KzReinfMeshList.h"
#include "varnel/contracts/KzReinfStockMesh.h"
#include "varnel/contracts/SDBSectionLine.h"
#include "varnel/contracts/SDBSectionManager.h"
#include "varnel/contracts/SysBase/ConstructionStage.h"
#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/contracts/Tools/TempPath.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelDesignData.h"
#include "varnel/members/VarnelHole.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/model/Varnel.h"
#include "varnel/model/VarnelSubSystem.h"

namespace {

using recording::Calls;

class VarnelManagerTest : public testing::Test {
  protected:
    VarnelSubSystem *addChild(VarnelSubSystem *parent, const std::string &name) {
        return manager.giveSubSystem(name, parent);
    }

    recording::Factory factory;
    VarnelManager manager{&factory};
    VarnelSubSystem *root = manager.getCurrentSubSystem();
};

TEST_F(VarnelManagerTest, StartsWithOneEmptyCurrentSubSystemNamedSystem) {
    ASSERT_EQ(manager.getSubSystems().size(), 1u);
    EXPECT_EQ(manager.getSubSystems().front(), root);
    EXPECT_EQ(root->getName(), "System");
    EXPECT_EQ(manager.getDatabase(), root->getDatabase());
    EXPECT_EQ(manager.getDatabase()->getNumberOfPlates(), 0);
    EXPECT_EQ(manager.getDatabase()->getManager(), &manager);  // the factory was told before
    EXPECT_EQ(manager.getProjectPath().file(), "test");
    EXPECT_EQ(manager.getProjectPath().directory(), Tools::Path(Tools::getTempPath()).directory());
    EXPECT_EQ(manager.getFactory(), &factory);
    EXPECT_EQ(factory.getManager(), &manager);
    EXPECT_EQ(manager.getMaterialManager()->getName(), "List");
    EXPECT_NE(KzMaterialHandler::get()->findMaterialToName("C20/25"), nullptr);
}

TEST_F(VarnelManagerTest, HasTheDefaultSwitches) {
    EXPECT_TRUE(manager.doConvert());
    EXPECT_FALSE(manager.doRefresh());
    EXPECT_TRUE(manager.doOutput());
    EXPECT_TRUE(manager.doCalculation());
    EXPECT_EQ(manager.getCurrentStep(), 0);
    EXPECT_FALSE(manager.getLoadcaseAutomation());
    EXPECT_TRUE(manager.getOwnWeight());
    EXPECT_TRUE(manager.doUseQuadraticShape());
    EXPECT_FALSE(manager.doUseEquidistantBeamParts());
    EXPECT_EQ(manager.getDesignLocation(), 2);
    EXPECT_EQ(manager.getPlateAsMode(), 0);
    EXPECT_TRUE(manager.getErrorList().empty());
    EXPECT_NE(manager.getDiagramManager(), nullptr);
    EXPECT_NE(manager.getDgnList(), nullptr);
}

TEST_F(VarnelManagerTest, SwitchesKeepWhatIsSet) {
    manager.enableConvert(false);
    manager.enableRefresh(true);
    manager.enableOutput(false);
    manager.enableCalculation(false);
    manager.setLoadcaseAutomation(true);
    manager.setOwnWeight(false);
    manager.enableUseQuadraticShape(false);
    manager.enableUseEquidistantBeamParts(true);
    manager.setDesignLocation(7);
    manager.reset();
    EXPECT_FALSE(manager.doConvert());
    EXPECT_TRUE(manager.doRefresh());
    EXPECT_FALSE(manager.doOutput());
    EXPECT_FALSE(manager.doCalculation());
    EXPECT_TRUE(manager.getLoadcaseAutomation());
    EXPECT_FALSE(manager.getOwnWeight());
    EXPECT_FALSE(manager.doUseQuadraticShape());
    EXPECT_TRUE(manager.doUseEquidistantBeamParts());
    EXPECT_EQ(manager.getDesignLocation(), 7);
}

TEST_F(VarnelManagerTest, MakesEachServiceOnceOnFirstUse) {
    EXPECT_EQ(factory.made, 0);
    const auto &constManager = manager;
    EXPECT_EQ(constManager.getExchange(), nullptr);
    for (int i = 0; i < 2; ++i) {
        EXPECT_NE(manager.getCalculator(), nullptr);
        EXPECT_NE(manager.getConverter(), nullptr);
        EXPECT_NE(manager.getDesigner(), nullptr);
        EXPECT_NE(manager.getExchange(), nullptr);
        EXPECT_NE(manager.getDataChecker(), nullptr);
        EXPECT_NE(manager.getErrorHandler(), nullptr);
        EXPECT_EQ(factory.made, 6);
    }
    EXPECT_EQ(constManager.getExchange(), manager.getExchange());
}

TEST_F(VarnelManagerTest, SetsNewServicesUp) {
    manager.setProjectPath(std::string("/project/house.xml"));
    manager.enableOutput(false);
    manager.getConverter();
    EXPECT_EQ(factory.script.take(), (Calls{"converter.initInstance", "converter.setProjectPath"}));
    EXPECT_EQ(manager.getConverter()->getProjectPath()->path(), "/project/house.xml");
    manager.getDesigner();
    EXPECT_EQ(factory.script.take(), (Calls{"designer.setDoOutput 0"}));
    EXPECT_EQ(manager.getDesigner()->getProjectPath()->path(), "/project/house.xml");
}

TEST_F(VarnelManagerTest, ResetDropsConverterCalculatorAndDesignerOnly) {
    manager.getConverter();
    manager.getCalculator();
    manager.getDesigner();
    VarnelExchange *exchange = manager.getExchange();
    VarnelDataChecker *checker = manager.getDataChecker();
    VarnelErrorHandler *handler = manager.getErrorHandler();
    manager.reset();
    const int before = factory.made;
    EXPECT_EQ(manager.getExchange(), exchange);
    EXPECT_EQ(manager.getDataChecker(), checker);
    EXPECT_EQ(manager.getErrorHandler(), handler);
    EXPECT_EQ(factory.made, before);
    manager.getConverter();
    manager.getCalculator();
    manager.getDesigner();
    EXPECT_EQ(factory.made, before + 3);
}

TEST_F(VarnelManagerTest, NewFactoryBringsItsModeAndIsNotToldOfTheManager) {
    class Moded : public recording::Factory {
        Varnel::SystemMode getMode() const override { return static_cast<Varnel::SystemMode>(5); }
    } other;
    EXPECT_EQ(manager.getDatabase()->getSystemMode(), 2);
    manager.setFactory(&other);
    EXPECT_EQ(manager.getFactory(), &other);
    EXPECT_EQ(manager.getDatabase()->getSystemMode(), 5);
    EXPECT_EQ(other.getManager(), nullptr);
    manager.setFactory(nullptr);
    EXPECT_EQ(manager.getConverter(), nullptr);
}

TEST_F(VarnelManagerTest, NewFactoryMakesTheAnalysisAnewAndTheOtherServicesStay) {
    const VarnelExchange *exchange = manager.getExchange();
    const VarnelDataChecker *checker = manager.getDataChecker();
    const VarnelErrorHandler *handler = manager.getErrorHandler();
    manager.getConverter();
    manager.getCalculator();
    manager.getDesigner();
    recording::Factory other;
    manager.setFactory(&other);
    manager.getConverter();
    manager.getCalculator();
    manager.getDesigner();
    EXPECT_EQ(other.made, 3);
    EXPECT_EQ(manager.getExchange(), exchange);
    EXPECT_EQ(manager.getDataChecker(), checker);
    EXPECT_EQ(manager.getErrorHandler(), handler);
    EXPECT_EQ(other.made, 3);
    manager.setFactory(&factory);  // the other one dies first
}

TEST_F(VarnelManagerTest, ToleranceIsTheConverters) {
    EXPECT_DOUBLE_EQ(manager.getTolerance(), 0.25);
    manager.setTolerance(0.5);
    EXPECT_DOUBLE_EQ(manager.getTolerance(), 0.5);
    factory.hasConverter = false;
    manager.reset();
    EXPECT_DOUBLE_EQ(manager.getTolerance(), 0.0);
    manager.setTolerance(1.0);
}

TEST_F(VarnelManagerTest, WithoutServicesNothingIsMade) {
    factory.hasCalculator = factory.hasConverter = factory.hasDesigner = false;
    factory.hasExchange = factory.hasDataChecker = factory.hasErrorHandler = false;
    EXPECT_EQ(manager.getCalculator(), nullptr);
    EXPECT_EQ(manager.getConverter(), nullptr);
    EXPECT_EQ(manager.getDesigner(), nullptr);
    EXPECT_EQ(manager.getExchange(), nullptr);
    EXPECT_EQ(manager.getDataChecker(), nullptr);
    EXPECT_EQ(manager.getErrorHandler(), nullptr);
}

TEST_F(VarnelManagerTest, GivingASubSystemTwiceGivesOne) {
    VarnelSubSystem *first = manager.giveSubSystem("floor", root);
    EXPECT_EQ(manager.giveSubSystem("floor", root), first);
    EXPECT_EQ(root->getChildren().size(), 1u);
    EXPECT_EQ(manager.giveSubSystem("floor", nullptr), nullptr);
}

TEST_F(VarnelManagerTest, FindingAnUnknownNameAnswersTheNodeItself) {
    EXPECT_EQ(manager.findSubSystem("x", false), root);
    EXPECT_EQ(manager.findSubSystem("System", false), root);
    VarnelSubSystem *child = addChild(root, "a");
    EXPECT_EQ(manager.findSubSystem("a", false), child);
    EXPECT_EQ(manager.findSubSystem("x", false), root);
}

// A recursive search goes into the first child and answers from there: pinned, since hosts compare names.
TEST_F(VarnelManagerTest, RecursiveSearchEndsInTheFirstChild) {
    VarnelSubSystem *first = addChild(root, "first");
    VarnelSubSystem *second = addChild(root, "second");
    VarnelSubSystem *below = addChild(second, "below");
    EXPECT_EQ(manager.findSubSystem("below", true), first);
    EXPECT_EQ(manager.findSubSystem("second", true), first);
    VarnelSubSystem *deep = addChild(first, "deep");
    EXPECT_EQ(manager.findSubSystem("deep", true), deep);
    EXPECT_EQ(manager.findSubSystem("second", false), second);
    VarnelSubSystem *parent = root;
    EXPECT_EQ(manager.findSubSystem("below", second, parent, false), below);
    EXPECT_EQ(parent, second);
}

TEST_F(VarnelManagerTest, MissingSubSystemsArePassedOver) {
    manager.add(nullptr, root);
    manager.add(nullptr, nullptr);
    VarnelSubSystem *child = addChild(root, "a");
    VarnelSubSystem *grandchild = addChild(child, "b");
    EXPECT_EQ(manager.findSubSystem("a", true), child);
    EXPECT_EQ(manager.findSubSystem("b", true), grandchild);
    child->getDatabase()->givePlate(true);
    manager.setup();
    EXPECT_TRUE(manager.systemChanged());
    VarnelSubSystem stranger("stranger", &factory, nullptr);
    EXPECT_EQ(manager.removeSubSystem(&stranger, true), 0);
    EXPECT_EQ(manager.removeSubSystem(grandchild, true), 1);
    delete grandchild;
}

TEST_F(VarnelManagerTest, ParentIsWrittenOnlyWhenAChildMatched) {
    VarnelSubSystem *child = addChild(root, "a");
    VarnelSubSystem *grandchild = addChild(child, "b");
    VarnelSubSystem *parent = grandchild;
    EXPECT_EQ(manager.findSubSystem("x", root, parent, true), grandchild);
    EXPECT_EQ(parent, grandchild);
    EXPECT_EQ(manager.findSubSystem("b", root, parent, true), grandchild);
    EXPECT_EQ(parent, child);
    EXPECT_EQ(manager.findSubSystem("a", nullptr, parent, false), child);
    EXPECT_EQ(parent, nullptr);
}

TEST_F(VarnelManagerTest, RemovingASubSystemDetachesIt) {
    VarnelSubSystem *child = addChild(root, "a");
    VarnelSubSystem *grandchild = addChild(child, "b");
    EXPECT_EQ(manager.removeSubSystem(grandchild, false), 0);
    EXPECT_EQ(manager.removeSubSystem(nullptr, true), 0);
    EXPECT_EQ(manager.removeSubSystem(grandchild, true), 1);
    EXPECT_TRUE(child->getChildren().empty());
    EXPECT_EQ(grandchild->getName(), "b");
    delete grandchild;
    VarnelSubSystem stranger("stranger", &factory, nullptr);
    EXPECT_EQ(manager.removeSubSystem(&stranger, true), 0);
    EXPECT_EQ(manager.getSubSystems(), std::list<VarnelSubSystem *>{root});
    EXPECT_EQ(root->getChildren(), std::list<VarnelSubSystem *>{child});
}

TEST_F(VarnelManagerTest, ARemovedSubSystemStaysCurrent) {
    const std::unique_ptr<VarnelSubSystem> formerRoot(root);
    EXPECT_EQ(manager.removeSubSystem(root, false), 1);
    EXPECT_TRUE(manager.getSubSystems().empty());
    EXPECT_EQ(manager.getCurrentSubSystem(), root);
    manager.setCurrentSubSystem(nullptr);
    EXPECT_EQ(manager.findSubSystem("x", false), nullptr);
}

TEST_F(VarnelManagerTest, AddsBelowAParentOrBesideTheRoot) {
    auto *child = new VarnelSubSystem("child", &factory, root);
    auto *second = new VarnelSubSystem("second", &factory, nullptr);
    manager.add(child, root);
    manager.add(second, nullptr);
    EXPECT_EQ(root->getChildren().front(), child);
    EXPECT_EQ(manager.getSubSystems().back(), second);
}

TEST_F(VarnelManagerTest, SeesChangesBelowTheCurrentSubSystemOnly) {
    VarnelSubSystem *a = addChild(root, "a");
    VarnelSubSystem *b = addChild(root, "b");
    manager.setSystemChanged(false);
    manager.setLoadChanged(false);
    EXPECT_FALSE(manager.systemChanged());
    EXPECT_FALSE(manager.loadChanged());
    b->getDatabase()->givePlate(true);
    EXPECT_TRUE(manager.systemChanged());
    manager.setCurrentSubSystem(a);
    EXPECT_FALSE(manager.systemChanged());
    b->getDatabase()->setLoadChanged(true);
    EXPECT_FALSE(manager.loadChanged());
    manager.setCurrentSubSystem(root);
    EXPECT_TRUE(manager.loadChanged());
    manager.setCurrentSubSystem(a);
    manager.setSystemChanged(false);
    manager.setLoadChanged(false);
    EXPECT_TRUE(b->getDatabase()->systemChanged());
    EXPECT_TRUE(b->getDatabase()->loadChanged());
    manager.setCurrentSubSystem(b);
    manager.setSystemChanged(false);
    manager.setLoadChanged(false);
    EXPECT_FALSE(b->getDatabase()->systemChanged());
    EXPECT_FALSE(b->getDatabase()->loadChanged());
    manager.setCurrentSubSystem(root);
    manager.setLoadChanged(true);
    EXPECT_TRUE(a->getDatabase()->loadChanged());
    EXPECT_TRUE(b->getDatabase()->loadChanged());
    EXPECT_TRUE(manager.hasLoadChanged());
    manager.setCurrentSubSystem(nullptr);
    EXPECT_FALSE(manager.systemChanged());
    EXPECT_EQ(manager.getDatabase(), nullptr);
}

TEST_F(VarnelManagerTest, ChangesOfResourcesAndLoadCasesCount) {
    manager.setSystemChanged(false);
    manager.setLoadChanged(false);
    manager.getMaterialManager()->setChangedFlag(false);
    EXPECT_FALSE(manager.modelChanged());
    manager.getMaterialManager()->setChangedFlag(true);
    EXPECT_TRUE(manager.materialChanged());
    EXPECT_TRUE(manager.modelChanged());
    manager.getMaterialManager()->setChangedFlag(false);
    auto *section = new SDBSectionLine("own", 0.1);
    manager.getSectionManager()->add(section);
    section->setChanged(true);
    EXPECT_TRUE(manager.sectionChanged());
    section->setChanged(false);
    EXPECT_FALSE(manager.sectionChanged());
    Found::Foundation *foundation = manager.giveFoundation(nullptr, KzVector3D(0, 0, 5));
    foundation->setChanged(true);
    EXPECT_TRUE(manager.foundationChanged());
    foundation->setChanged(false);
    EXPECT_FALSE(manager.foundationChanged());
    manager.giveLoadcaseToNumber(3, true)->setName("new");
    EXPECT_TRUE(manager.loadChanged());
    manager.setLoadChanged(false);
    EXPECT_FALSE(manager.loadChanged());
}

TEST_F(VarnelManagerTest, StockMeshIsClonedOnceIntoTheProject) {
    KzReinfStockMesh *mesh = manager.getStockMesh("Q335A");
    ASSERT_NE(mesh, nullptr);
    EXPECT_EQ(manager.getStockMesh("Q335A"), mesh);
    EXPECT_EQ(manager.getDgnMeshList()->findMesh("Q335A"), mesh);
    EXPECT_EQ(manager.getDgnMeshList()->getMeshes().size(), 1U);
    EXPECT_NE(mesh, KzReinfMeshHandler::get()->findMeshToName("Q335A"));
    EXPECT_EQ(manager.getStockMesh("unknown"), nullptr);
    EXPECT_EQ(manager.getStockMesh(""), nullptr);
}

TEST_F(VarnelManagerTest, AnEmptyMeshNameNeverReachesTheStock) {
    KzReinfStockMesh *stock = KzReinfMeshHandler::get()->findMeshToName("Q188A");
    stock->setName("");
    EXPECT_EQ(manager.getStockMesh(""), nullptr);
    stock->setName("Q188A");
    EXPECT_TRUE(manager.getDgnMeshList()->getMeshes().empty());
    auto *own = new KzReinfStockMesh("", 1.0, 1.0);
    manager.getDgnMeshList()->addMesh(own);
    EXPECT_EQ(manager.getStockMesh(""), own);
}

TEST_F(VarnelManagerTest, FoundationsAddTheDisplacementToThePattern) {
    Found::Foundation *first = manager.giveFoundation(nullptr, KzVector3D(1, 2, 3));
    Found::Foundation *second = manager.giveFoundation(first, KzVector3D(0, 0, 1));
    KzVector3D line;
    EXPECT_TRUE(second->getDispLine(line));
    EXPECT_TRUE(line == KzVector3D(1, 2, 4));
    EXPECT_EQ(manager.giveFoundation(nullptr, KzVector3D(1, 2, 4)), second);
    EXPECT_EQ(manager.getFoundationManager()->getFoundations().size(), 2u);
}

TEST_F(VarnelManagerTest, DocumentPathIsTheFolderNamedAfterTheProject) {
    manager.setProjectPath(std::string("/work/houses/villa.xml"));
    EXPECT_EQ(manager.getDocumentPath(), "/work/houses/villa/");
    manager.setProjectPath(Tools::Path("/other/hall.xml"));
    EXPECT_EQ(manager.getProjectPath().path(), "/other/hall.xml");
}

TEST_F(VarnelManagerTest, RemovesFilesAndIgnoresMissingOnes) {
    const varnel::test::TemporaryFolder folder;
    const std::string path = folder.file("gone.txt");
    std::ofstream(path) << "x";
    manager.fileRemove(path);
    EXPECT_FALSE(std::ifstream(path).good());
    manager.fileRemove(path);
}

TEST_F(VarnelManagerTest, SettingsGoThroughTheExchange) {
    manager.loadProjectSettings("a.xml");
    EXPECT_EQ(manager.getExchange()->getManager(), &manager);
    manager.saveProjectSettings("b.xml");
    EXPECT_EQ(factory.script.take(), (Calls{"exchange.loadProjectSettings a.xml", "exchange.updateSystem",
                                            "exchange.saveProjectSettings b.xml"}));
}

TEST_F(VarnelManagerTest, SettingsWithoutAnExchangeDoNothing) {
    factory.hasExchange = false;
    manager.loadProjectSettings("a.xml");
    manager.saveProjectSettings("b.xml");
    EXPECT_TRUE(factory.script.take().empty());
}

TEST_F(VarnelManagerTest, ProtectsResourcesOfTheCurrentSubSystemOnly) {
    auto *used = new KzConcrete("own", 2500.0, 25.0);
    manager.getMaterialManager()->add(used);
    VarnelPlate *plate = manager.getDatabase()->givePlate(true);
    plate->setMaterial(used, 0);
    EXPECT_FALSE(manager.getMaterialManager()->remove(used));
    manager.setCurrentSubSystem(addChild(root, "other"));
    EXPECT_TRUE(manager.getMaterialManager()->remove(used));
    plate->setMaterial(nullptr, 0);
}

TEST_F(VarnelManagerTest, SectionsFoundationsAndMeshesAreProtectedAndLinesNever) {
    Varnel *model = manager.getDatabase();
    VarnelPlate *plate = model->givePlate(true);
    VarnelBeam *beam = model->giveBeam(true);
    auto *section = new SDBSectionLine("own", 0.1);
    manager.getSectionManager()->add(section);
    beam->setSection(section, 0);
    Found::Foundation *foundation = manager.giveFoundation(nullptr, KzVector3D(0, 0, 5));
    plate->setFoundation(foundation);
    KzReinfStockMesh *mesh = manager.getStockMesh("Q335A");
    VarnelDesignData design;
    design.setBasicMeshL(mesh);
    plate->setDesign(&design);
    auto *line = new KzReinfLine(1, "line");
    manager.getDgnList()->add(line);
    beam->setReinfLine(line);

    EXPECT_FALSE(manager.getSectionManager()->remove(section));
    EXPECT_FALSE(manager.getFoundationManager()->remove(foundation));
    EXPECT_FALSE(manager.getDgnMeshList()->remove(mesh));
    EXPECT_TRUE(manager.getDgnList()->remove(line));
    beam->setReinfLine(nullptr);
    manager.setCurrentSubSystem(nullptr);
    EXPECT_TRUE(manager.getSectionManager()->remove(section));
    EXPECT_TRUE(manager.getFoundationManager()->remove(foundation));
    EXPECT_TRUE(manager.getDgnMeshList()->remove(mesh));
    beam->setSection(nullptr, 0);
    plate->setFoundation(nullptr);
    plate->setDesign(nullptr);
}

TEST_F(VarnelManagerTest, UpdatesGeneratedSectionsOfAllModelsBelowTheCurrentOne) {
    class Counting : public Varnel {
      public:
        using Varnel::Varnel;
        void updateSections() override { ++updates(); }
        static int &updates() {
            static int count = 0;
            return count;
        }
    };
    class Models : public recording::Factory {
        Varnel *giveDatabase() const override { return new Counting(getManager()); }
    } models;
    VarnelManager other(&models);
    other.giveSubSystem("a", other.getCurrentSubSystem());
    other.updateResultSections();
    EXPECT_EQ(Counting::updates(), 2);
}

TEST(VarnelManager, WithoutAFactoryIsEmptyAndHarmless) {
    VarnelManager manager(nullptr);
    EXPECT_EQ(manager.getDatabase(), nullptr);
    EXPECT_TRUE(manager.getSubSystems().empty());
    EXPECT_EQ(manager.findSubSystem("x", true), nullptr);
    EXPECT_FALSE(manager.input("nothing.xml"));
    EXPECT_EQ(manager.update(), 1);
    manager.output("nothing.xml");
    manager.setup();
}

}  // namespace
