// What users do with keys, mouse and clipboard, through the real widgets: each
// gesture has to leave the animation exactly as the user meant it.
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMimeData>
#include <QPointer>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>
#include <functional>

#include "MainWindowFixture.h"

namespace flickerscribe::ui::testing_support {
namespace {

using Gestures = DialogTest;

// --- Enter presses the focused button; elsewhere it is the default button's

struct EnterCase {
    const char* name;
    const char* window;
    const char* focus;
    std::function<void(Gestures&)> before;
    std::function<QString(Gestures&)> after;  // what came of it
    const char* expected;
    friend void PrintTo(const EnterCase& c, std::ostream* os) { *os << c.name; }
};

class EnterKey : public Gestures, public testing::WithParamInterface<EnterCase> {};

TEST_P(EnterKey, PressesTheFocusedButtonElseTheDefault) {
    const EnterCase& c = GetParam();
    Start({"A/10", "B/20"}, 1);
    Open(QString::fromLatin1(c.window));
    if (c.before) c.before(*this);
    QWidget* focus = Child(QString::fromLatin1(c.focus));
    focus->setFocus();
    QTest::keyClick(focus, Qt::Key_Return);
    EXPECT_EQ(c.after(*this).toStdString(), c.expected);
}

QString Shown(Gestures& t) {  // "open" or "closed", and what the user was asked
    QString asked;
    for (const DialogCall& call : t.dialogs.Calls()) asked += u" asked:"_s + call.text;
    return (t.dialog->isVisible() ? u"open"_s : u"closed"_s) + asked;
}
QString WizardState(Gestures& t) {
    return u"page %1 rows %2 lines %3 "_s.arg(t.Wizard().CurrentPage())
               .arg(t.Wizard().EffectRows().size())
               .arg(t.Script().Count()) +
           Shown(t);
}
QString StoredTime(Gestures& t) {
    const auto& edit = static_cast<EditTimeDialog&>(*t.dialog);
    return edit.result() == QDialog::Accepted ? u"stores "_s + edit.Time() : u"stores nothing"_s;
}
QString Written(Gestures& t) {
    return t.store.Writes().join(u',') + u' ' + Shown(t);
}
const auto kPage4WithWave = [](Gestures& t) {
    t.ToWizardPage(4);
    t.Child<QComboBox>(u"cmbEffects"_s)->setCurrentIndex(0);
};

INSTANTIATE_TEST_SUITE_P(
    Windows, EnterKey,
    testing::Values(
        EnterCase{"WizardAdd", "frmWizard", "cmdAddEffect", kPage4WithWave, WizardState,
                  "page 4 rows 1 lines 2 open"},
        EnterCase{"WizardPreview", "frmWizard", "cmdPreview", kPage4WithWave, WizardState,
                  "page 4 rows 0 lines 2 open asked:Preview not available yet!"},
        EnterCase{"WizardCancel", "frmWizard", "cmdCancel",
                  [](Gestures& t) {
                      kPage4WithWave(t);
                      t.dialogs.QueueMessageAnswer(MsgAnswer::No);
                  },
                  WizardState, "page 4 rows 0 lines 2 open asked:Are you sure you want to exit the wizard?"},
        // In the wizard's boxes and list Enter is Next, and on the last page Finish.
        EnterCase{"WizardNameBox", "frmWizard", "txtNameOnly_0", [](Gestures& t) { t.ToWizardPage(3); },
                  WizardState, "page 4 rows 0 lines 2 open"},
        EnterCase{"WizardEffectList", "frmWizard", "lvwEffects", kPage4WithWave, Shown, "closed"},
        EnterCase{"EditCancel", "frmEdit", "cmdCancel", nullptr, StoredTime, "stores nothing"},
        EnterCase{"EditTimeBox", "frmEdit", "txtTime", nullptr, StoredTime, "stores 15"},
        EnterCase{"OptionsOk", "frmOptions", "cmdOK", nullptr, Written,
                  "EditItem,Name,Clantag,Reverse,OpenDir,SaveDir,GenerateDir closed"},
        EnterCase{"OptionsNameBoxHasNoDefault", "frmOptions", "txtName", nullptr, Written, " open"},
        EnterCase{"HelpCopy", "frmHelp", "Command4", nullptr, [](Gestures& t) { return t.dialogs.clipboard; },
                  "quillon@qzt-clan.example"},
        EnterCase{"ColourEditorCopy", "frmColorEditor", "cmdClipboard",
                  [](Gestures& t) { QTest::keyClicks(t.Child(u"txtPreview"_s), u"Hi"_s); },
                  [](Gestures& t) { return t.dialogs.clipboard; }, "Hi"},
        EnterCase{"SimpleEditSave", "frmSimpleEdit", "cmdSave", nullptr, Shown, "open"}),
    testing::PrintToStringParamName());

// --- a line break pasted into a one-line box becomes a blank

struct BoxCase {
    const char* name;
    std::function<QLineEdit*(Gestures&)> open;             // the box, ready for typing
    std::function<QString(Gestures&, QLineEdit*)> result;  // what the program was given
    friend void PrintTo(const BoxCase& c, std::ostream* os) { *os << c.name; }
};

class PastedBreak : public Gestures, public testing::WithParamInterface<std::tuple<BoxCase, const char*>> {};

TEST_P(PastedBreak, BecomesABlank) {
    const auto& [box, lineBreak] = GetParam();
    QLineEdit* edit = box.open(*this);
    ASSERT_NE(edit, nullptr);
    // A break at the end: a number with it is still a number for the Time box.
    QGuiApplication::clipboard()->setText(u"1"_s + QString::fromLatin1(lineBreak));
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.result(*this, edit), u"1 "_s);
}

QString BoxText(Gestures&, QLineEdit* edit) {
    return edit->text();
}
std::function<QLineEdit*(Gestures&)> Box(const char* window, const char* name, int page = 0) {
    return [window, name, page](Gestures& t) {
        t.Open(QString::fromLatin1(window));
        if (page > 0) t.ToWizardPage(page);
        if (page == 4) {
            t.Child<QComboBox>(u"cmbEffects"_s)->setCurrentIndex(1);
            t.Wizard().AddEffect();
        }
        return t.Child<QLineEdit>(QString::fromLatin1(name));
    };
}

const BoxCase kBoxes[] = {
    {"ListInPlace",
     [](Gestures& t) -> QLineEdit* {
         t.Start({"old/15"});
         LineListView* list = t.window->LineList();
         list->edit(list->model()->index(0, 0));
         return list->viewport()->findChild<QLineEdit*>();
     },
     [](Gestures& t, QLineEdit* edit) {
         QPointer<QLineEdit> editor = edit;
         QTest::keyClick(edit, Qt::Key_Return);
         // The view commits once the key has been handled.
         [[maybe_unused]] const bool closed = QTest::qWaitFor([&] { return editor.isNull(); });
         return QString::fromStdString(t.Script().LineAt(1).Text);
     }},
    {"WizardName", Box("frmWizard", "txtNameOnly_0", 3), BoxText},
    {"WizardTag", Box("frmWizard", "txtClanTag", 3), BoxText},
    {"WizardTaggedName", Box("frmWizard", "txtNameOnly_1", 3), BoxText},
    {"WizardRepeat", Box("frmWizard", "txtParam1", 4),
     [](Gestures& t, QLineEdit*) {
         return QString::fromStdString(t.Wizard().EffectRows().front().Parameter1);
     }},
    {"EditTime", Box("frmEdit", "txtTime"),
     [](Gestures& t, QLineEdit* edit) {
         QTest::keyClick(edit, Qt::Key_Return);
         return static_cast<EditTimeDialog&>(*t.dialog).Time();
     }},
    {"OptionsName", Box("frmOptions", "txtName"), BoxText},
    {"OptionsClan", Box("frmOptions", "txtClan"), BoxText},
};

INSTANTIATE_TEST_SUITE_P(Boxes, PastedBreak,
                         testing::Combine(testing::ValuesIn(kBoxes), testing::Values("\r\n", "\r", "\n")),
                         [](const auto& info) {
                             const std::string lineBreak = std::get<1>(info.param);
                             return std::string(std::get<0>(info.param).name) + (lineBreak == "\r\n" ? "_CrLf"
                                                                                 : lineBreak == "\r" ? "_Cr"
                                                                                                     : "_Lf");
                         });

// --- the pane shows the line selected last, whatever selected it

QPoint Row(LineListView* list, int row) {
    return list->visualRect(list->model()->index(row, 0)).center();
}

struct SelectCase {
    const char* name;
    std::function<void(MainWindowTest&, LineListView*)> gesture;
    int selected;  // the line typed into
    friend void PrintTo(const SelectCase& c, std::ostream* os) { *os << c.name; }
};

class SelectThenType : public MainWindowTest, public testing::WithParamInterface<SelectCase> {};

TEST_P(SelectThenType, EditsOnlyTheNewlySelectedLine) {
    const TextTimes lines = {"one/15", "two/15", "three/15", "four/15"};
    Start(lines, 2);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    GetParam().gesture(*this, window->LineList());
    ASSERT_EQ(Script().SelectedIndex(), GetParam().selected);
    QTest::keyClicks(window->PaneEdit(), u"!"_s);

    TextTimes expected = lines;
    if (GetParam().name == std::string("Remove")) expected.erase(expected.begin() + 1);
    std::string& typedInto = expected[std::size_t(GetParam().selected - 1)];
    typedInto.insert(typedInto.find('/'), "!");
    EXPECT_EQ(Lines(), expected);
}

std::function<void(MainWindowTest&, LineListView*)> ListKey(Qt::Key key) {
    return [key](MainWindowTest& t, LineListView*) { t.Key(key); };
}

INSTANTIATE_TEST_SUITE_P(
    Gestures, SelectThenType,
    testing::Values(SelectCase{"LeftClick",
                               [](MainWindowTest&, LineListView* l) {
                                   QTest::mouseClick(l->viewport(), Qt::LeftButton, {}, Row(l, 3));
                               },
                               4},
                    SelectCase{"RightClick",
                               [](MainWindowTest&, LineListView* l) {
                                   QTest::mouseClick(l->viewport(), Qt::RightButton, {}, Row(l, 2));
                               },
                               3},
                    SelectCase{"Drag",
                               [](MainWindowTest&, LineListView* l) {
                                   QTest::mousePress(l->viewport(), Qt::LeftButton, {}, Row(l, 1));
                                   QTest::mouseMove(l->viewport(), Row(l, 2));
                                   QTest::mouseMove(l->viewport(), Row(l, 3));
                                   QTest::mouseRelease(l->viewport(), Qt::LeftButton, {}, Row(l, 3));
                               },
                               4},
                    SelectCase{"ClickBelowTheLastKeepsTheLine",
                               [](MainWindowTest&, LineListView* l) {
                                   QTest::mouseClick(l->viewport(), Qt::LeftButton, {},
                                                     QPoint(5, l->viewport()->height() - 3));
                               },
                               2},
                    SelectCase{"Down", ListKey(Qt::Key_Down), 3},
                    SelectCase{"PageDown", ListKey(Qt::Key_PageDown), 4},
                    SelectCase{"PageUp", ListKey(Qt::Key_PageUp), 1},
                    SelectCase{"Home", ListKey(Qt::Key_Home), 1}, SelectCase{"End", ListKey(Qt::Key_End), 4},
                    // The toolbar's Remove selects the line behind the removed one.
                    SelectCase{"Remove", [](MainWindowTest& t, LineListView*) { t.Trigger(u"btnremove"_s); },
                               2}),
    testing::PrintToStringParamName());

// --- the main window at its edges and by keyboard

using Edges = MainWindowTest;

TEST_F(Edges, InPlaceEditKeepsALongTextWholeAndWritesNothingUnchanged) {
    store.WriteValue(u"EditItem"_s, u"1"_s);
    MakeWindow();
    const std::string text(40000, 'x');
    Start({text + "/15", text + "/15"}, 1);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    LineListView* list = window->LineList();
    int writes = 0;
    QObject::connect(list->model(), &QAbstractItemModel::dataChanged, [&] { ++writes; });
    const auto editor = [list] { return list->viewport()->findChild<QLineEdit*>(); };
    // Line 1 is edited without a change, line 2 with one; a click on a line
    // not yet selected only selects it.
    for (const auto& [row, typed] : {std::pair{0, QString()}, std::pair{1, u"!"_s}, std::pair{1, u"!"_s}}) {
        const bool selected = Script().SelectedIndex() == row + 1;
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, Row(list, row));
        if (!selected) continue;
        ASSERT_TRUE(QTest::qWaitFor([&] { return editor() != nullptr; }));
        QTest::keyClick(editor(), Qt::Key_End);
        QTest::keyClicks(editor(), typed);
        QTest::keyClick(editor(), Qt::Key_Return);
        ASSERT_TRUE(QTest::qWaitFor([&] { return editor() == nullptr; }));
    }
    EXPECT_EQ(Lines(), TextTimes({text + "/15", text + "!/15"}));
    EXPECT_EQ(writes, 1) << "the commit that changed nothing wrote nothing";
}

