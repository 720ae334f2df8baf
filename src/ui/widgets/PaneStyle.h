#pragma once

#include <QColor>
#include <QFont>
#include <QString>

#include "colour/Palette.h"

class QTextEdit;

namespace flickerscribe::ui {

// The core's colour as Qt's.
QColor toQColor(Colour colour);

// A bold face of the given family and point size; when the family is missing,
// Qt picks one by the style hint (a fixed-pitch face for TypeWriter).
QFont boldFont(const QString& family, qreal points, QFont::StyleHint fallback);

// Gives a rich text pane its look: the grey background that every coloured
// pane has, black as the colour of text never painted, and `font`.
void styleGreyPane(QTextEdit* pane, const QFont& font);

}  // namespace flickerscribe::ui
