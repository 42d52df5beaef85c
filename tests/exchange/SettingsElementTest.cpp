#include <gtest/gtest.h>

#include <limits>

#include "tests/support/CommaLocale.h"
#include "tests/support/CompleteProject.h"
#include "tests/support/Document.h"
#include "tests/support/ProcessDefaults.h"
#include "varnel/varnel.h"

namespace {

const std::string zero = "<X>0</X><Y>0</Y><Z>0</Z>";

std::string zeroElement(const std::string &name) {
    return "<" + name + ">" + zero + "</" + name + ">";
}

class SettingsElement : public testing::Test {
  protected:
    void readSettings(const std::string &attributes, const std::string &content = "") {
        document.read("<VARNEL><SETTINGS " + attributes + ">" + content + "</SETTINGS></VARNEL>");
    }
    void readDefaults(const std::string &content) {
        readSettings("", "<DEFAULT-PROPERTIES>" + content + "</DEFAULT-PROPERTIES>");
    }
    const KzXmlData *written() {
        document.exchange().updateSettings(&document.manager);
        return document.find({"SETTINGS"});
    }
    std::string writtenDefault(const char *name) {
        return textOf(written()->findChild("DEFAULT-PROPERTIES")->findChild(name));
    }
    const VarnelDefaultProperties &defaults() const { return *VarnelDefaultProperties::get(); }

