// "CONSTRUCTIONSTATES" with "CONSTRUCTIONSTATE", "OBJECTSTATES" and "OBJECTSTATE".

#include <algorithm>
#include <limits>

#include "varnel/contracts/KzMaterial.h"
#include "varnel/contracts/KzMaterialManager.h"
#include "varnel/contracts/KzXmlDataUtil.h"
#include "varnel/contracts/Tools/Error.h"
#include "varnel/exchange/ElementReading.h"
#include "varnel/exchange/StateObjects.h"
#include "varnel/exchange/VarnelExchangeXml.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/model/Varnel.h"
#include "varnel/model/VarnelSubSystem.h"
#include "varnel/process/VarnelDatabaseFactory.h"
#include "varnel/stages/VarnelBeamState.h"
#include "varnel/stages/VarnelConstructionStage.h"
#include "varnel/stages/VarnelLineLoadState.h"
#include "varnel/stages/VarnelObjectStateVisitor.h"
#include "varnel/stages/VarnelPlateState.h"
#include "varnel/stages/VarnelPointBoundaryState.h"
#include "varnel/stages/VarnelPointLoadState.h"

namespace {

using varnel::StateKind;
using varnel::StateObjects;

// One key attribute for each kind of object, for both ways.
constexpr const char *beamKey = "BEAM";
constexpr const char *plateKey = "PLATE";
constexpr const char *pointBoundaryKey = "POINTBOUNDARY";
constexpr const char *pointLoadKey = "POINTLOAD";
constexpr const char *lineLoadKey = "LINELOAD";

/// Writes each state under the number of its object. A state without an object has no number to be found by
/// and is skipped; so is one whose object has left the project, which may be dead and is not touched.
class VarnelObjectStateVisitorUpdateXml : public VarnelObjectStateVisitor {
  public:
    VarnelObjectStateVisitorUpdateXml(VarnelExchangeXml *exchange, StateObjects &living)
        : exchange_(exchange), living_(living) {}

    void visit(VarnelLineLoadState *state) override {
        update(lineLoadKey, StateKind::LineLoad, state, state->getLineLoad());
    }
    void visit(VarnelPointLoadState *state) override {
        update(pointLoadKey, StateKind::PointLoad, state, state->getPointLoad());
    }
    void visit(VarnelPointBoundaryState *state) override {
        update(pointBoundaryKey, StateKind::PointBoundary, state, state->getPointBoundary());
    }
    void visit(VarnelBeamState *state) override {
        update(beamKey, StateKind::Beam, state, state->getBeam(),
               [this, state] { exchange_->updateOneBeamState(state); });
    }
    void visit(VarnelPlateState *state) override {
        update(plateKey, StateKind::Plate, state, state->getPlate(),
               [this, state] { exchange_->updateOnePlateState(state); });
    }

  private:
    // The object in its own class is asked: an assignment through the base of states may have put another one
    // beside it.
    template <class Object, class Extra>
    void update(const char *key, StateKind kind, VarnelObjectState *state, Object *object, Extra extra) {
        if (!living_.contains(kind, object)) return;
        exchange_->openToAttribute("OBJECTSTATE", key, object->getNumber());
        exchange_->updateOneObjectState(state);
        extra();
        exchange_->close();
    }
    template <class Object>
    void update(const char *key, StateKind kind, VarnelObjectState *state, Object *object) {
        update(key, kind, state, object, [] {});
    }

    VarnelExchangeXml *exchange_;
    StateObjects &living_;
};

/// Gives a field another value until the scope is left, also by an exception.
template <class Value>
class Temporarily {
  public:
    Temporarily(Value &field, Value value) : field_(field), former_(field) { field_ = value; }
    Temporarily(const Temporarily &) = delete;
    Temporarily &operator=(const Temporarily &) = delete;
    ~Temporarily() { field_ = former_; }

