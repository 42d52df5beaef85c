#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <vector>

#include "tests/support/Document.h"
#include "varnel/contracts/KzMath.h"
#include "varnel/geometry/VarnelStraight.h"
#include "varnel/members/VarnelLineBoundary.h"
#include "varnel/members/VarnelPointBoundaryCircle.h"
#include "varnel/members/VarnelPointBoundaryRectan.h"

namespace {

const std::string ownWeight = "<OWNWEIGHT TRANSFER=\"0\" SPECIFICWEIGHT=\"25\" HEIGHT=\"3\"></OWNWEIGHT>";
const std::string identity = vectorElement("LOCSYS-X", 1, 0, 0) + vectorElement("LOCSYS-Y", 0, 1, 0);

KzMatrix44 tilted() {
    KzMatrix44 frame;
    frame.setVector(0, KzVector3D(0, 1, 0));
    frame.setVector(1, KzVector3D(0, 0, 1));
    frame.setVector(2, KzVector3D(1, 0, 0));
    return frame;
}

class BoundaryElements : public testing::Test {
  protected:
    VarnelPointBoundary *readPoint(const std::string &attributes, const std::string &content = "") {
        document.readSubSystem("<PBOUNDS><PBOUND " + attributes + ">" + content + "</PBOUND></PBOUNDS>");
        return document.model().getPointBoundaries().back();
    }
    VarnelLineBoundary *readLine(const std::string &attributes, const std::string &content = "") {
        document.readSubSystem("<LBOUNDS><LBOUND " + attributes + ">" + content + "</LBOUND></LBOUNDS>");
        return document.model().getLineBoundaries().back();
    }
    VarnelPointBoundary *addPoint(int number = 1) {
        VarnelPointBoundary *boundary = document.model().givePointBoundary(KzVector3D(1, 2, 3), 7);
        boundary->setNumber(number);
        return boundary;
    }
    VarnelLineBoundary *addLine() {
        auto *boundary = new VarnelLineBoundary(new VarnelStraight(KzVector3D(0, 0, 0), KzVector3D(4, 0, 0)));
        boundary->setNumber(1);
        document.model().add(boundary);
        return boundary;
    }
    /// The list as it is written, with the numbers that the objects have.
    std::string written(const char *list) {
        document.exchange().updateSystem(&document.manager);
        return textOf(document.find({"SUBSYSTEM", list}));
    }
    const KzXmlData *writtenPoint() {
        document.exchange().updateSystem(&document.manager);
        return document.find({"SUBSYSTEM", "PBOUNDS", "PBOUND"});
    }

