// What disks and users really hand the file routines: random bytes, a huge
// file, NUL bytes, a file that goes away, a read-only file met by an ordinary
// user, a disk that fills up. Each ends in the routine's own result, never in
// a crash or a half-written file.
#include <grp.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "TempFolder.h"
#include "document/AnimationFile.h"
#include "document/TextFile.h"
#include "script/ConfigImport.h"

namespace flickerscribe {
namespace {

std::string RandomBytes(std::size_t size, unsigned seed) {
    std::mt19937 gen(seed);
    std::string bytes(size, '\0');
    for (char& c : bytes) c = static_cast<char>(gen() & 0xFF);
    return bytes;
}

std::vector<std::string> Texts(const AnimationScript& s) {
    std::vector<std::string> out;
    for (int i = 1; i <= s.Count(); ++i) out.push_back(s.LineAt(i).Text);
    return out;
}

// A plain list: every line but the first is a Text.
std::vector<std::string> PlainListTexts(std::string_view data) {
    std::vector<std::string> out;
    for (std::string_view line : SplitTextLines(data)) out.emplace_back(line);
    if (!out.empty()) out.erase(out.begin());
    return out;
}

using Loader = LoadStatus (*)(const std::string&, AnimationScript&);

TEST(HostileFiles, ArbitraryBytesOpenAsAPlainListAndImportWithoutAWord) {
    const struct {
        const char* name;
        std::string bytes;
    } cases[] = {
        {"random 64 KB", RandomBytes(64 * 1024, 1)},
        {"random 1 MB", RandomBytes(1024 * 1024, 2)},
        {"NUL bytes only", std::string(1000, '\0')},
        {"carriage returns only", std::string(1000, '\r')},
        {"line feeds only", std::string(1000, '\n')},
        {"quotes and semicolons", "set name \"\"\";;;\"\r\nwait \"\";;set name ;\r\n;"},
    };
    for (const auto& c : cases) {
        test::TempFolder dir;
        const std::string path = dir.File("noise");
        test::WriteBytes(path, c.bytes);

        AnimationScript opened;
        EXPECT_EQ(LoadAnimationFile(path, opened), LoadStatus::Loaded) << c.name;
        EXPECT_EQ(Texts(opened), PlainListTexts(c.bytes)) << c.name;

        // The file and its bytes import alike.
        AnimationScript imported, fromBytes;
        const LoadStatus status = ImportFile(path, imported);
        EXPECT_NE(status, LoadStatus::ReadFailed) << c.name;
        EXPECT_EQ(ImportBytes(c.bytes, fromBytes), status) << c.name;
        EXPECT_EQ(Texts(imported), Texts(fromBytes)) << c.name;
    }
}

// About 100 MB in lines of 2600 bytes, each beginning with its number.
std::string HugeFile(const std::string& head) {
    constexpr int kLines = 40000;
    std::string data = head;
    data.reserve(kLines * 2602 + head.size());
    for (int i = 1; i <= kLines; ++i) {
        std::string line = std::to_string(i) + ' ';
        line.resize(2600, 'x');
        data += line + "\r\n";
    }
    return data;
}

TEST(HostileFiles, AHundredMegabyteFileKeepsThe32767FirstLinesAndSaysSo) {
    const std::string bytes = HugeFile("plain list\r\n");
    ASSERT_GT(bytes.size(), 100'000'000u);
    test::TempFolder dir;
    test::WriteBytes(dir.File("huge"), bytes);
    AnimationScript s;
    EXPECT_EQ(LoadAnimationFile(dir.File("huge"), s), LoadStatus::Truncated);
    ASSERT_EQ(s.Count(), kMaxLines);
    EXPECT_EQ(s.LineAt(1).Text.substr(0, 2), "1 ");
    EXPECT_EQ(s.LineAt(kMaxLines).Text.substr(0, 6), "32767 ");
    EXPECT_EQ(s.LineAt(kMaxLines).Text.size(), 2600u);
}

TEST(HostileFiles, NulBytesPassThroughSaveAndOpenUnchanged) {
    using namespace std::string_literals;
    const struct {
        std::string text, time;
    } cases[] = {
        {"\0"s, "15"},
        {"a\0b"s, "\0"s},
        {"\0\0\0"s,
         "1\0"
         "5"s},
        {"^1\0^2\0"s, "abc"},
    };
    for (const auto& c : cases) {
        test::TempFolder dir;
        const std::string path = dir.File("nul.fsq");
        AnimationScript s;
        s.AppendLine(c.text, c.time, "[none]");
        ASSERT_EQ(SaveAnimationFile(path, s), std::nullopt);
        EXPECT_EQ(test::ReadBytes(path), "#v050#\r\n" + c.text + "\r\n" + c.time + "\r\n[none]\r\n");

        AnimationScript back;
        LoadAnimationFile(path, back);
        ASSERT_EQ(back.Count(), 1);
        EXPECT_EQ(back.LineAt(1).Text, c.text);
        EXPECT_EQ(back.LineAt(1).Time, c.time);
    }
}

TEST(HostileFiles, AFileGoneBeforeTheReadLeavesTheListAsItWas) {
    const struct {
        const char* name;
        Loader load;
    } cases[] = {{"Open", LoadAnimationFile}, {"Import", ImportFile}};
    for (const auto& c : cases) {
        test::TempFolder dir;
        const std::string path = dir.File("going");
        test::WriteBytes(path, "#v050#\r\na\r\n15\r\n[none]\r\n");
        ASSERT_TRUE(FileExists(path));
        ASSERT_EQ(std::remove(path.c_str()), 0);  // gone before the read
        AnimationScript s;
        s.AppendLine("old", "15", "[none]");
        EXPECT_EQ(c.load(path, s), LoadStatus::ReadFailed) << c.name;
        EXPECT_EQ(s.Count(), 1) << c.name;
        EXPECT_EQ(s.LineAt(1).Text, "old") << c.name;
    }
}

// Runs `check` in a child process, which may change its user or its view of
// the mounts without touching this process. The check returns what failed
// ("" for nothing) or "skip: why".
void InChild(const std::function<std::string()>& check) {
    int pipeEnds[2];
    ASSERT_EQ(::pipe(pipeEnds), 0);
    const pid_t child = ::fork();
    ASSERT_NE(child, -1);
    if (child == 0) {
        ::close(pipeEnds[0]);
        const std::string result = check();
        [[maybe_unused]] const auto written = ::write(pipeEnds[1], result.data(), result.size());
        ::_exit(0);
    }
    ::close(pipeEnds[1]);
    std::string result;
    char buffer[256];
    for (ssize_t n; (n = ::read(pipeEnds[0], buffer, sizeof buffer)) > 0;)
        result.append(buffer, std::size_t(n));
    ::close(pipeEnds[0]);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "the check crashed";
    if (result.rfind("skip: ", 0) == 0) GTEST_SKIP() << result;
    EXPECT_EQ(result, "");
}

const std::string kOldFile = "#v050#\r\nold\r\n15\r\n[none]\r\n";

// Saves a script over `path` and tells what is wrong with the outcome: the
// save must fail with `error`, the old file stay whole and no other file be
// left in the folder.
std::string SaveMustFail(const test::TempFolder& dir, const std::string& path, int error, int lines) {
    AnimationScript s;
    for (int i = 0; i < lines; ++i) s.AppendLine(std::string(100, 'n'), "15", "[none]");
    const auto result = SaveAnimationFile(path, s);
    std::string wrong;
    if (!result || result->number != error || result->text != std::strerror(error))
        wrong += "not refused with " + std::string(std::strerror(error)) + "; ";
    if (test::ReadBytes(path) != kOldFile) wrong += "old file changed; ";
    if (dir.Entries() != std::vector<std::string>{"anim.fsq"}) wrong += "other files left; ";
    return wrong;
}

TEST(HostileFiles, SaveOverAReadOnlyFileIsRefusedForAnOrdinaryUser) {
    test::TempFolder dir;
    const std::string path = dir.File("anim.fsq");
    test::WriteBytes(path, kOldFile);
    ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
    // The folder is open to anyone: only the file itself says no.
    ASSERT_EQ(::chmod(dir.Path().c_str(), 0777), 0);
    InChild([&]() -> std::string {
        if (::geteuid() == 0) {
            // Root writes any file: become the unprivileged user instead.
            const uid_t nobody = 65534;
            if (::setgroups(0, nullptr) != 0 || ::setgid(nobody) != 0 || ::setuid(nobody) != 0)
                return "skip: no ordinary user to become";
        }
        return SaveMustFail(dir, path, EACCES, 1);
    });
}

TEST(HostileFiles, AFullDiskRefusesTheSaveAndKeepsTheOldFile) {
    test::TempFolder dir;
    InChild([&]() -> std::string {
        // A small disk of its own, seen by this child only.
        if (::unshare(CLONE_NEWNS) != 0 ||
            ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            ::mount("tmpfs", dir.Path().c_str(), "tmpfs", 0, "size=64k") != 0)
            return "skip: no small disk can be made here";
        const std::string path = dir.File("anim.fsq");
        test::WriteBytes(path, kOldFile);
        // About 1 MB of lines on a disk of 64 KB.
        return SaveMustFail(dir, path, ENOSPC, 10000);
    });
}

}  // namespace
}  // namespace flickerscribe
