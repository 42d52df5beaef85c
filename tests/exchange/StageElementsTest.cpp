#include <gtest/gtest.h>

#include <limits>
#include <memory>

#include "tests/support/Document.h"
#include "varnel/contracts/KzMaterial.h"
#include "varnel/contracts/KzMaterialHandler.h"
#include "varnel/contracts/KzMaterialManager.h"
#include "varnel/contracts/SysBase/ConstructionStage.h"
#include "varnel/contracts/Tools/Error.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/geometry/VarnelStraight.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/process/VarnelDatabaseFactory.h"
#include "varnel/stages/VarnelBeamState.h"
#include "varnel/stages/VarnelConstructionStage.h"
#include "varnel/stages/VarnelLineLoadState.h"
#include "varnel/stages/VarnelPlateState.h"
#include "varnel/stages/VarnelPointBoundaryState.h"
#include "varnel/stages/VarnelPointLoadState.h"

namespace {

const std::string objects =
    "<BEAMS><BEAM NUMBER=\"11\"/></BEAMS><PLATES><PLATE NUMBER=\"12\"/></PLATES>"
    "<PBOUNDS><P NUMBER=\"13\"/></PBOUNDS><POINTLOADS><P NUMBER=\"14\"/></POINTLOADS>"
    "<LINELOADS><L NUMBER=\"15\"/></LINELOADS>";

std::string stagesElement(const std::string &content) {
    return "<CONSTRUCTIONSTATES>" + content + "</CONSTRUCTIONSTATES>";
}

std::string stageElement(const std::string &attributes, const std::string &states = "") {
    return "<CONSTRUCTIONSTATE " + attributes + "><OBJECTSTATES>" + states +
           "</OBJECTSTATES></CONSTRUCTIONSTATE>";
}

class StageElements : public testing::Test {
  protected:
    VarnelSubSystem *root() { return document.manager.getSubSystems().front(); }
    Varnel &model() { return document.model(); }
    const std::list<SysBase::ConstructionStage *> &stages() { return root()->getConstructionStages(); }
    VarnelConstructionStage *stage(int number) {
        return dynamic_cast<VarnelConstructionStage *>(root()->findConstructionStageToNumber(number));
    }
    VarnelConstructionStage *addStage(int number, const std::string &name) {
        VarnelConstructionStage *made = model().getDBaseFactory()->giveConstructionStage();
        made->setNumber(number);
        made->setName(name);
        root()->add(made);
        return made;
    }
    /// Reads the objects with one stage of number 1 that has these states.
    void readStates(const std::string &states) {
        document.readSubSystem(objects + stagesElement(stageElement("NUMBER=\"1\"", states)));
    }
    /// Reads the content of the top subsystem through an exchange of a host.
    void readThrough(VarnelExchangeXml &exchange, const std::string &content) {
        std::istringstream stream("<VARNEL><SUBSYSTEM>" + content + "</SUBSYSTEM></VARNEL>");
        exchange.getTree()->buildOfStream(stream);
        exchange.get(&document.manager);
    }
    std::vector<VarnelObjectState *> states(int number = 1) {
        const auto &list = stage(number)->getObjectStates();
        return {list.begin(), list.end()};
    }
    /// As the model stands, without new numbers.
    std::string written() {
        document.exchange().updateSystem(&document.manager);
        return textOf(document.find({"SUBSYSTEM", "CONSTRUCTIONSTATES"}));
    }
    /// The same after another project has read the document.
    std::string writtenAgain() {
        written();
        Document other;
        other.read(document.text());
        other.exchange().updateSystem(&other.manager);
        return textOf(other.find({"SUBSYSTEM", "CONSTRUCTIONSTATES"}));
    }
    std::string writtenStates() {
        document.exchange().updateSystem(&document.manager);
        return textOf(
            document.find({"SUBSYSTEM", "CONSTRUCTIONSTATES", "CONSTRUCTIONSTATE", "OBJECTSTATES"}));
    }

