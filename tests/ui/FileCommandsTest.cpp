#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <cerrno>
#include <cstring>

#include "FileTestSupport.h"
#include "MainWindowFixture.h"
#include "document/SafeWrite.h"
#include "ui/LineListView.h"
#include "ui/frmScript.h"

namespace fs::ui {
namespace {

using namespace testing_support;
using namespace Qt::Literals::StringLiterals;

enum class Command { Open, SaveAs, Import, SaveScript };

const QString kFsq = u"Brennock Animation Script (*.fsq)|*.fsq"_s;
const QString kCfg = u"Brennock Scripts (*.cfg)|*.cfg"_s;
const QString kCfgOrAll = u"Brennock Script (*.cfg)|*.cfg|All Files(*.*)|*.*"_s;
const QString kImportNote = u"message Import note [info]: Note: Currently only .cfg files can be imported!"_s;

class FileCommands : public MainWindowTest {
protected:
    void TearDown() override { write_seam::Reset(); }

    frmScript& ScriptWindow() {
        if (!scriptWindow) {
            scriptWindow = std::make_unique<frmScript>(Script(), dialogs, window->Settings(), window.get());
            scriptWindow->Form_Load();
        }
        return *scriptWindow;
    }
    FileDialogState& DialogOf(Command command) {
        return command == Command::SaveScript ? ScriptWindow().dlgFileOps : window->dlgFileOps;
    }
    void Run(Command command) {
        switch (command) {
            case Command::Open:
                return window->OpenAnimation();
            case Command::SaveAs:
                return window->SaveAnimationAs();
            case Command::Import:
                return window->ImportScript();
            case Command::SaveScript:
                return ScriptWindow().SaveScript();
        }
    }
    static bool Saves(Command command) {
        return command == Command::SaveAs || command == Command::SaveScript;
    }
    void QueueFile(Command command, std::optional<QString> path) {
        Saves(command) ? dialogs.QueueSave(std::move(path)) : dialogs.QueueOpen(std::move(path));
    }
    void UseFolders(const QString& openDir, const QString& saveDir) {
        store.WriteRegistryString(u"OpenDir"_s, openDir);
        store.WriteRegistryString(u"SaveDir"_s, saveDir);
        window->LoadSettings();
    }
    std::vector<AnimationLine> Lines() {
        std::vector<AnimationLine> out;
        for (int i = 1; i <= Script().Count(); ++i) out.push_back(Script().LineAt(i));
        return out;
    }
    QString PathOf(const QString& name) const { return dir.filePath(name); }

