#include <gtest/gtest.h>

#include <list>
#include <memory>
#include <string>
#include <vector>

#include "varnel/contracts/KzMaterial.h"
#include "varnel/contracts/SDBSection.h"
#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/geometry/VarnelAreaPolygon.h"
#include "varnel/geometry/VarnelBeamGeo.h"
#include "varnel/geometry/VarnelCircle.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/geometry/VarnelStraight.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/loads/VarnelBeamLoad.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelAttributeArea.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelDesignData.h"
#include "varnel/members/VarnelGap.h"
#include "varnel/members/VarnelHole.h"
#include "varnel/members/VarnelJoint.h"
#include "varnel/members/VarnelLineBoundary.h"
#include "varnel/members/VarnelLoadDistributionArea.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPlateEdgeData.h"
#include "varnel/members/VarnelPointBoundaryCircle.h"
#include "varnel/members/VarnelRefinePolygon.h"
#include "varnel/model/VarnelDB.h"
#include "varnel/model/VarnelObjectGroup.h"
#include "varnel/model/VarnelSetupHelper.h"
#include "varnel/results/VarnelResultSection.h"

namespace {

const std::vector<KzVector3D> square{{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0}};

/// One object of every kind, with numbers that no numbering would give.
void fill(VarnelDB &model, SysBase::Loadcase *loadcase = nullptr) {
    VarnelPlate *plate = model.givePlate(false);
    plate->setNumber(11);
    plate->setArea(model.giveAreaPolygon(square));
    plate->setBoundary(0, VarnelLineBoundaryData(7, "W"));
    plate->setEdgeJoint(0, 5);
    model.add(plate);
    model.add(plate, new VarnelAreaLoad);
    VarnelBeam *beam = model.giveBeam(KzVector3D(), KzVector3D(3, 0, 0));
    beam->setNumber(12);
    beam->add(new VarnelJoint(0.5, 1));
    model.add(beam);
    VarnelHole *hole = model.giveHole();
    hole->setNumber(13);
    hole->setArea(model.giveAreaPolygon(square));
    model.add(hole);
    model.givePointBoundaryCircle(KzVector3D(1, 1, 0), 7, 0.4)->setNumber(14);
    auto *boundary = new VarnelLineBoundary(new VarnelStraight(KzVector3D(), KzVector3D(1, 0, 0)));
    boundary->setNumber(15);
    boundary->getData().setName("L");
    model.add(boundary);
    model.givePointLoad()->setNumber(16);
    model.giveLineLoad(new VarnelStraight(KzVector3D(), KzVector3D(1, 0, 0)))->setNumber(17);
    model.giveAreaLoad()->setArea(new VarnelAreaPolygon(square));
    model.getAreaLoads().back()->setNumber(18);
    model.giveBeamLoad()->setBeam(beam);
    model.getBeamLoads().back()->setNumber(19);
    model.getPointLoads().back()->setLoadcase(loadcase);
    model.add(new VarnelStraight(KzVector3D(), KzVector3D(1, 0, 0)));
    model.givePoint(KzVector3D(1, 2, 3));
    model.giveGap()->add(KzVector3D());
    model.add(model.giveLoadDistributionArea());
    model.giveDesignData();
    auto *polygon = new VarnelRefinePolygon;
    polygon->setArea(model.giveAreaPolygon(square));
    model.add(polygon);
    model.giveAttributeArea();
    model.add(model.giveResultSection(KzVector3D(), KzVector3D(1, 0, 0)));
    model.add(new VarnelObjectGroup("G"));
    model.getObjectGroups().back()->add(plate);
    model.setDescription("House");
    model.setNumberOfBeamLocations(8);
    model.setAcceleration(KzVector3D(0, 1, 0));
    model.setCurrentStatus(3);
    model.setSystemMode(4);
}

void expectOneOfEach(const Varnel &model, std::size_t count) {
    EXPECT_EQ(model.getBeams().size(), count);
    EXPECT_EQ(model.getPlates().size(), count);
    EXPECT_EQ(model.getHoles().size(), count);
    EXPECT_EQ(model.getPointBoundaries().size(), count);
    EXPECT_EQ(model.getLineBoundaries().size(), count);
    EXPECT_EQ(model.getPointLoads().size(), count);
    EXPECT_EQ(model.getLineLoads().size(), count);
    EXPECT_EQ(model.getAreaLoads().size(), count);
    EXPECT_EQ(model.getBeamLoads().size(), count);
}

}  // namespace

