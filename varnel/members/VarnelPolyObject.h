#ifndef VARNEL_MEMBERS_VARNELPOLYOBJECT_H
#define VARNEL_MEMBERS_VARNELPOLYOBJECT_H

#include "varnel/contracts/Export.h"
#include "varnel/contracts/Shared.h"
#include "varnel/geometry/VarnelArea.h"
#include "varnel/geometry/VarnelObject.h"
#include "varnel/geometry/VarnelPosition.h"

/// Base of everything that has an outline. The outline may be null, which every operation takes as empty.
class VARNEL_EXPORT VarnelPolyObject : public VarnelObject, public VarnelPosition {
  public:
    ~VarnelPolyObject() override;

    /// Owned; null without one.
    VarnelArea *getGeo() const { return geometry_.get(); }
    /// Takes the outline over and marks a change. The former one is not freed: it is the caller's.
    void setArea(VarnelArea *area);

    /// False without an outline.
    bool isInPlane(const KzMatrix44 &plane) const override;
    bool touchesPlane(const KzMatrix44 &plane) const override;
    /// Whether the outline was changed.
    virtual bool getChanged() const;
    /// Passes the value to the lines of the outline.
    virtual void setChanged(bool changed);

  protected:
    VarnelPolyObject() = default;
    /// The copy has an outline of its own and the number 0.
    VarnelPolyObject(const VarnelPolyObject &other);
    /// Takes the number over and shares the outline.
    VarnelPolyObject &operator=(const VarnelPolyObject &other) = default;
    /// Takes over that there is an outline: a missing one is made as a copy, a superfluous one freed. With
    /// outlines on both sides this one stays as it is.
    void copy(const VarnelPolyObject &other);

  private:
    varnel::Held<VarnelArea> geometry_;
};

#endif
