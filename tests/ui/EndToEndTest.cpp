// The user's whole road through the real windows: from the wizard to the saved
// game script, and from a project file through an edit back to the file.
#include <sys/wait.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <array>
#include <cstdlib>
#include <functional>
#include <utility>
#include <vector>

#include "FileTestSupport.h"
#include "MainWindowFixture.h"
#include "colour/ColouredText.h"
#include "ui/LineListView.h"
#include "ui/ScriptWindow.h"
#include "ui/WizardDialog.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui::testing_support {
namespace {

std::vector<std::string> SplitCrLf(const std::string& bytes) {
    std::vector<std::string> lines;
    std::size_t from = 0;
    for (std::size_t at = bytes.find("\r\n"); at != std::string::npos; at = bytes.find("\r\n", from)) {
        lines.push_back(bytes.substr(from, at - from));
        from = at + 2;
    }
    lines.push_back(bytes.substr(from));  // what follows the last CR LF
    return lines;
}

std::string Quoted(const QString& path) {
    return "'" + path.toStdString() + "'";
}

class EndToEnd : public MainWindowTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(folder.isValid());
        keptAnimation = folder.filePath(u"kept/last-animation.fsq"_s);
        MainWindowTest::SetUp();
        window->resize(640, 480);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        // Whatever modal window a command opens is noted, used by `onModal`
        // (when set) and closed again.
        closer.setInterval(5);
        QObject::connect(&closer, &QTimer::timeout, [this] {
            QWidget* modal = QApplication::activeModalWidget();
            if (modal == nullptr) return;
            modalsSeen << modal->objectName();
            if (onModal) onModal(modal);
            modal->close();
        });
        closer.start();
    }

    QString PathOf(const QString& name) const { return folder.filePath(name); }

    // A real mouse click on line `index` (1-based) of the line list.
    void ClickLine(int index) {
        LineListView* list = window->LineList();
        const QModelIndex cell = list->model()->index(index - 1, 0);
        list->scrollTo(cell);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(cell).center());
    }

    // Presses Generate and, while the modal script window stands, saves it to
    // `path` through its own Save entry and closes it.
    QString GenerateAndSave(const QString& path) {
        QString shown;
        onModal = [&](QWidget* modal) {
            if (auto* script = qobject_cast<ScriptWindow*>(modal)) {
                shown = script->ScriptBox()->toPlainText();
                dialogs.QueueSave(path);
                script->findChild<QAction*>(u"mnuSave"_s)->trigger();
            }
        };
        Give(u"btngenerate"_s);
        onModal = nullptr;
        return shown;
    }

    // In the open wizard: on to the names page, types each (box, text) in
    // turn, on to the effects page, and adds `effects` there. Gives back the
    // wizard, or null when it is not where it should be.
    WizardDialog* FillWizard(const std::vector<std::pair<QString, QString>>& typed,
                             const QStringList& effects) {
        auto* wizard = window->findChild<WizardDialog*>();
        if (wizard == nullptr) return nullptr;
        auto* next = wizard->findChild<QPushButton*>(u"cmdNext"_s);
        QTest::mouseClick(next, Qt::LeftButton);
        QTest::mouseClick(next, Qt::LeftButton);
        wizard->activateWindow();
        if (wizard->CurrentPage() != 3 || !QTest::qWaitFor([&] { return wizard->isActiveWindow(); }))
            return nullptr;
        for (const auto& [box, text] : typed) {
            auto* edit = wizard->findChild<QLineEdit*>(box);
            edit->setFocus(Qt::MouseFocusReason);  // a click into a box chooses its option
            QTest::keyClicks(edit, text);
        }
        QTest::mouseClick(next, Qt::LeftButton);
        if (next->text() != u"Finish"_s) return nullptr;
        auto* list = wizard->findChild<QComboBox*>(u"cmbEffects"_s);
        for (const QString& effect : effects) {
            list->setCurrentIndex(list->findText(effect));
            QTest::mouseClick(wizard->findChild<QPushButton*>(u"cmdAddEffect"_s), Qt::LeftButton);
        }
        return wizard;
    }

    // The script the command-line program writes for a project file.
    std::string CliScript(const QString& fsq) {
        const QString out = PathOf(u"cli.cfg"_s);
        const std::string command = Quoted(QStringLiteral(FS_CLI_PATH)) + " generate " + Quoted(fsq) +
                                    " --output " + Quoted(out) + " 2>/dev/null";
        const int status = std::system(command.c_str());
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << command;
        return ReadBytes(out);
    }

    // Triggers the enabled action `name` and notes it as given.
    void Give(const QString& name) {
        QAction* action = Named(name);
        ASSERT_NE(action, nullptr);
        ASSERT_TRUE(action->isEnabled()) << name.toStdString();
        given << name;
        action->trigger();
    }

    // Every command the window offers: its enabled, named actions other than
    // separators (the menus' own entries carry no name).
    QSet<QString> Offered() const {
        QSet<QString> names;
        for (QAction* action : window->findChildren<QAction*>())
            if (!action->objectName().isEmpty() && !action->isSeparator() && action->isEnabled())
                names << action->objectName();
        return names;
    }

    QTemporaryDir folder;
    QTimer closer;
    std::function<void(QWidget*)> onModal;
    QStringList modalsSeen;
    QSet<QString> given;
};