    Document document;
};

TEST_F(BoundaryElements, PointBoundaryWithoutAFrameIsWrittenInFull) {
    addPoint()->setName("A");
    EXPECT_EQ(written("PBOUNDS"), "<PBOUNDS><PBOUND NUMBER=\"1\" NAME=\"A\" DOF=\"7\" SPC=\"1\">" +
                                      vectorElement("POS", 1, 2, 3) + identity + ownWeight +
                                      "</PBOUND></PBOUNDS>");
}

TEST_F(BoundaryElements, ShapesAreWrittenBeforeThePlace) {
    document.model().givePointBoundaryRectan(KzVector3D(0, 0, 0), 1, 0.3, 0.4)->setNumber(1);
    document.model().givePointBoundaryCircle(KzVector3D(0, 0, 0), 2, 0.5)->setNumber(2);
    EXPECT_EQ(
        written("PBOUNDS"),
        "<PBOUNDS><PBOUND NUMBER=\"1\" NAME=\"\" DOF=\"1\" SPC=\"1\"><SHPRECT A=\"0.3\" B=\"0.4\">"
        "</SHPRECT>" +
            vectorElement("POS", 0, 0, 0) + identity + ownWeight +
            "</PBOUND><PBOUND NUMBER=\"2\" NAME=\"\" DOF=\"2\" SPC=\"1\"><SHPCIRC D=\"0.5\"></SHPCIRC>" +
            vectorElement("POS", 0, 0, 0) + identity + ownWeight + "</PBOUND></PBOUNDS>");
}

TEST_F(BoundaryElements, PointBoundaryInFullIsWrittenInOrder) {
    VarnelPointBoundary *boundary = addPoint(4);
    boundary->setAngle(0.0, 2);
    boundary->setSpacing(2.5);
    boundary->setStiffness({1, 2, 3, 4, 5, 6});
    boundary->setTransferOwnWeight(true);
    boundary->setSpecificWeight(24.0);
    boundary->setHeight(2.75);
    EXPECT_EQ(textOf(writtenPoint()),
              "<PBOUND NUMBER=\"4\" NAME=\"\" DOF=\"7\" SPC=\"2.5\" ANGLE=\"0\">" +
                  vectorElement("POS", 1, 2, 3) + vectorElement("STIFFD", 1, 2, 3) +
                  vectorElement("STIFFR", 4, 5, 6) +
                  "<OWNWEIGHT TRANSFER=\"1\" SPECIFICWEIGHT=\"24\" HEIGHT=\"2.75\"></OWNWEIGHT></PBOUND>");
}

TEST_F(BoundaryElements, EmptyListStaysAndRemovedBoundariesLeaveNothingBehind) {
    EXPECT_EQ(written("PBOUNDS"), "<PBOUNDS></PBOUNDS>");
    EXPECT_EQ(written("LBOUNDS"), "<LBOUNDS></LBOUNDS>");
    VarnelPointBoundary *point = addPoint();
    VarnelLineBoundary *line = addLine();
    EXPECT_NE(written("PBOUNDS"), "<PBOUNDS></PBOUNDS>");
    document.model().remove(point, true);
    document.model().remove(line, true);
    EXPECT_EQ(written("PBOUNDS"), "<PBOUNDS></PBOUNDS>");
    EXPECT_EQ(written("LBOUNDS"), "<LBOUNDS></LBOUNDS>");
}

TEST_F(BoundaryElements, MissingBoundariesInTheListsAreSkipped) {
    document.model().add(static_cast<VarnelPointBoundary *>(nullptr));
    document.model().add(static_cast<VarnelLineBoundary *>(nullptr));
    EXPECT_EQ(written("PBOUNDS"), "<PBOUNDS></PBOUNDS>");
    EXPECT_EQ(written("LBOUNDS"), "<LBOUNDS></LBOUNDS>");
}

TEST_F(BoundaryElements, BoundariesOfOneNumberMeetInOneElement) {
    addPoint(3)->setName("first");
    addPoint(3)->setName("second");
    const std::string text = written("PBOUNDS");
    EXPECT_EQ(document.find({"SUBSYSTEM", "PBOUNDS"})->getChildren().size(), 1u);
    EXPECT_NE(text.find("NAME=\"second\""), std::string::npos);
}

// A boundary without a spacing comes back with that of a new one.
TEST_F(BoundaryElements, SpacingOfZeroIsLeftOutAndComesBackAsOne) {
    addPoint()->setSpacing(0.0);
    EXPECT_EQ(writtenPoint()->findAttribute("SPC"), nullptr);
    document.read(document.text());
    EXPECT_DOUBLE_EQ(document.model().getPointBoundaries().back()->getSpacing(), 1.0);
}

TEST_F(BoundaryElements, BoundaryTurnedInThePlaneWritesItsAngleAndNoVectors) {
    addPoint()->setAngle(KzMath::Pi / 6, 2);
    const KzXmlData *element = writtenPoint();
    ASSERT_NE(element->findAttribute("ANGLE"), nullptr);
    EXPECT_NEAR(element->findAttribute("ANGLE")->getDouble(), 30.0, 1e-12);
    EXPECT_EQ(element->findChild("LOCSYS-X"), nullptr);
    EXPECT_EQ(element->findChild("LOCSYS-Y"), nullptr);
}

// To the last bit: other programs compute the same radians from the same text.
TEST_F(BoundaryElements, AngleIsDividedBeforeItIsMultiplied) {
    for (int degrees = 1; degrees < 90; ++degrees) {
        const VarnelPointBoundary *boundary = readPoint("ANGLE=\"" + std::to_string(degrees) + "\"");
        VarnelPointBoundary turned(KzVector3D(), 0, nullptr);
        turned.setAngle(degrees / 180.0 * KzMath::Pi, 2);
        EXPECT_TRUE(boundary->getBase().getVector(0) == turned.getBase().getVector(0)) << degrees;
        VarnelExchangeXml exchange;
        exchange.updateOnePointBoundary(nullptr, &turned);
        EXPECT_EQ(exchange.getTree()->getRoot()->findAttribute("ANGLE")->getDouble(),
                  turned.getAngle(2) / KzMath::Pi * 180.0)
            << degrees;
    }
}

TEST_F(BoundaryElements, BoundaryWithASpatialFrameWritesTwoVectorsAndNoAngle) {
    addPoint()->setBase(tilted());
    const KzXmlData *element = writtenPoint();
    EXPECT_EQ(element->findAttribute("ANGLE"), nullptr);
    EXPECT_EQ(textOf(element->findChild("LOCSYS-X")), vectorElement("LOCSYS-X", 0, 1, 0));
    EXPECT_EQ(textOf(element->findChild("LOCSYS-Y")), vectorElement("LOCSYS-Y", 0, 0, 1));
}

TEST_F(BoundaryElements, OnlyTheVectorsOfStiffnessThatAreNotZeroAreWritten) {
    VarnelPointBoundary *boundary = addPoint();
    boundary->setStiffness({0, 0, 0, 0, 0, 5});
    EXPECT_EQ(writtenPoint()->findChild("STIFFD"), nullptr);
    EXPECT_EQ(textOf(writtenPoint()->findChild("STIFFR")), vectorElement("STIFFR", 0, 0, 5));
    boundary->setStiffness({5, 0, 0, 0, 0, 0});
    EXPECT_EQ(textOf(writtenPoint()->findChild("STIFFD")), vectorElement("STIFFD", 5, 0, 0));
    EXPECT_EQ(writtenPoint()->findChild("STIFFR"), nullptr);
}

TEST_F(BoundaryElements, NoSpringsTakeTheElementsAwayAndSpringsOfZeroLeaveThem) {
    VarnelExchangeXml &exchange = document.exchange();
    exchange.open("E");
    exchange.updateVectorToKey("STIFFD", KzVector3D(1, 2, 3));
    exchange.updateVectorToKey("STIFFR", KzVector3D(4, 5, 6));
    const VarnelBoundaryStiffnessData zero;
    exchange.updateOneStiffnessData(&zero);
    EXPECT_EQ(document.find({"E"})->getChildren().size(), 2u);
    exchange.updateOneStiffnessData(nullptr);
    EXPECT_EQ(textOf(document.find({"E"})), "<E></E>");
}

TEST_F(BoundaryElements, OwnWeightIsWrittenAnew) {
    VarnelExchangeXml &exchange = document.exchange();
    exchange.open("E");
    exchange.open("OWNWEIGHT");
    exchange.setAttribute("OLD", 1);
    exchange.close();
    const VarnelBoundaryData data;
    exchange.updateOneOwnWeightTransferData(&data);
    EXPECT_EQ(textOf(document.find({"E"})), "<E>" + ownWeight + "</E>");
}

TEST_F(BoundaryElements, MissingItemsOfAPointBoundaryLeaveItsDefaults) {
    const VarnelPointBoundary *boundary = readPoint("");
    EXPECT_EQ(boundary->getNumber(), VarnelPointBoundary(KzVector3D(), 0, nullptr).getNumber());
    EXPECT_EQ(boundary->getName(), "");
    EXPECT_EQ(boundary->getDof(), 0);
    EXPECT_DOUBLE_EQ(boundary->getSpacing(), 1.0);
    EXPECT_TRUE(boundary->getCoor() == KzVector3D());
    EXPECT_EQ(boundary->getData().getBaseMatrix(), nullptr);
    EXPECT_EQ(boundary->getStiffnessData(), nullptr);
    EXPECT_FALSE(boundary->getData().doTransferOwnWeight());
    EXPECT_DOUBLE_EQ(boundary->getData().getSpecificWeight(), 25.0);
    EXPECT_DOUBLE_EQ(boundary->getData().getHeight(), 3.0);
    EXPECT_EQ(typeid(*boundary), typeid(VarnelPointBoundary));
    EXPECT_TRUE(boundary->getActive());
    EXPECT_EQ(boundary->getAssignedConstructionStage(), nullptr);
}

TEST_F(BoundaryElements, AllItemsOfAPointBoundaryAreRead) {
    const VarnelPointBoundary *boundary = readPoint(
        "NUMBER=\"9\" NAME=\"col\" DOF=\"4\" SPC=\"2\" ANGLE=\"90\"",
        vectorElement("POS", 1, 2, 3) + vectorElement("STIFFD", 1, 2, 3) + vectorElement("STIFFR", 4, 5, 6) +
            "<OWNWEIGHT TRANSFER=\"2\" SPECIFICWEIGHT=\"18\" HEIGHT=\"2.5\"/>");
    EXPECT_EQ(boundary->getNumber(), 9);
    EXPECT_EQ(boundary->getName(), "col");
    EXPECT_EQ(boundary->getDof(), 4);
    EXPECT_DOUBLE_EQ(boundary->getSpacing(), 2.0);
    EXPECT_NEAR(boundary->getAngle(2), KzMath::Pi / 2, 1e-15);
    EXPECT_TRUE(boundary->getCoor() == KzVector3D(1, 2, 3));
    EXPECT_EQ(boundary->getStiffness(), (std::vector<double>{1, 2, 3, 4, 5, 6}));
    EXPECT_TRUE(boundary->getData().doTransferOwnWeight());
    EXPECT_DOUBLE_EQ(boundary->getData().getSpecificWeight(), 18.0);
    EXPECT_DOUBLE_EQ(boundary->getData().getHeight(), 2.5);
}

TEST_F(BoundaryElements, ShapesAreReadAndTheRectangleWins) {
    const auto *rectangle = dynamic_cast<VarnelPointBoundaryRectan *>(
        readPoint("DOF=\"3\"", "<SHPCIRC D=\"0.5\"/><SHPRECT A=\"0.3\" B=\"0.4\"/>"));
    ASSERT_NE(rectangle, nullptr);
    EXPECT_DOUBLE_EQ(rectangle->getB(), 0.3);
    EXPECT_DOUBLE_EQ(rectangle->getD(), 0.4);
    EXPECT_EQ(rectangle->getDof(), 3);
    const auto *circle = dynamic_cast<VarnelPointBoundaryCircle *>(readPoint("", "<SHPCIRC D=\"0.5\"/>"));
    ASSERT_NE(circle, nullptr);
    EXPECT_DOUBLE_EQ(circle->getD(), 0.5);
}

TEST_F(BoundaryElements, ShapesWithoutSizesHaveNone) {
    const auto *rectangle = dynamic_cast<VarnelPointBoundaryRectan *>(readPoint("", "<SHPRECT/>"));
    ASSERT_NE(rectangle, nullptr);
    EXPECT_DOUBLE_EQ(rectangle->getB(), 0.0);
    EXPECT_DOUBLE_EQ(rectangle->getD(), 0.0);
    const auto *circle = dynamic_cast<VarnelPointBoundaryCircle *>(readPoint("", "<SHPCIRC/>"));
    ASSERT_NE(circle, nullptr);
    EXPECT_DOUBLE_EQ(circle->getD(), 0.0);
}

TEST_F(BoundaryElements, EveryChildOfTheListIsASupportAndOneNumberGivesTwo) {
    document.readSubSystem(
        "<PBOUNDS><PBOUND NUMBER=\"2\"/><ANY NUMBER=\"2\"/></PBOUNDS>"
        "<LBOUNDS><LBOUND NUMBER=\"2\"/><ANY NUMBER=\"2\"/></LBOUNDS>");
    ASSERT_EQ(document.model().getNumberOfPointBoundaries(), 2);
    EXPECT_EQ(document.model().getPointBoundaries().back()->getNumber(), 2);
    ASSERT_EQ(document.model().getNumberOfLineBoundaries(), 2);
    EXPECT_EQ(document.model().getLineBoundaries().back()->getNumber(), 2);
}

TEST_F(BoundaryElements, AngleWinsOverVectorsBesideIt) {
    const VarnelPointBoundary *boundary =
        readPoint("ANGLE=\"0\"", vectorElement("LOCSYS-X", 0, 1, 0) + vectorElement("LOCSYS-Y", 0, 0, 1));
    EXPECT_TRUE(boundary->onlyRotatedInXY());
    EXPECT_TRUE(boundary->getBase().getVector(0) == KzVector3D(1, 0, 0));
}

TEST_F(BoundaryElements, VectorsAreNormalisedAndTheThirdAxisIsTheirProduct) {
    const VarnelPointBoundary *boundary =
        readPoint("", vectorElement("LOCSYS-X", 0, 2, 0) + vectorElement("LOCSYS-Y", 0, 0, 5));
    EXPECT_TRUE(boundary->getBase().getVector(0) == KzVector3D(0, 1, 0));
    EXPECT_TRUE(boundary->getBase().getVector(1) == KzVector3D(0, 0, 1));
    EXPECT_TRUE(boundary->getBase().getVector(2) == KzVector3D(1, 0, 0));
    EXPECT_TRUE(boundary->getBase().getVector(3) == KzVector3D());
}

// The second vector is meant to stay oblique, and the third then is shorter than 1.
TEST_F(BoundaryElements, ObliqueVectorsStayOblique) {
    const VarnelPointBoundary *boundary =
        readPoint("", vectorElement("LOCSYS-X", 1, 0, 0) + vectorElement("LOCSYS-Y", 3, 4, 0));
    EXPECT_TRUE(boundary->getBase().getVector(1) == KzVector3D(0.6, 0.8, 0));
    EXPECT_TRUE(boundary->getBase().getVector(2) == KzVector3D(0, 0, 0.8));
    EXPECT_FALSE(boundary->onlyRotatedInXY());
}

TEST_F(BoundaryElements, OneVectorAloneLeavesTheFrame) {
    const std::string x = vectorElement("LOCSYS-X", 0, 1, 0), y = vectorElement("LOCSYS-Y", 0, 0, 1);
    EXPECT_EQ(readPoint("", x)->getData().getBaseMatrix(), nullptr);
    EXPECT_EQ(readPoint("", y)->getData().getBaseMatrix(), nullptr);
    EXPECT_EQ(readPoint("", x + vectorElement("LOCSYS-Y", 0, 0, 0))->getData().getBaseMatrix(), nullptr);
    EXPECT_EQ(readPoint("", vectorElement("LOCSYS-X", 0, 0, 0) + y)->getData().getBaseMatrix(), nullptr);
    EXPECT_EQ(readPoint("", "<LOCSYS-X/><LOCSYS-Y/>")->getData().getBaseMatrix(), nullptr);
}

TEST_F(BoundaryElements, ParallelVectorsHaveANullThirdAxisAndAreHarmless) {
    VarnelPointBoundary *boundary =
        readPoint("", vectorElement("LOCSYS-X", 0, 1, 0) + vectorElement("LOCSYS-Y", 0, -3, 0));
    EXPECT_TRUE(boundary->getBase().getVector(2).isNull());
    EXPECT_TRUE(boundary->isInPlane(boundary->getBase()));
    const std::string text = document.write();
    EXPECT_EQ(text.find("nan"), std::string::npos);
    readPoint("", "<LOCSYS-X><X>nan</X></LOCSYS-X><LOCSYS-Y><Y>inf</Y></LOCSYS-Y>");
    EXPECT_NO_THROW(document.write());
}

TEST_F(BoundaryElements, OneVectorOfStiffnessIsEnough) {
    EXPECT_EQ(readPoint("", vectorElement("STIFFR", 0, 0, 5))->getStiffness(),
              (std::vector<double>{0, 0, 0, 0, 0, 5}));
    EXPECT_EQ(readPoint("", vectorElement("STIFFD", 7, 0, 0))->getStiffness(),
              (std::vector<double>{7, 0, 0, 0, 0, 0}));
}

TEST_F(BoundaryElements, StiffnessWithoutAnyEffectIsNone) {
    EXPECT_EQ(readPoint("", vectorElement("STIFFD", 0.001, 0, 0))->getStiffnessData(), nullptr);
    EXPECT_NE(readPoint("", vectorElement("STIFFD", 0.0011, 0, 0))->getStiffnessData(), nullptr);
    EXPECT_EQ(readPoint("", "<STIFFD><X>nan</X></STIFFD>")->getStiffnessData(), nullptr);
}

TEST_F(BoundaryElements, ReadingStiffnessMarksAChangeAndSpacingDoesNot) {
    VarnelPointBoundary *boundary = readPoint("");
    document.readSubSystem("<E SPC=\"3\"/><F>" + vectorElement("STIFFD", 7, 0, 0) + "</F>");
    for (const char *name : {"E", "F"}) {
        boundary->setChanged(false);
        document.exchange().readOnePointBoundary(document.find({"SUBSYSTEM", name}), boundary);
        EXPECT_TRUE(boundary->getChanged()) << name;  // degrees of freedom and place are set in any case
    }
    EXPECT_DOUBLE_EQ(boundary->getSpacing(), 3.0);
    EXPECT_EQ(boundary->getStiffness()[0], 7.0);
}

TEST_F(BoundaryElements, MissingPlaceAndDegreesOfFreedomTakeThoseOfASupportAway) {
    VarnelPointBoundary *boundary = addPoint(4);
    boundary->setName("column");
    boundary->setAngle(0.5, 2);
    boundary->setStiffness({1, 2, 3, 4, 5, 6});
    document.readSubSystem("<E/>");
    document.exchange().readOnePointBoundary(document.find({"SUBSYSTEM", "E"}), boundary);
    EXPECT_EQ(boundary->getDof(), 0);
    EXPECT_TRUE(boundary->getCoor() == KzVector3D());
    EXPECT_EQ(boundary->getNumber(), 4);  // all else stays
    EXPECT_EQ(boundary->getName(), "column");
    EXPECT_DOUBLE_EQ(boundary->getAngle(2), 0.5);
    EXPECT_EQ(boundary->getStiffness(), (std::vector<double>{1, 2, 3, 4, 5, 6}));
}

TEST_F(BoundaryElements, OddNumbersAreReadAsFarAsTheyGo) {
    const VarnelPointBoundary *boundary = readPoint("NUMBER=\"2147483647\" DOF=\"-5\" SPC=\"wide\"",
                                                    "<POS><X>1e999</X><Y>nan</Y><Z> 2m </Z></POS>");
    EXPECT_EQ(boundary->getNumber(), INT_MAX);
    EXPECT_EQ(boundary->getDof(), -5);
    EXPECT_DOUBLE_EQ(boundary->getSpacing(), 0.0);
    EXPECT_TRUE(std::isinf(boundary->getCoor().getX()));
    EXPECT_TRUE(std::isnan(boundary->getCoor().getY()));
    EXPECT_DOUBLE_EQ(boundary->getCoor().getZ(), 2.0);
    EXPECT_EQ(readPoint("NUMBER=\"99999999999\"")->getNumber(), INT_MAX);
    EXPECT_EQ(readLine("NUMBER=\"-99999999999\"")->getNumber(), INT_MIN);
    EXPECT_NO_THROW(document.write());
}

// Document 1 has the vectors of the identity; what is read from it is turned by nothing in the plane.
TEST_F(BoundaryElements, BoundaryWithoutAFrameComesBackWithTheIdentity) {
    addPoint();
    const std::string first = document.write();
    Document again;
    again.read(first);
    EXPECT_NE(again.model().getPointBoundaries().front()->getData().getBaseMatrix(), nullptr);
    again.write();
    const KzXmlData *element = again.find({"SUBSYSTEM", "PBOUNDS", "PBOUND"});
    ASSERT_NE(element->findAttribute("ANGLE"), nullptr);
    EXPECT_EQ(element->findAttribute("ANGLE")->getData(), "0");
    EXPECT_EQ(element->findChild("LOCSYS-X"), nullptr);
}

TEST_F(BoundaryElements, OriginOfAFrameActivityAndTypeIndexDoNotComeBack) {
    VarnelPointBoundary *boundary = addPoint();
    KzMatrix44 frame = tilted();
    frame.setVector(3, KzVector3D(9, 9, 9));
    boundary->setBase(frame);
    boundary->setActive(false);
    boundary->setTypInd(5);
    const std::string first = document.write();
    Document again;
    again.read(first);
    const VarnelPointBoundary *read = again.model().getPointBoundaries().front();
    EXPECT_TRUE(read->getBase().getVector(2) == KzVector3D(1, 0, 0));
    EXPECT_TRUE(read->getBase().getVector(3) == KzVector3D());
    EXPECT_TRUE(read->getActive());
    EXPECT_EQ(read->getTypInd(), 0);
}

TEST_F(BoundaryElements, HostAddsToSupportsThroughTheVirtualOperations) {
    class Other : public VarnelExchangeXml {
        void updateOnePointBoundary(Varnel *model, VarnelPointBoundary *boundary) override {
            VarnelExchangeXml::updateOnePointBoundary(model, boundary);
            setAttribute("HOST", 1);
        }
        void updateOneLineBoundary(Varnel *model, VarnelLineBoundary *boundary) override {
            VarnelExchangeXml::updateOneLineBoundary(model, boundary);
            setAttribute("HOST", 2);
        }
    } other;
    addPoint();
    addLine();
    other.updatePointBoundaries(&document.model());
    other.updateLineBoundaries(&document.model());
    const std::string text = textOf(other.getTree()->getRoot());
    EXPECT_NE(text.find("HOST=\"1\""), std::string::npos);
    EXPECT_NE(text.find("HOST=\"2\""), std::string::npos);
}

TEST_F(BoundaryElements, NamesAreSetThroughTheVirtualOperation) {
    class Point : public VarnelPointBoundary {
      public:
        Point() : VarnelPointBoundary(KzVector3D(), 0, nullptr) {}
        void setName(const std::string &name) override { VarnelPointBoundary::setName("host " + name); }
    } point;
    class Line : public VarnelLineBoundaryData {
        void setName(const std::string &name) override { VarnelLineBoundaryData::setName("host " + name); }
    } line;
    KzXmlData element("E", nullptr);
    element.setAttribute("NAME", "A");
    document.exchange().readOnePointBoundary(&element, &point);
    document.exchange().readOneLineBoundaryData(&element, &line);
    EXPECT_EQ(point.getName(), "host A");
    EXPECT_EQ(line.getName(), "host A");
}

TEST_F(BoundaryElements, ReadersAnswerTheSupportThatTheyAdded) {
    KzXmlData element("E", nullptr);
    Varnel &model = document.model();
    const VarnelPointBoundary *plain = document.exchange().createOnePointBoundary(&element, &model);
    EXPECT_EQ(plain, model.getPointBoundaries().back());
    element.makeChild("SHPCIRC");
    const VarnelPointBoundary *circle = document.exchange().createOnePointBoundary(&element, &model);
    EXPECT_EQ(circle, model.getPointBoundaries().back());
    EXPECT_NE(circle, plain);
    const VarnelLineBoundary *line = document.exchange().createOneLineBoundary(&element, &model);
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line, model.getLineBoundaries().back());
}

