#ifndef VARNEL_CONTRACTS_KZBEAMSTRESSRESULTANTSLOCATION_H
#define VARNEL_CONTRACTS_KZBEAMSTRESSRESULTANTSLOCATION_H

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/Shared.h"
#include "varnel/contracts/SysBase/LineLocation.h"

/// All stress resultants of a beam at one position: the normal force and two shear forces in kN, torsion and
/// two bending moments in kNm.
class VARNEL_EXPORT KzBeamStressResultantsLocation : public SysBase::LineLocation, public varnel::Shared {
  public:
    KzBeamStressResultantsLocation() = default;
    explicit KzBeamStressResultantsLocation(double pos, const KzVector3D &force = KzVector3D(),
                                            const KzVector3D &moment = KzVector3D())
        : LineLocation(pos), force_(force), moment_(moment) {}

    const KzVector3D &getForce() const { return force_; }
    const KzVector3D &getMoment() const { return moment_; }

  private:
    KzVector3D force_;
    KzVector3D moment_;
};

#endif
