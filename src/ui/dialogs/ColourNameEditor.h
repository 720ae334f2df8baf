#pragma once

#include <memory>

#include "ui/dialogs/DialogWindow.h"

namespace flickerscribe {
class Pane;
}

namespace flickerscribe::ui {

class Dialogs;
class RichPane;

// The colour name editor: the user types a name into the pane, paints parts of
// it with the nine colour buttons and copies it to the clipboard as coded
// text. It touches neither the line list nor any setting. Enter in the pane
// presses no button; Escape closes the window, as Close does.
class ColourNameEditor : public DialogWindow {
    Q_OBJECT

public:
    explicit ColourNameEditor(Dialogs& dialogs, QWidget* parent = nullptr);
    ~ColourNameEditor() override;

    Pane& previewPane();

private:
    // Puts the pane's coded text on the clipboard; never-painted text (black)
    // needs no code.
    void copyToClipboard();

    Dialogs& dialogs_;
    std::unique_ptr<RichPane> pane_;
};

}  // namespace flickerscribe::ui
