#ifndef VARNEL_CONTRACTS_KZSTANDARD_H
#define VARNEL_CONTRACTS_KZSTANDARD_H

#include <atomic>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/Standard/Mode.h"

/// The code of practice of the process, 0 at first. Documents that are read set it, on whatever thread.
class VARNEL_EXPORT KzStandard {
  public:
    static KzStandard *get();
    KzStandard(const KzStandard &) = delete;
    KzStandard &operator=(const KzStandard &) = delete;

    Standard::Mode getMode() const { return mode_; }
    void setMode(Standard::Mode mode) { mode_ = mode; }
    void setMode(int mode) { mode_ = static_cast<Standard::Mode>(mode); }

  private:
    KzStandard() = default;

    std::atomic<Standard::Mode> mode_{static_cast<Standard::Mode>(0)};
};

#endif
