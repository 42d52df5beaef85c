#include "varnel/contracts/KzMaterialManager.h"

#include "varnel/contracts/KzConcrete.h"
#include "varnel/contracts/KzMaterialReinforcement.h"
#include "varnel/contracts/KzMaterialUser.h"

KzMaterialManager::KzMaterialManager(const std::string &name) : name_(name) {}

KzMaterialManager::~KzMaterialManager() = default;

KzMaterial *KzMaterialManager::findMaterialToName(const std::string &name, int) {
    return materials_.find(name);
}

KzConcrete *KzMaterialManager::findConcreteToName(const std::string &name, int) {
    return dynamic_cast<KzConcrete *>(materials_.find(name));
}

KzMaterialReinforcement *KzMaterialManager::findReinforcementToName(const std::string &name, int) {
    return dynamic_cast<KzMaterialReinforcement *>(materials_.find(name));
}

void KzMaterialManager::add(KzMaterial *material) {
    materials_.add(material);
}

bool KzMaterialManager::remove(KzMaterial *material) {
    if (!materials_.owns(material) || users_.use(material) || !materials_.take(material)) return false;
    delete material;
    return true;
}
