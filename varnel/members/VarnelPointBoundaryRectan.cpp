#include "varnel/members/VarnelPointBoundaryRectan.h"

#include "varnel/geometry/VarnelPointBoundaryVisitor.h"

void VarnelPointBoundaryRectan::getVisited(VarnelPointBoundaryVisitor *visitor) {
    if (visitor) visitor->visit(this);
}
