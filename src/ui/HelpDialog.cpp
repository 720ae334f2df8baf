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
    MakeFixedDialog(*this, u"frmHelp"_s, u"Help!!"_s, 4470, 4620);
    const int w = Widening();
    setFixedSize(width() + w, height());

    helpFrame_ = AddFrame(this, u"fraFAQ"_s, u"Help + FAQ + Tutorial"_s, 120, 855, w);
    webSiteBox_ = AddValueBox(helpFrame_, u"Text1"_s, info::kWebSite, 360, w);
    copyWebSiteButton_ = AddCopyButton(helpFrame_, u"Command2"_s, 360, u"Copy the web site address"_s, w);
    connect(copyWebSiteButton_, &QPushButton::clicked, this, &HelpDialog::CopyWebSite);

    forumsFrame_ = AddFrame(this, u"Frame1"_s, u"Forums"_s, 1080, 855, w);
    forumsBox_ = AddValueBox(forumsFrame_, u"Text2"_s, info::kForums, 360, w);
    copyForumsButton_ = AddCopyButton(forumsFrame_, u"Command3"_s, 360, u"Copy the forums address"_s, w);
    connect(copyForumsButton_, &QPushButton::clicked, this, &HelpDialog::CopyForums);

    contactFrame_ = AddFrame(this, u"Frame2"_s, u"Contact me"_s, 2160, 1695, w);
    emailLabel_ = AddLabel(contactFrame_, u"Label1"_s, u"Email"_s, 240);
    emailBox_ = AddValueBox(contactFrame_, u"Text3"_s, info::kEmail, 480, w);
    emailLabel_->setBuddy(emailBox_);
    copyEmailButton_ = AddCopyButton(contactFrame_, u"Command4"_s, 480, u"Copy the e-mail address"_s, w);
    connect(copyEmailButton_, &QPushButton::clicked, this, &HelpDialog::CopyEmail);
    chatLabel_ = AddLabel(contactFrame_, u"Label2"_s, u"ICQ"_s, 960);
    chatNumberBox_ = AddValueBox(contactFrame_, u"Text4"_s, info::kChatNumber, 1200, w);
    chatLabel_->setBuddy(chatNumberBox_);
    copyChatNumberButton_ = AddCopyButton(contactFrame_, u"Command5"_s, 1200, u"Copy the chat number"_s, w);
    connect(copyChatNumberButton_, &QPushButton::clicked, this, &HelpDialog::CopyChatNumber);

    closeButton_ = new QPushButton(u"Close"_s, this);
    closeButton_->setObjectName(u"Command1"_s);
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
