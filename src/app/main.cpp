#include <QApplication>

#include "ui/frmMain.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Flickerscribe"));
    QApplication::setApplicationVersion(QStringLiteral("0.5.0"));
    fs::ui::frmMain window;
    window.show();
    return QApplication::exec();
}
