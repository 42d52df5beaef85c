#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <memory>
#include <typeinfo>
#include <vector>

#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/geometry/VarnelAreaPolygon.h"
#include "varnel/geometry/VarnelAreaRectangle.h"
#include "varnel/geometry/VarnelBeamGeo.h"
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
#include "varnel/members/VarnelLineBoundary.h"
#include "varnel/members/VarnelLoadDistributionArea.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPointBoundaryCircle.h"
#include "varnel/members/VarnelPointBoundaryRectan.h"
#include "varnel/members/VarnelRefinePolygon.h"
#include "varnel/model/VarnelDB.h"
#include "varnel/model/VarnelObjectGroup.h"
#include "varnel/results/VarnelResultSection.h"

namespace {

const std::vector<KzVector3D> square{{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0}};

VarnelStraight *newLine() {
    return new VarnelStraight(KzVector3D(0, 0, 0), KzVector3D(1, 0, 0));
}

/// Opens what is protected.
class OpenModel : public VarnelDB {
  public:
    OpenModel() : VarnelDB(nullptr) {}
    using VarnelDB::add;
};

template <class List>
void clear(const List &list) {
    for (auto *object : list)
        if (object) object->setChanged(false);
}

/// Leaves only the model's own flags: most objects are born changed.
void clearObjects(const Varnel &model) {
    clear(model.getPlates());
    clear(model.getBeams());
    clear(model.getHoles());
    clear(model.getPointBoundaries());
    clear(model.getLineBoundaries());
    clear(model.getGaps());
    clear(model.getObjectGroups());
    clear(model.getPointLoads());
    clear(model.getLineLoads());
    clear(model.getAreaLoads());
    clear(model.getBeamLoads());
}

/// One call and the flags that it sets on a clear model.
struct Row {
    const char *name;
    std::function<void(OpenModel &)> call;
    bool system;
    bool load;
};

/// Adds an object twice, and to one of two groups, and removes it again.
template <class T>
void expectRemoved(const std::unique_ptr<T> &object, const std::list<T *> &(Varnel::*list)() const,
                   bool isLoad) {
    SCOPED_TRACE(typeid(T).name());
    OpenModel model;
    auto *group = new VarnelObjectGroup("A");
    model.add(group);
    model.add(new VarnelObjectGroup("B"));
    model.add(object.get());
    model.add(object.get());
    group->add(object.get());
    model.setChanged(false);
    model.remove(object.get(), false);
    EXPECT_TRUE((model.*list)().empty());
    EXPECT_TRUE(group->getObjects().empty());
    EXPECT_TRUE(group->getChanged());
    EXPECT_TRUE(model.getObjectGroups().back()->getChanged());
    EXPECT_TRUE(model.systemChanged()) << "a load that leaves marks the groups, too";
    EXPECT_EQ(model.loadChanged(), isLoad);
}

void expectFlags(const std::vector<Row> &rows) {
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        OpenModel model;
        row.call(model);
        clearObjects(model);
        EXPECT_EQ(model.systemChanged(), row.system);
        EXPECT_EQ(model.loadChanged(), row.load);
    }
}

}  // namespace

