#include <limits>
#include <optional>
#include <unordered_set>
#include <vector>

#include "varnel/contracts/KzTextResource.h"
#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/loads/VarnelBeamLoad.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/model/Varnel.h"
#include "varnel/model/VarnelDefaultProperties.h"
#include "varnel/process/PlateLocator.h"
#include "varnel/process/SubSystemWalk.h"
#include "varnel/process/VarnelConverter.h"
#include "varnel/process/VarnelManager.h"

namespace {

constexpr unsigned ownWeightText = 3039;
constexpr unsigned loadText = 4627;

constexpr int unused = 1;  // flag of a load case during the automation
constexpr int used = 0;

template <class Loads, class Visitor>
void eachIn(const Loads &loads, Visitor visitor) {
    for (auto *load : loads)
        if (load) visitor(*load);
}

/// The free loads that take part in the automation, in its order. Beam loads take none.
template <class Visitor>
void eachFreeLoad(const Varnel &model, Visitor visitor) {
    eachIn(model.getPointLoads(), visitor);
    eachIn(model.getLineLoads(), visitor);
    eachIn(model.getAreaLoads(), visitor);
}

/// All loads that a model lists; those of plates are their plates' own.
template <class Visitor>
void eachListedLoad(const Varnel &model, Visitor visitor) {
    eachFreeLoad(model, visitor);
    eachIn(model.getBeamLoads(), visitor);
}

/// The case of plate n has the number n + 1; the largest number stands for all beyond it.
int caseNumber(const VarnelPlate &plate) {
    const int number = plate.getNumber();
    return number < std::numeric_limits<int>::max() ? number + 1 : number;
}

}  // namespace

SysBase::Loadcase *VarnelManager::giveLoadcase(int number) {
    return new SysBase::Loadcase(number);
}

void VarnelManager::setCurrentLoadcase(int number) {
    SysBase::Manager::setCurrentLoadcase(number);
    if (VarnelConverter *converter = getConverter()) converter->setCurrentLoadcase(number);
}

void VarnelManager::remove(SysBase::Loadcase *loadcase, bool destroy) {
    if (!loadcase) return;
    std::vector<VarnelLoad *> leaving;  // no longer found in the model when the case dies
    if (Varnel *model = getDatabase()) {
        const auto note = [&leaving, loadcase](VarnelLoad &load) {
            if (load.getLoadcase() == loadcase) leaving.push_back(&load);
        };
        if (destroy) eachListedLoad(*model, note);
        model->removeLoadsToLoadcase(destroy, loadcase);
    }
    for (VarnelLoad *load : leaving) load->forgetLoadcase(loadcase);
    if (destroy) forgetLoadcases({loadcase});
    removeLoadcase(loadcase, destroy);
}

/// Loads of other subsystems, beam loads, the plates' own loads and the default records may still point at
/// cases that are about to die: they get none, without counting as changed.
void VarnelManager::forgetLoadcases(const std::list<SysBase::Loadcase *> &dying) {
    const std::unordered_set<const SysBase::Loadcase *> cases(dying.begin(), dying.end());
    const auto forget = [&cases](VarnelLoad &load) {
        if (cases.count(load.getLoadcase()) != 0) load.forgetLoadcase(load.getLoadcase());
    };
    std::unordered_set<VarnelSubSystem *> tops(subSystems_.begin(), subSystems_.end());
    tops.insert(currentSubSystem_);  // which stays current when it is taken out of the tree
    for (VarnelSubSystem *top : tops) {
        varnel::eachModel(top, [&forget](Varnel &model) {
            eachListedLoad(model, forget);
            eachIn(model.getPlates(),
                   [&forget](const VarnelPlate &plate) { eachIn(plate.getAreaLoads(), forget); });
        });
    }
    for (const SysBase::Loadcase *loadcase : dying) VarnelDefaultProperties::get()->forget(loadcase);
}

void VarnelManager::setupLoads(VarnelSubSystem *subSystem) {
    if (!loadcaseAutomation_) return;
    Varnel *model = subSystem ? subSystem->getDatabase() : nullptr;
    if (!model) return;
    // Marked for all subsystems anew; cases that stay unused are kept, since setup() alone empties the list.
    for (SysBase::Loadcase *loadcase : getLoadcases()) loadcase->setFlag(unused);

    SysBase::Loadcase *dead = giveLoadcaseToName(KzTextResource::get()->loadString(ownWeightText));
    if (!dead) return;  // a host that makes no cases
    dead->setType(1);
    dead->setOwnWeight(getOwnWeight());
    if (getOwnWeight()) dead->setFlag(used);

    eachIn(model->getPlates(), [this, dead](VarnelPlate &plate) {
        if (plate.getAreaLoads().empty()) return;
        SysBase::Loadcase *live =
            giveLoadcaseToName(KzTextResource::get()->loadString(loadText) + " " + plate.getName());
        if (!live) return;
        live->setType(2);
        eachIn(plate.getAreaLoads(), [dead, live](VarnelAreaLoad &load) {
            SysBase::Loadcase *target = load.isDead() ? dead : live;
            load.setLoadcase(target);
            target->setFlag(used);
        });
    });

    // Places are looked for on the plates of the current subsystem, also while another one is set up.
    const Varnel *current = getDatabase();
    std::optional<varnel::PlateLocator> locator;  // made for the first live load
    const auto plateAt = [current, &locator](const KzVector3D &place) -> const VarnelPlate * {
        if (!current) return nullptr;
        if (!locator) locator.emplace(current->getPlates());
        return locator->find(place);
    };
    eachFreeLoad(*model, [this, dead, &plateAt](auto &load) {
        if (load.isDead()) {
            load.setLoadcase(dead);
            return;
        }
        const VarnelPlate *plate = plateAt(load.getCOG());
        load.setLoadcase(plate ? giveLoadcaseToNumber(caseNumber(*plate), true) : nullptr);
    });
    eachFreeLoad(*model, [](auto &load) {
        if (SysBase::Loadcase *loadcase = load.getLoadcase()) loadcase->setFlag(used);
    });
}

SysBase::Loadcase *VarnelManager::findLoadcase(const KzVector3D &coordinates) {
    Varnel *model = getDatabase();
    const VarnelPlate *plate = model ? model->findPlateToCoor(coordinates) : nullptr;
    return plate ? giveLoadcaseToNumber(caseNumber(*plate), true) : nullptr;
}
