#include <gtest/gtest.h>

#include <climits>
#include <utility>
#include <vector>

#include "tests/support/Document.h"
#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/geometry/VarnelAreaPolygon.h"
#include "varnel/geometry/VarnelAreaRectangle.h"
#include "varnel/geometry/VarnelCircle.h"
#include "varnel/geometry/VarnelStraight.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/loads/VarnelBeamLoad.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelPlate.h"

namespace {

class LoadElements : public testing::Test {
  protected:
    VarnelPointLoad *readPoint(const std::string &attributes, const std::string &content = "") {
        document.readSubSystem("<POINTLOADS><POINTLOAD " + attributes + ">" + content +
                               "</POINTLOAD></POINTLOADS>");
        return document.model().getPointLoads().back();
    }
    VarnelLineLoad *readLine(const std::string &attributes, const std::string &content = "") {
        document.readSubSystem("<LINELOADS><LINELOAD " + attributes + ">" + content +
                               "</LINELOAD></LINELOADS>");
        return document.model().getLineLoads().back();
    }
    VarnelAreaLoad *readArea(const std::string &attributes, const std::string &content = "") {
        document.readSubSystem("<AREALOADS><AREALOAD " + attributes + ">" + content +
                               "</AREALOAD></AREALOADS>");
        return document.model().getAreaLoads().back();
    }
    /// The list as it is written, with the numbers that the objects have.
    std::string written(const char *list) {
        document.exchange().updateSystem(&document.manager);
        return textOf(document.find({"SUBSYSTEM", list}));
    }
    SysBase::Loadcase *loadcase(int number) { return document.manager.giveLoadcaseToNumber(number, true); }

