#ifndef VARNEL_CONTRACTS_SDBSECTIONUSER_H
#define VARNEL_CONTRACTS_SDBSECTIONUSER_H

#include "varnel/contracts/Export.h"

class SDBSection;

/// Protects cross-sections: a manager that it is registered with asks it before it removes one.
class VARNEL_EXPORT SDBSectionUser {
  public:
    virtual ~SDBSectionUser() = default;
    /// Whether the section is in use. Only compare the pointer.
    virtual bool checkUsed(const SDBSection *section) = 0;
};

#endif