TEST_F(Edges, TabReachesTheColourStripAndSpaceColoursThePanesSelection) {
    Start({"abcd/15"});
    window->ToggleColours();
    Show();
    QTextEdit* pane = window->PaneEdit();
    pane->setFocus();
    for (const auto& [key, modifiers] :
         {std::pair{Qt::Key_Home, Qt::KeyboardModifiers()}, std::pair{Qt::Key_Right, Qt::KeyboardModifiers()},
          std::pair{Qt::Key_Right, Qt::KeyboardModifiers(Qt::ShiftModifier)},
          std::pair{Qt::Key_Right, Qt::KeyboardModifiers(Qt::ShiftModifier)}})
        QTest::keyClick(pane, key, modifiers);
    for (int tab = 0; tab < 3; ++tab) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget()->objectName(), u"cmdColor_1"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(Script().LineAt(1).Text, "a^2bc^7d");
}

TEST_F(Edges, TheAddButtonsMenuIsOnTheAccessibilityTree) {
    auto* add =
        qobject_cast<QToolButton*>(Named<QToolBar>(u"tlbMain"_s)->widgetForAction(Named(u"btnadd"_s)));
    QAccessibleInterface* button = QAccessible::queryAccessibleInterface(add);
    ASSERT_EQ(button->childCount(), 1);
    QAccessibleInterface* menu = button->child(0);
    QStringList entries;
    for (int i = 0; i < menu->childCount(); ++i) entries << menu->child(i)->text(QAccessible::Name);
    EXPECT_EQ(entries.join(u'|').toStdString(),
              "Before selection|After selection||Copy selected line|Copy selected line x times||Copy all "
              "lines|Copy all lines (reverse)");
    add->click();
    EXPECT_EQ(Script().Count(), 1) << "the button still adds a line";
}

