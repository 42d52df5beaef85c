#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>

#include "varnel/contracts/KzXmlData.h"
#include "varnel/contracts/TextNumbers.h"

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

std::string shortest(double value) {
    char chars[64];
    return {chars, std::to_chars(chars, chars + sizeof chars, value).ptr};
}

std::string written(double value) {
    KzXmlData data("A", nullptr);
    data.setData(value);
    return data.getData();
}

double read(const std::string &text) {
    KzXmlData data("A", nullptr);
    data.setAttribute("K", text);
    return data.findAttribute("K")->getDouble();
}

int readInt(const std::string &text) {
    KzXmlData data("A", nullptr);
    data.setAttribute("K", text);
    return data.findAttribute("K")->getInteger();
}

void expectRoundTrip(double value) {
    const std::string text = written(value);
    ASSERT_EQ(text, shortest(value));
    const double back = read(text);
    ASSERT_EQ(std::memcmp(&back, &value, sizeof value), 0) << text;
}

}  // namespace

TEST(KzXmlNumbers, DoublesAreWrittenShortest) {
    EXPECT_EQ(written(0.0), "0");
    EXPECT_EQ(written(-0.0), "-0");
    EXPECT_EQ(written(0.1), "0.1");
    EXPECT_EQ(written(1e5), "1e+05");
    EXPECT_EQ(written(123456.0), "123456");
    EXPECT_EQ(written(-1.25), "-1.25");
    EXPECT_EQ(written(5e-324), "5e-324");
    EXPECT_EQ(written(infinity), "inf");
    EXPECT_EQ(written(-infinity), "-inf");
    EXPECT_EQ(written(std::nan("")), "nan");
    EXPECT_EQ(written(-std::nan("")), "nan");
}

TEST(KzXmlNumbers, DoublesComeBackBitByBit) {
    std::mt19937_64 random(7);
    for (int i = 0; i < 40000; ++i) {
        const std::uint64_t bits = random();
        double value = 0;
        std::memcpy(&value, &bits, sizeof value);
        if (std::isfinite(value)) expectRoundTrip(value);
        const auto whole = static_cast<double>(static_cast<std::int64_t>(random() >> (random() % 64)));
        expectRoundTrip(whole / std::pow(10.0, static_cast<double>(random() % 12)));
        expectRoundTrip(-static_cast<double>(random() % 100000) * 0.001);
        expectRoundTrip(static_cast<double>(random() % 2000000) / 1000.0 + 1e-9);
    }
    for (const double value :
         {0.0, -0.0, 1e-3, 0.001234, 9.5e-4, 999999999.999999, 1e9, 1e15, 1e16, 9007199254740993.0, 1e22,
          1e23, std::numeric_limits<double>::max(), std::numeric_limits<double>::min(),
          std::numeric_limits<double>::denorm_min(), infinity, -infinity})
        expectRoundTrip(value);
    for (int power = -25; power < 25; ++power)
        for (int digit = 1; digit < 100; ++digit) expectRoundTrip(digit * std::pow(10.0, power));
    EXPECT_TRUE(std::isnan(read("nan")));
}

TEST(KzXmlNumbers, ReadingTakesTheLongestNumericPrefix) {
    struct Row {
        const char *text;
        double value;
    };
    for (const Row &row : {Row{"", 0},
                           Row{"   ", 0},
                           Row{"abc", 0},
                           Row{"-", 0},
                           Row{"+", 0},
                           Row{".", 0},
                           Row{"-.e5", 0},
                           Row{" 1.5 ", 1.5},
                           Row{"\t\r\n+1.5", 1.5},
                           Row{"-1.5x", -1.5},
                           Row{".5", 0.5},
                           Row{"5.", 5},
                           Row{"1,5", 1},
                           Row{"1.5.5", 1.5},
                           Row{"1e3", 1000},
                           Row{"1E+3kN", 1000},
                           Row{"1e", 1},
                           Row{"1e+", 1},
                           Row{"0x10", 0},
                           Row{"+-5", 0},
                           Row{"--5", 0},
                           Row{"1e400", infinity},
                           Row{"-1e400", -infinity},
                           Row{"1e-400", 0},
                           Row{"123456789012345678901234567890", 123456789012345678901234567890.0},
                           Row{"0.000000000000000000000000000001", 1e-30},
                           Row{"1e99999999999999999999", infinity},
                           Row{"1e-99999999999999999999", 0},
                           Row{"inf", infinity},
                           Row{"-inf", -infinity},
                           Row{"1 2", 1},
                           Row{"\xC2\xA0"
                               "5",
                               0}}) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(read(row.text), row.value);
    }
    EXPECT_EQ(read("0." + std::string(400, '0') + "1"), 0.0);
    EXPECT_EQ(read("1" + std::string(400, '0')), infinity);
    EXPECT_EQ(read("1" + std::string(400, '0') + "e-395"), 1e5);
    EXPECT_EQ(read("0." + std::string(400, '0') + "1e402"), 10.0);
    EXPECT_TRUE(std::signbit(read("-0")));
}

TEST(KzXmlNumbers, ReadingAgreesWithTheStandardLibraryOnRandomNumerals) {
    std::mt19937 random(11);
    for (int i = 0; i < 60000; ++i) {
        std::string text;
        const auto digits = random() % 24;
        for (auto k = random() % 20; k > 0; --k) text += static_cast<char>('0' + random() % 10);
        text += '.';
        for (auto k = digits; k > 0; --k) text += static_cast<char>('0' + random() % 10);
        if (random() % 3 == 0) text += "e" + std::to_string(static_cast<int>(random() % 60) - 30);
        double expected = 0;
        std::from_chars(text.data(), text.data() + text.size(), expected);
        ASSERT_EQ(read(text), expected) << text;
    }
}

TEST(KzXmlNumbers, IntegersTakeTheLongestDigitPrefixAndSaturate) {
    struct Row {
        const char *text;
        int value;
    };
    constexpr int highest = std::numeric_limits<int>::max();
    constexpr int lowest = std::numeric_limits<int>::min();
    for (const Row &row :
         {Row{"", 0}, Row{"x", 0}, Row{" 12 ", 12}, Row{"+7", 7}, Row{"-7.9", -7}, Row{"1e3", 1},
          Row{"007", 7}, Row{"2147483647", highest}, Row{"2147483648", highest},
          Row{"99999999999999999999999", highest}, Row{"-2147483648", lowest}, Row{"-2147483649", lowest},
          Row{"-99999999999999999999", lowest}, Row{"- 5", 0}}) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(readInt(row.text), row.value);
    }
}
