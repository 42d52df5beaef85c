#ifndef VARNEL_CONTRACTS_SYSBASE_BEAMDESIGNLOCATION_H
#define VARNEL_CONTRACTS_SYSBASE_BEAMDESIGNLOCATION_H

#include "varnel/contracts/Export.h"
#include "varnel/contracts/Shared.h"
#include "varnel/contracts/SysBase/LineLocation.h"

namespace SysBase {

/// A position along a beam at which it was designed. Designers derive their own records.
class VARNEL_EXPORT BeamDesignLocation : public LineLocation, public varnel::Shared {
  public:
    BeamDesignLocation() = default;
    explicit BeamDesignLocation(double pos) : LineLocation(pos) {}
};

}  // namespace SysBase

#endif
