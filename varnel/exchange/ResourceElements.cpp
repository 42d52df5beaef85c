// Elements that the resource libraries read and write by themselves.

#include "varnel/contracts/Found/FoundationManager.h"
#include "varnel/contracts/KzConcrete.h"
#include "varnel/contracts/KzMaterialHandler.h"
#include "varnel/contracts/KzMaterialManager.h"
#include "varnel/contracts/KzMaterialReadXML.h"
#include "varnel/contracts/KzMaterialWriteXML.h"
#include "varnel/contracts/KzReinfLineList.h"
#include "varnel/contracts/KzReinfMeshExchangeXml.h"
#include "varnel/contracts/KzXmlTree.h"
#include "varnel/contracts/SDBSectionVisitorXml.h"
#include "varnel/exchange/ElementReading.h"
#include "varnel/exchange/StockMaterials.h"
#include "varnel/exchange/VarnelExchangeXml.h"
#include "varnel/process/VarnelManager.h"

void VarnelExchangeXml::updateMaterials(VarnelManager *manager) {
    open("MATERIALS");
    close();
    KzXmlData *element = tree().findRoot("MATERIALS", true);
    if (!manager || !element) return;
    // Some readers look only in the project's materials, so stock materials that they will ask for go along.
    KzMaterialWriteXML writer(manager->getMaterialManager());
    writer.write(element, varnel::usedStockMaterials(*manager));
}

void VarnelExchangeXml::createMaterialList(KzXmlData *root) {
    KzXmlData *element = root ? root->findTree("MATERIALS", true) : nullptr;
    if (!element || !getManager()) return;
    KzMaterialReadXML reader(getManager()->getMaterialManager());
    reader.read(element);
}

void VarnelExchangeXml::updateSections(VarnelManager *manager) {
    if (!manager) return;
    SDBSectionVisitorXml visitor(manager->getSectionManager());
    visitor.writeSections(&tree());
}

void VarnelExchangeXml::createSections(KzXmlData *root) {
    if (!root || !getManager()) return;
    SDBSectionVisitorXml visitor(getManager()->getSectionManager());
    visitor.createSections(root);
}

void VarnelExchangeXml::updateDesignMeshes(VarnelManager *manager) {
    if (!manager) return;
    KzReinfMeshExchangeXml meshes(manager->getDgnMeshList(), &tree());
    meshes.updateReinfMeshes();
}

void VarnelExchangeXml::createDesignMeshes(KzXmlData *root) {
    if (!root || !getManager()) return;
    KzReinfMeshExchangeXml meshes(getManager()->getDgnMeshList(), &tree());
    meshes.createReinfMeshes(root);
}

void VarnelExchangeXml::updateDesigns(VarnelManager *manager) {
    open("DESIGNS");
    flush();
    if (manager) manager->getDgnList()->exportXml(&tree());
    close();
}

void VarnelExchangeXml::createDesigns(KzXmlData *root) {
    KzXmlData *element = root ? root->findTree("DESIGNS", true) : nullptr;
    if (element && getManager()) getManager()->getDgnList()->importXml(element);
}

void VarnelExchangeXml::updateFoundations(VarnelManager *manager) {
    open("FOUNDATIONS");
    close();
    if (manager) manager->getFoundationManager()->updateXml(&tree());
}

void VarnelExchangeXml::createFoundations(KzXmlData *root) {
    if (root && getManager()) getManager()->getFoundationManager()->createFromXml(root);
}

KzMaterial *VarnelExchangeXml::findMaterial(const std::string &name) const {
    KzMaterial *material = getMaterialManager() ? getMaterialManager()->findMaterialToName(name, 0) : nullptr;
    return material ? material : KzMaterialHandler::get()->findMaterialToName(name, 0);
}

KzConcrete *VarnelExchangeXml::findConcrete(const std::string &name) const {
    KzConcrete *concrete = getMaterialManager() ? getMaterialManager()->findConcreteToName(name, 0) : nullptr;
    return concrete ? concrete : KzMaterialHandler::get()->findConcreteToName(name, 0);
}
