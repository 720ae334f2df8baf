// The bulk render and encode must give exactly what the character-by-character
// walks over a pane give. The walks below are the literal ones: caret codes
// read at 1-based positions, one SelStart/SelLength/SelColour/SelText round per
// character.
#include <gtest/gtest.h>

#include <random>

#include "colour/ColouredText.h"
#include "colour/MemoryPane.h"
#include "colour/NumberText.h"

namespace flickerscribe {
namespace {

void RenderByCharacter(const std::string& text, Pane& pane) {
    pane.SetText("");
    Colour inForce = ColourFromDigit("0");
    const int n = static_cast<int>(text.size());
    auto at = [&](int i) { return i <= n ? text.substr(static_cast<std::size_t>(i - 1), 1) : std::string(); };
    int i = 1;
    while (i <= n) {
        if (at(i) == "^") {
            ++i;
            if (IsNumberText(at(i))) inForce = ColourFromDigit(at(i));
            ++i;
        }
        pane.SetSelStart(i - 1);
        pane.SetSelLength(1);
        pane.SetSelColour(inForce);
        pane.SetSelText(at(i));
        ++i;
    }
}

std::string EncodeByCharacter(Pane& pane, Colour startColour) {
    std::string result;
    Colour last = startColour;
    const std::string text = pane.Text();
    for (int p = 0; p < static_cast<int>(text.size()); ++p) {
        pane.SetSelStart(p);
        pane.SetSelLength(1);
        const Colour colour = pane.SelColour();
        if (colour != last) {
            last = colour;
            result += "^" + DigitFromColour(colour);
        }
        result += text[static_cast<std::size_t>(p)];
    }
    return result;
}

std::vector<std::string> Texts() {
    std::vector<std::string> texts = {
        "^1Fl^7ick",    "plain",    "a^bc",  "Hi^",   "Hi^3",    "^1^2x", "^^1x",     "^1^",
        "^8dark^7",     "^a",       "",      "^7abc", "x^0y^9z", "^1^",   "^1",       "^",
        "^^^^",         "^1a^ b",   "^x^3y", "^9^9",  "a^",      "^8",    "^8a^8b^8", "^^",
        "^2\xE9\n\xFF", "1^23^45^",
    };
    // Mixtures heavy in carets and digits, where the walk's skipping matters.
    std::mt19937 random(20240601);
    const std::string alphabet = "^^^^0123456789ab x\xE9";
    for (int t = 0; t < 400; ++t) {
        std::string s(random() % 24, ' ');
        for (char& c : s) c = alphabet[random() % alphabet.size()];
        texts.push_back(s);
    }
    return texts;
}

TEST(PaneWalks, BulkRenderEqualsTheCharacterWalk) {
    for (const auto& text : Texts()) {
        MemoryPane walked;
        walked.SetText("left over");
        RenderByCharacter(text, walked);
        MemoryPane bulk;
        RenderCodedText(text, bulk);
        ASSERT_EQ(bulk.Runs(), walked.Runs()) << text;
        ASSERT_EQ(bulk.Text(), walked.Text()) << text;
        ASSERT_EQ(bulk.SelStart(), walked.SelStart()) << text;
    }
}

TEST(PaneWalks, BulkEncodeEqualsTheCharacterWalk) {
    const Colour starts[] = {kWhite, kBlack, Rgb(128, 0, 0)};
    for (const auto& text : Texts()) {
        MemoryPane pane;
        RenderCodedText(text, pane);
        for (const Colour start : starts) {
            ASSERT_EQ(EncodeColouredText(pane, start), EncodeByCharacter(pane, start)) << text;
        }
    }
}

}  // namespace
}  // namespace flickerscribe
