// The commands through the file dialogs: Open, Save As, Import, and the
// generated script's window with its Save; with files that can't be read or
// written.
#include <cerrno>
#ifdef _WIN32
#include <windows.h>
#else
#include <sys/stat.h>
#include <unistd.h>
#endif

#include "MainWindowFixture.h"
#include "document/SafeWrite.h"
#include "document/TextFile.h"
#include "ui/dialogs/ScriptWindow.h"

namespace flickerscribe::ui::testing_support {
namespace {

#ifdef _WIN32
constexpr int kDiskFull = ERROR_DISK_FULL;
#else
constexpr int kDiskFull = ENOSPC;
#endif

class Files : public MainWindowTest {
public:
    void TearDown() override { write_seam::Reset(); }

    ScriptWindow& GeneratedScript() {
        if (!scriptWindow) scriptWindow = std::make_unique<ScriptWindow>(script(), dialogs, settingsNow);
        return *scriptWindow;
    }
    // "Open", "SaveAs", "Import" or "SaveScript" (the script window's Save),
    // with these answers to its file dialog (nullopt: Cancel).
    void Run(const std::string& command, const std::vector<std::optional<QString>>& files) {
        for (const auto& file : files)
            command.starts_with("Save") ? dialogs.QueueSave(file) : dialogs.QueueOpen(file);
        if (command == "SaveScript") return GeneratedScript().saveScript();
        Trigger(command == "Open"     ? u"mnuFileOpen"_s
                : command == "SaveAs" ? u"mnuFileSaveAs"_s
                                      : u"mnuFileImport"_s);
    }
    settings::Settings settingsNow;  // the script window's, as the main window gives them
    std::unique_ptr<ScriptWindow> scriptWindow;
};

// Each file dialog opens in the folder the settings give at the moment, or,
// without one, wherever it was last. Cancel changes nothing.
TEST_F(Files, EachDialogOpensInItsFolderAndCancelChangesNothing) {
    Start(kABC);
    QString last[2];  // where the main window's dialog and the script window's opened last
    for (const auto& [command, followsSetting] :
         {std::pair{"Open", true}, std::pair{"SaveAs", true}, std::pair{"Import", false},
          std::pair{"SaveScript", true}}) {
        const bool scriptWindowsOwn = command == std::string("SaveScript");
        for (const QString& folder : {u"/set-"_s + QString::fromLatin1(command), QString()}) {
            store.writeValue(u"OpenDir"_s, folder);
            store.writeValue(u"SaveDir"_s, folder);
            ReloadSettings();
            settingsNow = settings::loadSettings(store);
            Run(command, {std::nullopt});
            QString& expected = last[scriptWindowsOwn];
            if (followsSetting && !folder.isEmpty()) expected = folder;
            EXPECT_EQ(dialogs.Calls().back().state.initialFolder, expected) << command;
        }
    }
    EXPECT_EQ(
        dialogs.Asked().count(u"Import note [info]: Note: Currently only .cfg files can be imported!"_s), 2);
    EXPECT_EQ(Lines(), kABC);
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

// Whatever can't be read to its end as a plain file leaves the animation as
// it was and gets "File not found!": a pipe with no writer must not hold the
// window, and an I/O error half way or a file larger than the memory allows
// must not cost the lines. A file of more lines than an animation holds gives
// the first ones, and says so.
TEST_F(Files, UnreadableFilesAreNotFoundAndLongOnesCut) {
    const QString locked = PathOf(u"locked"_s), gone = PathOf(u"gone"_s), huge = PathOf(u"huge"_s);
    QFile sparse(huge);  // takes no disk
    ASSERT_TRUE(sparse.open(QIODevice::WriteOnly) && sparse.resize(qint64(kMaxFileBytes) + 1));
    WriteBytes(locked, "#v050#\r\nx\r\n15\r\n[none]\r\n");
#ifdef _WIN32
    // A device, and a file another program holds open without sharing it.
    const QString unreadable[] = {gone, folder.path(), u"NUL"_s, huge, locked};
    const HANDLE holder = CreateFileW(reinterpret_cast<const wchar_t*>(locked.utf16()), GENERIC_READ, 0,
                                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(holder, INVALID_HANDLE_VALUE);
#else
    const QString pipe = PathOf(u"pipe"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QFile::setPermissions(locked, QFileDevice::WriteOwner);
    const bool root = ::geteuid() == 0;  // root reads every file
    const QString unreadable[] = {gone, folder.path(), pipe, u"/proc/self/mem"_s, huge, root ? gone : locked};
#endif
    for (const char* command : {"Open", "Import"}) {
        for (const QString& path : unreadable) {
            Trigger(u"btnnew"_s);
            Start({"a/15"});
            Run(command, {path});
            EXPECT_EQ(dialogs.Asked().last(), command == std::string("Open")
                                                  ? u"Error [stop]: File not found!\n"_s + path
                                                  : u"Import error [stop]: File not found!"_s);
            EXPECT_EQ(Lines(), TextTimes{"a/15"}) << command << " " << path.toStdString();
        }
        std::string bytes = command == std::string("Open") ? "plain list\r\n" : "";
        for (int i = 0; i <= kMaxLines; ++i)
            bytes += command == std::string("Open") ? "n\r\n" : "set name n\r\n";
        WriteBytes(PathOf(u"long"_s), bytes);
        Run(command, {PathOf(u"long"_s)});
        EXPECT_EQ(script().Count(), kMaxLines);
        EXPECT_TRUE(dialogs.Asked().last().startsWith(u"Line limit reached"_s));
    }
#ifdef _WIN32
    CloseHandle(holder);
#endif
}

// Over a file, only Yes replaces it; No shows the dialog again with the name
// last chosen; Cancel writes nothing. A disk that fills up half way keeps the
// old file whole, and the user is told the error number and text.
TEST_F(Files, SavesReplaceAFileOnlyWhenAskedAndKeepItWhenTheDiskIsFull) {
    Start({"a/15"});
    const QString path = PathOf(u"old"_s);
    for (const char* command : {"SaveAs", "SaveScript"}) {
        const bool saveAs = command == std::string("SaveAs");
        const QString shown = saveAs ? u"save Save Brennock Animation"_s : u"save Save Script"_s;
        const QString asked = saveAs ? u"Save Brennock Animation [question]: File exists! Overwrite?"_s
                                     : u"Save script [question]: File Exists! Overwrite?"_s;
        for (const MsgAnswer answer : {MsgAnswer::No, MsgAnswer::Cancel, MsgAnswer::Yes}) {
            WriteBytes(path, "old");
            const auto before = dialogs.Asked().size();
            dialogs.QueueMessageAnswer(answer);
            // After No the dialog shows again, and is cancelled.
            Run(command, answer == MsgAnswer::No ? std::vector<std::optional<QString>>{path, std::nullopt}
                                                 : std::vector<std::optional<QString>>{path});
            QStringList expected{shown, asked};
            if (answer == MsgAnswer::No) {
                expected << shown;
                EXPECT_EQ(dialogs.Calls().back().state.fileName, path);
            }
            EXPECT_EQ(dialogs.Asked().mid(before), expected);
            EXPECT_EQ(ReadBytes(path) == "old", answer != MsgAnswer::Yes) << command << int(answer);
        }
        WriteBytes(path, "old");
        dialogs.QueueMessageAnswer(MsgAnswer::Yes);
        write_seam::FailNextWriteAfter(3, kDiskFull);
        Run(command, {path});
        EXPECT_EQ(dialogs.Asked().last(), u"Error [stop]: Error saving script!\n%1\n%2"_s.arg(kDiskFull).arg(
                                              QString::fromStdString(SystemError(kDiskFull).text)));
        EXPECT_EQ(ReadBytes(path), "old");

        // A named pipe (a device on Windows) is no file to save into: refused
        // at once, never waited on.
#ifdef _WIN32
        const QString pipe = u"NUL"_s,
                      refusal = u"%1\n%2"_s.arg(ERROR_INVALID_PARAMETER)
                                    .arg(QString::fromStdString(SystemError(ERROR_INVALID_PARAMETER).text));
#else
        const QString pipe = PathOf(u"pipe"_s), refusal = u"%1\nNot a regular file"_s.arg(EINVAL);
        ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
#endif
        dialogs.QueueMessageAnswer(MsgAnswer::Yes);
        Run(command, {pipe});
        EXPECT_EQ(dialogs.Asked().last(), u"Error [stop]: Error saving script!\n"_s + refusal);
        QFile::remove(pipe);
    }
}

// --- the generated script's window

// The window shows the script of the animation, and its Save writes what the
// box holds then: as Windows-1252, "?" where it has no character, each line
// break as CR LF.
TEST_F(Files, TheScriptWindowShowsTheScriptAndSavesWhatItsBoxHolds) {
    Start({"^1Fl^7ick/15", "\x80\xE9/1.5"});
    ScriptWindow& w = GeneratedScript();
    EXPECT_TRUE(w.scriptFileBytes().starts_with("\r\n//-----"));
    EXPECT_TRUE(w.scriptFileBytes().ends_with(
        "set name \"^1Fl^7ick\"\r\nwait 15\r\nset name \"\x80\xE9\"\r\nwait 1.5\r\n"));
    w.scriptBox()->setPlainText(u"\u20ac\u00e9\u6f22\nx\u2028y"_s);
    dialogs.QueueSave(PathOf(u"typed.cfg"_s));
    w.findChild<QMenuBar*>()->actions().front()->trigger();
    EXPECT_EQ(ReadBytes(PathOf(u"typed.cfg"_s)), "\x80\xE9?\r\nx\r\ny\r\n");
    w.show();
    QTest::keyClick(w.scriptBox(), Qt::Key_Escape);
    EXPECT_TRUE(w.isVisible()) << "Escape would lose the edits";
    w.close();
}

}  // namespace
}  // namespace flickerscribe::ui::testing_support
