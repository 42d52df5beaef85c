#ifndef VARNEL_MEMBERS_VARNELBOUNDARYSTIFFNESSDATA_H
#define VARNEL_MEMBERS_VARNELBOUNDARYSTIFFNESSDATA_H

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/Shared.h"

/// Springs of a support: stiffness against displacement along x, y, z (kN/m, for lines per m) and against
/// rotation about x, y, z (kNm/rad).
class VARNEL_EXPORT VarnelBoundaryStiffnessData : public varnel::Shared {
  public:
    const KzVector3D &getDispStiff() const { return dispStiff_; }
    void setDispStiff(const KzVector3D &stiffness) { dispStiff_ = stiffness; }
    const KzVector3D &getRotStiff() const { return rotStiff_; }
    void setRotStiff(const KzVector3D &stiffness) { rotStiff_ = stiffness; }

  private:
    KzVector3D dispStiff_;
    KzVector3D rotStiff_;
};

#endif
