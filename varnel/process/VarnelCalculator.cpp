#include "varnel/process/VarnelCalculator.h"

#include "varnel/process/VarnelManager.h"

VarnelCalculator::~VarnelCalculator() = default;

void VarnelCalculator::initInstance(VarnelManager *manager) {
    manager_ = manager;
    database_ = manager ? manager->getDatabase() : nullptr;
}

void VarnelCalculator::output() {}

int VarnelCalculator::execute() {
    return 2;
}

void VarnelCalculator::showDocument(Varnel *) {}

void VarnelCalculator::setDoOutput(bool value) {
    doOutput_ = value;
}

void VarnelCalculator::setMainDiagonalErrorEpsilon(double) {}

void VarnelCalculator::setMainDiagonalWarningEpsilon(double) {}

void VarnelCalculator::cancel() {}

void VarnelCalculator::setImperfectionData(bool, std::array<std::pair<int, double>, 2>) {}

SysBase::Imperfection *VarnelCalculator::getImperfectionData() const {
    return nullptr;
}

void VarnelCalculator::setIterationControlData(const SysBase::IterationControlData &) {}

SysBase::IterationControlData *VarnelCalculator::getIterationControlData() const {
    return nullptr;
}

SysBase::Creep *VarnelCalculator::getCreep() const {
    return nullptr;
}

void VarnelCalculator::setCreep(SysBase::Creep *) {}

KzVector3D VarnelCalculator::getTotalForceExternalLoads(int) {
    return {};
}

KzVector3D VarnelCalculator::getTotalMomentExternalLoads(int) {
    return {};
}

KzVector3D VarnelCalculator::getTotalSupportForce(int) {
    return {};
}

KzVector3D VarnelCalculator::getTotalSupportMoment(int) {
    return {};
}

void VarnelCalculator::selectColumnDesignStates(const std::vector<int> &) {}

void VarnelCalculator::setUpInitialReinforcement(
    const std::vector<std::unique_ptr<Reinforcement::SuperposedResult>> &) {}

std::vector<std::unique_ptr<Reinforcement::SuperposedResult>>
VarnelCalculator::superposeColumnDesignResults() {
    return {};
}
