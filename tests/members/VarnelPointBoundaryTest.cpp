#include "varnel/members/VarnelPointBoundary.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>
#include <vector>

#include "tests/support/Places.h"
#include "tests/support/RecordingObjectVisitor.h"
#include "tests/support/VirtualSlot.h"
#include "varnel/contracts/SysBase/ConstructionStage.h"
#include "varnel/geometry/VarnelPointBoundaryVisitor.h"
#include "varnel/members/VarnelPointBoundaryCircle.h"
#include "varnel/members/VarnelPointBoundaryRectan.h"

namespace {

using Boundary = VarnelPointBoundary;
using Springs = std::vector<double>;

const KzVector3D place(1.0, 2.0, 3.0);

/// Remembers which kind of boundary it was shown last.
struct RecordingVisitor : VarnelPointBoundaryVisitor {
    void visit(VarnelPointBoundaryRectan *boundary) override { rectangle = boundary; }
    void visit(VarnelPointBoundaryCircle *boundary) override { circle = boundary; }

    VarnelPointBoundaryRectan *rectangle = nullptr;
    VarnelPointBoundaryCircle *circle = nullptr;
};

std::unique_ptr<Boundary> fullBoundary(SysBase::ConstructionStage *stage) {
    auto boundary = std::make_unique<Boundary>(place, 7, stage);
    boundary->setActive(false);
    boundary->setNumber(11);
    boundary->setName("column");
    boundary->setSpacing(2.0);
    boundary->setTypInd(3);
    boundary->setStiffness({1.0, 2.0, 3.0, 4.0, 5.0, 6.0});
    boundary->setHeight(2.5);
    boundary->setSpecificWeight(18.0);
    boundary->setTransferOwnWeight(true);
    boundary->setAngle(0.3, 2);
    boundary->getGeo()->setNumber(77);
    boundary->setChanged(false);
    return boundary;
}

void expectFull(const Boundary &boundary, SysBase::ConstructionStage *stage) {
    EXPECT_FALSE(boundary.getActive());
    EXPECT_EQ(11, boundary.getNumber());
    EXPECT_EQ("column", boundary.getName());
    EXPECT_EQ(2.0, boundary.getSpacing());
    EXPECT_EQ(3, boundary.getTypInd());
    EXPECT_EQ(stage, boundary.getAssignedConstructionStage());
    EXPECT_EQ(7, boundary.getDof());
    EXPECT_EQ((Springs{1.0, 2.0, 3.0, 4.0, 5.0, 6.0}), boundary.getStiffness());
    EXPECT_EQ(2.5, boundary.getData().getHeight());
    EXPECT_EQ(18.0, boundary.getData().getSpecificWeight());
    EXPECT_TRUE(boundary.getData().doTransferOwnWeight());
    EXPECT_DOUBLE_EQ(0.3, boundary.getAngle(2));
    EXPECT_EQ(place, boundary.getCoor());
}

TEST(VarnelPointBoundary, IsBornWithDefaults) {
    SysBase::ConstructionStage stage;
    const Boundary boundary(place, 7, &stage);
    EXPECT_EQ(place, boundary.getCoor());
    ASSERT_NE(nullptr, boundary.getGeo());
    EXPECT_EQ(place, boundary.getGeo()->getCoor());
    EXPECT_EQ(0, boundary.getGeo()->getNumber());
    EXPECT_EQ(7, boundary.getDof());
    EXPECT_EQ(&stage, boundary.getAssignedConstructionStage());
    EXPECT_EQ(1.0, boundary.getSpacing());
    EXPECT_EQ(0, boundary.getTypInd());
    EXPECT_TRUE(boundary.getActive());
    EXPECT_EQ(0, boundary.getNumber());
    EXPECT_EQ("", boundary.getName());
    EXPECT_EQ(nullptr, boundary.getStiffnessData());
    EXPECT_EQ(Springs(6), boundary.getStiffness());
    EXPECT_EQ(nullptr, boundary.getData().getBaseMatrix());
    EXPECT_EQ(0.0, boundary.getAngle(1));
    EXPECT_EQ(nullptr, Boundary(place, 0, nullptr).getAssignedConstructionStage());
}

TEST(VarnelPointBoundary, IsBornChangedInAllItsParts) {
    const Boundary boundary(place, 0, nullptr);
    EXPECT_TRUE(boundary.getChanged());
    EXPECT_TRUE(boundary.getData().VarnelBoundaryData::getChanged());
    EXPECT_TRUE(boundary.getData().getBase().getChanged());
    EXPECT_TRUE(boundary.getGeo()->getChanged());
}

TEST(VarnelPointBoundary, MarksAChangeWhereItIsMeantTo) {
    struct Row {
        const char *setter;
        std::function<void(Boundary &)> call;
        bool own, values, frame, point;
    };
    const Row rows[] = {
        {"setDof", [](Boundary &b) { b.setDof(0); }, true, true, false, false},
        {"setStiffness", [](Boundary &b) { b.setStiffness({}); }, true, true, false, false},
        {"setCoor", [](Boundary &b) { b.setCoor(place); }, false, false, false, true},
        {"setBase", [](Boundary &b) { b.setBase(KzMatrix44::getId()); }, false, false, true, false},
        {"setAngle", [](Boundary &b) { b.setAngle(0.1, 2); }, false, false, true, false},
        {"setData", [](Boundary &b) { b.setData(VarnelPointBoundaryData()); }, false, true, true, false},
        {"setSpacing", [](Boundary &b) { b.setSpacing(2.0); }, false, false, false, false},
        {"setHeight", [](Boundary &b) { b.setHeight(2.0); }, false, false, false, false},
        {"setSpecificWeight", [](Boundary &b) { b.setSpecificWeight(2.0); }, false, false, false, false},
        {"setTransferOwnWeight", [](Boundary &b) { b.setTransferOwnWeight(true); }, false, false, false,
         false},
        {"setTypInd", [](Boundary &b) { b.setTypInd(2); }, false, false, false, false},
        {"setName", [](Boundary &b) { b.setName("n"); }, false, false, false, false},
        {"setNumber", [](Boundary &b) { b.setNumber(2); }, false, false, false, false},
        {"setActive", [](Boundary &b) { b.setActive(false); }, false, false, false, false},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.setter);
        Boundary boundary(place, 0, nullptr);
        boundary.setChanged(false);
        ASSERT_FALSE(boundary.getChanged());
        row.call(boundary);
        EXPECT_EQ(row.own || row.values || row.frame || row.point, boundary.getChanged());
        EXPECT_EQ(row.values, boundary.getData().VarnelBoundaryData::getChanged());
        EXPECT_EQ(row.frame, boundary.getData().getBase().getChanged());
        EXPECT_EQ(row.point, boundary.getGeo()->getChanged());
        boundary.getData().setChanged(false);
        boundary.getGeo()->setChanged(false);
        EXPECT_EQ(row.own, boundary.getChanged());
    }
}

