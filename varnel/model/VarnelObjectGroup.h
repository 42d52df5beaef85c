#ifndef VARNEL_MODEL_VARNELOBJECTGROUP_H
#define VARNEL_MODEL_VARNELOBJECTGROUP_H

#include <list>
#include <map>
#include <string>
#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KeyIndex.h"
#include "varnel/contracts/KzMatrix44.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/Shared.h"
#include "varnel/geometry/VarnelBase.h"
#include "varnel/model/PointerList.h"

class VarnelObject;
class VarnelObjectGroupResultState;

/// A named set of objects with a frame of its own and results by number of the load case. The members are
/// shared: they live in the model, which takes them out of all groups when it removes them. Copies list the
/// same members and share the result states.
class VARNEL_EXPORT VarnelObjectGroup {
  public:
    explicit VarnelObjectGroup(const std::string &name);
    VarnelObjectGroup(const VarnelObjectGroup &other);
    VarnelObjectGroup &operator=(const VarnelObjectGroup &other);

    const std::string &getName() const { return name_.get(); }
    void setName(const std::string &name) { name_.set(name); }
    /// For the list that finds this group by its name.
    const varnel::IndexedKey<std::string> *indexedName() const { return &name_; }
    /// Made by the user rather than by a program; stored for the host, as is the next one.
    bool getUserDefined() const { return userDefined_; }
    void setUserDefined(bool userDefined) { userDefined_ = userDefined; }
    bool getCalculate() const { return calculate_; }
    void setCalculate(bool calculate) { calculate_ = calculate; }
    const std::list<VarnelObject *> &getObjects() const { return objects_.list(); }

    /// Origin of the frame; marks no change.
    void setOffset(const KzVector3D &offset) { base_.setOffset(offset); }
    /// The frame; the identity if none was set.
    KzMatrix44 getBase() const;

    /// Appends and marks a change. An object can stand in the group twice.
    void add(VarnelObject *object);
    /// Takes out all entries that are this object. Marks a change, also if there was none.
    void remove(VarnelObject *object);
    /// Empties the group and marks no change.
    void remove();
    bool hasObject(VarnelObject *object) const { return objects_.contains(object); }
    /// Lets a function look at each member and put another object into its place; where it answers false the
    /// member leaves. Marks no change: for a model whose objects change without the group being altered.
    template <class Update>
    void update(Update function) {
        objects_.update(function);
    }

    /// The state of that number, made if absent.
    VarnelObjectGroupResultState *giveResultState(int number);
    VarnelObjectGroupResultState *findResultState(int number) const;
    /// Forgets the states, which live on until the group dies: somebody may still hold one.
    void removeResults();

    virtual bool getChanged() const { return changed_; }
    virtual void setChanged(bool changed) { changed_ = changed; }

    virtual ~VarnelObjectGroup();  // declared last: hosts count on the slots above

  private:
    using State = varnel::Held<VarnelObjectGroupResultState>;

    varnel::IndexedKey<std::string> name_;
    bool changed_ = false;
    bool userDefined_ = true;
    bool calculate_ = true;
    varnel::PointerList<VarnelObject> objects_;
    VarnelBase base_;
    std::map<int, State> resultStates_;
    std::vector<State> formerStates_;
};

#endif
