#include "varnel/loads/VarnelLineLoad.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>
#include <typeinfo>

#include "tests/support/RecordingObjectVisitor.h"
#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/geometry/VarnelCircle.h"
#include "varnel/geometry/VarnelStraight.h"

namespace {

VarnelStraight *straight(const KzVector3D &start, const KzVector3D &end) {
    return new VarnelStraight(start, end);
}

VarnelCircle *semicircle() {
    return new VarnelCircle(KzVector3D(), KzVector3D(1.0, 0.0, 0.0), KzVector3D(-1.0, 0.0, 0.0));
}

VarnelLineLoadData fullRecord() {
    VarnelLineLoadData data;
    data.setP1(1.0, 2.0, 3.0);
    data.setM1(4.0, 5.0, 6.0);
    data.setP2(7.0, 8.0, 9.0);
    data.setM2(10.0, 11.0, 12.0);
    return data;
}

void expectValues(const VarnelLineLoadData &data, const KzVector3D &p1, const KzVector3D &m1,
                  const KzVector3D &p2, const KzVector3D &m2) {
    EXPECT_EQ(p1, data.getP1());
    EXPECT_EQ(m1, data.getM1());
    EXPECT_EQ(p2, data.getP2());
    EXPECT_EQ(m2, data.getM2());
}

TEST(VarnelLineLoadData, IsBornZero) {
    const VarnelLineLoadData data;
    expectValues(data, KzVector3D(), KzVector3D(), KzVector3D(), KzVector3D());
    EXPECT_TRUE(data.isNull());
}

TEST(VarnelLineLoadData, MadeOfANumberHasItAtTheStartOnly) {
    const VarnelLineLoadData data(-2.5);
    expectValues(data, KzVector3D(0.0, 0.0, -2.5), KzVector3D(), KzVector3D(), KzVector3D());
}

TEST(VarnelLineLoadData, TakesVectorsAsVectorsAndAsNumbers) {
    VarnelLineLoadData data;
    data.setP1(KzVector3D(1.0, 2.0, 3.0));
    data.setM1(KzVector3D(4.0, 5.0, 6.0));
    data.setP2(KzVector3D(7.0, 8.0, 9.0));
    data.setM2(KzVector3D(10.0, 11.0, 12.0));
    const VarnelLineLoadData numbers = fullRecord();
    expectValues(numbers, data.getP1(), data.getM1(), data.getP2(), data.getM2());
    double x = 0.0, y = 0.0, z = 0.0;
    data.getP1(x, y, z);
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), KzVector3D(x, y, z));
    data.getM1(x, y, z);
    EXPECT_EQ(KzVector3D(4.0, 5.0, 6.0), KzVector3D(x, y, z));
    data.getP2(x, y, z);
    EXPECT_EQ(KzVector3D(7.0, 8.0, 9.0), KzVector3D(x, y, z));
    data.getM2(x, y, z);
    EXPECT_EQ(KzVector3D(10.0, 11.0, 12.0), KzVector3D(x, y, z));
}

TEST(VarnelLineLoadData, AddsEachVectorToItsOwn) {
    SysBase::Loadcase loadcase(1);
    VarnelLineLoadData left(1.0), right = fullRecord();
    left.setName("left");
    right.setName("right");
    right.setType(1);
    right.setLoadcase(&loadcase);
    EXPECT_EQ(&left, &(left += right));
    expectValues(left, KzVector3D(1.0, 2.0, 4.0), KzVector3D(4.0, 5.0, 6.0), KzVector3D(7.0, 8.0, 9.0),
                 KzVector3D(10.0, 11.0, 12.0));
    EXPECT_EQ("left", left.getName());
    EXPECT_EQ(0, left.getType());
    EXPECT_EQ(nullptr, left.getLoadcase());
}

TEST(VarnelLineLoadData, SwapsItsEndsAndBack) {
    VarnelLineLoadData data = fullRecord();
    data.swapEnds();
    expectValues(data, KzVector3D(7.0, 8.0, 9.0), KzVector3D(10.0, 11.0, 12.0), KzVector3D(1.0, 2.0, 3.0),
                 KzVector3D(4.0, 5.0, 6.0));
    data.swapEnds();
    const VarnelLineLoadData before = fullRecord();
    expectValues(data, before.getP1(), before.getM1(), before.getP2(), before.getM2());
}

