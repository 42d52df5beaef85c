#ifndef VARNEL_CONTRACTS_KZREINFMESHUSER_H
#define VARNEL_CONTRACTS_KZREINFMESHUSER_H

#include "varnel/contracts/Export.h"

class KzReinfStockMesh;

/// Protects meshes: a list that it is registered with asks it before it removes one.
class VARNEL_EXPORT KzReinfMeshUser {
  public:
    virtual ~KzReinfMeshUser() = default;
    /// Whether the mesh is in use. Only compare the pointer.
    virtual bool checkUsed(const KzReinfStockMesh *mesh) = 0;
};

#endif
