#ifndef VARNEL_CONTRACTS_KZMATERIALUSER_H
#define VARNEL_CONTRACTS_KZMATERIALUSER_H

#include "varnel/contracts/Export.h"

class KzMaterial;

/// Protects materials: a manager that it is registered with asks it before it removes one.
class VARNEL_EXPORT KzMaterialUser {
  public:
    virtual ~KzMaterialUser() = default;
    /// Whether the material is in use. Only compare the pointer.
    virtual bool checkUsed(const KzMaterial *material) = 0;
};

#endif
