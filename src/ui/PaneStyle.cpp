#include "ui/PaneStyle.h"

#include <QPalette>
#include <QTextEdit>

#include "colour/Palette.h"

namespace flickerscribe::ui {

QFont BoldFont(const QString& family, qreal points, QFont::StyleHint fallback) {
    QFont font(family);
    font.setStyleHint(fallback);
    font.setPointSizeF(points);
    font.setBold(true);
    return font;
}

void StyleGreyPane(QTextEdit* pane, const QFont& font) {
    QPalette palette = pane->palette();
    const QColor grey(static_cast<int>(RedOf(kPaneGrey)), static_cast<int>(GreenOf(kPaneGrey)),
                      static_cast<int>(BlueOf(kPaneGrey)));
    palette.setColor(QPalette::Base, grey);
    palette.setColor(QPalette::Text, Qt::black);
    pane->setPalette(palette);
    pane->setFont(font);
    pane->document()->setDefaultFont(font);
}

}  // namespace flickerscribe::ui
