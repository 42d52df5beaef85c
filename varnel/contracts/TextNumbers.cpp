#include "varnel/contracts/TextNumbers.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace varnel {

namespace {

constexpr double powersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                  1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr std::uint64_t largestExactInteger = std::uint64_t{1} << 53;

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
std::uint64_t digitOf(char c) {
    return static_cast<std::uint64_t>(c - '0');
}

/// Reads a sign if there is one; true for a minus.
bool takeSign(const char *&at, const char *end) {
    if (at == end || (*at != '-' && *at != '+')) return false;
    return *at++ == '-';
}

/// Whether a numeral that a double cannot hold is too large, rather than too small: the place of its first
/// digit that is not zero decides.
bool isTooLarge(const char *at, const char *end) {
    std::int64_t place = 0;
    bool found = false;
    bool fraction = false;
    for (; at != end && (isDigit(*at) || *at == '.'); ++at) {
        if (*at == '.') {
            fraction = true;
        } else {
            found = found || *at != '0';
            if (found && !fraction) ++place;
            if (!found && fraction) --place;
        }
    }
    if (at == end) return place > 0;
    ++at;  // the e
    const bool negative = takeSign(at, end);
    std::int32_t exponent = 0;
    if (std::from_chars(at, end, exponent).ec != std::errc{}) return !negative;
    return place + (negative ? -std::int64_t{exponent} : exponent) > 0;
}

double readGeneralDouble(const char *at, const char *end, bool negative) {
    double value = 0.0;
    const auto result = std::from_chars(at, end, value);
    if (result.ec == std::errc::invalid_argument) return 0.0;
    if (result.ec == std::errc::result_out_of_range)
        value = isTooLarge(at, result.ptr) ? std::numeric_limits<double>::infinity() : 0.0;
    return negative ? -value : value;
}

}  // namespace

std::string_view trimmed(std::string_view text) noexcept {
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    return text;
}

template <class Number>
void NumberText::write(Number value) noexcept {
    end_ = std::to_chars(chars_, chars_ + sizeof chars_, value).ptr;
}

NumberText::NumberText(int value) noexcept {
    write(value);
}

NumberText::NumberText(std::uint64_t value) noexcept {
    write(value);
}

NumberText::NumberText(double value) noexcept {
    if (std::isnan(value))
        write(std::numeric_limits<double>::quiet_NaN());  // one text for all of them, whatever their sign
    else if (!writeShortDecimal(value))
        write(value);
}

/// Numbers with few decimals, as people enter them. A decimal of at most 15 digits that rounds to the value
/// is its shortest text, since two such decimals never round to one double.
bool NumberText::writeShortDecimal(double value) noexcept {
    constexpr int places = 6;
    const double size = std::fabs(value);
    if (!(size >= 1e-3 && size < 1e9)) return false;
    const auto isValue = [size](std::uint64_t n) {
        return static_cast<double>(n) / powersOfTen[places] == size;
    };
    auto digits =
        static_cast<std::uint64_t>(size * powersOfTen[places]);  // or one more, as the product was rounded
    if (!isValue(digits) && !isValue(++digits)) return false;
    int decimals = places;
    if (digits % 1000 == 0) {
        digits /= 1000;
        decimals -= 3;
    }
    for (; decimals && digits % 10 == 0; digits /= 10) --decimals;
    if (!decimals && digits % 10000 == 0) return false;  // "1e+05" may be shorter
    char *at = chars_ + sizeof chars_;
    end_ = at;
    for (; decimals; --decimals, digits /= 10) {
        *--at = static_cast<char>('0' + digits % 10);
        if (decimals == 1) *--at = '.';
    }
    do {
        *--at = static_cast<char>('0' + digits % 10);
        digits /= 10;
    } while (digits);
    if (std::signbit(value)) *--at = '-';
    begin_ = at;
    return true;
}

int readInteger(std::string_view text) noexcept {
    constexpr std::int64_t limit = std::numeric_limits<int>::max();
    const char *at = text.data();
    const char *end = at + text.size();
    while (at != end && isBlank(*at)) ++at;
    const bool negative = takeSign(at, end);
    std::int64_t value = 0;
    for (; at != end && isDigit(*at); ++at) {
        value = value * 10 + (*at - '0');
        if (value > limit)
            return negative ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    }
    return static_cast<int>(negative ? -value : value);
}

double readDouble(std::string_view text) noexcept {
    const char *at = text.data();
    const char *end = at + text.size();
    while (at != end && isBlank(*at)) ++at;
    const bool negative = takeSign(at, end);
    if (at == end || *at == '-' || *at == '+') return 0.0;
    const char *start = at;
    std::uint64_t digits = 0;
    while (at != end && isDigit(*at) && digits <= largestExactInteger) digits = digits * 10 + digitOf(*at++);
    std::size_t count = static_cast<std::size_t>(at - start);
    std::size_t decimals = 0;
    if (at != end && *at == '.') {
        const char *point = at++;
        while (at != end && isDigit(*at) && digits <= largestExactInteger)
            digits = digits * 10 + digitOf(*at++);
        decimals = static_cast<std::size_t>(at - point) - 1;
        count += decimals;
    }
    // Both operands are exact here, so that the quotient is rounded once: as correct as the general way.
    const bool complete = at == end || (!isDigit(*at) && *at != 'e' && *at != 'E');
    if (!count || !complete || digits > largestExactInteger || decimals >= std::size(powersOfTen))
        return readGeneralDouble(start, end, negative);
    const double value = static_cast<double>(digits) / powersOfTen[decimals];
    return negative ? -value : value;
}

std::optional<WholeInteger> readWholeInteger(std::string_view text) noexcept {
    text = trimmed(text);
    const char *at = text.data();
    const char *end = at + text.size();
    const bool negative = takeSign(at, end);
    std::uint64_t value = 0;
    if (at == end || !isDigit(*at)) return std::nullopt;
    const auto result = std::from_chars(at, end, value);
    if (result.ec != std::errc{} || result.ptr != end) return std::nullopt;
    return WholeInteger{negative && value != 0, value};
}

}  // namespace varnel
