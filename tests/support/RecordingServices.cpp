#include "tests/support/RecordingServices.h"

#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/contracts/Tools/Error.h"
#include "varnel/exchange/VarnelExchangeXml.h"
#include "varnel/members/VarnelLineBoundaryData.h"
#include "varnel/model/VarnelSubSystem.h"
#include "varnel/results/VarnelLineResult.h"

namespace recording {

namespace {

std::string nameOf(const VarnelSubSystem *subSystem) {
    return subSystem ? subSystem->getName() : "null";
}

}  // namespace

void Script::note(const std::string &call) {
    calls.push_back(call);
    if (!throwIn.empty() && call.rfind(throwIn, 0) == 0) throw Tools::Error(throwIn.c_str());
}

Calls Script::take() {
    Calls taken;
    taken.swap(calls);
    return taken;
}

void Converter::initInstance(VarnelManager *manager) {
    setManager(manager);
    script_.note("converter.initInstance");
}

int Converter::convert(VarnelSubSystem *subSystem) {
    script_.note("converter.convert " + nameOf(subSystem));
    return script_.convert;
}

void Converter::setCurrentLoadcase(int number) {
    script_.note("converter.setCurrentLoadcase " + std::to_string(number));
}

void Converter::setProjectPath(const std::string &path) {
    VarnelConverter::setProjectPath(path);
    script_.note("converter.setProjectPath");
}

int Calculator::execute() {
    script_.note("calculator.execute");
    return script_.execute;
}

void Calculator::setDoOutput(bool value) {
    VarnelCalculator::setDoOutput(value);
    script_.note(value ? "calculator.setDoOutput 1" : "calculator.setDoOutput 0");
}

void Designer::execute(VarnelSubSystem *subSystem) {
    script_.note("designer.execute " + nameOf(subSystem));
}

void Designer::setDoOutput(bool value) {
    script_.note(value ? "designer.setDoOutput 1" : "designer.setDoOutput 0");
}

void Designer::getLineBoundaryResult(SysBase::Loadcase *loadcase, VarnelLineBoundaryData *boundary,
                                     VarnelLineResult &result) {
    script_.note("designer.getLineBoundaryResult " + std::to_string(loadcase->getNumber()) + " " +
                 boundary->getName());
    VarnelLineResultData data;
    data.setPos(1.5);
    data.setMinFz(-2.0);
    data.setMaxFz(10.0 * loadcase->getNumber());
    result.add(data);
}

std::map<VarnelPointBoundary *, VarnelPointResultData> Designer::getPointBoundaryResults(
    SysBase::Loadcase *loadcase) {
    script_.note("designer.getPointBoundaryResults " + std::to_string(loadcase->getNumber()));
    return {};
}

bool DataChecker::checkSystem(VarnelManager *) {
    script_.note("checker.checkSystem");
    return script_.checkSystem;
}

void ErrorHandler::display(const std::list<std::string> &messages) const {
    script_.note("handler.list " + std::to_string(messages.size()));
}

void ErrorHandler::display(const std::string &message) const {
    script_.note("handler.message " + message);
}

void Exchange::fileOutput(const Tools::Path &path) {
    script_.note("exchange.fileOutput " + path.file());
}

bool Exchange::fileInput(const Tools::Path &path) {
    script_.note("exchange.fileInput " + path.file());
    return script_.fileInput;
}

void Exchange::get(VarnelManager *) {
    script_.note("exchange.get");
}

void Exchange::updateResults(VarnelManager *) {
    script_.note("exchange.updateResults");
}

void Exchange::updateSystem(VarnelManager *) {
    script_.note("exchange.updateSystem");
}

void Exchange::loadProjectSettings(const std::string &path) {
    script_.note("exchange.loadProjectSettings " + path);
}

void Exchange::saveProjectSettings(const std::string &path) {
    script_.note("exchange.saveProjectSettings " + path);
}

Factory::~Factory() = default;

template <class Service, class Base>
Base *Factory::give(bool has) const {
    if (!has) return nullptr;
    ++made;
    return new Service(script);
}

VarnelCalculator *Factory::giveCalculator() const {
    return give<Calculator, VarnelCalculator>(hasCalculator);
}

VarnelConverter *Factory::giveConverter() const {
    return give<Converter, VarnelConverter>(hasConverter);
}

VarnelDesigner *Factory::giveDesigner() const {
    return give<Designer, VarnelDesigner>(hasDesigner);
}

VarnelExchange *Factory::giveExchange() const {
    return give<Exchange, VarnelExchange>(hasExchange);
}

VarnelDataChecker *Factory::giveDataChecker() {
    return give<DataChecker, VarnelDataChecker>(hasDataChecker);
}

VarnelErrorHandler *Factory::giveErrorHandler() const {
    if (!hasErrorHandler) return nullptr;
    ++made;
    handlers_.emplace_back(script);
    return &handlers_.back();
}

VarnelExchange *DocumentFactory::giveExchange() const {
    return new VarnelExchangeXml;
}

}  // namespace recording
