#ifndef VARNEL_CONTRACTS_COORDINATEHASH_H
#define VARNEL_CONTRACTS_COORDINATEHASH_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

#include "varnel/contracts/KzVector3D.h"

namespace varnel {

/// Hash of exact coordinates that agrees with KzVector3D's equality: -0.0 counts as 0.0.
struct CoordinateHash {
    std::size_t operator()(const KzVector3D &point) const noexcept {
        std::uint64_t hash = bits(point.getX());
        hash = mixed(hash ^ rotated(bits(point.getY()), 21) ^ rotated(bits(point.getZ()), 42));
        return static_cast<std::size_t>(mixed(hash + bits(point.getY()) * 0x9e3779b97f4a7c15U +
                                              bits(point.getZ()) * 0xc2b2ae3d27d4eb4fU));
    }

  private:
    static std::uint64_t bits(double value) noexcept {
        const double positiveZero = value + 0.0;
        std::uint64_t result;
        std::memcpy(&result, &positiveZero, sizeof result);
        return result;
    }
    static std::uint64_t rotated(std::uint64_t value, int by) noexcept {
        return value << by | value >> (64 - by);
    }
    static std::uint64_t mixed(std::uint64_t value) noexcept {
        value = (value ^ value >> 32) * 0xd6e8feb86659fd93U;
        return value ^ value >> 32;
    }
};

/// Finds the first object that was entered at exact coordinates. Objects are lent; null objects and
/// coordinates with NaN are never entered, as nothing equals them.
template <class T>
class CoordinateIndex {
  public:
    /// The first object entered at these coordinates, or null.
    T *find(const KzVector3D &point) const noexcept {
        return slots_.empty() ? nullptr : slots_[place(point)].object;
    }
    /// Enters an object unless another one stands there already; answers the one that stands there.
    T *insert(const KzVector3D &point, T *object) {
        if (!object || point != point) return object;
        if (2 * (size_ + 1) > slots_.size()) grow(slots_.empty() ? 16 : 2 * slots_.size());
        Slot &slot = slots_[place(point)];
        if (slot.object) return slot.object;
        slot = {point, object};
        ++size_;
        return object;
    }
    /// Makes room for `count` objects.
    void reserve(std::size_t count) {
        std::size_t capacity = 16;
        while (capacity < 2 * count) capacity *= 2;
        if (capacity > slots_.size()) grow(capacity);
    }
    void clear() noexcept {
        slots_.clear();
        size_ = 0;
    }
    std::size_t size() const noexcept { return size_; }

  private:
    struct Slot {
        KzVector3D point;
        T *object = nullptr;
    };

    std::size_t place(const KzVector3D &point) const noexcept {
        const std::size_t mask = slots_.size() - 1;
        std::size_t i = CoordinateHash()(point) & mask;
        while (slots_[i].object && slots_[i].point != point) i = (i + 1) & mask;
        return i;
    }
    void grow(std::size_t capacity) {
        std::vector<Slot> former(capacity);
        former.swap(slots_);
        for (const Slot &slot : former)
            if (slot.object) slots_[place(slot.point)] = slot;
    }

    std::vector<Slot> slots_;
    std::size_t size_ = 0;
};

}  // namespace varnel

#endif
