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
    : VarnelPosition(), VarnelBoundaryData() {
    copy(other);  // the type stays at its default: it is meant not to be copied
}

VarnelLineBoundaryData &VarnelLineBoundaryData::operator=(const VarnelLineBoundaryData &other) {
    copy(other);
    return *this;
}

VarnelLineBoundaryData::~VarnelLineBoundaryData() {
    for (const Listing &listing : listings_) listing.list->erase(listing.place);
    leaveReference();
    for (VarnelLineBoundaryData *referrer = firstReferrer_; referrer;) {
        VarnelLineBoundaryData *next = referrer->nextReferrer_;
        referrer->reference_ = referrer->nextReferrer_ = referrer->previousReferrer_ = nullptr;
        referrer = next;
    }
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

void VarnelLineBoundaryData::setReference(VarnelLineBoundaryData *reference) {
    leaveReference();
    reference_ = reference;
    if (!reference) return;
    nextReferrer_ = reference->firstReferrer_;
    if (nextReferrer_) nextReferrer_->previousReferrer_ = this;
    reference->firstReferrer_ = this;
}

void VarnelLineBoundaryData::leaveReference() {
    if (!reference_) return;
    (previousReferrer_ ? previousReferrer_->nextReferrer_ : reference_->firstReferrer_) = nextReferrer_;
    if (nextReferrer_) nextReferrer_->previousReferrer_ = previousReferrer_;
    reference_ = nextReferrer_ = previousReferrer_ = nullptr;
}
