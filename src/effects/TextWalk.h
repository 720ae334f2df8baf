#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace flickerscribe {

// The walks over coded text that the effects share. A colour code is a caret
// followed by a character that passes IsNumberText; the character behind a
// code is always taken as a plain character, without looking at it, so in
// "^1^2x" only "^1" is a code. A caret that starts no code is an ordinary
// character here.

// True when a colour code starts at the 0-based position `at`.
bool IsColourCodeAt(std::string_view text, std::size_t at);

// The number of plain characters: the length of StripColourCodes(text).
std::size_t VisibleLength(std::string_view text);

// The plain characters in their order, every code left out.
std::string StripColourCodes(std::string_view text);

// Every plain character with the code in force in front of it ("^7" before
// the first code). A code at the very end closes the result on its own:
// "abc^1" gives "^7a^7b^7c^1".
std::string ColourEachCharacter(std::string_view text);

// `count` blanks; the empty text for a count of 0 or less.
std::string Spaces(std::ptrdiff_t count);

// Puts "^0" in front of a tag that doesn't start with a colour code, so that
// the tag keeps its own colour when it stands behind coloured characters.
// Applying it twice changes nothing more.
void ProtectClanTag(std::string& clanTag);

}  // namespace flickerscribe
