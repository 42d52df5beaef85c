#ifndef VARNEL_CONTRACTS_ROTATION_H
#define VARNEL_CONTRACTS_ROTATION_H

#include <cmath>

#include "varnel/contracts/KzVector3D.h"

namespace varnel {

/// A right-handed turn about an axis through the origin (Rodrigues' formula).
class Rotation {
  public:
    /// The axis is of unit length, the angle in rad.
    Rotation(const KzVector3D &unitAxis, double angle) noexcept
        : axis_(unitAxis), cosine_(std::cos(angle)), sine_(std::sin(angle)) {}

    KzVector3D apply(const KzVector3D &vector) const noexcept {
        return vector * cosine_ + axis_.crossProduct(vector) * sine_ +
               axis_ * (axis_.dotProduct(vector) * (1.0 - cosine_));
    }

  private:
    KzVector3D axis_;
    double cosine_;
    double sine_;
};

}  // namespace varnel

#endif
