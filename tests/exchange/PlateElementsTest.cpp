#include <gtest/gtest.h>

#include "tests/support/Document.h"
#include "tests/support/RecordingServices.h"
#include "varnel/contracts/Found/Foundation.h"
#include "varnel/contracts/Found/FoundationManager.h"
#include "varnel/contracts/KzConcrete.h"
#include "varnel/contracts/KzMaterialHandler.h"
#include "varnel/contracts/KzMaterialManager.h"
#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/contracts/Tools/Error.h"
#include "varnel/geometry/VarnelAreaPolygon.h"
#include "varnel/geometry/VarnelAreaRectangle.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/members/VarnelDesignData.h"
#include "varnel/members/VarnelLineBoundaryData.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPlateEdgeData.h"
#include "varnel/members/VarnelPlateProperties.h"

namespace {

const std::string square =
    "<RECTAN WIDTH=\"4\" HEIGHT=\"3\" ANGLE=\"0\">" + vectorElement("POS", 0, 0, 0) + "</RECTAN>";

class PlateElements : public testing::Test {
  protected:
    /// The plate with these attributes and this content.
    VarnelPlate *readPlate(const std::string &attributes, const std::string &content = "") {
        document.readSubSystem("<PLATES><PLATE " + attributes + ">" + content + "</PLATE></PLATES>");
        return document.model().getPlates().back();
    }
    VarnelPlate *addSquare() {
        VarnelPlate *plate = document.model().givePlate(true);
        plate->setArea(new VarnelAreaRectangle(KzVector3D(0, 0, 0), 4, 3, 0));
        return plate;
    }
    KzXmlData *written() {
        document.write();
        return document.find({"SUBSYSTEM", "PLATES", "PLATE"});
    }

