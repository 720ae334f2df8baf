#include <gtest/gtest.h>

#include "effects/TextWalk.h"

namespace flickerscribe {
namespace {

TEST(TextWalk, MeasuresStripsAndColoursAlike) {
    const struct {
        const char* text;
        std::size_t visible;
        const char* stripped;
        const char* coloured;
    } cases[] = {
        {"", 0, "", ""},
        {"abc", 3, "abc", "^7a^7b^7c"},
        {"^1ab^2c", 3, "abc", "^1a^1b^2c"},
        {"a^b", 3, "a^b", "^7a^7^^7b"},
        {"abc^", 4, "abc^", "^7a^7b^7c^7^"},
        {"abc^1", 3, "abc", "^7a^7b^7c^1"},
        // The character behind a code is taken untested, so "^2" is plain here.
        {"^1^2x", 3, "^2x", "^1^^12^1x"},
        {"^^12", 2, "^2", "^7^^12"},
        {"^1", 0, "", "^1"},
        {"^", 1, "^", "^7^"},
        {"^ a", 3, "^ a", "^7^^7 ^7a"},
        {"^0a^9b", 2, "ab", "^0a^9b"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(VisibleLength(c.text), c.visible) << c.text;
        EXPECT_EQ(StripColourCodes(c.text), c.stripped) << c.text;
        EXPECT_EQ(ColourEachCharacter(c.text), c.coloured) << c.text;
    }
}

TEST(TextWalk, SpacesOfNoneOrFewerAreEmpty) {
    const struct {
        std::ptrdiff_t count;
        const char* blanks;
    } cases[] = {{0, ""}, {-1, ""}, {-32768, ""}, {1, " "}, {3, "   "}};
    for (const auto& c : cases) EXPECT_EQ(Spaces(c.count), c.blanks) << c.count;
}

TEST(TextWalk, ProtectClanTagOnlyWhereTheTagHasNoColourOfItsOwn) {
    const struct {
        const char* tag;
        const char* protectedTag;
    } cases[] = {
        {"[QZT]", "^0[QZT]"}, {"", "^0"},       {"^x", "^0^x"},   {"^4[QZT]", "^4[QZT]"}, {"^0", "^0"},
        {"^", "^0^"},         {"x^1", "^0x^1"}, {"^^1", "^0^^1"}, {" ^1", "^0 ^1"},       {"^9", "^9"},
    };
    for (const auto& c : cases) {
        std::string tag = c.tag;
        ProtectClanTag(tag);
        EXPECT_EQ(tag, c.protectedTag) << c.tag;
        ProtectClanTag(tag);
        EXPECT_EQ(tag, c.protectedTag) << c.tag << " protected twice";
    }
}

}  // namespace
}  // namespace flickerscribe
