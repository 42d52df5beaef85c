// Reader and writer of MATERIALS/MATERIAL.

#include <memory>
#include <string>

#include "varnel/contracts/KeyedElements.h"
#include "varnel/contracts/KzConcrete.h"
#include "varnel/contracts/KzMaterialManager.h"
#include "varnel/contracts/KzMaterialReadXML.h"
#include "varnel/contracts/KzMaterialReinforcement.h"
#include "varnel/contracts/KzMaterialWriteXML.h"
#include "varnel/contracts/KzPreStressSteel.h"
#include "varnel/contracts/KzXmlData.h"
#include "varnel/contracts/KzXmlDataUtil.h"

namespace {

constexpr char materialTag[] = "MATERIAL";
constexpr char nameKey[] = "NAME";
constexpr char kindKey[] = "KIND";
constexpr char rhoKey[] = "RHO";
constexpr char gammaKey[] = "GAMMA";
constexpr char variantKey[] = "VARIANT";

struct KindWord {
    KzMaterial::Kind kind;
    const char *word;
};

constexpr KindWord kindWords[] = {
    {KzMaterial::OTHER, "OTHER"},         {KzMaterial::CONCRETE, "CONCRETE"},
    {KzMaterial::STEEL, "STEEL"},         {KzMaterial::REINFORCEMENT, "REINFORCEMENT"},
    {KzMaterial::PRESTRESS, "PRESTRESS"}, {KzMaterial::TIMBER, "TIMBER"},
    {KzMaterial::MASONRY, "MASONRY"},
};

/// Of the kind OTHER for an unknown word.
KzMaterial::Kind toKind(const std::string &word) {
    for (const KindWord &entry : kindWords)
        if (word == entry.word) return entry.kind;
    return KzMaterial::OTHER;
}

const char *toWord(KzMaterial::Kind kind) {
    for (const KindWord &entry : kindWords)
        if (kind == entry.kind) return entry.word;
    return kindWords[0].word;
}

std::unique_ptr<KzMaterial> makeMaterial(KzMaterial::Kind kind, const std::string &name) {
    switch (kind) {
        case KzMaterial::CONCRETE:
            return std::make_unique<KzConcrete>(name, 0.0, 0.0);
        case KzMaterial::REINFORCEMENT:
            return std::make_unique<KzMaterialReinforcement>(name, 0.0, 0.0);
        case KzMaterial::PRESTRESS:
            return std::make_unique<KzPreStressSteel>(name, 0.0, 0.0);
        default:
            return std::make_unique<KzMaterial>(name, 0.0, 0.0, kind);
    }
}

void readMaterial(const KzXmlData *element, KzMaterial &material) {
    double rho = material.getRho();
    double gamma = material.getGammaValue();
    KzXmlDataUtil::readValToAttribute(element, rhoKey, rho);
    KzXmlDataUtil::readValToAttribute(element, gammaKey, gamma);
    material.setRho(rho);
    material.setGammaValue(gamma);
    if (auto *reinforcement = dynamic_cast<KzMaterialReinforcement *>(&material)) {
        int variant = reinforcement->getVariant();
        KzXmlDataUtil::readValToAttribute(element, variantKey, variant);
        reinforcement->setVariant(variant);
    }
}

void writeMaterial(const KzMaterial &material, KzXmlData *element) {
    element->setAttribute(kindKey, toWord(material.getKind()));
    element->setAttribute(rhoKey, material.getRho());
    element->setAttribute(gammaKey, material.getGammaValue());
    if (const auto *reinforcement = dynamic_cast<const KzMaterialReinforcement *>(&material))
        element->setAttribute(variantKey, reinforcement->getVariant());
}

}  // namespace

int KzMaterialReadXML::read(KzXmlData *element) {
    if (!manager_ || !element) return 0;
    int count = 0;
    for (const KzXmlData *child : element->getChildren()) {
        const KzXmlAttributeData *name = child->findAttribute(nameKey);
        if (child->getName() != materialTag || !name) continue;
        KzMaterial *material = manager_->findMaterialToName(name->getData());
        if (!material) {
            const auto kind = toKind(KzXmlDataUtil::getAttributeString(child, kindKey));
            material = makeMaterial(kind, name->getData()).release();
            manager_->add(material);
        }
        readMaterial(child, *material);
        ++count;
    }
    return count;
}

void KzMaterialWriteXML::write(KzXmlData *element, const std::vector<KzMaterial *> &further) {
    if (!element) return;
    varnel::KeyedElements elements(element, materialTag, nameKey);
    const auto writeAll = [&elements](const std::vector<KzMaterial *> &materials) {
        for (const KzMaterial *material : materials) {
            if (!material) continue;
            if (KzXmlData *own = elements.give(material->getName())) writeMaterial(*material, own);
        }
    };
    if (manager_) writeAll(manager_->getMaterials());
    writeAll(further);
    elements.dropOthers();
}
