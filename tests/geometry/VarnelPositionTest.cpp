#include "varnel/geometry/VarnelPosition.h"

#include <gtest/gtest.h>

#include <climits>

#include "tests/support/VirtualSlot.h"

namespace {

class Named : public VarnelPosition {
  public:
    void setName(const std::string &name) override { name_ = name; }
    const std::string &getName() const override { return name_; }

  private:
    std::string name_;
};

TEST(VarnelPosition, IsBornWithNumberZero) {
    EXPECT_EQ(0, Named().getNumber());
}

TEST(VarnelPosition, KeepsAnyNumber) {
    Named named;
    for (const int number : {1, -1, INT_MAX, INT_MIN}) {
        named.setNumber(number);
        EXPECT_EQ(number, named.getNumber());
    }
}

TEST(VarnelPosition, CopiesTakeTheNumber) {
    Named source;
    source.setNumber(17);
    EXPECT_EQ(17, Named(source).getNumber());
    Named assigned;
    assigned = source;
    EXPECT_EQ(17, assigned.getNumber());
    const Named &same = assigned;
    assigned = same;
    EXPECT_EQ(17, assigned.getNumber());
}

TEST(VarnelPosition, ItsOperationsKeepTheirSlots) {
    EXPECT_EQ(-1, varnel::virtualSlot(&VarnelPosition::getNumber));
    EXPECT_EQ(-1, varnel::virtualSlot(&VarnelPosition::setNumber));
    EXPECT_EQ(2, varnel::virtualSlot(&VarnelPosition::setName));
    EXPECT_EQ(3, varnel::virtualSlot(&VarnelPosition::getName));
}

}  // namespace
