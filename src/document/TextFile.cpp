#include "document/TextFile.h"

#include <cstdio>
#include <memory>

namespace fs {

std::optional<std::string> ReadFileBytes(const std::string& path) {
    if (path.empty()) return std::nullopt;
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), &std::fclose);
    if (!file) return std::nullopt;
    std::string data;
    char buffer[1 << 16];
    for (;;) {
        const std::size_t n = std::fread(buffer, 1, sizeof buffer, file.get());
        data.append(buffer, n);
        if (n < sizeof buffer) break;
    }
    // A folder opens on some systems but can't be read.
    if (std::ferror(file.get())) return std::nullopt;
    return data;
}

std::vector<std::string_view> SplitTextLines(std::string_view data) {
    std::vector<std::string_view> lines;
    ForEachTextLine(data, [&](std::string_view l) {
        lines.push_back(l);
        return true;
    });
    return lines;
}

}  // namespace fs
