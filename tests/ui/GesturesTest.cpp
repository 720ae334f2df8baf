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
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <functional>

#include "LineTestSupport.h"
#include "ui/ColourNameEditor.h"
#include "ui/EditTimeDialog.h"
#include "ui/HelpDialog.h"
#include "ui/LineListView.h"
#include "ui/OptionsDialog.h"
#include "ui/SimpleEditWindow.h"
#include "ui/WizardDialog.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui::testing_support {
namespace {

// A dialog of the program, made for one table row, with what the test looks
// at; public, so that the rows' functions can reach it.
class Gestures : public LinesTest {
public:
    using LinesTest::Lines;
    using LinesTest::Start;
    using MainWindowTest::dialogs;
    using MainWindowTest::MakeWindow;
    using MainWindowTest::Script;
    using MainWindowTest::store;
    using MainWindowTest::window;

    void TearDown() override {
        if (dialog) dialog->close();
    }

    QDialog& Open(const QString& name) {
        if (name == u"frmWizard"_s) {
            dialog = std::make_unique<WizardDialog>(window->History(), dialogs, window->Settings());
        } else if (name == u"frmEdit"_s) {
            dialog = std::make_unique<EditTimeDialog>();
        } else if (name == u"frmOptions"_s) {
            dialog = std::make_unique<OptionsDialog>(store, dialogs, [] {});
        } else if (name == u"frmHelp"_s) {
            dialog = std::make_unique<HelpDialog>(dialogs);
        } else if (name == u"frmColorEditor"_s) {
            dialog = std::make_unique<ColourNameEditor>(dialogs);
        } else {
            dialog = std::make_unique<SimpleEditWindow>(window->History(), dialogs);
        }
        dialog->show();
        return *dialog;
    }
    template <class T = QWidget>
    T* Child(const QString& name) {
        T* found = dialog->findChild<T*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return found;
    }
    WizardDialog& Wizard() { return static_cast<WizardDialog&>(*dialog); }
    void ToWizardPage(int page) {
        while (Wizard().CurrentPage() < page) Wizard().NextPage();
    }

