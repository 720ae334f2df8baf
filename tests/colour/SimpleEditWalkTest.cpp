#include <gtest/gtest.h>

#include "colour/SimpleEditWalk.h"

namespace flickerscribe {
namespace {

constexpr Colour kRed = Rgb(255, 0, 0);
constexpr Colour kGreen = Rgb(0, 255, 0);
constexpr Colour kBlue = Rgb(0, 0, 255);
constexpr Colour kDarkRed = Rgb(128, 0, 0);  // outside the palette

struct WalkCase {
    const char* name;
    std::vector<ColouredRun> runs;
    std::vector<std::string> lines;
    friend void PrintTo(const WalkCase& c, std::ostream* os) { *os << c.name; }
};

// The colour that a pane gives its line breaks is of no account, so the breaks
// below carry colours that would change the result if they were looked at.
const WalkCase kCases[] = {
    {"worked example, breaks as runs of their own",
     {{"ab", kRed},
      {"\n", kBlue},
      {"cd", kRed},
      {"e", kGreen},
      {"\n", kBlack},
      {"   ", kGreen},
      {"\n\n", kBlue},
      {"f", kWhite}},
     {"^1ab", "cd^2e", "^7f"}},
    {"worked example, breaks inside the runs",
     {{"ab\ncd", kRed}, {"e\n   \n\n", kGreen}, {"f", kWhite}},
     {"^1ab", "cd^2e", "^7f"}},
    {"worked example with the blank line in white",
     {{"ab\ncd", kRed}, {"e\n", kGreen}, {"   \n\nf", kWhite}},
     {"^1ab", "cd^2e", "^7   ", "f"}},
    {"never painted text is black", {{"plain", kBlack}}, {"^8plain"}},
    {"white at the very start needs no code", {{"plain", kWhite}}, {"plain"}},
    {"empty pane", {}, {}},
    {"white blanks and empty lines only", {{"  \n\n   \n", kWhite}}, {}},
    {"blank line in a new colour is kept and passes the colour on",
     {{"a\n", kRed}, {"  \nb", kGreen}},
     {"^1a", "^2  ", "b"}},
    {"blank line in the running colour is skipped",
     {{"a\n", kRed}, {"  ", kRed}, {"\nb", kGreen}},
     {"^1a", "^2b"}},
    {"empty lines leave the colour as it was", {{"a\n\n\nb", kRed}}, {"^1a", "b"}},
    {"no break gives one line", {{"x", kRed}, {"y", kGreen}}, {"^1x^2y"}},
    {"break at the very end adds nothing", {{"x\n", kRed}}, {"^1x"}},
    {"typed carets and digits are plain characters", {{"^9", kGreen}, {"^", kWhite}}, {"^2^9^7^"}},
    {"colours are compared as values, not digits", {{"x", kDarkRed}, {"y", kWhite}}, {"^7x^7y"}},
    {"leading blanks before text are kept", {{"  a  ", kWhite}}, {"  a  "}},
    {"neighbouring runs of one colour give one code", {{"ab", kRed}, {"cd", kRed}}, {"^1abcd"}},
    {"empty runs change nothing", {{"a", kRed}, {"", kGreen}, {"b", kRed}}, {"^1ab"}},
};

class SimpleEditWalk : public testing::TestWithParam<WalkCase> {};

TEST_P(SimpleEditWalk, SplitsPaneIntoCodedLines) {
    EXPECT_EQ(SplitColouredLines(GetParam().runs), GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(Cases, SimpleEditWalk, testing::ValuesIn(kCases),
                         [](const testing::TestParamInfo<WalkCase>& info) {
                             std::string name;
                             for (const char* c = info.param.name; *c != '\0'; ++c) {
                                 const bool alnum = (*c >= 'a' && *c <= 'z') || (*c >= 'A' && *c <= 'Z') ||
                                                    (*c >= '0' && *c <= '9');
                                 name += alnum ? *c : '_';
                             }
                             return name;
                         });

}  // namespace
}  // namespace flickerscribe
