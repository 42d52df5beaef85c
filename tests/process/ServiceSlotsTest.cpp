// Hosts are compiled against the order of the virtual operations: moving one breaks them.

#include <gtest/gtest.h>

#include <type_traits>

#include "tests/support/VirtualSlot.h"
#include "varnel/process/VarnelCalculator.h"
#include "varnel/process/VarnelConverter.h"
#include "varnel/process/VarnelDataChecker.h"
#include "varnel/process/VarnelDatabaseFactory.h"
#include "varnel/process/VarnelDesigner.h"
#include "varnel/process/VarnelErrorHandler.h"
#include "varnel/process/VarnelFactory.h"
#include "varnel/process/VarnelManager.h"
#include "varnel/process/VarnelMediator.h"
#include "varnel/stages/VarnelConstructionStage.h"

namespace {

using varnel::virtualSlot;

// A virtual destructor would take the first slots of these three.
static_assert(!std::has_virtual_destructor<VarnelDatabaseFactory>::value, "first slot: givePlate");
static_assert(!std::has_virtual_destructor<VarnelErrorHandler>::value, "first slot: display of a list");
static_assert(!std::has_virtual_destructor<VarnelMediator>::value, "first slot: updateSubSystem");
static_assert(std::is_abstract<VarnelConverter>::value, "a host converts");
static_assert(std::is_abstract<VarnelDesigner>::value, "a host hands results back");
static_assert(!std::is_abstract<VarnelCalculator>::value, "a base calculator fails");

TEST(ServiceSlots, FactoryMakesItsServicesInOrder) {
    EXPECT_EQ(virtualSlot(&VarnelFactory::giveCalculator), 2);
    EXPECT_EQ(virtualSlot(&VarnelFactory::giveConverter), 3);
    EXPECT_EQ(virtualSlot(&VarnelFactory::giveDesigner), 4);
    EXPECT_EQ(virtualSlot(&VarnelFactory::getMode), 5);
    EXPECT_EQ(virtualSlot(&VarnelFactory::giveExchange), 6);
    EXPECT_EQ(virtualSlot(&VarnelFactory::giveDatabase), 7);
    EXPECT_EQ(virtualSlot(&VarnelFactory::giveDataChecker), 8);
    EXPECT_EQ(virtualSlot(&VarnelFactory::giveErrorHandler), 9);
    EXPECT_EQ(virtualSlot(&VarnelFactory::giveDatabaseFactory), 10);
}

TEST(ServiceSlots, DatabaseFactoryHasNoDestructorInItsTable) {
    EXPECT_EQ(virtualSlot<VarnelPlate *(const VarnelPlate &)>(&VarnelDatabaseFactory::givePlate), 0);
    EXPECT_EQ(virtualSlot<VarnelPlate *()>(&VarnelDatabaseFactory::givePlate), 1);
    EXPECT_EQ(virtualSlot(&VarnelDatabaseFactory::giveConstructionStage), 2);
    EXPECT_EQ(virtualSlot<VarnelBeam *(const VarnelBeam &)>(&VarnelDatabaseFactory::giveBeam), 3);
    EXPECT_EQ(virtualSlot<VarnelBeam *()>(&VarnelDatabaseFactory::giveBeam), 4);
    EXPECT_EQ(virtualSlot(&VarnelDatabaseFactory::giveResultSection), 5);
}

TEST(ServiceSlots, CalculatorHasItsOperationsInOrder) {
    EXPECT_EQ(virtualSlot(&VarnelCalculator::initInstance), 2);
    EXPECT_EQ(virtualSlot(&VarnelCalculator::output), 3);
    EXPECT_EQ(virtualSlot(&VarnelCalculator::execute), 4);
    EXPECT_EQ(virtualSlot(&VarnelCalculator::showDocument), 5);
    EXPECT_EQ(virtualSlot(&VarnelCalculator::setDoOutput), 6);
    EXPECT_EQ(virtualSlot(&VarnelCalculator::setMainDiagonalErrorEpsilon), 7);
    EXPECT_EQ(virtualSlot(&VarnelCalculator::setMainDiagonalWarningEpsilon), 8);
    EXPECT_EQ(virtualSlot(&VarnelCalculator::cancel), 9);
    EXPECT_EQ(virtualSlot(&VarnelCalculator::setImperfectionData), 10);
    EXPECT_EQ(virtualSlot(&VarnelCalculator::getImperfectionData), 11);
    EXPECT_EQ(virtualSlot(&VarnelCalculator::setIterationControlData), 12);
    EXPECT_EQ(virtualSlot(&VarnelCalculator::getIterationControlData), 13);
    EXPECT_EQ(virtualSlot(&VarnelCalculator::getCreep), 14);
    EXPECT_EQ(virtualSlot(&VarnelCalculator::setCreep), 15);
    EXPECT_EQ(virtualSlot(&VarnelCalculator::getTotalForceExternalLoads), 16);
    EXPECT_EQ(virtualSlot(&VarnelCalculator::getTotalMomentExternalLoads), 17);
    EXPECT_EQ(virtualSlot(&VarnelCalculator::getTotalSupportForce), 18);
    EXPECT_EQ(virtualSlot(&VarnelCalculator::getTotalSupportMoment), 19);
    EXPECT_EQ(virtualSlot(&VarnelCalculator::selectColumnDesignStates), 20);
    EXPECT_EQ(virtualSlot(&VarnelCalculator::setUpInitialReinforcement), 21);
    EXPECT_EQ(virtualSlot(&VarnelCalculator::superposeColumnDesignResults), 22);
}

/// Reaches the protected operations. The private ones lie between those that are tested.
class OpenConverter : public VarnelConverter {
  public:
    using VarnelConverter::setCurrentLoadcase;
    using VarnelConverter::setProjectPath;
};

TEST(ServiceSlots, ConverterHasItsOperationsInOrder) {
    EXPECT_EQ(virtualSlot(&VarnelConverter::showDocument), 2);
    EXPECT_EQ(virtualSlot(&VarnelConverter::setDatabase), 3);
    EXPECT_EQ(virtualSlot(&VarnelConverter::output), 4);
    EXPECT_EQ(virtualSlot(&VarnelConverter::initInstance), 5);
    EXPECT_EQ(virtualSlot(&OpenConverter::setCurrentLoadcase), 6);
    EXPECT_EQ(virtualSlot(&OpenConverter::setProjectPath), 7);
    EXPECT_EQ(virtualSlot(&VarnelConverter::getTolerance), 8);
    EXPECT_EQ(virtualSlot(&VarnelConverter::setTolerance), 9);
    EXPECT_EQ(virtualSlot(&VarnelConverter::refineMesh), 12);
    EXPECT_EQ(virtualSlot(&VarnelConverter::convert), 14);
}

/// Overrides the private operations, so that its own pointers tell their slots.
class PrivateConverter : public VarnelConverter {
  public:
    void removeAll() override {}
    void modifyModel() override {}
    void setupConstructionStage(VarnelConstructionStage *) override {}
};

TEST(ServiceSlots, PrivateOperationsOfTheConverterLieInBetween) {
    EXPECT_EQ(virtualSlot(&PrivateConverter::removeAll), 10);
    EXPECT_EQ(virtualSlot(&PrivateConverter::modifyModel), 11);
    EXPECT_EQ(virtualSlot(&PrivateConverter::setupConstructionStage), 13);
}

TEST(ServiceSlots, DesignerHasItsOperationsInOrder) {
    EXPECT_EQ(virtualSlot(&VarnelDesigner::initInstance), 2);
    EXPECT_EQ(virtualSlot(&VarnelDesigner::exitInstance), 3);
    EXPECT_EQ(virtualSlot(&VarnelDesigner::execute), 4);
    EXPECT_EQ(virtualSlot(&VarnelDesigner::output), 5);
    EXPECT_EQ(virtualSlot(&VarnelDesigner::setDoOutput), 6);
    EXPECT_EQ(virtualSlot(&VarnelDesigner::loopAs), 7);
    EXPECT_EQ(virtualSlot(&VarnelDesigner::getMeshElement), 8);
    EXPECT_EQ(virtualSlot(&VarnelDesigner::meshElementReset), 9);
    EXPECT_EQ(virtualSlot(&VarnelDesigner::setDisplacementScale), 10);
    EXPECT_EQ(virtualSlot(&VarnelDesigner::getDisplacementScale), 11);
    EXPECT_EQ(virtualSlot(&VarnelDesigner::setProjectPath), 12);
    EXPECT_EQ(virtualSlot(&VarnelDesigner::getBeamName), 13);
    EXPECT_EQ(virtualSlot(&VarnelDesigner::getLineBoundaryResult), 14);
    EXPECT_EQ(virtualSlot(&VarnelDesigner::getPointBoundaryResults), 15);
    EXPECT_EQ(virtualSlot(&VarnelDesigner::reset), 16);
    EXPECT_EQ(virtualSlot(&VarnelDesigner::checkValues), -1);
}

TEST(ServiceSlots, SmallServicesHaveTheirOperationsInOrder) {
    EXPECT_EQ(virtualSlot(&VarnelDataChecker::checkSystem), 2);
    using List = const std::list<std::string> &;
    using One = const std::string &;
    EXPECT_EQ(virtualSlot<void(List) const>(&VarnelErrorHandler::display), 0);  // the list form comes first
    EXPECT_EQ(virtualSlot<void(One) const>(&VarnelErrorHandler::display), 1);
    EXPECT_EQ(virtualSlot(&VarnelMediator::updateSubSystem), 0);
}

TEST(ServiceSlots, ManagerHasItsOperationsInOrder) {
    EXPECT_EQ(virtualSlot(&VarnelManager::giveLoadcase), 2);
    EXPECT_EQ(virtualSlot(&VarnelManager::removeLoadcase), 3);
    EXPECT_EQ(virtualSlot(&VarnelManager::giveLoadcaseToNumber), 4);
    EXPECT_EQ(virtualSlot(&VarnelManager::setCurrentLoadcase), 5);
    EXPECT_EQ(virtualSlot(&VarnelManager::giveLoadcaseToName), 6);
    using Remove = void(SysBase::Loadcase *, bool);
    EXPECT_EQ(virtualSlot<Remove>(&VarnelManager::remove), 7);
}

}  // namespace
