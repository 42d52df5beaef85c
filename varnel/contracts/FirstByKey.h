#ifndef VARNEL_CONTRACTS_FIRSTBYKEY_H
#define VARNEL_CONTRACTS_FIRSTBYKEY_H

#include <cstdint>
#include <functional>
#include <map>
#include <unordered_map>
#include <utility>

namespace varnel {

/// Answers which object of a list is the first one with a given key, without a walk. Each object is filed
/// under its key and a sequence number that rises along the list. Filing, dropping and renaming take the
/// logarithm of the number of objects that share the key.
template <class Key, class T, class Hash = std::hash<Key>>
class FirstByKey {
  public:
    void file(const Key &key, std::uint64_t sequence, T *object) { filed_[key].emplace(sequence, object); }
    void drop(const Key &key, std::uint64_t sequence) {
        const auto place = filed_.find(key);
        if (place == filed_.end()) return;
        place->second.erase(sequence);
        if (place->second.empty()) filed_.erase(place);
    }
    /// Files what stands there under another key.
    void rename(const Key &before, std::uint64_t sequence, const Key &after) {
        const auto place = filed_.find(before);
        if (place == filed_.end()) return;
        auto node = place->second.extract(sequence);
        if (place->second.empty()) filed_.erase(place);
        if (node) filed_[after].insert(std::move(node));
    }
    /// Null if nothing has that key.
    T *find(const Key &key) const {
        const auto place = filed_.find(key);
        return place == filed_.end() ? nullptr : place->second.begin()->second;
    }
    void clear() { filed_.clear(); }

  private:
    std::unordered_map<Key, std::map<std::uint64_t, T *>, Hash> filed_;  // no empty maps
};

}  // namespace varnel

#endif
