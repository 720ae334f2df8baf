#include "ui/widgets/LineListView.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyledItemDelegate>

#include "ui/widgets/SingleLine.h"

namespace flickerscribe::ui {
namespace {

// The in-place editor of a line's text: one line of any length (a text from a
// file may be longer than a line editor takes by default), and a commit that
// changed nothing writes nothing.
class LineTextDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override {
        QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
        if (auto* box = qobject_cast<QLineEdit*>(editor)) keepOnOneLine(box);
        return editor;
    }

    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override {
        const auto* box = qobject_cast<QLineEdit*>(editor);
        if (box != nullptr && box->text() == index.data(Qt::EditRole).toString()) return;
        QStyledItemDelegate::setModelData(editor, model, index);
    }
};

}  // namespace

LineListView::LineListView(QWidget* parent) : QTableView(parent) {
    setItemDelegate(new LineTextDelegate(this));
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
    emit keyPressed(key, modifiers);
}

QModelIndex LineListView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    if (action == MoveHome || action == MoveEnd) modifiers |= Qt::ControlModifier;
    return QTableView::moveCursor(action, modifiers);
}

bool LineListView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Resize && model() != nullptr && model()->columnCount() > 0) {
        const int last = model()->columnCount() - 1;
        int others = 0;
        for (int column = 0; column < last; ++column) others += columnWidth(column);
        const int room = viewport()->width() - others;
        setColumnWidth(last, std::max(room, horizontalHeader()->minimumSectionSize()));
    }
    return QTableView::viewportEvent(event);
}

}  // namespace flickerscribe::ui
