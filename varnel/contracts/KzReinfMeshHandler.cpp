#include "varnel/contracts/KzReinfMeshHandler.h"

#include "varnel/contracts/KzReinfStockMesh.h"

namespace {

struct StockMesh {
    const char *name;
    double asX;  // cm2/m
    double asY;
};

// Q: (nearly) alike in both directions; R: bearing along x, with less steel across.
constexpr StockMesh stock[] = {
    {"Q188A", 1.88, 1.88}, {"Q257A", 2.57, 2.57}, {"Q335A", 3.35, 3.35}, {"Q424A", 4.24, 4.24},
    {"Q524A", 5.24, 5.24}, {"Q636A", 6.36, 6.28}, {"R188A", 1.88, 1.13}, {"R257A", 2.57, 1.13},
    {"R335A", 3.35, 1.13}, {"R424A", 4.24, 2.01}, {"R524A", 5.24, 2.01},
};

}  // namespace

KzReinfMeshHandler::KzReinfMeshHandler() {
    for (const StockMesh &mesh : stock) meshes_.add(new KzReinfStockMesh(mesh.name, mesh.asX, mesh.asY));
}

KzReinfMeshHandler::~KzReinfMeshHandler() = default;

KzReinfMeshHandler *KzReinfMeshHandler::get() {
    static KzReinfMeshHandler handler;
    return &handler;
}

KzReinfStockMesh *KzReinfMeshHandler::findMeshToName(const std::string &name) const {
    return meshes_.find(name);
}
