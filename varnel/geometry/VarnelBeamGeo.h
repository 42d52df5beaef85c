#ifndef VARNEL_GEOMETRY_VARNELBEAMGEO_H
#define VARNEL_GEOMETRY_VARNELBEAMGEO_H

#include <cstddef>
#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/geometry/VarnelLineHolder.h"

/// An open chain of lines: the axis of a beam. n lines have n + 1 points.
class VARNEL_EXPORT VarnelBeamGeo : public VarnelLineHolder {
  public:
    VarnelBeamGeo() noexcept = default;
    VarnelBeamGeo(const VarnelBeamGeo &other);
    VarnelBeamGeo &operator=(const VarnelBeamGeo &other);
    ~VarnelBeamGeo() override = default;

    /// All points from the start to the end; empty without lines.
    std::vector<KzVector3D> getCoordinatesOfPoints() const;

    void addVertex(const KzVector3D &coordinates) override;
    /// One more than there are lines, also if there are none.
    std::size_t getNumPoints() const override { return getNumLines() + 1; }
    /// True for a chain shorter than the squared tolerance of KzVector3D or with a zero line.
    bool isDegenerated() const override;
    VarnelLineHolder *clone() const override { return new VarnelBeamGeo(*this); }
    /// Centre of gravity of the chain without its last point, so the start for a single line.
    virtual KzVector3D getCOG() const;
};

#endif
