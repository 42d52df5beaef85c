#ifndef VARNEL_RESULTS_VARNELRESULTSECTIONLOCATION_H
#define VARNEL_RESULTS_VARNELRESULTSECTIONLOCATION_H

#include "varnel/contracts/Export.h"
#include "varnel/contracts/Shared.h"

/// One sampled point of a result section; hosts derive from it to keep their results there.
class VARNEL_EXPORT VarnelResultSectionLocation : public varnel::Shared {
  public:
    explicit VarnelResultSectionLocation(double xi) : xi_(xi) {}
    VarnelResultSectionLocation(const VarnelResultSectionLocation &) = default;
    VarnelResultSectionLocation &operator=(const VarnelResultSectionLocation &) = default;
    virtual ~VarnelResultSectionLocation() = default;

    /// Station along the section.
    double getXi() const { return xi_; }
    void setXi(double xi) { xi_ = xi; }

  private:
    double xi_;
};

#endif
