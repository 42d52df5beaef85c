#include <algorithm>
#include <iomanip>
#include <limits>
#include <locale>
#include <sstream>
#include <vector>

#include "varnel/contracts/Found/Foundation.h"
#include "varnel/contracts/SysBase/ConstructionStage.h"
#include "varnel/contracts/Tools/Directory.h"
#include "varnel/exchange/VarnelExchange.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/model/Varnel.h"
#include "varnel/model/VarnelSetupHelper.h"
#include "varnel/process/SubSystemWalk.h"
#include "varnel/process/VarnelCalculator.h"
#include "varnel/process/VarnelConverter.h"
#include "varnel/process/VarnelDataChecker.h"
#include "varnel/process/VarnelDesigner.h"
#include "varnel/process/VarnelErrorHandler.h"
#include "varnel/process/VarnelManager.h"

namespace {

constexpr int success = 1;
constexpr int failure = 2;

/// Bit 0 of what a step or a service answers tells whether to go on.
bool succeeded(int result) {
    return (result & 1) != 0;
}

/// A process operation fails if bit 1 of the last step's answer is set.
int processResult(int result) {
    return (result & 2) != 0 ? failure : success;
}

void raiseStatus(VarnelSubSystem *subSystem, int status) {
    Varnel *model = subSystem ? subSystem->getDatabase() : nullptr;
    if (model) model->setCurrentStatus(static_cast<Varnel::SystemStatus>(status));
}

/// "0012-0003": four digits are a minimum.
std::string pictureName(const char *stem, const VarnelBeam *beam, int state) {
    std::ostringstream name;
    name.imbue(std::locale::classic());
    name << stem << std::setfill('0') << std::setw(4) << (beam ? beam->getNumber() : 0) << '-' << std::setw(4)
         << state;
    return name.str();
}

}  // namespace

void VarnelManager::setup() {
    if (loadcaseAutomation_) {
        forgetLoadcases(getLoadcases());
        removeAllLoadcases();
        setLoadChanged(true);
        setCurrentLoadcase(-1);
    }
    VarnelSetupHelper helper;
    setup(currentSubSystem_, helper, true, true);
}

void VarnelManager::setup(VarnelSubSystem *subSystem, VarnelSetupHelper &helper, bool doLoads, bool) {
    varnel::eachSubSystem(subSystem, [this, &helper, doLoads](VarnelSubSystem &node) {
        if (Varnel *model = node.getDatabase()) {
            model->setupNumbers(helper);
            model->setupBoundaryReferences();
        }
        if (doLoads && getLoadcaseAutomation()) setupLoads(&node);
    });
}

void VarnelManager::setupNumbers(VarnelSubSystem *subSystem, VarnelSetupHelper &helper) {
    // Children come before the stages of their parent, so each node waits twice: once to number its model and
    // put its children before itself, once to number its stages.
    struct Visit {
        VarnelSubSystem *node;
        bool stages;
    };
    std::vector<Visit> waiting{{subSystem, false}};
    while (!waiting.empty()) {
        const Visit visit = waiting.back();
        waiting.pop_back();
        if (!visit.node) continue;
        if (visit.stages) {
            for (SysBase::ConstructionStage *stage : visit.node->getConstructionStages())
                if (stage) stage->setNumber(++helper.constructionStageCount);
            continue;
        }
        if (Varnel *model = visit.node->getDatabase()) model->setupNumbers(helper);
        waiting.push_back({visit.node, true});
        const auto &children = visit.node->getChildren();
        for (auto child = children.rbegin(); child != children.rend(); ++child)
            waiting.push_back({*child, false});
    }
}

int VarnelManager::update() {
    return update(currentSubSystem_);
}

int VarnelManager::update(VarnelSubSystem *subSystem) {
    if (!systemOk()) {
        // A copy is shown, since a handler may add messages or check again while it shows them.
        if (VarnelErrorHandler *handler = getErrorHandler())
            handler->display(std::list<std::string>(getErrorList()));
        return failure;
    }
    if (!projectPath_.directory().empty()) Tools::Directory::setCurrent(projectPath_.directory());
    if (!doConvert_ || !modelChanged()) return success;
    return calculateAndGetResults(subSystem, doConvertModel(subSystem));
}

int VarnelManager::calculateAndGetResults(VarnelSubSystem *subSystem, int result) {
    if (succeeded(result) && doCalculation_) {
        result = doCalculation(subSystem);
        if (succeeded(result) && doResultConversion()) result = doGetResults(subSystem);
    }
    return processResult(result);
}

void VarnelManager::updateAll() {
    VarnelSetupHelper helper;
    setup(currentSubSystem_, helper, true, true);  // load cases stay: they are found again by name
    resetStep();
    if (!currentSubSystem_) return;
    // Counted before, since services may change the list meanwhile.
    const auto &stages = currentSubSystem_->getConstructionStages();
    auto updates =
        stages.size() - static_cast<std::size_t>(std::count(stages.begin(), stages.end(), nullptr));
    for (; updates > 0; --updates) {
        nextStep();
        update(currentSubSystem_);
    }
}

void VarnelManager::updateExchange() {
    if (VarnelExchange *exchange = getExchange()) exchange->updateSystem(this);
}

void VarnelManager::updateConverter() {
    VarnelSetupHelper helper;
    resetStep();
    nextStep();
    VarnelConverter *converter = getConverter();
    if (converter) converter->removeAll();
    if (Varnel *model = getDatabase()) model->setupNumbers(helper);
    if (!converter) return;
    if (!projectPath_.path().empty()) converter->setProjectPath(projectPath_.path());
    converter->convert(currentSubSystem_);
    if (doOutput_) converter->output();
}

