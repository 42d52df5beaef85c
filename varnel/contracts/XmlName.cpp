#include "varnel/contracts/XmlName.h"

#include <algorithm>

#include "varnel/contracts/XmlCharacters.h"

namespace varnel {

XmlName::XmlName(std::string_view name, std::uint32_t nameHash)
    : text(name), hash(nameHash), quick(isShort() && xml::isPlainName(name)) {
    const std::size_t size = std::min(name.size(), sizeof start);
    std::memcpy(start, text.data(), size);
    std::memset(mask, 0xFF, size);
}

XmlNames::XmlNames() : slots_(64) {}

std::uint32_t XmlNames::hash(std::string_view text) {
    std::uint32_t value = 2166136261U;  // FNV-1a
    for (const char c : text) value = (value ^ static_cast<unsigned char>(c)) * 16777619U;
    return value ^ (value >> 15);
}

XmlName *XmlNames::give(std::string_view text) {
    const std::uint32_t wanted = hash(text);
    const std::size_t mask = slots_.size() - 1;
    std::size_t place = wanted & mask;
    for (; slots_[place]; place = (place + 1) & mask)
        if (slots_[place]->hash == wanted && slots_[place]->text == text) return slots_[place].get();
    auto *name = new XmlName(text, wanted);
    slots_[place] = Held<XmlName>(name);
    if (++count_ * 2 > slots_.size()) grow();
    return name;
}

void XmlNames::grow() {
    std::vector<Held<XmlName>> larger(slots_.size() * 2);
    const std::size_t mask = larger.size() - 1;
    for (auto &name : slots_) {
        if (!name) continue;
        std::size_t place = name->hash & mask;
        while (larger[place]) place = (place + 1) & mask;
        larger[place].swap(name);
    }
    slots_.swap(larger);
}

}  // namespace varnel
