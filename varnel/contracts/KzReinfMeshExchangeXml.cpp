// Reader and writer of MESHES/MESH.

#include "varnel/contracts/KzReinfMeshExchangeXml.h"

#include "varnel/contracts/KeyedElements.h"
#include "varnel/contracts/KzReinfMeshList.h"
#include "varnel/contracts/KzReinfStockMesh.h"
#include "varnel/contracts/KzXmlDataUtil.h"
#include "varnel/contracts/KzXmlTree.h"

namespace {

constexpr char listTag[] = "MESHES";
constexpr char meshTag[] = "MESH";
constexpr char nameKey[] = "NAME";
constexpr char asXKey[] = "ASX";
constexpr char asYKey[] = "ASY";

}  // namespace

void KzReinfMeshExchangeXml::createReinfMeshes(KzXmlData *root) {
    const KzXmlData *meshes = root ? root->findChild(listTag) : nullptr;
    if (!meshes || !list_) return;
    for (const KzXmlData *element : meshes->getChildren()) {
        const KzXmlAttributeData *name = element->findAttribute(nameKey);
        if (element->getName() != meshTag || !name) continue;
        KzReinfStockMesh *mesh = list_->findMesh(name->getData());
        if (!mesh) {
            mesh = new KzReinfStockMesh(name->getData(), 0.0, 0.0);
            list_->addMesh(mesh);
        }
        double asX = mesh->getAsX();
        double asY = mesh->getAsY();
        KzXmlDataUtil::readValToAttribute(element, asXKey, asX);
        KzXmlDataUtil::readValToAttribute(element, asYKey, asY);
        mesh->setAsX(asX);
        mesh->setAsY(asY);
    }
}

void KzReinfMeshExchangeXml::updateReinfMeshes() {
    if (!tree_) return;
    varnel::KeyedElements elements(varnel::giveChild(*tree_->getRoot(), listTag), meshTag, nameKey);
    if (list_) {
        for (const KzReinfStockMesh *mesh : list_->getMeshes()) {
            KzXmlData *element = elements.give(mesh->getName());
            if (!element) continue;
            element->setAttribute(asXKey, mesh->getAsX());
            element->setAttribute(asYKey, mesh->getAsY());
        }
    }
    elements.dropOthers();
}
