#include "varnel/members/VarnelBeam.h"

#include <cmath>
#include <memory>

#include "varnel/contracts/KzMaterial.h"
#include "varnel/contracts/KzMath.h"
#include "varnel/contracts/SDBSectionLine.h"
#include "varnel/contracts/SysBase/BeamDesignLocation.h"
#include "varnel/contracts/SysBase/BeamResultState.h"
#include "varnel/geometry/VarnelBase.h"
#include "varnel/geometry/VarnelBeamGeo.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/geometry/VarnelObjectVisitor.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/members/SharedLists.h"
#include "varnel/members/VarnelBeamProperties.h"
#include "varnel/members/VarnelFoundedPart.h"
#include "varnel/members/VarnelGapControl.h"
#include "varnel/members/VarnelJoint.h"
#include "varnel/process/VarnelManager.h"

namespace {

VarnelBeamGeo *makeZeroLine() {
    auto geometry = std::make_unique<VarnelBeamGeo>();
    geometry->addVertex(KzVector3D::getOrigin());
    geometry->addVertex(KzVector3D::getOrigin());
    return geometry.release();
}

const VarnelPoint &pointOrOrigin(const VarnelPoint *point) {
    static const VarnelPoint origin{KzVector3D()};
    return point ? *point : origin;
}

/// Direction from start to end, of length 1; null if they coincide.
KzVector3D axisOf(const VarnelBeam &beam) {
    KzVector3D axis = beam.getEndVec() - beam.getStartVec();
    return axis.normalize();
}

/// Axes x, y and their cross product, at the origin.
KzMatrix44 frameOf(const KzVector3D &x, const KzVector3D &y) {
    KzMatrix44 frame = KzMatrix44::getId();
    frame.setVector(0, x);
    frame.setVector(1, y);
    frame.setVector(2, x.crossProduct(y));
    return frame;
}

/// A beam whose axis is horizontal by less than this share counts as vertical.
constexpr double verticalLimit = 0.001;

/// In this form false for NaN.
bool isStation(double pos) {
    return 0.0 <= pos && pos <= 1.0;
}

/// Results that another owner of the gap still sees stay with it.
void removeUnsharedResults(const varnel::Held<VarnelGapControl> &gap) {
    if (gap && gap->owners() == 1) gap->removeResults();
}

}  // namespace

VarnelBeam::VarnelBeam() : geometry_(makeZeroLine()), data_(new VarnelBeamProperties()) {}

VarnelBeam::VarnelBeam(const VarnelBeam &other)
    : VarnelStateObject(),
      VarnelPosition(),
      VarnelObject(other),
      LinkTarget(),
      geometry_(other.geometry_ ? new VarnelBeamGeo(*other.geometry_) : nullptr),
      data_(new VarnelBeamProperties(*other.data_)) {
    designResults_.reserve(other.designResults_.size());
    for (const SysBase::BeamDesignLocation *location : other.designResults_)
        if (location) add(new SysBase::BeamDesignLocation(*location));
}

VarnelBeam &VarnelBeam::operator=(const VarnelBeam &other) {
    VarnelStateObject::operator=(other);
    VarnelPosition::operator=(other);
    VarnelObject::operator=(other);
    changed_ = other.changed_;
    meshSize_ = other.meshSize_;
    setLeftGap(other.getLeftGap());
    setRightGap(other.getRightGap());
    geometry_ = other.geometry_;
    base_ = other.base_;
    varnel::shareList(foundations_, other.foundations_);
    varnel::shareList(resultStates_, other.resultStates_);
    varnel::shareList(joints_, other.joints_);
    data_ = other.data_;
    varnel::shareList(designResults_, other.designResults_);
    fireExposed_ = other.fireExposed_;
    statesByNumber_ = other.statesByNumber_;
    return *this;
}

