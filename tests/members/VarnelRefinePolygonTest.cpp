#include "varnel/members/VarnelRefinePolygon.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "varnel/geometry/VarnelArea.h"

namespace {

TEST(VarnelRefinePolygon, IsBornWithLevelOneAndWithoutAnArea) {
    const VarnelRefinePolygon polygon;
    EXPECT_EQ(0, polygon.getNumber());
    EXPECT_EQ(1, polygon.getRefineLevel());
    EXPECT_EQ(nullptr, polygon.getArea());
}

TEST(VarnelRefinePolygon, IsAPlainRecordThatNeverFreesItsArea) {
    EXPECT_TRUE(std::is_trivially_copyable<VarnelRefinePolygon>::value);
    EXPECT_TRUE(std::is_trivially_destructible<VarnelRefinePolygon>::value);
    EXPECT_FALSE(std::is_polymorphic<VarnelRefinePolygon>::value);
}

TEST(VarnelRefinePolygon, CopiesAreOnTheSameArea) {
    VarnelArea area;
    VarnelRefinePolygon source;
    source.setNumber(-4);
    source.setRefineLevel(3);
    source.setArea(&area);
    const VarnelRefinePolygon copy(source);
    VarnelRefinePolygon assigned;
    assigned = source;
    for (const VarnelRefinePolygon *taken : {&copy, static_cast<const VarnelRefinePolygon *>(&assigned)}) {
        EXPECT_EQ(-4, taken->getNumber());
        EXPECT_EQ(3, taken->getRefineLevel());
        EXPECT_EQ(&area, taken->getArea());
    }
}

}  // namespace
