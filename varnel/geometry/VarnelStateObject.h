#ifndef VARNEL_GEOMETRY_VARNELSTATEOBJECT_H
#define VARNEL_GEOMETRY_VARNELSTATEOBJECT_H

#include "varnel/contracts/Export.h"

/// Base of everything that a construction stage can switch on and off. The flag is copied with the object.
class VARNEL_EXPORT VarnelStateObject {
  public:
    VarnelStateObject() noexcept = default;
    VarnelStateObject(const VarnelStateObject &) noexcept = default;
    VarnelStateObject &operator=(const VarnelStateObject &) noexcept = default;
    virtual ~VarnelStateObject() = default;

    /// Whether the object takes part in the analysis. Setting it sets no change flag.
    bool getActive() const noexcept { return active_; }
    void setActive(bool active) noexcept { active_ = active; }

  private:
    bool active_ = true;
};

#endif
