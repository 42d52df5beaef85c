#include <gtest/gtest.h>

#include <iterator>
#include <list>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/geometry/VarnelAreaPolygon.h"
#include "varnel/geometry/VarnelBeamGeo.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/geometry/VarnelStraight.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/loads/VarnelBeamLoad.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelAttributeArea.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelHole.h"
#include "varnel/members/VarnelLineBoundary.h"
#include "varnel/members/VarnelLoadDistributionArea.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/model/VarnelDB.h"
#include "varnel/model/VarnelObjectGroup.h"

namespace {

std::vector<KzVector3D> square(double x) {
    return {{x, 0, 0}, {x + 1, 0, 0}, {x + 1, 1, 0}, {x, 1, 0}};
}

template <class T>
T *walk(const std::list<T *> &list, int number) {
    for (T *object : list)
        if (object && object->getNumber() == number) return object;
    return nullptr;
}

/// Numbers three objects of a kind 5, 6, 6 and looks for them by both ways.
template <class T, class Find>
void expectFoundToNumber(const Varnel &model, const std::list<T *> &list, Find find) {
    ASSERT_EQ(list.size(), 3U);
    int number = 5;
    for (T *object : list) {
        object->setNumber(number);
        number = 6;
    }
    EXPECT_EQ((model.*find)(5), list.front());
    EXPECT_EQ((model.*find)(6), *std::next(list.begin()));
    EXPECT_EQ((model.*find)(7), nullptr);
    EXPECT_EQ(model.findToNumber<T>(5), list.front());
    EXPECT_EQ(model.findToNumber<T>(7), nullptr);
}

/// Names three loads A (dead), B (live), B (dead).
template <class T, class Find>
void expectLoadFoundToName(const Varnel &model, const std::list<T *> &list, Find find) {
    ASSERT_EQ(list.size(), 3U);
    const std::vector<T *> loads(list.begin(), list.end());
    loads[0]->setName("A");
    loads[1]->setName("B");
    loads[2]->setName("B");
    loads[1]->setLcType(2);
    EXPECT_EQ((model.*find)("A", true), loads[0]);
    EXPECT_EQ((model.*find)("A", false), nullptr);
    EXPECT_EQ((model.*find)("B", true), loads[2]);
    EXPECT_EQ((model.*find)("B", false), loads[1]);
    EXPECT_EQ((model.*find)("b", false), nullptr);
}

}  // namespace

TEST(VarnelLookups, EachCounterCountsItsOwnList) {
    Varnel model(nullptr);
    const auto addNulls = [&model](auto *none, int count) {
        for (int i = 0; i < count; ++i) model.add(none);
    };
    for (int i = 0; i < 10; ++i) model.givePoint(KzVector3D(i, 0, 0));
    addNulls(static_cast<VarnelPlate *>(nullptr), 1);
    addNulls(static_cast<VarnelBeam *>(nullptr), 2);
    addNulls(static_cast<VarnelHole *>(nullptr), 3);
    addNulls(static_cast<VarnelPointLoad *>(nullptr), 4);
    addNulls(static_cast<VarnelLineLoad *>(nullptr), 5);
    addNulls(static_cast<VarnelAreaLoad *>(nullptr), 6);
    addNulls(static_cast<VarnelBeamLoad *>(nullptr), 7);
    addNulls(static_cast<VarnelPointBoundary *>(nullptr), 8);
    addNulls(static_cast<VarnelLineBoundary *>(nullptr), 9);
    EXPECT_EQ(model.getNumberOfPlates(), 1) << "null entries count, too";
    EXPECT_EQ(model.getNumberOfBeams(), 2);
    EXPECT_EQ(model.getNumberOfHoles(), 3);
    EXPECT_EQ(model.getNumberOfPointLoads(), 4);
    EXPECT_EQ(model.getNumberOfLineLoads(), 5);
    EXPECT_EQ(model.getNumberOfAreaLoads(), 6);
    EXPECT_EQ(model.getNumberOfBeamLoads(), 7);
    EXPECT_EQ(model.getNumberOfPointBoundaries(), 8);
    EXPECT_EQ(model.getNumberOfLineBoundaries(), 9);
    EXPECT_EQ(model.getNumberOfPoints(), 10);
    EXPECT_EQ(model.getNumberOfWalls(), 9);
    EXPECT_EQ(model.getNumberOfBeamJoints(), 0);
}

