#include "varnel/results/VarnelPointResultData.h"

#include <gtest/gtest.h>

#include <map>
#include <type_traits>

namespace {

TEST(VarnelPointResultData, IsBornZero) {
    const VarnelPointResultData data;
    for (const double value :
         {data.getFx(), data.getFy(), data.getFz(), data.getMx(), data.getMy(), data.getMz()})
        EXPECT_EQ(0.0, value);
}

TEST(VarnelPointResultData, IsHeldByValueAndCopiesItsSixValues) {
    std::map<int, VarnelPointResultData> results;
    results[1] = VarnelPointResultData(1.0, 2.0, 3.0, 4.0, 5.0, 6.0);
    const VarnelPointResultData copy(results[1]);
    results.clear();
    EXPECT_EQ(1.0, copy.getFx());
    EXPECT_EQ(2.0, copy.getFy());
    EXPECT_EQ(3.0, copy.getFz());
    EXPECT_EQ(4.0, copy.getMx());
    EXPECT_EQ(5.0, copy.getMy());
    EXPECT_EQ(6.0, copy.getMz());
}

TEST(VarnelPointResultData, DiesThroughItsBase) {
    EXPECT_TRUE(std::has_virtual_destructor<SysBase::PointSupportResult>::value);
    EXPECT_TRUE((std::is_base_of<SysBase::PointSupportResult, VarnelPointResultData>::value));
}

}  // namespace