TEST(VarnelCopy, TheDeepCopyHasObjectsOfItsOwnWithTheSourcesNumbers) {
    SysBase::Loadcase loadcase(1);
    VarnelDB target(nullptr);
    KzMaterial material("M", 1, 1);
    {
        VarnelDB source(nullptr);
        fill(source, &loadcase);
        source.getPlates().front()->setMaterial(&material, 0);
        target.copy(source);
        EXPECT_NE(target.getPlates().front(), source.getPlates().front());
        EXPECT_EQ(target.getDBaseFactory(), source.getDBaseFactory());
    }
    expectOneOfEach(target, 1);
    const VarnelPlate *plate = target.getPlates().front();
    EXPECT_EQ(plate->getNumber(), 11);
    EXPECT_EQ(plate->getParent(), nullptr);
    EXPECT_EQ(plate->getMaterial(0), &material);
    EXPECT_TRUE(plate->getAreaLoads().empty());
    EXPECT_EQ(plate->getEdgeData(0)->getJoint(), 0);
    EXPECT_EQ(plate->getGeo()->getNumLines(), 4U);
    EXPECT_TRUE(target.hasPlatewithName(plate->getName()));
    EXPECT_EQ(target.findLineBoundaryToName("W"), plate->getBoundary(0));
    EXPECT_EQ(target.findLineBoundaryToName("L"), &target.getLineBoundaries().front()->getData());
    EXPECT_EQ(target.getBeams().front()->getNumber(), 12);
    EXPECT_TRUE(target.getBeams().front()->getJoints().empty());
    EXPECT_EQ(target.getBeams().front()->getEndVec(), KzVector3D(3, 0, 0));
    EXPECT_EQ(target.getHoles().front()->getNumber(), 13);
    EXPECT_EQ(target.getPointBoundaries().front()->getNumber(), 14);
    EXPECT_EQ(target.getLineBoundaries().front()->getNumber(), 15);
    EXPECT_EQ(target.getPointLoads().front()->getNumber(), 16);
    EXPECT_EQ(target.getPointLoads().front()->getLoadcase(), &loadcase);
    EXPECT_EQ(target.getLineLoads().front()->getNumber(), 17);
    EXPECT_EQ(target.getAreaLoads().front()->getNumber(), 18);
    EXPECT_EQ(target.getBeamLoads().front()->getNumber(), 19);
    EXPECT_NE(target.getBeamLoads().front()->getBeam(), nullptr);
    EXPECT_TRUE(target.systemChanged());
    EXPECT_TRUE(target.loadChanged());
}

TEST(VarnelCopy, TheDeepCopyTakesGravityAndLeavesTheRest) {
    VarnelDB source(nullptr);
    fill(source);
    SDBSection section("S", 1);
    source.addGeneratedSection(&section);
    VarnelDB target(nullptr);
    target.copy(source);
    EXPECT_FALSE(target.check(&section));
    EXPECT_EQ(target.getAcceleration(), KzVector3D(0, 1, 0));
    EXPECT_EQ(target.getNumberOfBeamLocations(), 8);
    EXPECT_EQ(target.getDescription(), "");
    EXPECT_EQ(target.getSystemMode(), 0);
    EXPECT_EQ(target.getCurrentStatus(), 0);
    EXPECT_TRUE(target.getPoints().empty());
    EXPECT_TRUE(target.getLines().empty());
    EXPECT_TRUE(target.getGaps().empty());
    EXPECT_TRUE(target.getLoadDistributionAreas().empty());
    EXPECT_TRUE(target.getDesignParameters().empty());
    EXPECT_TRUE(target.getRefinePolygons().empty());
    EXPECT_TRUE(target.getAttributeAreas().empty());
    EXPECT_TRUE(target.getResultSections().empty());
    EXPECT_TRUE(target.getObjectGroups().empty());
    VarnelDB view(source);
    EXPECT_TRUE(view.check(&section));
}

