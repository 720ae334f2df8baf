#include "ui/HelpDialog.h"

#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

#include "ui/DialogIcons.h"
#include "ui/DialogWindow.h"
#include "ui/Dialogs.h"
#include "ui/ProgramInfo.h"
#include "ui/Twips.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {
namespace {

namespace names {

// The object names of this window's controls, all in one place: the stable
// identities by which tests and the accessibility tree find them. They keep
// their values whatever the code calls the things they name.
const QString kWindow = QStringLiteral("frmHelp");
const QString kHelpFrame = QStringLiteral("fraFAQ");
const QString kWebSiteBox = QStringLiteral("Text1");
const QString kCopyWebSiteButton = QStringLiteral("Command2");
const QString kForumsFrame = QStringLiteral("Frame1");
const QString kForumsBox = QStringLiteral("Text2");
const QString kCopyForumsButton = QStringLiteral("Command3");
const QString kContactFrame = QStringLiteral("Frame2");
const QString kEmailLabel = QStringLiteral("Label1");
const QString kEmailBox = QStringLiteral("Text3");
const QString kCopyEmailButton = QStringLiteral("Command4");
const QString kChatLabel = QStringLiteral("Label2");
const QString kChatNumberBox = QStringLiteral("Text4");
const QString kCopyChatNumberButton = QStringLiteral("Command5");
const QString kCloseButton = QStringLiteral("Command1");

}  // namespace names

// How much wider than designed the boxes are, in pixels, so that each shows
// its whole value in the dialog's font.
int Widening() {
    const QFontMetrics metrics(DialogFont());
    int widest = 0;
    for (const QString& value : {info::kWebSite, info::kForums, info::kEmail, info::kChatNumber})
        widest = std::max(widest, metrics.horizontalAdvance(value));
    // The box's frame and margins around its text.
    return std::max(0, widest + 12 - Twips(3495));
}

QGroupBox* AddFrame(QWidget* parent, const QString& name, const QString& caption, int top, int height,
                    int widening) {
    auto* frame = new QGroupBox(caption, parent);
    frame->setObjectName(name);
    frame->setGeometry(TwipsRect(120, top, 4215, height).adjusted(0, 0, widening, 0));
    return frame;
}

QLineEdit* AddValueBox(QWidget* frame, const QString& name, const QString& value, int top, int widening) {
    auto* box = new QLineEdit(value, frame);
    box->setObjectName(name);
    box->setGeometry(TwipsRect(120, top, 3495, 375).adjusted(0, 0, widening, 0));
    box->setReadOnly(true);
    box->setAlignment(Qt::AlignCenter);
    box->setCursorPosition(0);
    return box;
}

QPushButton* AddCopyButton(QWidget* frame, const QString& name, int top, const QString& what, int widening) {
    auto* button = new QPushButton(frame);
    button->setObjectName(name);
    button->setGeometry(TwipsRect(3720, top, 375, 375).translated(widening, 0));
    button->setIcon(CopyIcon());
    button->setAccessibleName(what);
    button->setAutoDefault(false);
    return button;
}

QLabel* AddLabel(QWidget* frame, const QString& name, const QString& caption, int top) {
    auto* label = new QLabel(caption, frame);
    label->setObjectName(name);
    label->setGeometry(TwipsRect(120, top, 1695, 255));
    return label;
}

}  // namespace

HelpDialog::HelpDialog(Dialogs& dialogs, QWidget* parent) : QDialog(parent), dialogs_(dialogs) {
    MakeFixedDialog(*this, names::kWindow, u"Help!!"_s, 4470, 4620);
    const int w = Widening();
    setFixedSize(width() + w, height());

    helpFrame_ = AddFrame(this, names::kHelpFrame, u"Help + FAQ + Tutorial"_s, 120, 855, w);
    webSiteBox_ = AddValueBox(helpFrame_, names::kWebSiteBox, info::kWebSite, 360, w);
    copyWebSiteButton_ =
        AddCopyButton(helpFrame_, names::kCopyWebSiteButton, 360, u"Copy the web site address"_s, w);
    connect(copyWebSiteButton_, &QPushButton::clicked, this, &HelpDialog::CopyWebSite);

    forumsFrame_ = AddFrame(this, names::kForumsFrame, u"Forums"_s, 1080, 855, w);
    forumsBox_ = AddValueBox(forumsFrame_, names::kForumsBox, info::kForums, 360, w);
    copyForumsButton_ =
        AddCopyButton(forumsFrame_, names::kCopyForumsButton, 360, u"Copy the forums address"_s, w);
    connect(copyForumsButton_, &QPushButton::clicked, this, &HelpDialog::CopyForums);

    contactFrame_ = AddFrame(this, names::kContactFrame, u"Contact me"_s, 2160, 1695, w);
    emailLabel_ = AddLabel(contactFrame_, names::kEmailLabel, u"Email"_s, 240);
    emailBox_ = AddValueBox(contactFrame_, names::kEmailBox, info::kEmail, 480, w);
    emailLabel_->setBuddy(emailBox_);
    copyEmailButton_ =
        AddCopyButton(contactFrame_, names::kCopyEmailButton, 480, u"Copy the e-mail address"_s, w);
    connect(copyEmailButton_, &QPushButton::clicked, this, &HelpDialog::CopyEmail);
    chatLabel_ = AddLabel(contactFrame_, names::kChatLabel, u"ICQ"_s, 960);
    chatNumberBox_ = AddValueBox(contactFrame_, names::kChatNumberBox, info::kChatNumber, 1200, w);
    chatLabel_->setBuddy(chatNumberBox_);
    copyChatNumberButton_ =
        AddCopyButton(contactFrame_, names::kCopyChatNumberButton, 1200, u"Copy the chat number"_s, w);
    connect(copyChatNumberButton_, &QPushButton::clicked, this, &HelpDialog::CopyChatNumber);

    closeButton_ = new QPushButton(u"Close"_s, this);
    closeButton_->setObjectName(names::kCloseButton);
    closeButton_->setGeometry(TwipsRect(2880, 4080, 1455, 375).translated(w, 0));
    closeButton_->setAutoDefault(false);
    connect(closeButton_, &QPushButton::clicked, this, &HelpDialog::Dismiss);
    closeButton_->setFocus();
}

void HelpDialog::CopyWebSite() {
    dialogs_.SetClipboardText(info::kWebSite);
}

void HelpDialog::CopyForums() {
    dialogs_.SetClipboardText(info::kForums);
}

void HelpDialog::CopyEmail() {
    dialogs_.SetClipboardText(info::kEmail);
}

void HelpDialog::CopyChatNumber() {
    dialogs_.SetClipboardText(info::kChatNumber);
}

void HelpDialog::Dismiss() {
    reject();
}

}  // namespace flickerscribe::ui
