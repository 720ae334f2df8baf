#include <gmock/gmock.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>

#include "ScriptedDialogs.h"
#include "WindowChecks.h"
#include "colour/Palette.h"
#include "colour/Pane.h"
#include "ui/AboutDialog.h"
#include "ui/HelpDialog.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {
namespace {

using testing_support::ExpectFixedDialog;
using testing_support::ExpectLayout;

constexpr Colour kRed = Rgb(255, 0, 0);
constexpr Colour kGreen = Rgb(0, 255, 0);

// ---------------------------------------------------------------- About

// Each address shows whole, on a line of its own, in the dialog's font.
TEST(About, ShowsTheAddressesWhole) {
    AboutDialog window;
    EXPECT_EQ(window.windowTitle(), u"About Flickerscribe"_s);
    const auto* label = window.findChild<QLabel*>(u"Label1"_s);
    EXPECT_EQ(label->font(), window.font());
    const QStringList lines = label->text().split(u'\n');
    EXPECT_EQ(lines, (QStringList{u"Flickerscribe website @ http://www.qzt-clan.example/flickerscribe"_s,
                                  u"[QZT] Website @ http://www.qzt-clan.example/clanqzt"_s}));
    for (const QString& line : lines)
        EXPECT_LE(label->fontMetrics().horizontalAdvance(line), label->contentsRect().width());
    EXPECT_GE(label->contentsRect().height(), 2 * label->fontMetrics().lineSpacing());
}

TEST(About, CodedTextHasTheBuildVersion) {
    EXPECT_EQ(AboutText(), "^1Flicker^7scribe\r\n\r\nVersion ^80.5.0\r\n^8Made by ^7[QZT]^2Quillon\r\n");
}

TEST(About, PaneShowsNameVersionAndMakerInTheirColours) {
    AboutDialog window;
    // A line break shows in the colour of the character in front of it.
    const std::vector<ColouredRun> expected = {
        {"Flicker", kRed}, {"scribe\n\nVersion ", kWhite}, {"0.5.0\nMade by ", kBlack},
        {"[QZT]", kWhite}, {"Quillon\n", kGreen},
    };
    EXPECT_EQ(window.PreviewPane().Runs(), expected);
}

struct AboutKey {
    const char* name;
    Qt::Key key;
    QDialog::DialogCode result;
    friend void PrintTo(const AboutKey& c, std::ostream* os) { *os << c.name; }
};

class AboutCloses : public testing::TestWithParam<AboutKey> {};

TEST_P(AboutCloses, ByKey) {
    AboutDialog window;
    window.show();
    QTest::keyClick(&window, GetParam().key);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(window.result(), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(Keys, AboutCloses,
                         testing::Values(AboutKey{"Enter", Qt::Key_Return, QDialog::Accepted},
                                         AboutKey{"Escape", Qt::Key_Escape, QDialog::Rejected}),
                         testing::PrintToStringParamName());

// ---------------------------------------------------------------- Help

TEST(Help, EveryBoxShowsItsWholeValue) {
    ScriptedDialogs dialogs;
    HelpDialog window(dialogs);
    EXPECT_EQ(window.windowTitle(), u"Help!!"_s);
    const QStringList values{u"http://www.qzt-clan.example/flickerscribe"_s,
                             u"http://www.qzt-clan.example/flickerscribe/forums/index.php"_s,
                             u"quillon@qzt-clan.example"_s, u"123456789"_s};
    for (int i = 0; i < values.size(); ++i) {
        const auto* box = window.findChild<QLineEdit*>(u"Text%1"_s.arg(i + 1));
        EXPECT_EQ(box->text(), values[i]);
        EXPECT_TRUE(box->isReadOnly());
        // Inside the frame, a line edit keeps two pixels of margin on each side.
        EXPECT_LE(box->fontMetrics().horizontalAdvance(values[i]) + 4, box->contentsRect().width()) << i;
    }
}

struct CopyCase {
    const char* button;
    const char* box;
    const char* value;
    friend void PrintTo(const CopyCase& c, std::ostream* os) { *os << c.button; }
};

class HelpCopy : public testing::TestWithParam<CopyCase> {};

TEST_P(HelpCopy, PutsTheFixedValueOnTheClipboard) {
    ScriptedDialogs dialogs;
    dialogs.clipboard = u"something else"_s;
    HelpDialog window(dialogs);
    window.show();
    // What the box shows doesn't matter: the button copies the constant.
    auto* box = window.findChild<QLineEdit*>(QString::fromLatin1(GetParam().box));
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->text(), QString::fromLatin1(GetParam().value));
    box->setText(u"changed"_s);

    QTest::mouseClick(window.findChild<QPushButton*>(QString::fromLatin1(GetParam().button)), Qt::LeftButton);

    EXPECT_EQ(dialogs.clipboard, QString::fromLatin1(GetParam().value));
    EXPECT_EQ(dialogs.Calls().size(), 1u) << "no message follows";
    EXPECT_TRUE(window.isVisible());
    window.close();
}

INSTANTIATE_TEST_SUITE_P(
    Buttons, HelpCopy,
    testing::Values(CopyCase{"Command2", "Text1", "http://www.qzt-clan.example/flickerscribe"},
                    CopyCase{"Command3", "Text2",
                             "http://www.qzt-clan.example/flickerscribe/forums/index.php"},
                    CopyCase{"Command4", "Text3", "quillon@qzt-clan.example"},
                    CopyCase{"Command5", "Text4", "123456789"}),
    [](const auto& info) { return std::string(info.param.button); });

}  // namespace
}  // namespace flickerscribe::ui