    Document document;
};

TEST_F(StageElements, StagesAreWrittenInTheirOrder) {
    addStage(5, "finish");
    addStage(2, "carcass");
    EXPECT_EQ(written(),
              "<CONSTRUCTIONSTATES><CONSTRUCTIONSTATE NUMBER=\"5\" NAME=\"finish\"><OBJECTSTATES>"
              "</OBJECTSTATES></CONSTRUCTIONSTATE><CONSTRUCTIONSTATE NUMBER=\"2\" NAME=\"carcass\">"
              "<OBJECTSTATES></OBJECTSTATES></CONSTRUCTIONSTATE></CONSTRUCTIONSTATES>");
}

TEST_F(StageElements, StatesOfAllKindsAreWrittenInTheOrderOfTheStage) {
    readStates("");
    VarnelConstructionStage *made = stage(1);
    KzMaterial *timber = KzMaterialHandler::get()->findMaterialToName("C24", 0);
    made->giveState(model().getLineLoads().front());
    made->giveState(model().getPlates().front())->setMaterial(timber);
    made->giveState(model().getPointLoads().front())->setActive(false);
    made->giveState(model().getBeams().front())->setMaterial(timber);
    made->giveState(model().getPointBoundaries().front());
    EXPECT_EQ(writtenStates(),
              "<OBJECTSTATES><OBJECTSTATE LINELOAD=\"15\" ACTIVE=\"1\"></OBJECTSTATE>"
              "<OBJECTSTATE PLATE=\"12\" ACTIVE=\"1\" MATERIAL=\"C24\"></OBJECTSTATE>"
              "<OBJECTSTATE POINTLOAD=\"14\" ACTIVE=\"0\"></OBJECTSTATE>"
              "<OBJECTSTATE BEAM=\"11\" ACTIVE=\"1\" MATERIAL=\"C24\"></OBJECTSTATE>"
              "<OBJECTSTATE POINTBOUNDARY=\"13\" ACTIVE=\"1\"></OBJECTSTATE></OBJECTSTATES>");
}

TEST_F(StageElements, MaterialIsWrittenOnlyIfTheStateHasOne) {
    readStates("");
    VarnelBeam *beam = model().getBeams().front();
    VarnelBeamState *state = stage(1)->giveState(beam);
    EXPECT_EQ(writtenStates().find("MATERIAL"), std::string::npos);
    beam->setMaterial(KzMaterialHandler::get()->findMaterialToName("S235", 0), 0);
    state->setup();
    EXPECT_NE(writtenStates().find("MATERIAL=\"S235\""), std::string::npos);
}

TEST_F(StageElements, PlainStagesAndNullEntriesAreSkipped) {
    addStage(1, "a");
    root()->giveConstructionStageToNumber(2);  // makes one that cannot hold states
    root()->add(nullptr);
    EXPECT_EQ(written(),
              "<CONSTRUCTIONSTATES><CONSTRUCTIONSTATE NUMBER=\"1\" NAME=\"a\"><OBJECTSTATES></OBJECTSTATES>"
              "</CONSTRUCTIONSTATE></CONSTRUCTIONSTATES>");
}

TEST_F(StageElements, StatesWithoutAnObjectAreSkipped) {
    VarnelConstructionStage *made = addStage(1, "a");
    made->giveState(static_cast<VarnelBeam *>(nullptr));
    addStage(2, "b")->giveState(static_cast<VarnelPlate *>(nullptr));
    addStage(3, "c")->giveState(static_cast<VarnelPointBoundary *>(nullptr));
    addStage(4, "d")->giveState(static_cast<VarnelPointLoad *>(nullptr));
    addStage(5, "e")->giveState(static_cast<VarnelLineLoad *>(nullptr));
    EXPECT_EQ(written().find("<OBJECTSTATE "), std::string::npos);
}

// The states live on when the model lets go of an object; the dead ones must not be asked for their number.
TEST_F(StageElements, StatesOfRemovedObjectsAreSkipped) {
    readStates("");
    VarnelConstructionStage *made = stage(1);
    made->giveState(model().getBeams().front());
    made->giveState(model().getPlates().front());
    made->giveState(model().getPointBoundaries().front());
    made->giveState(model().getPointLoads().front());
    made->giveState(model().getLineLoads().front());
    VarnelBeam *kept = model().giveBeam(true);
    kept->setNumber(20);
    made->giveState(kept);
    model().remove(model().getBeams().front(), true);
    model().remove(model().getPlates().front(), true);
    model().remove(model().getPointBoundaries().front(), true);
    model().remove(model().getPointLoads().front(), true);
    model().remove(model().getLineLoads().front(), true);
    EXPECT_EQ(writtenStates(),
              "<OBJECTSTATES><OBJECTSTATE BEAM=\"20\" ACTIVE=\"1\"></OBJECTSTATE></OBJECTSTATES>");
    EXPECT_EQ(made->getObjectStates().size(), 6u);  // the stage itself is left alone
    Document other;
    other.read(document.text());
    EXPECT_EQ(dynamic_cast<VarnelConstructionStage *>(
                  other.manager.getCurrentSubSystem()->findConstructionStageToNumber(1))
                  ->getObjectStates()
                  .size(),
              1u);
}

TEST_F(StageElements, ObjectThatOnlyTheCallerHasIsSkipped) {
    readStates("");
    const std::unique_ptr<VarnelPlate> detached(model().givePlate(false));
    VarnelPlate *returning = model().getPlates().front();
    stage(1)->giveState(detached.get());
    stage(1)->giveState(returning);
    model().remove(returning, false);
    EXPECT_EQ(writtenStates(), "<OBJECTSTATES></OBJECTSTATES>");
    model().add(returning);
    EXPECT_EQ(writtenStates(),
              "<OBJECTSTATES><OBJECTSTATE PLATE=\"12\" ACTIVE=\"1\"></OBJECTSTATE></OBJECTSTATES>");
}

// Assigning through the base leaves the beam of the state beside the object of the other one.
TEST_F(StageElements, StateThatWasAssignedThroughItsBaseIsWrittenForItsOwnObject) {
    readStates("");
    VarnelBeam *other = model().giveBeam(true);
    VarnelObjectState *state = stage(1)->giveState(model().getBeams().front());
    VarnelBeamState source(other);
    source.setActive(false);
    *state = source;
    ASSERT_EQ(state->getStateObject(), other);
    EXPECT_EQ(writtenStates(),
              "<OBJECTSTATES><OBJECTSTATE BEAM=\"11\" ACTIVE=\"0\"></OBJECTSTATE></OBJECTSTATES>");
    model().remove(model().getBeams().front(), true);
    EXPECT_EQ(writtenStates(), "<OBJECTSTATES></OBJECTSTATES>");
}

TEST_F(StageElements, StatesOfObjectsAnywhereInTheTreeAreWritten) {
    addStage(1, "a");
    VarnelSubSystem *child = document.manager.giveSubSystem("A", root());
    VarnelSubSystem *grandchild = document.manager.giveSubSystem("B", child);
    int number = 30;
    for (VarnelSubSystem *subSystem : {grandchild, child}) {
        VarnelBeam *beam = subSystem->getDatabase()->giveBeam(true);
        beam->setNumber(++number);
        stage(1)->giveState(beam);
    }
    EXPECT_EQ(writtenStates(),
              "<OBJECTSTATES><OBJECTSTATE BEAM=\"31\" ACTIVE=\"1\"></OBJECTSTATE>"
              "<OBJECTSTATE BEAM=\"32\" ACTIVE=\"1\"></OBJECTSTATE></OBJECTSTATES>");
    root()->removeChild(child, false);
    delete child;
    EXPECT_EQ(writtenStates(), "<OBJECTSTATES></OBJECTSTATES>");
}

TEST_F(StageElements, StageIsWrittenAlsoByItself) {
    readStates("");
    stage(1)->giveState(model().getBeams().front());
    stage(1)->giveState(static_cast<VarnelPlate *>(nullptr));
    VarnelExchangeXml exchange;
    exchange.setManager(&document.manager);
    exchange.updateOneConstructionStage(stage(1));
    EXPECT_EQ(textOf(exchange.getTree()->getRoot()),
              "<VARNEL NAME=\"\"><OBJECTSTATES><OBJECTSTATE BEAM=\"11\" ACTIVE=\"1\"></OBJECTSTATE>"
              "</OBJECTSTATES></VARNEL>");
}

TEST_F(StageElements, ObjectsOfOneKindAndNumberMeetInOneElement) {
    readStates("");
    VarnelBeam *second = model().giveBeam(true);
    second->setNumber(11);
    stage(1)->giveState(model().getBeams().front());
    stage(1)->giveState(second)->setActive(false);
    EXPECT_EQ(writtenStates(),
              "<OBJECTSTATES><OBJECTSTATE BEAM=\"11\" ACTIVE=\"0\"></OBJECTSTATE></OBJECTSTATES>");
}

TEST_F(StageElements, StagesOfOneNumberMeetInOneElement) {
    readStates("");
    stage(1)->giveState(model().getBeams().front());
    addStage(1, "second")->giveState(model().getPlates().front());
    EXPECT_EQ(written(),
              "<CONSTRUCTIONSTATES><CONSTRUCTIONSTATE NUMBER=\"1\" NAME=\"second\"><OBJECTSTATES>"
              "<OBJECTSTATE BEAM=\"11\" ACTIVE=\"1\"></OBJECTSTATE>"
              "<OBJECTSTATE PLATE=\"12\" ACTIVE=\"1\"></OBJECTSTATE></OBJECTSTATES></CONSTRUCTIONSTATE>"
              "</CONSTRUCTIONSTATES>");
}

TEST_F(StageElements, ListIsRebuilt) {
    document.readSubSystem(stagesElement(stageElement("NUMBER=\"1\" OLD=\"1\"", "<OLD/>") + "<OLD/>"));
    EXPECT_EQ(written(),
              "<CONSTRUCTIONSTATES><CONSTRUCTIONSTATE NUMBER=\"1\" NAME=\"\"><OBJECTSTATES></OBJECTSTATES>"
              "</CONSTRUCTIONSTATE><CONSTRUCTIONSTATE NUMBER=\"2\" NAME=\"\"><OBJECTSTATES></OBJECTSTATES>"
              "</CONSTRUCTIONSTATE></CONSTRUCTIONSTATES>");
}

TEST_F(StageElements, StagesAreRead) {
    document.readSubSystem(
        stagesElement(stageElement("NUMBER=\"7\" NAME=\"carcass\"") + "<ANY NUMBER=\"3\" NAME=\"finish\"/>"));
    ASSERT_EQ(stages().size(), 2u);
    EXPECT_EQ(stages().front()->getNumber(), 7);
    EXPECT_EQ(stages().front()->getName(), "carcass");
    EXPECT_EQ(stages().back()->getNumber(), 3);
    EXPECT_EQ(stages().back()->getName(), "finish");
    EXPECT_NE(stage(7), nullptr);  // of the kind that holds states
}

TEST_F(StageElements, StageWithoutANumberGetsThatOfItsPlace) {
    document.readSubSystem(stagesElement("<A/><A NUMBER=\"0\"/><A NUMBER=\"-4\"/><A NUMBER=\"x\"/>"));
    std::vector<int> numbers;
    for (const SysBase::ConstructionStage *entry : stages()) numbers.push_back(entry->getNumber());
    EXPECT_EQ(numbers, (std::vector<int>{1, 2, 3, 4}));
}

TEST_F(StageElements, NumberOfAStageSaturates) {
    document.readSubSystem(stagesElement("<A NUMBER=\"99999999999\"/><A/>"));
    EXPECT_EQ(stages().front()->getNumber(), std::numeric_limits<int>::max());
    EXPECT_EQ(stages().back()->getNumber(), 2);
}

TEST_F(StageElements, KnownStageKeepsItsNameAndGetsFurtherStates) {
    VarnelConstructionStage *known = addStage(1, "known");
    readStates("<OBJECTSTATE BEAM=\"11\"/>");
    document.readSubSystem(
        stagesElement(stageElement("NUMBER=\"1\" NAME=\"other\"", "<OBJECTSTATE PLATE=\"12\"/>")));
    ASSERT_EQ(stages().size(), 1u);
    EXPECT_EQ(stage(1), known);
    EXPECT_EQ(known->getName(), "known");
    EXPECT_EQ(known->getObjectStates().size(), 2u);
}

TEST_F(StageElements, PlainStageOfThatNumberIsNoneThatHoldsStates) {
    root()->giveConstructionStageToNumber(1);
    document.readSubSystem(stagesElement(stageElement("NUMBER=\"1\" NAME=\"new\"")));
    ASSERT_EQ(stages().size(), 2u);
    EXPECT_EQ(stages().back()->getName(), "new");
    EXPECT_EQ(stages().back()->getNumber(), 1);
}

TEST_F(StageElements, StagesAreFoundOnlyDirectlyBelowTheTopSubSystem) {
    document.readSubSystem("<A>" + stagesElement("<A/>") + "</A><SUBSYSTEMS><SUBSYSTEM NAME=\"A\">" +
                           stagesElement("<A/>") + "</SUBSYSTEM></SUBSYSTEMS>");
    EXPECT_TRUE(stages().empty());
    EXPECT_TRUE(root()->getChildren().front()->getConstructionStages().empty());
}

TEST_F(StageElements, StatesAreFoundAlsoDeepInTheStage) {
    document.readSubSystem(
        objects + stagesElement("<A NUMBER=\"1\"><B><OBJECTSTATES><C BEAM=\"11\"/></OBJECTSTATES></B></A>"));
    EXPECT_EQ(states().size(), 1u);
}

TEST_F(StageElements, StatesOfAllKindsAreRead) {
    document.manager.getMaterialManager()->add(new KzMaterial("M", 1.0, 2.0));
    readStates(
        "<OBJECTSTATE BEAM=\"11\" ACTIVE=\"0\" MATERIAL=\"M\"/><ANY PLATE=\"12\" MATERIAL=\"M\"/>"
        "<OBJECTSTATE POINTBOUNDARY=\"13\" ACTIVE=\"0\"/><OBJECTSTATE POINTLOAD=\"14\"/>"
        "<OBJECTSTATE LINELOAD=\"15\" ACTIVE=\"2\"/>");
    const std::vector<VarnelObjectState *> read = states();
    ASSERT_EQ(read.size(), 5u);
    const auto *beam = dynamic_cast<VarnelBeamState *>(read[0]);
    ASSERT_NE(beam, nullptr);
    EXPECT_EQ(beam->getBeam(), model().getBeams().front());
    EXPECT_EQ(beam->getMaterial()->getName(), "M");
    const auto *plate = dynamic_cast<VarnelPlateState *>(read[1]);
    ASSERT_NE(plate, nullptr);
    EXPECT_EQ(plate->getPlate(), model().getPlates().front());
    EXPECT_EQ(plate->getMaterial(), beam->getMaterial());
    const auto *boundary = dynamic_cast<VarnelPointBoundaryState *>(read[2]);
    ASSERT_NE(boundary, nullptr);
    EXPECT_EQ(boundary->getPointBoundary(), model().getPointBoundaries().front());
    const auto *pointLoad = dynamic_cast<VarnelPointLoadState *>(read[3]);
    ASSERT_NE(pointLoad, nullptr);
    EXPECT_EQ(pointLoad->getPointLoad(), model().getPointLoads().front());
    const auto *lineLoad = dynamic_cast<VarnelLineLoadState *>(read[4]);
    ASSERT_NE(lineLoad, nullptr);
    EXPECT_EQ(lineLoad->getLineLoad(), model().getLineLoads().front());
    std::vector<bool> active;
    for (const VarnelObjectState *state : read) active.push_back(state->isActive());
    EXPECT_EQ(active, (std::vector<bool>{false, true, false, true, true}));
}

TEST_F(StageElements, FirstKeyInTheOrderOfTheKindsCounts) {
    const struct {
        const char *attributes;
        const char *written;
    } rows[] = {
        {"LINELOAD=\"15\" POINTLOAD=\"14\" POINTBOUNDARY=\"13\" PLATE=\"12\" BEAM=\"11\"", "BEAM"},
        {"LINELOAD=\"15\" POINTLOAD=\"14\" POINTBOUNDARY=\"13\" PLATE=\"12\"", "PLATE"},
        {"LINELOAD=\"15\" POINTLOAD=\"14\" POINTBOUNDARY=\"13\"", "POINTBOUNDARY"},
        {"LINELOAD=\"15\" POINTLOAD=\"14\"", "POINTLOAD"},
        {"LINELOAD=\"15\"", "LINELOAD"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.attributes);
        Document single;
        single.readSubSystem(objects + stagesElement(stageElement(
                                           "NUMBER=\"1\"", std::string("<S ") + row.attributes + "/>")));
        single.exchange().updateSystem(&single.manager);
        const KzXmlData *list =
            single.find({"SUBSYSTEM", "CONSTRUCTIONSTATES", "CONSTRUCTIONSTATE", "OBJECTSTATES"});
        ASSERT_EQ(list->getChildren().size(), 1u);
        EXPECT_EQ(list->getChildren().front()->getAttributes().front()->getKey(), row.written);
    }
}

TEST_F(StageElements, StateWithoutAKeyIsPassedOver) {
    readStates("<OBJECTSTATE ACTIVE=\"0\"/><OBJECTSTATE HOLE=\"1\"/>");
    EXPECT_TRUE(states().empty());
}

TEST_F(StageElements, SameObjectTwiceIsOneState) {
    readStates("<OBJECTSTATE BEAM=\"11\" ACTIVE=\"0\"/><OBJECTSTATE BEAM=\"11\"/>");
    ASSERT_EQ(states().size(), 1u);
    EXPECT_FALSE(states().front()->isActive());
}

TEST_F(StageElements, UnknownMaterialGivesAStateWithoutOne) {
    document.manager.getMaterialManager()->add(new KzMaterial("M", 1.0, 2.0));
    readStates(
        "<OBJECTSTATE BEAM=\"11\" MATERIAL=\"M\"/><OBJECTSTATE BEAM=\"11\" MATERIAL=\"mud\"/>"
        "<OBJECTSTATE PLATE=\"12\" MATERIAL=\"C24\"/>");  // the stock does not count
    ASSERT_EQ(states().size(), 2u);
    EXPECT_EQ(dynamic_cast<VarnelBeamState *>(states()[0])->getMaterial(), nullptr);
    EXPECT_EQ(dynamic_cast<VarnelPlateState *>(states()[1])->getMaterial(), nullptr);
}

TEST_F(StageElements, UnknownObjectsStopTheReadingExceptPlates) {
    const struct {
        const char *key;
        const char *error;
    } rows[] = {{"BEAM", "beam not found"},
                {"POINTBOUNDARY", "point boundary not found"},
                {"POINTLOAD", "point load not found"},
                {"LINELOAD", "line load not found"}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.key);
        Document single;
        try {
            single.read("<VARNEL><SUBSYSTEM>" + objects +
                        stagesElement(stageElement("NUMBER=\"1\"", "<S PLATE=\"99\"/><S PLATE=\"12\"/><S " +
                                                                       std::string(row.key) + "=\"99\"/>") +
                                      "<LATER/>") +
                        "</SUBSYSTEM><LOADCASES><L/></LOADCASES></VARNEL>");
            FAIL() << "no error";
        } catch (const Tools::Error &error) {
            EXPECT_STREQ(error.what(), row.error);
        }
        // What was read by then stays: a state of an unknown beam, too, which stands for nothing.
        const VarnelSubSystem *top = single.manager.getCurrentSubSystem();
        ASSERT_EQ(top->getConstructionStages().size(), 1u);
        const auto *read = dynamic_cast<VarnelConstructionStage *>(top->getConstructionStages().front());
        EXPECT_EQ(read->getObjectStates().size(), row.key == std::string("BEAM") ? 2u : 1u);
        EXPECT_TRUE(single.manager.getLoadcases().empty());
        EXPECT_EQ(single.exchange().getTree()->getCursor(), single.find({}));
        single.write();
        const KzXmlData *list =
            single.find({"SUBSYSTEM", "CONSTRUCTIONSTATES", "CONSTRUCTIONSTATE", "OBJECTSTATES"});
        EXPECT_EQ(list->getChildren().size(), 1u);
    }
}

