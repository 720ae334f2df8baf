#include "ui/frmMain.h"

// The Edit menu's Cut, Copy and Paste: one line's coded text to and from the
// clipboard.

namespace fs::ui {

void frmMain::mnuEditCut_Click() {}

void frmMain::mnuEditCopy_Click() {}

void frmMain::mnuEditPaste_Click() {}

}  // namespace fs::ui
