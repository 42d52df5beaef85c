#include <gtest/gtest.h>

#include <iostream>
#include <sstream>

#include "tests/support/RecordingServices.h"
#include "varnel/contracts/SysBase/Creep.h"
#include "varnel/contracts/SysBase/IterationControlData.h"
#include "varnel/exchange/VarnelExchangeXml.h"
#include "varnel/members/VarnelAsPlateFunctional.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelHole.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPlateProperties.h"
#include "varnel/model/VarnelDB.h"
#include "varnel/process/VarnelDatabaseFactory.h"
#include "varnel/process/VarnelManager.h"
#include "varnel/process/VarnelMediator.h"
#include "varnel/results/VarnelResultSection.h"
#include "varnel/stages/VarnelConstructionStage.h"

namespace {

TEST(VarnelFactory, OffersModelExchangeCheckerAndHandlerAndNoAnalysis) {
    VarnelFactory factory;
    EXPECT_EQ(factory.getManager(), nullptr);
    EXPECT_EQ(factory.giveCalculator(), nullptr);
    EXPECT_EQ(factory.giveConverter(), nullptr);
    EXPECT_EQ(factory.giveDesigner(), nullptr);
    EXPECT_EQ(factory.giveDatabaseFactory(), nullptr);
    EXPECT_EQ(factory.getMode(), 2);
    const std::unique_ptr<VarnelExchange> exchange(factory.giveExchange());
    EXPECT_NE(dynamic_cast<VarnelExchangeXml *>(exchange.get()), nullptr);
    const std::unique_ptr<Varnel> model(factory.giveDatabase());
    EXPECT_NE(dynamic_cast<VarnelDB *>(model.get()), nullptr);
    EXPECT_NE(model->getDBaseFactory(), nullptr);
    const std::unique_ptr<VarnelDataChecker> checker(factory.giveDataChecker());
    EXPECT_NE(checker, nullptr);
    const std::unique_ptr<VarnelErrorHandler> handler(factory.giveErrorHandler());
    EXPECT_NE(handler, nullptr);
}

TEST(VarnelFactory, CopiesCarryTheManager) {
    VarnelFactory factory;
    VarnelManager manager(&factory);
    const VarnelFactory copy(factory);
    EXPECT_EQ(copy.getManager(), &manager);
}

TEST(VarnelFactory, IsNeverAskedForADatabaseFactory) {
    class Asked : public VarnelFactory {
        VarnelDatabaseFactory *giveDatabaseFactory() const override {
            ADD_FAILURE() << "a VarnelDB makes its own";
            return nullptr;
        }
    } factory;
    VarnelManager manager(&factory);
    manager.giveSubSystem("child", manager.getCurrentSubSystem());
    EXPECT_NE(manager.getDatabase()->givePlate(true), nullptr);
    EXPECT_NE(manager.getDatabase()->giveBeam(true), nullptr);
}

TEST(VarnelDatabaseFactory, MakesPlainObjectsAndCopies) {
    VarnelDatabaseFactory factory;
    const std::unique_ptr<VarnelPlate> plate(factory.givePlate());
    EXPECT_EQ(plate->getParent(), nullptr);
    plate->setThick(0.33);
    const std::unique_ptr<VarnelPlate> plateCopy(factory.givePlate(*plate));
    EXPECT_DOUBLE_EQ(plateCopy->getData().getThick(), 0.33);
    const std::unique_ptr<VarnelBeam> beam(factory.giveBeam());
    beam->setName("B");
    const std::unique_ptr<VarnelBeam> beamCopy(factory.giveBeam(*beam));
    EXPECT_EQ(beamCopy->getName(), "B");
    const std::unique_ptr<VarnelConstructionStage> stage(factory.giveConstructionStage());
    EXPECT_NE(stage, nullptr);
    const std::unique_ptr<VarnelResultSection> section(factory.giveResultSection(nullptr));
    EXPECT_NE(section, nullptr);
}

TEST(VarnelDataChecker, WantsOnePlateOrOneBeam) {
    VarnelFactory factory;
    VarnelDataChecker checker;
    EXPECT_FALSE(checker.checkSystem(nullptr));
    VarnelManager manager(&factory);
    EXPECT_FALSE(checker.checkSystem(&manager));
    Varnel *model = manager.getDatabase();
    model->add(model->giveHole());
    model->givePointLoad();
    EXPECT_FALSE(checker.checkSystem(&manager));
    VarnelBeam *beam = model->giveBeam(true);
    EXPECT_TRUE(checker.checkSystem(&manager));
    model->remove(beam, true);
    model->givePlate(true);
    EXPECT_TRUE(checker.checkSystem(&manager));
    manager.setCurrentSubSystem(nullptr);
    EXPECT_FALSE(checker.checkSystem(&manager));
}

/// Stands in for the console while it lives.
class Console {
  public:
    explicit Console(const std::string &input)
        : in_(input), formerIn_(std::cin.rdbuf(in_.rdbuf())), formerOut_(std::cout.rdbuf(out_.rdbuf())) {}
    ~Console() {
        std::cin.rdbuf(formerIn_);
        std::cin.clear();
        std::cout.rdbuf(formerOut_);
    }
    std::string output() const { return out_.str(); }
    std::string rest() { return std::string(std::istreambuf_iterator<char>(in_), {}); }

