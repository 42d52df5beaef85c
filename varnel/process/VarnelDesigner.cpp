#include "varnel/process/VarnelDesigner.h"

#include <algorithm>
#include <cmath>

#include "varnel/contracts/KzTextResource.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/process/VarnelManager.h"

VarnelDesigner::VarnelDesigner() : projectPath_(std::make_shared<Tools::Path>()) {}

VarnelDesigner::~VarnelDesigner() = default;

bool VarnelDesigner::checkValues(const std::vector<double> &values) const {
    return std::any_of(values.begin(), values.end(),
                       [this](double value) { return std::fabs(value) > minValue_; });
}

void VarnelDesigner::initInstance(VarnelManager *manager) {
    manager_ = manager;
    database_ = manager ? manager->getDatabase() : nullptr;
}

void VarnelDesigner::exitInstance() {}

void VarnelDesigner::execute(VarnelSubSystem *) {}

void VarnelDesigner::output() {}

void VarnelDesigner::setDoOutput(bool) {}

bool VarnelDesigner::loopAs(VarnelAsPlateFunctional &) const {
    return false;
}

int VarnelDesigner::getMeshElement(std::vector<KzVector3D> &, bool, bool &) {
    return 0;
}

void VarnelDesigner::meshElementReset() {}

void VarnelDesigner::setDisplacementScale(double) {}

double VarnelDesigner::getDisplacementScale() const {
    return 1.0;
}

void VarnelDesigner::setProjectPath(const std::string &path) {
    projectPath_->setPath(path);
}

std::string VarnelDesigner::getBeamName(const VarnelBeam *beam) const {
    const bool isBeam = beam && beam->getElementType() == 1;
    return KzTextResource::get()->loadString(isBeam ? 4175u : 4171u);
}

void VarnelDesigner::reset() {}
