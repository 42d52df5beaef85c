#include <algorithm>
#include <limits>
#include <memory>
#include <vector>

#include "varnel/geometry/VarnelArea.h"
#include "varnel/geometry/VarnelAreaPolygon.h"
#include "varnel/geometry/VarnelAreaRectangle.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/loads/VarnelBeamLoad.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelAttributeArea.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelDesignData.h"
#include "varnel/members/VarnelGap.h"
#include "varnel/members/VarnelHole.h"
#include "varnel/members/VarnelLineBoundary.h"
#include "varnel/members/VarnelLineBoundaryData.h"
#include "varnel/members/VarnelLoadDistributionArea.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPointBoundaryCircle.h"
#include "varnel/members/VarnelPointBoundaryRectan.h"
#include "varnel/members/VarnelRefinePolygon.h"
#include "varnel/model/Varnel.h"
#include "varnel/model/VarnelObjectGroup.h"
#include "varnel/process/VarnelDatabaseFactory.h"
#include "varnel/results/VarnelResultSection.h"

namespace {

/// The boundaries of all edges that the outline has, null for an edge without one.
std::vector<VarnelLineBoundaryData *> edgeBoundaries(const VarnelPlate &plate) {
    std::vector<VarnelLineBoundaryData *> boundaries;
    const VarnelArea *area = plate.getGeo();
    const std::size_t edges = area ? area->getNumLines() : 0;
    for (std::size_t i = 0; i < edges; ++i) boundaries.push_back(plate.getBoundary(i));
    return boundaries;
}

}  // namespace

VarnelPoint *Varnel::givePoint(const KzVector3D &coordinates) {
    return points_.give(coordinates);
}

VarnelPlate *Varnel::givePlate(bool add) {
    if (!dBaseFactory_) return nullptr;
    std::unique_ptr<VarnelPlate> made(dBaseFactory_->givePlate());
    if (!made) return nullptr;
    made->setParent(this);
    made->setNumber(plates_.nextNumber());
    made->setDefaultName();  // registers the name, meant also for a plate that is not added
    VarnelPlate *plate = made.release();
    if (add) this->add(plate);
    return plate;
}

VarnelBeam *Varnel::giveBeam(bool add) {
    if (!dBaseFactory_) return nullptr;
    VarnelBeam *beam = dBaseFactory_->giveBeam();
    if (!beam) return nullptr;
    beam->setNumber(beams_.nextNumber());
    if (add) this->add(beam);
    return beam;
}

VarnelBeam *Varnel::giveBeam(const KzVector3D &start, const KzVector3D &end) {
    VarnelBeam *beam = giveBeam(false);
    if (beam) beam->setLine(start, end, 0);
    return beam;
}

VarnelHole *Varnel::giveHole() {
    return new VarnelHole;
}

VarnelLoadDistributionArea *Varnel::giveLoadDistributionArea() {
    return new VarnelLoadDistributionArea;
}

VarnelPointBoundary *Varnel::givePointBoundary(const KzVector3D &coordinates, int dof) {
    auto *boundary = new VarnelPointBoundary(coordinates, dof, nullptr);
    add(boundary);
    return boundary;
}

VarnelPointBoundaryCircle *Varnel::givePointBoundaryCircle(const KzVector3D &coordinates, int dof, double d) {
    auto *boundary = new VarnelPointBoundaryCircle(coordinates, dof, d);
    add(boundary);
    return boundary;
}

VarnelPointBoundaryRectan *Varnel::givePointBoundaryRectan(const KzVector3D &coordinates, int dof, double b,
                                                           double d) {
    auto *boundary = new VarnelPointBoundaryRectan(coordinates, dof, b, d);
    add(boundary);
    return boundary;
}

VarnelPointLoad *Varnel::givePointLoad() {
    auto *load = new VarnelPointLoad;
    load->setNumber(pointLoads_.nextNumber());
    add(load);
    return load;
}

