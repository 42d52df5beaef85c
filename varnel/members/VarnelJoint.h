#ifndef VARNEL_MEMBERS_VARNELJOINT_H
#define VARNEL_MEMBERS_VARNELJOINT_H

#include <array>
#include <memory>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/Shared.h"

/// A release inside a beam: a station with released degrees of freedom, springs and yield values. The
/// meaning of the type and of each bit of the degrees of freedom is the host's.
class VARNEL_EXPORT VarnelJoint : public varnel::Shared {
  public:
    /// `pos` is relative to the beam, 0 to 1; `dof` is a bit mask.
    VarnelJoint(double pos, int dof, int type = 0) : pos_(pos), dof_(dof), type_(type) {}
    /// Copies springs and yield values into arrays of its own.
    VarnelJoint(const VarnelJoint &other);
    VarnelJoint &operator=(const VarnelJoint &other);
    virtual ~VarnelJoint() = default;

    double getPos() const { return pos_; }
    void setPos(double pos) { pos_ = pos; }
    int getDof() const { return dof_; }
    void setDof(int dof) { dof_ = dof; }
    int getType() const { return type_; }
    void setType(int type) { type_ = type; }

    /// Springs in the released directions, six values: x, y, z (kN/m), about x, y, z (kNm/rad); owned. Null
    /// until they are set.
    double *getStiffness() const { return stiffness_ ? stiffness_->data() : nullptr; }
    /// Copies six values; null is ignored.
    void setStiffness(const double *values) { copySix(values, stiffness_); }
    /// Yield values, six: x, y, z (kN), about x, y, z (kNm); owned. Null until they are set.
    double *getYield() const { return yield_ ? yield_->data() : nullptr; }
    /// Copies six values; null is ignored.
    void setYield(const double *values) { copySix(values, yield_); }

  private:
    using Six = std::array<double, 6>;
    static void copySix(const double *values, std::unique_ptr<Six> &target);

    double pos_;
    int dof_;
    int type_;
    std::unique_ptr<Six> stiffness_;
    std::unique_ptr<Six> yield_;
};

#endif
