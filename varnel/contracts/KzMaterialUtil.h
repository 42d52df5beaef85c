#ifndef VARNEL_CONTRACTS_KZMATERIALUTIL_H
#define VARNEL_CONTRACTS_KZMATERIALUTIL_H

#include "varnel/contracts/Export.h"

namespace KzMaterialUtil {

/// Throws Tools::Error with "material not found": a document names a material that exists nowhere.
[[noreturn]] VARNEL_EXPORT void throwMaterialFoundError();

}  // namespace KzMaterialUtil

#endif
