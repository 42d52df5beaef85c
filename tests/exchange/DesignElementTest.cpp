#include <gtest/gtest.h>

#include <limits>

#include "tests/support/CommaLocale.h"
#include "tests/support/Document.h"
#include "varnel/contracts/KzMaterialHandler.h"
#include "varnel/contracts/KzMaterialManager.h"
#include "varnel/contracts/KzMaterialReinforcement.h"
#include "varnel/contracts/KzMath.h"
#include "varnel/contracts/KzReinfMeshList.h"
#include "varnel/contracts/KzReinfStockMesh.h"
#include "varnel/contracts/Tools/Error.h"
#include "varnel/members/VarnelDesignData.h"

namespace {

class DesignElement : public testing::Test {
  protected:
    DesignElement() { document.exchange().setManager(&document.manager); }

    /// Reads what stands in an object's element into a record.
    void readInto(VarnelDesignData &data, const std::string &content) {
        KzXmlTree tree("PLATE");
        std::istringstream stream("<PLATE>" + content + "</PLATE>");
        tree.buildOfStream(stream);
        document.exchange().readDesignData(tree.getRoot(), &data);
    }
    VarnelDesignData read(const std::string &content) {
        VarnelDesignData data;
        readInto(data, content);
        return data;
    }
    std::string written(const VarnelDesignData &data) {
        VarnelExchangeXml exchange;
        exchange.updateDesignData(&data);
        EXPECT_EQ(exchange.getTree()->getCursor(), exchange.getTree()->getRoot());
        return textOf(exchange.getTree()->getRoot()->findChild("DESIGN"));
    }
    static KzMaterialReinforcement *stock(const char *name) {
        return KzMaterialHandler::get()->findReinforcementToName(name, 0);
    }

