#ifndef VARNEL_MEMBERS_VARNELASFUNCTIONAL_H
#define VARNEL_MEMBERS_VARNELASFUNCTIONAL_H

#include "varnel/contracts/Export.h"

/// Base of what carries a reinforcement result to and from the designer.
class VARNEL_EXPORT VarnelAsFunctional {
  public:
    VarnelAsFunctional(const VarnelAsFunctional &) = default;
    VarnelAsFunctional &operator=(const VarnelAsFunctional &) = default;
    virtual ~VarnelAsFunctional();

  protected:
    VarnelAsFunctional() = default;
};

#endif
