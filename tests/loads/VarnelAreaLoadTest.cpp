#include "varnel/loads/VarnelAreaLoad.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>

#include "tests/support/RecordingObjectVisitor.h"
#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/geometry/VarnelArea.h"
#include "varnel/geometry/VarnelAreaRectangle.h"

namespace {

std::unique_ptr<VarnelArea> rectangle(double width, double height) {
    return std::make_unique<VarnelAreaRectangle>(KzVector3D(), width, height, 0.0);
}

TEST(VarnelAreaLoadData, IsBornWithAUnitLoad) {
    const VarnelAreaLoadData data;
    EXPECT_EQ(KzVector3D(0.0, 0.0, 1.0), data.getP());
    EXPECT_EQ(0, data.getTransmissionType());
    EXPECT_FALSE(data.isNull());
}

TEST(VarnelAreaLoadData, AddsTheLoadAndKeepsItsTransmissionType) {
    VarnelAreaLoadData left, right;
    left.setTransmissionType(2);
    left.setName("left");
    right.setTransmissionType(3);
    right.setName("right");
    right.setP(1.0, 2.0, 3.0);
    EXPECT_EQ(&left, &(left += right));
    EXPECT_EQ(KzVector3D(1.0, 2.0, 4.0), left.getP());
    EXPECT_EQ(2, left.getTransmissionType());
    EXPECT_EQ("left", left.getName());
}

TEST(VarnelAreaLoadData, CopiesAllValues) {
    SysBase::Loadcase loadcase(1);
    VarnelAreaLoadData data;
    data.setP(KzVector3D(1.0, 2.0, 3.0));
    data.setTransmissionType(4);
    data.setType(1);
    data.setName("n");
    data.setLoadcase(&loadcase);
    const VarnelAreaLoadData copy(data);
    double x = 0.0, y = 0.0, z = 0.0;
    copy.getP(x, y, z);
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), KzVector3D(x, y, z));
    EXPECT_EQ(4, copy.getTransmissionType());
    EXPECT_EQ(1, copy.getType());
    EXPECT_EQ("n", copy.getName());
    EXPECT_EQ(&loadcase, copy.getLoadcase());
}

TEST(VarnelAreaLoad, IsBornWithoutAnOutlineAndNotNull) {
    VarnelAreaLoad load;
    EXPECT_EQ(nullptr, load.getArea());
    EXPECT_EQ(nullptr, load.getGeo());
    EXPECT_TRUE(load.getOwnsArea());
    EXPECT_EQ(KzVector3D(0.0, 0.0, 1.0), load.getP());
    EXPECT_FALSE(load.isNull());
    EXPECT_FALSE(load.getChanged());
    EXPECT_TRUE(load.isDead());
}

TEST(VarnelAreaLoad, WithoutAnOutlineStandsNowhere) {
    VarnelAreaLoad load;
    load.setType(1);
    EXPECT_EQ(KzVector3D(), load.getCOG());
    EXPECT_EQ(KzVector3D(1.0, 0.0, 0.0), load.getBase().getVector(0));
    EXPECT_FALSE(load.isInPlane(KzMatrix44::getId()));
    EXPECT_FALSE(load.touchesPlane(KzMatrix44::getId()));
}

TEST(VarnelAreaLoad, IsNullAfterSettingAZeroLoad) {
    VarnelAreaLoad load;
    load.setP(0.0, 0.0, 0.0);
    EXPECT_TRUE(load.isNull());
    load.setP(KzVector3D(0.0, 2.0, 0.0));
    double x = 1.0, y = 0.0, z = 1.0;
    load.getP(x, y, z);
    EXPECT_EQ(KzVector3D(0.0, 2.0, 0.0), KzVector3D(x, y, z));
    EXPECT_EQ(load.getP(), load.getData().getP());
}

TEST(VarnelAreaLoad, TakesALoadUpToTheToleranceForNull) {
    VarnelAreaLoad load;
    load.setP(1e-12, -1e-12, 1e-12);
    EXPECT_TRUE(load.isNull());
    load.setP(0.0, 0.0, std::nextafter(1e-12, 1.0));
    EXPECT_FALSE(load.isNull());
}