    Document document;
};

TEST_F(LoadElements, EmptyListsStay) {
    for (const char *list : {"POINTLOADS", "LINELOADS", "AREALOADS"})
        EXPECT_EQ(written(list), "<" + std::string(list) + "></" + list + ">");
}

TEST_F(LoadElements, RemovedLoadsLeaveNothingBehind) {
    document.readSubSystem(
        "<POINTLOADS OLD=\"1\"><POINTLOAD/><X/></POINTLOADS><LINELOADS><LINELOAD/>"
        "</LINELOADS><AREALOADS><AREALOAD/></AREALOADS>");
    document.model().remove(document.model().getPointLoads().front(), true);
    document.model().remove(document.model().getPointLoads().front(), true);
    document.model().remove(document.model().getLineLoads().front(), true);
    document.model().remove(document.model().getAreaLoads().front(), true);
    for (const char *list : {"POINTLOADS", "LINELOADS", "AREALOADS"})
        EXPECT_EQ(written(list), "<" + std::string(list) + "></" + list + ">");
}

TEST_F(LoadElements, MissingLoadsInTheListsAreSkipped) {
    document.model().add(static_cast<VarnelPointLoad *>(nullptr));
    document.model().add(static_cast<VarnelLineLoad *>(nullptr));
    document.model().add(static_cast<VarnelAreaLoad *>(nullptr));
    for (const char *list : {"POINTLOADS", "LINELOADS", "AREALOADS"})
        EXPECT_EQ(written(list), "<" + std::string(list) + "></" + list + ">");
}

TEST_F(LoadElements, BeamLoadsAreNotWritten) {
    document.model().giveBeamLoad()->setName("on a beam");
    EXPECT_EQ(document.write().find("on a beam"), std::string::npos);
}

TEST_F(LoadElements, PointLoadIsWrittenInFull) {
    VarnelPointLoad *load = document.model().givePointLoad();
    load->setNumber(5);
    load->setName("P");
    load->setLcType(2);
    load->setCoor(KzVector3D(1, 2, 3));
    load->setForce(0, 0, 35);
    load->setMoment(1, 0, 0);
    load->setLoadcase(loadcase(7));
    EXPECT_EQ(written("POINTLOADS"), "<POINTLOADS><POINTLOAD NUMBER=\"5\" NAME=\"P\" LCTYPE=\"2\" LC=\"7\">" +
                                         vectorElement("POS", 1, 2, 3) + vectorElement("FORCE", 0, 0, 35) +
                                         vectorElement("MOMENT", 1, 0, 0) + "</POINTLOAD></POINTLOADS>");
}

TEST_F(LoadElements, DefaultPointLoadIsWrittenWithoutACase) {
    document.model().givePointLoad();
    EXPECT_EQ(written("POINTLOADS"), "<POINTLOADS><POINTLOAD NUMBER=\"1\" NAME=\"\" LCTYPE=\"1\">" +
                                         vectorElement("POS", 0, 0, 0) + vectorElement("FORCE", 0, 0, 0) +
                                         vectorElement("MOMENT", 0, 0, 0) + "</POINTLOAD></POINTLOADS>");
}

TEST_F(LoadElements, PointLoadIsRead) {
    const VarnelPointLoad *load = readPoint(
        "NUMBER=\"4\" NAME=\"tank\" LCTYPE=\"3\" LC=\"9\"",
        vectorElement("POS", 1, 2, 3) + vectorElement("FORCE", 4, 5, 6) + vectorElement("MOMENT", 7, 8, 9));
    EXPECT_EQ(load->getNumber(), 4);
    EXPECT_EQ(load->getName(), "tank");
    EXPECT_EQ(load->getLcType(), 3);
    ASSERT_NE(load->getLoadcase(), nullptr);
    EXPECT_EQ(load->getLoadcase()->getNumber(), 9);
    EXPECT_TRUE(load->getCoor() == KzVector3D(1, 2, 3));
    EXPECT_TRUE(load->getForce() == KzVector3D(4, 5, 6));
    EXPECT_TRUE(load->getMoment() == KzVector3D(7, 8, 9));
}

// Not the next free number, which the new load has until it is read.
TEST_F(LoadElements, PointAndLineLoadsWithoutANumberGetZero) {
    document.model().givePointLoad();
    document.model().giveLineLoad(nullptr);
    EXPECT_EQ(readPoint("")->getNumber(), 0);
    EXPECT_EQ(readLine("")->getNumber(), 0);
}

TEST_F(LoadElements, TypesThatAreMissingDifferFromKindToKind) {
    EXPECT_EQ(readPoint("")->getLcType(), 0);
    EXPECT_EQ(readLine("")->getLcType(), 1);  // that of a new load
    EXPECT_EQ(readArea("")->getLcType(), 2);
}

TEST_F(LoadElements, MissingItemsOfAPointLoadLeaveItsDefaults) {
    const VarnelPointLoad *load = readPoint("");
    EXPECT_EQ(load->getName(), "");
    EXPECT_EQ(load->getLoadcase(), nullptr);
    EXPECT_TRUE(load->getCoor() == KzVector3D());
    EXPECT_TRUE(load->getData().isNull());
    VarnelPointLoad kept;
    kept.setForce(1, 2, 3);
    kept.setName("kept");
    KzXmlData element("E", nullptr);
    document.exchange().readOnePointLoad(&element, &kept);
    EXPECT_TRUE(kept.getForce() == KzVector3D(1, 2, 3));
    EXPECT_EQ(kept.getName(), "kept");
}

TEST_F(LoadElements, LoadsMakeTheCasesThatTheyName) {
    SysBase::Loadcase *known = loadcase(3);
    EXPECT_EQ(readPoint("LC=\"3\"")->getLoadcase(), known);
    EXPECT_EQ(document.manager.getLoadcases().size(), 1u);
    SysBase::Loadcase *made = readLine("LC=\"4\"")->getLoadcase();
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->getNumber(), 4);
    EXPECT_EQ(readArea("LC=\"4\"")->getLoadcase(), made);
    EXPECT_EQ(document.manager.getLoadcases().size(), 2u);
}

