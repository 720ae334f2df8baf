#pragma once

#include <string>
#include <string_view>

#include "document/AnimationFile.h"
#include "document/AnimationScript.h"

namespace flickerscribe {

// Reading a game script (.cfg) back into an animation. This is no parser of
// the game's language: it cuts each line into statements at every semicolon
// (also inside quotes) and takes what follows each `set name` as the Text of
// a new line; everything else is passed over without a word.
//
// - A comment line, whose first two characters after leading blanks are
//   "//", is skipped whole. Blanks are U+0020 only; a tab is a character.
// - Pieces holding nothing but blanks are skipped; the others lose their
//   leading blanks and become statements.
// - `set name`: the first 8 characters, lower-cased, are "set name". The
//   value is the statement without its first 9 characters (the ninth, the
//   blank, is dropped whatever it is) and without any double quote. It makes
//   the line (value, "15", "[none]"). A statement of 9 characters or fewer
//   makes nothing.
// - `wait`: the statement begins with "wait" in exactly that case and has at
//   least 6 characters. Its value is the statement without its first 5
//   characters, trimmed of blanks at both ends, without double quotes. When
//   that is a number, it becomes, as it stands, the Time of the line that this
//   import appended last; a wait before the first `set name` does nothing.
//   Since the generator writes each wait right behind the name command of its
//   line, a generated script comes back with its times.

// What one import carries from statement to statement.
struct ImportRun {
    explicit ImportRun(AnimationScript& target) : script(target) {}

    AnimationScript& script;
    int lastAppended = 0;  // the line this import appended last; 0 before the first
    bool full = false;     // a `set name` found the list at its limit; the import stops
};

// `text` without any double quote; every other character stays in its place.
std::string RemoveQuotes(std::string_view text);

// Handles one statement, already without its leading blanks.
void ParseStatement(std::string_view statement, ImportRun& run);

// Handles one line of a script: skips a comment line, else parses each
// statement in it. Does nothing once the run is full.
void ParseScriptLine(std::string_view line, ImportRun& run);

// Replace the animation by what the script holds, in one batch. ImportFile
// reads the whole file first: one that can't be read to its end, or is no
// regular file, leaves the animation as it was (ReadFailed). Truncated means a
// `set name` found 32767 lines: those are kept and the rest of the script is
// not read.
LoadStatus ImportBytes(std::string_view data, AnimationScript& script);
LoadStatus ImportFile(const std::string& path, AnimationScript& script);

}  // namespace flickerscribe
