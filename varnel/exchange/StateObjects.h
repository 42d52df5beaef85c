#ifndef VARNEL_EXCHANGE_STATEOBJECTS_H
#define VARNEL_EXCHANGE_STATEOBJECTS_H

#include <unordered_map>

class VarnelManager;
class VarnelStateObject;
class VarnelSubSystem;

namespace varnel {

/// The kinds of object that a state of a stage can belong to.
enum class StateKind { Beam, Plate, PointBoundary, PointLoad, LineLoad };

/// Knows which objects live in a project, by their addresses alone: a state may outlive its object, and such
/// an object must not be touched. The models are walked once, on the first question.
class StateObjects {
  public:
    /// The manager's whole tree and that of the subsystem. Both are shared and may be null.
    StateObjects(const VarnelManager *manager, VarnelSubSystem *subSystem)
        : manager_(manager), subSystem_(subSystem) {}

    /// Whether an object of that kind stands at the address. False for null.
    bool contains(StateKind kind, const VarnelStateObject *object);

  private:
    void gather(VarnelSubSystem *subSystem);
    template <class List>
    void gather(StateKind kind, const List &objects);

    const VarnelManager *manager_;
    VarnelSubSystem *subSystem_;
    bool gathered_ = false;
    std::unordered_map<const VarnelStateObject *, StateKind> kinds_;
};

}  // namespace varnel

#endif