TEST_F(BoundaryElements, NothingToReadOrWriteIsHarmless) {
    VarnelExchangeXml &exchange = document.exchange();
    KzXmlData element("E", nullptr);
    EXPECT_EQ(exchange.createOnePointBoundary(nullptr, &document.model()), nullptr);
    EXPECT_EQ(exchange.createOnePointBoundary(&element, nullptr), nullptr);
    EXPECT_EQ(exchange.createOneLineBoundary(nullptr, &document.model()), nullptr);
    EXPECT_EQ(exchange.createOneLineBoundary(&element, nullptr), nullptr);
    exchange.updatePointBoundaries(nullptr);
    exchange.updateLineBoundaries(nullptr);
    exchange.updateOneLine(nullptr);
    exchange.updateOnePointBoundary(nullptr, nullptr);
    exchange.updateOneLineBoundary(nullptr, nullptr);
    exchange.updateOneLineBoundaryData(nullptr);
    exchange.updateOneOwnWeightTransferData(nullptr);
    exchange.readOnePointBoundary(&element, nullptr);
    exchange.readOneLineBoundary(&element, nullptr);
    exchange.readOneLineBoundaryData(&element, nullptr);
    exchange.readOneOwnWeightTransferData(&element, nullptr);
    VarnelLineBoundary kept(nullptr);
    kept.getData().setDof(7);
    exchange.readOneLineBoundary(nullptr, &kept);
    exchange.readOneLineBoundaryData(nullptr, &kept.getData());
    exchange.readOneOwnWeightTransferData(nullptr, &kept.getData());
    EXPECT_EQ(kept.getData().getDof(), 7);
    VarnelPointBoundary point(KzVector3D(1, 2, 3), 7, nullptr);
    exchange.readOnePointBoundary(nullptr, &point);
    EXPECT_TRUE(point.getCoor() == KzVector3D(1, 2, 3));
    EXPECT_EQ(document.model().getNumberOfPointBoundaries(), 0);
    EXPECT_EQ(textOf(exchange.getTree()->getRoot()), "<VARNEL></VARNEL>");
}

}  // namespace
