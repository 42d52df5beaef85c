#include "varnel/results/VarnelResultSection.h"

#include "varnel/contracts/Lists.h"
#include "varnel/geometry/VarnelArea.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/results/VarnelResultSectionLocation.h"

namespace {

varnel::Held<VarnelArea> lineBetween(const KzVector3D &p1, const KzVector3D &p2) {
    varnel::Held<VarnelArea> line(new VarnelArea);
    line->addVertex(p1);
    line->addVertex(p2);
    return line;
}

// The list of locations is open to the host, so nothing can be counted when a location enters it. The count
// of a location is therefore that of its owners beyond the first one.
void shareLocations(const std::list<VarnelResultSectionLocation *> &locations) {
    varnel::acquireAll(locations);
}

void giveUp(VarnelResultSectionLocation *location) {
    if (!location) return;
    if (location->owners() == 0)
        delete location;
    else
        varnel::letGo(location);
}

}  // namespace

VarnelResultSection::VarnelResultSection(Varnel *)
    : normal_(KzVector3D::getGlobalZ()), geo_(lineBetween(KzVector3D(), KzVector3D())) {}

VarnelResultSection::VarnelResultSection(Varnel *, const KzVector3D &p1, const KzVector3D &p2)
    : geo_(lineBetween(p1, p2)) {}

// The normal is no part of a copy: a section takes its normal from how it was made.
VarnelResultSection::VarnelResultSection(const VarnelResultSection &other)
    : VarnelPosition(other),
      inPlane_(other.inPlane_),
      name_(other.name_),
      geo_(other.geo_),
      locations_(other.locations_) {
    shareLocations(locations_);
}

VarnelResultSection &VarnelResultSection::operator=(const VarnelResultSection &other) {
    if (this == &other) return *this;
    VarnelPosition::operator=(other);
    inPlane_ = other.inPlane_;
    name_ = other.name_;
    geo_ = other.geo_;
    std::list<VarnelResultSectionLocation *> taken(other.locations_);
    shareLocations(taken);
    reset();
    locations_.swap(taken);
    return *this;
}

VarnelResultSection::~VarnelResultSection() {
    geo_.reset();  // the line goes before the locations, which may still ask for it
    reset();
}

void VarnelResultSection::setP1(const KzVector3D &point) {
    if (geo_) geo_->setCoor(0, point);
}

void VarnelResultSection::setP2(const KzVector3D &point) {
    if (geo_) geo_->setCoor(1, point);
}

KzVector3D VarnelResultSection::getP1() const {
    const VarnelLine *line = geo_ ? geo_->getLine(0) : nullptr;
    return line ? line->getStartVec() : KzVector3D();
}

KzVector3D VarnelResultSection::getP2() const {
    const VarnelLine *line = geo_ ? geo_->getLine(0) : nullptr;
    return line ? line->getEndVec() : KzVector3D();
}

void VarnelResultSection::reset() {
    std::list<VarnelResultSectionLocation *> dying;
    dying.swap(locations_);
    for (VarnelResultSectionLocation *location : dying) giveUp(location);
}
