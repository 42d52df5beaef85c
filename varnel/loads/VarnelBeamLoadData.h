#ifndef VARNEL_LOADS_VARNELBEAMLOADDATA_H
#define VARNEL_LOADS_VARNELBEAMLOADDATA_H

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/loads/VarnelLoadData.h"

/// The values of a beam load: force (kN) and moment (kNm), a point in global coordinates (m) and a kind that
/// only the host's services read.
class VARNEL_EXPORT VarnelBeamLoadData : public VarnelLoadData {
  public:
    /// The kinds are the host's; the library stores their numbers.
    enum LoadType : int { DefaultLoad = 1 };

    /// The force; a new record has (0, 0, 1), so it is not null.
    KzVector3D getForce() const { return force_; }
    void getForce(double &x, double &y, double &z) const { force_.getXYZ(x, y, z); }
    void setForce(const KzVector3D &force) { force_ = force; }
    void setForce(double x, double y, double z) { force_.setXYZ(x, y, z); }

    KzVector3D getMoment() const { return moment_; }
    void getMoment(double &x, double &y, double &z) const { moment_.getXYZ(x, y, z); }
    void setMoment(const KzVector3D &moment) { moment_ = moment; }
    void setMoment(double x, double y, double z) { moment_.setXYZ(x, y, z); }

    KzVector3D getGlobalPoint() const { return globalPoint_; }
    void getGlobalPoint(double &x, double &y, double &z) const { globalPoint_.getXYZ(x, y, z); }
    void setGlobalPoint(const KzVector3D &point) { globalPoint_ = point; }
    void setGlobalPoint(double x, double y, double z) { globalPoint_.setXYZ(x, y, z); }

    LoadType getLoadType() const { return loadType_; }
    void setLoadType(LoadType type) { loadType_ = type; }
    void setLoadType(int type) { loadType_ = static_cast<LoadType>(type); }

    /// Whether force and moment are both null.
    bool isNull() const { return force_.isNull() && moment_.isNull(); }
    /// Adds force and moment; all else stays.
    VarnelBeamLoadData &operator+=(const VarnelBeamLoadData &other) {
        force_ += other.force_;
        moment_ += other.moment_;
        return *this;
    }

  private:
    KzVector3D force_{0.0, 0.0, 1.0};
    KzVector3D moment_;
    KzVector3D globalPoint_;
    LoadType loadType_ = DefaultLoad;
};

#endif
