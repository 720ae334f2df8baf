#include <gmock/gmock.h>

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>

#include "ScriptedDialogs.h"
#include "WindowChecks.h"
#include "colour/Palette.h"
#include "colour/Pane.h"
#include "ui/frmAbout.h"
#include "ui/frmHelp.h"

using namespace Qt::Literals::StringLiterals;

namespace fs::ui {
namespace {

using testing_support::ExpectFixedDialog;
using testing_support::ExpectLayout;

constexpr Colour kRed = Rgb(255, 0, 0);
constexpr Colour kGreen = Rgb(0, 255, 0);

// ---------------------------------------------------------------- About

TEST(About, WindowAsDesigned) {
    frmAbout window;
    EXPECT_EQ(window.windowTitle(), u"About Flickerscribe"_s);
    ExpectFixedDialog(window, 5730, 3045);
    ExpectLayout(window,
                 {
                     {"txtPreview", nullptr, 120, 120, 5415, 2175},
                     {"Label1",
                      "Flickerscribe website @ http://www.qzt-clan.example/flickerscribe [QZT] Website @ "
                      "http://www.qzt-clan.example/clanqzt ",
                      120, 2520, 3615, 495},
                     {"cmdOK", "OK", 4245, 2625, 1260, 345},
                 });
}

TEST(About, CodedTextHasTheBuildVersion) {
    EXPECT_EQ(AboutText(), "^1Flicker^7scribe\r\n\r\nVersion ^80.5.0\r\n^8Made by ^7[QZT]^2Quillon\r\n");
}

TEST(About, PaneShowsNameVersionAndMakerInTheirColours) {
    frmAbout window;
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
    frmAbout window;
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

TEST(Help, WindowAsDesigned) {
    ScriptedDialogs dialogs;
    frmHelp window(dialogs);
    EXPECT_EQ(window.windowTitle(), u"Help!!"_s);
    ExpectFixedDialog(window, 4470, 4620);
    ExpectLayout(window, {
                             {"fraFAQ", "Help + FAQ + Tutorial", 120, 120, 4215, 855},
                             {"Text1", "http://www.qzt-clan.example/flickerscribe", 120, 360, 3495, 375},
                             {"Command2", "", 3720, 360, 375, 375},
                             {"Frame1", "Forums", 120, 1080, 4215, 855},
                             {"Text2", "http://www.qzt-clan.example/flickerscribe/forums/index.php", 120, 360,
                              3495, 375},
                             {"Command3", "", 3720, 360, 375, 375},
                             {"Frame2", "Contact me", 120, 2160, 4215, 1695},
                             {"Label1", "Email", 120, 240, 1695, 255},
                             {"Text3", "quillon@qzt-clan.example", 120, 480, 3495, 375},
                             {"Command4", "", 3720, 480, 375, 375},
                             {"Label2", "ICQ", 120, 960, 1695, 255},
                             {"Text4", "123456789", 120, 1200, 3495, 375},
                             {"Command5", "", 3720, 1200, 375, 375},
                             {"Command1", "Close", 2880, 4080, 1455, 375},
                         });
    for (const char* name : {"Text1", "Text2", "Text3", "Text4"}) {
        const auto* box = window.findChild<QLineEdit*>(QString::fromLatin1(name));
        EXPECT_TRUE(box->isReadOnly()) << name;
        EXPECT_EQ(box->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignHCenter) << name;
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
    frmHelp window(dialogs);
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
}  // namespace fs::ui