VarnelLineLoad *Varnel::giveLineLoad(VarnelLine *line) {
    auto *load = new VarnelLineLoad(line);
    load->setNumber(lineLoads_.nextNumber());
    add(load);
    return load;
}

VarnelAreaLoad *Varnel::giveAreaLoad() {
    auto *load = new VarnelAreaLoad;
    load->setNumber(areaLoads_.nextNumber());
    add(load);
    return load;
}

VarnelBeamLoad *Varnel::giveBeamLoad() {
    auto *load = new VarnelBeamLoad;
    load->setNumber(beamLoads_.nextNumber());
    add(load);
    return load;
}

VarnelAttributeArea *Varnel::giveAttributeArea() {
    auto *area = new VarnelAttributeArea;
    area->setNumber(nextAttributeAreaNumber());
    add(area);
    return area;
}

int Varnel::nextAttributeAreaNumber() const {
    return attributeAreas_.nextNumber();
}

VarnelGap *Varnel::giveGap() {
    auto *gap = new VarnelGap;
    add(gap);
    return gap;
}

VarnelResultSection *Varnel::giveResultSection(const KzVector3D &p1, const KzVector3D &p2) {
    if (!dBaseFactory_) return nullptr;
    VarnelResultSection *section = dBaseFactory_->giveResultSection(this);
    if (!section) return nullptr;
    section->setP1(p1);
    section->setP2(p2);
    section->setNumber(static_cast<int>(resultSections_.list().size()) + 1);
    return section;
}

VarnelDesignData *Varnel::adopt(std::unique_ptr<VarnelDesignData> data) {
    designParameters_.append(data.get());
    designDataIndex_.append(data.get());
    return data.release();
}

VarnelDesignData *Varnel::giveDesignData() {
    return adopt(std::make_unique<VarnelDesignData>());
}

VarnelDesignData *Varnel::giveDesignData(const VarnelDesignData &pattern) {
    if (VarnelDesignData *data = designDataIndex_.find(designParameters_.list(), pattern)) return data;
    return adopt(std::make_unique<VarnelDesignData>(pattern));
}

VarnelDesignData *Varnel::giveDesignData(double theta, double coverXu, double coverYu, double coverXl,
                                         double coverYl) {
    const varnel::DesignDataIndex::FiveValues values{theta, coverXu, coverYu, coverXl, coverYl};
    if (VarnelDesignData *data = designDataIndex_.find(designParameters_.list(), values)) return data;
    return adopt(std::make_unique<VarnelDesignData>(theta, coverXu, coverYu, coverXl, coverYl));
}

VarnelObjectGroup *Varnel::giveObjectGroup(const std::string &name) {
    if (VarnelObjectGroup *group = findObjectGroupToName(name)) return group;
    return new VarnelObjectGroup(name);
}

VarnelArea *Varnel::giveArea() {
    systemChanged_ = true;
    return new VarnelArea;
}

VarnelAreaRectangle *Varnel::giveAreaRectangle() {
    systemChanged_ = true;
    return new VarnelAreaRectangle;
}

VarnelAreaRectangle *Varnel::giveAreaRectangle(const KzVector3D &position, double width, double height,
                                               double angle) {
    systemChanged_ = true;
    return new VarnelAreaRectangle(position, width, height, angle);
}

VarnelAreaRectangle *Varnel::giveAreaRectangle(const KzVector3D &p1, const KzVector3D &p2,
                                               const KzVector3D &p3, const KzVector3D &p4) {
    systemChanged_ = true;
    return new VarnelAreaRectangle(p1, p2, p3, p4);
}

VarnelAreaPolygon *Varnel::giveAreaPolygon() {
    systemChanged_ = true;
    return new VarnelAreaPolygon;
}

VarnelAreaPolygon *Varnel::giveAreaPolygon(const std::vector<KzVector3D> &points) {
    systemChanged_ = true;
    return new VarnelAreaPolygon(points);
}

