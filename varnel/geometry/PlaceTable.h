#ifndef VARNEL_GEOMETRY_PLACETABLE_H
#define VARNEL_GEOMETRY_PLACETABLE_H

#include <list>

#include "varnel/contracts/CoordinateHash.h"
#include "varnel/geometry/PointWatch.h"

namespace varnel {

/// Finds the first point of a list at exact coordinates. The table is made anew after a listed point was
/// moved. A point has one watch only: where another table watches it, the list is walked instead.
template <class Point>
class PlaceTable {
  public:
    PlaceTable() = default;
    PlaceTable(const PlaceTable &) = delete;
    PlaceTable &operator=(const PlaceTable &) = delete;

    /// The first point at these coordinates, or null; null points are passed over.
    Point *find(const std::list<Point *> &points, const KzVector3D &place) {
        if (tabulable_ && watch_.hasMoved()) {
            table_.clear();
            watch_.reset();
            for (Point *point : points) enter(point);
        }
        if (tabulable_) return table_.find(place);
        for (Point *point : points)
            if (point && point->getCoor() == place) return point;
        return nullptr;
    }
    /// Called when a point was appended to the list.
    void enter(Point *point) {
        if (!point || !tabulable_) return;
        tabulable_ = watch_.watch(*point);
        table_.insert(point->getCoor(), point);
    }
    /// Called before the list is emptied.
    void clear(const std::list<Point *> &points) {
        for (const Point *point : points)
            if (point) watch_.unwatch(*point);
        table_.clear();
        watch_.reset();
        tabulable_ = true;
    }

  private:
    CoordinateIndex<Point> table_;
    PointWatch watch_;
    bool tabulable_ = true;
};

}  // namespace varnel

#endif
