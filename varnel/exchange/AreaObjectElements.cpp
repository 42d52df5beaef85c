// Objects that are an outline with a few properties: "HOLES", "ATTRIBUTES", "LDAREAS", "REFINEPOLYS", "GAPS".

#include "varnel/contracts/KzConcrete.h"
#include "varnel/contracts/KzMaterialManager.h"
#include "varnel/contracts/KzMaterialUtil.h"
#include "varnel/exchange/ElementReading.h"
#include "varnel/exchange/ElementWriting.h"
#include "varnel/exchange/VarnelExchangeXml.h"
#include "varnel/geometry/VarnelArea.h"
#include "varnel/geometry/VarnelAreaPolygon.h"
#include "varnel/geometry/VarnelAreaRectangle.h"
#include "varnel/members/VarnelAttributeArea.h"
#include "varnel/members/VarnelGap.h"
#include "varnel/members/VarnelGapControl.h"
#include "varnel/members/VarnelHole.h"
#include "varnel/members/VarnelLoadDistributionArea.h"
#include "varnel/members/VarnelRefinePolygon.h"
#include "varnel/model/Varnel.h"

void VarnelExchangeXml::updateHoles(Varnel *model) {
    if (!model) return;
    varnel::rebuildList(*this, "HOLES", "HOLE", model->getHoles(),
                        [this, model](VarnelHole *hole) { updateOneHole(model, hole); });
}

void VarnelExchangeXml::updateOneHole(Varnel *, VarnelHole *hole) {
    if (!hole) return;
    setAttribute("NAME", hole->getName());
    setAttribute("DISTLOAD", hole->getLoadDistribution());
    updateArea(hole->getGeo());
}

VarnelHole *VarnelExchangeXml::createOneHole(KzXmlData *element, Varnel *model) {
    if (!element || !model) return nullptr;
    auto hole = std::make_unique<VarnelHole>();
    VarnelHole *made = hole.get();
    model->add(hole.release());
    if (VarnelArea *area = readOutline(element, model)) made->setArea(area);
    readOneHole(element, made);
    return made;
}

void VarnelExchangeXml::readOneHole(KzXmlData *element, VarnelHole *hole) {
    if (!hole) return;
    varnel::ifInt(element, "NUMBER", [hole](int value) { hole->setNumber(value); });
    varnel::ifText(element, "NAME", [hole](const std::string &value) { hole->setName(value); });
    varnel::ifBool(element, "DISTLOAD", [hole](bool value) { hole->setLoadDistribution(value); });
}

void VarnelExchangeXml::updateAttributeAreas(Varnel *model) {
    if (!model) return;
    varnel::rebuildList(*this, "ATTRIBUTES", "ATTRIBUTE", model->getAttributeAreas(),
                        [this](const VarnelAttributeArea *area) {
                            updateArea(area->getGeo());
                            if (const KzConcrete *concrete = area->getConcrete(0))
                                updateValueToKey("CONCRETE", concrete->getName());
                            else if (const KzMaterial *material = area->getMaterial(0))
                                updateValueToKey("MATERIAL", material->getName());
                        });
}

void VarnelExchangeXml::createAttributeAreas(KzXmlData *element, Varnel *model) {
    varnel::eachChild(element && model ? element->findTree("ATTRIBUTES", false) : nullptr,
                      [this, model](KzXmlData *child) { createAttributeArea(child, model); });
}

