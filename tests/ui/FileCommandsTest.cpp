#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <array>
#include <cerrno>
#include <cstring>
#include <string>
#include <tuple>

#include "FileCommandFixture.h"
#include "FileTestSupport.h"
#include "document/SafeWrite.h"
#include "ui/LineListView.h"
#include "ui/ScriptWindow.h"

namespace flickerscribe::ui {

// Readable names for the test tables.
inline void PrintTo(MsgAnswer answer, std::ostream* os) {
    *os << (answer == MsgAnswer::Yes ? "Yes" : answer == MsgAnswer::No ? "No" : "Cancel");
}

namespace {

using namespace testing_support;
using namespace Qt::Literals::StringLiterals;
using Lines = std::vector<AnimationLine>;

class FileCommands : public FileCommandTest {
protected:
    void TearDown() override { write_seam::Reset(); }

    Lines ScriptLines() {
        Lines out;
        for (int i = 1; i <= Script().Count(); ++i) out.push_back(Script().LineAt(i));
        return out;
    }
};

struct DialogCase {
    Command command;
    QString asked;  // the dialog as shown, behind the import note for Import
    QString filter;
    QString openDir, saveDir;
    QString initDir;  // "/last" is where the dialog was before
};
void PrintTo(const DialogCase& c, std::ostream* os) {
    PrintTo(c.command, os);
    *os << " in " << c.initDir.toStdString();
}

class FileDialogs : public FileCommands, public testing::WithParamInterface<DialogCase> {};

TEST_P(FileDialogs, CancelChangesNothingAndTheFolderIsTheSettingOfTheMoment) {
    const DialogCase& c = GetParam();
    AddLines({"a", "b"});
    const auto useFolders = [this](const QString& open, const QString& save) {
        store.WriteValue(u"OpenDir"_s, open);
        store.WriteValue(u"SaveDir"_s, save);
        window->LoadSettings();
    };
    useFolders(u"/before"_s, u"/before"_s);
    Run(c.command, {std::nullopt});
    useFolders(c.openDir, c.saveDir);
    (c.command == Command::SaveScript ? GeneratedScript().SaveDialog() : window->FileDialog()).initialFolder =
        u"/last"_s;
    dialogs.ClearCalls();
    Run(c.command, {std::nullopt});

    const QString note = u"message Import note [info]: Note: Currently only .cfg files can be imported!"_s;
    EXPECT_EQ(Asked(dialogs),
              (c.command == Command::Import ? QStringList{note, c.asked} : QStringList{c.asked}));
    EXPECT_EQ(dialogs.Calls().back().state.filter, c.filter);
    EXPECT_EQ(dialogs.Calls().back().state.initialFolder, c.initDir);
    EXPECT_EQ(ScriptLines(), (Lines{{"a"}, {"b"}}));
    EXPECT_TRUE(QDir(dir.path()).isEmpty());
}

const QString kFsq = u"Brennock Animation Script (*.fsq)|*.fsq"_s;
const QString kCfgOrAll = u"Brennock Script (*.cfg)|*.cfg|All Files(*.*)|*.*"_s;
INSTANTIATE_TEST_SUITE_P(
    Table, FileDialogs,
    testing::Values(
        DialogCase{Command::Open, u"open Open Brennock Animation"_s, kFsq, u"/o"_s, u"/s"_s, u"/o"_s},
        DialogCase{Command::Open, u"open Open Brennock Animation"_s, kFsq, {}, u"/s"_s, u"/last"_s},
        DialogCase{Command::SaveAs, u"save Save Brennock Animation"_s, kFsq, u"/o"_s, u"/s"_s, u"/s"_s},
        DialogCase{Command::SaveAs, u"save Save Brennock Animation"_s, kFsq, u"/o"_s, {}, u"/last"_s},
        DialogCase{Command::Import, u"open Import file"_s, u"Brennock Scripts (*.cfg)|*.cfg"_s, u"/o"_s,
                   u"/s"_s, u"/last"_s},
        DialogCase{Command::SaveScript, u"save Save Script"_s, kCfgOrAll, u"/o"_s, u"/s"_s, u"/s"_s},
        DialogCase{Command::SaveScript, u"save Save Script"_s, kCfgOrAll, u"/o"_s, {}, u"/last"_s}));

// A row of a combined table named by its values, such as "Open_Folder".
const auto kRowName = [](const auto& info) {
    std::string name;
    std::apply(
        [&name](const auto&... value) {
            ((name += (name.empty() ? "" : "_") + testing::PrintToString(value)), ...);
        },
        info.param);
    return name;
};

// Whatever can't be read to its end as a plain file: a pipe with no writer
// must not hold the window, and an I/O error half way (here on the first
// read) must not cost the lines.
enum class Missing { NoSuchFile, Folder, Unreadable, Pipe, IoError };
void PrintTo(Missing missing, std::ostream* os) {
    *os << std::array{"NoSuchFile", "Folder", "Unreadable", "Pipe",
                      "IoError"}[static_cast<std::size_t>(missing)];
}
class MissingFiles : public FileCommands, public testing::WithParamInterface<std::tuple<Command, Missing>> {};

TEST_P(MissingFiles, AreNotFoundAndLeaveTheList) {
    const auto [command, missing] = GetParam();
    if (missing == Missing::Unreadable && ::geteuid() == 0) GTEST_SKIP() << "root reads every file";
    const QString path = missing == Missing::Folder    ? dir.path()
                         : missing == Missing::IoError ? u"/proc/self/mem"_s
                                                       : PathOf(u"gone.fsq"_s);
    if (missing == Missing::Unreadable) {
        WriteBytes(path, "#v050#\r\nx\r\n15\r\n[none]\r\n");
        QFile::setPermissions(path, QFileDevice::WriteOwner);
    }
    if (missing == Missing::Pipe) {
        ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    }
    AddLines({"a"});
    Run(command, {path});
    EXPECT_EQ(Asked(dialogs).last(), command == Command::Open
                                         ? u"message Error [stop]: File not found!\n"_s + path
                                         : u"message Import error [stop]: File not found!"_s);
    EXPECT_EQ(ScriptLines(), Lines{{"a"}});
}

INSTANTIATE_TEST_SUITE_P(Table, MissingFiles,
                         testing::Combine(testing::Values(Command::Open, Command::Import),
                                          testing::Values(Missing::NoSuchFile, Missing::Folder,
                                                          Missing::Unreadable, Missing::Pipe,
                                                          Missing::IoError)),
                         kRowName);

class Overwrite : public FileCommands, public testing::WithParamInterface<std::tuple<Command, MsgAnswer>> {};

TEST_P(Overwrite, OnlyYesReplacesTheFileAndNoShowsTheDialogAgainWithTheLastName) {
    const auto [command, answer] = GetParam();
    const bool saveAs = command == Command::SaveAs;
    const QString path = PathOf(u"old"_s);
    WriteBytes(path, "old");
    dialogs.QueueMessageAnswer(answer);
    Run(command, {path, std::nullopt});

    const QString shown = saveAs ? u"save Save Brennock Animation"_s : u"save Save Script"_s;
    QStringList expected{shown, saveAs
                                    ? u"message Save Brennock Animation [question]: File exists! Overwrite?"_s
                                    : u"message Save script [question]: File Exists! Overwrite?"_s};
    if (answer == MsgAnswer::No) {
        expected << shown;
        EXPECT_EQ(dialogs.Calls().back().state.fileName, path);
    }
    EXPECT_EQ(Asked(dialogs), expected);
    EXPECT_EQ(ReadBytes(path) == "old", answer != MsgAnswer::Yes);
}

INSTANTIATE_TEST_SUITE_P(Table, Overwrite,
                         testing::Combine(testing::Values(Command::SaveAs, Command::SaveScript),
                                          testing::Values(MsgAnswer::Yes, MsgAnswer::No, MsgAnswer::Cancel)),
                         kRowName);

class FailedSave : public FileCommands, public testing::WithParamInterface<std::tuple<Command, bool>> {};

TEST_P(FailedSave, KeepsTheOldFileAndTheTextAndTellsTheError) {
    const auto [command, readOnlyFolder] = GetParam();
    if (readOnlyFolder && ::geteuid() == 0) GTEST_SKIP() << "root writes into any folder";
    AddLines({"a"});
    const QString shownText = GeneratedScript().ScriptBox()->toPlainText();
    const QByteArray locked = QFile::encodeName(PathOf(u"locked"_s));
    ASSERT_TRUE(QDir(dir.path()).mkdir(u"locked"_s) && ::chmod(locked.constData(), 0555) == 0);
    const QString path = PathOf(readOnlyFolder ? u"locked/new"_s : u"old"_s);
    if (!readOnlyFolder) {
        WriteBytes(path, "old");
        dialogs.QueueMessageAnswer(MsgAnswer::Yes);
        write_seam::FailNextWriteAfter(3, ENOSPC);
    }
    Run(command, {path});
    ::chmod(locked.constData(), 0755);

    const int error = readOnlyFolder ? EACCES : ENOSPC;
    EXPECT_EQ(Asked(dialogs).last(), u"message Error [stop]: Error saving script!\n%1\n%2"_s.arg(error).arg(
                                         QString::fromLocal8Bit(std::strerror(error))));
    EXPECT_EQ(ReadBytes(path), readOnlyFolder ? "<no file>" : "old");
    EXPECT_EQ(GeneratedScript().ScriptBox()->toPlainText(), shownText);
}

INSTANTIATE_TEST_SUITE_P(Table, FailedSave,
                         testing::Combine(testing::Values(Command::SaveAs, Command::SaveScript),
                                          testing::Bool()),
                         kRowName);

TEST_F(FileCommands, SaveAsOpenAndImportOfASavedScriptGiveTheLinesBackAndShowTheFirst) {
    const Lines lines{{"^1Hi", "15"}, {"\xE9 x", "abc", "kept out"}};
    for (const auto& line : lines) ASSERT_TRUE(Script().AppendLine(line.Text, line.Time, line.Action));
    Run(Command::SaveAs, {PathOf(u"anim.fsq"_s)});
    window->NewAnimation();
    Run(Command::Open, {PathOf(u"anim.fsq"_s)});
    EXPECT_EQ(ScriptLines(), (Lines{{"^1Hi", "15"}, {"\xE9 x", "abc"}}));
    EXPECT_EQ(window->LineList()->model()->rowCount(), 2);
    EXPECT_EQ(Script().SelectedIndex(), 1);

    Script().SetLineTime(2, "7");
    Run(Command::SaveScript, {PathOf(u"made.cfg"_s)});
    window->NewAnimation();
    AddLines({"replaced"});
    Run(Command::Import, {PathOf(u"made.cfg"_s)});
    EXPECT_EQ(ScriptLines(), (Lines{{"^1Hi", "15"}, {"\xE9 x", "7"}}));
    EXPECT_EQ(PaneText(), "Hi") << "the pane shows the selected line";
    EXPECT_EQ(Asked(dialogs).size(), 5);
}

class TooLong : public FileCommands, public testing::WithParamInterface<Command> {};

TEST_P(TooLong, KeepsTheFirstLinesAndSaysSo) {
    const bool open = GetParam() == Command::Open;
    std::string bytes = open ? "plain list\r\n" : "";
    for (int i = 0; i <= kMaxLines; ++i) bytes += open ? "n\r\n" : "set name n\r\n";
    WriteBytes(PathOf(u"long"_s), bytes);
    Run(GetParam(), {PathOf(u"long"_s)});
    EXPECT_EQ(Script().Count(), kMaxLines);
    EXPECT_EQ(dialogs.Messages().back().title, u"Line limit reached"_s);
}

INSTANTIATE_TEST_SUITE_P(Table, TooLong, testing::Values(Command::Open, Command::Import),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace flickerscribe::ui