TEST(VarnelLookups, FindsTheFirstOfEachKindToItsNumber) {
    VarnelDB model(nullptr);
    for (int i = 0; i < 3; ++i) {
        model.givePlate(true);
        model.giveBeam(true);
        model.add(model.giveHole());
        model.giveAttributeArea();
        model.givePointBoundary(KzVector3D(), 0);
        model.add(new VarnelLineBoundary(new VarnelStraight(KzVector3D(), KzVector3D(1, 0, 0))));
        model.givePointLoad();
        model.giveLineLoad(nullptr);
        model.giveAreaLoad();
        model.giveBeamLoad();
        model.givePoint(KzVector3D(i, 0, 0));
    }
    expectFoundToNumber(model, model.getPlates(), &Varnel::findPlateToNumber);
    expectFoundToNumber(model, model.getBeams(), &Varnel::findBeamToNumber);
    expectFoundToNumber(model, model.getHoles(), &Varnel::findHoleToNumber);
    expectFoundToNumber(model, model.getAttributeAreas(), &Varnel::findAttributeAreaToNumber);
    expectFoundToNumber(model, model.getPointBoundaries(), &Varnel::findPointBoundaryToNumber);
    expectFoundToNumber(model, model.getLineBoundaries(), &Varnel::findLineBoundaryToNumber);
    expectFoundToNumber(model, model.getPointLoads(), &Varnel::findPointLoadToNumber);
    expectFoundToNumber(model, model.getLineLoads(), &Varnel::findLineLoadToNumber);
    expectFoundToNumber(model, model.getAreaLoads(), &Varnel::findAreaLoadToNumber);
    expectFoundToNumber(model, model.getBeamLoads(), &Varnel::findBeamLoadToNumber);
    EXPECT_EQ(model.findPointToNumber(3), model.getPoints().back());
    model.getPoints().back()->setNumber(1);
    EXPECT_EQ(model.findPointToNumber(1), model.getPoints().front());
    EXPECT_EQ(model.findPointToNumber(3), nullptr);
}

TEST(VarnelLookups, NamesCompareToTheByte) {
    VarnelDB model(nullptr);
    VarnelPlate *plate = model.givePlate(true);
    plate->setName("Deck");
    VarnelBeam *beam = model.giveBeam(true);
    beam->setName("B");
    VarnelPointBoundary *support = model.givePointBoundary(KzVector3D(), 0);
    support->setName("S");
    auto *group = new VarnelObjectGroup("G");
    model.add(group);
    VarnelLineBoundaryData data(0, std::string("W\0x", 3));
    model.add(&data);
    EXPECT_EQ(model.findPlateToName("Deck"), plate);
    EXPECT_EQ(model.findPlateToName("deck"), nullptr);
    EXPECT_EQ(model.findPlateToName("Deck "), nullptr);
    EXPECT_EQ(model.findToName<VarnelPlate>("Deck"), plate);
    EXPECT_EQ(model.findBeamToName("B"), beam);
    EXPECT_EQ(model.findToName<VarnelBeam>("B"), beam);
    EXPECT_EQ(model.findPointBoundaryToName("S"), support);
    EXPECT_EQ(model.findToName<VarnelPointBoundary>("S"), support);
    EXPECT_EQ(model.findObjectGroupToName("G"), group);
    EXPECT_EQ(model.findToName<VarnelObjectGroup>("G"), group);
    EXPECT_EQ(model.findLineBoundaryToName("W"), nullptr);
    EXPECT_EQ(model.findLineBoundaryToName(std::string("W\0x", 3)), &data);
    EXPECT_EQ(model.findToName<VarnelLineBoundaryData>(std::string("W\0x", 3)), &data);
}

