#pragma once

#include <QDialog>
#include <memory>
#include <string>

class QLabel;
class QPushButton;
class QTextEdit;

namespace flickerscribe {
class Pane;
}

namespace flickerscribe::ui {

class RichPane;

// The coded text that the About window shows: the program's name, version and
// maker, with CR LF between its lines.
std::string AboutText();

// The About window: name, version and maker in colour, and the web addresses.
// OK is both the default and the cancel button, so Enter and Escape close it.
class AboutDialog : public QDialog {
    Q_OBJECT

public:
    explicit AboutDialog(QWidget* parent = nullptr);
    ~AboutDialog() override;

    // Sets the caption and renders AboutText() into the pane.
    void ShowProgramInfo();
    void Dismiss();

    Pane& PreviewPane();

private:
    QTextEdit* paneEdit_;
    std::unique_ptr<RichPane> pane_;
    QWidget* separator_[2];
    QLabel* addressLabel_;
    QPushButton* okButton_;
};

}  // namespace flickerscribe::ui
