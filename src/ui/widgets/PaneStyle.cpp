#include "ui/widgets/PaneStyle.h"

#include <QPalette>
#include <QTextEdit>

namespace flickerscribe::ui {

QColor toQColor(Colour colour) {
    return QColor(static_cast<int>(RedOf(colour)), static_cast<int>(GreenOf(colour)),
                  static_cast<int>(BlueOf(colour)));
}

QFont boldFont(const QString& family, qreal points, QFont::StyleHint fallback) {
    QFont font(family);
    font.setStyleHint(fallback);
    font.setPointSizeF(points);
    font.setBold(true);
    return font;
}

void styleGreyPane(QTextEdit* pane, const QFont& font) {
    QPalette palette = pane->palette();
    palette.setColor(QPalette::Base, toQColor(kPaneGrey));
    palette.setColor(QPalette::Text, Qt::black);
    pane->setPalette(palette);
    pane->setFont(font);
    pane->document()->setDefaultFont(font);
}

}  // namespace flickerscribe::ui
