#include "varnel/contracts/XmlParts.h"

#include <algorithm>
#include <new>

#include "varnel/contracts/XmlStore.h"

namespace varnel {

namespace {

constexpr std::uint32_t longList = 32;
constexpr std::size_t largestBlock = std::size_t{1} << 20;

}  // namespace

KzXmlAttributeData *XmlAttributes::find(std::string_view key) const {
    if (index_) {
        const auto found = index_->find(key);
        return found == index_->end() ? nullptr : found->second;
    }
    std::uint32_t passed = 0;
    for (const Block *block = first_; block; block = block->next) {
        for (std::uint32_t i = 0; i < block->count; ++i)
            if (block->items()[i].getKey() == key) return block->items() + i;
        passed += block->count;
    }
    if (passed > longList) fillIndex();
    return nullptr;
}

KzXmlAttributeData *XmlAttributes::append(XmlName *key, std::string_view value, XmlArena *arena) {
    if (!last_ || last_->count == last_->capacity) {
        const std::size_t capacity = last_ ? last_->capacity * std::size_t{2} : 2;
        Block *block = makeBlock(std::min(capacity, largestBlock), arena);
        (last_ ? last_->next : first_) = block;
        last_ = block;
    }
    auto *attribute = new (last_->items() + last_->count) KzXmlAttributeData(key, value);
    ++last_->count;
    if (index_) {
        try {
            index_->emplace(attribute->getKey(), attribute);
        } catch (...) {
            index_.reset();  // only quickens what a walk finds as well
        }
    }
    return attribute;
}

void XmlAttributes::reserve(std::size_t count, XmlArena *arena) {
    if (!first_ && count) first_ = last_ = makeBlock(count, arena);
}

void XmlAttributes::clear(XmlArena *arena) {
    index_.reset();
    while (Block *block = first_) {
        first_ = block->next;
        for (std::uint32_t i = block->count; i > 0; --i) block->items()[i - 1].~KzXmlAttributeData();
        const std::size_t size = sizeOf(block->capacity);
        if (arena && size <= XmlArena::largest)
            arena->giveBack(block, size);
        else
            ::operator delete(block);
    }
    last_ = nullptr;
}

XmlAttributes::Block *XmlAttributes::makeBlock(std::size_t capacity, XmlArena *arena) {
    static_assert(sizeof(Block) % alignof(KzXmlAttributeData) == 0);
    const std::size_t size = sizeOf(capacity);
    void *memory = arena && size <= XmlArena::largest ? arena->take(size).memory : ::operator new(size);
    return new (memory) Block{nullptr, 0, static_cast<std::uint32_t>(capacity)};
}

void XmlAttributes::fillIndex() const {
    auto index = std::make_unique<Index>();
    each([&](KzXmlAttributeData &attribute) { index->emplace(attribute.getKey(), &attribute); });
    index_ = std::move(index);
}

}  // namespace varnel
