#include <gtest/gtest.h>

#include <cerrno>

#include "TempFolder.h"
#include "document/AnimationFile.h"
#include "document/Cp1252.h"

namespace flickerscribe {
namespace {

using namespace std::string_literals;
using Lines = std::vector<std::string>;

const std::string kTwoLineFile = "#v050#\r\n^1Hi\r\n15\r\n[none]\r\n^3Bye\r\n20\r\n[none]\r\n";
const Lines kTwoLines = {"^1Hi|15", "^3Bye|20"};
const std::string kHighBytes = [] {
    std::string s;
    for (int b = 0x80; b <= 0xFF; ++b) s.push_back(static_cast<char>(b));
    return s + '\0';
}();

// The project format and the plain list, with every kind of line end.
TEST(LoadAnimationBytes, CutsTheFileIntoLines) {
    const std::pair<std::string, Lines> cases[] = {
        // clang-format off
        {"", {}},                                   {"#v050#\r\n", {}},
        {"#v050#", {}},                             {kTwoLineFile, kTwoLines},
        {"anything at all\r\n^1Hi\r\n^3Bye\r\n", {"^1Hi|15", "^3Bye|15"}},
        {"just a title\r\n", {}},                   {"#V050#\r\na\r\n", {"a|15"}},
        {"#v050# \r\na\r\n", {"a|15"}},            {"x\r\n\r\na\r\n\r\n", {"|15", "a|15", "|15"}},
        {"#v050#\r\n\r\nabc\r\n[none]\r\n", {"|abc"}}, {"#v050#\r\nx\r\n007\r\nsomething else\r\n", {"x|007"}},
        {"#v050#\r\nx\r\n5\r\n[none]", {"x|5"}},   {kTwoLineFile + "^4cut\r\n9\r\n", kTwoLines},
        {kTwoLineFile + "^4cut", kTwoLines},        {kTwoLineFile + "\r\n", kTwoLines},
        {"#v050#\r\na\nb\r\n15\r\n[none]\r\n", {"a\nb|15"}},
        {"#v050#\n^1Hi\n15\n[none]\n^3Bye\n20\n[none]\n", kTwoLines},
        {"title\na\n\nb", {"a|15", "|15", "b|15"}},  {"#v050#\nx\r\n", {}},
        {"#v050#\rA\r1\r[none]\rB\r2\r[none]\r", {"A|1", "B|2"}},
        {"#v050#\r\n" + kHighBytes + "\r\n\0\r\n[none]\r\n"s, {kHighBytes + "|\0"s}},
        // clang-format on
    };
    for (const auto& [bytes, lines] : cases) {
        AnimationScript s;
        s.AppendLine("old", "1", "[none]");
        EXPECT_EQ(LoadAnimationBytes(bytes, s), LoadStatus::Loaded) << bytes;
        EXPECT_EQ(test::Lines(s), lines) << bytes;
        EXPECT_EQ(s.SelectedIndex(), lines.empty() ? 0 : 1) << bytes;
    }
}

// Whatever the fields hold is written as it is, and read back the same.
TEST(AnimationFile, SaveThenLoadKeepsTextAndTime) {
    test::TempFolder dir;
    AnimationScript s;
    EXPECT_EQ(AnimationFileBytes(s), "#v050#\r\n");
    s.AppendLine("^1Hi", "15", "[none]");
    s.AppendLine("^3Bye", "20", "[none]");
    EXPECT_EQ(AnimationFileBytes(s), kTwoLineFile);
    s.AppendLine("", "abc", "other");
    s.AppendLine(kHighBytes + "\" ,#^\n", " 0\0"s, "[none]");
    const std::string bytes =
        kTwoLineFile + "\r\nabc\r\nother\r\n" + kHighBytes + "\" ,#^\n\r\n 0\0\r\n[none]\r\n"s;
    EXPECT_EQ(AnimationFileBytes(s), bytes);
    const auto path = dir.File("anim.fsq");
    ASSERT_EQ(SaveAnimationFile(path, s), std::nullopt);
    EXPECT_EQ(test::ReadBytes(path), bytes);
    AnimationScript back;
    EXPECT_EQ(LoadAnimationFile(path, back), LoadStatus::Loaded);
    EXPECT_EQ(test::Lines(back), (Lines{"^1Hi|15", "^3Bye|20", "|abc", kHighBytes + "\" ,#^\n| 0\0"s}));
    // A save that fails half way leaves the old file as it was.
    write_seam::FailNextWriteAfter(10, ENOSPC);
    EXPECT_EQ(SaveAnimationFile(path, AnimationScript()).value_or(SaveError{}).number, ENOSPC);
    EXPECT_EQ(test::ReadBytes(path), bytes);
}

TEST(LoadAnimationBytes, StopsAtTheLineLimit) {
    const auto many = [](bool records, int n) {
        std::string data = records ? "#v050#\r\n" : "title\r\n";
        for (int i = 1; i <= n; ++i)
            data += "L" + std::to_string(i) + (records ? "\r\n15\r\n[none]\r\n" : "\r\n");
        return data;
    };
    const std::pair<std::string, LoadStatus> cases[] = {
        {many(true, kMaxLines), LoadStatus::Loaded},
        {many(true, kMaxLines + 1), LoadStatus::Truncated},
        {many(true, kMaxLines) + "x\r\n", LoadStatus::Loaded},  // a cut record is no line
        {many(false, kMaxLines), LoadStatus::Loaded},
        {many(false, kMaxLines + 5), LoadStatus::Truncated},
    };
    for (const auto& [data, status] : cases) {
        AnimationScript s;
        EXPECT_EQ(LoadAnimationBytes(data, s), status) << data.size();
        ASSERT_EQ(s.Count(), kMaxLines);
        EXPECT_EQ(s.LineAt(kMaxLines).Text, "L" + std::to_string(kMaxLines));
    }
}

// Files hold Windows-1252. Every byte survives the way through UTF-8; the
// five bytes the code page leaves undefined are the C1 controls of that value.
TEST(Cp1252, EveryByteSurvivesTheRoundTrip) {
    std::string all;
    for (int b = 0; b < 256; ++b) all += static_cast<char>(b);
    EXPECT_EQ(Utf8ToCp1252(Cp1252ToUtf8(all)), all);
    const std::pair<const char*, const char*> known[] = {
        {"abc\x7F", "abc\x7F"},
        {"\xE2\x82\xAC", "\x80"},
        {"\xC5\xB8", "\x9F"},
        {"\xC2\x81", "\x81"},
        {"\xC2\xA0\xC3\xA9\xC3\xBF", "\xA0\xE9\xFF"},
        {"\xE2\x80\x9C", "\x93"},
    };
    for (const auto& [utf8, cp1252] : known) {
        EXPECT_EQ(Utf8ToCp1252(utf8), cp1252) << utf8;
        EXPECT_EQ(Cp1252ToUtf8(cp1252), utf8) << utf8;
    }
}

// A character the code page lacks is "?", and so is each byte of broken UTF-8.
TEST(Cp1252, WhatHasNoFormBecomesAQuestionMark) {
    const std::pair<const char*, const char*> cases[] = {
        {"\xC2\x80", "?"},         {"\xE4\xB8\xAD", "?"},
        {"\xF0\x9F\x98\x80", "?"}, {"\xFF\xC0\xAF\xF5\x80", "?????"},
        {"a\xC3", "a?"},           {"\xE2\x82x", "??x"},
    };
    for (const auto& [utf8, cp1252] : cases) EXPECT_EQ(Utf8ToCp1252(utf8), cp1252) << utf8;
}

}  // namespace
}  // namespace flickerscribe
