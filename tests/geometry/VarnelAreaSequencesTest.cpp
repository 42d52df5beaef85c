#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <random>
#include <utility>
#include <vector>

#include "tests/support/CountedPoint.h"
#include "tests/support/Places.h"
#include "varnel/geometry/VarnelArea.h"
#include "varnel/geometry/VarnelBeamGeo.h"
#include "varnel/geometry/VarnelStraight.h"

// Random sequences of operations on a ring, followed on a plain record of which line joins which points.
namespace {

using varnel::CountedPoint;

class Ring {
  public:
    void addVertex(const KzVector3D &place) {
        if (!begun_) {
            begun_ = true;
            first_ = place;
            return;
        }
        const std::size_t vertex = newPoint(place);
        const std::size_t n = lines_.size();
        if (n == 0) {
            const std::size_t first = newPoint(first_);
            lines_ = {{nextLine_++, first, vertex}, {nextLine_++, vertex, first}};
            return;
        }
        ASSERT_LE(2u, n);
        lines_.insert(lines_.end() - 1, Line{nextLine_++, lines_[n - 2].end, vertex});
        lines_.back().start = vertex;
    }

    void addLine(const KzVector3D &start, const KzVector3D &end) {
        const std::size_t from = newPoint(start);
        lines_.push_back({nextLine_++, from, newPoint(end)});
    }

    void cycle(std::size_t steps) {
        for (steps %= lines_.size(); steps > 0; --steps) {
            lines_.push_back(lines_.front());
            lines_.erase(lines_.begin());
        }
    }

    void swap() {
        std::vector<Line> reversed(lines_.rbegin(), lines_.rend());
        const std::size_t n = lines_.size();
        for (std::size_t i = 0; i < n; ++i) {
            if (n % 2 == 0 || i != n / 2) std::swap(reversed[i].start, reversed[i].end);
        }
        lines_ = reversed;
    }

    void melt() { lines_.front().start = lines_.back().end; }

    void setCoor(std::size_t index, const KzVector3D &place) {
        const std::size_t n = lines_.size();
        places_[index < n ? lines_[index].start : lines_[(index + 3) % n].end] = place;
    }

    std::size_t size() const { return lines_.size(); }

    /// Whether the area has these lines, each between these points, and always the same objects for them.
    void expectIn(const VarnelArea &area) {
        ASSERT_EQ(lines_.size(), area.getNumLines());
        std::map<const VarnelPoint *, std::vector<std::size_t>> uses;
        for (std::size_t i = 0; i < lines_.size(); ++i) {
            SCOPED_TRACE(i);
            const VarnelLine *line = area.getLine(i);
            EXPECT_EQ(line, lineObjects_.emplace(lines_[i].line, line).first->second);
            expectPoint(lines_[i].start, line->getStart());
            expectPoint(lines_[i].end, line->getEnd());
            uses[line->getStart()].push_back(lines_[i].start);
            uses[line->getEnd()].push_back(lines_[i].end);
        }
        for (const auto &[point, numbers] : uses) {
            EXPECT_EQ(numbers.size(), point->owners());
            EXPECT_EQ(std::vector<std::size_t>(numbers.size(), numbers.front()), numbers)
                << "one point, one number";
        }
    }

  private:
    struct Line {
        std::size_t line, start, end;
    };

    std::size_t newPoint(const KzVector3D &place) {
        places_.push_back(place);
        return places_.size() - 1;
    }

    void expectPoint(std::size_t number, const VarnelPoint *point) {
        EXPECT_EQ(point, pointObjects_.emplace(number, point).first->second);
        EXPECT_EQ(places_[number], point->getCoor());
    }

    bool begun_ = false;
    KzVector3D first_;
    std::vector<Line> lines_;
    std::vector<KzVector3D> places_;
    std::size_t nextLine_ = 1;
    std::map<std::size_t, const VarnelLine *> lineObjects_;
    std::map<std::size_t, const VarnelPoint *> pointObjects_;
};

class Random {
  public:
    explicit Random(unsigned seed) : engine_(seed) {}

    std::size_t below(std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(engine_);
    }
    KzVector3D place() {
        return {static_cast<double>(below(5)), static_cast<double>(below(5)), static_cast<double>(below(2))};
    }

  private:
    std::mt19937 engine_;
};

void step(Random &random, Ring &ring, VarnelArea &area) {
    const std::size_t n = ring.size();
    const KzVector3D place = random.place();
    switch (n < 2 ? 0 : random.below(5)) {
        case 0:
            ring.addVertex(place);
            area.addVertex(place);
            break;
        case 1: {
            const std::size_t steps = random.below(3 * n);
            ring.cycle(steps);
            area.cycle(steps);
            break;
        }
        case 2:
            ring.swap();
            area.swap();
            break;
        case 3: {
            const std::size_t index = random.below(2 * n);
            ring.setCoor(index, place);
            area.setCoor(index, place);
            break;
        }
        default:
            ring.melt();
            area.meltFirstAndLast();
    }
}

TEST(VarnelAreaSequences, RingsOfVerticesStayWhatASimpleRecordSays) {
    for (unsigned seed = 0; seed < 150; ++seed) {
        SCOPED_TRACE(seed);
        Random random(seed);
        Ring ring;
        VarnelArea area;
        for (int i = 0; i < 40 && !testing::Test::HasFailure(); ++i) {
            step(random, ring, area);
            ring.expectIn(area);
        }
        const VarnelArea copy(area);
        EXPECT_EQ(area.getCoordinatesOfPoints().size(), copy.getCoordinatesOfPoints().size());
    }
}

TEST(VarnelAreaSequences, ChainsOfLooseLinesFreeEveryPointOnce) {
    for (unsigned seed = 0; seed < 150; ++seed) {
        SCOPED_TRACE(seed);
        {
            Random random(seed);
            Ring ring;
            VarnelArea area;
            for (std::size_t lines = 2 + random.below(4); lines > 0; --lines) {
                const KzVector3D start = random.place();
                const KzVector3D end = random.place();
                ring.addLine(start, end);
                area.addLine(new VarnelStraight(new CountedPoint(start), new CountedPoint(end)));
            }
            ring.expectIn(area);
            for (int i = 0; i < 25 && !testing::Test::HasFailure(); ++i) {
                step(random, ring, area);
                ring.expectIn(area);
            }
        }
        ASSERT_EQ(0, CountedPoint::alive);
    }
}

TEST(VarnelAreaSequences, EqualityIsThatOfRingsWhenNoLineStandsTwice) {
    for (unsigned seed = 0; seed < 150; ++seed) {
        SCOPED_TRACE(seed);
        Random random(seed);
        const std::size_t n = 3 + random.below(6);
        std::vector<KzVector3D> corners;
        for (std::size_t i = 0; i < n; ++i)
            corners.push_back(KzVector3D(static_cast<double>(i), static_cast<double>(random.below(9)), 0.0));
        VarnelArea area, other;
        const std::size_t first = random.below(n);
        const bool reversed = random.below(2) == 1;
        const bool moved = random.below(2) == 1;
        for (std::size_t i = 0; i < n; ++i) {
            area.addVertex(corners[i]);
            other.addVertex(corners[(first + (reversed ? n - i : i)) % n]);
        }
        if (moved) other.setCoor(random.below(n), KzVector3D(0.5, 0.5, 0.5));
        EXPECT_EQ(moved ? 0 : 1, area == other);
        EXPECT_EQ(moved ? 0 : 1, other == area);
    }
}

}  // namespace