TEST(VarnelObjects, AddingMarksTheChangeOfItsKind) {
    expectFlags({
        {"line", [](OpenModel &m) { m.add(newLine()); }, true, false},
        {"plate", [](OpenModel &m) { m.add(new VarnelPlate(nullptr)); }, true, false},
        {"beam", [](OpenModel &m) { m.add(new VarnelBeam); }, true, false},
        {"hole", [](OpenModel &m) { m.add(new VarnelHole); }, true, false},
        {"support", [](OpenModel &m) { m.add(new VarnelPointBoundary(KzVector3D(), 0, nullptr)); }, true,
         false},
        {"line boundary", [](OpenModel &m) { m.add(new VarnelLineBoundary(newLine())); }, true, false},
        {"refine polygon", [](OpenModel &m) { m.add(new VarnelRefinePolygon); }, true, false},
        {"group", [](OpenModel &m) { m.add(new VarnelObjectGroup("")); }, true, false},
        {"result section", [](OpenModel &m) { m.add(new VarnelResultSection(&m)); }, true, false},
        {"gap", [](OpenModel &m) { m.add(new VarnelGap); }, true, false},
        {"boundary data", [](OpenModel &m) { m.add(static_cast<VarnelLineBoundaryData *>(nullptr)); }, true,
         false},
        {"attribute area", [](OpenModel &m) { m.add(new VarnelAttributeArea); }, false, false},
        {"load distribution area", [](OpenModel &m) { m.add(new VarnelLoadDistributionArea); }, false, false},
        {"area load", [](OpenModel &m) { m.add(new VarnelAreaLoad); }, false, true},
        {"beam load", [](OpenModel &m) { m.add(new VarnelBeamLoad); }, false, true},
        {"point load", [](OpenModel &m) { m.add(new VarnelPointLoad); }, false, true},
        {"line load", [](OpenModel &m) { m.add(new VarnelLineLoad(newLine())); }, false, true},
        {"plate's load",
         [](OpenModel &m) {
             VarnelPlate plate(nullptr);
             m.add(&plate, new VarnelAreaLoad);
         },
         false, true},
        {"load of no plate", [](OpenModel &m) { m.add(nullptr, nullptr); }, false, true},
    });
}

TEST(VarnelObjects, RemovingAStrangerMarksTheChangeOfItsKind) {
    expectFlags({
        {"line", [](OpenModel &m) { m.remove(newLine(), true); }, true, false},
        {"plate", [](OpenModel &m) { m.remove(new VarnelPlate(nullptr), true); }, true, false},
        {"beam", [](OpenModel &m) { m.remove(new VarnelBeam, true); }, true, false},
        {"hole", [](OpenModel &m) { m.remove(new VarnelHole, true); }, true, false},
        {"support", [](OpenModel &m) { m.remove(new VarnelPointBoundary(KzVector3D(), 0, nullptr), true); },
         true, false},
        {"line boundary", [](OpenModel &m) { m.remove(new VarnelLineBoundary(newLine()), true); }, true,
         false},
        {"attribute area", [](OpenModel &m) { m.remove(new VarnelAttributeArea, true); }, true, false},
        {"load distribution area", [](OpenModel &m) { m.remove(new VarnelLoadDistributionArea, true); }, true,
         false},
        {"gap", [](OpenModel &m) { m.remove(static_cast<VarnelGap *>(nullptr)); }, true, false},
        {"section", [](OpenModel &m) { m.remove(new VarnelResultSection(&m), true); }, true, false},
        {"refine polygon", [](OpenModel &m) { m.remove(new VarnelRefinePolygon, true); }, true, false},
        {"group", [](OpenModel &m) { m.remove(new VarnelObjectGroup(""), true); }, true, false},
        {"area load", [](OpenModel &m) { m.remove(new VarnelAreaLoad, true); }, false, true},
        {"beam load", [](OpenModel &m) { m.remove(new VarnelBeamLoad, true); }, false, true},
        {"point load", [](OpenModel &m) { m.remove(new VarnelPointLoad, true); }, false, true},
        {"line load", [](OpenModel &m) { m.remove(new VarnelLineLoad(newLine()), true); }, false, true},
        {"outline", [](OpenModel &m) { m.remove(static_cast<VarnelArea *>(nullptr), true); }, false, false},
    });
}

