#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "document/AnimationScript.h"
#include "document/SafeWrite.h"

namespace flickerscribe {

// The first line of a project file in the current format. A file whose first
// line is anything else (another case, a blank around it) is a plain list of
// texts.
inline constexpr std::string_view kAnimationMagic = "#v050#";

enum class LoadStatus {
    Loaded,
    Truncated,  // the list filled up: the first 32767 lines were kept
    ReadFailed,
};

// True when the path can be opened for reading; a folder, a missing file, a
// file without read permission and the empty path are false.
bool FileExists(const std::string& path);

// Replaces the script's lines by those of a project file's bytes. With the
// magic first line every three lines make one animation line (Text, Time, and
// a third line that is dropped: Action is always "[none]"); a record cut short
// by the end of the data, a blank last line included, is dropped silently.
// Without the magic the first line carries nothing and every later line, empty
// ones too, is a Text with Time "15". All of it is one batch for a view.
LoadStatus LoadAnimationBytes(std::string_view data, AnimationScript& script);

// Reads the whole file, then replaces the script's lines by its content. A
// file that can't be read to its end, or is no regular file, leaves the script
// as it was and gives ReadFailed.
LoadStatus LoadAnimationFile(const std::string& path, AnimationScript& script);

// Like LoadAnimationFile, but only for a file as the program writes it, whole:
// the magic line, then complete records, every line ended by CR LF. A file
// cut short, or of other bytes, gives ReadFailed and leaves the script alone.
// For the animations the program keeps for itself.
LoadStatus LoadWholeAnimationFile(const std::string& path, AnimationScript& script);
bool IsWholeAnimationFile(std::string_view data);

// The project file of a script: the magic line, then Text, Time and Action of
// each line, every line ended by CR LF.
std::string AnimationFileBytes(const AnimationScript& script);

// Writes the project file through WriteFileSafely, so a failed save leaves
// the old file whole. nullopt when it was written.
std::optional<SaveError> SaveAnimationFile(const std::string& path, const AnimationScript& script);

}  // namespace flickerscribe
