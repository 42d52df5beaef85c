#include "varnel/members/VarnelPointBoundaryCircle.h"

#include "varnel/geometry/VarnelPointBoundaryVisitor.h"

void VarnelPointBoundaryCircle::getVisited(VarnelPointBoundaryVisitor *visitor) {
    if (visitor) visitor->visit(this);
}
