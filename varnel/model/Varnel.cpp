#include "varnel/model/Varnel.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>

#include "varnel/contracts/KzMaterialHandler.h"
#include "varnel/contracts/Tools/Error.h"
#include "varnel/geometry/VarnelArea.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/loads/VarnelBeamLoad.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/BoundaryListing.h"
#include "varnel/members/VarnelAttributeArea.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelDesignData.h"
#include "varnel/members/VarnelGap.h"
#include "varnel/members/VarnelHole.h"
#include "varnel/members/VarnelLineBoundary.h"
#include "varnel/members/VarnelLineBoundaryData.h"
#include "varnel/members/VarnelLoadDistributionArea.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/members/VarnelRefinePolygon.h"
#include "varnel/model/VarnelObjectGroup.h"
#include "varnel/process/VarnelDatabaseFactory.h"
#include "varnel/results/VarnelResultSection.h"

namespace {

/// Plates are asked through a list of non-const pointers: their const getChanged() knows the outline only.
template <class List>
bool anyChanged(const List &list) {
    return std::any_of(list.begin(), list.end(), [](auto *object) { return object && object->getChanged(); });
}

template <class List>
void setAllChanged(const List &list, bool changed) {
    for (auto *object : list)
        if (object) object->setChanged(changed);
}

}  // namespace

Varnel::Varnel(VarnelManager *manager) : manager_(manager) {
    try {
        KzMaterialHandler::get()->setDatabase();
    } catch (const Tools::Error &) {  // NOLINT(bugprone-empty-catch)
        // A model is of use without a material database.
    }
}

Varnel::Varnel(const Varnel &other) : manager_(nullptr), view_(true) {
    assign(other);
}

Varnel &Varnel::operator=(const Varnel &other) {
    if (this == &other) return *this;
    if (!view_) {
        former_ = std::make_unique<Varnel>(manager_);
        former_->dBaseFactory_ = dBaseFactory_;
        exchangeObjects(*former_);
        view_ = true;
    }
    assign(other);
    return *this;
}

Varnel::~Varnel() {
    if (view_) {
        unlistAllBoundaries();
        return;
    }
    Varnel::removeResults();
    Varnel::removeAll();
    Varnel::removeSettings();
}

void Varnel::exchangeObjects(Varnel &other) {
    unlistAllBoundaries();
    other.unlistAllBoundaries();
    designDataIndex_.clear();
    other.designDataIndex_.clear();
    pointBoundaries_.swap(other.pointBoundaries_);
    lineBoundaries_.swap(other.lineBoundaries_);
    beams_.swap(other.beams_);
    lines_.swap(other.lines_);
    plates_.swap(other.plates_);
    holes_.swap(other.holes_);
    points_.swap(other.points_);
    gaps_.swap(other.gaps_);
    loadDistributionAreas_.swap(other.loadDistributionAreas_);
    pointLoads_.swap(other.pointLoads_);
    lineLoads_.swap(other.lineLoads_);
    areaLoads_.swap(other.areaLoads_);
    beamLoads_.swap(other.beamLoads_);
    designParameters_.swap(other.designParameters_);
    refinePolygons_.swap(other.refinePolygons_);
    attributeAreas_.swap(other.attributeAreas_);
    resultSections_.swap(other.resultSections_);
    objectGroups_.swap(other.objectGroups_);
}

void Varnel::assign(const Varnel &other) {
    designDataIndex_.walkOnly();
    systemChanged_ = other.systemChanged_;
    dBaseFactory_ = other.dBaseFactory_;
    plateNames_ = other.plateNames_;
    description_ = other.description_;
    modelFactor_ = other.modelFactor_;
    systemMode_ = other.systemMode_;
    currentStatus_ = other.currentStatus_;
    numberOfBeamLocations_ = other.numberOfBeamLocations_;
    acceleration_ = other.acceleration_;
    pointBoundaries_ = other.pointBoundaries_;
    lineBoundaries_ = other.lineBoundaries_;
    unlistAllBoundaries();
    for (VarnelLineBoundaryData *data : other.lineBoundaryDatas_) listBoundary(data);
    beams_ = other.beams_;
    lines_ = other.lines_;
    plates_ = other.plates_;
    holes_ = other.holes_;
    points_ = other.points_;
    gaps_ = other.gaps_;
    loadChanged_ = other.loadChanged_;
    loadDistributionAreas_ = other.loadDistributionAreas_;
    pointLoads_ = other.pointLoads_;
    lineLoads_ = other.lineLoads_;
    areaLoads_ = other.areaLoads_;
    beamLoads_ = other.beamLoads_;
    designParameters_ = other.designParameters_;
    refinePolygons_ = other.refinePolygons_;
    attributeAreas_ = other.attributeAreas_;
    resultSections_ = other.resultSections_;
    objectGroups_ = other.objectGroups_;
    manager_ = other.manager_;
    generatedSections_ = other.generatedSections_;
}

void Varnel::setAcceleration(const KzVector3D &acceleration) {
    acceleration_ = acceleration;
    loadChanged_ = true;
}

