#include "varnel/loads/VarnelPointLoad.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>

#include "tests/support/RecordingObjectVisitor.h"
#include "varnel/contracts/SysBase/Loadcase.h"

namespace {

KzMatrix44 someFrame() {
    KzMatrix44 frame = KzMatrix44::getId();
    frame.setVector(0, KzVector3D(0.0, 1.0, 0.0));
    frame.setVector(1, KzVector3D(-1.0, 0.0, 0.0));
    frame.setVector(3, KzVector3D(5.0, 6.0, 7.0));
    return frame;
}

void expectSameFrame(const KzMatrix44 &a, const KzMatrix44 &b) {
    for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(a.getVector(i), b.getVector(i)) << i;
}

TEST(VarnelPointLoadData, IsBornWithZeroVectorsAndABaseWithoutAMatrix) {
    const VarnelPointLoadData data;
    EXPECT_EQ(KzVector3D(), data.getForce());
    EXPECT_EQ(KzVector3D(), data.getMoment());
    EXPECT_FALSE(data.getIsDispLoad());
    ASSERT_NE(nullptr, data.getBase());
    EXPECT_EQ(nullptr, data.getBase()->getMatrix());
    expectSameFrame(KzMatrix44::getId(), data.getBaseMatrix());
    EXPECT_TRUE(data.isNull());
}

TEST(VarnelPointLoadData, CanBeMadeOfAForce) {
    const VarnelPointLoadData data(KzVector3D(1.0, 2.0, 3.0));
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), data.getForce());
    EXPECT_EQ(KzVector3D(), data.getMoment());
    EXPECT_NE(nullptr, data.getBase());
}

TEST(VarnelPointLoadData, TakesVectorsAsVectorsAndAsNumbers) {
    VarnelPointLoadData data;
    data.setForce(1.0, 2.0, 3.0);
    data.setMoment(4.0, 5.0, 6.0);
    double x = 0.0, y = 0.0, z = 0.0;
    data.getForce(x, y, z);
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), KzVector3D(x, y, z));
    data.getMoment(x, y, z);
    EXPECT_EQ(KzVector3D(4.0, 5.0, 6.0), KzVector3D(x, y, z));
    data.setForce(KzVector3D(7.0, 0.0, 0.0));
    data.setMoment(KzVector3D(0.0, 8.0, 0.0));
    EXPECT_EQ(KzVector3D(7.0, 0.0, 0.0), data.getForce());
    EXPECT_EQ(KzVector3D(0.0, 8.0, 0.0), data.getMoment());
}

TEST(VarnelPointLoadData, AddsForceAndMomentOnly) {
    SysBase::Loadcase mine(1), theirs(2);
    VarnelPointLoadData left, right;
    left.setName("left");
    left.setType(1);
    left.setLoadcase(&mine);
    left.setForce(1.0, 1.0, 1.0);
    left.setMoment(2.0, 2.0, 2.0);
    right.setName("right");
    right.setType(7);
    right.setLoadcase(&theirs);
    right.setIsDispLoad(true);
    right.setForce(10.0, 20.0, 30.0);
    right.setMoment(40.0, 50.0, 60.0);
    right.setBase(someFrame());
    EXPECT_EQ(&left, &(left += right));
    EXPECT_EQ(KzVector3D(11.0, 21.0, 31.0), left.getForce());
    EXPECT_EQ(KzVector3D(42.0, 52.0, 62.0), left.getMoment());
    EXPECT_EQ("left", left.getName());
    EXPECT_EQ(1, left.getType());
    EXPECT_EQ(&mine, left.getLoadcase());
    EXPECT_FALSE(left.getIsDispLoad());
    EXPECT_EQ(nullptr, left.getBase()->getMatrix());
    left += left;
    EXPECT_EQ(KzVector3D(22.0, 42.0, 62.0), left.getForce());
}

