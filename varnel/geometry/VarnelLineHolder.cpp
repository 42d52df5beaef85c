#include "varnel/geometry/VarnelLineHolder.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

#include "varnel/contracts/Lists.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/geometry/VarnelPoint.h"

namespace {

const VarnelPoint &originPoint() {
    static const VarnelPoint origin{KzVector3D()};
    return origin;
}

}  // namespace

VarnelLineHolder::VarnelLineHolder() noexcept = default;

VarnelLineHolder::VarnelLineHolder(const VarnelLineHolder &other) noexcept
    : VarnelObject(other), Shared(other) {}

VarnelLineHolder::~VarnelLineHolder() {
    VarnelLineHolder::reset();
}

VarnelLine *VarnelLineHolder::getLine(std::size_t index) const {
    return index < lines_.size() ? lines_[index] : nullptr;
}

/// The point, or null if there is none.
const VarnelPoint *VarnelLineHolder::findPoint(std::size_t index) const {
    if (lines_.empty()) return nullptr;
    return index < lines_.size() ? lines_[index]->getStart() : lines_.back()->getEnd();
}

const VarnelPoint &VarnelLineHolder::getPoint(std::size_t index) const {
    const VarnelPoint *point = findPoint(index);
    return point ? *point : originPoint();
}

const KzVector3D &VarnelLineHolder::getCoor(std::size_t index) const {
    return getPoint(index).getCoor();
}

void VarnelLineHolder::setCoor(std::size_t index, const KzVector3D &coordinates) const {
    const std::size_t n = lines_.size();
    if (n == 0) return;
    if (index < n) {
        lines_[index]->setStart(coordinates);
    } else {
        // The 3 is meant: it reaches the last line of one, two and four; of three lines it reaches the first.
        lines_[(index + 3) % n]->setEnd(coordinates);
    }
}

std::pair<KzVector3D, KzVector3D> VarnelLineHolder::getEdgeCoor(std::size_t index) const {
    const VarnelLine *line = getLine(index);
    if (!line) return {};
    return {line->getStartVec(), line->getEndVec()};
}

void VarnelLineHolder::addLine(VarnelLine *line) {
    insertLine(lines_.size(), line);
}

void VarnelLineHolder::insertLine(std::size_t index, VarnelLine *line) {
    if (!line) return;
    const varnel::Held<VarnelLine> held(line);  // so that a failing insert frees the line
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(index), line);
    line->acquire();
}

void VarnelLineHolder::setFirstVertex(const KzVector3D &coordinates) {
    firstVertex_ = std::make_unique<KzVector3D>(coordinates);
}

void VarnelLineHolder::setChanged(bool changed) {
    for (VarnelLine *line : lines_) line->setChanged(changed);
}

void VarnelLineHolder::setNumParts(std::size_t index, int parts) const {
    if (VarnelLine *line = getLine(index)) line->setNumberOfParts(parts);
}

double VarnelLineHolder::getLength() const {
    double length = 0.0;
    for (const VarnelLine *line : lines_) length += line->getLength();
    return length;
}

void VarnelLineHolder::getMinMax(KzVector3D *min, KzVector3D *max) const {
    if (!min || !max) return;
    constexpr double m = std::numeric_limits<double>::max();
    min->setXYZ(m, m, m);
    max->setXYZ(-m, -m, -m);
    const std::size_t points = countPoints();
    for (std::size_t i = 0; i < points; ++i) {
        if (const VarnelPoint *point = findPoint(i)) point->getCoor().updateMinMax(*min, *max);
    }
}

bool VarnelLineHolder::isPlanar() const {
    const std::size_t n = lines_.size();
    if (n < 4) return true;
    const KzVector3D origin = getCoor(0);
    const KzVector3D a = origin - getCoor(1);
    const KzVector3D c = a.crossProduct(origin - getCoor(2));
    KzMatrix44 frame = KzMatrix44::getId();
    frame.setVector(0, a);
    frame.setVector(1, a.crossProduct(c));
    frame.setVector(2, c);
    frame.setVector(3, origin);
    // Up to the number of lines: the last point of an open chain is left out.
    for (std::size_t i = 3; i < n; ++i) {
        if (!getPoint(i).isInPlane(frame)) return false;
    }
    return true;
}

KzMatrix44 VarnelLineHolder::getBase() const {
    KzMatrix44 base = KzMatrix44::getId();
    const std::size_t n = lines_.size();
    if (n <= 2) return base;
    const KzVector3D origin = getCoor(0);
    KzVector3D d = getCoor(1) - origin;
    KzVector3D v;
    std::size_t i = 2;
    do {
        v = getCoor(i++) - origin;
    } while (i < n && d.isCollinear(v));
    d.normalize();
    const KzVector3D z = d.crossProduct(v.normalize()).normalize();
    base.setVector(0, d);
    base.setVector(1, z.crossProduct(d));
    base.setVector(2, z);
    base.setVector(3, origin);
    return base;
}

