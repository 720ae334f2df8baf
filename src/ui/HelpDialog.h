#pragma once

#include <QDialog>

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace flickerscribe::ui {

class Dialogs;

// Where help can be found: the web site, the forums and the author's e-mail
// address and chat number, each in a read-only box with a button that copies
// it to the clipboard.
class HelpDialog : public QDialog {
    Q_OBJECT

public:
    explicit HelpDialog(Dialogs& dialogs, QWidget* parent = nullptr);

    // The copy buttons put the fixed value on the clipboard, not what the box
    // beside them shows.
    void CopyWebSite();     // web site
    void CopyForums();      // forums
    void CopyEmail();       // e-mail address
    void CopyChatNumber();  // chat number
    void Dismiss();         // Close

private:
    Dialogs& dialogs_;
    QGroupBox* helpFrame_;
    QLineEdit* webSiteBox_;
    QPushButton* copyWebSiteButton_;
    QGroupBox* forumsFrame_;
    QLineEdit* forumsBox_;
    QPushButton* copyForumsButton_;
    QGroupBox* contactFrame_;
    QLabel* emailLabel_;
    QLineEdit* emailBox_;
    QPushButton* copyEmailButton_;
    QLabel* chatLabel_;
    QLineEdit* chatNumberBox_;
    QPushButton* copyChatNumberButton_;
    QPushButton* closeButton_;
};

}  // namespace flickerscribe::ui
