#pragma once

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace flickerscribe::test {

// A fresh folder under the system's temporary folder, removed with all it
// holds (write permission given back first) when the test ends.
class TempFolder {
public:
    TempFolder() : path_((std::filesystem::temp_directory_path() / "fs-test-XXXXXX").string()) {
        if (::mkdtemp(path_.data()) == nullptr) path_.clear();
    }
    ~TempFolder() {
        std::error_code ec;
        std::filesystem::permissions(path_, std::filesystem::perms::owner_all,
                                     std::filesystem::perm_options::add, ec);
        std::filesystem::remove_all(path_, ec);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::string& Path() const { return path_; }
    std::string File(const std::string& name) const { return path_ + "/" + name; }
    // Names of the entries, sorted.
    std::vector<std::string> Entries() const {
        std::vector<std::string> names;
        for (const auto& e : std::filesystem::directory_iterator(path_)) names.push_back(e.path().filename());
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    std::string path_;
};

inline void WriteBytes(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

inline std::string ReadBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

}  // namespace flickerscribe::test
