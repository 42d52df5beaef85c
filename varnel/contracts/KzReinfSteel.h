#ifndef VARNEL_CONTRACTS_KZREINFSTEEL_H
#define VARNEL_CONTRACTS_KZREINFSTEEL_H

#include "varnel/contracts/KzMaterialReinforcement.h"

/// The reinforcing steel of a beam.
class VARNEL_EXPORT KzReinfSteel : public KzMaterialReinforcement {
  public:
    using KzMaterialReinforcement::KzMaterialReinforcement;

    KzReinfSteel *clone() const override { return new KzReinfSteel(*this); }
};

#endif
