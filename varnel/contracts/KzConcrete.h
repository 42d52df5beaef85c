#ifndef VARNEL_CONTRACTS_KZCONCRETE_H
#define VARNEL_CONTRACTS_KZCONCRETE_H

#include "varnel/contracts/KzMaterial.h"

/// A concrete.
class VARNEL_EXPORT KzConcrete : public KzMaterial {
  public:
    /// `rho` in kg/m3, `gamma` in kN/m3.
    KzConcrete(const std::string &name, double rho, double gamma) : KzMaterial(name, rho, gamma, CONCRETE) {}

    KzConcrete *clone() const override { return new KzConcrete(*this); }
};

#endif
