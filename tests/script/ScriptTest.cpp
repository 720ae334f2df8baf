#include <gtest/gtest.h>

#include "script/ConfigImport.h"
#include "script/ScriptText.h"

namespace flickerscribe {
namespace {

// A time of 1..99 (rounded down) stands, less is 5, more 99; no number waits 15, reported.
TEST(ScriptText, WaitCommand) {
    const std::pair<const char*, const char*> cases[] = {
        {"15", "15"},     {"1", "1"},    {"99", "99"},   {"99.99", "99.99"}, {"100", "99"},
        {"32767", "99"},  {"1e2", "99"}, {"0", "5"},     {"-3", "5"},        {"0.9", "5"},
        {"0.99999", "5"}, {"-0.4", "5"}, {"1.5", "1.5"}, {"007", "007"},     {" 20 ", " 20 "},
        {"abc", ""},      {"", ""},      {"32768", ""},  {"\t5", ""},        {"5;", ""},
    };
    for (const auto& [time, wait] : cases) {
        std::vector<std::string> reports;
        const std::string command = WaitCommand(time, [&](const std::string& m) { reports.push_back(m); });
        EXPECT_EQ(command, "wait " + std::string(*wait ? wait : "15")) << '"' << time << '"';
        EXPECT_EQ(reports,
                  *wait ? std::vector<std::string>{} : std::vector<std::string>{NoNumberMessage(time)});
    }
    EXPECT_EQ(WaitCommand("x", nullptr), "wait 15");
}

// Byte for byte: a blank line, the banner, each line's commands (bad times told
// in order); an empty text or one starting with a blank gets "^7" in front.
TEST(ScriptText, BuildsTheWholeScript) {
    std::string banner;
    for (std::string_view line : kScriptBanner) banner.append("\r\n").append(line);
    AnimationScript script;
    std::vector<std::string> reports;
    const ScriptReport report = [&](const std::string& m) { reports.push_back(m); };
    EXPECT_EQ(BuildScriptText(script, report), banner);
    const std::pair<const char*, const char*> lines[] = {
        {"^1Fl^7ick", "15"}, {"", "250"}, {" ^2up", "0"}, {"\tA;B\"C\\\xE9", "x"}, {"b", ""}, {"c", "x"},
    };
    for (const auto& [text, time] : lines) script.AppendLine(text, time, "set name \"not me\"");
    EXPECT_EQ(BuildScriptText(script, report), banner +
                                                   "\r\nset name \"^1Fl^7ick\"\r\nwait 15"
                                                   "\r\nset name \"^7 \"\r\nwait 99"
                                                   "\r\nset name \"^7 ^2up\"\r\nwait 5"
                                                   "\r\nset name \"\tA;B\"C\\\xE9\"\r\nwait 15"
                                                   "\r\nset name \"b\"\r\nwait 15"
                                                   "\r\nset name \"c\"\r\nwait 15");
    EXPECT_EQ(reports, (std::vector<std::string>{"no number _x_", "no number __", "no number _x_"}));
    EXPECT_EQ(script.LineAt(4).Time, "x");
    EXPECT_EQ(NameCommand(" x"), "set name \"^7 x\"");
}

// The lines of an import as "text", with the time behind a bar when it isn't 15.
std::vector<std::string> Import(std::string_view data) {
    AnimationScript script;
    script.AppendLine("old", "1", "[none]");
    EXPECT_EQ(ImportBytes(data, script), LoadStatus::Loaded);
    EXPECT_EQ(script.SelectedIndex(), script.Count() > 0 ? 1 : 0);
    std::vector<std::string> lines;
    for (const AnimationLine& line : script.Lines()) {
        EXPECT_EQ(line.Action, "[none]");
        lines.push_back(line.Text + (line.Time == "15" ? "" : "|" + line.Time));
    }
    return lines;
}

using Lines = std::vector<std::string>;

// A comment line is skipped whole; every other line is cut into statements
// at each semicolon. A wait gives its number to the line appended last.
TEST(ConfigImport, ScriptsAndTheLinesTheyMake) {
    const std::pair<std::string, Lines> cases[] = {
        // clang-format off
        {"", {}},                                     {"  // set name \"x\"", {}},
        {"// x; set name \"y\"", {}},                 {"\t// set name \"x\"", {}},
        {"set name \"x\"; // text", {"x"}},           {"set name \"x\" // text", {"x // text"}},
        {"set name ", {}},                            {"set name \"a\"\"b\"", {"ab"}},
        {"set name \"  lead\"", {"  lead"}},          {"   ;  ; set name \"x\";;", {"x"}},
        {"set name \"a\";set name \"b\";set name \"c\"", {"a", "b", "c"}},
        {"// my script\nset name \"x\"\nwait 20\nset name \"y\"\n", {"x|20", "y"}},
        {"set name \"x\"\nset name \"y\"\r\n", {"x\nset name y"}},
        {"wait 20\r\nset name x", {"x"}},            {"set name x;wait 20;wait 30", {"x|30"}},
        {"set name x;wait 1.5", {"x|1.5"}},           {"set name x;wait abc;wait 99999;Wait 20;wait5", {"x"}},
        {"set name x;wait 5", {"x|5"}},               {"set name x;set name ;wait 20", {"x|20"}},
        {"set name x\r\n// wait 20", {"x"}},
        {"set name x;wait \" 2\"0\" \"", {"x| 20 "}},  // trimmed before the quotes go
        {"set name x;wait\t20", {"x|20"}},          // the fifth character goes, whatever it is
        {"  set name \"^1one\"; wait 20 ;SET NAME ^2two\r\n\r\nwait 30", {"^1one|20", "^2two|30"}},
        {"other \"text\"\r\nset name\r\nsetname \"q\"\r\nset  name \"r\"\r\nset name \"", {""}},
        {"set name \"a;b\"", {"a"}},                {"set name: \"s\" // note", {" s // note"}},
        // clang-format on
    };
    for (const auto& [script, lines] : cases) EXPECT_EQ(Import(script), lines) << script;
}

// A line's text and time, and the line the generated script imports as.
TEST(ConfigImport, AGeneratedScriptComesBack) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        // clang-format off
        {"^1Fl^7ick", "15", "^1Fl^7ick"}, {"", "20", "^7 |20"}, {" ^2up", "0", "^7 ^2up|5"}, {"^7 ", "250", "^7 |99"},
        {"a\"b", "abc", "ab"}, {"a;b", "3", "a|3"}, {"x", " 20 ", "x|20"}, {"x", "1.5", "x|1.5"},
        {"//x", "7", "//x|7"},  // inside quotes behind set name: no comment line
        // clang-format on
    };
    AnimationScript source;
    Lines expected;
    for (const auto& [text, time, back] : cases) {
        source.AppendLine(text, time, "[none]");
        expected.push_back(back);
    }
    EXPECT_EQ(Import(BuildScriptText(source, nullptr) + "\r\n"), expected);
}

TEST(ConfigImport, StopsAtTheLineLimitKeepingTheLinesThatStood) {
    std::string file;
    for (int i = 0; i < kMaxLines; ++i) file += "set name n\r\nwait 7\r\n";
    AnimationScript script;
    EXPECT_EQ(ImportBytes(file, script), LoadStatus::Loaded);  // exactly full is no cut
    file += "set name last;wait 9\r\nset name more";
    EXPECT_EQ(ImportBytes(file, script), LoadStatus::Truncated);
    ASSERT_EQ(script.Count(), kMaxLines);
    EXPECT_EQ(script.LineAt(kMaxLines).Text, "n");
    EXPECT_EQ(script.LineAt(kMaxLines).Time, "7");  // the wait of a refused name is not read
}

}  // namespace
}  // namespace flickerscribe
