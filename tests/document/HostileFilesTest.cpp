// What disks and users hand the file routines (pipes, devices, I/O errors,
// read-only files, signals) ends in their own result, never a half-written file.
#include <gtest/gtest.h>
#ifndef _WIN32
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

#include <cerrno>
#include <csignal>
#include <random>

#include "TempFolder.h"
#include "document/AnimationFile.h"
#include "document/TextFile.h"
#include "script/ConfigImport.h"

namespace flickerscribe {
namespace {

// Only a plain file read to its end replaces the lines, in one reset for the
// view; anything else (an I/O error, a file too large) leaves them alone.
TEST(HostileFiles, OnlyAFileReadWholeReplacesTheLines) {
    test::TempFolder dir;
    test::WriteBytes(dir.File("one"), "#v050#\r\nset name a\r\n15\r\n[none]\r\n");
    test::WriteBytes(dir.File("zero"), "");
    test::WriteBytes(dir.File("gone"), "#v050#\r\n");
    ASSERT_TRUE(FileExists(dir.File("gone")));
    std::filesystem::remove(test::FsPath(dir.File("gone")));
#ifndef _WIN32
    ASSERT_EQ(::mkfifo(dir.File("pipe").c_str(), 0600), 0);
#endif
    // More than the program reads, but sparse: no disk is taken.
    test::WriteBytes(dir.File("huge"), "#v050#\r\n");
    std::filesystem::resize_file(test::FsPath(dir.File("huge")), kMaxFileBytes + 1);
    const std::tuple<std::string, bool, int> cases[] = {
        // path, exists, lines (-1: the old line stays)
        // clang-format off
        {dir.File("one"), true, 1}, {dir.File("zero"), true, 0}, {dir.File("gone"), false, -1}, {dir.Path(), false, -1},
        {"", false, -1}, {dir.File("huge"), true, -1},
#ifdef _WIN32
        {"NUL", true, -1},  // a device
#else
        {dir.File("pipe"), true, -1}, {"/dev/zero", true, -1}, {"/proc/self/mem", true, -1},
#endif
        // clang-format on
    };
    for (const auto& [path, exists, lines] : cases) {
        EXPECT_EQ(FileExists(path), exists) << path;
        for (const auto load : {LoadAnimationFile, ImportFile}) {
            AnimationScript s;
            s.AppendLine("old", "15", "[none]");
            test::Recorder view;
            s.SetListener(&view);
            EXPECT_EQ(load(path, s), lines < 0 ? LoadStatus::ReadFailed : LoadStatus::Loaded) << path;
            EXPECT_EQ(s.Count(), lines < 0 ? 1 : lines) << path;
            EXPECT_EQ(view.log, lines < 0 ? "" : lines ? "[R R] s1" : "[R R] s0") << path;
        }
    }
}

#ifdef _WIN32
// Windows' counterparts are in WindowsFilesTest.cpp.
TEST(HostileFiles, AnOrdinaryUserCantWriteAReadOnlyFileNorReadAnUnreadableOne) {
    GTEST_SKIP() << "POSIX permission bits and users: Windows files have neither";
}
TEST(HostileFiles, WritesThatASignalCutsShortGoOnWhereTheyStopped) {
    GTEST_SKIP() << "Windows has no signals that cut a write short, and no named pipes in the file system";
}
#else
const std::string kOldFile = "#v050#\r\nold\r\n15\r\n[none]\r\n";

// A save refused for want of rights leaves anim.fsq whole and no file beside
// it; run as root, the test takes an unprivileged user's rights for a while.
TEST(HostileFiles, AnOrdinaryUserCantWriteAReadOnlyFileNorReadAnUnreadableOne) {
    test::TempFolder open, closed;  // where only the file says no, and where the folder does
    for (const auto* dir : {&open, &closed}) test::WriteBytes(dir->File("anim.fsq"), kOldFile);
    test::WriteBytes(open.File("secret"), kOldFile);
    ASSERT_EQ(::chmod(open.File("anim.fsq").c_str(), 0444) | ::chmod(open.File("secret").c_str(), 0) |
                  ::chmod(open.Path().c_str(), 0777) | ::chmod(closed.Path().c_str(), 0555),
              0);
    const bool root = ::geteuid() == 0;
    if (root && (::setresgid(65534, 65534, 0) != 0 || ::setresuid(65534, 65534, 0) != 0))
        GTEST_SKIP() << "no ordinary user to become";
    AnimationScript s;
    s.AppendLine("new", "15", "[none]");
    for (const auto& [dir, name] : {std::pair(&open, "anim.fsq"), std::pair(&closed, "new.fsq")}) {
        const auto entries = dir->Entries();
        EXPECT_EQ(SaveAnimationFile(dir->File(name), s).value_or(SaveError{}).number, EACCES) << name;
        EXPECT_EQ(test::ReadBytes(dir->File("anim.fsq")), kOldFile) << name;
        EXPECT_EQ(dir->Entries(), entries) << name;
    }
    EXPECT_FALSE(FileExists(open.File("secret")));
    EXPECT_EQ(LoadAnimationFile(open.File("secret"), s), LoadStatus::ReadFailed);
    EXPECT_EQ(root ? ::setresuid(0, 0, 0) | ::setresgid(0, 0, 0) : 0, 0);
}

// A pipe is written in place. A signal cuts a blocked write short; the write
// goes on where it stopped, so the reader gets every byte once, in order.
TEST(HostileFiles, WritesThatASignalCutsShortGoOnWhereTheyStopped) {
    test::TempFolder dir;
    const std::string pipe = dir.File("pipe");
    std::string bytes(1 << 20, '\0');
    std::mt19937 random(3);
    for (char& c : bytes) c = static_cast<char>(random());
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    const int keepOpen =
        ::open(pipe.c_str(), O_RDONLY | O_NONBLOCK);  // so that the writer's open goes through
    const pid_t child = ::fork();
    if (child == 0) {  // waits for the writer, then reads slowly, so that the writer blocks
        const int reader = ::open(pipe.c_str(), O_RDONLY);
        std::string got;
        char buffer[4096];
        for (ssize_t n; (n = ::read(reader, buffer, sizeof buffer)) > 0; ::usleep(20)) got.append(buffer, n);
        ::_exit(got == bytes ? 0 : 1);
    }
    struct sigaction tick {
    }, old{};
    tick.sa_handler = [](int) {};  // without SA_RESTART
    ::sigaction(SIGALRM, &tick, &old);
    itimerval every{{0, 200}, {0, 200}}, off{};
    ::setitimer(ITIMER_REAL, &every, nullptr);
    EXPECT_EQ(WriteFileSafely(pipe, bytes, FileKinds::AnyKind), std::nullopt);
    ::setitimer(ITIMER_REAL, &off, nullptr);
    ::sigaction(SIGALRM, &old, nullptr);
    ::close(keepOpen);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "the reader got other bytes";
}
#endif

}  // namespace
}  // namespace flickerscribe
