#pragma once

#include <QIcon>
#include <QString>

namespace flickerscribe::ui {

// The window icon of the program.
QIcon AppIcon();

// The toolbar's images by their keys, in toolbar order: imgnew, imgopen,
// imgsave, imgadd, imgremove, imgedit, imgwizard, imgplay, imggenerate,
// imgstop. Drawn as SVG, so that they stay crisp at any scale. An unknown key
// gives an empty icon.
QIcon ToolbarIcon(const QString& key);

}  // namespace flickerscribe::ui
