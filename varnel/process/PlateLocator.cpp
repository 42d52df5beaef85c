#include "varnel/process/PlateLocator.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <typeinfo>

#include "varnel/geometry/VarnelArea.h"
#include "varnel/geometry/VarnelAreaPolygon.h"
#include "varnel/geometry/VarnelAreaRectangle.h"
#include "varnel/members/VarnelPlate.h"

namespace varnel {

namespace {

constexpr double reach = 0.0011;  // an outline accepts points up to 0.001 outside of it
constexpr double farthest = 1e9;  // corners beyond it let rounding reach farther than that
constexpr std::size_t leafSize = 4;
constexpr std::size_t nowhere = std::numeric_limits<std::size_t>::max();

/// Only of the house's own outlines is it known that they contain nothing outside of their box.
bool isKnownKind(const VarnelArea &area) {
    const std::type_info &kind = typeid(area);
    return kind == typeid(VarnelArea) || kind == typeid(VarnelAreaPolygon) ||
           kind == typeid(VarnelAreaRectangle);
}

/// In this form false for NaN.
bool isNear(double coordinate) {
    return std::fabs(coordinate) <= farthest;
}

}  // namespace

PlateLocator::PlateLocator(const std::list<VarnelPlate *> &plates) {
    std::size_t position = 0;
    for (VarnelPlate *plate : plates) {
        const VarnelArea *area = plate ? plate->getGeo() : nullptr;
        ++position;
        if (!area) continue;
        Entry entry{{}, position, plate};
        const bool bounded = isKnownKind(*area) && findBox(*area, entry.box);
        (bounded ? entries_ : unbounded_).push_back(entry);
    }
    if (!entries_.empty()) build(0, entries_.size());
}

/// False for corners that are not numbers or too far away: the outline may then contain places anywhere.
bool PlateLocator::findBox(const VarnelArea &area, Box &box) {
    const KzVector3D &first = area.getCoor(0);
    box = {first.getX() - reach, first.getY() - reach, first.getX() + reach, first.getY() + reach};
    for (const KzVector3D &corner : area.getCoordinatesOfPoints()) {
        if (!isNear(corner.getX()) || !isNear(corner.getY()) || !isNear(corner.getZ())) return false;
        box.minX = std::min(box.minX, corner.getX() - reach);
        box.minY = std::min(box.minY, corner.getY() - reach);
        box.maxX = std::max(box.maxX, corner.getX() + reach);
        box.maxY = std::max(box.maxY, corner.getY() + reach);
    }
    return true;
}

std::size_t PlateLocator::build(std::size_t first, std::size_t last) {
    const double infinity = std::numeric_limits<double>::infinity();
    Node node{{infinity, infinity, -infinity, -infinity}, first, last, nowhere, 0, 0};
    for (std::size_t i = first; i < last; ++i) {
        const Entry &entry = entries_[i];
        node.box.minX = std::min(node.box.minX, entry.box.minX);
        node.box.minY = std::min(node.box.minY, entry.box.minY);
        node.box.maxX = std::max(node.box.maxX, entry.box.maxX);
        node.box.maxY = std::max(node.box.maxY, entry.box.maxY);
        node.smallest = std::min(node.smallest, entry.position);
    }
    const std::size_t index = nodes_.size();
    nodes_.push_back(node);
    if (last - first <= leafSize) return index;
    const bool alongX = node.box.maxX - node.box.minX >= node.box.maxY - node.box.minY;
    const std::size_t middle = first + (last - first) / 2;
    const auto begin = entries_.begin();
    std::nth_element(begin + static_cast<std::ptrdiff_t>(first), begin + static_cast<std::ptrdiff_t>(middle),
                     begin + static_cast<std::ptrdiff_t>(last), [alongX](const Entry &a, const Entry &b) {
                         return alongX ? a.box.minX + a.box.maxX < b.box.minX + b.box.maxX
                                       : a.box.minY + a.box.maxY < b.box.minY + b.box.maxY;
                     });
    const std::size_t left = build(first, middle);  // halves each time: the depth is logarithmic
    const std::size_t right = build(middle, last);
    nodes_[index].left = left;
    nodes_[index].right = right;
    return index;
}

VarnelPlate *PlateLocator::find(const KzVector3D &place) const {
    std::size_t best = nowhere;
    VarnelPlate *found = nullptr;
    const auto offer = [&](const Entry &entry) {
        if (entry.position < best && entry.plate->getGeo()->checkPointOn(place)) {
            best = entry.position;
            found = entry.plate;
        }
    };
    for (const Entry &entry : unbounded_) offer(entry);
    std::vector<std::size_t> waiting;
    if (!nodes_.empty()) waiting.push_back(0);
    while (!waiting.empty()) {
        const Node &node = nodes_[waiting.back()];
        waiting.pop_back();
        if (node.smallest >= best || !node.box.contains(place.getX(), place.getY())) continue;
        if (node.left != 0) {
            waiting.push_back(node.right);
            waiting.push_back(node.left);
            continue;
        }
        for (std::size_t i = node.first; i < node.last; ++i)
            if (entries_[i].box.contains(place.getX(), place.getY())) offer(entries_[i]);
    }
    return found;
}

}  // namespace varnel
