#include <QApplication>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include "MainWindowFixture.h"
#include "ui/LineListView.h"
#include "ui/Twips.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui::testing_support {
namespace {

using MainWindow = MainWindowTest;

TEST_F(MainWindow, StartsEmptyWithALockedPaneAndNoColours) {
    EXPECT_EQ(window->windowTitle(), u"Flickerscribe - by [QZT]Quillon"_s);
    EXPECT_FALSE(window->windowIcon().isNull());
    EXPECT_EQ(Script().Count(), 0);
    EXPECT_TRUE(PaneLocked());
    EXPECT_EQ(PaneText(), "Preview");
    EXPECT_FALSE(window->ColoursVisible());
    EXPECT_FALSE(Named<QWidget>(u"picColors"_s)->isVisibleTo(window.get()));
    EXPECT_FALSE(Named(u"mnuEditShowColors"_s)->isChecked());
    EXPECT_FALSE(Named(u"mnuFileSave"_s)->isEnabled());
    EXPECT_FALSE(window->PreviewBusy());
    EXPECT_EQ(Named(u"btnpreview"_s)->text(), u"Play"_s);
    EXPECT_FALSE(Named<QTimer>(u"timAni"_s)->isActive());
    EXPECT_EQ(Named<QTimer>(u"timAni"_s)->interval(), 100);
    // A first run: settings read, nothing written.
    EXPECT_EQ(store.Reads(), (QStringList{u"OpenDir"_s, u"SaveDir"_s, u"Name"_s, u"Clantag"_s, u"Reverse"_s,
                                          u"EditItem"_s}));
    EXPECT_FALSE(store.Written());
}

TEST_F(MainWindow, ThePaneIsGreyBoldAndOneLineHigh) {
    auto* pane = Named<QTextEdit>(u"txtPreview"_s);
    EXPECT_EQ(pane->palette().color(QPalette::Base), QColor(128, 128, 128));
    EXPECT_TRUE(pane->font().bold());
    EXPECT_DOUBLE_EQ(pane->font().pointSizeF(), 14.25);
    EXPECT_EQ(pane->lineWrapMode(), QTextEdit::NoWrap);
    EXPECT_EQ(pane->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    EXPECT_EQ(pane->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
}

TEST_F(MainWindow, TheColourButtonsStandForDigitsOneToEight) {
    const QColor expected[] = {Qt::red,  Qt::green,   Qt::yellow, Qt::blue,
                               Qt::cyan, Qt::magenta, Qt::white,  Qt::black};
    auto* strip = Named<QWidget>(u"picColors"_s);
    for (int index = 0; index < 8; ++index) {
        SCOPED_TRACE(index);
        auto* button = Named<QWidget>(u"cmdColor_%1"_s.arg(index));
        ASSERT_NE(button, nullptr);
        EXPECT_EQ(button->parentWidget(), strip);
        EXPECT_EQ(button->geometry(), TwipsRect(480 * index, 50, 375, 375));
        EXPECT_TRUE(button->styleSheet().contains(expected[index].name()))
            << button->styleSheet().toStdString();
    }
    EXPECT_EQ(window->findChild<QWidget*>(u"cmdColor_8"_s), nullptr);
}

TEST_F(MainWindow, TheListShowsThreeColumnsInAFixedRowHeight) {
    auto* list = Named<LineListView>(u"lvwMain"_s);
    ASSERT_NE(list, nullptr);
    const QStringList captions{u"Text"_s, u"Time"_s, u"Action"_s};
    const int widths[] = {5000, 1440, 1440};
    for (int column = 0; column < 3; ++column) {
        EXPECT_EQ(list->model()->headerData(column, Qt::Horizontal).toString(), captions[column]);
        EXPECT_EQ(list->columnWidth(column), Twips(widths[column]));
    }
    EXPECT_EQ(list->verticalHeader()->sectionResizeMode(0), QHeaderView::Fixed);
    EXPECT_EQ(list->selectionMode(), QAbstractItemView::SingleSelection);
    EXPECT_EQ(list->selectionBehavior(), QAbstractItemView::SelectRows);
    EXPECT_FALSE(list->isSortingEnabled());
    EXPECT_FALSE(list->font().bold());
    EXPECT_DOUBLE_EQ(list->font().pointSizeF(), 9.75);
}

// --- menus

// One menu entry: its key ("-" for a separator), caption and shortcut. No
// caption carries an access key.
struct EntryRow {
    const char* name;
    const char* caption = "";
    QKeySequence shortcut = {};
};

struct MenuCase {
    const char* menu;
    const char* caption;
    std::vector<EntryRow> entries;
};

TEST_F(MainWindow, MenusHoldTheirEntriesInOrder) {
    const EntryRow sep{"-"};
    const MenuCase menus[] = {
        {"mnuFile",
         "File",
         {{"mnuFileNew", "New"},
          {"mnuFileOpen", "Open"},
          {"mnuFileImport", "Import"},
          {"mnuFileReopen", "Reopen last animation"},
          sep,
          {"mnuFileSave", "Save"},
          {"mnuFileSaveAs", "Save As"},
          sep,
          {"mnuFileExit", "Exit"}}},
        {"mnuEdit",
         "Edit",
         {{"mnuEditUndo", "Undo", QKeySequence(Qt::CTRL | Qt::Key_Z)},
          {"mnuEditRedo", "Redo", QKeySequence(Qt::CTRL | Qt::Key_Y)},
          sep,
          {"mnuEditCut", "Cut", QKeySequence(Qt::CTRL | Qt::Key_X)},
          {"mnuEditCopy", "Copy", QKeySequence(Qt::CTRL | Qt::Key_C)},
          {"mnuEditPaste", "Paste", QKeySequence(Qt::CTRL | Qt::Key_V)},
          sep,
          {"mnuEditShowColors", "Show colors"},
          {"mnuHelpColor", "Color name editor"},
          {"mnuEditSimple", "Simple Edit"},
          sep,
          {"mnuEditOptions", "Options"}}},
        {"mnuHelp",
         "Help",
         {{"mnuHelpHelp", "Help!"}, sep, {"mnuHelpAbout", "About", QKeySequence(Qt::Key_F1)}}},
    };
    QStringList menuOrder;
    for (QAction* action : window->menuBar()->actions()) menuOrder << action->menu()->objectName();
    EXPECT_EQ(menuOrder, (QStringList{u"mnuFile"_s, u"mnuEdit"_s, u"mnuHelp"_s}));
    for (const MenuCase& c : menus) {
        SCOPED_TRACE(c.menu);
        auto* menu = Named<QMenu>(QString::fromLatin1(c.menu));
        ASSERT_NE(menu, nullptr);
        EXPECT_EQ(menu->title(), QString::fromLatin1(c.caption));
        const QList<QAction*> actions = menu->actions();
        ASSERT_EQ(actions.size(), qsizetype(c.entries.size()));
        for (qsizetype i = 0; i < actions.size(); ++i) {
            const EntryRow& row = c.entries[std::size_t(i)];
            SCOPED_TRACE(row.name);
            EXPECT_EQ(actions[i]->isSeparator() ? "-" : actions[i]->objectName().toStdString(), row.name);
            if (actions[i]->isSeparator()) continue;
            EXPECT_EQ(actions[i]->text().toStdString(), row.caption);
            EXPECT_EQ(actions[i]->shortcut().toString().toStdString(), row.shortcut.toString().toStdString());
        }
    }
}

// --- toolbar

struct ToolCase {
    const char* key;  // "-" for a separator
    const char* caption;
    const char* tip;
};

TEST_F(MainWindow, ToolbarHasItsButtonsInOrderWithCaptionsUnderImages) {
    const ToolCase buttons[] = {
        {"btnnew", "New", "New Animation Script"},
        {"btnopen", "Open", "Open Animation Script"},
        {"btnsave", "Save", "Save Animation Script"},
        {"-", "", ""},
        {"btnadd", "Add", "Add line"},
        {"btnremove", "Remove", "Remove Line"},
        {"btnedit", "Edit", "Edit Line"},
        {"-", "", ""},
        {"btnwizard", "Wizard", "Animation Script Wizard"},
        {"btnpreview", "Play", "Preview animation"},
        {"btngenerate", "Generate", "Generate Brennock Script"},
    };
    auto* toolbar = Named<QToolBar>(u"tlbMain"_s);
    ASSERT_NE(toolbar, nullptr);
    EXPECT_EQ(toolbar->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    EXPECT_EQ(toolbar->iconSize(), QSize(27, 32));
    const QList<QAction*> actions = toolbar->actions();
    ASSERT_EQ(actions.size(), 11);
    for (int i = 0; i < 11; ++i) {
        SCOPED_TRACE(buttons[i].key);
        if (QString::fromLatin1(buttons[i].key) == u"-"_s) {
            EXPECT_TRUE(actions[i]->isSeparator());
            continue;
        }
        EXPECT_EQ(actions[i]->objectName(), QString::fromLatin1(buttons[i].key));
        EXPECT_EQ(actions[i]->text(), QString::fromLatin1(buttons[i].caption));
        EXPECT_EQ(actions[i]->toolTip(), QString::fromLatin1(buttons[i].tip));
        EXPECT_FALSE(actions[i]->icon().isNull());
    }
}

TEST_F(MainWindow, TheAddButtonDropsDownItsEightEntries) {
    QAction* add = Named(u"btnadd"_s);
    ASSERT_NE(add, nullptr);
    QMenu* menu = add->menu();
    ASSERT_NE(menu, nullptr);
    auto* button = qobject_cast<QToolButton*>(Named<QToolBar>(u"tlbMain"_s)->widgetForAction(add));
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->popupMode(), QToolButton::MenuButtonPopup);
    EXPECT_FALSE(menu->toolTipsVisible());
    QStringList entries;
    for (QAction* action : menu->actions())
        entries << (action->isSeparator() ? u"-"_s : action->objectName() + u'=' + action->text());
    EXPECT_EQ(entries,
              (QStringList{u"btnaddbefore=Before selection"_s, u"btnaddafter=After selection"_s, u"-"_s,
                           u"btncopylast=Copy selected line"_s, u"btncopylastx=Copy selected line x times"_s,
                           u"-"_s, u"btncopyall=Copy all lines"_s,
                           u"btncopyallreverse=Copy all lines (reverse)"_s}));
}

// --- dispatch by key

TEST_F(MainWindow, ButtonKeysReachTheirCommands) {
    AddLines({"a", "b"});
    window->RunToolbarCommand(u"btnnew"_s);
    EXPECT_EQ(Script().Count(), 0) << "btnnew is New";

    dialogs.QueueMessageAnswer(MsgAnswer::Ok);
    window->RunToolbarCommand(u"btnpreview"_s);
    EXPECT_EQ(dialogs.Messages().size(), 1u) << "btnpreview is Play, which has nothing to play";

    AddLines({"a"});
    for (const QString& key : {u"BTNNEW"_s, u"btnnew "_s, u"btnaddbefore"_s, QString()})
        window->RunToolbarCommand(key);
    EXPECT_EQ(Script().Count(), 1) << "only the exact key text counts";
    for (const QString& key : {u"btnnew"_s, u"btnpreview"_s, QString()}) window->RunAddMenuCommand(key);
    EXPECT_EQ(Script().Count(), 1) << "toolbar keys are no menu keys";
    EXPECT_FALSE(window->Playing());
}

// --- New and SetPreview

TEST_F(MainWindow, NewEmptiesTheListAndLocksThePane) {
    AddLines({"^1Hi", "b"});
    EXPECT_EQ(PaneText(), "Hi");
    window->NewAnimation();
    EXPECT_EQ(Script().Count(), 0);
    EXPECT_EQ(PaneText(), "Preview");
    EXPECT_TRUE(PaneLocked());
}

TEST_F(MainWindow, SetPreviewShowsTheSelectedLineInItsColours) {
    AddLines({"first", "^1A^2B", "third"});
    Script().SelectLine(2);
    window->SetPreview();
    EXPECT_FALSE(PaneLocked());
    EXPECT_EQ(PaneRuns(), (std::vector<ColouredRun>{{"A", kRed}, {"B", kGreen}}));
}

TEST_F(MainWindow, SetPreviewOfAnEmptyTextEmptiesThePane) {
    AddLines({""});
    window->SetPreview();
    EXPECT_FALSE(PaneLocked());
    EXPECT_EQ(PaneText(), "");
}

struct BusyCase {
    const char* name;
    bool busyBefore;
    bool withLines;
    friend void PrintTo(const BusyCase& c, std::ostream* os) { *os << c.name; }
};

class SetPreviewBusy : public MainWindowTest, public testing::WithParamInterface<BusyCase> {};

// The pane's change event fires while SetPreview draws, always with
// PreviewBusy set, and PreviewBusy is given back its old value.
TEST_P(SetPreviewBusy, DrawsBusyAndRestoresTheFlag) {
    if (GetParam().withLines) AddLines({"^3x", "y"});
    window->SetPreviewBusy(GetParam().busyBefore);
    std::vector<bool> seen;
    QObject::connect(window->PaneEdit(), &QTextEdit::textChanged, window.get(),
                     [&] { seen.push_back(window->PreviewBusy()); });
    window->SetPreview();
    ASSERT_FALSE(seen.empty());
    for (bool busy : seen) EXPECT_TRUE(busy);
    EXPECT_EQ(window->PreviewBusy(), GetParam().busyBefore);
}

INSTANTIATE_TEST_SUITE_P(Cases, SetPreviewBusy,
                         testing::Values(BusyCase{"IdleWithLines", false, true},
                                         BusyCase{"IdleEmpty", false, false},
                                         BusyCase{"BusyWithLines", true, true},
                                         BusyCase{"BusyEmpty", true, false}),
                         testing::PrintToStringParamName());

// --- the list and the selection

TEST_F(MainWindow, AClickOnARowSelectsItsLineAndShowsIt) {
    AddLines({"one", "^1two", "three"});
    window->show();
    auto* list = Named<LineListView>(u"lvwMain"_s);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    const QRect row = list->visualRect(list->model()->index(1, 1));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row.center());
    EXPECT_EQ(Script().SelectedIndex(), 2);
    EXPECT_EQ(PaneRuns(), (std::vector<ColouredRun>{{"two", kRed}}));

    // A click below the last row, or with Ctrl on the selected row, keeps it.
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, QPoint(5, list->viewport()->height() - 3));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier, row.center());
    EXPECT_EQ(Script().SelectedIndex(), 2);
    EXPECT_TRUE(list->selectionModel()->isRowSelected(1, {}));
}

