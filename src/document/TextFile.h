#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace flickerscribe {

// Which files a read or a write takes.
enum class FileKinds {
    PlainOnly,  // regular files; a folder, pipe, device or socket is refused at once
    AnyKind,    // also pipes and devices (the command line's inputs and outputs)
};

// The most a file read may hold: a larger file is refused before it is read,
// so that no file can take more memory than the program has.
inline constexpr std::size_t kMaxFileBytes = std::size_t{256} << 20;

// Reads a whole file as bytes. nullopt when it can't be opened or read to its
// end (no such file, no right to read, an I/O error half way), when it holds
// more than kMaxFileBytes, or, for PlainOnly, when it is no regular file.
// PlainOnly never waits for a pipe's writer; AnyKind waits for the writer of
// a named pipe and reads to its end.
std::optional<std::string> ReadFileBytes(const std::string& path, FileKinds kinds = FileKinds::PlainOnly);

// Cuts file bytes into text lines the way the program's files are read: a line
// ends at a carriage return, and a line feed right behind it belongs to that
// end; a lone line feed is then an ordinary character. Data that holds no
// carriage return at all but holds line feeds has Unix line ends: there a line
// ends at each line feed. The end of the data also ends a line, so a last
// line needs no terminator; data that ends with a terminator has no empty line
// behind it. Calls `line` for each line in order and stops early when it
// returns false.
template <typename Fn>
void ForEachTextLine(std::string_view data, Fn&& line) {
    const char terminator = data.find('\r') == std::string_view::npos ? '\n' : '\r';
    std::size_t start = 0;
    while (start < data.size()) {
        const std::size_t found = data.find(terminator, start);
        const std::size_t end = found == std::string_view::npos ? data.size() : found;
        if (!line(data.substr(start, end - start))) return;
        start = end + 1;
        if (terminator == '\r' && found != std::string_view::npos && start < data.size() &&
            data[start] == '\n')
            ++start;
    }
}

std::vector<std::string_view> SplitTextLines(std::string_view data);

}  // namespace flickerscribe
