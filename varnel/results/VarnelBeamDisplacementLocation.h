#ifndef VARNEL_RESULTS_VARNELBEAMDISPLACEMENTLOCATION_H
#define VARNEL_RESULTS_VARNELBEAMDISPLACEMENTLOCATION_H

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/Shared.h"
#include "varnel/contracts/SysBase/LineLocation.h"

/// Displacement (m) and rotation (rad) of a beam at one position along it.
class VARNEL_EXPORT VarnelBeamDisplacementLocation : public SysBase::LineLocation, public varnel::Shared {
  public:
    VarnelBeamDisplacementLocation() = default;
    VarnelBeamDisplacementLocation(double pos, const KzVector3D &disp, const KzVector3D &rot)
        : LineLocation(pos), disp_(disp), rot_(rot) {}
    VarnelBeamDisplacementLocation(const VarnelBeamDisplacementLocation &) = default;
    VarnelBeamDisplacementLocation &operator=(const VarnelBeamDisplacementLocation &) = default;
    ~VarnelBeamDisplacementLocation() override = default;

    KzVector3D getDisp() const { return disp_; }
    void setDisp(const KzVector3D &disp) { disp_ = disp; }
    KzVector3D getRot() const { return rot_; }
    void setRot(const KzVector3D &rot) { rot_ = rot; }

  private:
    KzVector3D disp_;
    KzVector3D rot_;
};

#endif
