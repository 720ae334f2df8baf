#pragma once

#include <QIcon>
#include <QString>

namespace flickerscribe::ui {

// The window icon of the program.
QIcon appIcon();

// The toolbar's images by name, in toolbar order: new, open, save, add,
// remove, edit, wizard, play, generate, and stop for the playing Play button.
// Drawn as SVG, so that they stay crisp at any scale. An unknown name gives
// an empty icon.
QIcon toolbarIcon(const QString& name);

}  // namespace flickerscribe::ui
