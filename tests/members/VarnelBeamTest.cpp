#include "varnel/members/VarnelBeam.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <memory>
#include <string>

#include "tests/support/Noted.h"
#include "tests/support/RecordingObjectVisitor.h"
#include "tests/support/VirtualSlot.h"
#include "varnel/contracts/Found/Foundation.h"
#include "varnel/contracts/KzConcrete.h"
#include "varnel/contracts/KzReinfLine.h"
#include "varnel/contracts/SDBSectionLine.h"
#include "varnel/contracts/SysBase/BeamDesignLocation.h"
#include "varnel/contracts/SysBase/BeamResultState.h"
#include "varnel/contracts/SysBase/BeamStressResultantsLocation.h"
#include "varnel/contracts/SysBase/InterfaceStressLocation.h"
#include "varnel/geometry/VarnelBase.h"
#include "varnel/geometry/VarnelBeamGeo.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/members/VarnelBeamProperties.h"
#include "varnel/members/VarnelDesignData.h"
#include "varnel/members/VarnelGapControl.h"
#include "varnel/members/VarnelJoint.h"
#include "varnel/results/VarnelGapResultState.h"

namespace {

using varnel::Noted;

/// A beam that counts as unchanged until it is touched.
struct QuietBeam : VarnelBeam {
    QuietBeam() { setChanged(false); }
};

VarnelBeamGeo *chain(std::initializer_list<KzVector3D> points) {
    auto *geometry = new VarnelBeamGeo();
    for (const KzVector3D &point : points) geometry->addVertex(point);
    return geometry;
}

TEST(VarnelBeam, IsBornChangedWithOneLineOfLengthZero) {
    const VarnelBeam beam;
    EXPECT_TRUE(beam.getChanged());
    EXPECT_TRUE(beam.getActive());
    EXPECT_EQ(0, beam.getNumber());
    EXPECT_EQ("", beam.getName());
    EXPECT_EQ(0.0, beam.getLength());
    ASSERT_NE(nullptr, beam.getGeo());
    EXPECT_EQ(1u, beam.getGeo()->getNumLines());
    EXPECT_EQ(2u, beam.getGeo()->getNumPoints());
    EXPECT_TRUE(beam.getGeo()->isDegenerated());
    EXPECT_EQ(KzVector3D(), beam.getStartVec());
    EXPECT_EQ(KzVector3D(), beam.getEndVec());
    EXPECT_NE(&beam.getStart(), &beam.getEnd());
}

TEST(VarnelBeam, IsBornWithDefaults) {
    const VarnelBeam beam;
    EXPECT_EQ(1, beam.getParts());
    EXPECT_EQ(1, beam.getElementType());
    EXPECT_EQ(0, beam.getBeamType());
    EXPECT_EQ(0.5, beam.getMeshSize());
    EXPECT_EQ(0.0, beam.getAngle());
    EXPECT_EQ(nullptr, beam.getLeftGap());
    EXPECT_EQ(nullptr, beam.getRightGap());
    EXPECT_EQ(nullptr, beam.getBase());
    EXPECT_TRUE(beam.getFoundations().empty());
    EXPECT_TRUE(beam.getResultStates().empty());
    EXPECT_TRUE(beam.getJoints().empty());
    EXPECT_EQ(0, beam.getNumberOfJoints());
    EXPECT_TRUE(beam.getDesignResults().empty());
    EXPECT_FALSE(beam.isFireExposed());
    EXPECT_EQ(nullptr, beam.getDesign());
    EXPECT_EQ(nullptr, beam.getFoundation());
    EXPECT_EQ(nullptr, beam.getReinfLine());
    EXPECT_EQ(nullptr, beam.getMaterial(0));
    EXPECT_EQ(nullptr, beam.getConcrete(0));
    EXPECT_EQ(nullptr, beam.getSection(0));
    EXPECT_EQ(nullptr, beam.getTemperatureDistribution());
    EXPECT_FALSE(beam.hasOffset());
}

TEST(VarnelBeam, MarksAChangeWhereItIsMeantTo) {
    struct Row {
        const char *setter;
        std::function<void(VarnelBeam &)> call;
        bool changed;
    };
    static VarnelJoint stranger(0.0, 0);
    const Row rows[] = {
        {"add joint", [](VarnelBeam &b) { b.add(new VarnelJoint(0.5, 1)); }, true},
        {"remove joint", [](VarnelBeam &b) { b.remove(&stranger); }, true},
        {"removeJoints", [](VarnelBeam &b) { b.removeJoints(); }, true},
        {"setSection", [](VarnelBeam &b) { b.setSection(nullptr, 0); }, true},
        {"setSection beyond the ends", [](VarnelBeam &b) { b.setSection(nullptr, 2); }, true},
        {"setOffset beyond the ends", [](VarnelBeam &b) { b.setOffset(KzVector3D(), 2); }, true},
        {"setOffset", [](VarnelBeam &b) { b.setOffset(KzVector3D(), 0); }, true},
        {"setData", [](VarnelBeam &b) { b.setData(VarnelBeamProperties()); }, true},
        {"setDesign", [](VarnelBeam &b) { b.setDesign(nullptr); }, true},
        {"setParts", [](VarnelBeam &b) { b.setParts(1); }, true},
        {"setParts(0)", [](VarnelBeam &b) { b.setParts(0); }, false},
        {"setParts(-1)", [](VarnelBeam &b) { b.setParts(-1); }, false},
        {"setLine", [](VarnelBeam &b) { b.setLine(KzVector3D(), KzVector3D(), 0); }, true},
        {"setAngle", [](VarnelBeam &b) { b.setAngle(30.0); }, false},
        {"setElementType", [](VarnelBeam &b) { b.setElementType(2); }, false},
        {"setBeamType", [](VarnelBeam &b) { b.setBeamType(2); }, false},
        {"setMaterial", [](VarnelBeam &b) { b.setMaterial(nullptr, 0); }, false},
        {"setReinfLine", [](VarnelBeam &b) { b.setReinfLine(nullptr); }, false},
        {"setGeo", [](VarnelBeam &b) { b.setGeo(nullptr); }, false},
        {"setName", [](VarnelBeam &b) { b.setName("n"); }, false},
        {"setNumber", [](VarnelBeam &b) { b.setNumber(3); }, false},
        {"setMeshSize", [](VarnelBeam &b) { b.setMeshSize(0.1); }, false},
        {"setTemperatureDistribution", [](VarnelBeam &b) { b.setTemperatureDistribution(nullptr); }, false},
        {"setFireExposed", [](VarnelBeam &b) { b.setFireExposed(true); }, false},
        {"setLeftGap", [](VarnelBeam &b) { b.setLeftGap(new VarnelGapControl()); }, false},
        {"setRightGap", [](VarnelBeam &b) { b.setRightGap(new VarnelGapControl()); }, false},
        {"setBase", [](VarnelBeam &b) { b.setBase(nullptr); }, false},
        {"giveResultState", [](VarnelBeam &b) { b.giveResultState(1); }, false},
        {"removeResults", [](VarnelBeam &b) { b.removeResults(); }, false},
        {"add design result", [](VarnelBeam &b) { b.add(new SysBase::BeamDesignLocation()); }, false},
        {"removeFoundations", [](VarnelBeam &b) { b.removeFoundations(); }, false},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.setter);
        QuietBeam beam;
        row.call(beam);
        EXPECT_EQ(row.changed, beam.getChanged());
    }
}

