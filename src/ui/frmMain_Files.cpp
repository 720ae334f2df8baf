#include "ui/frmMain.h"

// The commands through the file dialog: Open and Save As of the animation,
// Import of a script, and the generated script.

namespace fs::ui {

void frmMain::OpenAnimation() {}

void frmMain::SaveAnimationAs() {}

void frmMain::ImportScript() {}

void frmMain::GenerateScript() {}

}  // namespace fs::ui
