#include "varnel/geometry/VarnelPlatePosition.h"

#include <gtest/gtest.h>

#include "tests/support/Places.h"

namespace {

TEST(VarnelPlatePosition, IsAPointFromThreeCoordinates) {
    VarnelPlatePosition position(1.0, 2.0, 3.0);
    position.setNumber(5);
    position.setChanged(false);
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), position.getCoor());
    const VarnelPlatePosition copy(position);
    EXPECT_EQ(1, copy == position);
    EXPECT_EQ(0, copy.getNumber());
    EXPECT_TRUE(copy.getChanged());
    VarnelPlatePosition target(0.0, 0.0, 0.0);
    target.setNumber(8);
    target = position;
    EXPECT_EQ(1, target == position);
    EXPECT_EQ(8, target.getNumber());
}

}  // namespace