    const ProcessDefaults reset;
    Document document;
};

TEST_F(SettingsElement, DefaultsAreWrittenInFull) {
    EXPECT_EQ(
        textOf(written()),
        "<SETTINGS AUTOLOAD=\"0\" SYSBOUNDARY=\"0\" OWNWEIGHT=\"1\" QUADRATIC=\"1\" "
        "DESIGNLOCATION=\"AT_ELEMENT_CENTER\"><DEFAULT-PROPERTIES>"
        "<AREALOAD LCTYPE=\"1\" TYPE=\"0\" TRANS=\"0\" NAME=\"\">"
        "<X>0</X><Y>0</Y><Z>1</Z></AREALOAD><LINELOAD NAME=\"\" TYPE=\"0\">" +
            zeroElement("FORCEA") + zeroElement("FORCEE") + zeroElement("MOMENTA") + zeroElement("MOMENTE") +
            "</LINELOAD><POINTLOAD NAME=\"\" LCTYPE=\"1\">" + zeroElement("POS") + zeroElement("FORCE") +
            zeroElement("MOMENT") + "</POINTLOAD><POINTBOUNDARY NAME=\"\" DOF=\"0\" SPC=\"1\">" +
            zeroElement("POS") + vectorElement("LOCSYS-X", 1, 0, 0) + vectorElement("LOCSYS-Y", 0, 1, 0) +
            "<OWNWEIGHT TRANSFER=\"0\" SPECIFICWEIGHT=\"25\" HEIGHT=\"3\"></OWNWEIGHT></POINTBOUNDARY>"
            "<LINEBOUNDARY NAME=\"\" DOF=\"0\" WIDTH=\"0\" LOCAL=\"0\">" +
            vectorElement("LOCSYS", 0, 0, 1) +
            "</LINEBOUNDARY><BEAM NAME=\"\" ETYPE=\"1\" BTYPE=\"0\" MESHSIZE=\"0.5\" ANGLE=\"0\" PARTS=\"1\">"
            "<AREA><EDGE POS=\"1\"><LINE TYPE=\"STRAIGHT\">" +
            zeroElement("START") + zeroElement("END") +
            "</LINE></EDGE></AREA></BEAM>"
            "<PLATE NAME=\"\" TYPE=\"0\" MESH=\"2\" PTYPE=\"0\" AUTOMESH=\"1\" MESHSIZE-X=\"0.5\" "
            "MESHSIZE-Y=\"0.5\" MESHANGLE=\"120\" THICK=\"0.2\"><BOUNDS></BOUNDS><AREALOADS></AREALOADS>"
            "</PLATE><HOLE NAME=\"\" DISTLOAD=\"0\"></HOLE><LDAREA NAME=\"\"></LDAREA>"
            "</DEFAULT-PROPERTIES></SETTINGS>");
}

TEST_F(SettingsElement, AttributesAreWrittenInTheirOrder) {
    document.manager.setLoadcaseAutomation(true);
    document.manager.setSystemBoundary(-5);
    document.manager.setOwnWeight(false);
    document.manager.enableUseQuadraticShape(false);
    document.manager.setDesignLocation(0);
    std::string text;
    for (const KzXmlAttributeData *attribute : written()->getAttributes())
        text += attribute->getKey() + "=" + attribute->getData() + " ";
    EXPECT_EQ(text, "AUTOLOAD=1 SYSBOUNDARY=-5 OWNWEIGHT=0 QUADRATIC=0 DESIGNLOCATION=AT_NODE ");
}

TEST_F(SettingsElement, AttributesAreRead) {
    readSettings(
        "AUTOLOAD=\"1\" SYSBOUNDARY=\"12\" OWNWEIGHT=\"0\" QUADRATIC=\"0\" DESIGNLOCATION=\"AT_NODE\"");
    const VarnelManager &manager = document.manager;
    EXPECT_TRUE(manager.getLoadcaseAutomation());
    EXPECT_EQ(manager.getSystemBoundary(), 12);
    EXPECT_FALSE(manager.getOwnWeight());
    EXPECT_FALSE(manager.doUseQuadraticShape());
    EXPECT_EQ(manager.getDesignLocation(), 0);
}

TEST_F(SettingsElement, AnyNumberButZeroSwitchesOn) {
    for (const char *number : {"2", "-1", "+7", " 3 ", "2147483648"}) {
        SCOPED_TRACE(number);
        const std::string text = std::string("=\"") + number + "\" ";
        document.manager.setOwnWeight(false);
        document.manager.setLoadcaseAutomation(false);
        document.manager.enableUseQuadraticShape(false);
        readSettings("AUTOLOAD" + text + "OWNWEIGHT" + text + "QUADRATIC" + text);
        EXPECT_TRUE(document.manager.getLoadcaseAutomation());
        EXPECT_TRUE(document.manager.getOwnWeight());
        EXPECT_TRUE(document.manager.doUseQuadraticShape());
    }
    for (const char *number : {"0", "-0", "", "true", "0.9"}) {
        SCOPED_TRACE(number);
        const std::string text = std::string("=\"") + number + "\" ";
        readSettings("AUTOLOAD" + text + "OWNWEIGHT" + text + "QUADRATIC" + text);
        EXPECT_FALSE(document.manager.getLoadcaseAutomation());
        EXPECT_FALSE(document.manager.getOwnWeight());
        EXPECT_FALSE(document.manager.doUseQuadraticShape());
        document.manager.setLoadcaseAutomation(true);
        document.manager.setOwnWeight(true);
        document.manager.enableUseQuadraticShape(true);
    }
}

TEST_F(SettingsElement, SystemBoundarySaturates) {
    readSettings("SYSBOUNDARY=\"99999999999999999999\"");
    EXPECT_EQ(document.manager.getSystemBoundary(), std::numeric_limits<int>::max());
    EXPECT_EQ(written()->findAttribute("SYSBOUNDARY")->getData(), "2147483647");
}

TEST_F(SettingsElement, DesignLocationHasAWordForEachValue) {
    const struct {
        int value;
        const char *word;
        int readBack;
    } rows[] = {{0, "AT_NODE", 0},
                {1, "AT_EDGE_CENTER", 1},
                {2, "AT_ELEMENT_CENTER", 2},
                {3, "AT_ELEMENT_CENTER", 2},
                {-1, "AT_ELEMENT_CENTER", 2},
                {std::numeric_limits<int>::max(), "AT_ELEMENT_CENTER", 2}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.value);
        document.manager.setDesignLocation(row.value);
        EXPECT_EQ(written()->findAttribute("DESIGNLOCATION")->getData(), row.word);
        document.manager.setDesignLocation(1 - row.readBack);
        readSettings(std::string("DESIGNLOCATION=\"") + row.word + "\"");
        EXPECT_EQ(document.manager.getDesignLocation(), row.readBack);
    }
}