// Simple edit and the preview pane take a paste or a drop as plain text in the
// colour in force.
TEST_F(Gestures, PasteAndDropArriveAsPlainText) {
    Open(u"frmSimpleEdit"_s);
    auto* pane = Child<QTextEdit>(u"txtPreview"_s);
    pane->setFocus();
    QTest::mouseClick(Child<QPushButton>(u"cmdColor_1"_s), Qt::LeftButton);
    auto* mime = new QMimeData;
    mime->setText(u"one\r\ntwo"_s);
    mime->setHtml(u"<table><tr><td style=\"color:#ff0000\"><b>one</b></td></tr></table><p>two</p>"_s);
    QGuiApplication::clipboard()->setMimeData(mime);
    QTest::keyClick(pane, Qt::Key_V, Qt::ControlModifier);
    QTest::mouseClick(Child<QPushButton>(u"cmdSave"_s), Qt::LeftButton);
    EXPECT_EQ(Lines(), TextTimes({"^2one/15", "two/15"}));

    QMimeData dropped;
    dropped.setText(u"a\r\nb\nc"_s);
    dropped.setHtml(u"<p style=\"color:#ff0000\">a</p>"_s);
    QWidget* viewport = window->PaneEdit()->viewport();
    const QPoint at(viewport->width() - 2, viewport->height() / 2);
    QDragEnterEvent enter(at, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &enter);
    QDropEvent drop(at, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &drop);
    EXPECT_EQ(Script().LineAt(1).Text, "^2onea b c");
}

}  // namespace
}  // namespace flickerscribe::ui::testing_support
