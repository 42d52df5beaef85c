#include <gtest/gtest.h>

#include "tests/support/RecordingServices.h"
#include "varnel/contracts/SysBase/ConstructionStage.h"
#include "varnel/contracts/Tools/Error.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelLoadDistributionArea.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/model/Varnel.h"
#include "varnel/model/VarnelSubSystem.h"
#include "varnel/process/VarnelManager.h"

namespace {

using recording::Calls;

const Calls firstConversion{"checker.checkSystem", "converter.initInstance", "converter.setProjectPath",
                            "converter.convert System", "converter.output"};
const Calls calculation{"calculator.setDoOutput 1", "calculator.execute"};
const Calls results{"designer.setDoOutput 1", "designer.execute System", "designer.output",
                    "designer.exitInstance"};

Calls operator+(Calls left, const Calls &right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

class VarnelSteps : public testing::Test {
  protected:
    VarnelSteps() {
        manager.setProjectPath(std::string("house.xml"));  // without a folder: the tests stay where they are
        manager.getDatabase()->givePlate(true);
    }

    recording::Factory factory;
    VarnelManager manager{&factory};
    Varnel *model = manager.getDatabase();
    VarnelSubSystem *root = manager.getCurrentSubSystem();
};

TEST_F(VarnelSteps, UpdateRunsCheckConversionCalculationAndResultsInOrder) {
    EXPECT_EQ(manager.update(), 1);
    EXPECT_EQ(factory.script.take(), firstConversion + calculation + results);
    EXPECT_EQ(model->getCurrentStatus(), 3);
    EXPECT_FALSE(manager.modelChanged());
}

TEST_F(VarnelSteps, UpdateWithoutAChangeAsksTheCheckerOnly) {
    manager.update();
    factory.script.take();
    EXPECT_EQ(manager.update(), 1);
    EXPECT_EQ(factory.script.take(), (Calls{"checker.checkSystem"}));
}

TEST_F(VarnelSteps, UpdateOfAnUnfitModelShowsTheErrorsAndFails) {
    factory.script.checkSystem = false;
    EXPECT_EQ(manager.update(), 2);
    EXPECT_EQ(factory.script.take(), (Calls{"checker.checkSystem", "handler.list 0"}));
    factory.hasErrorHandler = false;
    EXPECT_EQ(manager.refresh(), 1);
    EXPECT_EQ(factory.script.take(), (Calls{"checker.checkSystem"}));
}

TEST(VarnelStepsOfTheBaseFactory, EmptyModelIsUnfitAndAPlateFailsAtTheConversion) {
    class Quiet : public VarnelFactory {
        VarnelErrorHandler *giveErrorHandler() const override { return nullptr; }
    } factory;
    VarnelManager manager(&factory);
    EXPECT_EQ(manager.update(), 2);
    EXPECT_EQ(manager.refresh(), 1);
    manager.getDatabase()->givePlate(true);
    manager.setProjectPath(std::string("house.xml"));
    EXPECT_EQ(manager.update(), 2);
    EXPECT_TRUE(manager.modelChanged());
}

TEST_F(VarnelSteps, ConversionSwitchedOffSucceedsAtOnce) {
    manager.enableConvert(false);
    EXPECT_EQ(manager.update(), 1);
    EXPECT_EQ(factory.script.take(), (Calls{"checker.checkSystem"}));
    EXPECT_TRUE(manager.modelChanged());
}

TEST_F(VarnelSteps, EmptyProjectPathFailsYetWritesTheConvertersOutput) {
    manager.setProjectPath(std::string());
    EXPECT_EQ(manager.update(), 2);
    EXPECT_EQ(factory.script.take(), (Calls{"checker.checkSystem", "converter.initInstance",
                                            "converter.setProjectPath", "converter.output"}));
    EXPECT_TRUE(manager.modelChanged());
}

TEST_F(VarnelSteps, FailedConversionLeavesTheFlagsAndTheStatus) {
    factory.script.convert = 2;
    EXPECT_EQ(manager.update(), 2);
    EXPECT_EQ(factory.script.take(), firstConversion);
    EXPECT_TRUE(manager.modelChanged());
    EXPECT_EQ(model->getCurrentStatus(), 0);
}

TEST_F(VarnelSteps, OnlyBitZeroOfTheConvertersAnswerCounts) {
    factory.script.convert = 3;
    EXPECT_EQ(manager.update(), 1);
    EXPECT_EQ(model->getCurrentStatus(), 3);
}

TEST_F(VarnelSteps, FailedCalculationIsNotRepeatedWithoutAChange) {
    factory.script.execute = 2;
    EXPECT_EQ(manager.update(), 2);
    EXPECT_EQ(factory.script.take(), firstConversion + calculation);
    EXPECT_EQ(model->getCurrentStatus(), 1);
    EXPECT_EQ(manager.update(), 1);
    EXPECT_EQ(factory.script.take(), (Calls{"checker.checkSystem"}));
}

TEST_F(VarnelSteps, CalculationSwitchedOffEndsAfterTheConversion) {
    manager.enableCalculation(false);
    manager.enableOutput(false);
    EXPECT_EQ(manager.update(), 1);
    EXPECT_EQ(factory.script.take(), (Calls{"checker.checkSystem", "converter.initInstance",
                                            "converter.setProjectPath", "converter.convert System"}));
    EXPECT_EQ(model->getCurrentStatus(), 1);
}

TEST_F(VarnelSteps, MissingServicesFail) {
    factory.hasDesigner = false;
    EXPECT_EQ(manager.update(), 2);
    model->setSystemChanged(true);
    factory.hasCalculator = false;
    manager.reset();
    EXPECT_EQ(manager.update(), 2);
    model->setSystemChanged(true);
    factory.hasConverter = false;
    manager.reset();
    EXPECT_EQ(manager.update(), 2);
}

TEST_F(VarnelSteps, MissingDataCheckerCountsAsFit) {
    factory.hasDataChecker = false;
    manager.addError("old");
    EXPECT_TRUE(manager.systemOk());
    EXPECT_TRUE(manager.getErrorList().empty());
    EXPECT_EQ(manager.update(), 1);
}

TEST_F(VarnelSteps, ExceptionOfAServicePassesThrough) {
    factory.script.throwIn = "calculator.execute";
    EXPECT_THROW(manager.update(), Tools::Error);
    EXPECT_FALSE(manager.systemChanged());  // the conversion stands
    EXPECT_EQ(model->getCurrentStatus(), 1);
    factory.script.throwIn = "converter.convert";
    model->setSystemChanged(true);
    EXPECT_THROW(manager.update(), Tools::Error);
    EXPECT_TRUE(manager.systemChanged());
}

TEST_F(VarnelSteps, UpdateReplacesResultsAndRefreshKeepsThem) {
    VarnelPlate *plate = model->getPlates().front();
    plate->giveResultPosition(1, 2, 3);
    manager.update();
    EXPECT_TRUE(plate->getResultPositions().empty());
    plate->giveResultPosition(1, 2, 3);
    factory.script.take();
    EXPECT_EQ(manager.refresh(), 1);
    EXPECT_EQ(factory.script.take(), (Calls{"checker.checkSystem"}));
    manager.enableRefresh(true);
    model->setSystemChanged(true);
    EXPECT_EQ(manager.refresh(), 1);
    EXPECT_EQ(factory.script.take(),
              Calls({"checker.checkSystem", "converter.modifyModel", "converter.output"}) + calculation +
                  Calls({"designer.execute System", "designer.output", "designer.exitInstance"}));
    EXPECT_EQ(plate->getResultPositions().size(), 1u);
}

TEST_F(VarnelSteps, RefreshWithoutAPathFails) {
    manager.enableRefresh(true);
    manager.setProjectPath(std::string());
    EXPECT_EQ(manager.refresh(), 2);
    EXPECT_EQ(factory.script.take(), (Calls{"checker.checkSystem", "converter.initInstance",
                                            "converter.setProjectPath", "converter.output"}));
    manager.setProjectPath(std::string("house.xml"));
    factory.hasConverter = false;
    manager.reset();
    EXPECT_EQ(manager.refresh(), 2);
}

TEST_F(VarnelSteps, OutputOfAChangedModelSkipsResultsAndLeavesItUnchanged) {
    manager.output("villa.xml");
    EXPECT_EQ(factory.script.take(), (Calls{"exchange.updateSystem", "exchange.fileOutput villa"}));
    EXPECT_FALSE(manager.modelChanged());
    EXPECT_EQ(manager.getProjectPath().path(), "villa.xml");
    manager.output("villa.xml");
    EXPECT_EQ(factory.script.take(),
              (Calls{"exchange.updateSystem", "exchange.updateResults", "exchange.fileOutput villa"}));
}

TEST_F(VarnelSteps, OutputWithoutAnExchangeNumbersAndKeepsTheFlags) {
    factory.hasExchange = false;
    model->getPlates().front()->setNumber(77);
    manager.output("villa.xml");
    EXPECT_EQ(model->getPlates().front()->getNumber(), 1);
    EXPECT_TRUE(manager.modelChanged());
    EXPECT_FALSE(manager.input("villa.xml"));
}

TEST_F(VarnelSteps, OutputNumbersTheWholeTreeWhateverIsCurrent) {
    VarnelSubSystem *child = manager.giveSubSystem("child", root);
    VarnelPlate *below = child->getDatabase()->givePlate(true);
    child->getDatabase()->add(new VarnelLoadDistributionArea);
    model->add(new VarnelLoadDistributionArea);
    child->giveConstructionStageToNumber(7);
    root->giveConstructionStageToNumber(7);
    manager.setCurrentSubSystem(child);
    manager.output("villa.xml");
    EXPECT_EQ(model->getPlates().front()->getNumber(), 1);
    EXPECT_EQ(below->getNumber(), 2);
    EXPECT_EQ(child->getDatabase()->getLoadDistributionAreas().front()->getNumber(), 1);
    EXPECT_EQ(model->getLoadDistributionAreas().front()->getNumber(), 1);
    EXPECT_EQ(child->getConstructionStages().front()->getNumber(), 1);  // below comes first
    EXPECT_EQ(root->getConstructionStages().front()->getNumber(), 2);
}

TEST_F(VarnelSteps, InputOfAMissingFileIsTrueAndReadsNothing) {
    factory.script.fileInput = false;
    EXPECT_TRUE(manager.input("gone.xml"));
    EXPECT_EQ(factory.script.take(), (Calls{"exchange.fileInput gone"}));
    EXPECT_EQ(model->getNumberOfPlates(), 1);
    factory.script.fileInput = true;
    EXPECT_TRUE(manager.input(nullptr));
    EXPECT_EQ(factory.script.take(), (Calls{"exchange.fileInput ", "exchange.get"}));
    EXPECT_EQ(manager.getProjectPath().path(), "");
}

TEST_F(VarnelSteps, SetupNumbersButLeavesStagesAlone) {
    root->giveConstructionStageToNumber(7);
    model->getPlates().front()->setNumber(9);
    manager.setup();
    EXPECT_EQ(model->getPlates().front()->getNumber(), 1);
    EXPECT_EQ(root->getConstructionStages().front()->getNumber(), 7);
}

TEST_F(VarnelSteps, UpdateAllRunsOneUpdateForEachStageAlsoAfterFailures) {
    root->giveConstructionStageToNumber(1);
    root->giveConstructionStageToNumber(2);
    factory.script.convert = 2;
    manager.updateAll();
    const Calls calls = factory.script.take();
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "converter.convert System"), 2);
    EXPECT_EQ(manager.getCurrentStep(), 1);
}

