#ifndef VARNEL_CONTRACTS_SYSBASE_IMPERFECTION_H
#define VARNEL_CONTRACTS_SYSBASE_IMPERFECTION_H

#include "varnel/contracts/Export.h"

namespace SysBase {

/// Imperfections of an analysis; a calculator derives its own record.
class VARNEL_EXPORT Imperfection {
  public:
    virtual ~Imperfection() = default;
};

}  // namespace SysBase

#endif
