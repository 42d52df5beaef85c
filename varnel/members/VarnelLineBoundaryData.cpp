#include "varnel/members/VarnelLineBoundaryData.h"

#include <algorithm>

namespace varnel {

void list(VarnelLineBoundaryData *record, BoundaryList &entries) {
    const auto place = entries.insert(entries.end(), record);
    if (record) record->listings_.push_back({&entries, place});
}

void unlist(VarnelLineBoundaryData *record, BoundaryList &entries) {
    if (!record) {
        entries.remove(nullptr);
        return;
    }
    auto &listings = record->listings_;
    const auto others = std::remove_if(listings.begin(), listings.end(), [&entries](const auto &listing) {
        if (listing.list != &entries) return false;
        entries.erase(listing.place);
        return true;
    });
    listings.erase(others, listings.end());
}

void unlistAll(BoundaryList &entries) {
    for (VarnelLineBoundaryData *record : entries) {
        if (!record) continue;
        auto &listings = record->listings_;
        const auto others = std::remove_if(listings.begin(), listings.end(), [&entries](const auto &listing) {
            return listing.list == &entries;
        });
        listings.erase(others, listings.end());
    }
    entries.clear();
}

}  // namespace varnel

VarnelLineBoundaryData::VarnelLineBoundaryData(int dof, const std::string &name) : VarnelBoundaryData(dof) {
    VarnelBoundaryData::setName(name);
}

VarnelLineBoundaryData::VarnelLineBoundaryData(const VarnelLineBoundaryData &other)
    : VarnelPosition(), VarnelBoundaryData(), LinkTarget() {
    copy(other);  // the type stays at its default: it is meant not to be copied
}

VarnelLineBoundaryData &VarnelLineBoundaryData::operator=(const VarnelLineBoundaryData &other) {
    copy(other);
    return *this;
}

VarnelLineBoundaryData::~VarnelLineBoundaryData() {
    for (const Listing &listing : listings_) listing.list->erase(listing.place);
}

void VarnelLineBoundaryData::copy(const VarnelLineBoundaryData &other) {
    VarnelBoundaryData::copy(other);
    width_ = other.width_;
    setReference(nullptr);  // references are set up anew
    locsys_ = other.locsys_;
    local_ = other.local_;
    changed_ = true;
}

void VarnelLineBoundaryData::setWidth(double width) {
    width_ = width;
    changed_ = true;
}

void VarnelLineBoundaryData::setLocal(bool local) {
    local_ = local;
    changed_ = true;
}
