#pragma once

#include <QTableView>
#include <functional>

namespace fs::ui {

// The list of lines: whole rows, one at a time, and a selected row that no
// click can take away (a click on the empty part, or with Ctrl on the
// selected row, keeps it). Each key press is handed on after the list has
// moved its current row, so that a handler sees the line the key led to.
class LineListView : public QTableView {
    Q_OBJECT

public:
    explicit LineListView(QWidget* parent = nullptr);

    std::function<void(int key, Qt::KeyboardModifiers modifiers)> onKeyDown;

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event = nullptr) const override;
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace fs::ui
