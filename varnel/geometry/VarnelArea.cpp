#include "varnel/geometry/VarnelArea.h"

#include <algorithm>
#include <cmath>

#include "varnel/contracts/KzMath.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/geometry/VarnelStraight.h"

namespace {

std::vector<KzVector3D> movedInto(const KzMatrix44 &base, std::vector<KzVector3D> points) {
    for (KzVector3D &point : points) point = base.transform(point);
    return points;
}

}  // namespace

VarnelArea::VarnelArea(const VarnelArea &other) : VarnelLineHolder(other) {
    copy(other);
}

KzVector3D VarnelArea::getCOG() const {
    const KzMatrix44 base = getBase();
    return base.transformBack(KzMath::polygonCentroid(movedInto(base, getCoordinatesOfPoints())));
}

std::vector<KzVector3D> VarnelArea::getCoordinatesOfPoints() const {
    std::vector<KzVector3D> coordinates;
    const std::size_t n = getNumLines();
    if (n == 0) return coordinates;
    coordinates.reserve(n + 1);
    for (std::size_t i = 0; i <= n; ++i) coordinates.push_back(getCoor(i));
    return coordinates;
}

bool VarnelArea::distance(const KzVector3D &point, const KzVector3D &direction, const KzMatrix44 &plane,
                          double &result) const {
    double best = KzMath::maxDouble;
    bool found = false;
    for (const VarnelLine *line : lines()) {
        double hit = 0.0;
        if (line->distance(point, direction, plane, hit) && std::fabs(best) > std::fabs(hit)) {
            best = hit;
            found = true;
        }
    }
    if (found) result = best;
    return found;
}

void VarnelArea::cycle(std::size_t steps) {
    const std::size_t n = getNumLines();
    if (n <= 1) return;
    std::rotate(lines().begin(), lines().begin() + static_cast<std::ptrdiff_t>(steps % n), lines().end());
}

void VarnelArea::swap() {
    const std::size_t n = getNumLines();
    // Half of the lines, rounded down: of an odd number the middle one is not turned.
    for (std::size_t i = 0; i < n / 2; ++i) {
        std::swap(lines()[i], lines()[n - 1 - i]);
        lines()[i]->swap();
        lines()[n - 1 - i]->swap();
    }
}

void VarnelArea::meltFirstAndLast() {
    if (lines().empty()) return;
    VarnelPoint *end = lines().back()->getEnd();
    const varnel::Held<VarnelPoint> formerStart(lines().front()->getStart());
    if (end && end != formerStart.get()) lines().front()->setP1(end);
}

void VarnelArea::addVertex(const KzVector3D &coordinates) {
    if (!firstVertex()) {
        setFirstVertex(coordinates);
        return;
    }
    const varnel::Held<VarnelPoint> vertex(new VarnelPoint(coordinates));
    const std::size_t n = getNumLines();
    if (n == 0) {
        addLine(new VarnelStraight(new VarnelPoint(*firstVertex()), vertex.get()));
    } else if (n == 1) {
        addLine(new VarnelStraight(*lines().front(), vertex.get()));
    }
    if (n < 2) {
        addLine(new VarnelStraight(vertex.get(), lines().front()->getStart()));
        return;
    }
    VarnelLine *closing = lines().back();
    insertLine(n - 1, new VarnelStraight(*lines()[n - 2], vertex.get()));
    // Shared with the line before it, unless the chain was put together line by line.
    const varnel::Held<VarnelPoint> formerStart(closing->getStart());
    closing->setP1(vertex.get());
}

bool VarnelArea::isDegenerated() const {
    const double tolerance = KzVector3D::getTolerance();
    return tolerance * tolerance > getArea() || hasZeroLine();
}

VarnelArea &VarnelArea::operator=(const VarnelArea &other) {
    copy(other);
    return *this;
}

double VarnelArea::getArea() const {
    return getNumLines() < 2 ? 0.0 : KzMath::polygonArea(movedInto(getBase(), starts()));
}

bool VarnelArea::checkPointOn(const KzVector3D &place) const {
    return KzMath::pointInPolygon2d(place, starts(), 0.001) != 0;
}

bool VarnelArea::checkRightHandedXY() const {
    return KzMath::polygonAreaXYZ(starts(), KzVector3D::getGlobalZ()) > 0.0;
}