    Document document;
};

TEST_F(DesignElement, DefaultRecordIsWrittenInFull) {
    EXPECT_EQ(written(VarnelDesignData()),
              "<DESIGN THETA=\"0\" CUX=\"0.03\" CUY=\"0.03\" CLX=\"0.03\" CLY=\"0.03\" CNOM=\"0.03\" "
              "MIN-STEEL=\"0.2\" BASICL=\"\" BASICU=\"\">"
              "<SHEAR MIN-SHEAR-REINF=\"0.6\" SHEAR-ANGLE=\"90\" STRUT-ANGLE=\"0\" JOINT-POSITION=\"0\" "
              "BOND-REINF-ANGLE=\"0\" SHEAR-REINF-STRENGTH=\"0\" JOINT-SURFACE=\"ROUGH\"></SHEAR></DESIGN>");
}

TEST_F(DesignElement, FullRecordIsWrittenInOrder) {
    VarnelDesignData data(KzMath::Pi / 2.0, 0.01, 0.02, 0.03, 0.04);
    data.setCnom(0.05);
    data.setMinimumSteel(0.06);
    data.setBasicMeshL(document.manager.getStockMesh("Q335A"));
    data.setBasicMeshU(document.manager.getStockMesh("R257A"));
    data.setReinforcement(stock("B500A"));
    data.setMinShearReinforcement(0.7);
    data.setShearAngle(45.0);
    data.setStrutAngle(40.5);
    data.setJointPosition(0.08);
    data.setBondReinfAngle(60.0);
    data.setShearReinfStrength(435.0);
    data.setShearJointSurface(3);
    data.setStressDesignType(4);  // neither this nor the layout belongs to the element
    EXPECT_EQ(written(data),
              "<DESIGN THETA=\"90\" CUX=\"0.01\" CUY=\"0.02\" CLX=\"0.03\" CLY=\"0.04\" CNOM=\"0.05\" "
              "MIN-STEEL=\"0.06\" BASICL=\"Q335A\" BASICU=\"R257A\"><STEEL>B500A</STEEL>"
              "<SHEAR MIN-SHEAR-REINF=\"0.7\" SHEAR-ANGLE=\"45\" STRUT-ANGLE=\"40.5\" "
              "JOINT-POSITION=\"0.08\" BOND-REINF-ANGLE=\"60\" SHEAR-REINF-STRENGTH=\"435\" "
              "JOINT-SURFACE=\"VERY_SMOOTH\"></SHEAR></DESIGN>");
}

TEST_F(DesignElement, EverythingWrittenIsReadBack) {
    VarnelDesignData data(KzMath::Pi / 2.0, 0.01, 0.02, 0.03, 0.04);
    data.setCnom(0.05);
    data.setMinimumSteel(0.06);
    data.setBasicMeshL(document.manager.getStockMesh("Q335A"));
    data.setBasicMeshU(document.manager.getStockMesh("R257A"));
    data.setReinforcement(stock("B500A"));
    data.setMinShearReinforcement(0.7);
    data.setShearAngle(45.0);
    data.setStrutAngle(40.5);
    data.setJointPosition(0.08);
    data.setBondReinfAngle(60.0);
    data.setShearReinfStrength(435.0);
    data.setShearJointSurface(2);
    EXPECT_TRUE(read(written(data)) == data);
}

TEST_F(DesignElement, NullRecordWritesNothing) {
    document.exchange().updateDesignData(nullptr);
    EXPECT_EQ(textOf(document.find({})), "<VARNEL></VARNEL>");
}

TEST_F(DesignElement, NothingToReadIsHarmless) {
    VarnelDesignData data(1.0, 0.01, 0.02, 0.03, 0.04);
    const VarnelDesignData before = data;
    KzXmlData element("PLATE", nullptr);
    element.makeChild("DESIGN")->setAttribute("CUX", 1.0);
    document.exchange().readDesignData(nullptr, &data);
    document.exchange().readDesignData(&element, nullptr);
    EXPECT_TRUE(data == before);
}

TEST_F(DesignElement, MissingItemsLeaveTheRecord) {
    VarnelDesignData data(1.0, 0.01, 0.02, 0.03, 0.04);
    data.setBasicMeshL(document.manager.getStockMesh("Q335A"));
    data.setReinforcement(stock("B500A"));
    data.setStrutAngle(40.0);
    data.setShearJointSurface(3);
    const VarnelDesignData before = data;
    readInto(data, "");
    readInto(data, "<DESIGN/>");
    readInto(data, "<SHEAR STRUT-ANGLE=\"1\"/><OTHER><DESIGN CUX=\"1\"/></OTHER>");
    EXPECT_TRUE(data == before);
}

TEST_F(DesignElement, EachNumberGoesToItsField) {
    const struct {
        const char *key;
        double (VarnelDesignData::*get)() const;
        bool shear;
    } rows[] = {
        {"CUX", &VarnelDesignData::getCoverXu, false},
        {"CUY", &VarnelDesignData::getCoverYu, false},
        {"CLX", &VarnelDesignData::getCoverXl, false},
        {"CLY", &VarnelDesignData::getCoverYl, false},
        {"CNOM", &VarnelDesignData::getCnom, false},
        {"MIN-STEEL", &VarnelDesignData::getMinimumSteel, false},
        {"MIN-SHEAR-REINF", &VarnelDesignData::getMinShearReinforcement, true},
        {"SHEAR-ANGLE", &VarnelDesignData::getShearAngle, true},
        {"STRUT-ANGLE", &VarnelDesignData::getStrutAngle, true},
        {"JOINT-POSITION", &VarnelDesignData::getJointPosition, true},
        {"BOND-REINF-ANGLE", &VarnelDesignData::getBondReinfAngle, true},
        {"SHEAR-REINF-STRENGTH", &VarnelDesignData::getShearReinfStrength, true},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.key);
        const std::string attribute = std::string(row.key) + "=\"12.5\"";
        const VarnelDesignData data =
            read(row.shear ? "<DESIGN><SHEAR " + attribute + "/></DESIGN>" : "<DESIGN " + attribute + "/>");
        for (const auto &other : rows) {
            const double untouched = (VarnelDesignData().*other.get)();
            EXPECT_DOUBLE_EQ((data.*other.get)(), &other == &row ? 12.5 : untouched) << other.key;
        }
    }
}

TEST_F(DesignElement, AngleIsInDegreesInTheDocument) {
    const VarnelDesignData right = read("<DESIGN THETA=\"90\"/>");
    EXPECT_DOUBLE_EQ(right.getTheta(), KzMath::Pi / 2.0);
    EXPECT_NE(written(right).find("THETA=\"90\""), std::string::npos);
    for (const char *degrees : {"-45", "0", "180", "360", "nan", "inf"}) {
        SCOPED_TRACE(degrees);
        EXPECT_NE(written(read(std::string("<DESIGN THETA=\"") + degrees + "\"/>"))
                      .find(std::string("THETA=\"") + degrees + "\""),
                  std::string::npos);
    }
}