TEST(VarnelBeam, SettingTheFoundationAssignsTheFlag) {
    Found::Foundation foundation(KzVector3D(0.0, 0.0, 1.0));
    VarnelBeam beam;
    beam.getGeo()->setChanged(false);
    beam.setFoundation(&foundation);
    EXPECT_TRUE(beam.getChanged());
    EXPECT_EQ(&foundation, beam.getFoundation());
    beam.setFoundation(&foundation);
    EXPECT_FALSE(beam.getChanged());
    beam.setSection(nullptr, 0);
    beam.setFoundation(&foundation);
    EXPECT_FALSE(beam.getChanged()) << "clears a change of another kind";
    beam.setFoundation(nullptr);
    EXPECT_TRUE(beam.getChanged());
}

TEST(VarnelBeam, IsChangedWithItsAxisAndPassesTheFlagToIt) {
    QuietBeam beam;
    EXPECT_FALSE(beam.getGeo()->getChanged());
    beam.getGeo()->setCoor(1, KzVector3D(1.0, 0.0, 0.0));
    EXPECT_TRUE(beam.getChanged());
    beam.setChanged(false);
    EXPECT_FALSE(beam.getChanged());
    beam.setChanged(true);
    EXPECT_TRUE(beam.getGeo()->getChanged());
}