TEST(VarnelAreaLoad, MarksAChangeWhereItIsMeantTo) {
    struct Row {
        const char *setter;
        std::function<void(VarnelAreaLoad &)> call;
        bool changed;
    };
    const Row rows[] = {
        {"setArea", [](VarnelAreaLoad &l) { l.setArea(nullptr); }, true},
        {"setLoadcase", [](VarnelAreaLoad &l) { l.setLoadcase(nullptr); }, true},
        {"setP", [](VarnelAreaLoad &l) { l.setP(KzVector3D()); }, false},
        {"setP of numbers", [](VarnelAreaLoad &l) { l.setP(1.0, 2.0, 3.0); }, false},
        {"setData", [](VarnelAreaLoad &l) { l.setData(VarnelAreaLoadData()); }, false},
        {"setOwnsArea", [](VarnelAreaLoad &l) { l.setOwnsArea(false); }, false},
        {"setType", [](VarnelAreaLoad &l) { l.setType(1); }, false},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.setter);
        VarnelAreaLoad load;
        row.call(load);
        EXPECT_EQ(row.changed, load.getChanged());
    }
}

TEST(VarnelAreaLoad, AnswersAsItsOutline) {
    VarnelAreaLoad load;
    load.setArea(rectangle(4.0, 2.0).release());
    const KzVector3D centre = load.getCOG();
    EXPECT_NEAR(2.0, centre.getX(), 1e-12);
    EXPECT_NEAR(1.0, centre.getY(), 1e-12);
    EXPECT_TRUE(load.isInPlane(KzMatrix44::getId()));
    EXPECT_TRUE(load.touchesPlane(KzMatrix44::getId()));
    load.getArea()->setCoor(2, KzVector3D(4.0, 2.0, 1.0));
    EXPECT_FALSE(load.isInPlane(KzMatrix44::getId()));
    EXPECT_TRUE(load.touchesPlane(KzMatrix44::getId()));
}

TEST(VarnelAreaLoad, HasTheOutlinesBaseWhenItsRecordIsLocal) {
    VarnelAreaLoad load;
    load.setArea(new VarnelAreaRectangle(KzVector3D(5.0, 6.0, 7.0), KzVector3D(5.0, 9.0, 7.0),
                                         KzVector3D(2.0, 9.0, 7.0), KzVector3D(2.0, 6.0, 7.0)));
    for (int type : {0, 2}) {
        load.setType(type);
        EXPECT_EQ(KzVector3D(1.0, 0.0, 0.0), load.getBase().getVector(0)) << type;
        EXPECT_EQ(KzVector3D(), load.getBase().getVector(3)) << type;
    }
    load.setType(1);
    EXPECT_EQ(KzVector3D(0.0, 1.0, 0.0), load.getBase().getVector(0));
    EXPECT_EQ(KzVector3D(5.0, 6.0, 7.0), load.getBase().getVector(3));
}

TEST(VarnelAreaLoad, AReplacedOutlineIsTheCallers) {
    VarnelAreaLoad load;
    load.setArea(rectangle(4.0, 2.0).release());
    const std::unique_ptr<VarnelArea> former(load.getArea());
    load.setArea(rectangle(1.0, 1.0).release());
    EXPECT_EQ(8.0, former->getArea());
    EXPECT_EQ(1.0, load.getArea()->getArea());
    load.setArea(load.getArea());
    EXPECT_EQ(1.0, load.getArea()->getArea());
}

TEST(VarnelAreaLoad, NeverFreesAnOutlineThatItDoesNotOwn) {
    const std::unique_ptr<VarnelArea> shared = rectangle(4.0, 2.0);
    {
        VarnelAreaLoad load;
        load.setOwnsArea(false);
        load.setArea(shared.get());
        EXPECT_FALSE(load.getOwnsArea());
        EXPECT_EQ(shared.get(), load.getArea());
    }
    VarnelAreaLoad load;
    load.setArea(shared.get());
    load.setOwnsArea(false);
    load = VarnelAreaLoad();
    EXPECT_EQ(nullptr, load.getArea());
    EXPECT_EQ(8.0, shared->getArea());
}