// To the last bit: other programs compute the same radians from the same text.
TEST_F(DesignElement, AngleIsDividedBeforeItIsMultiplied) {
    for (int degrees = 1; degrees <= 180; ++degrees) {
        const VarnelDesignData data = read("<DESIGN THETA=\"" + std::to_string(degrees) + "\"/>");
        EXPECT_EQ(data.getTheta(), degrees / 180.0 * KzMath::Pi) << degrees;
        document.exchange().updateDesignData(&data);
        EXPECT_EQ(document.find({"DESIGN"})->findAttribute("THETA")->getDouble(),
                  data.getTheta() / KzMath::Pi * 180.0)
            << degrees;
    }
}

TEST_F(DesignElement, AnglesOfShearAreTakenAsTheyStand) {
    EXPECT_DOUBLE_EQ(read("<DESIGN><SHEAR SHEAR-ANGLE=\"45\"/></DESIGN>").getShearAngle(), 45.0);
}

TEST_F(DesignElement, JointSurfaceHasAWordForEachValue) {
    const struct {
        int value;
        const char *word;
        int readBack;
    } rows[] = {{0, "INTENDED", 0},    {1, "ROUGH", 1},    {2, "SMOOTH", 2},
                {3, "VERY_SMOOTH", 3}, {4, "INTENDED", 0}, {-1, "INTENDED", 0}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.value);
        VarnelDesignData data;
        data.setShearJointSurface(row.value);
        EXPECT_NE(written(data).find(std::string("JOINT-SURFACE=\"") + row.word + "\""), std::string::npos);
        EXPECT_EQ(read(std::string("<DESIGN><SHEAR JOINT-SURFACE=\"") + row.word + "\"/></DESIGN>")
                      .getShearJointSurface(),
                  row.readBack);
    }
}

TEST_F(DesignElement, MissingJointSurfaceIsRoughAndAnUnknownOneIntended) {
    const struct {
        const char *shear;
        int surface;
    } rows[] = {{"<SHEAR/>", 1},
                {"<SHEAR JOINT-SURFACE=\"\"/>", 1},
                {"<SHEAR JOINT-SURFACE=\"rough\"/>", 0},
                {"<SHEAR JOINT-SURFACE=\"3\"/>", 0},
                {"", 3}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.shear);
        VarnelDesignData data;
        data.setShearJointSurface(3);  // whatever the record held before
        readInto(data, std::string("<DESIGN>") + row.shear + "</DESIGN>");
        EXPECT_EQ(data.getShearJointSurface(), row.surface);
    }
}

TEST_F(DesignElement, SteelIsFoundInTheProjectBeforeTheStock) {
    EXPECT_EQ(read("<DESIGN><STEEL>B500A</STEEL></DESIGN>").getReinforcement(), stock("B500A"));
    EXPECT_EQ(read("<STEEL>B500A</STEEL>").getReinforcement(), stock("B500A"));
    auto *own = new KzMaterialReinforcement("B500A", 1.0, 2.0);
    document.manager.getMaterialManager()->add(own);
    EXPECT_EQ(read("<DESIGN><STEEL>B500A</STEEL></DESIGN>").getReinforcement(), own);
    EXPECT_EQ(read("<STEEL>B500A</STEEL>").getReinforcement(), own);
}

TEST_F(DesignElement, SteelInsideOfTheElementWinsOverTheOldPlaceBesideIt) {
    EXPECT_EQ(read("<DESIGN><STEEL>B500B</STEEL></DESIGN><STEEL>B500A</STEEL>").getReinforcement()->getName(),
              "B500B");
    EXPECT_EQ(read("<DESIGN/><STEEL>B500A</STEEL>").getReinforcement()->getName(), "B500A");
}

TEST_F(DesignElement, TwoOldSteelsAreVariantsOfAnother) {
    const struct {
        const char *name;
        int variant;
    } rows[] = {{"B500M", 0}, {"B500N", 1}, {"B500H", 2}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const std::string text = std::string("<DESIGN><STEEL>") + row.name + "</STEEL></DESIGN>";
        const KzMaterialReinforcement *steel = read(text).getReinforcement();
        ASSERT_NE(steel, nullptr);
        EXPECT_EQ(steel->getName(), "B500M");
        EXPECT_EQ(steel->getVariant(), row.variant);
        EXPECT_EQ(read(text).getReinforcement(), steel);  // one object for each variant
    }
    EXPECT_EQ(stock("B500M")->getVariant(), 0);  // the stock itself is not altered
}

TEST_F(DesignElement, SteelOfTheProjectWinsOverTheVariant) {
    auto *own = new KzMaterialReinforcement("B500H", 1.0, 2.0);
    document.manager.getMaterialManager()->add(own);
    EXPECT_EQ(read("<DESIGN><STEEL>B500H</STEEL></DESIGN>").getReinforcement(), own);
}

