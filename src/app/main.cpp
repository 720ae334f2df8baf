#include <QApplication>
#include <QStandardPaths>

#include "document/AnimationScript.h"
#include "settings/UserSettingsStore.h"
#include "ui/common/ProgramInfo.h"
#include "ui/common/QtDialogs.h"
#include "ui/common/TerminationSignals.h"
#include "ui/main/MainWindow.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(flickerscribe::ui::info::kProgramTitle);
    QApplication::setApplicationVersion(QString::fromStdString(flickerscribe::ui::info::programVersion()));
    flickerscribe::ui::QtDialogs dialogs;
    const auto store = flickerscribe::settings::openUserSettingsStore();
    flickerscribe::AnimationScript animation;
    // Each run keeps its animation in the user's data folder.
    flickerscribe::ui::MainWindow window(animation, dialogs, *store,
                                         QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    // Ended by a signal, the program ends as by Exit, keeping the animation.
    flickerscribe::ui::endOnTerminationSignals(&window, [&window] { window.exit(); });
    window.show();
    // A project file named on the command line (as the desktop starts the
    // program for an .fsq file) is opened as by Open.
    if (const QStringList args = QApplication::arguments(); args.size() > 1)
        window.openAnimationFile(args.at(1));
    return QApplication::exec();
}
