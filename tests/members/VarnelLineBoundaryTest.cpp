#include "varnel/members/VarnelLineBoundary.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <type_traits>
#include <vector>

#include "tests/support/Places.h"
#include "tests/support/RecordingObjectVisitor.h"
#include "tests/support/VirtualSlot.h"
#include "varnel/geometry/VarnelCircle.h"
#include "varnel/geometry/VarnelStraight.h"

namespace {

const KzVector3D origin, onX(4.0, 0.0, 0.0), onY(0.0, 4.0, 0.0);

VarnelLine *straight() {
    return new VarnelStraight(origin, onX);
}

VarnelLine *arc() {
    return new VarnelCircle(origin, onX, onY);
}

/// A line that looks, when it dies, whether a record still refers to another one.
class LateLine : public VarnelStraight {
  public:
    LateLine(const VarnelLineBoundaryData &referrer, bool &targetThere)
        : VarnelStraight(origin, onX), referrer_(referrer), targetThere_(targetThere) {}
    LateLine(const LateLine &) = delete;
    LateLine &operator=(const LateLine &) = delete;
    ~LateLine() override { targetThere_ = referrer_.getReference() != nullptr; }

  private:
    const VarnelLineBoundaryData &referrer_;
    bool &targetThere_;
};

void expectSame(const KzMatrix44 &expected, const KzMatrix44 &actual) {
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_TRUE(varnel::isNear(expected.getVector(i), actual.getVector(i))) << i;
}

TEST(VarnelLineBoundary, TakesTheLineOverAndHasDefaults) {
    VarnelLine *line = straight();
    const VarnelLineBoundary boundary(line);
    EXPECT_EQ(line, boundary.getGeo());
    EXPECT_EQ(0, boundary.getData().getDof());
    EXPECT_EQ("", boundary.getName());
    EXPECT_EQ(0, boundary.getNumber());
    EXPECT_FALSE(boundary.getLocal());
    EXPECT_EQ(KzVector3D(0.0, 0.0, 1.0), boundary.getLocsys());
    EXPECT_EQ(nullptr, boundary.getStiffnessData());
    EXPECT_EQ(std::vector<double>(6), boundary.getStiffness());
    EXPECT_TRUE(boundary.getChanged()) << "through its new values and its new line";
}

TEST(VarnelLineBoundary, WhenItDiesTheLineGoesBeforeTheValues) {
    VarnelLineBoundaryData referrer;
    bool valuesThere = false;
    {
        VarnelLineBoundary boundary(new LateLine(referrer, valuesThere));
        referrer.setReference(&boundary.getData());
    }
    EXPECT_TRUE(valuesThere);
    EXPECT_EQ(nullptr, referrer.getReference());
}

TEST(VarnelLineBoundary, ItsOwnFlagIsBornFalse) {
    VarnelLineBoundary boundary(nullptr);
    boundary.getData().setChanged(false);
    EXPECT_FALSE(boundary.getChanged());
}

TEST(VarnelLineBoundary, MarksAChangeWhereItIsMeantTo) {
    struct Row {
        const char *setter;
        std::function<void(VarnelLineBoundary &)> call;
        bool changed, valuesChanged;
    };
    const Row rows[] = {
        {"setLocal", [](VarnelLineBoundary &b) { b.setLocal(false); }, true, true},
        {"setLocsys", [](VarnelLineBoundary &b) { b.setLocsys(KzVector3D(1.0, 0.0, 0.0)); }, false, false},
        {"setStiffness",
         [](VarnelLineBoundary &b) {
             b.setStiffness({1.0, 1.0, 1.0});
         },
         false, false},
        {"setName", [](VarnelLineBoundary &b) { b.setName("n"); }, false, false},
        {"setNumber", [](VarnelLineBoundary &b) { b.setNumber(3); }, false, false},
        {"setDof", [](VarnelLineBoundary &b) { b.getData().setDof(3); }, false, false},
        {"setData", [](VarnelLineBoundary &b) { b.setData(VarnelLineBoundaryData()); }, true, true},
        {"width", [](VarnelLineBoundary &b) { b.getData().setWidth(1.0); }, true, true},
        {"line", [](VarnelLineBoundary &b) { b.getGeo()->setEnd(onY); }, true, false},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.setter);
        VarnelLineBoundary boundary(straight());
        boundary.setChanged(false);
        ASSERT_FALSE(boundary.getChanged());
        row.call(boundary);
        EXPECT_EQ(row.changed, boundary.getChanged());
        EXPECT_EQ(row.valuesChanged, boundary.getData().getChanged());
    }
}

