#include <QApplication>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

#include "LineTestSupport.h"
#include "ui/EditTimeDialog.h"
#include "ui/LineListView.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui::testing_support {
namespace {

struct TypedCase {
    const char* before;
    int caret;          // -1: at the end, where SetPreview leaves it
    const char* typed;  // "\b" is Backspace, "\r" Enter
    const char* after;
    friend void PrintTo(const TypedCase& c, std::ostream* os) {
        *os << c.before << " + " << testing::PrintToString(c.typed);
    }
};

class TypedInThePane : public LinesTest, public testing::WithParamInterface<TypedCase> {};

// What is typed reaches the selected line at once, in its normal form, and
// the caret stays behind it.
TEST_P(TypedInThePane, ReachesTheLineInNormalForm) {
    Start({std::string(GetParam().before) + "/30", "other/20"}, 1);
    window->SetPreview();
    if (GetParam().caret >= 0) window->PreviewPane().SetSelStart(GetParam().caret);
    const int caret = window->PreviewPane().SelStart();
    const auto shownBefore = static_cast<int>(PaneText().size());
    QTest::keyClicks(window->PaneEdit(), QString::fromLatin1(GetParam().typed));
    EXPECT_EQ(Lines(), TextTimes({std::string(GetParam().after) + "/30", "other/20"}));
    const int moved = static_cast<int>(PaneText().size()) - shownBefore;
    EXPECT_EQ(window->PreviewPane().SelStart(), caret + moved);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, TypedInThePane,
    testing::Values(TypedCase{"^1ab^2cd", -1, "x", "^1ab^2cdx"},
                    TypedCase{"^8x^2y^7z", -1, "!", "^8x^2y^7z!"}, TypedCase{"^7Hello", -1, "!", "Hello!"},
                    TypedCase{"ab^7cd", -1, "e", "abcde"}, TypedCase{"^1ab^1cd", -1, "e", "^1abcde"},
                    TypedCase{"^0Hi^9you", -1, "!", "Hi^1you!"}, TypedCase{"ab^1", -1, "c", "abc"},
                    TypedCase{"a^xb", -1, "c", "abc"},
                    // An empty pane types in its default colour, black.
                    TypedCase{"", -1, "x", "^8x"}, TypedCase{"^3", -1, "x", "^8x"},
                    // A caret typed is a plain character of the pane and of the line.
                    TypedCase{"abc", 1, "^1", "a^1bc"}, TypedCase{"^1abcd", 2, "X", "^1abXcd"},
                    TypedCase{"^1abc", -1, "\b\b\b", ""}, TypedCase{"ab", 1, "\r", "ab"}));

TEST_F(LinesTest, TextDroppedIntoThePaneArrivesPlainOnOneLine) {
    Start({"ab/15"}, 1);
    window->SetPreview();
    QMimeData mime;
    mime.setText(u"one\r\ntwo\nthree"_s);
    mime.setHtml(u"<p style=\"color:#ff0000\">one</p><p>two</p>"_s);
    QWidget* viewport = window->PaneEdit()->viewport();
    const QPoint at(viewport->width() - 2, viewport->height() / 2);
    QDragEnterEvent enter(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &enter);
    QDropEvent drop(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &drop);
    EXPECT_EQ(Script().LineAt(1).Text, "abone two three");
}

struct ColourCase {
    const char* name;
    const char* before;
    int selStart, selLength;
    int button;
    const char* typedAfter;
    const char* after;
    friend void PrintTo(const ColourCase& c, std::ostream* os) { *os << c.name; }
};

class ColourButton : public LinesTest, public testing::WithParamInterface<ColourCase> {};

TEST_P(ColourButton, ColoursTheSelectionOrWhatIsTypedNext) {
    const ColourCase& c = GetParam();
    Start({std::string(c.before) + "/15"}, 1);
    window->SetPreview();
    window->PreviewPane().SetSelStart(c.selStart);
    window->PreviewPane().SetSelLength(c.selLength);
    Named<QPushButton>(u"cmdColor_%1"_s.arg(c.button))->click();
    EXPECT_EQ(window->PreviewPane().SelStart(), c.selStart) << "the caret at the start of the stretch";
    EXPECT_EQ(window->PreviewPane().SelLength(), 0);
    QTest::keyClicks(window->PaneEdit(), QString::fromLatin1(c.typedAfter));
    EXPECT_EQ(Script().LineAt(1).Text, c.after);
}

INSTANTIATE_TEST_SUITE_P(Cases, ColourButton,
                         testing::Values(ColourCase{"RedStretch", "abcd", 1, 2, 0, "", "a^1bc^7d"},
                                         ColourCase{"BlackStretch", "abcd", 1, 2, 7, "", "a^8bc^7d"},
                                         ColourCase{"WhiteStretch", "^1abcd", 0, 1, 6, "", "a^1bcd"},
                                         ColourCase{"NothingSelected", "ab", 2, 0, 1, "c", "ab^2c"},
                                         ColourCase{"EmptyPane", "", 0, 0, 0, "x", "^8x"}),
                         testing::PrintToStringParamName());

struct StateCase {
    const char* name;
    std::function<void(MainWindow&)> enter;
    bool reachesTheLine;
    friend void PrintTo(const StateCase& c, std::ostream* os) { *os << c.name; }
};

class PaneState : public LinesTest, public testing::WithParamInterface<StateCase> {};

// A change in the pane goes to the line selected now, unless the pane is
// drawing, playing, or there is no line.
TEST_P(PaneState, DecidesWhetherAChangeReachesTheLine) {
    Start(kABC, 2);
    window->SetPreview();
    GetParam().enter(*window);
    window->PaneEdit()->moveCursor(QTextCursor::End);
    window->PaneEdit()->insertPlainText(u"!"_s);
    TextTimes expected = Script().Count() > 0 ? kABC : TextTimes{};
    if (GetParam().reachesTheLine) expected[Script().SelectedIndex() - 1].insert(1, "!");
    EXPECT_EQ(Lines(), expected);
    if (window->Playing()) window->TogglePlayback();
}

INSTANTIATE_TEST_SUITE_P(
    States, PaneState,
    testing::Values(StateCase{"Editing", [](MainWindow&) {}, true},
                    // The pane follows the selection: C is shown and edited.
                    StateCase{"AnotherLineSelected", [](MainWindow& w) { w.Script().SelectLine(3); }, true},
                    StateCase{"AllRemoved", [](MainWindow& w) { w.NewAnimation(); }, false},
                    StateCase{"Drawing", [](MainWindow& w) { w.SetPreviewBusy(true); }, false},
                    StateCase{"Playing", [](MainWindow& w) { w.TogglePlayback(); }, false},
                    StateCase{"PlayingAfterAClick",
                              [](MainWindow& w) {
                                  w.TogglePlayback();
                                  w.ShowClickedLine(1);
                              },
                              false}),
    testing::PrintToStringParamName());

TEST_F(LinesTest, OnlyTheCtrlKeyTakesTheFocusFromThePaneToTheList) {
    Start({"ab/15"}, 1);
    window->SetPreview();
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    for (Qt::Key key : {Qt::Key_Shift, Qt::Key_Alt, Qt::Key_Q, Qt::Key_Control}) {
        window->PaneEdit()->setFocus();
        QTest::keyPress(window->PaneEdit(), key);
        QTest::keyRelease(QApplication::focusWidget(), key);
        EXPECT_EQ(QApplication::focusWidget() == window->LineList(), key == Qt::Key_Control) << key;
    }
}

struct ListKeyCase {
    const char* name;
    TextTimes start;
    int selected;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    TextTimes expected;
    const char* shown;
    bool message = false;
    friend void PrintTo(const ListKeyCase& c, std::ostream* os) { *os << c.name; }
};

class KeyInTheList : public LinesTest, public testing::WithParamInterface<ListKeyCase> {};

// The list moves first, then the pane shows the selected line, after any key.
TEST_P(KeyInTheList, ActsThenShowsTheSelectedLine) {
    Start(GetParam().start, GetParam().selected);
    MarkPane();
    QTest::keyClick(window->LineList(), GetParam().key, GetParam().modifiers);
    EXPECT_EQ(Lines(), GetParam().expected);
    EXPECT_EQ(PaneText(), GetParam().shown);
    EXPECT_EQ(PaneLocked(), GetParam().expected.empty());
    ASSERT_EQ(dialogs.Messages().size(), GetParam().message ? 1u : 0u);
    if (GetParam().message) {
        EXPECT_EQ(dialogs.Messages()[0].text, u"Can't remove line."_s);
    }
}

const TextTimes kAC = {"A/10", "C/30"};

INSTANTIATE_TEST_SUITE_P(
    Keys, KeyInTheList,
    testing::Values(ListKeyCase{"Down", kABC, 1, Qt::Key_Down, {}, kABC, "B"},
                    ListKeyCase{"Up", kABC, 3, Qt::Key_Up, {}, kABC, "B"},
                    ListKeyCase{"PageDown", kABC, 1, Qt::Key_PageDown, {}, kABC, "C"},
                    ListKeyCase{"CtrlEnd", kABC, 1, Qt::Key_End, Qt::ControlModifier, kABC, "C"},
                    ListKeyCase{"DownAtTheEnd", kABC, 3, Qt::Key_Down, {}, kABC, "C"},
                    ListKeyCase{"Shift", kABC, 2, Qt::Key_Shift, {}, kABC, "B"},
                    ListKeyCase{"Delete", kABC, 2, Qt::Key_Delete, {}, kAC, "C"},
                    ListKeyCase{"ShiftDelete", kABC, 2, Qt::Key_Delete, Qt::ShiftModifier, kAC, "C"},
                    ListKeyCase{"CtrlDelete", kABC, 2, Qt::Key_Delete, Qt::ControlModifier, kAC, "C"},
                    ListKeyCase{"DeleteTheOnly", {"^1A/10"}, 1, Qt::Key_Delete, {}, {}, "Preview"},
                    ListKeyCase{"DeleteOfNone", {}, 0, Qt::Key_Delete, {}, {}, "Preview", true}),
    testing::PrintToStringParamName());

struct InPlaceCase {
    const char* name;
    const char* setting;
    int column;
    bool opens;
    friend void PrintTo(const InPlaceCase& c, std::ostream* os) { *os << c.name; }
};

class InPlaceEdit : public LinesTest, public testing::WithParamInterface<InPlaceCase> {};

// With the setting on, a click on the selected line's text opens an editor
// whose text goes straight to the line; the pane isn't redrawn.
TEST_P(InPlaceEdit, OpensOnlyOnTheSelectedLinesText) {
    store.WriteValue(u"EditItem"_s, QString::fromLatin1(GetParam().setting));
    MakeWindow();
    Start(kABC, 2);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    LineListView* list = window->LineList();
    const QRect cell = list->visualRect(list->model()->index(1, GetParam().column));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, cell.center());
    // The editor waits until the click can no longer become a double click.
    const auto editor = [list] { return list->viewport()->findChild<QLineEdit*>(); };
    const int wait = QApplication::doubleClickInterval() + (GetParam().opens ? 2000 : 300);
    ASSERT_EQ(QTest::qWaitFor([&] { return editor() && editor()->isVisible(); }, wait), GetParam().opens);
    if (!GetParam().opens) return;
    EXPECT_EQ(editor()->text(), u"B"_s);
    editor()->selectAll();
    QTest::keyClicks(editor(), u"^1new"_s);
    QTest::keyClick(editor(), Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Script().LineAt(2).Text != "B"; }));
    EXPECT_EQ(Lines(), TextTimes({"A/10", "^1new/20", "C/30"}));
    EXPECT_EQ(PaneText(), "new");
}

