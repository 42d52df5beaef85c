#ifndef VARNEL_TESTS_SUPPORT_COUNTEDPOINT_H
#define VARNEL_TESTS_SUPPORT_COUNTEDPOINT_H

#include "varnel/geometry/VarnelPoint.h"

namespace varnel {

/// A point that counts how many of its kind are alive.
class CountedPoint : public VarnelPoint {
  public:
    explicit CountedPoint(const KzVector3D &coordinates) : VarnelPoint(coordinates) { ++alive; }
    CountedPoint(const CountedPoint &) = delete;
    CountedPoint &operator=(const CountedPoint &) = delete;
    ~CountedPoint() override { --alive; }

    static inline int alive = 0;
};

}  // namespace varnel

#endif
