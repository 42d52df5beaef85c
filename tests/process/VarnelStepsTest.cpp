#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <limits>

#include "tests/support/CommaLocale.h"
#include "tests/support/RecordingServices.h"
#include "tests/support/TemporaryFolder.h"
#include "varnel/contracts/Found/Foundation.h"
#include "varnel/contracts/KzConcrete.h"
#include "varnel/contracts/KzMaterialManager.h"
#include "varnel/contracts/SDBSectionLine.h"
#include "varnel/contracts/SDBSectionManager.h"
#include "varnel/contracts/SysBase/ConstructionStage.h"
#include "varnel/contracts/Tools/Error.h"
#include "varnel/geometry/VarnelAreaRectangle.h"
#include "varnel/geometry/VarnelPlatePosition.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelLineBoundaryData.h"
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

TEST_F(VarnelSteps, ErrorsOfTheCheckerGoToTheHandler) {
    class Complaining : public VarnelDataChecker {
        bool checkSystem(VarnelManager *checked) override {
            const bool fit = VarnelDataChecker::checkSystem(checked);
            if (!fit) checked->addError("neither plate nor beam");
            return fit;
        }
    };
    class Checking : public recording::Factory {
        VarnelDataChecker *giveDataChecker() override { return new Complaining; }
    } checking;
    VarnelManager other(&checking);
    EXPECT_EQ(other.update(), 2);
    EXPECT_EQ(checking.script.take(), (Calls{"handler.list 1"}));
    EXPECT_EQ(other.getErrorList(), (std::list<std::string>{"neither plate nor beam"}));
    EXPECT_EQ(other.refresh(), 1);
    EXPECT_TRUE(checking.script.take().empty());
    EXPECT_EQ(other.getErrorList().size(), 1u);  // cleared before each check
}

TEST_F(VarnelSteps, UpdateOfAFitModelEntersTheFolderOfTheProject) {
    const std::filesystem::path before = std::filesystem::current_path();
    const varnel::test::TemporaryFolder folder;
    manager.enableConvert(false);
    manager.setProjectPath(folder.file("house.xml"));
    factory.script.checkSystem = false;
    manager.update();
    EXPECT_EQ(std::filesystem::current_path(), before);
    factory.script.checkSystem = true;
    EXPECT_EQ(manager.update(), 1);
    const std::filesystem::path entered = std::filesystem::current_path();
    manager.setProjectPath(folder.file("missing/house.xml"));
    EXPECT_EQ(manager.update(), 1);  // a folder that cannot be entered is ignored
    const std::filesystem::path kept = std::filesystem::current_path();
    std::filesystem::current_path(before);
    EXPECT_EQ(entered, std::filesystem::canonical(folder.path()));
    EXPECT_EQ(kept, entered);
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

TEST_F(VarnelSteps, AnswerWithoutBitsFailsAtTheConverterAndTheCalculator) {
    factory.script.convert = 0;
    EXPECT_EQ(manager.update(), 2);
    EXPECT_EQ(model->getCurrentStatus(), 0);
    factory.script.convert = 1;
    factory.script.execute = 0;
    EXPECT_EQ(manager.update(), 2);
    EXPECT_EQ(model->getCurrentStatus(), 1);
}

TEST_F(VarnelSteps, OnlyBitZeroOfTheCalculatorsAnswerCounts) {
    factory.script.execute = 3;
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

TEST_F(VarnelSteps, OutputSwitchedOffReachesEveryService) {
    manager.enableOutput(false);
    EXPECT_EQ(manager.update(), 1);
    EXPECT_EQ(factory.script.take(),
              (Calls{"checker.checkSystem", "converter.initInstance", "converter.setProjectPath",
                     "converter.convert System", "calculator.setDoOutput 0", "calculator.execute",
                     "designer.setDoOutput 0", "designer.execute System", "designer.exitInstance"}));
    manager.enableRefresh(true);
    model->setSystemChanged(true);
    EXPECT_EQ(manager.refresh(), 1);
    EXPECT_EQ(factory.script.take(),
              (Calls{"checker.checkSystem", "converter.modifyModel", "calculator.setDoOutput 0",
                     "calculator.execute", "designer.execute System", "designer.exitInstance"}));
    manager.updateConverter();
    const Calls calls = factory.script.take();
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "converter.output"), 0);
}

TEST_F(VarnelSteps, ConversionMarksResourcesLoadCasesAndTheTreeUnchanged) {
    Varnel *below = manager.giveSubSystem("child", root)->getDatabase();
    below->givePointLoad();
    manager.getSectionManager()->add(new SDBSectionLine("own", 0.1));
    manager.getMaterialManager()->add(new KzConcrete("own", 2500.0, 25.0));
    manager.giveFoundation(nullptr, KzVector3D(0, 0, 5))->setChanged(true);
    manager.giveLoadcaseToName("Wind");
    ASSERT_TRUE(manager.sectionChanged());
    ASSERT_TRUE(manager.materialChanged());
    ASSERT_TRUE(manager.foundationChanged());
    ASSERT_TRUE(manager.hasLoadChanged());
    ASSERT_TRUE(below->loadChanged());
    factory.script.execute = 2;
    manager.update();
    EXPECT_FALSE(manager.sectionChanged());
    EXPECT_FALSE(manager.materialChanged());
    EXPECT_FALSE(manager.foundationChanged());
    EXPECT_FALSE(manager.hasLoadChanged());
    EXPECT_FALSE(below->loadChanged());
    EXPECT_FALSE(manager.modelChanged());
}

