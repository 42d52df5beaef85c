#include "varnel/contracts/KzCoreUtils.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

TEST(KzCoreUtils, TheMinimalDistanceIsAPowerOfTwo) {
    EXPECT_EQ(std::ldexp(1.0, -10), KzCoreUtils::Get_Min_Coor_Distance());
}

TEST(KzCoreUtils, TheMinimalDistanceCanBeSetForTheProcess) {
    const double before = KzCoreUtils::Get_Min_Coor_Distance();
    KzCoreUtils::Set_Min_Coor_Distance(0.25);
    EXPECT_EQ(0.25, KzCoreUtils::Get_Min_Coor_Distance());
    for (const double unusable : {-1.0, std::nan(""), std::numeric_limits<double>::infinity()}) {
        KzCoreUtils::Set_Min_Coor_Distance(unusable);
        EXPECT_EQ(0.25, KzCoreUtils::Get_Min_Coor_Distance());
    }
    KzCoreUtils::Set_Min_Coor_Distance(before);
}

}  // namespace
