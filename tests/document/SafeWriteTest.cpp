#include <gtest/gtest.h>
#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>
#endif

#include <cerrno>
#include <filesystem>

#include "TempFolder.h"
#include "document/SafeWrite.h"

namespace flickerscribe {
namespace {

namespace stdfs = std::filesystem;

const std::string kOld = "old content\r\n";
const std::string kNew = "the new content, longer than the old one\r\n";

#ifndef _WIN32
// The device /dev/NAME; run as root, a node of its own in `dir` (where the
// folder allows devices), so that a broken save can never replace the system's.
std::string Device(const test::TempFolder& dir, const std::string& name, unsigned minor) {
    const std::string node = dir.File(name);
    const int own = ::geteuid() == 0 && ::mknod(node.c_str(), S_IFCHR | 0666, makedev(1, minor)) == 0
                        ? ::open(node.c_str(), O_WRONLY)
                        : -1;
    if (own >= 0) ::close(own);
    return own >= 0 ? node : "/dev/" + name;
}
#endif

// A new file gets what the umask leaves; a replaced one keeps its mode and
// its owner (only root can give a file away; anyone else keeps it anyway).
TEST(WriteFileSafely, KeepsPermissionsAndOwner) {
#ifdef _WIN32
    GTEST_SKIP() << "Windows files have no mode bits and owner (the read-only attribute: WindowsFilesTest)";
#else
    test::TempFolder dir;
    const mode_t mask = ::umask(027);
    const auto error = WriteFileSafely(dir.File("new.cfg"), kNew);
    ::umask(mask);
    ASSERT_EQ(error, std::nullopt);
    EXPECT_EQ(stdfs::status(dir.File("new.cfg")).permissions(), stdfs::perms(0640));
    const uid_t owner = ::geteuid() == 0 ? 65534 : ::geteuid();
    const auto path = dir.File("anim.fsq");
    for (const mode_t mode : {0600u, 0755u, 0604u}) {
        test::WriteBytes(path, kOld);
        ASSERT_EQ(::chmod(path.c_str(), mode) | ::chown(path.c_str(), owner, ::getegid()), 0);
        errno = EIO;  // a stale error number from before must not fail a good save
        ASSERT_EQ(WriteFileSafely(path, kNew), std::nullopt) << std::oct << mode;
        struct stat st {};
        ASSERT_EQ(::stat(path.c_str(), &st), 0);
        EXPECT_EQ(st.st_mode & 07777, mode);
        EXPECT_EQ(st.st_uid, owner);
        ASSERT_EQ(WriteFileSafely(path, "x"), std::nullopt);  // shorter: nothing of the old text stays
        EXPECT_EQ(test::ReadBytes(path), "x");
    }
    EXPECT_EQ(dir.Entries(), (std::vector<std::string>{"anim.fsq", "new.cfg"}));
#endif
}

TEST(WriteFileSafely, WritesThroughSymbolicLinksAndKeepsThem) {
#ifdef _WIN32
    GTEST_SKIP() << "symbolic links on Windows need a privilege that users don't have";
#else
    const struct {
        std::string target;  // of link.fsq; "/" for the absolute path of real/anim.fsq
        bool chain, exists;  // saved through outer.fsq, a link to link.fsq; the file the link names exists
    } cases[] = {
        {"/", false, true},
        {"real/anim.fsq", false, true},
        {"real/anim.fsq", true, true},
        {"/", false, false},
    };
    for (const auto& c : cases) {
        test::TempFolder dir;
        stdfs::create_directory(dir.File("real"));
        const std::string target = c.target == "/" ? dir.File("real/anim.fsq") : c.target;
        const std::string real = target.front() == '/' ? target : dir.File(target);
        if (c.exists) test::WriteBytes(real, kOld);
        stdfs::create_symlink(target, dir.File("link.fsq"));
        if (c.chain) stdfs::create_symlink("link.fsq", dir.File("outer.fsq"));
        ASSERT_EQ(WriteFileSafely(dir.File(c.chain ? "outer.fsq" : "link.fsq"), kNew), std::nullopt)
            << c.target;
        EXPECT_EQ(stdfs::read_symlink(dir.File("link.fsq")).string(), target) << c.target;
        EXPECT_EQ(stdfs::is_symlink(dir.File("outer.fsq")), c.chain) << c.target;
        EXPECT_EQ(test::ReadBytes(real), kNew) << c.target;
        // No temporary file is left: the links, real/ and the file are all there is.
        EXPECT_EQ(dir.Entries().size() + dir.Entries("real").size(), 3u + c.chain) << c.target;
    }
#endif
}

TEST(WriteFileSafely, AWriteBrokenOffHalfWayLeavesTheOldFileWhole) {
#ifdef _WIN32
    const std::pair<std::size_t, int> cases[] = {
        {0, ERROR_DISK_FULL}, {kNew.size() / 2, ERROR_HANDLE_DISK_FULL}, {kNew.size(), ERROR_WRITE_FAULT}};
#else
    const std::pair<std::size_t, int> cases[] = {{0, ENOSPC}, {kNew.size() / 2, EDQUOT}, {kNew.size(), EIO}};
#endif
    for (const bool oldFile : {true, false}) {
        for (const auto& [after, error] : cases) {
            test::TempFolder dir;
            const auto path = dir.File("anim.fsq");
            if (oldFile) test::WriteBytes(path, kOld);
            write_seam::FailNextWriteAfter(after, error);
            EXPECT_EQ(WriteFileSafely(path, kNew), SystemError(error)) << after;
            EXPECT_EQ(test::ReadBytes(path), oldFile ? kOld : "") << after;
            EXPECT_EQ(dir.Entries().size(), oldFile ? 1u : 0u) << after;
            EXPECT_EQ(WriteFileSafely(path, kNew), std::nullopt);  // the failure was for one write only
            EXPECT_EQ(test::ReadBytes(path), kNew);
        }
    }
    write_seam::FailNextWriteAfter(0, cases[0].second);
    write_seam::Reset();
#ifndef _WIN32
    // Started without standard input, the program gets descriptor 0 for a file.
    const int input = ::dup(0);
    ::close(0);
    test::TempFolder dir;
    EXPECT_EQ(WriteFileSafely(dir.File("anim.fsq"), kNew), std::nullopt);
    EXPECT_EQ(ReadFileBytes(dir.File("anim.fsq")), kNew);
    EXPECT_EQ(WriteFileSafely(Device(dir, "null", 3), kNew, FileKinds::AnyKind), std::nullopt);
    ::dup2(input, 0);
    ::close(input);
#endif
}

// Beside anim.fsq, a folder, a link to itself and an unread pipe: nothing
// changes, nothing waits. A device is written in place unless a plain file is asked.
TEST(WriteFileSafely, RefusesWhatCannotBeWrittenAndTouchesNothing) {
#ifdef _WIN32
    GTEST_SKIP()
        << "named pipes in the file system, symbolic links and /dev: Windows' own in WindowsFilesTest";
#else
    constexpr auto kAny = FileKinds::AnyKind, kPlain = FileKinds::PlainOnly;
    test::TempFolder devices;
    const std::string null = Device(devices, "null", 3), full = Device(devices, "full", 7);
    const std::tuple<std::string, FileKinds, int> cases[] = {
        // clang-format off
        {"sub", kAny, EISDIR}, {"nowhere/anim.fsq", kAny, ENOENT}, {"anim.fsq/x", kAny, ENOTDIR},
        {"loop", kAny, ELOOP}, {"", kAny, ENOENT}, {full, kAny, ENOSPC}, {null, kAny, 0},
        {"pipe", kAny, ENXIO}, {"pipe", kPlain, EINVAL}, {null, kPlain, EINVAL},
        // clang-format on
    };
    for (const auto& [target, kinds, error] : cases) {
        test::TempFolder dir;
        test::WriteBytes(dir.File("anim.fsq"), kOld);
        stdfs::create_directory(dir.File("sub"));
        stdfs::create_symlink("loop", dir.File("loop"));
        ASSERT_EQ(::mkfifo(dir.File("pipe").c_str(), 0600), 0);
        errno = EIO;  // a stale error number from before must not fail a good save
        const auto outcome =
            WriteFileSafely(target.empty() || target[0] == '/' ? target : dir.File(target), kNew, kinds);
        EXPECT_EQ(outcome.value_or(SaveError{}).number, error) << target;
        EXPECT_EQ(test::ReadBytes(dir.File("anim.fsq")), kOld) << target;
        EXPECT_EQ(dir.Entries(), (std::vector<std::string>{"anim.fsq", "loop", "pipe", "sub"})) << target;
        EXPECT_TRUE(stdfs::is_empty(dir.File("sub"))) << target;
    }
    EXPECT_TRUE(stdfs::is_character_file(null));
#endif
}

}  // namespace
}  // namespace flickerscribe
