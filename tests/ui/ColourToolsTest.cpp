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
#include "colour/Palette.h"
#include "colour/Pane.h"
#include "document/AnimationScript.h"
#include "ui/frmColorEditor.h"
#include "ui/frmSimpleEdit.h"

using namespace Qt::Literals::StringLiterals;

namespace fs::ui {
namespace {

using testing_support::ExpectFixedDialog;
using testing_support::ExpectLayout;

constexpr Colour kRed = Rgb(255, 0, 0);
constexpr Colour kGreen = Rgb(0, 255, 0);

// What the user does in a painting window, step by step.
struct Type {
    const char* text;  // '\n' presses Enter
};
struct Select {
    int start, length;
};
struct Paint {
    int button;  // index of cmdColor
};
using Step = std::variant<Type, Select, Paint>;

void Perform(QWidget& window, Pane& pane, const std::vector<Step>& steps) {
    auto* edit = window.findChild<QTextEdit*>(u"txtPreview"_s);
    ASSERT_NE(edit, nullptr);
    for (const Step& step : steps) {
        if (const auto* type = std::get_if<Type>(&step)) {
            for (const char* c = type->text; *c != '\0'; ++c) {
                if (*c == '\n') {
                    QTest::keyClick(edit, Qt::Key_Return);
                } else {
                    QTest::keyClicks(edit, QString(QChar::fromLatin1(*c)));
                }
            }
        } else if (const auto* select = std::get_if<Select>(&step)) {
            pane.SetSelStart(select->start);
            pane.SetSelLength(select->length);
        } else {
            auto* button = window.findChild<QPushButton*>(u"cmdColor_%1"_s.arg(std::get<Paint>(step).button));
            ASSERT_NE(button, nullptr);
            QTest::mouseClick(button, Qt::LeftButton);
        }
    }
}

// ---------------------------------------------------------------- colour editor

TEST(ColorEditor, WindowAsDesigned) {
    ScriptedDialogs dialogs;
    frmColorEditor window(dialogs);
    EXPECT_EQ(window.objectName(), u"frmColorEditor"_s);
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
    EXPECT_EQ(window.findChild<QWidget*>(u"cmdColor_9"_s), nullptr);
    const auto* pane = window.findChild<QTextEdit*>(u"txtPreview"_s);
    EXPECT_TRUE(pane->font().bold());
    EXPECT_EQ(pane->font().pointSizeF(), 12.0);
    EXPECT_EQ(pane->palette().color(QPalette::Base), QColor(128, 128, 128));
    EXPECT_TRUE(pane->toPlainText().isEmpty());
}

struct ClipboardCase {
    const char* name;
    std::vector<Step> steps;
    const char* clipboard;
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
    {"neighbouring runs of one colour give one code",
     {Type{"abcd"}, Select{0, 2}, Paint{1}, Select{2, 2}, Paint{1}},
     "^2abcd"},
    {"colour chosen at the caret takes the text typed next", {Type{"ab"}, Paint{2}, Type{"xy"}}, "ab^3xy"},
    {"colour at the caret shows nothing until typing", {Type{"ab"}, Paint{4}}, "ab"},
    {"typed carets are plain characters", {Type{"^1x"}, Select{0, 3}, Paint{5}}, "^6^1x"},
};

class ColorEditorClipboard : public testing::TestWithParam<ClipboardCase> {};

TEST_P(ColorEditorClipboard, CopiesThePaneAsCodedText) {
    ScriptedDialogs dialogs;
    frmColorEditor window(dialogs);
    window.show();
    Perform(window, window.PreviewPane(), GetParam().steps);

    QTest::mouseClick(window.findChild<QPushButton*>(u"cmdClipboard"_s), Qt::LeftButton);

    EXPECT_EQ(dialogs.clipboard, QString::fromLatin1(GetParam().clipboard));
    EXPECT_EQ(dialogs.CallsOf(DialogCall::Kind::SetClipboard).size(), 1u);
    EXPECT_TRUE(dialogs.Messages().empty());
    EXPECT_TRUE(window.isVisible()) << "copying leaves the window open";
    window.close();
}

INSTANTIATE_TEST_SUITE_P(Table, ColorEditorClipboard, testing::ValuesIn(kClipboardCases),
                         [](const auto& info) { return "case" + std::to_string(info.index); });

TEST(ColorEditor, NinthButtonPaintsLikeTheFirst) {
    ScriptedDialogs dialogs;
    frmColorEditor window(dialogs);
    window.show();
    Pane& pane = window.PreviewPane();
    Perform(window, pane, {Type{"ab"}, Select{0, 1}, Paint{8}});
    Perform(window, pane, {Select{1, 1}, Paint{0}});
    ASSERT_EQ(pane.Runs().size(), 1u);
    EXPECT_EQ(pane.Runs()[0].colour, kRed);
    window.close();
}

TEST(ColorEditor, CopyLeavesTheLastCharacterSelected) {
    ScriptedDialogs dialogs;
    frmColorEditor window(dialogs);
    window.show();
    Pane& pane = window.PreviewPane();
    Perform(window, pane, {Type{"Name"}, Select{0, 1}});
    window.cmdClipboard_Click();
    EXPECT_EQ(pane.SelStart(), 3);
    EXPECT_EQ(pane.SelLength(), 1);
    window.close();
}

TEST(ColorEditor, EnterKeepsThePaneOnOneLine) {
    ScriptedDialogs dialogs;
    frmColorEditor window(dialogs);
    window.show();
    Perform(window, window.PreviewPane(), {Type{"ab\ncd"}});
    EXPECT_EQ(window.PreviewPane().Text(), "abcd");
    EXPECT_TRUE(window.isVisible());
    window.close();
}

TEST(ColorEditor, PastedLinesJoinInTheColourChosenForTyping) {
    ScriptedDialogs dialogs;
    frmColorEditor window(dialogs);
    window.show();
    QApplication::clipboard()->setText(u"ab\ncd\r\nef"_s);
    Perform(window, window.PreviewPane(), {Paint{0}});
    window.findChild<QTextEdit*>(u"txtPreview"_s)->paste();
    window.cmdClipboard_Click();
    EXPECT_EQ(dialogs.clipboard, u"^1ab cd ef"_s);
    window.close();
}

struct CloseCase {
    const char* name;
    bool byKey;
};

class ColorEditorClose : public testing::TestWithParam<CloseCase> {};

TEST_P(ColorEditorClose, EscapeClosesLikeTheCloseButton) {
    ScriptedDialogs dialogs;
    frmColorEditor window(dialogs);
    window.show();
    if (GetParam().byKey) {
        QTest::keyClick(window.findChild<QTextEdit*>(u"txtPreview"_s), Qt::Key_Escape);
    } else {
        QTest::mouseClick(window.findChild<QPushButton*>(u"cmdClose"_s), Qt::LeftButton);
    }
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(window.result(), QDialog::Rejected);
    EXPECT_TRUE(dialogs.Calls().empty());
}

INSTANTIATE_TEST_SUITE_P(Ways, ColorEditorClose,
                         testing::Values(CloseCase{"Escape", true}, CloseCase{"CloseButton", false}),
                         [](const auto& info) { return std::string(info.param.name); });

// ---------------------------------------------------------------- simple edit

std::vector<AnimationLine> LinesOf(const AnimationScript& script) {
    std::vector<AnimationLine> lines;
    for (int i = 1; i <= script.Count(); ++i) lines.push_back(script.LineAt(i));
    return lines;
}

std::vector<AnimationLine> Expected(std::initializer_list<const char*> texts) {
    std::vector<AnimationLine> lines;
    for (const char* text : texts) lines.push_back(AnimationLine{text, "15", "[none]"});
    return lines;
}

void FillWithOldLines(AnimationScript& script) {
    script.AppendLine("^1old", "40", "[none]");
    script.AppendLine("older", "7", "[none]");
    script.AppendLine("oldest", "abc", "[none]");
    script.SelectLine(3);
}

TEST(SimpleEdit, WindowAsDesigned) {
    AnimationScript script;
    ScriptedDialogs dialogs;
    frmSimpleEdit window(script, dialogs);
    EXPECT_EQ(window.objectName(), u"frmSimpleEdit"_s);
    EXPECT_EQ(window.windowTitle(), u"Simple edit"_s);
    EXPECT_EQ(window.windowType(), Qt::Dialog);
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
    EXPECT_EQ(window.findChild<QWidget*>(u"cmdColor_8"_s), nullptr);
    EXPECT_EQ(window.findChild<QWidget*>(u"cmdSave"_s)->parentWidget()->objectName(), u"picColors"_s);
    const auto* pane = window.findChild<QTextEdit*>(u"txtPreview"_s);
    EXPECT_EQ(pane->lineWrapMode(), QTextEdit::NoWrap);
    EXPECT_EQ(pane->font().pointSizeF(), 18.0);
    EXPECT_TRUE(pane->font().bold());
    EXPECT_EQ(pane->palette().color(QPalette::Base), QColor(128, 128, 128));
}

TEST(SimpleEdit, WorkedExampleTypedAndPainted) {
    AnimationScript script;
    FillWithOldLines(script);
    ScriptedDialogs dialogs;
    frmSimpleEdit window(script, dialogs);
    window.show();
    // Pane positions: "ab" 0-1, break 2, "cde" 3-5, break 6, blanks 7-9,
    // breaks 10 and 11, "f" 12.
    Perform(window, window.PreviewPane(),
            {Type{"ab\ncde\n   \n\nf"}, Select{0, 2}, Paint{0}, Select{3, 2}, Paint{0}, Select{5, 1},
             Paint{1}, Select{7, 3}, Paint{1}, Select{12, 1}, Paint{6}});

    QTest::mouseClick(window.findChild<QPushButton*>(u"cmdSave"_s), Qt::LeftButton);

    EXPECT_EQ(LinesOf(script), Expected({"^1ab", "cd^2e", "^7f"}));
    EXPECT_EQ(script.SelectedIndex(), 1);
    EXPECT_TRUE(dialogs.Calls().empty()) << "Save asks nothing";
    EXPECT_TRUE(window.isVisible()) << "the window stays open";
    EXPECT_EQ(window.PreviewPane().Text(), "ab\ncde\n   \n\nf") << "the pane keeps its text";

    // A second Save gives the same list again.
    window.cmdSave_Click();
    EXPECT_EQ(LinesOf(script), Expected({"^1ab", "cd^2e", "^7f"}));
    window.close();
}

struct SaveCase {
    const char* name;
    std::vector<Step> steps;
    std::vector<AnimationLine> lines;
};

const SaveCase kSaveCases[] = {
    {"empty pane empties the list", {}, {}},
    {"white blanks and empty lines empty the list", {Type{"   \n\n  \n"}, Select{0, 9}, Paint{6}}, {}},
    {"never painted text gets code 8", {Type{"plain"}}, Expected({"^8plain"})},
    {"white at the start needs no code", {Type{"plain"}, Select{0, 5}, Paint{6}}, Expected({"plain"})},
    {"no break gives one line", {Paint{2}, Type{"one"}}, Expected({"^3one"})},
    {"break at the very end adds nothing", {Paint{2}, Type{"one\n"}}, Expected({"^3one"})},
    {"colour runs on over the break", {Paint{3}, Type{"a\nb"}}, Expected({"^4a", "b"})},
    {"never painted lines after one another", {Type{"a\n\nb"}}, Expected({"^8a", "b"})},
    {"typed codes are copied as they stand", {Paint{6}, Type{"^1x"}}, Expected({"^1x"})},
};

class SimpleEditSave : public testing::TestWithParam<SaveCase> {};

TEST_P(SimpleEditSave, ReplacesTheListWithThePaneLines) {
    AnimationScript script;
    FillWithOldLines(script);
    ScriptedDialogs dialogs;
    frmSimpleEdit window(script, dialogs);
    window.show();
    Perform(window, window.PreviewPane(), GetParam().steps);

    window.cmdSave_Click();

    EXPECT_EQ(LinesOf(script), GetParam().lines);
    EXPECT_EQ(script.SelectedIndex(), script.Count() > 0 ? 1 : 0);
    EXPECT_TRUE(dialogs.Calls().empty());
    window.close();
}

INSTANTIATE_TEST_SUITE_P(Table, SimpleEditSave, testing::ValuesIn(kSaveCases),
                         [](const auto& info) { return "case" + std::to_string(info.index); });

TEST(SimpleEdit, ShiftEnterStartsANewLineToo) {
    AnimationScript script;
    ScriptedDialogs dialogs;
    frmSimpleEdit window(script, dialogs);
    window.show();
    auto* edit = window.findChild<QTextEdit*>(u"txtPreview"_s);
    QTest::keyClicks(edit, u"ab"_s);
    QTest::keyClick(edit, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(edit, u"cd"_s);
    window.cmdSave_Click();
    EXPECT_EQ(LinesOf(script), Expected({"^8ab", "cd"}));
    window.close();
}

TEST(SimpleEdit, FullListStopsTheSaveAndTellsTheUser) {
    AnimationScript script;
    ScriptedDialogs dialogs;
    frmSimpleEdit window(script, dialogs);
    std::string text;
    for (int i = 0; i < kMaxLines + 2; ++i) text += "x\n";
    window.PreviewPane().SetRuns({ColouredRun{text, kGreen}});

    window.cmdSave_Click();

    EXPECT_EQ(script.Count(), kMaxLines);
    EXPECT_EQ(script.LineAt(1).Text, "^2x");
    EXPECT_EQ(script.LineAt(kMaxLines).Text, "x");
    ASSERT_EQ(dialogs.Messages().size(), 1u);
    EXPECT_EQ(dialogs.Messages()[0].parent, &window);
}

TEST(SimpleEdit, EscapeDoesNotThrowThePaneAway) {
    AnimationScript script;
    ScriptedDialogs dialogs;
    frmSimpleEdit window(script, dialogs);
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
};

class SimpleEditResize : public testing::TestWithParam<ResizeCase> {};

TEST_P(SimpleEditResize, PaneFillsTheWindowBelowTheStrip) {
    AnimationScript script;
    ScriptedDialogs dialogs;
    frmSimpleEdit window(script, dialogs);
    window.show();
    window.resize(GetParam().width, GetParam().height);
    ASSERT_TRUE(QTest::qWaitFor([&] { return window.size() == QSize(GetParam().width, GetParam().height); }));
    const auto* strip = window.findChild<QWidget*>(u"picColors"_s);
    const auto* pane = window.findChild<QWidget*>(u"txtPreview"_s);

    EXPECT_EQ(strip->geometry(), QRect(0, 0, window.width(), Twips(495)));
    EXPECT_EQ(pane->x(), 0);
    EXPECT_EQ(pane->y(), Twips(480));
    EXPECT_EQ(pane->width(), window.width());
    EXPECT_EQ(pane->height(), std::max(0, window.height() - Twips(495)));
    window.close();
}

INSTANTIATE_TEST_SUITE_P(Sizes, SimpleEditResize,
                         testing::Values(ResizeCase{"Design", Twips(6345), Twips(4590)},
                                         ResizeCase{"Wide", 900, 300}, ResizeCase{"Narrow", 150, 500},
                                         ResizeCase{"LowerThanTheStrip", 400, 20}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(SimpleEdit, MinimisedWindowKeepsItsLayout) {
    AnimationScript script;
    ScriptedDialogs dialogs;
    frmSimpleEdit window(script, dialogs);
    window.show();
    const auto* pane = window.findChild<QWidget*>(u"txtPreview"_s);
    const QRect before = pane->geometry();
    window.setWindowState(Qt::WindowMinimized);
    window.resize(300, 200);
    window.Form_Resize();
    EXPECT_EQ(pane->geometry(), before);
    window.close();
}

}  // namespace
}  // namespace fs::ui