INSTANTIATE_TEST_SUITE_P(Cases, InPlaceEdit,
                         testing::Values(InPlaceCase{"OnText", "1", 0, true},
                                         InPlaceCase{"OnTime", "1", 1, false},
                                         InPlaceCase{"OnAction", "1", 2, false},
                                         InPlaceCase{"OffText", "0", 0, false}),
                         testing::PrintToStringParamName());

TEST_F(LinesTest, EditButtonOpensTheEditDialogModallyOverTheMainWindow) {
    Start(kABC, 2);
    bool seen = false;
    QTimer::singleShot(0, window.get(), [&] {
        QWidget* modal = QApplication::activeModalWidget();
        auto* edit = qobject_cast<EditTimeDialog*>(modal);
        seen = edit != nullptr && edit->parentWidget() == window.get();
        if (!seen) {
            if (modal) modal->close();
            return;
        }
        edit->findChild<QLineEdit*>(u"txtTime"_s)->setText(u"25"_s);
        edit->findChild<QPushButton*>(u"cmdOK"_s)->click();
    });
    window->RunToolbarCommand(u"btnedit"_s);
    EXPECT_TRUE(seen);
    EXPECT_EQ(Lines(), TextTimes({"A/10", "B/25", "C/30"}));
}

}  // namespace
}  // namespace flickerscribe::ui::testing_support
