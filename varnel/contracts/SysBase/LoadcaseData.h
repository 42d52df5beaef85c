#ifndef VARNEL_CONTRACTS_SYSBASE_LOADCASEDATA_H
#define VARNEL_CONTRACTS_SYSBASE_LOADCASEDATA_H

#include "varnel/contracts/Export.h"

namespace SysBase {

/// Scope of the types of load cases.
class VARNEL_EXPORT LoadcaseData {
  public:
    /// What acts in a case. Any other number comes from a host or a file and passes through unchanged.
    enum Type : int {
        DEAD = 1,  ///< own weight and dead loads
        LIVE = 2,  ///< the live loads of a plate
    };
};

}  // namespace SysBase

#endif
