#ifndef VARNEL_PROCESS_VARNELERRORHANDLER_H
#define VARNEL_PROCESS_VARNELERRORHANDLER_H

#include <list>
#include <string>

#include "varnel/contracts/Export.h"

/// Shows messages to the user. This base is for console programs: it is the one place of the library that
/// writes to standard output. A host without a console overrides both operations.
class VARNEL_EXPORT VarnelErrorHandler {
  public:
    /// Shows each message through the single form, then waits until a non-zero character, or the end, comes
    /// from standard input.
    virtual void display(const std::list<std::string> &messages) const;
    /// Writes the message, without a line end.
    virtual void display(const std::string &message) const;
};

#endif
