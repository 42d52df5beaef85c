#include "varnel/members/VarnelAttributeArea.h"

#include "varnel/contracts/KzConcrete.h"

VarnelAttributeArea::~VarnelAttributeArea() = default;

void VarnelAttributeArea::setMeshSize(double size) {
    meshSize_ = size;
    changed_ = true;
}

void VarnelAttributeArea::setMaterial(KzMaterial *material, int) {
    material_ = material;
    changed_ = true;
}

KzConcrete *VarnelAttributeArea::getConcrete(int) const {
    return dynamic_cast<KzConcrete *>(material_);
}

int VarnelAttributeArea::getVisited(VarnelObjectVisitor *) {
    return 0;
}
