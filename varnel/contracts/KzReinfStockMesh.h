#ifndef VARNEL_CONTRACTS_KZREINFSTOCKMESH_H
#define VARNEL_CONTRACTS_KZREINFSTOCKMESH_H

#include "varnel/contracts/KzReinfMesh.h"

/// A mesh as it is sold.
class VARNEL_EXPORT KzReinfStockMesh : public KzReinfMesh {
  public:
    /// Steel in cm2/m.
    KzReinfStockMesh(const std::string &name, double asX, double asY) : KzReinfMesh(name, asX, asY) {}

    /// A copy, the caller's to add or delete.
    virtual KzReinfStockMesh *clone() const { return new KzReinfStockMesh(*this); }
};

#endif