TEST_F(StageElements, ObjectsAreLookedForInTheTopAndThenInItsChildrenInOrder) {
    const std::string child = "<SUBSYSTEM NAME=\"%\">" + objects + "</SUBSYSTEM>";
    const auto named = [&child](const char *name) {
        std::string text = child;
        return text.replace(text.find('%'), 1, name);
    };
    document.readSubSystem(
        "<BEAMS><BEAM NUMBER=\"11\"/></BEAMS><SUBSYSTEMS>" + named("A") + named("B") + "</SUBSYSTEMS>" +
        stagesElement(stageElement("NUMBER=\"1\"",
                                   "<S BEAM=\"11\"/><S PLATE=\"12\"/><S POINTBOUNDARY=\"13\"/>"
                                   "<S POINTLOAD=\"14\"/><S LINELOAD=\"15\"/>")));
    const Varnel &first = *root()->getChildren().front()->getDatabase();
    ASSERT_EQ(states().size(), 5u);
    EXPECT_EQ(states()[0]->getStateObject(), model().getBeams().front());
    EXPECT_EQ(states()[1]->getStateObject(), first.getPlates().front());
    EXPECT_EQ(states()[2]->getStateObject(), first.getPointBoundaries().front());
    EXPECT_EQ(states()[3]->getStateObject(), first.getPointLoads().front());
    EXPECT_EQ(states()[4]->getStateObject(), first.getLineLoads().front());
}

