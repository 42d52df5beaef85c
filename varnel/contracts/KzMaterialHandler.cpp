#include "varnel/contracts/KzMaterialHandler.h"

#include "varnel/contracts/KzConcrete.h"
#include "varnel/contracts/KzPreStressSteel.h"
#include "varnel/contracts/KzReinfSteel.h"

namespace {

// Densities in kg/m3, specific weights in kN/m3.
constexpr double concreteRho = 2500.0;
constexpr double concreteGamma = 25.0;
constexpr double steelRho = 7850.0;
constexpr double steelGamma = 78.5;
constexpr double timberRho = 420.0;
constexpr double timberGamma = 4.2;

}  // namespace

KzMaterialHandler::KzMaterialHandler() = default;

KzMaterialHandler::~KzMaterialHandler() = default;

KzMaterialHandler *KzMaterialHandler::get() {
    static KzMaterialHandler handler;
    return &handler;
}

bool KzMaterialHandler::setDatabase() {
    static const bool done = get()->addStock();  // once, whichever thread makes the first model
    return done;
}

bool KzMaterialHandler::addStock() {
    for (const char *name :
         {"C12/15", "C16/20", "C20/25", "C25/30", "C30/37", "C35/45", "C40/50", "C45/55", "C50/60"})
        materials_.add(new KzConcrete(name, concreteRho, concreteGamma));
    for (const char *name : {"B500M", "B500A", "B500B"})
        materials_.add(new KzReinfSteel(name, steelRho, steelGamma));
    for (const char *name : {"St1570/1770", "St1660/1860"})
        materials_.add(new KzPreStressSteel(name, steelRho, steelGamma));
    for (const char *name : {"S235", "S275", "S355"})
        materials_.add(new KzMaterial(name, steelRho, steelGamma, KzMaterial::STEEL));
    materials_.add(new KzMaterial("C24", timberRho, timberGamma, KzMaterial::TIMBER));
    // The variants that documents name are there from the start, so that reading one only reads the stock.
    for (const int variant : {1, 2}) findReinforcementVariant("B500M", variant);
    return true;
}

KzMaterial *KzMaterialHandler::findMaterialToName(const std::string &name, int) {
    return materials_.find(name);
}

KzMaterialReinforcement *KzMaterialHandler::findReinforcementToName(const std::string &name, int) {
    return dynamic_cast<KzMaterialReinforcement *>(materials_.find(name));
}

KzPreStressSteel *KzMaterialHandler::findPreStressSteelToName(const std::string &name, int) {
    return dynamic_cast<KzPreStressSteel *>(materials_.find(name));
}

KzReinfSteel *KzMaterialHandler::findReinfSteelToName(const std::string &name, int) {
    return dynamic_cast<KzReinfSteel *>(materials_.find(name));
}

KzConcrete *KzMaterialHandler::findConcreteToName(const std::string &name, int) {
    return dynamic_cast<KzConcrete *>(materials_.find(name));
}

KzMaterialReinforcement *KzMaterialHandler::findReinforcementVariant(const std::string &name, int variant) {
    KzMaterialReinforcement *plain = KzMaterialHandler::findReinforcementToName(name);
    if (!plain || plain->getVariant() == variant) return plain;
    const auto [place, isNew] = variants_.try_emplace({name, variant});
    if (isNew) {
        place->second.reset(plain->clone());
        place->second->setVariant(variant);
    }
    return place->second.get();
}
