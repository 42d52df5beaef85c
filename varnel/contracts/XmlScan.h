#ifndef VARNEL_CONTRACTS_XMLSCAN_H
#define VARNEL_CONTRACTS_XMLSCAN_H

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "varnel/contracts/XmlCharacters.h"

namespace varnel::xml {

/// Eight bytes of text at a time. The marks set the highest bit of each byte that is looked for; the lowest
/// mark is always right, those above it may be too many.
namespace word {

inline constexpr std::uint64_t ones = 0x0101010101010101U;
inline constexpr std::uint64_t highs = 0x8080808080808080U;

template <class Word = std::uint64_t>
Word load(const char *at) {
    Word bytes;
    std::memcpy(&bytes, at, sizeof bytes);
    return bytes;
}

constexpr std::uint64_t markBelow(std::uint64_t bytes, unsigned limit) {
    return (bytes - ones * limit) & ~bytes & highs;
}

constexpr std::uint64_t markEqual(std::uint64_t bytes, char c) {
    return markBelow(bytes ^ ones * static_cast<unsigned char>(c), 1);
}

/// Bytes that are one of two characters which differ in one bit.
constexpr std::uint64_t markEither(std::uint64_t bytes, char c, unsigned char bit) {
    return markEqual(bytes | ones * bit, c);
}

constexpr std::uint64_t markOtherThanSpace(std::uint64_t bytes) {
    const std::uint64_t differences = bytes ^ ones * 0x20;
    return (((differences & ~highs) + ~highs) | differences) & highs;
}

/// Whether the machine stores the lowest byte first.
inline bool lowestFirst() {
    const std::uint16_t one = 1;
    unsigned char first;
    std::memcpy(&first, &one, 1);
    return first == 1;
}

/// How many bytes lie before the lowest mark.
constexpr std::size_t countBefore(std::uint64_t marks) {
    const std::uint64_t below = (marks & (~marks + 1)) - 1;
    return static_cast<std::size_t>(((below >> 7 & ones) * ones) >> 56);
}

}  // namespace word

/// The first byte that is no blank, quick for a line end with indentation behind it. It may read eight bytes
/// further.
inline const char *passIndent(const char *at) {
    if (*at == '\n' && word::lowestFirst()) {
        for (++at;; at += 8) {
            const std::uint64_t marks = word::markOtherThanSpace(word::load(at));
            if (!marks) continue;
            at += word::countBefore(marks);
            break;
        }
    }
    while (is(*at, blank)) ++at;
    return at;
}

}  // namespace varnel::xml

#endif
