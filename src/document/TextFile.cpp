#include "document/TextFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>

namespace flickerscribe {

std::optional<std::string> ReadFileBytes(const std::string& path, FileKinds kinds) {
    if (path.empty()) return std::nullopt;
    // For plain files only, O_NONBLOCK keeps a named pipe with no writer from
    // holding the open forever. The command line waits for the writer instead:
    // opened without a writer, a pipe would read as empty at once.
    const int flags =
        kinds == FileKinds::PlainOnly ? O_RDONLY | O_NONBLOCK | O_CLOEXEC : O_RDONLY | O_CLOEXEC;
    const int fd = ::open(path.c_str(), flags);
    if (fd < 0) return std::nullopt;
    std::string data;
    struct stat st {};
    bool ok = ::fstat(fd, &st) == 0 && !S_ISDIR(st.st_mode) &&
              (S_ISREG(st.st_mode) || kinds == FileKinds::AnyKind) &&
              static_cast<std::uintmax_t>(st.st_size) <= kMaxFileBytes;
    if (ok && st.st_size > 0) data.reserve(static_cast<std::size_t>(st.st_size));
    char buffer[1 << 16];
    while (ok) {
        const ssize_t n = ::read(fd, buffer, sizeof buffer);
        if (n > 0) {
            data.append(buffer, static_cast<std::size_t>(n));
            ok = data.size() <= kMaxFileBytes;  // a pipe or a growing file
        } else if (n == 0) {
            break;
        } else if (errno != EINTR) {
            ok = false;  // an I/O error: what was read so far is no file
        }
    }
    ::close(fd);
    if (!ok) return std::nullopt;
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

}  // namespace flickerscribe
