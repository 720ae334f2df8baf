#include "ui/DialogWindow.h"

#include <QDialog>

#include "ui/Twips.h"

using namespace Qt::Literals::StringLiterals;

namespace fs::ui {
namespace {

void Name(QDialog& dialog, const QString& name, const QString& caption) {
    dialog.setObjectName(name);
    dialog.setWindowTitle(caption);
    dialog.setFont(DialogFont());
    dialog.setSizeGripEnabled(false);
}

}  // namespace

QFont DialogFont() {
    QFont font;
    font.setFamilies(
        {u"MS Sans Serif"_s, u"Microsoft Sans Serif"_s, u"Tahoma"_s, u"Arial"_s, u"Liberation Sans"_s});
    font.setStyleHint(QFont::SansSerif);
    font.setPointSizeF(8);
    return font;
}

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
