#include "effects/EffectRun.h"

#include <optional>
#include <utility>

#include "document/AnimationScript.h"
#include "effects/EffectBodies.h"

namespace flickerscribe {

bool AppendFrame(AnimationScript& script, std::string text) {
    return script.AppendLine(std::move(text), "15", "[none]");
}

EffectStatus ApplyEffect(AnimationScript& script, std::string& name, const std::string& effectName,
                         const std::string& parameter1, const std::string& /*parameter2*/,
                         std::string& clanTag, bool reverse, const YesNoQuestion& ask) {
    if (effectName == "Wave forward") return WaveForward(script, name, clanTag, reverse);
    if (effectName == "Wave 2") return Wave2(script, name, clanTag, reverse);
    if (effectName == "Bounce") return Bounce(script, name, clanTag, reverse, parameter1, ask);
    return EffectStatus::Done;
}

EffectRunResult RunEffectList(AnimationScript& script, std::string name, std::string clanTag, bool reverse,
                              const std::vector<EffectRow>& rows, const YesNoQuestion& ask) {
    EffectRunResult result;
    if (name.size() > kMaxEffectTextLength || clanTag.size() > kMaxEffectTextLength) {
        result.inputRefused = true;
        return result;
    }

    std::optional<AnimationScript::Batch> batch(std::in_place, script);
    // The view is brought up to date before a question, so that the user sees
    // the script as far as the run has come.
    const YesNoQuestion askWithViewShown = [&](const std::string& title, const std::string& text) {
        batch.reset();
        const bool yes = ask && ask(title, text);
        batch.emplace(script);
        return yes;
    };

    script.ClearLines();
    const std::size_t rowCount = rows.size();
    for (std::size_t r = 0; r < rowCount; ++r) {
        const EffectRow& row = rows[r];
        if (ApplyEffect(script, name, row.Name, row.Parameter1, row.Parameter2, clanTag, reverse,
                        askWithViewShown) == EffectStatus::LineLimitReached) {
            result.lineLimitReached = true;
            break;
        }
    }
    return result;
}

}  // namespace flickerscribe
