#ifndef VARNEL_CONTRACTS_KZREINFMESHHANDLER_H
#define VARNEL_CONTRACTS_KZREINFMESHHANDLER_H

#include <string>
#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/NamedList.h"

class KzReinfStockMesh;

/// The predefined meshes of the process, shared by all projects.
class VARNEL_EXPORT KzReinfMeshHandler {
  public:
    static KzReinfMeshHandler *get();
    KzReinfMeshHandler(const KzReinfMeshHandler &) = delete;
    KzReinfMeshHandler &operator=(const KzReinfMeshHandler &) = delete;
    ~KzReinfMeshHandler();

    /// Null if there is none of that name.
    KzReinfStockMesh *findMeshToName(const std::string &name) const;
    const std::vector<KzReinfStockMesh *> &getMeshes() const { return meshes_.items(); }

  private:
    KzReinfMeshHandler();

    varnel::NamedList<KzReinfStockMesh> meshes_;
};

#endif
