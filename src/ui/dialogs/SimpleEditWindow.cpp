#include "ui/dialogs/SimpleEditWindow.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QTextCursor>
#include <QTextEdit>
#include <QVBoxLayout>

#include "colour/SimpleEditWalk.h"
#include "document/AnimationScript.h"
#include "ui/common/AnimationHistory.h"
#include "ui/common/LineLimit.h"
#include "ui/widgets/ColourButtons.h"
#include "ui/widgets/OneLineRichEdit.h"
#include "ui/widgets/PaneStyle.h"
#include "ui/widgets/RichPane.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {
namespace {

namespace names {

// The object names of this window's controls, all in one place: the stable
// identities by which tests and the accessibility tree find them. They keep
// their values whatever the code calls the things they name.
const QString kWindow = QStringLiteral("frmSimpleEdit");
const QString kColourStrip = QStringLiteral("picColors");
const QString kSaveButton = QStringLiteral("cmdSave");
const QString kCloseButton = QStringLiteral("cmdClose");
const QString kPane = QStringLiteral("txtPreview");

}  // namespace names

constexpr int kColourCount = 8;

}  // namespace

SimpleEditWindow::SimpleEditWindow(AnimationHistory& history, Dialogs& dialogs, QWidget* parent)
    : DialogWindow(names::kWindow, tr("Simple edit"), WindowSize::Sizable, {.escapeKeepsOpen = true}, parent),
      history_(history),
      dialogs_(dialogs) {
    // The strip: the colour buttons, then Save and Close in the same row.
    auto* strip = new QWidget;
    strip->setObjectName(names::kColourStrip);
    QBoxLayout* row = colourStripRow(strip);
    const std::vector<QPushButton*> colourButtons = addColourButtons(row, kColourCount);
    for (const auto& [name, caption] :
         {std::pair{names::kSaveButton, tr("Save")}, {names::kCloseButton, tr("Close")}}) {
        auto* button = new QPushButton(caption);
        button->setObjectName(name);
        setButtonSize(button, 65, 25);
        row->addWidget(button);
    }
    connect(strip->findChild<QPushButton*>(names::kSaveButton), &QPushButton::clicked, this,
            &SimpleEditWindow::saveToList);
    connect(strip->findChild<QPushButton*>(names::kCloseButton), &QPushButton::clicked, this,
            &QDialog::reject);

    paneEdit_ = new PlainPasteEdit;
    paneEdit_->setObjectName(names::kPane);
    paneEdit_->setLineWrapMode(QTextEdit::NoWrap);
    paneEdit_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    paneEdit_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    styleGreyPane(paneEdit_, boldFont(u"Courier New"_s, 18, QFont::TypeWriter));
    paneEdit_->installEventFilter(this);
    pane_ = std::make_unique<RichPane>(paneEdit_);
    for (int index = 0; index < kColourCount; ++index) {
        connect(colourButtons[static_cast<std::size_t>(index)], &QPushButton::clicked, this,
                [this, index] { pane_->SetSelColour(colourOfButton(index)); });
    }

    auto* window = new QVBoxLayout;
    window->setContentsMargins(0, 0, 0, 0);
    window->setSpacing(0);
    window->addWidget(strip);
    window->addWidget(paneEdit_, 1);
    setContents(window);
    resize(423, 306);
    paneEdit_->setFocus();
}

SimpleEditWindow::~SimpleEditWindow() = default;

void SimpleEditWindow::saveToList() {
    const std::vector<std::string> lines = SplitColouredLines(pane_->Runs());
    const bool full = history_.replaceLines(tr("Simple edit"), [&lines](AnimationScript& script) {
        AnimationScript::Batch batch(script);
        script.ClearLines();
        const AnimationLine defaults;
        for (const std::string& line : lines) {
            if (!script.AppendLine(line, defaults.Time, defaults.Action)) return true;
        }
        return false;
    });
    if (full) showLineLimitMessage(dialogs_, this);
}

Pane& SimpleEditWindow::previewPane() {
    return *pane_;
}

bool SimpleEditWindow::eventFilter(QObject* watched, QEvent* event) {
    // Only the pane is watched. Every Enter in it starts a new text line,
    // Shift+Enter included (which would otherwise put a soft break inside the
    // line).
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if ((key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) &&
            (key->modifiers() & Qt::ShiftModifier) && !paneEdit_->isReadOnly()) {
            QTextCursor cursor = paneEdit_->textCursor();
            cursor.insertBlock();
            paneEdit_->setTextCursor(cursor);
            return true;
        }
    }
    return DialogWindow::eventFilter(watched, event);
}

}  // namespace flickerscribe::ui
