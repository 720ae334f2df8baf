// One session gives every command, each change undone and redone by its keys;
// under scripts/test.sh asan it shows that no command leaks.
#include "MainWindowFixture.h"
#include "ui/dialogs/ScriptWindow.h"

namespace flickerscribe::ui::testing_support {
namespace {

class EndToEnd : public MainWindowTest {
protected:
    void SetUp() override {
        keptFolder = PathOf(u"kept"_s);
        // What an earlier run kept.
        ASSERT_TRUE(QDir().mkpath(keptFolder));
        WriteBytes(PathOf(u"kept/kept-earlier.fsq"_s), "#v050#\r\nearlier\r\n15\r\n[none]\r\n");
        SetAge(PathOf(u"kept/kept-earlier.fsq"_s), 60);
        MainWindowTest::SetUp();
        window->resize(640, 480);
        Show();
        // Whatever modal window a command opens is noted, used (a time given,
        // a text saved) and closed.
        closer.setInterval(5);
        QObject::connect(&closer, &QTimer::timeout, [this] {
            QWidget* modal = QApplication::activeModalWidget();
            if (modal == nullptr) return;
            modalsSeen << modal->objectName();
            if (auto* script = qobject_cast<ScriptWindow*>(modal)) {
                dialogs.QueueSave(PathOf(u"session.cfg"_s));
                script->findChild<QAction*>(u"mnuSave"_s)->trigger();
            }
            if (auto* time = modal->findChild<QLineEdit*>(u"txtTime"_s)) time->setText(u"25"_s);
            if (auto* edit = qobject_cast<SimpleEditWindow*>(modal)) {
                QTest::keyClicks(edit->findChild<QTextEdit*>(u"txtPreview"_s), u"one"_s);
                QTest::mouseClick(edit->findChild<QPushButton*>(u"cmdSave"_s), Qt::LeftButton);
            }
            if (modal->objectName() == u"frmEdit"_s) modal->findChild<QPushButton*>(u"cmdOK"_s)->click();
            modal->close();
        });
        closer.start();
    }
    // Triggers the enabled command `name` and notes it as given.
    void Give(const QString& name) {
        ASSERT_TRUE(named(name)->isEnabled()) << name.toStdString();
        given << name;
        Change([&] { Trigger(name); });
    }
    // Makes a change; if it made a step (Undo names another, Redo has none), Ctrl+Z
    // brings back the lines, the selected line and the pane, and Ctrl+Y the change.
    void Change(const std::function<void()>& change) {
        using Seen = std::tuple<TextTimes, int, std::string>;
        const Seen before{Lines(), script().SelectedIndex(), PaneText()};
        QAction* undo = named(u"mnuEditUndo"_s);
        const QString stepBefore = undo->text();
        change();
        const Seen after{Lines(), script().SelectedIndex(), PaneText()};
        const bool stepMade =
            undo->isEnabled() && undo->text() != stepBefore && !named(u"mnuEditRedo"_s)->isEnabled();
        if (!stepMade || !window->isVisible()) return;
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        Key(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(Seen(Lines(), script().SelectedIndex(), PaneText()), before);
        Key(Qt::Key_Y, Qt::ControlModifier);
        EXPECT_EQ(Seen(Lines(), script().SelectedIndex(), PaneText()), after);
    }

    QTimer closer;
    QStringList modalsSeen;
    QSet<QString> given;
};

TEST_F(EndToEnd, OneSessionGivesEveryCommand) {
    // Every named command, and those that wait for something to undo, redo or reopen.
    QSet<QString> offered{u"mnuEditUndo"_s, u"mnuEditRedo"_s, u"mnuFileReopen"_s};
    for (QAction* action : window->findChildren<QAction*>())
        if (!action->objectName().isEmpty() && !action->isSeparator() && action->isEnabled())
            offered << action->objectName();
    ASSERT_GT(offered.size(), 28);

    // The wizard makes the first animation: the settings' name with "Wave 2".
    store.writeValue(u"Name"_s, u"^1Kat^2ryn"_s);
    ReloadSettings();
    Give(u"btnwizard"_s);
    QPointer<WizardDialog> wizard = window->findChild<WizardDialog*>();
    const auto click = [&](const QString& name) {
        QTest::mouseClick(wizard->findChild<QPushButton*>(name), Qt::LeftButton);
    };
    while (wizard->currentId() < 4) click(u"cmdNext"_s);
    wizard->findChild<QComboBox*>(u"cmbEffects"_s)->setCurrentIndex(0);
    click(u"cmdAddEffect"_s);
    Change([&] { click(u"cmdNext"_s); });
    ASSERT_TRUE(QTest::qWaitFor([&] { return wizard.isNull(); }));
    ASSERT_GT(script().Count(), 4);

    // Play, and stop half way.
    Give(u"btnpreview"_s);
    Tick();
    Give(u"btnpreview"_s);

    // The line commands, the clipboard, and editing in the pane with the
    // colour strip shown.
    dialogs.QueueInput(u"3"_s);
    for (const QString& name : {u"btnadd"_s, u"btnaddbefore"_s, u"btnaddafter"_s, u"btncopylast"_s,
                                u"btncopylastx"_s, u"btncopyall"_s, u"btncopyallreverse"_s, u"btnremove"_s,
                                u"mnuEditCopy"_s, u"mnuEditCut"_s, u"mnuEditPaste"_s, u"mnuEditShowColors"_s})
        Give(name);
    Change([&] { QTest::keyClicks(PaneEdit(), u"abc"_s); });
    Change([&] {
        MainPane().SetSelStart(0);
        MainPane().SetSelLength(2);
        QTest::mouseClick(window->findChild<QPushButton*>(u"cmdColor_3"_s), Qt::LeftButton);
    });
    Change([&] {  // the list's own editor
        LineListView* list = List();
        list->edit(list->model()->index(0, 0));
        auto* editor = list->viewport()->findChild<QLineEdit*>();
        QTest::keyClicks(editor, u"^2x"_s);
        QTest::keyClick(editor, Qt::Key_Return);
        ASSERT_TRUE(QTest::qWaitFor([&] { return script().LineAt(1).Text.ends_with("^2x"); }));
    });
    Give(u"mnuEditShowColors"_s);
    Give(u"btnedit"_s);

    // Files: save, start anew, open it back, import a game script, undo and
    // redo, reopen the kept animation.
    const QString fsq = PathOf(u"session.fsq"_s), cfg = PathOf(u"old.cfg"_s);
    WriteBytes(cfg, "set name \"^1Old\"\nwait 10\nset name \"^2Name\"\n");
    const int lines = script().Count();
    dialogs.QueueSave(fsq);
    Give(u"mnuFileSaveAs"_s);
    dialogs.QueueSave(fsq);
    dialogs.QueueMessageAnswer(MsgAnswer::Yes);  // "File exists! Overwrite?"
    Give(u"btnsave"_s);
    Give(u"btnnew"_s);
    Give(u"btnadd"_s);
    Give(u"mnuFileNew"_s);
    for (const QString& name : {u"mnuFileOpen"_s, u"btnopen"_s}) {
        dialogs.QueueOpen(fsq);
        Give(name);
    }
    EXPECT_EQ(script().Count(), lines);
    dialogs.QueueOpen(cfg);
    Give(u"mnuFileImport"_s);
    EXPECT_EQ(Lines(), TextTimes({"^1Old/10", "^2Name/15"}));
    Give(u"mnuEditUndo"_s);
    EXPECT_EQ(script().Count(), lines);
    Give(u"mnuEditRedo"_s);
    Tick(u"timKeep"_s);
    Give(u"btnnew"_s);
    emit named<QMenu>(u"mnuFile"_s)->aboutToShow();
    Give(u"mnuFileReopen"_s);
    EXPECT_EQ(Lines(), TextTimes{"earlier/15"}) << "the earlier run's";
    emit named<QMenu>(u"mnuFileKept"_s)->aboutToShow();
    const QList<QAction*> kept = named<QMenu>(u"mnuFileKept"_s)->actions();
    ASSERT_EQ(kept.size(), 2);
    Change([&] { kept.front()->trigger(); });
    EXPECT_EQ(script().Count(), 2) << "this run's, the newest";

    // Generate, saved from its window.
    Give(u"btngenerate"_s);
    EXPECT_TRUE(ReadBytes(PathOf(u"session.cfg"_s))
                    .ends_with("set name \"^1Old\"\r\nwait 10\r\nset name \"^2Name\"\r\nwait 15\r\n"));

    dialogs.QueueSave(PathOf(u"session.gif"_s));
    Give(u"mnuFileExportPicture"_s);

    // The other windows, each opened and closed; and Exit, last.
    for (const QString& name :
         {u"mnuHelpColor"_s, u"mnuEditSimple"_s, u"mnuEditOptions"_s, u"mnuHelpHelp"_s, u"mnuHelpAbout"_s})
        Give(name);
    EXPECT_EQ(modalsSeen, (QStringList{u"frmEdit"_s, u"frmScript"_s, u"frmColorEditor"_s, u"frmSimpleEdit"_s,
                                       u"frmOptions"_s, u"frmHelp"_s, u"frmAbout"_s}));
    const auto calls = dialogs.Calls().size();
    Give(u"mnuFileExit"_s);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(dialogs.Calls().size(), calls) << "Exit asks nothing, not even over unsaved work";
    EXPECT_EQ(ReadBytes(KeptFiles().value(0)), "#v050#\r\n^8one\r\n15\r\n[none]\r\n")
        << "Simple Edit's, kept at the end";
    EXPECT_EQ(QStringList((offered - given).values()).join(u", "_s), QString()) << "never given";
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
}  // namespace flickerscribe::ui::testing_support