TEST(VarnelLineBoundary, SettingLocalMarksTheBoundaryItself) {
    VarnelLineBoundary boundary(straight());
    boundary.setChanged(false);
    boundary.setLocal(true);
    boundary.getData().setChanged(false);
    EXPECT_TRUE(boundary.getChanged());
    EXPECT_TRUE(boundary.getLocal());
}

TEST(VarnelLineBoundary, IsChangedAfterItsLinesEndHasMoved) {
    VarnelLineBoundary boundary(straight());
    boundary.setChanged(false);
    EXPECT_FALSE(boundary.getChanged());
    boundary.getGeo()->setEnd(KzVector3D(5.0, 0.0, 0.0));
    EXPECT_TRUE(boundary.getChanged());
}

TEST(VarnelLineBoundary, PassesTheFlagDown) {
    VarnelLineBoundary boundary(straight());
    for (const bool value : {false, true}) {
        boundary.setChanged(value);
        EXPECT_EQ(value, boundary.getChanged());
        EXPECT_EQ(value, boundary.getData().getChanged());
        EXPECT_EQ(value, boundary.getGeo()->getChanged());
        EXPECT_EQ(value, boundary.getGeo()->getStart()->getChanged());
    }
}

TEST(VarnelLineBoundary, KeepsWhatIsSetInItsValues) {
    VarnelLineBoundary boundary(straight());
    boundary.setName("LB");
    boundary.setNumber(12);
    boundary.setLocsys(1.0, 2.0, 3.0);
    boundary.setStiffness({0.0, 0.0, 7.0});
    EXPECT_EQ("LB", boundary.getData().getName());
    EXPECT_EQ(12, boundary.getData().getNumber());
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), boundary.getData().getLocsys());
    EXPECT_EQ(7.0, boundary.getStiffnessData()->getDispStiff().getZ());
    EXPECT_EQ((std::vector<double>{0.0, 0.0, 7.0, 0.0, 0.0, 0.0}), boundary.getStiffness());
}

TEST(VarnelLineBoundary, ItsFrameIsThatOfTheStraightOnceLocal) {
    VarnelLineBoundary boundary(new VarnelStraight(origin, onY));
    expectSame(KzMatrix44::getId(), boundary.getBase());
    boundary.setLocal(true);
    const KzMatrix44 base = boundary.getBase();
    expectSame(boundary.getGeo()->getBase(true, true, KzVector3D(0.0, 0.0, 1.0)), base);
    EXPECT_TRUE(varnel::isNear(KzVector3D(0.0, 1.0, 0.0), base.getVector(0)));
    EXPECT_TRUE(varnel::isNear(KzVector3D(0.0, 0.0, 1.0), base.getVector(2)));
    boundary.setLocsys(1.0, 0.0, 0.0);
    EXPECT_TRUE(varnel::isNear(KzVector3D(1.0, 0.0, 0.0), boundary.getBase().getVector(2)));
}

TEST(VarnelLineBoundary, ItsFrameOnAnArcIsTheIdentity) {
    VarnelLineBoundary boundary(arc());
    for (const bool local : {true, false}) {
        boundary.setLocal(local);
        expectSame(KzMatrix44::getId(), boundary.getBase());
    }
}

TEST(VarnelLineBoundary, LiesWhereItsLineLies) {
    const VarnelLineBoundary flat(straight());
    const VarnelLineBoundary rising(new VarnelStraight(origin, KzVector3D(0.0, 0.0, 2.0)));
    const KzMatrix44 ground = varnel::planeAtHeight(0.0), above = varnel::planeAtHeight(1.0);
    EXPECT_TRUE(flat.isInPlane(ground));
    EXPECT_TRUE(flat.touchesPlane(ground));
    EXPECT_FALSE(flat.touchesPlane(above));
    EXPECT_FALSE(rising.isInPlane(ground));
    EXPECT_TRUE(rising.touchesPlane(ground));
}

TEST(VarnelLineBoundary, WithoutALineItIsNowhere) {
    VarnelLineBoundary boundary(nullptr);
    EXPECT_EQ(nullptr, boundary.getGeo());
    boundary.setLocal(true);
    expectSame(KzMatrix44::getId(), boundary.getBase());
    EXPECT_FALSE(boundary.isInPlane(KzMatrix44::getId()));
    EXPECT_FALSE(boundary.touchesPlane(KzMatrix44::getId()));
    boundary.setChanged(false);
    EXPECT_FALSE(boundary.getChanged());
    VarnelLineBoundary copy(boundary);
    EXPECT_EQ(nullptr, copy.getGeo());
    copy = boundary;
    EXPECT_EQ(nullptr, copy.getGeo());
}

