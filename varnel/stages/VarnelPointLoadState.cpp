#include "varnel/stages/VarnelPointLoadState.h"

#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/stages/VarnelObjectStateVisitor.h"

VarnelPointLoadState::VarnelPointLoadState(VarnelPointLoad *load) : VarnelObjectState(load), load_(load) {}

void VarnelPointLoadState::getVisited(VarnelObjectStateVisitor *visitor) {
    if (visitor) visitor->visit(this);
}
