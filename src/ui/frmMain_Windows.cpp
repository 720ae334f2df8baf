#include "ui/frmAbout.h"
#include "ui/frmColorEditor.h"
#include "ui/frmHelp.h"
#include "ui/frmMain.h"
#include "ui/frmOptions.h"
#include "ui/frmSimpleEdit.h"

// The other windows, opened from the menus and the toolbar. The wizard is
// the only one shown beside the main window; all others are modal.

namespace fs::ui {

void frmMain::ShowWizard() {}

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
