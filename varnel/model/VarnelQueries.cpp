#include <algorithm>

#include "varnel/contracts/KzMaterial.h"
#include "varnel/contracts/KzMatrix44.h"
#include "varnel/contracts/KzReinfStockMesh.h"
#include "varnel/contracts/SDBSectionLine.h"
#include "varnel/contracts/Standard/BuildingType.h"
#include "varnel/contracts/Standard/Classification.h"
#include "varnel/contracts/Standard/DesignMaterial.h"
#include "varnel/contracts/Standard/DesignSituation.h"
#include "varnel/contracts/Standard/Mode.h"
#include "varnel/geometry/VarnelArea.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelDesignData.h"
#include "varnel/members/VarnelHole.h"
#include "varnel/members/VarnelLineBoundary.h"
#include "varnel/members/VarnelLineBoundaryData.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/model/BoundaryLines.h"
#include "varnel/model/Varnel.h"
#include "varnel/model/VarnelObjectGroup.h"
#include "varnel/process/VarnelManager.h"
#include "varnel/stages/VarnelBeamState.h"
#include "varnel/stages/VarnelConstructionStage.h"
#include "varnel/stages/VarnelLineLoadState.h"
#include "varnel/stages/VarnelPlateState.h"
#include "varnel/stages/VarnelPointBoundaryState.h"
#include "varnel/stages/VarnelPointLoadState.h"

namespace {

template <class List, class Test>
bool anyOf(const List &list, Test test) {
    return std::any_of(list.begin(), list.end(), [&test](auto *object) { return object && test(*object); });
}

template <class List>
int countInLoadcase(const List &loads, const SysBase::Loadcase *loadcase) {
    return static_cast<int>(std::count_if(loads.begin(), loads.end(), [loadcase](const auto *load) {
        return load && load->getLoadcase() == loadcase;
    }));
}

/// Calls the function with each line that has a boundary, and that boundary: edges of plates in their order,
/// then line boundaries. Ends when the function answers true.
template <class Function>
void eachBoundaryLine(const Varnel &model, Function function) {
    for (const VarnelPlate *plate : model.getPlates()) {
        const VarnelArea *area = plate ? plate->getGeo() : nullptr;
        const std::size_t edges = area ? area->getNumLines() : 0;
        for (std::size_t i = 0; i < edges; ++i) {
            VarnelLineBoundaryData *boundary = plate->getBoundary(i);
            if (boundary && function(area->getLine(i), boundary)) return;
        }
    }
    for (VarnelLineBoundary *boundary : model.getLineBoundaries())
        if (boundary && function(boundary->getGeo(), &boundary->getData())) return;
}

}  // namespace

VarnelLineBoundaryData *Varnel::findLineBoundaryToLine(const VarnelLine *line) const {
    VarnelLineBoundaryData *found = nullptr;
    if (!line) return found;
    eachBoundaryLine(*this, [line, &found](const VarnelLine *other, VarnelLineBoundaryData *boundary) {
        if (!line->hasSamePoints(other)) return false;
        found = boundary;
        return true;
    });
    return found;
}

void Varnel::setupBoundaryReferences() {
    varnel::BoundaryLines lines;
    lines.expect(lineBoundaryDatas_.size());
    eachBoundaryLine(*this, [&lines](const VarnelLine *line, VarnelLineBoundaryData *boundary) {
        lines.append(line, boundary);
        return false;
    });
    if (lines.isComplete()) {
        lines.setReferences();
        return;
    }
    eachBoundaryLine(*this, [this](const VarnelLine *line, VarnelLineBoundaryData *boundary) {
        boundary->setReference(findLineBoundaryToLine(line));
        return false;
    });
}

void Varnel::setupLoads() {}

int Varnel::getNumberOfBeamJoints() const {
    int joints = 0;
    for (const VarnelBeam *beam : beams_.list())
        if (beam) joints += beam->getNumberOfJoints();
    return joints;
}

int Varnel::getNumberOfWalls() const {
    int walls = getNumberOfLineBoundaries();
    const int mask = manager_ ? manager_->getSystemBoundary() : 0;
    for (const VarnelPlate *plate : plates_.list()) {
        const VarnelArea *area = plate ? plate->getGeo() : nullptr;
        const std::size_t edges = area ? area->getNumLines() : 0;
        for (std::size_t i = 0; i < edges; ++i) {
            const VarnelLineBoundaryData *boundary = plate->getBoundary(i);
            if (boundary && boundary->isBounded(mask)) ++walls;
        }
    }
    return walls;
}

int Varnel::getNumberOfPointLoadsToLoadcase(const SysBase::Loadcase *loadcase) const {
    return countInLoadcase(pointLoads_.list(), loadcase);
}

