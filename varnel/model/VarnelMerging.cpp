#include <algorithm>
#include <cmath>
#include <cstddef>
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

/// Places in the order of their lists, in cubes somewhat larger than the merge distance, so that a near place
/// is in the cube of a place or in one beside it.
class PlaceGrid {
  public:
    explicit PlaceGrid(double mergeDistance) : mergeDistance_(mergeDistance), cube_(2.0 * mergeDistance) {}

    double mergeDistance() const { return mergeDistance_; }
    /// Enters a place behind all others; answers its index.
    std::size_t append(const KzVector3D &place) {
        cubes_[cubeOf(place)].push_back(places_.size());
        places_.push_back(place);
        return places_.size() - 1;
    }
    const KzVector3D &place(std::size_t index) const { return places_[index]; }
    void move(std::size_t index, const KzVector3D &place) {
        auto &former = cubes_[cubeOf(places_[index])];
        former.erase(std::find(former.begin(), former.end(), index));
        cubes_[cubeOf(place)].push_back(index);
        places_[index] = place;
    }
    /// Calls the function with index and distance of each place that is near: closer than the merge distance,
    /// and not the same place.
    template <class Function>
    void eachNear(const KzVector3D &place, Function function) const {
        if (!(mergeDistance_ > samePlace)) return;
        const KzVector3D centre = cubeOf(place);
        for (double x = -1.0; x <= 1.0; x += 1.0)
            for (double y = -1.0; y <= 1.0; y += 1.0)
                for (double z = -1.0; z <= 1.0; z += 1.0)
                    eachNear(place, centre + KzVector3D(x, y, z), function);
    }
    /// The near place that comes first, not the nearest.
    bool findFirst(const KzVector3D &place, KzVector3D &out) const {
        std::size_t first = places_.size();
        eachNear(place, [&first](std::size_t index, double) { first = std::min(first, index); });
        if (first == places_.size()) return false;
        out = places_[first];
        return true;
    }

  private:
    KzVector3D cubeOf(const KzVector3D &place) const {
        return {std::floor(place.getX() / cube_), std::floor(place.getY() / cube_),
                std::floor(place.getZ() / cube_)};
    }
    template <class Function>
    void eachNear(const KzVector3D &place, const KzVector3D &cube, Function function) const {
        const auto found = cubes_.find(cube);
        if (found == cubes_.end()) return;
        for (const std::size_t index : found->second) {
            const double distance = places_[index].distanceTo(place);
            if (!KzMath::isFuzzyZero(distance, samePlace) && mergeDistance_ > distance)
                function(index, distance);
        }
    }

    double mergeDistance_;
    double cube_;
    std::vector<KzVector3D> places_;
    std::unordered_map<KzVector3D, std::vector<std::size_t>, varnel::CoordinateHash> cubes_;
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
    void enterBeams(PlaceGrid &grid);
    void enterSystem(PlaceGrid &grid);
    bool sharesAPoint(const VarnelLine &line) const;
    VarnelPointLoad *findNextPointLoad(const PlaceGrid &grid, std::size_t index) const;

    const Varnel &model_;
    double mergeDistance_;
    std::unordered_set<const VarnelPoint *> systemPoints_;
    std::vector<VarnelPointLoad *> loads_;  // each once, as in the grid of point loads
};

void Merging::enterBeams(PlaceGrid &grid) {
    for (const VarnelBeam *beam : model_.getBeams()) {
        if (!beam || !hasAxis(*beam)) continue;
        grid.append(beam->getStartVec());
        grid.append(beam->getEndVec());
        systemPoints_.insert(&beam->getStart());
        systemPoints_.insert(&beam->getEnd());
    }
}

void Merging::enterSystem(PlaceGrid &grid) {
    enterBeams(grid);
    for (const VarnelPointBoundary *boundary : model_.getPointBoundaries()) {
        if (!boundary) continue;
        grid.append(boundary->getCoor());
        systemPoints_.insert(boundary->getGeo());
    }
}

void Merging::pointBoundariesOntoBeams() {
    PlaceGrid beams(mergeDistance_);
    enterBeams(beams);
    KzVector3D place;
    for (VarnelPointBoundary *boundary : model_.getPointBoundaries())
        if (boundary && beams.findFirst(boundary->getCoor(), place)) boundary->setCoor(place);
}

void Merging::pointLoadsOntoBeams() {
    PlaceGrid beams(mergeDistance_);
    enterBeams(beams);
    KzVector3D place;
    for (VarnelPointLoad *load : model_.getPointLoads())
        if (load && beams.findFirst(load->getCoor(), place)) load->setCoor(place);
}

/// A load's line may have been made on a point of the structure: then moving it moves the structure.
bool Merging::sharesAPoint(const VarnelLine &line) const {
    return systemPoints_.count(line.getStart()) != 0 || systemPoints_.count(line.getEnd()) != 0;
}

/// Beam ends come before point boundaries. Both ends are set in any case, which marks the line as changed.
void Merging::lineLoadsOntoSystem() {
    PlaceGrid system(mergeDistance_);
    enterSystem(system);
    for (const VarnelLineLoad *load : model_.getLineLoads()) {
        VarnelLine *line = load ? load->getLine() : nullptr;
        if (!line) continue;
        const KzVector3D formerStart = line->getStartVec();
        const KzVector3D formerEnd = line->getEndVec();
        KzVector3D start = formerStart;
        KzVector3D end = formerEnd;
        system.findFirst(formerStart, start);
        system.findFirst(formerEnd, end);
        line->setStart(start);
        line->setEnd(end);
        if ((start != formerStart || end != formerEnd) && sharesAPoint(*line)) {
            system = PlaceGrid(mergeDistance_);
            enterSystem(system);
        }
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
    PlaceGrid ends(mergeDistance_);
    for (const VarnelLineLoad *load : model_.getLineLoads()) {
        const VarnelLine *line = load ? load->getLine() : nullptr;
        if (!line) continue;
        ends.append(line->getStartVec());
        ends.append(line->getEndVec());
    }
    KzVector3D place;
    for (VarnelPointLoad *load : model_.getPointLoads())
        if (load && ends.findFirst(load->getCoor(), place)) load->setCoor(place);
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
