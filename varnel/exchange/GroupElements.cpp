// "GROUPS" with "GROUP" and "OBJECT"; "RESULTSECTIONS" with "RESULTSECTION".

#include <memory>

#include "varnel/contracts/KzMatrix44.h"
#include "varnel/exchange/ElementReading.h"
#include "varnel/exchange/ElementWriting.h"
#include "varnel/exchange/VarnelExchangeXml.h"
#include "varnel/geometry/VarnelObjectVisitor.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/loads/VarnelBeamLoad.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelHole.h"
#include "varnel/members/VarnelLineBoundary.h"
#include "varnel/members/VarnelLoadDistributionArea.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/model/Varnel.h"
#include "varnel/model/VarnelObjectGroup.h"
#include "varnel/results/VarnelResultSection.h"

namespace {

/// Writes the key attribute of a member at the cursor: its kind with its number.
class VarnelObjectVisitorUpdateXml : public VarnelObjectVisitor {
  public:
    explicit VarnelObjectVisitorUpdateXml(VarnelExchangeXml *exchange) : exchange_(exchange) {}

    int visit(VarnelLoadDistributionArea *area) override { return update("LDAREA", area->getNumber()); }
    int visit(VarnelBeamLoad *load) override { return update("BEAMLOAD", load->getNumber()); }
    int visit(VarnelAreaLoad *load) override { return update("AREALOAD", load->getNumber()); }
    int visit(VarnelLineLoad *load) override { return update("LINELOAD", load->getNumber()); }
    int visit(VarnelPointLoad *load) override { return update("POINTLOAD", load->getNumber()); }
    int visit(VarnelPointBoundary *boundary) override { return update("PBOUND", boundary->getNumber()); }
    int visit(VarnelLineBoundary *boundary) override { return update("LBOUND", boundary->getNumber()); }
    int visit(VarnelHole *hole) override { return update("HOLE", hole->getNumber()); }
    int visit(VarnelBeam *beam) override { return update("BEAM", beam->getNumber()); }
    int visit(VarnelPlate *plate) override { return update("PLATE", plate->getNumber()); }
    int visit(VarnelPoint *point) override { return update("POINT", point->getNumber()); }

  private:
    int update(const char *key, int number) {
        exchange_->setAttribute(key, number);
        return 1;
    }

    VarnelExchangeXml *exchange_;
};

using Finder = VarnelObject *(*)(Varnel &, int);

/// The kinds of member that are read back, in the order in which their keys are tried. Load distribution
/// areas, beam loads and points are written and not read.
constexpr struct {
    const char *key;
    Finder find;
} readMembers[] = {
    {"PLATE", [](Varnel &model, int n) -> VarnelObject * { return model.findPlateToNumber(n); }},
    {"BEAM", [](Varnel &model, int n) -> VarnelObject * { return model.findBeamToNumber(n); }},
    {"HOLE", [](Varnel &model, int n) -> VarnelObject * { return model.findHoleToNumber(n); }},
    {"LBOUND", [](Varnel &model, int n) -> VarnelObject * { return model.findLineBoundaryToNumber(n); }},
    {"PBOUND", [](Varnel &model, int n) -> VarnelObject * { return model.findPointBoundaryToNumber(n); }},
    {"POINTLOAD", [](Varnel &model, int n) -> VarnelObject * { return model.findPointLoadToNumber(n); }},
    {"LINELOAD", [](Varnel &model, int n) -> VarnelObject * { return model.findLineLoadToNumber(n); }},
    {"AREALOAD", [](Varnel &model, int n) -> VarnelObject * { return model.findAreaLoadToNumber(n); }},
};

void readMember(const KzXmlData *element, VarnelObjectGroup *group, Varnel &model) {
    for (const auto &kind : readMembers) {
        // An unknown number leaves a null member behind: the places of the others stay.
        const bool found = varnel::ifInt(
            element, kind.key, [&kind, group, &model](int number) { group->add(kind.find(model, number)); });
        if (found) return;
    }
}

}  // namespace

void VarnelExchangeXml::updateObjectGroups(Varnel *model) {
    if (!model) return;
    open("GROUPS");
    flush();
    for (VarnelObjectGroup *group : model->getObjectGroups()) {
        if (!group) continue;
        openToAttribute("GROUP", "NAME", group->getName());
        setAttribute("USER", group->getUserDefined());
        setAttribute("CALC", group->getCalculate());
        open("BASE");
        updateVectorToKey("OFFSET", group->getBase().getVector(3));
        close();
        updateOneObjectGroup(model, group);
        close();
    }
    close();
}

void VarnelExchangeXml::updateOneObjectGroup(Varnel *, VarnelObjectGroup *group) {
    if (!group) return;
    VarnelObjectVisitorUpdateXml visitor(this);
    int count = 1;
    for (VarnelObject *object : group->getObjects()) {
        if (!object) continue;
        openToAttribute("OBJECT", "NUMBER", count);
        object->getVisited(&visitor);
        close();
        ++count;
    }
}

void VarnelExchangeXml::createObjectGroups(KzXmlData *element, Varnel *model) {
    varnel::eachChild(element && model ? element->findTree("GROUPS", false) : nullptr, "GROUP",
                      [this, model](KzXmlData *child) { createOneObjectGroup(child, model); });
}

VarnelObjectGroup *VarnelExchangeXml::createOneObjectGroup(KzXmlData *element, Varnel *model) {
    const KzXmlAttributeData *name = element && model ? element->findAttribute("NAME") : nullptr;
    if (!name) return nullptr;
    VarnelObjectGroup *group = model->giveObjectGroup(name->getData());
    varnel::ifBool(element, "USER", [group](bool value) { group->setUserDefined(value); });
    varnel::ifBool(element, "CALC", [group](bool value) { group->setCalculate(value); });
    model->add(group);
    varnel::eachChild(element, "OBJECT",
                      [group, model](const KzXmlData *child) { readMember(child, group, *model); });
    KzVector3D offset;
    if (getVectorToKey(element->findChild("BASE"), "OFFSET", offset)) group->setOffset(offset);
    return group;
}

void VarnelExchangeXml::updateResultSections(Varnel *model) {
    if (!model) return;
    varnel::rebuildList(*this, "RESULTSECTIONS", "RESULTSECTION", model->getResultSections(),
                        [this](const VarnelResultSection *section) {
                            setAttribute("NAME", section->getName());
                            updateVectorToKey("START", section->getP1());
                            updateVectorToKey("END", section->getP2());
                        });
}

void VarnelExchangeXml::createResultSections(KzXmlData *element, Varnel *model) {
    varnel::eachChild(element && model ? element->findTree("RESULTSECTIONS", false) : nullptr,
                      "RESULTSECTION", [this, model](KzXmlData *child) {
                          KzVector3D start, end;
                          getVectorToKey(child, "START", start);
                          getVectorToKey(child, "END", end);
                          // Numbered by its place, whatever number the file gives.
                          std::unique_ptr<VarnelResultSection> made(model->giveResultSection(start, end));
                          if (!made) return;
                          varnel::ifText(child, "NAME",
                                         [&made](const std::string &value) { made->setName(value); });
                          model->add(made.release());
                      });
}
