// Runs the real command-line program and checks what it writes and how it ends.
#include <gtest/gtest.h>

#include <cstdlib>
#ifdef _WIN32
#include <windows.h>
#else
#include <sys/stat.h>
#include <sys/wait.h>
#endif

#include "TempFolder.h"
#include "script/ScriptText.h"

namespace flickerscribe::test {
namespace {

struct CliResult {
    int status = -1;
    std::string out, err;
};

#ifdef _WIN32
// Runs the program in `dir`, the file "stdin" there on standard input, with a
// wide-character command line and no shell.
CliResult RunCli(const TempFolder& dir, const std::vector<std::string>& args, const std::string& input = "") {
    WriteBytes(dir.File("stdin"), input);
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    const auto open = [&](const char* name, bool output) {
        return CreateFileW(FsPath(dir.File(name)).wstring().c_str(), output ? GENERIC_WRITE : GENERIC_READ,
                           FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                           output ? CREATE_ALWAYS : OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    };
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = open("stdin", false);
    start.hStdOutput = open("stdout", true);
    start.hStdError = open("stderr", true);
    // Read back by CommandLineToArgvW: the tests' arguments hold no quotes and end in no backslash.
    std::wstring line = L"\"" + std::filesystem::path(FS_CLI_PATH).make_preferred().wstring() + L"\"";
    for (const auto& arg : args) line += L" \"" + FsPath(arg).wstring() + L"\"";
    PROCESS_INFORMATION process{};
    DWORD status = static_cast<DWORD>(-1);
    if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr,
                       FsPath(dir.Path()).wstring().c_str(), &start, &process)) {
        WaitForSingleObject(process.hProcess, INFINITE);
        GetExitCodeProcess(process.hProcess, &status);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }
    for (HANDLE h : {start.hStdInput, start.hStdOutput, start.hStdError}) CloseHandle(h);
    return {static_cast<int>(status), ReadBytes(dir.File("stdout")), ReadBytes(dir.File("stderr"))};
}
#else
// Runs the program in `dir`, the file "stdin" there on standard input, or the
// output of `shell`, a command ending in "... | ".
CliResult RunCli(const TempFolder& dir, const std::vector<std::string>& args, const std::string& input = "",
                 const std::string& shell = "") {
    WriteBytes(dir.File("stdin"), input);
    const bool piped = shell.ends_with("| ");
    std::string command = "cd " + dir.Path() + " || exit 9; " + shell + FS_CLI_PATH;
    for (const auto& arg : args) {
        command += " '";
        for (char c : arg) command += c == '\'' ? std::string("'\\''") : std::string(1, c);
        command += "'";
    }
    command += std::string(piped ? "" : " <stdin") + " >stdout 2>stderr";
    const int raw = std::system(command.c_str());
    return {WIFEXITED(raw) ? WEXITSTATUS(raw) : -1, ReadBytes(dir.File("stdout")),
            ReadBytes(dir.File("stderr"))};
}
#endif

std::string Script(const std::string& commands) {
    std::string text;
    for (std::string_view line : kScriptBanner) text.append("\r\n").append(line);
    return text + commands + "\r\n";
}

// The project file of lines that all carry the time and action of an effect.
std::string ProjectFile(const std::vector<std::string>& texts) {
    std::string bytes = "#v050#\r\n";
    for (const auto& text : texts) bytes += text + "\r\n15\r\n[none]\r\n";
    return bytes;
}

const std::string kFsq = "#v050#\r\n^1one\r\n20\r\n[none]\r\na\r\n15\r\n[none]\r\n";

// An output ending in "..." is a beginning; an error is a part of standard
// error (none: empty). A line over 32767 stops with status 3, the rest written.
TEST(Cli, CommandsWriteTheirResultsAndEndWithTheirStatus) {
    TempFolder dir;
    std::string list = "names\r\n", commands;
    for (int i = 1; i <= 32767; ++i) {
        list += "n" + std::to_string(i) + "\r\n";
        commands += "\r\nset name \"n" + std::to_string(i) + "\"\r\nwait 15";
    }
    const std::tuple<std::vector<std::string>, std::string, int, std::string, std::string> cases[] = {
        // clang-format off
        {{"generate", "stdin"}, "#v050#\r\n^1Hi\r\n0\r\n[none]\r\n^3Bye\r\n250\r\nx\r\n", 0,
         Script("\r\nset name \"^1Hi\"\r\nwait 5\r\nset name \"^3Bye\"\r\nwait 99"), ""},
        {{"generate", "-"}, "#v050#\r\na\r\nabc\r\n\r\nb\r\n\r\n\r\n", 0,
         Script("\r\nset name \"a\"\r\nwait 15\r\nset name \"b\"\r\nwait 15"), "no number _abc_\nno number __\n"},
        {{"generate", "--output", "-dash.cfg", "stdin"}, "#v050#\r\n", 0, "", ""},
        {{"import", "-"}, "set name \"^1one\"; wait 20\r\nset name \"a;b\"", 0, kFsq, ""},
        {{"import", "--output=out.fsq", "--", "stdin"}, "set name \"^1one\"; wait 20\nset name \"a;b\"\n", 0, "", ""},
        {{"render", "--runs", "^1F^7i\xC3\xA9"}, "", 0, "FF0000\tF\nFFFFFF\ti\nFFFFFF\t\xE9\n", ""},
        {{"render", "^1ab^2cd"}, "", 0, "\x1b[48;2;128;128;128m\x1b[38;2;255;0;0mab\x1b[38;2;0;255;0mcd\x1b[0m\n", ""},
        {{"effects", "--reverse", "--tag", "-X-", "--name", "f\xC3\xA9", "--effect", "Wave forward"}, "", 0,
         ProjectFile({"^7f ^0-X-", " ^7\xE9^0-X-"}), ""},
        {{"effects", "--name", "K", "--effect", "Bounce", "--param1", "5.9", "--effect", "Wave 2"}, "y\n", 0,
         ProjectFile({"K"}), "Are you sure you want to repeat the BOUNCE EFFECT 5.9 times? Answered no"},
        {{"import", "--help"}, "", 0, "usage: flickerscribe-cli import [--output FILE] INPUT\n...", ""},
        {{"picture", "-"}, kFsq, 0, "GIF89a...", ""},
        {{"picture", "--output", "never.gif", "stdin"}, "#v050#\r\n", 1, "", "there is no animation to draw in stdin"},
        {{"generate", "-"}, list, 0, Script(commands), ""},
        {{"generate", "-"}, list + "one too many\r\n", 3, Script(commands), "at most 32767 lines"},
        {{"generate", "missing.fsq"}, "", 1, "", "flickerscribe-cli: cannot read missing.fsq"},
        {{"generate", "--output", "nowhere/out.cfg", "stdin"}, "", 1, "", "cannot write nowhere/out.cfg"},
        {{"effects", "--output", "."}, "", 1, "", "cannot write ."},
        {{}, "", 2, "", "flickerscribe-cli COMMAND --help\n\nCommands:\n  generate  write the game script"},
        {{"frob"}, "", 2, "", "unknown command frob"},
        {{"generate", "a", "b"}, "", 2, "", "unexpected argument b\nusage: flickerscribe-cli generate"},
        {{"render", "--runs=yes", "x"}, "", 2, "", "takes no value\nusage: flickerscribe-cli render"},
        {{"effects", "--param1", "5", "--effect", "Bounce"}, "", 2, "", "--param1 needs an --effect before it"},
        // A text holds no line break: each becomes a blank, CR LF as one.
        {{"effects", "--tag", "-\r\nX\n", "--name", "f", "--effect", "Wave forward"}, "", 0, ProjectFile({"- X ^7f"}), ""},
        {{"render", "--runs", "a\rb"}, "", 0, "FFFFFF\ta\nFFFFFF\t \nFFFFFF\tb\n", ""},
#ifndef _WIN32  // a Windows command line is wide text: always Unicode, and at most 32767 characters
        {{"effects", "--tag", std::string(32768, 'a'), "--output", "never.fsq"}, "", 2, "", "at most 32767 characters"},
        // What is no UTF-8 is refused by name, and nothing is written.
        {{"effects", "--name", "\xE0\x80\x8D", "--output", "never.fsq"}, "", 2, "", "--name is no valid UTF-8 text"},
        {{"effects", "--tag", "\xC0\x80", "--output", "never.fsq"}, "", 2, "", "--tag is no valid UTF-8 text"},
        {{"effects", "--effect", "Bounce", "--param1", "\xED\xA0\x80", "--output", "never.fsq"}, "", 2, "", "--param1 is no"},
        {{"render", "a\x80"}, "", 2, "", "TEXT is no valid UTF-8 text"},
#endif
        // clang-format on
    };
    for (const auto& [args, input, status, out, err] : cases) {
        std::string shown;
        for (const auto& a : args) shown += a.substr(0, 20) + " ";
        const CliResult r = RunCli(dir, args, input);
        EXPECT_EQ(r.status, status) << shown << r.err;
        if (out.ends_with("...")) {
            EXPECT_TRUE(r.out.starts_with(out.substr(0, out.size() - 3))) << shown << r.out;
        } else {
            EXPECT_EQ(r.out, out) << shown;
        }
        EXPECT_TRUE(err.empty() ? r.err.empty() : r.err.find(err) != std::string::npos) << shown << r.err;
    }
    EXPECT_EQ(ReadBytes(dir.File("-dash.cfg")), Script(""));
    EXPECT_EQ(ReadBytes(dir.File("out.fsq")), kFsq);
    EXPECT_FALSE(std::filesystem::exists(dir.File("never.fsq")));
    EXPECT_FALSE(std::filesystem::exists(dir.File("never.gif")));
}

// A pipe whose writer comes late (as `generate <(command)` names one, and a
// named pipe) is read to its end; neither input nor output is left empty.
TEST(Cli, WaitsForTheWriterOfAPipe) {
#ifdef _WIN32
    GTEST_SKIP() << "Windows has no /dev/stdin and no named pipes in the file system (FIFOs)";
#else
    TempFolder dir;
    ASSERT_EQ(::mkfifo(dir.File("fifo").c_str(), 0600), 0);
    const std::pair<const char*, const char*> cases[] = {{"/dev/stdin", "(sleep 0.2; cat stdin) | "},
                                                         {"fifo", "(sleep 0.3; cat stdin >fifo) & "}};
    for (const auto& [input, shell] : cases) {
        WriteBytes(dir.File("out.cfg"), "old");
        const CliResult r =
            RunCli(dir, {"generate", "--output", "out.cfg", input}, "#v050#\nx\n7\n[none]\n", shell);
        EXPECT_EQ(r.status, 0) << input << r.err;
        EXPECT_EQ(ReadBytes(dir.File("out.cfg")), Script("\r\nset name \"x\"\r\nwait 7")) << input;
    }
#endif
}

}  // namespace
}  // namespace flickerscribe::test
