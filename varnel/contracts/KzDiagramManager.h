#ifndef VARNEL_CONTRACTS_KZDIAGRAMMANAGER_H
#define VARNEL_CONTRACTS_KZDIAGRAMMANAGER_H

#include "varnel/contracts/Export.h"

/// The diagrams of a project; the model only holds it for the host, which derives from it.
class VARNEL_EXPORT KzDiagramManager {
  public:
    KzDiagramManager() = default;
    KzDiagramManager(const KzDiagramManager &) = delete;
    KzDiagramManager &operator=(const KzDiagramManager &) = delete;
    virtual ~KzDiagramManager() = default;
};

#endif
