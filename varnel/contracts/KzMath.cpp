#include "varnel/contracts/KzMath.h"

#include <algorithm>

#include "varnel/contracts/Rotation.h"

namespace {

using Points = std::vector<KzVector3D>;

const KzVector3D &following(const Points &ring, std::size_t i) {
    return ring[i + 1 < ring.size() ? i + 1 : 0];
}

/// Twice the area of a ring as a vector along its normal. Relative to the first point, so that a building
/// far from the origin loses no digits.
KzVector3D doubleArea(const Points &ring) {
    KzVector3D sum;
    for (std::size_t i = 1; i + 1 < ring.size(); ++i)
        sum += (ring[i] - ring[0]).crossProduct(ring[i + 1] - ring[0]);
    return sum;
}

double planarDistance(const KzVector3D &point, const KzVector3D &a, const KzVector3D &b) {
    const KzVector3D edge(b.getX() - a.getX(), b.getY() - a.getY(), 0.0);
    const KzVector3D radius(point.getX() - a.getX(), point.getY() - a.getY(), 0.0);
    const double square = edge.dotProduct(edge);
    const double foot = square > 0.0 ? std::clamp(radius.dotProduct(edge) / square, 0.0, 1.0) : 0.0;
    return radius.distanceTo(edge * foot);
}

/// Whether a ray from the point along x crosses the edge. Half-open, so that a vertex counts once.
bool isCrossed(const KzVector3D &point, const KzVector3D &a, const KzVector3D &b) {
    if ((a.getY() > point.getY()) == (b.getY() > point.getY())) return false;
    const double share = (point.getY() - a.getY()) / (b.getY() - a.getY());
    return point.getX() < a.getX() + share * (b.getX() - a.getX());
}

/// Sums up lengths and the moments of them, relative to the first point.
class ChainCentroid {
  public:
    explicit ChainCentroid(const KzVector3D &first) : first_(first) {}

    void add(const KzVector3D &a, const KzVector3D &b) {
        const double length = a.distanceTo(b);
        length_ += length;
        moment_ += ((a - first_) + (b - first_)) * (0.5 * length);
    }
    double length() const { return length_; }
    KzVector3D centroid() const { return length_ > 0.0 ? first_ + moment_ * (1.0 / length_) : first_; }

  private:
    KzVector3D first_;
    KzVector3D moment_;
    double length_ = 0.0;
};

KzVector3D perpendicularTo(KzVector3D radius) {
    radius.normalize();
    const auto perpendicularPart = [&radius](const KzVector3D &v) {
        return v - radius * v.dotProduct(radius);
    };
    const KzVector3D ofZ = perpendicularPart(KzVector3D::getGlobalZ());
    return ofZ.length() > 1e-9 ? ofZ : perpendicularPart(KzVector3D(1.0, 0.0, 0.0));
}

}  // namespace

double KzMath::getPhi(const KzVector3D &a, const KzVector3D &b, const KzVector3D &centre) noexcept {
    const KzVector3D u = a - centre;
    const KzVector3D w = b - centre;
    return std::atan2(u.crossProduct(w).length(), u.dotProduct(w));
}

KzVector3D KzMath::getCoorOnStraight(const KzVector3D &a, const KzVector3D &b, double station) noexcept {
    if (station == 1.0) return b;  // without the rounding of a + (b - a)
    return a + (b - a) * station;
}

int KzMath::lineIntersection3D(const KzVector3D &a1, const KzVector3D &a2, const KzVector3D &b1,
                               const KzVector3D &b2, double &ta, double &tb, double eps) noexcept {
    const KzVector3D u = a2 - a1;
    const KzVector3D v = b2 - b1;
    const KzVector3D w = b1 - a1;
    const KzVector3D normal = u.crossProduct(v);
    const double size = normal.length();
    const bool inclined = size > eps * u.length() * v.length();
    if (!inclined) return 0;
    const double gap = std::fabs(w.dotProduct(normal)) / size;
    const bool meet = gap <= eps * std::max({1.0, u.length(), v.length(), w.length()});
    if (!meet) return 0;
    ta = w.crossProduct(v).dotProduct(normal) / size / size;
    tb = w.crossProduct(u).dotProduct(normal) / size / size;
    return 1;
}

int KzMath::pointInPolygon2d(const KzVector3D &point, const std::vector<KzVector3D> &polygon, double tol) {
    const double reach = tol * (1.0 + 1e-9);  // a point at exactly tol counts, whatever the rounding
    bool inside = false;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const KzVector3D &a = polygon[i];
        const KzVector3D &b = following(polygon, i);
        if (planarDistance(point, a, b) <= reach) return 2;
        if (isCrossed(point, a, b)) inside = !inside;
    }
    return inside ? 1 : 0;
}

double KzMath::polygonArea(const std::vector<KzVector3D> &polygon) {
    return 0.5 * std::fabs(doubleArea(polygon).getZ());
}

double KzMath::polygonAreaXYZ(const std::vector<KzVector3D> &polygon, const KzVector3D &normal) {
    return 0.5 * doubleArea(polygon).dotProduct(KzVector3D(normal).normalize());
}

KzVector3D KzMath::polygonCentroid(const std::vector<KzVector3D> &polygon) {
    if (polygon.empty()) return KzVector3D::getOrigin();
    const KzVector3D first = polygon.front();
    ChainCentroid edges(first);
    for (std::size_t i = 0; i < polygon.size(); ++i) edges.add(polygon[i], following(polygon, i));
    const KzVector3D area = doubleArea(polygon);
    const double size = area.length();
    const bool hasArea = size > 1e-12 * edges.length() * edges.length();
    if (!hasArea) return edges.centroid();
    // Each triangle from the first point, weighted by its signed share of the area.
    const KzVector3D normal = area * (1.0 / size);
    KzVector3D moment;
    for (std::size_t i = 1; i + 1 < polygon.size(); ++i) {
        const KzVector3D p = polygon[i] - first;
        const KzVector3D q = polygon[i + 1] - first;
        moment += (p + q) * p.crossProduct(q).dotProduct(normal);
    }
    return first + moment * (1.0 / (3.0 * size));
}

KzVector3D KzMath::polylineCentroid(const KzVector3D *points, std::size_t count) {
    if (!points || count == 0) return KzVector3D::getOrigin();
    ChainCentroid chain(points[0]);
    for (std::size_t i = 1; i < count; ++i) chain.add(points[i - 1], points[i]);
    return chain.centroid();
}

void KzMath::rotatePoints(std::vector<KzVector3D> &points, const KzVector3D &axis, const KzVector3D &centre,
                          double degrees) {
    if (points.empty()) return;
    KzVector3D unit = axis.isNull() ? perpendicularTo(points.front() - centre) : axis;
    // Left-handed is meant: an arc steps from its start to its end by negative degrees.
    const varnel::Rotation rotation(unit.normalize(), -degrees * Pi_180);
    for (KzVector3D &point : points) point = centre + rotation.apply(point - centre);
}