TEST(VarnelPointLoadData, TakesOverABaseAndFreesTheFormerOne) {
    VarnelPointLoadData data;
    auto *base = new VarnelBase();
    data.setBase(base);
    EXPECT_EQ(base, data.getBase());
    data.setBase(base);
    EXPECT_EQ(base, data.getBase());
    data.setBase(nullptr);
    EXPECT_EQ(nullptr, data.getBase());
}

TEST(VarnelPointLoadData, WithoutABaseHasNoAnglesAndTheIdentity) {
    VarnelPointLoadData data;
    data.setBase(nullptr);
    data.setAngle(0.5, 2);
    EXPECT_EQ(nullptr, data.getBase());
    EXPECT_EQ(0.0, data.getAngle(1));
    EXPECT_EQ(0.0, data.getAngle(2));
    expectSameFrame(KzMatrix44::getId(), data.getBaseMatrix());
    data.setBase(someFrame());
    ASSERT_NE(nullptr, data.getBase());
    expectSameFrame(someFrame(), data.getBaseMatrix());
}

TEST(VarnelPointLoadData, KeepsAnglesInItsBase) {
    VarnelPointLoadData data;
    data.setAngle(0.5, 2);
    EXPECT_DOUBLE_EQ(0.5, data.getAngle(2));
    EXPECT_DOUBLE_EQ(0.5, data.getBase()->getAngle(2));
    EXPECT_EQ(0.0, data.getAngle(7));
}

TEST(VarnelPointLoadData, CopiesTheBaseIntoOneOfItsOwn) {
    VarnelPointLoadData source(KzVector3D(1.0, 2.0, 3.0));
    source.setMoment(4.0, 5.0, 6.0);
    source.setIsDispLoad(true);
    source.setName("n");
    source.setBase(someFrame());
    VarnelPointLoadData assigned;
    VarnelBase *kept = assigned.getBase();
    assigned = source;
    EXPECT_EQ(kept, assigned.getBase());
    const VarnelPointLoadData copy(source);
    EXPECT_NE(source.getBase(), copy.getBase());
    for (const VarnelPointLoadData *data : {&copy, static_cast<const VarnelPointLoadData *>(&assigned)}) {
        EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), data->getForce());
        EXPECT_EQ(KzVector3D(4.0, 5.0, 6.0), data->getMoment());
        EXPECT_TRUE(data->getIsDispLoad());
        EXPECT_EQ("n", data->getName());
        expectSameFrame(someFrame(), data->getBaseMatrix());
    }
}

TEST(VarnelPointLoadData, LosesItsBaseToASourceWithoutOneAndGetsOneBack) {
    VarnelPointLoadData without, data;
    without.setBase(nullptr);
    data = without;
    EXPECT_EQ(nullptr, data.getBase());
    EXPECT_EQ(nullptr, VarnelPointLoadData(without).getBase());
    VarnelPointLoadData with;
    with.setBase(someFrame());
    data = with;
    ASSERT_NE(nullptr, data.getBase());
    expectSameFrame(someFrame(), data.getBaseMatrix());
    const VarnelPointLoadData &same = data;
    data = same;
    expectSameFrame(someFrame(), data.getBaseMatrix());
}

TEST(VarnelPointLoad, IsBornAtTheOriginEmptyActiveAndUnchanged) {
    VarnelPointLoad load;
    EXPECT_EQ(KzVector3D(), load.getCoor());
    EXPECT_TRUE(load.isNull());
    EXPECT_FALSE(load.getChanged());
    EXPECT_TRUE(load.getActive());
    EXPECT_FALSE(load.isDispLoad());
    EXPECT_EQ(load.getPoint(), load.getGeo());
    expectSameFrame(KzMatrix44::getId(), load.getBase());
}

