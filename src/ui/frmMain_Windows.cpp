#include "ui/frmAbout.h"
#include "ui/frmColorEditor.h"
#include "ui/frmHelp.h"
#include "ui/frmMain.h"
#include "ui/frmOptions.h"
#include "ui/frmSimpleEdit.h"
#include "ui/frmWizard.h"

// The other windows, opened from the menus and the toolbar. The wizard is
// the only one shown beside the main window; all others are modal.

namespace fs::ui {

void frmMain::ShowWizard() {
    // One wizard at a time: while it is open, the command only brings it forward.
    if (wizard_) {
        wizard_->raise();
        wizard_->activateWindow();
        return;
    }
    auto* wizard = new frmWizard(script_, dialogs_, settings_, this);
    wizard->setAttribute(Qt::WA_DeleteOnClose);
    wizard_ = wizard;
    wizard->show();
}

void frmMain::ShowColorEditor() {
    frmColorEditor window(dialogs_, this);
    window.exec();
}

void frmMain::ShowSimpleEdit() {
    frmSimpleEdit window(script_, dialogs_, this);
    window.exec();
}

void frmMain::ShowOptions() {
    frmOptions window(
        store_, dialogs_, [this] { LoadSettings(); }, this);
    window.exec();
}

void frmMain::ShowHelp() {
    frmHelp window(dialogs_, this);
    window.exec();
}

void frmMain::ShowAbout() {
    frmAbout window(this);
    window.exec();
}

}  // namespace fs::ui
