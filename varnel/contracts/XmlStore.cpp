#include "varnel/contracts/XmlStore.h"

#include <algorithm>
#include <new>

#include "varnel/contracts/KzXmlData.h"
#include "varnel/contracts/XmlParts.h"

namespace varnel {

namespace {

constexpr std::size_t smallestPage = 4096;
constexpr std::size_t largestPage = std::size_t{1} << 20;

}  // namespace

XmlPool::~XmlPool() {
    for (auto *page : pages_) ::operator delete(page);
}

XmlPool::Slot XmlPool::take() {
    if (Free *slot = free_) {
        free_ = slot->next;
        return {slot, slot->offset};
    }
    if (used_ + size_ > end_) addPage();
    const std::size_t offset = used_;
    used_ += size_;
    return {reinterpret_cast<char *>(pages_.back()) + offset, static_cast<std::uint32_t>(offset)};
}

void XmlPool::giveBack(void *memory, std::uint32_t offset) noexcept {
    free_ = new (memory) Free{free_, offset};
}

XmlStore &XmlPool::storeAt(const void *memory, std::uint32_t offset) {
    return *reinterpret_cast<const Page *>(static_cast<const char *>(memory) - offset)->store;
}

void XmlPool::addPage() {
    const std::size_t bytes = pages_.empty() ? smallestPage : std::min<std::size_t>(end_ * 2, largestPage);
    pages_.reserve(pages_.size() + 1);
    pages_.push_back(new (::operator new(bytes)) Page{&store_, bytes});
    used_ = sizeof(Page);
    end_ = bytes;
}

XmlStore::XmlStore() : elements_(*this, sizeof(KzXmlData)), parts_(*this, sizeof(XmlParts)) {}

KzXmlData *XmlStore::makeElement(XmlName *name, KzXmlData *parent) {
    const auto slot = elements_.take();
    return new (slot.memory) KzXmlData(name, parent, slot.offset);
}

void XmlStore::freeElement(KzXmlData *element, std::uint32_t offset) {
    element->~KzXmlData();
    elements_.giveBack(element, offset);
}

XmlParts *XmlStore::makeParts() {
    return new (parts_.take().memory) XmlParts;
}

void XmlStore::freeParts(XmlParts *parts) {
    parts->~XmlParts();
    parts_.giveBack(parts, 0);
}

}  // namespace varnel
