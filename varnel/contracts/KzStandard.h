#ifndef VARNEL_CONTRACTS_KZSTANDARD_H
#define VARNEL_CONTRACTS_KZSTANDARD_H

#include "varnel/contracts/Export.h"
#include "varnel/contracts/Standard/Mode.h"

/// The code of practice of the process, 0 at first.
class VARNEL_EXPORT KzStandard {
  public:
    static KzStandard *get();
    KzStandard(const KzStandard &) = delete;
    KzStandard &operator=(const KzStandard &) = delete;

    Standard::Mode getMode() const { return mode_; }
    void setMode(Standard::Mode mode) {
        if (mode_ != mode) mode_ = mode;  // documents of one standard can be read on several threads
    }
    void setMode(int mode) { setMode(static_cast<Standard::Mode>(mode)); }

  private:
    KzStandard() = default;

    Standard::Mode mode_ = static_cast<Standard::Mode>(0);
};

#endif
