// The rich text pane over a real QTextEdit behaves as the pane the core's
// walks are written for; and the wizard's pictures look as approved.
#include <algorithm>
#include <random>

#include "MainWindowFixture.h"
#include "colour/MemoryPane.h"
#include "ui/RichPane.h"
#include "ui/WizardArt.h"

namespace flickerscribe::ui::testing_support {
namespace {

constexpr Colour kColours[] = {kBlack, kWhite, Rgb(255, 0, 0), Rgb(0, 255, 0), Rgb(128, 0, 0)};

std::string State(const Pane& pane) {
    std::string state = pane.Text() + " @" + std::to_string(pane.SelStart()) + "+" +
                        std::to_string(pane.SelLength()) + " colour " + std::to_string(pane.SelColour()) +
                        " runs";
    for (const ColouredRun& run : pane.Runs()) state += " " + run.text + "=" + std::to_string(run.colour);
    return state;
}

// The same random gestures on both panes leave them alike at every step:
// text, selection, the colour for typing and the colours of the characters.
TEST(RichPane, BehavesAsThePaneInMemory) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        std::mt19937 random(seed);
        const auto pick = [&random](int n) { return static_cast<int>(random() % unsigned(n)); };
        QTextEdit edit;
        RichPane rich(&edit);
        MemoryPane memory;
        for (int step = 0; step < 60; ++step) {
            const std::string text(std::size_t(pick(4)), char('a' + pick(26)));
            const Colour colour = kColours[pick(5)];
            const Colour other = kColours[pick(5)];
            const int position = pick(12) - 1;
            const int gesture = step % 7 == 0 ? 0 : pick(7);
            if (gesture == 6 && position < static_cast<int>(memory.Text().size())) {
                // The user selects from the right to the left, in the widget.
                const int length = static_cast<int>(memory.Text().size());
                const int start = std::clamp(position, 0, length),
                          end = std::min(start + 1 + pick(3), length);
                QTextCursor cursor = edit.textCursor();
                cursor.setPosition(end);
                cursor.setPosition(start, QTextCursor::KeepAnchor);
                edit.setTextCursor(cursor);
                memory.SetSelStart(start);
                memory.SetSelLength(end - start);
            }
            for (Pane* pane : {static_cast<Pane*>(&rich), static_cast<Pane*>(&memory)}) {
                switch (gesture) {
                    case 0:
                        pane->SetRuns({{text, colour}, {"xy", other}, {"", colour}});
                        break;
                    case 1:
                        pane->SetSelStart(position);
                        break;
                    case 2:
                        pane->SetSelLength(position);
                        break;
                    case 3:
                        pane->SetSelColour(colour);
                        break;
                    case 4:
                        pane->SetSelText(text);
                        break;
                    case 5:
                        pane->SetText(text);
                        break;
                }
            }
            ASSERT_EQ(State(rich), State(memory)) << "seed " << seed << " step " << step;
        }
        rich.SetLocked(true);
        EXPECT_TRUE(rich.Locked() && edit.isReadOnly());
    }
}

// The wizard's pictures are painted in code; a change to them shows here. When
// the art is changed on purpose, look at the new pictures and take their sums.
TEST(WizardArt, ThePicturesLookAsApproved) {
    const auto sum = [](const QPixmap& picture) {
        const QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
        return QCryptographicHash::hash(QByteArrayView(image.constBits(), image.sizeInBytes()),
                                        QCryptographicHash::Sha1)
            .toHex()
            .left(12)
            .toStdString();
    };
    EXPECT_EQ(WizardSidePicture().deviceIndependentSize().toSize(), QSize(164, 313));
    EXPECT_EQ(sum(WizardSidePicture()), "7a150c62383a");
    EXPECT_EQ(sum(WizardBandPicture(2)) + " " + sum(WizardBandPicture(3)) + " " + sum(WizardBandPicture(4)),
              "c2f8aedbf966 aede8fcd23bb d00dfeabc91f");
}

}  // namespace
}  // namespace flickerscribe::ui::testing_support
