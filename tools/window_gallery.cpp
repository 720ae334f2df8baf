// Draws every window of the program, as it first shows, into PNG files, so
// that two builds (before and after a change of the windows, at a scale of 1
// and of 2) can be compared side by side.
//
// Usage: QT_SCALE_FACTOR=2 window_gallery FOLDER    (offscreen or on a display)
#include <QApplication>
#include <QDir>
#include <QTimer>
#include <functional>
#include <memory>

#include "MemorySettingsStore.h"
#include "ui/common/QtDialogs.h"
#include "ui/dialogs/AboutDialog.h"
#include "ui/dialogs/ColourNameEditor.h"
#include "ui/dialogs/EditTimeDialog.h"
#include "ui/dialogs/HelpDialog.h"
#include "ui/dialogs/OptionsDialog.h"
#include "ui/dialogs/ScriptWindow.h"
#include "ui/dialogs/SimpleEditWindow.h"
#include "ui/main/MainWindow.h"
#include "ui/wizard/WizardDialog.h"

using namespace flickerscribe;
using namespace Qt::Literals::StringLiterals;

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc != 2) return 2;
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    QDir().mkpath(folder.path());
    ui::QtDialogs dialogs;
    settings::MemorySettingsStore store;
    store.writeValue(u"Name"_s, u"^1Fl^7ick^4er"_s);
    store.writeValue(u"Clantag"_s, u"^3[QZT]"_s);

    const auto shoot = [&](QWidget& window, const QString& name) {
        window.show();
        QApplication::processEvents();
        window.grab().save(folder.filePath(name + u".png"_s));
        window.close();
    };

    AnimationScript animation;
    for (const char* text : {"^1Fl^7ick^4er", "^2Sec^3ond", "third"})
        animation.AppendLine(text, "15", "[none]");
    animation.SelectLine(1);
    ui::MainWindow main(animation, dialogs, store);
    shoot(main, u"main"_s);
    main.findChild<QAction*>(u"mnuEditShowColors"_s)->trigger();
    shoot(main, u"main-colours"_s);

    const settings::Settings settings = settings::loadSettings(store);
    ui::AnimationHistory history(animation);
    auto wizard = std::make_unique<ui::WizardDialog>(history, dialogs, settings);
    for (const int page : wizard->pageIds()) {
        if (page > 1) wizard->next();
        shoot(*wizard, u"wizard-%1"_s.arg(page));
    }
    const std::vector<std::pair<QString, std::function<std::unique_ptr<QWidget>()>>> windows = {
        {u"script"_s, [&] { return std::make_unique<ui::ScriptWindow>(animation, dialogs, settings); }},
        {u"edit"_s, [] { return std::make_unique<ui::EditTimeDialog>(); }},
        {u"options"_s, [&] { return std::make_unique<ui::OptionsDialog>(store, dialogs, [] {}); }},
        {u"colour-editor"_s, [&] { return std::make_unique<ui::ColourNameEditor>(dialogs); }},
        {u"simple-edit"_s, [&] { return std::make_unique<ui::SimpleEditWindow>(history, dialogs); }},
        {u"help"_s, [&] { return std::make_unique<ui::HelpDialog>(dialogs); }},
        {u"about"_s, [] { return std::make_unique<ui::AboutDialog>(); }},
    };
    for (const auto& [name, make] : windows) shoot(*make(), name);
    return 0;
}
