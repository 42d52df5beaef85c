#ifndef VARNEL_STAGES_VARNELCONSTRUCTIONSTAGE_H
#define VARNEL_STAGES_VARNELCONSTRUCTIONSTAGE_H

#include <list>
#include <unordered_map>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/Shared.h"
#include "varnel/contracts/SysBase/ConstructionStage.h"
#include "varnel/stages/StateWatch.h"

class VarnelBeam;
class VarnelBeamState;
class VarnelLineLoad;
class VarnelLineLoadState;
class VarnelObjectState;
class VarnelPlate;
class VarnelPlateState;
class VarnelPointBoundary;
class VarnelPointBoundaryState;
class VarnelPointLoad;
class VarnelPointLoadState;
class VarnelStateObject;

/// One step of a staged analysis with a state for each object that it concerns. Copies share the states,
/// which are owned by all of them together.
class VARNEL_EXPORT VarnelConstructionStage : public SysBase::ConstructionStage {
  public:
    VarnelConstructionStage();
    VarnelConstructionStage(const VarnelConstructionStage &other);
    VarnelConstructionStage &operator=(const VarnelConstructionStage &other);
    ~VarnelConstructionStage() override;

    /// The state of the object, made if there is none: active, without a material. Null if the first state
    /// of the object is of another class. The object is shared; null has a state like any other.
    VarnelPlateState *giveState(VarnelPlate *plate);
    VarnelBeamState *giveState(VarnelBeam *beam);
    VarnelPointBoundaryState *giveState(VarnelPointBoundary *boundary);
    VarnelPointLoadState *giveState(VarnelPointLoad *load);
    VarnelLineLoadState *giveState(VarnelLineLoad *load);

    /// States in the order of their creation.
    const std::list<VarnelObjectState *> &getObjectStates() const { return objectStates_; }
    /// Gives up all states; those that a copy of the stage shares live on there.
    void removeStates();

  protected:
    /// Make a new state, which the stage then owns; a derived stage may supply records of its own.
    virtual VarnelLineLoadState *createState(VarnelLineLoad *load);
    virtual VarnelPointLoadState *createState(VarnelPointLoad *load);
    virtual VarnelPointBoundaryState *createState(VarnelPointBoundary *boundary);
    virtual VarnelPlateState *createState(VarnelPlate *plate);
    virtual VarnelBeamState *createState(VarnelBeam *beam);

  private:
    /// The first state of the object, or null; a derived stage may search in its own way.
    virtual VarnelObjectState *findObjectState(VarnelStateObject *object);

    template <class State, class Object>
    State *findOrCreate(Object *object);
    void enter(VarnelObjectState *state);
    void tabulate();
    VarnelObjectState *walkToState(const VarnelStateObject *object) const;

    std::list<VarnelObjectState *> objectStates_;

    // The first state of each object. Made anew once a state stands for another object; stages whose states
    // stand in an unrelated stage as well are walked instead, since that one hears of the changes.
    std::unordered_map<const VarnelStateObject *, VarnelObjectState *> table_;
    varnel::Held<varnel::StateWatch> watch_;  // null while there is no state
    unsigned long tabulated_ = 0;
    bool tabulable_ = true;
};

#endif