  private:
    Value &field_;
    Value former_;
};

/// Looks in the subsystem's model, then in those of its children in order, and no deeper.
template <class Find>
auto findInTree(const VarnelSubSystem &subSystem, Find find) -> decltype(find(*subSystem.getDatabase())) {
    if (Varnel *model = subSystem.getDatabase())
        if (auto *object = find(*model)) return object;
    for (const VarnelSubSystem *child : subSystem.getChildren()) {
        Varnel *model = child ? child->getDatabase() : nullptr;
        if (!model) continue;
        if (auto *object = find(*model)) return object;
    }
    return nullptr;
}

void readActive(const KzXmlData *element, VarnelObjectState *state) {
    varnel::ifBool(element, "ACTIVE", [state](bool value) {
        if (state) state->setActive(value);
    });
}

template <class Object>
void readPlainState(VarnelConstructionStage &stage, Object *object, const KzXmlData *element,
                    const char *missing) {
    if (!object) throw Tools::Error(missing);
    readActive(element, stage.giveState(object));
}

}  // namespace

void VarnelExchangeXml::updateConstructionStages(VarnelSubSystem *subSystem) {
    if (!subSystem) return;
    StateObjects living(getManager(), subSystem);
    const Temporarily<StateObjects *> scope(stateObjects_, &living);
    open("CONSTRUCTIONSTATES");
    flush();
    for (SysBase::ConstructionStage *entry : subSystem->getConstructionStages()) {
        auto *stage = dynamic_cast<VarnelConstructionStage *>(entry);
        if (!stage) continue;  // a plain stage has no states to write
        openToAttribute("CONSTRUCTIONSTATE", "NUMBER", stage->getNumber());
        updateOneConstructionStage(stage);
        close();
    }
    close();
}

void VarnelExchangeXml::updateOneConstructionStage(VarnelConstructionStage *stage) {
    if (!stage) return;
    setAttribute("NAME", stage->getName());
    open("OBJECTSTATES");
    StateObjects own(getManager(), nullptr);  // for a stage that is written by itself
    VarnelObjectStateVisitorUpdateXml visitor(this, stateObjects_ ? *stateObjects_ : own);
    for (VarnelObjectState *state : stage->getObjectStates())
        if (state) state->getVisited(&visitor);
    close();
}

void VarnelExchangeXml::updateOneObjectState(VarnelObjectState *state) {
    if (state) setAttribute("ACTIVE", state->isActive());
}

void VarnelExchangeXml::updateOneBeamState(VarnelBeamState *state) {
    if (const KzMaterial *material = state ? state->getMaterial() : nullptr)
        setAttribute("MATERIAL", material->getName());
}

void VarnelExchangeXml::updateOnePlateState(VarnelPlateState *state) {
    if (const KzMaterial *material = state ? state->getMaterial() : nullptr)
        setAttribute("MATERIAL", material->getName());
}

void VarnelExchangeXml::createConstructionStages(KzXmlData *element, VarnelSubSystem *subSystem) {
    KzXmlData *list = element ? element->findTree("CONSTRUCTIONSTATES", false) : nullptr;
    if (!list || !subSystem) return;
    const Temporarily<VarnelSubSystem *> scope(stageTarget_, subSystem);
    varnel::eachChild(list, [this, subSystem](KzXmlData *child) {
        const int number = varnel::readInt(child, "NUMBER", 0);
        auto *stage =
            dynamic_cast<VarnelConstructionStage *>(subSystem->findConstructionStageToNumber(number));
        if (!stage) {
            stage = createOneConstructionStage(child, nullptr);
            if (!stage) return;
            if (number > 0) stage->setNumber(number);
            stage->setName(KzXmlDataUtil::getAttributeString(child, "NAME"));
        }
        varnel::eachChild(child->findTree("OBJECTSTATES", true), [this, stage, subSystem](KzXmlData *state) {
            createObjectState(state, stage, subSystem);
        });
    });
}