    Document document;
};

TEST_F(PlateElements, DefaultPlateIsWrittenInFull) {
    addSquare()->setName("A");
    EXPECT_EQ(textOf(written()),
              "<PLATE NUMBER=\"1\" NAME=\"A\" TYPE=\"0\" MESH=\"2\" PTYPE=\"0\" AUTOMESH=\"1\" "
              "MESHSIZE-X=\"0.5\" MESHSIZE-Y=\"0.5\" MESHANGLE=\"120\" THICK=\"0.2\">" +
                  square +
                  "<BOUNDS><EDGE POS=\"0\" NUMPARTS=\"0\"></EDGE><EDGE POS=\"1\" NUMPARTS=\"0\"></EDGE>"
                  "<EDGE POS=\"2\" NUMPARTS=\"0\"></EDGE><EDGE POS=\"3\" NUMPARTS=\"0\"></EDGE></BOUNDS>"
                  "<AREALOADS></AREALOADS></PLATE>");
}

TEST_F(PlateElements, MissingItemsLeaveTheDefaults) {
    const VarnelPlate *plate = readPlate("");
    EXPECT_EQ(plate->getNumber(), 1);
    EXPECT_EQ(plate->getName(), "Platte 1");
    EXPECT_DOUBLE_EQ(plate->getData().getThick(), 0.2);
    EXPECT_DOUBLE_EQ(plate->getData().getMeshSizeX(), 0.5);
    EXPECT_DOUBLE_EQ(plate->getData().getMeshSizeY(), 0.5);
    EXPECT_DOUBLE_EQ(plate->getData().getMeshAngle(), 120.0);
    EXPECT_EQ(plate->getData().getElementType(), 0);
    EXPECT_EQ(plate->getData().getMeshType(), 2);
    EXPECT_EQ(plate->getPlateType(), 0);
    EXPECT_TRUE(plate->getData().getAutoMeshSize());
    EXPECT_EQ(plate->getMaterial(0), nullptr);
    EXPECT_EQ(plate->getGeo(), nullptr);
    ASSERT_NE(plate->getDesign(), nullptr);
    EXPECT_TRUE(*plate->getDesign() == VarnelDesignData());
    EXPECT_EQ(document.model().getDesignParameters().size(), 1u);
}

TEST_F(PlateElements, AllAttributesAreRead) {
    const VarnelPlate *plate = readPlate(
        "NUMBER=\"7\" NAME=\"roof\" TYPE=\"3\" MESH=\"4\" PTYPE=\"5\" AUTOMESH=\"0\" MESHSIZE-X=\"0.25\" "
        "MESHSIZE-Y=\"0.75\" MESHANGLE=\"60\" THICK=\"0.3\"");
    EXPECT_EQ(plate->getNumber(), 7);
    EXPECT_EQ(plate->getName(), "roof");
    EXPECT_EQ(plate->getData().getElementType(), 3);
    EXPECT_EQ(plate->getData().getMeshType(), 4);
    EXPECT_EQ(plate->getPlateType(), 5);
    EXPECT_FALSE(plate->getData().getAutoMeshSize());
    EXPECT_DOUBLE_EQ(plate->getData().getMeshSizeX(), 0.25);
    EXPECT_DOUBLE_EQ(plate->getData().getMeshSizeY(), 0.75);
    EXPECT_DOUBLE_EQ(plate->getData().getMeshAngle(), 60.0);
    EXPECT_DOUBLE_EQ(plate->getData().getThick(), 0.3);
}

TEST_F(PlateElements, OldMeshSizeServesBothDirections) {
    const VarnelPlate *both = readPlate("MESHSIZE=\"0.3\"");
    EXPECT_DOUBLE_EQ(both->getData().getMeshSizeX(), 0.3);
    EXPECT_DOUBLE_EQ(both->getData().getMeshSizeY(), 0.3);
    const VarnelPlate *one = readPlate("MESHSIZE=\"0.3\" MESHSIZE-Y=\"0.7\"");
    EXPECT_DOUBLE_EQ(one->getData().getMeshSizeX(), 0.3);
    EXPECT_DOUBLE_EQ(one->getData().getMeshSizeY(), 0.7);
}

TEST_F(PlateElements, AnyNumberButZeroIsAnAutomaticMesh) {
    EXPECT_TRUE(readPlate("AUTOMESH=\"2\"")->getData().getAutoMeshSize());
    EXPECT_FALSE(readPlate("AUTOMESH=\"x\"")->getData().getAutoMeshSize());
}

TEST_F(PlateElements, ConcreteIsFoundInTheProjectBeforeTheStock) {
    EXPECT_EQ(readPlate("", "<CONCRETE>C25/30</CONCRETE>")->getMaterial(0),
              KzMaterialHandler::get()->findConcreteToName("C25/30", 0));
    auto *own = new KzConcrete("C25/30", 2400.0, 24.0);
    document.manager.getMaterialManager()->add(own);
    EXPECT_EQ(readPlate("", "<CONCRETE>C25/30</CONCRETE>")->getMaterial(0), own);
    EXPECT_EQ(readPlate("", "<MATERIAL>S235</MATERIAL>")->getMaterial(0),
              KzMaterialHandler::get()->findMaterialToName("S235", 0));
}

TEST_F(PlateElements, ChildForTheConcreteIsReadBeforeThatForTheMaterial) {
    auto *own = new KzMaterial("S235", 1.0, 2.0);
    document.manager.getMaterialManager()->add(own);
    EXPECT_EQ(readPlate("", "<MATERIAL>S235</MATERIAL>")->getMaterial(0), own);
    EXPECT_EQ(readPlate("", "<MATERIAL>S235</MATERIAL><CONCRETE>C25/30</CONCRETE>")->getMaterial(0),
              KzMaterialHandler::get()->findConcreteToName("C25/30", 0));
    // A material that is no concrete is none, and the other child does not stand in for it.
    EXPECT_THROW(readPlate("", "<CONCRETE>S235</CONCRETE><MATERIAL>S235</MATERIAL>"), Tools::Error);
}

TEST_F(PlateElements, UnknownMaterialEndsTheReadingWithAnError) {
    for (const char *content : {"<CONCRETE>C1/1</CONCRETE>", "<MATERIAL>mud</MATERIAL>", "<CONCRETE/>"}) {
        SCOPED_TRACE(content);
        try {
            readPlate("NUMBER=\"3\"", content);
            FAIL() << "no error";
        } catch (const Tools::Error &error) {
            EXPECT_STREQ(error.what(), "material not found");
        }
    }
    EXPECT_EQ(document.model().getNumberOfPlates(), 3);  // what was read by then stays
}

TEST_F(PlateElements, ConcreteGoesBeforeTheMaterial) {
    VarnelPlate *plate = addSquare();
    plate->setMaterial(KzMaterialHandler::get()->findConcreteToName("C20/25", 0), 0);
    const KzXmlData *element = written();
    ASSERT_NE(element->findChild("CONCRETE"), nullptr);
    EXPECT_EQ(element->findChild("CONCRETE")->getData(), "C20/25");
    EXPECT_EQ(element->findChild("MATERIAL"), nullptr);
    plate->setMaterial(KzMaterialHandler::get()->findMaterialToName("C24", 0), 0);
    element = written();
    EXPECT_EQ(element->findChild("CONCRETE"), nullptr);
    EXPECT_EQ(element->findChild("MATERIAL")->getData(), "C24");
}

TEST_F(PlateElements, FoundationNumberWinsOverTheVector) {
    Found::Foundation *known = document.manager.giveFoundation(nullptr, KzVector3D(0, 0, 7));
    const std::string vector = vectorElement("FOUND", 0, 0, 5);
    EXPECT_EQ(readPlate("FOUND=\"" + std::to_string(known->getNumber()) + "\"", vector)->getFoundation(),
              known);
    EXPECT_EQ(readPlate("FOUND=\"99\"", vector)->getFoundation(), nullptr);
    const Found::Foundation *made = readPlate("", vector)->getFoundation();
    ASSERT_NE(made, nullptr);
    EXPECT_NE(made, known);
    EXPECT_EQ(readPlate("", vectorElement("FOUND", 0, 0, 7))->getFoundation(), known);
    EXPECT_EQ(readPlate("", vectorElement("FOUND", 0, 0, 0))->getFoundation(), nullptr);
    EXPECT_EQ(document.manager.getFoundationManager()->getFoundations().size(), 2u);
}

TEST_F(PlateElements, FoundationIsWrittenAsItsNumberAfterTheOtherAttributes) {
    addSquare()->setFoundation(document.manager.giveFoundation(nullptr, KzVector3D(0, 0, 7)));
    const KzXmlData *element = written();
    ASSERT_NE(element->findAttribute("FOUND"), nullptr);
    EXPECT_EQ(element->findAttribute("FOUND")->getInteger(), 1);
    EXPECT_EQ(element->getAttributes().back()->getKey(), "FOUND");
}

TEST_F(PlateElements, EdgeWithABoundaryIsWrittenInOrder) {
    VarnelPlate *plate = addSquare();
    plate->setBoundary(1, 4, {1, 2, 3, 4, 5, 6}, "W");
    plate->setEdgeJoint(1, 9);
    plate->getBoundary(1)->setWidth(0.24);
    plate->getBoundary(1)->setLocal(true);
    plate->getGeo()->setNumParts(1, 8);
    const KzXmlData *edge = written()->findChild("BOUNDS")->getChildren().at(1);
    EXPECT_EQ(textOf(edge),
              "<EDGE POS=\"1\" NUMPARTS=\"8\" NAME=\"W\" NUMBER=\"1\" DOF=\"4\" LOCAL=\"1\" WIDTH=\"0.24\" "
              "JDOF=\"9\">" +
                  vectorElement("STIFFD", 1, 2, 3) + vectorElement("STIFFR", 4, 5, 6) +
                  "<OWNWEIGHT TRANSFER=\"0\" SPECIFICWEIGHT=\"25\" HEIGHT=\"3\"></OWNWEIGHT></EDGE>");
}

TEST_F(PlateElements, EdgeWithoutABoundaryHasOnlyItsPlaceAndParts) {
    VarnelPlate *plate = addSquare();
    plate->setEdgeJoint(2, 5);  // a joint alone is not written
    const KzXmlData *edge = written()->findChild("BOUNDS")->getChildren().at(2);
    EXPECT_EQ(textOf(edge), "<EDGE POS=\"2\" NUMPARTS=\"0\"></EDGE>");
}

TEST_F(PlateElements, EdgesAreRead) {
    const VarnelPlate *plate = readPlate(
        "", square +
                "<BOUNDS><ANY POS=\"2\" DOF=\"4\" JDOF=\"3\" LOCAL=\"2\" WIDTH=\"0.3\" NUMPARTS=\"6\" "
                "NAME=\"north\" NUMBER=\"11\">" +
                vectorElement("STIFFR", 0, 0, 5) + vectorElement("LOCSYS", 0, 2, 0) +
                "<OWNWEIGHT TRANSFER=\"1\" SPECIFICWEIGHT=\"18\" HEIGHT=\"2.5\"/></ANY></BOUNDS>");
    const VarnelLineBoundaryData *boundary = plate->getBoundary(2);
    ASSERT_NE(boundary, nullptr);
    EXPECT_EQ(boundary->getDof(), 4);
    EXPECT_TRUE(boundary->getLocal());
    EXPECT_DOUBLE_EQ(boundary->getWidth(), 0.3);
    EXPECT_EQ(boundary->getName(), "north");
    EXPECT_EQ(boundary->getNumber(), 11);
    EXPECT_EQ(boundary->getStiffness(), (std::vector<double>{0, 0, 0, 0, 0, 5}));
    EXPECT_TRUE(boundary->getLocsys() == KzVector3D(0, 1, 0));
    EXPECT_TRUE(boundary->doTransferOwnWeight());
    EXPECT_DOUBLE_EQ(boundary->getSpecificWeight(), 18.0);
    EXPECT_DOUBLE_EQ(boundary->getHeight(), 2.5);
    EXPECT_EQ(plate->getEdgeData(2)->getJoint(), 3);
    EXPECT_EQ(plate->getGeo()->getLine(2)->getNumberOfParts(), 6);
    EXPECT_EQ(document.model().findLineBoundaryToName("north"), boundary);
}

TEST_F(PlateElements, MissingItemsOfAnEdgeLeaveTheirDefaults) {
    const VarnelPlate *plate = readPlate("", square + "<BOUNDS><EDGE POS=\"0\"/></BOUNDS>");
    const VarnelLineBoundaryData *boundary = plate->getBoundary(0);
    ASSERT_NE(boundary, nullptr);  // every edge that is there has a boundary afterwards
    EXPECT_EQ(boundary->getDof(), 0);
    EXPECT_FALSE(boundary->getLocal());
    EXPECT_DOUBLE_EQ(boundary->getWidth(), 0.0);
    EXPECT_EQ(boundary->getName(), "");
    EXPECT_EQ(boundary->getStiffnessData(), nullptr);
    EXPECT_TRUE(boundary->getLocsys() == KzVector3D(0, 0, 1));
    EXPECT_EQ(plate->getEdgeData(0)->getJoint(), 0);
    EXPECT_EQ(plate->getGeo()->getLine(0)->getNumberOfParts(), 0);
}

TEST_F(PlateElements, SpringsOfZeroAreNoneAndADirectionOfZerosStaysZero) {
    const VarnelPlate *plate = readPlate(
        "", square + "<BOUNDS><EDGE POS=\"0\">" + vectorElement("STIFFD", 0, 0, 0) +
                vectorElement("STIFFR", 0, 0, 0) + vectorElement("LOCSYS", 0, 0, 0) + "</EDGE></BOUNDS>");
    EXPECT_EQ(plate->getBoundary(0)->getStiffnessData(), nullptr);
    EXPECT_TRUE(plate->getBoundary(0)->getLocsys() == KzVector3D(0, 0, 0));
}

// Supports are looked for by their names there, also those of the plates of other subsystems.
TEST_F(PlateElements, SupportsOfNestedPlatesAreListedInTheCurrentModel) {
    document.readSubSystem("<SUBSYSTEMS><SUBSYSTEM NAME=\"Tower\"><PLATES><PLATE>" + square +
                           "<BOUNDS><EDGE POS=\"0\" NAME=\"north\"/></BOUNDS></PLATE></PLATES></SUBSYSTEM>"
                           "</SUBSYSTEMS>");
    VarnelSubSystem *tower = document.manager.getSubSystems().front()->findChild("Tower", false);
    ASSERT_NE(tower, nullptr);
    Varnel &nested = *tower->getDatabase();
    VarnelPlate *plate = nested.getPlates().front();
    EXPECT_EQ(document.model().findLineBoundaryToName("north"), plate->getBoundary(0));
    EXPECT_EQ(nested.findLineBoundaryToName("north"), nullptr);
    nested.remove(plate, true);
    EXPECT_EQ(document.model().findLineBoundaryToName("north"), nullptr);
}

TEST_F(PlateElements, EdgesThatTheOutlineLacksArePassedOver) {
    for (const char *position :
         {"", "POS=\"-1\"", "POS=\"4\"", "POS=\"1000000000\"", "POS=\"-2147483648\""}) {
        SCOPED_TRACE(position);
        const VarnelPlate *plate = readPlate(
            "", square + "<BOUNDS><EDGE " + position + " DOF=\"7\" JDOF=\"1\" NUMPARTS=\"5\"/></BOUNDS>");
        for (std::size_t edge = 0; edge < 4; ++edge) {
            EXPECT_EQ(plate->getBoundary(edge), nullptr);
            EXPECT_EQ(plate->getEdgeData(edge), nullptr);
            EXPECT_EQ(plate->getGeo()->getLine(edge)->getNumberOfParts(), 0);
        }
    }
    document.write();
}

TEST_F(PlateElements, SecondElementOfAnEdgeDoesNotReplaceTheFirst) {
    const VarnelPlate *plate = readPlate(
        "",
        square +
            "<BOUNDS><EDGE POS=\"0\" DOF=\"4\"/><EDGE POS=\"0\" DOF=\"7\" JDOF=\"2\" NAME=\"b\"/></BOUNDS>");
    EXPECT_EQ(plate->getBoundary(0)->getDof(), 4);
    EXPECT_EQ(plate->getBoundary(0)->getName(), "b");
    EXPECT_EQ(plate->getEdgeData(0)->getJoint(), 2);
}

// The degrees of freedom stay with the first one, but joint, width and local flag are set each time.
TEST_F(PlateElements, SecondElementOfAnEdgeTakesAwayWhatItLacks) {
    const VarnelPlate *plate =
        readPlate("", square +
                          "<BOUNDS><EDGE POS=\"0\" DOF=\"4\" JDOF=\"2\" WIDTH=\"0.3\" LOCAL=\"1\" NAME=\"b\" "
                          "NUMBER=\"6\">" +
                          vectorElement("STIFFR", 0, 5, 0) + "</EDGE><EDGE POS=\"0\">" +
                          vectorElement("STIFFD", 0, 0, 0) + "</EDGE></BOUNDS>");
    const VarnelLineBoundaryData *boundary = plate->getBoundary(0);
    EXPECT_EQ(plate->getEdgeData(0)->getJoint(), 0);
    EXPECT_DOUBLE_EQ(boundary->getWidth(), 0.0);
    EXPECT_FALSE(boundary->getLocal());
    EXPECT_EQ(boundary->getDof(), 4);
    EXPECT_EQ(boundary->getName(), "b");
    EXPECT_EQ(boundary->getNumber(), 6);
    EXPECT_DOUBLE_EQ(boundary->getStiffness()[4], 5.0);  // zeros are not set
}

// A host's load of that type is filled as the others are.
TEST_F(PlateElements, NameOfAnAreaLoadIsSetThroughTheVirtualOperation) {
    class Load : public VarnelAreaLoad {
      public:
        void setName(const std::string &name) override { heard = name; }
        std::string heard;
    };
    VarnelPlate *plate = addSquare();
    auto *load = new Load;
    load->setLcType(SysBase::LoadcaseData::Type(2));
    plate->add(load);
    document.readSubSystem("<E><A NAME=\"live\" LC=\"3\"/></E>");
    document.exchange().createAreaLoadsToPlate(plate, document.find({"SUBSYSTEM", "E"}));
    EXPECT_EQ(plate->getAreaLoads().size(), 1u);
    EXPECT_EQ(load->heard, "live");
    EXPECT_EQ(load->getName(), "live");  // with the other values, which are read as a whole
    ASSERT_NE(load->getLoadcase(), nullptr);
    EXPECT_EQ(load->getLoadcase()->getNumber(), 3);
}

TEST_F(PlateElements, PlateWithoutAnOutlineIsHarmless) {
    const VarnelPlate *plate = readPlate("",
                                         "<BOUNDS><EDGE POS=\"0\" DOF=\"7\" NUMPARTS=\"3\"/></BOUNDS>"
                                         "<AREALOADS><AREALOAD><Z>1</Z></AREALOAD></AREALOADS>");
    EXPECT_EQ(plate->getGeo(), nullptr);
    EXPECT_EQ(plate->getBoundary(0), nullptr);
    ASSERT_EQ(plate->getAreaLoads().size(), 1u);
    EXPECT_EQ(plate->getAreaLoads().front()->getArea(), nullptr);
    const KzXmlData *element = written();
    EXPECT_EQ(textOf(element->findChild("BOUNDS")), "<BOUNDS></BOUNDS>");
    EXPECT_EQ(element->findChild("AREA"), nullptr);
}

TEST_F(PlateElements, AreaLoadsAreOneForEachType) {
    const VarnelPlate *plate = readPlate(
        "",
        square +
            "<AREALOADS><A LCTYPE=\"1\" NAME=\"dead\" LC=\"4\"><X>1</X><Y>2</Y><Z>3</Z></A>"
            "<B NAME=\"live\"><LOAD>2.5</LOAD></B><C LCTYPE=\"2\" NAME=\"more\"><PZ>7</PZ></C></AREALOADS>");
    ASSERT_EQ(plate->getAreaLoads().size(), 2u);
    const VarnelAreaLoad *dead = plate->getAreaLoads().front();
    EXPECT_EQ(dead->getLcType(), 1);
    EXPECT_EQ(dead->getName(), "dead");
    EXPECT_TRUE(dead->getData().getP() == KzVector3D(1, 2, 3));
    ASSERT_NE(dead->getLoadcase(), nullptr);
    EXPECT_EQ(dead->getLoadcase()->getNumber(), 4);
    EXPECT_EQ(dead->getArea(), plate->getGeo());
    const VarnelAreaLoad *live = plate->getAreaLoads().back();
    EXPECT_EQ(live->getLcType(), 2);  // two for a missing type
    EXPECT_EQ(live->getName(), "more");
    EXPECT_TRUE(live->getData().getP() == KzVector3D(0, 0, 7));
    EXPECT_EQ(live->getLoadcase(), nullptr);
    const KzXmlData *loads = written()->findChild("AREALOADS");
    EXPECT_EQ(textOf(loads),
              "<AREALOADS><AREALOAD LCTYPE=\"1\" NAME=\"dead\" LC=\"4\"><X>1</X><Y>2</Y><Z>3</Z></AREALOAD>"
              "<AREALOAD LCTYPE=\"2\" NAME=\"more\"><X>0</X><Y>0</Y><Z>7</Z></AREALOAD></AREALOADS>");
}

TEST_F(PlateElements, AreaLoadsOfOneTypeMeetInOneElement) {
    VarnelPlate *plate = addSquare();
    for (const char *name : {"first", "second"}) {
        auto *load = new VarnelAreaLoad;
        load->setLcType(2);
        load->setName(name);
        plate->add(load);
    }
    plate->getAreaLoads().front()->setLoadcase(document.manager.giveLoadcaseToNumber(4, true));
    document.exchange().updateSystem(&document.manager);
    const KzXmlData *list = document.find({"SUBSYSTEM", "PLATES", "PLATE", "AREALOADS"});
    ASSERT_EQ(list->getChildren().size(), 1u);
    EXPECT_EQ(list->getChildren().front()->findAttribute("NAME")->getData(), "second");
    EXPECT_EQ(list->getChildren().front()->findAttribute("LC")->getInteger(), 4);  // of the first
}

TEST_F(PlateElements, MissingPlatesAndLoadsAreSkipped) {
    document.model().add(static_cast<VarnelPlate *>(nullptr));
    addSquare()->add(static_cast<VarnelAreaLoad *>(nullptr));
    document.exchange().updateSystem(&document.manager);
    const KzXmlData *list = document.find({"SUBSYSTEM", "PLATES"});
    ASSERT_EQ(list->getChildren().size(), 1u);
    EXPECT_TRUE(list->getChildren().front()->findChild("AREALOADS")->getChildren().empty());
}

TEST_F(PlateElements, NothingToReadOrWriteIsHarmless) {
    VarnelExchangeXml &exchange = document.exchange();
    std::istringstream stream("<PLATE FOUND=\"1\"><A POS=\"0\"/></PLATE>");
    KzXmlTree tree("E");
    tree.buildOfStream(stream);
    VarnelPlate plate(nullptr);
    exchange.updatePlates(nullptr);
    exchange.updateOnePlate(nullptr, nullptr);
    exchange.createPlates(nullptr, nullptr);
    exchange.readOnePlate(nullptr, &plate);
    exchange.readOnePlate(tree.getRoot(), nullptr);
    exchange.readPlateFound(nullptr, &plate);
    exchange.readPlateFound(tree.getRoot(), nullptr);
    exchange.createBoundariesToPlate(nullptr, tree.getRoot());
    exchange.createBoundariesToPlate(&plate, nullptr);
    exchange.createAreaLoadsToPlate(nullptr, tree.getRoot());
    exchange.createAreaLoadsToPlate(&plate, nullptr);
    EXPECT_EQ(exchange.createOnePlate(nullptr, &document.model()), nullptr);
    EXPECT_EQ(exchange.createOnePlate(tree.getRoot(), nullptr), nullptr);
    EXPECT_TRUE(document.model().getPlates().empty());
    EXPECT_EQ(textOf(document.find({})), "<VARNEL></VARNEL>");
}

TEST_F(PlateElements, OtherChildrenOfTheListAreIgnored) {
    document.readSubSystem("<PLATES><WALL/><PLATE NUMBER=\"2\"/><PLATES/></PLATES>");
    EXPECT_EQ(document.model().getNumberOfPlates(), 1);
}

TEST_F(PlateElements, ListIsRebuiltOnWriting) {
    document.readSubSystem("<PLATES OLD=\"1\"><PLATE NUMBER=\"2\"/><STRANGE/></PLATES>");
    document.write();
    const KzXmlData *list = document.find({"SUBSYSTEM", "PLATES"});
    EXPECT_EQ(list->findAttribute("OLD"), nullptr);
    EXPECT_EQ(list->getChildren().size(), 1u);
    document.model().removeAll();
    document.write();
    EXPECT_EQ(textOf(document.find({"SUBSYSTEM", "PLATES"})), "<PLATES></PLATES>");
}

TEST_F(PlateElements, PlatesOfOneNumberMeetInOneElement) {
    VarnelPlate *first = addSquare();
    VarnelPlate *second = addSquare();
    first->setName("first");
    second->setName("second");
    first->setNumber(5);
    second->setNumber(5);
    document.exchange().updateSystem(&document.manager);
    const KzXmlData *list = document.find({"SUBSYSTEM", "PLATES"});
    ASSERT_EQ(list->getChildren().size(), 1u);
    EXPECT_EQ(list->getChildren().front()->findAttribute("NAME")->getData(), "second");
}

class ResultsOfEdges : public testing::Test {
  protected:
    class Factory : public recording::Factory {
        VarnelExchange *giveExchange() const override { return new VarnelExchangeXml; }
    };

