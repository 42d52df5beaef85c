#ifndef VARNEL_CONTRACTS_KZPRESTRESSSTEEL_H
#define VARNEL_CONTRACTS_KZPRESTRESSSTEEL_H

#include "varnel/contracts/KzMaterial.h"

/// Prestressing steel.
class VARNEL_EXPORT KzPreStressSteel : public KzMaterial {
  public:
    /// `rho` in kg/m3, `gamma` in kN/m3.
    KzPreStressSteel(const std::string &name, double rho, double gamma)
        : KzMaterial(name, rho, gamma, PRESTRESS) {}

    KzPreStressSteel *clone() const override { return new KzPreStressSteel(*this); }
};

#endif