void Varnel::add(VarnelLine *line) {
    lines_.append(line);
    systemChanged_ = true;
}

void Varnel::add(VarnelPlate *plate) {
    plates_.append(plate);
    if (plate) {
        plateNames_[plate->getName()] = plate;
        for (VarnelLineBoundaryData *boundary : edgeBoundaries(*plate)) listBoundary(boundary);
    }
    systemChanged_ = true;
}

void Varnel::add(VarnelBeam *beam) {
    beams_.append(beam);
    systemChanged_ = true;
}

void Varnel::add(VarnelHole *hole) {
    holes_.append(hole);
    systemChanged_ = true;
}

void Varnel::add(VarnelPointBoundary *boundary) {
    pointBoundaries_.append(boundary);
    systemChanged_ = true;
}

void Varnel::add(VarnelLineBoundary *boundary) {
    lineBoundaries_.append(boundary);
    if (boundary) listBoundary(&boundary->getData());
    systemChanged_ = true;
}

void Varnel::add(VarnelLineBoundaryData *data) {
    listBoundary(data);
    systemChanged_ = true;
}

void Varnel::add(VarnelRefinePolygon *polygon) {
    refinePolygons_.append(polygon);
    systemChanged_ = true;
}

void Varnel::add(VarnelObjectGroup *group) {
    if (!group || !objectGroups_.contains(group)) objectGroups_.append(group);
    systemChanged_ = true;
}

void Varnel::add(VarnelResultSection *section) {
    resultSections_.append(section);
    systemChanged_ = true;
}

void Varnel::add(VarnelGap *gap) {
    gaps_.append(gap);
    systemChanged_ = true;
}

void Varnel::add(VarnelAttributeArea *area) {
    attributeAreas_.append(area);
}

void Varnel::add(VarnelLoadDistributionArea *area) {
    loadDistributionAreas_.append(area);
}

void Varnel::add(VarnelAreaLoad *load) {
    areaLoads_.append(load);
    loadChanged_ = true;
}

void Varnel::add(VarnelBeamLoad *load) {
    beamLoads_.append(load);
    loadChanged_ = true;
}

void Varnel::add(VarnelPointLoad *load) {
    pointLoads_.append(load);
    loadChanged_ = true;
}

void Varnel::add(VarnelLineLoad *load) {
    lineLoads_.append(load);
    loadChanged_ = true;
}

void Varnel::add(VarnelPlate *plate, VarnelAreaLoad *load) {
    if (plate) plate->add(load);
    loadChanged_ = true;
}

template <class List, class T>
void Varnel::takeOut(List &list, T *object, bool destroy, bool &changed) {
    list.erase(object);
    removeFromObjectGroups(object);  // flags every group: so removing a load changes the structure, too
    if (destroy && !view_) delete object;
    changed = true;
}

template <class List, class T>
void Varnel::takeOutUngrouped(List &list, T *object, bool destroy) {
    list.erase(object);
    if (destroy && !view_) delete object;
    systemChanged_ = true;
}

void Varnel::remove(VarnelLine *line, bool destroy) {
    takeOut(lines_, line, destroy, systemChanged_);
}

void Varnel::remove(VarnelPlate *plate, bool destroy) {
    // The edges die with the plate. An edge without a boundary takes all empty entries out.
    if (plate) {
        plateNames_.erase(plate->getName());
        for (VarnelLineBoundaryData *boundary : edgeBoundaries(*plate)) unlistBoundary(boundary);
    }
    takeOut(plates_, plate, destroy, systemChanged_);
}

void Varnel::remove(VarnelArea *, bool) {}

void Varnel::remove(VarnelBeam *beam, bool destroy) {
    takeOut(beams_, beam, destroy, systemChanged_);
}

void Varnel::remove(VarnelHole *hole, bool destroy) {
    takeOut(holes_, hole, destroy, systemChanged_);
}

