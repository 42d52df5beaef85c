#include "varnel/geometry/PointWatch.h"

#include "varnel/geometry/VarnelPoint.h"

namespace varnel {

bool PointWatch::watch(const VarnelPoint &point) {
    if (point.watch_ && point.watch_ != this) return false;
    point.watch_ = this;
    return true;
}

void PointWatch::unwatch(const VarnelPoint &point) {
    if (point.watch_ == this) point.watch_ = nullptr;
}

}  // namespace varnel
