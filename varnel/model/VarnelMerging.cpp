#include <algorithm>
#include <cmath>
#include <cstddef>
#include <deque>
#include <list>
#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "varnel/contracts/CoordinateHash.h"
#include "varnel/contracts/KzCoreUtils.h"
#include "varnel/contracts/KzMath.h"
#include "varnel/geometry/VarnelBeamGeo.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/model/Varnel.h"

namespace {

constexpr double samePlace = 1e-6;  // places closer than this never move

/// Places in the order of their lists, in cubes much larger than the merge distance, so that the near places
/// of a place are in its own cube and seldom in a second one.
class PlaceGrid {
  public:
    explicit PlaceGrid(double mergeDistance)
        : mergeDistance_(mergeDistance), cube_(32.0 * mergeDistance), reach_(mergeDistance * (1.0 + 1e-9)) {}

    /// Enters a place behind all others; answers its index.
    std::size_t append(const KzVector3D &place) {
        entries_.push_back({place, entries_.size(), nullptr});
        link(entries_.back());
        return entries_.size() - 1;
    }
    const KzVector3D &place(std::size_t index) const { return entries_[index].place; }
    void move(std::size_t index, const KzVector3D &place) {
        Entry &entry = entries_[index];
        Entry **slot = &cubes_.find(cubeOf(entry.place))->first;
        while (*slot != &entry) slot = &(*slot)->next;
        *slot = entry.next;
        entry.place = place;
        link(entry);
    }
    /// Calls the function with index and distance of each place that is near: closer than the merge distance,
    /// and not the same place.
    template <class Function>
    void eachNear(const KzVector3D &place, Function function) const {
        if (!(mergeDistance_ > samePlace)) return;
        const KzVector3D reach(reach_, reach_, reach_);
        const KzVector3D low = cubeOf(place - reach);
        const KzVector3D high = cubeOf(place + reach);
        for (const double x : Steps(low.getX(), high.getX()))
            for (const double y : Steps(low.getY(), high.getY()))
                for (const double z : Steps(low.getZ(), high.getZ()))
                    eachNear(place, KzVector3D(x, y, z), function);
    }
    /// The near place that comes first, not the nearest.
    bool findFirst(const KzVector3D &place, KzVector3D &out) const {
        std::size_t first = entries_.size();
        eachNear(place, [&first](std::size_t index, double) { first = std::min(first, index); });
        if (first == entries_.size()) return false;
        out = entries_[first].place;
        return true;
    }

  private:
    struct Entry {
        KzVector3D place;
        std::size_t index;
        Entry *next;  // in the same cube
    };
    struct Cube {
        Entry *first = nullptr;
    };
    /// One cube or two neighbours along an axis.
    struct Steps {
        Steps(double low, double high) : values{low, high}, count(low == high ? 1 : 2) {}
        const double *begin() const { return values; }
        const double *end() const { return values + count; }
        double values[2];
        std::size_t count;
    };

    KzVector3D cubeOf(const KzVector3D &place) const {
        return {std::floor(place.getX() / cube_), std::floor(place.getY() / cube_),
                std::floor(place.getZ() / cube_)};
    }
    void link(Entry &entry) {
        const KzVector3D key = cubeOf(entry.place);
        Cube *cube = cubes_.find(key);
        if (!cube) {
            storage_.emplace_back();
            cube = cubes_.insert(key, &storage_.back());
        }
        entry.next = cube->first;
        cube->first = &entry;
    }
    template <class Function>
    void eachNear(const KzVector3D &place, const KzVector3D &key, Function function) const {
        const Cube *cube = cubes_.find(key);
        for (const Entry *entry = cube ? cube->first : nullptr; entry; entry = entry->next) {
            const double distance = entry->place.distanceTo(place);
            if (!KzMath::isFuzzyZero(distance, samePlace) && mergeDistance_ > distance)
                function(entry->index, distance);
        }
    }

    double mergeDistance_;
    double cube_;
    double reach_;
    std::deque<Entry> entries_;
    std::deque<Cube> storage_;
    varnel::CoordinateIndex<Cube> cubes_;
};

bool hasAxis(const VarnelBeam &beam) {
    return beam.getGeo() && beam.getGeo()->getNumLines() != 0;
}

/// One run of mergePointsInVarnelObjects.
class Merging {
  public:
    explicit Merging(const Varnel &model)
        : model_(model), mergeDistance_(2.0 * KzCoreUtils::Get_Min_Coor_Distance()) {}

    void pointBoundariesOntoBeams();
    void pointLoadsOntoBeams();
    void lineLoadsOntoSystem();
    void pointLoadsOntoOneAnother();
    void pointLoadsOntoLineLoads();

  private:
    using Enter = void (Merging::*)(PlaceGrid &);

    void enterBeams(PlaceGrid &grid);
    void enterSystem(PlaceGrid &grid);
    void enterLineLoads(PlaceGrid &grid);
    std::unique_ptr<PlaceGrid> collect(Enter enter);
    template <class Object>
    void moveOnto(Enter enter, const std::list<Object *> &objects);
    VarnelPointLoad *findNextPointLoad(const PlaceGrid &grid, std::size_t index) const;

