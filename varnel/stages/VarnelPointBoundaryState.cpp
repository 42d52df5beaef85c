#include "varnel/stages/VarnelPointBoundaryState.h"

#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/stages/VarnelObjectStateVisitor.h"

VarnelPointBoundaryState::VarnelPointBoundaryState(VarnelPointBoundary *boundary)
    : VarnelObjectState(boundary), boundary_(boundary) {}

void VarnelPointBoundaryState::getVisited(VarnelObjectStateVisitor *visitor) {
    if (visitor) visitor->visit(this);
}
