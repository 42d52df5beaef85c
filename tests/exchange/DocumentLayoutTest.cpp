// The document from the root down: what stands where, and in which order it is written and read.

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <vector>

#include "tests/support/CompleteProject.h"
#include "tests/support/Document.h"
#include "tests/support/ProcessDefaults.h"
#include "varnel/varnel.h"

namespace {

using Names = std::vector<std::string>;

Names childrenOf(const KzXmlData *element) {
    Names names;
    if (!element) return {"(none)"};
    for (const KzXmlData *child : element->getChildren()) names.push_back(child->getName());
    return names;
}

std::string subSystemElement(const std::string &name, const std::string &content = "") {
    return "<SUBSYSTEM NAME=\"" + name + "\">" + content + "</SUBSYSTEM>";
}

class DocumentLayout : public testing::Test {
  protected:
    VarnelSubSystem *root() { return document.manager.getSubSystems().front(); }
    VarnelSubSystem *child(const std::string &name) { return root()->findChild(name, false); }

    const ProcessDefaults defaults;
    Document document;
};

TEST_F(DocumentLayout, RootElementsStandInTheOrderOfWriting) {
    document.write();
    EXPECT_EQ(childrenOf(document.find({})), (Names{"SETTINGS", "MATERIALS", "SECTIONS", "MESHES", "DESIGNS",
                                                    "FOUNDATIONS", "SUBSYSTEM", "LOADCASES"}));
    EXPECT_TRUE(document.find({})->getAttributes().empty());  // no version and no format number
}

TEST_F(DocumentLayout, ListsOfASubSystemStandInTheOrderOfWriting) {
    document.model().giveBeam(true);
    document.manager.giveSubSystem("Tower", root());
    document.write();
    EXPECT_EQ(childrenOf(document.find({"SUBSYSTEM"})),
              (Names{"OFFSET", "BEAMS", "PLATES", "HOLES", "ATTRIBUTES", "GAPS", "PBOUNDS", "LBOUNDS",
                     "POINTLOADS", "LINELOADS", "AREALOADS", "RESULTSECTIONS", "LDAREAS", "GROUPS",
                     "SUBSYSTEMS", "CONSTRUCTIONSTATES"}));
}

TEST_F(DocumentLayout, PointsAndLinesStandBetweenResultSectionsAndLoadDistributionAreas) {
    class WithLists : public VarnelExchangeXml {
      public:
        WithLists() {
            setWritePoints(true);
            setWriteLines(true);
        }
    } exchange;
    exchange.updateSystem(&document.manager);
    const Names names = childrenOf(exchange.getTree()->getRoot()->findChild("SUBSYSTEM"));
    const auto place = std::find(names.begin(), names.end(), "RESULTSECTIONS");
    ASSERT_GE(names.end() - place, 4);
    EXPECT_EQ(Names(place, place + 4), (Names{"RESULTSECTIONS", "POINTS", "LINES", "LDAREAS"}));
}

TEST_F(DocumentLayout, EmptySubSystemIsWrittenWithAllItsLists) {
    document.write();
    EXPECT_EQ(textOf(document.find({"SUBSYSTEM"})),
              "<SUBSYSTEM NAME=\"System\" STANDARD=\"0\">" + vectorElement("OFFSET", 0, 0, 0) +
                  "<PLATES></PLATES><HOLES></HOLES><ATTRIBUTES></ATTRIBUTES><GAPS></GAPS><PBOUNDS></PBOUNDS>"
                  "<LBOUNDS></LBOUNDS><POINTLOADS></POINTLOADS><LINELOADS></LINELOADS><AREALOADS></AREALOADS>"
                  "<RESULTSECTIONS></RESULTSECTIONS><LDAREAS></LDAREAS><GROUPS></GROUPS>"
                  "<CONSTRUCTIONSTATES></CONSTRUCTIONSTATES></SUBSYSTEM>");
}

// Results are found again by this name.
TEST_F(DocumentLayout, TopSubSystemIsAlwaysNamedSystem) {
    root()->setName("House");
    document.write();
    EXPECT_EQ(document.find({"SUBSYSTEM"})->findAttribute("NAME")->getData(), "System");
    Document other;
    other.read(document.text());
    EXPECT_EQ(other.manager.getSubSystems().front()->getName(), "System");
}

TEST_F(DocumentLayout, OnlyTheFirstTopSubSystemIsWritten) {
    document.manager.add(new VarnelSubSystem("Second", document.manager.getFactory(), nullptr), nullptr);
    document.write();
    const Names names = childrenOf(document.find({}));
    EXPECT_EQ(std::count(names.begin(), names.end(), "SUBSYSTEM"), 1);
    EXPECT_EQ(document.text().find("Second"), std::string::npos);
}

// It is written all the same: other readers count on it.
TEST_F(DocumentLayout, OffsetOfTheTopIsWrittenAndNotRead) {
    root()->setOffset(KzVector3D(1, 2.5, -3));
    document.write();
    EXPECT_EQ(textOf(document.find({"SUBSYSTEM", "OFFSET"})), vectorElement("OFFSET", 1, 2.5, -3));
    Document other;
    other.read(document.text());
    EXPECT_TRUE(other.manager.getSubSystems().front()->getOffset() == KzVector3D());
}

TEST_F(DocumentLayout, NestedSubSystemsHaveTheirNameOffsetAndStandardAndNoStages) {
    KzStandard::get()->setMode(3);
    VarnelSubSystem *tower = document.manager.giveSubSystem("Tower", root());
    tower->setOffset(KzVector3D(10, 20, 30));
    document.manager.giveSubSystem("Cabin", tower);
    document.write();
    const KzXmlData *element = document.find({"SUBSYSTEM", "SUBSYSTEMS", "SUBSYSTEM"});
    ASSERT_NE(element, nullptr);
    EXPECT_EQ(element->findAttribute("NAME")->getData(), "Tower");
    EXPECT_EQ(element->getAttributes().back()->getKey(), "STANDARD");
    EXPECT_EQ(element->findAttribute("STANDARD")->getInteger(), 3);
    EXPECT_EQ(element->findChild("CONSTRUCTIONSTATES"), nullptr);
    EXPECT_EQ(childrenOf(element).back(), "SUBSYSTEMS");
    Document other;
    other.read(document.text());
    ASSERT_EQ(other.manager.getCurrentSubSystem()->getChildren().size(), 1u);
    const VarnelSubSystem *read = other.manager.getCurrentSubSystem()->getChildren().front();
    EXPECT_EQ(read->getName(), "Tower");
    EXPECT_TRUE(read->getOffset() == KzVector3D(10, 20, 30));
    ASSERT_EQ(read->getChildren().size(), 1u);
    EXPECT_EQ(read->getChildren().front()->getName(), "Cabin");
    EXPECT_TRUE(read->getChildren().front()->getOffset() == KzVector3D());
}

TEST_F(DocumentLayout, NestedSubSystemWithoutANameIsSkippedWhole) {
    document.readSubSystem("<SUBSYSTEMS><SUBSYSTEM><HOLES><HOLE/></HOLES></SUBSYSTEM><SUBSYSTEM NAME=\"\"/>" +
                           subSystemElement("A") + "</SUBSYSTEMS>");
    ASSERT_EQ(root()->getChildren().size(), 2u);  // an empty name is a name
    EXPECT_EQ(root()->getChildren().front()->getName(), "");
    EXPECT_EQ(root()->getChildren().front()->getDatabase()->getNumberOfHoles(), 0);
    EXPECT_EQ(root()->getChildren().back()->getName(), "A");
}

TEST_F(DocumentLayout, NestedSubSystemWithoutAnOffsetKeepsItsOwn) {
    document.manager.giveSubSystem("A", root())->setOffset(KzVector3D(1, 2, 3));
    document.readSubSystem("<SUBSYSTEMS>" + subSystemElement("A") + "</SUBSYSTEMS>");
    EXPECT_TRUE(child("A")->getOffset() == KzVector3D(1, 2, 3));
    document.readSubSystem("<SUBSYSTEMS>" + subSystemElement("A", "<OFFSET><Y>5</Y></OFFSET>") +
                           "</SUBSYSTEMS>");
    EXPECT_TRUE(child("A")->getOffset() == KzVector3D(0, 5, 0));
}

TEST_F(DocumentLayout, ElementsOfOneNameFillOneSubSystem) {
    const std::string hole = "<HOLES><HOLE/></HOLES>";
    document.readSubSystem("<SUBSYSTEMS>" + subSystemElement("A", hole) + "<ANY NAME=\"A\">" + hole +
                           "</ANY></SUBSYSTEMS>");
    ASSERT_EQ(root()->getChildren().size(), 1u);
    EXPECT_EQ(child("A")->getDatabase()->getNumberOfHoles(), 2);
}

TEST_F(DocumentLayout, ChildMayBearTheNameOfItsParent) {
    document.readSubSystem(
        "<SUBSYSTEMS>" +
        subSystemElement("System", "<SUBSYSTEMS>" + subSystemElement("System", "<HOLES><HOLE/></HOLES>") +
                                       "</SUBSYSTEMS>") +
        "</SUBSYSTEMS>");
    ASSERT_NE(child("System"), nullptr);
    ASSERT_NE(child("System")->findChild("System", false), nullptr);
    EXPECT_EQ(child("System")->findChild("System", false)->getDatabase()->getNumberOfHoles(), 1);
    const std::string text = document.write();
    EXPECT_EQ(document.write(), text);
}

TEST_F(DocumentLayout, SubSystemWithoutAModelIsWrittenAndReadWithoutObjects) {
    class Factory : public VarnelFactory {
        Varnel *giveDatabase() const override { return nullptr; }
    } factory;
    VarnelManager manager(&factory);
    VarnelExchangeXml &exchange = static_cast<VarnelExchangeXml &>(*manager.getExchange());
    manager.giveSubSystem("", manager.getCurrentSubSystem());
    exchange.updateSystem(&manager);
    EXPECT_EQ(childrenOf(exchange.getTree()->getRoot()->findChild("SUBSYSTEM")),
              (Names{"OFFSET", "SUBSYSTEMS", "CONSTRUCTIONSTATES"}));
    exchange.updateResults(&manager);
    exchange.get(&manager);
    EXPECT_EQ(manager.getCurrentSubSystem()->getDatabase(), nullptr);
}

/// Notes the virtual operations in the order of their calls.
class Noting : public VarnelExchangeXml {
  public:
    Names calls;

