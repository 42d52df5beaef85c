// What a plate knows of the edges of its outline.

#include <utility>
#include <vector>

#include "varnel/members/VarnelLineBoundaryData.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPlateEdgeData.h"

bool VarnelPlate::hasLine(std::size_t edge) const {
    return getGeo() && edge < getGeo()->getNumLines();
}

VarnelPlateEdgeData &VarnelPlate::giveEdgeData(std::size_t edge) {
    VarnelPlateEdgeData *&data = edges_[edge];
    if (!data) data = new VarnelPlateEdgeData;
    return *data;
}

void VarnelPlate::setBoundary(std::size_t edge, const VarnelLineBoundaryData &boundary) {
    if (!hasLine(edge) || getEdgeData(edge)) return;  // an edge that has only a joint stays without, too
    giveEdgeData(edge).setBoundary(new VarnelLineBoundaryData(boundary));
}

void VarnelPlate::setBoundary(std::size_t edge, int dof, const std::vector<double> &stiffness,
                              const char *name) {
    if (!hasLine(edge)) return;
    VarnelPlateEdgeData &data = giveEdgeData(edge);
    if (!data.getBoundary()) data.setBoundary(new VarnelLineBoundaryData(dof, ""));
    data.getBoundary()->setDof(dof);
    data.getBoundary()->setStiffness(stiffness);
    if (name) data.getBoundary()->setName(name);
}

void VarnelPlate::setEdgeJoint(std::size_t edge, int joint) {
    if (hasLine(edge)) giveEdgeData(edge).setJoint(joint);
}

VarnelPlateEdgeData *VarnelPlate::getEdgeData(std::size_t edge) const {
    const auto found = edges_.find(edge);
    return found == edges_.end() ? nullptr : found->second;
}

VarnelLineBoundaryData *VarnelPlate::getBoundary(std::size_t edge) const {
    const VarnelPlateEdgeData *data = getEdgeData(edge);
    return data ? data->getBoundary() : nullptr;
}

VarnelLineBoundaryData *VarnelPlate::getBoundaryReference(std::size_t edge) const {
    VarnelLineBoundaryData *boundary = getBoundary(edge);
    return boundary && boundary->getReference() ? boundary->getReference() : boundary;
}

void VarnelPlate::cycle(int k) {
    if (getGeo()) getGeo()->cycle(static_cast<std::size_t>(k));
    const std::size_t count = edges_.size();
    if (count < 2 || k < 0) return;
    // The keys stay and the values rotate among them, also where only some edges are known.
    std::vector<VarnelPlateEdgeData *> values;
    for (const auto &entry : edges_) values.push_back(entry.second);
    std::size_t from = static_cast<std::size_t>(k) % count;
    for (auto &entry : edges_) {
        entry.second = values[from];
        from = (from + 1) % count;
    }
}

void VarnelPlate::swap() {
    if (getGeo()) getGeo()->swap();
    auto front = edges_.begin();
    auto back = edges_.rbegin();
    for (std::size_t i = 0; i < edges_.size() / 2; ++i) std::swap((front++)->second, (back++)->second);
}
