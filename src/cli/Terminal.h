#pragma once

#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

#include "cli/Console.h"

// What goes in and out of the command-line program. The program holds text in
// Windows-1252, one byte a character; a terminal speaks UTF-8. Text arguments
// are converted on the way in, and text for a terminal on the way out, while
// files and pipes get the bytes as they are. Paths are never converted: they
// stay as the command line gave them (UTF-8 on Windows, see Console.h).
namespace flickerscribe {
class AnimationScript;
}

namespace flickerscribe::cli {

// A text argument (a name, a coded text) as the program holds it, on one
// line; nullopt when the argument is no valid UTF-8.
std::optional<std::string> TextArgument(std::string_view utf8);
// The usage error for a text argument that is no valid UTF-8.
std::string NotUtf8(std::string_view argument);

// Writes program text: as UTF-8 to a terminal, as bytes to anything else.
// False when the write failed.
bool WriteText(std::FILE* stream, std::string_view text);

// Writes text that is already in the terminal's encoding (usage, messages
// with paths). False when the write failed.
bool WriteNative(std::FILE* stream, std::string_view text);

// "flickerscribe-cli: <message>" as one line on standard error.
void Complain(std::string_view message);

// The whole content of an input: standard input for "-", else the file.
// nullopt when it can't be read.
std::optional<std::string> ReadInput(const std::string& path);

// Reads an animation (a .fsq or a plain list) from INPUT into `script`,
// reporting an input that can't be read and a cut at the line limit. False
// when it couldn't be read; `cut` tells whether the line limit cut it.
bool ReadAnimationInput(const std::string& path, AnimationScript& script, bool& cut);

// Reports an input that can't be read; gives kExitFileError.
int CannotRead(const std::string& path);

// Reports that the line limit stopped the work; gives kExitLineLimit.
int LineLimitReached();

// Puts a command's result where it goes: into FILE (written safely, so a
// failed write leaves an old file whole) or, without a file or for "-", to
// standard output. Gives kExitOk, or kExitFileError after a message.
int WriteResult(const std::optional<std::string>& file, std::string_view bytes);

}  // namespace flickerscribe::cli
