#include <memory>
#include <vector>

#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/loads/VarnelBeamLoad.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelHole.h"
#include "varnel/members/VarnelLineBoundary.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPointBoundaryCircle.h"
#include "varnel/members/VarnelPointBoundaryRectan.h"
#include "varnel/model/Varnel.h"

namespace {

template <class T>
std::unique_ptr<T> copyOf(T &object) {
    return std::make_unique<T>(object);
}

/// A support keeps the shape of its column.
std::unique_ptr<VarnelPointBoundary> copyOf(VarnelPointBoundary &boundary) {
    if (auto *circle = dynamic_cast<VarnelPointBoundaryCircle *>(&boundary)) return copyOf(*circle);
    if (auto *rectangle = dynamic_cast<VarnelPointBoundaryRectan *>(&boundary)) return copyOf(*rectangle);
    return std::make_unique<VarnelPointBoundary>(boundary);
}

/// Adds copies with the source's numbers, which therefore may occur twice until the next numbering.
template <class List>
void addCopies(Varnel &target, const List &list) {
    // Noted first: the target may be the source itself.
    const std::vector<typename List::value_type> source(list.begin(), list.end());
    for (auto *object : source) {
        if (!object) continue;
        auto copied = copyOf(*object);
        copied->setNumber(object->getNumber());
        target.add(copied.release());
    }
}

}  // namespace

/// Nothing needs to be linked again: every object has its own geometry, and references between boundaries are
/// derived in the next set-up. Outlines come out with straight edges, without joints and own loads.
void Varnel::copy(const Varnel &source) {
    modelFactor_ = source.modelFactor_;
    dBaseFactory_ = source.dBaseFactory_;
    acceleration_ = source.acceleration_;
    numberOfBeamLocations_ = source.numberOfBeamLocations_;
    addCopies(*this, source.getBeams());
    addCopies(*this, source.getPlates());
    addCopies(*this, source.getHoles());
    addCopies(*this, source.getPointBoundaries());
    addCopies(*this, source.getLineBoundaries());
    addCopies(*this, source.getPointLoads());
    addCopies(*this, source.getLineLoads());
    addCopies(*this, source.getAreaLoads());
    addCopies(*this, source.getBeamLoads());
}
