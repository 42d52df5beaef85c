#include "varnel/geometry/VarnelBeamGeo.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelBeamProperties.h"

// What a beam passes through to its record, and the change flag that goes with it.

SDBSectionLine *VarnelBeam::getSection(int index) const {
    return data_->getSection(index);
}

void VarnelBeam::setSection(SDBSectionLine *section, int index) {
    data_->setSection(section, index);
    changed_ = true;
}

KzVector3D VarnelBeam::getOffset(unsigned index) const {
    return data_->getOffset(index);
}

void VarnelBeam::setOffset(const KzVector3D &offset, unsigned index) {
    data_->setOffset(offset, index);
    changed_ = true;
}

bool VarnelBeam::hasOffset() const {
    return data_->hasOffset();
}

double VarnelBeam::getAngle() const {
    return data_->getAngle();
}

void VarnelBeam::setAngle(double degrees) {
    data_->setAngle(degrees);
}

VarnelBeam::ElementType VarnelBeam::getElementType() const {
    return data_->getElementType();
}

void VarnelBeam::setElementType(ElementType type) {
    data_->setElementType(type);
}

VarnelBeam::Type VarnelBeam::getBeamType() const {
    return data_->getBeamType();
}

void VarnelBeam::setBeamType(Type type) {
    data_->setBeamType(type);
}

int VarnelBeam::getParts() const {
    return data_->getParts();
}

void VarnelBeam::setParts(int parts) {
    if (parts <= 0) return;
    data_->setParts(parts);
    if (geometry_ && geometry_->getLine(0)) geometry_->setNumParts(0, parts);
    changed_ = true;
}

Found::Foundation *VarnelBeam::getFoundation() const {
    return data_->getFoundation();
}

void VarnelBeam::setFoundation(Found::Foundation *foundation) {
    changed_ = data_->getFoundation() != foundation;  // assigned, not raised: meant to clear it, too
    data_->setFoundation(foundation);
}

VarnelDesignData *VarnelBeam::getDesign() const {
    return data_->getDesign();
}

void VarnelBeam::setDesign(const VarnelDesignData *design) {
    data_->setDesign(design);
    changed_ = true;
}

KzReinfLine *VarnelBeam::getReinfLine() const {
    return data_->getReinfLine();
}

void VarnelBeam::setReinfLine(KzReinfLine *line) {
    data_->setReinfLine(line);
}

KzConcrete *VarnelBeam::getConcrete(int) const {
    return data_->getConcrete();
}

KzMaterial *VarnelBeam::getMaterial(int) const {
    return data_->getMaterial();
}

void VarnelBeam::setMaterial(KzMaterial *material, int) {
    data_->setMaterial(material);
}

const FireDesign::TemperatureDistribution *VarnelBeam::getTemperatureDistribution() const {
    return data_->getTemperatureDistribution();
}

void VarnelBeam::setTemperatureDistribution(const FireDesign::TemperatureDistribution *distribution) {
    data_->setTemperatureDistribution(distribution);
}

void VarnelBeam::setName(const std::string &name) {
    data_->setName(name);
}

const std::string &VarnelBeam::getName() const {
    return data_->getName();
}
