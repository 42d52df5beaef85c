#ifndef VARNEL_CONTRACTS_TOOLS_TEMPPATH_H
#define VARNEL_CONTRACTS_TOOLS_TEMPPATH_H

#include <string>

#include "varnel/contracts/Export.h"

namespace Tools {

/// The system's directory for temporary files, with the separator at its end, so that a file name can be put
/// behind it; empty if the system has none.
VARNEL_EXPORT std::string getTempPath();

}  // namespace Tools

#endif
