#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include "tests/support/VirtualSlot.h"
#include "varnel/contracts/Design/ShearData.h"
#include "varnel/contracts/FireDesign/TemperatureDistribution.h"
#include "varnel/contracts/KzBeamStressResultantsLocation.h"
#include "varnel/contracts/KzDiagramManager.h"
#include "varnel/contracts/Reinforcement/Schemes/Layout.h"
#include "varnel/contracts/Reinforcement/SuperposedResult.h"
#include "varnel/contracts/Standard/BuildingType.h"
#include "varnel/contracts/Standard/Classification.h"
#include "varnel/contracts/Standard/DesignMaterial.h"
#include "varnel/contracts/Standard/DesignSituation.h"
#include "varnel/contracts/StressManager/DesignType.h"
#include "varnel/contracts/SysBase/BeamDeformationsLocation.h"
#include "varnel/contracts/SysBase/BeamDesignLocation.h"
#include "varnel/contracts/SysBase/BeamResultState.h"
#include "varnel/contracts/SysBase/BeamStressResultantsLocation.h"
#include "varnel/contracts/SysBase/ConstructionStage.h"
#include "varnel/contracts/SysBase/Creep.h"
#include "varnel/contracts/SysBase/Imperfection.h"
#include "varnel/contracts/SysBase/InterfaceStressLocation.h"
#include "varnel/contracts/SysBase/IterationControlData.h"
#include "varnel/contracts/SysBase/PointSupportResult.h"

TEST(LineLocation, HoldsAPosition) {
    EXPECT_EQ(SysBase::LineLocation().getPos(), 0.0);
    const SysBase::LineLocation location(2.5);
    SysBase::LineLocation assigned;
    assigned = SysBase::LineLocation(location);
    EXPECT_EQ(assigned.getPos(), 2.5);
}

TEST(BeamResultState, OwnsItsLocationsInOrder) {
    SysBase::BeamResultState state(4);
    EXPECT_EQ(state.getStateNumber(), 4);
    EXPECT_TRUE(state.getStressResultantsLocations().empty());
    EXPECT_TRUE(state.getDeformationsLocations().empty());
    state.add(new SysBase::BeamStressResultantsLocation(0.5, -12.0));
    state.add(new SysBase::BeamStressResultantsLocation(1.0, 3.0));
    state.add(new SysBase::BeamDeformationsLocation(0.25, KzVector3D(1.0, 2.0, 3.0)));
    state.add(static_cast<SysBase::BeamStressResultantsLocation *>(nullptr));
    state.add(static_cast<SysBase::BeamDeformationsLocation *>(nullptr));
    ASSERT_EQ(state.getStressResultantsLocations().size(), 2U);
    EXPECT_EQ(state.getStressResultantsLocations()[0]->getPos(), 0.5);
    EXPECT_EQ(state.getStressResultantsLocations()[0]->getMy(), -12.0);
    EXPECT_EQ(state.getStressResultantsLocations()[1]->getMy(), 3.0);
    ASSERT_EQ(state.getDeformationsLocations().size(), 1U);
    EXPECT_EQ(state.getDeformationsLocations()[0]->getPos(), 0.25);
    EXPECT_EQ(state.getDeformationsLocations()[0]->getDisplacement(), KzVector3D(1.0, 2.0, 3.0));
}

TEST(BeamLocations, BeginAtZero) {
    EXPECT_EQ(SysBase::BeamStressResultantsLocation().getMy(), 0.0);
    EXPECT_EQ(SysBase::BeamStressResultantsLocation().getPos(), 0.0);
    EXPECT_EQ(SysBase::BeamDeformationsLocation().getDisplacement(), KzVector3D());
    EXPECT_EQ(SysBase::BeamDesignLocation().getPos(), 0.0);
    EXPECT_EQ(KzBeamStressResultantsLocation().getMoment(), KzVector3D());
    EXPECT_EQ(SysBase::InterfaceStressLocation().getStress(), 0.0);
}

TEST(BeamLocations, AreCopiedByValueAndWithoutOwners) {
    const SysBase::BeamDesignLocation design(1.5);
    design.acquire();
    const SysBase::BeamDesignLocation copy(design);
    EXPECT_EQ(copy.getPos(), 1.5);
    EXPECT_EQ(copy.owners(), 0U);
    EXPECT_FALSE(copy.release());
    const KzBeamStressResultantsLocation all(2.0, KzVector3D(1.0, 2.0, 3.0), KzVector3D(4.0, 5.0, 6.0));
    EXPECT_EQ(KzBeamStressResultantsLocation(all).getPos(), 2.0);
    EXPECT_EQ(KzBeamStressResultantsLocation(all).getForce(), KzVector3D(1.0, 2.0, 3.0));
    EXPECT_EQ(KzBeamStressResultantsLocation(all).getMoment(), KzVector3D(4.0, 5.0, 6.0));
    const SysBase::InterfaceStressLocation stress(KzVector3D(1.0, 0.0, 0.0), -300.0);
    EXPECT_EQ(SysBase::InterfaceStressLocation(stress).getPosition(), KzVector3D(1.0, 0.0, 0.0));
    EXPECT_EQ(SysBase::InterfaceStressLocation(stress).getStress(), -300.0);
}

