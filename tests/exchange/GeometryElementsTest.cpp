#include <gtest/gtest.h>

#include "tests/support/Document.h"
#include "varnel/contracts/KzMath.h"
#include "varnel/geometry/VarnelAreaPolygon.h"
#include "varnel/geometry/VarnelAreaRectangle.h"
#include "varnel/geometry/VarnelBeamGeo.h"
#include "varnel/geometry/VarnelCircle.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/geometry/VarnelPolyline.h"
#include "varnel/geometry/VarnelStraight.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/members/VarnelPlate.h"

namespace {

const std::string quarter = vectorElement("CENTER", 0, 0, 0);

class GeometryElements : public testing::Test {
  protected:
    /// The outline of an element with this content.
    std::unique_ptr<VarnelLineHolder> readArea(const std::string &content, bool holderOnly = false) {
        std::istringstream stream("<E>" + content + "</E>");
        tree_.buildOfStream(stream);
        return std::unique_ptr<VarnelLineHolder>(
            document.exchange().readOneArea(tree_.getRoot(), &document.model(), holderOnly));
    }
    /// What is written for an outline or a line, below the root.
    template <class Write>
    std::string written(Write write) {
        document.exchange().getTree()->flushRoot();
        write(document.exchange());
        return textOf(document.exchange().getTree()->getRoot());
    }
    /// The line that a line load with this content gets.
    const VarnelLine *readLine(const std::string &content) {
        document.readSubSystem("<LINELOADS><LINELOAD>" + content + "</LINELOAD></LINELOADS>");
        return document.model().getLineLoads().back()->getLine();
    }

    Document document;

