#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <random>
#include <vector>

#include "varnel/geometry/VarnelArea.h"
#include "varnel/geometry/VarnelAreaPolygon.h"
#include "varnel/geometry/VarnelCircle.h"
#include "varnel/geometry/VarnelStraight.h"
#include "varnel/members/VarnelLineBoundary.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/model/VarnelDB.h"
#include "varnel/process/VarnelFactory.h"
#include "varnel/process/VarnelManager.h"

namespace {

VarnelPlate *addPlate(VarnelDB &model, double x) {
    VarnelPlate *plate = model.givePlate(true);
    plate->setArea(model.giveAreaPolygon({{x, 0, 0}, {x + 1, 0, 0}, {x + 1, 1, 0}, {x, 1, 0}}));
    return plate;
}

VarnelLineBoundary *addBoundary(Varnel &model, VarnelLine *line) {
    auto *boundary = new VarnelLineBoundary(line);
    model.add(boundary);
    return boundary;
}

/// A straight line of a host's own kind.
class HostLine : public VarnelStraight {
  public:
    using VarnelStraight::VarnelStraight;
};

VarnelLine *randomLine(std::mt19937 &random) {
    const auto place = [&random] {
        return KzVector3D(static_cast<double>(random() % 3), random() % 5 == 0 ? -0.0 : 0.0, 0);
    };
    if (random() % 2 == 0) return new VarnelStraight(place(), place());
    return new VarnelCircle(place() + KzVector3D(0, 1, 0), place(), place());
}

/// The reference of each boundary must be what the single query answers.
void expectReferencesAsAsked(Varnel &model) {
    model.setupBoundaryReferences();
    for (const VarnelPlate *plate : model.getPlates())
        for (std::size_t i = 0; i < plate->getGeo()->getNumLines(); ++i) {
            const VarnelLineBoundaryData *boundary = plate->getBoundary(i);
            if (!boundary) continue;
            ASSERT_EQ(boundary->getReference(), model.findLineBoundaryToLine(plate->getGeo()->getLine(i)));
        }
    for (VarnelLineBoundary *boundary : model.getLineBoundaries())
        ASSERT_EQ(boundary->getData().getReference(), model.findLineBoundaryToLine(boundary->getGeo()));
}

}  // namespace

TEST(VarnelReferences, APlateEdgeComesBeforeALineBoundary) {
    VarnelDB model(nullptr);
    VarnelLineBoundary *boundary =
        addBoundary(model, new VarnelStraight(KzVector3D(1, 0, 0), KzVector3D(0, 0, 0)));
    VarnelPlate *plate = addPlate(model, 0);
    plate->setBoundary(0, VarnelLineBoundaryData(7, "edge"));
    model.setupBoundaryReferences();
    EXPECT_EQ(boundary->getData().getReference(), plate->getBoundary(0));
    EXPECT_TRUE(plate->getBoundary(0)->isReference());
    EXPECT_EQ(model.findLineBoundaryToLine(boundary->getGeo()), plate->getBoundary(0));
}

TEST(VarnelReferences, TheEarlierPlateIsReferredTo) {
    VarnelDB model(nullptr);
    VarnelPlate *first = addPlate(model, 0);
    VarnelPlate *second = addPlate(model, 1);
    first->setBoundary(1, VarnelLineBoundaryData(7, ""));
    second->setBoundary(3, VarnelLineBoundaryData(7, ""));
    model.setupBoundaryReferences();
    EXPECT_EQ(second->getBoundary(3)->getReference(), first->getBoundary(1));
    EXPECT_EQ(second->getBoundaryReference(3), first->getBoundary(1));
    EXPECT_TRUE(first->getBoundary(1)->isReference());
}

TEST(VarnelReferences, AnEdgeWithoutABoundaryIsPassedOver) {
    VarnelDB model(nullptr);
    addPlate(model, 0);
    VarnelPlate *second = addPlate(model, 1);
    second->setBoundary(3, VarnelLineBoundaryData(7, ""));
    model.setupBoundaryReferences();
    EXPECT_TRUE(second->getBoundary(3)->isReference());
}

