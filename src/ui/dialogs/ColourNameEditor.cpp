#include "ui/dialogs/ColourNameEditor.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "colour/ColouredText.h"
#include "ui/common/Dialogs.h"
#include "ui/common/TextConv.h"
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
const QString kWindow = QStringLiteral("frmColorEditor");
const QString kHintLabel = QStringLiteral("Label3");
const QString kPane = QStringLiteral("txtPreview");
const QString kCopyButton = QStringLiteral("cmdClipboard");
const QString kCloseButton = QStringLiteral("cmdClose");

}  // namespace names

constexpr int kColourCount = 9;

}  // namespace

ColourNameEditor::ColourNameEditor(Dialogs& dialogs, QWidget* parent)
    : DialogWindow(names::kWindow, tr("Color name editor"), WindowSize::Fixed, {.enterOnlyOnButtons = true},
                   parent),
      dialogs_(dialogs) {
    auto* colours = new QHBoxLayout;
    colours->setAlignment(Qt::AlignLeft);
    const std::vector<QPushButton*> colourButtons = addColourButtons(colours, kColourCount);

    auto* paneEdit = new OneLineRichEdit;
    paneEdit->setObjectName(names::kPane);
    paneEdit->setMinimumWidth(288);
    paneEdit->setFixedHeight(33);
    styleGreyPane(paneEdit, boldFont(u"MS Sans Serif"_s, 12, QFont::SansSerif));
    pane_ = std::make_unique<RichPane>(paneEdit);
    auto* hintLabel = new QLabel(tr("Color your text here"));
    hintLabel->setObjectName(names::kHintLabel);
    hintLabel->setBuddy(paneEdit);
    hintLabel->setMinimumHeight(16);
    for (int index = 0; index < kColourCount; ++index) {
        connect(colourButtons[static_cast<std::size_t>(index)], &QPushButton::clicked, this,
                [this, index] { pane_->SetSelColour(colourOfButton(index)); });
    }

    auto* copyButton = new QPushButton(tr("Copy to clipboard"));
    copyButton->setObjectName(names::kCopyButton);
    setButtonSize(copyButton, 97, 25);
    connect(copyButton, &QPushButton::clicked, this, &ColourNameEditor::copyToClipboard);
    // Escape closes the window the same way.
    auto* closeButton = new QPushButton(tr("Close"));
    closeButton->setObjectName(names::kCloseButton);
    setButtonSize(closeButton, 73, 25);
    connect(closeButton, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->setContentsMargins(0, 0, 7, 0);
    buttons->addWidget(copyButton);
    buttons->addStretch();
    buttons->addWidget(closeButton);

    auto* window = new QVBoxLayout;
    window->setContentsMargins(8, 8, 5, 6);
    window->setSpacing(0);
    window->addLayout(colours);
    window->addSpacing(15);
    window->addWidget(hintLabel);
    window->addWidget(paneEdit);
    window->addSpacing(23);
    window->addLayout(buttons);
    setContents(window);
    paneEdit->setFocus();
}

ColourNameEditor::~ColourNameEditor() = default;

void ColourNameEditor::copyToClipboard() {
    const std::string coded = EncodeColouredText(*pane_, kBlack);
    // The walk over the pane ends on its last character, which stays selected.
    const int length = static_cast<int>(pane_->Text().size());
    if (length > 0) {
        pane_->SetSelStart(length - 1);
        pane_->SetSelLength(1);
    }
    dialogs_.setClipboardText(toQString(coded));
}

Pane& ColourNameEditor::previewPane() {
    return *pane_;
}

}  // namespace flickerscribe::ui
