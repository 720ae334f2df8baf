#pragma once

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace flickerscribe {
class AnimationScript;
}

namespace flickerscribe::ui {

// The small Edit dialog: a new Time for the selected line. It always opens
// with "15", whatever the line holds, and only OK writes. The Action box is a
// placeholder that nothing reads.
class EditTimeDialog : public QDialog {
    Q_OBJECT

public:
    explicit EditTimeDialog(AnimationScript& script, QWidget* parent = nullptr);

    // Writes the guide to Time values beside the box, and nothing else.
    void ShowSpeedGuide();
    // A text that is no number never stands in the box: it becomes "20".
    void CheckTime();
    // Stores the box's text as the selected line's Time and closes.
    void StoreTime();
    // Closes with nothing changed.
    void Cancel();

private:
    AnimationScript& script_;

    QLabel* timeLabel_;
    QLineEdit* timeBox_;
    QLabel* actionLabel_;
    QComboBox* actionBox_;
    QPushButton* okButton_;
    QPushButton* cancelButton_;
    QLabel* speedGuide_;
};

}  // namespace flickerscribe::ui
