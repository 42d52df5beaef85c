#ifndef VARNEL_CONTRACTS_XMLNAME_H
#define VARNEL_CONTRACTS_XMLNAME_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "varnel/contracts/Shared.h"

namespace varnel {

/// The text of an element name or attribute key, shared by all that bear it.
struct XmlName final : Shared {
    XmlName(std::string_view name, std::uint32_t nameHash) : text(name), hash(nameHash) {}

    const std::string text;
    const std::uint32_t hash;
    XmlName *follower = nullptr;  // the name that came after this one last time: documents repeat themselves
    std::uint64_t tag = 0;        // the last start tag that had it as a key, for finding it a second time
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
    /// The same, quicker where names follow one another as they did before.
    XmlName *giveAfter(XmlName *previous, std::string_view text) {
        if (!previous) return give(text);
        if (!previous->follower || previous->follower->text != text) previous->follower = give(text);
        return previous->follower;
    }

    static std::uint32_t hash(std::string_view text);

  private:
    void grow();

    std::vector<Held<XmlName>> slots_;  // open addressing, a power of two, at most half full
    std::size_t count_ = 0;
};

}  // namespace varnel

#endif