TEST_F(VarnelSteps, UpdateOfANodeRaisesItsStatusOnly) {
    VarnelSubSystem *child = manager.giveSubSystem("child", root);
    VarnelPlate *below = child->getDatabase()->givePlate(true);
    below->setNumber(9);
    model->getPlates().front()->setNumber(9);
    model->getPlates().front()->giveResultPosition(1, 2, 3);
    EXPECT_EQ(manager.update(child), 1);
    EXPECT_EQ(child->getDatabase()->getCurrentStatus(), 3);
    EXPECT_EQ(model->getCurrentStatus(), 0);
    EXPECT_EQ(below->getNumber(), 1);  // only the node is numbered
    EXPECT_EQ(model->getPlates().front()->getNumber(), 9);
    // Flags and results are those below the current subsystem, here all.
    EXPECT_FALSE(model->systemChanged());
    EXPECT_TRUE(model->getPlates().front()->getResultPositions().empty());
}

/// Fills one position at the origin into every plate.
class Filling : public recording::Designer {
  public:
    using recording::Designer::Designer;
    void execute(VarnelSubSystem *subSystem) override {
        for (VarnelSubSystem *node : {subSystem, subSystem->getChildren().front()})
            node->getDatabase()->getPlates().front()->giveResultPosition(0, 0, 0);
    }
    void output() override {
        for (const VarnelPlatePosition *position : getDatabase()->getPlates().front()->getResultPositions())
            numbersAtOutput.push_back(position->getNumber());
        statusAtOutput = getDatabase()->getCurrentStatus();
    }
    std::vector<int> numbersAtOutput;
    int statusAtOutput = -1;
};

/// Notes the path that the manager has handed over.
class Solver : public recording::Calculator {
  public:
    using recording::Calculator::Calculator;
    int execute() override {
        path = getProjectPath().path();
        return 1;
    }
    std::string path;
};

/// A host that fills results in.
class ResultServices : public recording::Factory {
    VarnelDesigner *giveDesigner() const override { return new Filling(script); }
    VarnelCalculator *giveCalculator() const override { return new Solver(script); }
};

TEST_F(VarnelSteps, ResultsGoBeforeTheDesignerRunsAndAreLocatedAfterwards) {
    ResultServices services;
    VarnelManager other(&services);
    other.setProjectPath(std::string("house.xml"));
    VarnelPlate *plates[] = {
        other.getDatabase()->givePlate(true),
        other.giveSubSystem("child", other.getCurrentSubSystem())->getDatabase()->givePlate(true)};
    for (VarnelPlate *plate : plates) {
        plate->setArea(new VarnelAreaRectangle(KzVector3D(), 4, 4, 0));
        plate->giveResultPosition(7, 7, 0);
    }
    EXPECT_EQ(other.update(), 1);
    for (const VarnelPlate *plate : plates) {
        ASSERT_EQ(plate->getResultPositions().size(), 1u);
        EXPECT_EQ(plate->getResultPositions().front()->getNumber(), plate->getGeo()->getPoint(0).getNumber());
    }
    const auto *designer = static_cast<Filling *>(other.getDesigner());
    EXPECT_EQ(designer->numbersAtOutput, std::vector<int>{1});
    EXPECT_EQ(designer->statusAtOutput, 3);
    EXPECT_EQ(static_cast<Solver *>(other.getCalculator())->path, "house.xml");
    // A refresh keeps the positions and numbers none.
    other.enableRefresh(true);
    other.setSystemChanged(true);
    plates[0]->removeResults();
    other.setProjectPath(std::string("villa.xml"));
    EXPECT_EQ(other.refresh(), 1);
    ASSERT_EQ(plates[0]->getResultPositions().size(), 1u);
    EXPECT_EQ(plates[0]->getResultPositions().front()->getNumber(), 0);
    EXPECT_EQ(static_cast<Solver *>(other.getCalculator())->path, "villa.xml");
}