TEST(VarnelBeam, DoesNotCountChangesOfJointsAndGaps) {
    VarnelBeam beam;
    auto *joint = new VarnelJoint(0.5, 1);
    beam.add(joint);
    beam.setLeftGap(new VarnelGapControl());
    beam.setChanged(false);
    joint->setDof(63);
    beam.getLeftGap()->setThick(0.3);
    EXPECT_FALSE(beam.getChanged());
}

TEST(VarnelBeam, PassesValuesToItsRecord) {
    SDBSectionLine section("R", 0.06);
    KzConcrete concrete("C30/37", 2500.0, 25.0);
    KzReinfLine line(3, "line");
    VarnelDesignData design;
    design.setCnom(0.07);
    VarnelBeam beam;
    beam.setSection(&section, 1);
    beam.setOffset(KzVector3D(0.0, 0.0, 0.1), 1);
    beam.setAngle(30.0);
    beam.setElementType(2);
    beam.setBeamType(3);
    beam.setDesign(&design);
    beam.setReinfLine(&line);
    beam.setMaterial(&concrete, 17);
    beam.setName("B1");
    const VarnelBeamProperties &data = beam.getData();
    EXPECT_EQ(&section, data.getSection(1));
    EXPECT_EQ(&section, beam.getSection(1));
    EXPECT_EQ(KzVector3D(0.0, 0.0, 0.1), data.getOffset(1));
    EXPECT_EQ(KzVector3D(0.0, 0.0, 0.1), beam.getOffset(1));
    EXPECT_TRUE(beam.hasOffset());
    EXPECT_EQ(30.0, data.getAngle());
    EXPECT_EQ(2, beam.getElementType());
    EXPECT_EQ(3, beam.getBeamType());
    EXPECT_EQ(0.07, beam.getDesign()->getCnom());
    EXPECT_EQ(&line, beam.getReinfLine());
    EXPECT_EQ(&concrete, beam.getMaterial(-4));
    EXPECT_EQ(&concrete, beam.getConcrete(9));
    EXPECT_EQ("B1", data.getName());
    EXPECT_EQ("B1", beam.getName());
}

TEST(VarnelBeam, IgnoresSectionsAndOffsetsBeyondItsEnds) {
    SDBSectionLine section("R", 0.06);
    VarnelBeam beam;
    for (int index : {-1, 2, 100}) {
        beam.setSection(&section, index);
        EXPECT_EQ(nullptr, beam.getSection(index));
    }
    beam.setOffset(KzVector3D(1.0, 0.0, 0.0), 2);
    EXPECT_EQ(KzVector3D(), beam.getOffset(2));
    EXPECT_FALSE(beam.hasOffset());
}

TEST(VarnelBeam, AssignsARecordIntoItsOwn) {
    VarnelBeam beam;
    const VarnelBeamProperties &own = beam.getData();
    VarnelBeamProperties data;
    data.setName("n");
    data.setParts(7);
    beam.setData(data);
    EXPECT_EQ(&own, &beam.getData());
    EXPECT_EQ("n", own.getName());
    EXPECT_EQ(7, beam.getParts());
    beam.setData(own);
    EXPECT_EQ(7, beam.getParts());
}

TEST(VarnelBeam, GivesItsPartsToTheFirstLineOnly) {
    VarnelBeam beam;
    beam.setGeo(chain({KzVector3D(), KzVector3D(1.0, 0.0, 0.0), KzVector3D(2.0, 0.0, 0.0)}));
    beam.setParts(4);
    EXPECT_EQ(4, beam.getParts());
    EXPECT_EQ(4, beam.getGeo()->getLine(0)->getNumberOfParts());
    EXPECT_EQ(0, beam.getGeo()->getLine(1)->getNumberOfParts());
    for (int parts : {0, -1}) {
        beam.setParts(parts);
        EXPECT_EQ(4, beam.getParts());
        EXPECT_EQ(4, beam.getGeo()->getLine(0)->getNumberOfParts());
    }
}