TEST(VarnelPointBoundary, PassesTheFlagDown) {
    Boundary boundary(place, 0, nullptr);
    for (const bool value : {false, true}) {
        boundary.setChanged(value);
        EXPECT_EQ(value, boundary.getChanged());
        EXPECT_EQ(value, boundary.getData().getChanged());
        EXPECT_EQ(value, boundary.getGeo()->getChanged());
    }
}

TEST(VarnelPointBoundary, KeepsWhatIsSetInItsValues) {
    Boundary boundary(place, 0, nullptr);
    boundary.setCoor(KzVector3D(4.0, 5.0, 6.0));
    boundary.setDof(9);
    boundary.setHeight(1.0);
    boundary.setSpecificWeight(2.0);
    boundary.setTransferOwnWeight(true);
    boundary.setName("C1");
    EXPECT_EQ(KzVector3D(4.0, 5.0, 6.0), boundary.getGeo()->getCoor());
    EXPECT_EQ(9, boundary.getData().getDof());
    EXPECT_EQ(1.0, boundary.getData().getHeight());
    EXPECT_EQ(2.0, boundary.getData().getSpecificWeight());
    EXPECT_TRUE(boundary.getData().doTransferOwnWeight());
    EXPECT_EQ("C1", boundary.getData().getName());
    boundary.getData().setName("C2");
    EXPECT_EQ("C2", boundary.getName());
}

