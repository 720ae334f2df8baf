// The commands through the file dialogs: Open, Save As, Import, and the
// generated script's window with its Save; with files that can't be read or
// written.
#include <sys/stat.h>

#include <QApplication>
#include <QDir>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTimer>
#include <cstring>
#include <tuple>

#include "MainWindowFixture.h"
#include "document/SafeWrite.h"
#include "ui/ScriptWindow.h"

namespace flickerscribe::ui {

inline void PrintTo(MsgAnswer answer, std::ostream* os) {
    *os << (answer == MsgAnswer::Yes ? "Yes" : answer == MsgAnswer::No ? "No" : "Cancel");
}

namespace testing_support {
namespace {

enum class Command { Open, SaveAs, Import, SaveScript };
void PrintTo(Command command, std::ostream* os) {
    *os << std::array{"Open", "SaveAs", "Import", "SaveScript"}[std::size_t(command)];
}

class Files : public MainWindowTest {
public:
    void TearDown() override { write_seam::Reset(); }

    ScriptWindow& GeneratedScript() {
        if (!scriptWindow)
            scriptWindow = std::make_unique<ScriptWindow>(Script(), dialogs, window->Settings());
        return *scriptWindow;
    }
    // The command with these answers to its file dialog (nullopt: Cancel).
    void Run(Command command, const std::vector<std::optional<QString>>& files) {
        const bool save = command == Command::SaveAs || command == Command::SaveScript;
        for (const auto& file : files) save ? dialogs.QueueSave(file) : dialogs.QueueOpen(file);
        switch (command) {
            case Command::Open:
                return Trigger(u"mnuFileOpen"_s);
            case Command::SaveAs:
                return Trigger(u"mnuFileSaveAs"_s);
            case Command::Import:
                return Trigger(u"mnuFileImport"_s);
            case Command::SaveScript:
                return GeneratedScript().SaveScript();
        }
    }
    std::unique_ptr<ScriptWindow> scriptWindow;
};

const auto kRowName = [](const auto& info) {
    std::string name;
    std::apply(
        [&name](const auto&... v) { ((name += (name.empty() ? "" : "_") + testing::PrintToString(v)), ...); },
        info.param);
    return name;
};

// Each file dialog opens in the folder the settings give at the moment, or,
// without one, wherever it was last. Cancel changes nothing.
TEST_F(Files, EachDialogOpensInItsFolderAndCancelChangesNothing) {
    Start(kABC);
    const std::pair<Command, bool> cases[] = {{Command::Open, true},
                                              {Command::SaveAs, true},
                                              {Command::Import, false},
                                              {Command::SaveScript, true}};
    for (const auto& [command, followsSetting] : cases) {
        SCOPED_TRACE(testing::PrintToString(command));
        for (const QString& folder : {u"/set"_s, QString()}) {
            store.WriteValue(u"OpenDir"_s, folder);
            store.WriteValue(u"SaveDir"_s, folder);
            window->LoadSettings();
            (command == Command::SaveScript ? GeneratedScript().SaveDialog() : window->FileDialog())
                .initialFolder = u"/last"_s;
            Run(command, {std::nullopt});
            EXPECT_EQ(dialogs.Calls().back().state.initialFolder,
                      followsSetting && !folder.isEmpty() ? folder : u"/last"_s);
        }
    }
    EXPECT_EQ(dialogs.Asked()
                  .filter(u"Import note [info]: Note: Currently only .cfg files can be imported!"_s)
                  .size(),
              2);
    EXPECT_EQ(Lines(), kABC);
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

// Whatever can't be read to its end as a plain file leaves the animation as
// it was and gets "File not found!": a pipe with no writer must not hold the
// window, and an I/O error half way must not cost the lines.
enum class Missing { NoSuchFile, Folder, Unreadable, Pipe, IoError };
void PrintTo(Missing m, std::ostream* os) {
    *os << std::array{"NoSuchFile", "Folder", "Unreadable", "Pipe", "IoError"}[std::size_t(m)];
}
class MissingFiles : public Files, public testing::WithParamInterface<std::tuple<Command, Missing>> {};

TEST_P(MissingFiles, AreNotFoundAndLeaveTheList) {
    const auto [command, missing] = GetParam();
    if (missing == Missing::Unreadable && ::geteuid() == 0) GTEST_SKIP() << "root reads every file";
    const QString path = missing == Missing::Folder    ? folder.path()
                         : missing == Missing::IoError ? u"/proc/self/mem"_s
                                                       : PathOf(u"gone.fsq"_s);
    if (missing == Missing::Unreadable) {
        WriteBytes(path, "#v050#\r\nx\r\n15\r\n[none]\r\n");
        QFile::setPermissions(path, QFileDevice::WriteOwner);
    }
    if (missing == Missing::Pipe) {
        ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    }
    Start({"a/15"});
    Run(command, {path});
    EXPECT_EQ(dialogs.Asked().last(), command == Command::Open ? u"Error [stop]: File not found!\n"_s + path
                                                               : u"Import error [stop]: File not found!"_s);
    EXPECT_EQ(Lines(), TextTimes{"a/15"});
}

INSTANTIATE_TEST_SUITE_P(Table, MissingFiles,
                         testing::Combine(testing::Values(Command::Open, Command::Import),
                                          testing::Values(Missing::NoSuchFile, Missing::Folder,
                                                          Missing::Unreadable, Missing::Pipe,
                                                          Missing::IoError)),
                         kRowName);

class Overwrite : public Files, public testing::WithParamInterface<std::tuple<Command, MsgAnswer>> {};

// Yes replaces the file; No shows the dialog again with the name last chosen;
// Cancel writes nothing.
TEST_P(Overwrite, OnlyYesReplacesTheFile) {
    const auto [command, answer] = GetParam();
    const bool saveAs = command == Command::SaveAs;
    const QString path = PathOf(u"old"_s);
    WriteBytes(path, "old");
    dialogs.QueueMessageAnswer(answer);
    // After No the dialog shows again, and is cancelled.
    Run(command, answer == MsgAnswer::No ? std::vector<std::optional<QString>>{path, std::nullopt}
                                         : std::vector<std::optional<QString>>{path});
    const QString shown = saveAs ? u"save Save Brennock Animation"_s : u"save Save Script"_s;
    QStringList expected{shown, saveAs ? u"Save Brennock Animation [question]: File exists! Overwrite?"_s
                                       : u"Save script [question]: File Exists! Overwrite?"_s};
    if (answer == MsgAnswer::No) {
        expected << shown;
        EXPECT_EQ(dialogs.Calls().back().state.fileName, path);
    }
    EXPECT_EQ(dialogs.Asked(), expected);
    EXPECT_EQ(ReadBytes(path) == "old", answer != MsgAnswer::Yes);
}

INSTANTIATE_TEST_SUITE_P(Table, Overwrite,
                         testing::Combine(testing::Values(Command::SaveAs, Command::SaveScript),
                                          testing::Values(MsgAnswer::Yes, MsgAnswer::No, MsgAnswer::Cancel)),
                         kRowName);

class FailedSave : public Files, public testing::WithParamInterface<Command> {};

// A disk that fills up half way: the old file stays whole, and the user is
// told the error number and text.
TEST_P(FailedSave, KeepsTheOldFileAndTellsTheError) {
    Start({"a/15"});
    const QString path = PathOf(u"old"_s);
    WriteBytes(path, "old");
    dialogs.QueueMessageAnswer(MsgAnswer::Yes);
    write_seam::FailNextWriteAfter(3, ENOSPC);
    Run(GetParam(), {path});
    EXPECT_EQ(dialogs.Asked().last(), u"Error [stop]: Error saving script!\n%1\n%2"_s.arg(ENOSPC).arg(
                                          QString::fromLocal8Bit(std::strerror(ENOSPC))));
    EXPECT_EQ(ReadBytes(path), "old");
}

INSTANTIATE_TEST_SUITE_P(Table, FailedSave, testing::Values(Command::SaveAs, Command::SaveScript),
                         testing::PrintToStringParamName());

// Save As, New, Open: the lines come back and the first shows; the script
// saved from its window imports back with its times.
TEST_F(Files, SavedAnimationsAndScriptsComeBack) {
    ASSERT_TRUE(Script().AppendLine("^1Hi", "15", "[none]"));
    ASSERT_TRUE(Script().AppendLine("\xE9 x", "abc", "kept out"));
    Run(Command::SaveAs, {PathOf(u"anim.fsq"_s)});
    EXPECT_EQ(ReadBytes(PathOf(u"anim.fsq"_s)),
              "#v050#\r\n^1Hi\r\n15\r\n[none]\r\n\xE9 x\r\nabc\r\nkept out\r\n");
    Trigger(u"btnnew"_s);
    Run(Command::Open, {PathOf(u"anim.fsq"_s)});
    EXPECT_EQ(Lines(), TextTimes({"^1Hi/15", "\xE9 x/abc"}));
    EXPECT_EQ(PaneText(), "Hi");

    Script().SetLineTime(2, "7");
    Run(Command::SaveScript, {PathOf(u"made.cfg"_s)});
    Run(Command::Import, {PathOf(u"made.cfg"_s)});
    EXPECT_EQ(Lines(), TextTimes({"^1Hi/15", "\xE9 x/7"}));
}

class TooLong : public Files, public testing::WithParamInterface<Command> {};

TEST_P(TooLong, KeepsTheFirstLinesAndSaysSo) {
    const bool open = GetParam() == Command::Open;
    std::string bytes = open ? "plain list\r\n" : "";
    for (int i = 0; i <= kMaxLines; ++i) bytes += open ? "n\r\n" : "set name n\r\n";
    WriteBytes(PathOf(u"long"_s), bytes);
    Run(GetParam(), {PathOf(u"long"_s)});
    EXPECT_EQ(Script().Count(), kMaxLines);
    EXPECT_TRUE(dialogs.Asked().last().startsWith(u"Line limit reached"_s));
}

INSTANTIATE_TEST_SUITE_P(Table, TooLong, testing::Values(Command::Open, Command::Import),
                         testing::PrintToStringParamName());

// --- the generated script's window

const std::string kBanner =
    "\r\n//--------------------------\\\\\r\n//----- SCRIPT MADE WITH ---\\\\\r\n//------ Flickerscribe "
    "-----\\\\"
    "\r\n//----- by: [QZT]Quillon "
    "---\\\\\r\n//--------------------------\\\\\r\n//-quillon@qzt-clan.example-\\\\"
    "\r\n//--------------------------\\\\";

TEST_F(Files, TheScriptWindowShowsTheScriptAndSavesWhatItsBoxHolds) {
    EXPECT_EQ(GeneratedScript().ScriptFileBytes(), kBanner + "\r\n") << "an empty animation";
    scriptWindow.reset();
    Start({"^1Fl^7ick/15", "/250", " ^2up/0", "\x80\xE9/1.5"});
    ScriptWindow& w = GeneratedScript();
    EXPECT_EQ(w.ScriptFileBytes(),
              kBanner +
                  "\r\nset name \"^1Fl^7ick\"\r\nwait 15\r\nset name \"^7 \"\r\nwait 99"
                  "\r\nset name \"^7 ^2up\"\r\nwait 5\r\nset name \"\x80\xE9\"\r\nwait 1.5\r\n");
    // What the user types goes to the file as Windows-1252, "?" where it has
    // no character, each line break as CR LF.
    w.ScriptBox()->setPlainText(u"\u20ac\u00e9\u6f22\nx\u2028y"_s);
    dialogs.QueueSave(PathOf(u"typed.cfg"_s));
    w.findChild<QMenuBar*>()->actions().front()->trigger();
    EXPECT_EQ(ReadBytes(PathOf(u"typed.cfg"_s)), "\x80\xE9?\r\nx\r\ny\r\n");
    w.show();
    QTest::keyClick(w.ScriptBox(), Qt::Key_Escape);
    EXPECT_TRUE(w.isVisible()) << "Escape would lose the edits";
    w.close();
}

// Times that are no number are told before the window shows, in list order;
// the window is made anew at each Generate, so edits go with it.
TEST_F(Files, GenerateTellsBadTimesFirstAndStartsAnewEachTime) {
    Start({"a/abc", "b/"});
    QStringList shown;
    for (int run = 0; run < 2; ++run) {
        QTimer::singleShot(0, [&] {
            auto* w = qobject_cast<ScriptWindow*>(QApplication::activeModalWidget());
            if (w == nullptr) return;
            shown << w->ScriptBox()->toPlainText();
            w->ScriptBox()->setPlainText(u"edited"_s);
            w->close();
        });
        Trigger(u"btngenerate"_s);
    }
    EXPECT_EQ(dialogs.Asked(), (QStringList{u" [none]: no number _abc_"_s, u" [none]: no number __"_s,
                                            u" [none]: no number _abc_"_s, u" [none]: no number __"_s}));
    ASSERT_EQ(shown.size(), 2);
    EXPECT_TRUE(shown[0].endsWith(u"set name \"b\"\nwait 15"_s));
    EXPECT_EQ(shown[1], shown[0]);
}

}  // namespace
}  // namespace testing_support
}  // namespace flickerscribe::ui
