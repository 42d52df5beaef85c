#ifndef VARNEL_GEOMETRY_LINEPOINTS_H
#define VARNEL_GEOMETRY_LINEPOINTS_H

#include "varnel/geometry/VarnelLine.h"
#include "varnel/geometry/VarnelPoint.h"

namespace varnel {

/// Coordinates of a line's point; the origin for a missing one.
inline KzVector3D coordinatesOf(const VarnelPoint *point) {
    return point ? point->getCoor() : KzVector3D();
}

/// Whether two points of lines lie at one place; a missing point is only where another one is missing.
inline bool isOnePlace(const VarnelPoint *a, const VarnelPoint *b) {
    return a && b ? *a == *b : a == b;
}

/// Whether two lines have the same ends, in either direction.
inline bool haveSameEnds(const VarnelLine &a, const VarnelLine &b) {
    return (isOnePlace(a.getStart(), b.getStart()) && isOnePlace(a.getEnd(), b.getEnd())) ||
           (isOnePlace(a.getStart(), b.getEnd()) && isOnePlace(a.getEnd(), b.getStart()));
}

/// Moves a line's point and marks it as changed, if it is there.
inline void movePoint(VarnelPoint *point, const KzVector3D &coordinates) {
    if (point) point->setCoor(coordinates);
}

/// Takes over the coordinates of another line's point without marking a change, if both are there.
inline void assignPoint(VarnelPoint *point, const VarnelPoint *other) {
    if (point && other) *point = *other;
}

inline bool isChanged(const VarnelPoint *point) {
    return point && point->getChanged();
}

inline void setPointChanged(VarnelPoint *point, bool changed) {
    if (point) point->setChanged(changed);
}

inline void updatePointMinMax(const VarnelPoint *point, KzVector3D *min, KzVector3D *max,
                              const KzMatrix44 &matrix) {
    if (point) point->updateMinMax(min, max, matrix);
}

/// A missing point is no hindrance for a line to lie in a plane ...
inline bool isWithinPlane(const VarnelPoint *point, const KzMatrix44 &plane) {
    return !point || point->isInPlane(plane);
}

/// ... and touches none.
inline bool isPointOfPlane(const VarnelPoint *point, const KzMatrix44 &plane) {
    return point && point->isInPlane(plane);
}

}  // namespace varnel

#endif
