#ifndef VARNEL_CONTRACTS_SYSBASE_CREEP_H
#define VARNEL_CONTRACTS_SYSBASE_CREEP_H

#include "varnel/contracts/Export.h"

namespace SysBase {

/// Creep data of an analysis; a calculator derives its own record.
class VARNEL_EXPORT Creep {
  public:
    virtual ~Creep() = default;
};

}  // namespace SysBase

#endif
