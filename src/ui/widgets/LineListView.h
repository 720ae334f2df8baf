#pragma once

#include <QTableView>

namespace flickerscribe::ui {

// The list of lines: whole rows, one at a time, and a selected row that no
// click can take away (a click on the empty part, or with Ctrl on the
// selected row, keeps it). Each key press is handed on after the list has
// moved its current row, so that a handler sees the line the key led to.
// The last column takes what room the others leave, so that a vertical
// scroll bar brings no horizontal one while the columns fit.
class LineListView : public QTableView {
    Q_OBJECT

public:
    explicit LineListView(QWidget* parent = nullptr);

signals:
    // A key was pressed, after the list has moved its current row for it.
    void keyPressed(int key, Qt::KeyboardModifiers modifiers);

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event = nullptr) const override;
    void keyPressEvent(QKeyEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    // Home and End go to the first and the last line, as Ctrl+Home and Ctrl+End do.
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
};

}  // namespace flickerscribe::ui
