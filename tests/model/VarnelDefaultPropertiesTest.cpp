#include "varnel/model/VarnelDefaultProperties.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

#include "varnel/contracts/Found/Foundation.h"
#include "varnel/contracts/Found/FoundationManager.h"
#include "varnel/contracts/KzMaterial.h"
#include "varnel/contracts/KzMaterialManager.h"
#include "varnel/contracts/KzMaterialReinforcement.h"
#include "varnel/contracts/KzPreStressSteel.h"
#include "varnel/contracts/KzReinfLine.h"
#include "varnel/contracts/KzReinfLineList.h"
#include "varnel/contracts/KzReinfMeshList.h"
#include "varnel/contracts/KzReinfSteel.h"
#include "varnel/contracts/KzReinfStockMesh.h"
#include "varnel/contracts/SDBSectionLine.h"
#include "varnel/contracts/SDBSectionManager.h"
#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/loads/VarnelLineLoadData.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelBeamProperties.h"
#include "varnel/members/VarnelDesignData.h"
#include "varnel/members/VarnelHole.h"
#include "varnel/members/VarnelLineBoundaryData.h"
#include "varnel/members/VarnelLoadDistributionArea.h"
#include "varnel/members/VarnelPlateProperties.h"
#include "varnel/members/VarnelPointBoundaryData.h"
#include "varnel/process/VarnelFactory.h"
#include "varnel/process/VarnelManager.h"

namespace {

/// Puts all records back to what they were at the start of the process.
class DefaultProperties : public ::testing::Test {
  protected:
    void SetUp() override { reset(); }
    void TearDown() override { reset(); }

    VarnelDefaultProperties &defaults = *VarnelDefaultProperties::get();

  private:
    void reset() {
        defaults.setLBData(VarnelLineBoundaryData(0, ""));
        defaults.setPlateProp(VarnelPlateProperties());
        defaults.setLineLoad(VarnelLineLoadData());
        defaults.setPointLoad(VarnelPointLoad());
        defaults.setAreaLoad(VarnelAreaLoad());
        defaults.setBeamProp(VarnelBeamProperties());
        defaults.setPBData(VarnelPointBoundaryData());
        defaults.setHole(VarnelHole());
        defaults.setLDA(VarnelLoadDistributionArea());
    }
};

void expectFresh(const VarnelDefaultProperties &defaults) {
    EXPECT_EQ(defaults.getLBData().getName(), "");
    EXPECT_EQ(defaults.getLBData().getDof(), 0);
    EXPECT_EQ(defaults.getPlateProp().getName(), "");
    EXPECT_EQ(defaults.getPlateProp().getThick(), 0.2);
    EXPECT_EQ(defaults.getLineLoad().getName(), "");
    EXPECT_EQ(defaults.getPointLoad().getName(), "");
    EXPECT_EQ(defaults.getAreaLoad().getName(), "");
    EXPECT_EQ(defaults.getAreaLoad().getP(), KzVector3D(0, 0, 1));
    EXPECT_EQ(defaults.getBeamProp().getName(), "");
    EXPECT_EQ(defaults.getPBData().getName(), "");
    EXPECT_EQ(defaults.getHole().getName(), "");
    EXPECT_EQ(defaults.getLDA().getName(), "");
}

/// The addresses of all records.
std::vector<const void *> records(const VarnelDefaultProperties &defaults) {
    return {&defaults.getLBData(),    &defaults.getPlateProp(), &defaults.getLineLoad(),
            &defaults.getPointLoad(), &defaults.getAreaLoad(),  &defaults.getBeamProp(),
            &defaults.getPBData(),    &defaults.getHole(),      &defaults.getLDA()};
}

}  // namespace

TEST_F(DefaultProperties, ThereIsOneInstance) {
    EXPECT_EQ(VarnelDefaultProperties::get(), &defaults);
}

// These two run in a process of their own, which no other test has touched.

TEST(DefaultPropertiesDeathTest, RecordsStartWithEmptyNames) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto start = [] {
        expectFresh(*VarnelDefaultProperties::get());
        std::exit(::testing::Test::HasFailure() ? 1 : 0);
    };
    EXPECT_EXIT(start(), ::testing::ExitedWithCode(0), "");
}

TEST(DefaultPropertiesDeathTest, OutliveAManagerThatLivesToTheEnd) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto run = [] {
        static VarnelFactory factory;
        static const VarnelManager manager(&factory);
        expectFresh(*VarnelDefaultProperties::get());  // first asked for after the manager was made
        std::exit(0);
    };
    EXPECT_EXIT(run(), ::testing::ExitedWithCode(0), "");
}

TEST_F(DefaultProperties, SettersAssignToTheRecordThatReferencesSee) {
    const VarnelBeamProperties &earlier = defaults.getBeamProp();
    VarnelBeamProperties beam;
    beam.setName("B");
    beam.setParts(4);
    defaults.setBeamProp(beam);
    EXPECT_EQ(&defaults.getBeamProp(), &earlier);
    EXPECT_NE(&defaults.getBeamProp(), &beam);
    EXPECT_EQ(earlier.getName(), "B");
    EXPECT_EQ(earlier.getParts(), 4);
    defaults.setBeamProp(defaults.getBeamProp());
    EXPECT_EQ(earlier.getName(), "B");
}

