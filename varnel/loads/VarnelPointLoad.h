#ifndef VARNEL_LOADS_VARNELPOINTLOAD_H
#define VARNEL_LOADS_VARNELPOINTLOAD_H

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzMatrix44.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/Shared.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/geometry/VarnelStateObject.h"
#include "varnel/loads/VarnelLoad.h"
#include "varnel/loads/VarnelPointLoadData.h"

/// A force and a moment, or an imposed displacement, at a point in space.
class VARNEL_EXPORT VarnelPointLoad : public VarnelLoad, public VarnelStateObject {
  public:
    /// An empty load at the origin.
    VarnelPointLoad();
    /// A copy of the record, at a place.
    VarnelPointLoad(const VarnelPointLoadData &data, const KzVector3D &coor);
    /// Has a point and a record of its own.
    VarnelPointLoad(const VarnelPointLoad &other);
    /// Moves this load's own point to the source's place and assigns the record.
    VarnelPointLoad &operator=(const VarnelPointLoad &other);

    const VarnelPointLoadData &getData() const { return data_; }
    VarnelPointLoadData &getData() { return data_; }
    /// Assigns the record. Meant to mark no change, unlike the single setters.
    void setData(const VarnelPointLoadData &data) { data_ = data; }

    /// The load's point, owned.
    VarnelPoint *getPoint() const { return point_.get(); }
    VarnelPoint *getGeo() const { return point_.get(); }
    const KzVector3D &getCoor() const { return point_->getCoor(); }
    void getCoor(double &x, double &y, double &z) const { getCoor().getXYZ(x, y, z); }
    /// Moves the point. Meant to mark the point as changed and not the load.
    void setCoor(const KzVector3D &coor) { point_->setCoor(coor); }
    void setCoor(double x, double y, double z) { setCoor(KzVector3D(x, y, z)); }

    /// The record's vectors; setting one marks the load as changed.
    KzVector3D getForce() const { return data_.getForce(); }
    void getForce(double &x, double &y, double &z) const { data_.getForce(x, y, z); }
    void setForce(const KzVector3D &force);
    void setForce(double x, double y, double z) { setForce(KzVector3D(x, y, z)); }
    KzVector3D getMoment() const { return data_.getMoment(); }
    void getMoment(double &x, double &y, double &z) const { data_.getMoment(x, y, z); }
    void setMoment(const KzVector3D &moment);
    void setMoment(double x, double y, double z) { setMoment(KzVector3D(x, y, z)); }

    /// The matrix of the record's base; setting it marks the load as changed.
    KzMatrix44 getBase() const { return data_.getBaseMatrix(); }
    void setBase(const KzMatrix44 &matrix);
    /// Angle (rad) of the record's base about axis 1 or 2; setting it marks no change.
    double getAngle(int index) const { return data_.getAngle(index); }
    void setAngle(double angle, int index) { data_.setAngle(angle, index); }

    /// Whether the vectors are an imposed displacement and rotation; setting it marks no change.
    bool isDispLoad() const { return data_.getIsDispLoad(); }
    void setDispLoad(bool isDispLoad) { data_.setIsDispLoad(isDispLoad); }

    int getVisited(VarnelObjectVisitor *visitor) override;
    bool isInPlane(const KzMatrix44 &plane) const override { return point_->isInPlane(plane); }
    bool touchesPlane(const KzMatrix44 &plane) const override { return point_->touchesPlane(plane); }
    KzVector3D getCOG() override { return point_->getCoor(); }

  private:
    VarnelLoadData *getBaseData() override { return &data_; }

  public:
    bool isNull() override { return data_.isNull(); }

  private:
    varnel::Held<VarnelPoint> point_;
    VarnelPointLoadData data_;
};

#endif
