#include <gtest/gtest.h>

#include <limits>

#include "tests/support/Document.h"
#include "varnel/contracts/KzConcrete.h"
#include "varnel/contracts/KzMaterialHandler.h"
#include "varnel/contracts/KzMaterialManager.h"
#include "varnel/contracts/Tools/Error.h"
#include "varnel/geometry/VarnelAreaPolygon.h"
#include "varnel/geometry/VarnelAreaRectangle.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/members/VarnelAttributeArea.h"
#include "varnel/members/VarnelGap.h"
#include "varnel/members/VarnelGapControl.h"
#include "varnel/members/VarnelHole.h"
#include "varnel/members/VarnelLoadDistributionArea.h"
#include "varnel/members/VarnelRefinePolygon.h"

namespace {

constexpr int highest = std::numeric_limits<int>::max();

const std::string rectangle =
    "<RECTAN WIDTH=\"4\" HEIGHT=\"3\" ANGLE=\"0\">" + vectorElement("POS", 1, 2, 0) + "</RECTAN>";

std::string edge(int position, double x1, double y1, double x2, double y2) {
    return "<EDGE POS=\"" + std::to_string(position) + "\">" + lineElement(x1, y1, x2, y2) + "</EDGE>";
}

const std::string triangle =
    "<AREA>" + edge(1, 0, 0, 3, 0) + edge(2, 3, 0, 3, 3) + edge(3, 3, 3, 0, 0) + "</AREA>";

/// Outlines that a document may hold although nothing can be made of them.
const std::string oddOutlines[] = {
    "",
    "<AREA/>",
    "<AREA>" + edge(1, 0, 0, 3, 0) + "</AREA>",
    "<AREA><EDGE><LINE TYPE=\"ODD\"/></EDGE></AREA>",
    "<AREA><EDGE/><EDGE/></AREA>",
    "<AREA>" + edge(1, 0, 0, 3, 0) + edge(2, 7, 7, 8, 8) + "</AREA>",
    "<RECTAN/>",
    "<RECTAN WIDTH=\"0\" HEIGHT=\"nan\"><POS/></RECTAN>",
    "<RECTAN WIDTH=\"-1\" HEIGHT=\"inf\" ANGLE=\"1e300\"><POS/></RECTAN>",
    "<POLY/>",
    "<POLY><A/></POLY>",
    "<LINE/>",
};

class AreaObjectElements : public testing::Test {
  protected:
    Varnel &model() { return document.model(); }
    std::string writtenList(const char *name) {
        document.write();
        return textOf(document.find({"SUBSYSTEM", name}));
    }
    void readHoles(const std::string &content) { document.readSubSystem("<HOLES>" + content + "</HOLES>"); }
    void readAttributes(const std::string &content) {
        document.readSubSystem("<ATTRIBUTES>" + content + "</ATTRIBUTES>");
    }
    std::vector<int> attributeNumbers() {
        std::vector<int> numbers;
        for (const VarnelAttributeArea *area : model().getAttributeAreas())
            numbers.push_back(area->getNumber());
        return numbers;
    }

