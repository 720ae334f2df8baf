#pragma once

#include <functional>

#include "ui/dialogs/DialogWindow.h"

class QCheckBox;
class QLineEdit;

namespace flickerscribe::settings {
class SettingsStore;
}

namespace flickerscribe::ui {

class Dialogs;

// The Options dialog, the one place that writes the settings. It shows what
// the store holds (not the copies in memory), and OK writes every value back
// and has them take effect at once through `loadSettings`. Enter and Escape do
// nothing special here: only the buttons close it.
class OptionsDialog : public DialogWindow {
    Q_OBJECT

public:
    OptionsDialog(settings::SettingsStore& store, Dialogs& dialogs, std::function<void()> loadSettings,
                  QWidget* parent = nullptr);

private:
    void showStoredSettings();
    // The folder browser fills the box as it answers: Cancel empties it.
    void browseFolder(QLineEdit* box, const QString& title);
    // Writes all seven values, then reloads the settings and closes.
    void storeSettings();

    settings::SettingsStore& store_;
    Dialogs& dialogs_;
    std::function<void()> loadSettings_;

    QCheckBox* editInPlaceCheck_;
    QLineEdit* openFolderBox_;
    QLineEdit* saveFolderBox_;
    QLineEdit* clanTagBox_;
    QLineEdit* nameBox_;
    QCheckBox* reverseCheck_;
};

}  // namespace flickerscribe::ui
