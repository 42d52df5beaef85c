#include <gtest/gtest.h>

#include "tests/support/Document.h"
#include "varnel/contracts/KzMatrix44.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/geometry/VarnelStraight.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/loads/VarnelBeamLoad.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelHole.h"
#include "varnel/members/VarnelLineBoundary.h"
#include "varnel/members/VarnelLoadDistributionArea.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/model/VarnelObjectGroup.h"
#include "varnel/results/VarnelResultSection.h"

namespace {

const std::string base = "<BASE>" + vectorElement("OFFSET", 0, 0, 0) + "</BASE>";

class GroupElements : public testing::Test {
  protected:
    Varnel &model() { return document.model(); }
    VarnelObjectGroup *addGroup(const std::string &name) {
        VarnelObjectGroup *group = model().giveObjectGroup(name);
        model().add(group);
        return group;
    }
    void readGroups(const std::string &content, const std::string &objects = "") {
        document.readSubSystem(objects + "<GROUPS>" + content + "</GROUPS>");
    }
    void readSections(const std::string &content) {
        document.readSubSystem("<RESULTSECTIONS>" + content + "</RESULTSECTIONS>");
    }
    std::vector<VarnelObject *> members(const std::string &name) {
        const auto &list = model().findObjectGroupToName(name)->getObjects();
        return {list.begin(), list.end()};
    }
    /// As the model stands, without new numbers.
    std::string written(const char *list = "GROUPS") {
        document.exchange().updateSystem(&document.manager);
        return textOf(document.find({"SUBSYSTEM", list}));
    }

