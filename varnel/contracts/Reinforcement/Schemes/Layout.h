#ifndef VARNEL_CONTRACTS_REINFORCEMENT_SCHEMES_LAYOUT_H
#define VARNEL_CONTRACTS_REINFORCEMENT_SCHEMES_LAYOUT_H

#include "varnel/contracts/Export.h"

namespace Reinforcement::Schemes {

/// A layout of reinforcement, referred to by design data; a designer derives its own.
class VARNEL_EXPORT Layout {
  public:
    virtual ~Layout() = default;
};

}  // namespace Reinforcement::Schemes

#endif
