#ifndef VARNEL_CONTRACTS_XMLSTORE_H
#define VARNEL_CONTRACTS_XMLSTORE_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "varnel/contracts/XmlName.h"

class KzXmlData;

namespace varnel {

class XmlStore;
struct XmlParts;

/// Memory for small objects, taken in chunks that grow with what is used, one object after the other. What
/// was given back last is handed out first, for an object of the same size.
class XmlArena {
  public:
    explicit XmlArena(XmlStore &store) : store_(store) {}
    XmlArena(const XmlArena &) = delete;
    XmlArena &operator=(const XmlArena &) = delete;
    ~XmlArena();

    /// Objects are multiples of eight bytes and at most this large.
    static constexpr std::size_t largest = 512;

    struct Slot {
        void *memory;
        std::uint32_t offset;  // from the start of its chunk, never 0
    };
    Slot take(std::size_t size);
    /// An offset is only asked of sizes that are taken with one.
    void giveBack(void *memory, std::size_t size, std::uint32_t offset = 0) noexcept;

    static XmlStore &storeAt(const void *memory, std::uint32_t offset);

  private:
    struct Chunk {
        XmlStore *store;
        std::uint64_t bytes;
    };
    struct Free {
        Free *next;
        std::uint32_t offset;
    };

    void addChunk();

    XmlStore &store_;
    std::vector<Chunk *> chunks_;
    std::size_t total_ = 0;
    std::size_t used_ = 0;  // bytes of the last chunk
    std::size_t end_ = 0;
    std::array<Free *, largest / 8 + 1> free_{};  // by size
};

/// The memory of one document: names, elements and their parts. Outlives the elements made from it.
class XmlStore {
  public:
    XmlStore() : arena_(*this) {}
    XmlStore(const XmlStore &) = delete;
    XmlStore &operator=(const XmlStore &) = delete;

    XmlNames &names() { return names_; }
    XmlArena &arena() { return arena_; }
    KzXmlData *makeElement(XmlName *name, KzXmlData *parent, std::string_view text = {});
    void freeElement(KzXmlData *element, std::uint32_t offset);
    /// For an element of this store.
    XmlParts *makeParts();
    void freeParts(XmlParts *parts);

  private:
    XmlNames names_;
    XmlArena arena_;
};

}  // namespace varnel

#endif