TEST_F(LoadElements, CasesComeThroughTheVirtualOperationOfTheManager) {
    class Manager : public VarnelManager {
      public:
        using VarnelManager::VarnelManager;
        SysBase::Loadcase *giveLoadcaseToNumber(int number, bool create) override {
            asked.emplace_back(number, create);
            return VarnelManager::giveLoadcaseToNumber(number, create);
        }
        std::vector<std::pair<int, bool>> asked;
    };
    VarnelFactory factory;
    Manager manager(&factory);
    VarnelExchangeXml exchange;
    exchange.setManager(&manager);
    VarnelPointLoad point;
    VarnelLineLoad line(nullptr);
    VarnelAreaLoad area;
    KzXmlData element("E", nullptr);
    exchange.readOnePointLoad(&element, &point);
    EXPECT_TRUE(manager.asked.empty());
    element.setAttribute("LC", 6);
    exchange.readOnePointLoad(&element, &point);
    exchange.readOneLineLoad(&element, &line);
    exchange.readOneAreaLoad(&element, &area);
    EXPECT_EQ(manager.asked, (std::vector<std::pair<int, bool>>(3, {6, true})));
    EXPECT_NE(point.getLoadcase(), nullptr);
    EXPECT_EQ(line.getLoadcase(), point.getLoadcase());
    EXPECT_EQ(area.getLoadcase(), point.getLoadcase());
}

TEST_F(LoadElements, OddNumbersOfCasesAreHarmless) {
    EXPECT_EQ(readPoint("LC=\"2147483647\"")->getLoadcase()->getNumber(), INT_MAX);
    EXPECT_EQ(readPoint("LC=\"-5\"")->getLoadcase()->getNumber(), -5);
    EXPECT_EQ(readPoint("LC=\"x\"")->getLoadcase()->getNumber(), 0);
    document.write();
}

TEST_F(LoadElements, EveryCaseOfItsOwnIsFoundAgain) {
    std::string loads;
    for (int i = 1; i <= 500; ++i) loads += "<POINTLOAD LC=\"" + std::to_string(i) + "\"/>";
    document.readSubSystem("<POINTLOADS>" + loads + loads + "</POINTLOADS>");
    EXPECT_EQ(document.manager.getLoadcases().size(), 500u);
    EXPECT_EQ(document.model().getPointLoads().back()->getLoadcase()->getNumber(), 500);
}

TEST_F(LoadElements, EveryChildOfAListIsALoadAndOneNumberGivesTwo) {
    document.readSubSystem(
        "<POINTLOADS><A NUMBER=\"2147483647\"/><B NUMBER=\"2147483647\"/></POINTLOADS>"
        "<LINELOADS><A NUMBER=\"3\"/><B NUMBER=\"3\"/></LINELOADS>"
        "<AREALOADS><A/><B/></AREALOADS>");
    EXPECT_EQ(document.model().getNumberOfPointLoads(), 2);
    EXPECT_EQ(document.model().getPointLoads().back()->getNumber(), INT_MAX);
    EXPECT_EQ(document.model().getNumberOfLineLoads(), 2);
    EXPECT_EQ(document.model().getLineLoads().back()->getNumber(), 3);
    EXPECT_EQ(document.model().getNumberOfAreaLoads(), 2);
    document.model().givePointLoad();
    EXPECT_EQ(document.model().getPointLoads().back()->getNumber(), INT_MAX);  // there is none above
    document.write();
}

// Meant for the host's conversion alone: displacement loads and turned ones come back as plain forces.
TEST_F(LoadElements, FrameAndKindOfAPointLoadDoNotComeBack) {
    VarnelPointLoad *load = document.model().givePointLoad();
    load->setAngle(0.5, 2);
    load->setDispLoad(true);
    load->setActive(false);
    load->setType(1);
    load->setForce(1, 2, 3);
    Document again;
    again.read(document.write());
    const VarnelPointLoad *read = again.model().getPointLoads().front();
    EXPECT_TRUE(read->getForce() == KzVector3D(1, 2, 3));
    EXPECT_DOUBLE_EQ(read->getAngle(2), 0.0);
    EXPECT_FALSE(read->isDispLoad());
    EXPECT_TRUE(read->getActive());
    EXPECT_EQ(read->getType(), 0);
}

