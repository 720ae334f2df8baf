#include "ui/LineListView.h"

#include <QKeyEvent>

namespace fs::ui {

LineListView::LineListView(QWidget* parent) : QTableView(parent) {
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSortingEnabled(false);
}

QItemSelectionModel::SelectionFlags LineListView::selectionCommand(const QModelIndex& index,
                                                                   const QEvent* event) const {
    (void)event;
    if (!index.isValid()) return QItemSelectionModel::NoUpdate;
    // Neither Ctrl nor Shift changes what a click or a key does: it selects
    // one row.
    return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
}

void LineListView::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const Qt::KeyboardModifiers modifiers = event->modifiers();
    QTableView::keyPressEvent(event);
    if (onKeyDown) onKeyDown(key, modifiers);
}

}  // namespace fs::ui
