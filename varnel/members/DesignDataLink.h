#ifndef VARNEL_MEMBERS_DESIGNDATALINK_H
#define VARNEL_MEMBERS_DESIGNDATALINK_H

#include <cstddef>
#include <vector>

class VarnelDesignData;

namespace varnel {

/// A record of design data and its place in the list of a model.
struct FiledDesignData {
    VarnelDesignData *record;
    std::size_t place;
};

/// Lets a record of design data report, once, that it was altered, so that whoever looks it up by its values
/// files it anew. Part of the record; copies of the record report to nobody.
class DesignDataLink {
  public:
    DesignDataLink() noexcept = default;
    DesignDataLink(const DesignDataLink &) noexcept {}
    /// The record is being assigned to.
    DesignDataLink &operator=(const DesignDataLink &) {
        alter();
        return *this;
    }
    ~DesignDataLink() = default;

    bool isSet() const { return altered_ != nullptr; }
    /// The list of altered records is shared; null ends the reporting.
    void set(std::vector<FiledDesignData> *altered, const FiledDesignData &filed) {
        altered_ = altered;
        filed_ = filed;
    }
    void alter() {
        if (!altered_) return;
        altered_->push_back(filed_);
        altered_ = nullptr;
    }

  private:
    std::vector<FiledDesignData> *altered_ = nullptr;
    FiledDesignData filed_{};
};

}  // namespace varnel

#endif