TEST(VarnelBeam, MovesTheEndsOfALine) {
    VarnelBeam beam;
    beam.setLine(KzVector3D(1.0, 2.0, 3.0), KzVector3D(4.0, 6.0, 3.0), 0);
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), beam.getStartVec());
    EXPECT_EQ(KzVector3D(4.0, 6.0, 3.0), beam.getEndVec());
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), beam.getStart().getCoor());
    EXPECT_EQ(KzVector3D(4.0, 6.0, 3.0), beam.getEnd().getCoor());
    EXPECT_EQ(5.0, beam.getLength());
    beam.setLine(KzVector3D(), KzVector3D(), -1);
    EXPECT_EQ(5.0, beam.getLength());
}

TEST(VarnelBeam, TurnsRoundWhenItsOwnEndsAreGivenToIt) {
    VarnelBeam beam;
    beam.setLine(KzVector3D(1.0, 2.0, 3.0), KzVector3D(4.0, 6.0, 3.0), 0);
    beam.setLine(beam.getEndVec(), beam.getStartVec(), 0);
    EXPECT_EQ(KzVector3D(4.0, 6.0, 3.0), beam.getStartVec());
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), beam.getEndVec());
}

TEST(VarnelBeam, MovesALineInTheMiddleOfAKinkedAxis) {
    VarnelBeam beam;
    beam.setGeo(chain({KzVector3D(), KzVector3D(1.0, 0.0, 0.0), KzVector3D(2.0, 0.0, 0.0)}));
    beam.setLine(KzVector3D(1.0, 1.0, 0.0), KzVector3D(3.0, 1.0, 0.0), 1);
    EXPECT_EQ(KzVector3D(), beam.getStartVec());
    EXPECT_EQ(KzVector3D(1.0, 1.0, 0.0), beam.getGeo()->getLine(0)->getEndVec());
    EXPECT_EQ(KzVector3D(3.0, 1.0, 0.0), beam.getEndVec());
}

TEST(VarnelBeam, HasPositionsOnTheStraightFromStartToEnd) {
    VarnelBeam beam;
    beam.setGeo(chain({KzVector3D(), KzVector3D(1.0, 5.0, 0.0), KzVector3D(4.0, 0.0, 2.0)}));
    EXPECT_EQ(KzVector3D(), beam.getPosition(0.0));
    EXPECT_EQ(KzVector3D(2.0, 0.0, 1.0), beam.getPosition(0.5));
    EXPECT_EQ(KzVector3D(4.0, 0.0, 2.0), beam.getPosition(1.0));
}

TEST(VarnelBeam, WithoutAnAxisIsHarmless) {
    VarnelBeam beam;
    for (VarnelBeamGeo *geometry : {static_cast<VarnelBeamGeo *>(nullptr), new VarnelBeamGeo()}) {
        SCOPED_TRACE(geometry ? "empty" : "none");
        beam.setGeo(geometry);
        beam.setLine(KzVector3D(1.0, 0.0, 0.0), KzVector3D(2.0, 0.0, 0.0), 0);
        beam.setParts(3);
        beam.setChanged(true);
        beam.setChanged(false);
        EXPECT_FALSE(beam.getChanged());
        EXPECT_EQ(KzVector3D(), beam.getStartVec());
        EXPECT_EQ(KzVector3D(), beam.getEndVec());
        EXPECT_EQ(KzVector3D(), beam.getPosition(0.5));
        EXPECT_EQ(0.0, beam.getLength());
        EXPECT_EQ(KzVector3D(0.0, 1.0, 0.0), beam.getMatrix().getVector(1));
        EXPECT_FALSE(beam.touchesPlane(KzMatrix44::getId()));
        KzVector3D min(1.0, 1.0, 1.0), max(2.0, 2.0, 2.0);
        beam.updateMinMax(&min, &max, KzMatrix44::getId());
    }
    beam.setGeo(nullptr);
    EXPECT_FALSE(beam.isInPlane(KzMatrix44::getId()));
    const VarnelBeam copy(beam);
    EXPECT_EQ(nullptr, copy.getGeo());
}

