#ifndef VARNEL_GEOMETRY_VARNELAREAPOLYGON_H
#define VARNEL_GEOMETRY_VARNELAREAPOLYGON_H

#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/geometry/VarnelArea.h"

/// An area built from a list of vertices. Its clone is a plain area.
class VARNEL_EXPORT VarnelAreaPolygon : public VarnelArea {
  public:
    VarnelAreaPolygon() noexcept = default;
    explicit VarnelAreaPolygon(const std::vector<KzVector3D> &points);
    VarnelAreaPolygon(const VarnelAreaPolygon &other) = default;
    VarnelAreaPolygon &operator=(const VarnelAreaPolygon &other);
    ~VarnelAreaPolygon() override = default;

    using VarnelArea::operator=;
};

#endif