TEST_F(VarnelSteps, UpdateConverterConvertsAfreshAndIgnoresTheAnswer) {
    factory.script.convert = 2;
    VarnelPlate *below = manager.giveSubSystem("child", root)->getDatabase()->givePlate(true);
    below->setNumber(9);
    manager.updateConverter();
    EXPECT_EQ(factory.script.take(),
              (Calls{"converter.initInstance", "converter.setProjectPath", "converter.removeAll",
                     "converter.setProjectPath", "converter.convert System", "converter.output"}));
    EXPECT_EQ(below->getNumber(), 9);
    EXPECT_EQ(manager.getCurrentStep(), 1);
    factory.hasConverter = false;
    manager.reset();
    manager.updateConverter();
    EXPECT_TRUE(factory.script.take().empty());
}

TEST_F(VarnelSteps, UpdateExchangeWritesIntoTheDocumentOnly) {
    manager.updateExchange();
    EXPECT_EQ(factory.script.take(), (Calls{"exchange.updateSystem"}));
    EXPECT_TRUE(manager.modelChanged());
}

TEST_F(VarnelSteps, StepCounterRaisesOnlyThroughSetCurrentStep) {
    VarnelConverter *converter = manager.getConverter();
    VarnelCalculator *calculator = manager.getCalculator();
    manager.setCurrentStep(2);
    manager.setCurrentStep(5);
    EXPECT_EQ(converter->getLastStep(), 2);
    EXPECT_EQ(converter->getCurrentStep(), 5);
    EXPECT_EQ(calculator->getCurrentStep(), 5);
    manager.nextStep();
    EXPECT_EQ(manager.getCurrentStep(), 3);
    manager.nextStep();
    EXPECT_EQ(manager.getCurrentStep(), 3);  // the last step does not move
    manager.resetStep();
    EXPECT_EQ(manager.getCurrentStep(), 0);
    EXPECT_EQ(converter->getCurrentStep(), 0);
    EXPECT_EQ(calculator->getCurrentStep(), 0);
    EXPECT_EQ(converter->getLastStep(), 2);
    manager.nextStep();
    EXPECT_EQ(manager.getCurrentStep(), 1);
    EXPECT_EQ(converter->getLastStep(), 0);
}