// Wizard, a click in the list, playback to the end, Generate and Save: the
// saved script holds every line by the generator's rules and is the same
// file that the command-line program makes of the animation's project file.
TEST_F(EndToEnd, FromTheWizardToTheSavedScript) {
    Give(u"btnwizard"_s);
    // Into the tag box first: that chooses "Clantag and Name".
    QPointer<WizardDialog> wizard = FillWizard(
        {{u"txtClanTag"_s, u"[Q]"_s}, {u"txtNameOnly_1"_s, u"^1Kat"_s}}, {u"Wave 2"_s, u"Bounce"_s});
    ASSERT_FALSE(wizard.isNull());
    ASSERT_TRUE(wizard->findChild<QRadioButton*>(u"optNameOnly_1"_s)->isChecked());
    ASSERT_EQ(wizard->findChild<QTreeWidget*>(u"lvwEffects"_s)->topLevelItemCount(), 2);
    wizard->LoadEffectRow(1);
    auto* repeat = wizard->findChild<QLineEdit*>(u"txtParam1"_s);
    repeat->selectAll();
    QTest::keyClicks(repeat, u"1"_s);
    QTest::mouseClick(wizard->findChild<QPushButton*>(u"cmdNext"_s), Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return wizard.isNull(); }, 2000));
    EXPECT_TRUE(dialogs.Messages().empty()) << "a repeat of 1 asks nothing";

    const int count = Script().Count();
    ASSERT_GT(count, 4);
    for (int i = 1; i <= count; ++i) {
        EXPECT_EQ(Script().LineAt(i).Time, "15");
        EXPECT_EQ(Script().LineAt(i).Action, "[none]");
    }

    // A click on a line shows it, in its colours.
    ClickLine(3);
    EXPECT_EQ(Script().SelectedIndex(), 3);
    EXPECT_EQ(PaneRuns(), RenderRuns(Script().LineAt(3).Text));

    // Play: the real timer shows the first frame, then the rest to the end.
    QAction* play = Named(u"btnpreview"_s);
    play->trigger();
    ASSERT_EQ(play->text(), u"Stop"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return PaneRuns() == RenderRuns(Script().LineAt(1).Text); }, 2000));
    for (int tick = 0; tick <= count && window->Playing(); ++tick) window->ShowNextFrame();
    EXPECT_EQ(play->text(), u"Play"_s);
    EXPECT_EQ(PaneRuns(), RenderRuns(Script().LineAt(count).Text)) << "the last frame stays";
    EXPECT_EQ(Script().SelectedIndex(), 3);

    const QString cfg = PathOf(u"road.cfg"_s);
    const QString shown = GenerateAndSave(cfg);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    ASSERT_FALSE(shown.isEmpty()) << "the script window never came";
    const std::string saved = ReadBytes(cfg);

    const std::vector<std::string> lines = SplitCrLf(saved);
    ASSERT_EQ(lines.size(), std::size_t(1 + 7 + 2 * count + 1));
    EXPECT_EQ(lines.front(), "") << "an empty first line";
    EXPECT_EQ(lines.back(), "") << "the file ends with CR LF";
    EXPECT_EQ(saved.find('\n'), saved.find("\r\n") + 1) << "no bare line feed";
    const char* const kBanner[] = {"//--------------------------\\\\", "//----- SCRIPT MADE WITH ---\\\\",
                                   "//------ Flickerscribe -----\\\\", "//----- by: [QZT]Quillon ---\\\\",
                                   "//--------------------------\\\\", nullptr,
                                   "//--------------------------\\\\"};
    for (int b = 0; b < 7; ++b) {
        const std::string& line = lines[std::size_t(1 + b)];
        EXPECT_EQ(line.size(), 30u) << line;
        EXPECT_EQ(line.substr(0, 3), "//-");
        EXPECT_EQ(line.substr(28), "\\\\");
        if (kBanner[b] != nullptr) {
            EXPECT_EQ(line, kBanner[b]);
        }
    }
    for (int i = 1; i <= count; ++i) {
        const std::string& text = Script().LineAt(i).Text;
        const std::string quoted = text.empty() ? "^7 " : text.front() == ' ' ? "^7" + text : text;
        EXPECT_EQ(lines[std::size_t(8 + 2 * i - 2)], "set name \"" + quoted + "\"") << "line " << i;
        EXPECT_EQ(lines[std::size_t(8 + 2 * i - 1)], "wait 15") << "line " << i;
    }

    // The same animation as a project file gives the same script on the
    // command line.
    const QString fsq = PathOf(u"road.fsq"_s);
    dialogs.QueueSave(fsq);
    Named(u"mnuFileSaveAs"_s)->trigger();
    ASSERT_TRUE(QFile::exists(fsq));
    EXPECT_EQ(CliScript(fsq), saved);
    EXPECT_TRUE(dialogs.AllAnswersUsed());
}

