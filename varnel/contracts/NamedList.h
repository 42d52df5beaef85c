#ifndef VARNEL_CONTRACTS_NAMEDLIST_H
#define VARNEL_CONTRACTS_NAMEDLIST_H

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "varnel/contracts/FirstByKey.h"
#include "varnel/contracts/Lists.h"

namespace varnel {

template <class T>
class NamedList;

/// The name of an object that a NamedList may own. It tells the list of a new name, so that look-ups by name
/// never walk. A copy has the same name and is in no list; an assignment changes the name alone.
template <class T>
class ListedName {
  public:
    explicit ListedName(std::string name) : name_(std::move(name)) {}
    ListedName(const ListedName &other) : name_(other.name_) {}
    ListedName &operator=(const ListedName &other) {
        set(other.name_);
        return *this;
    }
    ~ListedName() = default;

    const std::string &get() const { return name_; }
    /// True if the name is another one now.
    bool set(const std::string &name);
    /// Raises the change flag of the list, if there is one.
    void markChanged() const;
    /// Rises along the list.
    std::uint64_t sequence() const { return sequence_; }

  private:
    friend class NamedList<T>;

    std::string name_;
    NamedList<T> *list_ = nullptr;
    std::uint64_t sequence_ = 0;
};

/// Owned objects in the order in which they were added, found by name without a walk; of several with one
/// name the first wins. T has a field `ListedName<T> name_` and befriends its list. Not copyable.
template <class T>
class NamedList {
  public:
    NamedList() = default;
    NamedList(const NamedList &) = delete;
    NamedList &operator=(const NamedList &) = delete;
    ~NamedList() {
        names_.clear();  // a dying object finds none of its dead neighbours
        deleteAll(items_);
    }

    const std::vector<T *> &items() const { return items_; }
    bool changed() const { return changed_; }
    void setChanged(bool value) { changed_ = value; }

    /// Takes over an object. Null and an object that a list owns already are left alone: false.
    bool add(T *item) {
        if (!item || item->name_.list_) return false;
        items_.push_back(item);
        item->name_.list_ = this;
        item->name_.sequence_ = ++lastSequence_;
        names_.file(item->name_.get(), item->name_.sequence_, item);
        changed_ = true;
        return true;
    }
    bool owns(const T *item) const { return item && item->name_.list_ == this; }
    /// Takes an object out and hands it to the caller. False if it is not in this list.
    bool take(T *item) {
        if (!owns(item)) return false;
        const auto before = [](const T *left, std::uint64_t sequence) {
            return left->name_.sequence_ < sequence;
        };
        items_.erase(std::lower_bound(items_.begin(), items_.end(), item->name_.sequence_, before));
        forget(item);
        return true;
    }
    /// Deletes all objects that the test picks, in one pass.
    template <class Test>
    void deleteIf(Test test) {
        const auto rest = std::stable_partition(items_.begin(), items_.end(),
                                                [&test](const T *item) { return !test(item); });
        std::vector<T *> dying(rest, items_.end());
        items_.erase(rest, items_.end());
        for (T *item : dying) forget(item);
        deleteAll(dying);
    }
    /// The first object of that name, or null.
    T *find(const std::string &name) const { return names_.find(name); }

  private:
    friend class ListedName<T>;

    void forget(T *item) {
        names_.drop(item->name_.get(), item->name_.sequence_);
        item->name_.list_ = nullptr;
        changed_ = true;
    }
    void rename(const ListedName<T> &item, const std::string &name) {
        names_.rename(item.name_, item.sequence_, name);
        changed_ = true;
    }

    std::vector<T *> items_;
    FirstByKey<std::string, T> names_;
    std::uint64_t lastSequence_ = 0;
    bool changed_ = false;
};

template <class T>
bool ListedName<T>::set(const std::string &name) {
    if (name == name_) return false;
    if (list_) list_->rename(*this, name);
    name_ = name;
    return true;
}

template <class T>
void ListedName<T>::markChanged() const {
    if (list_) list_->setChanged(true);
}

}  // namespace varnel

#endif
