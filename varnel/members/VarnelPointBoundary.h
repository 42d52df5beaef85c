#ifndef VARNEL_MEMBERS_VARNELPOINTBOUNDARY_H
#define VARNEL_MEMBERS_VARNELPOINTBOUNDARY_H

#include <string>
#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzMatrix44.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/Shared.h"
#include "varnel/geometry/VarnelObject.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/geometry/VarnelPosition.h"
#include "varnel/geometry/VarnelStateObject.h"
#include "varnel/members/VarnelPointBoundaryData.h"

class VarnelPointBoundaryVisitor;

namespace SysBase {
class ConstructionStage;
}

/// A support at a point: fixed degrees of freedom or springs in a local frame. This class has no shape; a
/// column is a circle or a rectangle.
class VARNEL_EXPORT VarnelPointBoundary : public VarnelStateObject,
                                          public VarnelObject,
                                          public VarnelPosition {
  public:
    /// The stage is shared; null for none.
    VarnelPointBoundary(const KzVector3D &location, int dof, SysBase::ConstructionStage *stage);
    /// All values, at a point of its own.
    VarnelPointBoundary(const VarnelPointBoundary &other);
    /// All values; the coordinates move into this support's own point.
    VarnelPointBoundary &operator=(const VarnelPointBoundary &other);
    ~VarnelPointBoundary() override;

    /// Distance of repeated supports (m). Marks no change.
    double getSpacing() const { return spacing_; }
    void setSpacing(double spacing) { spacing_ = spacing; }
    const VarnelPointBoundaryData &getData() const { return data_; }
    VarnelPointBoundaryData &getData() { return data_; }
    /// Assigns; marks no change of the support itself.
    void setData(const VarnelPointBoundaryData &data) { data_ = data; }
    /// Owned, never null.
    VarnelPoint *getGeo() const { return geometry_.get(); }
    /// Shared; null for none.
    SysBase::ConstructionStage *getAssignedConstructionStage() const { return assignedStage_; }
    /// Stored for the host; marks no change.
    int getTypInd() const { return typInd_; }
    void setTypInd(int typInd) { typInd_ = typInd; }

    const KzVector3D &getCoor() const { return geometry_->getCoor(); }
    /// Moves the point, which is changed then.
    void setCoor(const KzVector3D &location) { geometry_->setCoor(location); }
    int getDof() const { return data_.getDof(); }
    /// Marks a change.
    void setDof(int dof);
    /// In rad about the local axis 1 (y) or 2 (z); marks the frame as changed.
    double getAngle(int axis) const { return data_.getBase().getAngle(axis); }
    void setAngle(double angle, int axis) { data_.setAngle(angle, axis); }
    void setBase(const KzMatrix44 &matrix) { data_.setBase(matrix); }
    /// The identity without a frame.
    KzMatrix44 getBase() const;
    /// Whether the local z axis is exactly the global one; false without a frame.
    bool onlyRotatedInXY() const;
    /// See VarnelBoundaryData; setting marks a change.
    std::vector<double> getStiffness() const { return data_.getStiffness(); }
    void setStiffness(const std::vector<double> &values);
    VarnelBoundaryStiffnessData *getStiffnessData() const { return data_.getStiffnessData(); }
    /// Mark no change.
    void setHeight(double height) { data_.setHeight(height); }
    void setSpecificWeight(double weight) { data_.setSpecificWeight(weight); }
    void setTransferOwnWeight(bool transfer) { data_.setTransferOwnWeight(transfer); }

    /// Whether the support, its values, its frame or its point was changed.
    virtual bool getChanged() const;
    virtual void setChanged(bool changed);
    /// Nothing for a support without a shape.
    virtual void getVisited(VarnelPointBoundaryVisitor *visitor);

    int getVisited(VarnelObjectVisitor *visitor) override;
    bool isInPlane(const KzMatrix44 &plane) const override;
    bool touchesPlane(const KzMatrix44 &plane) const override;
    /// Marks no change.
    void setName(const std::string &name) override { data_.setName(name); }
    const std::string &getName() const override { return data_.getName(); }

  private:
    bool changed_ = true;
    double spacing_ = 1.0;
    VarnelPointBoundaryData data_;
    varnel::Held<VarnelPoint> geometry_;
    SysBase::ConstructionStage *assignedStage_;
    int typInd_ = 0;
};

#endif