TEST_F(StageElements, ObjectsOfGrandchildrenAreNotFound) {
    const std::string nested = "<SUBSYSTEMS><SUBSYSTEM NAME=\"A\"><SUBSYSTEMS><SUBSYSTEM NAME=\"B\">" +
                               objects + "</SUBSYSTEM></SUBSYSTEMS></SUBSYSTEM></SUBSYSTEMS>";
    try {
        document.readSubSystem(nested + stagesElement(stageElement("NUMBER=\"1\"", "<S BEAM=\"11\"/>")));
        FAIL() << "no error";
    } catch (const Tools::Error &error) {
        EXPECT_STREQ(error.what(), "beam not found");
    }
    document.readSubSystem(nested + stagesElement(stageElement("NUMBER=\"2\"", "<S PLATE=\"12\"/>")));
    EXPECT_TRUE(states(2).empty());
}

TEST_F(StageElements, ChildWithoutAModelIsSkippedInTheSearch) {
    class Factory : public VarnelFactory {
        Varnel *giveDatabase() const override { return nullptr; }
    } factory;
    root()->addChild(new VarnelSubSystem("", &factory, root()));
    VarnelBeam *beam = document.manager.giveSubSystem("A", root())->getDatabase()->giveBeam(true);
    beam->setNumber(11);
    document.readSubSystem(stagesElement(stageElement("NUMBER=\"1\"", "<S BEAM=\"11\"/>")));
    ASSERT_EQ(states().size(), 1u);
    EXPECT_EQ(states().front()->getStateObject(), beam);
}

