#ifndef VARNEL_RESULTS_VARNELLINERESULTDATA_H
#define VARNEL_RESULTS_VARNELLINERESULTDATA_H

#include "varnel/contracts/Export.h"

/// Envelope of the reactions at one place of a line support: a force in kN/m, two moments in kNm/m. Each
/// minimum begins above its maximum, so that the first real value replaces both.
class VARNEL_EXPORT VarnelLineResultData {
  public:
    double getMinFz() const { return minFz_; }
    void setMinFz(double fz) { minFz_ = fz; }
    double getMaxFz() const { return maxFz_; }
    void setMaxFz(double fz) { maxFz_ = fz; }
    double getMinMx() const { return minMx_; }
    void setMinMx(double mx) { minMx_ = mx; }
    double getMaxMx() const { return maxMx_; }
    void setMaxMx(double mx) { maxMx_ = mx; }
    double getMinMy() const { return minMy_; }
    void setMinMy(double my) { minMy_ = my; }
    double getMaxMy() const { return maxMy_; }
    void setMaxMy(double my) { maxMy_ = my; }
    /// Distance (m) from the start of the line.
    double getPos() const { return pos_; }
    void setPos(double pos) { pos_ = pos; }

  private:
    double minFz_ = 1e10;
    double maxFz_ = -1e10;
    double minMx_ = 1e10;
    double maxMx_ = -1e10;
    double minMy_ = 1e10;
    double maxMy_ = -1e10;
    double pos_ = 0.0;
};

#endif
