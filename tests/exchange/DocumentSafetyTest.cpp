// What survives a document, and what one that is broken, hostile or interrupted leaves behind.

#include <gtest/gtest.h>

#include <initializer_list>
#include <stdexcept>
#include <vector>

#include "tests/support/CommaLocale.h"
#include "tests/support/CompleteProject.h"
#include "tests/support/Document.h"
#include "tests/support/ProcessDefaults.h"
#include "tests/support/TemporaryFolder.h"
#include "varnel/varnel.h"

namespace {

using varnel::test::CommaLocale;
using varnel::test::TemporaryFolder;

class DocumentSafety : public testing::Test {
  protected:
    VarnelSubSystem *root() { return document.manager.getSubSystems().front(); }

    const ProcessDefaults defaults;
    Document document;
};

TEST_F(DocumentSafety, ElementsThatNobodyKnowsSurviveOutsideOfRebuiltLists) {
    const std::string foreign = "<FOREIGN A=\"1\">text</FOREIGN>";
    document.read("<VARNEL>" + foreign + "<MATERIALS>" + foreign + "</MATERIALS><SECTIONS>" + foreign +
                  "</SECTIONS><MESHES>" + foreign + "</MESHES><FOUNDATIONS>" + foreign +
                  "</FOUNDATIONS><SUBSYSTEM>" + foreign + "<GAPS>" + foreign +
                  "</GAPS><REFINEPOLYS><ANY/></REFINEPOLYS></SUBSYSTEM></VARNEL>");
    document.write();
    for (const auto &path :
         std::initializer_list<std::initializer_list<const char *>>{{"FOREIGN"},
                                                                    {"MATERIALS", "FOREIGN"},
                                                                    {"SECTIONS", "FOREIGN"},
                                                                    {"MESHES", "FOREIGN"},
                                                                    {"FOUNDATIONS", "FOREIGN"},
                                                                    {"SUBSYSTEM", "FOREIGN"},
                                                                    {"SUBSYSTEM", "GAPS", "FOREIGN"}}) {
        SCOPED_TRACE(*path.begin());
        EXPECT_EQ(textOf(document.find(path)), foreign);
    }
    EXPECT_EQ(textOf(document.find({"SUBSYSTEM", "REFINEPOLYS"})), "<REFINEPOLYS><ANY></ANY></REFINEPOLYS>");
    EXPECT_EQ(document.find({})->getChildren().front()->getName(), "FOREIGN");  // in its place
}

TEST_F(DocumentSafety, ElementsThatNobodyKnowsVanishInsideOfRebuiltLists) {
    document.manager.giveSubSystem("A", root());
    document.model().giveBeam(true);
    document.write();
    const std::vector<std::vector<const char *>> lists = {
        {"SETTINGS"},
        {"DESIGNS"},
        {"LOADCASES"},
        {"SUBSYSTEM", "BEAMS"},
        {"SUBSYSTEM", "PLATES"},
        {"SUBSYSTEM", "HOLES"},
        {"SUBSYSTEM", "ATTRIBUTES"},
        {"SUBSYSTEM", "PBOUNDS"},
        {"SUBSYSTEM", "LBOUNDS"},
        {"SUBSYSTEM", "POINTLOADS"},
        {"SUBSYSTEM", "LINELOADS"},
        {"SUBSYSTEM", "AREALOADS"},
        {"SUBSYSTEM", "RESULTSECTIONS"},
        {"SUBSYSTEM", "LDAREAS"},
        {"SUBSYSTEM", "GROUPS"},
        {"SUBSYSTEM", "SUBSYSTEMS"},
        {"SUBSYSTEM", "CONSTRUCTIONSTATES"},
    };
    const auto elementOf = [this](const std::vector<const char *> &path) {
        return path.size() == 1 ? document.find({path[0]}) : document.find({path[0], path[1]});
    };
    for (const auto &path : lists) {
        KzXmlData *element = elementOf(path);
        ASSERT_NE(element, nullptr) << path.back();
        element->makeChild("FOREIGN");
        element->setAttribute("FOREIGN", 1);
    }
    EXPECT_EQ(document.write().find("FOREIGN"), std::string::npos);
}

TEST_F(DocumentSafety, ResourcesAreFoundByTheReadersThatNameThem) {
    document.read(
        "<VARNEL><MATERIALS><MATERIAL NAME=\"M\" KIND=\"CONCRETE\" RHO=\"2300\" GAMMA=\"23\"/></MATERIALS>"
        "<SECTIONS><SECTION NAME=\"S\" KIND=\"RECT\" B=\"0.2\" H=\"0.5\"/></SECTIONS>"
        "<MESHES><MESH NAME=\"Q\" ASX=\"1.5\" ASY=\"2.5\"/></MESHES>"
        "<DESIGNS><REINFLINE NUMBER=\"4\" NAME=\"L\"/></DESIGNS>"
        "<FOUNDATIONS><FOUNDATION NUMBER=\"2\" NAME=\"F\">" +
        vectorElement("DISP", 0, 0, 9) +
        "</FOUNDATION></FOUNDATIONS>"
        "<SUBSYSTEM><PLATES><PLATE FOUND=\"2\"><CONCRETE>M</CONCRETE><DESIGN BASICL=\"Q\"/></PLATE></PLATES>"
        "<BEAMS><BEAM DESIGN=\"4\" FOUND=\"F\"><MATERIAL>M</MATERIAL><SECB>S</SECB></BEAM></BEAMS>"
        "</SUBSYSTEM></VARNEL>");
    const VarnelManager &manager = document.manager;
    const VarnelPlate *plate = document.model().getPlates().front();
    const VarnelBeam *beam = document.model().getBeams().front();
    EXPECT_EQ(plate->getMaterial(0), manager.getMaterialManager()->findConcreteToName("M", 0));
    ASSERT_NE(plate->getMaterial(0), nullptr);
    EXPECT_DOUBLE_EQ(plate->getMaterial(0)->getRho(), 2300.0);
    EXPECT_EQ(plate->getDesign()->getBasicMeshL(), manager.getDgnMeshList()->findMesh("Q"));
    ASSERT_NE(plate->getFoundation(), nullptr);
    EXPECT_EQ(plate->getFoundation(), beam->getFoundation());
    EXPECT_EQ(plate->getFoundation()->getName(), "F");
    ASSERT_NE(beam->getSection(0), nullptr);
    EXPECT_DOUBLE_EQ(beam->getSection(0)->getArea(), 0.1);
    ASSERT_NE(beam->getReinfLine(), nullptr);
    EXPECT_EQ(beam->getReinfLine()->getName(), "L");
}

TEST_F(DocumentSafety, MaterialsAndDesignsAreFoundAlsoDeepInTheDocument) {
    document.read(
        "<VARNEL><A><MATERIALS><MATERIAL NAME=\"M\"/></MATERIALS><DESIGNS><REINFLINE NUMBER=\"4\"/></DESIGNS>"
        "</A></VARNEL>");
    EXPECT_NE(document.manager.getMaterialManager()->findMaterialToName("M", 0), nullptr);
    EXPECT_NE(document.manager.getDgnList()->findBeamReinf(4), nullptr);
}

TEST_F(DocumentSafety, ResourcesSurviveAMaterialThatLeavesTheProject) {
    auto *gone = new KzMaterial("gone", 1.0, 2.0);
    document.manager.getMaterialManager()->add(gone);
    document.manager.getMaterialManager()->add(new KzMaterial("stays", 3.0, 4.0));
    document.write();
    EXPECT_EQ(document.find({"MATERIALS"})->getChildren().size(), 2u);
    document.manager.getMaterialManager()->remove(gone);
    document.write();
    EXPECT_EQ(textOf(document.find({"MATERIALS"})),
              "<MATERIALS><MATERIAL NAME=\"stays\" KIND=\"OTHER\" RHO=\"3\" GAMMA=\"4\"></MATERIAL>"
              "</MATERIALS>");
}

TEST_F(DocumentSafety, StockMaterialsThatOnlyTheProjectCanSupplyAreWrittenOnce) {
    KzMaterial *concrete = KzMaterialHandler::get()->findMaterialToName("C30/37", 0);
    KzMaterial *timber = KzMaterialHandler::get()->findMaterialToName("C24", 0);
    VarnelSubSystem *tower = document.manager.giveSubSystem("Tower", root());
    for (Varnel *model : {&document.model(), tower->getDatabase(), tower->getDatabase()})
        model->giveAttributeArea()->setMaterial(concrete, 0);
    VarnelPlate *plate = document.model().givePlate(true);
    plate->setMaterial(KzMaterialHandler::get()->findMaterialToName("C50/60", 0), 0);  // read from the stock
    VarnelConstructionStage *stage = document.model().getDBaseFactory()->giveConstructionStage();
    root()->add(stage);
    stage->giveState(plate)->setMaterial(timber);
    stage->giveState(document.model().giveBeam(true))->setMaterial(concrete);
    document.manager.getMaterialManager()->add(new KzMaterial("own", 1.0, 1.0));
    document.model().giveAttributeArea()->setMaterial(
        document.manager.getMaterialManager()->findMaterialToName("own", 0), 0);
    document.write();
    EXPECT_EQ(textOf(document.find({"MATERIALS"})),
              "<MATERIALS><MATERIAL NAME=\"own\" KIND=\"OTHER\" RHO=\"1\" GAMMA=\"1\"></MATERIAL>"
              "<MATERIAL NAME=\"C30/37\" KIND=\"CONCRETE\" RHO=\"2500\" GAMMA=\"25\"></MATERIAL>"
              "<MATERIAL NAME=\"C24\" KIND=\"TIMBER\" RHO=\"420\" GAMMA=\"4.2\"></MATERIAL></MATERIALS>");
    EXPECT_EQ(document.manager.getMaterialManager()->getMaterials().size(), 1u);  // writing adds none
    Document other;
    other.read(document.text());
    other.write();
    EXPECT_EQ(textOf(other.find({"MATERIALS"})), textOf(document.find({"MATERIALS"})));
}

TEST_F(DocumentSafety, SecondDocumentEqualsTheFirst) {
    const ChangedDefaults changed;
    Document other;
    {
        CompleteProject project;
        other.read(project.write());
    }
    const std::string text = other.write();
    EXPECT_EQ(other.write(), text);
    Document third;
    third.read(text);
    EXPECT_EQ(third.write(), text);
}

TEST_F(DocumentSafety, LocaleOfTheProcessChangesNothing) {
    const ChangedDefaults changed;
    CompleteProject project;
    const std::string text = project.write();
    Document plain;
    plain.read(text);
    const std::string read = plain.write();
    const CommaLocale comma;
    EXPECT_EQ(project.write(), text);
    Document other;
    other.read(text);
    EXPECT_EQ(other.write(), read);
}

TEST_F(DocumentSafety, MalformedFileKeepsModelAndTree) {
    const TemporaryFolder folder;
    document.readSubSystem("<HOLES><HOLE/></HOLES><FOREIGN/>");
    const std::string before = document.text();
    const std::string broken =
        folder.write("broken.xml", "<VARNEL><SUBSYSTEM><HOLES><HOLE/></HOLES></SUBSYSTEM>");
    EXPECT_THROW(document.manager.input(broken.c_str()), Tools::Error);
    EXPECT_EQ(document.text(), before);
    EXPECT_EQ(document.model().getNumberOfHoles(), 1);
}

TEST_F(DocumentSafety, ReaderThatStopsLeavesWhatWasReadAndTheCursorOnTheRoot) {
    EXPECT_THROW(document.readSubSystem("<HOLES><HOLE/></HOLES><PLATES><PLATE NUMBER=\"1\"/><PLATE>"
                                        "<CONCRETE>mud</CONCRETE></PLATE><PLATE/></PLATES>"
                                        "<PBOUNDS><A/></PBOUNDS>"),
                 Tools::Error);
    EXPECT_EQ(document.model().getNumberOfPointBoundaries(), 1);
    EXPECT_EQ(document.model().getNumberOfPlates(), 2);
    EXPECT_EQ(document.model().getNumberOfHoles(), 0);
    EXPECT_EQ(document.exchange().getTree()->getCursor(), document.find({}));
}

TEST_F(DocumentSafety, WriterThatThrowsLeavesTheCursorOnTheRoot) {
    class Throwing : public VarnelExchangeXml {
      public:
        void updateOneHole(Varnel *model, VarnelHole *hole) override {
            if (armed && model) throw std::runtime_error("hole");
            if (inSettings && !model) throw std::runtime_error("default hole");
            VarnelExchangeXml::updateOneHole(model, hole);
        }
        bool armed = false;
        bool inSettings = false;
    } exchange;
    KzXmlTree &tree = *exchange.getTree();
    document.model().add(document.model().giveHole());
    exchange.armed = true;
    EXPECT_THROW(exchange.updateSystem(&document.manager), std::runtime_error);
    EXPECT_EQ(tree.getCursor(), tree.getRoot());
    exchange.armed = false;
    exchange.inSettings = true;
    EXPECT_THROW(exchange.updateSettings(&document.manager), std::runtime_error);
    EXPECT_EQ(tree.getCursor(), tree.getRoot());
    exchange.inSettings = false;
    exchange.updateSystem(&document.manager);
    Document other;
    other.exchange().updateSystem(&document.manager);
    EXPECT_EQ(textOf(tree.getRoot()), textOf(other.find({})));  // nothing of the broken run is left
}

TEST_F(DocumentSafety, ReaderOfAHostMayChangeTheListThatIsRead) {
    class Changing : public VarnelExchangeXml {
      public:
        VarnelHole *createOneHole(KzXmlData *element, Varnel *model) override {
            KzXmlData *list = element->getParent();
            VarnelHole *hole = VarnelExchangeXml::createOneHole(element, model);
            if (empties)
                list->flush();
            else if (list->getChildren().size() < 40)
                list->makeChild("HOLE");
            return hole;
        }
        bool empties = false;
    } exchange;
    exchange.open("SUBSYSTEM");
    exchange.open("HOLES");
    KzXmlData *list = exchange.getTree()->getCursor();
    list->makeChild("HOLE");
    exchange.get(&document.manager);
    EXPECT_EQ(document.model().getNumberOfHoles(), 40);
    exchange.empties = true;
    exchange.get(&document.manager);
    EXPECT_EQ(document.model().getNumberOfHoles(), 41);
    EXPECT_TRUE(list->getChildren().empty());
}

TEST_F(DocumentSafety, CursorThatAHostLeftAnywhereDoesNotMatter) {
    const std::string before = document.write();
    document.exchange().open("SUBSYSTEM");
    document.exchange().open("PLATES");
    EXPECT_EQ(document.write(), before);
    EXPECT_EQ(document.exchange().getTree()->getCursor(), document.find({}));
    document.exchange().close();
    EXPECT_EQ(document.write(), before);
}

TEST_F(DocumentSafety, NobodyToWriteOrReadForIsHarmless) {
    VarnelExchangeXml exchange;
    exchange.updateSystem(nullptr);
    exchange.updateResults(nullptr);
    exchange.get(nullptr);
    exchange.updateOneSubSystem(nullptr);
    exchange.createOneSubSystem(nullptr, nullptr);
    exchange.createSubSystems(nullptr, nullptr);
    exchange.updateResultsToSubSystem(nullptr);
    exchange.updateConstructionStages(nullptr);
    exchange.updateOneConstructionStage(nullptr);
    exchange.updateOneObjectState(nullptr);
    exchange.updateOnePlateState(nullptr);
    exchange.updateOneBeamState(nullptr);
    exchange.updateOneLoadcase(nullptr, nullptr);
    exchange.updateOneHole(nullptr, nullptr);
    exchange.updateOneLoadDistributionArea(nullptr);
    exchange.updateOneObjectGroup(nullptr, nullptr);
    exchange.updateDesignData(nullptr);
    exchange.readDesignData(nullptr, nullptr);
    exchange.readOneHole(nullptr, nullptr);
    exchange.readOneLoadDistributionArea(nullptr, nullptr);
    EXPECT_EQ(exchange.createOneHole(nullptr, nullptr), nullptr);
    EXPECT_EQ(exchange.createOneLoadDistributionArea(nullptr, nullptr), nullptr);
    EXPECT_EQ(exchange.createOneObjectGroup(nullptr, nullptr), nullptr);
    EXPECT_EQ(exchange.createOneLoadcase(nullptr, nullptr), nullptr);
    EXPECT_EQ(exchange.createOneConstructionStage(nullptr, nullptr), nullptr);
    EXPECT_EQ(exchange.createOneBeamState(nullptr, nullptr, nullptr), nullptr);
    EXPECT_EQ(exchange.createOnePlateState(nullptr, nullptr, nullptr, nullptr), nullptr);
    for (auto update :
         {&VarnelExchangeXml::updateHoles, &VarnelExchangeXml::updateAttributeAreas,
          &VarnelExchangeXml::updateLoadDistributionAreas, &VarnelExchangeXml::updateObjectGroups,
          &VarnelExchangeXml::updateResultSections, &VarnelExchangeXml::updateBeamResults,
          &VarnelExchangeXml::updatePointBoundaryResults, &VarnelExchangeXml::updateLineBoundaryResults})
        (exchange.*update)(nullptr);
    for (auto create : {&VarnelExchangeXml::createAttributeAreas, &VarnelExchangeXml::createRefinePolygons,
                        &VarnelExchangeXml::createLoadDistributionAreas, &VarnelExchangeXml::createGaps,
                        &VarnelExchangeXml::createObjectGroups, &VarnelExchangeXml::createResultSections})
        (exchange.*create)(exchange.getTree()->getRoot(), nullptr);
    EXPECT_EQ(exchange.getTree()->getCursor(), exchange.getTree()->getRoot());
}

TEST_F(DocumentSafety, DeeplyNestedSubSystemsAreReadAndWritten) {
    constexpr int depth = 300;
    std::string open, close;
    for (int i = 0; i < depth; ++i) {
        open += "<SUBSYSTEMS><SUBSYSTEM NAME=\"S\">";
        close += "</SUBSYSTEM></SUBSYSTEMS>";
    }
    document.readSubSystem(open + "<HOLES><HOLE/></HOLES>" + close);
    const VarnelSubSystem *node = root();
    int nested = 0;
    for (; !node->getChildren().empty(); node = node->getChildren().front()) ++nested;
    EXPECT_EQ(nested, depth);
    EXPECT_EQ(node->getDatabase()->getNumberOfHoles(), 1);
    Document other;
    other.read(document.write());
    other.write();
    EXPECT_EQ(textOf(other.find({"SUBSYSTEM"})), textOf(document.find({"SUBSYSTEM"})));
}

TEST_F(DocumentSafety, NestingBeyondTheLimitIsRefusedBeforeAnythingIsRead) {
    std::string text = "<VARNEL><SUBSYSTEM>";
    for (int i = 0; i < 1000000; ++i) text += "<SUBSYSTEMS><SUBSYSTEM NAME=\"S\">";
    EXPECT_THROW(document.read(text), Tools::Error);
    EXPECT_TRUE(root()->getChildren().empty());
}

}  // namespace
