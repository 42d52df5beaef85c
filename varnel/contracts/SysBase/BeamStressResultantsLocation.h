#ifndef VARNEL_CONTRACTS_SYSBASE_BEAMSTRESSRESULTANTSLOCATION_H
#define VARNEL_CONTRACTS_SYSBASE_BEAMSTRESSRESULTANTSLOCATION_H

#include "varnel/contracts/Export.h"
#include "varnel/contracts/SysBase/LineLocation.h"

namespace SysBase {

/// The bending moment of a beam at one position, in kNm.
class VARNEL_EXPORT BeamStressResultantsLocation : public LineLocation {
  public:
    BeamStressResultantsLocation() = default;
    BeamStressResultantsLocation(double pos, double my) : LineLocation(pos), my_(my) {}

    double getMy() const { return my_; }

  private:
    double my_ = 0.0;
};

}  // namespace SysBase

#endif
