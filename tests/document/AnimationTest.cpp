#include <gtest/gtest.h>

#include <memory>
#include <sstream>

#include "TempFolder.h"
#include "document/AnimationFile.h"
#include "document/AnimationScript.h"
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

// Whatever the fields hold is written as it is.
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
        {"abc\x7F\xE2\x80\x9C", "abc\x7F\x93"},
        {"\xE2\x82\xAC\xC5\xB8", "\x80\x9F"},
        {"\xC2\x81\xC2\xA0\xC3\xA9\xC3\xBF", "\x81\xA0\xE9\xFF"}};
    for (const auto& [utf8, cp1252] : known) {
        EXPECT_EQ(Utf8ToCp1252(utf8), cp1252) << utf8;
        EXPECT_EQ(Cp1252ToUtf8(cp1252), utf8) << utf8;
    }
}

// A character the code page lacks is "?", as is each byte of broken UTF-8.
// Strict decoding takes the shortest forms up to U+10FFFF and nothing else.
TEST(Cp1252, WhatIsNoUtf8OrHasNoFormBecomesAQuestionMark) {
    const std::pair<std::string, std::u32string> valid[] = {
        {"", U""},
        {"a\r\n", U"a\r\n"},
        {"\xC2\x80\xDF\xBF", U"\u0080\u07FF"},
        {"\xE0\xA0\x80\xEF\xBF\xBF", U"\u0800\uFFFF"},
        {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", U"\U00010000\U0010FFFF"}};
    for (const auto& [utf8, decoded] : valid) EXPECT_EQ(DecodeUtf8(utf8), decoded) << utf8;
    EXPECT_EQ(Utf8ToCp1252("\xC2\x80\xE4\xB8\xAD\xF0\x9F\x98\x80"), "???") << "not in the code page";
    const std::pair<const char*, const char*> invalid[] = {
        // clang-format off
        {"\x80", "?"}, {"a\xBF", "a?"}, {"\xC0\x80", "??"}, {"\xC1\xBF", "??"}, {"\xE0\x80\x8D", "???"},
        {"\xE0\x9F\xBF", "???"}, {"\xF0\x8F\xBF\xBF", "????"}, {"\xED\xA0\x80", "???"}, {"\xED\xBF\xBF", "???"},
        {"\xF4\x90\x80\x80", "????"}, {"\xF8\x88\x80\x80\x80", "?????"}, {"\xFF\xC0\xAF\xF5\x80", "?????"},
        {"\xC3", "?"}, {"a\xC3", "a?"}, {"\xE2\x82", "??"}, {"\xE2\x82x", "??x"},
        // clang-format on
    };
    for (const auto& [utf8, cp1252] : invalid) {
        EXPECT_EQ(DecodeUtf8(utf8), std::nullopt) << utf8;
        EXPECT_EQ(Utf8ToCp1252(utf8), cp1252) << utf8;
    }
}

// The lines as "A *B C:9": the selected one starred, a time other than 15 behind a colon.
std::string Show(const AnimationScript& s) {
    std::string out;
    for (int i = 1; i <= s.Count(); ++i) {
        const AnimationLine& line = s.LineAt(i);
        out += std::string(i > 1 ? " " : "") + (i == s.SelectedIndex() ? "*" : "") + line.Text +
               (line.Time == "15" ? "" : ":" + line.Time);
    }
    return out;
}

// One word an operation: s<n> select, i<n> insert "N", r<n> remove, t<n> text
// "x", m<n> time "9", c clear, e<n> exchange for X Y selecting n, E exchange
// for nothing, ( and ) open and close a batch. A refused operation says "no".
void Play(AnimationScript& s, test::Recorder& view, const std::string& program) {
    std::vector<std::unique_ptr<AnimationScript::Batch>> batches;
    std::istringstream words(program);
    for (std::string w; words >> w;) {
        const int n = w.size() > 1 ? std::stoi(w.substr(1)) : 0;
        bool done = true;
        // clang-format off
        switch (w[0]) {
            case 's': s.SelectLine(n); break;
            case 'i': done = s.InsertLine(n, "N", "15", "[none]"); break;
            case 'r': done = s.RemoveLine(n); break;
            case 't': s.SetLineText(n, "x"); break;
            case 'm': s.SetLineTime(n, "9"); break;
            case 'c': s.ClearLines(); break;
            case 'e': s.ExchangeLines({{"X"}, {"Y"}}, n); break;
            case 'E': s.ExchangeLines({}, n); break;
            case '(': batches.push_back(std::make_unique<AnimationScript::Batch>(s)); break;
            case ')': batches.pop_back(); break;
        }
        // clang-format on
        if (!done) view.Say("no");
    }
}

// Every case starts from A B C D with A selected.
TEST(AnimationScript, KeepsTheSelectionOnItsLineAndTellsTheView) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        // clang-format off
        {"", "*A B C D", ""},                                 {"s3 s3 s0 s5", "A B *C D", "s3"},
        {"i1", "N *A B C D", "[+1 +1] s2"},                   {"s2 i3", "A *B N C D", "s2 [+3 +3]"},
        {"s4 i5", "A B C *D N", "s4 [+5 +5]"},                {"i0 i6 r0 r5", "*A B C D", "no no no no"},
        {"s3 r1", "B *C D", "s3 [-1 -1] s2"},                 {"s2 r4", "A *B C", "s2 [-4 -4]"},
        {"s2 r2", "A *C D", "s2 [-2 -2] s2"},                 {"s4 r4", "A B *C", "s4 [-4 -4] s3"},
        {"t2 m3 t0 m5", "*A x C:9 D", "~2 ~3"},               {"c c", "", "[R R]"},
        {"r1 r1 r1 r1", "", "[-1 -1] s1 [-1 -1] s1 [-1 -1] s1 [-1 -1] s0"},
        {"c i1 i1", "N *N", "[R R] [+1 +1] s1 [+1 +1] s2"},   {"s3 e0", "*X Y", "s3 [R R] s1"},
        {"e1", "*X Y", "[R R] s1"},                           {"e9", "X *Y", "[R R] s2"},
        {"E3", "", "[R R] s0"},                               {"( c ( i1 i1 ) t1 r9 )", "x *N", "[R no R] s2"},
        // clang-format on
    };
    for (const auto& [program, lines, told] : cases) {
        AnimationScript s;
        for (const char* text : {"A", "B", "C", "D"}) s.AppendLine(text, "15", "[none]");
        test::Recorder view;
        s.SetListener(&view);
        Play(s, view, program);
        EXPECT_EQ(Show(s), lines) << program;
        EXPECT_EQ(view.log, told) << program;
    }
}

}  // namespace
}  // namespace flickerscribe
