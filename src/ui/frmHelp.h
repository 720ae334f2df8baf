#pragma once

#include <QDialog>

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace fs::ui {

class Dialogs;

// Where help can be found: the web site, the forums and the author's e-mail
// address and chat number, each in a read-only box with a button that copies
// it to the clipboard.
class frmHelp : public QDialog {
    Q_OBJECT

public:
    explicit frmHelp(Dialogs& dialogs, QWidget* parent = nullptr);

    // The copy buttons put the fixed value on the clipboard, not what the box
    // beside them shows.
    void Command2_Click();  // web site
    void Command3_Click();  // forums
    void Command4_Click();  // e-mail address
    void Command5_Click();  // chat number
    void Command1_Click();  // Close

private:
    Dialogs& dialogs_;
    QGroupBox* fraFAQ_;
    QLineEdit* Text1_;
    QPushButton* Command2_;
    QGroupBox* Frame1_;
    QLineEdit* Text2_;
    QPushButton* Command3_;
    QGroupBox* Frame2_;
    QLabel* Label1_;
    QLineEdit* Text3_;
    QPushButton* Command4_;
    QLabel* Label2_;
    QLineEdit* Text4_;
    QPushButton* Command5_;
    QPushButton* Command1_;
};

}  // namespace fs::ui
