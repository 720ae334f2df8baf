#pragma once

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace flickerscribe::ui {

// The small Edit dialog: a new Time for the selected line. It always opens
// with "15", whatever the line holds; OK accepts it and the caller stores
// Time(). The Action box is a placeholder that nothing reads.
class EditTimeDialog : public QDialog {
    Q_OBJECT

public:
    explicit EditTimeDialog(QWidget* parent = nullptr);

    // The time in the box.
    QString Time() const;

private:
    // A text that is no number never stands in the box: it becomes "20".
    void CheckTime();

    QLabel* timeLabel_;
    QLineEdit* timeBox_;
    QLabel* actionLabel_;
    QComboBox* actionBox_;
    QPushButton* okButton_;
    QPushButton* cancelButton_;
    QLabel* speedGuide_;
};

}  // namespace flickerscribe::ui