TEST_F(StageElements, StagesSurviveARoundTrip) {
    document.manager.getMaterialManager()->add(new KzMaterial("M", 1.0, 2.0));
    readStates(
        "<OBJECTSTATE LINELOAD=\"15\"/><OBJECTSTATE BEAM=\"11\" ACTIVE=\"0\" MATERIAL=\"M\"/>"
        "<OBJECTSTATE POINTLOAD=\"14\" ACTIVE=\"0\"/><OBJECTSTATE PLATE=\"12\"/>");
    EXPECT_EQ(writtenAgain(), written());
}

// The stock is no project's: a state's material goes along in the document.
TEST_F(StageElements, StockMaterialOfAStateSurvivesARoundTrip) {
    readStates("");
    stage(1)
        ->giveState(model().getBeams().front())
        ->setMaterial(KzMaterialHandler::get()->findMaterialToName("C24", 0));
    document.write();
    Document other;
    other.read(document.text());
    const auto *read = dynamic_cast<VarnelConstructionStage *>(
        other.manager.getCurrentSubSystem()->getConstructionStages().front());
    const auto *state = dynamic_cast<VarnelBeamState *>(read->getObjectStates().front());
    ASSERT_NE(state->getMaterial(), nullptr);
    EXPECT_EQ(state->getMaterial()->getName(), "C24");
}