    Document document;
};

TEST_F(GroupElements, GroupsAreWrittenInListOrder) {
    addGroup("b");
    VarnelObjectGroup *second = addGroup("a");
    second->setUserDefined(false);
    second->setCalculate(false);
    second->setOffset(KzVector3D(1, 2.5, -3));
    EXPECT_EQ(written(), "<GROUPS><GROUP NAME=\"b\" USER=\"1\" CALC=\"1\">" + base +
                             "</GROUP><GROUP NAME=\"a\" USER=\"0\" CALC=\"0\"><BASE>" +
                             vectorElement("OFFSET", 1, 2.5, -3) + "</BASE></GROUP></GROUPS>");
}

TEST_F(GroupElements, MembersAreWrittenByKindInTheOrderOfTheGroup) {
    VarnelObjectGroup *group = addGroup("g");
    VarnelLoadDistributionArea *field = model().giveLoadDistributionArea();
    model().add(field);
    field->setNumber(21);
    VarnelBeamLoad *beamLoad = model().giveBeamLoad();
    beamLoad->setNumber(22);
    VarnelAreaLoad *areaLoad = model().giveAreaLoad();
    areaLoad->setNumber(23);
    VarnelLineLoad *lineLoad = model().giveLineLoad(new VarnelStraight(KzVector3D(), KzVector3D(1, 0, 0)));
    lineLoad->setNumber(24);
    VarnelPointLoad *pointLoad = model().givePointLoad();
    pointLoad->setNumber(25);
    VarnelPointBoundary *pointBoundary = model().givePointBoundary(KzVector3D(), 1);
    pointBoundary->setNumber(26);
    auto *lineBoundary = new VarnelLineBoundary(new VarnelStraight(KzVector3D(), KzVector3D(1, 0, 0)));
    model().add(lineBoundary);
    lineBoundary->setNumber(27);
    VarnelHole *hole = model().giveHole();
    model().add(hole);
    hole->setNumber(28);
    VarnelBeam *beam = model().giveBeam(true);
    beam->setNumber(29);
    VarnelPlate *plate = model().givePlate(true);
    plate->setNumber(30);
    VarnelPoint *point = model().givePoint(KzVector3D(1, 2, 3));
    point->setNumber(31);
    for (VarnelObject *object :
         std::initializer_list<VarnelObject *>{field, beamLoad, areaLoad, lineLoad, pointLoad, pointBoundary,
                                               lineBoundary, hole, beam, plate, point, plate})
        group->add(object);
    EXPECT_EQ(
        written(),
        "<GROUPS><GROUP NAME=\"g\" USER=\"1\" CALC=\"1\">" + base +
            "<OBJECT NUMBER=\"1\" LDAREA=\"21\"></OBJECT><OBJECT NUMBER=\"2\" BEAMLOAD=\"22\"></OBJECT>"
            "<OBJECT NUMBER=\"3\" AREALOAD=\"23\"></OBJECT><OBJECT NUMBER=\"4\" LINELOAD=\"24\"></OBJECT>"
            "<OBJECT NUMBER=\"5\" POINTLOAD=\"25\"></OBJECT><OBJECT NUMBER=\"6\" PBOUND=\"26\"></OBJECT>"
            "<OBJECT NUMBER=\"7\" LBOUND=\"27\"></OBJECT><OBJECT NUMBER=\"8\" HOLE=\"28\"></OBJECT>"
            "<OBJECT NUMBER=\"9\" BEAM=\"29\"></OBJECT><OBJECT NUMBER=\"10\" PLATE=\"30\"></OBJECT>"
            "<OBJECT NUMBER=\"11\" POINT=\"31\"></OBJECT><OBJECT NUMBER=\"12\" PLATE=\"30\"></OBJECT>"
            "</GROUP></GROUPS>");
    Document other;
    other.read(document.text());
    const VarnelObjectGroup *read = other.model().findObjectGroupToName("g");
    ASSERT_NE(read, nullptr);
    const Varnel &copy = other.model();
    // Three kinds are written for other readers and not read; area loads bear the number of their place.
    const std::list<VarnelObject *> expected = {nullptr,
                                                copy.getLineLoads().front(),
                                                copy.getPointLoads().front(),
                                                copy.getPointBoundaries().front(),
                                                copy.getLineBoundaries().front(),
                                                copy.getHoles().front(),
                                                copy.getBeams().front(),
                                                copy.getPlates().front(),
                                                copy.getPlates().front()};
    EXPECT_EQ(read->getObjects(), expected);
}

TEST_F(GroupElements, NullMembersAreSkippedWithoutUsingUpACount) {
    VarnelObjectGroup *group = addGroup("g");
    VarnelBeam *beam = model().giveBeam(true);
    group->add(nullptr);
    group->add(beam);
    group->add(nullptr);
    group->add(beam);
    EXPECT_NE(written().find("</BASE><OBJECT NUMBER=\"1\" BEAM=\"1\"></OBJECT>"
                             "<OBJECT NUMBER=\"2\" BEAM=\"1\"></OBJECT></GROUP>"),
              std::string::npos);
}

TEST_F(GroupElements, NullGroupsAreSkipped) {
    model().add(static_cast<VarnelObjectGroup *>(nullptr));
    EXPECT_EQ(written(), "<GROUPS></GROUPS>");
}

TEST_F(GroupElements, GroupsOfOneNameMeetInOneElement) {
    VarnelBeam *beam = model().giveBeam(true);
    VarnelPlate *plate = model().givePlate(true);
    addGroup("g")->add(beam);
    auto *second = new VarnelObjectGroup("g");
    second->setCalculate(false);
    second->add(plate);
    model().add(second);
    EXPECT_EQ(written(), "<GROUPS><GROUP NAME=\"g\" USER=\"1\" CALC=\"0\">" + base +
                             "<OBJECT NUMBER=\"1\" BEAM=\"1\" PLATE=\"1\"></OBJECT></GROUP></GROUPS>");
}

TEST_F(GroupElements, RemovedObjectIsNotWritten) {
    VarnelObjectGroup *group = addGroup("g");
    VarnelBeam *beam = model().giveBeam(true);
    group->add(beam);
    model().remove(beam, true);
    EXPECT_EQ(written().find("OBJECT"), std::string::npos);
}

TEST_F(GroupElements, ListIsRebuilt) {
    readGroups("<GROUP NAME=\"a\" OLD=\"1\"><OLD/></GROUP><OLD/>");
    EXPECT_EQ(written(), "<GROUPS><GROUP NAME=\"a\" USER=\"1\" CALC=\"1\">" + base + "</GROUP></GROUPS>");
    model().remove(model().getObjectGroups().front(), true);
    EXPECT_EQ(written(), "<GROUPS></GROUPS>");
}

TEST_F(GroupElements, GroupIsRead) {
    document.manager.setSystemChanged(false);
    readGroups("<GROUP NAME=\"a\" USER=\"0\" CALC=\"0\"><BASE>" + vectorElement("OFFSET", 1, 2.5, -3) +
               "</BASE></GROUP>");
    ASSERT_EQ(model().getObjectGroups().size(), 1u);
    const VarnelObjectGroup *group = model().getObjectGroups().front();
    EXPECT_EQ(group->getName(), "a");
    EXPECT_FALSE(group->getUserDefined());
    EXPECT_FALSE(group->getCalculate());
    EXPECT_TRUE(group->getBase().getVector(3) == KzVector3D(1, 2.5, -3));
    EXPECT_TRUE(group->getObjects().empty());
    EXPECT_TRUE(document.manager.systemChanged());
}

TEST_F(GroupElements, MissingItemsLeaveTheGroup) {
    VarnelObjectGroup *known = addGroup("a");
    known->setUserDefined(false);
    known->setCalculate(false);
    known->setOffset(KzVector3D(1, 2, 3));
    readGroups("<GROUP NAME=\"a\"/><GROUP NAME=\"a\"><BASE/></GROUP>");
    EXPECT_EQ(model().getObjectGroups().size(), 1u);
    EXPECT_FALSE(known->getUserDefined());
    EXPECT_FALSE(known->getCalculate());
    EXPECT_TRUE(known->getBase().getVector(3) == KzVector3D(1, 2, 3));
}

TEST_F(GroupElements, OffsetIsFoundWhereverItStandsInTheGroup) {
    const std::string moved = "<BASE>" + vectorElement("OFFSET", 1, 2, 3) + "</BASE>";
    readGroups("<GROUP NAME=\"a\"><ANY/><OBJECT/>" + moved + "<OBJECT/></GROUP><GROUP NAME=\"b\"><ANY>" +
               moved + "</ANY></GROUP>");
    EXPECT_TRUE(model().findObjectGroupToName("a")->getBase().getVector(3) == KzVector3D(1, 2, 3));
    EXPECT_TRUE(model().findObjectGroupToName("b")->getBase().getVector(3) == KzVector3D());  // too deep
}

TEST_F(GroupElements, AnyNumberButZeroSwitchesOn) {
    readGroups("<GROUP NAME=\"a\" USER=\"2\" CALC=\"-1\"/><GROUP NAME=\"b\" USER=\"x\" CALC=\"\"/>");
    const VarnelObjectGroup *on = model().getObjectGroups().front();
    const VarnelObjectGroup *off = model().getObjectGroups().back();
    EXPECT_TRUE(on->getUserDefined() && on->getCalculate());
    EXPECT_FALSE(off->getUserDefined() || off->getCalculate());
}

TEST_F(GroupElements, GroupWithoutANameIsDroppedWhole) {
    readGroups("<GROUP><OBJECT BEAM=\"1\"/></GROUP>");
    EXPECT_TRUE(model().getObjectGroups().empty());
    KzXmlData element("GROUP", nullptr);
    EXPECT_EQ(document.exchange().createOneObjectGroup(&element, &model()), nullptr);
    element.setAttribute("NAME", "");
    EXPECT_NE(document.exchange().createOneObjectGroup(&element, &model()), nullptr);  // a name like others
}

TEST_F(GroupElements, OtherChildrenOfTheListMakeNoGroup) {
    readGroups("<ANY NAME=\"a\"/><GROUPS NAME=\"b\"/>");
    EXPECT_TRUE(model().getObjectGroups().empty());
    document.readSubSystem("<A><GROUPS><GROUP NAME=\"c\"/></GROUPS></A>");
    EXPECT_TRUE(model().getObjectGroups().empty());
}

TEST_F(GroupElements, GroupsOfOneNameFillOneGroup) {
    const std::string beams = "<BEAMS><BEAM NUMBER=\"1\"/><BEAM NUMBER=\"2\"/></BEAMS>";
    readGroups(
        "<GROUP NAME=\"a\"><OBJECT BEAM=\"1\"/></GROUP><GROUP NAME=\"a\" CALC=\"0\"><OBJECT "
        "BEAM=\"2\"/></GROUP>",
        beams);
    ASSERT_EQ(model().getObjectGroups().size(), 1u);
    EXPECT_EQ(members("a"),
              (std::vector<VarnelObject *>{model().findBeamToNumber(1), model().findBeamToNumber(2)}));
    EXPECT_FALSE(model().getObjectGroups().front()->getCalculate());
    readGroups("<GROUP NAME=\"a\"><OBJECT BEAM=\"1\"/></GROUP>");  // a document read twice
    EXPECT_EQ(model().getObjectGroups().size(), 1u);
    EXPECT_EQ(members("a").size(), 3u);
}

TEST_F(GroupElements, FirstKeyInTheOrderOfTheKindsCounts) {
    const std::string objects =
        "<PLATES><PLATE NUMBER=\"1\"/></PLATES><BEAMS><BEAM NUMBER=\"1\"/></BEAMS>"
        "<HOLES><H NUMBER=\"1\"/></HOLES><LBOUNDS><L NUMBER=\"1\"/></LBOUNDS><PBOUNDS><P NUMBER=\"1\"/>"
        "</PBOUNDS><POINTLOADS><P NUMBER=\"1\"/></POINTLOADS><LINELOADS><L NUMBER=\"1\"/></LINELOADS>"
        "<AREALOADS><A/></AREALOADS>";
    const char *keys[] = {"PLATE", "BEAM", "HOLE", "LBOUND", "PBOUND", "POINTLOAD", "LINELOAD", "AREALOAD"};
    std::string content = "<GROUP NAME=\"g\">";
    for (std::size_t first = 0; first < std::size(keys); ++first) {
        content += "<OBJECT";
        for (std::size_t i = std::size(keys); i-- > first;) content += std::string(" ") + keys[i] + "=\"1\"";
        content += "/>";
    }
    readGroups(content + "</GROUP>", objects);
    EXPECT_EQ(members("g"), (std::vector<VarnelObject *>{
                                model().getPlates().front(), model().getBeams().front(),
                                model().getHoles().front(), model().getLineBoundaries().front(),
                                model().getPointBoundaries().front(), model().getPointLoads().front(),
                                model().getLineLoads().front(), model().getAreaLoads().front()}));
}

TEST_F(GroupElements, UnknownNumbersLeaveNullMembersThatAreHarmless) {
    readGroups(
        "<GROUP NAME=\"g\"><OBJECT PLATE=\"9\"/><OBJECT BEAM=\"x\"/><OBJECT HOLE=\"99999999999\"/>"
        "<OBJECT AREALOAD=\"-1\"/></GROUP>");
    EXPECT_EQ(members("g"), (std::vector<VarnelObject *>{nullptr, nullptr, nullptr, nullptr}));
    EXPECT_NE(document.write().find("<GROUP NAME=\"g\""), std::string::npos);
    EXPECT_EQ(document.text().find("<OBJECT"), std::string::npos);
}

// An unknown plate is not looked for as a beam.
TEST_F(GroupElements, FirstKeyCountsAlsoIfItsObjectIsUnknown) {
    readGroups("<GROUP NAME=\"g\"><OBJECT PLATE=\"9\" BEAM=\"1\"/></GROUP>",
               "<BEAMS><BEAM NUMBER=\"1\"/></BEAMS>");
    EXPECT_EQ(members("g"), (std::vector<VarnelObject *>{nullptr}));
}

TEST_F(GroupElements, MembersOfThreeKindsAreNotRead) {
    readGroups(
        "<GROUP NAME=\"g\"><OBJECT NUMBER=\"1\" LDAREA=\"1\"/><OBJECT NUMBER=\"2\" BEAMLOAD=\"1\"/>"
        "<OBJECT NUMBER=\"3\" POINT=\"1\"/><OBJECT NUMBER=\"4\"/><ANY BEAM=\"1\"/></GROUP>",
        "<LDAREAS><LDAREA/></LDAREAS><BEAMS><BEAM NUMBER=\"1\"/></BEAMS>");
    EXPECT_TRUE(members("g").empty());
}

TEST_F(GroupElements, MembersComeFromTheModelOfTheGroup) {
    document.readSubSystem(
        "<BEAMS><BEAM NUMBER=\"1\"/></BEAMS><SUBSYSTEMS><SUBSYSTEM NAME=\"A\"><BEAMS><BEAM NUMBER=\"2\"/>"
        "</BEAMS><GROUPS><GROUP NAME=\"g\"><OBJECT BEAM=\"1\"/><OBJECT BEAM=\"2\"/></GROUP></GROUPS>"
        "</SUBSYSTEM></SUBSYSTEMS>");
    const Varnel &child = *document.manager.getCurrentSubSystem()->getChildren().front()->getDatabase();
    EXPECT_TRUE(model().getObjectGroups().empty());
    ASSERT_EQ(child.getObjectGroups().size(), 1u);
    EXPECT_EQ(child.getObjectGroups().front()->getObjects(),
              (std::list<VarnelObject *>{nullptr, child.getBeams().front()}));
}

TEST_F(GroupElements, HostAddsToAGroupThroughTheVirtualOperations) {
    class Own : public VarnelExchangeXml {
      public:
        void updateOneObjectGroup(Varnel *model, VarnelObjectGroup *group) override {
            setAttribute("OWN", 5);
            VarnelExchangeXml::updateOneObjectGroup(model, group);
        }
        VarnelObjectGroup *createOneObjectGroup(KzXmlData *element, Varnel *model) override {
            VarnelObjectGroup *group = VarnelExchangeXml::createOneObjectGroup(element, model);
            group->setName("read " + group->getName());
            return group;
        }
    } exchange;
    std::istringstream stream("<VARNEL><SUBSYSTEM><GROUPS><GROUP NAME=\"a\"/></GROUPS></SUBSYSTEM></VARNEL>");
    exchange.getTree()->buildOfStream(stream);
    exchange.get(&document.manager);
    exchange.updateSystem(&document.manager);
    EXPECT_EQ(textOf(exchange.getTree()->getRoot()->findChild("SUBSYSTEM")->findChild("GROUPS")),
              "<GROUPS><GROUP NAME=\"read a\" USER=\"1\" CALC=\"1\" OWN=\"5\">" + base + "</GROUP></GROUPS>");
}

TEST_F(GroupElements, ResultSectionsAreWrittenInOrder) {
    VarnelResultSection *section = model().giveResultSection(KzVector3D(1, 2, 3), KzVector3D(4, 5.5, 6));
    section->setName("A-A");
    section->setInPlane(false);  // has no place in the document
    model().add(section);
    model().add(static_cast<VarnelResultSection *>(nullptr));
    EXPECT_EQ(written("RESULTSECTIONS"),
              "<RESULTSECTIONS><RESULTSECTION NUMBER=\"1\" NAME=\"A-A\">" + vectorElement("START", 1, 2, 3) +
                  vectorElement("END", 4, 5.5, 6) + "</RESULTSECTION></RESULTSECTIONS>");
}

TEST_F(GroupElements, ResultSectionsAreReadAndNumberedByTheirPlace) {
    document.manager.setSystemChanged(false);
    readSections("<RESULTSECTION NUMBER=\"7\" NAME=\"A\">" + vectorElement("START", 1, 2, 3) +
                 vectorElement("END", 4, 5, 6) + "</RESULTSECTION><ANY/><RESULTSECTION NUMBER=\"9\"/>");
    ASSERT_EQ(model().getResultSections().size(), 2u);  // children of another name make nothing
    const VarnelResultSection *first = model().getResultSections().front();
    EXPECT_EQ(first->getNumber(), 1);
    EXPECT_EQ(first->getName(), "A");
    EXPECT_TRUE(first->getP1() == KzVector3D(1, 2, 3));
    EXPECT_TRUE(first->getP2() == KzVector3D(4, 5, 6));
    const VarnelResultSection *second = model().getResultSections().back();
    EXPECT_EQ(second->getNumber(), 2);
    EXPECT_EQ(second->getName(), "");
    EXPECT_TRUE(second->getP1() == KzVector3D());
    EXPECT_TRUE(second->getP2() == KzVector3D());
    EXPECT_TRUE(document.manager.systemChanged());
}

TEST_F(GroupElements, ResultSectionListIsRebuilt) {
    readSections("<RESULTSECTION OLD=\"1\"><OLD/></RESULTSECTION><OLD/>");
    EXPECT_EQ(written("RESULTSECTIONS"), "<RESULTSECTIONS><RESULTSECTION NUMBER=\"1\" NAME=\"\">" +
                                             vectorElement("START", 0, 0, 0) + vectorElement("END", 0, 0, 0) +
                                             "</RESULTSECTION></RESULTSECTIONS>");
    model().remove(model().getResultSections().front(), true);
    EXPECT_EQ(written("RESULTSECTIONS"), "<RESULTSECTIONS></RESULTSECTIONS>");
}

TEST_F(GroupElements, ModelWithoutADatabaseFactoryReadsNoResultSections) {
    class Factory : public VarnelFactory {
        Varnel *giveDatabase() const override { return new Varnel(getManager()); }
    } factory;
    VarnelManager manager(&factory);
    auto &exchange = static_cast<VarnelExchangeXml &>(*manager.getExchange());
    std::istringstream stream(
        "<VARNEL><SUBSYSTEM><RESULTSECTIONS><RESULTSECTION/></RESULTSECTIONS><CONSTRUCTIONSTATES><A/>"
        "</CONSTRUCTIONSTATES></SUBSYSTEM></VARNEL>");
    exchange.getTree()->buildOfStream(stream);
    exchange.get(&manager);
    EXPECT_TRUE(manager.getDatabase()->getResultSections().empty());
    EXPECT_TRUE(manager.getCurrentSubSystem()->getConstructionStages().empty());
}

}  // namespace
