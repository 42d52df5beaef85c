#include "varnel/loads/VarnelBeamLoad.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>

#include "tests/support/RecordingObjectVisitor.h"
#include "varnel/contracts/KzMatrix44.h"
#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/geometry/VarnelBeamGeo.h"
#include "varnel/members/VarnelBeam.h"

namespace {

void quiet(VarnelBeam &beam) {
    beam.setChanged(false);
}

TEST(VarnelBeamLoadData, IsBornWithAUnitForce) {
    const VarnelBeamLoadData data;
    EXPECT_EQ(KzVector3D(0.0, 0.0, 1.0), data.getForce());
    EXPECT_EQ(KzVector3D(), data.getMoment());
    EXPECT_EQ(KzVector3D(), data.getGlobalPoint());
    EXPECT_EQ(1, data.getLoadType());
    EXPECT_FALSE(data.isNull());
}

TEST(VarnelBeamLoadData, TakesVectorsAsVectorsAndAsNumbers) {
    VarnelBeamLoadData data;
    data.setForce(1.0, 2.0, 3.0);
    data.setMoment(4.0, 5.0, 6.0);
    data.setGlobalPoint(7.0, 8.0, 9.0);
    double x = 0.0, y = 0.0, z = 0.0;
    data.getForce(x, y, z);
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), KzVector3D(x, y, z));
    data.getMoment(x, y, z);
    EXPECT_EQ(KzVector3D(4.0, 5.0, 6.0), KzVector3D(x, y, z));
    data.getGlobalPoint(x, y, z);
    EXPECT_EQ(KzVector3D(7.0, 8.0, 9.0), KzVector3D(x, y, z));
    data.setGlobalPoint(KzVector3D(1.0, 0.0, 0.0));
    EXPECT_EQ(KzVector3D(1.0, 0.0, 0.0), data.getGlobalPoint());
    data.setLoadType(12);
    EXPECT_EQ(12, data.getLoadType());
}

TEST(VarnelBeamLoadData, AddsForceAndMomentOnly) {
    SysBase::Loadcase loadcase(1);
    VarnelBeamLoadData left, right;
    left.setName("left");
    left.setGlobalPoint(1.0, 1.0, 1.0);
    right.setName("right");
    right.setLoadcase(&loadcase);
    right.setLoadType(4);
    right.setMoment(1.0, 2.0, 3.0);
    right.setGlobalPoint(2.0, 2.0, 2.0);
    EXPECT_EQ(&left, &(left += right));
    EXPECT_EQ(KzVector3D(0.0, 0.0, 2.0), left.getForce());
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), left.getMoment());
    EXPECT_EQ(KzVector3D(1.0, 1.0, 1.0), left.getGlobalPoint());
    EXPECT_EQ(1, left.getLoadType());
    EXPECT_EQ("left", left.getName());
    EXPECT_EQ(nullptr, left.getLoadcase());
}

TEST(VarnelBeamLoadData, CopiesAllValues) {
    VarnelBeamLoadData data;
    data.setForce(1.0, 2.0, 3.0);
    data.setMoment(4.0, 5.0, 6.0);
    data.setGlobalPoint(7.0, 8.0, 9.0);
    data.setLoadType(3);
    data.setName("n");
    const VarnelBeamLoadData copy(data);
    EXPECT_EQ(data.getForce(), copy.getForce());
    EXPECT_EQ(data.getMoment(), copy.getMoment());
    EXPECT_EQ(data.getGlobalPoint(), copy.getGlobalPoint());
    EXPECT_EQ(3, copy.getLoadType());
    EXPECT_EQ("n", copy.getName());
}

TEST(VarnelBeamLoad, IsBornWithoutABeamAndNotNull) {
    VarnelBeamLoad load;
    EXPECT_EQ(nullptr, load.getBeam());
    EXPECT_FALSE(load.isNull());
    EXPECT_FALSE(load.getChanged());
    EXPECT_EQ(1, load.getLcType());
}

TEST(VarnelBeamLoad, WithoutABeamStandsNowhere) {
    VarnelBeamLoad load;
    EXPECT_EQ(nullptr, load.getGeo());
    EXPECT_EQ(KzVector3D(), load.getCOG());
    EXPECT_FALSE(load.isInPlane(KzMatrix44::getId()));
    EXPECT_FALSE(load.touchesPlane(KzMatrix44::getId()));
    load.setChanged(true);
    EXPECT_TRUE(load.getChanged());
}

TEST(VarnelBeamLoad, OnABeamWithoutAnAxisStandsAtTheOrigin) {
    VarnelBeam beam;
    beam.setGeo(nullptr);
    VarnelBeamLoad load;
    load.setBeam(&beam);
    EXPECT_EQ(nullptr, load.getGeo());
    EXPECT_EQ(KzVector3D(), load.getCOG());
}