TEST_F(DefaultProperties, EverySetterStoresInTheRecordThatIsThere) {
    const std::vector<const void *> before = records(defaults);
    VarnelPlateProperties plate;
    plate.setThick(0.5);
    defaults.setPlateProp(plate);
    EXPECT_EQ(defaults.getPlateProp().getThick(), 0.5);
    VarnelLineLoadData line;
    line.setP1(KzVector3D(1, 2, 3));
    defaults.setLineLoad(line);
    EXPECT_EQ(defaults.getLineLoad().getP1(), KzVector3D(1, 2, 3));
    VarnelPointLoad point;
    point.setForce(4, 5, 6);
    defaults.setPointLoad(point);
    EXPECT_EQ(defaults.getPointLoad().getForce(), KzVector3D(4, 5, 6));
    VarnelAreaLoad area;
    area.setP(7, 8, 9);
    defaults.setAreaLoad(area);
    EXPECT_EQ(defaults.getAreaLoad().getP(), KzVector3D(7, 8, 9));
    defaults.setLBData(VarnelLineBoundaryData(5, "W"));
    EXPECT_EQ(defaults.getLBData().getDof(), 5);
    VarnelPointBoundaryData support;
    support.setDof(6);
    defaults.setPBData(support);
    EXPECT_EQ(defaults.getPBData().getDof(), 6);
    VarnelHole hole;
    hole.setLoadDistribution(true);
    defaults.setHole(hole);
    EXPECT_TRUE(defaults.getHole().getLoadDistribution());
    VarnelLoadDistributionArea distribution;
    distribution.setName("A");
    defaults.setLDA(distribution);
    EXPECT_EQ(defaults.getLDA().getName(), "A");
    EXPECT_EQ(records(defaults), before);
}

TEST_F(DefaultProperties, KnowsTheResourcesOfItsRecords) {
    KzMaterial ofBeam("A", 1, 1), ofPlate("B", 1, 1), other("C", 1, 1);
    SDBSectionLine start("S", 1), end("E", 1);
    Found::Foundation underBeam{KzVector3D(1, 0, 0)}, underPlate{KzVector3D(2, 0, 0)};
    VarnelBeamProperties beam;
    beam.setMaterial(&ofBeam);
    beam.setSection(&start, 0);
    beam.setSection(&end, 1);
    beam.setFoundation(&underBeam);
    defaults.setBeamProp(beam);
    VarnelPlateProperties plate;
    plate.setMaterial(&ofPlate);
    plate.setFoundation(&underPlate);
    defaults.setPlateProp(plate);
    EXPECT_TRUE(defaults.check(&ofBeam));
    EXPECT_TRUE(defaults.check(&ofPlate));
    EXPECT_FALSE(defaults.check(&other));
    EXPECT_TRUE(defaults.check(&start));
    EXPECT_FALSE(defaults.check(&end)) << "only the section at the start is looked at";
    EXPECT_TRUE(defaults.check(&underBeam));
    EXPECT_TRUE(defaults.check(&underPlate));
}

TEST_F(DefaultProperties, ProtectsResourcesOfAManagerOnlyWhileItIsRegistered) {
    VarnelFactory factory;
    VarnelManager manager(&factory);
    auto *material = new KzMaterial("A", 1, 1);
    manager.getMaterialManager()->add(material);
    auto *section = new SDBSectionLine("S", 1);
    manager.getSectionManager()->add(section);
    auto *foundation = new Found::Foundation(KzVector3D(1, 0, 0));
    manager.getFoundationManager()->add(foundation);
    VarnelPlateProperties plate;
    plate.setMaterial(material);
    plate.setFoundation(foundation);
    defaults.setPlateProp(plate);
    VarnelBeamProperties beam;
    beam.setSection(section, 0);
    defaults.setBeamProp(beam);
    defaults.addToAsUser(nullptr);
    defaults.addToAsUser(&manager);
    EXPECT_FALSE(manager.getMaterialManager()->remove(material));
    EXPECT_FALSE(manager.getSectionManager()->remove(section));
    EXPECT_FALSE(manager.getFoundationManager()->remove(foundation));
    defaults.removeAsUser(nullptr);
    defaults.removeAsUser(&manager);
    EXPECT_TRUE(manager.getMaterialManager()->remove(material));
    EXPECT_TRUE(manager.getSectionManager()->remove(section));
    EXPECT_TRUE(manager.getFoundationManager()->remove(foundation));
}

