#include "ui/dialogs/ScriptWindow.h"

#include <QAction>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScreen>
#include <QVBoxLayout>

#include "document/AnimationScript.h"
#include "document/SafeWrite.h"
#include "script/ScriptText.h"
#include "settings/Settings.h"
#include "ui/common/FileCommands.h"
#include "ui/common/TextConv.h"

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

// The size the window opens with.
constexpr QSize kOpeningSize(640, 480);

// Courier New at 9.75 points, or the nearest fixed-pitch face there is.
QFont scriptFont() {
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
    : DialogWindow(names::kWindow, tr("Generate Brennock Script"), WindowSize::Sizable,
                   {.escapeKeepsOpen = true}, parent),
      script_(script),
      dialogs_(dialogs),
      settings_(settings) {
    auto* menu = new QMenuBar(this);
    menu->setNativeMenuBar(false);
    saveAction_ = menu->addAction(tr("Save"));
    saveAction_->setObjectName(names::kSaveEntry);
    connect(saveAction_, &QAction::triggered, this, &ScriptWindow::saveScript);

    scriptBox_ = new QPlainTextEdit(this);
    scriptBox_->setObjectName(names::kScriptBox);
    scriptBox_->setLineWrapMode(QPlainTextEdit::NoWrap);
    scriptBox_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    scriptBox_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    scriptBox_->setFont(scriptFont());

    // The box fills the whole client area under the menu, whatever its size.
    auto* layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setMenuBar(menu);
    layout->addWidget(scriptBox_);
    setContents(layout);
    resize(kOpeningSize);

    saveDialog_.title = tr("Save Script");
    saveDialog_.filter = tr("Brennock Script (*.cfg);;All Files(*.*)");

    buildScript();
}

ScriptWindow::~ScriptWindow() = default;

void ScriptWindow::buildScript() {
    // The window isn't shown yet: the messages stand over its owner.
    QWidget* owner = parentWidget();
    const std::string text = BuildScriptText(script_, [this, owner](const std::string& message) {
        dialogs_.message(owner, toQString(message), QString(), MsgIcon::None, MsgButtons::Ok);
    });
    // One call for the whole text: tens of thousands of lines go in at once,
    // each CR LF as one line break.
    scriptBox_->setPlainText(toQString(text));
}

std::string ScriptWindow::scriptFileBytes() const {
    // The raw text keeps no-break spaces as they are; every line break of the
    // box, a soft one too, becomes CR LF.
    QString text = scriptBox_->document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u"\r\n"_s);
    text.replace(QChar::LineSeparator, u"\r\n"_s);
    std::string bytes = fromQString(text);
    bytes += kScriptLineEnd;
    return bytes;
}

void ScriptWindow::saveScript() {
    const auto path = chooseSavePath(dialogs_, this, saveDialog_,
                                     [this] {
                                         if (!settings_.saveFolder.isEmpty())
                                             saveDialog_.initialFolder = settings_.saveFolder;
                                     },
                                     {tr("File Exists! Overwrite?"), tr("Save script")});
    if (!path) return;
    // The file is replaced only once the new text is complete on disk; on a
    // failure the old file stays whole and the text stays in the box.
    if (const auto error = WriteFileSafely(*path, scriptFileBytes())) showSaveError(dialogs_, this, *error);
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

}  // namespace flickerscribe::ui
