#include "varnel/model/PointList.h"

#include <limits>
#include <memory>

#include "varnel/contracts/Lists.h"
#include "varnel/geometry/VarnelPoint.h"

namespace varnel {

namespace {

constexpr std::size_t shortLength = 16;  // up to here a walk is as fast

}  // namespace

PointList::PointList(const PointList &other) : points_(other.points_) {
    acquireAll(points_);
}

PointList &PointList::operator=(const PointList &other) {
    PointList copied(other);
    swap(copied);
    return *this;
}

void PointList::clear() {
    forgetTable();
    tabulable_ = true;
    releaseAll(points_);
}

void PointList::swap(PointList &other) noexcept {
    forgetTable();
    other.forgetTable();
    points_.swap(other.points_);
    tabulable_ = other.tabulable_ = true;
}

VarnelPoint *PointList::find(const KzVector3D &coordinates) const {
    return tabulate() ? table_.find(coordinates) : findByWalk(coordinates);
}

VarnelPoint *PointList::give(const KzVector3D &coordinates) {
    if (VarnelPoint *found = find(coordinates)) return found;
    auto point = std::make_unique<VarnelPoint>(coordinates);
    const std::size_t number = points_.size() + 1;
    constexpr int highest = std::numeric_limits<int>::max();
    point->setNumber(number < static_cast<std::size_t>(highest) ? static_cast<int>(number) : highest);
    points_.push_back(point.get());
    acquire(point.get());
    if (tabulated_) {
        watch_.watch(*point);
        table_.insert(coordinates, point.get());
    }
    return point.release();
}

/// Whether the table is there and up to date, made now if that pays.
bool PointList::tabulate() const {
    if (tabulated_ && !watch_.hasMoved()) return true;
    forgetTable();
    if (!tabulable_ || points_.size() <= shortLength) return false;
    table_.reserve(points_.size() + 1);
    tabulated_ = true;
    for (VarnelPoint *point : points_) {
        if (!watch_.watch(*point)) {
            forgetTable();
            tabulable_ = false;
            return false;
        }
        table_.insert(point->getCoor(), point);
    }
    return true;
}

void PointList::forgetTable() const {
    if (!tabulated_) return;
    for (const VarnelPoint *point : points_) watch_.unwatch(*point);
    watch_.reset();
    table_.clear();
    tabulated_ = false;
}

VarnelPoint *PointList::findByWalk(const KzVector3D &coordinates) const {
    for (VarnelPoint *point : points_)
        if (point->getCoor() == coordinates) return point;
    return nullptr;
}

}  // namespace varnel