TEST_F(SettingsElement, MissingOrUnknownDesignLocationIsTheElementCentre) {
    for (const char *attribute : {"", "DESIGNLOCATION=\"\"", "DESIGNLOCATION=\"at_node\"",
                                  "DESIGNLOCATION=\" AT_NODE\"", "DESIGNLOCATION=\"0\""}) {
        SCOPED_TRACE(attribute);
        document.manager.setDesignLocation(0);  // not the manager's former value
        readSettings(attribute);
        EXPECT_EQ(document.manager.getDesignLocation(), 2);
    }
}

TEST_F(SettingsElement, OldDocumentsHaveThreeSwitchesAsChildren) {
    document.manager.setOwnWeight(false);
    readSettings("", "<AUTOLOAD>1</AUTOLOAD><SYSBOUNDARY>9</SYSBOUNDARY><OWNWEIGHT>1</OWNWEIGHT>");
    EXPECT_TRUE(document.manager.getLoadcaseAutomation());
    EXPECT_EQ(document.manager.getSystemBoundary(), 9);
    EXPECT_TRUE(document.manager.getOwnWeight());
    document.manager.enableUseQuadraticShape(false);
    readSettings("", "<QUADRATIC>1</QUADRATIC>");  // never was a child
    EXPECT_FALSE(document.manager.doUseQuadraticShape());
}

TEST_F(SettingsElement, AttributeWinsOverTheChild) {
    readSettings("OWNWEIGHT=\"0\" SYSBOUNDARY=\"4\" AUTOLOAD=\"0\"",
                 "<AUTOLOAD>1</AUTOLOAD><SYSBOUNDARY>9</SYSBOUNDARY><OWNWEIGHT>1</OWNWEIGHT>");
    EXPECT_FALSE(document.manager.getLoadcaseAutomation());
    EXPECT_EQ(document.manager.getSystemBoundary(), 4);
    EXPECT_FALSE(document.manager.getOwnWeight());
}

// A switch that is missing in both forms counts as 0, it is not left as it is.
TEST_F(SettingsElement, EmptyElementSwitchesThreeOff) {
    document.manager.setLoadcaseAutomation(true);
    document.manager.setSystemBoundary(9);
    document.manager.setOwnWeight(true);
    document.manager.enableUseQuadraticShape(true);
    readSettings("");
    EXPECT_FALSE(document.manager.getLoadcaseAutomation());
    EXPECT_EQ(document.manager.getSystemBoundary(), 0);
    EXPECT_FALSE(document.manager.getOwnWeight());
    EXPECT_TRUE(document.manager.doUseQuadraticShape());
}

TEST_F(SettingsElement, MissingElementLeavesEverything) {
    document.manager.setLoadcaseAutomation(true);
    document.manager.setSystemBoundary(9);
    document.manager.setDesignLocation(1);
    document.read("<VARNEL><OTHER><SETTINGS SYSBOUNDARY=\"1\"/></OTHER></VARNEL>");
    EXPECT_TRUE(document.manager.getLoadcaseAutomation());
    EXPECT_EQ(document.manager.getSystemBoundary(), 9);
    EXPECT_EQ(document.manager.getDesignLocation(), 1);
}

TEST_F(SettingsElement, ElementIsRebuilt) {
    readSettings("FOREIGN=\"1\"", "<FOREIGN/><AUTOLOAD>1</AUTOLOAD>");
    const KzXmlData *element = written();
    EXPECT_EQ(element->findAttribute("FOREIGN"), nullptr);
    ASSERT_EQ(element->getChildren().size(), 1u);
    EXPECT_EQ(element->getChildren().front()->getName(), "DEFAULT-PROPERTIES");
}

