#include "varnel/exchange/VarnelExchangeXmlBeam.h"

#include <memory>

#include "varnel/contracts/Found/Foundation.h"
#include "varnel/contracts/Found/FoundationManager.h"
#include "varnel/contracts/KzConcrete.h"
#include "varnel/contracts/KzMaterialUtil.h"
#include "varnel/contracts/KzReinfLine.h"
#include "varnel/contracts/KzReinfLineList.h"
#include "varnel/contracts/KzXmlDataUtil.h"
#include "varnel/contracts/KzXmlTree.h"
#include "varnel/contracts/SDBSectionDatabase.h"
#include "varnel/contracts/SDBSectionLine.h"
#include "varnel/contracts/SDBSectionManager.h"
#include "varnel/exchange/ElementReading.h"
#include "varnel/exchange/VarnelExchangeXml.h"
#include "varnel/geometry/VarnelBeamGeo.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelFoundedPart.h"
#include "varnel/members/VarnelGapControl.h"
#include "varnel/model/Varnel.h"
#include "varnel/process/VarnelManager.h"

namespace {

constexpr const char *sectionKeys[] = {"SECB", "SECB2"};  // at the start, at the end

}  // namespace

VarnelExchangeXmlBeam::~VarnelExchangeXmlBeam() = default;

void VarnelExchangeXmlBeam::update(Varnel *model) {
    if (!model) return;
    if (model->getBeams().empty()) {
        getExXml()->remove("BEAMS");  // the only list that goes when it is empty
        return;
    }
    open("BEAMS");
    getExXml()->flush();
    for (VarnelBeam *beam : model->getBeams()) {
        if (!beam) continue;
        openToAttribute("BEAM", "NUMBER", std::to_string(beam->getNumber()));
        updateOneBeam(beam);
        close();
    }
    close();
}

void VarnelExchangeXmlBeam::create(KzXmlData *subSystem, Varnel *model) {
    if (!subSystem || !model) return;
    VarnelBeam *beam = nullptr;
    varnel::eachChild(subSystem->findTree("BEAMS", false), [this, model, &beam](KzXmlData *child) {
        if (child->getName() == "BEAM") beam = createOneBeam(child, model);
        createBeamResults(child, beam);
    });
}

VarnelBeam *VarnelExchangeXmlBeam::createOneBeam(KzXmlData *element, Varnel *model) {
    if (!element || !model) return nullptr;
    const int number = varnel::readInt(element, "NUMBER", -1);
    VarnelBeam *beam = model->findBeamToNumber(number);
    if (!beam) {
        beam = model->giveBeam(true);
        if (!beam) return nullptr;
        if (number > 0) beam->setNumber(number);
    }
    readOneBeam(element, beam, model);
    return beam;
}

void VarnelExchangeXmlBeam::updateOneBeam(VarnelBeam *beam) {
    if (!beam) return;
    setAttribute("NAME", beam->getName());
    setAttribute("ETYPE", static_cast<int>(beam->getElementType()));
    setAttribute("BTYPE", static_cast<int>(beam->getBeamType()));
    setAttribute("MESHSIZE", beam->getMeshSize());
    setAttribute("ANGLE", beam->getAngle());
    setAttribute("PARTS", beam->getParts());
    if (const KzReinfLine *line = beam->getReinfLine()) setAttribute("DESIGN", line->getNumber());
    if (const Found::Foundation *foundation = beam->getFoundation())
        setAttribute("FOUND", foundation->getName());
    getExXml()->updateArea(beam->getGeo());
    if (const KzConcrete *concrete = beam->getConcrete(0))
        getExXml()->updateValueToKey("CONCRETE", concrete->getName());
    else if (const KzMaterial *material = beam->getMaterial(0))
        getExXml()->updateValueToKey("MATERIAL", material->getName());
    for (int i = 0; i < 2; ++i)
        if (const SDBSection *section = beam->getSection(i))
            getExXml()->updateValueToKey(sectionKeys[i], section->getName());
    if (beam->getLeftGap()) setAttribute("LEFTGAP", 1);
    if (beam->getRightGap()) setAttribute("RIGHTGAP", 1);
    updateFoundations(beam);
}

void VarnelExchangeXmlBeam::readOneBeam(KzXmlData *element, VarnelBeam *beam, Varnel *model) {
    if (!element || !beam) return;
    readGeometry(element, beam, model);
    varnel::ifText(element, "NAME", [beam](const std::string &value) { beam->setName(value); });
    const auto setElementType = [beam](int value) { beam->setElementType(value); };
    if (!varnel::ifInt(element, "ETYPE", setElementType)) varnel::ifInt(element, "TYPE", setElementType);
    varnel::ifInt(element, "BTYPE", [beam](int value) { beam->setBeamType(value); });
    varnel::ifDouble(element, "MESHSIZE", [beam](double value) { beam->setMeshSize(value); });
    varnel::ifDouble(element, "ANGLE", [beam](double value) { beam->setAngle(value); });
    varnel::ifInt(element, "PARTS", [beam](int value) { beam->setParts(value); });
    if (varnel::readInt(element, "LEFTGAP", 0) != 0) beam->setLeftGap(new VarnelGapControl);
    if (varnel::readInt(element, "RIGHTGAP", 0) != 0) beam->setRightGap(new VarnelGapControl);
    readSections(element, beam);
    readMaterials(element, beam);
    // "JOINTS" of old documents are meant to be dropped, as are their results.
    readFoundations(element, beam);
}

