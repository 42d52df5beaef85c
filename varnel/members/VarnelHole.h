#ifndef VARNEL_MEMBERS_VARNELHOLE_H
#define VARNEL_MEMBERS_VARNELHOLE_H

#include <string>

#include "varnel/members/VarnelPolyObject.h"

/// An opening in a plate. A new hole has the number -1 and counts as unchanged. It does not widen boxes.
class VARNEL_EXPORT VarnelHole : public VarnelPolyObject {
  public:
    VarnelHole();
    /// Name, load distribution and an outline of its own, with the number -1. Unlike a new hole the copy is
    /// changed: taking over the outline, or that there is none, marks it.
    VarnelHole(const VarnelHole &other);
    /// Name and load distribution; the outline only if this hole has none.
    VarnelHole &operator=(const VarnelHole &other);
    ~VarnelHole() override;

    /// The hole itself, and its assignment.
    const VarnelHole &getData() const { return *this; }
    void setData(const VarnelHole &hole) { *this = hole; }
    /// Whether the hole takes part in load distribution; setting marks a change, also to the value it has.
    bool getLoadDistribution() const { return loadDistribution_; }
    void setLoadDistribution(bool value);

    int getVisited(VarnelObjectVisitor *visitor) override;
    bool getChanged() const override;
    void setChanged(bool changed) override;
    /// Marks no change.
    void setName(const std::string &name) override { name_ = name; }
    const std::string &getName() const override { return name_; }

  private:
    void copy(const VarnelHole &other);

    std::string name_;
    bool loadDistribution_ = false;
    bool changed_ = false;
};

#endif