TEST_F(SettingsElement, DefaultsThatWereSetAreWritten) {
    const ChangedDefaults changed;
    EXPECT_NE(writtenDefault("AREALOAD").find("NAME=\"AL\"><X>0</X><Y>0</Y><Z>2.5</Z>"), std::string::npos);
    EXPECT_NE(writtenDefault("LINELOAD").find(vectorElement("FORCEA", 0, 0, 3)), std::string::npos);
    EXPECT_NE(writtenDefault("POINTLOAD").find(vectorElement("FORCE", 0, 0, 10)), std::string::npos);
    const std::string column = writtenDefault("POINTBOUNDARY");
    EXPECT_NE(column.find("NAME=\"C\" DOF=\"7\" SPC=\"1\" ANGLE=\"0\""), std::string::npos);
    EXPECT_NE(column.find(vectorElement("POS", 0, 0, 0)), std::string::npos);
    EXPECT_NE(column.find(vectorElement("STIFFD", 0, 0, 100)), std::string::npos);
    EXPECT_EQ(writtenDefault("LINEBOUNDARY"),
              "<LINEBOUNDARY NAME=\"W\" DOF=\"4\" WIDTH=\"0.3\" LOCAL=\"0\">" +
                  vectorElement("LOCSYS", 0, 0, 1) + "</LINEBOUNDARY>");
    EXPECT_NE(writtenDefault("BEAM").find("NAME=\"B\" ETYPE=\"1\" BTYPE=\"0\" MESHSIZE=\"0.5\" ANGLE=\"15\""),
              std::string::npos);
    EXPECT_NE(writtenDefault("PLATE").find("THICK=\"0.18\""), std::string::npos);
    EXPECT_EQ(writtenDefault("HOLE"), "<HOLE NAME=\"H\" DISTLOAD=\"0\"></HOLE>");
    EXPECT_EQ(writtenDefault("LDAREA"), "<LDAREA NAME=\"F\"></LDAREA>");
}

TEST_F(SettingsElement, EachDefaultIsReadAlone) {
    const struct {
        const char *element;
        bool (*arrived)(const VarnelDefaultProperties &);
    } rows[] = {
        {"<AREALOAD NAME=\"n\" LCTYPE=\"7\"><X>1</X><Y>2</Y><Z>3</Z></AREALOAD>",
         [](const VarnelDefaultProperties &d) {
             return d.getAreaLoad().getName() == "n" && d.getAreaLoad().getLcType() == 7 &&
                    d.getAreaLoad().getP() == KzVector3D(1, 2, 3);
         }},
        {"<LINELOAD NAME=\"n\" TYPE=\"1\"><FORCEE><Z>3</Z></FORCEE></LINELOAD>",
         [](const VarnelDefaultProperties &d) {
             return d.getLineLoad().getName() == "n" && d.getLineLoad().getType() == 1 &&
                    d.getLineLoad().getP2() == KzVector3D(0, 0, 3);
         }},
        {"<POINTLOAD NAME=\"n\" LCTYPE=\"2\"><MOMENT><Y>3</Y></MOMENT></POINTLOAD>",
         [](const VarnelDefaultProperties &d) {
             return d.getPointLoad().getName() == "n" && d.getPointLoad().getLcType() == 2 &&
                    d.getPointLoad().getData().getMoment() == KzVector3D(0, 3, 0);
         }},
        {"<LINEBOUNDARY NAME=\"n\" DOF=\"5\" WIDTH=\"0.4\"><LOCSYS><Y>3</Y></LOCSYS></LINEBOUNDARY>",
         [](const VarnelDefaultProperties &d) {
             return d.getLBData().getName() == "n" && d.getLBData().getDof() == 5 &&
                    d.getLBData().getWidth() == 0.4 && d.getLBData().getLocsys() == KzVector3D(0, 1, 0);
         }},
        {"<POINTBOUNDARY NAME=\"n\" DOF=\"5\"><STIFFR><X>8</X></STIFFR></POINTBOUNDARY>",
         [](const VarnelDefaultProperties &d) {
             return d.getPBData().getName() == "n" && d.getPBData().getDof() == 5 &&
                    d.getPBData().getStiffness() == std::vector<double>{0, 0, 0, 8, 0, 0};
         }},
        {"<BEAM NAME=\"n\" ETYPE=\"3\" BTYPE=\"2\" ANGLE=\"30\" PARTS=\"4\"><MATERIAL>S235</MATERIAL></BEAM>",
         [](const VarnelDefaultProperties &d) {
             const VarnelBeamProperties &beam = d.getBeamProp();
             return beam.getName() == "n" && beam.getElementType() == 3 && beam.getParts() == 4 &&
                    beam.getBeamType() == 2 && beam.getAngle() == 30.0 &&
                    beam.getMaterial() == KzMaterialHandler::get()->findMaterialToName("S235", 0);
         }},
        {"<PLATE NAME=\"n\" THICK=\"0.35\" TYPE=\"1\" MESH=\"3\" MESHSIZE=\"0.1\" AUTOMESH=\"0\" "
         "MESHANGLE=\"60\"><CONCRETE>C20/25</CONCRETE></PLATE>",
         [](const VarnelDefaultProperties &d) {
             const VarnelPlateProperties &plate = d.getPlateProp();
             return plate.getName() == "n" && plate.getThick() == 0.35 && plate.getElementType() == 1 &&
                    plate.getMeshType() == 3 && plate.getMeshSizeX() == 0.1 && plate.getMeshSizeY() == 0.1 &&
                    !plate.getAutoMeshSize() && plate.getMeshAngle() == 60.0 &&
                    plate.getMaterial() == KzMaterialHandler::get()->findMaterialToName("C20/25", 0);
         }},
        {"<HOLE NAME=\"n\" DISTLOAD=\"1\"/>",
         [](const VarnelDefaultProperties &d) {
             return d.getHole().getName() == "n" && d.getHole().getLoadDistribution();
         }},
        {"<LDAREA NAME=\"n\"/>",
         [](const VarnelDefaultProperties &d) { return d.getLDA().getName() == "n"; }},
    };
    for (std::size_t read = 0; read < std::size(rows); ++read) {
        SCOPED_TRACE(rows[read].element);
        resetDefaults();
        readDefaults(rows[read].element);
        for (const auto &row : rows) EXPECT_EQ(row.arrived(defaults()), &row == rows + read) << row.element;
    }
}