  private:
    std::istringstream in_;
    std::ostringstream out_;
    std::streambuf *formerIn_;
    std::streambuf *formerOut_;
};

TEST(VarnelErrorHandler, WritesOneMessageWithoutALineEnd) {
    Console console("");
    VarnelErrorHandler().display(std::string("wrong"));
    EXPECT_EQ(console.output(), "wrong");
}

TEST(VarnelErrorHandler, ListGoesThroughTheSingleFormAndWaitsForANonZeroCharacter) {
    class Marked : public VarnelErrorHandler {
      public:
        using VarnelErrorHandler::display;
        void display(const std::string &message) const override { std::cout << '<' << message << '>'; }
    };
    Console console(std::string("\0\0xy", 4));
    const VarnelErrorHandler &handler = Marked();
    handler.display(std::list<std::string>{"a", "b"});
    EXPECT_EQ(console.output(), "<a><b>");
    EXPECT_EQ(console.rest(), "y");
}

TEST(VarnelErrorHandler, StopsWaitingAtTheEndOfTheInput) {
    Console console("");
    VarnelErrorHandler().display(std::list<std::string>{"a"});
    EXPECT_EQ(console.output(), "a");
}

TEST(VarnelErrorHandler, MayCheckAgainAndAddMessagesWhileItShowsThem) {
    class Complaining : public VarnelDataChecker {
        bool checkSystem(VarnelManager *checked) override {
            checked->addError("first");
            checked->addError("second");
            return false;
        }
    };
    class Busy : public VarnelErrorHandler {
      public:
        void display(const std::list<std::string> &messages) const override {
            for (const std::string &message : messages) {
                manager->systemOk();
                manager->addError("meanwhile");
                shown.push_back(message);
            }
        }
        void display(const std::string &) const override {}
        VarnelManager *manager = nullptr;
        mutable std::list<std::string> shown;
    } busy;
    class Checking : public VarnelFactory {
      public:
        explicit Checking(Busy &handler) : handler_(handler) {}
        VarnelDataChecker *giveDataChecker() override { return new Complaining; }
        VarnelErrorHandler *giveErrorHandler() const override { return &handler_; }

      private:
        Busy &handler_;
    } checking(busy);
    VarnelManager other(&checking);
    busy.manager = &other;
    EXPECT_EQ(other.update(), 2);
    EXPECT_EQ(busy.shown, (std::list<std::string>{"first", "second"}));
    EXPECT_EQ(other.getErrorList(), (std::list<std::string>{"first", "second", "meanwhile"}));
}

TEST(VarnelMediator, DoesNothing) {
    recording::Factory factory;
    VarnelManager manager(&factory);
    VarnelPlate *plate = manager.getDatabase()->givePlate(true);
    plate->setNumber(9);
    manager.setSystemChanged(false);
    VarnelMediator mediator;
    mediator.updateSubSystem(manager.getCurrentSubSystem());
    mediator.updateSubSystem(nullptr);
    EXPECT_EQ(plate->getNumber(), 9);
    EXPECT_FALSE(manager.systemChanged());
    EXPECT_EQ(factory.made, 0);
}

/// A calculator whose settings can be looked at.
class OpenCalculator : public VarnelCalculator {
  public:
    using VarnelCalculator::columnGeometricMinimumReinforcement;
    using VarnelCalculator::creeping;
    using VarnelCalculator::doBeamBendingDesign;
    using VarnelCalculator::doBeamShearDesign;
    using VarnelCalculator::doDesign;
    using VarnelCalculator::doEigenvalueAnalysis;
    using VarnelCalculator::doOutput;
    using VarnelCalculator::doPlateBendingDesign;
    using VarnelCalculator::doPlateShearDesign;
    using VarnelCalculator::doSteelDesign;
    using VarnelCalculator::doSuperposition;
    using VarnelCalculator::doUltimateStateAnalysis;
    using VarnelCalculator::elevatedTemperatureAnalysis;
    using VarnelCalculator::exceptionOnWarnings;
    using VarnelCalculator::getDatabase;
    using VarnelCalculator::getManager;
    using VarnelCalculator::getProjectPath;
    using VarnelCalculator::linearColumnDesign;
    using VarnelCalculator::meanValuesCalculation;
    using VarnelCalculator::nonlinearColumnDesign;
    using VarnelCalculator::solverImprovements;
};

struct Switch {
    const char *name;
    bool byDefault;
    bool (OpenCalculator::*get)() const;
    void (VarnelCalculator::*set)(bool);
};

using Base = bool (VarnelCalculator::*)() const;

template <class Get>
Switch row(const char *name, bool byDefault, Get get, void (VarnelCalculator::*set)(bool)) {
    return {name, byDefault, static_cast<bool (OpenCalculator::*)() const>(get), set};
}

TEST(VarnelCalculator, SwitchesHaveTheirDefaultsAreStoredAndCopied) {
    using C = OpenCalculator;
    const Switch switches[] = {
        row("output", true, &C::doOutput, &C::setDoOutput),
        row("superposition", true, &C::doSuperposition, &C::setDoSuperposition),
        row("steel", false, &C::doSteelDesign, &C::setDoSteelDesign),
        row("design", true, &C::doDesign, &C::setDoDesign),
        row("beam shear", true, &C::doBeamShearDesign, &C::setDoBeamShearDesign),
        row("plate shear", true, &C::doPlateShearDesign, &C::setDoPlateShearDesign),
        row("beam bending", true, &C::doBeamBendingDesign, &C::setDoBeamBendingDesign),
        row("plate bending", true, &C::doPlateBendingDesign, &C::setDoPlateBendingDesign),
        row("eigenvalues", false, &C::doEigenvalueAnalysis, &C::setDoEigenvalueAnalysis),
        row("ultimate state", false, &C::doUltimateStateAnalysis, &C::setDoUltimateStateAnalysis),
        row("warnings", false, &C::exceptionOnWarnings, &C::enableExceptionOnWarnings),
        row("linear columns", false, &C::linearColumnDesign, &C::enableLinearColumnDesign),
        row("nonlinear columns", false, &C::nonlinearColumnDesign, &C::enableNonlinearColumnDesign),
        row("minimum", true, &C::columnGeometricMinimumReinforcement,
            &C::enableColumnGeometricMinimumReinforcement),
        row("creeping", false, &C::creeping, &C::enableCreeping),
        row("temperature", false, &C::elevatedTemperatureAnalysis, &C::enableElevatedTemperatureAnalysis),
        row("mean values", false, &C::meanValuesCalculation, &C::enableMeanValuesCalculation),
        row("improvements", false, &C::solverImprovements, &C::enableSolverImprovements),
        row("geometrically", false, &C::doGeometricallyNonlinearAnalysis,
            &C::setDoGeometricallyNonlinearAnalysis),
        row("materially", false, &C::doMateriallyNonlinearAnalysis, &C::setDoMateriallyNonlinearAnalysis),
    };
    for (const Switch &entry : switches) {
        SCOPED_TRACE(entry.name);
        OpenCalculator calculator;
        EXPECT_EQ((calculator.*entry.get)(), entry.byDefault);
        (calculator.*entry.set)(!entry.byDefault);
        for (const Switch &other : switches)
            EXPECT_EQ((calculator.*other.get)(), other.byDefault != (&other == &entry));
        const OpenCalculator copy(calculator);
        EXPECT_EQ((copy.*entry.get)(), !entry.byDefault);
        OpenCalculator assigned;
        assigned = calculator;
        EXPECT_EQ((assigned.*entry.get)(), !entry.byDefault);
    }
}

TEST(VarnelCalculator, BaseFailsAndAnswersNothing) {
    OpenCalculator calculator;
    EXPECT_EQ(calculator.execute(), 2);
    EXPECT_EQ(calculator.getCurrentStep(), 0);
    calculator.setCurrentStep(4);
    EXPECT_EQ(calculator.getCurrentStep(), 4);
    EXPECT_EQ(calculator.getImperfectionData(), nullptr);
    EXPECT_EQ(calculator.getIterationControlData(), nullptr);
    EXPECT_EQ(calculator.getCreep(), nullptr);
    EXPECT_TRUE(calculator.getTotalForceExternalLoads(1) == KzVector3D());
    EXPECT_TRUE(calculator.getTotalMomentExternalLoads(1) == KzVector3D());
    EXPECT_TRUE(calculator.getTotalSupportForce(1) == KzVector3D());
    EXPECT_TRUE(calculator.getTotalSupportMoment(1) == KzVector3D());
    EXPECT_TRUE(calculator.superposeColumnDesignResults().empty());
    EXPECT_EQ(calculator.getProjectPath().path(), "");
    calculator.setProjectPath(Tools::Path("/a/b.xml"));
    EXPECT_EQ(calculator.getProjectPath().path(), "/a/b.xml");
    calculator.output();
    calculator.showDocument(nullptr);
    calculator.setMainDiagonalErrorEpsilon(1.0);
    calculator.setMainDiagonalWarningEpsilon(1.0);
    calculator.cancel();
    calculator.setImperfectionData(true, {});
    calculator.setIterationControlData(SysBase::IterationControlData());
    calculator.setCreep(nullptr);
    calculator.selectColumnDesignStates({1});
    calculator.setUpInitialReinforcement({});
}

TEST(VarnelCalculator, CopiesHaveThePathTheStepTheManagerAndTheModel) {
    VarnelFactory factory;
    VarnelManager manager(&factory);
    OpenCalculator calculator;
    calculator.initInstance(&manager);
    calculator.setProjectPath(Tools::Path("/a/b.xml"));
    calculator.setCurrentStep(4);
    const OpenCalculator copy(calculator);
    OpenCalculator assigned;
    assigned = calculator;
    calculator.setProjectPath(Tools::Path("/c/d.xml"));
    for (const OpenCalculator *one : {&copy, static_cast<const OpenCalculator *>(&assigned)}) {
        EXPECT_EQ(one->getManager(), &manager);
        EXPECT_EQ(one->getDatabase(), manager.getDatabase());
        EXPECT_EQ(one->getProjectPath().path(), "/a/b.xml");
        EXPECT_EQ(one->getCurrentStep(), 4);
    }
}

TEST(VarnelCalculator, KeepsTheManagerAndItsModel) {
    VarnelFactory factory;
    VarnelManager manager(&factory);
    OpenCalculator calculator;
    EXPECT_EQ(calculator.getManager(), nullptr);
    calculator.initInstance(&manager);
    EXPECT_EQ(calculator.getManager(), &manager);
    EXPECT_EQ(calculator.getDatabase(), manager.getDatabase());
    calculator.initInstance(nullptr);
    EXPECT_EQ(calculator.getDatabase(), nullptr);
}

TEST(VarnelConverter, HasDefaultsAndStoresWhatItIsGiven) {
    recording::Script script;
    recording::Converter converter(script);
    EXPECT_EQ(converter.getCurrentStep(), 0);
    EXPECT_EQ(converter.getLastStep(), 0);
    EXPECT_EQ(converter.getDatabase(), nullptr);
    EXPECT_EQ(converter.getManager(), nullptr);
    ASSERT_NE(converter.getProjectPath(), nullptr);
    EXPECT_EQ(converter.getProjectPath()->path(), "");
    VarnelFactory factory;
    VarnelManager manager(&factory);
    converter.setManager(&manager);
    converter.setDatabase(manager.getDatabase());
    EXPECT_EQ(converter.getManager(), &manager);
    EXPECT_EQ(converter.getDatabase(), manager.getDatabase());
    converter.showDocument();
    converter.refineMesh();
}

TEST(VarnelConverter, BuildsItsPathAnewFromTheText) {
    /// Leaves the protected operations as the base has them.
    class PlainConverter : public VarnelConverter {
      public:
        using VarnelConverter::setCurrentLoadcase;
        using VarnelConverter::setProjectPath;
        void output() override {}
        void initInstance(VarnelManager *) override {}
        double getTolerance() override { return 0.0; }
        void setTolerance(double) override {}
        int convert(VarnelSubSystem *) override { return 2; }
    } converter;
    const Tools::Path *path = converter.getProjectPath();
    converter.setProjectPath("/a/b.xml");
    converter.setCurrentLoadcase(3);
    EXPECT_EQ(converter.getProjectPath(), path);
    EXPECT_EQ(path->path(), "/a/b.xml");
    EXPECT_EQ(path->file(), "b");
    converter.setProjectPath("");
    EXPECT_EQ(path->path(), "");
}

/// A designer that can be looked at.
class OpenDesigner : public recording::Designer {
  public:
    using recording::Designer::Designer;
    using VarnelDesigner::getDatabase;
    using VarnelDesigner::getLineBoundaryResultMode;
    using VarnelDesigner::getManager;
    using VarnelDesigner::getMaxDisplacement;
    using VarnelDesigner::getMinValue;
    using VarnelDesigner::getResultLoadcase;
};

class AnyFunctional : public VarnelAsPlateFunctional {};

TEST(VarnelDesigner, HasDefaultsAndStoresWhatItIsGiven) {
    recording::Script script;
    OpenDesigner designer(script);
    EXPECT_EQ(designer.getResultLoadcase(), 0);
    EXPECT_DOUBLE_EQ(designer.getMinValue(), 1e-05);
    EXPECT_EQ(designer.getLineBoundaryResultMode(), 1);
    EXPECT_DOUBLE_EQ(designer.getMaxDisplacement(), 0.0);
    designer.setResultLoadcase(3);
    EXPECT_EQ(designer.getResultLoadcase(), 3);
    designer.setResultLc(4);
    EXPECT_EQ(designer.getResultLoadcase(), 4);
    designer.setLineBoundaryResultMode(2);
    EXPECT_EQ(designer.getLineBoundaryResultMode(), 2);
    designer.setMaxDisplacement(0.5);
    EXPECT_DOUBLE_EQ(designer.getMaxDisplacement(), 0.5);
    designer.setProjectPath("/a/b.xml");
    EXPECT_EQ(designer.getProjectPath()->path(), "/a/b.xml");
}

TEST(VarnelDesigner, CopiesShareThePathAndOneOfThemFreesIt) {
    recording::Script script;
    VarnelFactory factory;
    VarnelManager manager(&factory);
    auto designer = std::make_unique<OpenDesigner>(script);
    designer->initInstance(&manager);
    designer->setResultLoadcase(3);
    designer->setMinValue(0.5);
    designer->setLineBoundaryResultMode(2);
    designer->setMaxDisplacement(0.25);
    const OpenDesigner copy(*designer);
    designer->setProjectPath("/a/b.xml");
    EXPECT_EQ(copy.getProjectPath(), designer->getProjectPath());
    designer.reset();
    EXPECT_EQ(copy.getProjectPath()->path(), "/a/b.xml");
    EXPECT_EQ(copy.getManager(), &manager);
    EXPECT_EQ(copy.getDatabase(), manager.getDatabase());
    EXPECT_EQ(copy.getResultLoadcase(), 3);
    EXPECT_DOUBLE_EQ(copy.getMinValue(), 0.5);
    EXPECT_EQ(copy.getLineBoundaryResultMode(), 2);
    EXPECT_DOUBLE_EQ(copy.getMaxDisplacement(), 0.25);
}

TEST(VarnelDesigner, BaseAnswersNothing) {
    recording::Script script;
    OpenDesigner designer(script);
    AnyFunctional functional;
    std::vector<KzVector3D> corners;
    bool last = false;
    EXPECT_FALSE(designer.loopAs(functional));
    EXPECT_EQ(designer.getMeshElement(corners, false, last), 0);
    designer.meshElementReset();
    designer.reset();
    EXPECT_DOUBLE_EQ(designer.getDisplacementScale(), 1.0);
    designer.setDisplacementScale(2.0);
    EXPECT_DOUBLE_EQ(designer.getDisplacementScale(), 1.0);  // scaling is the derived designer's business
    VarnelFactory factory;
    VarnelManager manager(&factory);
    designer.initInstance(&manager);
    EXPECT_EQ(designer.getManager(), &manager);
    EXPECT_EQ(designer.getDatabase(), manager.getDatabase());
}

TEST(VarnelDesigner, ValuesAtTheThresholdDoNotCount) {
    recording::Script script;
    OpenDesigner designer(script);
    designer.setMinValue(0.5);
    EXPECT_FALSE(designer.checkValues({}));
    EXPECT_FALSE(designer.checkValues({0.0, 0.4999999}));
    EXPECT_FALSE(designer.checkValues({0.5, -0.5, 0.5}));
    EXPECT_TRUE(designer.checkValues({0.0, -0.5000001}));
    EXPECT_FALSE(designer.checkValues({std::nan("")}));
}

TEST(VarnelDesigner, NamesBeamsAndBars) {
    recording::Script script;
    OpenDesigner designer(script);
    VarnelBeam beam;
    EXPECT_EQ(designer.getBeamName(&beam), "Beam");
    beam.setElementType(2);
    EXPECT_EQ(designer.getBeamName(&beam), "Bar");
    EXPECT_EQ(designer.getBeamName(nullptr), "Bar");
}

}  // namespace
