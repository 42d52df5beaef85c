#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "varnel/contracts/Found/Foundation.h"
#include "varnel/contracts/KzConcrete.h"
#include "varnel/contracts/KzMaterial.h"
#include "varnel/contracts/KzMatrix44.h"
#include "varnel/contracts/KzReinfStockMesh.h"
#include "varnel/contracts/SDBSectionLine.h"
#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/geometry/VarnelAreaPolygon.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/geometry/VarnelStraight.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelAttributeArea.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelDesignData.h"
#include "varnel/members/VarnelFoundedPart.h"
#include "varnel/members/VarnelHole.h"
#include "varnel/members/VarnelJoint.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/model/VarnelDB.h"
#include "varnel/process/VarnelFactory.h"
#include "varnel/process/VarnelManager.h"
#include "varnel/stages/VarnelBeamState.h"
#include "varnel/stages/VarnelConstructionStage.h"

namespace {

std::string asked;

/// Notes when a box is handed to it.
template <class Base, char letter>
class Boxed : public Base {
  public:
    using Base::Base;
    void updateMinMax(KzVector3D *min, KzVector3D *max, const KzMatrix44 &frame) const override {
        asked += letter;
        Base::updateMinMax(min, max, frame);
    }
};

}  // namespace

TEST(VarnelQueries, AMaterialIsInUseInBeamsAndPlatesOnly) {
    VarnelDB model(nullptr);
    KzMaterial ofBeam("A", 1, 1), ofPlate("B", 1, 1), ofArea("C", 1, 1);
    model.giveBeam(true)->setMaterial(&ofBeam, 0);
    model.givePlate(true)->setMaterial(&ofPlate, 0);
    model.giveAttributeArea()->setMaterial(&ofArea, 0);
    EXPECT_TRUE(model.check(&ofBeam));
    EXPECT_TRUE(model.check(&ofPlate));
    EXPECT_FALSE(model.check(&ofArea));
}

TEST(VarnelQueries, NullIsComparedLikeAnyPointer) {
    VarnelDB model(nullptr);
    EXPECT_FALSE(model.check(static_cast<const KzMaterial *>(nullptr)));
    model.giveBeam(true);
    EXPECT_TRUE(model.check(static_cast<const KzMaterial *>(nullptr)));
    EXPECT_FALSE(model.check(static_cast<const SDBSection *>(nullptr)));
    model.addGeneratedSection(nullptr);
    EXPECT_TRUE(model.check(static_cast<const SDBSection *>(nullptr)));
}

TEST(VarnelQueries, ALineSectionIsInUseAtEitherEndOfABeam) {
    VarnelDB model(nullptr);
    SDBSectionLine start("S", 0.1), end("E", 0.1), other("O", 0.1);
    VarnelBeam *beam = model.giveBeam(true);
    beam->setSection(&start, 0);
    beam->setSection(&end, 1);
    EXPECT_TRUE(model.check(&start));
    EXPECT_TRUE(model.check(&end));
    EXPECT_FALSE(model.check(&other));
    model.addGeneratedSection(&other);
    model.addGeneratedSection(&other);
    EXPECT_TRUE(model.check(&other));
}

TEST(VarnelQueries, ASectionOfAnotherKindIsInUseOnlyIfGenerated) {
    Varnel model(nullptr);
    SDBSection section("S", 0.1);
    EXPECT_FALSE(model.check(&section));
    model.addGeneratedSection(&section);
    EXPECT_TRUE(model.check(&section));
}

TEST(VarnelQueries, AFoundationIsInUseUnderABeamOrAPlate) {
    VarnelDB model(nullptr);
    Found::Foundation first{KzVector3D(1, 0, 0)}, second{KzVector3D(2, 0, 0)}, third{KzVector3D(3, 0, 0)};
    model.giveBeam(true)->setFoundation(&first);
    model.givePlate(true)->setFoundation(&second);
    EXPECT_TRUE(model.check(&first));
    EXPECT_TRUE(model.check(&second));
    EXPECT_FALSE(model.check(&third));
}

TEST(VarnelQueries, AFoundationIsInUseUnderAPartOfABeam) {
    VarnelFactory factory;
    VarnelManager manager(&factory);
    Varnel &model = *manager.getDatabase();
    VarnelBeam *beam = model.giveBeam(true);
    beam->addFoundation(KzVector3D(0, 0, 1), 0.0, KzVector3D(0, 0, 2), 0.5, &manager);
    const VarnelFoundedPart *part = beam->getFoundations().front();
    EXPECT_TRUE(model.check(part->getFStart()));
    EXPECT_TRUE(model.check(part->getFEnd()));
}