TEST(VarnelBeam, AnswersGeometryAsItsAxis) {
    VarnelBeam beam;
    beam.setLine(KzVector3D(1.0, 2.0, 0.0), KzVector3D(4.0, 6.0, 2.0), 0);
    EXPECT_FALSE(beam.isInPlane(KzMatrix44::getId()));
    EXPECT_TRUE(beam.touchesPlane(KzMatrix44::getId()));
    beam.setLine(KzVector3D(1.0, 2.0, 0.01), KzVector3D(4.0, 6.0, 0.0), 0);
    EXPECT_TRUE(beam.isInPlane(KzMatrix44::getId()));
    KzVector3D min, max(2.0, 2.0, 2.0);
    KzMatrix44 moved = KzMatrix44::getId();
    moved.setVector(3, KzVector3D(10.0, 0.0, 0.0));
    beam.updateMinMax(&min, &max, moved);
    EXPECT_EQ(KzVector3D(), min);
    EXPECT_EQ(KzVector3D(14.0, 6.0, 2.0), max);
}

TEST(VarnelBeam, TakesOverANewAxisAndFreesTheOldOne) {
    VarnelBeam beam;
    VarnelBeamGeo *axis = chain({KzVector3D(), KzVector3D(7.0, 0.0, 0.0)});
    beam.setGeo(axis);
    beam.setGeo(axis);
    EXPECT_EQ(axis, beam.getGeo());
    EXPECT_EQ(7.0, beam.getLength());
}

TEST(VarnelBeam, KeepsJointsInOrderAndFindsThemExactly) {
    VarnelBeam beam;
    auto *first = new VarnelJoint(0.1, 1);
    auto *second = new VarnelJoint(0.1, 2);
    beam.add(first);
    beam.add(static_cast<VarnelJoint *>(nullptr));
    beam.add(second);
    EXPECT_EQ(3, beam.getNumberOfJoints());
    EXPECT_EQ(first, beam.findJoint(0.1));
    EXPECT_EQ(nullptr, beam.findJoint(std::nextafter(0.1, 1.0)));
    EXPECT_EQ(nullptr, beam.findJoint(std::numeric_limits<double>::quiet_NaN()));
    beam.removeJoints();
    EXPECT_EQ(0, beam.getNumberOfJoints());
    EXPECT_EQ(nullptr, beam.findJoint(0.1));
}

TEST(VarnelBeam, ARemovedJointIsTheCallers) {
    VarnelBeam beam;
    std::unique_ptr<VarnelJoint> joint(new VarnelJoint(0.5, 1));
    auto *kept = new VarnelJoint(0.5, 1);
    beam.add(joint.get());
    beam.add(kept);
    beam.remove(joint.get());
    EXPECT_EQ(std::list<VarnelJoint *>{kept}, beam.getJoints());
    EXPECT_EQ(0u, joint->owners());
    EXPECT_EQ(0.5, joint->getPos());
}

TEST(VarnelBeam, GivesOneResultStateForEachNumber) {
    VarnelBeam beam;
    SysBase::BeamResultState *state = beam.giveResultState(5);
    EXPECT_EQ(5, state->getStateNumber());
    EXPECT_EQ(state, beam.giveResultState(5));
    EXPECT_EQ(state, beam.findResultState(5));
    EXPECT_EQ(nullptr, beam.findResultState(4));
    SysBase::BeamResultState *other = beam.giveResultState(-1);
    ASSERT_EQ(2u, beam.getResultStates().size());
    EXPECT_EQ(state, beam.getResultStates().front());
    EXPECT_EQ(other, beam.getResultStates().back());
}

TEST(VarnelBeam, FindsEachOfManyResultStates) {
    VarnelBeam beam;
    for (int i = 0; i < 10000; ++i) beam.giveResultState(i * 7919 % 10007);
    EXPECT_EQ(10000u, beam.getResultStates().size());
    for (SysBase::BeamResultState *state : beam.getResultStates())
        ASSERT_EQ(state, beam.findResultState(state->getStateNumber()));
}

