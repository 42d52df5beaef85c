#ifndef VARNEL_CONTRACTS_SHARED_H
#define VARNEL_CONTRACTS_SHARED_H

#include <utility>

namespace varnel {

/// Mix-in that counts the owners of an object which several holders keep alive together: the points of a
/// chain, a result record that copies share. Not atomic: a model lives on one thread. An object that
/// nobody has acquired (a local variable, an object that a caller holds) has no owners and is never freed
/// from here.
class Shared {
  public:
    void acquire() const noexcept { ++owners_; }
    /// Lets go; true if that was the last owner, whose duty it then is to delete.
    [[nodiscard]] bool release() const noexcept { return owners_ != 0 && --owners_ == 0; }
    unsigned owners() const noexcept { return owners_; }

  protected:
    Shared() noexcept = default;
    Shared(const Shared &) noexcept {}  // a copy starts without owners
    Shared &operator=(const Shared &) noexcept { return *this; }
    ~Shared() = default;

  private:
    mutable unsigned owners_ = 0;
};

/// Takes part in the ownership of an object; null is allowed.
template <class T>
void acquire(const T *object) noexcept {
    if (object) object->acquire();
}

/// Gives up one share; the last one deletes the object. Null is allowed.
template <class T>
void release(const T *object) {
    if (object && object->release()) delete object;
}

/// Gives up one share without ever deleting: the object is the caller's from then on. Null is allowed.
template <class T>
void letGo(const T *object) noexcept {
    if (object) static_cast<void>(object->release());
}

/// One slot that owns its object together with other slots (see Shared).
template <class T>
class Held {
  public:
    Held() noexcept = default;
    explicit Held(T *object) noexcept : object_(object) { acquire(object_); }
    Held(const Held &other) noexcept : Held(other.object_) {}
    Held(Held &&other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    Held &operator=(Held other) noexcept {
        swap(other);
        return *this;
    }
    ~Held() { release(object_); }

    T *get() const noexcept { return object_; }
    T *operator->() const noexcept { return object_; }
    T &operator*() const noexcept { return *object_; }
    explicit operator bool() const noexcept { return object_ != nullptr; }

    /// Acquires the new object, then releases the former one.
    void reset(T *object = nullptr) { *this = Held(object); }
    /// Acquires the new object and lets go of the former one without deleting it.
    void replace(T *object = nullptr) noexcept {
        acquire(object);
        letGo(std::exchange(object_, object));
    }
    void swap(Held &other) noexcept { std::swap(object_, other.object_); }

  private:
    T *object_ = nullptr;
};

}  // namespace varnel

#endif
