#ifndef VARNEL_CONTRACTS_SYSBASE_POINTSUPPORTRESULT_H
#define VARNEL_CONTRACTS_SYSBASE_POINTSUPPORTRESULT_H

#include "varnel/contracts/Export.h"

namespace SysBase {

/// The six reactions of a point support: forces in kN, moments in kNm.
class VARNEL_EXPORT PointSupportResult {
  public:
    PointSupportResult() = default;
    PointSupportResult(double fx, double fy, double fz, double mx, double my, double mz)
        : fx_(fx), fy_(fy), fz_(fz), mx_(mx), my_(my), mz_(mz) {}
    PointSupportResult(const PointSupportResult &) = default;
    PointSupportResult &operator=(const PointSupportResult &) = default;
    virtual ~PointSupportResult() = default;

    double getFx() const { return fx_; }
    double getFy() const { return fy_; }
    double getFz() const { return fz_; }
    double getMx() const { return mx_; }
    double getMy() const { return my_; }
    double getMz() const { return mz_; }
    void setForce(double fx, double fy, double fz) {
        fx_ = fx;
        fy_ = fy;
        fz_ = fz;
    }
    void setMoment(double mx, double my, double mz) {
        mx_ = mx;
        my_ = my;
        mz_ = mz;
    }

  private:
    double fx_ = 0.0;
    double fy_ = 0.0;
    double fz_ = 0.0;
    double mx_ = 0.0;
    double my_ = 0.0;
    double mz_ = 0.0;
};

}  // namespace SysBase

#endif
