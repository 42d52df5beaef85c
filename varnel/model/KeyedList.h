#ifndef VARNEL_MODEL_KEYEDLIST_H
#define VARNEL_MODEL_KEYEDLIST_H

#include <algorithm>
#include <limits>
#include <string>

#include "varnel/contracts/KeyIndex.h"
#include "varnel/model/PointerList.h"

namespace varnel {

/// How lists find their objects: by the field that these answer. An object without the field, null, is found
/// by what `value` says.
struct ByNumber {
    using Key = int;

    template <class T>
    static const IndexedKey<int> *field(const T &object) {
        return &object.indexedNumber();
    }
    template <class T>
    static int value(const T &object) {
        return object.getNumber();
    }
};
struct ByName {
    using Key = std::string;

    template <class T>
    static const IndexedKey<std::string> *field(const T &object) {
        return object.indexedName();
    }
    template <class T>
    static const std::string &value(const T &object) {
        return object.getName();
    }
};

/// A list that finds its objects by a key. The index is made on the first question and follows every new
/// value. A list that shares an object with another one, or holds it twice, is walked instead.
template <class T, class By>
class KeyedList : public PointerList<T> {
  public:
    using typename PointerList<T>::List;
    using Key = typename By::Key;

    KeyedList() = default;
    KeyedList(const KeyedList &other) : PointerList<T>(other) {}
    KeyedList &operator=(const KeyedList &other) {
        forgetKeys();
        PointerList<T>::operator=(other);
        return *this;
    }
    ~KeyedList() = default;

    void append(T *object) {
        PointerList<T>::append(object);
        if (index_.isComplete() && object) enter(object);
    }
    std::size_t erase(const T *object) {
        leave(object);
        return PointerList<T>::erase(object);
    }
    bool eraseFirst(const T *object) {
        leave(object);
        return PointerList<T>::eraseFirst(object);
    }
    template <class Predicate>
    std::size_t eraseIf(Predicate predicate) {
        forgetKeys();
        return PointerList<T>::eraseIf(predicate);
    }
    template <class Update>
    void update(Update function) {
        forgetKeys();
        PointerList<T>::update(function);
    }
    void clear() { take(); }
    List take() {
        forgetKeys();
        return PointerList<T>::take();
    }
    void swap(KeyedList &other) noexcept {
        forgetKeys();
        other.forgetKeys();
        PointerList<T>::swap(other);
    }

    /// The first object in the list with this key, or null.
    T *find(const Key &key) const {
        if (makeIndex()) return static_cast<T *>(index_.find(key));
        for (T *object : this->list())
            if (object && By::value(*object) == key) return object;
        return nullptr;
    }

  protected:
    /// The highest key that is above a given one, else that one.
    Key highestAbove(const Key &least) const {
        if (makeIndex()) return index_.highest() ? std::max(least, *index_.highest()) : least;
        Key highest = least;
        for (const T *object : this->list())
            if (object && highest < By::value(*object)) highest = By::value(*object);
        return highest;
    }

  private:
    static constexpr std::size_t shortLength = 16;  // up to here a walk is as fast

    void enter(T *object) const {
        const IndexedKey<Key> *field = By::field(*object);
        if (field && index_.enter(*field, object)) return;
        index_.clear();
        indexable_ = false;
    }
    void leave(const T *object) {
        if (index_.hasLost()) forgetKeys();  // this one, too, may be gone and must not be touched
        if (index_.isComplete() && object && By::field(*object)) index_.leave(*By::field(*object));
        indexable_ = true;
    }
    bool makeIndex() const {
        if (index_.isComplete()) return true;
        if (!indexable_ || this->list().size() <= shortLength) return false;
        for (T *object : this->list()) {
            if (object) enter(object);
            if (!indexable_) return false;
        }
        index_.setComplete();
        return true;
    }
    void forgetKeys() {
        index_.clear();
        indexable_ = true;
    }

    mutable KeyIndex<Key> index_;
    mutable bool indexable_ = true;
};

/// A list of objects that are found by name.
template <class T>
using NamedObjects = KeyedList<T, ByName>;

/// A list of numbered objects that finds them by number and proposes new ones.
template <class T>
class NumberedList : public KeyedList<T, ByNumber> {
  public:
    /// One more than the highest number, at least 1; the largest number stands for all beyond it.
    int nextNumber() const {
        const int highest = this->highestAbove(0);
        return highest < std::numeric_limits<int>::max() ? highest + 1 : highest;
    }
};

}  // namespace varnel

#endif
