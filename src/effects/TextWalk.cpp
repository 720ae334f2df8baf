#include "effects/TextWalk.h"

#include "colour/NumberText.h"

namespace flickerscribe {

bool IsColourCodeAt(std::string_view text, std::size_t at) {
    return at + 1 < text.size() && text[at] == '^' && IsNumberText(text.substr(at + 1, 1));
}

namespace {

// The one walk, left to right: `code` hears of every code passed over, and
// `turn` of the character taken on every turn, which is empty on the turn
// that ends behind a final code.
template <typename OnCode, typename OnTurn>
void WalkCodedText(std::string_view text, OnCode code, OnTurn turn) {
    const std::size_t length = text.size();
    std::size_t p = 0;
    while (p < length) {
        if (IsColourCodeAt(text, p)) {
            code(text.substr(p, 2));
            p += 2;
        }
        // The character behind a code is taken without a test.
        turn(p < length ? text.substr(p, 1) : std::string_view{});
        ++p;
    }
}

}  // namespace

std::size_t VisibleLength(std::string_view text) {
    std::size_t count = 0;
    WalkCodedText(
        text, [](std::string_view) {}, [&](std::string_view c) { count += c.size(); });
    return count;
}

std::string StripColourCodes(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    WalkCodedText(
        text, [](std::string_view) {}, [&](std::string_view c) { out += c; });
    return out;
}

std::string ColourEachCharacter(std::string_view text) {
    std::string out;
    out.reserve(text.size() * 3);
    std::string_view colour = "^7";
    WalkCodedText(
        text, [&](std::string_view code) { colour = code; },
        [&](std::string_view c) {
            out += colour;
            out += c;
        });
    return out;
}

std::string Spaces(std::ptrdiff_t count) {
    return count > 0 ? std::string(static_cast<std::size_t>(count), ' ') : std::string();
}

void ProtectClanTag(std::string& clanTag) {
    if (!IsColourCodeAt(clanTag, 0)) clanTag.insert(0, "^0");
}

}  // namespace flickerscribe
