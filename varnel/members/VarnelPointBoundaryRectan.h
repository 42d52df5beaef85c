#ifndef VARNEL_MEMBERS_VARNELPOINTBOUNDARYRECTAN_H
#define VARNEL_MEMBERS_VARNELPOINTBOUNDARYRECTAN_H

#include "varnel/members/VarnelPointBoundary.h"

/// A rectangular column.
class VARNEL_EXPORT VarnelPointBoundaryRectan : public VarnelPointBoundary {
  public:
    VarnelPointBoundaryRectan(const KzVector3D &location, int dof, double b, double d)
        : VarnelPointBoundary(location, dof, nullptr), b_(b), d_(d) {}

    /// Width along the local x axis and depth along the local y axis (m); mark no change.
    double getB() const { return b_; }
    void setB(double b) { b_ = b; }
    double getD() const { return d_; }
    void setD(double d) { d_ = d; }

    using VarnelPointBoundary::getVisited;
    void getVisited(VarnelPointBoundaryVisitor *visitor) override;

  private:
    double b_ = 0.25;
    double d_ = 0.25;
};

#endif
