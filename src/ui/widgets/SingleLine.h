#pragma once

#include <QString>

class QLineEdit;

namespace flickerscribe::ui {

// A line's text holds no line break: each break (CR LF, CR, LF, and Unicode's
// line and paragraph separators) becomes one blank.
QString onOneLine(QString text);

// Keeps a one-line box on one line however text arrives (typed, pasted,
// dropped or set): its line breaks become blanks. The box takes text of any
// length, so a long text from a file is never cut.
void keepOnOneLine(QLineEdit* box);

}  // namespace flickerscribe::ui