TEST(VarnelPointLoad, CanBeMadeOfARecordAndAPlace) {
    VarnelPointLoadData data(KzVector3D(0.0, 0.0, 5.0));
    data.setName("crane");
    VarnelPointLoad load(data, KzVector3D(1.0, 2.0, 3.0));
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), load.getCoor());
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), load.getCOG());
    EXPECT_EQ(KzVector3D(0.0, 0.0, 5.0), load.getForce());
    EXPECT_EQ("crane", load.getName());
    EXPECT_FALSE(load.getChanged());
    EXPECT_NE(data.getBase(), load.getData().getBase());
}

TEST(VarnelPointLoad, WithOnlyTheDisplacementFlagIsNull) {
    VarnelPointLoad load;
    load.setDispLoad(true);
    EXPECT_TRUE(load.isDispLoad());
    EXPECT_TRUE(load.isNull());
    load.setMoment(0.0, 0.0, 1.0);
    EXPECT_FALSE(load.isNull());
    load.setMoment(KzVector3D());
    load.setForce(0.0, 1.0, 0.0);
    EXPECT_FALSE(load.isNull());
}

TEST(VarnelPointLoad, TakesVectorsUpToTheToleranceForNull) {
    VarnelPointLoad load;
    load.setForce(1e-12, -1e-12, 1e-12);
    load.setMoment(1e-12, -1e-12, 1e-12);
    EXPECT_TRUE(load.isNull());
    load.setMoment(0.0, 0.0, std::nextafter(1e-12, 1.0));
    EXPECT_FALSE(load.isNull());
}

TEST(VarnelPointLoad, MarksAChangeWhereItIsMeantTo) {
    struct Row {
        const char *setter;
        std::function<void(VarnelPointLoad &)> call;
        bool changed;
    };
    const Row rows[] = {
        {"setForce", [](VarnelPointLoad &l) { l.setForce(KzVector3D()); }, true},
        {"setForce of numbers", [](VarnelPointLoad &l) { l.setForce(0.0, 0.0, 0.0); }, true},
        {"setMoment", [](VarnelPointLoad &l) { l.setMoment(KzVector3D()); }, true},
        {"setMoment of numbers", [](VarnelPointLoad &l) { l.setMoment(0.0, 0.0, 0.0); }, true},
        {"setBase", [](VarnelPointLoad &l) { l.setBase(KzMatrix44::getId()); }, true},
        {"setLoadcase", [](VarnelPointLoad &l) { l.setLoadcase(nullptr); }, true},
        {"setCoor", [](VarnelPointLoad &l) { l.setCoor(KzVector3D(1.0, 0.0, 0.0)); }, false},
        {"setCoor of numbers", [](VarnelPointLoad &l) { l.setCoor(1.0, 0.0, 0.0); }, false},
        {"setData", [](VarnelPointLoad &l) { l.setData(VarnelPointLoadData()); }, false},
        {"setAngle", [](VarnelPointLoad &l) { l.setAngle(0.5, 2); }, false},
        {"setDispLoad", [](VarnelPointLoad &l) { l.setDispLoad(true); }, false},
        {"setActive", [](VarnelPointLoad &l) { l.setActive(false); }, false},
        {"setName", [](VarnelPointLoad &l) { l.setName("n"); }, false},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.setter);
        VarnelPointLoad load;
        row.call(load);
        EXPECT_EQ(row.changed, load.getChanged());
    }
}

TEST(VarnelPointLoad, MovingItMarksThePointAndNotTheLoad) {
    VarnelPointLoad load;
    load.getPoint()->setChanged(false);
    load.setCoor(KzVector3D(1.0, 2.0, 3.0));
    EXPECT_TRUE(load.getPoint()->getChanged());
    EXPECT_FALSE(load.getChanged());
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), load.getCoor());
    load.setCoor(4.0, 5.0, 6.0);
    double x = 0.0, y = 0.0, z = 0.0;
    load.getCoor(x, y, z);
    EXPECT_EQ(KzVector3D(4.0, 5.0, 6.0), KzVector3D(x, y, z));
}

