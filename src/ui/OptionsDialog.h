#pragma once

#include <QDialog>
#include <functional>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace flickerscribe::settings {
class SettingsStore;
}

namespace flickerscribe::ui {

class Dialogs;

// The Options dialog, the one place that writes the settings. It shows what
// the store holds (not the copies in memory), and OK writes every value back
// and has them take effect at once through `loadSettings`. Enter and Escape do
// nothing special here: only the buttons close it.
class OptionsDialog : public QDialog {
    Q_OBJECT

public:
    OptionsDialog(settings::SettingsStore& store, Dialogs& dialogs, std::function<void()> loadSettings,
                  QWidget* parent = nullptr);

    // Fills the controls from the store.
    void ShowStoredSettings();
    // The folder browser fills the box as it answers: Cancel empties it.
    void BrowseOpenFolder();
    void BrowseSaveFolder();
    // Writes all seven values, then reloads the settings and closes.
    void StoreSettings();
    // Closes with nothing written.
    void Cancel();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    settings::SettingsStore& store_;
    Dialogs& dialogs_;
    std::function<void()> loadSettings_;

    QGroupBox* editorFrame_;
    QCheckBox* editInPlaceCheck_;
    QLabel* openFolderLabel_;
    QLineEdit* openFolderBox_;
    QPushButton* browseOpenFolderButton_;
    QLabel* saveFolderLabel_;
    QLineEdit* saveFolderBox_;
    QPushButton* browseSaveFolderButton_;
    QGroupBox* wizardFrame_;
    QLabel* clanTagLabel_;
    QLineEdit* clanTagBox_;
    QLabel* nameLabel_;
    QLineEdit* nameBox_;
    QCheckBox* reverseCheck_;
    QPushButton* okButton_;
    QPushButton* cancelButton_;
};

}  // namespace flickerscribe::ui
