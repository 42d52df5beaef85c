#ifndef VARNEL_MODEL_NUMBEREDLIST_H
#define VARNEL_MODEL_NUMBEREDLIST_H

#include <limits>

#include "varnel/geometry/NumberIndex.h"
#include "varnel/geometry/VarnelPosition.h"
#include "varnel/model/PointerList.h"

class VarnelLineBoundary;

namespace varnel {

/// The part of an object that has the number.
template <class T>
const VarnelPosition &numbered(const T &object) {
    return object;
}
template <>
const VarnelPosition &numbered(const VarnelLineBoundary &boundary);

/// A list of numbered objects that finds them by number. The index is made on the first question and follows
/// every setNumber. A list that shares an object with another one, or holds it twice, is walked instead.
template <class T>
class NumberedList : public PointerList<T> {
  public:
    using typename PointerList<T>::List;

    NumberedList() = default;
    NumberedList(const NumberedList &other) : PointerList<T>(other) {}
    NumberedList &operator=(const NumberedList &other) {
        forgetNumbers();
        PointerList<T>::operator=(other);
        return *this;
    }
    ~NumberedList() = default;

    void append(T *object) {
        PointerList<T>::append(object);
        if (index_.isComplete() && object) enter(object);
    }
    std::size_t erase(const T *object) {
        if (index_.isComplete() && object) index_.leave(numbered(*object));
        indexable_ = true;
        return PointerList<T>::erase(object);
    }
    template <class Predicate>
    std::size_t eraseIf(Predicate predicate) {
        forgetNumbers();
        return PointerList<T>::eraseIf(predicate);
    }
    void clear() { take(); }
    List take() {
        forgetNumbers();
        return PointerList<T>::take();
    }
    void swap(NumberedList &other) noexcept {
        forgetNumbers();
        other.forgetNumbers();
        PointerList<T>::swap(other);
    }

    /// The first object in the list with this number, or null.
    T *findToNumber(int number) const {
        if (makeIndex()) return static_cast<T *>(index_.find(number));
        for (T *object : this->list())
            if (object && numbered(*object).getNumber() == number) return object;
        return nullptr;
    }
    /// One more than the highest number, at least 1; the largest number stands for all beyond it.
    int nextNumber() const {
        const int highest = highestNumber();
        return highest < std::numeric_limits<int>::max() ? highest + 1 : highest;
    }

  private:
    static constexpr std::size_t shortLength = 16;  // up to here a walk is as fast

    int highestNumber() const {
        if (makeIndex()) return index_.highest();
        int highest = 0;
        for (const T *object : this->list())
            if (object && numbered(*object).getNumber() > highest) highest = numbered(*object).getNumber();
        return highest;
    }
    void enter(T *object) const {
        if (index_.enter(numbered(*object), object)) return;
        index_.clear();
        indexable_ = false;
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
    void forgetNumbers() {
        index_.clear();
        indexable_ = true;
    }

    mutable NumberIndex index_;
    mutable bool indexable_ = true;
};

}  // namespace varnel

#endif
