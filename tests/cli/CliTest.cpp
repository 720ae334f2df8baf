// Runs the real command-line program and checks what it writes and how it ends.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "CliRun.h"

namespace {

namespace stdfs = std::filesystem;
using Cli = flickerscribe::test::CliRun;

void Put(const stdfs::path& path, const std::string& bytes) {
    std::ofstream out(path, std::ios::binary);
    out << bytes;
}

const std::string kBanner =
    "\r\n//--------------------------\\\\"
    "\r\n//----- SCRIPT MADE WITH ---\\\\"
    "\r\n//------ Flickerscribe -----\\\\"
    "\r\n//----- by: [QZT]Quillon ---\\\\"
    "\r\n//--------------------------\\\\"
    "\r\n//-quillon@qzt-clan.example-\\\\"
    "\r\n//--------------------------\\\\";

TEST_F(Cli, GenerateFromAFileOrStandardInput) {
    struct Case {
        std::string input;
        std::string script;
        std::string err;  // one line for each time that is no number, in list order
    };
    const Case cases[] = {
        {"#v050#\r\n", kBanner + "\r\n", ""},
        {"#v050#\r\n^1Hi\r\n0\r\n[none]\r\n^3Bye\r\n250\r\nx\r\n",
         kBanner + "\r\nset name \"^1Hi\"\r\nwait 5\r\nset name \"^3Bye\"\r\nwait 99\r\n", ""},
        {"anything at all\r\n^1Hi\r\n\r\n caf\xE9",
         kBanner + "\r\nset name \"^1Hi\"\r\nwait 15\r\nset name \"^7 \"\r\nwait "
                   "15\r\nset name \"^7 caf\xE9\"\r\nwait 15\r\n",
         ""},
        // Unix line ends, as a Linux editor writes them.
        {"#v050#\n^1Hi\n0\n[none]\n", kBanner + "\r\nset name \"^1Hi\"\r\nwait 5\r\n", ""},
        {"#v050#\r\na\r\nabc\r\n\r\nb\r\n20\r\n\r\nc\r\n\r\n\r\n",
         kBanner +
             "\r\nset name \"a\"\r\nwait 15\r\nset name \"b\"\r\nwait 20\r\nset name \"c\"\r\nwait 15\r\n",
         "no number _abc_\nno number __\n"},
    };
    for (const auto& c : cases) {
        Put(Path("in.fsq"), c.input);
        for (const auto& input : {"in.fsq", "-"}) {
            const flickerscribe::test::CliResult r = Run({"generate", input}, c.input);
            EXPECT_EQ(r.status, 0) << r.err;
            EXPECT_EQ(r.out, c.script) << input;
            EXPECT_EQ(r.err, c.err) << input;
        }
    }
}

TEST_F(Cli, OutputFileIsWrittenAndItsNameMayBeginWithADash) {
    Put(Path("in.fsq"), "#v050#\r\nx\r\n15\r\n[none]\r\n");
    const flickerscribe::test::CliResult r = Run({"generate", "--output", "-dash.cfg", "in.fsq"});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "");
    EXPECT_EQ(Slurp(Path("-dash.cfg")), kBanner + "\r\nset name \"x\"\r\nwait 15\r\n");

    const flickerscribe::test::CliResult equals = Run({"import", "--output=back.fsq", "--", "-dash.cfg"});
    EXPECT_EQ(equals.status, 0) << equals.err;
    EXPECT_EQ(Slurp(Path("back.fsq")), "#v050#\r\nx\r\n15\r\n[none]\r\n");
}

TEST_F(Cli, ImportWritesTheAnimationFile) {
    const std::string fsq =
        "#v050#\r\n^1one\r\n20\r\n[none]\r\n^2two\r\n15\r\n[none]\r\na\r\n15\r\n[none]\r\n";
    // With CR LF line ends, and with Unix ones.
    for (const std::string end : {"\r\n", "\n"}) {
        const std::string script = "// my script" + end + "  set name \"^1one\"; wait 20 ;SET NAME ^2two" +
                                   end + "set name \"a;b\"" + end + "wait x" + end;
        Put(Path("in.cfg"), script);
        for (const auto& args :
             {std::vector<std::string>{"import", "in.cfg"}, std::vector<std::string>{"import", "-"}}) {
            const flickerscribe::test::CliResult r = Run(args, script);
            EXPECT_EQ(r.status, 0) << r.err;
            EXPECT_EQ(r.out, fsq) << testing::PrintToString(end);
        }
    }
}

