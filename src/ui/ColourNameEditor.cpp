#include "ui/ColourNameEditor.h"

#include <QLabel>
#include <QPushButton>

#include "colour/ColouredText.h"
#include "ui/ColourButtons.h"
#include "ui/DialogWindow.h"
#include "ui/Dialogs.h"
#include "ui/OneLineRichEdit.h"
#include "ui/PaneStyle.h"
#include "ui/RichPane.h"
#include "ui/TextConv.h"
#include "ui/Twips.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {
namespace {

namespace names {

// The object names of this window's controls, all in one place: the stable
// identities by which tests and the accessibility tree find them. They keep
// their values whatever the code calls the things they name.
const QString kWindow = QStringLiteral("frmColorEditor");
const QString kHintLabel = QStringLiteral("Label3");
const QString kPane = QStringLiteral("txtPreview");
const QString kCopyButton = QStringLiteral("cmdClipboard");
const QString kCloseButton = QStringLiteral("cmdClose");

}  // namespace names

}  // namespace

ColourNameEditor::ColourNameEditor(Dialogs& dialogs, QWidget* parent) : QDialog(parent), dialogs_(dialogs) {
    MakeFixedDialog(*this, names::kWindow, u"Color name editor"_s, 4515, 2265);

    colourButtons_ = AddColourButtons(this, 9, 120, 120);
    for (int index = 0; index < static_cast<int>(colourButtons_.size()); ++index) {
        connect(colourButtons_[static_cast<std::size_t>(index)], &QPushButton::clicked, this,
                [this, index] { PaintSelection(index); });
    }

    hintLabel_ = new QLabel(u"Color your text here"_s, this);
    hintLabel_->setObjectName(names::kHintLabel);
    hintLabel_->setGeometry(TwipsRect(120, 720, 1695, 255));

    paneEdit_ = new OneLineRichEdit(this);
    paneEdit_->setObjectName(names::kPane);
    paneEdit_->setGeometry(TwipsRect(120, 960, 4320, 495));
    StyleGreyPane(paneEdit_, BoldFont(u"MS Sans Serif"_s, 12, QFont::SansSerif));
    pane_ = std::make_unique<RichPane>(paneEdit_);
    hintLabel_->setBuddy(paneEdit_);

    copyButton_ = new QPushButton(u"Copy to clipboard"_s, this);
    copyButton_->setObjectName(names::kCopyButton);
    copyButton_->setGeometry(TwipsRect(120, 1800, 1455, 375));
    copyButton_->setAutoDefault(false);
    connect(copyButton_, &QPushButton::clicked, this, &ColourNameEditor::CopyToClipboard);

    // The window's cancel button: Escape closes the window the same way.
    closeButton_ = new QPushButton(u"Close"_s, this);
    closeButton_->setObjectName(names::kCloseButton);
    closeButton_->setGeometry(TwipsRect(3240, 1800, 1095, 375));
    closeButton_->setAutoDefault(false);
    connect(closeButton_, &QPushButton::clicked, this, &ColourNameEditor::Dismiss);

    paneEdit_->setFocus();
}

ColourNameEditor::~ColourNameEditor() = default;

void ColourNameEditor::PaintSelection(int index) {
    pane_->SetSelColour(ColourOfButton(index));
}

void ColourNameEditor::CopyToClipboard() {
    const std::string coded = EncodeColouredText(*pane_, kBlack);
    // The walk over the pane ends on its last character, which stays selected.
    const int length = static_cast<int>(pane_->Text().size());
    if (length > 0) {
        pane_->SetSelStart(length - 1);
        pane_->SetSelLength(1);
    }
    dialogs_.SetClipboardText(ToQString(coded));
}

void ColourNameEditor::Dismiss() {
    reject();
}

Pane& ColourNameEditor::PreviewPane() {
    return *pane_;
}

}  // namespace flickerscribe::ui