TEST(VarnelLineBoundary, DoesNotWidenABox) {
    VarnelLineBoundary boundary(straight());
    KzVector3D min(1.0, 1.0, 1.0), max(2.0, 2.0, 2.0);
    boundary.updateMinMax(&min, &max, KzMatrix44::getId());
    EXPECT_EQ(KzVector3D(1.0, 1.0, 1.0), min);
    EXPECT_EQ(KzVector3D(2.0, 2.0, 2.0), max);
}

TEST(VarnelLineBoundary, ShowsItselfToVisitors) {
    VarnelLineBoundary boundary(nullptr);
    VarnelObject &object = boundary;
    varnel::RecordingObjectVisitor visitor;
    EXPECT_EQ(7, object.getVisited(&visitor));
    EXPECT_EQ("line boundary", visitor.kind);
    EXPECT_EQ(&boundary, visitor.object);
    EXPECT_EQ(0, object.getVisited(nullptr));
}

TEST(VarnelLineBoundary, TakesPartInEveryLoadCase) {
    EXPECT_TRUE(VarnelLineBoundary(nullptr).isIn(nullptr));
}

TEST(VarnelLineBoundary, CopyHasALineOfItsOwnAndAFlagThatIsDown) {
    auto source = std::make_unique<VarnelLineBoundary>(arc());
    source->setName("LB");
    source->setNumber(4);
    source->getData().setDof(9);
    source->setLocal(true);
    VarnelLineBoundary copy(*source);
    EXPECT_NE(source->getGeo(), copy.getGeo());
    source.reset();
    EXPECT_NE(nullptr, dynamic_cast<VarnelCircle *>(copy.getGeo()));
    EXPECT_EQ(onX, copy.getGeo()->getStartVec());
    EXPECT_EQ("LB", copy.getName());
    EXPECT_EQ(9, copy.getData().getDof());
    EXPECT_TRUE(copy.getLocal());
    EXPECT_TRUE(copy.getData().getChanged());
    copy.getData().setChanged(false);
    copy.getGeo()->setChanged(false);
    EXPECT_FALSE(copy.getChanged());
}

TEST(VarnelLineBoundary, IsCopiedFromAChangeableSourceOnly) {
    EXPECT_TRUE((std::is_constructible<VarnelLineBoundary, VarnelLineBoundary &>::value));
    EXPECT_FALSE((std::is_constructible<VarnelLineBoundary, const VarnelLineBoundary &>::value));
}

TEST(VarnelLineBoundary, AssignmentSharesTheLine) {
    auto source = std::make_unique<VarnelLineBoundary>(straight());
    source->setName("LB");
    source->setChanged(false);
    VarnelLineBoundary target(arc());
    target = *source;
    EXPECT_EQ(source->getGeo(), target.getGeo());
    EXPECT_EQ("LB", target.getName());
    EXPECT_TRUE(target.getData().getChanged());
    source.reset();
    EXPECT_EQ(onX, target.getGeo()->getEndVec());
    target.getData().setChanged(false);
    EXPECT_FALSE(target.getChanged());
}

TEST(VarnelLineBoundary, AssignmentTakesTheFlagOver) {
    VarnelLineBoundary source(nullptr), target(nullptr);
    source.setLocal(true);
    target = source;
    target.getData().setChanged(false);
    EXPECT_TRUE(target.getChanged());
}

TEST(VarnelLineBoundary, SourceOutlivesTheAssigned) {
    VarnelLineBoundary source(straight());
    {
        VarnelLineBoundary target(nullptr);
        target = source;
    }
    EXPECT_EQ(onX, source.getGeo()->getEndVec());
}

TEST(VarnelLineBoundary, AssignedToItselfItKeepsItsLine) {
    VarnelLineBoundary boundary(straight());
    VarnelLine *line = boundary.getGeo();
    const VarnelLineBoundary &same = boundary;
    boundary = same;
    EXPECT_EQ(line, boundary.getGeo());
    EXPECT_EQ(onX, line->getEndVec());
}

TEST(VarnelLineBoundary, ItsOperationsKeepTheirSlots) {
    using varnel::virtualSlot;
    EXPECT_EQ(2, virtualSlot(&VarnelLineBoundary::updateMinMax));
    EXPECT_EQ(3, virtualSlot(&VarnelLineBoundary::getVisited));
    EXPECT_EQ(4, virtualSlot(&VarnelLineBoundary::isInPlane));
    EXPECT_EQ(5, virtualSlot(&VarnelLineBoundary::touchesPlane));
    EXPECT_EQ(6, virtualSlot(&VarnelLineBoundary::isIn));
    EXPECT_EQ(7, virtualSlot(&VarnelLineBoundary::getChanged));
    EXPECT_EQ(8, virtualSlot(&VarnelLineBoundary::setChanged));
}

}  // namespace
