#include "varnel/geometry/VarnelPolyline.h"

#include <algorithm>
#include <limits>

void VarnelPolyline::add(const KzVector3D &coordinates) {
    points_.push_back(varnel::Held<VarnelPoint>(new VarnelPoint(coordinates)));
}

int VarnelPolyline::numberOfLines() const {
    if (points_.size() < 2) return 0;
    constexpr std::size_t most = std::numeric_limits<int>::max();
    return static_cast<int>(std::min(points_.size() - 1, most));
}

const VarnelPoint &VarnelPolyline::getPoint(std::size_t index) const {
    static const VarnelPoint origin{KzVector3D()};
    return index < points_.size() ? *points_[index] : origin;
}