    void updateSettings(VarnelManager *manager) override {
        calls.push_back("settings");
        VarnelExchangeXml::updateSettings(manager);
        calls.clear();
        calls.push_back("settings");
    }
    void updateOneSubSystem(VarnelSubSystem *subSystem) override {
        calls.push_back("subsystem " + subSystem->getName());
        VarnelExchangeXml::updateOneSubSystem(subSystem);
    }
    void updateOneConstructionStage(VarnelConstructionStage *) override { calls.push_back("stage"); }
    void updateOneHole(Varnel *, VarnelHole *) override { calls.push_back("hole"); }
    void updateOnePlate(Varnel *, VarnelPlate *) override { calls.push_back("plate"); }
    void updateOnePointBoundary(Varnel *, VarnelPointBoundary *) override { calls.push_back("pbound"); }
    void updateOneLineBoundary(Varnel *, VarnelLineBoundary *) override { calls.push_back("lbound"); }
    void updateOneLoadcase(VarnelManager *, SysBase::Loadcase *) override { calls.push_back("loadcase"); }
    void updateOnePointLoad(Varnel *, VarnelPointLoad *) override { calls.push_back("pointload"); }
    void updateOneLineLoad(Varnel *, VarnelLineLoad *) override { calls.push_back("lineload"); }
    void updateOneAreaLoad(Varnel *, VarnelAreaLoad *) override { calls.push_back("areaload"); }
    void updateOneObjectGroup(Varnel *, VarnelObjectGroup *) override { calls.push_back("group"); }
    void updateThumbnail(VarnelSubSystem *subSystem) override {
        calls.push_back("thumbnail " + (subSystem ? subSystem->getName() : "(none)"));
    }