    ResultsOfEdges() {
        plate = manager.getDatabase()->givePlate(true);
        plate->setArea(new VarnelAreaRectangle(KzVector3D(0, 0, 0), 4, 3, 0));
        plate->setBoundary(0, 4, {}, "south");
        manager.giveLoadcaseToNumber(3, true);
        manager.setup();
    }
    const KzXmlData *writtenEdge() {
        auto &exchange = static_cast<VarnelExchangeXml &>(*manager.getExchange());
        exchange.updateSystem(&manager);
        return exchange.getTree()
            ->getRoot()
            ->findChild("SUBSYSTEM")
            ->findChild("PLATES")
            ->getChildren()
            .front()
            ->findChild("BOUNDS")
            ->getChildren()
            .front();
    }
    void setUnchanged() {
        manager.setSystemChanged(false);
        manager.setLoadChanged(false);
    }

    Factory factory;
    VarnelManager manager{&factory};
    VarnelPlate *plate;
};

TEST_F(ResultsOfEdges, AreWrittenForReferencesOfAnUnchangedModelOnly) {
    EXPECT_EQ(writtenEdge()->findChild("LOADCASES"), nullptr);
    setUnchanged();
    EXPECT_EQ(textOf(writtenEdge()->findChild("LOADCASES")),
              "<LOADCASES><LOADCASE NUMBER=\"3\"><LOC IND=\"0\" POS=\"1.5\" "
              "FZ=\"30\"></LOC></LOADCASE></LOADCASES>");
    plate->getBoundary(0)->setReference(nullptr);
    EXPECT_EQ(writtenEdge()->findChild("LOADCASES"), nullptr);
    plate->getBoundary(0)->setReference(plate->getBoundary(0));
    manager.getDatabase()->setLoadChanged(true);
    EXPECT_EQ(writtenEdge()->findChild("LOADCASES"), nullptr);
    setUnchanged();
    EXPECT_NE(writtenEdge()->findChild("LOADCASES"), nullptr);
    plate->setThick(0.3);
    ASSERT_FALSE(manager.loadChanged());
    EXPECT_EQ(writtenEdge()->findChild("LOADCASES"), nullptr);
}

TEST_F(ResultsOfEdges, EveryReferenceHasItsOwnResults) {
    for (int i = 0; i < 20; ++i) {
        VarnelPlate *more = manager.getDatabase()->givePlate(true);
        more->setArea(new VarnelAreaRectangle(KzVector3D(10.0 * i, 50, 0), 4, 3, 0));
        for (std::size_t edge = 0; edge < 4; ++edge) more->setBoundary(edge, 4, {}, "w");
    }
    manager.setup();
    setUnchanged();
    factory.script.take();
    writtenEdge();
    int asked = 0;
    for (const std::string &call : factory.script.take())
        if (call.rfind("designer.getLineBoundaryResult", 0) == 0) ++asked;
    EXPECT_EQ(asked, 1 + 20 * 4);
}

}  // namespace