// Explicit, since the members' own order would free the gaps last: hosts see results, joints and axis die.
VarnelBeam::~VarnelBeam() {
    statesByNumber_.clear();
    varnel::releaseAll(resultStates_);
    removeUnsharedResults(leftGap_);
    removeUnsharedResults(rightGap_);
    varnel::releaseAll(designResults_);
    varnel::releaseAll(joints_);
    varnel::releaseAll(foundations_);
    leftGap_.reset();
    rightGap_.reset();
    geometry_.reset();
}

void VarnelBeam::setLeftGap(VarnelGapControl *gap) {
    replaceGap(leftGap_, gap);
}

void VarnelBeam::setRightGap(VarnelGapControl *gap) {
    replaceGap(rightGap_, gap);
}

void VarnelBeam::replaceGap(Gap &slot, VarnelGapControl *gap) {
    if (gap == slot.get()) return;
    if (slot) formerGaps_.push_back(slot);
    slot.reset(gap);
}

void VarnelBeam::setGeo(VarnelBeamGeo *geometry) {
    geometry_.reset(geometry);
}

void VarnelBeam::setData(const VarnelBeamProperties &data) {
    *data_ = data;
    changed_ = true;
}

const VarnelPoint &VarnelBeam::getStart() const {
    const VarnelLine *line = geometry_ ? geometry_->getLine(0) : nullptr;
    return pointOrOrigin(line ? line->getStart() : nullptr);
}

const VarnelPoint &VarnelBeam::getEnd() const {
    const VarnelLine *line = geometry_ ? geometry_->getLine(geometry_->getNumLines() - 1) : nullptr;
    return pointOrOrigin(line ? line->getEnd() : nullptr);
}

const KzVector3D &VarnelBeam::getStartVec() const {
    return getStart().getCoor();
}

const KzVector3D &VarnelBeam::getEndVec() const {
    return getEnd().getCoor();
}

void VarnelBeam::setLine(const KzVector3D &start, const KzVector3D &end, int index) {
    if (!geometry_ || index < 0) return;
    const auto i = static_cast<std::size_t>(index);
    const KzVector3D newEnd = end;  // the argument may be the very place that moves first
    geometry_->setCoor(i, start);
    geometry_->setCoor(i + 1, newEnd);
}

double VarnelBeam::getLength() const {
    return geometry_ ? geometry_->getLength() : 0.0;
}

KzVector3D VarnelBeam::getPosition(double station) const {
    return KzMath::getCoorOnStraight(getStartVec(), getEndVec(), station);
}

KzMatrix44 VarnelBeam::getMatrix() const {
    const KzVector3D x = axisOf(*this);
    KzVector3D y = KzVector3D::getGlobalZ().crossProduct(x);
    if (y.length() > verticalLimit)  // at the limit itself vertical here, but not in getBaseMatrix: as meant
        y.normalize();
    else
        y.setXYZ(0.0, 1.0, 0.0);
    KzMatrix44 frame = frameOf(x, y);
    frame.setVector(3, getStartVec());
    return frame;
}

KzMatrix44 VarnelBeam::getBaseMatrix() const {
    if (base_) return base_->getMatrix() ? *base_->getMatrix() : KzMatrix44::getId();
    const KzVector3D x = axisOf(*this);
    KzVector3D y = KzVector3D::getGlobalZ().crossProduct(x);
    if (verticalLimit > y.length()) y.setXYZ(0.0, 1.0, 0.0);
    y.normalize();
    KzMatrix44 frame = frameOf(x, y);
    frame.rotate(x.getX(), x.getY(), x.getZ(), getAngle() / 180.0 * KzMath::Pi, 0.01);
    frame.setVector(3, getStartVec());
    return frame;
}

void VarnelBeam::add(VarnelJoint *joint) {
    joints_.push_back(joint);
    varnel::acquire(joint);
    changed_ = true;
}

void VarnelBeam::remove(VarnelJoint *joint) {
    joints_.remove_if([joint](const VarnelJoint *listed) {
        if (listed != joint) return false;
        varnel::letGo(listed);
        return true;
    });
    changed_ = true;
}

void VarnelBeam::removeJoints() {
    varnel::releaseAll(joints_);
    changed_ = true;
}