TEST_F(DesignElement, UnknownSteelEndsTheReadingWithAnError) {
    document.manager.getMaterialManager()->add(new KzMaterial("plain", 1.0, 2.0));
    for (const char *content :
         {"<STEEL>mud</STEEL>", "<STEEL/>", "<STEEL>B500H</STEEL>", "<STEEL>plain</STEEL>",
          "<STEEL>C25/30</STEEL>",
          "<DESIGN CUX=\"0.5\"><STEEL>mud</STEEL><SHEAR STRUT-ANGLE=\"1\"/></DESIGN>",
          "<DESIGN CUX=\"0.5\"><STEEL>b500h</STEEL></DESIGN>", "<DESIGN CUX=\"0.5\"><STEEL/></DESIGN>"}) {
        SCOPED_TRACE(content);
        VarnelDesignData data;
        try {
            readInto(data, content);
            FAIL() << "no error";
        } catch (const Tools::Error &error) {
            EXPECT_STREQ(error.what(), "material not found");
        }
        EXPECT_EQ(data.getReinforcement(), nullptr);
        EXPECT_DOUBLE_EQ(data.getStrutAngle(), 0.0);
    }
}

TEST_F(DesignElement, MeshesComeFromTheProjectOrAsClonesFromTheStock) {
    const VarnelDesignData data = read("<DESIGN BASICL=\"Q335A\" BASICU=\"R257A\"/>");
    KzReinfMeshList *meshes = document.manager.getDgnMeshList();
    EXPECT_EQ(meshes->getMeshes().size(), 2u);
    EXPECT_EQ(data.getBasicMeshL(), meshes->findMesh("Q335A"));
    EXPECT_EQ(data.getBasicMeshU(), meshes->findMesh("R257A"));
    EXPECT_EQ(read("<DESIGN BASICL=\"Q335A\"/>").getBasicMeshL(), data.getBasicMeshL());
    EXPECT_EQ(meshes->getMeshes().size(), 2u);
}

TEST_F(DesignElement, EmptyOrUnknownMeshNameTakesTheMeshAway) {
    for (const char *name : {"", "chicken wire"}) {
        SCOPED_TRACE(name);
        VarnelDesignData data;
        data.setBasicMeshL(document.manager.getStockMesh("Q335A"));
        data.setBasicMeshU(document.manager.getStockMesh("Q335A"));
        readInto(data, std::string("<DESIGN BASICL=\"") + name + "\" BASICU=\"" + name + "\"/>");
        EXPECT_EQ(data.getBasicMeshL(), nullptr);
        EXPECT_EQ(data.getBasicMeshU(), nullptr);
    }
    EXPECT_EQ(document.manager.getDgnMeshList()->getMeshes().size(), 1u);
}

TEST_F(DesignElement, MeshOfAnEmptyNameInTheProjectIsFound) {
    auto *nameless = new KzReinfStockMesh("", 1.0, 2.0);
    document.manager.getDgnMeshList()->addMesh(nameless);
    EXPECT_EQ(read("<DESIGN BASICL=\"\"/>").getBasicMeshL(), nameless);
}

TEST_F(DesignElement, WithoutAManagerMeshesStayAndSteelComesFromTheStock) {
    document.exchange().setManager(nullptr);
    const VarnelDesignData data =
        read("<DESIGN BASICL=\"Q335A\" BASICU=\"R257A\"><STEEL>B500A</STEEL></DESIGN>");
    EXPECT_EQ(data.getBasicMeshL(), nullptr);
    EXPECT_EQ(data.getReinforcement(), stock("B500A"));
}

TEST_F(DesignElement, OddNumbersAreTakenAsTheyRead) {
    const VarnelDesignData data = read("<DESIGN CUX=\"\" CUY=\"abc\" CLX=\"1e400\" CLY=\"-inf\"/>");
    EXPECT_DOUBLE_EQ(data.getCoverXu(), 0.0);
    EXPECT_DOUBLE_EQ(data.getCoverYu(), 0.0);
    EXPECT_DOUBLE_EQ(data.getCoverXl(), std::numeric_limits<double>::infinity());
    EXPECT_DOUBLE_EQ(data.getCoverYl(), -std::numeric_limits<double>::infinity());
}

TEST_F(DesignElement, LocaleOfTheProcessChangesNothing) {
    VarnelDesignData data(0.75, 1234.5, 0.02, 0.03, 0.04);
    const std::string before = written(data);
    const varnel::test::CommaLocale comma;
    EXPECT_EQ(written(data), before);
    EXPECT_DOUBLE_EQ(read(before).getCoverXu(), 1234.5);
}

}  // namespace
