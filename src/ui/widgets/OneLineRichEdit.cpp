#include "ui/widgets/OneLineRichEdit.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QTextCursor>

#include "ui/widgets/SingleLine.h"

namespace flickerscribe::ui {

PlainPasteEdit::PlainPasteEdit(QWidget* parent) : QTextEdit(parent) {
    setAcceptRichText(false);
}

bool PlainPasteEdit::canInsertFromMimeData(const QMimeData* source) const {
    return source->hasText();
}

void PlainPasteEdit::insertFromMimeData(const QMimeData* source) {
    // The cursor's own format is the colour in force; a fragment would bring
    // the default one instead.
    QTextCursor cursor = textCursor();
    cursor.insertText(pasted(source->text()));
    setTextCursor(cursor);
}

OneLineRichEdit::OneLineRichEdit(QWidget* parent) : PlainPasteEdit(parent) {
    setLineWrapMode(QTextEdit::NoWrap);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTabChangesFocus(true);
}

void OneLineRichEdit::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->ignore();
        return;
    }
    QTextEdit::keyPressEvent(event);
}

QString OneLineRichEdit::pasted(QString text) const {
    return onOneLine(std::move(text));
}

}  // namespace flickerscribe::ui
