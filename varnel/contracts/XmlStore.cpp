#include "varnel/contracts/XmlStore.h"

#include <algorithm>
#include <new>

#include "varnel/contracts/KzXmlData.h"
#include "varnel/contracts/XmlParts.h"

namespace varnel {

namespace {

constexpr std::size_t smallestChunk = 4096;
constexpr std::size_t largestChunk = std::size_t{1} << 24;

}  // namespace

XmlArena::~XmlArena() {
    for (auto *chunk : chunks_) ::operator delete(chunk);
}

XmlArena::Slot XmlArena::take(std::size_t size) {
    if (Free *slot = free_[size / 8]) {
        free_[size / 8] = slot->next;
        return {slot, slot->offset};
    }
    if (used_ + size > end_) addChunk();
    const std::size_t offset = used_;
    used_ += size;
    return {reinterpret_cast<char *>(chunks_.back()) + offset, static_cast<std::uint32_t>(offset)};
}

void XmlArena::giveBack(void *memory, std::size_t size, std::uint32_t offset) noexcept {
    free_[size / 8] = new (memory) Free{free_[size / 8], offset};
}

XmlStore &XmlArena::storeAt(const void *memory, std::uint32_t offset) {
    return *reinterpret_cast<const Chunk *>(static_cast<const char *>(memory) - offset)->store;
}

/// An eighth of what is there already: large documents get large chunks and waste little of the last one.
void XmlArena::addChunk() {
    const std::size_t bytes =
        std::clamp(total_ / 8 / smallestChunk * smallestChunk, smallestChunk, largestChunk);
    chunks_.reserve(chunks_.size() + 1);
    chunks_.push_back(new (::operator new(bytes)) Chunk{&store_, bytes});
    total_ += bytes;
    used_ = sizeof(Chunk);
    end_ = bytes;
}

KzXmlData *XmlStore::makeElement(XmlName *name, KzXmlData *parent, std::string_view text) {
    const auto slot = arena_.take(sizeof(KzXmlData));
    return new (slot.memory) KzXmlData(name, parent, slot.offset, text);
}

void XmlStore::freeElement(KzXmlData *element, std::uint32_t offset) {
    element->~KzXmlData();
    arena_.giveBack(element, sizeof(KzXmlData), offset);
}

XmlParts *XmlStore::makeParts() {
    return new (arena_.take(sizeof(XmlParts)).memory) XmlParts;
}

void XmlStore::freeParts(XmlParts *parts) {
    parts->~XmlParts();
    arena_.giveBack(parts, sizeof(XmlParts));
}

}  // namespace varnel
