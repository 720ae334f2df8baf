#pragma once

#include <QTextEdit>

namespace fs::ui {

// A rich text pane that holds a single line: no wrapping, no scroll bars,
// Enter doesn't break the line (the key goes on to the window), and pasted
// text comes in as plain text with its line breaks turned into blanks, in the
// colour chosen for what is typed next.
class OneLineRichEdit : public QTextEdit {
public:
    explicit OneLineRichEdit(QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
};

}  // namespace fs::ui
