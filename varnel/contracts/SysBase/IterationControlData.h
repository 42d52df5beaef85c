#ifndef VARNEL_CONTRACTS_SYSBASE_ITERATIONCONTROLDATA_H
#define VARNEL_CONTRACTS_SYSBASE_ITERATIONCONTROLDATA_H

#include "varnel/contracts/Export.h"

namespace SysBase {

/// How a calculator iterates; a calculator derives its own record.
class VARNEL_EXPORT IterationControlData {
  public:
    virtual ~IterationControlData() = default;
};

}  // namespace SysBase

#endif
