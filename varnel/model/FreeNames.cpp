#include "varnel/model/FreeNames.h"

#include <charconv>
#include <system_error>

namespace varnel {

void FreeNames::use(const std::string &name) {
    if (name.size() <= prefix_.size() || name.compare(0, prefix_.size(), prefix_) != 0) return;
    const char *digits = name.data() + prefix_.size();
    const char *end = name.data() + name.size();
    if (*digits < '1' || *digits > '9') return;  // neither a sign nor a leading zero is ever proposed
    int number = 0;
    const auto [last, error] = std::from_chars(digits, end, number);
    if (error == std::errc() && last == end) used_.insert(number);
}

std::string FreeNames::next() {
    while (used_.count(lowest_) != 0) ++lowest_;
    return prefix_ + std::to_string(lowest_);
}

}  // namespace varnel
