#include "varnel/members/VarnelPlate.h"

#include <utility>

#include "varnel/contracts/KzConcrete.h"
#include "varnel/contracts/Lists.h"
#include "varnel/geometry/VarnelObjectVisitor.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/members/VarnelLineBoundaryData.h"
#include "varnel/members/VarnelPlateEdgeData.h"
#include "varnel/members/VarnelPlateProperties.h"
#include "varnel/model/Varnel.h"

VarnelPlate::VarnelPlate(Varnel *parent)
    : data_(std::make_unique<VarnelPlateProperties>()), parent_(parent) {}

VarnelPlate::VarnelPlate(const VarnelPlate &other)
    : VarnelPolyObject(other),
      VarnelStateObject(),  // a copy takes part in the analysis, whatever its original did
      data_(std::make_unique<VarnelPlateProperties>()),
      parent_(nullptr) {
    *this = other;
}

const VarnelPlate &VarnelPlate::operator=(const VarnelPlate &other) {
    *data_ = *other.data_;
    setPlateType(other.plateType_);
    // Counts entries, not edges: supports behind a gap in the known edges are meant not to be copied.
    for (std::size_t edge = 0; edge < other.edges_.size(); ++edge)
        if (const VarnelLineBoundaryData *boundary = other.getBoundary(edge)) setBoundary(edge, *boundary);
    return other;  // not this plate: hosts chain on it
}

VarnelPlate::~VarnelPlate() {
    // Emptied first, so that whatever dies here and asks for its plate's edges meets no dead ones.
    for (const auto &entry : std::exchange(edges_, {})) delete entry.second;
    varnel::deleteAll(areaLoads_);
    VarnelPlate::removeResults();
}

void VarnelPlate::setData(const VarnelPlateProperties &data) {
    *data_ = data;
}

void VarnelPlate::setPlateType(Type type) {
    plateType_ = type;
    changed_ = true;
}

void VarnelPlate::updateMinMax(KzVector3D *min, KzVector3D *max, const KzMatrix44 &matrix) const {
    if (getGeo()) getGeo()->updateMinMax(min, max, matrix);
}

int VarnelPlate::getVisited(VarnelObjectVisitor *visitor) {
    return visitor ? visitor->visit(this) : 0;
}

bool VarnelPlate::getChanged() {
    // Counts entries, not edges: supports behind a gap in the known edges are meant not to be asked.
    for (std::size_t edge = 0; edge < edges_.size(); ++edge) {
        const VarnelLineBoundaryData *boundary = getBoundary(edge);
        if (boundary && boundary->getChanged()) return true;
    }
    return changed_ || VarnelPolyObject::getChanged();
}

void VarnelPlate::setChanged(bool changed) {
    VarnelPolyObject::setChanged(changed);
    for (std::size_t edge = 0; edge < edges_.size(); ++edge)
        if (VarnelLineBoundaryData *boundary = getBoundary(edge)) boundary->setChanged(changed);
    changed_ = changed;
}

VarnelPlatePosition *VarnelPlate::giveResultPosition(double x, double y, double z) {
    if (VarnelPlatePosition *position = findPlatePosition(x, y, z)) return position;
    auto *position = new VarnelPlatePosition(x, y, z);
    add(position);
    return position;
}

void VarnelPlate::removeResults() {
    places_.clear(resultPositions_);
    varnel::deleteAll(resultPositions_);
}

void VarnelPlate::setDefaultName() {
    setName("Platte " + std::to_string(getNumber()));
}

void VarnelPlate::setName(const std::string &name) {
    const std::string newName = name;  // the argument may be the very name that is about to change
    if (parent_) parent_->updatePlateName(newName, data_->getName(), this);
    data_->setName(newName);
}

const std::string &VarnelPlate::getName() const {
    return data_->getName();
}

void VarnelPlate::add(VarnelPlatePosition *position) {
    resultPositions_.push_back(position);
    places_.enter(position);
}

VarnelPlatePosition *VarnelPlate::findPlatePosition(double x, double y, double z) const {
    return places_.find(resultPositions_, KzVector3D(x, y, z));
}

void VarnelPlate::add(VarnelAreaLoad *load) {
    areaLoads_.push_back(load);
    changed_ = true;
}

void VarnelPlate::remove(VarnelAreaLoad *load) {
    areaLoads_.remove(load);
}

VarnelAreaLoad *VarnelPlate::findAreaLoad(SysBase::LoadcaseData::Type type,
                                          SysBase::Loadcase *loadcase) const {
    for (VarnelAreaLoad *load : areaLoads_)
        if (load && load->getLcType() == type && (!loadcase || load->getLoadcase() == loadcase)) return load;
    return nullptr;
}

VarnelAreaLoad *VarnelPlate::giveAreaLoad(SysBase::LoadcaseData::Type type, SysBase::Loadcase *loadcase) {
    if (VarnelAreaLoad *load = findAreaLoad(type, loadcase)) return load;
    auto *load = new VarnelAreaLoad;
    add(load);
    load->setOwnsArea(false);
    load->setArea(getGeo());
    load->setLoadcase(loadcase);
    load->setLcType(type);
    return load;
}

std::string VarnelPlate::getGroupName() const {
    if (!getName().empty()) return getName();
    const std::string number = std::to_string(getNumber());
    return "PL" + std::string(number.size() < 3 ? 3 - number.size() : 0, '0') + number;
}

double VarnelPlate::getVolumen() const {
    return getGeo() ? getGeo()->getArea() * data_->getThick() : 0.0;
}

double VarnelPlate::getWeight() const {
    const KzMaterial *material = data_->getMaterial();
    return material ? getVolumen() * material->getRho() : 0.0;
}