TEST(VarnelObjects, WhatIsGivenAndAddedMarksTheChangeOfItsKind) {
    expectFlags({
        {"plate", [](OpenModel &m) { m.givePlate(true); }, true, false},
        {"beam", [](OpenModel &m) { m.giveBeam(true); }, true, false},
        {"support", [](OpenModel &m) { m.givePointBoundary(KzVector3D(), 0); }, true, false},
        {"round column", [](OpenModel &m) { m.givePointBoundaryCircle(KzVector3D(), 0, 1); }, true, false},
        {"column", [](OpenModel &m) { m.givePointBoundaryRectan(KzVector3D(), 0, 1, 1); }, true, false},
        {"gap", [](OpenModel &m) { m.giveGap(); }, true, false},
        {"point load", [](OpenModel &m) { m.givePointLoad(); }, false, true},
        {"line load", [](OpenModel &m) { m.giveLineLoad(newLine()); }, false, true},
        {"area load", [](OpenModel &m) { m.giveAreaLoad(); }, false, true},
        {"beam load", [](OpenModel &m) { m.giveBeamLoad(); }, false, true},
    });
}

TEST(VarnelObjects, RemovingTakesOutEveryEntryAndTheMembersOfGroups) {
    expectRemoved(std::make_unique<VarnelPlate>(nullptr), &Varnel::getPlates, false);
    expectRemoved(std::make_unique<VarnelBeam>(), &Varnel::getBeams, false);
    expectRemoved(std::make_unique<VarnelHole>(), &Varnel::getHoles, false);
    expectRemoved(std::make_unique<VarnelPointBoundary>(KzVector3D(), 0, nullptr),
                  &Varnel::getPointBoundaries, false);
    expectRemoved(std::make_unique<VarnelLineBoundary>(newLine()), &Varnel::getLineBoundaries, false);
    expectRemoved(std::make_unique<VarnelAttributeArea>(), &Varnel::getAttributeAreas, false);
    expectRemoved(std::make_unique<VarnelLoadDistributionArea>(), &Varnel::getLoadDistributionAreas, false);
    expectRemoved(std::unique_ptr<VarnelLine>(newLine()), &Varnel::getLines, false);
    expectRemoved(std::make_unique<VarnelPointLoad>(), &Varnel::getPointLoads, true);
    expectRemoved(std::make_unique<VarnelLineLoad>(newLine()), &Varnel::getLineLoads, true);
    expectRemoved(std::make_unique<VarnelAreaLoad>(), &Varnel::getAreaLoads, true);
    expectRemoved(std::make_unique<VarnelBeamLoad>(), &Varnel::getBeamLoads, true);
}

TEST(VarnelObjects, SectionsPolygonsGapsAndGroupsLeaveTheGroupsAlone) {
    OpenModel model;
    VarnelResultSection section(&model);
    VarnelRefinePolygon polygon;
    VarnelObjectGroup other("B");
    auto *group = new VarnelObjectGroup("A");
    model.add(group);
    model.add(&other);
    for (int i = 0; i < 2; ++i) {
        model.add(&section);
        model.add(&polygon);
    }
    const std::unique_ptr<VarnelGap> gap(model.giveGap());
    model.setChanged(false);
    model.remove(&section, false);
    model.remove(&polygon, false);
    model.remove(gap.get());
    model.remove(&other, false);
    EXPECT_TRUE(model.getResultSections().empty());
    EXPECT_TRUE(model.getRefinePolygons().empty());
    EXPECT_TRUE(model.getGaps().empty());
    EXPECT_EQ(model.getObjectGroups(), std::list<VarnelObjectGroup *>{group});
    EXPECT_FALSE(group->getChanged());
    EXPECT_TRUE(model.systemChanged());
    EXPECT_FALSE(model.loadChanged());
}