TEST(VarnelPointBoundary, ItsFrameIsTheIdentityUntilOneIsSet) {
    Boundary boundary(place, 0, nullptr);
    EXPECT_EQ(KzVector3D(1.0, 0.0, 0.0), boundary.getBase().getVector(0));
    EXPECT_EQ(nullptr, boundary.getData().getBaseMatrix());
    KzMatrix44 turned = KzMatrix44::getId();
    turned.setVector(0, KzVector3D(0.0, 1.0, 0.0));
    boundary.setBase(turned);
    EXPECT_EQ(KzVector3D(0.0, 1.0, 0.0), boundary.getBase().getVector(0));
    EXPECT_DOUBLE_EQ(std::acos(0.0), boundary.getAngle(2));
}

TEST(VarnelPointBoundary, WithoutAFrameItDoesNotCountAsRotatedInXY) {
    EXPECT_FALSE(Boundary(place, 0, nullptr).onlyRotatedInXY());
}

TEST(VarnelPointBoundary, AnAngleOfZeroMakesAFrameThatIsRotatedInXYOnly) {
    Boundary boundary(place, 0, nullptr);
    boundary.setAngle(0.0, 1);
    EXPECT_NE(nullptr, boundary.getData().getBaseMatrix());
    EXPECT_TRUE(boundary.onlyRotatedInXY());
}

TEST(VarnelPointBoundary, OnlyATurnAboutZIsARotationInXY) {
    Boundary boundary(place, 0, nullptr);
    boundary.setAngle(0.3, 2);
    EXPECT_TRUE(boundary.onlyRotatedInXY());
    EXPECT_DOUBLE_EQ(0.3, boundary.getAngle(2));
    boundary.setAngle(0.3, 1);
    EXPECT_FALSE(boundary.onlyRotatedInXY());
    EXPECT_DOUBLE_EQ(0.3, boundary.getAngle(1));
}

TEST(VarnelPointBoundary, TheUprightAxisIsComparedExactly) {
    Boundary boundary(place, 0, nullptr);
    KzMatrix44 frame = KzMatrix44::getId();
    for (const double z : {std::nextafter(1.0, 0.0), std::nextafter(1.0, 2.0), -1.0}) {
        frame.setVector(2, KzVector3D(0.0, 0.0, z));
        boundary.setBase(frame);
        EXPECT_FALSE(boundary.onlyRotatedInXY()) << z;
    }
    frame.setVector(2, KzVector3D(0.5, 0.0, 1.0));
    boundary.setBase(frame);
    EXPECT_TRUE(boundary.onlyRotatedInXY()) << "only the z component is looked at";
}

TEST(VarnelPointBoundary, LiesWhereItsPointLies) {
    const Boundary boundary(place, 0, nullptr);
    for (const double height : {3.0, 3.0099}) {
        EXPECT_TRUE(boundary.isInPlane(varnel::planeAtHeight(height)));
        EXPECT_TRUE(boundary.touchesPlane(varnel::planeAtHeight(height)));
    }
    EXPECT_FALSE(boundary.isInPlane(varnel::planeAtHeight(3.0101)));
    EXPECT_FALSE(boundary.touchesPlane(varnel::planeAtHeight(3.0101)));
}

TEST(VarnelPointBoundary, DoesNotWidenABox) {
    const Boundary boundary(place, 0, nullptr);
    KzVector3D min, max;
    boundary.updateMinMax(&min, &max, KzMatrix44::getId());
    EXPECT_EQ(KzVector3D(), max);
}

