// Open, Save As, Import and the script window's Save over awkward files.
#include <cerrno>
#ifdef _WIN32
#include <windows.h>
#else
#include <sys/stat.h>
#include <unistd.h>
#endif

#include <QScrollBar>

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
    // A command ("Open", "SaveAs", "Import", "SaveScript") with these file dialog answers (nullopt: Cancel).
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

// What can't be read to its end as a plain file gets "File not found!" and leaves the
// lines: a pipe with no writer holds no window, an I/O error or a huge file costs no line.
TEST_F(Files, UnreadableFilesAreNotFound) {
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
            MakeWindow();
            Start({"a/15"});
            Run(command, {path});
            EXPECT_EQ(dialogs.Asked().last(), command == std::string("Open")
                                                  ? u"Error [stop]: File not found!\n"_s + path
                                                  : u"Import error [stop]: File not found!"_s);
            EXPECT_EQ(Lines(), TextTimes{"a/15"}) << command << " " << path.toStdString();
            EXPECT_FALSE(named(u"mnuEditUndo"_s)->isEnabled()) << "no step";
        }
    }
#ifdef _WIN32
    CloseHandle(holder);
#endif
}

// Over a file only Yes replaces it (No asks again, Cancel writes nothing); a
// full disk keeps the old file whole and tells the error number and text.
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

// The window shows the script; Save writes what its box holds, as Windows-1252
// ("?" where it has no character) with CR LF breaks.
TEST_F(Files, TheScriptWindowShowsTheScriptAndSavesWhatItsBoxHolds) {
    Start({"^1Fl^7ick/15", "\x80\xE9/1.5"});
    Show();
    window->move(0, 0);  // the script window centres on the screen, not on its owner
    ScriptWindow w(script(), dialogs, settingsNow, window.get());
    EXPECT_TRUE(w.scriptFileBytes().starts_with("\r\n//-----"));
    EXPECT_TRUE(w.scriptFileBytes().ends_with(
        "set name \"^1Fl^7ick\"\r\nwait 15\r\nset name \"\x80\xE9\"\r\nwait 1.5\r\n"));
    w.scriptBox()->setPlainText(u"\u20ac\u00e9\u6f22\nx\u2028y"_s);
    dialogs.QueueSave(PathOf(u"typed.cfg"_s));
    w.findChild<QMenuBar*>()->actions().front()->trigger();
    EXPECT_EQ(ReadBytes(PathOf(u"typed.cfg"_s)), "\x80\xE9?\r\nx\r\ny\r\n");
    w.show();
    EXPECT_LE((w.frameGeometry().center() - w.screen()->availableGeometry().center()).manhattanLength(), 20);
    w.scriptBox()->setPlainText(QString(400, u'x'));  // a long line scrolls, it doesn't wrap
    EXPECT_TRUE(QTest::qWaitFor([&] { return w.scriptBox()->horizontalScrollBar()->maximum() > 0; }));
    QTest::keyClick(w.scriptBox(), Qt::Key_Escape);
    EXPECT_TRUE(w.isVisible()) << "Escape would lose the edits";
    w.close();
}

}  // namespace
}  // namespace flickerscribe::ui::testing_support
