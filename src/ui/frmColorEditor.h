#pragma once

#include <QDialog>
#include <memory>
#include <vector>

class QLabel;
class QPushButton;

namespace fs {
class Pane;
}

namespace fs::ui {

class Dialogs;
class OneLineRichEdit;
class RichPane;

// The colour name editor: the user types a name into the pane, paints parts of
// it with the nine colour buttons and copies it to the clipboard as coded
// text. It touches neither the line list nor any setting.
class frmColorEditor : public QDialog {
    Q_OBJECT

public:
    explicit frmColorEditor(Dialogs& dialogs, QWidget* parent = nullptr);
    ~frmColorEditor() override;

    // Paints the pane's selection, or what is typed next, in the colour of
    // digit index + 1.
    void cmdColor_Click(int index);
    // Puts the pane's coded text on the clipboard; never-painted text (black)
    // needs no code.
    void cmdClipboard_Click();
    void cmdClose_Click();

    Pane& PreviewPane();

private:
    Dialogs& dialogs_;
    std::vector<QPushButton*> cmdColor_;
    QLabel* Label3_;
    OneLineRichEdit* txtPreview_;
    std::unique_ptr<RichPane> pane_;
    QPushButton* cmdClipboard_;
    QPushButton* cmdClose_;
};

}  // namespace fs::ui