bool Varnel::getPlates(std::list<VarnelPlate *> *out) const {
    if (out) *out = plates_.list();
    return !plates_.list().empty();
}

bool Varnel::systemChanged() const {
    return anyChanged(plates_.list()) || anyChanged(beams_.list()) || anyChanged(holes_.list()) ||
           anyChanged(pointBoundaries_.list()) || anyChanged(lineBoundaries_.list()) ||
           anyChanged(gaps_.list()) || anyChanged(objectGroups_.list()) || systemChanged_;
}

/// The plates' own area loads are meant not to count.
bool Varnel::loadChanged() const {
    return anyChanged(areaLoads_.list()) || anyChanged(beamLoads_.list()) || anyChanged(pointLoads_.list()) ||
           anyChanged(lineLoads_.list()) || loadChanged_;
}

bool Varnel::getChanged() const {
    return systemChanged_ || loadChanged_ || systemChanged() || loadChanged();
}

void Varnel::setSystemChanged(bool changed) {
    setAllChanged(plates_.list(), changed);
    setAllChanged(beams_.list(), changed);
    setAllChanged(holes_.list(), changed);
    setAllChanged(pointBoundaries_.list(), changed);
    setAllChanged(lineBoundaries_.list(), changed);
    // Gaps are meant to be left out: a model with a changed gap stays changed.
    setAllChanged(objectGroups_.list(), changed);
    systemChanged_ = changed;
}

void Varnel::setLoadChanged(bool changed) {
    loadChanged_ = changed;
    setAllChanged(pointLoads_.list(), changed);
    setAllChanged(lineLoads_.list(), changed);
    setAllChanged(areaLoads_.list(), changed);
    setAllChanged(beamLoads_.list(), changed);
}

void Varnel::setChanged(bool changed) {
    setSystemChanged(changed);
    setLoadChanged(changed);
}

template <class List>
void Varnel::dispose(List &list) {
    const auto dying = list.take();
    if (view_) return;
    for (auto *object : dying) delete object;
}

void Varnel::disposeDesignData() {
    designDataIndex_.clear();
    dispose(designParameters_);
}

/// A refine polygon is a plain record that does not free its outline, and copies of it share that.
void Varnel::disposeRefinePolygons() {
    if (!view_) {
        std::unordered_set<const VarnelArea *> outlines;
        for (const VarnelRefinePolygon *polygon : refinePolygons_.list())
            if (polygon) outlines.insert(polygon->getArea());
        for (const VarnelArea *outline : outlines) delete outline;
    }
    dispose(refinePolygons_);
}

void Varnel::removeAll() {
    points_.clear();
    dispose(lines_);
    dispose(plates_);
    dispose(beams_);
    dispose(holes_);
    dispose(gaps_);
    dispose(pointLoads_);
    dispose(lineLoads_);
    dispose(areaLoads_);
    dispose(beamLoads_);
    dispose(pointBoundaries_);
    dispose(lineBoundaries_);
    unlistAllBoundaries();
    dispose(loadDistributionAreas_);
    disposeDesignData();
    disposeRefinePolygons();
    dispose(attributeAreas_);
    dispose(resultSections_);
    dispose(objectGroups_);
    // plateNames_ is meant to stay: names of deleted plates are not proposed again.
    systemChanged_ = true;
    loadChanged_ = true;
    currentStatus_ = NothingDone;
}

void Varnel::removeResults() {
    for (VarnelPlate *plate : plates_.list())
        if (plate) plate->removeResults();
    for (VarnelBeam *beam : beams_.list())
        if (beam) beam->removeResults();
}

void Varnel::removeSettings() {
    disposeDesignData();
}

void Varnel::removePointBoundaries() {
    if (!view_) {  // a view's boundaries live on, so they stay in the groups that it shares
        const auto &dying = pointBoundaries_.list();
        const std::unordered_set<const VarnelObject *> objects(dying.begin(), dying.end());
        for (VarnelObjectGroup *group : objectGroups_.list()) {
            if (!group) continue;
            group->update(
                [&objects](VarnelObject *&member) { return !member || objects.count(member) == 0; });
        }
    }
    dispose(pointBoundaries_);
}

void Varnel::listBoundary(VarnelLineBoundaryData *data) {
    varnel::list(data, lineBoundaryDatas_);
    if (!data) emptyEdges_.push_back(std::prev(lineBoundaryDatas_.end()));
}

void Varnel::unlistBoundary(VarnelLineBoundaryData *data) {
    if (data) {
        varnel::unlist(data, lineBoundaryDatas_);
        return;
    }
    for (const auto &edge : emptyEdges_) lineBoundaryDatas_.erase(edge);
    emptyEdges_.clear();
}

void Varnel::unlistAllBoundaries() {
    emptyEdges_.clear();
    varnel::unlistAll(lineBoundaryDatas_);
}

void Varnel::setDBaseFactory(std::shared_ptr<VarnelDatabaseFactory> factory) {
    dBaseFactory_ = std::move(factory);
}

void Varnel::updateSections() {}

void Varnel::initInstance() {}
