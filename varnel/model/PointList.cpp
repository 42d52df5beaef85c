#include "varnel/model/PointList.h"

#include <algorithm>
#include <limits>
#include <memory>

#include "varnel/contracts/CoordinateHash.h"
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
    expected_ = 0;
    releaseAll(points_);
}

void PointList::swap(PointList &other) noexcept {
    forgetTable();
    other.forgetTable();
    points_.swap(other.points_);
    tabulable_ = other.tabulable_ = true;
}

VarnelPoint *PointList::find(const KzVector3D &coordinates) const {
    if (!tabulate()) return findByWalk(coordinates);
    return slotOf(coordinates, CoordinateHash()(coordinates)).point;
}

VarnelPoint *PointList::give(const KzVector3D &coordinates) {
    if (!tabulate()) {
        VarnelPoint *found = findByWalk(coordinates);
        return found ? found : append(coordinates);
    }
    const std::size_t hash = CoordinateHash()(coordinates);
    if (VarnelPoint *found = slotOf(coordinates, hash).point) return found;
    VarnelPoint *point = append(coordinates);
    enter(*point, hash);
    return point;
}

VarnelPoint *PointList::findToNumber(int number) const {
    if (!tabulate()) {
        for (VarnelPoint *point : points_)
            if (point->getNumber() == number) return point;
        return nullptr;
    }
    if (watch_.hasNewNumbers()) numbers_.clear();
    watch_.forgetNumbers();
    if (numbers_.empty())
        for (VarnelPoint *point : points_) numbers_.emplace(point->getNumber(), point);
    const auto found = numbers_.find(number);
    return found == numbers_.end() ? nullptr : found->second;
}

VarnelPoint *PointList::append(const KzVector3D &coordinates) {
    auto point = std::make_unique<VarnelPoint>(coordinates);
    const std::size_t number = points_.size() + 1;
    constexpr int highest = std::numeric_limits<int>::max();
    point->setNumber(number < static_cast<std::size_t>(highest) ? static_cast<int>(number) : highest);
    points_.push_back(point.get());
    acquire(point.get());
    if (!numbers_.empty()) numbers_.emplace(point->getNumber(), point.get());
    return point.release();
}

/// Whether the table is there and up to date, made now if that pays.
bool PointList::tabulate() const {
    if (!table_.empty() && !watch_.hasMoved()) return true;
    forgetTable();
    if (!tabulable_ || points_.size() <= shortLength) return false;
    reserve(std::max(points_.size() + 1, expected_));
    for (VarnelPoint *point : points_) {
        if (!watch_.watch(*point)) {
            forgetTable();
            tabulable_ = false;
            return false;
        }
        enter(*point, CoordinateHash()(point->getCoor()));
    }
    return true;
}

void PointList::forgetTable() const {
    if (table_.empty()) return;
    for (const VarnelPoint *point : points_) watch_.unwatch(*point);
    watch_.reset();
    table_ = std::vector<Slot>();
    numbers_.clear();
    used_ = 0;
}

/// Makes the table large enough and moves the points into the new one.
void PointList::reserve(std::size_t count) const {
    std::size_t length = 32;
    while (2 * length < 3 * count) length *= 2;
    if (length <= table_.size()) return;
    std::vector<Slot> former(length);
    former.swap(table_);
    const std::size_t mask = length - 1;
    for (const Slot &slot : former) {
        if (!slot.point) continue;
        std::size_t place = slot.hash & mask;
        while (table_[place].point) place = (place + 1) & mask;
        table_[place] = slot;
    }
}

/// The slot of the point at these coordinates, or the free one where it belongs.
PointList::Slot &PointList::slotOf(const KzVector3D &coordinates, std::size_t hash) const {
    const std::size_t mask = table_.size() - 1;
    std::size_t place = hash & mask;
    while (const VarnelPoint *point = table_[place].point) {
        if (table_[place].hash == hash && point->getCoor() == coordinates) break;
        place = (place + 1) & mask;
    }
    return table_[place];
}

/// An earlier point at the same place stays the one that is found; a place that is not a number is never
/// found.
void PointList::enter(VarnelPoint &point, std::size_t hash) const {
    watch_.watch(point);
    const KzVector3D &coordinates = point.getCoor();
    if (coordinates != coordinates) return;
    reserve(used_ + 1);
    Slot &slot = slotOf(coordinates, hash);
    if (slot.point) return;
    slot = {&point, hash};
    ++used_;
}

VarnelPoint *PointList::findByWalk(const KzVector3D &coordinates) const {
    for (VarnelPoint *point : points_)
        if (point->getCoor() == coordinates) return point;
    return nullptr;
}

}  // namespace varnel
