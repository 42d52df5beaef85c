#ifndef VARNEL_CONTRACTS_KZMATRIX44_H
#define VARNEL_CONTRACTS_KZMATRIX44_H

#include <cstddef>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzVector3D.h"

/// A frame: three axes and an origin in global coordinates, kept as a homogeneous matrix of sixteen
/// doubles whose rows are the vectors 0 to 3. Axes of any length count with their direction alone; a null
/// axis gives zero coordinates.
class VARNEL_EXPORT KzMatrix44 {
  public:
    /// The identity frame.
    constexpr KzMatrix44() noexcept = default;

    /// Axes along global x, y and z, origin zero.
    static constexpr KzMatrix44 getId() noexcept { return {}; }
    constexpr KzMatrix44 &setId() noexcept { return *this = KzMatrix44(); }

    /// Index 0 to 2 sets an axis, 3 the origin; any other index is ignored.
    constexpr void setVector(std::size_t index, const KzVector3D &vector) noexcept {
        if (index > 3) return;
        elements_[index][0] = vector.getX();
        elements_[index][1] = vector.getY();
        elements_[index][2] = vector.getZ();
    }
    /// The vector as it was set; the zero vector for an index past 3.
    constexpr KzVector3D getVector(std::size_t index) const noexcept {
        if (index > 3) return {};
        return {elements_[index][0], elements_[index][1], elements_[index][2]};
    }

    /// Global point to local coordinates; local z is the signed height (m) above the x-y plane.
    KzVector3D transform(const KzVector3D &point) const noexcept {
        const KzVector3D d = point - getVector(3);
        return {d.dotProduct(unitAxis(0)), d.dotProduct(unitAxis(1)), d.dotProduct(unitAxis(2))};
    }
    /// Local coordinates to a global point: the inverse of `transform` for orthogonal axes.
    KzVector3D transformBack(const KzVector3D &local) const noexcept {
        return getVector(3) + turnBack(local);
    }

    /// Composition of a parent frame (this) with a child frame given in it.
    KzMatrix44 operator*(const KzMatrix44 &child) const noexcept;
    /// Turns the axes right-handed about (x, y, z) by `angle` in rad; the origin stays. An axis of
    /// rotation shorter than `tol` changes nothing.
    KzMatrix44 &rotate(double x, double y, double z, double angle, double tol) noexcept;
    /// Cuts the line point + t * direction with the x-y plane of the frame. False, with `t` untouched, if
    /// the line runs parallel to the plane.
    bool cutWithLine(const KzVector3D &point, const KzVector3D &direction, double &t) const noexcept;

  private:
    KzVector3D unitAxis(std::size_t index) const noexcept { return getVector(index).normalize(); }
    KzVector3D turnBack(const KzVector3D &local) const noexcept {
        return unitAxis(0) * local.getX() + unitAxis(1) * local.getY() + unitAxis(2) * local.getZ();
    }

    double elements_[4][4] = {
        {1.0, 0.0, 0.0, 0.0}, {0.0, 1.0, 0.0, 0.0}, {0.0, 0.0, 1.0, 0.0}, {0.0, 0.0, 0.0, 1.0}};
};

#endif
