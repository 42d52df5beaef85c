#include "varnel/contracts/TextEncoding.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace varnel {

namespace {

constexpr char32_t windows1252[32] = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                      0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                      0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                      0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

unsigned char byteOf(char c) {
    return static_cast<unsigned char>(c);
}

struct Lead {
    std::size_t length;  // 0: no lead byte
    unsigned char low;   // bounds of the second byte
    unsigned char high;
};

Lead leadOf(char c) {
    const unsigned char byte = byteOf(c);
    if (byte < 0x80) return {1, 0, 0};
    if (byte < 0xC2 || byte > 0xF4) return {0, 0, 0};
    if (byte < 0xE0) return {2, 0x80, 0xBF};
    if (byte < 0xF0)
        return {3, byteOf(byte == 0xE0 ? '\xA0' : '\x80'), byteOf(byte == 0xED ? '\x9F' : '\xBF')};
    return {4, byteOf(byte == 0xF0 ? '\x90' : '\x80'), byteOf(byte == 0xF4 ? '\x8F' : '\xBF')};
}

/// How many bytes of the sequence that begins at `at` are there and as they should be.
std::size_t soundBytes(const char *at, const char *end, const Lead &lead) {
    std::size_t sound = 1;
    for (; sound < lead.length && at + sound != end; ++sound) {
        const unsigned char byte = byteOf(at[sound]);
        const bool first = sound == 1;
        if (byte < (first ? lead.low : 0x80) || byte > (first ? lead.high : 0xBF)) break;
    }
    return sound;
}

std::size_t appendUtf16(std::string &text, std::string_view bytes, bool big, bool last) {
    const auto unit = [&](std::size_t at) {
        return static_cast<char32_t>(byteOf(bytes[at + (big ? 0 : 1)]) << 8 |
                                     byteOf(bytes[at + (big ? 1 : 0)]));
    };
    std::size_t at = 0;
    while (bytes.size() - at >= 2) {
        char32_t character = unit(at);
        if (character >= 0xD800 && character < 0xE000) {
            if (character < 0xDC00 && bytes.size() - at < 4 && !last) return at;
            const char32_t low = bytes.size() - at >= 4 ? unit(at + 2) : 0;
            if (character < 0xDC00 && low >= 0xDC00 && low < 0xE000) {
                character = 0x10000 + ((character - 0xD800) << 10) + (low - 0xDC00);
                at += 2;
            } else {
                character = 0xFFFF;
            }
        }
        appendUtf8(text, character);
        at += 2;
    }
    if (last && at != bytes.size()) {
        appendUtf8(text, 0xFFFF);
        at = bytes.size();
    }
    return at;
}

}  // namespace

std::size_t utf8Length(const char *at, const char *end) noexcept {
    const Lead lead = leadOf(*at);
    return lead.length && soundBytes(at, end, lead) == lead.length ? lead.length : 0;
}

std::size_t unfinishedUtf8(std::string_view text) noexcept {
    const char *end = text.data() + text.size();
    for (std::size_t back = 1; back <= std::min<std::size_t>(3, text.size()); ++back) {
        const Lead lead = leadOf(end[-static_cast<std::ptrdiff_t>(back)]);
        if (!lead.length) continue;
        return lead.length > back && soundBytes(end - back, end, lead) == back ? back : 0;
    }
    return 0;
}

const char *findInvalidUtf8(const char *at, const char *end) noexcept {
    for (;;) {
        std::uint64_t words[4];
        for (; end - at >= 32; at += 32) {
            std::memcpy(words, at, sizeof words);
            if ((words[0] | words[1] | words[2] | words[3]) & 0x8080808080808080U) break;
        }
        while (at != end && byteOf(*at) < 0x80) ++at;
        if (at == end) return end;
        const std::size_t length = utf8Length(at, end);
        if (!length) return at;
        at += length;
    }
}

void appendUtf8(std::string &text, char32_t character) {
    const auto put = [&](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0 | character >> 6);
        put(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        put(0xE0 | character >> 12);
        put(0x80 | (character >> 6 & 0x3F));
        put(0x80 | (character & 0x3F));
    } else {
        put(0xF0 | character >> 18);
        put(0x80 | (character >> 12 & 0x3F));
        put(0x80 | (character >> 6 & 0x3F));
        put(0x80 | (character & 0x3F));
    }
}

char32_t windows1252Character(char byte) noexcept {
    const unsigned char code = byteOf(byte);
    return code >= 0x80 && code < 0xA0 ? windows1252[code - 0x80] : code;
}

void appendRepaired(std::string &text, std::string_view bytes) {
    const char *at = bytes.data();
    const char *end = at + bytes.size();
    while (at != end) {
        const char *invalid = findInvalidUtf8(at, end);
        text.append(at, invalid);
        at = invalid;
        if (at != end) appendUtf8(text, windows1252Character(*at++));
    }
}

std::size_t appendDecoded(std::string &text, std::string_view bytes, TextEncoding encoding, bool last) {
    switch (encoding) {
        case TextEncoding::utf8: {
            const std::size_t used = bytes.size() - (last ? 0 : unfinishedUtf8(bytes));
            appendRepaired(text, bytes.substr(0, used));
            return used;
        }
        case TextEncoding::latin1:
            for (const char byte : bytes) appendUtf8(text, byteOf(byte));
            return bytes.size();
        case TextEncoding::windows1252:
            for (const char byte : bytes) appendUtf8(text, windows1252Character(byte));
            return bytes.size();
        case TextEncoding::utf16Little:
            return appendUtf16(text, bytes, false, last);
        case TextEncoding::utf16Big:
            return appendUtf16(text, bytes, true, last);
    }
    return bytes.size();
}

}  // namespace varnel
