#include <string_view>

#include "effects/EffectBodies.h"
#include "effects/TextWalk.h"

namespace flickerscribe {

EffectStatus WaveForward(AnimationScript& script, std::string& name, std::string& clanTag, bool reverse) {
    // From here on every character carries its own code, and the caller keeps
    // the name that way.
    name = ColourEachCharacter(name);
    const std::string_view coloured = name;
    // The name doesn't change inside the loop, so its width is taken once.
    const auto width = static_cast<std::ptrdiff_t>(VisibleLength(coloured));
    const std::size_t length = coloured.size();
    std::ptrdiff_t k = 1;  // the column of this frame's character
    for (std::size_t p = 0; p < length; ++p, ++k) {
        std::string_view unit;
        if (IsColourCodeAt(coloured, p)) {
            unit = coloured.substr(p, 3);  // the code and its character; only the code at the end
            p += 2;
        } else {
            unit = coloured.substr(p, 1);
        }
        std::string text;
        if (reverse) {
            ProtectClanTag(clanTag);
            // The blanks behind the character hold the tag at one column.
            text = Spaces(k - 1);
            text += unit;
            text += Spaces(width - k);
            text += clanTag;
        } else {
            text = clanTag;
            text += Spaces(k - 1);
            text += unit;
        }
        if (!AppendFrame(script, std::move(text))) return EffectStatus::LineLimitReached;
    }
    return EffectStatus::Done;
}

namespace {

std::string_view WithoutTrailingBlanks(std::string_view text) {
    const auto last = text.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string_view{} : text.substr(0, last + 1);
}

}  // namespace

EffectStatus Wave2(AnimationScript& script, const std::string& name, std::string& clanTag, bool reverse) {
    std::string previous;  // the frame before, appended or not, trailing blanks and all
    const std::size_t length = name.size();
    // `cut` is how many characters of the name this frame shows.
    for (std::size_t cut = 1; cut <= length; ++cut) {
        // A code comes into the frame whole: the cut moves behind its digit.
        if (IsColourCodeAt(name, cut - 1)) ++cut;
        std::string text;
        if (reverse) {
            ProtectClanTag(clanTag);
            text.assign(name, 0, cut);
            text += clanTag;
        } else {
            text = clanTag;
            text.append(name, 0, cut);
        }
        // Two codes in front: the first is of no use. Done once, without
        // looking at the second character.
        if (text.size() >= 3 && text[0] == '^' && text[2] == '^') text.erase(0, 2);

        // No frame that repeats the one before (a blank added shows nothing),
        // and none that ends in a code.
        const bool changed = WithoutTrailingBlanks(text) != previous;
        const bool endsInCode = text.size() > 1 && text[text.size() - 2] == '^';
        if (changed && !endsInCode && !AppendFrame(script, text)) return EffectStatus::LineLimitReached;
        previous = std::move(text);
    }
    return EffectStatus::Done;
}

}  // namespace flickerscribe
