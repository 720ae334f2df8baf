#include "ui/frmColorEditor.h"

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

namespace fs::ui {

frmColorEditor::frmColorEditor(Dialogs& dialogs, QWidget* parent) : QDialog(parent), dialogs_(dialogs) {
    MakeFixedDialog(*this, u"frmColorEditor"_s, u"Color name editor"_s, 4515, 2265);

    cmdColor_ = AddColourButtons(this, 9, 120, 120);
    for (int index = 0; index < static_cast<int>(cmdColor_.size()); ++index) {
        connect(cmdColor_[static_cast<std::size_t>(index)], &QPushButton::clicked, this,
                [this, index] { cmdColor_Click(index); });
    }

    Label3_ = new QLabel(u"Color your text here"_s, this);
    Label3_->setObjectName(u"Label3"_s);
    Label3_->setGeometry(TwipsRect(120, 720, 1695, 255));

    txtPreview_ = new OneLineRichEdit(this);
    txtPreview_->setObjectName(u"txtPreview"_s);
    txtPreview_->setGeometry(TwipsRect(120, 960, 4320, 495));
    StyleGreyPane(txtPreview_, BoldFont(u"MS Sans Serif"_s, 12, QFont::SansSerif));
    pane_ = std::make_unique<RichPane>(txtPreview_);
    Label3_->setBuddy(txtPreview_);

    cmdClipboard_ = new QPushButton(u"Copy to clipboard"_s, this);
    cmdClipboard_->setObjectName(u"cmdClipboard"_s);
    cmdClipboard_->setGeometry(TwipsRect(120, 1800, 1455, 375));
    cmdClipboard_->setAutoDefault(false);
    connect(cmdClipboard_, &QPushButton::clicked, this, &frmColorEditor::cmdClipboard_Click);

    // The window's cancel button: Escape closes the window the same way.
    cmdClose_ = new QPushButton(u"Close"_s, this);
    cmdClose_->setObjectName(u"cmdClose"_s);
    cmdClose_->setGeometry(TwipsRect(3240, 1800, 1095, 375));
    cmdClose_->setAutoDefault(false);
    connect(cmdClose_, &QPushButton::clicked, this, &frmColorEditor::cmdClose_Click);

    txtPreview_->setFocus();
}

frmColorEditor::~frmColorEditor() = default;

void frmColorEditor::cmdColor_Click(int index) {
    pane_->SetSelColor(ColourOfButton(index));
}

void frmColorEditor::cmdClipboard_Click() {
    const std::string coded = EncodeColoredText(*pane_, kBlack);
    // The walk over the pane ends on its last character, which stays selected.
    const int length = static_cast<int>(pane_->Text().size());
    if (length > 0) {
        pane_->SetSelStart(length - 1);
        pane_->SetSelLength(1);
    }
    dialogs_.SetClipboardText(ToQString(coded));
}

void frmColorEditor::cmdClose_Click() {
    reject();
}

Pane& frmColorEditor::PreviewPane() {
    return *pane_;
}

}  // namespace fs::ui
