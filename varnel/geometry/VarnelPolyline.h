#ifndef VARNEL_GEOMETRY_VARNELPOLYLINE_H
#define VARNEL_GEOMETRY_VARNELPOLYLINE_H

#include <cstddef>
#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/Shared.h"
#include "varnel/geometry/VarnelPoint.h"

/// A plain list of points. Copies share their points; the last one frees them.
class VARNEL_EXPORT VarnelPolyline {
  public:
    /// Appends a new point.
    void add(const KzVector3D &coordinates);
    /// One less than there are points, 0 for fewer than two.
    int numberOfLines() const;
    /// A point at the origin stands for an index past the end.
    const KzVector3D &getVertex(std::size_t index) const { return getPoint(index).getCoor(); }
    const VarnelPoint &getPoint(std::size_t index) const;

  private:
    std::vector<varnel::Held<VarnelPoint>> points_;
};

#endif