    const Varnel &model_;
    double mergeDistance_;
    std::unordered_set<const VarnelPoint *> points_;  // of the places that were collected last
    std::vector<VarnelPointLoad *> loads_;            // each once, as in the grid of point loads
};

void Merging::enterBeams(PlaceGrid &grid) {
    for (const VarnelBeam *beam : model_.getBeams()) {
        if (!beam || !hasAxis(*beam)) continue;
        grid.append(beam->getStartVec());
        grid.append(beam->getEndVec());
        points_.insert({&beam->getStart(), &beam->getEnd()});
    }
}

/// Beam ends come before point boundaries.
void Merging::enterSystem(PlaceGrid &grid) {
    enterBeams(grid);
    for (const VarnelPointBoundary *boundary : model_.getPointBoundaries()) {
        if (!boundary) continue;
        grid.append(boundary->getCoor());
        points_.insert(boundary->getGeo());
    }
}

void Merging::enterLineLoads(PlaceGrid &grid) {
    for (const VarnelLineLoad *load : model_.getLineLoads()) {
        const VarnelLine *line = load ? load->getLine() : nullptr;
        if (!line) continue;
        grid.append(line->getStartVec());
        grid.append(line->getEndVec());
        points_.insert({line->getStart(), line->getEnd()});
    }
}

/// Lines may have been made on points of supports, loads and other lines. Whoever moves such a point moves
/// the places themselves, which must be collected anew.
std::unique_ptr<PlaceGrid> Merging::collect(Enter enter) {
    points_.clear();
    auto places = std::make_unique<PlaceGrid>(mergeDistance_);
    (this->*enter)(*places);
    return places;
}

template <class Object>
void Merging::moveOnto(Enter enter, const std::list<Object *> &objects) {
    auto places = collect(enter);
    KzVector3D place;
    for (Object *object : objects) {
        if (!object || !places->findFirst(object->getCoor(), place)) continue;
        object->setCoor(place);
        if (points_.count(object->getGeo()) != 0) places = collect(enter);
    }
}

void Merging::pointBoundariesOntoBeams() {
    moveOnto(&Merging::enterBeams, model_.getPointBoundaries());
}

void Merging::pointLoadsOntoBeams() {
    moveOnto(&Merging::enterBeams, model_.getPointLoads());
}

/// Both ends are set in any case, which marks the line as changed.
void Merging::lineLoadsOntoSystem() {
    auto system = collect(&Merging::enterSystem);
    for (const VarnelLineLoad *load : model_.getLineLoads()) {
        VarnelLine *line = load ? load->getLine() : nullptr;
        if (!line) continue;
        const KzVector3D formerStart = line->getStartVec();
        const KzVector3D formerEnd = line->getEndVec();
        KzVector3D start = formerStart;
        KzVector3D end = formerEnd;
        system->findFirst(formerStart, start);
        system->findFirst(formerEnd, end);
        line->setStart(start);
        line->setEnd(end);
        const bool moved = start != formerStart || end != formerEnd;
        if (moved && points_.count(line->getStart()) + points_.count(line->getEnd()) != 0)
            system = collect(&Merging::enterSystem);
    }
}

/// The nearest other load that is not at the same place, the first one of several; null if it is not near.
VarnelPointLoad *Merging::findNextPointLoad(const PlaceGrid &grid, std::size_t index) const {
    const std::size_t none = loads_.size();
    double best = 1e17;
    std::size_t next = none;
    grid.eachNear(grid.place(index), [&best, &next, none](std::size_t other, double distance) {
        const bool earlier = distance == best && next != none && other < next;
        if (distance < best || earlier) {
            best = distance;
            next = other;
        }
    });
    return next != none ? loads_[next] : nullptr;
}

void Merging::pointLoadsOntoOneAnother() {
    PlaceGrid grid(mergeDistance_);
    std::unordered_map<const VarnelPointLoad *, std::size_t> indices;
    for (VarnelPointLoad *load : model_.getPointLoads()) {
        if (!load || !indices.emplace(load, loads_.size()).second) continue;
        grid.append(load->getCoor());
        loads_.push_back(load);
    }
    for (VarnelPointLoad *load : model_.getPointLoads()) {
        if (!load) continue;
        const std::size_t index = indices.at(load);
        const VarnelPointLoad *next = findNextPointLoad(grid, index);
        if (!next) continue;
        load->setCoor(next->getCoor());
        grid.move(index, load->getCoor());
    }
}

void Merging::pointLoadsOntoLineLoads() {
    moveOnto(&Merging::enterLineLoads, model_.getPointLoads());
}

}  // namespace

void Varnel::mergePointsInVarnelObjects() {
    Merging merging(*this);
    merging.pointBoundariesOntoBeams();
    merging.pointLoadsOntoBeams();
    merging.lineLoadsOntoSystem();
    merging.pointLoadsOntoOneAnother();
    merging.pointLoadsOntoLineLoads();
}
