#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <random>
#include <vector>

#include "varnel/contracts/KzCoreUtils.h"
#include "varnel/contracts/KzMath.h"
#include "varnel/geometry/VarnelBeamGeo.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/geometry/VarnelStraight.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/model/VarnelDB.h"

namespace {

const double D = KzCoreUtils::Get_Min_Coor_Distance();

VarnelBeam *addBeam(Varnel &model, const KzVector3D &start, const KzVector3D &end) {
    VarnelBeam *beam = model.giveBeam(start, end);
    model.add(beam);
    return beam;
}

VarnelPointLoad *addLoad(Varnel &model, const KzVector3D &place) {
    VarnelPointLoad *load = model.givePointLoad();
    load->setCoor(place);
    return load;
}

VarnelLineLoad *addLineLoad(Varnel &model, const KzVector3D &start, const KzVector3D &end) {
    return model.giveLineLoad(new VarnelStraight(start, end));
}

/// The merge as plain walks over the lists.
class PlainMerge {
  public:
    explicit PlainMerge(Varnel &model) : model_(model) {}

    void run() {
        KzVector3D out;
        for (VarnelPointBoundary *boundary : model_.getPointBoundaries())
            if (toBeams(boundary->getCoor(), out)) boundary->setCoor(out);
        for (VarnelPointLoad *load : model_.getPointLoads())
            if (toBeams(load->getCoor(), out)) load->setCoor(out);
        for (VarnelLineLoad *load : model_.getLineLoads()) {
            KzVector3D start = load->getLine()->getStartVec();
            KzVector3D end = load->getLine()->getEndVec();
            if (toSystem(start, out)) start = out;
            if (toSystem(end, out)) end = out;
            load->getLine()->setStart(start);
            load->getLine()->setEnd(end);
        }
        for (VarnelPointLoad *load : model_.getPointLoads()) {
            double distance = 0.0;
            const VarnelPointLoad *next = toNextLoad(load, distance);
            if (next && near(distance)) load->setCoor(next->getCoor());
        }
        for (VarnelPointLoad *load : model_.getPointLoads())
            if (toLineLoads(load->getCoor(), out)) load->setCoor(out);
    }

  private:
    static bool near(double distance) { return !KzMath::isFuzzyZero(distance, 1e-6) && 2.0 * D > distance; }
    static bool take(const KzVector3D &place, const KzVector3D &candidate, KzVector3D &out) {
        if (!near(place.distanceTo(candidate))) return false;
        out = candidate;
        return true;
    }
    bool toBeams(const KzVector3D &place, KzVector3D &out) const {
        for (const VarnelBeam *beam : model_.getBeams())
            if (take(place, beam->getStartVec(), out) || take(place, beam->getEndVec(), out)) return true;
        return false;
    }
    bool toSystem(const KzVector3D &place, KzVector3D &out) const {
        if (toBeams(place, out)) return true;
        for (const VarnelPointBoundary *boundary : model_.getPointBoundaries())
            if (take(place, boundary->getCoor(), out)) return true;
        return false;
    }
    bool toLineLoads(const KzVector3D &place, KzVector3D &out) const {
        for (const VarnelLineLoad *load : model_.getLineLoads())
            if (take(place, load->getLine()->getStartVec(), out) ||
                take(place, load->getLine()->getEndVec(), out))
                return true;
        return false;
    }
    VarnelPointLoad *toNextLoad(const VarnelPointLoad *load, double &distance) const {
        VarnelPointLoad *next = nullptr;
        double best = 1e17;
        for (VarnelPointLoad *other : model_.getPointLoads()) {
            const double d = other->getCoor().distanceTo(load->getCoor());
            if (other == load || KzMath::isFuzzyZero(d, 1e-6) || !(best > d)) continue;
            next = other;
            best = distance = d;
        }
        return next;
    }

