#include <gtest/gtest.h>

#include "EffectTestSupport.h"
#include "effects/EffectRun.h"

namespace flickerscribe::test {
namespace {

using L = std::vector<std::string>;

TEST(WaveForward, OneCharacterAFrameAtItsOwnColumn) {
    const EffectCase cases[] = {
        {"Wave forward", "0", "^1K^2at", "[QZT]", false, L{"[QZT]^1K", "[QZT] ^2a", "[QZT]  ^2t"},
         "^1K^2a^2t", "[QZT]"},
        {"Wave forward", "0", "^1K^2at", "[QZT]", true, L{"^1K  ^0[QZT]", " ^2a ^0[QZT]", "  ^2t^0[QZT]"},
         "^1K^2a^2t", "^0[QZT]"},
        {"Wave forward", "0", "Kat", "", false, L{"^7K", " ^7a", "  ^7t"}, "^7K^7a^7t", ""},
        {"Wave forward", "0", "Kat", "", true, L{"^7K  ^0", " ^7a ^0", "  ^7t^0"}, "^7K^7a^7t", "^0"},
        {"Wave forward", "0", "K", "^4[QZT]", true, L{"^7K^4[QZT]"}, "^7K", "^4[QZT]"},
        // A final code gives one frame more, with nothing but the code.
        {"Wave forward", "0", "ab^1", "", false, L{"^7a", " ^7b", "  ^1"}, "^7a^7b^1", ""},
        {"Wave forward", "0", "a^b", "", false, L{"^7a", " ^7^", "  ^7b"}, "^7a^7^^7b", ""},
        {"Wave forward", "0", "a b", "", false, L{"^7a", " ^7 ", "  ^7b"}, "^7a^7 ^7b", ""},
        // A name that is coloured already comes out as it went in.
        {"Wave forward", "0", "^7K^2a", "[QZT]", false, L{"[QZT]^7K", "[QZT] ^2a"}, "^7K^2a", "[QZT]"},
        // Nothing to show: no frame, and the tag isn't protected.
        {"Wave forward", "0", "", "[QZT]", true, L{}, "", "[QZT]"},
    };
    for (const auto& c : cases) CheckEffect(c);
}

TEST(Wave2, TypesTheNameInOneCharacterAFrame) {
    const EffectCase cases[] = {
        {"Wave 2", "0", "^1Ka^2t", "[QZT]", false, L{"[QZT]^1K", "[QZT]^1Ka", "[QZT]^1Ka^2t"}, "^1Ka^2t",
         "[QZT]"},
        // Behind the name the tag keeps a code from being the end of a frame,
        // and a code at the very start loses itself in front of the tag's.
        {"Wave 2", "0", "^1Ka^2t", "[QZT]", true,
         L{"^0[QZT]", "^1K^0[QZT]", "^1Ka^0[QZT]", "^1Ka^2^0[QZT]", "^1Ka^2t^0[QZT]"}, "^1Ka^2t", "^0[QZT]"},
        {"Wave 2", "0", "Kat", "^4[QZT]", true, L{"K^4[QZT]", "Ka^4[QZT]", "Kat^4[QZT]"}, "Kat", "^4[QZT]"},
        // One blank gives no frame; the second in a row does.
        {"Wave 2", "0", "a  b", "", false, L{"a", "a  ", "a  b"}, "a  b", ""},
        {"Wave 2", "0", " Kat", "", false, L{" K", " Ka", " Kat"}, " Kat", ""},
        {"Wave 2", "0", "Kat ", "", false, L{"K", "Ka", "Kat"}, "Kat ", ""},
        {"Wave 2", "0", "^1^2ab", "", false, L{"^2a", "^2ab"}, "^1^2ab", ""},
        {"Wave 2", "0", "^1^2ab", "[QZT]", false, L{"[QZT]^1^2a", "[QZT]^1^2ab"}, "^1^2ab", "[QZT]"},
        {"Wave 2", "0", "a^b", "", false, L{"a", "a^"}, "a^b", ""},
        {"Wave 2", "0", "Kat^", "", false, L{"K", "Ka", "Kat", "Kat^"}, "Kat^", ""},
        // Every frame ends in the protecting "^0": nothing at all.
        {"Wave 2", "0", "Kat", "", true, L{}, "Kat", "^0"},
        {"Wave 2", "0", "", "[QZT]", true, L{}, "", "[QZT]"},
    };
    for (const auto& c : cases) CheckEffect(c);
}

}  // namespace
}  // namespace flickerscribe::test
