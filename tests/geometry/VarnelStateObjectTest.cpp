#include "varnel/geometry/VarnelStateObject.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "tests/support/VirtualSlot.h"

namespace {

TEST(VarnelStateObject, IsBornActive) {
    EXPECT_TRUE(VarnelStateObject().getActive());
}

TEST(VarnelStateObject, CopiesTakeTheFlag) {
    VarnelStateObject source;
    source.setActive(false);
    EXPECT_FALSE(VarnelStateObject(source).getActive());
    VarnelStateObject assigned;
    assigned = source;
    EXPECT_FALSE(assigned.getActive());
    assigned.setActive(true);
    EXPECT_TRUE(assigned.getActive());
    EXPECT_FALSE(source.getActive());
}

TEST(VarnelStateObject, OnlyItsDestructorIsVirtual) {
    EXPECT_TRUE(std::has_virtual_destructor<VarnelStateObject>::value);
    EXPECT_EQ(-1, varnel::virtualSlot(&VarnelStateObject::getActive));
    EXPECT_EQ(-1, varnel::virtualSlot(&VarnelStateObject::setActive));
}

}  // namespace
