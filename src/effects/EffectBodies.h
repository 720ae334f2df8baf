#pragma once

// The effect bodies behind ApplyEffect. Each appends its frames to the script
// and stops at the first line the script refuses.

#include <string>

#include "effects/EffectRun.h"

namespace flickerscribe {

EffectStatus WaveForward(AnimationScript& script, std::string& name, std::string& clanTag, bool reverse);
EffectStatus Wave2(AnimationScript& script, const std::string& name, std::string& clanTag, bool reverse);
EffectStatus Bounce(AnimationScript& script, std::string& name, std::string& clanTag, bool reverse,
                    const std::string& repeatCount, const YesNoQuestion& ask);

// Appends a frame with the time and action every effect gives its lines.
// False when the script is full.
bool AppendFrame(AnimationScript& script, std::string text);

}  // namespace flickerscribe