  private:
    KzXmlTree tree_{"E"};
};

std::string edge(int pos, const std::string &content) {
    return "<EDGE POS=\"" + std::to_string(pos) + "\">" + content + "</EDGE>";
}

const std::string triangle = "<AREA>" + edge(1, lineElement(0, 0, 4, 0)) + edge(2, lineElement(4, 0, 0, 3)) +
                             edge(3, lineElement(0, 3, 0, 0)) + "</AREA>";

TEST_F(GeometryElements, StraightLineHasALineElementWithItsType) {
    VarnelStraight line(KzVector3D(1, 2, 3), KzVector3D(4, 5, 6));
    EXPECT_EQ(written([&](VarnelExchangeXml &exchange) { exchange.updateOneLine(&line); }),
              "<VARNEL><LINE TYPE=\"STRAIGHT\">" + vectorElement("START", 1, 2, 3) +
                  vectorElement("END", 4, 5, 6) + "</LINE></VARNEL>");
}

// An arc opens no "LINE", and its type is a child: readers of the format take it for its chord.
TEST_F(GeometryElements, ArcStandsInTheElementItselfWithItsTypeAsAChild) {
    VarnelCircle arc(KzVector3D(0, 0, 0), KzVector3D(1, 0, 0), KzVector3D(0, 1, 0));
    EXPECT_EQ(written([&](VarnelExchangeXml &exchange) { exchange.updateOneLine(&arc); }),
              "<VARNEL><TYPE>CIRCLE</TYPE>" + quarter + vectorElement("START", 1, 0, 0) +
                  vectorElement("END", 0, 1, 0) + "</VARNEL>");
}

TEST_F(GeometryElements, NullLineNullOutlineAndTheListsOfAMissingModelWriteNothing) {
    EXPECT_EQ(written([](VarnelExchangeXml &exchange) {
                  exchange.updateOneLine(nullptr);
                  exchange.updateArea(nullptr);
                  exchange.updatePoints(nullptr);
                  exchange.updateLines(nullptr);
                  exchange.updatePlates(nullptr);
              }),
              "<VARNEL></VARNEL>");
}

TEST_F(GeometryElements, PolygonIsWrittenEdgeByEdgeFromOne) {
    VarnelAreaPolygon polygon({KzVector3D(0, 0, 0), KzVector3D(4, 0, 0), KzVector3D(0, 3, 0)});
    EXPECT_EQ(written([&](VarnelExchangeXml &exchange) { exchange.updateArea(&polygon); }),
              "<VARNEL>" + triangle + "</VARNEL>");
}

TEST_F(GeometryElements, PolygonIsReadAsAClosedRing) {
    const auto outline = readArea(triangle);
    auto *area = dynamic_cast<VarnelAreaPolygon *>(outline.get());
    ASSERT_NE(area, nullptr);
    EXPECT_EQ(area->getNumLines(), 3u);
    EXPECT_DOUBLE_EQ(area->getArea(), 6.0);
    EXPECT_EQ(area->getLine(0)->getStart(), area->getLine(2)->getEnd());
    EXPECT_TRUE(document.model().systemChanged());
}

TEST_F(GeometryElements, BeamAxisIsReadAsAnOpenChain) {
    const auto axis = readArea(triangle, true);
    ASSERT_NE(dynamic_cast<VarnelBeamGeo *>(axis.get()), nullptr);
    EXPECT_EQ(axis->getNumLines(), 3u);
    EXPECT_NE(axis->getLine(0)->getStart(), axis->getLine(2)->getEnd());
}

TEST_F(GeometryElements, RectangleAtNinetyDegreesTurnsByAQuarter) {
    const std::string element =
        "<RECTAN WIDTH=\"2\" HEIGHT=\"1\" ANGLE=\"90\">" + vectorElement("POS", 1, 2, 3) + "</RECTAN>";
    const auto outline = readArea(element);
    auto *rectangle = dynamic_cast<VarnelAreaRectangle *>(outline.get());
    ASSERT_NE(rectangle, nullptr);
    KzVector3D origin;
    double width = 0, height = 0, angle = 0;
    rectangle->getAreaRectangle(origin, width, height, angle);
    EXPECT_NEAR(angle, KzMath::Pi / 2, 1e-12);
    EXPECT_EQ(written([&](VarnelExchangeXml &exchange) { exchange.updateArea(rectangle); }),
              "<VARNEL>" + element + "</VARNEL>");
}

// Only "AREA" is emptied; the lists around outlines are rebuilt anyway.
TEST_F(GeometryElements, OutlineIsWrittenAnewAndARectangleBesideTheOldOne) {
    const auto names = [](const KzXmlData *element) {
        std::string text;
        for (const KzXmlData *child : element->getChildren()) text += child->getName() + " ";
        return text;
    };
    document.exchange().getTree()->flushRoot();
    KzXmlData *root = document.exchange().getTree()->getRoot();
    VarnelAreaRectangle rectangle(KzVector3D(0, 0, 0), 4, 3, 0);
    VarnelAreaPolygon polygon({KzVector3D(0, 0, 0), KzVector3D(4, 0, 0), KzVector3D(0, 3, 0)});
    for (const char *outline : {"AREA", "RECTAN"}) {
        root->makeChild(outline)->makeChild("OLD");
        root->findChild(outline)->setAttribute("OLD", 1);
    }
    document.exchange().updateArea(&polygon);
    document.exchange().updateArea(&rectangle);
    EXPECT_EQ(names(root), "AREA RECTAN ");
    EXPECT_EQ(textOf(root->findChild("AREA")), triangle);
    EXPECT_EQ(names(root->findChild("RECTAN")), "OLD POS ");
    EXPECT_NE(root->findChild("RECTAN")->findAttribute("OLD"), nullptr);
}

TEST_F(GeometryElements, ArcsOfAnOutlineComeBackAsTheirChords) {
    VarnelArea outline;
    outline.addLine(new VarnelCircle(KzVector3D(0, 0, 0), KzVector3D(1, 0, 0), KzVector3D(0, 1, 0)));
    outline.addLine(new VarnelStraight(KzVector3D(0, 1, 0), KzVector3D(0, 0, 0)));
    outline.addLine(new VarnelStraight(KzVector3D(0, 0, 0), KzVector3D(1, 0, 0)));
    outline.meltFirstAndLast();
    const std::string text = written([&](VarnelExchangeXml &exchange) { exchange.updateArea(&outline); });
    EXPECT_NE(text.find(edge(1, "<TYPE>CIRCLE</TYPE>" + quarter + vectorElement("START", 1, 0, 0) +
                                    vectorElement("END", 0, 1, 0))),
              std::string::npos);
    const auto read = readArea(text.substr(8, text.size() - 17));
    ASSERT_EQ(read->getNumLines(), 3u);
    EXPECT_NE(dynamic_cast<VarnelStraight *>(read->getLine(0)), nullptr);
    EXPECT_TRUE(read->getLine(0)->getStartVec() == KzVector3D(1, 0, 0));
    EXPECT_TRUE(read->getLine(0)->getEndVec() == KzVector3D(0, 1, 0));
}

TEST_F(GeometryElements, RectangleWithoutAPositionIsNone) {
    EXPECT_EQ(readArea("<RECTAN WIDTH=\"2\" HEIGHT=\"1\"/>"), nullptr);
    const auto flat = readArea("<RECTAN>" + vectorElement("POS", 1, 2, 3) + "</RECTAN>");
    ASSERT_NE(flat, nullptr);
    EXPECT_DOUBLE_EQ(flat->getLength(), 0.0);
}

TEST_F(GeometryElements, EmptyRectangleIsWrittenAsAnEmptyArea) {
    VarnelAreaRectangle empty;
    EXPECT_EQ(written([&](VarnelExchangeXml &exchange) { exchange.updateArea(&empty); }),
              "<VARNEL><AREA></AREA></VARNEL>");
}

TEST_F(GeometryElements, CornersOfAnOldPolygonAreRead) {
    const auto outline = readArea("<POLY>" + vectorElement("A", 0, 0, 0) + vectorElement("B", 2, 0, 0) +
                                  vectorElement("C", 2, 2, 0) + "</POLY>");
    auto *area = dynamic_cast<VarnelArea *>(outline.get());
    ASSERT_NE(area, nullptr);
    EXPECT_EQ(area->getNumLines(), 3u);
    EXPECT_DOUBLE_EQ(area->getArea(), 2.0);
}

TEST_F(GeometryElements, AreaWinsOverRectangleAndRectangleOverPolygon) {
    const std::string rectangle =
        "<RECTAN WIDTH=\"2\" HEIGHT=\"1\">" + vectorElement("POS", 0, 0, 0) + "</RECTAN>";
    const std::string polygon = "<POLY>" + vectorElement("A", 0, 0, 0) + "</POLY>";
    EXPECT_EQ(readArea(polygon + rectangle + triangle)->getNumLines(), 3u);
    EXPECT_NE(dynamic_cast<VarnelAreaRectangle *>(readArea(polygon + rectangle).get()), nullptr);
    EXPECT_EQ(readArea(""), nullptr);
    EXPECT_EQ(document.exchange().readOneArea(nullptr, &document.model(), false), nullptr);
}

TEST_F(GeometryElements, OldEdgeHasItsEndsWithoutALine) {
    const auto outline = readArea(
        "<AREA>" + edge(1, vectorElement("POSA", 1, 0, 0) + vectorElement("POSE", 2, 0, 0)) + "</AREA>");
    ASSERT_EQ(outline->getNumLines(), 1u);
    EXPECT_NE(dynamic_cast<VarnelStraight *>(outline->getLine(0)), nullptr);
    EXPECT_TRUE(outline->getLine(0)->getEndVec() == KzVector3D(2, 0, 0));
}

TEST_F(GeometryElements, OldEndsWinOverStartAndEnd) {
    const VarnelLine *line = readLine(vectorElement("START", 9, 9, 9) + vectorElement("POSA", 1, 0, 0) +
                                      vectorElement("END", 8, 8, 8));
    EXPECT_TRUE(line->getStartVec() == KzVector3D(1, 0, 0));
    EXPECT_TRUE(line->getEndVec() == KzVector3D(8, 8, 8));
    line = readLine("");
    EXPECT_TRUE(line->getStartVec() == KzVector3D());
    EXPECT_TRUE(line->getEndVec() == KzVector3D());
}

TEST_F(GeometryElements, WrittenArcComesBackAsItsChord) {
    const VarnelLine *line = readLine("<TYPE>CIRCLE</TYPE>" + quarter + vectorElement("START", 1, 0, 0) +
                                      vectorElement("END", 0, 1, 0));
    ASSERT_NE(dynamic_cast<const VarnelStraight *>(line), nullptr);
    EXPECT_TRUE(line->getStartVec() == KzVector3D(1, 0, 0));
    EXPECT_TRUE(line->getEndVec() == KzVector3D(0, 1, 0));
}

// Centre, start and end are handed over as start, end, centre: other producers of the format count on it.
TEST_F(GeometryElements, ForeignArcIsMadeOfStartEndAndCentreInThisOrder) {
    const VarnelLine *line =
        readLine("<LINE TYPE=\"CIRCLE\">" + vectorElement("START", 1, 0, 0) + vectorElement("END", 0, 1, 0) +
                 vectorElement("CENTER", 5, 5, 5) + "</LINE>");
    const auto *arc = dynamic_cast<const VarnelCircle *>(line);
    ASSERT_NE(arc, nullptr);
    EXPECT_TRUE(arc->getCenterVec() == KzVector3D(1, 0, 0));
    EXPECT_TRUE(arc->getStartVec() == KzVector3D(0, 1, 0));
    EXPECT_TRUE(arc->getEndVec() == KzVector3D(5, 5, 5));
}

TEST_F(GeometryElements, LineOfAnUnknownTypeIsNoneAndIsNotAddedToAnOutline) {
    EXPECT_EQ(readLine("<LINE TYPE=\"SPLINE\">" + vectorElement("START", 1, 0, 0) + "</LINE>"), nullptr);
    EXPECT_EQ(readLine("<LINE/>"), nullptr);
    const auto outline = readArea("<AREA>" + edge(1, "<LINE TYPE=\"SPLINE\"/>") +
                                  edge(2, lineElement(0, 0, 1, 0)) + "</AREA>");
    EXPECT_EQ(outline->getNumLines(), 1u);
    document.write();
}

TEST_F(GeometryElements, StationsAreWrittenFromZeroAndNotRead) {
    VarnelAreaPolygon polygon({KzVector3D(0, 0, 0), KzVector3D(4, 0, 0), KzVector3D(0, 3, 0)});
    for (const double xi : {0.0, 0.25, 0.5, 1.0}) polygon.getLine(0)->addXi(xi);
    ASSERT_EQ(polygon.getLine(0)->getNumberOfParts(), 3);
    const std::string text = written([&](VarnelExchangeXml &exchange) { exchange.updateArea(&polygon); });
    EXPECT_NE(text.find("<XIS><XI POS=\"0\" VAL=\"0\"></XI><XI POS=\"1\" VAL=\"0.25\"></XI>"
                        "<XI POS=\"2\" VAL=\"0.5\"></XI><XI POS=\"3\" VAL=\"1\"></XI></XIS>"),
              std::string::npos);
    const auto outline = readArea(text.substr(8, text.size() - 17));
    EXPECT_FALSE(outline->getLine(0)->hasXis());
}

TEST_F(GeometryElements, PolylineIsAListOfVectors) {
    std::istringstream stream("<E>" + vectorElement("P", 1, 2, 3) + vectorElement("Q", 4, 5, 6) + "</E>");
    KzXmlTree tree("E");
    tree.buildOfStream(stream);
    const std::unique_ptr<VarnelPolyline> polyline(document.exchange().getPolyline(tree.getRoot()));
    EXPECT_EQ(polyline->numberOfLines(), 1);
    EXPECT_TRUE(polyline->getVertex(1) == KzVector3D(4, 5, 6));
    const std::unique_ptr<VarnelPolyline> none(document.exchange().getPolyline(nullptr));
    EXPECT_EQ(none->numberOfLines(), 0);
}

class ListsOfPointsAndLines : public VarnelExchangeXml {
  public:
    ListsOfPointsAndLines() {
        setWritePoints(true);
        setWriteLines(true);
    }
};

TEST(PointAndLineLists, AreWrittenOnRequestAndAllLinesMeetInOneElement) {
    class Factory : public VarnelFactory {
        VarnelExchange *giveExchange() const override { return new ListsOfPointsAndLines; }
    } factory;
    VarnelManager manager(&factory);
    Varnel &model = *manager.getDatabase();
    model.add(new VarnelStraight(KzVector3D(0, 0, 0), KzVector3D(1, 0, 0)));
    model.add(new VarnelStraight(KzVector3D(5, 0, 0), KzVector3D(6, 0, 0)));
    model.givePoint(KzVector3D(1, 2, 3));
    model.givePoint(KzVector3D(4, 5, 6));
    model.add(static_cast<VarnelLine *>(nullptr));
    auto &exchange = static_cast<VarnelExchangeXml &>(*manager.getExchange());
    for (int i = 0; i < 2; ++i) {
        exchange.updateSystem(&manager);
        const KzXmlData *top = exchange.getTree()->getRoot()->findChild("SUBSYSTEM");
        EXPECT_EQ(textOf(top->findChild("POINTS")),
                  "<POINTS><POINT NUMBER=\"1\"></POINT><POINT NUMBER=\"2\"></POINT></POINTS>");
        EXPECT_EQ(textOf(top->findChild("LINES")),
                  "<LINES><LINE NUMBER=\"0\"><LINE TYPE=\"STRAIGHT\">" + vectorElement("START", 5, 0, 0) +
                      vectorElement("END", 6, 0, 0) + "</LINE></LINE></LINES>");
        for (const char *list : {"POINTS", "LINES"}) {  // gone in the second round
            top->findChild(list)->makeChild("OLD");
            top->findChild(list)->setAttribute("OLD", 1);
        }
    }
}

}  // namespace
