#ifndef VARNEL_CONTRACTS_SYSBASE_BEAMDEFORMATIONSLOCATION_H
#define VARNEL_CONTRACTS_SYSBASE_BEAMDEFORMATIONSLOCATION_H

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/SysBase/LineLocation.h"

namespace SysBase {

/// The displacement of a beam at one position, in m.
class VARNEL_EXPORT BeamDeformationsLocation : public LineLocation {
  public:
    BeamDeformationsLocation() = default;
    BeamDeformationsLocation(double pos, const KzVector3D &displacement)
        : LineLocation(pos), displacement_(displacement) {}

    const KzVector3D &getDisplacement() const { return displacement_; }

  private:
    KzVector3D displacement_;
};

}  // namespace SysBase

#endif
