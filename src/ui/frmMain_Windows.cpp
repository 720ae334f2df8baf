#include "ui/frmMain.h"

// The other windows, opened from the menus and the toolbar. The wizard is
// the only one shown beside the main window; all others are modal.

namespace fs::ui {

void frmMain::ShowWizard() {}

void frmMain::ShowColorEditor() {}

void frmMain::ShowSimpleEdit() {}

void frmMain::ShowOptions() {}

void frmMain::ShowHelp() {}

void frmMain::ShowAbout() {}

}  // namespace fs::ui