TEST(VarnelCopy, TheDeepCopyAppends) {
    VarnelDB source(nullptr);
    fill(source);
    VarnelDB target(nullptr);
    fill(target);
    target.copy(source);
    expectOneOfEach(target, 2);
    EXPECT_EQ(target.getPlates().back()->getNumber(), 11);
    EXPECT_EQ(target.findPlateToNumber(11), target.getPlates().front());
    target.copy(target);
    expectOneOfEach(target, 4);
}

TEST(VarnelCopy, TheDeepCopyListsEdgesBeforeLineBoundaries) {
    VarnelDB source(nullptr);
    source.add(new VarnelLineBoundary(new VarnelStraight(KzVector3D(), KzVector3D(1, 0, 0))));
    fill(source);
    VarnelDB target(nullptr);
    target.copy(source);
    const VarnelPlate *plate = target.getPlates().front();
    std::list<VarnelLineBoundaryData *> expected{plate->getBoundary(0), nullptr, nullptr, nullptr};
    for (VarnelLineBoundary *boundary : target.getLineBoundaries()) expected.push_back(&boundary->getData());
    EXPECT_EQ(target.getLineBoundaryDatas(), expected);
}

TEST(VarnelCopy, TheDeepCopySkipsNullEntries) {
    VarnelDB source(nullptr);
    source.add(static_cast<VarnelPlate *>(nullptr));
    source.add(static_cast<VarnelPointLoad *>(nullptr));
    VarnelDB target(nullptr);
    target.copy(source);
    expectOneOfEach(target, 0);
}

TEST(VarnelCopy, TheDeepCopyKeepsTheShapeOfAColumn) {
    VarnelDB source(nullptr);
    fill(source);
    VarnelDB target(nullptr);
    target.copy(source);
    const auto *circle = dynamic_cast<VarnelPointBoundaryCircle *>(target.getPointBoundaries().front());
    ASSERT_NE(circle, nullptr);
    EXPECT_EQ(circle->getD(), 0.4);
    EXPECT_NE(circle->getGeo(), source.getPointBoundaries().front()->getGeo());
}

TEST(VarnelCopy, ArcsOfOutlinesAreLostAndThoseOfLineLoadsAreKept) {
    VarnelDB source(nullptr);
    auto *arc = new VarnelCircle(KzVector3D(1, 0, 0), KzVector3D(0, 0, 0), KzVector3D(2, 0, 0));
    auto *axis = new VarnelBeamGeo;
    axis->addLine(arc);
    VarnelBeam *beam = source.giveBeam(true);
    beam->setGeo(axis);
    source.giveLineLoad(arc->clone());
    VarnelDB target(nullptr);
    target.copy(source);
    EXPECT_EQ(dynamic_cast<VarnelCircle *>(target.getBeams().front()->getGeo()->getLine(0)), nullptr);
    EXPECT_NE(dynamic_cast<VarnelCircle *>(target.getLineLoads().front()->getLine()), nullptr);
}

TEST(VarnelCopy, ReferencesAreDerivedAnew) {
    VarnelDB source(nullptr);
    fill(source);
    source.setupBoundaryReferences();
    VarnelDB target(nullptr);
    target.copy(source);
    EXPECT_EQ(target.getPlates().front()->getBoundary(0)->getReference(), nullptr);
    target.setupBoundaryReferences();
    EXPECT_TRUE(target.getPlates().front()->getBoundary(0)->isReference());
}

TEST(VarnelCopy, AMemberWiseCopyIsAView) {
    VarnelDB source(nullptr);
    fill(source);
    {
        VarnelDB view(source);
        EXPECT_EQ(view.getPlates(), source.getPlates());
        EXPECT_EQ(view.getPoints(), source.getPoints());
        EXPECT_EQ(view.getLineBoundaryDatas(), source.getLineBoundaryDatas());
        EXPECT_EQ(view.getObjectGroups(), source.getObjectGroups());
        EXPECT_EQ(view.getDescription(), "House");
        EXPECT_EQ(view.getCurrentStatus(), 3);
        EXPECT_EQ(view.getSystemMode(), 4);
        EXPECT_EQ(view.getDBaseFactory(), source.getDBaseFactory());
        EXPECT_TRUE(view.hasPlatewithName(source.getPlates().front()->getName()));
        const Varnel plain(source);
        EXPECT_EQ(plain.getBeams(), source.getBeams());
    }
    expectOneOfEach(source, 1);
    EXPECT_EQ(source.getPlates().front()->getNumber(), 11);
}

