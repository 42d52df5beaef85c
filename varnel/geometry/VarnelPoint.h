#ifndef VARNEL_GEOMETRY_VARNELPOINT_H
#define VARNEL_GEOMETRY_VARNELPOINT_H

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/Shared.h"
#include "varnel/geometry/PointWatch.h"
#include "varnel/geometry/VarnelObject.h"

/// The numbered location that all geometry is made of. Lines that meet share one point, so moving it moves
/// them all; the last line that holds it frees it.
class VARNEL_EXPORT VarnelPoint : public VarnelObject, public varnel::Shared {
  public:
    explicit VarnelPoint(const KzVector3D &coordinates) noexcept : coordinates_(coordinates) {}
    /// Takes the coordinates; the copy is changed and has number 0.
    VarnelPoint(const VarnelPoint &other) noexcept
        : VarnelObject(other), Shared(other), coordinates_(other.coordinates_) {}
    /// Takes the coordinates alone: number and change flag stay as they are.
    VarnelPoint &operator=(const VarnelPoint &other) noexcept {
        moveTo(other.coordinates_);
        return *this;
    }

    const KzVector3D &getCoor() const noexcept { return coordinates_; }
    /// Moves the point (m) and marks a change.
    void setCoor(const KzVector3D &coordinates) {
        moveTo(coordinates);
        setChanged(true);
    }
    int getNumber() const noexcept { return number_; }
    /// The number is no part of the geometry: it is given to const points too and marks no change.
    void setNumber(int number) const noexcept {
        if (watch_ && number_ != number) watch_->pointNumbered();
        number_ = number;
    }
    /// A new point at the same place; owned by the caller.
    VarnelPoint *clone() const { return new VarnelPoint(*this); }

    /// 1 for the same object and for points at exactly the same coordinates; numbers and flags do not count.
    int operator==(const VarnelPoint &other) const noexcept {
        return this == &other || !(coordinates_ != other.coordinates_);
    }
    int operator!=(const VarnelPoint &other) const noexcept { return !(*this == other); }

    /// Null corners are ignored.
    void updateMinMax(KzVector3D *min, KzVector3D *max, const KzMatrix44 &matrix) const override;
    int getVisited(VarnelObjectVisitor *visitor) override;
    /// True for a height below 0.01 m; a point at exactly 0.01 m is outside.
    bool isInPlane(const KzMatrix44 &plane) const override;
    bool touchesPlane(const KzMatrix44 &plane) const override { return isInPlane(plane); }
    virtual bool getChanged() const { return changed_; }
    virtual void setChanged(bool changed) { changed_ = changed; }

  private:
    friend class varnel::PointWatch;

    void moveTo(const KzVector3D &coordinates) noexcept {
        if (watch_ && coordinates_ != coordinates) watch_->pointMoved();
        coordinates_ = coordinates;
    }

    KzVector3D coordinates_;
    mutable int number_ = 0;
    bool changed_ = true;
    mutable varnel::PointWatch *watch_ = nullptr;  // shared
};

#endif
