#pragma once

#include <QDialog>
#include <memory>
#include <vector>

class QLabel;
class QPushButton;

namespace flickerscribe {
class Pane;
}

namespace flickerscribe::ui {

class Dialogs;
class OneLineRichEdit;
class RichPane;

// The colour name editor: the user types a name into the pane, paints parts of
// it with the nine colour buttons and copies it to the clipboard as coded
// text. It touches neither the line list nor any setting.
class ColourNameEditor : public QDialog {
    Q_OBJECT

public:
    explicit ColourNameEditor(Dialogs& dialogs, QWidget* parent = nullptr);
    ~ColourNameEditor() override;

    // Paints the pane's selection, or what is typed next, in the colour of
    // digit index + 1.
    void PaintSelection(int index);
    // Puts the pane's coded text on the clipboard; never-painted text (black)
    // needs no code.
    void CopyToClipboard();
    void Dismiss();

    Pane& PreviewPane();

private:
    Dialogs& dialogs_;
    std::vector<QPushButton*> colourButtons_;
    QLabel* hintLabel_;
    OneLineRichEdit* paneEdit_;
    std::unique_ptr<RichPane> pane_;
    QPushButton* copyButton_;
    QPushButton* closeButton_;
};

}  // namespace flickerscribe::ui