TEST_F(LoadElements, LineLoadIsWrittenInFull) {
    VarnelLineLoad *load =
        document.model().giveLineLoad(new VarnelStraight(KzVector3D(0, 0, 0), KzVector3D(4, 0, 0)));
    load->setNumber(5);
    load->setName("L");
    load->setType(1);
    load->setLcType(2);
    load->setP1(0, 0, 1);
    load->setP2(0, 0, 2);
    load->setM1(3, 0, 0);
    load->setM2(4, 0, 0);
    load->setLocsys(0, 1, 0);
    load->setLocsysType(6);
    load->setLoadcase(loadcase(7));
    EXPECT_EQ(written("LINELOADS"),
              "<LINELOADS><LINELOAD NUMBER=\"5\" LCTYPE=\"2\" LC=\"7\" NAME=\"L\" TYPE=\"1\">" +
                  lineElement(0, 0, 4, 0) + vectorElement("FORCEA", 0, 0, 1) +
                  vectorElement("FORCEE", 0, 0, 2) + vectorElement("MOMENTA", 3, 0, 0) +
                  vectorElement("MOMENTE", 4, 0, 0) +
                  "<LOCSYS TYPE=\"6\"><X>0</X><Y>1</Y><Z>0</Z></LOCSYS></LINELOAD></LINELOADS>");
}

TEST_F(LoadElements, LineLoadIsRead) {
    const VarnelLineLoad *load = readLine(
        "NUMBER=\"4\" NAME=\"wall\" TYPE=\"1\" LCTYPE=\"3\" LC=\"9\"",
        lineElement(1, 2, 3, 4) + vectorElement("FORCEA", 1, 2, 3) + vectorElement("FORCEE", 4, 5, 6) +
            vectorElement("MOMENTA", 7, 8, 9) + vectorElement("MOMENTE", 10, 11, 12) +
            "<LOCSYS TYPE=\"6\"><X>0</X><Y>3</Y><Z>4</Z></LOCSYS>");
    EXPECT_EQ(load->getNumber(), 4);
    EXPECT_EQ(load->getName(), "wall");
    EXPECT_EQ(load->getType(), VarnelLoadData::LocalLoad);
    EXPECT_EQ(load->getLcType(), 3);
    EXPECT_EQ(load->getLoadcase()->getNumber(), 9);
    EXPECT_TRUE(load->getLine()->getEndVec() == KzVector3D(3, 4, 0));
    EXPECT_TRUE(load->getP1() == KzVector3D(1, 2, 3));
    EXPECT_TRUE(load->getP2() == KzVector3D(4, 5, 6));
    EXPECT_TRUE(load->getM1() == KzVector3D(7, 8, 9));
    EXPECT_TRUE(load->getM2() == KzVector3D(10, 11, 12));
    EXPECT_TRUE(load->getLocsys() == KzVector3D(0, 0.6, 0.8));
    EXPECT_EQ(load->getLocsysType(), 6);
}

TEST_F(LoadElements, MissingItemsOfALineLoadLeaveItsDefaults) {
    const VarnelLineLoad *load = readLine("");
    EXPECT_EQ(load->getName(), "");
    EXPECT_EQ(load->getType(), VarnelLoadData::GlobalLoad);
    EXPECT_EQ(load->getLoadcase(), nullptr);
    EXPECT_TRUE(load->getData().isNull());
    EXPECT_TRUE(load->getLocsys() == KzVector3D(0, 0, 1));
    EXPECT_EQ(load->getLocsysType(), 0);
    EXPECT_TRUE(load->getLine()->getStartVec() == KzVector3D());  // the old form without its ends
}

TEST_F(LoadElements, ValuesOfALineLoadAreReplacedAsAWhole) {
    VarnelLineLoad load(nullptr);
    load.setP1(1, 2, 3);
    load.setName("old");
    load.setType(1);
    load.setLoadcase(loadcase(2));
    load.setLocsys(0, 1, 0);
    load.setLocsysType(4);
    load.setLcType(5);
    KzXmlData element("E", nullptr);
    document.exchange().readOneLineLoad(&element, &load);
    EXPECT_TRUE(load.isNull());
    EXPECT_EQ(load.getName(), "");
    EXPECT_EQ(load.getType(), VarnelLoadData::GlobalLoad);
    EXPECT_EQ(load.getLoadcase(), nullptr);
    EXPECT_TRUE(load.getLocsys() == KzVector3D(0, 1, 0));
    EXPECT_EQ(load.getLocsysType(), 4);
    EXPECT_EQ(load.getLcType(), 5);
}

