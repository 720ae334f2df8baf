#include "document/TextFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace flickerscribe {

std::optional<std::string> ReadFileBytes(const std::string& path, FileKinds kinds) {
    if (path.empty()) return std::nullopt;
    // Without O_NONBLOCK a named pipe with no writer would hold the open forever.
    const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) return std::nullopt;
    std::string data;
    bool ok = true;
    struct stat st {};
    if (::fstat(fd, &st) != 0 || S_ISDIR(st.st_mode)) {
        ok = false;
    } else if (!S_ISREG(st.st_mode)) {
        // A pipe or device is read as it comes, waiting for its data.
        ok = kinds == FileKinds::AnyReadable && ::fcntl(fd, F_SETFL, ::fcntl(fd, F_GETFL) & ~O_NONBLOCK) == 0;
    } else if (st.st_size > 0) {
        data.reserve(static_cast<std::size_t>(st.st_size));
    }
    char buffer[1 << 16];
    while (ok) {
        const ssize_t n = ::read(fd, buffer, sizeof buffer);
        if (n > 0) {
            data.append(buffer, static_cast<std::size_t>(n));
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