    Varnel &model_;
};

/// Beams, supports and loads that crowd around a few places.
void crowd(Varnel &model, unsigned seed) {
    std::mt19937 random(seed);
    const double origin = seed % 3 == 0 ? 0.0 : seed % 3 == 1 ? -1234.5 : 1e9;
    const auto place = [&random, origin] {
        const auto coordinate = [&random, origin] {
            return origin + static_cast<double>(random() % 3) + static_cast<double>(random() % 9) * 0.6 * D;
        };
        return KzVector3D(coordinate(), coordinate(), 0.0);
    };
    for (int i = 0; i < 25; ++i) {
        addBeam(model, place(), place());
        model.givePointBoundary(place(), 7);
        addLoad(model, place());
        addLoad(model, place());
        addLineLoad(model, place(), place());
    }
}

std::vector<KzVector3D> places(const Varnel &model) {
    std::vector<KzVector3D> all;
    for (const VarnelPointBoundary *boundary : model.getPointBoundaries()) all.push_back(boundary->getCoor());
    for (const VarnelPointLoad *load : model.getPointLoads()) all.push_back(load->getCoor());
    for (const VarnelLineLoad *load : model.getLineLoads()) {
        all.push_back(load->getLine()->getStartVec());
        all.push_back(load->getLine()->getEndVec());
    }
    return all;
}

}  // namespace

TEST(VarnelMerging, ASupportMovesWithinTwiceTheSmallestDistance) {
    const struct {
        double distance;
        bool moves;
    } rows[] = {{1.5 * D, true}, {2.0 * D, false}, {1.999 * D, true},
                {1e-7, false},   {0.99e-6, false}, {1.1e-6, true}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.distance);
        VarnelDB model(nullptr);
        addBeam(model, KzVector3D(0, 0, 0), KzVector3D(8, 0, 0));
        const KzVector3D place(row.distance, 0, 0);
        VarnelPointBoundary *boundary = model.givePointBoundary(place, 7);
        model.mergePointsInVarnelObjects();
        EXPECT_EQ(boundary->getCoor(), row.moves ? KzVector3D() : place);
    }
}

TEST(VarnelMerging, TheFirstNearPlaceCountsAndNotTheNearest) {
    VarnelDB model(nullptr);
    VarnelBeam *first = addBeam(model, KzVector3D(0, 0, 0), KzVector3D(8, 0, 0));
    addBeam(model, KzVector3D(2 * D, 0, 0), KzVector3D(8, 1, 0));
    VarnelPointLoad *load = addLoad(model, KzVector3D(1.5 * D, 0, 0));
    model.mergePointsInVarnelObjects();
    EXPECT_EQ(load->getCoor(), first->getStartVec());
}

TEST(VarnelMerging, OfTwoNearLoadsTheEarlierMoves) {
    VarnelDB model(nullptr);
    VarnelPointLoad *first = addLoad(model, KzVector3D(0, 0, 0));
    VarnelPointLoad *second = addLoad(model, KzVector3D(D, 0, 0));
    model.mergePointsInVarnelObjects();
    EXPECT_EQ(first->getCoor(), KzVector3D(D, 0, 0));
    EXPECT_EQ(second->getCoor(), KzVector3D(D, 0, 0));
}

TEST(VarnelMerging, ALineLoadPrefersABeamToASupport) {
    VarnelDB model(nullptr);
    addBeam(model, KzVector3D(0, 0, 0), KzVector3D(8, 0, 0));
    model.givePointBoundary(KzVector3D(2 * D, 0, 0), 7);
    const VarnelLineLoad *load = addLineLoad(model, KzVector3D(1.5 * D, 0, 0), KzVector3D(0, 4, 0));
    model.mergePointsInVarnelObjects();
    EXPECT_EQ(load->getLine()->getStartVec(), KzVector3D());
}

TEST(VarnelMerging, ALoadOnABeamStaysWhenTheLineLoadIsThereToo) {
    VarnelDB model(nullptr);
    addBeam(model, KzVector3D(0, 0, 0), KzVector3D(8, 0, 0));
    const VarnelLineLoad *line = addLineLoad(model, KzVector3D(0, D, 0), KzVector3D(0, 4, 0));
    const VarnelPointLoad *load = addLoad(model, KzVector3D(D, 0, 0));
    model.mergePointsInVarnelObjects();
    EXPECT_EQ(line->getLine()->getStartVec(), KzVector3D());
    EXPECT_EQ(load->getCoor(), KzVector3D());
}

TEST(VarnelMerging, APointLoadMovesOntoALineLoad) {
    VarnelDB model(nullptr);
    addLineLoad(model, KzVector3D(0, 0, 0), KzVector3D(4, 0, 0));
    const VarnelPointLoad *load = addLoad(model, KzVector3D(4, D, 0));
    model.mergePointsInVarnelObjects();
    EXPECT_EQ(load->getCoor(), KzVector3D(4, 0, 0));
}

