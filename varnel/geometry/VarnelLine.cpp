#include "varnel/geometry/VarnelLine.h"

#include <algorithm>
#include <cstddef>

namespace {

constexpr double stationTolerance = 0.01;

}  // namespace

struct VarnelLine::Parts {
    int number = 10;
    std::vector<double> xis;  // ascending
};

VarnelLine::VarnelLine() noexcept = default;

VarnelLine::~VarnelLine() = default;

int VarnelLine::getNumberOfParts() const {
    if (!parts_) return 0;
    // One station alone divides nothing: it hides the stored number and gives 0 parts.
    return parts_->xis.empty() ? parts_->number : static_cast<int>(parts_->xis.size()) - 1;
}

void VarnelLine::setNumberOfParts(int parts) {
    giveParts().number = parts;
}

void VarnelLine::addXi(double xi) {
    std::vector<double> &xis = giveParts().xis;
    const auto reaches = [xi](double station) { return station + stationTolerance > xi; };
    // Stations mostly come in ascending order: one behind the last is behind all.
    const auto next = !xis.empty() && xis.back() + stationTolerance <= xi
                          ? xis.end()
                          : std::find_if(xis.begin(), xis.end(), reaches);
    // The first of near stations stays, whichever of them is the rounder number.
    if (next != xis.end() && xi > *next - stationTolerance) return;
    xis.insert(next, xi);
}

void VarnelLine::clearXis() {
    if (parts_) parts_->xis.clear();
}

bool VarnelLine::hasXis() const {
    return parts_ && !parts_->xis.empty();
}

double VarnelLine::xiToPosition(int index) const {
    if (!parts_ || index < 0 || static_cast<std::size_t>(index) >= parts_->xis.size()) return 0.0;
    return parts_->xis[static_cast<std::size_t>(index)];
}

void VarnelLine::copy(const VarnelLine &other) {
    if (other.parts_) {
        giveParts() = *other.parts_;
    } else {
        parts_.reset();
    }
}

int VarnelLine::getVisited(VarnelObjectVisitor *) {
    return 0;
}

VarnelLine &VarnelLine::operator=(const VarnelLine &other) {
    copy(other);
    return *this;
}

bool VarnelLine::isConnected(const VarnelLine &other) const {
    const KzVector3D start = getStartVec();
    const KzVector3D end = getEndVec();
    const KzVector3D otherStart = other.getStartVec();
    const KzVector3D otherEnd = other.getEndVec();
    return start == otherStart || start == otherEnd || end == otherStart || end == otherEnd;
}

VarnelLine::Parts &VarnelLine::giveParts() {
    if (!parts_) parts_ = std::make_unique<Parts>();
    return *parts_;
}
