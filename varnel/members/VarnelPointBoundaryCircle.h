#ifndef VARNEL_MEMBERS_VARNELPOINTBOUNDARYCIRCLE_H
#define VARNEL_MEMBERS_VARNELPOINTBOUNDARYCIRCLE_H

#include "varnel/members/VarnelPointBoundary.h"

/// A round column.
class VARNEL_EXPORT VarnelPointBoundaryCircle : public VarnelPointBoundary {
  public:
    VarnelPointBoundaryCircle(const KzVector3D &location, int dof, double d)
        : VarnelPointBoundary(location, dof, nullptr), d_(d) {}

    /// The diameter (m); marks no change.
    double getD() const { return d_; }
    void setD(double d) { d_ = d; }

    using VarnelPointBoundary::getVisited;
    void getVisited(VarnelPointBoundaryVisitor *visitor) override;

  private:
    double d_ = 0.25;
};

#endif