TEST_F(VarnelSteps, ASubSystemWithoutAModelRunsThroughAllSteps) {
    VarnelSubSystem bare("bare", nullptr, nullptr);
    for (VarnelSubSystem *node : {&bare, static_cast<VarnelSubSystem *>(nullptr)}) {
        factory.script.take();
        model->setSystemChanged(true);
        EXPECT_EQ(manager.update(node), 1);
        EXPECT_EQ(factory.script.take().back(), "designer.exitInstance");
        EXPECT_EQ(model->getCurrentStatus(), 0);
    }
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

TEST_F(VarnelSteps, SetupNumbersButLeavesStagesAlone) {
    root->giveConstructionStageToNumber(7);
    model->getPlates().front()->setNumber(9);
    manager.setup();
    EXPECT_EQ(model->getPlates().front()->getNumber(), 1);
    EXPECT_EQ(root->getConstructionStages().front()->getNumber(), 7);
}

TEST_F(VarnelSteps, SetupNumbersOnAndFindsReferencesInTheWholeTree) {
    VarnelSubSystem *child = manager.giveSubSystem("child", root);
    VarnelSubSystem *grandchild = manager.giveSubSystem("grandchild", child);
    VarnelSubSystem *second = manager.giveSubSystem("second", root);
    const VarnelLineBoundaryData support(7, "support");
    std::vector<VarnelPlate *> plates;
    for (VarnelSubSystem *node : {child, grandchild, second}) {
        for (const double x : {0.0, 1.0}) {
            plates.push_back(node->getDatabase()->givePlate(true));
            plates.back()->setArea(new VarnelAreaRectangle(KzVector3D(x, 0, 0), 1, 1, 0));
            plates.back()->setBoundary(x == 0.0 ? 1 : 3, support);
        }
    }
    manager.setup();
    for (std::size_t i = 0; i < plates.size(); ++i) {
        EXPECT_EQ(plates[i]->getNumber(), static_cast<int>(i) + 2);
        if (i % 2 == 1) {
            EXPECT_EQ(plates[i]->getBoundary(3)->getReference(), plates[i - 1]->getBoundary(1));
        }
    }
    manager.setCurrentSubSystem(second);
    manager.setup();
    EXPECT_EQ(plates[4]->getNumber(), 1);
    EXPECT_EQ(plates[0]->getNumber(), 2);
}

TEST_F(VarnelSteps, UpdateAllSetsUpBeforeTheStagesRun) {
    model->getPlates().front()->setNumber(9);
    manager.setCurrentStep(4);
    manager.updateAll();
    EXPECT_EQ(model->getPlates().front()->getNumber(), 1);
    EXPECT_EQ(manager.getCurrentStep(), 0);
    const Calls calls = factory.script.take();
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "checker.checkSystem"), 0);
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

TEST_F(VarnelSteps, UpdateAllPassesMissingStagesOver) {
    root->add(static_cast<SysBase::ConstructionStage *>(nullptr));
    root->giveConstructionStageToNumber(1);
    factory.script.convert = 2;
    manager.updateAll();
    const Calls calls = factory.script.take();
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "converter.convert System"), 1);
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

TEST_F(VarnelSteps, StepCounterMakesConverterAndCalculator) {
    using Counting = void (*)(VarnelManager &);
    const Counting countings[] = {[](VarnelManager &counted) { counted.setCurrentStep(1); },
                                  [](VarnelManager &counted) { counted.nextStep(); },
                                  [](VarnelManager &counted) { counted.resetStep(); }};
    for (const Counting count : countings) {
        recording::Factory services;
        VarnelManager counted(&services);
        count(counted);
        EXPECT_EQ(services.made, 2);
        EXPECT_EQ(services.script.take(), (Calls{"converter.initInstance", "converter.setProjectPath"}));
        recording::Factory none;
        none.hasConverter = none.hasCalculator = false;
        VarnelManager silent(&none);
        count(silent);
        EXPECT_EQ(silent.getCurrentStep(), counted.getCurrentStep());
    }
}

TEST_F(VarnelSteps, AConverterThatIsMadeForAStepFindsTheFormerOneAndACalculatorTheNewOne) {
    static std::vector<int> found;
    class StagedConverter : public recording::Converter {
      public:
        using recording::Converter::Converter;
        void initInstance(VarnelManager *asked) override { found.push_back(asked->getCurrentStep()); }
    };
    class StagedCalculator : public recording::Calculator {
      public:
        using recording::Calculator::Calculator;
        void initInstance(VarnelManager *asked) override { found.push_back(asked->getCurrentStep()); }
    };
    class Staged : public recording::Factory {
        VarnelConverter *giveConverter() const override { return new StagedConverter(script); }
        VarnelCalculator *giveCalculator() const override { return new StagedCalculator(script); }
    } services;
    VarnelManager staged(&services);
    found.clear();
    staged.setCurrentStep(4);
    staged.reset();
    staged.setCurrentStep(7);
    staged.reset();
    staged.nextStep();
    staged.reset();
    staged.resetStep();
    EXPECT_EQ(found, (std::vector<int>{0, 4, 4, 7, 7, 5, 5, 5}));
}

TEST_F(VarnelSteps, LargestStepDoesNotOverflow) {
    manager.setCurrentStep(std::numeric_limits<int>::max());
    manager.setCurrentStep(0);
    manager.nextStep();
    EXPECT_EQ(manager.getCurrentStep(), std::numeric_limits<int>::max());
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
    const varnel::test::CommaLocale comma;
    EXPECT_EQ(manager.givePictureNameBeamPrimaryStress(&beam, 12345, false), "str12345-12345");
}

}  // namespace
