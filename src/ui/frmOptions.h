#pragma once

#include <QDialog>
#include <functional>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace fs::settings {
class SettingsStore;
}

namespace fs::ui {

class Dialogs;

// The Options dialog, the one place that writes the settings. It shows what
// the store holds (not the copies in memory), and OK writes every value back
// and has them take effect at once through `loadSettings`. Enter and Escape do
// nothing special here: only the buttons close it.
class frmOptions : public QDialog {
    Q_OBJECT

public:
    frmOptions(settings::SettingsStore& store, Dialogs& dialogs, std::function<void()> loadSettings,
               QWidget* parent = nullptr);

    // Fills the controls from the store.
    void Form_Load();
    // The folder browser fills the box as it answers: Cancel empties it.
    void cmdBrowse1_Click();
    void cmdBrowse2_Click();
    // Writes all seven values, then reloads the settings and closes.
    void cmdOK_Click();
    // Closes with nothing written.
    void Command2_Click();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    settings::SettingsStore& store_;
    Dialogs& dialogs_;
    std::function<void()> loadSettings_;

    QGroupBox* fraMain_;
    QCheckBox* chkEditItem_;
    QLabel* lblOpenDir_;
    QLineEdit* txtOpen_;
    QPushButton* cmdBrowse1_;
    QLabel* lblSave_;
    QLineEdit* txtSave_;
    QPushButton* cmdBrowse2_;
    QGroupBox* fraWizardDefaults_;
    QLabel* lblClanTag_;
    QLineEdit* txtClan_;
    QLabel* lblName_;
    QLineEdit* txtName_;
    QCheckBox* chkReverse_;
    QPushButton* cmdOK_;
    QPushButton* Command2_;
};

}  // namespace fs::ui
