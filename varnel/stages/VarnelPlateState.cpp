#include "varnel/stages/VarnelPlateState.h"

#include "varnel/members/VarnelPlate.h"
#include "varnel/stages/VarnelObjectStateVisitor.h"

VarnelPlateState::VarnelPlateState(VarnelPlate *plate) : VarnelObjectState(plate), plate_(plate) {}

void VarnelPlateState::update() {
    VarnelObjectState::update();
    // No material means that the stage says nothing of it, not that the plate loses its own.
    if (material_ && plate_) plate_->setMaterial(material_, 0);
}

void VarnelPlateState::setup() {
    VarnelObjectState::setup();
    if (plate_) material_ = plate_->getMaterial(0);
}

void VarnelPlateState::getVisited(VarnelObjectStateVisitor *visitor) {
    if (visitor) visitor->visit(this);
}
