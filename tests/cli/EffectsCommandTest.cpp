#include <string>
#include <vector>

#include "CliRun.h"

namespace flickerscribe::test {
namespace {

using Args = std::vector<std::string>;

// The project file of lines that all carry the time and action of an effect.
std::string ProjectFile(const std::vector<std::string>& texts) {
    std::string bytes = "#v050#\r\n";
    for (const auto& text : texts) bytes += text + "\r\n15\r\n[none]\r\n";
    return bytes;
}

std::string Repeated(const std::string& text, int times) {
    return ProjectFile(std::vector<std::string>(static_cast<std::size_t>(times), text));
}

class EffectsCommand : public CliRun {};

TEST_F(EffectsCommand, RunsTheRowsInOrderAndWritesTheAnimationFile) {
    const struct {
        Args args;
        std::string input;
        int status;
        std::string out;
        std::string errPart;  // a piece standard error must hold; empty: nothing at all
    } cases[] = {
        {{"effects", "--name", "^1Ka^2t", "--tag", "^4[QZT]", "--effect", "Wave 2", "--effect", "Bounce",
          "--param1", "1", "--param2", "ignored", "--effect", "Wave 2"},
         "",
         0,
         ProjectFile({"^4[QZT]^1K", "^4[QZT]^1Ka", "^4[QZT]^1Ka^2t", "[QZT]Kat", "K[QZT]at", "Ka[QZT]t",
                      "Kat[QZT]", "Ka[QZT]t", "K[QZT]at", "[QZT]Kat", "^4[QZT]^1Ka^2t", "^4[QZT]^1Ka",
                      "^4[QZT]^1K", "[QZT]K", "[QZT]Ka", "[QZT]Kat"}),
         ""},
        // A value may begin with a dash; UTF-8 comes in as one byte a character.
        {{"effects", "--reverse", "--tag", "-X-", "--name", "caf\xC3\xA9", "--effect", "Wave forward"},
         "",
         0,
         ProjectFile({"^7c   ^0-X-", " ^7a  ^0-X-", "  ^7f ^0-X-", "   ^7\xE9^0-X-"}),
         ""},
        {{"effects"}, "", 0, ProjectFile({}), ""},
        {{"effects", "--name", "K", "--effect", "Bounce", "--param1", "5", "--answer", "yes"},
         "",
         0,
         Repeated("K", 93),
         ""},
        {{"effects", "--name", "K", "--effect", "Bounce", "--param1", "5", "--answer", "no"},
         "",
         0,
         ProjectFile({}),
         ""},
        // Standard input is no terminal here: the question is answered No, and said so.
        {{"effects", "--name", "K", "--effect", "Bounce", "--param1", "5.9", "--effect", "Wave 2"},
         "y\n",
         0,
         ProjectFile({"K"}),
         "Are you sure you want to repeat the BOUNCE EFFECT 5.9 times? Answered no"},
    };
    for (const auto& c : cases) {
        const CliResult r = Run(c.args, c.input);
        EXPECT_EQ(r.status, c.status) << r.err;
        EXPECT_EQ(r.out, c.out);
        if (c.errPart.empty()) {
            EXPECT_EQ(r.err, "");
        } else {
            EXPECT_NE(r.err.find(c.errPart), std::string::npos) << r.err;
        }
    }
}

TEST_F(EffectsCommand, TheLineLimitStopsTheRunAndTheLinesThatStoodAreWritten) {
    const CliResult r = Run({"effects", "--name", "Quillon", "--tag", "[QZT]", "--effect", "Bounce",
                             "--param1", "12", "--answer", "yes", "--output", "out.fsq"});
    EXPECT_EQ(r.status, 3);
    EXPECT_NE(r.err.find("32767"), std::string::npos) << r.err;
    const std::string file = Slurp(Path("out.fsq"));
    const std::string firstTwo = ProjectFile({"[QZT]Quillon", "Q[QZT]uillon"});
    EXPECT_EQ(file.substr(0, firstTwo.size()), firstTwo);
    EXPECT_EQ(file.size(), 8u + 32767u * (12u + 2u + 2u + 2u + 6u + 2u));
}

TEST_F(EffectsCommand, BadArgumentsAndUnwritableFiles) {
    const struct {
        Args args;
        int status;
    } cases[] = {
        {{"effects", "--param1", "5", "--effect", "Bounce"}, 2},
        {{"effects", "--param2", "x"}, 2},
        {{"effects", "--answer", "maybe"}, 2},
        {{"effects", "--name", std::string(32768, 'a')}, 2},
        {{"effects", "--tag", std::string(32768, 'a'), "--output", "never.fsq"}, 2},
        {{"effects", "--name", "K", "--output", "nowhere/out.fsq"}, 1},
    };
    for (const auto& c : cases) {
        const CliResult r = Run(c.args);
        EXPECT_EQ(r.status, c.status) << c.args[1] << ": " << r.err;
        EXPECT_EQ(r.out, "") << c.args[1];
        EXPECT_NE(r.err.find("flickerscribe-cli: "), std::string::npos) << r.err;
    }
    EXPECT_FALSE(std::filesystem::exists(Path("never.fsq")));
}

}  // namespace
}  // namespace flickerscribe::test