TEST(VarnelAreaLoad, MayOutliveAnOutlineThatItDoesNotOwn) {
    auto shared = rectangle(4.0, 2.0);
    VarnelAreaLoad load;
    load.setOwnsArea(false);
    load.setArea(shared.get());
    shared.reset();
    load.setArea(nullptr);
    EXPECT_EQ(nullptr, load.getArea());
}

TEST(VarnelAreaLoad, OwnershipCanBeTakenLater) {
    VarnelAreaLoad load;
    load.setOwnsArea(false);
    load.setArea(rectangle(4.0, 2.0).release());
    load.setOwnsArea(true);
    load.setOwnsArea(true);
    EXPECT_TRUE(load.getOwnsArea());
}

TEST(VarnelAreaLoad, TwoLoadsWithOneOutlineFreeItOnce) {
    VarnelAreaLoad first, second;
    auto *outline = rectangle(4.0, 2.0).release();
    first.setArea(outline);
    second.setArea(outline);
    EXPECT_EQ(8.0, second.getArea()->getArea());
}

TEST(VarnelAreaLoad, CopiedHasAnOutlineOfItsOwn) {
    auto shared = rectangle(4.0, 2.0);
    auto source = std::make_unique<VarnelAreaLoad>();
    source->setOwnsArea(false);
    source->setArea(shared.get());
    source->setP(1.0, 2.0, 3.0);
    source->setNumber(3);
    source->setLcType(2);
    source->setChanged(false);
    VarnelAreaLoad copy(*source);
    VarnelAreaLoad assigned;
    assigned.setOwnsArea(false);
    assigned = *source;
    source.reset();
    shared.reset();
    for (VarnelAreaLoad *load : {&copy, &assigned}) {
        ASSERT_NE(nullptr, load->getArea());
        EXPECT_TRUE(load->getOwnsArea());
        EXPECT_EQ(8.0, load->getArea()->getArea());
        EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), load->getP());
        EXPECT_EQ(3, load->getNumber());
        EXPECT_EQ(2, load->getLcType());
        EXPECT_TRUE(load->getChanged());
    }
}

TEST(VarnelAreaLoad, AssignedKeepsTheOutlineThatItHas) {
    VarnelAreaLoad load, other;
    load.setArea(rectangle(4.0, 2.0).release());
    other.setArea(rectangle(1.0, 1.0).release());
    other.setP(0.0, 0.0, 5.0);
    const VarnelArea *own = load.getArea();
    load = other;
    EXPECT_EQ(own, load.getArea());
    EXPECT_EQ(8.0, load.getArea()->getArea());
    EXPECT_EQ(KzVector3D(0.0, 0.0, 5.0), load.getP());
}

TEST(VarnelAreaLoad, AssignedFromALoadWithoutAnOutlineLosesItsOwn) {
    VarnelAreaLoad load;
    load.setArea(rectangle(4.0, 2.0).release());
    load = VarnelAreaLoad();
    EXPECT_EQ(nullptr, load.getArea());
}

TEST(VarnelAreaLoad, AssignedToItselfStaysAsItIs) {
    VarnelAreaLoad load;
    load.setArea(rectangle(4.0, 2.0).release());
    const VarnelAreaLoad &same = load;
    load = same;
    ASSERT_NE(nullptr, load.getArea());
    EXPECT_EQ(8.0, load.getArea()->getArea());
}

TEST(VarnelAreaLoad, IsVisitedAsAnAreaLoad) {
    VarnelAreaLoad load;
    varnel::RecordingObjectVisitor visitor;
    VarnelObject &object = load;
    EXPECT_EQ(7, object.getVisited(&visitor));
    EXPECT_EQ("area load", visitor.kind);
    EXPECT_EQ(&load, visitor.object);
    EXPECT_EQ(0, object.getVisited(nullptr));
}

}  // namespace
