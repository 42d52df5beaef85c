// What a plate hands on to its properties.

#include "varnel/contracts/KzConcrete.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPlateProperties.h"

double VarnelPlate::getThick() const {
    return data_->getThick();
}

void VarnelPlate::setThick(double thickness) {
    data_->setThick(thickness);
    changed_ = true;
}

double VarnelPlate::getMeshSizeX() const {
    return data_->getMeshSizeX();
}

void VarnelPlate::setMeshSizeX(double size) {
    data_->setMeshSizeX(size);
    changed_ = true;
}

double VarnelPlate::getMeshSizeY() const {
    return data_->getMeshSizeY();
}

void VarnelPlate::setMeshSizeY(double size) {
    data_->setMeshSizeY(size);
    changed_ = true;
}

double VarnelPlate::getMinMeshSize() const {
    return data_->getMinMeshSize();
}

void VarnelPlate::setMinMeshSize(double size) {
    data_->setMinMeshSize(size);
    changed_ = true;
}

bool VarnelPlate::getAutoMeshSize() const {
    return data_->getAutoMeshSize();
}

void VarnelPlate::setAutoMeshSize(bool automatic) {
    data_->setAutoMeshSize(automatic);
}

VarnelPlate::ElementType VarnelPlate::getElementType() const {
    return data_->getElementType();
}

void VarnelPlate::setElementType(ElementType type) {
    data_->setElementType(type);
    setChanged(true);
}

VarnelPlate::MeshType VarnelPlate::getMeshType() const {
    return data_->getMeshType();
}

void VarnelPlate::setMeshType(MeshType type) {
    data_->setMeshType(type);
    setChanged(true);
}

double VarnelPlate::getMeshAngle() const {
    return data_->getMeshAngle();
}

void VarnelPlate::setMeshAngle(double angle) {
    data_->setMeshAngle(angle);
    setChanged(true);
}

KzMaterial *VarnelPlate::getMaterial(int) const {
    return data_->getMaterial();
}

void VarnelPlate::setMaterial(KzMaterial *material, int) {
    data_->setMaterial(material);
}

KzConcrete *VarnelPlate::getConcrete(int) const {
    return dynamic_cast<KzConcrete *>(data_->getMaterial());
}

Found::Foundation *VarnelPlate::getFoundation() const {
    return data_->getFoundation();
}

void VarnelPlate::setFoundation(Found::Foundation *foundation) {
    if (foundation == data_->getFoundation()) return;
    data_->setFoundation(foundation);
    setChanged(true);
}

VarnelDesignData *VarnelPlate::getDesign() const {
    return data_->getDesign();
}

void VarnelPlate::setDesign(const VarnelDesignData *design) {
    data_->setDesign(design);
    setChanged(true);
}
