#ifndef VARNEL_CONTRACTS_KZCOREUTILS_H
#define VARNEL_CONTRACTS_KZCOREUTILS_H

#include "varnel/contracts/Export.h"

namespace KzCoreUtils {

/// The smallest distance (m) at which two coordinates count as distinct, one for the whole process.
VARNEL_EXPORT double Get_Min_Coor_Distance() noexcept;
/// Sets it; a distance that is negative or not finite is ignored.
VARNEL_EXPORT void Set_Min_Coor_Distance(double distance) noexcept;

}  // namespace KzCoreUtils

#endif
