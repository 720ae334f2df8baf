#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

#include "TempFolder.h"
#include "document/SafeWrite.h"

namespace flickerscribe {
namespace {

namespace stdfs = std::filesystem;

mode_t ModeOf(const std::string& path) {
    struct stat st {};
    ::stat(path.c_str(), &st);
    return st.st_mode & 07777;
}

const std::string kOld = "old content\r\n";
const std::string kNew = "the new content, longer than the old one\r\n";

TEST(WriteFileSafely, CreatesANewFileWithTheUsualPermissions) {
    test::TempFolder dir;
    const mode_t mask = ::umask(027);
    const auto error = WriteFileSafely(dir.File("new.cfg"), kNew);
    ::umask(mask);
    ASSERT_EQ(error, std::nullopt);
    EXPECT_EQ(test::ReadBytes(dir.File("new.cfg")), kNew);
    EXPECT_EQ(ModeOf(dir.File("new.cfg")), 0640u);
    EXPECT_EQ(dir.Entries(), std::vector<std::string>{"new.cfg"});
}

TEST(WriteFileSafely, ReplacesAFileAndKeepsItsPermissions) {
    for (const mode_t mode : {0600u, 0640u, 0755u, 0604u}) {
        test::TempFolder dir;
        const auto path = dir.File("anim.fsq");
        test::WriteBytes(path, kOld);
        ASSERT_EQ(::chmod(path.c_str(), mode), 0);
        ASSERT_EQ(WriteFileSafely(path, kNew), std::nullopt) << std::oct << mode;
        EXPECT_EQ(test::ReadBytes(path), kNew);
        EXPECT_EQ(ModeOf(path), mode) << std::oct << mode;
        // A shorter text leaves nothing of the old one behind.
        ASSERT_EQ(WriteFileSafely(path, "x"), std::nullopt);
        EXPECT_EQ(test::ReadBytes(path), "x");
        EXPECT_EQ(dir.Entries(), std::vector<std::string>{"anim.fsq"});
    }
}

TEST(WriteFileSafely, WritesThroughSymbolicLinksAndKeepsThem) {
    const struct {
        const char* name;
        bool relative;
        bool chain;     // a link to a link to the file
        bool dangling;  // the file the link names doesn't exist yet
    } cases[] = {
        {"absolute link", false, false, false},
        {"relative link", true, false, false},
        {"chain of links", true, true, false},
        {"link to a file still to be made", false, false, true},
    };
    for (const auto& c : cases) {
        test::TempFolder dir;
        stdfs::create_directory(dir.File("real"));
        const auto real = dir.File("real/anim.fsq");
        if (!c.dangling) test::WriteBytes(real, kOld);
        const std::string linkTarget = c.relative ? "real/anim.fsq" : real;
        stdfs::create_symlink(linkTarget, dir.File("link.fsq"));
        std::string path = dir.File("link.fsq");
        if (c.chain) {
            stdfs::create_symlink("link.fsq", dir.File("outer.fsq"));
            path = dir.File("outer.fsq");
        }
        ASSERT_EQ(WriteFileSafely(path, kNew), std::nullopt) << c.name;
        EXPECT_TRUE(stdfs::is_symlink(dir.File("link.fsq"))) << c.name;
        EXPECT_EQ(stdfs::read_symlink(dir.File("link.fsq")).string(), linkTarget) << c.name;
        EXPECT_EQ(stdfs::is_symlink(dir.File("outer.fsq")), c.chain) << c.name;
        EXPECT_EQ(test::ReadBytes(real), kNew) << c.name;
        std::vector<std::string> realEntries;
        for (const auto& e : stdfs::directory_iterator(dir.File("real")))
            realEntries.push_back(e.path().filename());
        EXPECT_EQ(realEntries, std::vector<std::string>{"anim.fsq"}) << c.name;
    }
}

TEST(WriteFileSafely, AWriteBrokenOffHalfWayLeavesTheOldFileWhole) {
    const struct {
        std::size_t after;
        int error;
    } cases[] = {
        {0, ENOSPC}, {1, EIO}, {kNew.size() / 2, ENOSPC}, {kNew.size() - 1, EDQUOT}, {kNew.size(), EIO},
    };
    for (const bool oldFile : {true, false}) {
        for (const auto& c : cases) {
            test::TempFolder dir;
            const auto path = dir.File("anim.fsq");
            if (oldFile) test::WriteBytes(path, kOld);
            write_seam::FailNextWriteAfter(c.after, c.error);
            const auto error = WriteFileSafely(path, kNew);
            ASSERT_TRUE(error.has_value()) << c.after;
            EXPECT_EQ(*error, (SaveError{c.error, std::strerror(c.error)})) << c.after;
            if (oldFile) {
                EXPECT_EQ(test::ReadBytes(path), kOld) << c.after;
                EXPECT_EQ(dir.Entries(), std::vector<std::string>{"anim.fsq"}) << c.after;
            } else {
                EXPECT_TRUE(dir.Entries().empty()) << c.after;
            }
            // The failure was for one write only.
            EXPECT_EQ(WriteFileSafely(path, kNew), std::nullopt);
            EXPECT_EQ(test::ReadBytes(path), kNew);
        }
    }
}

TEST(WriteFileSafely, RefusesWhatCannotBeWrittenAndTouchesNothing) {
    test::TempFolder probe;
    ::chmod(probe.Path().c_str(), 0555);
    const bool writesAnything = ::access(probe.Path().c_str(), W_OK) == 0;
    const struct {
        const char* name;
        const char* target;  // in a folder holding anim.fsq (old content) and an empty folder "sub"
        mode_t folderMode, fileMode;
        int error;
    } cases[] = {
        {"a folder", "sub", 0755, 0644, EISDIR},
        {"a missing folder", "nowhere/anim.fsq", 0755, 0644, ENOENT},
        {"read-only folder", "anim.fsq", 0555, 0644, EACCES},
        {"read-only file", "anim.fsq", 0755, 0444, EACCES},
    };
    for (const auto& c : cases) {
        if (c.error == EACCES && writesAnything) continue;  // this user may write anything
        test::TempFolder dir;
        const auto path = dir.File("anim.fsq");
        test::WriteBytes(path, kOld);
        stdfs::create_directory(dir.File("sub"));
        ASSERT_EQ(::chmod(path.c_str(), c.fileMode), 0);
        ASSERT_EQ(::chmod(dir.Path().c_str(), c.folderMode), 0);
        const auto error = WriteFileSafely(dir.File(c.target), kNew);
        EXPECT_EQ(error, (SaveError{c.error, std::strerror(c.error)})) << c.name;
        EXPECT_EQ(test::ReadBytes(path), kOld) << c.name;
        EXPECT_EQ(dir.Entries(), (std::vector<std::string>{"anim.fsq", "sub"})) << c.name;
        EXPECT_TRUE(stdfs::is_empty(dir.File("sub"))) << c.name;
    }
    EXPECT_EQ(WriteFileSafely("", kNew), (SaveError{ENOENT, std::strerror(ENOENT)}));
}

TEST(WriteFileSafely, WritesADeviceInPlace) {
    ASSERT_EQ(WriteFileSafely("/dev/null", kNew), std::nullopt);
    EXPECT_TRUE(stdfs::is_character_file("/dev/null"));
}

}  // namespace
}  // namespace flickerscribe