TEST(VarnelObjects, OutlinesMarkAChangeThoughNothingIsAdded) {
    expectFlags({
        {"area", [](OpenModel &m) { delete m.giveArea(); }, true, false},
        {"rectangle", [](OpenModel &m) { delete m.giveAreaRectangle(); }, true, false},
        {"rectangle by sides", [](OpenModel &m) { delete m.giveAreaRectangle(KzVector3D(), 2, 1, 0); }, true,
         false},
        {"rectangle by corners",
         [](OpenModel &m) { delete m.giveAreaRectangle(square[0], square[1], square[2], square[3]); }, true,
         false},
        {"polygon", [](OpenModel &m) { delete m.giveAreaPolygon(); }, true, false},
        {"polygon by corners", [](OpenModel &m) { delete m.giveAreaPolygon(square); }, true, false},
        {"point", [](OpenModel &m) { m.givePoint(KzVector3D()); }, false, false},
        {"hole", [](OpenModel &m) { delete m.giveHole(); }, false, false},
        {"area for loads", [](OpenModel &m) { delete m.giveLoadDistributionArea(); }, false, false},
        {"group", [](OpenModel &m) { delete m.giveObjectGroup("G"); }, false, false},
        {"design data", [](OpenModel &m) { m.giveDesignData(); }, false, false},
        {"attribute area", [](OpenModel &m) { m.giveAttributeArea(); }, false, false},
        {"plate", [](OpenModel &m) { delete m.givePlate(false); }, false, false},
        {"beam", [](OpenModel &m) { delete m.giveBeam(false); }, false, false},
    });
}

TEST(VarnelObjects, OnePointForOnePlace) {
    Varnel model(nullptr);
    VarnelPoint *point = model.givePoint(KzVector3D(1, 2, 3));
    EXPECT_EQ(model.givePoint(KzVector3D(1, 2, 3)), point);
    EXPECT_EQ(model.getNumberOfPoints(), 1);
    EXPECT_EQ(point->getNumber(), 1);
    EXPECT_EQ(model.givePoint(KzVector3D(1, 2, 4))->getNumber(), 2);
}

TEST(VarnelObjects, AFreedTopNumberIsGivenAgain) {
    VarnelDB model(nullptr);
    model.givePlate(true);
    VarnelPlate *second = model.givePlate(true);
    VarnelPlate *third = model.givePlate(true);
    EXPECT_EQ(third->getNumber(), 3);
    model.remove(third, true);
    third = model.givePlate(true);
    EXPECT_EQ(third->getNumber(), 3);
    model.remove(second, true);
    EXPECT_EQ(model.givePlate(true)->getNumber(), 4);
}

TEST(VarnelObjects, NumbersOfNewObjects) {
    VarnelDB model(nullptr);
    for (int expected = 1; expected <= 30; ++expected) {
        EXPECT_EQ(model.giveBeam(true)->getNumber(), expected);
        EXPECT_EQ(model.givePointLoad()->getNumber(), expected);
        EXPECT_EQ(model.giveLineLoad(newLine())->getNumber(), expected);
        EXPECT_EQ(model.giveAreaLoad()->getNumber(), expected);
        EXPECT_EQ(model.giveBeamLoad()->getNumber(), expected);
        EXPECT_EQ(model.nextAttributeAreaNumber(), expected);
        EXPECT_EQ(model.giveAttributeArea()->getNumber(), expected);
        EXPECT_EQ(model.givePointBoundary(KzVector3D(), 0)->getNumber(), 0);
        EXPECT_EQ(model.giveGap()->getNumber(), 0);
    }
    const std::unique_ptr<VarnelHole> hole(model.giveHole());
    EXPECT_EQ(hole->getNumber(), -1);
    model.getBeams().back()->setNumber(std::numeric_limits<int>::max());
    EXPECT_EQ(model.giveBeam(true)->getNumber(), std::numeric_limits<int>::max());
}

TEST(VarnelObjects, ABeamBetweenTwoPlacesIsNotAdded) {
    VarnelDB model(nullptr);
    const std::unique_ptr<VarnelBeam> beam(model.giveBeam(KzVector3D(1, 0, 0), KzVector3D(3, 0, 0)));
    EXPECT_EQ(beam->getStartVec(), KzVector3D(1, 0, 0));
    EXPECT_EQ(beam->getEndVec(), KzVector3D(3, 0, 0));
    EXPECT_TRUE(model.getBeams().empty());
}