/// An area of that number is filled again; a new one joins the model once it has an outline, else it goes.
void VarnelExchangeXml::createAttributeArea(KzXmlData *element, Varnel *model) {
    const int number = varnel::readInt(element, "NUMBER", -1);
    VarnelAttributeArea *area = model->findAttributeAreaToNumber(number);
    std::unique_ptr<VarnelAttributeArea> made;
    if (!area) {
        made = std::make_unique<VarnelAttributeArea>();
        made->setNumber(number > 0 ? number : model->nextAttributeAreaNumber());
        area = made.get();
    }
    varnel::ifDouble(element, "MESHSIZE", [area](double value) { area->setMeshSize(value); });
    std::unique_ptr<VarnelArea> outline;
    if (KzXmlData *polygon = element->findChild("AREA")) {
        outline.reset(model->giveAreaPolygon());
        getAreaPolygon(polygon, model, outline.get());
    } else if (KzXmlData *rectangle = element->findChild("RECTAN")) {
        outline.reset(getAreaRectangle(rectangle, model));
    }
    const bool hasOutline = outline != nullptr;
    if (hasOutline) {
        const varnel::Held<VarnelArea> former(area->getGeo());  // setArea() lets go of it without freeing
        area->setArea(outline.release());
    }
    if (made && hasOutline) model->add(made.release());
    const KzXmlData *concrete = element->findChild("CONCRETE");
    const KzXmlData *named = concrete ? concrete : element->findChild("MATERIAL");
    if (!named) return;
    // The project's materials only: the writer takes care that stock materials are among them.
    KzMaterialManager *project = getMaterialManager();
    KzMaterial *material = nullptr;
    if (project && concrete)
        material = project->findConcreteToName(named->getData(), 0);
    else if (project)
        material = project->findMaterialToName(named->getData(), 0);
    if (!material) KzMaterialUtil::throwMaterialFoundError();
    area->setMaterial(material, 0);
}

void VarnelExchangeXml::updateLoadDistributionAreas(Varnel *model) {
    if (!model) return;
    varnel::rebuildList(*this, "LDAREAS", "LDAREA", model->getLoadDistributionAreas(),
                        [this](VarnelLoadDistributionArea *area) { updateOneLoadDistributionArea(area); });
}

void VarnelExchangeXml::updateOneLoadDistributionArea(VarnelLoadDistributionArea *area) {
    if (!area) return;
    setAttribute("NAME", area->getName());
    updateArea(area->getGeo());
}

void VarnelExchangeXml::createLoadDistributionAreas(KzXmlData *element, Varnel *model) {
    varnel::eachChild(element ? element->findTree("LDAREAS", false) : nullptr, "LDAREA",
                      [this, model](KzXmlData *child) { createOneLoadDistributionArea(child, model); });
}

VarnelLoadDistributionArea *VarnelExchangeXml::createOneLoadDistributionArea(KzXmlData *element,
                                                                             Varnel *model) {
    if (!element || !model) return nullptr;
    auto area = std::make_unique<VarnelLoadDistributionArea>();
    VarnelLoadDistributionArea *made = area.get();
    model->add(area.release());
    if (VarnelArea *outline = readOutline(element, model)) made->setArea(outline);
    readOneLoadDistributionArea(element, made);
    return made;
}

void VarnelExchangeXml::readOneLoadDistributionArea(KzXmlData *element, VarnelLoadDistributionArea *area) {
    if (!area) return;
    varnel::ifText(element, "NAME", [area](const std::string &value) { area->setName(value); });
}

void VarnelExchangeXml::createRefinePolygons(KzXmlData *element, Varnel *model) {
    varnel::eachChild(element && model ? element->findTree("REFINEPOLYS", false) : nullptr,
                      [this, model](KzXmlData *child) {
                          auto polygon = std::make_unique<VarnelRefinePolygon>();
                          VarnelRefinePolygon *made = polygon.get();
                          model->add(polygon.release());
                          varnel::ifInt(child, "NUMBER", [made](int value) { made->setNumber(value); });
                          KzXmlData *area = child->findChild("AREA");
                          if (!area) return;
                          std::unique_ptr<VarnelAreaPolygon> outline(model->giveAreaPolygon());
                          getAreaPolygon(area, model, outline.get());
                          made->setArea(outline.release());
                      });
}

/// Gaps are read and never written: what the document holds stays as it is.
void VarnelExchangeXml::updateGaps(Varnel *) {
    open("GAPS");
    close();
}

/// One polygon serves all gaps of the list, and each gap adds its lines to it.
void VarnelExchangeXml::createGaps(KzXmlData *element, Varnel *model) {
    KzXmlData *list = element && model ? element->findTree("GAPS", false) : nullptr;
    if (!list) return;
    const varnel::Held<VarnelAreaPolygon> polygon(model->giveAreaPolygon());
    varnel::eachChild(list, [this, model, &polygon](KzXmlData *child) {
        KzXmlData *area = child->findChild("AREA");
        if (!area) return;
        getAreaPolygon(area, model, polygon.get());
        VarnelGap *gap = model->giveGap();
        gap->setPolyline(polygon.get());
        varnel::ifDouble(child, "THICK", [gap](double value) { gap->getControl()->setThick(value); });
    });
}