TEST(VarnelBeam, RemovesResultsWithThoseOfItsGaps) {
    VarnelBeam beam;
    beam.setLeftGap(new VarnelGapControl());
    beam.setRightGap(new VarnelGapControl());
    beam.giveResultState(1);
    beam.getLeftGap()->giveResultState(1);
    beam.getRightGap()->giveResultState(1);
    beam.add(new SysBase::BeamDesignLocation(0.5));
    EXPECT_EQ(1u, beam.getDesignResults().size());
    beam.removeResults();
    EXPECT_TRUE(beam.getResultStates().empty());
    EXPECT_EQ(nullptr, beam.findResultState(1));
    EXPECT_EQ(nullptr, beam.getLeftGap()->findResultState(1));
    EXPECT_EQ(nullptr, beam.getRightGap()->findResultState(1));
    EXPECT_TRUE(beam.getDesignResults().empty());
}

TEST(VarnelBeam, RemovesStatesThenLeftAndRightGapThenDesignResults) {
    std::string notes;
    VarnelBeam beam;
    auto *left = new VarnelGapControl();
    auto *right = new VarnelGapControl();
    beam.setLeftGap(left);
    beam.setRightGap(right);
    beam.add(new Noted<SysBase::BeamDesignLocation>(notes, 'D'));
    right->giveResultState(1)->add(new Noted<SysBase::InterfaceStressLocation>(notes, 'R'));
    left->giveResultState(1)->add(new Noted<SysBase::InterfaceStressLocation>(notes, 'L'));
    beam.giveResultState(1)->add(new Noted<SysBase::BeamStressResultantsLocation>(notes, 'S'));
    beam.removeResults();
    EXPECT_EQ("SLRD", notes);
}

TEST(VarnelBeam, DiesFromItsResultsOverItsJointsToItsAxis) {
    std::string notes;
    {
        VarnelBeam beam;
        beam.setGeo(new Noted<VarnelBeamGeo>(notes, 'A'));
        beam.add(new Noted<VarnelJoint>(notes, 'J', 0.5, 1));
        beam.add(new Noted<SysBase::BeamDesignLocation>(notes, 'D'));
        beam.setLeftGap(new VarnelGapControl());
        beam.setRightGap(new VarnelGapControl());
        beam.getRightGap()->giveResultState(1)->add(new Noted<SysBase::InterfaceStressLocation>(notes, 'R'));
        beam.getLeftGap()->giveResultState(1)->add(new Noted<SysBase::InterfaceStressLocation>(notes, 'L'));
        beam.giveResultState(1)->add(new Noted<SysBase::BeamStressResultantsLocation>(notes, 'S'));
    }
    EXPECT_EQ("SLRDJA", notes);
}

TEST(VarnelBeam, DyingLetsGoOfAGapAtBothEndsBeforeItsAxis) {
    std::string notes;
    {
        VarnelBeam beam;
        beam.setGeo(new Noted<VarnelBeamGeo>(notes, 'A'));
        beam.add(new Noted<VarnelJoint>(notes, 'J', 0.5, 1));
        auto *gap = new VarnelGapControl();
        gap->giveResultState(1)->add(new Noted<SysBase::InterfaceStressLocation>(notes, 'G'));
        beam.setLeftGap(gap);
        beam.setRightGap(gap);
    }
    EXPECT_EQ("JGA", notes);
}

TEST(VarnelBeam, DyingShowsNoDeadStatesToAResultThatAsks) {
    class Asking : public SysBase::BeamDesignLocation {
      public:
        Asking(const VarnelBeam &beam, bool &seen) : beam_(beam), seen_(seen) {}
        ~Asking() override { seen_ = beam_.findResultState(1) != nullptr; }

      private:
        const VarnelBeam &beam_;
        bool &seen_;
    };
    bool seen = true;
    {
        VarnelBeam beam;
        beam.giveResultState(1);
        beam.add(new Asking(beam, seen));
    }
    EXPECT_FALSE(seen);
}

TEST(VarnelBeam, WithoutGapsRemovesItsOwnResults) {
    VarnelBeam beam;
    beam.giveResultState(1);
    beam.removeResults();
    EXPECT_TRUE(beam.getResultStates().empty());
    EXPECT_NE(nullptr, beam.giveResultState(1));
}

