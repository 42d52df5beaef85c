#include "varnel/contracts/KzReinfMeshList.h"

#include "varnel/contracts/KzReinfMeshUser.h"
#include "varnel/contracts/KzReinfStockMesh.h"

KzReinfMeshList::KzReinfMeshList() = default;

KzReinfMeshList::~KzReinfMeshList() = default;

KzReinfStockMesh *KzReinfMeshList::findMesh(const std::string &name) const {
    return meshes_.find(name);
}

void KzReinfMeshList::addMesh(KzReinfStockMesh *mesh) {
    meshes_.add(mesh);
}

bool KzReinfMeshList::remove(KzReinfStockMesh *mesh) {
    if (!meshes_.owns(mesh) || users_.use(mesh) || !meshes_.take(mesh)) return false;
    delete mesh;
    return true;
}
