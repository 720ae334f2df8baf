#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "document/SafeWrite.h"
#include "document/TextFile.h"

// What the core needs of the file system. Each system has its own source file
// (PosixFiles.cpp, WindowsFiles.cpp) and the build takes the one of its
// system; everything else in the core is the same everywhere.
//
// Paths are UTF-8 text on Windows (the files are opened by their wide-character
// names, so a folder named "Zoë" works whatever the code page) and the file
// system's own bytes elsewhere.
namespace flickerscribe::platform {

// A write that is to break off half way (the tests' stand-in for a full disk):
// at most `bytes` bytes are written, then the write fails with `error`.
struct WriteFault {
    std::size_t bytes;
    int error;
};

// The system's text for one of its error numbers (strerror, FormatMessage),
// as UTF-8.
std::string ErrorText(int number);

// Whether the path names something that can be opened for reading and is no
// folder. Never waits for a pipe's writer.
bool CanOpenForReading(const std::string& path);

// ReadFileBytes and WriteFileSafely (TextFile.h, SafeWrite.h) of this system.
std::optional<std::string> ReadWholeFile(const std::string& path, FileKinds kinds);
std::optional<SaveError> ReplaceFileContent(const std::string& path, std::string_view bytes, FileKinds kinds,
                                            const std::optional<WriteFault>& fault);

}  // namespace flickerscribe::platform