TEST_F(MainWindow, TheListFollowsTheScriptsSelection) {
    auto* list = Named<LineListView>(u"lvwMain"_s);
    AddLines({"a", "b", "c"});
    EXPECT_EQ(list->currentIndex().row(), 0);
    Script().SelectLine(3);
    EXPECT_EQ(list->currentIndex().row(), 2);
    ASSERT_TRUE(Script().InsertLine(1, "new", "15", "[none]"));
    EXPECT_EQ(Script().SelectedIndex(), 4);
    EXPECT_EQ(list->currentIndex().row(), 3);
    // Removing the selected line: the script picks the next one, and the list
    // shows that one, not the one its own rule would pick.
    Script().SelectLine(2);
    ASSERT_TRUE(Script().RemoveLine(2));
    EXPECT_EQ(Script().SelectedIndex(), 2);
    EXPECT_EQ(list->currentIndex().row(), 1);
    EXPECT_TRUE(list->selectionModel()->isRowSelected(1, {}));
    Script().ClearLines();
    EXPECT_FALSE(list->selectionModel()->hasSelection());
    AddLines({"x"});
    EXPECT_EQ(list->currentIndex().row(), 0);
}

// --- in-place editing follows the setting

TEST_F(MainWindow, TheEditItemSettingDecidesWhetherTheTextCanBeEditedInPlace) {
    const std::pair<QString, QAbstractItemView::EditTriggers> cases[] = {
        {u"1"_s, QAbstractItemView::SelectedClicked},
        {u"0"_s, QAbstractItemView::NoEditTriggers},
        {u"true"_s, QAbstractItemView::NoEditTriggers},
    };
    for (const auto& [stored, expected] : cases) {
        SCOPED_TRACE(stored.toStdString());
        store.WriteValue(u"EditItem"_s, stored);
        MakeWindow();
        EXPECT_EQ(Named<LineListView>(u"lvwMain"_s)->editTriggers(), expected);
    }
}

