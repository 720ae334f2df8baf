#include "ui/DialogWindow.h"

#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>

#include "ui/Twips.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {
namespace {

// Sees the Enter that a focused push button passed on to its window, and
// presses that button.
class EnterOnButton : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        const Qt::KeyboardModifiers modifiers = key->modifiers() & ~Qt::KeypadModifier;
        if (!enter || modifiers != Qt::NoModifier) return false;
        auto* button = qobject_cast<QPushButton*>(static_cast<QWidget*>(watched)->focusWidget());
        if (button == nullptr || !button->isEnabled() || !button->isVisible()) return false;
        button->click();
        return true;
    }
};

void Name(QDialog& dialog, const QString& name, const QString& caption) {
    dialog.setObjectName(name);
    dialog.setWindowTitle(caption);
    dialog.setFont(DialogFont());
    dialog.setSizeGripEnabled(false);
    PressFocusedButtonOnEnter(dialog);
}

}  // namespace

void PressFocusedButtonOnEnter(QWidget& window) {
    window.installEventFilter(new EnterOnButton(&window));
}

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

}  // namespace flickerscribe::ui
