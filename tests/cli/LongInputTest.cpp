// The command-line program at the edge of what it takes: a text of 32767
// characters and a list of 32767 lines.
#include <gtest/gtest.h>

#include <string>

#include "CliRun.h"

namespace {

using LongInput = flickerscribe::test::CliRun;

std::size_t Count(const std::string& haystack, const std::string& needle) {
    std::size_t n = 0;
    for (auto at = haystack.find(needle); at != std::string::npos; at = haystack.find(needle, at + 1)) ++n;
    return n;
}

TEST_F(LongInput, RenderListsEveryCharacterOfA32767CharacterText) {
    const struct {
        const char* name;
        std::string text;
        std::string line;  // what every listed character looks like
        std::size_t shown;
    } cases[] = {
        {"plain", std::string(32767, 'a'), "FFFFFF\ta\n", 32767},
        {"coloured", "^1" + std::string(32765, 'b'), "FF0000\tb\n", 32765},
        {"a code every other character",
         [] {
             std::string t;
             while (t.size() + 3 <= 32767) t += "^2c";
             return t;
         }(),
         "00FF00\tc\n", 32766 / 3},
    };
    for (const auto& c : cases) {
        ASSERT_LE(c.text.size(), 32767u) << c.name;
        const flickerscribe::test::CliResult r = Run({"render", "--runs", c.text});
        EXPECT_EQ(r.status, 0) << c.name << r.err;
        EXPECT_EQ(r.out.size(), c.shown * c.line.size()) << c.name;
        EXPECT_EQ(Count(r.out, c.line), c.shown) << c.name;
    }
}

TEST_F(LongInput, GenerateWritesAll32767LinesWithoutAWord) {
    std::string list = "names\r\n";
    for (int i = 1; i <= 32767; ++i) list += "n" + std::to_string(i) + "\r\n";
    const flickerscribe::test::CliResult r = Run({"generate", "-"}, list);
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.err, "");
    EXPECT_EQ(Count(r.out, "set name"), 32767u);
    EXPECT_EQ(Count(r.out, "wait 15"), 32767u);
    EXPECT_NE(r.out.find("set name \"n32767\"\r\nwait 15"), std::string::npos);
}

}  // namespace
