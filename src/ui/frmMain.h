#pragma once

#include <QMainWindow>

namespace fs::ui {

// The main window: the line list, the preview pane, the colour strip, menus
// and toolbar.
class frmMain : public QMainWindow {
    Q_OBJECT

public:
    explicit frmMain(QWidget* parent = nullptr);
};

}  // namespace fs::ui
