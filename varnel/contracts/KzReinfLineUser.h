#ifndef VARNEL_CONTRACTS_KZREINFLINEUSER_H
#define VARNEL_CONTRACTS_KZREINFLINEUSER_H

#include "varnel/contracts/Export.h"

class KzReinfLine;

/// Protects lines of reinforcement: a list that it is registered with asks it before it removes one.
class VARNEL_EXPORT KzReinfLineUser {
  public:
    virtual ~KzReinfLineUser() = default;
    /// Whether the line is in use. Only compare the pointer.
    virtual bool checkUsed(const KzReinfLine *line) = 0;
};

#endif
