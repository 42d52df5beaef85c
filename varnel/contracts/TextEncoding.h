#ifndef VARNEL_CONTRACTS_TEXTENCODING_H
#define VARNEL_CONTRACTS_TEXTENCODING_H

#include <cstddef>
#include <string>
#include <string_view>

namespace varnel {

enum class TextEncoding { utf8, latin1, windows1252, utf16Little, utf16Big };

/// Length of the UTF-8 sequence at `at`; 0 if there is none or the end cuts it off.
std::size_t utf8Length(const char *at, const char *end) noexcept;

/// How many bytes at the end of the text may be the start of a UTF-8 sequence whose rest is still to come.
std::size_t unfinishedUtf8(std::string_view text) noexcept;

/// Where the text stops being UTF-8: its end if it is UTF-8 throughout.
const char *findInvalidUtf8(const char *at, const char *end) noexcept;

void appendUtf8(std::string &text, char32_t character);

/// The character that windows-1252 means by a byte; the five unused bytes stand for themselves.
char32_t windows1252Character(char byte) noexcept;

/// Appends the text and takes each byte that is not UTF-8 as windows-1252.
void appendRepaired(std::string &text, std::string_view bytes);

/// Appends bytes of any encoding as UTF-8 and answers how many of them were used: a character that the end
/// cuts off is left, unless these are the last bytes. A lone surrogate, or half a UTF-16 unit at the end,
/// becomes U+FFFF, which no document may hold.
std::size_t appendDecoded(std::string &text, std::string_view bytes, TextEncoding encoding, bool last);

/// Whether the three bytes at `at` are U+FFFE or U+FFFF. Reads no further than the first that differs.
inline bool isNoncharacter(const char *at) noexcept {
    return at[0] == '\xEF' && at[1] == '\xBF' && (at[2] == '\xBE' || at[2] == '\xBF');
}

}  // namespace varnel

#endif
