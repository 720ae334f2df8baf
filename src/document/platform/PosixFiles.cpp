// The core's files on Linux and other POSIX systems: a save that writes a
// temporary file beside the target, syncs it and renames it into place
// (following symbolic links, keeping mode, owner and group), and reads that
// never wait for a pipe's writer unless the caller takes pipes.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstring>

#include "document/platform/Files.h"

namespace flickerscribe::platform {
namespace {

SaveError ErrorOf(int number) {
    return SaveError{number, ErrorText(number)};
}

// The folder part of a path with its trailing slash ("" for a bare name).
std::string FolderOf(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

// Follows a chain of symbolic links to the path it ends at, which need not
// exist yet (a link to a file still to be made). 0 or the error number.
int FollowLinks(std::string& path) {
    for (int hop = 0; hop < 40; ++hop) {
        struct stat st {};
        if (::lstat(path.c_str(), &st) != 0 || !S_ISLNK(st.st_mode)) return 0;
        std::string target(static_cast<std::size_t>(st.st_size > 0 ? st.st_size : 255) + 1, '\0');
        for (;;) {
            const ssize_t n = ::readlink(path.c_str(), target.data(), target.size());
            if (n < 0) return errno;
            if (static_cast<std::size_t>(n) < target.size()) {
                target.resize(static_cast<std::size_t>(n));
                break;
            }
            target.resize(target.size() * 2);  // the link grew meanwhile
        }
        path = !target.empty() && target.front() == '/' ? target : FolderOf(path) + target;
    }
    return ELOOP;
}

mode_t NewFileMode() {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

// The temporary file beside the target: removed again unless Keep() was
// called, closed in any case.
class TempFile {
public:
    explicit TempFile(const std::string& target) {
        std::string base = target.substr(FolderOf(target).size());
        if (base.size() > 200) base.resize(200);  // leave room for the suffix
        path_ = FolderOf(target) + "." + base + ".saving-XXXXXX";
        fd_ = ::mkstemp(path_.data());
        openError_ = fd_ < 0 ? errno : 0;
    }
    ~TempFile() {
        if (fd_ >= 0) ::close(fd_);
        if (openError_ == 0 && !kept_) ::unlink(path_.c_str());
    }
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;

    int Fd() const { return fd_; }
    int OpenError() const { return openError_; }
    const std::string& Path() const { return path_; }
    int Close() {
        const int rc = ::close(fd_);
        fd_ = -1;
        return rc == 0 ? 0 : errno;
    }
    void Keep() { kept_ = true; }

private:
    std::string path_;
    int fd_ = -1;
    int openError_ = 0;
    bool kept_ = false;
};

// Writes all bytes; with an injected fault only the first ones, then fails.
// 0 or the error number.
int WriteAll(int fd, std::string_view bytes, const std::optional<WriteFault>& fault) {
    if (fault && fault->bytes < bytes.size()) bytes = bytes.substr(0, fault->bytes);
    while (!bytes.empty()) {
        const ssize_t n = ::write(fd, bytes.data(), bytes.size());
        if (n < 0) {
            if (errno == EINTR) continue;
            return errno;
        }
        bytes.remove_prefix(static_cast<std::size_t>(n));
    }
    return fault ? fault->error : 0;
}

// A device or a pipe has no old content to keep: it is written in place. The
// open doesn't wait: a pipe that nobody reads fails at once (ENXIO). Once
// open, the writes wait for the reader as any writer would.
std::optional<SaveError> WriteInPlace(const std::string& path, std::string_view bytes,
                                      const std::optional<WriteFault>& fault) {
    const int fd = ::open(path.c_str(), O_WRONLY | O_TRUNC | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) return ErrorOf(errno);
    if (::fcntl(fd, F_SETFL, ::fcntl(fd, F_GETFL) & ~O_NONBLOCK) != 0) {
        const int error = errno;
        ::close(fd);
        return ErrorOf(error);
    }
    int error = WriteAll(fd, bytes, fault);
    if (::close(fd) != 0 && error == 0) error = errno;
    if (error != 0) return ErrorOf(error);
    return std::nullopt;
}

}  // namespace

std::string ErrorText(int number) {
    return std::strerror(number);
}

bool CanOpenForReading(const std::string& path) {
    if (path.empty()) return false;
    // O_NONBLOCK: a named pipe with no writer must not hold the program.
    const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) return false;
    struct stat st {};
    const bool file = ::fstat(fd, &st) == 0 && !S_ISDIR(st.st_mode);
    ::close(fd);
    return file;
}

std::optional<std::string> ReadWholeFile(const std::string& path, FileKinds kinds) {
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

std::optional<SaveError> ReplaceFileContent(const std::string& path, std::string_view bytes, FileKinds kinds,
                                            const std::optional<WriteFault>& fault) {
    if (path.empty()) return ErrorOf(ENOENT);

    struct stat old {};
    const bool exists = ::stat(path.c_str(), &old) == 0;
    if (!exists && errno != ENOENT) return ErrorOf(errno);
    if (exists && S_ISDIR(old.st_mode)) return ErrorOf(EISDIR);
    if (exists && !S_ISREG(old.st_mode)) {
        if (kinds == FileKinds::PlainOnly) return SaveError{EINVAL, "Not a regular file"};
        return WriteInPlace(path, bytes, fault);
    }
    // A file that can't be opened for writing stays as it is, as with a plain write.
    if (exists && ::access(path.c_str(), W_OK) != 0) return ErrorOf(errno);

    std::string target = path;
    if (const int error = FollowLinks(target)) return ErrorOf(error);

    TempFile temp(target);
    if (const int error = temp.OpenError()) return ErrorOf(error);
    // Only root may give a file to someone else; anyone may keep its group
    // when they belong to it. The permission bits follow in any case.
    if (exists && ::fchown(temp.Fd(), old.st_uid, old.st_gid) != 0) {
        [[maybe_unused]] const int groupKept = ::fchown(temp.Fd(), static_cast<uid_t>(-1), old.st_gid);
    }
    if (::fchmod(temp.Fd(), exists ? old.st_mode & 07777 : NewFileMode()) != 0) return ErrorOf(errno);
    if (const int error = WriteAll(temp.Fd(), bytes, fault)) return ErrorOf(error);
    if (::fsync(temp.Fd()) != 0) return ErrorOf(errno);
    if (const int error = temp.Close()) return ErrorOf(error);
    if (::rename(temp.Path().c_str(), target.c_str()) != 0) return ErrorOf(errno);
    // The folder itself is not synced: should the rename be lost in a crash,
    // the old file is still there, whole.
    temp.Keep();
    return std::nullopt;
}

}  // namespace flickerscribe::platform
