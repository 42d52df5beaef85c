#ifndef VARNEL_CONTRACTS_KZMATERIALREINFORCEMENT_H
#define VARNEL_CONTRACTS_KZMATERIALREINFORCEMENT_H

#include "varnel/contracts/KzMaterial.h"

/// Reinforcing steel. The variant tells grades of one name apart: 0 as named, 1 normal and 2 high ductility.
class VARNEL_EXPORT KzMaterialReinforcement : public KzMaterial {
  public:
    /// `rho` in kg/m3, `gamma` in kN/m3.
    KzMaterialReinforcement(const std::string &name, double rho, double gamma)
        : KzMaterial(name, rho, gamma, REINFORCEMENT) {}

    int getVariant() const { return variant_; }
    void setVariant(int variant) { assign(variant_, variant); }

    KzMaterialReinforcement *clone() const override { return new KzMaterialReinforcement(*this); }

  private:
    int variant_ = 0;
};

#endif