TEST(VarnelLineLoadData, IsNotNullWithAnySingleVector) {
    using Setter = void (VarnelLineLoadData::*)(const KzVector3D &);
    for (Setter setter :
         {static_cast<Setter>(&VarnelLineLoadData::setP1), static_cast<Setter>(&VarnelLineLoadData::setM1),
          static_cast<Setter>(&VarnelLineLoadData::setP2), static_cast<Setter>(&VarnelLineLoadData::setM2)}) {
        VarnelLineLoadData data;
        (data.*setter)(KzVector3D(0.0, 1.0, 0.0));
        EXPECT_FALSE(data.isNull());
    }
}

TEST(VarnelLineLoad, IsBornChangedWithAnEmptyRecord) {
    auto *line = straight(KzVector3D(), KzVector3D(2.0, 0.0, 0.0));
    VarnelLineLoad load(line);
    EXPECT_EQ(line, load.getLine());
    EXPECT_EQ(line, load.getGeo());
    EXPECT_EQ(KzVector3D(0.0, 0.0, 1.0), load.getLocsys());
    EXPECT_EQ(0, load.getLocsysType());
    EXPECT_TRUE(load.isNull());
    EXPECT_TRUE(load.getChanged());
    EXPECT_TRUE(load.getActive());
    EXPECT_TRUE(load.isDead());
}

TEST(VarnelLineLoad, WithOnlyTheMomentAtTheEndIsNotNull) {
    VarnelLineLoad load(straight(KzVector3D(), KzVector3D(2.0, 0.0, 0.0)));
    load.setM2(0.0, 0.0, 1.0);
    EXPECT_FALSE(load.isNull());
}

TEST(VarnelLineLoad, TakesVectorsUpToTheToleranceForNull) {
    const KzVector3D least(1e-12, -1e-12, 1e-12);
    VarnelLineLoad load(nullptr);
    load.setP1(least);
    load.setM1(least);
    load.setP2(least);
    load.setM2(least);
    EXPECT_TRUE(load.isNull());
    load.setM2(0.0, 0.0, std::nextafter(1e-12, 1.0));
    EXPECT_FALSE(load.isNull());
}

TEST(VarnelLineLoad, KeepsTheDirectionOfItsLocalSystem) {
    VarnelLineLoad load(nullptr);
    load.setLocsys(1.0, 2.0, 3.0);
    double x = 0.0, y = 0.0, z = 0.0;
    load.getLocsys(x, y, z);
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), KzVector3D(x, y, z));
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), load.getLocsys());
}

TEST(VarnelLineLoad, MarksAChangeWhereItIsMeantTo) {
    struct Row {
        const char *setter;
        std::function<void(VarnelLineLoad &)> call;
        bool changed;
    };
    const KzVector3D v(1.0, 2.0, 3.0);
    const Row rows[] = {
        {"setLocsys", [v](VarnelLineLoad &l) { l.setLocsys(v); }, true},
        {"setLocsys of numbers", [](VarnelLineLoad &l) { l.setLocsys(0.0, 0.0, 1.0); }, true},
        {"setLoadcase", [](VarnelLineLoad &l) { l.setLoadcase(nullptr); }, true},
        {"setLocsysType", [](VarnelLineLoad &l) { l.setLocsysType(2); }, false},
        {"setP1", [v](VarnelLineLoad &l) { l.setP1(v); }, false},
        {"setP1 of numbers", [](VarnelLineLoad &l) { l.setP1(1.0, 2.0, 3.0); }, false},
        {"setM1", [v](VarnelLineLoad &l) { l.setM1(v); }, false},
        {"setM1 of numbers", [](VarnelLineLoad &l) { l.setM1(1.0, 2.0, 3.0); }, false},
        {"setP2", [v](VarnelLineLoad &l) { l.setP2(v); }, false},
        {"setP2 of numbers", [](VarnelLineLoad &l) { l.setP2(1.0, 2.0, 3.0); }, false},
        {"setM2", [v](VarnelLineLoad &l) { l.setM2(v); }, false},
        {"setM2 of numbers", [](VarnelLineLoad &l) { l.setM2(1.0, 2.0, 3.0); }, false},
        {"setData", [](VarnelLineLoad &l) { l.setData(fullRecord()); }, false},
        {"setActive", [](VarnelLineLoad &l) { l.setActive(false); }, false},
        {"moving the line", [v](VarnelLineLoad &l) { l.getLine()->setStart(v); }, false},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.setter);
        VarnelLineLoad load(straight(KzVector3D(), KzVector3D(2.0, 0.0, 0.0)));
        load.setChanged(false);
        row.call(load);
        EXPECT_EQ(row.changed, load.getChanged());
    }
}

