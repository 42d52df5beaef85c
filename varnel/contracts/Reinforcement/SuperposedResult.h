#ifndef VARNEL_CONTRACTS_REINFORCEMENT_SUPERPOSEDRESULT_H
#define VARNEL_CONTRACTS_REINFORCEMENT_SUPERPOSEDRESULT_H

#include "varnel/contracts/Export.h"

namespace Reinforcement {

/// A superposed result of reinforcement; a calculator derives its own record.
class VARNEL_EXPORT SuperposedResult {
  public:
    virtual ~SuperposedResult() = default;
};

}  // namespace Reinforcement

#endif