TEST_F(LoadElements, MissingVectorsOfLineLoadValuesLeaveThem) {
    VarnelLineLoadData data(4.0);
    data.setName("kept");
    KzXmlData element("E", nullptr);
    document.exchange().readOneLineLoadData(&element, &data);
    EXPECT_TRUE(data.getP1() == KzVector3D(0, 0, 4));
    EXPECT_EQ(data.getName(), "kept");
}

TEST_F(LoadElements, DirectionOfALineLoadWithoutATypeLeavesTheTypeAndZerosStayZero) {
    const VarnelLineLoad *load = readLine("TYPE=\"1\"", lineElement(0, 0, 4, 0) + "<LOCSYS/>");
    EXPECT_TRUE(load->getLocsys() == KzVector3D());
    EXPECT_EQ(load->getLocsysType(), 0);
    load->getBase();
    EXPECT_EQ(document.write().find("nan"), std::string::npos);
}

TEST_F(LoadElements, OldFormOfALineLoadIsRead) {
    const VarnelLine *line = readLine("", vectorElement("POSA", 1, 1, 0) + vectorElement("START", 8, 8, 8) +
                                              vectorElement("END", 2, 2, 0))
                                 ->getLine();
    EXPECT_TRUE(line->getStartVec() == KzVector3D(1, 1, 0));
    EXPECT_TRUE(line->getEndVec() == KzVector3D(2, 2, 0));
}

TEST_F(LoadElements, LineLoadOnAnArcComesBackOnItsChord) {
    document.model().giveLineLoad(
        new VarnelCircle(KzVector3D(2, 0, 0), KzVector3D(4, 0, 0), KzVector3D(2, 2, 0)));
    const std::string text = written("LINELOADS");
    EXPECT_EQ(text.find("<LINE>"), std::string::npos);
    EXPECT_NE(text.find("<TYPE>CIRCLE</TYPE>"), std::string::npos);
    document.read(document.text());
    const VarnelLine *line = document.model().getLineLoads().back()->getLine();
    ASSERT_NE(dynamic_cast<const VarnelStraight *>(line), nullptr);
    EXPECT_TRUE(line->getStartVec() == KzVector3D(4, 0, 0));
    EXPECT_TRUE(line->getEndVec() == KzVector3D(2, 2, 0));
}

TEST_F(LoadElements, UnknownKindOfLineGivesALoadThatStandsNowhere) {
    VarnelLineLoad *load = readLine("NUMBER=\"2\" TYPE=\"1\"", "<LINE TYPE=\"SPLINE\"/>");
    EXPECT_EQ(load->getLine(), nullptr);
    EXPECT_TRUE(load->getCOG() == KzVector3D());
    EXPECT_FALSE(load->isInPlane(KzMatrix44()));
    load->getBase();
    document.manager.setLoadcaseAutomation(true);
    document.write();
    EXPECT_EQ(textOf(document.find({"SUBSYSTEM", "LINELOADS"})).find("<LINE TYPE"), std::string::npos);
    document.model().mergePointsInVarnelObjects();
}

TEST_F(LoadElements, AreaLoadIsWrittenInFull) {
    VarnelAreaLoad *load = document.model().giveAreaLoad();
    load->setNumber(5);
    load->setName("A");
    load->setType(1);
    load->setLcType(2);
    load->getData().setTransmissionType(3);
    load->setP(1, 2, 3);
    load->setLoadcase(loadcase(7));
    load->setArea(new VarnelAreaRectangle(KzVector3D(0, 0, 0), 4, 3, 0));
    EXPECT_EQ(written("AREALOADS"),
              "<AREALOADS><AREALOAD NUMBER=\"5\" LCTYPE=\"2\" TYPE=\"1\" TRANS=\"3\" NAME=\"A\" LC=\"7\">"
              "<RECTAN WIDTH=\"4\" HEIGHT=\"3\" ANGLE=\"0\">" +
                  vectorElement("POS", 0, 0, 0) + "</RECTAN><X>1</X><Y>2</Y><Z>3</Z></AREALOAD></AREALOADS>");
}

