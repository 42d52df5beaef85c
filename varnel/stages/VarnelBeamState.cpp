#include "varnel/stages/VarnelBeamState.h"

#include "varnel/members/VarnelBeam.h"
#include "varnel/stages/VarnelObjectStateVisitor.h"

VarnelBeamState::VarnelBeamState(VarnelBeam *beam) : VarnelObjectState(beam), beam_(beam) {}

void VarnelBeamState::update() {
    VarnelObjectState::update();
    // No material means that the stage says nothing of it, not that the beam loses its own.
    if (material_ && beam_) beam_->setMaterial(material_, 0);
}

void VarnelBeamState::setup() {
    VarnelObjectState::setup();
    if (beam_) material_ = beam_->getMaterial(0);
}

void VarnelBeamState::getVisited(VarnelObjectStateVisitor *visitor) {
    if (visitor) visitor->visit(this);
}
