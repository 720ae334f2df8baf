#pragma once

#include <memory>
#include <string>

#include "ui/dialogs/DialogWindow.h"

namespace flickerscribe {
class Pane;
}

namespace flickerscribe::ui {

class RichPane;

// The coded text that the About window shows: the program's name, version and
// maker, with CR LF between its lines.
std::string aboutText();

// The About window: name, version and maker in colour, and the web addresses.
// OK is both the default and the cancel button, so Enter and Escape close it.
class AboutDialog : public DialogWindow {
    Q_OBJECT

public:
    explicit AboutDialog(QWidget* parent = nullptr);
    ~AboutDialog() override;

    Pane& previewPane();

private:
    std::unique_ptr<RichPane> pane_;
};

}  // namespace flickerscribe::ui