/// An exchange of a host that makes its stages itself and adds to what is written.
class OwnStages : public VarnelExchangeXml {
  public:
    void updateOneObjectState(VarnelObjectState *state) override {
        VarnelExchangeXml::updateOneObjectState(state);
        setAttribute("STEP", ++steps);
    }
    void updateOneBeamState(VarnelBeamState *state) override {
        VarnelExchangeXml::updateOneBeamState(state);
        setAttribute("BEAMSTEP", ++steps);
    }
    void updateOnePlateState(VarnelPlateState *state) override {
        VarnelExchangeXml::updateOnePlateState(state);
        setAttribute("PLATESTEP", ++steps);
    }
    VarnelConstructionStage *createOneConstructionStage(KzXmlData *element,
                                                        VarnelSubSystem *subSystem) override {
        EXPECT_EQ(subSystem, nullptr);
        return make ? VarnelExchangeXml::createOneConstructionStage(element, subSystem) : nullptr;
    }
    VarnelBeamState *createOneBeamState(VarnelConstructionStage *stage, VarnelBeam *beam,
                                        KzXmlData *element) override {
        ++beams;
        EXPECT_EQ(stage->getObjectStates().size(), 1u);  // the state is there already
        return VarnelExchangeXml::createOneBeamState(stage, beam, element);
    }
    VarnelPlateState *createOnePlateState(VarnelConstructionStage *stage, VarnelPlate *plate,
                                          KzXmlData *element, Varnel *model) override {
        ++plates;
        seenModel = model;
        return VarnelExchangeXml::createOnePlateState(stage, plate, element, model);
    }

