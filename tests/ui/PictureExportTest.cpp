// Export animated picture: its shortcut, Cancel half way, the command line's bytes.
#include "MainWindowFixture.h"
#include "document/AnimationFile.h"
#include "effects/EffectRun.h"

namespace flickerscribe::ui::testing_support {
namespace {

using PictureExport = MainWindowTest;

// The README's example, saved from the settings' folder as flickerscribe-cli writes it.
TEST_F(PictureExport, WritesTheBytesOfTheCommandLine) {
    store.writeValue(u"SaveDir"_s, folder.path());
    ReloadSettings();
    RunEffectList(script(), "Quillon", "^4[QZT]", false, {{"Wave 2"}, {"Bounce", "1"}}, {});
    dialogs.QueueSave(PathOf(u"window.gif"_s));
    Show();
    Key(Qt::Key_E, Qt::ControlModifier);
    EXPECT_EQ(dialogs.Calls().back().state.initialFolder, folder.path());

    ASSERT_FALSE(SaveAnimationFile(PathOf(u"example.fsq"_s).toStdString(), script()));
    QProcess cli;
    cli.start(QString::fromUtf8(FS_CLI_PATH),
              {u"picture"_s, u"--output"_s, PathOf(u"cli.gif"_s), PathOf(u"example.fsq"_s)});
    ASSERT_TRUE(cli.waitForFinished(60'000) && cli.exitCode() == 0)
        << cli.readAllStandardError().toStdString();
    EXPECT_EQ(ReadBytes(PathOf(u"window.gif"_s)), ReadBytes(PathOf(u"cli.gif"_s)));
}

// Cancel half way writes nothing: no file, or the old one whole.
TEST_F(PictureExport, CancelHalfWayLeavesTheFileAsItWas) {
    for (int i = 0; i < 16000; ++i)  // distinct frames, well over half a second (2 s here)
        script().AppendLine("^" + std::to_string(1 + i % 8) + std::to_string(i) +
                                " Quillon of the Flickerscribe clan, the fastest of them all",
                            "15", "[none]");
    const QString path = PathOf(u"cancelled.gif"_s);
    for (const std::string old : {"<no file>", "old"}) {
        if (old != "<no file>") {
            WriteBytes(path, old);
            dialogs.QueueMessageAnswer(MsgAnswer::Yes);  // File exists! Overwrite?
        }
        dialogs.QueueSave(path);
        int cancelledAt = -1, frames = 0;
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, [&] {
            auto* progress = window->findChild<QProgressDialog*>(u"dlgExportProgress"_s);
            if (progress == nullptr || !progress->isVisible() || progress->value() < progress->maximum() / 2)
                return;
            watch.stop();
            cancelledAt = progress->value();
            frames = progress->maximum();
            QTest::mouseClick(progress->findChild<QPushButton*>(), Qt::LeftButton);
        });
        watch.start(5);
        Show();  // active again after the last progress dialog
        Key(Qt::Key_E, Qt::ControlModifier);
        EXPECT_TRUE(cancelledAt >= frames / 2 && cancelledAt < frames) << cancelledAt << " of " << frames;
        EXPECT_EQ(ReadBytes(path), old);
        EXPECT_EQ(QDir(folder.path()).count(), 2u + (old != "<no file>"));  // with . and ..
    }
}

}  // namespace
}  // namespace flickerscribe::ui::testing_support
