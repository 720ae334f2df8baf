#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "script/ConfigImport.h"
#include "script/ScriptText.h"

namespace flickerscribe {
namespace {

struct Line {
    std::string text;
    std::string time = "15";
    bool operator==(const Line&) const = default;
};

std::ostream& operator<<(std::ostream& os, const Line& l) {
    return os << '{' << l.text << '|' << l.time << '}';
}

std::vector<Line> Lines(const AnimationScript& script) {
    std::vector<Line> lines;
    for (int i = 1; i <= script.Count(); ++i) {
        EXPECT_EQ(script.LineAt(i).Action, "[none]");
        lines.push_back({script.LineAt(i).Text, script.LineAt(i).Time});
    }
    return lines;
}

std::vector<Line> Import(std::string_view data) {
    AnimationScript script;
    EXPECT_EQ(ImportBytes(data, script), LoadStatus::Loaded);
    return Lines(script);
}

TEST(ConfigImport, WorkedExampleGivesFiveLinesAndTheirWaits) {
    const std::string file =
        "// my script\r\n"
        "  set name \"^1one\"; wait 20 ;SET NAME ^2two\r\n"
        "\r\n"
        "wait 30\r\n"
        "other \"text\"\r\n"
        "set name\r\n"
        "set name \"\r\n"
        "set name \"a;b\"\r\n"
        "setname \"q\"\r\n"
        "set  name \"r\"\r\n"
        "set name: \"s\" // note\r\n";
    // wait 20 stands behind the first name, wait 30 behind the second.
    EXPECT_EQ(Import(file),
              (std::vector<Line>{{"^1one", "20"}, {"^2two", "30"}, {""}, {"a"}, {" s // note"}}));
}

TEST(ConfigImport, OneLineScripts) {
    struct Case {
        std::string line;
        std::vector<Line> lines;
    };
    const Case cases[] = {
        {"  // set name \"x\"", {}},
        {"\t// set name \"x\"", {}},  // a tab makes it no comment: the piece is no set name
        {"set name \"x\"; // text", {{"x"}}},
        {"set name \"x\" // text", {{"x // text"}}},
        {"SET NAME \"x\"", {{"x"}}},
        {"set  name \"x\"", {}},
        {"set name ", {}},
        {"set name x", {{"x"}}},
        {"set name \"a\"\"b\"", {{"ab"}}},
        {"set name \"  lead\"", {{"  lead"}}},
        {"   ;  ; set name \"x\";;", {{"x"}}},
        {"set name \"a\";set name \"b\";set name \"c\"", {{"a"}, {"b"}, {"c"}}},
        {"set name \"caf\xE9\"", {{"caf\xE9"}}},
        // A file with no carriage return has Unix line ends; with one, a lone
        // line feed ends nothing.
        {"// my script\nset name \"x\"\nwait 20\nset name \"y\"\n", {{"x", "20"}, {"y"}}},
        {"set name \"x\"\nset name \"y\"\r\n", {{"x\nset name y"}}},
    };
    for (const auto& c : cases) EXPECT_EQ(Import(c.line), c.lines) << c.line;
}

TEST(ConfigImport, WaitSetsTheTimeOfTheLineAppendedLast) {
    struct Case {
        std::string script;
        std::vector<Line> lines;
    };
    const Case cases[] = {
        {"wait 20\r\nset name x", {{"x"}}},
        {"set name x\r\nwait 20", {{"x", "20"}}},
        {"set name x;wait 20;wait 30", {{"x", "30"}}},
        {"set name x;wait   20  ", {{"x", "20"}}},
        {"set name x;wait \"2\"0\"", {{"x", "20"}}},
        {"set name x;wait \" 7 \"", {{"x", " 7 "}}},  // trimmed before the quotes go
        {"set name x;wait 007", {{"x", "007"}}},
        {"set name x;wait 1.5", {{"x", "1.5"}}},
        {"set name x;wait abc", {{"x"}}},
        {"set name x;wait 99999", {{"x"}}},
        {"set name x;Wait 20", {{"x"}}},
        {"set name x;wait5", {{"x"}}},
        {"set name x;wait\t20", {{"x", "20"}}},  // the fifth character goes whatever it is
        {"set name x;waitX20", {{"x", "20"}}},
        {"set name x;set name y;wait 20", {{"x"}, {"y", "20"}}},
        {"set name x;set name ;wait 20", {{"x", "20"}}},  // still the line appended last
        {"set name x\r\n// wait 20", {{"x"}}},
    };
    for (const auto& c : cases) EXPECT_EQ(Import(c.script), c.lines) << c.script;
}

TEST(ConfigImport, GeneratedScriptComesBack) {
    struct Case {
        Line before;
        Line after;
    };
    const Case cases[] = {
        {{"^1Fl^7ick", "15"}, {"^1Fl^7ick", "15"}},
        {{"", "20"}, {"^7 ", "20"}},
        {{" ^2up", "0"}, {"^7 ^2up", "5"}},
        {{"^7 ", "250"}, {"^7 ", "99"}},
        {{"a\"b", "abc"}, {"ab", "15"}},
        {{"a;b", "3"}, {"a", "3"}},
        {{"x", " 20 "}, {"x", "20"}},
        {{"x", "1.5"}, {"x", "1.5"}},
        {{"//x", "7"}, {"//x", "7"}},  // inside quotes after set name: no comment line
    };
    AnimationScript source;
    for (const auto& c : cases) source.AppendLine(c.before.text, c.before.time, "[none]");
    const std::string file = BuildScriptText(source, nullptr) + "\r\n";

    std::vector<Line> expected;
    for (const auto& c : cases) expected.push_back(c.after);
    const std::vector<Line> once = Import(file);
    EXPECT_EQ(once, expected);

    // A second round trip changes nothing any more.
    AnimationScript again;
    for (const auto& l : once) again.AppendLine(l.text, l.time, "[none]");
    EXPECT_EQ(Import(BuildScriptText(again, nullptr)), once);
}

TEST(ConfigImport, EmptyAndBannerOnlyScriptsEmptyTheList) {
    AnimationScript script;
    script.AppendLine("old", "15", "[none]");
    EXPECT_EQ(ImportBytes("", script), LoadStatus::Loaded);
    EXPECT_EQ(script.Count(), 0);
    const std::string bannerOnly = BuildScriptText(script, nullptr) + "\r\n";
    script.AppendLine("old", "15", "[none]");
    EXPECT_EQ(ImportBytes(bannerOnly, script), LoadStatus::Loaded);
    EXPECT_EQ(script.Count(), 0);
    EXPECT_EQ(script.SelectedIndex(), 0);
}

TEST(ConfigImport, SecondImportReplacesTheFirstAndSelectsLineOne) {
    AnimationScript script;
    ImportBytes("set name a\r\nset name b", script);
    script.SelectLine(2);
    ImportBytes("set name c", script);
    EXPECT_EQ(Lines(script), std::vector<Line>{{"c"}});
    EXPECT_EQ(script.SelectedIndex(), 1);
}

TEST(ConfigImport, StopsAtTheLineLimitKeepingTheLinesThatStood) {
    std::string file;
    for (int i = 0; i < kMaxLines; ++i) file += "set name n\r\nwait 7\r\n";
    AnimationScript script;
    EXPECT_EQ(ImportBytes(file, script), LoadStatus::Loaded);  // exactly full is no cut
    EXPECT_EQ(script.Count(), kMaxLines);
    EXPECT_EQ(script.LineAt(kMaxLines).Time, "7");

    file += "set name last;wait 9\r\nset name more";
    EXPECT_EQ(ImportBytes(file, script), LoadStatus::Truncated);
    EXPECT_EQ(script.Count(), kMaxLines);
    EXPECT_EQ(script.LineAt(kMaxLines).Text, "n");
    EXPECT_EQ(script.LineAt(kMaxLines).Time, "7");  // the wait of a refused name is not read
}

class CountingListener : public ScriptListener {
public:
    void AboutToInsert(int) override { ++perLine; }
    void Inserted(int) override { ++perLine; }
    void AboutToRemove(int) override { ++perLine; }
    void Removed(int) override { ++perLine; }
    void LineChanged(int) override { ++perLine; }
    void AboutToReset() override { ++resets; }
    void ResetDone() override {}
    void SelectionChanged(int) override {}
    int perLine = 0;
    int resets = 0;
};

TEST(ConfigImport, TheViewSeesOneReset) {
    AnimationScript script;
    script.AppendLine("old", "15", "[none]");
    CountingListener listener;
    script.SetListener(&listener);
    ImportBytes("set name a;wait 3\r\nset name b", script);
    EXPECT_EQ(listener.resets, 1);
    EXPECT_EQ(listener.perLine, 0);
    script.SetListener(nullptr);
}

TEST(ConfigImport, FileRoutine) {
    const auto dir =
        std::filesystem::temp_directory_path() / ("flickerscribe-import-" + std::to_string(::getpid()));
    std::filesystem::create_directories(dir);
    const auto path = (dir / "a.cfg").string();
    {
        std::ofstream out(path, std::ios::binary);
        out << "\r\n// banner\r\nset name \"x\"\r\nwait 40\r\n";
    }
    AnimationScript script;
    EXPECT_EQ(ImportFile(path, script), LoadStatus::Loaded);
    EXPECT_EQ(Lines(script), (std::vector<Line>{{"x", "40"}}));

    // A file that can't be read leaves the list as it was.
    EXPECT_EQ(ImportFile((dir / "missing.cfg").string(), script), LoadStatus::ReadFailed);
    EXPECT_EQ(ImportFile(dir.string(), script), LoadStatus::ReadFailed);
    EXPECT_EQ(Lines(script), (std::vector<Line>{{"x", "40"}}));
    std::filesystem::remove_all(dir);
}

}  // namespace
}  // namespace flickerscribe
