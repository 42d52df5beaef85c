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
constexpr std::size_t leafSize = 4;
constexpr std::size_t nowhere = std::numeric_limits<std::size_t>::max();

/// Only for the house's own outlines is it known that they contain nothing outside of their box.
bool isBoundedByItsBox(const VarnelArea &area) {
    const std::type_info &kind = typeid(area);
    return kind == typeid(VarnelArea) || kind == typeid(VarnelAreaPolygon) ||
           kind == typeid(VarnelAreaRectangle);
}

}  // namespace

PlateLocator::PlateLocator(const std::list<VarnelPlate *> &plates) {
    std::size_t position = 0;
    for (VarnelPlate *plate : plates) {
        const VarnelArea *area = plate ? plate->getGeo() : nullptr;
        ++position;
        if (!area) continue;
        KzVector3D min, max;
        area->getMinMax(&min, &max);
        const Box box{min.getX() - reach, min.getY() - reach, max.getX() + reach, max.getY() + reach};
        const bool finite = std::isfinite(box.minX) && std::isfinite(box.minY) && std::isfinite(box.maxX) &&
                            std::isfinite(box.maxY);
        const Entry entry{box, position, plate};
        (finite && isBoundedByItsBox(*area) ? entries_ : unbounded_).push_back(entry);
    }
    if (!entries_.empty()) build(0, entries_.size());
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
