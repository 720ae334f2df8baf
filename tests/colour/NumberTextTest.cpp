#include <gtest/gtest.h>

#include <clocale>
#include <optional>

#include "colour/NumberText.h"

namespace flickerscribe {
namespace {

struct Case {
    const char* text;
    std::optional<int> whole;  // nullopt: the test fails
};

TEST(NumberText, Table) {
    const Case cases[] = {
        {"15", 15},
        {" 15", 15},
        {"15 ", 15},
        {"  15  ", 15},
        {"-3", -3},
        {"+7", 7},
        {"1.5", 2},
        {"2.5", 2},
        {"3.5", 4},
        {"-2.5", -2},
        {".5", 0},
        {"1.", 1},
        {"32767", 32767},
        {"-32768", -32768},
        {"32767.4", 32767},
        {"1e3", 1000},
        {"1E3", 1000},
        {"1e+2", 100},
        {"1e-400", 0},
        {"007", 7},
        {"0", 0},
        {"32768", std::nullopt},
        {"-32769", std::nullopt},
        {"32767.5", std::nullopt},
        {"1e400", std::nullopt},
        {"abc", std::nullopt},
        {"", std::nullopt},
        {" ", std::nullopt},
        {"\t15", std::nullopt},
        {"1 5", std::nullopt},
        {"inf", std::nullopt},
        {"nan", std::nullopt},
        {"0x10", std::nullopt},
        {"&H10", std::nullopt},
        {"1e", std::nullopt},
        {"e5", std::nullopt},
        {".", std::nullopt},
        {"-", std::nullopt},
        {"1,5", std::nullopt},
        {"^", std::nullopt},
        {"a", std::nullopt},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(WholeNumber(c.text), c.whole) << '"' << c.text << '"';
        EXPECT_EQ(IsNumberText(c.text), c.whole.has_value()) << '"' << c.text << '"';
    }
}

TEST(NumberText, EveryDigitAndNothingElseIsACodeDigit) {
    for (int b = 0; b < 256; ++b) {
        const char c = static_cast<char>(b);
        EXPECT_EQ(IsNumberText(std::string_view(&c, 1)), c >= '0' && c <= '9') << b;
    }
}

TEST(NumberText, KeepsTheFractionForCallersThatRoundDown) {
    EXPECT_DOUBLE_EQ(*NumberValue("0.9"), 0.9);
    EXPECT_DOUBLE_EQ(*NumberValue(" 99.9 "), 99.9);
}

TEST(NumberText, IgnoresTheLocale) {
    const char* old = std::setlocale(LC_NUMERIC, nullptr);
    const std::string saved = old ? old : "C";
    if (std::setlocale(LC_NUMERIC, "de_DE.UTF-8") == nullptr) GTEST_SKIP() << "no German locale";
    EXPECT_EQ(WholeNumber("1.5"), 2);
    EXPECT_FALSE(IsNumberText("1,5"));
    std::setlocale(LC_NUMERIC, saved.c_str());
}

}  // namespace
}  // namespace flickerscribe
