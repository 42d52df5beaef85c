#include "varnel/members/VarnelPointBoundaryCircle.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/support/Places.h"
#include "varnel/geometry/VarnelPointBoundaryVisitor.h"

namespace {

const KzVector3D place(1.0, 2.0, 3.0);

struct RecordingVisitor : VarnelPointBoundaryVisitor {
    void visit(VarnelPointBoundaryRectan *) override { ++others; }
    void visit(VarnelPointBoundaryCircle *boundary) override { circle = boundary; }

    VarnelPointBoundaryCircle *circle = nullptr;
    int others = 0;
};

TEST(VarnelPointBoundaryCircle, IsBornWithItsDiameterAndWithoutAStage) {
    const VarnelPointBoundaryCircle circle(place, 7, 0.4);
    EXPECT_EQ(0.4, circle.getD());
    EXPECT_EQ(place, circle.getCoor());
    EXPECT_EQ(7, circle.getDof());
    EXPECT_EQ(nullptr, circle.getAssignedConstructionStage());
    EXPECT_TRUE(circle.getChanged());
}

TEST(VarnelPointBoundaryCircle, VisitsTheSecondOperation) {
    VarnelPointBoundaryCircle circle(place, 0, 0.4);
    VarnelPointBoundary &boundary = circle;
    RecordingVisitor visitor;
    boundary.getVisited(&visitor);
    EXPECT_EQ(&circle, visitor.circle);
    EXPECT_EQ(0, visitor.others);
    boundary.getVisited(static_cast<VarnelPointBoundaryVisitor *>(nullptr));
}

TEST(VarnelPointBoundaryCircle, SettingTheDiameterMarksNoChange) {
    VarnelPointBoundaryCircle circle(place, 0, 0.4);
    circle.setChanged(false);
    circle.setD(0.5);
    EXPECT_EQ(0.5, circle.getD());
    EXPECT_FALSE(circle.getChanged());
}

TEST(VarnelPointBoundaryCircle, CopiesTakeTheDiameterToo) {
    auto source = std::make_unique<VarnelPointBoundaryCircle>(place, 7, 0.4);
    source->setName("column");
    source->setNumber(3);
    const VarnelPointBoundaryCircle copy(*source);
    VarnelPointBoundaryCircle assigned(KzVector3D(), 0, 0.1);
    assigned = *source;
    EXPECT_NE(source->getGeo(), copy.getGeo());
    EXPECT_NE(source->getGeo(), assigned.getGeo());
    source.reset();
    const VarnelPointBoundaryCircle &same = assigned;
    assigned = same;
    for (const VarnelPointBoundaryCircle *taken : {&copy, &same}) {
        EXPECT_EQ(0.4, taken->getD());
        EXPECT_EQ("column", taken->getName());
        EXPECT_EQ(3, taken->getNumber());
        EXPECT_EQ(place, taken->getCoor());
    }
}

}  // namespace
