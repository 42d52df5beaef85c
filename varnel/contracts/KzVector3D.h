#ifndef VARNEL_CONTRACTS_KZVECTOR3D_H
#define VARNEL_CONTRACTS_KZVECTOR3D_H

#include <cmath>

#include "varnel/contracts/Export.h"

/// A point (m) or a direction: three doubles, copied byte for byte.
class VARNEL_EXPORT KzVector3D {
  public:
    /// The zero vector.
    constexpr KzVector3D() noexcept = default;
    constexpr KzVector3D(double x, double y, double z) noexcept : x_(x), y_(y), z_(z) {}

    constexpr double getX() const noexcept { return x_; }
    constexpr double getY() const noexcept { return y_; }
    constexpr double getZ() const noexcept { return z_; }
    constexpr void getXYZ(double &x, double &y, double &z) const noexcept {
        x = x_;
        y = y_;
        z = z_;
    }
    /// The setters return the vector itself, so that calls can be chained.
    constexpr KzVector3D &setXYZ(double x, double y, double z) noexcept {
        x_ = x;
        y_ = y;
        z_ = z;
        return *this;
    }
    constexpr KzVector3D &setX(double x) noexcept {
        x_ = x;
        return *this;
    }
    constexpr KzVector3D &setY(double y) noexcept {
        y_ = y;
        return *this;
    }
    constexpr KzVector3D &setZ(double z) noexcept {
        z_ = z;
        return *this;
    }

    double length() const noexcept { return std::sqrt(dotProduct(*this)); }
    double distanceTo(const KzVector3D &other) const noexcept { return (*this - other).length(); }
    /// Scales to unit length. A vector whose length is zero or not finite stays as it is, so that no NaN
    /// comes into being.
    KzVector3D &normalize() noexcept {
        const double len = length();
        if (len > 0.0 && std::isfinite(len)) setXYZ(x_ / len, y_ / len, z_ / len);
        return *this;
    }
    /// This x other, right-handed.
    constexpr KzVector3D crossProduct(const KzVector3D &other) const noexcept {
        return {y_ * other.z_ - z_ * other.y_, z_ * other.x_ - x_ * other.z_, x_ * other.y_ - y_ * other.x_};
    }
    constexpr double dotProduct(const KzVector3D &other) const noexcept {
        return x_ * other.x_ + y_ * other.y_ + z_ * other.z_;
    }

    /// True if no component's magnitude exceeds 1e-12. NaN is not null.
    bool isNull() const noexcept {
        return std::fabs(x_) <= 1e-12 && std::fabs(y_) <= 1e-12 && std::fabs(z_) <= 1e-12;
    }
    /// Parallel or anti-parallel: |a x b| <= tolerance |a| |b|, so the tolerance is the sine of an angle.
    /// A null vector is collinear with everything.
    bool isCollinear(KzVector3D other, double tolerance) const noexcept {
        if (isNull() || other.isNull()) return true;
        return crossProduct(other).length() <= tolerance * length() * other.length();
    }
    /// The same with a tolerance of 1e-4.
    bool isCollinear(const KzVector3D &other) const noexcept { return isCollinear(other, 1e-4); }

    /// One and the same location: exact in each component. -0.0 equals 0.0, NaN equals nothing.
    constexpr bool operator==(const KzVector3D &other) const noexcept {
        return x_ == other.x_ && y_ == other.y_ && z_ == other.z_;
    }
    constexpr bool operator!=(const KzVector3D &other) const noexcept { return !(*this == other); }

    constexpr KzVector3D &operator+=(const KzVector3D &other) noexcept {
        return setXYZ(x_ + other.x_, y_ + other.y_, z_ + other.z_);
    }
    constexpr KzVector3D &operator-=(const KzVector3D &other) noexcept {
        return setXYZ(x_ - other.x_, y_ - other.y_, z_ - other.z_);
    }
    constexpr KzVector3D &operator*=(double factor) noexcept {
        return setXYZ(x_ * factor, y_ * factor, z_ * factor);
    }
    friend constexpr KzVector3D operator+(KzVector3D a, const KzVector3D &b) noexcept { return a += b; }
    friend constexpr KzVector3D operator-(KzVector3D a, const KzVector3D &b) noexcept { return a -= b; }
    friend constexpr KzVector3D operator-(const KzVector3D &a) noexcept { return {-a.x_, -a.y_, -a.z_}; }
    friend constexpr KzVector3D operator*(KzVector3D a, double factor) noexcept { return a *= factor; }
    friend constexpr KzVector3D operator*(double factor, KzVector3D a) noexcept { return a *= factor; }

    /// Widens the box from `min` to `max` by this point. NaN components widen nothing.
    constexpr void updateMinMax(KzVector3D &min, KzVector3D &max) const noexcept {
        if (x_ < min.x_) min.x_ = x_;
        if (y_ < min.y_) min.y_ = y_;
        if (z_ < min.z_) min.z_ = z_;
        if (x_ > max.x_) max.x_ = x_;
        if (y_ > max.y_) max.y_ = y_;
        if (z_ > max.z_) max.z_ = z_;
    }

    /// The length (m) below which a line counts as having none.
    static constexpr double getTolerance() noexcept { return 1e-4; }
    static constexpr KzVector3D getOrigin() noexcept { return {}; }
    static constexpr KzVector3D getGlobalZ() noexcept { return {0.0, 0.0, 1.0}; }

  private:
    double x_ = 0.0;
    double y_ = 0.0;
    double z_ = 0.0;
};

#endif