// Open, an edit of the selected line in the pane (typed text and a colour
// button), Save As, and Open again: the edit is there and nothing else moved.
TEST_F(EndToEnd, AnEditInThePaneSurvivesSaveAndOpen) {
    const QString original = PathOf(u"name.fsq"_s);
    WriteBytes(original,
               "#v050#\r\n^1Fl^7ick\r\n15\r\n[none]\r\n^2ab\r\n7.5\r\n[none]\r\n\r\n250\r\n[none]\r\n");
    dialogs.QueueOpen(original);
    Named(u"mnuFileOpen"_s)->trigger();
    ASSERT_EQ(Script().Count(), 3);

    ClickLine(2);
    ASSERT_EQ(PaneText(), "ab");
    window->PreviewPane().SetSelStart(2);
    QTest::keyClicks(window->PaneEdit(), u"cd"_s);
    EXPECT_EQ(Script().LineAt(2).Text, "^2abcd");
    window->PreviewPane().SetSelStart(1);
    window->PreviewPane().SetSelLength(2);
    Named<QPushButton>(u"cmdColor_0"_s)->click();  // red over "bc"
    EXPECT_EQ(Script().LineAt(2).Text, "^2a^1bc^2d");

    const QString copy = PathOf(u"copy.fsq"_s);
    dialogs.QueueSave(copy);
    Named(u"mnuFileSaveAs"_s)->trigger();

    MakeWindow();
    dialogs.QueueOpen(copy);
    Named(u"mnuFileOpen"_s)->trigger();
    ASSERT_EQ(Script().Count(), 3);
    const std::vector<std::array<std::string, 3>> expected = {
        {"^1Fl^7ick", "15", "[none]"}, {"^2a^1bc^2d", "7.5", "[none]"}, {"", "250", "[none]"}};
    for (int i = 1; i <= 3; ++i) {
        const AnimationLine& line = Script().LineAt(i);
        EXPECT_EQ((std::array<std::string, 3>{line.Text, line.Time, line.Action}),
                  expected[std::size_t(i - 1)])
            << "line " << i;
    }
    EXPECT_EQ(ReadBytes(copy),
              "#v050#\r\n^1Fl^7ick\r\n15\r\n[none]\r\n^2a^1bc^2d\r\n7.5\r\n[none]\r\n\r\n250\r\n[none]\r\n");
    EXPECT_TRUE(dialogs.AllAnswersUsed());
}