TEST_F(LoadElements, AreaLoadWithoutAnOutlineIsWrittenWithItsValues) {
    document.model().giveAreaLoad();
    EXPECT_EQ(written("AREALOADS"),
              "<AREALOADS><AREALOAD NUMBER=\"1\" LCTYPE=\"1\" TYPE=\"0\" TRANS=\"0\" NAME=\"\">"
              "<X>0</X><Y>0</Y><Z>1</Z></AREALOAD></AREALOADS>");
}

TEST_F(LoadElements, AreaLoadIsRead) {
    const VarnelAreaLoad *load =
        readArea("NAME=\"snow\" TYPE=\"1\" TRANS=\"2\" LCTYPE=\"3\" LC=\"9\"",
                 "<RECTAN WIDTH=\"4\" HEIGHT=\"3\">" + vectorElement("POS", 1, 0, 0) +
                     "</RECTAN><X>1</X><Y>2</Y><Z>3</Z>");
    EXPECT_EQ(load->getName(), "snow");
    EXPECT_EQ(load->getType(), VarnelLoadData::LocalLoad);
    EXPECT_EQ(load->getData().getTransmissionType(), 2);
    EXPECT_EQ(load->getLcType(), 3);
    EXPECT_EQ(load->getLoadcase()->getNumber(), 9);
    EXPECT_TRUE(load->getP() == KzVector3D(1, 2, 3));
    EXPECT_DOUBLE_EQ(load->getArea()->getArea(), 12.0);
    EXPECT_TRUE(load->getOwnsArea());
}

// Meant: the model numbers area loads by their place.
TEST_F(LoadElements, NumberOfAnAreaLoadIsNotRead) {
    EXPECT_EQ(readArea("NUMBER=\"17\"")->getNumber(), 1);
    EXPECT_EQ(readArea("NUMBER=\"17\"")->getNumber(), 2);
}

TEST_F(LoadElements, EveryFormOfOutlineMakesAnAreaLoadAndNoneGivesNone) {
    EXPECT_NE(
        readArea("", "<AREA><EDGE>" + lineElement(0, 0, 4, 0) + "</EDGE><EDGE>" + lineElement(4, 0, 4, 3) +
                         "</EDGE><EDGE>" + lineElement(4, 3, 0, 0) + "</EDGE></AREA>")
            ->getArea(),
        nullptr);
    EXPECT_NE(readArea("", "<POLY>" + vectorElement("A", 0, 0, 0) + vectorElement("B", 4, 0, 0) +
                               vectorElement("C", 4, 3, 0) + "</POLY>")
                  ->getArea(),
              nullptr);
    EXPECT_EQ(readArea("", "<RECTAN WIDTH=\"4\" HEIGHT=\"3\"/>")->getArea(), nullptr);  // without a place
    EXPECT_EQ(readArea("")->getArea(), nullptr);
}

TEST_F(LoadElements, OddOutlinesOfAreaLoadsAreHarmless) {
    document.manager.setLoadcaseAutomation(true);
    document.readSubSystem("<PLATES><PLATE><RECTAN WIDTH=\"4\" HEIGHT=\"3\">" +
                           vectorElement("POS", 0, 0, 0) + "</RECTAN></PLATE></PLATES>");
    for (const char *outline :
         {"<AREA/>", "<POLY/>", "<AREA><EDGE><LINE TYPE=\"SPLINE\"/></EDGE></AREA>", "<AREA><EDGE/></AREA>",
          "<POLY><A/></POLY>", "<RECTAN WIDTH=\"nan\" HEIGHT=\"-1\"><POS><X>inf</X></POS></RECTAN>"}) {
        SCOPED_TRACE(outline);
        const std::string load =
            "<AREALOADS><AREALOAD TYPE=\"1\">" + std::string(outline) + "</AREALOAD></AREALOADS>";
        document.readSubSystem(load);
        document.model().getAreaLoads().back()->getCOG();
        document.model().getAreaLoads().back()->getBase();
        EXPECT_NO_THROW(document.write());
    }
    document.manager.setLoadcaseAutomation(false);
}

