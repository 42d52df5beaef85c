#ifndef VARNEL_MEMBERS_VARNELPOINTBOUNDARYDATA_H
#define VARNEL_MEMBERS_VARNELPOINTBOUNDARYDATA_H

#include <vector>

#include "varnel/geometry/VarnelBase.h"
#include "varnel/members/VarnelBoundaryData.h"

/// The values of a point support: those of every support and a local frame. Freed as what it is: there is no
/// virtual destructor.
class VARNEL_EXPORT VarnelPointBoundaryData : public VarnelBoundaryData {
  public:
    /// No degree of freedom fixed, no springs, no frame.
    VarnelPointBoundaryData() = default;
    /// See setStiffness() for the six values.
    VarnelPointBoundaryData(int dof, const std::vector<double> &stiffness);
    /// Springs of its own; springs of zeros do not survive. Marks a change.
    VarnelPointBoundaryData(const VarnelPointBoundaryData &other);
    VarnelPointBoundaryData &operator=(const VarnelPointBoundaryData &other);

    const VarnelBase &getBase() const { return base_; }
    /// Both do the same; they mark the frame as changed.
    void setBase(const KzMatrix44 &matrix) { base_.setMatrix(matrix); }
    void setBaseMatrix(const KzMatrix44 &matrix) { base_.setMatrix(matrix); }
    /// Null without a frame.
    const KzMatrix44 *getBaseMatrix() const { return base_.getMatrix(); }
    /// In rad about the local axis 1 (y) or 2 (z). Exactly 0 makes an identity frame.
    void setAngle(double angle, int axis);

    /// Whether the values or the frame were changed. A new frame counts as changed.
    virtual bool getChanged() const;
    virtual void setChanged(bool changed);

  private:
    void copy(const VarnelPointBoundaryData &other);

    VarnelBase base_;
};

#endif
