#include "varnel/results/VarnelNodeResultLocation.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

void fill(VarnelNodeResultLocation &location) {
    location.setForce(KzVector3D(1.0, 2.0, 3.0));
    location.setMoment(KzVector3D(4.0, 5.0, 6.0));
    location.setLoadForce(KzVector3D(7.0, 8.0, 9.0));
    location.setLoadMoment(KzVector3D(10.0, 11.0, 12.0));
}

void expectFilled(const VarnelNodeResultLocation &location) {
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), location.getForce());
    EXPECT_EQ(KzVector3D(4.0, 5.0, 6.0), location.getMoment());
    EXPECT_EQ(KzVector3D(7.0, 8.0, 9.0), location.getLoadForce());
    EXPECT_EQ(KzVector3D(10.0, 11.0, 12.0), location.getLoadMoment());
}

TEST(VarnelNodeResultLocation, IsBornAtItsPositionWithZeroResults) {
    const VarnelNodeResultLocation location(KzVector3D(1.0, 2.0, 3.0));
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), location.getCoor());
    EXPECT_EQ(KzVector3D(), location.getForce());
    EXPECT_EQ(KzVector3D(), location.getMoment());
    EXPECT_EQ(KzVector3D(), location.getLoadForce());
    EXPECT_EQ(KzVector3D(), location.getLoadMoment());
}

TEST(VarnelNodeResultLocation, ResultsMarkNoChange) {
    VarnelNodeResultLocation location((KzVector3D()));
    location.setChanged(false);
    fill(location);
    expectFilled(location);
    EXPECT_FALSE(location.getChanged());
}

TEST(VarnelNodeResultLocation, CopiesHaveValuesOfTheirOwn) {
    auto source = std::make_unique<VarnelNodeResultLocation>(KzVector3D(1.0, 2.0, 3.0));
    fill(*source);
    const VarnelNodeResultLocation copy(*source);
    VarnelNodeResultLocation assigned((KzVector3D()));
    assigned = *source;
    source->setForce(KzVector3D());
    source.reset();
    expectFilled(copy);
    expectFilled(assigned);
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), copy.getCoor());
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), assigned.getCoor());
}

TEST(VarnelNodeResultLocation, DiesThroughAPointerToItsPoint) {
    const std::unique_ptr<VarnelPoint> point =
        std::make_unique<VarnelNodeResultLocation>(KzVector3D(1.0, 2.0, 3.0));
    EXPECT_NE(nullptr, dynamic_cast<VarnelNodeResultLocation *>(point.get()));
}

}  // namespace