TEST_F(LoadElements, OldFormsOfAreaLoadValuesYieldToNewerOnes) {
    const struct {
        const char *content;
        KzVector3D value;
    } rows[] = {
        {"", {0, 0, 0}},
        {"<LOAD>5</LOAD>", {0, 0, 5}},
        {"<PX>1</PX><PY>2</PY>", {1, 2, 0}},
        {"<PZ>3</PZ><LOAD>5</LOAD>", {0, 0, 3}},  // whatever their order
        {"<LOAD>5</LOAD><PX>1</PX><PY>2</PY><PZ>3</PZ>", {1, 2, 3}},
        {"<PX>1</PX><PY>2</PY><PZ>3</PZ><X>7</X><Y>8</Y><Z>9</Z>", {7, 8, 9}},
        {"<PX>1</PX><PY>2</PY><PZ>3</PZ><X>7</X>", {7, 2, 3}},  // what is missing beside "X" stays
        {"<LOAD>5</LOAD><X>7</X>", {7, 0, 5}},
        {"<PX>1</PX><Y>8</Y><Z>9</Z>", {1, 0, 0}},  // without "X" the others do not count
        {"<LOAD/>", {0, 0, 0}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.content);
        EXPECT_TRUE(readArea("", row.content)->getP() == row.value);
    }
}

TEST_F(LoadElements, TypesOfAreaLoadValuesThatAreMissingBecomeZero) {
    VarnelAreaLoad load;
    load.setType(1);
    load.getData().setTransmissionType(3);
    load.setName("kept");
    load.setLoadcase(loadcase(2));
    KzXmlData element("E", nullptr);
    document.exchange().readAreaLoadData(&element, &load);
    EXPECT_EQ(load.getType(), VarnelLoadData::GlobalLoad);
    EXPECT_EQ(load.getData().getTransmissionType(), 0);
    EXPECT_EQ(load.getName(), "kept");
    EXPECT_EQ(load.getLoadcase()->getNumber(), 2);
    EXPECT_TRUE(load.getP() == KzVector3D());
}

TEST_F(LoadElements, LoadsOfAPlateAreOneForEachType) {
    document.readSubSystem(
        "<PLATES><PLATE><AREALOADS><ANY NAME=\"a\" LC=\"4\" TYPE=\"1\" TRANS=\"2\"><LOAD>1</LOAD></ANY>"
        "<AREALOAD LCTYPE=\"2\" NAME=\"b\"><PX>7</PX></AREALOAD><AREALOAD LCTYPE=\"-3\"/>"
        "</AREALOADS></PLATE></PLATES>");
    const VarnelPlate *plate = document.model().getPlates().front();
    ASSERT_EQ(plate->getAreaLoads().size(), 2u);
    const VarnelAreaLoad *live = plate->getAreaLoads().front();
    EXPECT_EQ(live->getLcType(), 2);
    EXPECT_EQ(live->getName(), "b");
    EXPECT_EQ(live->getLoadcase()->getNumber(), 4);  // an older case stays if the last load has none
    EXPECT_EQ(live->getType(), 0);
    EXPECT_TRUE(live->getP() == KzVector3D(7, 0, 0));
    EXPECT_EQ(plate->getAreaLoads().back()->getLcType(), -3);
}

TEST_F(LoadElements, HostAddsToLoadsThroughTheVirtualOperations) {
    class Other : public VarnelExchangeXml {
        void updateOnePointLoad(Varnel *, VarnelPointLoad *) override { setAttribute("HOST", 1); }
        void updateOneLineLoad(Varnel *, VarnelLineLoad *) override { setAttribute("HOST", 2); }
        void updateOneAreaLoad(Varnel *, VarnelAreaLoad *) override { setAttribute("HOST", 3); }
    } other;
    document.model().givePointLoad();
    document.model().giveLineLoad(nullptr);
    document.model().giveAreaLoad();
    other.updatePointLoads(&document.model());
    other.updateLineLoads(&document.model());
    other.updateAreaLoads(&document.model());
    EXPECT_EQ(textOf(other.getTree()->getRoot()),
              "<VARNEL><POINTLOADS><POINTLOAD NUMBER=\"1\" HOST=\"1\"></POINTLOAD></POINTLOADS>"
              "<LINELOADS><LINELOAD NUMBER=\"1\" HOST=\"2\"></LINELOAD></LINELOADS>"
              "<AREALOADS><AREALOAD NUMBER=\"1\" HOST=\"3\"></AREALOAD></AREALOADS></VARNEL>");
}

