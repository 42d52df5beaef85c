#ifndef VARNEL_MODEL_POINTERLIST_H
#define VARNEL_MODEL_POINTERLIST_H

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <list>
#include <type_traits>
#include <unordered_map>
#include <utility>

class VarnelObject;

namespace varnel {

/// The address that tells an object from others: that of its VarnelObject part, if it has one, so that it can
/// be compared with any pointer to that base. The object is not touched; it may be gone.
template <class T>
const void *addressOf(const T *object) {
    if constexpr (std::is_base_of_v<VarnelObject, T>)
        return static_cast<const VarnelObject *>(object);
    else
        return object;
}

/// A list of pointers in the order in which they came; an entry may be null or stand there twice. Entries are
/// found and taken out by address at constant cost, through a table that is made on the first such question.
/// Does not own: its holder deletes.
template <class T>
class PointerList {
  public:
    using List = std::list<T *>;

    PointerList() = default;
    PointerList(const PointerList &other) : list_(other.list_) {}
    PointerList &operator=(const PointerList &other) {
        if (this != &other) {
            places_.clear();
            list_ = other.list_;
        }
        return *this;
    }
    ~PointerList() = default;

    const List &list() const { return list_; }
    void append(T *object) {
        list_.push_back(object);
        if (!places_.empty()) places_.emplace(addressOf(object), std::prev(list_.end()));
    }
    bool contains(const T *object) const { return containsAddress(addressOf(object)); }
    /// Whether an entry has that address (see addressOf).
    bool containsAddress(const void *address) const {
        if (tabulate()) return places_.count(address) != 0;
        return std::any_of(list_.begin(), list_.end(),
                           [address](const T *entry) { return addressOf(entry) == address; });
    }
    /// Takes out all entries that are this very object; answers how many.
    std::size_t erase(const T *object) {
        if (!tabulate()) return eraseByWalk([object](const T *entry) { return entry == object; });
        const auto [first, last] = places_.equal_range(addressOf(object));
        std::size_t erased = 0;
        for (auto place = first; place != last; ++place, ++erased) list_.erase(place->second);
        places_.erase(first, last);
        return erased;
    }
    /// Takes out the first entry that is this very object; false if there is none.
    bool eraseFirst(const T *object) {
        const auto place = std::find(list_.begin(), list_.end(), object);
        if (place == list_.end()) return false;
        places_.clear();
        list_.erase(place);
        return true;
    }
    /// Takes out all entries that the predicate accepts, in one pass.
    template <class Predicate>
    std::size_t eraseIf(Predicate predicate) {
        places_.clear();
        return eraseByWalk(predicate);
    }
    /// Lets a function look at each entry and change it; where it answers false the entry goes.
    template <class Update>
    void update(Update function) {
        places_.clear();
        for (auto entry = list_.begin(); entry != list_.end();)
            entry = function(*entry) ? std::next(entry) : list_.erase(entry);
    }
    void clear() { take(); }
    /// Empties the list and answers its former entries.
    List take() {
        places_.clear();
        return std::exchange(list_, List());
    }
    void swap(PointerList &other) noexcept {
        list_.swap(other.list_);
        places_.swap(other.places_);
    }

  private:
    static constexpr std::size_t shortLength = 16;  // up to here a walk is as fast

    template <class Predicate>
    std::size_t eraseByWalk(Predicate predicate) {
        const std::size_t before = list_.size();
        list_.remove_if(predicate);
        return before - list_.size();
    }
    /// Whether the table is there, made now if that pays.
    bool tabulate() const {
        if (!places_.empty()) return true;
        if (list_.size() <= shortLength) return false;
        places_.reserve(list_.size());
        for (auto place = list_.begin(); place != list_.end(); ++place)
            places_.emplace(addressOf(*place), place);
        return true;
    }

    mutable List list_;
    mutable std::unordered_multimap<const void *, typename List::iterator> places_;
};

}  // namespace varnel

#endif