TEST_F(VarnelSteps, ErrorsAreShownAtOnceOrCollected) {
    manager.error("now");
    manager.addError("later");
    EXPECT_EQ(factory.script.take(), (Calls{"handler.message now"}));
    EXPECT_EQ(manager.getErrorList(), (std::list<std::string>{"later"}));
    EXPECT_TRUE(manager.systemOk());
    EXPECT_TRUE(manager.getErrorList().empty());
    factory.hasErrorHandler = false;
    VarnelManager silent(&factory);
    silent.error("nobody");
}

TEST_F(VarnelSteps, PictureNamesPadNumbersToFourDigits) {
    VarnelBeam beam;
    beam.setNumber(12);
    EXPECT_EQ(manager.givePictureNameBeamPrimaryStress(&beam, 3, false), "str0012-0003");
    EXPECT_EQ(manager.givePictureNameBeamPrimaryStress(&beam, 3, true), "str0012-0003-II");
    EXPECT_EQ(manager.givePictureNameInterfaceStressAtBeam(&beam, 3), "ifstr0012-0003");
    beam.setNumber(12345);
    EXPECT_EQ(manager.givePictureNameBeamPrimaryStress(&beam, 7, false), "str12345-0007");
    EXPECT_EQ(manager.givePictureNameBeamPrimaryStress(nullptr, 7, false), "str0000-0007");
}

}  // namespace