TEST(VarnelBeamLoad, AnswersAsItsBeam) {
    VarnelBeam beam;
    beam.setLine(KzVector3D(1.0, 2.0, 0.0), KzVector3D(5.0, 2.0, 3.0), 0);
    VarnelBeamLoad load;
    load.setBeam(&beam);
    EXPECT_EQ(&beam, load.getBeam());
    EXPECT_EQ(beam.getGeo(), load.getGeo());
    EXPECT_EQ(beam.getGeo()->getCOG(), load.getCOG());
    EXPECT_FALSE(load.isInPlane(KzMatrix44::getId()));
    EXPECT_TRUE(load.touchesPlane(KzMatrix44::getId()));
    beam.setLine(KzVector3D(1.0, 2.0, 0.0), KzVector3D(5.0, 2.0, 0.0), 0);
    EXPECT_TRUE(load.isInPlane(KzMatrix44::getId()));
    beam.setLine(KzVector3D(1.0, 2.0, 1.0), KzVector3D(5.0, 2.0, 1.0), 0);
    EXPECT_FALSE(load.touchesPlane(KzMatrix44::getId()));
}

TEST(VarnelBeamLoad, StoringABeamMarksTheLoadAndNotTheBeam) {
    VarnelBeam beam;
    quiet(beam);
    VarnelBeamLoad load;
    load.setBeam(&beam);
    EXPECT_TRUE(load.getChanged());
    EXPECT_FALSE(beam.getChanged());
}

TEST(VarnelBeamLoad, IsChangedWithItsBeam) {
    VarnelBeam beam;
    VarnelBeamLoad load;
    load.setBeam(&beam);
    load.setChanged(false);
    EXPECT_FALSE(load.getChanged());
    beam.setOffset(KzVector3D(), 0);
    EXPECT_TRUE(load.getChanged());
}

TEST(VarnelBeamLoad, PassesItsFlagToTheBeam) {
    VarnelBeam beam;
    VarnelBeamLoad load;
    load.setBeam(&beam);
    load.setChanged(false);
    EXPECT_FALSE(beam.getChanged());
    load.setChanged(true);
    EXPECT_TRUE(beam.getChanged());
}

TEST(VarnelBeamLoad, MarksLoadAndBeamWhereItIsMeantTo) {
    struct Row {
        const char *setter;
        std::function<void(VarnelBeamLoad &)> call;
        bool changed;
    };
    const Row rows[] = {
        {"setForce", [](VarnelBeamLoad &l) { l.setForce(KzVector3D()); }, true},
        {"setForce of numbers", [](VarnelBeamLoad &l) { l.setForce(0.0, 0.0, 0.0); }, true},
        {"setMoment", [](VarnelBeamLoad &l) { l.setMoment(KzVector3D()); }, true},
        {"setData", [](VarnelBeamLoad &l) { l.setData(VarnelBeamLoadData()); }, true},
        {"setLoadcase", [](VarnelBeamLoad &l) { l.setLoadcase(nullptr); }, true},
        {"setType", [](VarnelBeamLoad &l) { l.setType(1); }, false},
        {"setLcType", [](VarnelBeamLoad &l) { l.setLcType(2); }, false},
        {"setName", [](VarnelBeamLoad &l) { l.setName("n"); }, false},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.setter);
        VarnelBeam beam;
        VarnelBeamLoad load;
        load.setBeam(&beam);
        load.setChanged(false);
        row.call(load);
        EXPECT_EQ(row.changed, beam.getChanged());
        EXPECT_EQ(row.changed, load.getChanged());
    }
}

TEST(VarnelBeamLoad, IsNullWithNullForceAndMoment) {
    VarnelBeamLoad load;
    load.setForce(KzVector3D());
    EXPECT_TRUE(load.isNull());
    load.setMoment(0.0, 1.0, 0.0);
    EXPECT_FALSE(load.isNull());
    double x = 0.0, y = 0.0, z = 0.0;
    load.getMoment(x, y, z);
    EXPECT_EQ(KzVector3D(0.0, 1.0, 0.0), KzVector3D(x, y, z));
    load.getForce(x, y, z);
    EXPECT_EQ(KzVector3D(), KzVector3D(x, y, z));
}

TEST(VarnelBeamLoad, TakesVectorsUpToTheToleranceForNull) {
    VarnelBeamLoad load;
    load.setForce(1e-12, -1e-12, 1e-12);
    load.setMoment(1e-12, -1e-12, 1e-12);
    EXPECT_TRUE(load.isNull());
    load.setMoment(0.0, 0.0, std::nextafter(1e-12, 1.0));
    EXPECT_FALSE(load.isNull());
}

