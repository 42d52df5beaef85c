#ifndef VARNEL_CONTRACTS_TOOLS_DIRECTORY_H
#define VARNEL_CONTRACTS_TOOLS_DIRECTORY_H

#include <string>

#include "varnel/contracts/Export.h"

namespace Tools {

/// Directories of the process.
class VARNEL_EXPORT Directory {
  public:
    /// Sets the working directory of the process; false, with the old one still in force, if the path is
    /// no directory that can be entered.
    static bool setCurrent(const std::string &path);
};

}  // namespace Tools

#endif
