#pragma once

// What the benchmarks of the windows share: a settings store that keeps
// nothing, a shown main window, a full list of coloured names, and the main
// that starts the application before the benchmarks run.

#include <QString>

class QTextEdit;

#include "document/AnimationScript.h"
#include "settings/SettingsStore.h"
#include "ui/common/QtDialogs.h"
#include "ui/main/MainWindow.h"

namespace flickerscribe::bench {

class NoSettings : public settings::SettingsStore {
public:
    QString readValue(const QString&, const QString& defaultValue) const override { return defaultValue; }
    void writeValue(const QString&, const QString&) override {}
};

// Appends `lines` names with a few colours each, in one reset.
void FillNames(AnimationScript& script, int lines);

// A main window on screen holding `lines` names, the first one selected,
// asking its questions through `dialogs` (real dialogs when none are given).
struct ShownWindow {
    explicit ShownWindow(int lines = 0, ui::Dialogs* dialogs = nullptr);
    void PaintList();
    // Gives the command of the menu entry or button with this object name.
    void Trigger(const QString& name);
    QTextEdit* Pane() const;

    ui::QtDialogs qtDialogs;
    NoSettings store;
    AnimationScript animation;
    ui::MainWindow window;
};

}  // namespace flickerscribe::bench
