#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "document/AnimationScript.h"
#include "document/SafeWrite.h"

namespace flickerscribe {
inline void PrintTo(const SaveError& e, std::ostream* os) {
    *os << e.number << " " << e.text;
}
}  // namespace flickerscribe

namespace flickerscribe::test {

// The program's UTF-8 paths (document/platform/Files.h) as std::filesystem takes them.
inline std::filesystem::path FsPath(const std::string& utf8) {
    return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}
inline std::string Utf8(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

// A fresh temporary folder, removed with all it holds (write permission given
// back first) at the end. Paths in it use '/' on every system.
class TempFolder {
public:
    TempFolder() {
        std::random_device random;
        const auto base = std::filesystem::temp_directory_path();
        for (int attempt = 0; attempt < 100 && path_.empty(); ++attempt) {
            const auto candidate = base / ("fs-test-" + std::to_string(random()));
            if (std::filesystem::create_directory(candidate)) path_ = Utf8(candidate.generic_u8string());
        }
    }
    ~TempFolder() {
        std::error_code ec;
        std::filesystem::permissions(FsPath(path_), std::filesystem::perms::owner_all,
                                     std::filesystem::perm_options::add, ec);
        std::filesystem::remove_all(FsPath(path_), ec);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::string& Path() const { return path_; }
    std::string File(const std::string& name) const { return path_ + "/" + name; }
    // Names of the entries of this folder, or of a folder in it, sorted.
    std::vector<std::string> Entries(const std::string& folder = "") const {
        std::vector<std::string> names;
        for (const auto& e : std::filesystem::directory_iterator(FsPath(File(folder))))
            names.push_back(Utf8(e.path().filename()));
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    std::string path_;
};

inline void WriteBytes(const std::string& path, const std::string& bytes) {
    std::ofstream(FsPath(path), std::ios::binary) << bytes;
}

inline std::string ReadBytes(const std::string& path) {
    std::ifstream in(FsPath(path), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// Every line as "text|time"; an Action other than "[none]" fails the test.
inline std::vector<std::string> Lines(const AnimationScript& s) {
    std::vector<std::string> out;
    for (const AnimationLine& line : s.Lines()) {
        EXPECT_EQ(line.Action, "[none]") << line.Text;
        out.push_back(line.Text + "|" + line.Time);
    }
    return out;
}

// Writes down what a view is told, one word a call: "[+1 +1]" an insertion
// at 1, "[-1 -1]" a removal, "~1" a change, "[R R]" a reset, "s1" a selection.
struct Recorder : ScriptListener {
    std::string log;
    void Say(const std::string& word) { log += (log.empty() ? "" : " ") + word; }
    void AboutToInsert(int i) override { Say("[+" + std::to_string(i)); }
    void Inserted(int i) override { Say("+" + std::to_string(i) + "]"); }
    void AboutToRemove(int i) override { Say("[-" + std::to_string(i)); }
    void Removed(int i) override { Say("-" + std::to_string(i) + "]"); }
    void LineChanged(int i) override { Say("~" + std::to_string(i)); }
    void AboutToReset() override { Say("[R"); }
    void ResetDone() override { Say("R]"); }
    void SelectionChanged(int i) override { Say("s" + std::to_string(i)); }
};

}  // namespace flickerscribe::test