    void createSettings(KzXmlData *) override { calls.push_back("settings"); }
    VarnelConstructionStage *createOneConstructionStage(KzXmlData *, VarnelSubSystem *subSystem) override {
        calls.push_back(subSystem ? "stage of a subsystem" : "stage");
        return nullptr;
    }
    VarnelPlate *createOnePlate(KzXmlData *, Varnel *) override { return note("plate"); }
    void createOneSubSystem(KzXmlData *element, VarnelSubSystem *subSystem) override {
        calls.push_back("subsystem " + subSystem->getName());
        VarnelExchangeXml::createOneSubSystem(element, subSystem);
    }
    VarnelPointBoundary *createOnePointBoundary(KzXmlData *, Varnel *) override { return note("pbound"); }
    VarnelLineBoundary *createOneLineBoundary(KzXmlData *, Varnel *) override { return note("lbound"); }
    VarnelHole *createOneHole(KzXmlData *, Varnel *) override { return note("hole"); }
    VarnelPointLoad *createOnePointLoad(KzXmlData *, Varnel *) override { return note("pointload"); }
    VarnelLineLoad *createOneLineLoad(KzXmlData *, Varnel *) override { return note("lineload"); }
    VarnelAreaLoad *createOneAreaLoad(KzXmlData *, Varnel *) override { return note("areaload"); }
    VarnelObjectGroup *createOneObjectGroup(KzXmlData *, Varnel *) override { return note("group"); }
    VarnelLoadDistributionArea *createOneLoadDistributionArea(KzXmlData *, Varnel *) override {
        return note("ldarea");
    }
    SysBase::Loadcase *createOneLoadcase(KzXmlData *, VarnelManager *) override { return note("loadcase"); }

