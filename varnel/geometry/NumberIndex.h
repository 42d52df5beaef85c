#ifndef VARNEL_GEOMETRY_NUMBERINDEX_H
#define VARNEL_GEOMETRY_NUMBERINDEX_H

#include <cstddef>
#include <cstdint>
#include <map>
#include <utility>

class VarnelPosition;

namespace varnel {

/// The numbers of one list of objects, kept in step while the numbers are set: each object that is entered
/// points back here. Answers the first object in list order with a number, and the highest number.
class NumberIndex {
  public:
    NumberIndex() = default;
    NumberIndex(const NumberIndex &) = delete;
    NumberIndex &operator=(const NumberIndex &) = delete;
    ~NumberIndex() { clear(); }

    /// Whether every object of the list has been entered; an index that is not complete answers nothing.
    bool isComplete() const { return complete_; }
    void setComplete() { complete_ = true; }
    /// Enters an object behind all others. False if it stands in an index already: then this one is of no
    /// use.
    bool enter(const VarnelPosition &position, void *object);
    /// Called by an object of this index that leaves its list or dies.
    void leave(const VarnelPosition &position);
    /// Called by an object of this index before its number changes.
    void refile(const VarnelPosition &position, int number);
    /// Forgets all objects and is no longer complete.
    void clear();

    /// The object with this number that was entered first, or null.
    void *find(int number) const;
    /// The highest number; 0 if there is no object or no number above it.
    int highest() const;

  private:
    struct Entry {
        const VarnelPosition *position;
        void *object;
    };

    using Key = std::pair<int, std::uint32_t>;  // number, place in the list

    std::map<Key, Entry> entries_;
    std::uint32_t next_ = 0;
    mutable std::size_t refiled_ = 0;  // since the last question
    bool complete_ = false;
};

}  // namespace varnel

#endif
