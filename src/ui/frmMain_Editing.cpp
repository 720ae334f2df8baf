#include "ui/frmMain.h"

// Editing the selected line: in the coloured pane with the colour strip, by
// keys in the list, and its time in the Edit dialog.

namespace fs::ui {

void frmMain::txtPreview_Change() {}

void frmMain::cmdColor_Click(int index) {
    (void)index;
}

void frmMain::txtPreview_KeyDown(int key, Qt::KeyboardModifiers modifiers) {
    (void)key;
    (void)modifiers;
}

void frmMain::lvwMain_KeyDown(int key, Qt::KeyboardModifiers modifiers) {
    (void)key;
    (void)modifiers;
}

void frmMain::EditSelectedLine() {}

}  // namespace fs::ui