TEST(VarnelBeamLoad, NeverFreesABeamThatItWasGiven) {
    VarnelBeam beam, other;
    {
        VarnelBeamLoad load;
        load.setBeam(&beam);
        load.setBeam(&other);
        load = VarnelBeamLoad();
        EXPECT_EQ(nullptr, load.getBeam());
        load.setBeam(&beam);
    }
    EXPECT_EQ(0.0, beam.getLength());
    EXPECT_EQ(0.0, other.getLength());
}

TEST(VarnelBeamLoad, ForgetsADyingBeamWithoutAChange) {
    auto beam = std::make_unique<VarnelBeam>();
    VarnelBeamLoad load;
    load.setBeam(beam.get());
    load.setChanged(false);
    beam.reset();
    EXPECT_EQ(load.getBeam(), nullptr);
    EXPECT_FALSE(load.getChanged());
    EXPECT_EQ(load.getGeo(), nullptr);
}

TEST(VarnelBeamLoad, CopiedHasACloneOfTheBeam) {
    auto beam = std::make_unique<VarnelBeam>();
    beam->setLine(KzVector3D(), KzVector3D(3.0, 4.0, 0.0), 0);
    auto source = std::make_unique<VarnelBeamLoad>();
    source->setBeam(beam.get());
    source->setNumber(5);
    source->setLcType(2);
    source->setForce(1.0, 2.0, 3.0);
    source->setChanged(false);
    VarnelBeamLoad copy(*source);
    VarnelBeamLoad assigned;
    assigned = *source;
    EXPECT_NE(beam.get(), copy.getBeam());
    EXPECT_NE(copy.getBeam(), assigned.getBeam());
    source.reset();
    beam.reset();
    for (VarnelBeamLoad *load : {&copy, &assigned}) {
        ASSERT_NE(nullptr, load->getBeam());
        EXPECT_EQ(5.0, load->getBeam()->getLength());
        EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), load->getForce());
        EXPECT_EQ(5, load->getNumber());
        EXPECT_EQ(2, load->getLcType());
        EXPECT_TRUE(load->getChanged());
    }
}

TEST(VarnelBeamLoad, AssignedFromALoadWithoutABeamLosesItsOwn) {
    VarnelBeam beam;
    VarnelBeamLoad given;
    given.setBeam(&beam);
    VarnelBeamLoad cloned(given);
    const VarnelBeamLoad without;
    given = without;
    cloned = without;
    EXPECT_EQ(nullptr, given.getBeam());
    EXPECT_EQ(nullptr, cloned.getBeam());
    EXPECT_TRUE(beam.getChanged());
}

TEST(VarnelBeamLoad, AssignedFromALoadWithABeamKeepsTheBeamThatItHas) {
    VarnelBeam mine, theirs;
    VarnelBeamLoad load, other;
    load.setBeam(&mine);
    other.setBeam(&theirs);
    other.setForce(2.0, 0.0, 0.0);
    load = other;
    EXPECT_EQ(&mine, load.getBeam());
    EXPECT_EQ(KzVector3D(2.0, 0.0, 0.0), load.getForce());
}

TEST(VarnelBeamLoad, ASetAsideCloneLivesAsLongAsTheLoad) {
    VarnelBeam beam;
    VarnelBeamLoad source;
    source.setBeam(&beam);
    VarnelBeamLoad copy(source);
    VarnelBeam *clone = copy.getBeam();
    copy.setBeam(&beam);
    EXPECT_EQ(1, clone->getParts());
    copy.setBeam(clone);
    copy.setBeam(nullptr);
    copy = source;
    EXPECT_NE(nullptr, copy.getBeam());
    EXPECT_NE(&beam, copy.getBeam());
}

TEST(VarnelBeamLoad, AssignedToItselfStaysAsItIs) {
    VarnelBeam beam;
    VarnelBeamLoad source;
    source.setBeam(&beam);
    VarnelBeamLoad load(source);
    const VarnelBeam *clone = load.getBeam();
    const VarnelBeamLoad &same = load;
    load = same;
    EXPECT_EQ(clone, load.getBeam());
    VarnelBeamLoad without;
    const VarnelBeamLoad &empty = without;
    without = empty;
    EXPECT_EQ(nullptr, without.getBeam());
}

TEST(VarnelBeamLoad, IsVisitedAsABeamLoad) {
    VarnelBeamLoad load;
    varnel::RecordingObjectVisitor visitor;
    VarnelObject &object = load;
    EXPECT_EQ(7, object.getVisited(&visitor));
    EXPECT_EQ("beam load", visitor.kind);
    EXPECT_EQ(&load, visitor.object);
    EXPECT_EQ(0, object.getVisited(nullptr));
}

}  // namespace