// One long session that gives every command of the menus, the toolbar and
// the drop-down at least once, using and closing the windows they open. Under
// the sanitizer build (scripts/test.sh asan) this is the session that shows
// no command leaks or touches freed memory; in every build it shows that no
// command is left out of it.
TEST_F(EndToEnd, OneSessionGivesEveryCommand) {
    // With the commands that wait for something to undo, redo or reopen.
    const QSet<QString> offered = Offered() + QSet<QString>{u"mnuEditUndo"_s, u"mnuEditRedo"_s, u"mnuFileReopen"_s};
    ASSERT_GT(offered.size(), 25);

    // The wizard makes the first animation: a name with "Wave 2".
    Give(u"btnwizard"_s);
    QPointer<WizardDialog> wizard = FillWizard({{u"txtNameOnly_0"_s, u"^1Kat^2ryn"_s}}, {u"Wave 2"_s});
    ASSERT_FALSE(wizard.isNull());
    QTest::mouseClick(wizard->findChild<QPushButton*>(u"cmdNext"_s), Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return wizard.isNull(); }, 2000));
    ASSERT_GT(Script().Count(), 4);

    // Play to the end, and stop a second run half way.
    window->ShowClickedLine(2);
    Give(u"btnpreview"_s);
    for (int tick = 0; tick <= Script().Count() && window->Playing(); ++tick) window->ShowNextFrame();
    EXPECT_FALSE(window->Playing());
    Give(u"btnpreview"_s);
    EXPECT_TRUE(window->Playing());
    window->ShowNextFrame();
    Give(u"btnpreview"_s);
    EXPECT_FALSE(window->Playing());

    // The line commands and the clipboard.
    dialogs.QueueInput(u"3"_s);
    for (const QString& name : {u"btnadd"_s, u"btnaddbefore"_s, u"btnaddafter"_s, u"btncopylast"_s,
                                u"btncopylastx"_s, u"btncopyall"_s, u"btncopyallreverse"_s, u"btnremove"_s,
                                u"mnuEditCopy"_s, u"mnuEditCut"_s, u"mnuEditPaste"_s})
        Give(name);

    // Editing in the pane with the colour strip shown, then hidden again.
    Give(u"mnuEditShowColors"_s);
    EXPECT_TRUE(window->ColoursVisible());
    EXPECT_TRUE(Named(u"mnuEditShowColors"_s)->isChecked());
    window->ShowClickedLine(1);
    window->PaneEdit()->setFocus();
    QTest::keyClicks(window->PaneEdit(), u"abc"_s);
    QTest::mouseClick(window->findChild<QPushButton*>(u"cmdColor_3"_s), Qt::LeftButton);
    Give(u"mnuEditShowColors"_s);
    EXPECT_FALSE(window->ColoursVisible());
    EXPECT_FALSE(Named(u"mnuEditShowColors"_s)->isChecked());
    Give(u"btnedit"_s);

    // Files: save, start anew, open it back, import a game script.
    const QString fsq = PathOf(u"session.fsq"_s);
    const QString cfg = PathOf(u"old.cfg"_s);
    WriteBytes(cfg, "set name \"^1Old\"\r\nwait 10\r\nset name \"^2Name\"\r\n");
    const int lines = Script().Count();
    dialogs.QueueSave(fsq);
    Give(u"mnuFileSaveAs"_s);
    dialogs.QueueSave(fsq);
    dialogs.QueueMessageAnswer(MsgAnswer::Yes);  // "File exists! Overwrite?"
    Give(u"btnsave"_s);
    Give(u"btnnew"_s);
    EXPECT_EQ(Script().Count(), 0);
    Script().AppendLine("a", "15", "[none]");
    Give(u"mnuFileNew"_s);
    EXPECT_EQ(Script().Count(), 0);
    dialogs.QueueOpen(fsq);
    Give(u"mnuFileOpen"_s);
    dialogs.QueueOpen(fsq);
    Give(u"btnopen"_s);
    EXPECT_EQ(Script().Count(), lines);
    dialogs.QueueOpen(cfg);
    Give(u"mnuFileImport"_s);
    EXPECT_EQ(Script().Count(), 2);

    // Undo takes the import back, Redo does it again; the animation kept now
    // comes back with Reopen, as one more step.
    Give(u"mnuEditUndo"_s);
    EXPECT_EQ(Script().Count(), lines);
    Give(u"mnuEditRedo"_s);
    EXPECT_EQ(Script().Count(), 2);
    window->KeepAnimation();
    Give(u"btnnew"_s);
    emit Named<QMenu>(u"mnuFile"_s)->aboutToShow();
    Give(u"mnuFileReopen"_s);
    EXPECT_EQ(Script().Count(), 2);
    Give(u"mnuEditUndo"_s);
    EXPECT_EQ(Script().Count(), 0);
    Give(u"mnuEditRedo"_s);

    // Generate, saving the script from its window.
    const QString saved = PathOf(u"session.cfg"_s);
    GenerateAndSave(saved);
    EXPECT_NE(ReadBytes(saved).find("set name \"^1Old\""), std::string::npos);

    // The other windows, each opened and closed.
    for (const QString& name :
         {u"mnuHelpColor"_s, u"mnuEditSimple"_s, u"mnuEditOptions"_s, u"mnuHelpHelp"_s, u"mnuHelpAbout"_s})
        Give(name);
    EXPECT_EQ(modalsSeen, (QStringList{u"frmEdit"_s, u"frmScript"_s, u"frmColorEditor"_s, u"frmSimpleEdit"_s,
                                       u"frmOptions"_s, u"frmHelp"_s, u"frmAbout"_s}));

    // And Exit, last.
    Give(u"mnuFileExit"_s);
    EXPECT_FALSE(window->isVisible());

    const QSet<QString> missed = offered - given;
    EXPECT_TRUE(missed.isEmpty()) << "never given: "
                                  << QStringList(missed.values()).join(u", "_s).toStdString();
    EXPECT_TRUE(dialogs.AllAnswersUsed());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
}  // namespace flickerscribe::ui::testing_support