TEST(VarnelLookups, TheFirstOfANameIsFound) {
    VarnelDB model(nullptr);
    VarnelLineBoundaryData data[2] = {{0, "A"}, {0, "A"}};
    model.add(static_cast<VarnelPlate *>(nullptr));
    model.add(static_cast<VarnelBeam *>(nullptr));
    model.add(static_cast<VarnelPointBoundary *>(nullptr));
    model.add(static_cast<VarnelObjectGroup *>(nullptr));
    model.add(static_cast<VarnelLineBoundaryData *>(nullptr));
    for (VarnelLineBoundaryData &record : data) {
        model.givePlate(true)->setName("A");
        model.giveBeam(true)->setName("A");
        model.givePointBoundary(KzVector3D(), 0)->setName("A");
        model.add(new VarnelObjectGroup("A"));
        model.add(&record);
    }
    EXPECT_EQ(model.findPlateToName("A"), *std::next(model.getPlates().begin()));
    EXPECT_EQ(model.findBeamToName("A"), *std::next(model.getBeams().begin()));
    EXPECT_EQ(model.findPointBoundaryToName("A"), *std::next(model.getPointBoundaries().begin()));
    EXPECT_EQ(model.findObjectGroupToName("A"), *std::next(model.getObjectGroups().begin()));
    EXPECT_EQ(model.findLineBoundaryToName("A"), &data[0]);
}

TEST(VarnelLookups, LoadsAreFoundToNameAmongTheDeadOrTheLive) {
    Varnel model(nullptr);
    for (int i = 0; i < 3; ++i) {
        model.givePointLoad();
        model.giveLineLoad(nullptr);
        model.giveAreaLoad();
        model.giveBeamLoad();
    }
    expectLoadFoundToName(model, model.getPointLoads(), &Varnel::findPointLoadToName);
    expectLoadFoundToName(model, model.getLineLoads(), &Varnel::findLineLoadToName);
    expectLoadFoundToName(model, model.getAreaLoads(), &Varnel::findAreaLoadToName);
    expectLoadFoundToName(model, model.getBeamLoads(), &Varnel::findBeamLoadToName);
}

TEST(VarnelLookups, PlacesCompareExactly) {
    Varnel model(nullptr);
    VarnelPoint *point = model.givePoint(KzVector3D(1, 2, 0.0));
    EXPECT_EQ(model.findPoint(KzVector3D(1, 2, -0.0)), point);
    EXPECT_EQ(model.findPoint(KzVector3D(1, 2, 1e-15)), nullptr);
    VarnelPointLoad *live = model.givePointLoad();
    live->setLcType(2);
    VarnelPointLoad *dead = model.givePointLoad();
    EXPECT_EQ(model.findPointLoad(KzVector3D(), true), dead);
    EXPECT_EQ(model.findPointLoad(KzVector3D(), false), live);
    EXPECT_EQ(model.findPointLoad(KzVector3D(1, 0, 0), true), nullptr);
}

TEST(VarnelLookups, TheFirstPlateThatContainsAPlaceIsFound) {
    VarnelDB model(nullptr);
    model.givePlate(true);
    VarnelPlate *first = model.givePlate(true);
    first->setArea(model.giveAreaPolygon(square(0)));
    VarnelPlate *second = model.givePlate(true);
    second->setArea(model.giveAreaPolygon({{0, 0, 0}, {9, 0, 0}, {9, 9, 0}, {0, 9, 0}}));
    EXPECT_EQ(model.findPlateToCoor(KzVector3D(0.5, 0.5, 0)), first);
    EXPECT_EQ(model.findPlateToCoor(KzVector3D(5, 5, 0)), second);
    EXPECT_EQ(model.findPlateToCoor(KzVector3D(20, 5, 0)), nullptr);
}

TEST(VarnelLookups, OutlinesAndAxesAreComparedAsAWhole) {
    VarnelDB model(nullptr);
    model.givePlate(true);
    VarnelPlate *plate = model.givePlate(true);
    plate->setArea(model.giveAreaPolygon(square(0)));
    VarnelHole *hole = model.giveHole();
    hole->setArea(model.giveAreaPolygon(square(3)));
    model.add(hole);
    VarnelLoadDistributionArea *area = model.giveLoadDistributionArea();
    area->setArea(model.giveAreaPolygon(square(6)));
    model.add(area);
    VarnelBeam *beam = model.giveBeam(KzVector3D(), KzVector3D(3, 0, 0));
    model.add(beam);
    const VarnelAreaPolygon atPlate(square(0)), atHole(square(3)), atArea(square(6)), nowhere(square(9));
    EXPECT_EQ(model.findPlateToGeo(&atPlate), plate);
    EXPECT_EQ(model.findPlateToGeo(&nowhere), nullptr);
    EXPECT_EQ(model.findPlateToGeo(nullptr), nullptr);
    EXPECT_EQ(model.findHoleToGeo(&atHole), hole);
    EXPECT_EQ(model.findHoleToGeo(&atPlate), nullptr);
    EXPECT_EQ(model.findLoadDistributionAreatoArea(&atArea), area);
    EXPECT_EQ(model.findLoadDistributionAreatoArea(&atHole), nullptr);
    const VarnelBeamGeo axis(*beam->getGeo());
    EXPECT_EQ(model.findBeamToGeo(&axis), beam);
    EXPECT_EQ(model.findBeamToGeo(nullptr), nullptr);
}