TEST_F(DefaultProperties, ThePlateForgetsTheThingsOfADyingManager) {
    {
        VarnelFactory factory;
        VarnelManager manager(&factory);
        auto *material = new KzMaterial("A", 1, 1);
        manager.getMaterialManager()->add(material);
        auto *steel = new KzMaterialReinforcement("R", 1, 1);
        manager.getMaterialManager()->add(steel);
        auto *strands = new KzPreStressSteel("P", 1, 1);
        manager.getMaterialManager()->add(strands);
        auto *foundation = new Found::Foundation(KzVector3D(1, 0, 0));
        manager.getFoundationManager()->add(foundation);
        auto *mesh = new KzReinfStockMesh("Q", 1, 1);
        manager.getDgnMeshList()->add(mesh);
        VarnelDesignData design;
        design.setReinforcement(steel);
        design.setPrestressingSteel(strands);
        design.setBasicMeshL(mesh);
        design.setBasicMeshU(mesh);
        VarnelPlateProperties plate;
        plate.setMaterial(material);
        plate.setFoundation(foundation);
        plate.setDesign(&design);
        defaults.setPlateProp(plate);
    }
    const VarnelPlateProperties &plate = defaults.getPlateProp();
    EXPECT_EQ(plate.getMaterial(), nullptr);
    EXPECT_EQ(plate.getFoundation(), nullptr);
    ASSERT_NE(plate.getDesign(), nullptr);
    EXPECT_EQ(plate.getDesign()->getReinforcement(), nullptr);
    EXPECT_EQ(plate.getDesign()->getPrestressingSteel(), nullptr);
    EXPECT_EQ(plate.getDesign()->getBasicMeshL(), nullptr);
    EXPECT_EQ(plate.getDesign()->getBasicMeshU(), nullptr);
}

TEST_F(DefaultProperties, TheBeamForgetsTheThingsOfADyingManager) {
    KzPreStressSteel kept("kept", 1, 1);
    {
        VarnelFactory factory;
        VarnelManager manager(&factory);
        auto *steel = new KzReinfSteel("T", 1, 1);
        manager.getMaterialManager()->add(steel);
        auto *section = new SDBSectionLine("S", 1);
        manager.getSectionManager()->add(section);
        auto *foundation = new Found::Foundation(KzVector3D(1, 0, 0));
        manager.getFoundationManager()->add(foundation);
        auto *bars = new KzReinfLine(1, "B");
        manager.getDgnList()->add(bars);
        VarnelDesignData design;
        design.setReinforcement(steel);
        design.setPrestressingSteel(&kept);
        VarnelBeamProperties beam;
        beam.setMaterial(steel);
        beam.setReinfSteel(steel);
        beam.setReinfLine(bars);
        beam.setSection(section, 0);
        beam.setSection(section, 1);
        beam.setFoundation(foundation);
        beam.setDesign(&design);
        defaults.setBeamProp(beam);
    }
    const VarnelBeamProperties &beam = defaults.getBeamProp();
    EXPECT_EQ(beam.getMaterial(), nullptr);
    EXPECT_EQ(beam.getReinSteel(), nullptr);
    EXPECT_EQ(beam.getReinfLine(), nullptr);
    EXPECT_EQ(beam.getSection(0), nullptr);
    EXPECT_EQ(beam.getSection(1), nullptr);
    EXPECT_EQ(beam.getFoundation(), nullptr);
    ASSERT_NE(beam.getDesign(), nullptr);
    EXPECT_EQ(beam.getDesign()->getReinforcement(), nullptr);
    EXPECT_EQ(beam.getDesign()->getPrestressingSteel(), &kept) << "it is not the manager's";
}

TEST_F(DefaultProperties, TheLoadsForgetTheCaseOfADyingManager) {
    {
        VarnelFactory factory;
        VarnelManager manager(&factory);
        auto *loadcase = manager.giveLoadcaseToNumber(3, true);
        VarnelPointLoad point;
        point.setLoadcase(loadcase);
        defaults.setPointLoad(point);
        VarnelAreaLoad area;
        area.setLoadcase(loadcase);
        defaults.setAreaLoad(area);
        VarnelLineLoadData line;
        line.setLoadcase(loadcase);
        defaults.setLineLoad(line);
    }
    EXPECT_EQ(defaults.getPointLoad().getLoadcase(), nullptr);
    EXPECT_EQ(defaults.getAreaLoad().getLoadcase(), nullptr);
    EXPECT_EQ(defaults.getLineLoad().getLoadcase(), nullptr);
}

TEST_F(DefaultProperties, ForgetsOneLoadcase) {
    SysBase::Loadcase first(1), second(2);
    VarnelPointLoad point;
    point.setLoadcase(&first);
    defaults.setPointLoad(point);
    VarnelLineLoadData line;
    line.setLoadcase(&second);
    defaults.setLineLoad(line);
    defaults.forget(&first);
    EXPECT_EQ(defaults.getPointLoad().getLoadcase(), nullptr);
    EXPECT_EQ(defaults.getLineLoad().getLoadcase(), &second);
}

TEST_F(DefaultProperties, AssigningSharesTheRecords) {
    const VarnelBeamProperties &beam = defaults.getBeamProp();
    const VarnelDefaultProperties &same = defaults;
    defaults = same;
    EXPECT_EQ(&defaults.getBeamProp(), &beam);
}
