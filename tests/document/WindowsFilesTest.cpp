// What Windows does differently from Linux with the program's files: files
// that another program holds open, the read-only attribute, devices and pipes
// by their Windows names, and names outside ASCII.
#include <gtest/gtest.h>

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include "TempFolder.h"
#include "document/AnimationFile.h"
#include "document/TextFile.h"
#include "script/ConfigImport.h"

namespace flickerscribe {
namespace {

std::wstring Wide(const std::string& utf8) {
    return test::FsPath(utf8).wstring();
}

const std::string kOld = "#v050#\r\nold\r\n15\r\n[none]\r\n";
const std::string kNew = "the new content\r\n";

// Another program holds anim.fsq open, sharing it as it says. A save that
// Windows refuses leaves the old file whole and no temporary file behind.
TEST(WindowsFiles, AFileHeldOpenByAnotherProgram) {
    enum Outcome { Refused, Saved, Either };
    const struct {
        DWORD share;      // what the other program shares
        Outcome outcome;  // of the save
        bool readable;    // whether Open can read the file meanwhile
    } cases[] = {
        {0, Refused, false},
        {FILE_SHARE_READ, Refused, true},
        {FILE_SHARE_READ | FILE_SHARE_WRITE, Refused, true},  // but not its deletion, which replacing it is
        // Windows replaces it; Wine refuses to rename over a file that is open.
        {FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, Either, true},
    };
    for (const auto& c : cases) {
        test::TempFolder dir;
        const std::string path = dir.File("anim.fsq");
        test::WriteBytes(path, kOld);
        const HANDLE holder = CreateFileW(Wide(path).c_str(), GENERIC_READ, c.share, nullptr, OPEN_EXISTING,
                                          FILE_ATTRIBUTE_NORMAL, nullptr);
        ASSERT_NE(holder, INVALID_HANDLE_VALUE);
        const auto error = WriteFileSafely(path, kNew);
        EXPECT_EQ(ReadFileBytes(path).has_value(), c.readable) << c.share;
        CloseHandle(holder);
        EXPECT_TRUE(c.outcome == Either || (error == std::nullopt) == (c.outcome == Saved)) << c.share;
        EXPECT_EQ(error, error ? std::optional(SystemError(error->number)) : std::nullopt) << c.share;
        EXPECT_EQ(test::ReadBytes(path), error ? kOld : kNew) << c.share;
        EXPECT_EQ(dir.Entries(), std::vector<std::string>{"anim.fsq"}) << c.share;
    }
}

// A read-only file is refused as a plain write would refuse it, and stays
// read-only; it reads as any file. A hidden file stays hidden when saved.
TEST(WindowsFiles, AReadOnlyFileIsRefused) {
    test::TempFolder dir;
    const std::string path = dir.File("anim.fsq");
    test::WriteBytes(path, kOld);
    ASSERT_TRUE(SetFileAttributesW(Wide(path).c_str(), FILE_ATTRIBUTE_READONLY));
    AnimationScript s;
    s.AppendLine("new", "15", "[none]");
    EXPECT_EQ(SaveAnimationFile(path, s), SystemError(ERROR_ACCESS_DENIED));
    EXPECT_FALSE(SystemError(ERROR_ACCESS_DENIED).text.empty());
    EXPECT_EQ(test::ReadBytes(path), kOld);
    EXPECT_EQ(dir.Entries(), std::vector<std::string>{"anim.fsq"});
    EXPECT_EQ(LoadAnimationFile(path, s), LoadStatus::Loaded);
    EXPECT_TRUE(GetFileAttributesW(Wide(path).c_str()) & FILE_ATTRIBUTE_READONLY);
    ASSERT_TRUE(SetFileAttributesW(Wide(path).c_str(), FILE_ATTRIBUTE_HIDDEN));
    EXPECT_EQ(SaveAnimationFile(path, s), std::nullopt);
    EXPECT_TRUE(GetFileAttributesW(Wide(path).c_str()) & FILE_ATTRIBUTE_HIDDEN);
    EXPECT_EQ(dir.Entries(), std::vector<std::string>{"anim.fsq"});
}

// A user folder named Zoë and a file näme.fsq: saved, opened, imported and
// found under their own names, never through the ANSI code page.
TEST(WindowsFiles, NamesOutsideAscii) {
    test::TempFolder dir;
    const std::string folder = dir.File("Zo\xC3\xAB");
    ASSERT_TRUE(std::filesystem::create_directory(test::FsPath(folder)));
    const std::string fsq = folder + "/n\xC3\xA4me.fsq", cfg = folder + "/\xE2\x82\xAC.cfg";
    AnimationScript s;
    s.AppendLine("^1Zo\xEB", "20", "[none]");  // the text itself is Windows-1252
    ASSERT_EQ(SaveAnimationFile(fsq, s), std::nullopt);
    EXPECT_EQ(dir.Entries("Zo\xC3\xAB"), std::vector<std::string>{"n\xC3\xA4me.fsq"});
    EXPECT_TRUE(FileExists(fsq));
    AnimationScript loaded;
    ASSERT_EQ(LoadAnimationFile(fsq, loaded), LoadStatus::Loaded);
    EXPECT_EQ(test::Lines(loaded), std::vector<std::string>{"^1Zo\xEB|20"});
    ASSERT_EQ(WriteFileSafely(cfg, "set name \"x\"\r\nwait 7\r\n"), std::nullopt);
    ASSERT_EQ(ImportFile(cfg, loaded), LoadStatus::Loaded);
    EXPECT_EQ(test::Lines(loaded), std::vector<std::string>{"x|7"});
    // Bytes that are no UTF-8 name no file.
    EXPECT_EQ(WriteFileSafely(folder + "/\xEB.fsq", kNew), SystemError(ERROR_NO_UNICODE_TRANSLATION));
    EXPECT_FALSE(FileExists(folder + "/\xEB.fsq"));
}

// Only plain files are read and saved over; the command line's inputs and
// outputs may also be devices and pipes.
TEST(WindowsFiles, FoldersDevicesAndPipes) {
    test::TempFolder dir;
    const std::string pipe = "//./pipe/flickerscribe-test-" + std::to_string(GetCurrentProcessId());
    const HANDLE server = CreateNamedPipeW(Wide(pipe).c_str(), PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE, 4, 4096, 4096,
                                           0, nullptr);
    ASSERT_NE(server, INVALID_HANDLE_VALUE);
    const struct {
        std::string path;
        FileKinds kinds;
        bool read;  // whether it reads (as empty data)
    } cases[] = {
        {dir.Path(), FileKinds::PlainOnly, false}, {dir.Path(), FileKinds::AnyKind, false},
        {"NUL", FileKinds::PlainOnly, false},      {"NUL", FileKinds::AnyKind, true},
        {pipe, FileKinds::PlainOnly, false},
    };
    for (const auto& c : cases) {
        const auto data = ReadFileBytes(c.path, c.kinds);
        EXPECT_EQ(data.has_value(), c.read) << c.path;
        EXPECT_EQ(data.value_or(""), "") << c.path;
    }
    CloseHandle(server);
    EXPECT_EQ(WriteFileSafely(dir.Path(), kNew), SystemError(ERROR_ACCESS_DENIED));
    EXPECT_EQ(WriteFileSafely(dir.File("nowhere/anim.fsq"), kNew), SystemError(ERROR_PATH_NOT_FOUND));
    EXPECT_EQ(WriteFileSafely("", kNew), SystemError(ERROR_PATH_NOT_FOUND));
    EXPECT_EQ(WriteFileSafely("NUL", kNew, FileKinds::PlainOnly), SystemError(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(WriteFileSafely("NUL", kNew, FileKinds::AnyKind), std::nullopt);
    EXPECT_TRUE(dir.Entries().empty());
}

}  // namespace
}  // namespace flickerscribe