    bool make = true;
    int steps = 0;
    int beams = 0;
    int plates = 0;
    Varnel *seenModel = nullptr;
};

TEST_F(StageElements, HostAddsToStatesThroughTheVirtualOperations) {
    OwnStages exchange;
    readThrough(exchange,
                objects + stagesElement(stageElement("NUMBER=\"1\"", "<S BEAM=\"11\"/><S PLATE=\"12\"/>")));
    EXPECT_EQ(exchange.beams, 1);
    EXPECT_EQ(exchange.plates, 1);
    EXPECT_EQ(exchange.seenModel, &model());
    exchange.updateSystem(&document.manager);
    EXPECT_NE(textOf(exchange.getTree()->getRoot())
                  .find("<OBJECTSTATE BEAM=\"11\" ACTIVE=\"1\" STEP=\"1\" BEAMSTEP=\"2\"></OBJECTSTATE>"
                        "<OBJECTSTATE PLATE=\"12\" ACTIVE=\"1\" STEP=\"3\" PLATESTEP=\"4\"></OBJECTSTATE>"),
              std::string::npos);
}

TEST_F(StageElements, StageThatTheHostDoesNotMakeIsPassedOver) {
    OwnStages exchange;
    exchange.make = false;
    readThrough(exchange, stagesElement(stageElement("NUMBER=\"1\"", "<S BEAM=\"11\"/>")));
    EXPECT_TRUE(stages().empty());
}