TEST_F(LoadElements, NameOfAPointLoadIsSetThroughTheVirtualOperation) {
    class Load : public VarnelPointLoad {
        void setName(const std::string &name) override { VarnelPointLoad::setName("host " + name); }
    } load;
    KzXmlData element("E", nullptr);
    element.setAttribute("NAME", "P");
    document.exchange().readOnePointLoad(&element, &load);
    EXPECT_EQ(load.getName(), "host P");
}

TEST_F(LoadElements, ReadersAnswerTheLoadThatTheyAdded) {
    KzXmlData element("E", nullptr);
    Varnel &model = document.model();
    const VarnelPointLoad *point = document.exchange().createOnePointLoad(&element, &model);
    ASSERT_NE(point, nullptr);
    EXPECT_EQ(point, model.getPointLoads().back());
    const VarnelLineLoad *line = document.exchange().createOneLineLoad(&element, &model);
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line, model.getLineLoads().back());
    const VarnelAreaLoad *area = document.exchange().createOneAreaLoad(&element, &model);
    ASSERT_NE(area, nullptr);
    EXPECT_EQ(area, model.getAreaLoads().back());
}

TEST_F(LoadElements, NothingToReadOrWriteIsHarmless) {
    VarnelExchangeXml &exchange = document.exchange();
    KzXmlData element("E", nullptr);
    Varnel *model = &document.model();
    EXPECT_EQ(exchange.createOnePointLoad(nullptr, model), nullptr);
    EXPECT_EQ(exchange.createOnePointLoad(&element, nullptr), nullptr);
    EXPECT_EQ(exchange.createOneLineLoad(nullptr, model), nullptr);
    EXPECT_EQ(exchange.createOneLineLoad(&element, nullptr), nullptr);
    EXPECT_EQ(exchange.createOneAreaLoad(nullptr, model), nullptr);
    EXPECT_EQ(exchange.createOneAreaLoad(&element, nullptr), nullptr);
    exchange.updatePointLoads(nullptr);
    exchange.updateLineLoads(nullptr);
    exchange.updateAreaLoads(nullptr);
    exchange.updateOnePointLoad(model, nullptr);
    exchange.updateOneLineLoad(model, nullptr);
    exchange.updateOneLineLoadData(nullptr);
    exchange.updateOneAreaLoad(model, nullptr);
    exchange.updateAreaLoadValues(nullptr);
    exchange.readOnePointLoad(&element, nullptr);
    exchange.readOneLineLoad(&element, nullptr);
    exchange.readOneLineLoadData(&element, nullptr);
    exchange.readOneAreaLoad(&element, nullptr);
    exchange.readAreaLoadData(&element, nullptr);
    exchange.createAreaLoadsToPlate(nullptr, &element);
    VarnelPointLoad point;
    point.setNumber(4);
    exchange.readOnePointLoad(nullptr, &point);
    EXPECT_EQ(point.getNumber(), 4);
    VarnelLineLoad line(nullptr);
    line.setP1(1, 2, 3);
    exchange.readOneLineLoad(nullptr, &line);
    exchange.readOneLineLoadData(nullptr, &line.getData());
    EXPECT_TRUE(line.getP1() == KzVector3D(1, 2, 3));
    VarnelAreaLoad area;
    exchange.readOneAreaLoad(nullptr, &area);
    exchange.readAreaLoadData(nullptr, &area);
    EXPECT_TRUE(area.getP() == KzVector3D(0, 0, 1));
    EXPECT_EQ(textOf(exchange.getTree()->getRoot()), "<VARNEL></VARNEL>");
    EXPECT_EQ(model->getNumberOfPointLoads() + model->getNumberOfLineLoads() + model->getNumberOfAreaLoads(),
              0);
}

}  // namespace