    QTemporaryDir dir;
    std::unique_ptr<frmScript> scriptWindow;
};

// --- Cancel, and how each dialog is set up

struct DialogCase {
    Command command;
    QString title;
    QString filter;
    QString openDir, saveDir;
    QString initDir;  // after a first run with other folders; "/last" is the dialog's own
};

class FileDialogs : public FileCommands, public testing::WithParamInterface<DialogCase> {};

TEST_P(FileDialogs, CancelChangesNothingAndTheFolderComesFromTheSettingsOfTheMoment) {
    const DialogCase& c = GetParam();
    AddLines({"a", "b"});
    UseFolders(u"/before"_s, u"/before"_s);
    QueueFile(c.command, std::nullopt);
    Run(c.command);
    UseFolders(c.openDir, c.saveDir);
    DialogOf(c.command).InitDir = u"/last"_s;
    QueueFile(c.command, std::nullopt);
    dialogs.ClearCalls();
    Run(c.command);

    const QString shown = (Saves(c.command) ? u"save "_s : u"open "_s) + c.title;
    EXPECT_EQ(Asked(dialogs),
              (c.command == Command::Import ? QStringList{kImportNote, shown} : QStringList{shown}));
    const FileDialogState& state = dialogs.Calls().back().state;
    EXPECT_EQ(state.Filter, c.filter);
    EXPECT_EQ(state.InitDir, c.initDir);
    EXPECT_EQ(Lines(), (std::vector<AnimationLine>{{"a"}, {"b"}}));
    EXPECT_TRUE(QDir(dir.path()).isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Table, FileDialogs,
    testing::Values(DialogCase{Command::Open, u"Open Brennock Animation"_s, kFsq, u"/o"_s, u"/s"_s, u"/o"_s},
                    DialogCase{Command::Open, u"Open Brennock Animation"_s, kFsq, {}, u"/s"_s, u"/last"_s},
                    DialogCase{Command::SaveAs, u"Save Brennock Animation"_s, kFsq, u"/o"_s, u"/s"_s,
                               u"/s"_s},
                    DialogCase{Command::SaveAs, u"Save Brennock Animation"_s, kFsq, u"/o"_s, {}, u"/last"_s},
                    DialogCase{Command::Import, u"Import file"_s, kCfg, u"/o"_s, u"/s"_s, u"/last"_s},
                    DialogCase{Command::SaveScript, u"Save Script"_s, kCfgOrAll, u"/o"_s, u"/s"_s, u"/s"_s},
                    DialogCase{Command::SaveScript, u"Save Script"_s, kCfgOrAll, u"/o"_s, {}, u"/last"_s}));

// --- a file that can't be read

enum class Missing { NoSuchFile, Folder, Unreadable };
class MissingFiles : public FileCommands, public testing::WithParamInterface<std::tuple<Command, Missing>> {};

TEST_P(MissingFiles, AreNotFoundAndLeaveTheList) {
    const auto [command, missing] = GetParam();
    if (missing == Missing::Unreadable && ::geteuid() == 0) GTEST_SKIP() << "root reads every file";
    QString path = PathOf(u"gone.fsq"_s);
    if (missing == Missing::Folder) path = dir.path();
    if (missing == Missing::Unreadable) {
        WriteBytes(path, "#v050#\r\nx\r\n15\r\n[none]\r\n");
        QFile::setPermissions(path, QFileDevice::WriteOwner);
    }
    AddLines({"a"});
    QueueFile(command, path);
    Run(command);
    EXPECT_EQ(Asked(dialogs).last(), command == Command::Open
                                         ? u"message Error [stop]: File not found!\n"_s + path
                                         : u"message Import error [stop]: File not found!"_s);
    EXPECT_EQ(Lines(), std::vector<AnimationLine>{{"a"}});
}

INSTANTIATE_TEST_SUITE_P(Table, MissingFiles,
                         testing::Combine(testing::Values(Command::Open, Command::Import),
                                          testing::Values(Missing::NoSuchFile, Missing::Folder,
                                                          Missing::Unreadable)));

// --- the question before an existing file is replaced

struct OverwriteCase {
    Command command;
    MsgAnswer answer;  // No is followed by Cancel in the dialog shown again
};

class Overwrite : public FileCommands, public testing::WithParamInterface<OverwriteCase> {};

TEST_P(Overwrite, OnlyYesReplacesTheFileAndNoAsksForANameAgain) {
    const auto [command, answer] = GetParam();
    const QString path = PathOf(u"old"_s);
    WriteBytes(path, "old");
    AddLines({"a"});
    ScriptWindow();
    dialogs.QueueSave(path);
    dialogs.QueueMessageAnswer(answer);
    if (answer == MsgAnswer::No) dialogs.QueueSave(std::nullopt);
    Run(command);

    const bool saveAs = command == Command::SaveAs;
    const QString shown = saveAs ? u"save Save Brennock Animation"_s : u"save Save Script"_s;
    QStringList expected{shown, saveAs
                                    ? u"message Save Brennock Animation [question]: File exists! Overwrite?"_s
                                    : u"message Save script [question]: File Exists! Overwrite?"_s};
    if (answer == MsgAnswer::No) {
        expected << shown;
        EXPECT_EQ(dialogs.Calls().back().state.FileName, path) << "the dialog shows the name chosen last";
    }
    EXPECT_EQ(Asked(dialogs), expected);
    EXPECT_EQ(ReadBytes(path) == "old", answer != MsgAnswer::Yes);
}

INSTANTIATE_TEST_SUITE_P(Table, Overwrite,
                         testing::Values(OverwriteCase{Command::SaveAs, MsgAnswer::Yes},
                                         OverwriteCase{Command::SaveAs, MsgAnswer::No},
                                         OverwriteCase{Command::SaveAs, MsgAnswer::Cancel},
                                         OverwriteCase{Command::SaveScript, MsgAnswer::Yes},
                                         OverwriteCase{Command::SaveScript, MsgAnswer::No},
                                         OverwriteCase{Command::SaveScript, MsgAnswer::Cancel}));

// --- a save that fails

class FailedSave : public FileCommands, public testing::WithParamInterface<std::tuple<Command, bool>> {};

TEST_P(FailedSave, KeepsTheOldFileAndTellsTheError) {
    const auto [command, readOnlyFolder] = GetParam();
    if (readOnlyFolder && ::geteuid() == 0) GTEST_SKIP() << "root writes into any folder";
    AddLines({"a"});
    const QString shownText = ScriptWindow().ScriptBox()->toPlainText();
    QString path = PathOf(u"old"_s);
    int error = ENOSPC;
    if (readOnlyFolder) {
        ASSERT_TRUE(QDir(dir.path()).mkdir(u"locked"_s));
        path = PathOf(u"locked/new"_s);
        ASSERT_EQ(::chmod(QFile::encodeName(PathOf(u"locked"_s)).constData(), 0555), 0);
        error = EACCES;
    } else {
        WriteBytes(path, "old");
        dialogs.QueueMessageAnswer(MsgAnswer::Yes);
        write_seam::FailNextWriteAfter(3, ENOSPC);
    }
    dialogs.QueueSave(path);
    Run(command);
    ::chmod(QFile::encodeName(PathOf(u"locked"_s)).constData(), 0755);

    EXPECT_EQ(Asked(dialogs).last(), u"message Error [stop]: Error saving script!\n%1\n%2"_s.arg(error).arg(
                                         QString::fromLocal8Bit(std::strerror(error))));
    EXPECT_EQ(ReadBytes(path), readOnlyFolder ? "<no file>" : "old");
    EXPECT_EQ(ScriptWindow().ScriptBox()->toPlainText(), shownText);
}

INSTANTIATE_TEST_SUITE_P(Table, FailedSave,
                         testing::Combine(testing::Values(Command::SaveAs, Command::SaveScript),
                                          testing::Bool()));

// --- round trips through real files

TEST_F(FileCommands, SaveAsThenOpenGivesTheLinesBackAndLeavesThePane) {
    ASSERT_TRUE(Script().AppendLine("^1Hi", "15", "x"));
    ASSERT_TRUE(Script().AppendLine("\xE9 ", "abc", "[none]"));
    const QString path = PathOf(u"anim.fsq"_s);
    dialogs.QueueSave(path);
    window->SaveAnimationAs();
    EXPECT_EQ(ReadBytes(path), "#v050#\r\n^1Hi\r\n15\r\nx\r\n\xE9 \r\nabc\r\n[none]\r\n");

    window->NewAnimation();
    dialogs.QueueOpen(path);
    window->OpenAnimation();
    EXPECT_EQ(Lines(), (std::vector<AnimationLine>{{"^1Hi", "15"}, {"\xE9 ", "abc"}}));
    EXPECT_EQ(Script().SelectedIndex(), 1);
    EXPECT_EQ(window->ListView()->model()->rowCount(), 2);
    EXPECT_EQ(PaneText(), "Preview") << "Open doesn't redraw the pane";
    EXPECT_EQ(Asked(dialogs).size(), 2);
}

TEST_F(FileCommands, ASavedScriptImportsAsTheLinesItWasMadeOf) {
    ASSERT_TRUE(Script().AppendLine("^1one", "20", "[none]"));
    ASSERT_TRUE(Script().AppendLine("two", "7", "[none]"));
    dialogs.QueueSave(PathOf(u"made.cfg"_s));
    ScriptWindow().SaveScript();

    window->NewAnimation();
    AddLines({"replaced"});
    dialogs.QueueOpen(PathOf(u"made.cfg"_s));
    window->ImportScript();
    EXPECT_EQ(Lines(), (std::vector<AnimationLine>{{"^1one", "20"}, {"two", "7"}}));
    EXPECT_EQ(PaneText(), "Preview") << "Import doesn't redraw the pane";
}

// --- files longer than an animation can be

class TooLong : public FileCommands, public testing::WithParamInterface<Command> {};

TEST_P(TooLong, KeepsTheFirstLinesAndSaysSo) {
    const bool open = GetParam() == Command::Open;
    std::string bytes = open ? "plain list\r\n" : "";
    for (int i = 0; i <= kMaxLines; ++i) bytes += open ? "n\r\n" : "set name n\r\n";
    WriteBytes(PathOf(u"long"_s), bytes);
    dialogs.QueueOpen(PathOf(u"long"_s));
    Run(GetParam());
    EXPECT_EQ(Script().Count(), kMaxLines);
    EXPECT_EQ(dialogs.Messages().back().title, u"Line limit reached"_s);
}

INSTANTIATE_TEST_SUITE_P(Table, TooLong, testing::Values(Command::Open, Command::Import));

}  // namespace
}  // namespace fs::ui
