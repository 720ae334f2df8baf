#include <cmath>

#include "colour/NumberText.h"
#include "document/AnimationScript.h"
#include "effects/EffectBodies.h"
#include "effects/TextWalk.h"

namespace flickerscribe {
namespace {

// The tag travels through the name, one character a frame: from the front to
// the end, or with `reverse` from the end to the front. n + 1 frames.
bool ForwardPass(AnimationScript& script, const std::string& name, const std::string& tag, bool reverse) {
    const std::size_t n = VisibleLength(name);
    const std::size_t length = name.size();
    auto frame = [&](std::size_t i) {
        std::string text = name.substr(0, i);
        text += tag;
        return text;
    };
    if (!reverse) {
        for (std::size_t i = 0; i <= n; ++i) {
            std::string text;
            if (i == 0) {
                text = tag + name;
            } else {
                text = frame(i);
                // The rest is counted in visible characters but cut from the
                // end of the name as it is.
                if (n > i) text += name.substr(length - (n - i));
            }
            if (!AppendFrame(script, std::move(text))) return false;
        }
    } else {
        for (std::size_t i = n + 1; i-- > 0;) {
            std::string text = i == length ? name + tag : frame(i) + name.substr(i);
            if (!AppendFrame(script, std::move(text))) return false;
        }
    }
    return true;
}

// Copies every line of the script, from the one in front of the last back to
// line 1, behind the last. The turning point isn't repeated; lines of earlier
// rows and earlier repetitions are copied too.
bool MirrorPass(AnimationScript& script) {
    const int start = script.Count() - 1;
    for (int j = start; j >= 1; --j) {
        if (!AppendFrame(script, script.LineAt(j).Text)) return false;
    }
    return true;
}

}  // namespace

EffectStatus Bounce(AnimationScript& script, std::string& name, std::string& clanTag, bool reverse,
                    const std::string& repeatCount, const YesNoQuestion& ask) {
    if (!IsNumberText(repeatCount)) return EffectStatus::Done;
    const int repeats = static_cast<int>(std::floor(*NumberValue(repeatCount)));
    if (repeats <= 0) return EffectStatus::Done;
    if (repeats >= 5) {
        const bool yes =
            ask && ask("Processing effect list...",
                       "Are you sure you want to repeat the BOUNCE EFFECT " + repeatCount + " times?");
        if (!yes) return EffectStatus::Done;
    }
    for (int r = 0; r < repeats; ++r) {
        // The colours go for good: later rows of the run see the plain values.
        clanTag = StripColourCodes(clanTag);
        name = StripColourCodes(name);
        if (!ForwardPass(script, name, clanTag, reverse) || !MirrorPass(script)) {
            return EffectStatus::LineLimitReached;
        }
    }
    return EffectStatus::Done;
}

}  // namespace flickerscribe
