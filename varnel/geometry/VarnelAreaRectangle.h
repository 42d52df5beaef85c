#ifndef VARNEL_GEOMETRY_VARNELAREARECTANGLE_H
#define VARNEL_GEOMETRY_VARNELAREARECTANGLE_H

#include "varnel/contracts/Export.h"
#include "varnel/geometry/VarnelArea.h"

/// An area of four vertices built from an origin, two sides and a turning angle about global z. The
/// parameters are read back from the vertices; nothing keeps it rectangular. Its clone is a plain area.
class VARNEL_EXPORT VarnelAreaRectangle : public VarnelArea {
  public:
    /// Without vertices.
    VarnelAreaRectangle() noexcept = default;
    VarnelAreaRectangle(const KzVector3D &corner0, const KzVector3D &corner1, const KzVector3D &corner2,
                        const KzVector3D &corner3);
    /// Sides in m, angle in rad.
    VarnelAreaRectangle(const KzVector3D &origin, double width, double height, double angle);
    VarnelAreaRectangle(const VarnelAreaRectangle &other) = default;
    VarnelAreaRectangle &operator=(const VarnelAreaRectangle &other);
    ~VarnelAreaRectangle() override = default;

    using VarnelArea::operator=;

    /// Vertex 0, the distances of vertices 1 and 3 from it, and the direction of vertex 1 in the x-y plane;
    /// zeros without vertices.
    void getAreaRectangle(KzVector3D &origin, double &width, double &height, double &angle) const;

  private:
    void setAreaRectangle(const KzVector3D &origin, double width, double height, double angle);
};

#endif
