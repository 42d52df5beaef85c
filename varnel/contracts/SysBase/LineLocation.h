#ifndef VARNEL_CONTRACTS_SYSBASE_LINELOCATION_H
#define VARNEL_CONTRACTS_SYSBASE_LINELOCATION_H

#include "varnel/contracts/Export.h"

namespace SysBase {

/// A position along a line.
class VARNEL_EXPORT LineLocation {
  public:
    LineLocation() = default;
    explicit LineLocation(double pos) : pos_(pos) {}
    LineLocation(const LineLocation &) = default;
    LineLocation &operator=(const LineLocation &) = default;
    virtual ~LineLocation() = default;

    double getPos() const { return pos_; }

  private:
    double pos_ = 0.0;
};

}  // namespace SysBase

#endif