TEST(VarnelPointLoad, PassesValuesToItsRecord) {
    VarnelPointLoad load;
    load.setForce(1.0, 2.0, 3.0);
    load.setMoment(4.0, 5.0, 6.0);
    load.setBase(someFrame());
    double x = 0.0, y = 0.0, z = 0.0;
    load.getForce(x, y, z);
    EXPECT_EQ(load.getData().getForce(), KzVector3D(x, y, z));
    load.getMoment(x, y, z);
    EXPECT_EQ(load.getData().getMoment(), KzVector3D(x, y, z));
    EXPECT_EQ(KzVector3D(4.0, 5.0, 6.0), load.getMoment());
    expectSameFrame(someFrame(), load.getBase());
    load.setAngle(0.25, 2);
    EXPECT_DOUBLE_EQ(0.25, load.getAngle(2));
    const VarnelPointLoad &constant = load;
    EXPECT_EQ(&load.getData(), &constant.getData());
}

TEST(VarnelPointLoad, AsksItsPointForPlanes) {
    const KzMatrix44 plane = KzMatrix44::getId();
    for (double z : {0.0, 0.0099, -0.0099}) {
        VarnelPointLoad load(VarnelPointLoadData(), KzVector3D(1.0, 1.0, z));
        EXPECT_TRUE(load.isInPlane(plane)) << z;
        EXPECT_TRUE(load.touchesPlane(plane)) << z;
    }
    for (double z : {0.01, -0.01, 3.0}) {
        VarnelPointLoad load(VarnelPointLoadData(), KzVector3D(1.0, 1.0, z));
        EXPECT_FALSE(load.isInPlane(plane)) << z;
        EXPECT_FALSE(load.touchesPlane(plane)) << z;
    }
}

TEST(VarnelPointLoad, CopiesHaveAPointAndARecordOfTheirOwn) {
    SysBase::Loadcase loadcase(1);
    auto source = std::make_unique<VarnelPointLoad>(VarnelPointLoadData(KzVector3D(1.0, 0.0, 0.0)),
                                                    KzVector3D(1.0, 2.0, 3.0));
    source->setNumber(4);
    source->setLcType(2);
    source->setActive(false);
    source->setLoadcase(&loadcase);
    source->setChanged(false);
    VarnelPointLoad copy(*source);
    VarnelPointLoad assigned;
    const VarnelPoint *own = assigned.getPoint();
    assigned = *source;
    EXPECT_EQ(own, assigned.getPoint());
    EXPECT_NE(source->getPoint(), copy.getPoint());
    source->setForce(9.0, 9.0, 9.0);
    source->setCoor(KzVector3D());
    source.reset();
    for (const VarnelPointLoad *load : {&copy, &assigned}) {
        EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), load->getCoor());
        EXPECT_EQ(KzVector3D(1.0, 0.0, 0.0), load->getForce());
        EXPECT_EQ(4, load->getNumber());
        EXPECT_EQ(2, load->getLcType());
        EXPECT_FALSE(load->getActive());
        EXPECT_EQ(&loadcase, load->getLoadcase());
        EXPECT_TRUE(load->getChanged());
    }
    const VarnelPointLoad &same = copy;
    copy = same;
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), copy.getCoor());
}

TEST(VarnelPointLoad, IsVisitedAsAPointLoad) {
    VarnelPointLoad load;
    varnel::RecordingObjectVisitor visitor;
    VarnelObject &object = load;
    EXPECT_EQ(7, object.getVisited(&visitor));
    EXPECT_EQ("point load", visitor.kind);
    EXPECT_EQ(&load, visitor.object);
    EXPECT_EQ(0, object.getVisited(nullptr));
}

TEST(VarnelPointLoad, DiesThroughEachOfItsBases) {
    std::unique_ptr<VarnelObject>(new VarnelPointLoad());
    std::unique_ptr<VarnelPosition>(new VarnelPointLoad());
    std::unique_ptr<VarnelStateObject>(new VarnelPointLoad());
}

}  // namespace