TEST(VarnelQueries, AMeshIsInUseInThePlatesDesign) {
    VarnelDB model(nullptr);
    KzReinfStockMesh lower("L", 1, 1), upper("U", 1, 1), other("O", 1, 1);
    VarnelDesignData design;
    design.setBasicMeshL(&lower);
    design.setBasicMeshU(&upper);
    model.givePlate(true)->setDesign(&design);
    EXPECT_TRUE(model.check(&lower));
    EXPECT_TRUE(model.check(&upper));
    EXPECT_FALSE(model.check(&other));
}

TEST(VarnelQueries, OnlyBeamsAndPlatesAreContained) {
    VarnelDB model(nullptr);
    for (int i = 0; i < 2; ++i) {
        SCOPED_TRACE(i);  // a short list first, then one that is tabulated
        VarnelBeam *beam = model.giveBeam(true);
        VarnelPlate *plate = model.givePlate(true);
        VarnelHole *hole = model.giveHole();
        model.add(hole);
        VarnelPointLoad *load = model.givePointLoad();
        EXPECT_TRUE(model.contains(beam));
        EXPECT_TRUE(model.contains(plate));
        EXPECT_TRUE(model.contains(static_cast<const VarnelObject *>(plate)));
        EXPECT_FALSE(model.contains(hole));
        EXPECT_FALSE(model.contains(load));
        EXPECT_FALSE(model.contains(static_cast<const VarnelPlate *>(nullptr)));
        model.remove(beam, true);
        EXPECT_FALSE(model.contains(static_cast<const VarnelObject *>(beam))) << "only the address counts";
        for (int k = 0; k < 30; ++k) model.add(model.giveBeam(false));
        for (int k = 0; k < 30; ++k) model.givePlate(true);
    }
}

TEST(VarnelQueries, LoadsAreCountedByCase) {
    VarnelDB model(nullptr);
    SysBase::Loadcase loadcase(1);
    model.givePointLoad();
    model.givePointLoad()->setLoadcase(&loadcase);
    model.givePointLoad();
    model.giveLineLoad(nullptr)->setLoadcase(&loadcase);
    model.giveAreaLoad();
    VarnelPlate *plate = model.givePlate(true);
    auto *own = new VarnelAreaLoad;
    own->setLoadcase(&loadcase);
    model.add(plate, own);
    EXPECT_EQ(model.getNumberOfPointLoadsToLoadcase(nullptr), 2);
    EXPECT_EQ(model.getNumberOfPointLoadsToLoadcase(&loadcase), 1);
    EXPECT_EQ(model.getNumberOfLineLoadsToLoadcase(&loadcase), 1);
    EXPECT_EQ(model.getNumberOfLineLoadsToLoadcase(nullptr), 0);
    EXPECT_EQ(model.getNumberOfAreaLoadsToLoadcase(&loadcase), 0) << "a plate's own load is not the model's";
    EXPECT_EQ(model.getNumberOfAreaLoadsToLoadcase(nullptr), 1);
    EXPECT_EQ(model.getNumberOfPlateLoadsToLoadcase(&loadcase, plate), 1);
    EXPECT_EQ(model.getNumberOfPlateLoadsToLoadcase(nullptr, plate), 0);
    EXPECT_EQ(model.getNumberOfPlateLoadsToLoadcase(nullptr, nullptr), 0);
}

TEST(VarnelQueries, CountersAreLengthsOfLists) {
    VarnelDB model(nullptr);
    model.givePoint(KzVector3D());
    model.givePlate(true);
    model.giveBeam(true)->add(new VarnelJoint(0.5, 1));
    model.giveBeam(true)->add(new VarnelJoint(0.5, 1));
    model.getBeams().back()->add(new VarnelJoint(0.6, 1));
    model.givePointBoundary(KzVector3D(), 1);
    EXPECT_EQ(model.getNumberOfPoints(), 1);
    EXPECT_EQ(model.getNumberOfPlates(), 1);
    EXPECT_EQ(model.getNumberOfBeams(), 2);
    EXPECT_EQ(model.getNumberOfBeamJoints(), 3);
    EXPECT_EQ(model.getNumberOfPointBoundaries(), 1);
    EXPECT_EQ(model.getNumberOfHoles(), 0);
    EXPECT_EQ(model.getNumberOfLineBoundaries(), 0);
    EXPECT_EQ(model.getNumberOfPointLoads(), 0);
    EXPECT_EQ(model.getNumberOfLineLoads(), 0);
    EXPECT_EQ(model.getNumberOfAreaLoads(), 0);
    EXPECT_EQ(model.getNumberOfBeamLoads(), 0);
}

