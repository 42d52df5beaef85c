#ifndef VARNEL_LOADS_VARNELLINELOADDATA_H
#define VARNEL_LOADS_VARNELLINELOADDATA_H

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/loads/VarnelLoadData.h"

/// The values of a line load: force (kN/m) and moment (kNm/m) at the start (1) and at the end (2) of the
/// line, varying linearly between them.
class VARNEL_EXPORT VarnelLineLoadData : public VarnelLoadData {
  public:
    VarnelLineLoadData() = default;
    /// A force in z at the start alone: the end is meant to stay zero.
    explicit VarnelLineLoadData(double startZ) : p1_(0.0, 0.0, startZ) {}

    KzVector3D getP1() const { return p1_; }
    void getP1(double &x, double &y, double &z) const { p1_.getXYZ(x, y, z); }
    void setP1(const KzVector3D &force) { p1_ = force; }
    void setP1(double x, double y, double z) { p1_.setXYZ(x, y, z); }

    KzVector3D getM1() const { return m1_; }
    void getM1(double &x, double &y, double &z) const { m1_.getXYZ(x, y, z); }
    void setM1(const KzVector3D &moment) { m1_ = moment; }
    void setM1(double x, double y, double z) { m1_.setXYZ(x, y, z); }

    KzVector3D getP2() const { return p2_; }
    void getP2(double &x, double &y, double &z) const { p2_.getXYZ(x, y, z); }
    void setP2(const KzVector3D &force) { p2_ = force; }
    void setP2(double x, double y, double z) { p2_.setXYZ(x, y, z); }

    KzVector3D getM2() const { return m2_; }
    void getM2(double &x, double &y, double &z) const { m2_.getXYZ(x, y, z); }
    void setM2(const KzVector3D &moment) { m2_ = moment; }
    void setM2(double x, double y, double z) { m2_.setXYZ(x, y, z); }

    /// Whether all four vectors are null.
    bool isNull() const { return p1_.isNull() && m1_.isNull() && p2_.isNull() && m2_.isNull(); }
    /// Adds all four vectors; name, type and load case stay.
    VarnelLineLoadData &operator+=(const VarnelLineLoadData &other);
    /// Exchanges the values of start and end.
    void swapEnds();

  private:
    KzVector3D p1_;
    KzVector3D m1_;
    KzVector3D p2_;
    KzVector3D m2_;
};

#endif
