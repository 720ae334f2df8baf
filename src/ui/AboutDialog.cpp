#include "ui/AboutDialog.h"

#include <QFontMetrics>
#include <QLabel>
#include <QPalette>
#include <QPushButton>
#include <QTextEdit>
#include <algorithm>

#include "colour/ColouredText.h"
#include "ui/DialogWindow.h"
#include "ui/PaneStyle.h"
#include "ui/ProgramInfo.h"
#include "ui/RichPane.h"
#include "ui/Twips.h"

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

// One stroke of the etched separator: a horizontal line from (x1, y), in
// twips, to the pixel column `right`, `thickness` pixels thick.
QWidget* AddLine(QWidget* parent, const QString& name, int x1, int y, int right, int thickness,
                 QColor colour) {
    auto* line = new QWidget(parent);
    line->setObjectName(name);
    line->setGeometry(Twips(x1), Twips(y), right - Twips(x1), thickness);
    line->setAutoFillBackground(true);
    QPalette palette = line->palette();
    palette.setColor(QPalette::Window, colour);
    line->setPalette(palette);
    return line;
}

// The pane takes one '\n' for a line break where the text has CR LF.
std::string WithPaneBreaks(const std::string& text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
        out += text[i];
    }
    return out;
}

}  // namespace

std::string AboutText() {
    return "^1Flicker^7scribe\r\n\r\nVersion ^8" + info::ProgramVersion() +
           "\r\n^8Made by ^7[QZT]^2Quillon\r\n";
}

AboutDialog::AboutDialog(QWidget* parent) : QDialog(parent) {
    MakeFixedDialog(*this, names::kWindow, QString(), 5730, 3045);

    paneEdit_ = new QTextEdit(this);
    paneEdit_->setObjectName(names::kPane);
    paneEdit_->setGeometry(TwipsRect(120, 120, 5415, 2175));
    paneEdit_->setReadOnly(true);
    paneEdit_->setLineWrapMode(QTextEdit::NoWrap);
    StyleGreyPane(paneEdit_, BoldFont(u"Courier New"_s, 14.25, QFont::TypeWriter));
    pane_ = std::make_unique<RichPane>(paneEdit_);

    // The web addresses, whole and one a line, in the dialog's own font: the
    // window grows to the width they need.
    addressLabel_ = new QLabel(
        u"Flickerscribe website @ "_s + info::kWebSite + u"\n[QZT] Website @ "_s + info::kClanWebSite, this);
    addressLabel_->setObjectName(names::kAddressLabel);
    addressLabel_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    const QFontMetrics metrics(addressLabel_->font());
    int textWidth = 0;
    for (const QString& line : addressLabel_->text().split(u'\n'))
        textWidth = std::max(textWidth, metrics.horizontalAdvance(line));
    const int width = std::max(Twips(5730), textWidth + Twips(240) + 4);
    addressLabel_->setGeometry(Twips(120), Twips(2520), width - Twips(240), 2 * metrics.lineSpacing() + 4);

    // An etched separator: a grey stroke with a white one just below it.
    separator_[1] =
        AddLine(this, names::kSeparatorDark, 90, 2445, width - Twips(166), 1, QColor(128, 128, 128));
    separator_[0] = AddLine(this, names::kSeparatorLight, 105, 2460, width - Twips(166), 2, Qt::white);

    okButton_ = new QPushButton(u"OK"_s, this);
    okButton_->setObjectName(names::kOkButton);
    okButton_->setGeometry(width - Twips(225 + 1260), addressLabel_->geometry().bottom() + Twips(105),
                           Twips(1260), Twips(345));
    setFixedSize(width, okButton_->geometry().bottom() + 1 + Twips(120));
    okButton_->setDefault(true);
    connect(okButton_, &QPushButton::clicked, this, &AboutDialog::Dismiss);
    okButton_->setFocus();

    ShowProgramInfo();
}

AboutDialog::~AboutDialog() = default;

void AboutDialog::ShowProgramInfo() {
    setWindowTitle(u"About "_s + info::kProgramTitle);
    RenderCodedText(WithPaneBreaks(AboutText()), *pane_);
}

void AboutDialog::Dismiss() {
    accept();
}

Pane& AboutDialog::PreviewPane() {
    return *pane_;
}

}  // namespace flickerscribe::ui
