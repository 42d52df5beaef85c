#include "varnel/model/BoundaryLines.h"

#include <tuple>
#include <typeinfo>
#include <utility>

#include "varnel/geometry/VarnelCircle.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/geometry/VarnelStraight.h"
#include "varnel/members/VarnelLineBoundaryData.h"

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
    if (!complete_) return;
    if (!line) {
        entries_.push_back({boundary, nullptr, false});
        return;
    }
    const VarnelCircle *arc = nullptr;
    complete_ = classify(*line, arc);
    if (!complete_) return;
    Bundle &bundle = (arc ? arcs_ : straights_)[endsOf(*line)];
    if (!bundle.first) {
        bundle.first = boundary;
        if (arc) bundle.centre = arc->getCenterVec();
    }
    // Arcs are meant to have the same points only if their centres differ, so an arc never finds itself.
    const bool sameCentre = arc && bundle.centre == arc->getCenterVec();
    if (arc && !sameCentre && !bundle.firstOfAnotherCentre) bundle.firstOfAnotherCentre = boundary;
    entries_.push_back({boundary, &bundle, !sameCentre});
}

void BoundaryLines::setReferences() const {
    for (const Entry &entry : entries_) {
        VarnelLineBoundaryData *reference = nullptr;
        if (const Bundle *bundle = entry.bundle)
            reference = entry.refersToFirst ? bundle->first : bundle->firstOfAnotherCentre;
        entry.boundary->setReference(reference);
    }
}

}  // namespace varnel