TEST(VarnelObjects, SupportsOnColumns) {
    Varnel model(nullptr);
    VarnelPointBoundaryCircle *circle = model.givePointBoundaryCircle(KzVector3D(1, 0, 0), 7, 0.4);
    VarnelPointBoundaryRectan *rectangle = model.givePointBoundaryRectan(KzVector3D(2, 0, 0), 3, 0.2, 0.6);
    EXPECT_EQ(model.givePointBoundary(KzVector3D(3, 0, 0), 5)->getDof(), 5);
    model.remove(model.getPointBoundaries().back(), true);
    EXPECT_EQ(circle->getCoor(), KzVector3D(1, 0, 0));
    EXPECT_EQ(circle->getDof(), 7);
    EXPECT_EQ(circle->getD(), 0.4);
    EXPECT_EQ(rectangle->getCoor(), KzVector3D(2, 0, 0));
    EXPECT_EQ(rectangle->getB(), 0.2);
    EXPECT_EQ(rectangle->getD(), 0.6);
    EXPECT_EQ(rectangle->getDof(), 3);
    EXPECT_EQ(model.getPointBoundaries(), (std::list<VarnelPointBoundary *>{circle, rectangle}));
}

TEST(VarnelObjects, ALineLoadTakesItsLine) {
    Varnel model(nullptr);
    VarnelStraight *line = newLine();
    EXPECT_EQ(model.giveLineLoad(line)->getLine(), line);
    EXPECT_EQ(model.giveLineLoad(nullptr)->getLine(), nullptr);
}

TEST(VarnelObjects, ResultSectionsAreNumberedByTheListAndNotAdded) {
    VarnelDB model(nullptr);
    std::unique_ptr<VarnelResultSection> section(model.giveResultSection({1, 0, 0}, {2, 0, 0}));
    EXPECT_EQ(section->getNumber(), 1);
    EXPECT_EQ(section->getP1(), KzVector3D(1, 0, 0));
    EXPECT_EQ(section->getP2(), KzVector3D(2, 0, 0));
    section->setNumber(17);
    model.add(section.release());
    section.reset(model.giveResultSection({1, 0, 0}, {2, 0, 0}));
    EXPECT_EQ(section->getNumber(), 2);
    EXPECT_EQ(model.getResultSections().size(), 1U);
}

TEST(VarnelObjects, EqualDesignDataAreOneRecord) {
    Varnel model(nullptr);
    VarnelDesignData *plain = model.giveDesignData();
    EXPECT_NE(model.giveDesignData(), plain);
    EXPECT_EQ(model.giveDesignData(VarnelDesignData()), plain);
    VarnelDesignData pattern;
    pattern.setShearAngle(45);
    VarnelDesignData *given = model.giveDesignData(pattern);
    EXPECT_NE(given, plain);
    EXPECT_EQ(model.giveDesignData(pattern), given);
    EXPECT_TRUE(*given == pattern);
}

TEST(VarnelObjects, DesignDataOfFiveValuesAreFoundAgain) {
    Varnel model(nullptr);
    VarnelDesignData *given = model.giveDesignData(0.1, 0.02, 0.03, 0.04, 0.05);
    EXPECT_EQ(given->getCnom(), 3.0);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(model.giveDesignData(0.1, 0.02, 0.03, 0.04, 0.05), given);
    EXPECT_NE(model.giveDesignData(0.1, 0.02, 0.03, 0.05, 0.04), given);
    EXPECT_EQ(model.getDesignParameters().size(), 2U);
    given->setTheta(0.2);
    EXPECT_EQ(model.giveDesignData(0.2, 0.02, 0.03, 0.04, 0.05), given) << "it was altered in place";
}

TEST(VarnelObjects, GroupsAreFoundByNameAndReachTheModelThroughAdd) {
    Varnel model(nullptr);
    VarnelObjectGroup *group = model.giveObjectGroup("A");
    EXPECT_FALSE(model.hasObjectGroup(group));
    model.add(group);
    EXPECT_TRUE(model.hasObjectGroup(group));
    EXPECT_EQ(model.giveObjectGroup("A"), group);
    model.setSystemChanged(false);
    model.add(group);
    EXPECT_EQ(model.getObjectGroups().size(), 1U) << "listed once";
    EXPECT_TRUE(model.systemChanged());
}

