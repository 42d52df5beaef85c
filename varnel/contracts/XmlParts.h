#ifndef VARNEL_CONTRACTS_XMLPARTS_H
#define VARNEL_CONTRACTS_XMLPARTS_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "varnel/contracts/KzXmlAttributeData.h"
#include "varnel/contracts/XmlChildIndex.h"

namespace varnel {

class XmlArena;

/// The attributes of one element in the order in which they came. They lie in blocks that never move, so
/// that pointers to them stay valid. Every call that may take or give back memory is told from where: the
/// arena of the element's document, or null for an element by itself.
class XmlAttributes {
  public:
    XmlAttributes() = default;
    XmlAttributes(const XmlAttributes &) = delete;
    XmlAttributes &operator=(const XmlAttributes &) = delete;
    /// Must have been cleared.
    ~XmlAttributes() = default;

    bool empty() const { return !first_; }
    KzXmlAttributeData *find(std::string_view key) const;
    /// The key must be a new one.
    KzXmlAttributeData *append(XmlName *key, std::string_view value, XmlArena *arena);
    /// Makes room for exactly this many; only while empty.
    void reserve(std::size_t count, XmlArena *arena);
    void clear(XmlArena *arena);

    template <class Visit>
    void each(Visit visit) const {
        for (const Block *block = first_; block; block = block->next)
            for (std::uint32_t i = 0; i < block->count; ++i) visit(block->items()[i]);
    }

  private:
    struct Block {
        Block *next;
        std::uint32_t count;
        std::uint32_t capacity;

        KzXmlAttributeData *items() const {
            return reinterpret_cast<KzXmlAttributeData *>(const_cast<Block *>(this) + 1);
        }
    };
    using Index = std::unordered_map<std::string_view, KzXmlAttributeData *>;

    static std::size_t sizeOf(std::size_t capacity) {
        return sizeof(Block) + capacity * sizeof(KzXmlAttributeData);
    }
    static Block *makeBlock(std::size_t capacity, XmlArena *arena);
    void fillIndex() const;

    Block *first_ = nullptr;
    Block *last_ = nullptr;
    mutable std::unique_ptr<Index> index_;  // only for an element with very many
};

/// What an element has beyond its name and text.
struct XmlParts {
    std::vector<KzXmlData *> children;
    XmlAttributes attributes;
    std::unique_ptr<XmlChildIndex> index;
};

}  // namespace varnel

#endif
