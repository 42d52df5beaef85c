#include "varnel/contracts/CoordinateHash.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <set>

namespace {

using varnel::CoordinateHash;
using varnel::CoordinateIndex;

TEST(CoordinateHash, AgreesWithEquality) {
    const CoordinateHash hash;
    EXPECT_EQ(hash(KzVector3D(0.0, 0.0, 0.0)), hash(KzVector3D(-0.0, -0.0, -0.0)));
    EXPECT_EQ(hash(KzVector3D(1.5, 2.5, -3.5)), hash(KzVector3D(1.5, 2.5, -3.5)));
}

TEST(CoordinateHash, SpreadsTheGridOfABuilding) {
    std::set<std::size_t> hashes;
    std::set<std::size_t> lowBits;
    const int side = 32;
    for (int x = 0; x < side; ++x)
        for (int y = 0; y < side; ++y)
            for (int z = 0; z < side; ++z) {
                const std::size_t hash = CoordinateHash()(KzVector3D(0.5 * x, 0.25 * y, 3.0 * z));
                hashes.insert(hash);
                lowBits.insert(hash & 0xffff);
            }
    EXPECT_EQ(static_cast<std::size_t>(side * side * side), hashes.size());
    // Of 2^16 places an ideal hash of 2^15 points hits some 25,800.
    EXPECT_GT(lowBits.size(), 24000U);
}

TEST(CoordinateIndex, TheFirstObjectAtAPlaceStays) {
    CoordinateIndex<int> index;
    int a = 0;
    int b = 0;
    const KzVector3D place(1.0, 2.0, 3.0);
    EXPECT_EQ(nullptr, index.find(place));
    EXPECT_EQ(&a, index.insert(place, &a));
    EXPECT_EQ(&a, index.insert(place, &b));
    EXPECT_EQ(&a, index.find(place));
    EXPECT_EQ(1U, index.size());
    index.clear();
    EXPECT_EQ(nullptr, index.find(place));
    EXPECT_EQ(&b, index.insert(place, &b));
}

TEST(CoordinateIndex, ZeroHasOneSignAndNaNIsNeverFound) {
    CoordinateIndex<int> index;
    int a = 0;
    index.insert(KzVector3D(-0.0, 0.0, 0.0), &a);
    EXPECT_EQ(&a, index.find(KzVector3D(0.0, -0.0, 0.0)));
    const KzVector3D notANumber(std::nan(""), 0.0, 0.0);
    EXPECT_EQ(&a, index.insert(notANumber, &a));
    EXPECT_EQ(nullptr, index.find(notANumber));
    EXPECT_EQ(1U, index.size());
}

TEST(CoordinateIndex, IgnoresNullObjects) {
    CoordinateIndex<int> index;
    EXPECT_EQ(nullptr, index.insert(KzVector3D(), nullptr));
    EXPECT_EQ(nullptr, index.find(KzVector3D()));
    EXPECT_EQ(0U, index.size());
}

TEST(CoordinateIndex, AnswersAsAWalkDoes) {
    std::mt19937 random(11);
    std::uniform_int_distribution<int> step(-3, 3);
    std::vector<std::pair<KzVector3D, int>> objects;
    objects.reserve(500);
    CoordinateIndex<int> index;
    index.reserve(100);
    for (int i = 0; i < 500; ++i) {
        objects.emplace_back(KzVector3D(step(random), 0.1 * step(random), -0.0 * step(random)), i);
        index.insert(objects.back().first, &objects.back().second);
        const KzVector3D asked(step(random), 0.1 * step(random), 0.0);
        const int *walked = nullptr;
        for (const auto &object : objects)
            if (!walked && object.first == asked) walked = &object.second;
        ASSERT_EQ(walked, index.find(asked));
    }
}

TEST(CoordinateIndex, KeepsNeighboursInTheLastDigitApart) {
    CoordinateIndex<int> index;
    int a = 0;
    int b = 0;
    index.insert(KzVector3D(1.0, 0.0, 0.0), &a);
    index.insert(KzVector3D(std::nextafter(1.0, 2.0), 0.0, 0.0), &b);
    EXPECT_EQ(&a, index.find(KzVector3D(1.0, 0.0, 0.0)));
    EXPECT_EQ(&b, index.find(KzVector3D(std::nextafter(1.0, 2.0), 0.0, 0.0)));
}

}  // namespace
