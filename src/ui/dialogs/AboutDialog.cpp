#include "ui/dialogs/AboutDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPalette>
#include <QPushButton>
#include <QTextEdit>
#include <QVBoxLayout>

#include "colour/ColouredText.h"
#include "ui/common/ProgramInfo.h"
#include "ui/widgets/PaneStyle.h"
#include "ui/widgets/RichPane.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {
namespace {

namespace names {

// The object names of this window's controls, all in one place: the stable
// identities by which tests and the accessibility tree find them. They keep
// their values whatever the code calls the things they name.
const QString kWindow = QStringLiteral("frmAbout");
const QString kPane = QStringLiteral("txtPreview");
const QString kSeparatorDark = QStringLiteral("Line1_1");
const QString kSeparatorLight = QStringLiteral("Line1_0");
const QString kAddressLabel = QStringLiteral("Label1");
const QString kOkButton = QStringLiteral("cmdOK");

}  // namespace names

// One stroke of the etched separator, `thickness` pixels high, as wide as the
// window lets it be.
QWidget* addStroke(QBoxLayout* layout, const QString& name, int thickness, QColor colour) {
    auto* line = new QWidget;
    line->setObjectName(name);
    line->setFixedHeight(thickness);
    line->setAutoFillBackground(true);
    QPalette palette = line->palette();
    palette.setColor(QPalette::Window, colour);
    line->setPalette(palette);
    layout->addWidget(line);
    return line;
}

}  // namespace

std::string aboutText() {
    return "^1Flicker^7scribe\n\nVersion ^8" + info::programVersion() + "\n^8Made by ^7[QZT]^2Quillon\n";
}

AboutDialog::AboutDialog(QWidget* parent)
    : DialogWindow(names::kWindow, tr("About %1").arg(info::kProgramTitle), WindowSize::Fixed, {}, parent) {
    auto* window = new QVBoxLayout;
    window->setContentsMargins(8, 8, 13, 8);
    window->setSpacing(0);

    auto* paneEdit = new QTextEdit;
    paneEdit->setObjectName(names::kPane);
    paneEdit->setFixedSize(361, 145);
    paneEdit->setReadOnly(true);
    paneEdit->setLineWrapMode(QTextEdit::NoWrap);
    styleGreyPane(paneEdit, boldFont(u"Courier New"_s, 14.25, QFont::TypeWriter));
    pane_ = std::make_unique<RichPane>(paneEdit);
    window->addWidget(paneEdit, 0, Qt::AlignLeft);

    // An etched separator: a grey stroke over a white one.
    window->addSpacing(10);
    addStroke(window, names::kSeparatorDark, 1, QColor(128, 128, 128));
    addStroke(window, names::kSeparatorLight, 2, Qt::white);
    window->addSpacing(2);

    // The web addresses, whole and one a line.
    auto* addresses = new QLabel(tr("%1 website @ %2\n[QZT] Website @ %3")
                                     .arg(info::kProgramTitle, info::kWebSite, info::kClanWebSite));
    addresses->setObjectName(names::kAddressLabel);
    addresses->setTextInteractionFlags(Qt::TextSelectableByMouse);
    window->addWidget(addresses);
    window->addSpacing(8);

    auto* okButton = new QPushButton(tr("OK"));
    okButton->setObjectName(names::kOkButton);
    setButtonSize(okButton, 84, 23);
    okButton->setDefault(true);
    connect(okButton, &QPushButton::clicked, this, &QDialog::accept);
    auto* okRow = new QHBoxLayout;
    okRow->setContentsMargins(0, 0, 2, 0);
    okRow->addStretch();
    okRow->addWidget(okButton);
    window->addLayout(okRow);
    setContents(window);
    okButton->setFocus();

    // The text is built at each opening.
    RenderCodedText(aboutText(), *pane_);
}

AboutDialog::~AboutDialog() = default;

Pane& AboutDialog::previewPane() {
    return *pane_;
}

}  // namespace flickerscribe::ui