void Varnel::remove(VarnelPointBoundary *boundary, bool destroy) {
    takeOut(pointBoundaries_, boundary, destroy, systemChanged_);
}

void Varnel::remove(VarnelLineBoundary *boundary, bool destroy) {
    if (boundary) unlistBoundary(&boundary->getData());
    takeOut(lineBoundaries_, boundary, destroy, systemChanged_);
}

void Varnel::remove(VarnelAttributeArea *area, bool destroy) {
    takeOut(attributeAreas_, area, destroy, systemChanged_);
}

void Varnel::remove(VarnelLoadDistributionArea *area, bool destroy) {
    takeOut(loadDistributionAreas_, area, destroy, systemChanged_);
}

void Varnel::remove(VarnelAreaLoad *load, bool destroy) {
    takeOut(areaLoads_, load, destroy, loadChanged_);
}

void Varnel::remove(VarnelBeamLoad *load, bool destroy) {
    takeOut(beamLoads_, load, destroy, loadChanged_);
}

void Varnel::remove(VarnelPointLoad *load, bool destroy) {
    takeOut(pointLoads_, load, destroy, loadChanged_);
}

void Varnel::remove(VarnelLineLoad *load, bool destroy) {
    takeOut(lineLoads_, load, destroy, loadChanged_);
}

void Varnel::remove(VarnelGap *gap) {
    takeOutUngrouped(gaps_, gap, false);
}

void Varnel::remove(VarnelResultSection *section, bool destroy) {
    takeOutUngrouped(resultSections_, section, destroy);
}

void Varnel::remove(VarnelRefinePolygon *polygon, bool destroy) {
    const VarnelArea *outline = polygon ? polygon->getArea() : nullptr;
    takeOutUngrouped(refinePolygons_, polygon, destroy);
    if (destroy && !view_ && !hasOutline(outline)) delete outline;
}

/// Whether a listed refine polygon has this outline: copies of a polygon share it.
bool Varnel::hasOutline(const VarnelArea *outline) const {
    const auto &polygons = refinePolygons_.list();
    return std::any_of(polygons.begin(), polygons.end(), [outline](const VarnelRefinePolygon *polygon) {
        return polygon && polygon->getArea() == outline;
    });
}

void Varnel::remove(VarnelObjectGroup *group, bool destroy) {
    takeOutUngrouped(objectGroups_, group, destroy);
}

void Varnel::removeFromObjectGroups(VarnelObject *object) {
    for (VarnelObjectGroup *group : objectGroups_.list())
        if (group) group->remove(object);
}

template <class List>
void Varnel::takeOutLoads(List &list, const SysBase::Loadcase *loadcase) {
    std::vector<VarnelObject *> loads;
    list.eraseIf([&loads, loadcase](auto *load) {
        if (!load || load->getLoadcase() != loadcase) return false;
        loads.push_back(load);
        return true;
    });
    if (loads.empty()) return;
    for (VarnelObject *load : loads) removeFromObjectGroups(load);
    loadChanged_ = true;
}

void Varnel::removeLoadsToLoadcase(bool, const SysBase::Loadcase *loadcase) {
    takeOutLoads(pointLoads_, loadcase);
    takeOutLoads(lineLoads_, loadcase);
    takeOutLoads(areaLoads_, loadcase);
    takeOutLoads(beamLoads_, loadcase);
}

void Varnel::removeFromConstructionStage(VarnelPlate *) {}

void Varnel::updatePlateName(const std::string &newName, const std::string &oldName, VarnelPlate *plate) {
    plateNames_.erase(oldName);  // meant also if a namesake has the entry
    plateNames_[newName] = plate;
}

void Varnel::addGeneratedSection(SDBSection *section) {
    if (std::find(generatedSections_.begin(), generatedSections_.end(), section) == generatedSections_.end())
        generatedSections_.push_back(section);
}
