#ifndef VARNEL_CONTRACTS_FOUND_FOUNDATIONUSER_H
#define VARNEL_CONTRACTS_FOUND_FOUNDATIONUSER_H

#include "varnel/contracts/Export.h"

namespace Found {

class Foundation;

/// Protects foundations: a manager that it is registered with asks it before it removes one.
class VARNEL_EXPORT FoundationUser {
  public:
    virtual ~FoundationUser() = default;
    /// Whether the foundation is in use. Only compare the pointer.
    virtual bool checkUsed(const Foundation *foundation) = 0;
};

}  // namespace Found

#endif
