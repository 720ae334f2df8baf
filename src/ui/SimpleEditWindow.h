#pragma once

#include <QDialog>
#include <memory>
#include <vector>

class QPushButton;
class QTextEdit;

namespace flickerscribe {
class AnimationScript;
class Pane;
}  // namespace flickerscribe

namespace flickerscribe::ui {

class AnimationHistory;
class Dialogs;
class RichPane;

// Simple edit: the whole animation typed into one multi-line pane, one frame
// a text line, painted with the colour buttons. Save replaces the line list by
// the pane's lines; the window stays open and never shows the list.
class SimpleEditWindow : public QDialog {
    Q_OBJECT

public:
    SimpleEditWindow(AnimationHistory& history, Dialogs& dialogs, QWidget* parent = nullptr);
    ~SimpleEditWindow() override;

    void PaintSelection(int index);
    // Empties the list and appends one line (Time "15", Action "[none]") for
    // each text line of the pane that holds more than blanks. Asks nothing;
    // only a full list stops it, and then the user is told.
    void SaveToList();
    void Dismiss();
    // The pane fills the window below the colour strip; the strip is as wide
    // as the window.
    void LayOutControls();

    Pane& PreviewPane();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    AnimationHistory& history_;
    Dialogs& dialogs_;
    QWidget* colourStrip_;
    std::vector<QPushButton*> colourButtons_;
    QPushButton* saveButton_;
    QPushButton* closeButton_;
    QTextEdit* paneEdit_;
    std::unique_ptr<RichPane> pane_;
};

}  // namespace flickerscribe::ui
