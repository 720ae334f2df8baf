#include "ui/DialogWindow.h"

#include <QDialog>

#include "ui/Twips.h"

namespace fs::ui {
namespace {

void Name(QDialog& dialog, const QString& name, const QString& caption) {
    dialog.setObjectName(name);
    dialog.setWindowTitle(caption);
    dialog.setSizeGripEnabled(false);
}

}  // namespace

void MakeFixedDialog(QDialog& dialog, const QString& name, const QString& caption, int clientWidth,
                     int clientHeight) {
    Name(dialog, name, caption);
    dialog.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                          Qt::MSWindowsFixedSizeDialogHint);
    dialog.setFixedSize(Twips(clientWidth), Twips(clientHeight));
}

void MakeSizableDialog(QDialog& dialog, const QString& name, const QString& caption, int clientWidth,
                       int clientHeight) {
    Name(dialog, name, caption);
    dialog.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
    dialog.resize(Twips(clientWidth), Twips(clientHeight));
}

}  // namespace fs::ui
