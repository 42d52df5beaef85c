#ifndef VARNEL_CONTRACTS_FIRSTBYKEY_H
#define VARNEL_CONTRACTS_FIRSTBYKEY_H

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <unordered_map>
#include <utility>

namespace varnel {

/// Answers which object of a list is the first one with a given key, without a walk. Each object is filed
/// under its key and a sequence number that rises along the list. Filing, dropping and renaming take at most
/// the logarithm of the number of objects that share the key.
template <class Key, class T, class Hash = std::hash<Key>>
class FirstByKey {
  public:
    void file(const Key &key, std::uint64_t sequence, T *object) {
        const auto [place, isNew] = filed_.try_emplace(key);
        Sharers &sharers = place->second;
        if (isNew || sharers.sequence > sequence) {
            std::swap(sharers.sequence, sequence);
            std::swap(sharers.first, object);
        }
        if (isNew) return;
        if (!sharers.later) sharers.later = std::make_unique<std::map<std::uint64_t, T *>>();
        sharers.later->emplace(sequence, object);
    }
    /// Takes out what is filed there and answers it, null if nothing is.
    T *drop(const Key &key, std::uint64_t sequence) {
        const auto place = filed_.find(key);
        if (place == filed_.end()) return nullptr;
        Sharers &sharers = place->second;
        if (sharers.sequence != sequence) return sharers.dropLater(sequence);
        T *dropped = sharers.first;
        if (sharers.later) {
            sharers.sequence = sharers.later->begin()->first;
            sharers.first = sharers.dropLater(sharers.sequence);
        } else {
            filed_.erase(place);
        }
        return dropped;
    }
    /// Files what stands there under another key.
    void rename(const Key &before, std::uint64_t sequence, const Key &after) {
        if (T *object = drop(before, sequence)) file(after, sequence, object);
    }
    /// Null if nothing has that key.
    T *find(const Key &key) const {
        const auto place = filed_.find(key);
        return place == filed_.end() ? nullptr : place->second.first;
    }
    void clear() { filed_.clear(); }

  private:
    struct Sharers {
        T *dropLater(std::uint64_t number) {
            if (!later) return nullptr;
            const auto place = later->find(number);
            if (place == later->end()) return nullptr;
            T *dropped = place->second;
            later->erase(place);
            if (later->empty()) later.reset();
            return dropped;
        }

        std::uint64_t sequence = 0;
        T *first = nullptr;
        std::unique_ptr<std::map<std::uint64_t, T *>> later;  // most keys have one object; never empty
    };

    std::unordered_map<Key, Sharers, Hash> filed_;
};

}  // namespace varnel

#endif
