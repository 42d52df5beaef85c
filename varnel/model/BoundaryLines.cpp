#include "varnel/model/BoundaryLines.h"

#include <tuple>
#include <typeinfo>
#include <utility>

#include "varnel/geometry/VarnelCircle.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/geometry/VarnelStraight.h"

namespace varnel {

namespace {

bool isNumber(const KzVector3D &place) {
    return place == place;
}

bool comesBefore(const KzVector3D &a, const KzVector3D &b) {
    return std::make_tuple(a.getX(), a.getY(), a.getZ()) < std::make_tuple(b.getX(), b.getY(), b.getZ());
}

/// The arc if this is one, null for a straight line; false for a line that may compare in its own way.
bool classify(const VarnelLine &line, const VarnelCircle *&arc) {
    arc = nullptr;
    if (!line.getStart() || !line.getEnd()) return false;
    if (!isNumber(line.getStartVec()) || !isNumber(line.getEndVec())) return false;
    if (typeid(line) == typeid(VarnelStraight)) return true;
    if (typeid(line) != typeid(VarnelCircle)) return false;
    arc = static_cast<const VarnelCircle *>(&line);
    return isNumber(arc->getCenterVec());
}

}  // namespace

BoundaryLines::Ends BoundaryLines::endsOf(const VarnelLine &line) {
    Ends ends{line.getStartVec(), line.getEndVec()};
    if (comesBefore(ends.high, ends.low)) std::swap(ends.low, ends.high);
    return ends;
}

void BoundaryLines::append(const VarnelLine *line, VarnelLineBoundaryData *boundary) {
    if (!line || !complete_) return;
    const VarnelCircle *arc = nullptr;
    complete_ = classify(*line, arc);
    if (!complete_) return;
    if (!arc) {
        straights_.emplace(endsOf(*line), boundary);
        return;
    }
    Arcs &arcs = arcs_[endsOf(*line)];
    if (!arcs.first) {
        arcs.centre = arc->getCenterVec();
        arcs.first = boundary;
    } else if (!arcs.firstOfAnotherCentre && arcs.centre != arc->getCenterVec()) {
        arcs.firstOfAnotherCentre = boundary;
    }
}

/// Arcs are meant to have the same points only if their centres differ, so an arc never finds itself.
VarnelLineBoundaryData *BoundaryLines::find(const VarnelLine &line) const {
    const VarnelCircle *arc = nullptr;
    classify(line, arc);
    if (!arc) {
        const auto found = straights_.find(endsOf(line));
        return found == straights_.end() ? nullptr : found->second;
    }
    const auto found = arcs_.find(endsOf(line));
    if (found == arcs_.end()) return nullptr;
    const Arcs &arcs = found->second;
    return arcs.centre != arc->getCenterVec() ? arcs.first : arcs.firstOfAnotherCentre;
}

}  // namespace varnel