  private:
    std::nullptr_t note(const char *call) {
        calls.push_back(call);
        return nullptr;
    }
};

TEST_F(DocumentLayout, WritersRunInTheirOrderAndTheThumbnailLast) {
    CompleteProject project;
    project.model().removeAll();
    project.model().givePlate(true);
    project.model().add(project.model().giveHole());
    project.model().givePointBoundary(KzVector3D(), 1);
    project.model().add(new VarnelLineBoundary(new VarnelStraight(KzVector3D(), KzVector3D(1, 0, 0))));
    project.model().givePointLoad();
    project.model().giveLineLoad(new VarnelStraight(KzVector3D(), KzVector3D(1, 0, 0)));
    project.model().giveAreaLoad();
    project.model().add(project.model().giveObjectGroup("G"));
    project.manager.setSystemChanged(false);
    project.manager.setLoadChanged(false);
    Noting exchange;
    exchange.updateSystem(&project.manager);
    EXPECT_EQ(exchange.calls,
              (Names{"settings", "subsystem System", "plate", "hole", "pbound", "lbound", "pointload",
                     "lineload", "areaload", "group", "subsystem Tower", "plate", "subsystem Cabin", "plate",
                     "stage", "stage", "loadcase", "loadcase", "thumbnail System"}));
}

TEST_F(DocumentLayout, ReadersRunInTheirOwnOrder) {
    Noting exchange;
    std::istringstream stream(
        "<VARNEL><LOADCASES><LOADCASE/></LOADCASES><SUBSYSTEM>"
        "<CONSTRUCTIONSTATES><CONSTRUCTIONSTATE/></CONSTRUCTIONSTATES>"
        "<SUBSYSTEMS><SUBSYSTEM NAME=\"A\"><PLATES><PLATE/></PLATES></SUBSYSTEM></SUBSYSTEMS>"
        "<GROUPS><GROUP/></GROUPS><LDAREAS><LDAREA/></LDAREAS><AREALOADS><A/></AREALOADS>"
        "<LINELOADS><A/></LINELOADS><POINTLOADS><A/></POINTLOADS><HOLES><A/></HOLES><LBOUNDS><A/></LBOUNDS>"
        "<PLATES><PLATE/></PLATES><PBOUNDS><A/></PBOUNDS></SUBSYSTEM><SETTINGS/></VARNEL>");
    exchange.getTree()->buildOfStream(stream);
    exchange.get(&document.manager);
    EXPECT_EQ(exchange.calls, (Names{"settings", "subsystem System", "pbound", "plate", "lbound", "hole",
                                     "pointload", "lineload", "areaload", "ldarea", "group", "subsystem A",
                                     "plate", "stage", "loadcase"}));
    EXPECT_EQ(exchange.getManager(), &document.manager);
}

// Supports of beams and plates are there before the members, members before the lists that refer to them.
TEST_F(DocumentLayout, BeamsAreReadBetweenPointBoundariesAndPlates) {
    class Beams : public VarnelExchangeXmlBeam {
      public:
        explicit Beams(Noting *exchange) : VarnelExchangeXmlBeam(exchange), noting_(exchange) {}
        void create(KzXmlData *, Varnel *) override { noting_->calls.push_back("beams"); }

      private:
        Noting *noting_;
    };
    class WithBeams : public Noting {
      public:
        WithBeams() { setExBeam(new Beams(this)); }
    } exchange;
    std::istringstream stream(
        "<VARNEL><SUBSYSTEM><PLATES><PLATE/></PLATES><PBOUNDS><A/></PBOUNDS></SUBSYSTEM></VARNEL>");
    exchange.getTree()->buildOfStream(stream);
    exchange.get(&document.manager);
    EXPECT_EQ(exchange.calls, (Names{"settings", "subsystem System", "pbound", "beams", "plate"}));
}

TEST_F(DocumentLayout, ListsTakeEveryChildWhateverItsName) {
    document.readSubSystem(
        "<PBOUNDS><A/><B/></PBOUNDS><LBOUNDS><A/><B/></LBOUNDS><HOLES><A/><B/></HOLES>"
        "<POINTLOADS><A/><B/></POINTLOADS><LINELOADS><A/><B/></LINELOADS><AREALOADS><A/><B/></AREALOADS>");
    const Varnel &model = document.model();
    EXPECT_EQ(model.getNumberOfPointBoundaries(), 2);
    EXPECT_EQ(model.getNumberOfLineBoundaries(), 2);
    EXPECT_EQ(model.getNumberOfHoles(), 2);
    EXPECT_EQ(model.getNumberOfPointLoads(), 2);
    EXPECT_EQ(model.getNumberOfLineLoads(), 2);
    EXPECT_EQ(model.getNumberOfAreaLoads(), 2);
}

TEST_F(DocumentLayout, EmptyDocumentChangesNothing) {
    document.manager.setSystemChanged(false);
    document.manager.setLoadChanged(false);
    KzStandard::get()->setMode(5);
    document.manager.setSystemBoundary(7);
    document.read("<VARNEL/>");
    EXPECT_FALSE(document.manager.systemChanged());
    EXPECT_FALSE(document.manager.loadChanged());
    EXPECT_EQ(KzStandard::get()->getMode(), 5);
    EXPECT_EQ(document.manager.getSystemBoundary(), 7);
    EXPECT_TRUE(root()->getChildren().empty());
}

TEST_F(DocumentLayout, DocumentWithAnotherRootIsNotRead) {
    document.read("<OTHER><SUBSYSTEM NAME=\"System\"><HOLES><HOLE/></HOLES></SUBSYSTEM></OTHER>");
    EXPECT_EQ(document.model().getNumberOfHoles(), 0);
    // The element that is looked for may stand below the root, too.
    document.read("<OTHER><VARNEL><SUBSYSTEM><HOLES><HOLE/></HOLES></SUBSYSTEM></VARNEL></OTHER>");
    EXPECT_EQ(document.model().getNumberOfHoles(), 1);
}

TEST_F(DocumentLayout, DocumentIsReadIntoTheCurrentSubSystem) {
    VarnelSubSystem *tower = document.manager.giveSubSystem("Tower", root());
    document.manager.setCurrentSubSystem(tower);
    document.readSubSystem("<HOLES><HOLE/></HOLES>");
    EXPECT_EQ(tower->getDatabase()->getNumberOfHoles(), 1);
    EXPECT_EQ(root()->getDatabase()->getNumberOfHoles(), 0);
}

TEST_F(DocumentLayout, StagesGoToTheSubSystemThatTheDocumentWasReadInto) {
    class Moving : public VarnelExchangeXml {
      public:
        VarnelSubSystem *next = nullptr;
        void createOneSubSystem(KzXmlData *element, VarnelSubSystem *subSystem) override {
            VarnelExchangeXml::createOneSubSystem(element, subSystem);
            getManager()->setCurrentSubSystem(next);
        }
    } exchange;
    exchange.next = document.manager.giveSubSystem("Tower", root());
    std::istringstream stream(
        "<VARNEL><SUBSYSTEM><CONSTRUCTIONSTATES><CONSTRUCTIONSTATE/></CONSTRUCTIONSTATES></SUBSYSTEM>"
        "</VARNEL>");
    exchange.getTree()->buildOfStream(stream);
    exchange.get(&document.manager);
    EXPECT_EQ(root()->getConstructionStages().size(), 1u);
    EXPECT_TRUE(exchange.next->getConstructionStages().empty());
}

TEST_F(DocumentLayout, SubSystemIsFoundAlsoDeepInTheDocument) {
    document.read("<VARNEL><A><SUBSYSTEM STANDARD=\"4\"><HOLES><HOLE/></HOLES></SUBSYSTEM></A></VARNEL>");
    EXPECT_EQ(document.model().getNumberOfHoles(), 1);
    EXPECT_EQ(KzStandard::get()->getMode(), 4);
}

TEST_F(DocumentLayout, ListsOfSubSystemsDirectlyUnderTheRootAreDropped) {
    document.read("<VARNEL><SUBSYSTEMS><SUBSYSTEM NAME=\"A\"/></SUBSYSTEMS><KEPT/></VARNEL>");
    document.write();
    EXPECT_EQ(document.find({"SUBSYSTEMS"}), nullptr);
    EXPECT_NE(document.find({"KEPT"}), nullptr);
}

// A subsystem without children writes no list, and an old one is not removed.
TEST_F(DocumentLayout, StaleListOfSubSystemsStaysAndRevivesThem) {
    document.manager.giveSubSystem("Tower", root());
    document.write();
    VarnelSubSystem *tower = child("Tower");
    EXPECT_EQ(root()->removeChild(tower, false), 1);
    delete tower;
    const std::string text = document.write();
    EXPECT_NE(document.find({"SUBSYSTEM", "SUBSYSTEMS", "SUBSYSTEM"}), nullptr);
    document.read(text);
    EXPECT_NE(child("Tower"), nullptr);
}

TEST_F(DocumentLayout, RemovedSubSystemLeavesTheListOfTheOthers) {
    document.manager.giveSubSystem("A", root());
    document.manager.giveSubSystem("B", root());
    document.write();
    VarnelSubSystem *first = child("A");
    root()->removeChild(first, false);
    delete first;
    document.write();
    const KzXmlData *list = document.find({"SUBSYSTEM", "SUBSYSTEMS"});
    ASSERT_EQ(list->getChildren().size(), 1u);
    EXPECT_EQ(list->getChildren().front()->findAttribute("NAME")->getData(), "B");
}

TEST_F(DocumentLayout, StandardGoesToTheProcessAndToTheModel) {
    class Model : public VarnelDB {
      public:
        explicit Model(VarnelManager *manager) : VarnelDB(manager) {}
        void setStandardMode(Standard::Mode mode) override { seen = mode; }
        int seen = -1;
    };
    class Factory : public VarnelFactory {
        Varnel *giveDatabase() const override { return new Model(getManager()); }
    } factory;
    VarnelManager manager(&factory);
    auto &exchange = static_cast<VarnelExchangeXml &>(*manager.getExchange());
    std::istringstream stream(
        "<VARNEL><SUBSYSTEM STANDARD=\"6\"><SUBSYSTEMS><SUBSYSTEM NAME=\"A\" STANDARD=\"9\"/>"
        "</SUBSYSTEMS></SUBSYSTEM><SUBSYSTEM STANDARD=\"8\"/></VARNEL>");
    exchange.getTree()->buildOfStream(stream);
    exchange.get(&manager);
    EXPECT_EQ(KzStandard::get()->getMode(), 6);  // the first one's
    EXPECT_EQ(static_cast<Model *>(manager.getDatabase())->seen, 6);
    exchange.updateSystem(&manager);
    EXPECT_EQ(exchange.getTree()->getRoot()->findChild("SUBSYSTEM")->findAttribute("STANDARD")->getInteger(),
              6);
}

TEST_F(DocumentLayout, MissingStandardLeavesTheOneThatIsThere) {
    KzStandard::get()->setMode(5);
    document.read("<VARNEL><SUBSYSTEM/></VARNEL>");
    EXPECT_EQ(KzStandard::get()->getMode(), 5);
}

}  // namespace
