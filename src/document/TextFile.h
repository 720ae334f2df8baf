#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fs {

// Reads a whole file as bytes. nullopt when it can't be opened or read
// (no such file, a folder, no right to read).
std::optional<std::string> ReadFileBytes(const std::string& path);

// Cuts file bytes into text lines the way the program's files are read: a line
// ends at a carriage return, and a line feed right behind it belongs to that
// end. A lone line feed is an ordinary character. The end of the data also
// ends a line, so a last line needs no terminator; data that ends with a
// terminator has no empty line behind it. Calls `line` for each line in
// order and stops early when it returns false.
template <typename Fn>
void ForEachTextLine(std::string_view data, Fn&& line) {
    std::size_t start = 0;
    while (start < data.size()) {
        const std::size_t cr = data.find('\r', start);
        const std::size_t end = cr == std::string_view::npos ? data.size() : cr;
        if (!line(data.substr(start, end - start))) return;
        start = end + 1;
        if (cr != std::string_view::npos && start < data.size() && data[start] == '\n') ++start;
    }
}

std::vector<std::string_view> SplitTextLines(std::string_view data);

}  // namespace fs
