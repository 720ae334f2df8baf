#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "document/TextFile.h"

namespace flickerscribe {

// Why a file could not be written: the system's error number (errno, or a
// Windows error code) and its text, in UTF-8.
struct SaveError {
    int number = 0;
    std::string text;

    bool operator==(const SaveError&) const = default;
};

// Replaces the content of the file at `path` by `bytes` without ever losing
// the old file: the bytes go to a new file in the same folder, are flushed to
// disk, and only then take the old file's place in one rename (on Windows,
// MoveFileExW, written through). A symbolic link is followed to the file it
// names, so the link stays a link. A file that already exists keeps its
// permission bits (and owner, where allowed) or, on Windows, its attributes; a
// file that can't be opened for writing is refused as it would be by a plain
// write. On any failure the temporary file is removed, the old file is left
// whole, and the error is returned; nullopt means the file was written.
//
// A target that is no regular file (a named pipe, a device) has no old
// content to keep: PlainOnly refuses it, AnyKind writes it in place, but
// refuses a named pipe that nobody reads rather than waiting for a reader.
std::optional<SaveError> WriteFileSafely(const std::string& path, std::string_view bytes,
                                         FileKinds kinds = FileKinds::PlainOnly);

// The error of that number with the system's text for it (strerror on Linux,
// FormatMessage on Windows), as a failed save reports it. Texts are UTF-8.
SaveError SystemError(int number);

// For tests: lets a write break off half way, the way a full disk would.
namespace write_seam {
// The next WriteFileSafely writes at most `bytes` bytes of its data and then
// fails with the error number `error`. Applies once.
void FailNextWriteAfter(std::size_t bytes, int error);
// Forgets a failure that was set up but not used.
void Reset();
}  // namespace write_seam

}  // namespace flickerscribe
