#include "ui/widgets/ScriptModel.h"

#include "ui/common/TextConv.h"

namespace flickerscribe::ui {

namespace {

enum Column { kText = 0, kTime = 1, kAction = 2, kColumns = 3 };

}  // namespace

ScriptModel::ScriptModel(AnimationScript& script, QObject* parent)
    : QAbstractTableModel(parent), script_(script) {
    script_.SetListener(this);
}

ScriptModel::~ScriptModel() {
    script_.SetListener(nullptr);
}

int ScriptModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : script_.Count();
}

int ScriptModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kColumns;
}

QVariant ScriptModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= script_.Count()) return {};
    if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
    const AnimationLine& line = script_.LineAt(lineOfRow(index.row()));
    switch (index.column()) {
        case kText:
            return toQString(line.Text);
        case kTime:
            return toQString(line.Time);
        case kAction:
            return toQString(line.Action);
        default:
            return {};
    }
}

QVariant ScriptModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    switch (section) {
        case kText:
            return tr("Text");
        case kTime:
            return tr("Time");
        case kAction:
            return tr("Action");
        default:
            return {};
    }
}

Qt::ItemFlags ScriptModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (index.column() == kText) flags |= Qt::ItemIsEditable;
    return flags;
}

bool ScriptModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || index.column() != kText || role != Qt::EditRole) return false;
    if (index.row() >= script_.Count()) return false;
    emit textEdited(lineOfRow(index.row()), value.toString());
    return true;
}

void ScriptModel::AboutToInsert(int index) {
    ++changing_;
    beginInsertRows({}, rowOfLine(index), rowOfLine(index));
}

void ScriptModel::Inserted(int) {
    endInsertRows();
    --changing_;
}

void ScriptModel::AboutToRemove(int index) {
    ++changing_;
    beginRemoveRows({}, rowOfLine(index), rowOfLine(index));
}

void ScriptModel::Removed(int) {
    endRemoveRows();
    --changing_;
}

void ScriptModel::LineChanged(int index) {
    emit dataChanged(indexOfLine(index, kText), indexOfLine(index, kAction));
}

void ScriptModel::AboutToReset() {
    ++changing_;
    beginResetModel();
}

void ScriptModel::ResetDone() {
    endResetModel();
    --changing_;
}

void ScriptModel::SelectionChanged(int index) {
    emit selectedLineChanged(index);
}

}  // namespace flickerscribe::ui
