#ifndef VARNEL_CONTRACTS_XMLCHARACTERS_H
#define VARNEL_CONTRACTS_XMLCHARACTERS_H

#include <array>
#include <cstddef>
#include <string_view>

namespace varnel::xml {

/// What a byte of UTF-8 text can be in a document.
enum CharacterKind : unsigned char {
    blank = 1,
    nameStart = 2,
    namePart = 4,
    textStop = 8,       // needs a look within text
    valueStop = 16,     // needs a look within an attribute value
    forbidden = 32,     // control characters and, as they end a window too, zero
    mayBeEscaped = 64,  // needs a look when text is written
};

constexpr std::array<unsigned char, 256> makeCharacterKinds() {
    std::array<unsigned char, 256> kinds{};
    for (unsigned c = 0; c < 256; ++c) {
        unsigned kind = 0;
        if (c == ' ' || c == '\t' || c == '\n' || c == '\r') kind |= blank;
        if ((c | 32U) >= 'a' && (c | 32U) <= 'z') kind |= nameStart | namePart;
        if (c >= 0x80 || c == '_' || c == ':') kind |= nameStart | namePart;
        if ((c >= '0' && c <= '9') || c == '-' || c == '.') kind |= namePart;
        if (c < 32 && !(kind & blank)) kind |= forbidden | textStop | valueStop;
        if (c == '<' || c == '&' || c == 0xEF) kind |= textStop | valueStop;
        if (c == ']') kind |= textStop;
        if (c == '"' || c == '\'' || c == '\t' || c == '\n') kind |= valueStop;
        if (c < 32 || c >= 0x80 || c == '<' || c == '>' || c == '&' || c == '"') kind |= mayBeEscaped;
        kinds[c] = static_cast<unsigned char>(kind);
    }
    return kinds;
}

inline constexpr std::array<unsigned char, 256> characterKinds = makeCharacterKinds();

inline bool is(char c, unsigned kind) {
    return characterKinds[static_cast<unsigned char>(c)] & kind;
}

inline std::string_view between(const char *begin, const char *end) {
    return {begin, static_cast<std::size_t>(end - begin)};
}

inline bool isBlank(std::string_view text) {
    for (const char c : text)
        if (!is(c, blank)) return false;
    return true;
}

/// Whether it can be written as a name just as it is; others may need to be made sound first.
inline bool isPlainName(std::string_view text) {
    if (text.empty() || !is(text.front(), nameStart)) return false;
    for (const char c : text)
        if (!is(c, namePart) || is(c, mayBeEscaped)) return false;
    return true;
}

/// Whether XML allows the character at all.
constexpr bool isAllowed(char32_t c) {
    if (c < 0x20) return c == 0x9 || c == 0xA || c == 0xD;
    return c < 0xD800 || (c >= 0xE000 && c < 0xFFFE) || (c >= 0x10000 && c < 0x110000);
}

}  // namespace varnel::xml

#endif
