#ifndef VARNEL_CONTRACTS_KZMATH_H
#define VARNEL_CONTRACTS_KZMATH_H

#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzVector3D.h"

/// Geometric mathematics: static operations and constants only. Angles in rad unless said otherwise.
class VARNEL_EXPORT KzMath {
  public:
    static constexpr double Pi = 3.14159265358979323846;
    /// Radians per degree.
    static constexpr double Pi_180 = Pi / 180.0;
    /// The largest finite double.
    static constexpr double maxDouble = std::numeric_limits<double>::max();

    /// The small number for `lineIntersection3D`.
    static constexpr double getEpsReal() noexcept { return 1e-9; }
    /// True for a magnitude below `eps`; false for NaN.
    static bool isFuzzyZero(double value, double eps) noexcept { return std::fabs(value) < eps; }

    /// Unsigned angle at `centre` from a to b, 0 to pi; 0 if a or b lies on the centre.
    static double getPhi(const KzVector3D &a, const KzVector3D &b, const KzVector3D &centre) noexcept;
    /// The point at a relative station of the straight from a (0) to b (1); stations beyond extrapolate.
    static KzVector3D getCoorOnStraight(const KzVector3D &a, const KzVector3D &b, double station) noexcept;
    /// Meeting point of two unlimited straights: 1 with the parameters `ta` on a1 to a2 and `tb` on b1 to
    /// b2 (0 and 1 at the given points), or 0 with both untouched for parallel and skew straights.
    static int lineIntersection3D(const KzVector3D &a1, const KzVector3D &a2, const KzVector3D &b1,
                                  const KzVector3D &b2, double &ta, double &tb, double eps) noexcept;

    /// Where a point lies in the x-y plane: 2 within `tol` of an edge, else 1 inside, else 0. The polygon
    /// is open: its first vertex is not repeated.
    static int pointInPolygon2d(const KzVector3D &point, const std::vector<KzVector3D> &polygon, double tol);
    /// Area in the x-y plane of an open polygon, never negative (m2).
    static double polygonArea(const std::vector<KzVector3D> &polygon);
    /// Area of an open polygon seen along `normal`, positive if it runs anticlockwise seen from the tip.
    static double polygonAreaXYZ(const std::vector<KzVector3D> &polygon, const KzVector3D &normal);
    /// Centre of gravity of a polygon's area; closed, though an open ring gives the same. Without area
    /// that of its edges, without length its first point, of nothing the origin.
    static KzVector3D polygonCentroid(const std::vector<KzVector3D> &polygon);
    /// Centre of gravity of an open chain; without length its first point, of nothing the origin.
    static KzVector3D polylineCentroid(const KzVector3D *points, std::size_t count);
    /// Turns all points in place about the axis through `centre`, left-handed for positive degrees. A null
    /// axis stands for some axis perpendicular to the radius of the first point.
    static void rotatePoints(std::vector<KzVector3D> &points, const KzVector3D &axis,
                             const KzVector3D &centre, double degrees);
};

#endif