TEST_F(SettingsElement, MissingDefaultsStayAsTheyAre) {
    const ChangedDefaults changed;
    const std::string before = textOf(written());
    readDefaults("");
    readSettings("");
    document.manager.setOwnWeight(true);
    EXPECT_EQ(textOf(written()), before);
}

// A template is read into a fresh object: what its element lacks falls back to the defaults of the kind.
TEST_F(SettingsElement, DefaultsAreReplacedAsAWhole) {
    const ChangedDefaults changed;
    readDefaults("<AREALOAD/><LINELOAD/><POINTLOAD/><LINEBOUNDARY/><BEAM/><PLATE/><HOLE/><LDAREA/>");
    EXPECT_EQ(defaults().getAreaLoad().getName(), "");
    EXPECT_TRUE(defaults().getAreaLoad().getP() == KzVector3D());
    EXPECT_EQ(defaults().getAreaLoad().getLcType(), 2);  // as every area load without a type
    EXPECT_TRUE(defaults().getLineLoad().getP1() == KzVector3D());
    EXPECT_EQ(defaults().getPointLoad().getLcType(), 0);
    EXPECT_EQ(defaults().getLBData().getName(), "");
    EXPECT_DOUBLE_EQ(defaults().getLBData().getWidth(), 0.0);
    EXPECT_DOUBLE_EQ(defaults().getBeamProp().getAngle(), 0.0);
    EXPECT_DOUBLE_EQ(defaults().getPlateProp().getThick(), 0.2);
    EXPECT_EQ(defaults().getHole().getName(), "");
    EXPECT_EQ(defaults().getLDA().getName(), "");
}

TEST_F(SettingsElement, DefaultsSurviveReadingAndWriting) {
    std::string before;
    {
        const ChangedDefaults changed;
        before = textOf(written());
        resetDefaults();
        document.exchange().get(&document.manager);
        EXPECT_EQ(textOf(written()), before);
    }
    EXPECT_NE(textOf(written()), before);
}

// The element of a template has more than the record it is read into.
TEST_F(SettingsElement, TemplateOfALineSupportTakesItsSpringsAndNotTheLocalFlag) {
    VarnelLineBoundaryData support(4, "W");
    support.setLocal(true);
    support.setDispStiff(KzVector3D(1, 2, 3));
    support.setTransferOwnWeight(true);
    VarnelDefaultProperties::get()->setLBData(support);
    EXPECT_EQ(writtenDefault("LINEBOUNDARY"), "<LINEBOUNDARY NAME=\"W\" DOF=\"4\" WIDTH=\"0\" LOCAL=\"1\">" +
                                                  vectorElement("LOCSYS", 0, 0, 1) + "</LINEBOUNDARY>");
    readDefaults("<LINEBOUNDARY LOCAL=\"1\">" + vectorElement("STIFFD", 4, 5, 6) +
                 "<OWNWEIGHT TRANSFER=\"1\"/></LINEBOUNDARY>");
    EXPECT_FALSE(defaults().getLBData().getLocal());
    EXPECT_EQ(defaults().getLBData().getStiffness(), (std::vector<double>{4, 5, 6, 0, 0, 0}));
    EXPECT_TRUE(defaults().getLBData().doTransferOwnWeight());
}