TEST(VarnelObjects, APlateListsTheBoundariesOfItsEdges) {
    VarnelDB model(nullptr);
    VarnelPlate *plate = model.givePlate(false);
    plate->setArea(model.giveAreaPolygon(square));
    plate->setBoundary(1, VarnelLineBoundaryData(7, "W"));
    model.add(plate);
    EXPECT_EQ(model.getLineBoundaryDatas(),
              (std::list<VarnelLineBoundaryData *>{nullptr, plate->getBoundary(1), nullptr, nullptr}));
    plate->setBoundary(2, VarnelLineBoundaryData(7, "late"));
    EXPECT_EQ(model.findLineBoundaryToName("late"), nullptr);
    EXPECT_EQ(model.findLineBoundaryToName("W"), plate->getBoundary(1));
}

TEST(VarnelObjects, RemovingAPlateTakesItsBoundariesAndAllEmptyEntries) {
    VarnelDB model(nullptr);
    VarnelPlate *plates[2];
    for (VarnelPlate *&plate : plates) {
        plate = model.givePlate(false);
        plate->setArea(model.giveAreaPolygon(square));
        plate->setBoundary(1, VarnelLineBoundaryData(7, plate == plates[0] ? "A" : "B"));
        model.add(plate);
    }
    EXPECT_EQ(model.getLineBoundaryDatas().size(), 8U);
    model.remove(plates[0], true);
    EXPECT_EQ(model.getLineBoundaryDatas(), (std::list<VarnelLineBoundaryData *>{plates[1]->getBoundary(1)}));
    model.remove(plates[1], false);
    EXPECT_TRUE(model.getLineBoundaryDatas().empty());
    delete plates[1];
}

TEST(VarnelObjects, ABoundaryThatDiesElsewhereLeavesTheList) {
    Varnel model(nullptr);
    {
        VarnelLineBoundaryData data(7, "gone");
        model.add(&data);
        EXPECT_EQ(model.findLineBoundaryToName("gone"), &data);
    }
    EXPECT_TRUE(model.getLineBoundaryDatas().empty());
}

TEST(VarnelObjects, ALineBoundaryListsItsData) {
    Varnel model(nullptr);
    auto *boundary = new VarnelLineBoundary(newLine());
    model.add(boundary);
    EXPECT_EQ(model.getLineBoundaryDatas(), (std::list<VarnelLineBoundaryData *>{&boundary->getData()}));
    model.remove(boundary, true);
    EXPECT_TRUE(model.getLineBoundaryDatas().empty());
    EXPECT_TRUE(model.getLineBoundaries().empty());
}

TEST(VarnelObjects, AnOutlineIsNeverRemoved) {
    Varnel model(nullptr);
    VarnelAreaPolygon area(square);
    model.remove(&area, true);
    EXPECT_EQ(area.getNumLines(), 4U);
    EXPECT_FALSE(model.getChanged());
}

TEST(VarnelObjects, AGapPassesToTheCaller) {
    Varnel model(nullptr);
    const std::unique_ptr<VarnelGap> gap(model.giveGap());
    model.remove(gap.get());
    EXPECT_TRUE(model.getGaps().empty());
    EXPECT_TRUE(gap->getChanged());
}

TEST(VarnelObjects, WhatIsNotDestroyedPassesToTheCaller) {
    VarnelDB model(nullptr);
    const std::unique_ptr<VarnelBeam> beam(model.giveBeam(true));
    const std::unique_ptr<VarnelPointLoad> load(model.givePointLoad());
    model.remove(beam.get(), false);
    model.remove(load.get(), false);
    EXPECT_TRUE(model.getBeams().empty());
    EXPECT_TRUE(model.getPointLoads().empty());
    EXPECT_EQ(beam->getNumber(), 1);
}

