#include <gtest/gtest.h>

#include "document/Cp1252.h"

namespace flickerscribe {
namespace {

TEST(Cp1252, EveryByteSurvivesTheRoundTrip) {
    std::string all;
    for (int b = 0; b < 256; ++b) all += static_cast<char>(b);
    EXPECT_EQ(Utf8ToCp1252(Cp1252ToUtf8(all)), all);
}

TEST(Cp1252, KnownCharacters) {
    struct Case {
        const char* utf8;
        const char* cp1252;
    };
    const Case cases[] = {
        {"abc", "abc"},
        {"\xE2\x82\xAC", "\x80"},   // euro sign
        {"\xC3\xA9", "\xE9"},       // e acute
        {"\xE2\x80\x9C", "\x93"},   // left double quote
        {"\xE4\xB8\xAD", "?"},      // a CJK character has no form here
        {"\xF0\x9F\x98\x80", "?"},  // nor has an emoji
        {"\xFF", "?"},              // invalid UTF-8
        {"a\xC3", "a?"},            // cut short
    };
    for (const auto& c : cases) EXPECT_EQ(Utf8ToCp1252(c.utf8), c.cp1252) << c.utf8;
}

}  // namespace
}  // namespace flickerscribe
