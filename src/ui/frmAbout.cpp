#include "ui/frmAbout.h"

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

namespace fs::ui {
namespace {

// One stroke of the etched separator: a horizontal line from (x1, y), in
// twips, to the pixel column `right`, `thickness` pixels thick.
QWidget* AddLine(QWidget* parent, const QString& name, int x1, int y, int right, int thickness, QColor colour) {
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

frmAbout::frmAbout(QWidget* parent) : QDialog(parent) {
    MakeFixedDialog(*this, u"frmAbout"_s, QString(), 5730, 3045);

    txtPreview_ = new QTextEdit(this);
    txtPreview_->setObjectName(u"txtPreview"_s);
    txtPreview_->setGeometry(TwipsRect(120, 120, 5415, 2175));
    txtPreview_->setReadOnly(true);
    txtPreview_->setLineWrapMode(QTextEdit::NoWrap);
    StyleGreyPane(txtPreview_, BoldFont(u"Courier New"_s, 14.25, QFont::TypeWriter));
    pane_ = std::make_unique<RichPane>(txtPreview_);

    // The web addresses, whole and one a line, in the dialog's own font: the
    // window grows to the width they need.
    Label1_ = new QLabel(u"Flickerscribe website @ "_s + info::kWebSite + u"\n[QZT] Website @ "_s +
                             info::kClanWebSite,
                         this);
    Label1_->setObjectName(u"Label1"_s);
    Label1_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    const QFontMetrics metrics(Label1_->font());
    int textWidth = 0;
    for (const QString& line : Label1_->text().split(u'\n')) textWidth = std::max(textWidth, metrics.horizontalAdvance(line));
    const int width = std::max(Twips(5730), textWidth + Twips(240) + 4);
    Label1_->setGeometry(Twips(120), Twips(2520), width - Twips(240), 2 * metrics.lineSpacing() + 4);

    // An etched separator: a grey stroke with a white one just below it.
    Line1_[1] = AddLine(this, u"Line1_1"_s, 90, 2445, width - Twips(166), 1, QColor(128, 128, 128));
    Line1_[0] = AddLine(this, u"Line1_0"_s, 105, 2460, width - Twips(166), 2, Qt::white);

    cmdOK_ = new QPushButton(u"OK"_s, this);
    cmdOK_->setObjectName(u"cmdOK"_s);
    cmdOK_->setGeometry(width - Twips(225 + 1260), Label1_->geometry().bottom() + Twips(105), Twips(1260),
                        Twips(345));
    setFixedSize(width, cmdOK_->geometry().bottom() + 1 + Twips(120));
    cmdOK_->setDefault(true);
    connect(cmdOK_, &QPushButton::clicked, this, &frmAbout::cmdOK_Click);
    cmdOK_->setFocus();

    Form_Load();
}

frmAbout::~frmAbout() = default;

void frmAbout::Form_Load() {
    setWindowTitle(u"About "_s + info::kProgramTitle);
    RenderCodedText(WithPaneBreaks(AboutText()), *pane_);
}

void frmAbout::cmdOK_Click() {
    accept();
}

Pane& frmAbout::PreviewPane() {
    return *pane_;
}

}  // namespace fs::ui
