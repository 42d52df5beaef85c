#ifndef VARNEL_CONTRACTS_KEYINDEX_H
#define VARNEL_CONTRACTS_KEYINDEX_H

#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>
#include <utility>

namespace varnel {

template <class Key>
class KeyIndex;

/// A field of an object by which a list finds it, such as its number or its name: tells the index of that
/// list of every new value. A copy has the same value and stands in no index; an assignment changes the value
/// alone.
template <class Key>
class IndexedKey {
  public:
    IndexedKey() = default;
    explicit IndexedKey(Key value) : value_(std::move(value)) {}
    IndexedKey(const IndexedKey &other) : value_(other.value_) {}
    IndexedKey &operator=(const IndexedKey &other) {
        set(other.value_);
        return *this;
    }
    ~IndexedKey() {
        if (index_) index_->lose(*this);
    }

    const Key &get() const noexcept { return value_; }
    void set(const Key &value) {
        if (index_) index_->refile(*this, value);
        value_ = value;
    }
    /// For an object that gets another key field: the index that knew this one starts again.
    void spoilIndex() const {
        if (index_) index_->clear();
    }

  private:
    friend class KeyIndex<Key>;

    Key value_{};
    mutable std::uint32_t place_ = 0;
    mutable KeyIndex<Key> *index_ = nullptr;
};

/// The keys of one list of objects, kept in step while they are set. Answers the first object in list order
/// with a key, and the highest key.
template <class Key>
class KeyIndex {
  public:
    KeyIndex() = default;
    KeyIndex(const KeyIndex &) = delete;
    KeyIndex &operator=(const KeyIndex &) = delete;
    ~KeyIndex() { clear(); }

    /// Whether every object of the list has been entered; an index that is not complete answers nothing.
    bool isComplete() const { return complete_; }
    void setComplete() { complete_ = true; }
    /// Enters an object behind all others. False if its key stands in an index already: then this one is of
    /// no use.
    bool enter(const IndexedKey<Key> &key, void *object) {
        if (key.index_ || next_ == std::numeric_limits<std::uint32_t>::max()) return false;
        // Objects mostly come with rising numbers, so the end is the place to look first.
        entries_.emplace_hint(entries_.end(), Filing(key.value_, next_), Entry{&key, object});
        key.index_ = this;
        key.place_ = next_++;
        return true;
    }
    /// For an object that leaves its list; keys of other objects are ignored.
    void leave(const IndexedKey<Key> &key) {
        if (key.index_ != this) return;
        entries_.erase(Filing(key.value_, key.place_));
        key.index_ = nullptr;
    }
    /// Called by a key of this index that dies.
    void lose(const IndexedKey<Key> &key) {
        leave(key);
        hasLost_ = true;
    }
    /// Whether an object died before it left its list, which still names it.
    bool hasLost() const { return hasLost_; }
    /// Called by a key of this index before its value changes.
    void refile(const IndexedKey<Key> &key, const Key &value) {
        if (value == key.value_) return;
        // While everything is numbered anew nobody asks: then it is cheaper to start again at the next
        // question.
        if (++refiled_ > entries_.size() / 4 + 16) {
            clear();
            return;
        }
        auto entry = entries_.extract(Filing(key.value_, key.place_));
        entry.key().first = value;
        entries_.insert(std::move(entry));
    }
    /// Forgets all objects and is no longer complete.
    void clear() {
        for (const auto &[filing, entry] : entries_) entry.key->index_ = nullptr;
        entries_.clear();
        next_ = 0;
        refiled_ = 0;
        complete_ = hasLost_ = false;
    }

    /// The object with this key that was entered first, or null.
    void *find(const Key &key) const {
        refiled_ = 0;
        const auto first = entries_.lower_bound(Filing(key, 0));
        return first != entries_.end() && first->first.first == key ? first->second.object : nullptr;
    }
    /// Null if there is no object.
    const Key *highest() const {
        refiled_ = 0;
        return entries_.empty() ? nullptr : &entries_.rbegin()->first.first;
    }

  private:
    struct Entry {
        const IndexedKey<Key> *key;
        void *object;
    };
    using Filing = std::pair<Key, std::uint32_t>;  // key, place in the list

    std::map<Filing, Entry> entries_;
    std::uint32_t next_ = 0;
    mutable std::size_t refiled_ = 0;  // since the last question
    bool complete_ = false;
    bool hasLost_ = false;
};

}  // namespace varnel

#endif
