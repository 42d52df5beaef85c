#ifndef VARNEL_CONTRACTS_FIREDESIGN_TEMPERATUREDISTRIBUTION_H
#define VARNEL_CONTRACTS_FIREDESIGN_TEMPERATUREDISTRIBUTION_H

#include "varnel/contracts/Export.h"

namespace FireDesign {

/// The temperatures of a cross-section in a fire; a designer derives its own record.
class VARNEL_EXPORT TemperatureDistribution {
  public:
    virtual ~TemperatureDistribution() = default;
    /// A copy of the derived kind, the caller's to delete.
    virtual TemperatureDistribution *clone() const { return new TemperatureDistribution(*this); }
};

}  // namespace FireDesign

#endif
