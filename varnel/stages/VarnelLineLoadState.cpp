#include "varnel/stages/VarnelLineLoadState.h"

#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/stages/VarnelObjectStateVisitor.h"

VarnelLineLoadState::VarnelLineLoadState(VarnelLineLoad *load) : VarnelObjectState(load), load_(load) {}

void VarnelLineLoadState::getVisited(VarnelObjectStateVisitor *visitor) {
    if (visitor) visitor->visit(this);
}