TEST(ConstructionStage, HoldsNumberAndName) {
    SysBase::ConstructionStage stage;
    EXPECT_EQ(stage.getNumber(), 0);
    EXPECT_EQ(stage.getName(), "");
    stage.setNumber(3);
    stage.setName("First floor");
    const SysBase::ConstructionStage copy(stage);
    EXPECT_EQ(copy.getNumber(), 3);
    EXPECT_EQ(copy.getName(), "First floor");
    SysBase::ConstructionStage assigned;
    assigned = stage;
    EXPECT_EQ(assigned.getNumber(), 3);
    EXPECT_EQ(assigned.getName(), "First floor");
}

TEST(PointSupportResult, HoldsSixReactions) {
    const SysBase::PointSupportResult zero;
    for (const double value :
         {zero.getFx(), zero.getFy(), zero.getFz(), zero.getMx(), zero.getMy(), zero.getMz()})
        EXPECT_EQ(value, 0.0);
    SysBase::PointSupportResult result(1.0, 2.0, 3.0, 4.0, 5.0, 6.0);
    EXPECT_EQ(result.getFx(), 1.0);
    EXPECT_EQ(result.getFy(), 2.0);
    EXPECT_EQ(result.getFz(), 3.0);
    EXPECT_EQ(result.getMx(), 4.0);
    EXPECT_EQ(result.getMy(), 5.0);
    EXPECT_EQ(result.getMz(), 6.0);
    result.setForce(7.0, 8.0, 9.0);
    result.setMoment(10.0, 11.0, 12.0);
    SysBase::PointSupportResult assigned;
    assigned = SysBase::PointSupportResult(result);
    EXPECT_EQ(assigned.getFx(), 7.0);
    EXPECT_EQ(assigned.getFy(), 8.0);
    EXPECT_EQ(assigned.getFz(), 9.0);
    EXPECT_EQ(assigned.getMx(), 10.0);
    EXPECT_EQ(assigned.getMy(), 11.0);
    EXPECT_EQ(assigned.getMz(), 12.0);
}

namespace {

class Standardised : public FireDesign::TemperatureDistribution {
  public:
    Standardised *clone() const override { return new Standardised(*this); }
    double minutes = 90.0;
};

}  // namespace

TEST(TemperatureDistribution, ClonesTheDerivedKind) {
    Standardised source;
    source.minutes = 30.0;
    const FireDesign::TemperatureDistribution &base = source;
    const std::unique_ptr<FireDesign::TemperatureDistribution> clone(base.clone());
    ASSERT_NE(dynamic_cast<Standardised *>(clone.get()), nullptr);
    EXPECT_EQ(dynamic_cast<Standardised &>(*clone).minutes, 30.0);
    const FireDesign::TemperatureDistribution plain;
    const std::unique_ptr<FireDesign::TemperatureDistribution> plainClone(plain.clone());
    EXPECT_NE(plainClone.get(), &plain);
    EXPECT_EQ(varnel::virtualSlot(&FireDesign::TemperatureDistribution::clone), 2);
}

TEST(HostRecords, AreDeletedThroughTheirBases) {
    EXPECT_TRUE(std::has_virtual_destructor<SysBase::Imperfection>::value);
    EXPECT_TRUE(std::has_virtual_destructor<SysBase::IterationControlData>::value);
    EXPECT_TRUE(std::has_virtual_destructor<SysBase::Creep>::value);
    EXPECT_TRUE(std::has_virtual_destructor<Reinforcement::SuperposedResult>::value);
    EXPECT_TRUE(std::has_virtual_destructor<Reinforcement::Schemes::Layout>::value);
    EXPECT_TRUE(std::has_virtual_destructor<SysBase::LineLocation>::value);
    EXPECT_TRUE(std::has_virtual_destructor<SysBase::BeamResultState>::value);
    EXPECT_TRUE(std::has_virtual_destructor<SysBase::PointSupportResult>::value);
    EXPECT_TRUE(std::has_virtual_destructor<SysBase::ConstructionStage>::value);
    EXPECT_TRUE(std::has_virtual_destructor<KzDiagramManager>::value);
}

TEST(Enumerations, HoldAnyIntegerOfAFile) {
    EXPECT_EQ(static_cast<int>(static_cast<Standard::DesignSituation>(-5)), -5);
    EXPECT_EQ(static_cast<int>(static_cast<Standard::BuildingType>(1000000)), 1000000);
    EXPECT_EQ(static_cast<int>(static_cast<Standard::DesignMaterial>(77)), 77);
    EXPECT_EQ(static_cast<int>(static_cast<Standard::Classification>(-1)), -1);
    EXPECT_EQ(static_cast<int>(static_cast<StressManager::DesignType>(9)), 9);
}

TEST(ShearData, SurfacesHaveTheirNumbers) {
    EXPECT_EQ(Design::ShearData::INTENDED, 0);
    EXPECT_EQ(Design::ShearData::ROUGH, 1);
    EXPECT_EQ(Design::ShearData::SMOOTH, 2);
    EXPECT_EQ(Design::ShearData::VERY_SMOOTH, 3);
}
