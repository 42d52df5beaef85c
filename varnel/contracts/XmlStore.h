#ifndef VARNEL_CONTRACTS_XMLSTORE_H
#define VARNEL_CONTRACTS_XMLSTORE_H

#include <cstddef>
#include <cstdint>
#include <vector>

#include "varnel/contracts/XmlName.h"

class KzXmlData;

namespace varnel {

struct XmlParts;
class XmlStore;

/// Memory for objects of one size, taken in pages that grow with the number of objects. What was given back
/// last is handed out first.
class XmlPool {
  public:
    XmlPool(XmlStore &store, std::size_t size) : store_(store), size_(size) {}
    XmlPool(const XmlPool &) = delete;
    XmlPool &operator=(const XmlPool &) = delete;
    ~XmlPool();

    struct Slot {
        void *memory;
        std::uint32_t offset;  // from the start of its page, never 0
    };
    Slot take();
    void giveBack(void *memory, std::uint32_t offset) noexcept;

    static XmlStore &storeAt(const void *memory, std::uint32_t offset);

  private:
    struct Page {
        XmlStore *store;
        std::uint64_t bytes;
    };
    struct Free {
        Free *next;
        std::uint32_t offset;
    };

    void addPage();

    XmlStore &store_;
    const std::size_t size_;
    std::vector<Page *> pages_;
    std::size_t used_ = 0;  // bytes of the last page
    std::size_t end_ = 0;
    Free *free_ = nullptr;
};

/// The memory of one document: names, elements and their parts. Outlives the elements made from it.
class XmlStore {
  public:
    XmlStore();
    XmlStore(const XmlStore &) = delete;
    XmlStore &operator=(const XmlStore &) = delete;

    XmlNames &names() { return names_; }
    KzXmlData *makeElement(XmlName *name, KzXmlData *parent);
    void freeElement(KzXmlData *element, std::uint32_t offset);
    /// For an element of this store.
    XmlParts *makeParts();
    void freeParts(XmlParts *parts);

  private:
    XmlNames names_;
    XmlPool elements_;
    XmlPool parts_;
};

}  // namespace varnel

#endif