int VarnelBeam::getNumberOfJoints() const {
    return static_cast<int>(joints_.size());
}

VarnelJoint *VarnelBeam::findJoint(double pos) const {
    for (VarnelJoint *joint : joints_)
        if (joint && joint->getPos() == pos) return joint;
    return nullptr;
}

SysBase::BeamResultState *VarnelBeam::giveResultState(int number) {
    if (SysBase::BeamResultState *state = findResultState(number)) return state;
    auto made = std::make_unique<SysBase::BeamResultState>(number);
    statesByNumber_.emplace(number, made.get());
    resultStates_.push_back(made.get());
    varnel::acquire(made.get());
    return made.release();
}

SysBase::BeamResultState *VarnelBeam::findResultState(int number) const {
    const auto found = statesByNumber_.find(number);
    return found == statesByNumber_.end() ? nullptr : found->second;
}

void VarnelBeam::removeResults() {
    statesByNumber_.clear();
    varnel::releaseAll(resultStates_);
    if (leftGap_) leftGap_->removeResults();
    if (rightGap_) rightGap_->removeResults();
    varnel::releaseAll(designResults_);
}

void VarnelBeam::add(SysBase::BeamDesignLocation *location) {
    designResults_.push_back(location);
    varnel::acquire(location);
}

void VarnelBeam::addFoundation(const KzVector3D &start, double posA, const KzVector3D &end, double posE,
                               VarnelManager *manager) {
    if (!manager || !isStation(posA) || !isStation(posE)) return;
    VarnelFoundedPart *part = findFoundedPart(posA, posE);
    if (!part) {
        auto made = std::make_unique<VarnelFoundedPart>();
        made->setPosA(posA);
        made->setPosE(posE);
        foundations_.push_back(made.get());
        part = made.release();
        varnel::acquire(part);
    }
    part->setFStart(manager->giveFoundation(part->getFStart(), start));
    part->setFEnd(manager->giveFoundation(part->getFEnd(), end));
}

VarnelFoundedPart *VarnelBeam::findFoundedPart(double posA, double posE) const {
    for (VarnelFoundedPart *part : foundations_)
        if (part->getPosA() == posA && part->getPosE() == posE) return part;
    return nullptr;
}

void VarnelBeam::removeFoundations() {
    varnel::releaseAll(foundations_);
}

bool VarnelBeam::checkUsed(const Found::Foundation *foundation) const {
    for (const VarnelFoundedPart *part : foundations_)
        if (part->checkUsed(foundation)) return true;
    return getFoundation() == foundation;
}

double VarnelBeam::getVolumen() const {
    const SDBSectionLine *atStart = getSection(0);
    const SDBSectionLine *atEnd = getSection(1);
    if (!atStart) return 0.0;
    const double a1 = atStart->getArea();
    const double a2 = atEnd ? atEnd->getArea() : a1;
    return (a1 + a2 + std::sqrt(a1 * a2)) / 3.0 * getLength();
}

double VarnelBeam::getWeight() const {
    const KzMaterial *material = getMaterial(0);
    return material ? getVolumen() * material->getGammaValue() : 0.0;
}

bool VarnelBeam::getChanged() const {
    return changed_ || (geometry_ && geometry_->getChanged());
}

void VarnelBeam::setChanged(bool changed) {
    changed_ = changed;
    if (geometry_) geometry_->setChanged(changed);
}

void VarnelBeam::updateMinMax(KzVector3D *min, KzVector3D *max, const KzMatrix44 &matrix) const {
    if (geometry_) geometry_->updateMinMax(min, max, matrix);
}

int VarnelBeam::getVisited(VarnelObjectVisitor *visitor) {
    return visitor ? visitor->visit(this) : 0;
}

bool VarnelBeam::isInPlane(const KzMatrix44 &plane) const {
    return geometry_ && geometry_->isInPlane(plane);
}

bool VarnelBeam::touchesPlane(const KzMatrix44 &plane) const {
    return geometry_ && geometry_->touchesPlane(plane);
}
