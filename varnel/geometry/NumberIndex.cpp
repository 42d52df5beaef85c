#include "varnel/geometry/NumberIndex.h"

#include <algorithm>
#include <limits>

#include "varnel/geometry/VarnelPosition.h"

namespace varnel {

bool NumberIndex::enter(const VarnelPosition &position, void *object) {
    if (position.index_ || next_ == std::numeric_limits<std::uint32_t>::max()) return false;
    position.index_ = this;
    position.place_ = next_++;
    // Objects mostly come with rising numbers, so the end is the place to look first.
    entries_.emplace_hint(entries_.end(), Key(position.getNumber(), position.place_),
                          Entry{&position, object});
    return true;
}

void NumberIndex::leave(const VarnelPosition &position) {
    if (position.index_ != this) return;
    entries_.erase(Key(position.getNumber(), position.place_));
    position.index_ = nullptr;
}

void NumberIndex::refile(const VarnelPosition &position, int number) {
    if (number == position.getNumber()) return;
    // While everything is numbered anew nobody asks: then it is cheaper to start again at the next question.
    if (++refiled_ > entries_.size() / 4 + 16) {
        clear();
        return;
    }
    auto entry = entries_.extract(Key(position.getNumber(), position.place_));
    entry.key().first = number;
    entries_.insert(std::move(entry));
}

void NumberIndex::clear() {
    for (const auto &[key, entry] : entries_) entry.position->index_ = nullptr;
    entries_.clear();
    next_ = 0;
    refiled_ = 0;
    complete_ = false;
}

void *NumberIndex::find(int number) const {
    refiled_ = 0;
    const auto first = entries_.lower_bound(Key(number, 0));
    return first != entries_.end() && first->first.first == number ? first->second.object : nullptr;
}

int NumberIndex::highest() const {
    refiled_ = 0;
    return entries_.empty() ? 0 : std::max(0, entries_.rbegin()->first.first);
}

}  // namespace varnel