int Varnel::getNumberOfLineLoadsToLoadcase(const SysBase::Loadcase *loadcase) const {
    return countInLoadcase(lineLoads_.list(), loadcase);
}

int Varnel::getNumberOfAreaLoadsToLoadcase(const SysBase::Loadcase *loadcase) const {
    return countInLoadcase(areaLoads_.list(), loadcase);
}

int Varnel::getNumberOfPlateLoadsToLoadcase(const SysBase::Loadcase *loadcase, VarnelPlate *plate) const {
    return plate ? countInLoadcase(plate->getAreaLoads(), loadcase) : 0;
}

bool Varnel::hasPlatewithName(const std::string &name) const {
    const auto entry = plateNames_.find(name);
    return entry != plateNames_.end() && entry->second;
}

bool Varnel::hasObjectGroup(VarnelObjectGroup *group) const {
    return objectGroups_.contains(group);
}

bool Varnel::contains(const VarnelPlate *plate) const {
    return plates_.contains(plate);
}

/// Holes, boundaries and loads are meant not to be looked for.
bool Varnel::contains(const VarnelObject *object) const {
    return beams_.containsAddress(object) || plates_.containsAddress(object);
}

bool Varnel::check(const KzReinfStockMesh *mesh) {
    return anyOf(plates_.list(), [mesh](const VarnelPlate &plate) {
        const VarnelDesignData *design = plate.getDesign();
        return design && (design->getBasicMeshL() == mesh || design->getBasicMeshU() == mesh);
    });
}

bool Varnel::check(const Found::Foundation *foundation) {
    return anyOf(beams_.list(),
                 [foundation](const VarnelBeam &beam) { return beam.checkUsed(foundation); }) ||
           anyOf(plates_.list(),
                 [foundation](const VarnelPlate &plate) { return plate.getFoundation() == foundation; });
}

/// Materials of holes, areas and supports are meant not to count.
bool Varnel::check(const KzMaterial *material) {
    return anyOf(beams_.list(),
                 [material](const VarnelBeam &beam) { return beam.getMaterial(0) == material; }) ||
           anyOf(plates_.list(),
                 [material](const VarnelPlate &plate) { return plate.getMaterial(0) == material; });
}

/// A section that is not a line section is in use only if it was generated here.
bool Varnel::check(const SDBSection *section) {
    if (const auto *line = dynamic_cast<const SDBSectionLine *>(section)) {
        const auto uses = [line](const VarnelBeam &beam) {
            return beam.getSection(0) == line || (beam.getSection(1) && beam.getSection(1) == line);
        };
        if (anyOf(beams_.list(), uses)) return true;
    }
    return std::find(generatedSections_.begin(), generatedSections_.end(), section) !=
           generatedSections_.end();
}

void Varnel::getMinMax(KzVector3D *min, KzVector3D *max) const {
    if (min && max) updateMinMax(min, max, KzMatrix44());
}

void Varnel::updateMinMax(KzVector3D *min, KzVector3D *max, const KzMatrix44 &frame) const {
    const auto widen = [&](const auto &list) {
        for (const auto *object : list)
            if (object) object->updateMinMax(min, max, frame);
    };
    widen(points_.list());
    widen(lines_.list());
    widen(beams_.list());
    widen(plates_.list());
    widen(holes_.list());
}

void Varnel::storeCurrentCSTProperties(VarnelConstructionStage *stage) {
    if (!stage) return;
    stage->removeStates();
    const auto store = [stage](const auto &list) {
        for (auto *object : list) {
            if (!object) continue;
            if (auto *state = stage->giveState(object)) state->setup();
        }
    };
    store(beams_.list());
    store(plates_.list());
    store(pointBoundaries_.list());
    store(pointLoads_.list());
    store(lineLoads_.list());
}

Standard::Mode Varnel::getStandardMode() const {
    return static_cast<Standard::Mode>(8);
}

void Varnel::setStandardMode(Standard::Mode) {}

Standard::DesignSituation Varnel::getSituation() const {
    return static_cast<Standard::DesignSituation>(0);
}

void Varnel::setSituation(Standard::DesignSituation) {}

Standard::BuildingType Varnel::getBuildingType() const {
    return static_cast<Standard::BuildingType>(1);
}

void Varnel::setBuildingType(Standard::BuildingType) {}

Standard::DesignMaterial Varnel::getDesignMaterial() const {
    return static_cast<Standard::DesignMaterial>(0);
}

void Varnel::setDesignMaterial(Standard::DesignMaterial) {}

Standard::Classification Varnel::getClassification() const {
    return static_cast<Standard::Classification>(1);
}

void Varnel::setClassification(Standard::Classification) {}
