#ifndef VARNEL_TESTS_SUPPORT_COMMALOCALE_H
#define VARNEL_TESTS_SUPPORT_COMMALOCALE_H

#include <clocale>
#include <locale>
#include <string>

namespace varnel::test {

/// A locale that writes 1.234,5 for 1234.5, on machines too that have no such locale installed.
inline std::locale commaLocale() {
    struct Comma : std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };
    return std::locale(std::locale::classic(), new Comma);  // the locale owns it
}

/// Makes the comma the decimal point of the whole process while it lives: of every new stream, and of the C
/// library where the machine has a German locale.
class CommaLocale {
  public:
    CommaLocale() : cxx_(std::locale::global(commaLocale())) {
        for (const char *name : {"de_DE.UTF-8", "de_DE", "fr_FR.UTF-8"})
            if (std::setlocale(LC_ALL, name)) break;
    }
    CommaLocale(const CommaLocale &) = delete;
    CommaLocale &operator=(const CommaLocale &) = delete;
    ~CommaLocale() {
        std::locale::global(cxx_);
        std::setlocale(LC_ALL, c_.c_str());
    }

  private:
    std::string c_ = std::setlocale(LC_ALL, nullptr);
    std::locale cxx_;
};

}  // namespace varnel::test

#endif