TEST_F(SettingsElement, TemplateOfABeamTakesNeitherMeshSizeNorGapsNorSpans) {
    const std::string before = writtenDefault("BEAM");
    readDefaults(
        "<BEAM NUMBER=\"7\" MESHSIZE=\"0.2\" LEFTGAP=\"1\" RIGHTGAP=\"1\"><START><X>1</X></START><FOUNDB>"
        "<FSPAN><LOCA POS=\"0\"/><LOCE POS=\"1\"/></FSPAN></FOUNDB></BEAM>");
    EXPECT_EQ(writtenDefault("BEAM"), before);
}

TEST_F(SettingsElement, TemplateOfAPlateIsWrittenWithDesignDataAndTakesNone) {
    const std::string before = writtenDefault("PLATE");
    const VarnelDesignData design;
    VarnelPlateProperties plate;
    plate.setDesign(&design);
    VarnelDefaultProperties::get()->setPlateProp(plate);
    EXPECT_NE(writtenDefault("PLATE").find("<DESIGN THETA=\"0\""), std::string::npos);
    readDefaults("<PLATE PTYPE=\"5\"><DESIGN CUX=\"1\"/><STEEL>unknown</STEEL></PLATE>");
    EXPECT_EQ(defaults().getPlateProp().getDesign(), nullptr);
    EXPECT_EQ(writtenDefault("PLATE"), before);
}

TEST_F(SettingsElement, TemplateOfAPointLoadIsAPlainForce) {
    VarnelPointLoad load;
    load.setDispLoad(true);
    load.setAngle(0.5, 2);
    load.setForce(KzVector3D(1, 2, 3));
    VarnelDefaultProperties::get()->setPointLoad(load);
    written();
    document.exchange().get(&document.manager);
    EXPECT_FALSE(defaults().getPointLoad().isDispLoad());
    EXPECT_DOUBLE_EQ(defaults().getPointLoad().getAngle(2), 0.0);
    EXPECT_TRUE(defaults().getPointLoad().getForce() == KzVector3D(1, 2, 3));
}

TEST_F(SettingsElement, NothingToReadIsHarmless) {
    document.manager.setSystemBoundary(9);
    document.exchange().createSettings(nullptr);
    EXPECT_EQ(document.manager.getSystemBoundary(), 9);
    VarnelExchangeXml alone;
    alone.getTree()->getRoot()->makeChild("SETTINGS")->setAttribute("SYSBOUNDARY", 4);
    alone.createSettings(alone.getTree()->getRoot());
    EXPECT_EQ(document.manager.getSystemBoundary(), 9);
    alone.updateSettings(nullptr);
    EXPECT_EQ(document.find({"SETTINGS"}), nullptr);
    const KzXmlData *settings = alone.getTree()->getRoot()->findChild("SETTINGS");
    EXPECT_TRUE(settings->getAttributes().empty());
    EXPECT_NE(settings->findChild("DEFAULT-PROPERTIES"), nullptr);
}

// The plate is read after the beam and before the hole.
TEST_F(SettingsElement, UnknownMaterialOfTheDefaultPlateStopsTheReading) {
    EXPECT_THROW(readDefaults("<HOLE NAME=\"n\"/><PLATE><CONCRETE>mud</CONCRETE></PLATE><BEAM NAME=\"n\"/>"),
                 Tools::Error);
    EXPECT_EQ(defaults().getBeamProp().getName(), "n");
    EXPECT_EQ(defaults().getPlateProp().getMaterial(), nullptr);
    EXPECT_EQ(defaults().getHole().getName(), "");
}

TEST_F(SettingsElement, UnknownMaterialOfTheDefaultBeamStopsTheReading) {
    EXPECT_THROW(readDefaults("<BEAM NAME=\"n\"><MATERIAL>mud</MATERIAL></BEAM><PLATE NAME=\"n\"/>"
                              "<POINTBOUNDARY NAME=\"n\"/>"),
                 Tools::Error);
    EXPECT_EQ(defaults().getPBData().getName(), "n");
    EXPECT_EQ(defaults().getBeamProp().getName(), "");
    EXPECT_EQ(defaults().getPlateProp().getName(), "");
}