TEST(VarnelObjects, RemovingALoadMarksEveryGroupAndSoTheStructure) {
    Varnel model(nullptr);
    VarnelPointLoad *load = model.givePointLoad();
    auto *group = new VarnelObjectGroup("A");
    model.add(group);
    model.add(new VarnelObjectGroup("B"));
    group->add(load);
    group->add(load);
    model.setChanged(false);
    model.remove(load, true);
    EXPECT_TRUE(group->getObjects().empty());
    EXPECT_TRUE(model.getObjectGroups().back()->getChanged());
    EXPECT_TRUE(model.loadChanged());
    EXPECT_TRUE(model.systemChanged());
}

TEST(VarnelObjects, RemovingAGroupOrASectionLeavesOtherGroupsAlone) {
    Varnel model(nullptr);
    auto *group = new VarnelObjectGroup("A");
    model.add(group);
    model.add(new VarnelObjectGroup("B"));
    VarnelPointLoad *load = model.givePointLoad();
    group->add(load);
    model.setChanged(false);
    model.remove(group, true);
    EXPECT_EQ(model.getPointLoads().front(), load);
    EXPECT_FALSE(model.getObjectGroups().front()->getChanged());
}

TEST(VarnelObjects, TheModelFreesTheOutlinesOfRefinePolygons) {
    Varnel model(nullptr);
    auto *outline = new VarnelAreaPolygon(square);
    VarnelRefinePolygon *polygons[3];
    for (VarnelRefinePolygon *&polygon : polygons) {
        polygon = new VarnelRefinePolygon;
        polygon->setArea(outline);
        model.add(polygon);
    }
    model.remove(polygons[0], true);
    EXPECT_EQ(polygons[1]->getArea()->getNumLines(), 4U);
    const std::unique_ptr<VarnelRefinePolygon> kept(polygons[1]);
    model.remove(kept.get(), false);
    EXPECT_EQ(polygons[2]->getArea()->getNumLines(), 4U);
}

TEST(VarnelObjects, LoadsOfACaseAreTakenOutUndeletedWhateverIsAsked) {
    Varnel model(nullptr);
    SysBase::Loadcase loadcase(1);
    const std::unique_ptr<VarnelPointLoad> point(model.givePointLoad());
    const std::unique_ptr<VarnelLineLoad> line(model.giveLineLoad(newLine()));
    const std::unique_ptr<VarnelAreaLoad> area(model.giveAreaLoad());
    const std::unique_ptr<VarnelBeamLoad> beam(model.giveBeamLoad());
    VarnelPointLoad *other = model.givePointLoad();
    auto *group = new VarnelObjectGroup("A");
    model.add(group);
    group->add(point.get());
    group->add(other);
    point->setLoadcase(&loadcase);
    line->setLoadcase(&loadcase);
    area->setLoadcase(&loadcase);
    beam->setLoadcase(&loadcase);
    model.setChanged(false);
    model.removeLoadsToLoadcase(true, &loadcase);
    EXPECT_EQ(model.getPointLoads(), std::list<VarnelPointLoad *>{other});
    EXPECT_TRUE(model.getLineLoads().empty());
    EXPECT_TRUE(model.getAreaLoads().empty());
    EXPECT_TRUE(model.getBeamLoads().empty());
    EXPECT_EQ(group->getObjects(), std::list<VarnelObject *>{other});
    EXPECT_TRUE(model.loadChanged());
    EXPECT_TRUE(group->getChanged());
    EXPECT_EQ(point->getLoadcase(), &loadcase);
    model.setChanged(false);
    model.removeLoadsToLoadcase(true, &loadcase);
    EXPECT_FALSE(model.getChanged()) << "there was none left";
    const std::unique_ptr<VarnelPointLoad> withoutCase(other);
    model.removeLoadsToLoadcase(false, nullptr);
    EXPECT_TRUE(model.getPointLoads().empty());
}
