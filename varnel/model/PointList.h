#ifndef VARNEL_MODEL_POINTLIST_H
#define VARNEL_MODEL_POINTLIST_H

#include <cstddef>
#include <cstdint>
#include <list>
#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/geometry/PointWatch.h"

class KzVector3D;
class VarnelPoint;

namespace varnel {

/// The system points of a model, shared with its views, found by their exact coordinates. A hash table
/// answers as long as no listed point was moved; then it is made anew. A list that shares points with another
/// one is walked instead.
class VARNEL_EXPORT PointList {
  public:
    PointList() = default;
    PointList(const PointList &other);
    PointList &operator=(const PointList &other);
    ~PointList() { clear(); }

    const std::list<VarnelPoint *> &list() const { return points_; }
    /// Appends a point, which the list then owns together with its views.
    void append(VarnelPoint *point);
    void clear();
    void swap(PointList &other) noexcept;

    /// The first point in the list at exactly these coordinates, or null.
    VarnelPoint *find(const KzVector3D &coordinates) const;

  private:
    struct Slot {
        VarnelPoint *point = nullptr;
        std::size_t hash = 0;
    };

    bool tabulate() const;
    void enter(VarnelPoint *point) const;
    void grow() const;
    void forgetTable() const;

    std::list<VarnelPoint *> points_;
    mutable std::vector<Slot> slots_;  // open addressing, a power of two long; empty while there is no table
    mutable std::size_t used_ = 0;
    mutable bool tabulable_ = true;
    mutable PointWatch watch_;
};

}  // namespace varnel

#endif
