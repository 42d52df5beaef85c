#include "varnel/model/DesignDataIndex.h"

#include <functional>

#include "varnel/members/VarnelDesignData.h"

namespace varnel {

namespace {

constexpr std::size_t shortLength = 16;  // up to here a walk is as fast

DesignDataIndex::FiveValues fiveValues(const VarnelDesignData &data) {
    return {data.getTheta(), data.getCoverXu(), data.getCoverYu(), data.getCoverXl(), data.getCoverYl()};
}

std::size_t hashOf(const DesignDataIndex::FiveValues &values) {
    std::size_t hash = 0;
    for (const double value : values) hash = hash * 1099511628211U + std::hash<double>()(value);
    return hash;
}

template <class Accept>
VarnelDesignData *findByWalk(const DesignDataIndex::Records &records, Accept accept) {
    for (VarnelDesignData *record : records)
        if (record && accept(*record)) return record;
    return nullptr;
}

}  // namespace

VarnelDesignData *DesignDataIndex::find(const Records &records, const VarnelDesignData &pattern) {
    const auto accept = [&pattern](const VarnelDesignData &record) { return record == pattern; };
    if (!tabulate(records)) return findByWalk(records, accept);
    return findFiled(byAllValues_, DesignDataHash()(pattern), accept);
}

VarnelDesignData *DesignDataIndex::find(const Records &records, const FiveValues &values) {
    const auto accept = [&values](const VarnelDesignData &record) { return fiveValues(record) == values; };
    if (!tabulate(records)) return findByWalk(records, accept);
    return findFiled(byFiveValues_, hashOf(values), accept);
}

void DesignDataIndex::append(VarnelDesignData *record) {
    if (complete_ && !file({record, next_++})) clear();
}

void DesignDataIndex::clear() {
    for (const auto &[key, record] : byAllValues_) record->link_.set(nullptr, {});
    byAllValues_.clear();
    byFiveValues_.clear();
    altered_.clear();
    next_ = 0;
    complete_ = false;
}

/// A record may still be filed under values that it had before; it counts if it has the values now.
template <class Accept>
VarnelDesignData *DesignDataIndex::findFiled(const Files &files, std::size_t hash, Accept accept) const {
    for (auto file = files.lower_bound({hash, 0}); file != files.end() && file->first.first == hash; ++file)
        if (accept(*file->second)) return file->second;
    return nullptr;
}

/// Whether all records are filed by what they hold now.
bool DesignDataIndex::tabulate(const Records &records) {
    if (byAllValues_.size() > 2 * records.size() + shortLength) clear();
    if (!complete_) {
        if (walkOnly_ || records.size() <= shortLength) return false;
        for (VarnelDesignData *record : records) {
            if (file({record, next_++})) continue;
            clear();
            return false;
        }
        complete_ = true;
    }
    std::vector<FiledDesignData> altered;
    altered.swap(altered_);
    for (const FiledDesignData &filed : altered) file(filed);
    return true;
}

/// False for a record that stands in an index, so also for one that the list holds twice.
bool DesignDataIndex::file(const FiledDesignData &filed) {
    if (!filed.record) return true;
    if (filed.record->link_.isSet()) return false;
    filed.record->link_.set(&altered_, filed);
    byAllValues_.emplace(std::make_pair(DesignDataHash()(*filed.record), filed.place), filed.record);
    byFiveValues_.emplace(std::make_pair(hashOf(fiveValues(*filed.record)), filed.place), filed.record);
    return true;
}

}  // namespace varnel
