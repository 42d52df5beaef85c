// "DESIGN" with "STEEL" and "SHEAR": the design data of a plate.

#include "varnel/contracts/Design/ShearData.h"
#include "varnel/contracts/KzMaterialHandler.h"
#include "varnel/contracts/KzMaterialManager.h"
#include "varnel/contracts/KzMaterialReinforcement.h"
#include "varnel/contracts/KzMaterialUtil.h"
#include "varnel/contracts/KzMath.h"
#include "varnel/contracts/KzReinfStockMesh.h"
#include "varnel/contracts/KzXmlDataUtil.h"
#include "varnel/exchange/ElementReading.h"
#include "varnel/exchange/VarnelExchangeXml.h"
#include "varnel/members/VarnelDesignData.h"
#include "varnel/process/VarnelManager.h"

namespace {

constexpr const char *surfaceWords[] = {"INTENDED", "ROUGH", "SMOOTH", "VERY_SMOOTH"};  // by value
constexpr int surfaceCount = 4;
constexpr int intended = 0;
constexpr int rough = 1;

const char *surfaceWord(int surface) {
    return surfaceWords[surface >= 0 && surface < surfaceCount ? surface : intended];
}

int surfaceOf(const std::string &word) {
    if (word.empty()) return rough;
    for (int i = 0; i < surfaceCount; ++i)
        if (word == surfaceWords[i]) return i;
    return intended;
}

/// Two old names stand for variants of B500M; null for any other name.
KzMaterialReinforcement *findVariant(const std::string &name) {
    const int variant = name == "B500N" ? 1 : name == "B500H" ? 2 : 0;
    return variant != 0 ? KzMaterialHandler::get()->findReinforcementVariant("B500M", variant) : nullptr;
}

/// The steel; throws for null.
KzMaterialReinforcement *required(KzMaterialReinforcement *steel) {
    if (!steel) KzMaterialUtil::throwMaterialFoundError();
    return steel;
}

struct NumberKey {
    const char *key;
    double (VarnelDesignData::*get)() const;
    void (VarnelDesignData::*set)(double);
};

constexpr NumberKey coverKeys[] = {
    {"CUX", &VarnelDesignData::getCoverXu, &VarnelDesignData::setCoverXu},
    {"CUY", &VarnelDesignData::getCoverYu, &VarnelDesignData::setCoverYu},
    {"CLX", &VarnelDesignData::getCoverXl, &VarnelDesignData::setCoverXl},
    {"CLY", &VarnelDesignData::getCoverYl, &VarnelDesignData::setCoverYl},
    {"CNOM", &VarnelDesignData::getCnom, &VarnelDesignData::setCnom},
    {"MIN-STEEL", &VarnelDesignData::getMinimumSteel, &VarnelDesignData::setMinimumSteel},
};

constexpr NumberKey shearKeys[] = {
    {"MIN-SHEAR-REINF", &VarnelDesignData::getMinShearReinforcement,
     &VarnelDesignData::setMinShearReinforcement},
    {"SHEAR-ANGLE", &VarnelDesignData::getShearAngle, &VarnelDesignData::setShearAngle},
    {"STRUT-ANGLE", &VarnelDesignData::getStrutAngle, &VarnelDesignData::setStrutAngle},
    {"JOINT-POSITION", &VarnelDesignData::getJointPosition, &VarnelDesignData::setJointPosition},
    {"BOND-REINF-ANGLE", &VarnelDesignData::getBondReinfAngle, &VarnelDesignData::setBondReinfAngle},
    {"SHEAR-REINF-STRENGTH", &VarnelDesignData::getShearReinfStrength,
     &VarnelDesignData::setShearReinfStrength},
};

}  // namespace

void VarnelExchangeXml::updateDesignData(const VarnelDesignData *data) {
    if (!data) return;
    open("DESIGN");
    setAttribute("THETA", data->getTheta() / KzMath::Pi * 180.0);
    for (const auto &entry : coverKeys) setAttribute(entry.key, (data->*entry.get)());
    const KzReinfMesh *lower = data->getBasicMeshL();
    const KzReinfMesh *upper = data->getBasicMeshU();
    setAttribute("BASICL", lower ? lower->getName() : std::string());
    setAttribute("BASICU", upper ? upper->getName() : std::string());
    if (const KzMaterialReinforcement *steel = data->getReinforcement())
        updateValueToKey("STEEL", steel->getName());
    open("SHEAR");
    for (const auto &entry : shearKeys) setAttribute(entry.key, (data->*entry.get)());
    setAttribute("JOINT-SURFACE", surfaceWord(data->getShearJointSurface()));
    close();
    close();
}

void VarnelExchangeXml::readDesignData(KzXmlData *element, VarnelDesignData *data) {
    if (!element || !data) return;
    // In old documents the steel stands beside "DESIGN"; the one inside wins.
    if (const KzXmlData *steel = element->findChild("STEEL"))
        data->setReinforcement(required(findReinforcement(steel->getData())));
    KzXmlData *design = element->findChild("DESIGN");
    if (!design) return;
    varnel::ifDouble(design, "THETA",
                     [data](double degrees) { data->setTheta(degrees / 180.0 * KzMath::Pi); });
    for (const auto &entry : coverKeys)
        varnel::ifDouble(design, entry.key, [&entry, data](double value) { (data->*entry.set)(value); });
    if (VarnelManager *manager = getManager()) {
        varnel::ifText(design, "BASICL", [data, manager](const std::string &name) {
            data->setBasicMeshL(manager->getStockMesh(name));
        });
        varnel::ifText(design, "BASICU", [data, manager](const std::string &name) {
            data->setBasicMeshU(manager->getStockMesh(name));
        });
    }
    if (const KzXmlData *child = design->findChild("STEEL")) {
        KzMaterialReinforcement *steel = findReinforcement(child->getData());
        data->setReinforcement(required(steel ? steel : findVariant(child->getData())));
    }
    const KzXmlData *shear = design->findChild("SHEAR");
    if (!shear) return;
    for (const auto &entry : shearKeys)
        varnel::ifDouble(shear, entry.key, [&entry, data](double value) { (data->*entry.set)(value); });
    data->setShearJointSurface(static_cast<Design::ShearData::SurfaceType>(
        surfaceOf(KzXmlDataUtil::getAttributeString(shear, "JOINT-SURFACE"))));
}

/// The project's reinforcement, else the stock's; null for an unknown name.
KzMaterialReinforcement *VarnelExchangeXml::findReinforcement(const std::string &name) const {
    KzMaterialReinforcement *steel =
        getMaterialManager() ? getMaterialManager()->findReinforcementToName(name, 0) : nullptr;
    return steel ? steel : KzMaterialHandler::get()->findReinforcementToName(name, 0);
}
