// Windows' own ways with files: files held open by another program, the
// read-only attribute, devices and pipes by their names, names outside ASCII.
#include <gtest/gtest.h>
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

// Another program holds anim.fsq open, sharing it as it says. A refused save
// leaves the old file whole and nothing beside it; Open reads what is shared.
TEST(WindowsFiles, AFileHeldOpenByAnotherProgram) {
    enum Outcome { Refused, Either };  // Windows replaces a file open with delete sharing, Wine refuses
    const std::tuple<DWORD, Outcome, bool> cases[] = {
        {0, Refused, false},
        {FILE_SHARE_READ, Refused, true},
        {FILE_SHARE_READ | FILE_SHARE_WRITE, Refused, true},  // but not its deletion, which replacing it is
        {FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, Either, true},
    };
    for (const auto& [share, outcome, readable] : cases) {
        test::TempFolder dir;
        const std::string path = dir.File("anim.fsq");
        test::WriteBytes(path, kOld);
        const HANDLE holder =
            CreateFileW(Wide(path).c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING, 0, nullptr);
        const auto error = WriteFileSafely(path, kNew);
        EXPECT_EQ(ReadFileBytes(path).has_value(), readable) << share;
        CloseHandle(holder);
        EXPECT_TRUE(outcome == Either || error) << share;
        EXPECT_EQ(error, error ? std::optional(SystemError(error->number)) : std::nullopt) << share;
        EXPECT_EQ(test::ReadBytes(path), error ? kOld : kNew) << share;
        EXPECT_EQ(dir.Entries(), std::vector<std::string>{"anim.fsq"}) << share;
    }
}

// A read-only file is refused as a plain write is, and read; a hidden one stays hidden.
TEST(WindowsFiles, TheFileAttributes) {
    test::TempFolder dir;
    const std::string path = dir.File("anim.fsq");
    test::WriteBytes(path, kOld);
    const auto attributes = [&] { return GetFileAttributesW(Wide(path).c_str()); };
    ASSERT_TRUE(SetFileAttributesW(Wide(path).c_str(), FILE_ATTRIBUTE_READONLY));
    AnimationScript s;
    EXPECT_EQ(WriteFileSafely(path, kNew), SystemError(ERROR_ACCESS_DENIED));
    EXPECT_EQ(LoadAnimationFile(path, s), LoadStatus::Loaded);
    EXPECT_TRUE(attributes() & FILE_ATTRIBUTE_READONLY);
    ASSERT_TRUE(SetFileAttributesW(Wide(path).c_str(), FILE_ATTRIBUTE_HIDDEN));
    EXPECT_EQ(SaveAnimationFile(path, s), std::nullopt);
    EXPECT_TRUE(attributes() & FILE_ATTRIBUTE_HIDDEN);
    EXPECT_EQ(dir.Entries(), std::vector<std::string>{"anim.fsq"});
}

// A user folder named Zoë and files näme.fsq and €.cfg: saved, found,
// opened and imported by their own names, never through the ANSI code page.
TEST(WindowsFiles, NamesOutsideAscii) {
    test::TempFolder dir;
    const std::string folder = dir.File("Zo\xC3\xAB"), fsq = folder + "/n\xC3\xA4me.fsq",
                      cfg = folder + "/\xE2\x82\xAC.cfg";
    ASSERT_TRUE(std::filesystem::create_directory(test::FsPath(folder)));
    AnimationScript s;
    s.AppendLine("^1Zo\xEB", "20", "[none]");  // the text itself is Windows-1252
    ASSERT_EQ(SaveAnimationFile(fsq, s), std::nullopt);
    ASSERT_EQ(WriteFileSafely(cfg, "set name \"x\"\r\nwait 7\r\n"), std::nullopt);
    EXPECT_EQ(dir.Entries("Zo\xC3\xAB"), (std::vector<std::string>{"n\xC3\xA4me.fsq", "\xE2\x82\xAC.cfg"}));
    EXPECT_TRUE(FileExists(fsq));
    ASSERT_EQ(LoadAnimationFile(fsq, s), LoadStatus::Loaded);
    EXPECT_EQ(test::Lines(s), std::vector<std::string>{"^1Zo\xEB|20"});
    ASSERT_EQ(ImportFile(cfg, s), LoadStatus::Loaded);
    EXPECT_EQ(test::Lines(s), std::vector<std::string>{"x|7"});
    EXPECT_EQ(WriteFileSafely(folder + "/\xEB.fsq", kNew), SystemError(ERROR_NO_UNICODE_TRANSLATION));
}

// Only plain files are read and saved over; the command line's inputs and
// outputs may also be devices and pipes. Paths that lead nowhere are refused.
TEST(WindowsFiles, FoldersDevicesAndPipes) {
    test::TempFolder dir;
    const std::string pipe = "//./pipe/flickerscribe-test-" + std::to_string(GetCurrentProcessId());
    const HANDLE server =
        CreateNamedPipeW(Wide(pipe).c_str(), PIPE_ACCESS_DUPLEX, 0, 4, 4096, 4096, 0, nullptr);
    const std::tuple<std::string, FileKinds, bool> reads[] = {{dir.Path(), FileKinds::AnyKind, false},
                                                              {"NUL", FileKinds::PlainOnly, false},
                                                              {"NUL", FileKinds::AnyKind, true},
                                                              {pipe, FileKinds::PlainOnly, false}};
    for (const auto& [path, kinds, read] : reads)
        EXPECT_EQ(ReadFileBytes(path, kinds), read ? std::optional(std::string()) : std::nullopt) << path;
    CloseHandle(server);
    const std::tuple<std::string, FileKinds, int> saves[] = {
        {dir.Path(), FileKinds::AnyKind, ERROR_ACCESS_DENIED},
        {"NUL", FileKinds::PlainOnly, ERROR_INVALID_PARAMETER},
        {"NUL", FileKinds::AnyKind, 0},
        {dir.File("no/a.fsq"), FileKinds::AnyKind, ERROR_PATH_NOT_FOUND},
        {"", FileKinds::AnyKind, ERROR_PATH_NOT_FOUND}};
    for (const auto& [path, kinds, error] : saves)
        EXPECT_EQ(WriteFileSafely(path, kNew, kinds),
                  error ? std::optional(SystemError(error)) : std::nullopt)
            << path;
    EXPECT_TRUE(dir.Entries().empty());
}

}  // namespace
}  // namespace flickerscribe
