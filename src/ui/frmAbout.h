#pragma once

#include <QDialog>
#include <memory>
#include <string>

class QLabel;
class QPushButton;
class QTextEdit;

namespace fs {
class Pane;
}

namespace fs::ui {

class RichPane;

// The coded text that the About window shows: the program's name, version and
// maker, with CR LF between its lines.
std::string AboutText();

// The About window: name, version and maker in colour, and the web addresses.
// OK is both the default and the cancel button, so Enter and Escape close it.
class frmAbout : public QDialog {
    Q_OBJECT

public:
    explicit frmAbout(QWidget* parent = nullptr);
    ~frmAbout() override;

    // Sets the caption and renders AboutText() into the pane.
    void Form_Load();
    void cmdOK_Click();

    Pane& PreviewPane();

private:
    QTextEdit* txtPreview_;
    std::unique_ptr<RichPane> pane_;
    QWidget* Line1_[2];
    QLabel* Label1_;
    QPushButton* cmdOK_;
};

}  // namespace fs::ui