int VarnelManager::refresh() {
    if (!systemOk()) return success;  // the opposite of update(): nothing to refresh is no failure
    VarnelSubSystem *subSystem = currentSubSystem_;
    if (!doRefresh_ || !modelChanged()) return success;
    return calculateAndGetResults(subSystem, doModifyModel(subSystem));
}

int VarnelManager::doConvertModel(VarnelSubSystem *subSystem) {
    int result = failure;
    VarnelConverter *converter = getConverter();
    if (!converter) return failure;
    if (!projectPath_.path().empty()) {
        VarnelSetupHelper helper;
        setupNumbers(subSystem, helper);
        if (succeeded(converter->convert(subSystem))) {
            raiseStatus(subSystem, 1);
            // Before the calculation: a failed one is not repeated unless something changes.
            setEverythingUnchanged();
            result = success;
        }
    }
    if (doOutput_) converter->output();  // after failures too, so that the host can look at them
    return result;
}

int VarnelManager::doModifyModel(VarnelSubSystem *) {
    int result = failure;
    VarnelConverter *converter = getConverter();
    if (!converter) return failure;
    if (!projectPath_.path().empty()) {
        converter->modifyModel();
        setEverythingUnchanged();
        result = success;
    }
    if (doOutput_) converter->output();
    return result;
}

int VarnelManager::doCalculation(VarnelSubSystem *subSystem) {
    VarnelCalculator *calculator = getCalculator();
    if (!calculator) return failure;
    calculator->setProjectPath(projectPath_);
    calculator->setDoOutput(doOutput_);
    if (!succeeded(calculator->execute())) return failure;
    raiseStatus(subSystem, 1);
    return success;
}

int VarnelManager::doDesign(VarnelSubSystem *) {
    return success;
}

bool VarnelManager::doResultConversion() {
    return getCalculator() != nullptr;
}

int VarnelManager::doGetResults(VarnelSubSystem *subSystem) {
    VarnelDesigner *designer = getDesigner();
    if (!designer) return failure;
    if (!doRefresh_) varnel::eachModel(currentSubSystem_, [](Varnel &model) { model.removeResults(); });
    designer->execute(subSystem);
    raiseStatus(subSystem, 3);
    if (!doRefresh_)
        varnel::eachModel(currentSubSystem_, [](Varnel &model) { model.setupResultLocations(); });
    if (doOutput_) designer->output();
    designer->exitInstance();
    return success;
}

void VarnelManager::setEverythingUnchanged() {
    setLoadChanged(false);
    setSystemChanged(false);
    setSectionChanged(false);
    setMaterialChanged(false);
    setFoundationChanged(false);
}

void VarnelManager::output(const char *path) {
    VarnelSetupHelper helper;
    setProjectPath(std::string(path ? path : ""));
    setupNumbers(subSystems_.empty() ? nullptr : subSystems_.front(), helper);
    VarnelExchange *exchange = getExchange();
    if (!exchange) return;
    exchange->updateSystem(this);
    if (!systemChanged() && !loadChanged()) exchange->updateResults(this);
    exchange->fileOutput(projectPath_);
    setEverythingUnchanged();
}

bool VarnelManager::input(const char *path) {
    VarnelExchange *exchange = getExchange();
    if (!exchange) return false;
    setProjectPath(std::string(path ? path : ""));
    if (exchange->fileInput(projectPath_)) exchange->get(this);
    return true;
}

void VarnelManager::setCurrentStep(int step) {
    lastStep_ = currentStep_;
    VarnelConverter *converter = getConverter();  // one that is made here still finds the former step
    if (converter) converter->setLastStep(lastStep_);
    currentStep_ = step;
    if (converter) converter->setCurrentStep(step);
    if (VarnelCalculator *calculator = getCalculator()) calculator->setCurrentStep(step);
}

void VarnelManager::nextStep() {
    VarnelConverter *converter = getConverter();
    if (converter) converter->setLastStep(lastStep_);
    // The last step itself does not move: only setCurrentStep() counts up.
    currentStep_ = lastStep_ < std::numeric_limits<int>::max() ? lastStep_ + 1 : lastStep_;
    if (converter) converter->setCurrentStep(currentStep_);
    if (VarnelCalculator *calculator = getCalculator()) calculator->setCurrentStep(currentStep_);
}

void VarnelManager::resetStep() {
    if (VarnelConverter *converter = getConverter()) converter->setCurrentStep(0);
    if (VarnelCalculator *calculator = getCalculator()) calculator->setCurrentStep(0);
    currentStep_ = 0;
    lastStep_ = 0;
}

bool VarnelManager::systemOk() {
    errorList_.clear();
    VarnelDataChecker *checker = getDataChecker();
    return !checker || checker->checkSystem(this);
}

void VarnelManager::error(const std::string &message) {
    if (VarnelErrorHandler *handler = getErrorHandler()) handler->display(message);
}

std::string VarnelManager::givePictureNameBeamPrimaryStress(const VarnelBeam *beam, int state,
                                                            bool second) const {
    return pictureName("str", beam, state) + (second ? "-II" : "");
}

std::string VarnelManager::givePictureNameInterfaceStressAtBeam(const VarnelBeam *beam, int state) {
    return pictureName("ifstr", beam, state);
}