TEST_F(Cli, RenderRunsListsEveryPaneCharacter) {
    struct Case {
        std::string text;
        std::string listing;
    };
    const Case cases[] = {
        {"^1Fl^7ick", "FF0000\tF\nFF0000\tl\nFFFFFF\ti\nFFFFFF\tc\nFFFFFF\tk\n"},
        {"^2g^3y^4b^5c^6m^8k", "00FF00\tg\nFFFF00\ty\n0000FF\tb\n00FFFF\tc\nFF00FF\tm\n000000\tk\n"},
        {"caf\xC3\xA9",
         "FFFFFF\tc\nFFFFFF\ta\nFFFFFF\tf\nFFFFFF\t\xE9\n"},  // UTF-8 in, one byte out to a pipe
    };
    for (const auto& c : cases) {
        const flickerscribe::test::CliResult r = Run({"render", "--runs", c.text});
        EXPECT_EQ(r.status, 0) << c.text << r.err;
        EXPECT_EQ(r.out, c.listing) << c.text;
    }
}

TEST_F(Cli, RenderPaintsInTerminalColours) {
    const flickerscribe::test::CliResult r = Run({"render", "--", "-^1x"});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "\x1b[48;2;128;128;128m\x1b[38;2;255;255;255m-\x1b[38;2;255;0;0mx\x1b[0m\n");
}

TEST_F(Cli, UsageErrorsEndWithStatusTwo) {
    const std::vector<std::string> cases[] = {
        {},
        {"frob"},
        {"generate"},
        {"generate", "a", "b"},
        {"generate", "--bogus", "in"},
        {"generate", "in", "--output"},
        {"import", "-x"},
        {"render", "--runs=yes", "x"},
        {"render", "-x"},
    };
    for (const auto& args : cases) {
        const flickerscribe::test::CliResult r = Run(args);
        std::string shown;
        for (const auto& a : args) shown += a + " ";
        EXPECT_EQ(r.status, 2) << shown;
        EXPECT_NE(r.err.find("usage: flickerscribe-cli"), std::string::npos) << shown << r.err;
        EXPECT_EQ(r.out, "") << shown;
    }
}

TEST_F(Cli, HelpGoesToStandardOutput) {
    const flickerscribe::test::CliResult overview = Run({"--help"});
    EXPECT_EQ(overview.status, 0);
    for (const char* command : {"generate", "import", "render"}) {
        EXPECT_NE(overview.out.find(std::string("  ") + command), std::string::npos) << command;
    }
    const flickerscribe::test::CliResult command = Run({"generate", "--help"});
    EXPECT_EQ(command.status, 0);
    EXPECT_EQ(command.out.rfind("usage: flickerscribe-cli generate [--output FILE] INPUT\n", 0), 0u)
        << command.out;
}

TEST_F(Cli, FilesThatCantBeReadOrWrittenEndWithStatusOne) {
    stdfs::create_directories(Path("folder"));
    Put(Path("in.fsq"), "#v050#\r\n");
    const std::vector<std::string> cases[] = {
        {"generate", "missing.fsq"},
        {"generate", "folder"},
        {"import", "missing.cfg"},
        {"generate", "--output", "nowhere/out.cfg", "in.fsq"},
        {"import", "--output", "folder", "in.fsq"},
    };
    for (const auto& args : cases) {
        const flickerscribe::test::CliResult r = Run(args);
        EXPECT_EQ(r.status, 1) << args[1];
        EXPECT_NE(r.err.find("flickerscribe-cli: cannot "), std::string::npos) << r.err;
        EXPECT_EQ(r.out, "");
    }
    EXPECT_TRUE(stdfs::is_directory(Path("folder")));
}

TEST_F(Cli, TheLineLimitStopsTheWorkButTheLinesThatStoodAreWritten) {
    std::string list = "names\r\n";
    for (int i = 0; i <= 32767; ++i) list += "n\r\n";  // one name too many
    const flickerscribe::test::CliResult generated = Run({"generate", "-"}, list);
    EXPECT_EQ(generated.status, 3);
    EXPECT_NE(generated.err.find("32767"), std::string::npos);
    std::size_t names = 0;
    for (auto at = generated.out.find("set name"); at != std::string::npos;
         at = generated.out.find("set name", at + 1)) {
        ++names;
    }
    EXPECT_EQ(names, 32767u);

    std::string script;
    for (int i = 0; i <= 32767; ++i) script += "set name n\r\n";
    const flickerscribe::test::CliResult imported = Run({"import", "--output", "out.fsq", "-"}, script);
    EXPECT_EQ(imported.status, 3);
    EXPECT_EQ(Slurp(Path("out.fsq")).size(), 8u + 32767u * 15u);  // "n", "15", "[none]" per line
}

}  // namespace
