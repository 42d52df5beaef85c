#ifndef VARNEL_MODEL_POINTLIST_H
#define VARNEL_MODEL_POINTLIST_H

#include <cstddef>
#include <list>
#include <unordered_map>
#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/geometry/PointWatch.h"

class KzVector3D;
class VarnelPoint;

namespace varnel {

/// The system points of a model, shared with its views, found by their exact coordinates and by number.
/// Tables answer; they are made anew after a listed point was moved or got another number. A list whose
/// points another list watches is walked instead.
class VARNEL_EXPORT PointList {
  public:
    PointList() = default;
    PointList(const PointList &other);
    PointList &operator=(const PointList &other);
    ~PointList() { clear(); }

    const std::list<VarnelPoint *> &list() const { return points_; }
    void clear();
    void swap(PointList &other) noexcept;

    /// Prepares for some number of points, for speed alone.
    void expect(std::size_t count) { expected_ = count; }
    /// The first point in the list at exactly these coordinates, or null.
    VarnelPoint *find(const KzVector3D &coordinates) const;
    /// The same; if there is none, a new point with the next number, at the end of the list.
    VarnelPoint *give(const KzVector3D &coordinates);
    /// The first point in the list with this number, or null.
    VarnelPoint *findToNumber(int number) const;

  private:
    /// Open addressing; the table is a power of two long and at most two thirds full.
    struct Slot {
        VarnelPoint *point = nullptr;
        std::size_t hash = 0;
    };

    bool tabulate() const;
    void forgetTable() const;
    void reserve(std::size_t count) const;
    Slot &slotOf(const KzVector3D &coordinates, std::size_t hash) const;
    void enter(VarnelPoint &point, std::size_t hash) const;
    VarnelPoint *append(const KzVector3D &coordinates);
    VarnelPoint *findByWalk(const KzVector3D &coordinates) const;

    std::list<VarnelPoint *> points_;
    mutable std::vector<Slot> table_;  // empty while there is none
    mutable std::size_t used_ = 0;
    mutable std::unordered_map<int, VarnelPoint *> numbers_;  // empty while nobody asks
    mutable PointWatch watch_;
    mutable bool tabulable_ = true;
    std::size_t expected_ = 0;
};

}  // namespace varnel

#endif
