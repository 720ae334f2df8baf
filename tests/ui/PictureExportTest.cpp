// File, Export animated picture: through its shortcut, the save dialog, the
// progress dialog's Cancel, and against the command line's bytes.
#include "MainWindowFixture.h"
#include "document/AnimationFile.h"
#include "effects/EffectRun.h"

namespace flickerscribe::ui::testing_support {
namespace {

class PictureExport : public MainWindowTest {
public:
    // The README's example: Quillon with the tag [QZT], "Wave 2" and one Bounce.
    void StartExample() {
        RunEffectList(Script(), "Quillon", "^4[QZT]", false, {{"Wave 2"}, {"Bounce", "1"}}, {});
        ASSERT_GT(Script().Count(), 20);
    }
    void PressCtrlE() {
        Show();
        Key(Qt::Key_E, Qt::ControlModifier);
    }
};

TEST_F(PictureExport, AnEmptyListHasNothingToExport) {
    PressCtrlE();
    EXPECT_EQ(dialogs.Asked(),
              QStringList{u"Export animated picture [warning]: There is no animation to export!"_s});
}

// The save dialog opens in the settings' save folder; the file holds what
// flickerscribe-cli picture writes for the same animation.
TEST_F(PictureExport, WritesTheBytesOfTheCommandLine) {
    store.WriteValue(u"SaveDir"_s, folder.path());
    window->LoadSettings();
    StartExample();
    dialogs.QueueSave(PathOf(u"window.gif"_s));
    PressCtrlE();
    ASSERT_EQ(dialogs.Asked(), QStringList{u"save Export animated picture"_s});
    EXPECT_EQ(dialogs.Calls().back().state.initialFolder, folder.path());
    EXPECT_TRUE(dialogs.Calls().back().state.filter.contains(u"*.gif"_s));

    ASSERT_FALSE(SaveAnimationFile(PathOf(u"example.fsq"_s).toStdString(), Script()));
    QProcess cli;
    cli.setWorkingDirectory(folder.path());
    cli.start(QString::fromUtf8(FS_CLI_PATH), {u"picture"_s, u"--output"_s, u"cli.gif"_s, u"example.fsq"_s});
    ASSERT_TRUE(cli.waitForFinished(60'000));
    EXPECT_EQ(cli.exitCode(), 0) << cli.readAllStandardError().toStdString();
    const std::string bytes = ReadBytes(PathOf(u"window.gif"_s));
    EXPECT_TRUE(bytes.starts_with("GIF89a"));
    EXPECT_EQ(bytes, ReadBytes(PathOf(u"cli.gif"_s)));
}

// Cancel half way writes nothing: no file, or the old one whole.
TEST_F(PictureExport, CancelHalfWayLeavesTheFileAsItWas) {
    // Enough distinct frames to take well over half a second.
    {
        AnimationScript::Batch batch(Script());
        for (int i = 0; i < kMaxLines; ++i)
            Script().AppendLine(
                "^" + std::to_string(1 + i % 8) + std::to_string(i) + " Quillon of the Flickerscribe clan",
                "15", "[none]");
    }
    for (const std::optional<std::string>& old :
         {std::optional<std::string>(), std::optional<std::string>("old")}) {
        const QString path = PathOf(u"cancelled.gif"_s);
        QFile::remove(path);
        if (old) {
            WriteBytes(path, *old);
            dialogs.QueueMessageAnswer(MsgAnswer::Yes);  // overwrite it
        }
        dialogs.QueueSave(path);
        int cancelledAt = -1, frames = 0;
        QTimer watch;
        watch.setInterval(5);
        QObject::connect(&watch, &QTimer::timeout, [&] {
            auto* progress = window->findChild<QProgressDialog*>(u"dlgExportProgress"_s);
            if (progress == nullptr || !progress->isVisible() || progress->value() < progress->maximum() / 2)
                return;
            watch.stop();
            cancelledAt = progress->value();
            frames = progress->maximum();
            QTest::mouseClick(progress->findChild<QPushButton*>(), Qt::LeftButton);
        });
        watch.start();
        PressCtrlE();
        EXPECT_GE(cancelledAt, frames / 2);
        EXPECT_LT(cancelledAt, frames);
        EXPECT_EQ(ReadBytes(path), old.value_or("<no file>"));
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files),
                  old ? QStringList{u"cancelled.gif"_s} : QStringList());
    }
}

TEST_F(PictureExport, AFailedWriteSaysWhy) {
    Start(kABC);
    dialogs.QueueSave(PathOf(u"missing/x.gif"_s));
    PressCtrlE();
    EXPECT_EQ(dialogs.Asked().back(), u"Error [stop]: Error saving script!\n2\nNo such file or directory"_s);
}

}  // namespace
}  // namespace flickerscribe::ui::testing_support
