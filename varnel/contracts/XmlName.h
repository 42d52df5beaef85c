#ifndef VARNEL_CONTRACTS_XMLNAME_H
#define VARNEL_CONTRACTS_XMLNAME_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "varnel/contracts/Shared.h"

namespace varnel {

/// The text of an element name or attribute key, shared by all that bear it.
struct XmlName final : Shared {
    XmlName(std::string_view name, std::uint32_t nameHash);

    /// Whether a short name stands there. Sixteen bytes must be readable; what follows is not looked at.
    bool standsAt(const char *at) const {
        std::uint64_t words[2];
        std::memcpy(words, at, sizeof words);
        return (((words[0] ^ start[0]) & mask[0]) | ((words[1] ^ start[1]) & mask[1])) == 0 && isShort();
    }
    bool isShort() const { return text.size() <= sizeof start; }
    /// Copies a short name to where sixteen bytes have room and answers its end.
    char *copyTo(char *to) const {
        std::memcpy(to, start, sizeof start);
        return to + text.size();
    }

    const std::string text;
    const std::uint32_t hash;
    const bool quick;             // short, and can be written just as it is
    std::uint64_t start[2] = {};  // the first sixteen bytes, for copying and comparing at one go
    std::uint64_t mask[2] = {};   // which of them belong to the name
    XmlName *followers[2] =
        {};                 // names that came after this one, the last one first: documents repeat themselves
    std::uint64_t tag = 0;  // the last start tag that had it as a key, for finding it a second time
};

/// The names of one document, each held once. Lives as long as its document; names that are still used
/// elsewhere outlive it.
class XmlNames {
  public:
    XmlNames();
    XmlNames(const XmlNames &) = delete;
    XmlNames &operator=(const XmlNames &) = delete;

    /// The one object for this text, made if it is new.
    XmlName *give(std::string_view text);

    static std::uint32_t hash(std::string_view text);

  private:
    void grow();

    std::vector<Held<XmlName>> slots_;  // open addressing, a power of two, at most half full
    std::size_t count_ = 0;
};

}  // namespace varnel

#endif
