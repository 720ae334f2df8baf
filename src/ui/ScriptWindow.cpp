#include "ui/ScriptWindow.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScreen>
#include <QVBoxLayout>

#include "document/AnimationScript.h"
#include "document/SafeWrite.h"
#include "script/ScriptText.h"
#include "settings/Settings.h"
#include "ui/DialogWindow.h"
#include "ui/FileCommands.h"
#include "ui/TextConv.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {
namespace {

namespace names {

// The object names of this window's controls, all in one place: the stable
// identities by which tests and the accessibility tree find them. They keep
// their values whatever the code calls the things they name.
const QString kWindow = QStringLiteral("frmScript");
const QString kSaveEntry = QStringLiteral("mnuSave");
const QString kScriptBox = QStringLiteral("txtScript");

}  // namespace names

// The size the window opens with, in twips.
constexpr int kOpeningWidth = 9600;
constexpr int kOpeningHeight = 7200;

// Courier New at 9.75 points, or the nearest fixed-pitch face there is.
QFont ScriptFont() {
    QFont font;
    font.setFamilies({u"Courier New"_s, u"Courier"_s, u"Liberation Mono"_s, u"DejaVu Sans Mono"_s});
    font.setStyleHint(QFont::TypeWriter);
    font.setFixedPitch(true);
    font.setPointSizeF(9.75);
    return font;
}

}  // namespace

ScriptWindow::ScriptWindow(const AnimationScript& script, Dialogs& dialogs,
                           const settings::Settings& settings, QWidget* parent)
    : QDialog(parent), script_(script), dialogs_(dialogs), settings_(settings) {
    MakeSizableDialog(*this, names::kWindow, u"Generate Brennock Script"_s, kOpeningWidth, kOpeningHeight);

    auto* menu = new QMenuBar(this);
    menu->setNativeMenuBar(false);
    saveAction_ = menu->addAction(u"Save"_s);
    saveAction_->setObjectName(names::kSaveEntry);
    connect(saveAction_, &QAction::triggered, this, &ScriptWindow::SaveScript);

    scriptBox_ = new QPlainTextEdit(this);
    scriptBox_->setObjectName(names::kScriptBox);
    scriptBox_->setLineWrapMode(QPlainTextEdit::NoWrap);
    scriptBox_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    scriptBox_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    scriptBox_->setFont(ScriptFont());

    // The box fills the whole client area under the menu, whatever its size.
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setMenuBar(menu);
    layout->addWidget(scriptBox_);

    saveDialog_.title = u"Save Script"_s;
    saveDialog_.filter = u"Brennock Script (*.cfg)|*.cfg|All Files(*.*)|*.*"_s;

    BuildScript();
}

ScriptWindow::~ScriptWindow() = default;

void ScriptWindow::BuildScript() {
    // The window isn't shown yet: the messages stand over its owner.
    QWidget* owner = parentWidget();
    const std::string text = BuildScriptText(script_, [this, owner](const std::string& message) {
        dialogs_.Message(owner, ToQString(message), QString(), MsgIcon::None, MsgButtons::Ok);
    });
    // One call for the whole text: tens of thousands of lines go in at once,
    // each CR LF as one line break.
    scriptBox_->setPlainText(ToQString(text));
}

std::string ScriptWindow::ScriptFileBytes() const {
    // The raw text keeps no-break spaces as they are; every line break of the
    // box, a soft one too, becomes CR LF.
    QString text = scriptBox_->document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u"\r\n"_s);
    text.replace(QChar::LineSeparator, u"\r\n"_s);
    std::string bytes = FromQString(text);
    bytes += kScriptLineEnd;
    return bytes;
}

void ScriptWindow::SaveScript() {
    const auto path = ChooseSavePath(dialogs_, this, saveDialog_,
                                     [this] {
                                         if (!settings_.saveFolder.isEmpty())
                                             saveDialog_.initialFolder = settings_.saveFolder;
                                     },
                                     {u"File Exists! Overwrite?"_s, u"Save script"_s});
    if (!path) return;
    // The file is replaced only once the new text is complete on disk; on a
    // failure the old file stays whole and the text stays in the box.
    if (const auto error = WriteFileSafely(*path, ScriptFileBytes())) ShowSaveError(dialogs_, this, *error);
}

void ScriptWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (placed_) return;
    placed_ = true;
    // Centred on the screen, not on the main window.
    if (const QScreen* screen = this->screen()) {
        QRect frame = frameGeometry();
        frame.moveCenter(screen->availableGeometry().center());
        move(frame.topLeft());
    }
}

void ScriptWindow::keyPressEvent(QKeyEvent* event) {
    // Escape would close the window and lose the edits in the box: the close
    // box is the way out.
    if (event->key() == Qt::Key_Escape) {
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

}  // namespace flickerscribe::ui
