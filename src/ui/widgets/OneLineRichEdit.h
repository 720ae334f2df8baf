#pragma once

#include <QTextEdit>

namespace flickerscribe::ui {

// A rich text pane into which pasted and dropped text comes as plain text, in
// the colour in force at the caret (the one chosen for what is typed next):
// no foreign colours, fonts or tables arrive with it.
class PlainPasteEdit : public QTextEdit {
public:
    explicit PlainPasteEdit(QWidget* parent = nullptr);

protected:
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
    // What becomes of a pasted or dropped text before it goes in.
    virtual QString pasted(QString text) const { return text; }
};

// A pane that holds a single line: no wrapping, no scroll bars, Enter doesn't
// break the line (the key goes on to the window), and the line breaks of
// pasted text become blanks.
class OneLineRichEdit : public PlainPasteEdit {
public:
    explicit OneLineRichEdit(QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    QString pasted(QString text) const override;
};

}  // namespace flickerscribe::ui