    std::unique_ptr<QDialog> dialog;
};

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

// What the wizard shows: its page, its rows and its questions.
QString WizardState(Gestures& t) {
    QString asked;
    for (const DialogCall& call : t.dialogs.Calls()) asked += u" asked:"_s + call.text;
    return u"page %1 rows %2 lines %3"_s.arg(t.Wizard().CurrentPage())
               .arg(t.Wizard().EffectRows().size())
               .arg(t.Script().Count()) +
           asked;
}
QString LinesAndState(Gestures& t) {
    QString out;
    for (int i = 1; i <= t.Script().Count(); ++i)
        out += QString::fromStdString(t.Script().LineAt(i).Text + "/" + t.Script().LineAt(i).Time + " ");
    return out + (t.dialog->isVisible() ? u"open"_s : u"closed"_s);
}
QString StoredTime(Gestures& t) {
    const auto& edit = static_cast<EditTimeDialog&>(*t.dialog);
    return edit.result() == QDialog::Accepted ? u"stores "_s + edit.Time() : u"stores nothing"_s;
}
QString Written(Gestures& t) {
    return t.store.Writes().join(u',') + (t.dialog->isVisible() ? u" open"_s : u" closed"_s);
}
QString Clipboard(Gestures& t) {
    return t.dialogs.clipboard + (t.dialog->isVisible() ? u" open"_s : u" closed"_s);
}
bool editorShown = false;
const auto kPage4WithWave = [](Gestures& t) {
    t.ToWizardPage(4);
    t.Child<QComboBox>(u"cmbEffects"_s)->setCurrentIndex(0);
};

INSTANTIATE_TEST_SUITE_P(
    Windows, EnterKey,
    testing::Values(
        EnterCase{"WizardAdd", "frmWizard", "cmdAddEffect", kPage4WithWave, WizardState,
                  "page 4 rows 1 lines 2"},
        EnterCase{"WizardPreview", "frmWizard", "cmdPreview", kPage4WithWave, WizardState,
                  "page 4 rows 0 lines 2 asked:Preview not available yet!"},
        EnterCase{"WizardBack", "frmWizard", "cmdBack", kPage4WithWave, WizardState, "page 3 rows 0 lines 2"},
        EnterCase{"WizardCancel", "frmWizard", "cmdCancel",
                  [](Gestures& t) {
                      kPage4WithWave(t);
                      t.dialogs.QueueMessageAnswer(MsgAnswer::No);
                  },
                  WizardState, "page 4 rows 0 lines 2 asked:Are you sure you want to exit the wizard?"},
        EnterCase{"WizardColorEditor", "frmWizard", "cmdColor",
                  [](Gestures& t) {
                      t.ToWizardPage(3);
                      editorShown = false;
                      QTimer::singleShot(0, [] {
                          if (auto* editor =
                                  qobject_cast<ColourNameEditor*>(QApplication::activeModalWidget())) {
                              editorShown = true;
                              editor->close();
                          }
                      });
                  },
                  [](Gestures& t) {
                      return u"page %1, "_s.arg(t.Wizard().CurrentPage()) +
                             (editorShown ? u"editor shown"_s : u"no editor"_s);
                  },
                  "page 3, editor shown"},
        // In the wizard's boxes and list Enter is Next, and on the last page Finish.
        EnterCase{"WizardNameBox", "frmWizard", "txtNameOnly_0", [](Gestures& t) { t.ToWizardPage(3); },
                  WizardState, "page 4 rows 0 lines 2"},
        EnterCase{"WizardEffectList", "frmWizard", "lvwEffects", kPage4WithWave,
                  [](Gestures& t) { return LinesAndState(t); }, "closed"},
        EnterCase{"EditCancel", "frmEdit", "cmdCancel", nullptr, StoredTime, "stores nothing"},
        EnterCase{"EditTimeBox", "frmEdit", "txtTime", nullptr, StoredTime, "stores 15"},
        EnterCase{"OptionsOk", "frmOptions", "cmdOK", nullptr, Written,
                  "EditItem,Name,Clantag,Reverse,OpenDir,SaveDir,GenerateDir closed"},
        EnterCase{"OptionsCancel", "frmOptions", "Command2", nullptr, Written, " closed"},
        EnterCase{"OptionsNameBoxHasNoDefault", "frmOptions", "txtName", nullptr, Written, " open"},
        EnterCase{"HelpCopy", "frmHelp", "Command4", nullptr, Clipboard, "quillon@qzt-clan.example open"},
        EnterCase{"ColourEditorCopy", "frmColorEditor", "cmdClipboard",
                  [](Gestures& t) { QTest::keyClicks(t.Child(u"txtPreview"_s), u"Hi"_s); }, Clipboard,
                  "Hi open"},
        EnterCase{"SimpleEditSave", "frmSimpleEdit", "cmdSave", nullptr, LinesAndState, "open"}),
    testing::PrintToStringParamName());

// --- a line break pasted into a one-line box becomes a blank

struct BoxCase {
    const char* name;
    // Opens the box for typing and gives it.
    std::function<QLineEdit*(Gestures&)> open;
    // What the box gave the program once the user was done.
    std::function<QString(Gestures&, QLineEdit*)> result;
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
std::function<QLineEdit*(Gestures&)> WizardBox(const char* name, int page) {
    return [name, page](Gestures& g) {
        Gestures& t = g;
        t.Open(u"frmWizard"_s);
        t.ToWizardPage(page);
        if (page == 4) {
            t.Child<QComboBox>(u"cmbEffects"_s)->setCurrentIndex(1);
            QTest::mouseClick(t.Child<QPushButton>(u"cmdAddEffect"_s), Qt::LeftButton);
        }
        return t.Child<QLineEdit>(QString::fromLatin1(name));
    };
}
std::function<QLineEdit*(Gestures&)> DialogBox(const char* window, const char* name) {
    return [window, name](Gestures& t) {
        t.Start({"A/10"}, 1);
        t.Open(QString::fromLatin1(window));
        return t.Child<QLineEdit>(QString::fromLatin1(name));
    };
}

const BoxCase kBoxes[] = {
    {"ListInPlace",
     [](Gestures& g) -> QLineEdit* {
         Gestures& t = g;
         t.store.WriteValue(u"EditItem"_s, u"1"_s);
         t.MakeWindow();
         t.Start({"old/15"}, 1);
         t.window->show();
         if (!QTest::qWaitForWindowExposed(t.window.get())) return nullptr;
         LineListView* list = t.window->LineList();
         QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                           list->visualRect(list->model()->index(0, 0)).center());
         QLineEdit* editor = nullptr;
         const bool opened =
             QTest::qWaitFor([&] { return (editor = list->viewport()->findChild<QLineEdit*>()) != nullptr; });
         return opened ? editor : nullptr;
     },
     [](Gestures& g, QLineEdit* edit) {
         QPointer<QLineEdit> editor = edit;
         QTest::keyClick(edit, Qt::Key_Return);
         // The view commits once the key has been handled.
         [[maybe_unused]] const bool closed = QTest::qWaitFor([&] { return editor.isNull(); });
         return QString::fromStdString(g.Script().LineAt(1).Text);
     }},
    {"WizardName", WizardBox("txtNameOnly_0", 3), BoxText},
    {"WizardTag", WizardBox("txtClanTag", 3), BoxText},
    {"WizardTaggedName", WizardBox("txtNameOnly_1", 3), BoxText},
    {"WizardRepeat", WizardBox("txtParam1", 4),
     [](Gestures& g, QLineEdit*) {
         return QString::fromStdString(g.Wizard().EffectRows().front().Parameter1);
     }},
    {"EditTime", DialogBox("frmEdit", "txtTime"),
     [](Gestures& g, QLineEdit* edit) {
         QTest::keyClick(edit, Qt::Key_Return);
         return static_cast<EditTimeDialog&>(*g.dialog).Time();
     }},
    {"OptionsName", DialogBox("frmOptions", "txtName"), BoxText},
    {"OptionsClan", DialogBox("frmOptions", "txtClan"), BoxText},
};

INSTANTIATE_TEST_SUITE_P(Boxes, PastedBreak,
                         testing::Combine(testing::ValuesIn(kBoxes), testing::Values("\r\n", "\r", "\n")),
                         [](const auto& info) {
                             const std::string lineBreak = std::get<1>(info.param);
                             return std::string(std::get<0>(info.param).name) + (lineBreak == "\r\n" ? "_CrLf"
                                                                                 : lineBreak == "\r" ? "_Cr"
                                                                                                     : "_Lf");
                         });

// --- the pane shows the line that was selected last, whatever selected it

struct SelectCase {
    const char* name;
    std::function<void(MainWindow&, LineListView*)> gesture;
    int selected;  // the line typed into
    friend void PrintTo(const SelectCase& c, std::ostream* os) { *os << c.name; }
};

class SelectThenType : public LinesTest, public testing::WithParamInterface<SelectCase> {};

TEST_P(SelectThenType, EditsOnlyTheNewlySelectedLine) {
    const TextTimes lines = {"one/15", "two/15", "three/15", "four/15"};
    Start(lines, 2);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    GetParam().gesture(*window, window->LineList());
    ASSERT_EQ(Script().SelectedIndex(), GetParam().selected);
    QTest::keyClicks(window->PaneEdit(), u"!"_s);

    TextTimes expected = lines;
    if (GetParam().name == std::string("Remove")) expected.erase(expected.begin() + 1);
    std::string& typedInto = expected[std::size_t(GetParam().selected - 1)];
    typedInto.insert(typedInto.find('/'), "!");
    EXPECT_EQ(Lines(), expected);
}

QPoint Row(LineListView* list, int row) {
    return list->visualRect(list->model()->index(row, 0)).center();
}
std::function<void(MainWindow&, LineListView*)> Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    return [key, modifiers](MainWindow&, LineListView* list) { QTest::keyClick(list, key, modifiers); };
}

