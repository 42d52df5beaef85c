#ifndef VARNEL_STAGES_VARNELOBJECTSTATE_H
#define VARNEL_STAGES_VARNELOBJECTSTATE_H

#include "varnel/contracts/Export.h"
#include "varnel/contracts/Shared.h"
#include "varnel/stages/StateWatch.h"

class VarnelConstructionStage;
class VarnelObjectStateVisitor;
class VarnelStateObject;

/// What a construction stage records of one object. The object is shared and not copied with the state.
class VARNEL_EXPORT VarnelObjectState : public varnel::Shared {
  public:
    explicit VarnelObjectState(VarnelStateObject *object) : stateObject_(object) {}
    VarnelObjectState(const VarnelObjectState &other)
        : Shared(other), active_(other.active_), stateObject_(other.stateObject_) {}
    VarnelObjectState &operator=(const VarnelObjectState &other);

    /// The object, which may be null.
    VarnelStateObject *getStateObject() const { return stateObject_; }
    /// Whether the object takes part in this stage. Setting it leaves the object alone.
    bool isActive() const { return active_; }
    void setActive(bool active) { active_ = active; }

    /// Applies the state to the object; does nothing without one. Marks no change.
    virtual void update();
    /// Takes the state from the object; inactive without one.
    virtual void setup();
    /// Calls the visitor's operation for the state's own class; none for this base. Null is ignored.
    virtual void getVisited(VarnelObjectStateVisitor *) {}
    virtual ~VarnelObjectState() = default;

  private:
    friend class VarnelConstructionStage;

    bool active_ = true;
    VarnelStateObject *stateObject_;
    varnel::Held<varnel::StateWatch> watch_;  // of the stages that list this very state, never copied
};

#endif
