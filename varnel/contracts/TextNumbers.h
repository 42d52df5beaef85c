#ifndef VARNEL_CONTRACTS_TEXTNUMBERS_H
#define VARNEL_CONTRACTS_TEXTNUMBERS_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace varnel {

/// A number as text, independent of every locale.
class NumberText {
  public:
    explicit NumberText(int value) noexcept;
    explicit NumberText(std::uint64_t value) noexcept;
    /// The shortest text that reads back as the same double; "nan", "inf", "-inf" for the others.
    explicit NumberText(double value) noexcept;

    std::string_view view() const noexcept { return {begin_, static_cast<std::size_t>(end_ - begin_)}; }
    NumberText(const NumberText &) = delete;
    NumberText &operator=(const NumberText &) = delete;

  private:
    template <class Number>
    void write(Number value) noexcept;
    bool writeShortDecimal(double value) noexcept;

    char chars_[32];
    const char *begin_ = chars_;
    const char *end_ = chars_;
};

/// The longest integer at the start of the text, blanks before it aside, with an optional sign. 0 without a
/// digit; what does not fit saturates.
int readInteger(std::string_view text) noexcept;

/// The longest number at the start of the text, blanks before it aside, with an optional sign. 0 without
/// one; too large is infinite, too small is 0.
double readDouble(std::string_view text) noexcept;

struct WholeInteger {
    bool negative;  // never for 0
    std::uint64_t magnitude;

    bool operator==(const WholeInteger &other) const noexcept {
        return negative == other.negative && magnitude == other.magnitude;
    }
};

/// The integer that the whole text is, blanks around it aside; none if it is anything else or too large.
std::optional<WholeInteger> readWholeInteger(std::string_view text) noexcept;

constexpr WholeInteger wholeInteger(int value) noexcept {
    return {value < 0, value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value)};
}

/// The text without the blanks (space, tab, LF, CR) at both ends.
std::string_view trimmed(std::string_view text) noexcept;

}  // namespace varnel

#endif
