#include "ui/frmMain.h"

namespace fs::ui {

frmMain::frmMain(QWidget* parent) : QMainWindow(parent) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Flickerscribe - by [QZT]Quillon"));
    resize(7965 / 15, 6765 / 15);
}

}  // namespace fs::ui