KzVector3D VarnelLineHolder::getNormal() const {
    const KzVector3D origin = getCoor(0);
    const KzVector3D d = getCoor(1) - origin;
    KzVector3D v;
    for (std::size_t i = 2; i < lines_.size(); ++i) {
        v = getCoor(i) - origin;
        if (!d.isCollinear(v, 0.01)) break;
    }
    // The operands are meant this way round: the normal runs against the z axis of getBase().
    return v.crossProduct(d).normalize();
}

int VarnelLineHolder::operator==(const VarnelLineHolder &other) const {
    if (this == &other) return 1;
    const std::size_t n = lines_.size();
    if (n != other.lines_.size()) return 0;
    // Only the first line of the other chain that matches is tried as the beginning.
    std::size_t offset = 0;
    while (offset < n && !(*lines_[0] == *other.lines_[offset])) ++offset;
    if (offset == n) return 0;
    if (n < 2) return 1;
    const bool forward = !(*lines_[1] != *other.lines_[(offset + 1) % n]);
    return forward ? continuesForward(other, offset) : continuesBackward(other, offset);
}

bool VarnelLineHolder::continuesForward(const VarnelLineHolder &other, std::size_t offset) const {
    const std::size_t n = lines_.size();
    for (std::size_t i = 2; i < n; ++i) {
        if (*lines_[i] != *other.lines_[(i + offset) % n]) return false;
    }
    return true;
}

bool VarnelLineHolder::continuesBackward(const VarnelLineHolder &other, std::size_t offset) const {
    const std::size_t n = lines_.size();
    for (std::size_t i = 1; i < n; ++i) {
        if (*lines_[i] != *other.lines_[(n - i + offset) % n]) return false;
    }
    return true;
}

void VarnelLineHolder::updateMinMax(KzVector3D *min, KzVector3D *max, const KzMatrix44 &matrix) const {
    const std::size_t points = countPoints();
    for (std::size_t i = 0; i < points; ++i) {
        if (const VarnelPoint *point = findPoint(i)) point->updateMinMax(min, max, matrix);
    }
}

int VarnelLineHolder::getVisited(VarnelObjectVisitor *) {
    return 0;
}

bool VarnelLineHolder::isInPlane(const KzMatrix44 &plane) const {
    const std::size_t points = countPoints();
    for (std::size_t i = 0; i < points; ++i) {
        const VarnelPoint *point = findPoint(i);
        // Not the point's own check: 0.01 is still inside here.
        if (point && std::fabs(plane.transform(point->getCoor()).getZ()) > 0.01) return false;
    }
    return true;
}

bool VarnelLineHolder::touchesPlane(const KzMatrix44 &plane) const {
    const std::size_t points = countPoints();
    for (std::size_t i = 0; i < points; ++i) {
        const VarnelPoint *point = findPoint(i);
        if (point && point->isInPlane(plane)) return true;
    }
    return false;
}

bool VarnelLineHolder::getChanged() const {
    return std::any_of(lines_.begin(), lines_.end(),
                       [](const VarnelLine *line) { return line->getChanged(); });
}

void VarnelLineHolder::reset() {
    firstVertex_.reset();
    varnel::releaseAll(lines_);
}

bool VarnelLineHolder::hasZeroLine() const {
    // The first line speaks for all: the lengths of the others do not count.
    if (lines_.empty()) return false;
    if (KzVector3D::getTolerance() > lines_.front()->getLength()) return true;
    if (lines_.size() < 4) return false;
    std::vector<const VarnelPoint *> ends;
    ends.reserve(lines_.size());
    for (const VarnelLine *line : lines_) ends.push_back(line->getEnd());
    std::sort(ends.begin(), ends.end(), std::less<const VarnelPoint *>());
    return std::adjacent_find(ends.begin(), ends.end()) != ends.end();
}

void VarnelLineHolder::copy(const VarnelLineHolder &other) {
    if (this == &other) return;
    const std::size_t points = other.countPoints();
    reset();
    for (std::size_t i = 0; i < points; ++i) addVertex(other.getCoor(i));
}

std::vector<KzVector3D> VarnelLineHolder::starts() const {
    std::vector<KzVector3D> places;
    places.reserve(lines_.size());
    for (const VarnelLine *line : lines_) places.push_back(line->getStartVec());
    return places;
}