TEST_F(SettingsElement, TemporaryObjectsJoinNoModel) {
    const std::string text = textOf(written());
    document.manager.setSystemChanged(false);
    document.manager.setLoadChanged(false);
    document.exchange().get(&document.manager);
    written();
    const Varnel &model = document.model();
    EXPECT_EQ(model.getNumberOfPlates() + model.getNumberOfBeams() + model.getNumberOfHoles() +
                  model.getNumberOfPointLoads() + model.getNumberOfAreaLoads() +
                  model.getNumberOfPointBoundaries(),
              0);
    EXPECT_TRUE(model.getLineBoundaryDatas().empty());
    EXPECT_TRUE(model.getLoadDistributionAreas().empty());
    EXPECT_TRUE(model.getDesignParameters().empty());
    EXPECT_FALSE(document.manager.systemChanged());
    EXPECT_FALSE(document.manager.loadChanged());
    VarnelPlate *first = document.model().givePlate(true);
    EXPECT_EQ(first->getNumber(), 1);
    Document untouched;
    EXPECT_EQ(untouched.model().givePlate(true)->getName(), first->getName());  // no name is taken
}

TEST_F(SettingsElement, WritersOfAHostNeverReachTheDefaultsThemselves) {
    class Spoiling : public VarnelExchangeXml {
        void updateOneHole(Varnel *, VarnelHole *hole) override { hole->setName("spoiled"); }
        void updateOnePlate(Varnel *, VarnelPlate *plate) override { plate->setName("spoiled"); }
        void updateOneAreaLoad(Varnel *, VarnelAreaLoad *load) override { load->setName("spoiled"); }
        void updateOnePointLoad(Varnel *, VarnelPointLoad *load) override { load->setName("spoiled"); }
        void updateOnePointBoundary(Varnel *, VarnelPointBoundary *boundary) override {
            boundary->setName("spoiled");
        }
    } exchange;
    exchange.updateSettings(&document.manager);
    EXPECT_EQ(defaults().getHole().getName(), "");
    EXPECT_EQ(defaults().getPlateProp().getName(), "");
    EXPECT_EQ(defaults().getAreaLoad().getName(), "");
    EXPECT_EQ(defaults().getPointLoad().getName(), "");
    EXPECT_EQ(defaults().getPBData().getName(), "");
}

TEST_F(SettingsElement, WritersOfAHostGetNoModel) {
    class Watching : public VarnelExchangeXml {
        void updateOneHole(Varnel *model, VarnelHole *) override { note(model); }
        void updateOnePlate(Varnel *model, VarnelPlate *) override { note(model); }
        void updateOneAreaLoad(Varnel *model, VarnelAreaLoad *) override { note(model); }
        void updateOnePointLoad(Varnel *model, VarnelPointLoad *) override { note(model); }
        void updateOnePointBoundary(Varnel *model, VarnelPointBoundary *) override { note(model); }
        void note(const Varnel *model) {
            ++calls;
            EXPECT_EQ(model, nullptr);
        }

      public:
        int calls = 0;
    } exchange;
    exchange.updateSettings(&document.manager);
    EXPECT_EQ(exchange.calls, 5);
}

TEST_F(SettingsElement, HostileDefaultsAreHarmless) {
    const std::string geometry =
        "<RECTAN WIDTH=\"-1\" HEIGHT=\"nan\"><POS/></RECTAN><AREA><EDGE/></AREA><POLY><A/></POLY>"
        "<BOUNDS><EDGE POS=\"0\" DOF=\"7\" JDOF=\"1\" NUMPARTS=\"4\"/><EDGE POS=\"-1\"/></BOUNDS>"
        "<AREALOADS><AREALOAD/></AREALOADS><LINE TYPE=\"ODD\"/>";
    for (const char *kind : {"AREALOAD", "LINELOAD", "POINTLOAD", "LINEBOUNDARY", "POINTBOUNDARY", "BEAM",
                             "PLATE", "HOLE", "LDAREA"}) {
        SCOPED_TRACE(kind);
        readDefaults(std::string("<") + kind +
                     " NUMBER=\"99999999999\" LCTYPE=\"x\" LC=\"-3\" ANGLE=\"inf\">" + geometry + "</" +
                     kind + "><" + kind + "/>");
        written();
        document.exchange().get(&document.manager);  // after which every support has a frame
        const std::string text = textOf(written());
        document.exchange().get(&document.manager);
        EXPECT_EQ(textOf(written()), text);
    }
    EXPECT_TRUE(document.model().getLineBoundaryDatas().empty());
}