TEST(VarnelReferences, EdgesBeyondTheFourthHaveThemToo) {
    VarnelDB model(nullptr);
    VarnelPlate *plate = model.givePlate(true);
    plate->setArea(model.giveAreaPolygon({{0, 0, 0}, {2, 0, 0}, {3, 1, 0}, {1, 2, 0}, {0, 1, 0}}));
    plate->setBoundary(4, VarnelLineBoundaryData(7, ""));
    VarnelLineBoundary *boundary =
        addBoundary(model, new VarnelStraight(KzVector3D(0, 0, 0), KzVector3D(0, 1, 0)));
    model.setupBoundaryReferences();
    EXPECT_TRUE(plate->getBoundary(4)->isReference());
    EXPECT_EQ(boundary->getData().getReference(), plate->getBoundary(4));
}

TEST(VarnelReferences, AnArcNeverRefersToItself) {
    Varnel model(nullptr);
    const KzVector3D start(0, 0, 0), end(2, 0, 0);
    VarnelLineBoundary *low = addBoundary(model, new VarnelCircle(KzVector3D(1, -1, 0), start, end));
    VarnelLineBoundary *same = addBoundary(model, new VarnelCircle(KzVector3D(1, -1, 0), end, start));
    model.setupBoundaryReferences();
    EXPECT_EQ(low->getData().getReference(), nullptr);
    EXPECT_EQ(same->getData().getReference(), nullptr);
    VarnelLineBoundary *high = addBoundary(model, new VarnelCircle(KzVector3D(1, 1, 0), start, end));
    model.setupBoundaryReferences();
    EXPECT_EQ(low->getData().getReference(), &high->getData());
    EXPECT_EQ(same->getData().getReference(), &high->getData());
    EXPECT_EQ(high->getData().getReference(), &low->getData());
}

TEST(VarnelReferences, ALineWithoutBoundaryHasNone) {
    Varnel model(nullptr);
    const VarnelStraight line(KzVector3D(), KzVector3D(1, 0, 0));
    EXPECT_EQ(model.findLineBoundaryToLine(&line), nullptr);
    EXPECT_EQ(model.findLineBoundaryToLine(nullptr), nullptr);
}

TEST(VarnelReferences, ABoundaryThatDiesLeavesNoReference) {
    VarnelDB model(nullptr);
    VarnelPlate *first = addPlate(model, 0);
    VarnelPlate *second = addPlate(model, 1);
    first->setBoundary(1, VarnelLineBoundaryData(7, ""));
    second->setBoundary(3, VarnelLineBoundaryData(7, ""));
    model.setupBoundaryReferences();
    model.remove(first, true);
    EXPECT_EQ(second->getBoundary(3)->getReference(), nullptr);
}

TEST(VarnelReferences, AreThoseOfThePlainWalk) {
    for (unsigned seed = 0; seed < 400; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        VarnelDB model(nullptr);
        for (int i = 0; i < 40; ++i) addBoundary(model, randomLine(random));
        for (int i = 0; i < 4; ++i) {
            VarnelPlate *plate = addPlate(model, static_cast<double>(random() % 3));
            for (std::size_t edge = 0; edge < 4; ++edge)
                if (random() % 2 == 0) plate->setBoundary(edge, VarnelLineBoundaryData(7, ""));
        }
        expectReferencesAsAsked(model);
        if (seed % 4 == 1) addBoundary(model, new HostLine(KzVector3D(), KzVector3D(1, 0, 0)));
        if (seed % 4 == 2)
            addBoundary(model, new VarnelStraight(KzVector3D(), KzVector3D(std::nan(""), 0, 0)));
        if (seed % 4 == 3) addBoundary(model, nullptr);
        expectReferencesAsAsked(model);
    }
}

TEST(VarnelReferences, WallsAreReferredToAndFixed) {
    VarnelFactory factory;
    VarnelManager manager(&factory);
    manager.setSystemBoundary(4);
    VarnelDB model(&manager);
    VarnelPlate *first = addPlate(model, 0);
    VarnelPlate *second = addPlate(model, 1);
    first->setBoundary(0, VarnelLineBoundaryData(6, ""));
    first->setBoundary(1, VarnelLineBoundaryData(4, ""));
    first->setBoundary(2, VarnelLineBoundaryData(3, ""));
    second->setBoundary(3, VarnelLineBoundaryData(4, ""));
    addBoundary(model, new VarnelStraight(KzVector3D(5, 0, 0), KzVector3D(6, 0, 0)));
    EXPECT_EQ(model.getNumberOfWalls(), 1) << "no references yet";
    model.setupBoundaryReferences();
    EXPECT_EQ(model.getNumberOfWalls(), 3);
    Varnel alone(nullptr);
    EXPECT_EQ(alone.getNumberOfWalls(), 0);
}
