#include "ui/OneLineRichEdit.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QTextCursor>

namespace fs::ui {

OneLineRichEdit::OneLineRichEdit(QWidget* parent) : QTextEdit(parent) {
    setLineWrapMode(QTextEdit::NoWrap);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAcceptRichText(false);
    setTabChangesFocus(true);
}

void OneLineRichEdit::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->ignore();
        return;
    }
    QTextEdit::keyPressEvent(event);
}

bool OneLineRichEdit::canInsertFromMimeData(const QMimeData* source) const {
    return source->hasText();
}

void OneLineRichEdit::insertFromMimeData(const QMimeData* source) {
    QString text = source->text();
    text.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    for (QChar& c : text) {
        if (c == u'\r' || c == u'\n' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator) c = u' ';
    }
    QTextCursor cursor = textCursor();
    cursor.insertText(text);
    setTextCursor(cursor);
}

}  // namespace fs::ui