INSTANTIATE_TEST_SUITE_P(
    Gestures, SelectThenType,
    testing::Values(SelectCase{"LeftClick",
                               [](MainWindow&, LineListView* l) {
                                   QTest::mouseClick(l->viewport(), Qt::LeftButton, {}, Row(l, 3));
                               },
                               4},
                    SelectCase{"RightClick",
                               [](MainWindow&, LineListView* l) {
                                   QTest::mouseClick(l->viewport(), Qt::RightButton, {}, Row(l, 2));
                               },
                               3},
                    SelectCase{"Drag",
                               [](MainWindow&, LineListView* l) {
                                   QTest::mousePress(l->viewport(), Qt::LeftButton, {}, Row(l, 1));
                                   QTest::mouseMove(l->viewport(), Row(l, 2));
                                   QTest::mouseMove(l->viewport(), Row(l, 3));
                                   QTest::mouseRelease(l->viewport(), Qt::LeftButton, {}, Row(l, 3));
                               },
                               4},
                    SelectCase{"Down", Key(Qt::Key_Down), 3},
                    SelectCase{"PageDown", Key(Qt::Key_PageDown), 4},
                    SelectCase{"PageUp", Key(Qt::Key_PageUp), 1}, SelectCase{"Home", Key(Qt::Key_Home), 1},
                    SelectCase{"End", Key(Qt::Key_End), 4},
                    // The toolbar's Remove selects the line behind the removed one.
                    SelectCase{"Remove",
                               [](MainWindow& w, LineListView*) { w.RunToolbarCommand(u"btnremove"_s); }, 2}),
    testing::PrintToStringParamName());