// Settings need no model: a project may be without one.
TEST_F(SettingsElement, ProjectWithoutAModelHasSettings) {
    class Factory : public VarnelFactory {
        Varnel *giveDatabase() const override { return plain ? new Varnel(getManager()) : nullptr; }

      public:
        bool plain = false;
    } factory;
    for (const bool plain : {false, true}) {
        SCOPED_TRACE(plain);
        factory.plain = plain;
        VarnelManager manager(&factory);
        auto &exchange = static_cast<VarnelExchangeXml &>(*manager.getExchange());
        std::istringstream stream(
            "<VARNEL><SETTINGS SYSBOUNDARY=\"4\"><DEFAULT-PROPERTIES><BEAM NAME=\"n\"><RECTAN><POS/></RECTAN>"
            "</BEAM><PLATE NAME=\"n\"/></DEFAULT-PROPERTIES></SETTINGS></VARNEL>");
        exchange.getTree()->buildOfStream(stream);
        exchange.get(&manager);
        exchange.updateSettings(&manager);
        EXPECT_EQ(manager.getSystemBoundary(), 4);
        EXPECT_EQ(defaults().getBeamProp().getName(), "n");
        EXPECT_EQ(textOf(exchange.getTree()->getRoot()), [this] {
            document.manager.setSystemBoundary(4);
            document.manager.setOwnWeight(false);
            written();
            return textOf(document.find({}));
        }());
    }
}

TEST_F(SettingsElement, DefaultsForgetAManagerThatDies) {
    {
        Document dying;
        dying.read(
            "<VARNEL><MATERIALS><MATERIAL NAME=\"M\" KIND=\"CONCRETE\"/></MATERIALS>"
            "<SECTIONS><SECTION NAME=\"S\" AREA=\"1\"/></SECTIONS>"
            "<DESIGNS><REINFLINE NUMBER=\"4\"/></DESIGNS>"
            "<FOUNDATIONS><FOUNDATION NUMBER=\"2\" NAME=\"F\"/></FOUNDATIONS>"
            "<SETTINGS><DEFAULT-PROPERTIES><AREALOAD LC=\"3\"/><POINTLOAD LC=\"3\"/>"
            "<BEAM FOUND=\"F\" DESIGN=\"4\"><CONCRETE>M</CONCRETE><SECB>S</SECB></BEAM>"
            "<PLATE FOUND=\"2\"><CONCRETE>M</CONCRETE></PLATE>"
            "</DEFAULT-PROPERTIES></SETTINGS></VARNEL>");
        dying.exchange().updateSettings(&dying.manager);
        const std::string text = textOf(dying.find({"SETTINGS"}));
        for (const char *named : {"LC=\"3\"", "FOUND=\"F\"", "FOUND=\"2\"", "DESIGN=\"4\"", ">M<", ">S<"})
            EXPECT_NE(text.find(named), std::string::npos) << named;
    }
    const std::string text = textOf(written());
    for (const char *named : {"LC=", "FOUND=", "DESIGN=\"", ">M<", ">S<"})
        EXPECT_EQ(text.find(named), std::string::npos) << named;
}

TEST_F(SettingsElement, LocaleOfTheProcessChangesNothing) {
    const ChangedDefaults changed;
    const std::string before = textOf(written());
    const varnel::test::CommaLocale comma;
    EXPECT_EQ(textOf(written()), before);
    document.exchange().get(&document.manager);
    EXPECT_DOUBLE_EQ(defaults().getPlateProp().getThick(), 0.18);
    EXPECT_DOUBLE_EQ(defaults().getAreaLoad().getP().getZ(), 2.5);
    EXPECT_EQ(textOf(written()), before);
}

}  // namespace
