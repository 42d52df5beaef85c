#ifndef VARNEL_MODEL_POINTLIST_H
#define VARNEL_MODEL_POINTLIST_H

#include <list>

#include "varnel/contracts/CoordinateHash.h"
#include "varnel/contracts/Export.h"
#include "varnel/geometry/PointWatch.h"

class KzVector3D;
class VarnelPoint;

namespace varnel {

/// The system points of a model, shared with its views, found by their exact coordinates. A table answers; it
/// is made anew after a listed point was moved. A list whose points another list watches is walked instead.
class VARNEL_EXPORT PointList {
  public:
    PointList() = default;
    PointList(const PointList &other);
    PointList &operator=(const PointList &other);
    ~PointList() { clear(); }

    const std::list<VarnelPoint *> &list() const { return points_; }
    void clear();
    void swap(PointList &other) noexcept;

    /// The first point in the list at exactly these coordinates, or null.
    VarnelPoint *find(const KzVector3D &coordinates) const;
    /// The same; if there is none, a new point with the next number, at the end of the list.
    VarnelPoint *give(const KzVector3D &coordinates);

  private:
    bool tabulate() const;
    void forgetTable() const;
    VarnelPoint *findByWalk(const KzVector3D &coordinates) const;

    std::list<VarnelPoint *> points_;
    mutable CoordinateIndex<VarnelPoint> table_;
    mutable PointWatch watch_;
    mutable bool tabulated_ = false;
    mutable bool tabulable_ = true;
};

}  // namespace varnel

#endif
