#ifndef VARNEL_MEMBERS_VARNELFOUNDEDPART_H
#define VARNEL_MEMBERS_VARNELFOUNDEDPART_H

#include "varnel/contracts/Export.h"
#include "varnel/contracts/Shared.h"

namespace Found {
class Foundation;
}

/// A stretch of a beam on a foundation that varies from its start to its end. The foundations are shared.
class VARNEL_EXPORT VarnelFoundedPart : public varnel::Shared {
  public:
    /// Station of the start, relative to the beam, 0 to 1.
    double getPosA() const { return posA_; }
    void setPosA(double pos) { posA_ = pos; }
    /// Station of the end, relative to the beam, 0 to 1.
    double getPosE() const { return posE_; }
    void setPosE(double pos) { posE_ = pos; }

    Found::Foundation *getFEnd() const { return fEnd_; }
    void setFEnd(Found::Foundation *foundation) { fEnd_ = foundation; }
    Found::Foundation *getFStart() const { return fStart_; }
    void setFStart(Found::Foundation *foundation) { fStart_ = foundation; }

    /// Whether either end stands on that very foundation; null asks for an end without one.
    bool checkUsed(const Found::Foundation *foundation) const {
        return fStart_ == foundation || fEnd_ == foundation;
    }

  private:
    double posA_ = 0.0;
    double posE_ = 0.0;
    Found::Foundation *fEnd_ = nullptr;
    Found::Foundation *fStart_ = nullptr;
};

#endif