TEST_F(StageElements, NumberAndNameOfTheDocumentAreGivenToTheStageThatTheHostMakes) {
    class Numbering : public VarnelExchangeXml {
        VarnelConstructionStage *createOneConstructionStage(KzXmlData *, VarnelSubSystem *) override {
            auto *made = new VarnelConstructionStage;
            made->setNumber(50);
            made->setName("own");
            getManager()->getCurrentSubSystem()->add(made);
            return made;
        }
    } exchange;
    readThrough(exchange, stagesElement("<A NUMBER=\"7\" NAME=\"a\"/><A NUMBER=\"0\"/>"));
    ASSERT_EQ(stages().size(), 2u);
    EXPECT_EQ(stages().front()->getNumber(), 7);
    EXPECT_EQ(stages().front()->getName(), "a");
    EXPECT_EQ(stages().back()->getNumber(), 50);  // only a number above 0 counts
    EXPECT_EQ(stages().back()->getName(), "");
}

TEST_F(StageElements, StageForASubSystemIsTheOneThatItKnows) {
    KzXmlData element("CONSTRUCTIONSTATE", nullptr);
    element.setAttribute("NUMBER", 4);
    VarnelExchangeXml exchange;
    VarnelConstructionStage *known = addStage(4, "a");
    EXPECT_EQ(exchange.createOneConstructionStage(&element, root()), known);
    element.setAttribute("NUMBER", 5);
    EXPECT_EQ(exchange.createOneConstructionStage(&element, root()), nullptr);  // a plain one is made
    EXPECT_EQ(stages().size(), 2u);
    EXPECT_EQ(exchange.createOneConstructionStage(&element, nullptr), nullptr);  // nothing is being read
}

TEST_F(StageElements, ManyStatesAreWrittenAndReadQuickly) {
    addStage(1, "a");
    for (int i = 0; i < 3000; ++i) {
        VarnelPointLoad *load = model().givePointLoad();
        stage(1)->giveState(load)->setActive(i % 2 == 0);
    }
    EXPECT_EQ(writtenAgain(), written());
}

}  // namespace