TEST(VarnelBeam, KeepsAReplacedGapUntilItDies) {
    VarnelBeam beam;
    auto *first = new VarnelGapControl();
    beam.setLeftGap(first);
    beam.setLeftGap(new VarnelGapControl());
    beam.setLeftGap(nullptr);
    EXPECT_EQ(nullptr, beam.getLeftGap());
    EXPECT_EQ(0.01, first->getThick());
    beam.setLeftGap(first);
    beam.setRightGap(first);
    EXPECT_EQ(first, beam.getLeftGap());
    EXPECT_EQ(first, beam.getRightGap());
}

TEST(VarnelBeam, HasTheVolumeOfAFrustum) {
    SDBSectionLine four("four", 4.0), one("one", 1.0);
    VarnelBeam beam;
    beam.setLine(KzVector3D(), KzVector3D(3.0, 0.0, 0.0), 0);
    beam.setSection(&four, 0);
    beam.setSection(&one, 1);
    EXPECT_DOUBLE_EQ(7.0, beam.getVolumen());
    beam.setSection(nullptr, 1);
    EXPECT_DOUBLE_EQ(12.0, beam.getVolumen());
    beam.setSection(&one, 1);
    beam.setSection(nullptr, 0);
    EXPECT_EQ(0.0, beam.getVolumen());
}

TEST(VarnelBeam, WeighsBySpecificWeightAndNotByDensity) {
    SDBSectionLine section("R", 0.5);
    KzConcrete concrete("C30/37", 2500.0, 25.0);
    VarnelBeam beam;
    beam.setLine(KzVector3D(), KzVector3D(2.0, 0.0, 0.0), 0);
    beam.setSection(&section, 0);
    EXPECT_EQ(0.0, beam.getWeight());
    beam.setMaterial(&concrete, 0);
    EXPECT_DOUBLE_EQ(25.0, beam.getWeight());
    beam.setSection(nullptr, 0);
    EXPECT_EQ(0.0, beam.getWeight());
}

TEST(VarnelBeam, UsesItsOwnFoundation) {
    Found::Foundation mine(KzVector3D(0.0, 0.0, 1.0)), other(KzVector3D(0.0, 0.0, 2.0));
    VarnelBeam beam;
    EXPECT_FALSE(beam.checkUsed(&mine));
    EXPECT_TRUE(beam.checkUsed(nullptr)) << "the foundation that it has none of";
    beam.setFoundation(&mine);
    EXPECT_TRUE(beam.checkUsed(&mine));
    EXPECT_FALSE(beam.checkUsed(nullptr));
    EXPECT_FALSE(beam.checkUsed(&other));
}

TEST(VarnelBeam, IgnoresFoundationsWithoutAManager) {
    VarnelBeam beam;
    beam.addFoundation(KzVector3D(), 0.0, KzVector3D(), 1.0, nullptr);
    EXPECT_TRUE(beam.getFoundations().empty());
}

TEST(VarnelBeam, IsVisitedAsABeam) {
    VarnelBeam beam;
    varnel::RecordingObjectVisitor visitor;
    VarnelObject &object = beam;
    EXPECT_EQ(7, object.getVisited(&visitor));
    EXPECT_EQ("beam", visitor.kind);
    EXPECT_EQ(&beam, visitor.object);
    EXPECT_EQ(0, object.getVisited(nullptr));
    EXPECT_TRUE(object.isIn(nullptr));
}

TEST(VarnelBeam, NamesItselfThroughItsPosition) {
    VarnelBeam beam;
    VarnelPosition &position = beam;
    position.setName("B7");
    EXPECT_EQ("B7", beam.getName());
    EXPECT_EQ("B7", position.getName());
}

TEST(VarnelBeam, KeepsItsSlots) {
    using varnel::virtualSlot;
    EXPECT_EQ(2, virtualSlot(&VarnelBeam::getChanged));
    EXPECT_EQ(3, virtualSlot(&VarnelBeam::setChanged));
    EXPECT_EQ(4, virtualSlot(&VarnelBeam::setName));
    EXPECT_EQ(5, virtualSlot(&VarnelBeam::getName));
    EXPECT_EQ(6, virtualSlot(&VarnelBeam::updateMinMax));
    EXPECT_EQ(7, virtualSlot(&VarnelBeam::getVisited));
    EXPECT_EQ(8, virtualSlot(&VarnelBeam::isInPlane));
    EXPECT_EQ(9, virtualSlot(&VarnelBeam::touchesPlane));
}

}  // namespace