TEST(VarnelQueries, AnEmptyModelLeavesTheBoxAsItIs) {
    Varnel model(nullptr);
    KzVector3D min(1, 2, 3), max(4, 5, 6);
    model.getMinMax(&min, &max);
    EXPECT_EQ(min, KzVector3D(1, 2, 3));
    EXPECT_EQ(max, KzVector3D(4, 5, 6));
}

TEST(VarnelQueries, TheBoxIsWidenedByTheStructureAndNotByLoads) {
    VarnelDB model(nullptr);
    model.givePoint(KzVector3D(-1, 0, 0));
    model.add(new VarnelStraight(KzVector3D(0, -2, 0), KzVector3D(0, 0, 0)));
    model.add(model.giveBeam(KzVector3D(0, 0, -3), KzVector3D(7, 0, 0)));
    model.givePlate(true)->setArea(model.giveAreaPolygon({{0, 0, 0}, {1, 0, 0}, {0, 8, 0}}));
    model.givePointLoad()->setCoor(KzVector3D(100, 100, 100));
    model.givePointBoundary(KzVector3D(100, 100, 100), 7);
    KzVector3D min, max;
    model.getMinMax(nullptr, &max);
    model.getMinMax(&min, nullptr);
    EXPECT_EQ(max, KzVector3D());
    model.getMinMax(&min, &max);
    EXPECT_EQ(min, KzVector3D(-1, -2, -3));
    EXPECT_EQ(max, KzVector3D(7, 8, 0));
    KzMatrix44 frame;
    frame.setVector(3, KzVector3D(10, 0, 0));
    min = max = KzVector3D(10, 0, 0);
    model.updateMinMax(&min, &max, frame);
    EXPECT_EQ(min, KzVector3D(9, -2, -3));
    EXPECT_EQ(max, KzVector3D(17, 8, 0));
}

TEST(VarnelQueries, TheBoxIsHandedThroughTheKindsInAFixedOrder) {
    VarnelDB model(nullptr);
    model.add(new Boxed<VarnelHole, 'H'>);
    model.add(new Boxed<VarnelPlate, 'P'>(nullptr));
    model.add(new Boxed<VarnelBeam, 'B'>);
    model.add(new Boxed<VarnelStraight, 'L'>(KzVector3D(), KzVector3D()));
    asked.clear();
    KzVector3D min, max;
    model.getMinMax(&min, &max);
    EXPECT_EQ(asked, "LBPH");
}

TEST(VarnelQueries, TheDesignStandardIsConstant) {
    Varnel model(nullptr);
    model.setStandardMode(static_cast<Standard::Mode>(3));
    model.setSituation(static_cast<Standard::DesignSituation>(3));
    model.setBuildingType(static_cast<Standard::BuildingType>(3));
    model.setDesignMaterial(static_cast<Standard::DesignMaterial>(3));
    model.setClassification(static_cast<Standard::Classification>(3));
    EXPECT_EQ(static_cast<int>(model.getStandardMode()), 8);
    EXPECT_EQ(static_cast<int>(model.getSituation()), 0);
    EXPECT_EQ(static_cast<int>(model.getBuildingType()), 1);
    EXPECT_EQ(static_cast<int>(model.getDesignMaterial()), 0);
    EXPECT_EQ(static_cast<int>(model.getClassification()), 1);
}

TEST(VarnelQueries, AStageTakesThePresentStates) {
    VarnelDB model(nullptr);
    KzMaterial material("A", 1, 1);
    model.giveLineLoad(nullptr);
    VarnelPointLoad *load = model.givePointLoad();
    model.givePointBoundary(KzVector3D(), 7);
    model.givePlate(true);
    VarnelBeam *beam = model.giveBeam(true);
    model.add(model.giveHole());
    beam->setMaterial(&material, 0);
    beam->setActive(false);
    load->setActive(false);
    VarnelConstructionStage stage;
    model.storeCurrentCSTProperties(&stage);
    model.storeCurrentCSTProperties(&stage);
    ASSERT_EQ(stage.getObjectStates().size(), 5U);
    const auto *first = dynamic_cast<VarnelBeamState *>(stage.getObjectStates().front());
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->getBeam(), beam);
    EXPECT_EQ(first->getMaterial(), &material);
    EXPECT_FALSE(first->isActive());
    std::vector<bool> active;
    for (const VarnelObjectState *state : stage.getObjectStates()) active.push_back(state->isActive());
    EXPECT_EQ(active, (std::vector<bool>{false, true, true, false, true}));
}
