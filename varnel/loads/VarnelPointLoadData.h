#ifndef VARNEL_LOADS_VARNELPOINTLOADDATA_H
#define VARNEL_LOADS_VARNELPOINTLOADDATA_H

#include <memory>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzMatrix44.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/geometry/VarnelBase.h"
#include "varnel/loads/VarnelLoadData.h"

/// The values of a point load: force (kN) and moment (kNm) in the axes of a local base, or, for a
/// displacement load, displacement (m) and rotation (rad).
class VARNEL_EXPORT VarnelPointLoadData : public VarnelLoadData {
  public:
    VarnelPointLoadData();
    explicit VarnelPointLoadData(const KzVector3D &force);
    /// Copies the values; the base is copied into a base of this record's own.
    VarnelPointLoadData(const VarnelPointLoadData &other);
    /// Assigns the values. A base of the source goes into this record's base, which is made when missing; a
    /// source without a base takes this record's base away.
    VarnelPointLoadData &operator=(const VarnelPointLoadData &other);
    ~VarnelPointLoadData();

    KzVector3D getForce() const { return force_; }
    void getForce(double &x, double &y, double &z) const { force_.getXYZ(x, y, z); }
    void setForce(const KzVector3D &force) { force_ = force; }
    void setForce(double x, double y, double z) { force_.setXYZ(x, y, z); }

    KzVector3D getMoment() const { return moment_; }
    void getMoment(double &x, double &y, double &z) const { moment_.getXYZ(x, y, z); }
    void setMoment(const KzVector3D &moment) { moment_ = moment; }
    void setMoment(double x, double y, double z) { moment_.setXYZ(x, y, z); }

    /// Whether the vectors are an imposed displacement and rotation.
    bool getIsDispLoad() const { return isDispLoad_; }
    void setIsDispLoad(bool isDispLoad) { isDispLoad_ = isDispLoad; }

    /// The local base, owned; null if it was taken away.
    VarnelBase *getBase() const { return base_.get(); }
    /// Takes over a base (null: none) and frees the former one.
    void setBase(VarnelBase *base);
    /// Gives the base this matrix; makes a base if there is none.
    void setBase(const KzMatrix44 &matrix);
    /// The matrix of the base; the identity without a base or without a matrix.
    KzMatrix44 getBaseMatrix() const;

    /// Angle (rad) of the base about its axis 1 or 2; 0 without a base.
    double getAngle(int index) const;
    /// Turns the base (see VarnelBase); ignored without a base.
    void setAngle(double angle, int index);

    /// Whether force and moment are both null. The displacement flag plays no part.
    bool isNull() const { return force_.isNull() && moment_.isNull(); }
    /// Adds force and moment; name, type, load case and base stay.
    VarnelPointLoadData &operator+=(const VarnelPointLoadData &other);

  private:
    KzVector3D force_;
    KzVector3D moment_;
    bool isDispLoad_ = false;
    std::unique_ptr<VarnelBase> base_;
};

#endif