    Document document;
};

TEST_F(AreaObjectElements, HoleIsWrittenInOrder) {
    VarnelHole *hole = model().giveHole();
    hole->setName("stairs");
    hole->setLoadDistribution(true);
    hole->setArea(new VarnelAreaRectangle(KzVector3D(1, 2, 0), 4, 3, 0));
    model().add(hole);
    EXPECT_EQ(writtenList("HOLES"),
              "<HOLES><HOLE NUMBER=\"1\" NAME=\"stairs\" DISTLOAD=\"1\">" + rectangle + "</HOLE></HOLES>");
}

TEST_F(AreaObjectElements, HoleIsRead) {
    readHoles("<HOLE NUMBER=\"7\" NAME=\"stairs\" DISTLOAD=\"1\">" + triangle + "</HOLE>");
    ASSERT_EQ(model().getNumberOfHoles(), 1);
    const VarnelHole *hole = model().getHoles().front();
    EXPECT_EQ(hole->getNumber(), 7);
    EXPECT_EQ(hole->getName(), "stairs");
    EXPECT_TRUE(hole->getLoadDistribution());
    ASSERT_NE(hole->getGeo(), nullptr);
    EXPECT_EQ(hole->getGeo()->getNumLines(), 3u);
    EXPECT_DOUBLE_EQ(hole->getGeo()->getArea(), 4.5);
    EXPECT_TRUE(document.manager.systemChanged());
}

TEST_F(AreaObjectElements, MissingItemsOfAHoleLeaveItsDefaults) {
    readHoles("<HOLE/>");
    ASSERT_EQ(model().getNumberOfHoles(), 1);
    const VarnelHole *hole = model().getHoles().front();
    EXPECT_EQ(hole->getNumber(), -1);
    EXPECT_EQ(hole->getName(), "");
    EXPECT_FALSE(hole->getLoadDistribution());
    EXPECT_EQ(hole->getGeo(), nullptr);
    EXPECT_EQ(writtenList("HOLES"), "<HOLES><HOLE NUMBER=\"1\" NAME=\"\" DISTLOAD=\"0\"></HOLE></HOLES>");
}

TEST_F(AreaObjectElements, AnyNumberButZeroDistributesLoads) {
    readHoles("<HOLE DISTLOAD=\"2\"/><HOLE DISTLOAD=\"-1\"/><HOLE DISTLOAD=\"0\"/><HOLE DISTLOAD=\"yes\"/>");
    std::vector<bool> distributed;
    for (const VarnelHole *hole : model().getHoles()) distributed.push_back(hole->getLoadDistribution());
    EXPECT_EQ(distributed, (std::vector<bool>{true, true, false, false}));
}

TEST_F(AreaObjectElements, EveryFormOfOutlineMakesAHole) {
    readHoles("<HOLE>" + rectangle + "</HOLE><ANY>" + triangle + "</ANY><HOLE><POLY>" +
              vectorElement("P", 0, 0, 0) + vectorElement("P", 2, 0, 0) + vectorElement("P", 2, 2, 0) +
              "</POLY></HOLE>");
    std::vector<double> areas;
    for (const VarnelHole *hole : model().getHoles()) areas.push_back(hole->getGeo()->getArea());
    EXPECT_EQ(areas, (std::vector<double>{12.0, 4.5, 2.0}));
}

TEST_F(AreaObjectElements, OddOutlinesAreHarmless) {
    std::string holes, attributes, fields, polygons, gaps;
    for (const std::string &outline : oddOutlines) {
        holes += "<HOLE>" + outline + "</HOLE>";
        attributes += "<ATTRIBUTE>" + outline + "</ATTRIBUTE>";
        fields += "<LDAREA>" + outline + "</LDAREA>";
        polygons += "<REFINE>" + outline + "</REFINE>";
        gaps += "<GAP>" + outline + "</GAP>";
    }
    document.readSubSystem("<HOLES>" + holes + "</HOLES><ATTRIBUTES>" + attributes +
                           "</ATTRIBUTES><LDAREAS>" + fields + "</LDAREAS><REFINEPOLYS>" + polygons +
                           "</REFINEPOLYS><GAPS>" + gaps + "</GAPS>");
    EXPECT_EQ(model().getHoles().size(), std::size(oddOutlines));
    EXPECT_EQ(model().getLoadDistributionAreas().size(), std::size(oddOutlines));
    EXPECT_EQ(model().getRefinePolygons().size(), std::size(oddOutlines));
    KzVector3D low, high;
    model().getMinMax(&low, &high);
    document.write();
    const std::string text = document.write();
    EXPECT_EQ(document.write(), text);
    Document other;
    other.read(text);
    EXPECT_EQ(other.model().getHoles().size(), std::size(oddOutlines));
    other.write();
}

TEST_F(AreaObjectElements, MissingObjectsInTheListsAreSkipped) {
    model().add(static_cast<VarnelHole *>(nullptr));
    model().add(static_cast<VarnelAttributeArea *>(nullptr));
    model().add(static_cast<VarnelLoadDistributionArea *>(nullptr));
    for (const char *list : {"HOLES", "ATTRIBUTES", "LDAREAS"})
        EXPECT_EQ(writtenList(list), std::string("<") + list + "></" + list + ">");
}

TEST_F(AreaObjectElements, ListsOfAreasAreRebuilt) {
    readHoles("<HOLE/><HOLE/>");
    for (const char *list : {"HOLES", "ATTRIBUTES", "LDAREAS"}) {
        document.write();
        KzXmlData *element = document.find({"SUBSYSTEM", list});
        ASSERT_NE(element, nullptr);
        element->setAttribute("OLD", 1);
        element->makeChild("OLD");
    }
    model().removeAll();
    for (const char *list : {"HOLES", "ATTRIBUTES", "LDAREAS"})
        EXPECT_EQ(writtenList(list), std::string("<") + list + "></" + list + ">");
}

TEST_F(AreaObjectElements, HostAddsToAHoleThroughTheVirtualOperations) {
    class Own : public VarnelExchangeXml {
      public:
        void updateOneHole(Varnel *model, VarnelHole *hole) override {
            VarnelExchangeXml::updateOneHole(model, hole);
            if (model) setAttribute("OWN", 5);
        }
        VarnelHole *createOneHole(KzXmlData *element, Varnel *model) override {
            VarnelHole *hole = VarnelExchangeXml::createOneHole(element, model);
            hole->setName("read " + hole->getName());
            return hole;
        }
    } exchange;
    std::istringstream stream("<VARNEL><SUBSYSTEM><HOLES><HOLE NAME=\"a\"/></HOLES></SUBSYSTEM></VARNEL>");
    exchange.getTree()->buildOfStream(stream);
    exchange.get(&document.manager);
    exchange.updateSystem(&document.manager);
    EXPECT_EQ(textOf(exchange.getTree()->getRoot()->findChild("SUBSYSTEM")->findChild("HOLES")),
              "<HOLES><HOLE NUMBER=\"-1\" NAME=\"read a\" DISTLOAD=\"0\" OWN=\"5\"></HOLE></HOLES>");
}

TEST_F(AreaObjectElements, AttributeAreaIsWrittenInOrder) {
    VarnelAttributeArea *concrete = model().giveAttributeArea();
    concrete->setArea(new VarnelAreaRectangle(KzVector3D(1, 2, 0), 4, 3, 0));
    concrete->setMaterial(KzMaterialHandler::get()->findMaterialToName("C20/25", 0), 0);
    concrete->setMeshSize(0.25);  // has no place in the document, nor have name and thickness
    concrete->setName("gone");
    concrete->setThickness(0.5);
    VarnelAttributeArea *timber = model().giveAttributeArea();
    timber->setArea(new VarnelAreaRectangle(KzVector3D(1, 2, 0), 4, 3, 0));
    timber->setMaterial(KzMaterialHandler::get()->findMaterialToName("C24", 0), 0);
    model().giveAttributeArea()->setNumber(9);
    EXPECT_EQ(writtenList("ATTRIBUTES"),
              "<ATTRIBUTES><ATTRIBUTE NUMBER=\"1\">" + rectangle +
                  "<CONCRETE>C20/25</CONCRETE></ATTRIBUTE><ATTRIBUTE NUMBER=\"2\">" + rectangle +
                  "<MATERIAL>C24</MATERIAL></ATTRIBUTE><ATTRIBUTE NUMBER=\"9\"></ATTRIBUTE></ATTRIBUTES>");
}

TEST_F(AreaObjectElements, AttributeAreaIsRead) {
    document.read(
        "<VARNEL><MATERIALS><MATERIAL NAME=\"M\" KIND=\"CONCRETE\"/><MATERIAL NAME=\"N\"/></MATERIALS>"
        "<SUBSYSTEM><ATTRIBUTES><ATTRIBUTE NUMBER=\"4\" MESHSIZE=\"0.125\">" +
        triangle + "<CONCRETE>M</CONCRETE></ATTRIBUTE><ANY>" + rectangle +
        "<MATERIAL>N</MATERIAL></ANY></ATTRIBUTES></SUBSYSTEM></VARNEL>");
    ASSERT_EQ(attributeNumbers(), (std::vector<int>{4, 5}));
    const VarnelAttributeArea *first = model().getAttributeAreas().front();
    EXPECT_DOUBLE_EQ(first->getMeshSize(), 0.125);
    EXPECT_DOUBLE_EQ(first->getGeo()->getArea(), 4.5);
    EXPECT_EQ(first->getMaterial(0), document.manager.getMaterialManager()->findConcreteToName("M", 0));
    ASSERT_NE(first->getMaterial(0), nullptr);
    const VarnelAttributeArea *second = model().getAttributeAreas().back();
    EXPECT_DOUBLE_EQ(second->getMeshSize(), 0.5);
    EXPECT_DOUBLE_EQ(second->getGeo()->getArea(), 12.0);
    EXPECT_EQ(second->getMaterial(0)->getName(), "N");
}

TEST_F(AreaObjectElements, OldMeshSizeOfAnAttributeAreaIsLostOnWriting) {
    readAttributes("<ATTRIBUTE MESHSIZE=\"0.125\">" + rectangle + "</ATTRIBUTE>");
    EXPECT_EQ(writtenList("ATTRIBUTES"),
              "<ATTRIBUTES><ATTRIBUTE NUMBER=\"1\">" + rectangle + "</ATTRIBUTE></ATTRIBUTES>");
}

TEST_F(AreaObjectElements, OutlineAsAreaWinsOverTheRectangleAndOldPolygonsAreNotRead) {
    readAttributes("<ATTRIBUTE>" + rectangle + triangle + "</ATTRIBUTE><ATTRIBUTE><POLY>" +
                   vectorElement("P", 0, 0, 0) + vectorElement("P", 2, 0, 0) + vectorElement("P", 2, 2, 0) +
                   "</POLY></ATTRIBUTE>");
    ASSERT_EQ(model().getAttributeAreas().size(), 1u);
    EXPECT_DOUBLE_EQ(model().getAttributeAreas().front()->getGeo()->getArea(), 4.5);
}

TEST_F(AreaObjectElements, AttributeAreaWithoutAnOutlineIsNotAdded) {
    readAttributes("<ATTRIBUTE NUMBER=\"4\"/><ATTRIBUTE NUMBER=\"5\"><RECTAN/></ATTRIBUTE>");
    EXPECT_TRUE(model().getAttributeAreas().empty());
}

TEST_F(AreaObjectElements, NumberOfAnAttributeAreaIsTheGivenOneOrTheNext) {
    const auto area = [](const std::string &number) {
        return "<ATTRIBUTE" + (number.empty() ? number : " NUMBER=\"" + number + "\"") + ">" + rectangle +
               "</ATTRIBUTE>";
    };
    readAttributes(area("5") + area("") + area("0") + area("-3") + area("2") + area("x") + area("7.9") +
                   area("40") + area("-2147483648") + area(""));
    EXPECT_EQ(attributeNumbers(), (std::vector<int>{5, 6, 7, 8, 2, 9, 40, 41, 42}));
}

TEST_F(AreaObjectElements, NumbersOfAttributeAreasSaturate) {
    readAttributes("<ATTRIBUTE NUMBER=\"2147483647\">" + rectangle + "</ATTRIBUTE><ATTRIBUTE>" + rectangle +
                   "</ATTRIBUTE>");
    EXPECT_EQ(attributeNumbers(), (std::vector<int>{highest, highest}));
}

TEST_F(AreaObjectElements, KnownNumberFillsTheAreaAgain) {
    VarnelAttributeArea *known = model().giveAttributeArea();
    known->setNumber(3);
    readAttributes("<ATTRIBUTE NUMBER=\"3\">" + triangle +
                   "</ATTRIBUTE><ATTRIBUTE NUMBER=\"3\" "
                   "MESHSIZE=\"2\">" +
                   rectangle + "</ATTRIBUTE><ATTRIBUTE NUMBER=\"3\"/>");
    ASSERT_EQ(model().getAttributeAreas().size(), 1u);
    EXPECT_EQ(model().getAttributeAreas().front(), known);
    EXPECT_DOUBLE_EQ(known->getGeo()->getArea(), 12.0);  // the replaced outline is freed
    EXPECT_DOUBLE_EQ(known->getMeshSize(), 2.0);
}

TEST_F(AreaObjectElements, ManyAttributeAreasAreNumberedInTheirOrder) {
    std::string content;
    std::vector<int> expected;
    for (int i = 1; i <= 500; ++i) {
        content += "<ATTRIBUTE>" + rectangle + "</ATTRIBUTE>";
        expected.push_back(i);
    }
    readAttributes(content);
    EXPECT_EQ(attributeNumbers(), expected);
}

// The reader of attribute areas knows the project's materials only, unlike that of plates.
TEST_F(AreaObjectElements, StockMaterialOfAnAttributeAreaIsUnknown) {
    for (const char *material : {"<CONCRETE>C20/25</CONCRETE>", "<MATERIAL>C24</MATERIAL>", "<MATERIAL/>"}) {
        for (const std::string &outline : {rectangle, std::string()}) {
            SCOPED_TRACE(material + outline);
            const std::size_t before = model().getAttributeAreas().size();
            try {
                readAttributes("<ATTRIBUTE>" + outline + material + "</ATTRIBUTE><ATTRIBUTE>" + rectangle +
                               "</ATTRIBUTE>");
                FAIL() << "no error";
            } catch (const Tools::Error &error) {
                EXPECT_STREQ(error.what(), "material not found");
            }
            // With an outline the area has joined the model already, without one it is gone.
            EXPECT_EQ(model().getAttributeAreas().size(), before + (outline.empty() ? 0 : 1));
        }
    }
}

TEST_F(AreaObjectElements, ConcreteOfAnAttributeAreaMustBeOne) {
    document.manager.getMaterialManager()->add(new KzMaterial("M", 1.0, 2.0));
    EXPECT_THROW(readAttributes("<ATTRIBUTE>" + rectangle + "<CONCRETE>M</CONCRETE></ATTRIBUTE>"),
                 Tools::Error);
    readAttributes("<ATTRIBUTE>" + rectangle + "<MATERIAL>M</MATERIAL></ATTRIBUTE>");
    EXPECT_EQ(model().getAttributeAreas().back()->getMaterial(0)->getName(), "M");
}

TEST_F(AreaObjectElements, ConcreteGoesBeforeTheMaterial) {
    document.manager.getMaterialManager()->add(new KzMaterial("M", 1.0, 2.0));
    document.manager.getMaterialManager()->add(new KzConcrete("C", 1.0, 2.0));
    readAttributes("<ATTRIBUTE>" + rectangle + "<MATERIAL>M</MATERIAL><CONCRETE>C</CONCRETE></ATTRIBUTE>");
    EXPECT_EQ(model().getAttributeAreas().front()->getMaterial(0)->getName(), "C");
}

TEST_F(AreaObjectElements, AttributeAreaWithAStockMaterialSurvivesARoundTrip) {
    VarnelAttributeArea *area = model().giveAttributeArea();
    area->setArea(new VarnelAreaRectangle(KzVector3D(1, 2, 0), 4, 3, 0));
    area->setMaterial(KzMaterialHandler::get()->findMaterialToName("C20/25", 0), 0);
    Document other;
    other.read(document.write());
    ASSERT_EQ(other.model().getAttributeAreas().size(), 1u);
    EXPECT_EQ(other.model().getAttributeAreas().front()->getMaterial(0)->getName(), "C20/25");
}

TEST_F(AreaObjectElements, LoadDistributionAreaIsWrittenInOrder) {
    VarnelLoadDistributionArea *area = model().giveLoadDistributionArea();
    area->setName("field");
    area->setArea(new VarnelAreaRectangle(KzVector3D(1, 2, 0), 4, 3, 0));
    model().add(area);
    EXPECT_EQ(writtenList("LDAREAS"),
              "<LDAREAS><LDAREA NUMBER=\"1\" NAME=\"field\">" + rectangle + "</LDAREA></LDAREAS>");
}

TEST_F(AreaObjectElements, LoadDistributionAreasAreReadWithoutTheirNumber) {
    const int unset = VarnelLoadDistributionArea().getNumber();
    document.readSubSystem("<LDAREAS><LDAREA NUMBER=\"7\" NAME=\"a\">" + triangle +
                           "</LDAREA><ANY NAME=\"b\"/><LDAREA/></LDAREAS>");
    ASSERT_EQ(model().getLoadDistributionAreas().size(), 2u);  // children of another name are passed over
    const VarnelLoadDistributionArea *area = model().getLoadDistributionAreas().front();
    EXPECT_EQ(area->getNumber(), unset);
    EXPECT_EQ(area->getName(), "a");
    EXPECT_DOUBLE_EQ(area->getGeo()->getArea(), 4.5);
    EXPECT_EQ(model().getLoadDistributionAreas().back()->getName(), "");
    EXPECT_EQ(model().getLoadDistributionAreas().back()->getGeo(), nullptr);
}

TEST_F(AreaObjectElements, RefinePolygonsAreRead) {
    document.readSubSystem("<REFINEPOLYS><A NUMBER=\"7\">" + triangle + "</A><B>" + rectangle +
                           "</B></REFINEPOLYS>");
    ASSERT_EQ(model().getRefinePolygons().size(), 2u);
    const VarnelRefinePolygon *first = model().getRefinePolygons().front();
    EXPECT_EQ(first->getNumber(), 7);
    EXPECT_EQ(first->getRefineLevel(), 1);
    ASSERT_NE(first->getArea(), nullptr);
    EXPECT_DOUBLE_EQ(first->getArea()->getArea(), 4.5);
    const VarnelRefinePolygon *second = model().getRefinePolygons().back();
    EXPECT_EQ(second->getNumber(), 0);
    EXPECT_EQ(second->getArea(), nullptr);  // only "AREA" counts
}

// No writer touches it: what stands there stays, and what the model has besides is lost.
TEST_F(AreaObjectElements, RefinePolygonsStayInTheDocumentAsRead) {
    const std::string list = "<REFINEPOLYS><A NUMBER=\"7\">" + triangle + "</A></REFINEPOLYS>";
    document.readSubSystem(list);
    model().getRefinePolygons().front()->setNumber(8);
    EXPECT_EQ(writtenList("REFINEPOLYS"), list);
    Document other;
    other.model().add(new VarnelRefinePolygon);
    other.write();
    EXPECT_EQ(other.find({"SUBSYSTEM", "REFINEPOLYS"}), nullptr);
}

TEST_F(AreaObjectElements, GapIsRead) {
    document.readSubSystem("<GAPS><ANY THICK=\"0.02\">" + triangle + "</ANY><GAP THICK=\"1\"/><GAP>" +
                           rectangle + "</GAP></GAPS>");
    ASSERT_EQ(model().getGaps().size(), 1u);  // without "AREA" there is no gap
    const VarnelGap *gap = model().getGaps().front();
    EXPECT_DOUBLE_EQ(gap->getControl()->getThick(), 0.02);
    EXPECT_EQ(gap->numberOfLines(), 3u);
    EXPECT_TRUE(document.manager.systemChanged());
}

TEST_F(AreaObjectElements, GapWithoutAWidthKeepsItsDefault) {
    document.readSubSystem("<GAPS><GAP>" + triangle + "</GAP></GAPS>");
    EXPECT_DOUBLE_EQ(model().getGaps().front()->getControl()->getThick(), 0.01);
}

// It looks like a mistake and is not: gaps of a list are parts of one line.
TEST_F(AreaObjectElements, OnePolygonServesAllGapsAndGrows) {
    document.readSubSystem("<GAPS><GAP THICK=\"1\">" + triangle + "</GAP><GAP THICK=\"2\">" + triangle +
                           "</GAP><GAP><AREA/></GAP></GAPS>");
    ASSERT_EQ(model().getGaps().size(), 3u);
    const VarnelGap *first = model().getGaps().front();
    const VarnelGap *last = model().getGaps().back();
    EXPECT_EQ(first->getPolyline(), last->getPolyline());
    EXPECT_NE(first->getControl(), last->getControl());
    EXPECT_EQ(first->numberOfLines(), 6u);
    VarnelGap *gap = model().getGaps().front();
    model().remove(gap);
    delete gap;
    EXPECT_EQ(last->numberOfLines(), 6u);  // the others keep it alive
}

TEST_F(AreaObjectElements, GapsAreNeverWrittenAndStayInTheDocumentAsRead) {
    const std::string list = "<GAPS><GAP THICK=\"0.02\">" + triangle + "</GAP></GAPS>";
    document.readSubSystem(list);
    model().getGaps().front()->getControl()->setThick(0.5);
    EXPECT_EQ(writtenList("GAPS"), list);
    Document other;
    other.model().giveGap();
    other.write();
    EXPECT_EQ(textOf(other.find({"SUBSYSTEM", "GAPS"})), "<GAPS></GAPS>");
}

TEST_F(AreaObjectElements, ListsAreFoundOnlyDirectlyBelowTheSubSystem) {
    document.readSubSystem("<A><HOLES><HOLE/></HOLES><ATTRIBUTES><B>" + rectangle +
                           "</B></ATTRIBUTES><LDAREAS><LDAREA/></LDAREAS><REFINEPOLYS><B/></REFINEPOLYS>"
                           "<GAPS><B>" +
                           triangle + "</B></GAPS></A>");
    EXPECT_TRUE(model().getHoles().empty());
    EXPECT_TRUE(model().getAttributeAreas().empty());
    EXPECT_TRUE(model().getLoadDistributionAreas().empty());
    EXPECT_TRUE(model().getRefinePolygons().empty());
    EXPECT_TRUE(model().getGaps().empty());
}

TEST_F(AreaObjectElements, ReadingTwiceDoublesHolesAndFieldsButNotAttributeAreas) {
    const std::string content = "<HOLES><HOLE NUMBER=\"1\">" + rectangle +
                                "</HOLE></HOLES><LDAREAS><LDAREA/></LDAREAS><ATTRIBUTES><A NUMBER=\"1\">" +
                                rectangle + "</A></ATTRIBUTES>";
    document.readSubSystem(content);
    document.readSubSystem(content);
    EXPECT_EQ(model().getHoles().size(), 2u);
    EXPECT_EQ(model().getLoadDistributionAreas().size(), 2u);
    EXPECT_EQ(model().getAttributeAreas().size(), 1u);
}

}  // namespace