TEST(VarnelPointBoundary, TakesPartInEveryLoadCase) {
    EXPECT_TRUE(Boundary(place, 0, nullptr).isIn(nullptr));
}

TEST(VarnelPointBoundary, OfAnyShapeItIsAPointBoundaryToObjectVisitors) {
    Boundary plain(place, 0, nullptr);
    VarnelPointBoundaryCircle circle(place, 0, 0.4);
    VarnelPointBoundaryRectan rectangle(place, 0, 0.3, 0.5);
    Boundary *const boundaries[] = {&plain, &circle, &rectangle};
    for (Boundary *boundary : boundaries) {
        varnel::RecordingObjectVisitor visitor;
        EXPECT_EQ(7, static_cast<VarnelObject *>(boundary)->getVisited(&visitor));
        EXPECT_EQ("point boundary", visitor.kind);
        EXPECT_EQ(boundary, visitor.object);
        EXPECT_EQ(0, static_cast<VarnelObject *>(boundary)->getVisited(nullptr));
    }
}

TEST(VarnelPointBoundary, WithoutAShapeItCallsNoShapeVisitor) {
    Boundary boundary(place, 0, nullptr);
    RecordingVisitor visitor;
    boundary.getVisited(&visitor);
    EXPECT_EQ(nullptr, visitor.circle);
    EXPECT_EQ(nullptr, visitor.rectangle);
    boundary.getVisited(static_cast<VarnelPointBoundaryVisitor *>(nullptr));
}

TEST(VarnelPointBoundary, CopyHasAPointOfItsOwn) {
    SysBase::ConstructionStage stage;
    auto source = fullBoundary(&stage);
    const Boundary copy(*source);
    EXPECT_NE(source->getGeo(), copy.getGeo());
    EXPECT_EQ(0, copy.getGeo()->getNumber());
    source->setCoor(KzVector3D());
    EXPECT_EQ(place, copy.getCoor());
    source.reset();
    expectFull(copy, &stage);
}

TEST(VarnelPointBoundary, CopiesTakeTheOwnFlagOver) {
    for (const bool changed : {false, true}) {
        Boundary source(place, 0, nullptr);
        source.setChanged(changed);
        Boundary copy(source), assigned(place, 0, nullptr);
        assigned.setChanged(!changed);
        assigned = source;
        for (Boundary *taken : {&copy, &assigned}) {
            EXPECT_TRUE(taken->getData().getChanged());
            taken->getData().setChanged(false);
            taken->getGeo()->setChanged(false);
            EXPECT_EQ(changed, taken->getChanged());
        }
    }
}

TEST(VarnelPointBoundary, AssignmentMovesTheTargetsPoint) {
    SysBase::ConstructionStage stage;
    auto source = fullBoundary(&stage);
    Boundary target(KzVector3D(), 0, nullptr);
    VarnelPoint *point = target.getGeo();
    target = *source;
    source.reset();
    EXPECT_EQ(point, target.getGeo());
    expectFull(target, &stage);
    const Boundary &same = target;
    target = same;
    expectFull(target, &stage);
}

TEST(VarnelPointBoundary, ItsOperationsKeepTheirSlots) {
    using varnel::virtualSlot;
    EXPECT_EQ(2, virtualSlot(&Boundary::getChanged));
    EXPECT_EQ(3, virtualSlot(&Boundary::setChanged));
    EXPECT_EQ(4, virtualSlot<void(VarnelPointBoundaryVisitor *)>(&Boundary::getVisited));
}

TEST(VarnelPointBoundary, IsDeletedThroughEachOfItsBases) {
    SysBase::ConstructionStage stage;
    std::unique_ptr<VarnelObject> object = fullBoundary(&stage);
    std::unique_ptr<VarnelPosition> position = fullBoundary(&stage);
    std::unique_ptr<VarnelStateObject> state = fullBoundary(&stage);
    EXPECT_EQ("column", position->getName());
    EXPECT_FALSE(state->getActive());
    EXPECT_TRUE(object->isInPlane(varnel::planeAtHeight(3.0)));
}

}  // namespace
