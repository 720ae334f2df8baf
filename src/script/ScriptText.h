#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "document/AnimationScript.h"

namespace flickerscribe {

// The author's contact address, shown in the script banner and in the About
// and Help windows. Exactly 24 characters, so the banner line that holds it is
// as long as the others.
inline constexpr std::string_view kContactAddress = "quillon@qzt-clan.example";

// Lines of a script are separated by CR LF; a saved script ends with one more.
inline constexpr std::string_view kScriptLineEnd = "\r\n";

// The seven comment lines at the head of every generated script, each exactly
// 30 characters and ending in two backslashes.
inline constexpr std::array<std::string_view, 7> kScriptBanner = {
    "//--------------------------\\\\", "//----- SCRIPT MADE WITH ---\\\\",
    "//------ Flickerscribe -----\\\\", "//----- by: [QZT]Quillon ---\\\\",
    "//--------------------------\\\\", "//-quillon@qzt-clan.example-\\\\",
    "//--------------------------\\\\",
};

// Told once for each line whose Time is no number, with the message for the
// user ("no number _abc_"). Generation goes on with the wait value 15.
using ScriptReport = std::function<void(const std::string& message)>;

// The message for a Time that is no number.
std::string NoNumberMessage(std::string_view time);

// How the script text grows: CR LF, then `line`. Starting from the empty text
// this gives the script its empty first line and no line break at its end.
void AppendScriptLine(std::string& script, std::string_view line);

// `set name "..."` for one line's Text. The text goes in unchanged; an empty
// text or one that begins with a blank gets "^7" in front, so that the game
// sees a name at all.
std::string NameCommand(std::string_view text);

// `wait W` for one line's Time. A value in 1..99 (rounded down) goes in
// verbatim; 0 and below become 5, 100 and above 99. A Time that is no number
// is reported (when `report` is set) and becomes 15.
std::string WaitCommand(std::string_view time, const ScriptReport& report);

// The whole script: the empty first line, the banner, then for every line its
// name command and its wait command. Reports come in list order.
std::string BuildScriptText(const AnimationScript& script, const ScriptReport& report);

}  // namespace flickerscribe