TEST(VarnelCopy, AViewOutlivesItsSource) {
    auto source = std::make_unique<VarnelDB>(nullptr);
    fill(*source);
    VarnelDB view(*source);
    source.reset();
    EXPECT_NE(view.getDBaseFactory(), nullptr);
    EXPECT_EQ(view.getNumberOfPlates(), 1);
    EXPECT_EQ(view.findPoint(KzVector3D(1, 2, 3)), view.getPoints().front()) << "points are shared";
    EXPECT_EQ(view.getLineBoundaryDatas(), (std::list<VarnelLineBoundaryData *>{nullptr, nullptr, nullptr}));
}

TEST(VarnelCopy, AViewNeverDeletesAlsoNotWhatIsAddedToIt) {
    VarnelDB source(nullptr);
    fill(source);
    const VarnelDB &constSource = source;
    VarnelDB view(constSource);
    VarnelBeam beam;
    view.add(&beam);
    view.remove(source.getHoles().front(), true);
    EXPECT_EQ(source.getHoles().front()->getNumber(), 13);
    view.removePointBoundaries();
    view.removeSettings();
    view.removeAll();
    EXPECT_TRUE(view.getPlates().empty());
    expectOneOfEach(source, 1);
    EXPECT_EQ(source.getDesignParameters().size(), 1U);
    EXPECT_EQ(source.getRefinePolygons().front()->getArea()->getNumLines(), 4U);
    EXPECT_EQ(beam.getNumber(), 0);
}

TEST(VarnelCopy, AViewNumbersPointsOfItsOwn) {
    VarnelDB source(nullptr);
    fill(source);
    VarnelDB view(source);
    VarnelSetupHelper helper;
    view.setupNumbers(helper);
    EXPECT_NE(view.getPoints(), source.getPoints());
    EXPECT_EQ(source.getNumberOfPoints(), 1);
    EXPECT_EQ(view.findPlateToNumber(1), source.getPlates().front());
    EXPECT_EQ(source.findPlateToNumber(1), source.getPlates().front());
}

TEST(VarnelCopy, AViewLeavesTheMembersOfItsGroupsThatLiveOn) {
    VarnelDB source(nullptr);
    fill(source);
    VarnelObjectGroup *group = source.getObjectGroups().front();
    group->remove();
    VarnelPoint *point = source.getPoints().front();
    VarnelPointBoundary *boundary = source.getPointBoundaries().front();
    group->add(point);
    group->add(boundary);
    {
        VarnelDB view(source);
        group->add(view.givePoint(KzVector3D(50, 50, 50)));  // the view's own
        VarnelSetupHelper helper;
        view.setupNumbers(helper);
        view.removePointBoundaries();
    }
    EXPECT_EQ(group->getObjects(), (std::list<VarnelObject *>{point, boundary}));
}

TEST(VarnelCopy, AssigningMakesAViewAndFreesWhatWasThereInTheEnd) {
    VarnelDB source(nullptr);
    fill(source);
    VarnelDB target(nullptr);
    fill(target);
    target = source;
    EXPECT_EQ(target.getPlates(), source.getPlates());
    EXPECT_EQ(target.getLineBoundaryDatas(), source.getLineBoundaryDatas());
    target = source;
    expectOneOfEach(target, 1);
    VarnelDB &same = target;
    target = same;
    expectOneOfEach(target, 1);
}

TEST(VarnelCopy, AnOwnerThatIsAssignedItsOwnViewKeepsItsObjectsAlive) {
    VarnelDB owner(nullptr);
    fill(owner);
    VarnelDB view(owner);
    owner = view;
    expectOneOfEach(owner, 1);
    EXPECT_EQ(owner.getPlates().front()->getNumber(), 11);
    VarnelDB &same = owner;
    owner = same;
    expectOneOfEach(owner, 1);
}
