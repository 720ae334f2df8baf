#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "script/ScriptText.h"

namespace flickerscribe {
namespace {

std::string Banner() {
    std::string text;
    for (std::string_view line : kScriptBanner) text.append("\r\n").append(line);
    return text;
}

TEST(ScriptText, WaitCommandTable) {
    struct Case {
        const char* time;
        const char* wait;
        bool reported;
    };
    const Case cases[] = {
        {"15", "wait 15", false},     {"1", "wait 1", false},      {"99", "wait 99", false},
        {"100", "wait 99", false},    {"32767", "wait 99", false}, {"0", "wait 5", false},
        {"-3", "wait 5", false},      {"0.9", "wait 5", false},    {"1.5", "wait 1.5", false},
        {"99.9", "wait 99.9", false}, {"1e2", "wait 99", false},   {"007", "wait 007", false},
        {" 20 ", "wait  20 ", false}, {"-0.4", "wait 5", false},   {"0.99999", "wait 5", false},
        {"1.0", "wait 1.0", false},   {"-32768", "wait 5", false}, {"abc", "wait 15", true},
        {"", "wait 15", true},        {"32768", "wait 15", true},  {" ", "wait 15", true},
        {"\t5", "wait 15", true},     {"5;", "wait 15", true},
    };
    for (const auto& c : cases) {
        std::vector<std::string> messages;
        const std::string wait =
            WaitCommand(c.time, [&](const std::string& message) { messages.push_back(message); });
        EXPECT_EQ(wait, c.wait) << '"' << c.time << '"';
        if (c.reported) {
            EXPECT_EQ(messages, std::vector<std::string>{"no number _" + std::string(c.time) + "_"})
                << '"' << c.time << '"';
        } else {
            EXPECT_TRUE(messages.empty()) << '"' << c.time << '"';
        }
    }
}

TEST(ScriptText, NameCommandTable) {
    struct Case {
        std::string text;
        std::string command;
    };
    const Case cases[] = {
        {"", "set name \"^7 \""},
        {" ", "set name \"^7 \""},
        {" ^2up", "set name \"^7 ^2up\""},
        {"  two", "set name \"^7  two\""},
        {"^1 x", "set name \"^1 x\""},
        {"^1Fl^7ick", "set name \"^1Fl^7ick\""},
        {"A;B\"C", "set name \"A;B\"C\""},
        {"back\\slash", "set name \"back\\slash\""},
        {"\tTab", "set name \"\tTab\""},
        {"caf\xE9", "set name \"caf\xE9\""},
        {std::string("a\0b", 3), std::string("set name \"a\0b\"", 14)},
    };
    for (const auto& c : cases) EXPECT_EQ(NameCommand(c.text), c.command) << '"' << c.text << '"';
}

TEST(ScriptText, EmptyListGivesTheEmptyLineAndTheBannerAlone) {
    AnimationScript script;
    int reports = 0;
    const std::string text = BuildScriptText(script, [&](const std::string&) { ++reports; });
    EXPECT_EQ(text,
              "\r\n//--------------------------\\\\"
              "\r\n//----- SCRIPT MADE WITH ---\\\\"
              "\r\n//------ Flickerscribe -----\\\\"
              "\r\n//----- by: [QZT]Quillon ---\\\\"
              "\r\n//--------------------------\\\\"
              "\r\n//-quillon@qzt-clan.example-\\\\"
              "\r\n//--------------------------\\\\");
    EXPECT_EQ(reports, 0);
}

TEST(ScriptText, WorkedExampleByteForByte) {
    AnimationScript script;
    script.AppendLine("^1Fl^7ick", "15", "[none]");
    script.AppendLine("", "250", "[none]");
    script.AppendLine(" ^2up", "0", "[none]");
    EXPECT_EQ(BuildScriptText(script, nullptr), Banner() +
                                                    "\r\nset name \"^1Fl^7ick\"\r\nwait 15"
                                                    "\r\nset name \"^7 \"\r\nwait 99"
                                                    "\r\nset name \"^7 ^2up\"\r\nwait 5");
}

TEST(ScriptText, ReportsEveryBadTimeInListOrderAndKeepsTheLines) {
    AnimationScript script;
    script.AppendLine("a", "x", "[none]");
    script.AppendLine("b", "20", "[none]");
    script.AppendLine("c", "", "[none]");
    script.AppendLine("d", "x", "[none]");
    std::vector<std::string> messages;
    const std::string text =
        BuildScriptText(script, [&](const std::string& message) { messages.push_back(message); });
    EXPECT_EQ(messages, (std::vector<std::string>{"no number _x_", "no number __", "no number _x_"}));
    EXPECT_EQ(text, Banner() +
                        "\r\nset name \"a\"\r\nwait 15\r\nset name \"b\"\r\nwait 20"
                        "\r\nset name \"c\"\r\nwait 15\r\nset name \"d\"\r\nwait 15");
    EXPECT_EQ(script.LineAt(1).Time, "x");
    EXPECT_EQ(script.LineAt(3).Time, "");
}

TEST(ScriptText, ActionPlaysNoPartAndTwoRunsAgree) {
    AnimationScript plain;
    AnimationScript odd;
    plain.AppendLine("x", "15", "[none]");
    odd.AppendLine("x", "15", "set name \"evil\"");
    const std::string first = BuildScriptText(plain, nullptr);
    EXPECT_EQ(first, BuildScriptText(odd, nullptr));
    EXPECT_EQ(first, BuildScriptText(plain, nullptr));
}

}  // namespace
}  // namespace flickerscribe
