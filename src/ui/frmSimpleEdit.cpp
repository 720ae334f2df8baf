#include "ui/frmSimpleEdit.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QTextCursor>
#include <QTextEdit>
#include <algorithm>

#include "colour/SimpleEditWalk.h"
#include "document/AnimationScript.h"
#include "ui/ColourButtons.h"
#include "ui/DialogWindow.h"
#include "ui/LineLimit.h"
#include "ui/OneLineRichEdit.h"
#include "ui/PaneStyle.h"
#include "ui/RichPane.h"
#include "ui/Twips.h"

using namespace Qt::Literals::StringLiterals;

namespace fs::ui {
namespace {

QPushButton* AddStripButton(QWidget* strip, const QString& name, const QString& caption, int left) {
    auto* button = new QPushButton(caption, strip);
    button->setObjectName(name);
    button->setGeometry(TwipsRect(left, 50, 975, 375));
    button->setAutoDefault(false);
    return button;
}

}  // namespace

frmSimpleEdit::frmSimpleEdit(AnimationScript& script, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent), script_(script), dialogs_(dialogs) {
    MakeSizableDialog(*this, u"frmSimpleEdit"_s, u"Simple edit"_s, 6345, 4590);

    picColors_ = new QWidget(this);
    picColors_->setObjectName(u"picColors"_s);
    picColors_->setGeometry(TwipsRect(0, 0, 6015, 495));

    cmdColor_ = AddColourButtons(picColors_, 8, 0, 50);
    for (int index = 0; index < static_cast<int>(cmdColor_.size()); ++index) {
        connect(cmdColor_[static_cast<std::size_t>(index)], &QPushButton::clicked, this,
                [this, index] { cmdColor_Click(index); });
    }
    cmdSave_ = AddStripButton(picColors_, u"cmdSave"_s, u"Save"_s, 3840);
    connect(cmdSave_, &QPushButton::clicked, this, &frmSimpleEdit::cmdSave_Click);
    cmdClose_ = AddStripButton(picColors_, u"cmdClose"_s, u"Close"_s, 4920);
    connect(cmdClose_, &QPushButton::clicked, this, &frmSimpleEdit::cmdClose_Click);

    txtPreview_ = new PlainPasteEdit(this);
    txtPreview_->setObjectName(u"txtPreview"_s);
    txtPreview_->setGeometry(TwipsRect(0, 480, 6015, 3975));
    txtPreview_->setLineWrapMode(QTextEdit::NoWrap);
    txtPreview_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    txtPreview_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    StyleGreyPane(txtPreview_, BoldFont(u"Courier New"_s, 18, QFont::TypeWriter));
    txtPreview_->installEventFilter(this);
    pane_ = std::make_unique<RichPane>(txtPreview_);
    // The strip stays in front of the pane's top edge, which it overlaps.
    picColors_->raise();

    txtPreview_->setFocus();
}

frmSimpleEdit::~frmSimpleEdit() = default;

void frmSimpleEdit::cmdColor_Click(int index) {
    pane_->SetSelColor(ColourOfButton(index));
}

void frmSimpleEdit::cmdSave_Click() {
    const std::vector<std::string> lines = SplitColouredLines(pane_->Runs());
    bool full = false;
    {
        AnimationScript::Batch batch(script_);
        script_.ClearLines();
        for (const std::string& line : lines) {
            if (!script_.AppendLine(line, "15", "[none]")) {
                full = true;
                break;
            }
        }
    }
    if (full) ShowLineLimitMessage(dialogs_, this);
}

void frmSimpleEdit::cmdClose_Click() {
    reject();
}

void frmSimpleEdit::Form_Resize() {
    if (windowState() & Qt::WindowMinimized) return;
    const int stripHeight = picColors_->height();
    txtPreview_->resize(width(), std::max(0, height() - stripHeight));
    picColors_->resize(width(), stripHeight);
}

Pane& frmSimpleEdit::PreviewPane() {
    return *pane_;
}

void frmSimpleEdit::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    Form_Resize();
}

void frmSimpleEdit::keyPressEvent(QKeyEvent* event) {
    // Escape would throw away the whole pane without a question: it does
    // nothing here; Close is the way out.
    if (event->key() == Qt::Key_Escape) {
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

bool frmSimpleEdit::eventFilter(QObject* watched, QEvent* event) {
    // Every Enter in the pane starts a new text line, Shift+Enter included
    // (which would otherwise put a soft break inside the line).
    if (watched == txtPreview_ && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if ((key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) &&
            (key->modifiers() & Qt::ShiftModifier) && !txtPreview_->isReadOnly()) {
            QTextCursor cursor = txtPreview_->textCursor();
            cursor.insertBlock();
            txtPreview_->setTextCursor(cursor);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

}  // namespace fs::ui