TEST_F(MainWindow, LoadSettingsAgainAppliesAChangedSetting) {
    auto* list = Named<LineListView>(u"lvwMain"_s);
    EXPECT_EQ(list->editTriggers(), QAbstractItemView::NoEditTriggers);
    store.WriteValue(u"EditItem"_s, u"1"_s);
    store.WriteValue(u"Name"_s, u"Quillon"_s);
    window->LoadSettings();
    EXPECT_EQ(list->editTriggers(), QAbstractItemView::SelectedClicked);
    EXPECT_EQ(window->Settings().name, u"Quillon"_s);
}

TEST_F(MainWindow, AnInPlaceEditWritesTheTextAndNothingElse) {
    store.WriteValue(u"EditItem"_s, u"1"_s);
    MakeWindow();
    AddLines({"^1old"});
    window->SetPreview();
    auto* list = Named<LineListView>(u"lvwMain"_s);
    QAbstractItemModel* model = list->model();
    EXPECT_TRUE(model->flags(model->index(0, 0)) & Qt::ItemIsEditable);
    EXPECT_FALSE(model->flags(model->index(0, 1)) & Qt::ItemIsEditable);
    EXPECT_FALSE(model->flags(model->index(0, 2)) & Qt::ItemIsEditable);
    EXPECT_TRUE(model->setData(model->index(0, 0), u"^2new \u00e9"_s));
    EXPECT_FALSE(model->setData(model->index(0, 1), u"99"_s));
    EXPECT_EQ(Script().LineAt(1), (AnimationLine{"^2new \xE9", "15", "[none]"}));
    EXPECT_EQ(PaneText(), "new \xE9") << "the pane shows the line as it is now";
}

