#pragma once

#include <QIcon>

namespace flickerscribe::ui {

// The images of the small image-only buttons of the dialogs, drawn as SVG so
// that they stay crisp at any scale.
QIcon copyIcon();    // copies a text to the clipboard
QIcon folderIcon();  // browses for a folder

}  // namespace flickerscribe::ui
