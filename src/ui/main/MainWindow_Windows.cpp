#include "ui/dialogs/AboutDialog.h"
#include "ui/dialogs/ColourNameEditor.h"
#include "ui/dialogs/HelpDialog.h"
#include "ui/dialogs/OptionsDialog.h"
#include "ui/dialogs/SimpleEditWindow.h"
#include "ui/main/MainWindow.h"
#include "ui/wizard/WizardDialog.h"

// The other windows, opened from the menus and the toolbar. The wizard is
// the only one shown beside the main window; all others are modal.

namespace flickerscribe::ui {

void MainWindow::showWizard() {
    // One wizard at a time: while it is open, the command only brings it forward.
    if (wizard_) {
        wizard_->raise();
        wizard_->activateWindow();
        return;
    }
    auto* wizard = new WizardDialog(history_, dialogs_, settings_, this);
    wizard->setAttribute(Qt::WA_DeleteOnClose);
    wizard_ = wizard;
    wizard->show();
}

void MainWindow::showColourNameEditor() {
    ColourNameEditor window(dialogs_, this);
    window.exec();
}

void MainWindow::showSimpleEdit() {
    SimpleEditWindow window(history_, dialogs_, this);
    window.exec();
}

void MainWindow::showOptions() {
    OptionsDialog window(
        store_, dialogs_, [this] { loadSettings(); }, this);
    window.exec();
}

void MainWindow::showHelp() {
    HelpDialog window(dialogs_, this);
    window.exec();
}

void MainWindow::showAbout() {
    AboutDialog window(this);
    window.exec();
}

}  // namespace flickerscribe::ui
