#include <gmock/gmock.h>

#include <QApplication>
#include <QClipboard>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>
#include <string>
#include <variant>
#include <vector>

#include "ScriptedDialogs.h"
#include "WindowChecks.h"
#include "colour/Pane.h"
#include "document/AnimationScript.h"
#include "ui/AnimationHistory.h"
#include "ui/ColourNameEditor.h"
#include "ui/SimpleEditWindow.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {
namespace {

using testing_support::ExpectFixedDialog;
using testing_support::ExpectLayout;

// What the user does in a painting window, step by step.
struct Type {
    const char* text;  // '\n' presses Enter, '\r' Shift+Enter
};
struct Select {
    int start, length;
};
struct Paint {
    int button;  // index of the colour button
};
struct Paste {
    const char* text;
};
using Step = std::variant<Type, Select, Paint, Paste>;

void Perform(QWidget& window, Pane& pane, const std::vector<Step>& steps) {
    auto* edit = window.findChild<QTextEdit*>(u"txtPreview"_s);
    for (const Step& step : steps) {
        if (const auto* type = std::get_if<Type>(&step)) {
            for (const char* c = type->text; *c != '\0'; ++c) {
                if (*c == '\n' || *c == '\r') {
                    QTest::keyClick(edit, Qt::Key_Return, *c == '\r' ? Qt::ShiftModifier : Qt::NoModifier);
                } else {
                    QTest::keyClicks(edit, QString(QChar::fromLatin1(*c)));
                }
            }
        } else if (const auto* select = std::get_if<Select>(&step)) {
            pane.SetSelStart(select->start);
            pane.SetSelLength(select->length);
        } else if (const auto* paste = std::get_if<Paste>(&step)) {
            QApplication::clipboard()->setText(QString::fromLatin1(paste->text));
            edit->paste();
        } else {
            auto* button = window.findChild<QPushButton*>(u"cmdColor_%1"_s.arg(std::get<Paint>(step).button));
            ASSERT_NE(button, nullptr);
            QTest::mouseClick(button, Qt::LeftButton);
        }
    }
}

std::string CaseName(const char* text) {
    std::string name;
    for (const char* c = text; *c != '\0'; ++c)
        name += std::isalnum(static_cast<unsigned char>(*c)) ? *c : '_';
    return name;
}

// ---------------------------------------------------------------- colour editor

TEST(ColorEditor, WindowAsDesigned) {
    ScriptedDialogs dialogs;
    ColourNameEditor window(dialogs);
    EXPECT_EQ(window.windowTitle(), u"Color name editor"_s);
    ExpectFixedDialog(window, 4515, 2265);
    ExpectLayout(window, {
                             {"cmdColor_0", " ", 120, 120, 375, 375},
                             {"cmdColor_8", " ", 120 + 480 * 8, 120, 375, 375},
                             {"Label3", "Color your text here", 120, 720, 1695, 255},
                             {"txtPreview", nullptr, 120, 960, 4320, 495},
                             {"cmdClipboard", "Copy to clipboard", 120, 1800, 1455, 375},
                             {"cmdClose", "Close", 3240, 1800, 1095, 375},
                         });
}

struct ClipboardCase {
    const char* name;
    std::vector<Step> steps;
    const char* clipboard;
    friend void PrintTo(const ClipboardCase& c, std::ostream* os) { *os << c.name; }
};

const ClipboardCase kClipboardCases[] = {
    {"never painted", {Type{"plain"}}, "plain"},
    {"red then never painted", {Type{"Name"}, Select{0, 2}, Paint{0}}, "^1Na^8me"},
    {"red white red",
     {Type{"Name!"}, Select{0, 2}, Paint{0}, Select{2, 2}, Paint{6}, Select{4, 1}, Paint{0}},
     "^1Na^7me^1!"},
    {"white then never painted", {Type{"Name"}, Select{0, 2}, Paint{6}}, "^7Na^8me"},
    {"empty pane", {}, ""},
    {"painted black is like never painted", {Type{"Name"}, Select{0, 4}, Paint{7}}, "Name"},
    {"ninth button paints the red of code 1", {Type{"Name"}, Select{0, 4}, Paint{8}}, "^1Name"},
    {"one code for neighbouring runs of a colour",
     {Type{"abcd"}, Select{0, 2}, Paint{1}, Select{2, 2}, Paint{1}},
     "^2abcd"},
    {"colour at the caret takes what is typed next", {Type{"ab"}, Paint{2}, Type{"xy"}}, "ab^3xy"},
    {"colour at the caret shows nothing until typing", {Type{"ab"}, Paint{4}}, "ab"},
    {"typed carets are plain characters", {Type{"^1x"}, Select{0, 3}, Paint{5}}, "^6^1x"},
    {"Enter keeps the pane on one line", {Type{"ab\ncd"}}, "abcd"},
    {"pasted lines are joined in the colour for typing", {Paint{0}, Paste{"ab\ncd\r\nef"}}, "^1ab cd ef"},
};

class ColorEditorClipboard : public testing::TestWithParam<ClipboardCase> {};

TEST_P(ColorEditorClipboard, CopiesThePaneAsCodedText) {
    ScriptedDialogs dialogs;
    ColourNameEditor window(dialogs);
    window.show();
    Perform(window, window.PreviewPane(), GetParam().steps);

    QTest::mouseClick(window.findChild<QPushButton*>(u"cmdClipboard"_s), Qt::LeftButton);

    EXPECT_EQ(dialogs.clipboard, QString::fromLatin1(GetParam().clipboard));
    EXPECT_EQ(dialogs.Calls().size(), 1u) << "one clipboard write, no message";
    EXPECT_TRUE(window.isVisible()) << "copying leaves the window open";
    window.close();
}

INSTANTIATE_TEST_SUITE_P(Table, ColorEditorClipboard, testing::ValuesIn(kClipboardCases),
                         [](const auto& info) { return CaseName(info.param.name); });

TEST(ColorEditor, EscapeClosesTheWindow) {
    ScriptedDialogs dialogs;
    ColourNameEditor window(dialogs);
    window.show();
    QTest::keyClick(window.findChild<QTextEdit*>(u"txtPreview"_s), Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(dialogs.Calls().empty());
}

// ---------------------------------------------------------------- simple edit

TEST(SimpleEdit, WindowAsDesigned) {
    AnimationScript script;
    ScriptedDialogs dialogs;
    AnimationHistory history(script);
    SimpleEditWindow window(history, dialogs);
    EXPECT_EQ(window.windowTitle(), u"Simple edit"_s);
    EXPECT_NE(window.minimumSize(), window.maximumSize()) << "the window can be resized";
    EXPECT_EQ(window.size(), QSize(Twips(6345), Twips(4590)));
    ExpectLayout(window, {
                             {"picColors", nullptr, 0, 0, 6015, 495},
                             {"txtPreview", nullptr, 0, 480, 6015, 3975},
                             {"cmdColor_0", " ", 0, 50, 375, 375},
                             {"cmdColor_7", " ", 480 * 7, 50, 375, 375},
                             {"cmdSave", "Save", 3840, 50, 975, 375},
                             {"cmdClose", "Close", 4920, 50, 975, 375},
                         });
}

std::vector<AnimationLine> Lines(std::initializer_list<const char*> texts) {
    std::vector<AnimationLine> lines;
    for (const char* text : texts) lines.push_back(AnimationLine{text, "15", "[none]"});
    return lines;
}

struct SaveCase {
    const char* name;
    std::vector<Step> steps;
    std::vector<AnimationLine> lines;
    friend void PrintTo(const SaveCase& c, std::ostream* os) { *os << c.name; }
};

const SaveCase kSaveCases[] = {
    // Pane positions: "ab" 0-1, break 2, "cde" 3-5, break 6, blanks 7-9,
    // breaks 10 and 11, "f" 12.
    {"worked example",
     {Type{"ab\ncde\n   \n\nf"}, Select{0, 2}, Paint{0}, Select{3, 2}, Paint{0}, Select{5, 1}, Paint{1},
      Select{7, 3}, Paint{1}, Select{12, 1}, Paint{6}},
     Lines({"^1ab", "cd^2e", "^7f"})},
    {"empty pane empties the list", {}, {}},
    {"white blanks and empty lines empty the list", {Type{"   \n\n  \n"}, Select{0, 9}, Paint{6}}, {}},
    {"never painted text gets code 8", {Type{"plain"}}, Lines({"^8plain"})},
    {"white at the start needs no code", {Type{"plain"}, Select{0, 5}, Paint{6}}, Lines({"plain"})},
    {"Shift Enter starts a new line too", {Type{"ab\rcd"}}, Lines({"^8ab", "cd"})},
};

class SimpleEditSave : public testing::TestWithParam<SaveCase> {};

TEST_P(SimpleEditSave, ReplacesTheListWithThePaneLines) {
    AnimationScript script;
    script.AppendLine("^1old", "40", "[none]");
    script.AppendLine("older", "abc", "[none]");
    script.SelectLine(2);
    ScriptedDialogs dialogs;
    AnimationHistory history(script);
    SimpleEditWindow window(history, dialogs);
    window.show();
    Perform(window, window.PreviewPane(), GetParam().steps);
    const std::string paneText = window.PreviewPane().Text();

    QTest::mouseClick(window.findChild<QPushButton*>(u"cmdSave"_s), Qt::LeftButton);

    std::vector<AnimationLine> lines;
    for (int i = 1; i <= script.Count(); ++i) lines.push_back(script.LineAt(i));
    EXPECT_EQ(lines, GetParam().lines);
    EXPECT_EQ(script.SelectedIndex(), script.Count() > 0 ? 1 : 0);
    EXPECT_TRUE(dialogs.Calls().empty()) << "Save asks nothing";
    EXPECT_TRUE(window.isVisible()) << "the window stays open";
    EXPECT_EQ(window.PreviewPane().Text(), paneText) << "the pane keeps its text";
    window.close();
}

INSTANTIATE_TEST_SUITE_P(Table, SimpleEditSave, testing::ValuesIn(kSaveCases),
                         [](const auto& info) { return CaseName(info.param.name); });

TEST(SimpleEdit, FullListStopsTheSaveAndTellsTheUser) {
    AnimationScript script;
    ScriptedDialogs dialogs;
    AnimationHistory history(script);
    SimpleEditWindow window(history, dialogs);
    std::string text;
    for (int i = 0; i < kMaxLines + 2; ++i) text += "x\n";
    window.PreviewPane().SetRuns({ColouredRun{text, Rgb(0, 255, 0)}});

    window.SaveToList();

    EXPECT_EQ(script.Count(), kMaxLines);
    EXPECT_EQ(script.LineAt(1).Text, "^2x");
    EXPECT_EQ(script.LineAt(kMaxLines).Text, "x");
    ASSERT_EQ(dialogs.Messages().size(), 1u);
    EXPECT_EQ(dialogs.Messages()[0].parent, &window);
}

TEST(SimpleEdit, EscapeDoesNotThrowThePaneAway) {
    AnimationScript script;
    ScriptedDialogs dialogs;
    AnimationHistory history(script);
    SimpleEditWindow window(history, dialogs);
    window.show();
    auto* edit = window.findChild<QTextEdit*>(u"txtPreview"_s);
    QTest::keyClicks(edit, u"abc"_s);
    QTest::keyClick(edit, Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible());
    QTest::mouseClick(window.findChild<QPushButton*>(u"cmdClose"_s), Qt::LeftButton);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(script.Count(), 0) << "closing saves nothing";
}

struct ResizeCase {
    const char* name;
    int width, height;
    bool minimised;
    friend void PrintTo(const ResizeCase& c, std::ostream* os) { *os << c.name; }
};

class SimpleEditResize : public testing::TestWithParam<ResizeCase> {};

TEST_P(SimpleEditResize, PaneFillsTheWindowBelowTheStrip) {
    const ResizeCase& c = GetParam();
    AnimationScript script;
    ScriptedDialogs dialogs;
    AnimationHistory history(script);
    SimpleEditWindow window(history, dialogs);
    window.show();
    const auto* strip = window.findChild<QWidget*>(u"picColors"_s);
    const auto* pane = window.findChild<QWidget*>(u"txtPreview"_s);
    const QRect designed = pane->geometry();
    if (c.minimised) window.setWindowState(Qt::WindowMinimized);
    window.resize(c.width, c.height);
    ASSERT_TRUE(QTest::qWaitFor([&] { return window.size() == QSize(c.width, c.height); }));

    if (c.minimised) {
        EXPECT_EQ(pane->geometry(), designed);
    } else {
        EXPECT_EQ(strip->geometry(), QRect(0, 0, c.width, Twips(495)));
        EXPECT_EQ(pane->geometry(), QRect(0, Twips(480), c.width, std::max(0, c.height - Twips(495))));
    }
    window.close();
}

INSTANTIATE_TEST_SUITE_P(Sizes, SimpleEditResize,
                         testing::Values(ResizeCase{"Wide", 900, 300, false},
                                         ResizeCase{"LowerThanTheStrip", 400, 20, false},
                                         ResizeCase{"Minimised", 300, 200, true}),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace flickerscribe::ui
