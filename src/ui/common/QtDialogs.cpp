#include "ui/common/QtDialogs.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>

#include "ui/widgets/SingleLine.h"

namespace flickerscribe::ui {

namespace {

QString titleOrAppName(const QString& title) {
    return title.isEmpty() ? QApplication::applicationName() : title;
}

QMessageBox::Icon toQtIcon(MsgIcon icon) {
    switch (icon) {
        case MsgIcon::Critical:
            return QMessageBox::Critical;
        case MsgIcon::Question:
            return QMessageBox::Question;
        case MsgIcon::Exclamation:
            return QMessageBox::Warning;
        case MsgIcon::Information:
            return QMessageBox::Information;
        case MsgIcon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

struct ButtonSet {
    QMessageBox::StandardButtons buttons;
    QMessageBox::StandardButton escape;  // also the answer when the box is closed otherwise
};

ButtonSet toQtButtons(MsgButtons buttons) {
    switch (buttons) {
        case MsgButtons::OkCancel:
            return {QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel};
        case MsgButtons::YesNo:
            return {QMessageBox::Yes | QMessageBox::No, QMessageBox::No};
        case MsgButtons::YesNoCancel:
            return {QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Cancel};
        case MsgButtons::Ok:
            break;
    }
    return {QMessageBox::Ok, QMessageBox::Ok};
}

MsgAnswer toAnswer(int button, QMessageBox::StandardButton escape) {
    switch (button) {
        case QMessageBox::Ok:
            return MsgAnswer::Ok;
        case QMessageBox::Yes:
            return MsgAnswer::Yes;
        case QMessageBox::No:
            return MsgAnswer::No;
        case QMessageBox::Cancel:
            return MsgAnswer::Cancel;
        default:
            return toAnswer(escape, QMessageBox::Cancel);
    }
}

}  // namespace

MsgAnswer QtDialogs::message(QWidget* parent, const QString& text, const QString& title, MsgIcon icon,
                             MsgButtons buttons) {
    const ButtonSet set = toQtButtons(buttons);
    QMessageBox box(toQtIcon(icon), titleOrAppName(title), text, set.buttons, parent);
    box.setEscapeButton(set.escape);
    const int pressed = box.exec();
    return toAnswer(pressed, set.escape);
}

std::optional<QString> QtDialogs::inputBox(QWidget* parent, const QString& prompt, const QString& title,
                                           const QString& defaultText) {
    QInputDialog dialog(parent);
    dialog.setWindowTitle(titleOrAppName(title));
    dialog.setLabelText(prompt);
    dialog.setInputMode(QInputDialog::TextInput);
    dialog.setTextValue(defaultText);
    if (auto* box = dialog.findChild<QLineEdit*>()) keepOnOneLine(box);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return dialog.textValue();
}

bool QtDialogs::showOpen(QWidget* parent, FileDialogState& state) {
    return showFileDialog(parent, state, false);
}

bool QtDialogs::showSave(QWidget* parent, FileDialogState& state) {
    return showFileDialog(parent, state, true);
}

bool QtDialogs::showFileDialog(QWidget* parent, FileDialogState& state, bool save) {
    QFileDialog dialog(parent, state.title);
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    // Any name may be typed: the commands test for existence and ask about
    // overwriting themselves, and a name typed without an extension stays
    // without one.
    dialog.setOption(QFileDialog::DontConfirmOverwrite, true);
    dialog.setDefaultSuffix(QString());
    if (!state.filter.isEmpty()) dialog.setNameFilter(state.filter);
    const QString folder = !state.initialFolder.isEmpty() ? state.initialFolder : lastFolder_;
    if (!folder.isEmpty()) dialog.setDirectory(folder);
    // A remembered name with a folder of its own opens in that folder.
    if (!state.fileName.isEmpty()) dialog.selectFile(state.fileName);
    if (dialog.exec() != QDialog::Accepted) return false;
    const QStringList chosen = dialog.selectedFiles();
    if (chosen.isEmpty()) return false;
    state.fileName = QDir::toNativeSeparators(chosen.first());
    lastFolder_ = QFileInfo(chosen.first()).absolutePath();
    return true;
}

QString QtDialogs::browseForFolder(QWidget* parent, const QString& title) {
    return QDir::toNativeSeparators(QFileDialog::getExistingDirectory(parent, title));
}

void QtDialogs::setClipboardText(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
}

std::optional<QString> QtDialogs::clipboardText() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    if (data == nullptr) return std::nullopt;
    return data->hasText() ? data->text() : QString();
}

}  // namespace flickerscribe::ui
