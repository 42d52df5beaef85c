#ifndef VARNEL_GEOMETRY_VARNELOBJECT_H
#define VARNEL_GEOMETRY_VARNELOBJECT_H

#include "varnel/contracts/Export.h"

class KzMatrix44;
class KzVector3D;
class VarnelObjectVisitor;

namespace SysBase {
class Loadcase;
}

/// Base of everything that has a place in a model: bounding box, position to a plane, double dispatch.
/// It holds no data, so copying it copies nothing.
class VARNEL_EXPORT VarnelObject {
  public:
    VarnelObject(const VarnelObject &) noexcept {}
    VarnelObject &operator=(const VarnelObject &) noexcept { return *this; }
    virtual ~VarnelObject() = default;

    /// Widens the global box from `min` to `max` by this object, whose coordinates count as local to
    /// `matrix`. Default: does nothing.
    virtual void updateMinMax(KzVector3D *, KzVector3D *, const KzMatrix44 &) const {}
    /// Calls the visitor's operation for the object's own class and answers its result; classes that no
    /// visitor knows answer 0.
    virtual int getVisited(VarnelObjectVisitor *visitor) = 0;
    /// True if every defining point lies in the x-y plane of `plane`.
    virtual bool isInPlane(const KzMatrix44 &plane) const = 0;
    /// True if at least one defining point lies in the x-y plane of `plane`.
    virtual bool touchesPlane(const KzMatrix44 &plane) const = 0;
    /// Whether the object takes part in a load case. Everything but loads takes part in all of them, also
    /// in a null one.
    virtual bool isIn(const SysBase::Loadcase *) { return true; }

  protected:
    VarnelObject() noexcept = default;
};

#endif
