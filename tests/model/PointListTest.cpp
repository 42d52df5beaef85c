#include "varnel/model/PointList.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <list>
#include <memory>
#include <random>

#include "varnel/geometry/VarnelPoint.h"

using varnel::PointList;

namespace {

VarnelPoint *walk(const std::list<VarnelPoint *> &points, const KzVector3D &place) {
    for (VarnelPoint *point : points)
        if (point->getCoor() == place) return point;
    return nullptr;
}

VarnelPoint *walk(const std::list<VarnelPoint *> &points, int number) {
    for (VarnelPoint *point : points)
        if (point->getNumber() == number) return point;
    return nullptr;
}

/// More points than are walked: at (0, 0, 0), (1, 0, 0) and so on.
void fill(PointList &points, int count = 40) {
    for (int i = 0; i < count; ++i) points.give(KzVector3D(i, 0.0, 0.0));
}

}  // namespace

TEST(PointList, GivesOnePointForOnePlace) {
    PointList points;
    fill(points);
    VarnelPoint *point = points.give(KzVector3D(7.0, 0.0, 0.0));
    EXPECT_EQ(points.list().size(), 40U);
    EXPECT_EQ(point->getNumber(), 8);
    EXPECT_EQ(points.give(KzVector3D(7.0, -0.0, 0.0)), point);
    EXPECT_EQ(points.give(KzVector3D(7.0, 1e-12, 0.0))->getNumber(), 41);
}

TEST(PointList, NeverFindsWhatIsNotANumber) {
    PointList points;
    fill(points);
    const KzVector3D nowhere(std::nan(""), 0.0, 0.0);
    EXPECT_EQ(points.find(nowhere), nullptr);
    VarnelPoint *first = points.give(nowhere);
    EXPECT_NE(points.give(nowhere), first);
    EXPECT_EQ(points.list().size(), 42U);
}

TEST(PointList, FollowsAPointThatIsMoved) {
    PointList points;
    fill(points);
    VarnelPoint *point = points.find(KzVector3D(5.0, 0.0, 0.0));
    ASSERT_NE(point, nullptr);
    point->setCoor(KzVector3D(0.0, 9.0, 0.0));
    EXPECT_EQ(points.find(KzVector3D(5.0, 0.0, 0.0)), nullptr);
    EXPECT_EQ(points.find(KzVector3D(0.0, 9.0, 0.0)), point);
}

TEST(PointList, FindsTheFirstOfSeveralAtOnePlace) {
    PointList points;
    fill(points);
    VarnelPoint *early = points.find(KzVector3D(5.0, 0.0, 0.0));
    VarnelPoint *late = points.find(KzVector3D(30.0, 0.0, 0.0));
    early->setCoor(late->getCoor());
    EXPECT_EQ(points.find(late->getCoor()), early);
    *early = VarnelPoint(KzVector3D(-1.0, 0.0, 0.0));
    EXPECT_EQ(points.find(KzVector3D(30.0, 0.0, 0.0)), late);
    EXPECT_EQ(points.find(KzVector3D(-1.0, 0.0, 0.0)), early);
}

TEST(PointList, SharesItsPointsWithACopy) {
    auto points = std::make_unique<PointList>();
    fill(*points);
    PointList copied(*points);
    VarnelPoint *point = points->find(KzVector3D(3.0, 0.0, 0.0));
    EXPECT_EQ(copied.find(KzVector3D(3.0, 0.0, 0.0)), point);
    point->setCoor(KzVector3D(3.0, 3.0, 0.0));
    EXPECT_EQ(copied.find(KzVector3D(3.0, 3.0, 0.0)), point);
    EXPECT_EQ(points->find(KzVector3D(3.0, 3.0, 0.0)), point);
    points.reset();
    EXPECT_EQ(copied.find(KzVector3D(3.0, 3.0, 0.0)), point);
    copied = PointList();
    EXPECT_TRUE(copied.list().empty());
}

TEST(PointList, FindsByNumberThroughEveryChange) {
    PointList points;
    fill(points);
    VarnelPoint *seventh = points.findToNumber(7);
    ASSERT_NE(seventh, nullptr);
    EXPECT_EQ(seventh->getNumber(), 7);
    seventh->setNumber(700);
    EXPECT_EQ(points.findToNumber(7), nullptr);
    EXPECT_EQ(points.findToNumber(700), seventh);
    points.findToNumber(3)->setNumber(700);
    EXPECT_EQ(points.findToNumber(700)->getCoor(), KzVector3D(2.0, 0.0, 0.0)) << "the first in the list";
    VarnelPoint *last = points.give(KzVector3D(0.0, 50.0, 0.0));
    EXPECT_EQ(points.findToNumber(41), last);
    seventh->setCoor(KzVector3D(0.0, 0.0, 7.0));
    EXPECT_EQ(points.findToNumber(8)->getNumber(), 8);
    points.clear();
    EXPECT_EQ(points.findToNumber(8), nullptr);
}

TEST(PointList, AnswersAsAPlainWalkDoes) {
    std::mt19937 random(3);
    PointList points;
    PointList copied;
    const auto place = [&random] {
        const auto coordinate = [&random] {
            const auto pick = random() % 12;
            return pick == 10 ? -0.0 : pick == 11 ? std::nan("") : static_cast<double>(pick % 7);
        };
        return KzVector3D(coordinate(), coordinate(), coordinate());
    };
    for (int step = 0; step < 100000; ++step) {
        const KzVector3D where = place();
        VarnelPoint *expected = walk(points.list(), where);
        if (random() % 4000 == 0) {
            points.clear();
        } else if (random() % 1000 == 0) {
            copied = points;
        } else if (random() % 50 == 0 && !points.list().empty()) {
            auto point = points.list().begin();
            std::advance(point, static_cast<long>(random() % points.list().size()));
            (*point)->setCoor(where);
        } else if (random() % 4 == 0) {
            VarnelPoint *given = points.give(where);
            ASSERT_TRUE(expected ? given == expected : given == points.list().back());
        } else {
            ASSERT_EQ(points.find(where), expected);
            ASSERT_EQ(copied.find(where), walk(copied.list(), where));
        }
        if (random() % 4 != 0) continue;
        const int number = static_cast<int>(random() % 300);
        ASSERT_EQ(points.findToNumber(number), walk(points.list(), number));
        ASSERT_EQ(copied.findToNumber(number), walk(copied.list(), number));
        if (VarnelPoint *point = points.findToNumber(number))
            if (random() % 10 == 0) point->setNumber(static_cast<int>(random() % 300));
    }
}