TEST(VarnelLineLoad, PassesValuesToItsRecord) {
    VarnelLineLoad load(nullptr);
    load.setP1(1.0, 2.0, 3.0);
    load.setM1(KzVector3D(4.0, 5.0, 6.0));
    load.setP2(KzVector3D(7.0, 8.0, 9.0));
    load.setM2(10.0, 11.0, 12.0);
    expectValues(load.getData(), load.getP1(), load.getM1(), load.getP2(), load.getM2());
    double x = 0.0, y = 0.0, z = 0.0;
    load.getP1(x, y, z);
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), KzVector3D(x, y, z));
    load.getM1(x, y, z);
    EXPECT_EQ(KzVector3D(4.0, 5.0, 6.0), KzVector3D(x, y, z));
    load.getP2(x, y, z);
    EXPECT_EQ(KzVector3D(7.0, 8.0, 9.0), KzVector3D(x, y, z));
    load.getM2(x, y, z);
    EXPECT_EQ(KzVector3D(10.0, 11.0, 12.0), KzVector3D(x, y, z));
}

TEST(VarnelLineLoad, HasItsCentreInTheMiddleOfTheChord) {
    VarnelLineLoad load(straight(KzVector3D(1.0, 2.0, 3.0), KzVector3D(3.0, 6.0, 9.0)));
    EXPECT_EQ(KzVector3D(2.0, 4.0, 6.0), load.getCOG());
    VarnelLineLoad arc(semicircle());
    EXPECT_EQ(KzVector3D(), arc.getCOG());
}

TEST(VarnelLineLoad, HasTheLinesBaseWhenItsRecordIsLocal) {
    VarnelLineLoad load(straight(KzVector3D(), KzVector3D(0.0, 2.0, 0.0)));
    for (int type : {0, 2}) {
        load.setType(type);
        EXPECT_EQ(KzVector3D(1.0, 0.0, 0.0), load.getBase().getVector(0)) << type;
    }
    load.setType(1);
    const KzMatrix44 base = load.getBase();
    EXPECT_EQ(KzVector3D(0.0, 1.0, 0.0), base.getVector(0));
    EXPECT_EQ(KzVector3D(-1.0, 0.0, 0.0), base.getVector(1));
    EXPECT_EQ(KzVector3D(0.0, 0.0, 1.0), base.getVector(2));
    load.setLocsys(1.0, 0.0, 0.0);
    EXPECT_EQ(KzVector3D(0.0, 0.0, 1.0), load.getBase().getVector(1));
    load.setLocsys(0.0, 2.0, 0.0);  // along the line: no direction left to choose
    EXPECT_EQ(KzVector3D(0.0, 1.0, 0.0), load.getBase().getVector(1));
}

TEST(VarnelLineLoad, AsksItsLineForPlanes) {
    const KzMatrix44 plane = KzMatrix44::getId();
    VarnelLineLoad flat(straight(KzVector3D(), KzVector3D(2.0, 0.0, 0.0)));
    EXPECT_TRUE(flat.isInPlane(plane));
    EXPECT_TRUE(flat.touchesPlane(plane));
    VarnelLineLoad rising(straight(KzVector3D(), KzVector3D(2.0, 0.0, 1.0)));
    EXPECT_FALSE(rising.isInPlane(plane));
    EXPECT_TRUE(rising.touchesPlane(plane));
}

TEST(VarnelLineLoad, WithoutALineStandsNowhere) {
    VarnelLineLoad load(nullptr);
    load.setType(1);
    EXPECT_EQ(nullptr, load.getLine());
    EXPECT_EQ(KzVector3D(), load.getCOG());
    EXPECT_EQ(KzVector3D(1.0, 0.0, 0.0), load.getBase().getVector(0));
    EXPECT_FALSE(load.isInPlane(KzMatrix44::getId()));
    EXPECT_FALSE(load.touchesPlane(KzMatrix44::getId()));
    const VarnelLineLoad copy(load);
    EXPECT_EQ(nullptr, copy.getLine());
}

