#include "varnel/contracts/SysBase/Manager.h"

#include <limits>

#include "varnel/contracts/Found/FoundationManager.h"
#include "varnel/contracts/Lists.h"
#include "varnel/contracts/SysBase/Loadcase.h"

namespace SysBase {

Manager::Manager() : foundationManager_(std::make_unique<Found::FoundationManager>()) {}

Manager::~Manager() {
    removeAllLoadcases();
}

Loadcase *Manager::giveLoadcase(int number) {
    return new Loadcase(number);
}

void Manager::removeLoadcase(Loadcase *loadcase, bool destroy) {
    if (!loadcase) return;
    if (loadcase->manager_ == this) {
        const auto place = numbers_.find({loadcase->number_, loadcase->sequence_});
        loadcases_.erase(place->second.position);
        numbers_.erase(place);
        names_.drop(loadcase->name_, loadcase->sequence_);
        loadcase->manager_ = nullptr;
        if (currentLoadcase_ == loadcase) currentLoadcase_ = nullptr;
    }
    if (destroy && !loadcase->manager_) delete loadcase;
}

Loadcase *Manager::giveLoadcaseToNumber(int number, bool create) {
    const auto place = numbers_.lower_bound({number, 0});
    if (place != numbers_.end() && place->first.first == number) return place->second.loadcase;
    if (!create) return nullptr;
    Loadcase *loadcase = giveLoadcase(number);
    add(loadcase);
    return loadcase;
}

void Manager::setCurrentLoadcase(int number) {
    currentLoadcase_ = number == -1 ? nullptr : Manager::giveLoadcaseToNumber(number, false);
}

Loadcase *Manager::giveLoadcaseToName(const std::string &name) {
    if (Loadcase *loadcase = names_.find(name)) return loadcase;
    Loadcase *loadcase = giveLoadcase(nextNumber());
    add(loadcase);
    if (loadcase) loadcase->setName(name);
    return loadcase;
}

void Manager::remove(Loadcase *loadcase, bool destroy) {
    removeLoadcase(loadcase, destroy);
}

void Manager::add(Loadcase *loadcase) {
    if (!loadcase || loadcase->manager_) return;
    const auto position = loadcases_.insert(loadcases_.end(), loadcase);
    loadcase->manager_ = this;
    loadcase->sequence_ = ++lastSequence_;
    numbers_.emplace(std::make_pair(loadcase->number_, loadcase->sequence_), Place{loadcase, position});
    names_.file(loadcase->name_, loadcase->sequence_, loadcase);
    if (loadcase->changed_) loadChanged_ = true;
}

void Manager::setLoadChanged(bool value) {
    loadChanged_ = value;
    if (value) return;
    for (Loadcase *loadcase : loadcases_) loadcase->changed_ = false;
}

void Manager::removeAllLoadcases() {
    currentLoadcase_ = nullptr;
    numbers_.clear();
    names_.clear();
    for (Loadcase *loadcase : loadcases_) loadcase->manager_ = nullptr;
    varnel::deleteAll(loadcases_);
}

int Manager::nextNumber() const {
    if (numbers_.empty()) return 1;
    const int highest = numbers_.rbegin()->first.first;
    if (highest < 1) return 1;
    return highest < std::numeric_limits<int>::max() ? highest + 1 : highest;
}

}  // namespace SysBase
