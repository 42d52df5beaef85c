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

/// Finds the first object that was entered at exact coordinates, of at most 2^31 objects. Objects are lent;
/// null objects and coordinates with NaN are never entered, as nothing equals them.
template <class T>
class CoordinateIndex {
  public:
    /// The first object entered at these coordinates, or null.
    T *find(const KzVector3D &point) const noexcept {
        if (slots_.empty()) return nullptr;
        const Slot &slot = slots_[place(point, tag(point))];
        return slot.entry == none ? nullptr : entries_[slot.entry].object;
    }
    /// Enters an object unless another one stands there already; answers the one that stands there.
    T *insert(const KzVector3D &point, T *object) {
        if (!object || point != point) return object;
        if (2 * (entries_.size() + 1) > slots_.size()) grow(slots_.empty() ? 16 : 2 * slots_.size());
        const std::uint32_t tagged = tag(point);
        Slot &slot = slots_[place(point, tagged)];
        if (slot.entry != none) return entries_[slot.entry].object;
        entries_.push_back({point, object});
        slot = {tagged, static_cast<std::uint32_t>(entries_.size() - 1)};
        return object;
    }
    /// Makes room for `count` objects.
    void reserve(std::size_t count) {
        std::size_t capacity = 16;
        while (capacity < 2 * count) capacity *= 2;
        entries_.reserve(count);
        if (capacity > slots_.size()) grow(capacity);
    }
    void clear() noexcept {
        slots_.clear();
        entries_.clear();
    }
    std::size_t size() const noexcept { return entries_.size(); }

  private:
    static constexpr std::uint32_t none = 0xffffffffU;

    struct Entry {
        KzVector3D point;
        T *object;
    };
    // Small, so that a search touches few cache lines and growing moves no coordinates.
    struct Slot {
        std::uint32_t tag = 0;
        std::uint32_t entry = none;
    };

    static std::uint32_t tag(const KzVector3D &point) noexcept {
        return static_cast<std::uint32_t>(CoordinateHash()(point));
    }
    /// The slot of these coordinates, or the free one where they belong.
    std::size_t place(const KzVector3D &point, std::uint32_t tagged) const noexcept {
        const std::size_t mask = slots_.size() - 1;
        std::size_t i = tagged & mask;
        while (slots_[i].entry != none && !isAt(slots_[i], point, tagged)) i = (i + 1) & mask;
        return i;
    }
    bool isAt(const Slot &slot, const KzVector3D &point, std::uint32_t tagged) const noexcept {
        return slot.tag == tagged && entries_[slot.entry].point == point;
    }
    void grow(std::size_t capacity) {
        std::vector<Slot> former(capacity);
        former.swap(slots_);
        const std::size_t mask = capacity - 1;
        for (const Slot &slot : former) {
            if (slot.entry == none) continue;
            std::size_t i = slot.tag & mask;
            while (slots_[i].entry != none) i = (i + 1) & mask;
            slots_[i] = slot;
        }
    }

    std::vector<Entry> entries_;
    std::vector<Slot> slots_;  // open addressing, a power of two long
};

}  // namespace varnel

#endif
