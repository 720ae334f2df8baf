#pragma once

#include <QAbstractTableModel>

#include "document/AnimationScript.h"

namespace flickerscribe::ui {

// The list view's model of the one animation: rows are the script's lines
// (row r is line r + 1), columns Text, Time and Action. It holds no copy of
// the lines; it listens to the script and tells the view of each change.
class ScriptModel : public QAbstractTableModel, public ScriptListener {
    Q_OBJECT

public:
    explicit ScriptModel(AnimationScript& script, QObject* parent = nullptr);
    ~ScriptModel() override;

    // The one place where the script's lines, counted from 1, meet the
    // model's rows, counted from 0.
    static constexpr int lineOfRow(int row) { return row + 1; }
    static constexpr int rowOfLine(int line) { return line - 1; }
    QModelIndex indexOfLine(int line, int column = 0) const { return index(rowOfLine(line), column); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    // Only the Text column takes an edit; it is passed on as textEdited.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    // True between the script's announcement of a change and its end: the
    // view's own moves of its current row in that time are no choice of the
    // user.
    bool changing() const { return changing_ > 0; }

    void AboutToInsert(int index) override;
    void Inserted(int index) override;
    void AboutToRemove(int index) override;
    void Removed(int index) override;
    void LineChanged(int index) override;
    void AboutToReset() override;
    void ResetDone() override;
    void SelectionChanged(int index) override;

signals:
    // The script's selected line is now `index` (0 for none).
    void selectedLineChanged(int index);
    // The user edited the Text of line `index` in place.
    void textEdited(int index, const QString& text);

private:
    AnimationScript& script_;
    int changing_ = 0;
};

}  // namespace flickerscribe::ui