/// Only an "AREA" with lines makes an axis; everything else falls back on the straight of old documents.
void VarnelExchangeXmlBeam::readGeometry(KzXmlData *element, VarnelBeam *beam, Varnel *model) {
    std::unique_ptr<VarnelLineHolder> holder(getExXml()->readOneArea(element, model, true));
    auto *axis = dynamic_cast<VarnelBeamGeo *>(holder.get());
    if (axis && axis->getNumLines() > 0) {
        static_cast<void>(holder.release());
        beam->setGeo(axis);
        return;
    }
    KzVector3D start, end;
    getExXml()->getVectorToKey(element, "START", start);
    getExXml()->getVectorToKey(element, "END", end);
    const int number = varnel::readInt(element, "NUMBER", -1);
    if (number > 0) beam->setNumber(number);
    beam->setLine(start, end, 0);
}

void VarnelExchangeXmlBeam::readSections(KzXmlData *element, VarnelBeam *beam) {
    const VarnelManager *manager = getExXml()->getManager();
    for (int i = 0; i < 2; ++i) {
        const KzXmlData *child = element->findChild(sectionKeys[i]);
        if (!child) continue;
        SDBSectionLine *section = nullptr;
        if (manager)
            section = dynamic_cast<SDBSectionLine *>(
                manager->getSectionManager()->findSectionToName(child->getData()));
        if (!section)
            section = dynamic_cast<SDBSectionLine *>(
                SDBSectionDatabase::get()->findSectionToName(child->getData()));
        beam->setSection(section, i);  // an unknown name clears the cross-section
    }
}

void VarnelExchangeXmlBeam::readMaterials(KzXmlData *element, VarnelBeam *beam) {
    if (const KzXmlData *child = element->findChild("CONCRETE"))
        beam->setMaterial(getExXml()->findConcrete(child->getData()), 0);  // an unknown one is no error here
    if (const KzXmlData *child = element->findChild("MATERIAL")) {
        KzMaterial *material = getExXml()->findMaterial(child->getData());
        if (!material) KzMaterialUtil::throwMaterialFoundError();
        beam->setMaterial(material, 0);
    }
}

void VarnelExchangeXmlBeam::readFoundations(KzXmlData *element, VarnelBeam *beam) {
    VarnelManager *manager = getExXml()->getManager();
    if (!manager) return;
    varnel::ifText(element, "FOUND", [beam, manager](const std::string &name) {
        beam->setFoundation(manager->getFoundationManager()->findFoundation(name));
    });
    varnel::ifInt(element, "DESIGN", [beam, manager](int number) {
        beam->setReinfLine(manager->getDgnList()->findBeamReinf(number));
    });
    varnel::eachChild(element->findChild("FOUNDB"), [this, beam, manager](KzXmlData *span) {
        KzVector3D vectors[2];
        double positions[2] = {0.0, 0.0};
        const KzXmlData *ends[2] = {span->findChild("LOCA"), span->findChild("LOCE")};
        for (int i = 0; i < 2; ++i) {
            if (varnel::ifDouble(ends[i], "POS", [&positions, i](double value) { positions[i] = value; }))
                vectors[i] = getExXml()->getVector(ends[i]);
        }
        if (ends[1]) beam->addFoundation(vectors[0], positions[0], vectors[1], positions[1], manager);
    });
}

/// Stations and numbers only: the values of a founded span do not come back, the reader takes no numbers.
void VarnelExchangeXmlBeam::updateFoundations(VarnelBeam *beam) {
    if (beam->getFoundations().empty()) return;
    open("FOUNDB");
    for (const VarnelFoundedPart *part : beam->getFoundations()) {
        if (!part) continue;
        KzXmlTree *tree = getExXml()->getTree();
        KzXmlData *span = tree->getCursor() ? tree->getCursor()->makeChild("FSPAN") : nullptr;
        tree->setCursor(span);
        updateSpanEnd("LOCA", part->getPosA(), part->getFStart());
        updateSpanEnd("LOCE", part->getPosE(), part->getFEnd());
        close();
    }
    close();
}

void VarnelExchangeXmlBeam::updateSpanEnd(const char *key, double position,
                                          const Found::Foundation *foundation) {
    open(key);
    setAttribute("POS", position);
    if (foundation) setAttribute("FOUND", foundation->getNumber());
    close();
}

/// Old documents hold design values of beams. They are read and dropped: results come from a calculation.
void VarnelExchangeXmlBeam::createBeamResults(KzXmlData *element, VarnelBeam *) {
    KzXmlData *results = element->findChild("RESULTS");
    KzXmlData *design = results ? results->findChild("DESIGN") : nullptr;
    varnel::eachChild(design, [](const KzXmlData *location) {
        for (const char *key : {"POS", "ASU", "ASO", "MINMY", "MAXMY", "MINQZ", "MAXQZ", "ASQ"})
            static_cast<void>(KzXmlDataUtil::getChildDouble(location, key));
    });
}
