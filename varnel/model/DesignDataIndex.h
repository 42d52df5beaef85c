#ifndef VARNEL_MODEL_DESIGNDATAINDEX_H
#define VARNEL_MODEL_DESIGNDATAINDEX_H

#include <array>
#include <cstddef>
#include <list>
#include <map>
#include <utility>
#include <vector>

#include "varnel/members/DesignDataLink.h"

class VarnelDesignData;

namespace varnel {

/// Finds the first record of a list with given values. Records are filed by hashes of their values, confirmed
/// by comparison, and filed again when they report an alteration. The records are the list's: it clears the
/// index before they die.
class DesignDataIndex {
  public:
    using Records = std::list<VarnelDesignData *>;
    /// Angle and four covers.
    using FiveValues = std::array<double, 5>;

    DesignDataIndex() = default;
    DesignDataIndex(const DesignDataIndex &) = delete;
    DesignDataIndex &operator=(const DesignDataIndex &) = delete;
    ~DesignDataIndex() { clear(); }

    VarnelDesignData *find(const Records &records, const VarnelDesignData &pattern);
    VarnelDesignData *find(const Records &records, const FiveValues &values);
    /// Files a record that was put at the end of the list.
    void append(VarnelDesignData *record);
    /// Forgets all records.
    void clear();
    /// From now on lists are walked: for a view, whose records may die without its knowledge.
    void walkOnly() {
        clear();
        walkOnly_ = true;
    }

  private:
    using Files = std::map<std::pair<std::size_t, std::size_t>, VarnelDesignData *>;  // hash, place

    template <class Accept>
    VarnelDesignData *findFiled(const Files &files, std::size_t hash, Accept accept) const;
    bool tabulate(const Records &records);
    bool file(const FiledDesignData &filed);

    Files byAllValues_;
    Files byFiveValues_;
    std::vector<FiledDesignData> altered_;
    std::size_t next_ = 0;
    bool complete_ = false;
    bool walkOnly_ = false;
};

}  // namespace varnel

#endif
