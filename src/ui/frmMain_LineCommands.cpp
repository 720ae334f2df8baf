#include "ui/frmMain.h"

// The commands that make, copy and remove lines by hand: the toolbar's Add
// button with its drop-down menu, and Remove.

namespace fs::ui {

void frmMain::AddLine(bool after) {
    (void)after;
}

void frmMain::RemoveSelectedLine() {}

void frmMain::CopyLines(int mode) {
    (void)mode;
}

}  // namespace fs::ui
