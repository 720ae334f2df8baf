#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "TempFolder.h"
#include "document/AnimationFile.h"

namespace flickerscribe {
namespace {

using TextTime = std::pair<std::string, std::string>;

std::vector<TextTime> Lines(const AnimationScript& s) {
    std::vector<TextTime> out;
    for (int i = 1; i <= s.Count(); ++i) out.emplace_back(s.LineAt(i).Text, s.LineAt(i).Time);
    return out;
}

bool AllActionsNone(const AnimationScript& s) {
    for (int i = 1; i <= s.Count(); ++i)
        if (s.LineAt(i).Action != "[none]") return false;
    return true;
}

const std::string kTwoLineFile = "#v050#\r\n^1Hi\r\n15\r\n[none]\r\n^3Bye\r\n20\r\n[none]\r\n";

std::string HighBytes() {
    std::string s;
    for (int b = 0x80; b <= 0xFF; ++b) s.push_back(static_cast<char>(b));
    s.push_back('\0');
    return s;
}

struct LoadCase {
    const char* name;
    std::string bytes;
    std::vector<TextTime> lines;
};

// clang-format off
const LoadCase kLoadCases[] = {
    {"zero bytes", "", {}},
    {"magic only", "#v050#\r\n", {}},
    {"magic without a line end", "#v050#", {}},
    {"two records", kTwoLineFile, {{"^1Hi", "15"}, {"^3Bye", "20"}}},
    {"plain list", "anything at all\r\n^1Hi\r\n^3Bye\r\n", {{"^1Hi", "15"}, {"^3Bye", "15"}}},
    {"one plain line carries nothing", "just a title\r\n", {}},
    {"magic in another case is a plain list", "#V050#\r\na\r\n", {{"a", "15"}}},
    {"magic with a blank behind is a plain list", "#v050# \r\na\r\n", {{"a", "15"}}},
    {"magic with a blank in front is a plain list", " #v050#\r\na\r\n", {{"a", "15"}}},
    {"empty lines of a plain list are lines", "x\r\n\r\na\r\n\r\n", {{"", "15"}, {"a", "15"}, {"", "15"}}},
    {"empty text and a time that is no number", "#v050#\r\n\r\nabc\r\n[none]\r\n", {{"", "abc"}}},
    {"third line is dropped", "#v050#\r\nx\r\n007\r\nsomething else\r\n", {{"x", "007"}}},
    {"last record without its line end", "#v050#\r\nx\r\n5\r\n[none]", {{"x", "5"}}},
    {"record cut after two lines", kTwoLineFile + "^4cut\r\n9\r\n", {{"^1Hi", "15"}, {"^3Bye", "20"}}},
    {"record cut after one line", kTwoLineFile + "^4cut", {{"^1Hi", "15"}, {"^3Bye", "20"}}},
    {"blank last line starts a record", kTwoLineFile + "\r\n", {{"^1Hi", "15"}, {"^3Bye", "20"}}},
    {"lone line feed is part of the text", "#v050#\r\na\nb\r\n15\r\n[none]\r\n", {{"a\nb", "15"}}},
    {"unix line ends without any carriage return", "#v050#\n^1Hi\n15\n[none]\n^3Bye\n20\n[none]\n",
     {{"^1Hi", "15"}, {"^3Bye", "20"}}},
    {"unix plain list keeps its empty lines", "title\na\n\nb", {{"a", "15"}, {"", "15"}, {"b", "15"}}},
    {"one carriage return makes line feeds text", "#v050#\nx\r\n", {}},
    {"carriage return alone ends a line", "#v050#\rA\r1\r[none]\rB\r2\r[none]\r", {{"A", "1"}, {"B", "2"}}},
    {"high bytes and NUL pass unchanged",
     "#v050#\r\n" + HighBytes() + "\r\n15\r\n[none]\r\n",
     {{HighBytes(), "15"}}},
};
// clang-format on

TEST(LoadAnimationBytes, CutsTheFileIntoLines) {
    for (const auto& c : kLoadCases) {
        AnimationScript s;
        s.AppendLine("old", "1", "[none]");
        EXPECT_EQ(LoadAnimationBytes(c.bytes, s), LoadStatus::Loaded) << c.name;
        EXPECT_EQ(Lines(s), c.lines) << c.name;
        EXPECT_TRUE(AllActionsNone(s)) << c.name;
        EXPECT_EQ(s.SelectedIndex(), c.lines.empty() ? 0 : 1) << c.name;
    }
}

TEST(AnimationFileBytes, WritesMagicAndThreeLinesALine) {
    const struct {
        const char* name;
        std::vector<AnimationLine> lines;
        std::string bytes;
    } cases[] = {
        {"empty animation", {}, std::string("\x23\x76\x30\x35\x30\x23\x0D\x0A")},
        {"two lines", {{"^1Hi", "15", "[none]"}, {"^3Bye", "20", "[none]"}}, kTwoLineFile},
        {"fields written as they are",
         {{"", "abc", "other"}, {"\" ,#^", " 007", "[none]"}},
         "#v050#\r\n\r\nabc\r\nother\r\n\" ,#^\r\n 007\r\n[none]\r\n"},
        {"high bytes", {{HighBytes(), "15", "[none]"}}, "#v050#\r\n" + HighBytes() + "\r\n15\r\n[none]\r\n"},
    };
    for (const auto& c : cases) {
        AnimationScript s;
        for (const auto& l : c.lines) s.AppendLine(l.Text, l.Time, l.Action);
        EXPECT_EQ(AnimationFileBytes(s), c.bytes) << c.name;
    }
    EXPECT_EQ(kTwoLineFile.size(), 45u);
    EXPECT_EQ(kTwoLineFile.substr(0, 18),
              "\x23\x76\x30\x35\x30\x23\x0D\x0A\x5E\x31\x48\x69\x0D\x0A\x31\x35\x0D\x0A");
}

TEST(AnimationFile, SaveThenLoadKeepsTextAndTime) {
    test::TempFolder dir;
    AnimationScript s;
    s.AppendLine("^1Fl^7ick", "15", "[none]");
    s.AppendLine("", "abc", "kept only in memory");
    s.AppendLine(HighBytes(), "007", "[none]");
    s.AppendLine("a\nb", "-3", "[none]");
    const auto path = dir.File("anim.fsq");
    ASSERT_EQ(SaveAnimationFile(path, s), std::nullopt);
    EXPECT_EQ(test::ReadBytes(path), AnimationFileBytes(s));

    AnimationScript back;
    EXPECT_EQ(LoadAnimationFile(path, back), LoadStatus::Loaded);
    EXPECT_EQ(Lines(back), Lines(s));
    EXPECT_TRUE(AllActionsNone(back));
}

// Counts what a view hears: a load must be one reset, no per-line calls.
struct CountingListener : ScriptListener {
    int resets = 0, resetsDone = 0, lineCalls = 0;
    void AboutToInsert(int) override { ++lineCalls; }
    void Inserted(int) override { ++lineCalls; }
    void AboutToRemove(int) override { ++lineCalls; }
    void Removed(int) override { ++lineCalls; }
    void LineChanged(int) override { ++lineCalls; }
    void AboutToReset() override { ++resets; }
    void ResetDone() override { ++resetsDone; }
    void SelectionChanged(int) override {}
};

// Only a file read to its end replaces the lines: anything else (missing, a
// folder, a pipe with no writer, a device, an I/O error) leaves them alone,
// untouched even for the view.
TEST(AnimationFile, OnlyAFileReadWholeReplacesTheLines) {
    test::TempFolder dir;
    test::WriteBytes(dir.File("two.fsq"), kTwoLineFile);
    test::WriteBytes(dir.File("zero.fsq"), "");
    test::WriteBytes(dir.File("secret.fsq"), kTwoLineFile);
    ::chmod(dir.File("secret.fsq").c_str(), 0);
    ASSERT_EQ(::mkfifo(dir.File("pipe").c_str(), 0600), 0);
    const bool readsAnything = ::access(dir.File("secret.fsq").c_str(), R_OK) == 0;
    const struct {
        std::string path;
        bool exists;
        int count;  // -1: the old line stays
    } cases[] = {
        {dir.File("two.fsq"), true, 2},
        {dir.File("zero.fsq"), true, 0},
        {dir.File("missing.fsq"), false, -1},
        {dir.Path(), false, -1},
        {"", false, -1},
        {dir.File("pipe"), true, -1},
        {"/dev/zero", true, -1},
        {"/proc/self/mem", true, -1},  // opens, but its first read is an I/O error
        {dir.File("secret.fsq"), readsAnything, readsAnything ? 2 : -1},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(FileExists(c.path), c.exists) << c.path;
        AnimationScript s;
        s.AppendLine("old", "15", "[none]");
        CountingListener view;
        s.SetListener(&view);
        EXPECT_EQ(LoadAnimationFile(c.path, s), c.count < 0 ? LoadStatus::ReadFailed : LoadStatus::Loaded)
            << c.path;
        EXPECT_EQ(s.Count(), c.count < 0 ? 1 : c.count) << c.path;
        EXPECT_EQ(view.resets + view.resetsDone + view.lineCalls, c.count < 0 ? 0 : 2) << c.path;
    }
}

std::string ManyRecords(int n) {
    std::string data = "#v050#\r\n";
    for (int i = 1; i <= n; ++i) data += "L" + std::to_string(i) + "\r\n15\r\n[none]\r\n";
    return data;
}

std::string ManyPlainLines(int n) {
    std::string data = "title\r\n";
    for (int i = 1; i <= n; ++i) data += "L" + std::to_string(i) + "\r\n";
    return data;
}

TEST(AnimationFile, StopsAtTheLineLimit) {
    const struct {
        const char* name;
        std::string data;
        LoadStatus status;
        int count;
    } cases[] = {
        {"records up to the limit", ManyRecords(kMaxLines), LoadStatus::Loaded, kMaxLines},
        {"one record too many", ManyRecords(kMaxLines + 1), LoadStatus::Truncated, kMaxLines},
        {"limit and a cut record", ManyRecords(kMaxLines) + "x\r\n", LoadStatus::Loaded, kMaxLines},
        {"plain lines up to the limit", ManyPlainLines(kMaxLines), LoadStatus::Loaded, kMaxLines},
        {"plain lines beyond the limit", ManyPlainLines(kMaxLines + 5), LoadStatus::Truncated, kMaxLines},
    };
    for (const auto& c : cases) {
        AnimationScript s;
        EXPECT_EQ(LoadAnimationBytes(c.data, s), c.status) << c.name;
        ASSERT_EQ(s.Count(), c.count) << c.name;
        EXPECT_EQ(s.LineAt(1).Text, "L1") << c.name;
        EXPECT_EQ(s.LineAt(kMaxLines).Text, "L" + std::to_string(kMaxLines)) << c.name;
    }
}

TEST(AnimationFile, FailedSaveLeavesTheOldFileWhole) {
    test::TempFolder dir;
    const auto path = dir.File("anim.fsq");
    test::WriteBytes(path, kTwoLineFile);
    AnimationScript s;
    s.AppendLine("new", "15", "[none]");

    write_seam::FailNextWriteAfter(10, ENOSPC);
    const auto error = SaveAnimationFile(path, s);
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->number, ENOSPC);
    EXPECT_EQ(test::ReadBytes(path), kTwoLineFile);
    EXPECT_EQ(dir.Entries(), std::vector<std::string>{"anim.fsq"});
}

}  // namespace
}  // namespace flickerscribe
