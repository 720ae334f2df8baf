#pragma once

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace fs {
class AnimationScript;
}

namespace fs::ui {

// The small Edit dialog: a new Time for the selected line. It always opens
// with "15", whatever the line holds, and only OK writes. The Action box is a
// placeholder that nothing reads.
class frmEdit : public QDialog {
    Q_OBJECT

public:
    explicit frmEdit(AnimationScript& script, QWidget* parent = nullptr);

    // Writes the guide to Time values into lblSpeed, and nothing else.
    void Form_Load();
    // A text that is no number never stands in the box: it becomes "20".
    void txtTime_Change();
    // Stores the box's text as the selected line's Time and closes.
    void cmdOK_Click();
    // Closes with nothing changed.
    void cmdCancel_Click();

private:
    AnimationScript& script_;

    QLabel* Label1_;
    QLineEdit* txtTime_;
    QLabel* Label2_;
    QComboBox* cmbAction_;
    QPushButton* cmdOK_;
    QPushButton* cmdCancel_;
    QLabel* lblSpeed_;
};

}  // namespace fs::ui