// --- the Edit menu's shortcuts work on lines wherever the focus is

TEST_F(MainWindow, CutCopyPasteKeysReachTheMenuFromThePaneAndTheList) {
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    AddLines({"line"});
    window->SetPreview();
    QSignalSpy cut(Named(u"mnuEditCut"_s), &QAction::triggered);
    QSignalSpy copy(Named(u"mnuEditCopy"_s), &QAction::triggered);
    QSignalSpy paste(Named(u"mnuEditPaste"_s), &QAction::triggered);
    for (QWidget* target :
         {static_cast<QWidget*>(window->PaneEdit()), static_cast<QWidget*>(window->LineList())}) {
        target->setFocus();
        QTest::keyClick(target, Qt::Key_X, Qt::ControlModifier);
        QTest::keyClick(target, Qt::Key_C, Qt::ControlModifier);
        QTest::keyClick(target, Qt::Key_V, Qt::ControlModifier);
    }
    EXPECT_EQ(cut.count(), 2);
    EXPECT_EQ(copy.count(), 2);
    EXPECT_EQ(paste.count(), 2);
    EXPECT_EQ(PaneText(), "line") << "the pane's own cut must not run";
}

TEST_F(MainWindow, ExitClosesTheWindowWithoutAQuestion) {
    AddLines({"unsaved"});
    window->show();
    Named(u"mnuFileExit"_s)->trigger();
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(dialogs.Calls().empty());
    EXPECT_FALSE(store.Written());
}

}  // namespace
}  // namespace flickerscribe::ui::testing_support
