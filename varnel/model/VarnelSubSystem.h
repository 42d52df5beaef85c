#ifndef VARNEL_MODEL_VARNELSUBSYSTEM_H
#define VARNEL_MODEL_VARNELSUBSYSTEM_H

#include <list>
#include <memory>
#include <string>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzMatrix44.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/model/KeyedList.h"

class Varnel;
class VarnelFactory;
class VarnelObject;
namespace SysBase {
class ConstructionStage;
}

/// A node of the project's tree: one model, construction stages and child subsystems, all owned, and a frame
/// relative to the parent. Its name is the description of its model, so without a model it has none.
/// Copies, by constructor or assignment, are views: they share everything and never delete.
class VARNEL_EXPORT VarnelSubSystem {
  public:
    /// Makes the model on the factory. The parent is shared and may be null; it is not told of the child.
    VarnelSubSystem(const std::string &name, const VarnelFactory *factory, VarnelSubSystem *parent);
    VarnelSubSystem(const VarnelSubSystem &other);
    /// Becomes a view of the other node. What this node owned lives on until it dies, since the other one may
    /// be a view of it.
    VarnelSubSystem &operator=(const VarnelSubSystem &other);
    /// Deletes the model, then the children, then the stages with their states.
    virtual ~VarnelSubSystem();

    const KzMatrix44 &getBase() const { return base_; }
    KzVector3D getOffset() const { return base_.getVector(3); }
    void setOffset(const KzVector3D &offset) { base_.setVector(3, offset); }
    const std::list<SysBase::ConstructionStage *> &getConstructionStages() const {
        return constructionStages_.list();
    }
    Varnel *getDatabase() const { return database_; }
    const std::list<VarnelSubSystem *> &getChildren() const { return children_.list(); }

    const std::string &getName() const;
    void setName(const std::string &name);
    /// For the list that finds this node by its name; null without a model, and for a view, since its model
    /// may die first.
    const varnel::IndexedKey<std::string> *indexedName() const;

    /// A new node of this name and parent with a deep copy of the model. Frame, stages and children are not
    /// cloned, and the parent's children stay as they are.
    VarnelSubSystem *clone(const VarnelFactory *factory) const;
    /// The first child of that name or null. Never searches deeper, whatever `recursive` says.
    VarnelSubSystem *findChild(const std::string &name, bool recursive) const;
    /// The child of that name, else a new subsystem, which the caller adds with addChild().
    VarnelSubSystem *giveChild(const std::string &name, bool recursive, VarnelFactory *factory,
                               VarnelSubSystem *parent);
    /// Appends; owned.
    void addChild(VarnelSubSystem *child);
    /// Takes the first such entry out, which passes to the caller: 1 if found, else 0.
    int removeChild(VarnelSubSystem *child, bool recursive);
    /// As Varnel::contains answers for this node and, if asked, for all below.
    bool contains(const VarnelObject *object, bool recursive) const;
    /// Widens the box by this model and all below, `frame` being the place of this node.
    void updateMinMax(KzVector3D &min, KzVector3D &max, const KzMatrix44 &frame) const;

    /// Appends; owned.
    void add(SysBase::ConstructionStage *stage);
    /// Takes the stage out, which passes to the caller, whatever `destroy` says.
    void remove(SysBase::ConstructionStage *stage, bool destroy);
    SysBase::ConstructionStage *findConstructionStageToNumber(int number);
    /// A new plain stage, not added.
    SysBase::ConstructionStage *giveConstructionStage();
    /// The stage of that number, else a new plain one, added. A number below 1 always makes a new stage, with
    /// the number of stages + 1.
    SysBase::ConstructionStage *giveConstructionStageToNumber(int number);

  private:
    void deleteChildren();
    void deleteStages();

    KzMatrix44 base_;
    varnel::NumberedList<SysBase::ConstructionStage> constructionStages_;
    Varnel *database_ = nullptr;
    varnel::NamedObjects<VarnelSubSystem> children_;
    VarnelSubSystem *parent_ = nullptr;
    bool view_ = false;
    std::unique_ptr<VarnelSubSystem> former_;  // what this node owned before it became a view
};

#endif