TEST(VarnelLineLoad, CopiedHasACloneOfTheLine) {
    auto source = std::make_unique<VarnelLineLoad>(semicircle());
    source->setData(fullRecord());
    source->setLocsys(1.0, 0.0, 0.0);
    source->setLocsysType(3);
    source->setNumber(6);
    source->setLcType(2);
    source->setActive(false);
    source->setChanged(false);
    const VarnelLineLoad copy(*source);
    EXPECT_NE(source->getLine(), copy.getLine());
    source.reset();
    ASSERT_NE(nullptr, dynamic_cast<VarnelCircle *>(copy.getLine()));
    EXPECT_EQ(KzVector3D(1.0, 0.0, 0.0), copy.getLine()->getStartVec());
    EXPECT_EQ(KzVector3D(7.0, 8.0, 9.0), copy.getP2());
    EXPECT_EQ(KzVector3D(1.0, 0.0, 0.0), copy.getLocsys());
    EXPECT_EQ(0, copy.getLocsysType()) << "the type of the local system is meant to be lost";
    EXPECT_EQ(6, copy.getNumber());
    EXPECT_EQ(2, copy.getLcType());
    EXPECT_FALSE(copy.getActive());
    EXPECT_TRUE(copy.getChanged());
}

TEST(VarnelLineLoad, AssignedMovesItsOwnLine) {
    auto source =
        std::make_unique<VarnelLineLoad>(straight(KzVector3D(1.0, 0.0, 0.0), KzVector3D(5.0, 0.0, 0.0)));
    source->setData(fullRecord());
    source->setLocsys(1.0, 0.0, 0.0);
    source->setLocsysType(3);
    source->setNumber(6);
    source->setLcType(2);
    source->setActive(false);
    VarnelLineLoad load(straight(KzVector3D(), KzVector3D(2.0, 0.0, 0.0)));
    const VarnelLine *own = load.getLine();
    load.setLocsysType(4);
    load.setChanged(false);
    load = *source;
    source.reset();
    EXPECT_EQ(own, load.getLine());
    EXPECT_EQ(KzVector3D(5.0, 0.0, 0.0), load.getLine()->getEndVec());
    EXPECT_EQ(KzVector3D(4.0, 5.0, 6.0), load.getM1());
    EXPECT_EQ(KzVector3D(1.0, 0.0, 0.0), load.getLocsys());
    EXPECT_EQ(4, load.getLocsysType());
    EXPECT_EQ(6, load.getNumber());
    EXPECT_EQ(2, load.getLcType());
    EXPECT_FALSE(load.getActive());
    EXPECT_TRUE(load.getChanged());
}

TEST(VarnelLineLoad, RefusesALineOfAnotherKindBeforeAnythingIsChanged) {
    VarnelLineLoad source(semicircle());
    source.setData(fullRecord());
    source.setNumber(6);
    source.setLocsys(1.0, 0.0, 0.0);
    VarnelLineLoad load(straight(KzVector3D(), KzVector3D(2.0, 0.0, 0.0)));
    load.setChanged(false);
    EXPECT_THROW(load = source, std::bad_cast);
    EXPECT_EQ(KzVector3D(2.0, 0.0, 0.0), load.getLine()->getEndVec());
    EXPECT_TRUE(load.isNull());
    EXPECT_EQ(0, load.getNumber());
    EXPECT_EQ(KzVector3D(0.0, 0.0, 1.0), load.getLocsys());
    EXPECT_FALSE(load.getChanged());
}

TEST(VarnelLineLoad, AssignedWithAMissingLineOnEitherSideIsHarmless) {
    VarnelLineLoad with(straight(KzVector3D(), KzVector3D(2.0, 0.0, 0.0)));
    VarnelLineLoad without(nullptr), target(nullptr);
    target = with;
    ASSERT_NE(nullptr, target.getLine());
    EXPECT_NE(with.getLine(), target.getLine());
    target = without;
    ASSERT_NE(nullptr, target.getLine());
    EXPECT_EQ(2.0, target.getLine()->getLength());
    const VarnelLineLoad &same = target;
    target = same;
    EXPECT_EQ(2.0, target.getLine()->getLength());
}

TEST(VarnelLineLoad, IsVisitedAsALineLoad) {
    VarnelLineLoad load(nullptr);
    varnel::RecordingObjectVisitor visitor;
    VarnelObject &object = load;
    EXPECT_EQ(7, object.getVisited(&visitor));
    EXPECT_EQ("line load", visitor.kind);
    EXPECT_EQ(&load, visitor.object);
    EXPECT_EQ(0, object.getVisited(nullptr));
}

}  // namespace
