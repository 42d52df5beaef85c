#include "varnel/model/VarnelNamesManager.h"

#include <algorithm>

#include "varnel/contracts/KzTextResource.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelBeamProperties.h"
#include "varnel/members/VarnelHole.h"
#include "varnel/members/VarnelLineBoundary.h"
#include "varnel/members/VarnelLineBoundaryData.h"
#include "varnel/members/VarnelLoadDistributionArea.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPlateProperties.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/members/VarnelPointBoundaryData.h"
#include "varnel/model/FreeNames.h"
#include "varnel/model/Varnel.h"
#include "varnel/model/VarnelDefaultProperties.h"
#include "varnel/model/VarnelObjectGroup.h"

namespace {

constexpr unsigned groupText = 5571;

template <class List>
std::string nextName(const std::string &prefix, const List &list) {
    varnel::FreeNames names(prefix);
    names.useAll(list);
    return names.next();
}

template <class List>
bool hasName(const List &list, const std::string &name) {
    return std::any_of(list.begin(), list.end(),
                       [&name](const auto *object) { return object && object->getName() == name; });
}

const VarnelDefaultProperties &defaults() {
    return *VarnelDefaultProperties::get();
}

/// A list of a model, or an empty one without a model.
template <class List>
const List &listOf(const Varnel *model, const List &(Varnel::*get)() const) {
    static const List empty;
    return model ? (model->*get)() : empty;
}

const std::list<VarnelPlate *> &platesOf(const Varnel *model) {
    return listOf<std::list<VarnelPlate *>>(model, &Varnel::getPlates);
}

}  // namespace

VarnelNamesManager::VarnelNamesManager(Varnel *model)
    : model_(model), plateProperties_(&defaults().getPlateProp()) {}

std::string VarnelNamesManager::nextPlate() const {
    for (int n = 1;; ++n) {  // each candidate costs one look-up in an ordered map
        std::string name = plateProperties_->getName() + std::to_string(n);
        if (!model_ || !model_->hasPlatewithName(name)) return name;
    }
}

void VarnelNamesManager::nextPlateP(std::string *out) const {
    if (out) *out = nextName(plateProperties_->getName(), platesOf(model_));
}

std::string VarnelNamesManager::nextHole() const {
    return nextName(defaults().getHole().getName(), listOf(model_, &Varnel::getHoles));
}

std::string VarnelNamesManager::nextLDA() const {
    return nextName(defaults().getLDA().getName(), listOf(model_, &Varnel::getLoadDistributionAreas));
}

std::string VarnelNamesManager::nextPointBoundary() const {
    return nextName(defaults().getPBData().getName(), listOf(model_, &Varnel::getPointBoundaries));
}

std::string VarnelNamesManager::nextLoad() const {
    varnel::FreeNames names("L");
    names.useAll(listOf(model_, &Varnel::getAreaLoads));
    names.useAll(listOf(model_, &Varnel::getLineLoads));
    names.useAll(listOf(model_, &Varnel::getPointLoads));
    return names.next();
}

std::string VarnelNamesManager::nextBeam() const {
    return nextName(defaults().getBeamProp().getName(), listOf(model_, &Varnel::getBeams));
}

std::string VarnelNamesManager::nextObjectGroup() const {
    return nextName(KzTextResource::get()->loadString(groupText), listOf(model_, &Varnel::getObjectGroups));
}

bool VarnelNamesManager::findPlate(const std::string &name) const {
    return hasName(platesOf(model_), name);
}

bool VarnelNamesManager::findHole(const std::string &name) const {
    return hasName(listOf(model_, &Varnel::getHoles), name);
}

bool VarnelNamesManager::findLDA(const std::string &name) const {
    return hasName(listOf(model_, &Varnel::getLoadDistributionAreas), name);
}

bool VarnelNamesManager::findPointBoundary(const std::string &name) const {
    return hasName(listOf(model_, &Varnel::getPointBoundaries), name);
}

bool VarnelNamesManager::findLoad(const std::string &name) const {
    return hasName(listOf(model_, &Varnel::getAreaLoads), name) ||
           hasName(listOf(model_, &Varnel::getLineLoads), name) ||
           hasName(listOf(model_, &Varnel::getPointLoads), name);
}

bool VarnelNamesManager::findBeam(const std::string &name) const {
    return hasName(listOf(model_, &Varnel::getBeams), name);
}

bool VarnelNamesManager::findObjectGroup(const std::string &name) const {
    return hasName(listOf(model_, &Varnel::getObjectGroups), name);
}

void VarnelNamesManager::addTemporaryLineBoundary(const std::string &name) {
    temporaryLineBoundaries_.push_back(name);
}

void VarnelNamesManager::removeTemporaryLineBoundary(const std::string &name) {
    auto &names = temporaryLineBoundaries_;
    const auto isRemoved = [removed = std::string(name)](const std::string &one) { return one == removed; };
    names.erase(std::remove_if(names.begin(), names.end(), isRemoved), names.end());
}

void VarnelNamesManager::resetTemporaryLineBoundary() {
    temporaryLineBoundaries_.clear();
}

// The temporary names are meant to play no part in these two.

std::string VarnelNamesManager::nextLineBoundary() {
    return nextName(defaults().getLBData().getName(), listOf(model_, &Varnel::getLineBoundaries));
}

bool VarnelNamesManager::findLineBoundary(const std::string &name) {
    return hasName(listOf(model_, &Varnel::getLineBoundaries), name);
}