// --- the main window by keyboard and at its edges

TEST_F(LinesTest, InPlaceEditKeepsALongTextWholeAndWritesNothingUnchanged) {
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
    // that is not yet selected only selects it.
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

TEST_F(LinesTest, TabReachesTheColourStripAndSpaceColoursThePanesSelection) {
    Start({"abcd/15"}, 1);
    window->ToggleColours();
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QTextEdit* pane = window->PaneEdit();
    pane->setFocus();
    QTest::keyClick(pane, Qt::Key_Home);
    QTest::keyClick(pane, Qt::Key_Right);
    QTest::keyClick(pane, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(pane, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), window->LineList());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget()->objectName(), u"cmdColor_1"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(Script().LineAt(1).Text, "a^2bc^7d");
}

TEST_F(LinesTest, NoControlMovesAndNoColumnHidesWhileTheWindowIsUsed) {
    FillTo(200);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    LineListView* list = window->LineList();
    ASSERT_TRUE(QTest::qWaitFor([&] { return list->verticalScrollBar()->isVisible(); }));
    EXPECT_FALSE(list->horizontalScrollBar()->isVisible()) << "the three columns fit beside the scroll bar";

    auto* toolbar = Named<QToolBar>(u"tlbMain"_s);
    const QRect generate = toolbar->widgetForAction(Named(u"btngenerate"_s))->geometry();
    window->TogglePlayback();
    QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    EXPECT_EQ(Named(u"btnpreview"_s)->text(), u"Stop"_s);
    EXPECT_EQ(toolbar->widgetForAction(Named(u"btngenerate"_s))->geometry(), generate);
    window->TogglePlayback();
}

TEST_F(LinesTest, TheAddButtonsMenuIsOnTheAccessibilityTree) {
    auto* add =
        qobject_cast<QToolButton*>(Named<QToolBar>(u"tlbMain"_s)->widgetForAction(Named(u"btnadd"_s)));
    QAccessibleInterface* button = QAccessible::queryAccessibleInterface(add);
    ASSERT_EQ(button->childCount(), 1);
    QAccessibleInterface* menu = button->child(0);
    QStringList entries;
    for (int i = 0; i < menu->childCount(); ++i) entries << menu->child(i)->text(QAccessible::Name);
    EXPECT_EQ(entries, (QStringList{u"Before selection"_s, u"After selection"_s, QString(),
                                    u"Copy selected line"_s, u"Copy selected line x times"_s, QString(),
                                    u"Copy all lines"_s, u"Copy all lines (reverse)"_s}));
}

// --- Simple edit takes a paste as plain text in the colour in force

TEST_F(Gestures, SimpleEditPastesPlainTextInTheColourChosen) {
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
}

}  // namespace
}  // namespace flickerscribe::ui::testing_support
