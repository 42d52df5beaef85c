#ifndef VARNEL_RESULTS_VARNELNODERESULTLOCATION_H
#define VARNEL_RESULTS_VARNELNODERESULTLOCATION_H

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/geometry/VarnelPlatePosition.h"

/// The results at a node: forces in kN and moments in kNm, in global directions. It is a point at the node's
/// coordinates. Copies have values of their own.
class VARNEL_EXPORT VarnelNodeResultLocation : public VarnelPlatePosition {
  public:
    explicit VarnelNodeResultLocation(const KzVector3D &position)
        : VarnelPlatePosition(position.getX(), position.getY(), position.getZ()) {}
    VarnelNodeResultLocation(const VarnelNodeResultLocation &) = default;
    VarnelNodeResultLocation &operator=(const VarnelNodeResultLocation &) = default;
    ~VarnelNodeResultLocation() override = default;

    /// All four are zero at first; setting them marks no change.
    KzVector3D getForce() const { return force_; }
    void setForce(const KzVector3D &force) { force_ = force; }
    KzVector3D getMoment() const { return moment_; }
    void setMoment(const KzVector3D &moment) { moment_ = moment; }
    KzVector3D getLoadForce() const { return loadForce_; }
    void setLoadForce(const KzVector3D &force) { loadForce_ = force; }
    KzVector3D getLoadMoment() const { return loadMoment_; }
    void setLoadMoment(const KzVector3D &moment) { loadMoment_ = moment; }

  private:
    KzVector3D force_;
    KzVector3D moment_;
    KzVector3D loadForce_;
    KzVector3D loadMoment_;
};

#endif