TEST(VarnelLookups, LoadsAreFoundToGeometryAndCase) {
    Varnel model(nullptr);
    SysBase::Loadcase loadcase(1);
    VarnelAreaLoad *areaLoad = model.giveAreaLoad();
    areaLoad->setArea(new VarnelAreaPolygon(square(0)));
    areaLoad->setLoadcase(&loadcase);
    VarnelLineLoad *lineLoad = model.giveLineLoad(new VarnelStraight(KzVector3D(), KzVector3D(1, 0, 0)));
    lineLoad->setLoadcase(&loadcase);
    VarnelPointLoad *pointLoad = model.givePointLoad();
    pointLoad->setLoadcase(&loadcase);
    model.giveAreaLoad()->setLoadcase(&loadcase);
    model.giveLineLoad(nullptr)->setLoadcase(&loadcase);
    const VarnelAreaPolygon area(square(0));
    const VarnelStraight reversed(KzVector3D(1, 0, 0), KzVector3D());
    const VarnelPoint point{KzVector3D()};
    EXPECT_EQ(model.findAreaLoadToAreaAndLC(&area, &loadcase), areaLoad);
    EXPECT_EQ(model.findAreaLoadToAreaAndLC(&area, nullptr), nullptr);
    EXPECT_EQ(model.findAreaLoadToAreaAndLC(nullptr, &loadcase), nullptr);
    EXPECT_EQ(model.findLineLoadToLineAndLC(&reversed, &loadcase), lineLoad);
    EXPECT_EQ(model.findLineLoadToLineAndLC(&reversed, nullptr), nullptr);
    EXPECT_EQ(model.findLineLoadToLineAndLC(nullptr, &loadcase), nullptr);
    EXPECT_EQ(model.findPointLoadToPointAndLC(&point, &loadcase), pointLoad);
    EXPECT_EQ(model.findPointLoadToPointAndLC(&point, nullptr), nullptr);
    EXPECT_EQ(model.findPointLoadToPointAndLC(nullptr, &loadcase), nullptr);
}

TEST(VarnelLookups, AnswersAsPlainWalksDoUnderRandomOperations) {
    std::mt19937 random(5);
    VarnelDB model(nullptr);
    std::vector<std::unique_ptr<VarnelBeam>> free;
    const auto anyBeam = [&random, &model]() -> VarnelBeam * {
        if (model.getBeams().empty()) return nullptr;
        return *std::next(model.getBeams().begin(), static_cast<long>(random() % model.getBeams().size()));
    };
    for (int step = 0; step < 100000; ++step) {
        const int number = static_cast<int>(random() % 100);
        switch (random() % 7) {
            case 0:
                if (model.getBeams().size() < 80) model.giveBeam(true);
                break;
            case 1:
                if (VarnelBeam *beam = anyBeam()) beam->setNumber(number);
                break;
            case 2:
                if (VarnelBeam *beam = anyBeam(); beam && random() % 4 == 0) {
                    model.remove(beam, false);
                    free.emplace_back(beam);
                }
                break;
            case 3:
                if (!free.empty()) {
                    model.add(free.back().release());
                    free.pop_back();
                }
                break;
            case 4:
                if (random() % 3000 == 0) model.removeAll();
                break;
            case 5: {
                int highest = 0;
                for (const VarnelBeam *beam : model.getBeams())
                    highest = std::max(highest, beam->getNumber());
                const std::unique_ptr<VarnelBeam> next(model.giveBeam(false));
                ASSERT_EQ(next->getNumber(), highest + 1);
                break;
            }
            default:
                ASSERT_EQ(model.findBeamToNumber(number), walk(model.getBeams(), number));
                ASSERT_EQ(model.contains(anyBeam()), !model.getBeams().empty());
        }
    }
}
