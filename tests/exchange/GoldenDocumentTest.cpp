// Whole documents: one with everything that is written, one with every form that is only read.

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <vector>

#include "tests/support/CompleteProject.h"
#include "tests/support/Document.h"
#include "tests/support/RandomModel.h"
#include "tests/support/RecordingServices.h"
#include "tests/support/TemporaryFolder.h"
#include "varnel/varnel.h"

namespace {

using varnel::test::TemporaryFolder;

std::string contentOf(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Templates of new objects are process-wide: every test starts and ends with their defaults.
class GoldenDocument : public testing::Test {
  protected:
    GoldenDocument() { resetDefaults(); }
    ~GoldenDocument() override { resetDefaults(); }

    void read(const char *path) {
        ASSERT_TRUE(document.exchange().fileInput(Tools::Path(path)));
        document.exchange().get(&document.manager);
    }

    Document document;
};

constexpr const char *everything = "tests/documents/everything.xml";
constexpr const char *olderForms = "tests/documents/older_forms.xml";

TEST_F(GoldenDocument, EverythingIsWrittenAsItStands) {
    const ChangedDefaults changed;
    CompleteProject project;
    EXPECT_EQ(project.write(), contentOf(everything));
    EXPECT_EQ(project.write(), contentOf(everything));
}

/// What the validator says of the documents against the schema; empty for valid ones.
std::string errorsOf(const std::vector<std::string> &paths, const TemporaryFolder &folder) {
    std::string command = "xmllint --noout --relaxng docs/schema/varnel.rng";
    for (const std::string &path : paths) command += " '" + path + "'";
    const bool valid = std::system((command + " 2> '" + folder.file("errors.txt") + "'").c_str()) == 0;
    return valid ? "" : "invalid: " + folder.read("errors.txt");
}

TEST_F(GoldenDocument, DocumentsAreValid) {
    const TemporaryFolder folder;
    read(olderForms);
    document.manager.setLoadcaseAutomation(false);
    folder.write("older.xml", document.write());
    folder.write("empty.xml", Document().write());
    EXPECT_EQ(errorsOf({everything, folder.file("older.xml"), folder.file("empty.xml")}, folder), "");
}

TEST_F(GoldenDocument, DocumentsOfRandomProjectsAreValid) {
    const TemporaryFolder folder;
    std::vector<std::string> paths;
    for (unsigned seed = 0; seed < 40; ++seed) {
        resetDefaults();
        recording::DocumentFactory factory;
        VarnelManager manager(&factory);
        varnel::test::RandomModel model(manager, seed, seed % 2 == 0);
        model.fill();
        model.setProcessDefaults();
        model.addResults();
        paths.push_back(folder.file(std::to_string(seed) + ".xml"));
        manager.output(paths.back().c_str());
        // The second document of an unchanged project holds load cases and results as well.
        if (seed % 2 == 0) manager.output(paths.back().c_str());
    }
    EXPECT_EQ(errorsOf(paths, folder), "");
}

/// An exchange of a host that wants the lists of points and lines, too.
class WithPointsAndLines : public VarnelExchangeXml {
  public:
    WithPointsAndLines() {
        setWritePoints(true);
        setWriteLines(true);
    }
};

TEST_F(GoldenDocument, DocumentWithForeignContentAndFurtherListsIsValid) {
    const TemporaryFolder folder;
    WithPointsAndLines exchange;
    std::string content = "<FOREIGN/>";
    for (const char *list : {"MATERIALS", "SECTIONS", "MESHES", "FOUNDATIONS"})
        content += std::string("<") + list + " FOREIGN=\"1\"><FOREIGN/></" + list + ">";
    std::istringstream stream("<VARNEL FOREIGN=\"1\">" + content +
                              "<SUBSYSTEM FOREIGN=\"1\"><FOREIGN A=\"1\">x</FOREIGN><REFINEPOLYS/><GAPS "
                              "FOREIGN=\"1\"><FOREIGN/></GAPS>"
                              "</SUBSYSTEM><SUBSYSTEM NAME=\"Second\"/></VARNEL>");
    exchange.getTree()->buildOfStream(stream);
    exchange.get(&document.manager);
    Varnel &model = document.model();
    model.givePoint(KzVector3D(1, 2, 3));
    // All lines meet in one element, whatever their kind.
    model.add(new VarnelStraight(KzVector3D(), KzVector3D(1, 0, 0)));
    model.add(new VarnelCircle(KzVector3D(), KzVector3D(1, 0, 0), KzVector3D(0, 1, 0)));
    model.add(new VarnelStraight(KzVector3D(), KzVector3D(2, 0, 0)));
    document.manager.setup();
    exchange.updateSystem(&document.manager);
    std::ostringstream text;
    exchange.getTree()->putToStream(text, true);
    for (const char *kept : {"<VARNEL FOREIGN=\"1\">", "<SUBSYSTEM FOREIGN=\"1\"", "<GAPS FOREIGN=\"1\">",
                             "<MATERIALS FOREIGN=\"1\">", "<SECTIONS FOREIGN=\"1\">",
                             "<MESHES FOREIGN=\"1\">", "<FOUNDATIONS FOREIGN=\"1\">", "NAME=\"Second\""})
        EXPECT_NE(text.str().find(kept), std::string::npos) << kept;
    EXPECT_EQ(errorsOf({folder.write("foreign.xml", text.str())}, folder), "") << text.str();
}

TEST_F(GoldenDocument, ResourcesAndSettingsOfEverythingAreRead) {
    read(everything);
    const VarnelManager &manager = document.manager;
    EXPECT_FALSE(manager.getLoadcaseAutomation());
    EXPECT_EQ(manager.getSystemBoundary(), 4);
    EXPECT_EQ(manager.getDesignLocation(), 1);
    const KzMaterial *own = manager.getMaterialManager()->findConcreteToName("C28/35 own", 0);
    ASSERT_NE(own, nullptr);
    EXPECT_DOUBLE_EQ(own->getRho(), 2450.0);
    EXPECT_DOUBLE_EQ(own->getGammaValue(), 24.5);
    ASSERT_NE(manager.getSectionManager()->findSectionToName("Own 20/45"), nullptr);
    EXPECT_DOUBLE_EQ(manager.getSectionManager()->findSectionToName("Own 20/45")->getArea(), 0.09);
    EXPECT_NE(manager.getDgnMeshList()->findMesh("R257A"), nullptr);
    EXPECT_NE(manager.getDgnList()->findBeamReinf(3), nullptr);
    KzVector3D stiffness;
    manager.getFoundationManager()->findFoundation("F1")->getDispLine(stiffness);
    EXPECT_TRUE(stiffness == KzVector3D(1000, 2000, 30000));
    ASSERT_EQ(manager.getLoadcases().size(), 2u);
    EXPECT_EQ(manager.getLoadcases().back()->getName(), "Live & \"wind\"");
    EXPECT_TRUE(manager.getLoadcases().back()->doCalculateEigen());
    EXPECT_FALSE(manager.getLoadcases().back()->isPrimary());
    EXPECT_EQ(manager.getCurrentLoadcase(), manager.getLoadcases().back());
    const VarnelDefaultProperties &defaults = *VarnelDefaultProperties::get();
    EXPECT_EQ(defaults.getLBData().getName(), "W");
    EXPECT_DOUBLE_EQ(defaults.getPlateProp().getThick(), 0.18);
    EXPECT_TRUE(defaults.getLineLoad().getP1() == KzVector3D(0, 0, 3));
    EXPECT_TRUE(defaults.getPointLoad().getData().getForce() == KzVector3D(0, 0, 10));
    EXPECT_TRUE(defaults.getAreaLoad().getData().getP() == KzVector3D(0, 0, 2.5));
    EXPECT_DOUBLE_EQ(defaults.getBeamProp().getAngle(), 15.0);
    EXPECT_EQ(defaults.getPBData().getDof(), 7);
    EXPECT_EQ(defaults.getHole().getName(), "H");
    EXPECT_EQ(defaults.getLDA().getName(), "F");
}

TEST_F(GoldenDocument, MembersOfEverythingAreRead) {
    read(everything);
    const Varnel &model = document.model();
    ASSERT_EQ(model.getNumberOfPlates(), 2);
    const VarnelPlate *slab = model.getPlates().front();
    EXPECT_EQ(slab->getName(), "Slab <1>");
    EXPECT_DOUBLE_EQ(slab->getGeo()->getArea(), 6.5 * 4.25);
    EXPECT_EQ(slab->getMaterial(0)->getName(), "C28/35 own");
    EXPECT_EQ(slab->getFoundation()->getName(), "F1");
    EXPECT_EQ(slab->getBoundary(0)->getStiffness(), (std::vector<double>{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(slab->getGeo()->getLine(1)->getNumberOfParts(), 12);
    EXPECT_EQ(slab->getDesign()->getReinforcement()->getName(), "B500A");
    EXPECT_EQ(slab->getDesign()->getShearJointSurface(), 3);
    EXPECT_EQ(slab->getDesign()->getBasicMeshU()->getName(), "R257A");
    EXPECT_EQ(model.getPlates().back()->getGeo()->getNumLines(), 2u);
    const VarnelBeam *beam = model.getBeams().front();
    EXPECT_EQ(beam->getReinfLine()->getNumber(), 3);
    EXPECT_EQ(beam->getSection(1)->getName(), "R 30/50");
    EXPECT_NE(beam->getLeftGap(), nullptr);
    EXPECT_EQ(beam->getFoundations().size(), 1u);
    EXPECT_TRUE(beam->getResultStates().empty());
    EXPECT_EQ(model.getBeams().back()->getGeo()->getNumLines(), 2u);
    EXPECT_TRUE(model.getHoles().front()->getLoadDistribution());
    EXPECT_EQ(model.getAttributeAreas().front()->getMaterial(0)->getName(), "C50/60");
    EXPECT_EQ(model.getLoadDistributionAreas().front()->getName(), "Field");
    ASSERT_EQ(model.getNumberOfPointBoundaries(), 3);
    EXPECT_NE(dynamic_cast<VarnelPointBoundaryRectan *>(model.getPointBoundaries().front()), nullptr);
    EXPECT_DOUBLE_EQ(model.getPointBoundaries().back()->getSpacing(), 2.5);
    EXPECT_TRUE(model.getLineBoundaries().front()->getLocsys() == KzVector3D(0, 1, 0));
}

TEST_F(GoldenDocument, LoadsGroupsAndStagesOfEverythingAreRead) {
    read(everything);
    const Varnel &model = document.model();
    EXPECT_TRUE(model.getPointLoads().front()->getData().getMoment() == KzVector3D(0, 2.5, 0));
    const VarnelLineLoad *line = model.getLineLoads().front();
    EXPECT_TRUE(line->getData().getM2() == KzVector3D(0, 0.25, 0));
    EXPECT_EQ(line->getLocsysType(), 2);
    EXPECT_EQ(line->getLoadcase()->getNumber(), 2);
    EXPECT_EQ(model.getNumberOfAreaLoads(), 2);
    const VarnelObjectGroup *group = model.getObjectGroups().front();
    EXPECT_FALSE(group->getUserDefined());
    EXPECT_TRUE(group->getBase().getVector(3) == KzVector3D(1, 2, 3));
    EXPECT_EQ(group->getObjects().size(), 8u);  // the area for distribution and the beam load are not read
    EXPECT_EQ(model.getResultSections().front()->getName(), "A-A");
    const VarnelSubSystem *root = document.manager.getCurrentSubSystem();
    ASSERT_EQ(root->getChildren().size(), 1u);
    EXPECT_TRUE(root->getChildren().front()->getOffset() == KzVector3D(10, 20, 30));
    EXPECT_EQ(root->getChildren().front()->getChildren().front()->getName(), "Cabin");
    ASSERT_EQ(root->getConstructionStages().size(), 2u);
    const auto *stage = dynamic_cast<VarnelConstructionStage *>(root->getConstructionStages().front());
    ASSERT_NE(stage, nullptr);
    EXPECT_EQ(stage->getName(), "Carcass");
    EXPECT_EQ(stage->getObjectStates().size(), 10u);
}

TEST_F(GoldenDocument, EverythingIsStableAfterOneReading) {
    std::string texts[3];
    texts[0] = contentOf(everything);
    for (int i = 1; i < 3; ++i) {
        resetDefaults();
        Document next;
        next.read(texts[i - 1]);
        texts[i] = next.write();
    }
    EXPECT_NE(texts[1], texts[0]);  // a model that was just read is changed: no load cases, no results
    EXPECT_EQ(texts[2], texts[1]);
}

TEST_F(GoldenDocument, OlderFormsOfSettingsAndMembersAreRead) {
    read(olderForms);
    EXPECT_TRUE(document.manager.getLoadcaseAutomation());
    EXPECT_EQ(document.manager.getSystemBoundary(), 6);
    EXPECT_FALSE(document.manager.getOwnWeight());
    const Varnel &model = document.model();
    EXPECT_TRUE(model.getPointBoundaries().front()->getCoor() == KzVector3D(1, 2, 0));
    const VarnelBeam *beam = model.getBeams().front();
    EXPECT_EQ(beam->getElementType(), 2);
    EXPECT_DOUBLE_EQ(beam->getLength(), 4.0);
    EXPECT_TRUE(beam->getJoints().empty());
    ASSERT_EQ(beam->getFoundations().size(), 1u);
    KzVector3D stiffness;
    beam->getFoundations().front()->getFEnd()->getDispLine(stiffness);
    EXPECT_TRUE(stiffness == KzVector3D(0, 0, 200));
    EXPECT_DOUBLE_EQ(model.getBeams().back()->getLength(), 1.0);
    const VarnelPlate *plate = model.getPlates().front();
    EXPECT_EQ(plate->getName(),
              "K\xC3\xBC"
              "che");
    EXPECT_DOUBLE_EQ(plate->getMeshSizeX(), 0.3);
    EXPECT_DOUBLE_EQ(plate->getGeo()->getArea(), 12.0);
    plate->getFoundation()->getDispLine(stiffness);
    EXPECT_TRUE(stiffness == KzVector3D(0, 0, 5000));
    EXPECT_EQ(plate->getDesign()->getReinforcement()->getVariant(), 2);
    EXPECT_TRUE(plate->getBoundary(1)->getLocsys() == KzVector3D(0, 1, 0));
    EXPECT_TRUE(plate->getAreaLoads().front()->getData().getP() == KzVector3D(0, 0, 2.5));
    EXPECT_TRUE(plate->getAreaLoads().back()->getData().getP() == KzVector3D(3, 4, 5));
    const VarnelArea *outline = model.getPlates().back()->getGeo();
    ASSERT_EQ(outline->getNumLines(), 3u);
    EXPECT_NE(dynamic_cast<VarnelCircle *>(outline->getLine(2)), nullptr);
    EXPECT_TRUE(model.getLineBoundaries().front()->getGeo()->getStartVec() == KzVector3D(1, 0, 0));
    EXPECT_DOUBLE_EQ(model.getAttributeAreas().front()->getMeshSize(), 0.125);
    EXPECT_EQ(model.getGaps().front()->numberOfLines(), 1u);
    EXPECT_EQ(model.getRefinePolygons().front()->getNumber(), 2);
    EXPECT_EQ(model.getPointLoads().front()->getNumber(), 0);
    EXPECT_EQ(model.getPointLoads().front()->getLoadcase()->getNumber(), 7);
    EXPECT_DOUBLE_EQ(model.getLineLoads().front()->getLine()->getLength(), 2.0);
    EXPECT_TRUE(model.getAreaLoads().front()->getData().getP() == KzVector3D(0, 0, 4));
}

TEST_F(GoldenDocument, OlderFormsAreWrittenInTheFormOfToday) {
    read(olderForms);
    const std::string text = document.write();
    for (const char *gone :
         {"<POLY>", "POSA", "<LOAD>", "MESHSIZE=\"0.3\"", "<AUTOLOAD>", "NAME=\"gone\"", "JOINTS"})
        EXPECT_EQ(text.find(gone), std::string::npos) << gone;
    for (const char *kept :
         {"<GAP THICK=\"0.02\">", "<REFINE NUMBER=\"2\">", "<FOREIGN KEPT=\"1\"/>", "NAME=\"System\""})
        EXPECT_NE(text.find(kept), std::string::npos) << kept;
}

}  // namespace
