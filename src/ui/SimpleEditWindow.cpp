#include "ui/SimpleEditWindow.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QTextCursor>
#include <QTextEdit>
#include <algorithm>

#include "colour/SimpleEditWalk.h"
#include "document/AnimationScript.h"
#include "ui/AnimationHistory.h"
#include "ui/ColourButtons.h"
#include "ui/DialogWindow.h"
#include "ui/LineLimit.h"
#include "ui/OneLineRichEdit.h"
#include "ui/PaneStyle.h"
#include "ui/RichPane.h"
#include "ui/Twips.h"

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

QPushButton* AddStripButton(QWidget* strip, const QString& name, const QString& caption, int left) {
    auto* button = new QPushButton(caption, strip);
    button->setObjectName(name);
    button->setGeometry(TwipsRect(left, 50, 975, 375));
    button->setAutoDefault(false);
    return button;
}

}  // namespace

SimpleEditWindow::SimpleEditWindow(AnimationHistory& history, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent), history_(history), dialogs_(dialogs) {
    MakeSizableDialog(*this, names::kWindow, u"Simple edit"_s, 6345, 4590);

    colourStrip_ = new QWidget(this);
    colourStrip_->setObjectName(names::kColourStrip);
    colourStrip_->setGeometry(TwipsRect(0, 0, 6015, 495));

    colourButtons_ = AddColourButtons(colourStrip_, 8, 0, 50);
    for (int index = 0; index < static_cast<int>(colourButtons_.size()); ++index) {
        connect(colourButtons_[static_cast<std::size_t>(index)], &QPushButton::clicked, this,
                [this, index] { PaintSelection(index); });
    }
    saveButton_ = AddStripButton(colourStrip_, names::kSaveButton, u"Save"_s, 3840);
    connect(saveButton_, &QPushButton::clicked, this, &SimpleEditWindow::SaveToList);
    closeButton_ = AddStripButton(colourStrip_, names::kCloseButton, u"Close"_s, 4920);
    connect(closeButton_, &QPushButton::clicked, this, &SimpleEditWindow::Dismiss);

    paneEdit_ = new PlainPasteEdit(this);
    paneEdit_->setObjectName(names::kPane);
    paneEdit_->setGeometry(TwipsRect(0, 480, 6015, 3975));
    paneEdit_->setLineWrapMode(QTextEdit::NoWrap);
    paneEdit_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    paneEdit_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    StyleGreyPane(paneEdit_, BoldFont(u"Courier New"_s, 18, QFont::TypeWriter));
    paneEdit_->installEventFilter(this);
    pane_ = std::make_unique<RichPane>(paneEdit_);
    // The strip stays in front of the pane's top edge, which it overlaps.
    colourStrip_->raise();

    paneEdit_->setFocus();
}

SimpleEditWindow::~SimpleEditWindow() = default;

void SimpleEditWindow::PaintSelection(int index) {
    pane_->SetSelColour(ColourOfButton(index));
}

void SimpleEditWindow::SaveToList() {
    const std::vector<std::string> lines = SplitColouredLines(pane_->Runs());
    const bool full = history_.ReplaceLines(u"Simple edit"_s, [&lines](AnimationScript& script) {
        AnimationScript::Batch batch(script);
        script.ClearLines();
        for (const std::string& line : lines) {
            if (!script.AppendLine(line, "15", "[none]")) return true;
        }
        return false;
    });
    if (full) ShowLineLimitMessage(dialogs_, this);
}

void SimpleEditWindow::Dismiss() {
    reject();
}

void SimpleEditWindow::LayOutControls() {
    if (windowState() & Qt::WindowMinimized) return;
    const int stripHeight = colourStrip_->height();
    paneEdit_->resize(width(), std::max(0, height() - stripHeight));
    colourStrip_->resize(width(), stripHeight);
}

Pane& SimpleEditWindow::PreviewPane() {
    return *pane_;
}

void SimpleEditWindow::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    LayOutControls();
}

void SimpleEditWindow::keyPressEvent(QKeyEvent* event) {
    // Escape would throw away the whole pane without a question: it does
    // nothing here; Close is the way out.
    if (event->key() == Qt::Key_Escape) {
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

bool SimpleEditWindow::eventFilter(QObject* watched, QEvent* event) {
    // Every Enter in the pane starts a new text line, Shift+Enter included
    // (which would otherwise put a soft break inside the line).
    if (watched == paneEdit_ && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if ((key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) &&
            (key->modifiers() & Qt::ShiftModifier) && !paneEdit_->isReadOnly()) {
            QTextCursor cursor = paneEdit_->textCursor();
            cursor.insertBlock();
            paneEdit_->setTextCursor(cursor);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

}  // namespace flickerscribe::ui
