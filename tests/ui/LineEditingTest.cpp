#include <QApplication>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

#include "LineTestSupport.h"
#include "ui/LineListView.h"
#include "ui/frmEdit.h"

using namespace Qt::Literals::StringLiterals;

namespace fs::ui::testing_support {
namespace {

using Editing = LinesTest;

// --- typing in the pane writes the line in its normal form

struct TypedCase {
    const char* before;
    const char* typed;
    const char* after;
};

class TypedCharacter : public LinesTest, public testing::WithParamInterface<TypedCase> {};

TEST_P(TypedCharacter, ReachesTheLineInNormalForm) {
    ASSERT_TRUE(Script().AppendLine(GetParam().before, "30", "[none]"));
    window->SetPreview();
    QTest::keyClicks(window->PreviewEdit(), QString::fromLatin1(GetParam().typed));
    EXPECT_EQ(Script().LineAt(1), (AnimationLine{GetParam().after, "30", "[none]"}));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, TypedCharacter,
    testing::Values(TypedCase{"^1ab^2cd", "x", "^1ab^2cdx"}, TypedCase{"^8x^2y^7z", "!", "^8x^2y^7z!"},
                    TypedCase{"^7Hello", "!", "Hello!"}, TypedCase{"ab^7cd", "e", "abcde"},
                    TypedCase{"^1ab^1cd", "e", "^1abcde"}, TypedCase{"^0Hi^9you", "!", "Hi^1you!"},
                    TypedCase{"ab^1", "c", "abc"}, TypedCase{"a^xb", "c", "abc"},
                    // An empty pane types in its own default colour, black.
                    TypedCase{"", "x", "^8x"}, TypedCase{"^3", "x", "^8x"}));

TEST_F(Editing, ACaretTypedInThePaneIsAPlainCharacterUntilTheNextDrawing) {
    AddLines({"abc"});
    window->SetPreview();
    window->PreviewPane().SetSelStart(1);
    QTest::keyClicks(window->PreviewEdit(), u"^1"_s);
    EXPECT_EQ(Script().LineAt(1).Text, "a^1bc");
    EXPECT_EQ(PaneRuns(), (std::vector<ColouredRun>{{"a^1bc", kWhite}}));
    EXPECT_EQ(window->PreviewPane().SelStart(), 3) << "the caret stays behind what was typed";
    window->SetPreview();
    EXPECT_EQ(PaneRuns(), (std::vector<ColouredRun>{{"a", kWhite}, {"bc", kRed}}));
}

TEST_F(Editing, DeletingEveryCharacterLeavesTheLineWithAnEmptyText) {
    AddLines({"^1abc", "other"});
    window->SetPreview();
    for (int i = 0; i < 3; ++i) QTest::keyClick(window->PreviewEdit(), Qt::Key_Backspace);
    EXPECT_EQ(Script().Count(), 2);
    EXPECT_EQ(Script().LineAt(1), (AnimationLine{"", "15", "[none]"}));
}

TEST_F(Editing, EnterInThePaneBreaksNothing) {
    AddLines({"ab"});
    window->SetPreview();
    QTest::keyClick(window->PreviewEdit(), Qt::Key_Return);
    QTest::keyClick(window->PreviewEdit(), Qt::Key_Enter);
    EXPECT_EQ(PaneText(), "ab");
    EXPECT_EQ(Script().LineAt(1).Text, "ab");
}

TEST_F(Editing, TextDroppedIntoThePaneArrivesPlainOnOneLine) {
    AddLines({"ab"});
    window->SetPreview();
    QMimeData mime;
    mime.setText(u"one\r\ntwo\nthree"_s);
    mime.setHtml(u"<p style=\"color:#ff0000\">one</p><p>two</p>"_s);
    QWidget* viewport = window->PreviewEdit()->viewport();
    const QPoint at(viewport->width() - 2, viewport->height() / 2);
    QDragEnterEvent enter(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &enter);
    QDropEvent drop(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &drop);
    EXPECT_EQ(Script().LineAt(1).Text, "abone two three");
    EXPECT_EQ(PaneRuns(), (std::vector<ColouredRun>{{"abone two three", kWhite}}));
}

// --- the colour strip

struct ColourCase {
    const char* name;
    int button;
    const char* after;
};

class ColourButtonOnAStretch : public LinesTest, public testing::WithParamInterface<ColourCase> {};

TEST_P(ColourButtonOnAStretch, ColoursItWritesTheLineAndEndsTheSelection) {
    AddLines({"abcd"});
    window->SetPreview();
    window->PreviewPane().SetSelStart(1);
    window->PreviewPane().SetSelLength(2);
    Named<QPushButton>(u"cmdColor_%1"_s.arg(GetParam().button))->click();
    EXPECT_EQ(Script().LineAt(1).Text, GetParam().after);
    EXPECT_EQ(window->PreviewPane().SelStart(), 1);
    EXPECT_EQ(window->PreviewPane().SelLength(), 0);
}

INSTANTIATE_TEST_SUITE_P(Buttons, ColourButtonOnAStretch,
                         testing::Values(ColourCase{"Red", 0, "a^1bc^7d"}, ColourCase{"Black", 7, "a^8bc^7d"},
                                         ColourCase{"White", 6, "abcd"}),
                         [](const testing::TestParamInfo<ColourCase>& info) {
                             return std::string(info.param.name);
                         });

TEST_F(Editing, AColourChosenWithNothingSelectedWaitsForTheNextCharacter) {
    AddLines({"ab"});
    window->SetPreview();
    Named<QPushButton>(u"cmdColor_1"_s)->click();
    EXPECT_EQ(Script().LineAt(1).Text, "ab");
    QTest::keyClicks(window->PreviewEdit(), u"c"_s);
    EXPECT_EQ(Script().LineAt(1).Text, "ab^2c");
}

TEST_F(Editing, AnEmptyPaneTakesNoColour) {
    AddLines({""});
    window->SetPreview();
    Named<QPushButton>(u"cmdColor_0"_s)->click();
    EXPECT_EQ(Script().LineAt(1).Text, "");
    QTest::keyClicks(window->PreviewEdit(), u"x"_s);
    EXPECT_EQ(Script().LineAt(1).Text, "^8x") << "typed in the default black, not red";
}

// --- what a change in the pane reaches, by the state of the pane

struct StateCase {
    const char* name;
    std::function<void(LinesTest&, frmMain&)> enter;
    bool reachesTheLine;
};

class PaneState : public LinesTest, public testing::WithParamInterface<StateCase> {
protected:
    void Enter() { GetParam().enter(*this, *window); }
};

TEST_P(PaneState, DecidesWhetherAChangeReachesTheLine) {
    AddABC();
    window->SetPreview();
    Enter();
    window->PreviewEdit()->moveCursor(QTextCursor::End);
    window->PreviewEdit()->insertPlainText(u"!"_s);
    const bool changed =
        Script().Count() > 0 && Script().LineAt(Script().SelectedIndex()).Text.ends_with('!');
    EXPECT_EQ(changed, GetParam().reachesTheLine);
    for (int i = 1; i <= Script().Count(); ++i) {
        if (!(GetParam().reachesTheLine && i == Script().SelectedIndex())) {
            EXPECT_EQ(Script().LineAt(i).Text.find('!'), std::string::npos) << i;
        }
    }
    if (window->Playing()) window->TogglePlayback();
}

INSTANTIATE_TEST_SUITE_P(
    States, PaneState,
    testing::Values(StateCase{"Editing", [](LinesTest&, frmMain&) {}, true},
                    StateCase{"EditingAfterAnotherLineWasSelected",
                              [](LinesTest&, frmMain& w) { w.Script().SelectLine(3); }, true},
                    StateCase{"Empty",
                              [](LinesTest&, frmMain& w) {
                                  w.NewAnimation();
                                  w.SetPreview();
                              },
                              false},
                    StateCase{"Drawing", [](LinesTest&, frmMain& w) { w.PreviewBusy = true; }, false},
                    StateCase{"Playing", [](LinesTest&, frmMain& w) { w.TogglePlayback(); }, false},
                    StateCase{"PlayingAfterAClickInTheList",
                              [](LinesTest&, frmMain& w) {
                                  w.TogglePlayback();
                                  w.lvwMain_ItemClick(1);
                              },
                              false}),
    [](const testing::TestParamInfo<StateCase>& info) { return std::string(info.param.name); });

TEST_F(Editing, ALockedPaneTakesNoTyping) {
    QTest::keyClicks(window->PreviewEdit(), u"x"_s);
    EXPECT_EQ(PaneText(), "Preview");
    EXPECT_EQ(Script().Count(), 0);
}

// --- keys

struct FocusCase {
    const char* name;
    Qt::Key key;
    bool toTheList;
};

class KeyInThePane : public LinesTest, public testing::WithParamInterface<FocusCase> {};

TEST_P(KeyInThePane, OnlyCtrlTakesTheFocusToTheList) {
    AddLines({"ab"});
    window->SetPreview();
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    window->PreviewEdit()->setFocus();
    QTest::keyPress(window->PreviewEdit(), GetParam().key);
    QWidget* expected =
        GetParam().toTheList ? static_cast<QWidget*>(window->ListView()) : window->PreviewEdit();
    EXPECT_EQ(QApplication::focusWidget(), expected);
    QTest::keyRelease(QApplication::focusWidget(), GetParam().key);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, KeyInThePane,
    testing::Values(FocusCase{"Ctrl", Qt::Key_Control, true}, FocusCase{"Shift", Qt::Key_Shift, false},
                    FocusCase{"Alt", Qt::Key_Alt, false}, FocusCase{"Letter", Qt::Key_Q, false}),
    [](const testing::TestParamInfo<FocusCase>& info) { return std::string(info.param.name); });

class DeleteKey : public LinesTest, public testing::WithParamInterface<Qt::KeyboardModifiers> {};

TEST_P(DeleteKey, RemovesTheSelectedLineAndShowsTheNextOne) {
    AddABC();
    window->SetPreview();
    QTest::keyClick(window->ListView(), Qt::Key_Delete, GetParam());
    EXPECT_EQ(Lines(), (std::vector<std::string>{"A/10", "C/30"}));
    EXPECT_EQ(PaneText(), "C");
    EXPECT_TRUE(dialogs.Calls().empty()) << "no question";
}

INSTANTIATE_TEST_SUITE_P(WithAnyModifier, DeleteKey,
                         testing::Values(Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier));

struct DeleteEndCase {
    const char* name;
    int lines;
    int messages;
};

class DeleteKeyAtTheEnd : public LinesTest, public testing::WithParamInterface<DeleteEndCase> {};

TEST_P(DeleteKeyAtTheEnd, LeavesALockedPane) {
    if (GetParam().lines > 0) AddLines({"^1only"});
    window->SetPreview();
    QTest::keyClick(window->ListView(), Qt::Key_Delete);
    EXPECT_EQ(Script().Count(), 0);
    EXPECT_EQ(PaneText(), "Preview");
    EXPECT_TRUE(PaneLocked());
    ASSERT_EQ(dialogs.Messages().size(), static_cast<std::size_t>(GetParam().messages));
    if (GetParam().messages > 0) {
        EXPECT_EQ(dialogs.Messages()[0].text, u"Can't remove line."_s);
        EXPECT_EQ(dialogs.Messages()[0].title, QString());
        EXPECT_EQ(dialogs.Messages()[0].icon, MsgIcon::Information);
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, DeleteKeyAtTheEnd,
                         testing::Values(DeleteEndCase{"TheOnlyLine", 1, 0},
                                         DeleteEndCase{"EmptyList", 0, 1}),
                         [](const testing::TestParamInfo<DeleteEndCase>& info) {
                             return std::string(info.param.name);
                         });

struct ListKeyCase {
    const char* name;
    int selected;
    Qt::Key key;
    const char* shown;
};

class KeyInTheList : public LinesTest, public testing::WithParamInterface<ListKeyCase> {};

// The list moves first, then the pane is drawn: it shows the line the key led
// to, and any key at all redraws it.
TEST_P(KeyInTheList, ShowsTheLineTheKeyLedTo) {
    AddABC();
    Script().SelectLine(GetParam().selected);
    MarkPane();
    QTest::keyClick(window->ListView(), GetParam().key);
    EXPECT_EQ(PaneText(), GetParam().shown);
    EXPECT_EQ(Script().Count(), 3);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, KeyInTheList,
    testing::Values(ListKeyCase{"Down", 1, Qt::Key_Down, "B"}, ListKeyCase{"Up", 3, Qt::Key_Up, "B"},
                    ListKeyCase{"PageDown", 1, Qt::Key_PageDown, "C"},
                    ListKeyCase{"DownAtTheEnd", 3, Qt::Key_Down, "C"},
                    ListKeyCase{"Shift", 2, Qt::Key_Shift, "B"}, ListKeyCase{"F5", 2, Qt::Key_F5, "B"}),
    [](const testing::TestParamInfo<ListKeyCase>& info) { return std::string(info.param.name); });

// --- editing in place, with the setting on or off

struct InPlaceCase {
    const char* name;
    const char* setting;
    int column;
    bool opens;
};

class InPlaceEdit : public LinesTest, public testing::WithParamInterface<InPlaceCase> {
protected:
    QLineEdit* Editor() { return window->ListView()->viewport()->findChild<QLineEdit*>(); }
};

TEST_P(InPlaceEdit, OpensOnlyOnTheSelectedLinesText) {
    store.WriteRegistryString(u"EditItem"_s, QString::fromLatin1(GetParam().setting));
    MakeWindow();
    AddABC();
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    LineListView* list = window->ListView();
    const QRect cell = list->visualRect(list->model()->index(1, GetParam().column));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, cell.center());
    EXPECT_EQ(PaneText(), "B") << "the click shows the line";

    // The editor comes after the time in which the click could still become
    // a double click.
    const int wait = QApplication::doubleClickInterval() + (GetParam().opens ? 2000 : 300);
    const bool opened = QTest::qWaitFor([&] { return Editor() != nullptr && Editor()->isVisible(); }, wait);
    ASSERT_EQ(opened, GetParam().opens);
    if (!opened) return;

    QLineEdit* editor = Editor();
    EXPECT_EQ(editor->text(), u"B"_s);
    editor->selectAll();
    QTest::keyClicks(editor, u"^1new"_s);
    QTest::keyClick(editor, Qt::Key_Return);
    // The editor hands its text over once the key has been handled.
    EXPECT_TRUE(QTest::qWaitFor([&] { return Script().LineAt(2).Text != "B"; }));
    EXPECT_EQ(Script().LineAt(2), (AnimationLine{"^1new", "20", "[none]"}));
    EXPECT_EQ(PaneText(), "B") << "the pane isn't redrawn";
    EXPECT_EQ(Script().SelectedIndex(), 2);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, InPlaceEdit,
    testing::Values(InPlaceCase{"OnText", "1", 0, true}, InPlaceCase{"OnTime", "1", 1, false},
                    InPlaceCase{"OnAction", "1", 2, false}, InPlaceCase{"OffText", "0", 0, false}),
    [](const testing::TestParamInfo<InPlaceCase>& info) { return std::string(info.param.name); });

// --- the Edit button

TEST_F(Editing, EditOpensTheEditDialogModallyOverTheMainWindow) {
    AddABC();
    bool seen = false;
    QTimer::singleShot(0, window.get(), [&] {
        auto* edit = qobject_cast<frmEdit*>(QApplication::activeModalWidget());
        if (edit == nullptr) {
            // Leave no window open, whatever came up.
            if (QWidget* other = QApplication::activeModalWidget()) other->close();
            return;
        }
        seen = true;
        EXPECT_EQ(edit->parentWidget(), window.get());
        edit->findChild<QLineEdit*>(u"txtTime"_s)->setText(u"25"_s);
        edit->findChild<QPushButton*>(u"cmdOK"_s)->click();
    });
    window->tlbMain_ButtonClick(u"btnedit"_s);
    EXPECT_TRUE(seen);
    EXPECT_EQ(Lines(), (std::vector<std::string>{"A/10", "B/25", "C/30"}));
}

}  // namespace
}  // namespace fs::ui::testing_support
