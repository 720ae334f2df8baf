#include "ui/dialogs/DialogWindow.h"

#include <QApplication>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLayout>
#include <QPushButton>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {

QFont dialogFont() {
    QFont font;
    font.setFamilies(
        {u"MS Sans Serif"_s, u"Microsoft Sans Serif"_s, u"Tahoma"_s, u"Arial"_s, u"Liberation Sans"_s});
    font.setStyleHint(QFont::SansSerif);
    font.setPointSizeF(8);
    return font;
}

void setButtonSize(QPushButton* button, int width, int height) {
    // The caption with the margins the style puts around it.
    const int captionWidth = QFontMetrics(dialogFont()).horizontalAdvance(button->text()) + 12;
    button->setFixedSize(std::max(width, captionWidth), height);
}

void setUpDialog(QDialog& dialog, const QString& name, const QString& caption, WindowSize size) {
    dialog.setObjectName(name);
    dialog.setWindowTitle(caption);
    dialog.setFont(dialogFont());
    Qt::WindowFlags flags = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                            Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    flags |= size == WindowSize::Fixed ? Qt::MSWindowsFixedSizeDialogHint : Qt::WindowMinMaxButtonsHint;
    dialog.setWindowFlags(flags);
}

DialogWindow::DialogWindow(const QString& name, const QString& caption, WindowSize size, Keys keys,
                           QWidget* parent)
    : QDialog(parent), size_(size), keys_(keys) {
    setUpDialog(*this, name, caption, size);
    if (keys_.enterOnlyOnButtons) {
        // Qt makes a button the default when it takes the focus, and keeps one
        // as the default once the focus leaves it. With no default button, no
        // button may look like one while the focus is in a box.
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
            if (now == nullptr || now->window() != this || qobject_cast<QPushButton*>(now) != nullptr) return;
            for (QPushButton* button : findChildren<QPushButton*>()) button->setDefault(false);
        });
    }
}

void DialogWindow::setContents(QLayout* layout) {
    if (size_ == WindowSize::Fixed) layout->setSizeConstraint(QLayout::SetFixedSize);
    setLayout(layout);
}

void DialogWindow::keyPressEvent(QKeyEvent* event) {
    // A focused button has taken its Enter already: what arrives here came
    // from a box or a pane.
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if ((enter && keys_.enterOnlyOnButtons) || (event->key() == Qt::Key_Escape && keys_.escapeKeepsOpen)) {
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

}  // namespace flickerscribe::ui