/// The first key that is there says whose state it is.
void VarnelExchangeXml::createObjectState(KzXmlData *element, VarnelConstructionStage *stage,
                                          VarnelSubSystem *subSystem) {
    const auto has = [element](const char *key) { return element->findAttribute(key) != nullptr; };
    const auto number = [element](const char *key) { return varnel::readInt(element, key, 0); };
    if (has(beamKey)) {
        VarnelBeam *beam = findInTree(
            *subSystem, [n = number(beamKey)](Varnel &model) { return model.findBeamToNumber(n); });
        stage->giveState(beam);  // before the error: a document that stops here leaves a state without a beam
        if (!beam) throw Tools::Error("beam not found");
        createOneBeamState(stage, beam, element);
    } else if (has(plateKey)) {
        VarnelPlate *plate = findInTree(
            *subSystem, [n = number(plateKey)](Varnel &model) { return model.findPlateToNumber(n); });
        if (plate) createOnePlateState(stage, plate, element, subSystem->getDatabase());
    } else if (has(pointBoundaryKey)) {
        readPlainState(
            *stage,
            findInTree(*subSystem, [n = number(pointBoundaryKey)](
                                       Varnel &model) { return model.findPointBoundaryToNumber(n); }),
            element, "point boundary not found");
    } else if (has(pointLoadKey)) {
        readPlainState(*stage,
                       findInTree(*subSystem, [n = number(pointLoadKey)](
                                                  Varnel &model) { return model.findPointLoadToNumber(n); }),
                       element, "point load not found");
    } else if (has(lineLoadKey)) {
        readPlainState(*stage,
                       findInTree(*subSystem, [n = number(lineLoadKey)](
                                                  Varnel &model) { return model.findLineLoadToNumber(n); }),
                       element, "line load not found");
    }
}

template <class State>
State *VarnelExchangeXml::readMemberState(State *state, KzXmlData *element) {
    readActive(element, state);
    varnel::ifText(element, "MATERIAL", [this, state](const std::string &name) {
        KzMaterialManager *project = getMaterialManager();
        if (state) state->setMaterial(project ? project->findMaterialToName(name, 0) : nullptr);
    });
    return state;
}

VarnelBeamState *VarnelExchangeXml::createOneBeamState(VarnelConstructionStage *stage, VarnelBeam *beam,
                                                       KzXmlData *element) {
    return stage ? readMemberState(stage->giveState(beam), element) : nullptr;
}

VarnelPlateState *VarnelExchangeXml::createOnePlateState(VarnelConstructionStage *stage, VarnelPlate *plate,
                                                         KzXmlData *element, Varnel *) {
    return stage ? readMemberState(stage->giveState(plate), element) : nullptr;
}

VarnelConstructionStage *VarnelExchangeXml::createOneConstructionStage(KzXmlData *element,
                                                                       VarnelSubSystem *subSystem) {
    const int number = varnel::readInt(element, "NUMBER", 0);
    if (subSystem)
        return dynamic_cast<VarnelConstructionStage *>(subSystem->giveConstructionStageToNumber(number));
    // A subsystem makes plain stages only. While a document is read the stage therefore comes from the
    // model's factory and joins the subsystem whose stages are being read.
    Varnel *model = stageTarget_ ? stageTarget_->getDatabase() : nullptr;
    VarnelDatabaseFactory *factory = model ? model->getDBaseFactory() : nullptr;
    std::unique_ptr<VarnelConstructionStage> stage(factory ? factory->giveConstructionStage() : nullptr);
    if (!stage) return nullptr;
    const std::size_t count = stageTarget_->getConstructionStages().size();
    const std::size_t most = static_cast<std::size_t>(std::numeric_limits<int>::max()) - 1;
    stage->setNumber(number >= 1 ? number : static_cast<int>(std::min(count, most)) + 1);
    stageTarget_->add(stage.get());
    return stage.release();
}
