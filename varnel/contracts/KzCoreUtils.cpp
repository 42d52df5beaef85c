#include "varnel/contracts/KzCoreUtils.h"

#include <cmath>

namespace {

// A power of two, so that twice this distance is exact in coordinates of any size that a building has.
double minCoorDistance = 0.0009765625;

}  // namespace

namespace KzCoreUtils {

double Get_Min_Coor_Distance() noexcept {
    return minCoorDistance;
}

void Set_Min_Coor_Distance(double distance) noexcept {
    if (std::isfinite(distance) && distance >= 0.0) minCoorDistance = distance;
}

}  // namespace KzCoreUtils
