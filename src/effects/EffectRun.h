#pragma once

#include <functional>
#include <string>
#include <vector>

namespace flickerscribe {

class AnimationScript;

// One row of the wizard's effect list. Only "Bounce" reads Parameter1, as its
// repeat count; nothing reads Parameter2.
struct EffectRow {
    std::string Name;
    std::string Parameter1 = "0";
    std::string Parameter2 = "0";

    bool operator==(const EffectRow&) const = default;
};

// Puts one yes-or-no question to the user; true is Yes. The engine shows no
// window: "Bounce" asks through this before a repeat count of 5 or more.
using YesNoQuestion = std::function<bool(const std::string& title, const std::string& text)>;

// The longest name or clan tag that a run takes, in characters (codes count).
inline constexpr std::size_t kMaxEffectTextLength = 32767;

// How one effect ended.
enum class EffectStatus {
    Done,
    LineLimitReached,  // an append was refused at kMaxLines; the effect stopped there
};

struct EffectRunResult {
    // The script filled up: the run stopped at the first refused line, with no
    // further line, row or question. The lines that stand are kept.
    bool lineLimitReached = false;
    // The name or the tag was longer than kMaxEffectTextLength. Nothing ran
    // and the script was not even cleared: the user's lines are untouched.
    bool inputRefused = false;
};

// One run, as the wizard's Finish does it: clears the script, then applies
// the rows in order to the name and tag (each row sees what the ones before
// it left of them). Every line made has Time "15" and Action "[none]". The
// lines appended stay whatever happens; the script is never restored.
// The view of the script sees the run as one reset, interrupted only while a
// question is open, so that the script shows as far as it came meanwhile.
// A missing `ask` answers No.
EffectRunResult RunEffectList(AnimationScript& script, std::string name, std::string clanTag, bool reverse,
                              const std::vector<EffectRow>& rows, const YesNoQuestion& ask);

// Runs the effect called `effectName` ("Wave forward", "Wave 2" or "Bounce",
// case counts) and appends its lines. Rewrites the caller's name and tag as
// that effect leaves them for the next row. Any other name does nothing.
EffectStatus ApplyEffect(AnimationScript& script, std::string& name, const std::string& effectName,
                         const std::string& parameter1, const std::string& parameter2, std::string& clanTag,
                         bool reverse, const YesNoQuestion& ask);

}  // namespace flickerscribe