TEST(VarnelMerging, BothEndsOfALineLoadAreSetInAnyCase) {
    VarnelDB model(nullptr);
    const VarnelLineLoad *load = addLineLoad(model, KzVector3D(0, 0, 0), KzVector3D(4, 0, 0));
    load->getLine()->setChanged(false);
    model.mergePointsInVarnelObjects();
    EXPECT_TRUE(load->getLine()->getStart()->getChanged());
    EXPECT_TRUE(load->getLine()->getEnd()->getChanged());
}

TEST(VarnelMerging, NothingIsDeletedOrNumbered) {
    VarnelDB model(nullptr);
    addLoad(model, KzVector3D(0, 0, 0));
    addLoad(model, KzVector3D(D, 0, 0));
    model.mergePointsInVarnelObjects();
    EXPECT_EQ(model.getNumberOfPointLoads(), 2);
    EXPECT_EQ(model.getPointLoads().back()->getNumber(), 2);
    EXPECT_TRUE(model.getPoints().empty());
}

TEST(VarnelMerging, ALineThatSharesAPointOfABeamMovesTheBeamForTheNextOnes) {
    const auto build = [](Varnel &model) {
        const VarnelBeam *first = addBeam(model, KzVector3D(0, 0, 0), KzVector3D(4, 0, 0));
        addBeam(model, KzVector3D(4 + 1.5 * D, 0, 0), KzVector3D(9, 0, 0));
        model.giveLineLoad(
            new VarnelStraight(*first->getGeo()->getLine(0), new VarnelPoint(KzVector3D(4, 4, 0))));
        addLineLoad(model, KzVector3D(4 - 0.3 * D, 0, 0), KzVector3D(0, 5, 0));
    };
    VarnelDB model(nullptr);
    VarnelDB plain(nullptr);
    build(model);
    build(plain);
    model.mergePointsInVarnelObjects();
    PlainMerge(plain).run();
    EXPECT_EQ(places(model), places(plain));
    EXPECT_EQ(model.getBeams().front()->getEndVec(), KzVector3D(4 + 1.5 * D, 0, 0));
}

TEST(VarnelMerging, ASupportThatABeamStandsOnMovesTheBeamForTheNextOnes) {
    VarnelDB model(nullptr);
    addBeam(model, KzVector3D(0, 0, 0), KzVector3D(0, 9, 0));
    const VarnelPointBoundary *first = model.givePointBoundary(KzVector3D(1.5 * D, 0, 0), 7);
    const VarnelPointBoundary *second = model.givePointBoundary(KzVector3D(3 * D, 0, 0), 7);
    auto *axis = new VarnelBeamGeo;
    axis->addLine(new VarnelStraight(first->getGeo(), new VarnelPoint(KzVector3D(9, 0, 0))));
    VarnelBeam *beam = model.giveBeam(true);
    beam->setGeo(axis);
    model.mergePointsInVarnelObjects();
    EXPECT_EQ(beam->getStartVec(), KzVector3D());
    EXPECT_EQ(second->getCoor(), KzVector3D(3 * D, 0, 0)) << "the beam that was near has moved away";
}

TEST(VarnelMerging, ALoadThatALineLoadStandsOnMovesItForTheNextOnes) {
    VarnelDB model(nullptr);
    addLineLoad(model, KzVector3D(0, 0, 0), KzVector3D(0, 4, 0));
    const VarnelPointLoad *first = addLoad(model, KzVector3D(1.5 * D, 0.5 * D, 0));
    const VarnelPointLoad *second = addLoad(model, KzVector3D(4.4 * D, 0, 0));
    addLoad(model, KzVector3D(1.5 * D, 0, 0));
    addLoad(model, KzVector3D(3.4 * D, 0, 0));
    const VarnelLineLoad *line =
        model.giveLineLoad(new VarnelStraight(first->getGeo(), new VarnelPoint(KzVector3D(9, 0, 0))));
    model.mergePointsInVarnelObjects();
    EXPECT_EQ(first->getCoor(), KzVector3D()) << "by way of the third load";
    EXPECT_EQ(line->getLine()->getStartVec(), KzVector3D());
    EXPECT_EQ(second->getCoor(), KzVector3D(3.4 * D, 0, 0)) << "the line that was near has moved away";
}

TEST(VarnelMerging, MovesAsPlainWalksDo) {
    for (unsigned seed = 0; seed < 200; ++seed) {
        SCOPED_TRACE(seed);
        VarnelDB model(nullptr);
        VarnelDB plain(nullptr);
        crowd(model, seed);
        crowd(plain, seed);
        model.mergePointsInVarnelObjects();
        PlainMerge(plain).run();
        ASSERT_EQ(places(model), places(plain));
    }
}
