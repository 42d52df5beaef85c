#include <gtest/gtest.h>

#include <cmath>
#include <list>
#include <memory>
#include <random>
#include <vector>

#include "varnel/geometry/PointWatch.h"
#include "varnel/members/VarnelPlate.h"

namespace {

/// A position that counts how many of its kind are alive.
class CountedPosition : public VarnelPlatePosition {
  public:
    CountedPosition() : VarnelPlatePosition(1, 2, 3) { ++alive; }
    CountedPosition(const CountedPosition &) = delete;
    CountedPosition &operator=(const CountedPosition &) = delete;
    ~CountedPosition() override { --alive; }

    static inline int alive = 0;
};

/// The position that a plain walk along the list finds.
VarnelPlatePosition *walkTo(const VarnelPlate &plate, const KzVector3D &place) {
    for (VarnelPlatePosition *position : plate.getResultPositions())
        if (position && position->getCoor() == place) return position;
    return nullptr;
}

TEST(VarnelPlatePositions, AreGivenOncePerPlace) {
    VarnelPlate plate(nullptr);
    EXPECT_EQ(nullptr, plate.findPlatePosition(1, 2, 3));
    VarnelPlatePosition *position = plate.giveResultPosition(1, 2, 3);
    ASSERT_NE(nullptr, position);
    EXPECT_EQ(KzVector3D(1, 2, 3), position->getCoor());
    EXPECT_EQ(position, plate.giveResultPosition(1, 2, 3));
    EXPECT_EQ(position, plate.findPlatePosition(1, 2, 3));
    VarnelPlatePosition *near = plate.giveResultPosition(std::nextafter(1.0, 2.0), 2, 3);
    EXPECT_NE(position, near);
    EXPECT_EQ((std::list<VarnelPlatePosition *>{position, near}), plate.getResultPositions());
}

TEST(VarnelPlatePositions, AreTheSameAtBothZeros) {
    VarnelPlate plate(nullptr);
    EXPECT_EQ(plate.giveResultPosition(0.0, -0.0, 0.0), plate.giveResultPosition(-0.0, 0.0, 0.0));
}

TEST(VarnelPlatePositions, AtNoPlaceAreNeverFound) {
    VarnelPlate plate(nullptr);
    const double nan = std::nan("");
    EXPECT_NE(plate.giveResultPosition(nan, 0, 0), plate.giveResultPosition(nan, 0, 0));
    EXPECT_EQ(nullptr, plate.findPlatePosition(nan, 0, 0));
    EXPECT_EQ(2u, plate.getResultPositions().size());
}

TEST(VarnelPlatePositions, TheFirstOneAddedWins) {
    VarnelPlate plate(nullptr);
    auto *first = new VarnelPlatePosition(1, 2, 3);
    plate.add(static_cast<VarnelPlatePosition *>(nullptr));
    plate.add(first);
    plate.add(new VarnelPlatePosition(1, 2, 3));
    EXPECT_EQ(first, plate.findPlatePosition(1, 2, 3));
    EXPECT_EQ(3u, plate.getResultPositions().size());
}

TEST(VarnelPlatePositions, AreFoundWhereTheyWereMoved) {
    VarnelPlate plate(nullptr);
    VarnelPlatePosition *first = plate.giveResultPosition(1, 0, 0);
    VarnelPlatePosition *second = plate.giveResultPosition(2, 0, 0);
    first->setCoor(KzVector3D(2, 0, 0));
    EXPECT_EQ(nullptr, plate.findPlatePosition(1, 0, 0));
    EXPECT_EQ(first, plate.findPlatePosition(2, 0, 0));
    *first = VarnelPlatePosition(3, 0, 0);
    EXPECT_EQ(second, plate.findPlatePosition(2, 0, 0));
    EXPECT_EQ(first, plate.findPlatePosition(3, 0, 0));
}

TEST(VarnelPlatePositions, ThatSomebodyElseWatchesAreFoundTooWhereTheyWereMoved) {
    varnel::PointWatch watch;
    VarnelPlate plate(nullptr);
    auto *watched = new VarnelPlatePosition(1, 0, 0);
    ASSERT_TRUE(watch.watch(*watched));
    plate.giveResultPosition(0, 0, 0);
    plate.add(watched);
    EXPECT_EQ(watched, plate.findPlatePosition(1, 0, 0));
    watched->setCoor(KzVector3D(2, 0, 0));
    EXPECT_EQ(nullptr, plate.findPlatePosition(1, 0, 0));
    EXPECT_EQ(watched, plate.findPlatePosition(2, 0, 0));
    plate.removeResults();
    VarnelPlatePosition *next = plate.giveResultPosition(2, 0, 0);
    next->setCoor(KzVector3D(5, 0, 0));
    EXPECT_EQ(next, plate.findPlatePosition(5, 0, 0));
}

TEST(VarnelPlatePositions, AreFreedByRemovingResults) {
    VarnelPlate plate(nullptr);
    plate.add(new CountedPosition);
    plate.giveResultPosition(4, 5, 6);
    plate.removeResults();
    EXPECT_EQ(0, CountedPosition::alive);
    EXPECT_TRUE(plate.getResultPositions().empty());
    EXPECT_EQ(nullptr, plate.findPlatePosition(1, 2, 3));
    plate.removeResults();
    EXPECT_NE(nullptr, plate.giveResultPosition(1, 2, 3));
}

TEST(VarnelPlatePositions, ThatAreLeftDieWithThePlate) {
    auto plate = std::make_unique<VarnelPlate>(nullptr);
    plate->add(new CountedPosition);
    EXPECT_EQ(1, CountedPosition::alive);
    plate.reset();
    EXPECT_EQ(0, CountedPosition::alive);
}

TEST(VarnelPlatePositions, AreFoundAsByAPlainWalk) {
    std::mt19937 random(4711);
    VarnelPlate plate(nullptr);
    const auto place = [&random] {
        const double x = random() % 16 == 0 ? std::nan("") : static_cast<double>(random() % 6);
        return KzVector3D(x, static_cast<double>(random() % 4), random() % 2 == 0 ? 0.0 : -0.0);
    };
    std::vector<VarnelPlatePosition *> all;
    for (int step = 0; step < 100000; ++step) {
        const KzVector3D p = place();
        switch (random() % 20) {
            case 0:
                plate.removeResults();
                all.clear();
                break;
            case 1:
            case 2:
            case 3:
                if (!all.empty()) all[random() % all.size()]->setCoor(p);
                break;
            case 4:
            case 5:
                all.push_back(new VarnelPlatePosition(p.getX(), p.getY(), p.getZ()));
                plate.add(all.back());
                break;
            case 6:
                plate.add(static_cast<VarnelPlatePosition *>(nullptr));
                break;
            default: {
                VarnelPlatePosition *expected = walkTo(plate, p);
                VarnelPlatePosition *given = plate.giveResultPosition(p.getX(), p.getY(), p.getZ());
                if (expected)
                    ASSERT_EQ(expected, given) << step;
                else
                    all.push_back(given);
            }
        }
        const KzVector3D q = place();
        ASSERT_EQ(walkTo(plate, q), plate.findPlatePosition(q.getX(), q.getY(), q.getZ())) << step;
    }
}

}  // namespace
