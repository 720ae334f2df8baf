#include "ui/dialogs/HelpDialog.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "ui/common/Dialogs.h"
#include "ui/common/ProgramInfo.h"
#include "ui/dialogs/DialogIcons.h"

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

// A frame in the window, and the grid of its rows.
QGridLayout* addFrame(QBoxLayout* window, const QString& name, const QString& caption) {
    auto* frame = new QGroupBox(caption);
    frame->setObjectName(name);
    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins(5, 6, 5, 5);
    grid->setHorizontalSpacing(7);
    grid->setVerticalSpacing(0);
    window->addWidget(frame);
    return grid;
}

}  // namespace

HelpDialog::HelpDialog(Dialogs& dialogs, QWidget* parent)
    : DialogWindow(names::kWindow, tr("Help!!"), WindowSize::Fixed, {.enterOnlyOnButtons = true}, parent),
      dialogs_(dialogs) {
    auto* window = new QVBoxLayout;
    window->setContentsMargins(8, 8, 9, 11);
    window->setSpacing(7);

    // A value in a read-only box, whole, with the button that copies it: the
    // button copies the value itself, not what the box may show.
    const auto addValue = [this](QGridLayout* grid, int row, const QString& boxName, const QString& value,
                                 const QString& buttonName, const QString& what) {
        auto* box = new QLineEdit(value);
        box->setObjectName(boxName);
        box->setReadOnly(true);
        box->setAlignment(Qt::AlignCenter);
        box->setCursorPosition(0);
        box->setMinimumWidth(qMax(233, fontMetrics().horizontalAdvance(value) + 12));
        box->setFixedHeight(25);
        grid->addWidget(box, row, 0);
        auto* copy = new QPushButton;
        copy->setObjectName(buttonName);
        copy->setIcon(copyIcon());
        copy->setAccessibleName(what);
        copy->setFixedSize(25, 25);
        grid->addWidget(copy, row, 1);
        connect(copy, &QPushButton::clicked, this, [this, value] { dialogs_.setClipboardText(value); });
        return box;
    };
    const auto addLabel = [](QGridLayout* grid, int row, const QString& name, const QString& caption,
                             QWidget* buddy) {
        auto* label = new QLabel(caption);
        label->setObjectName(name);
        label->setBuddy(buddy);
        label->setMinimumHeight(16);
        grid->addWidget(label, row, 0);
    };

    QGridLayout* help = addFrame(window, names::kHelpFrame, tr("Help + FAQ + Tutorial"));
    addValue(help, 0, names::kWebSiteBox, info::kWebSite, names::kCopyWebSiteButton,
             tr("Copy the web site address"));
    QGridLayout* forums = addFrame(window, names::kForumsFrame, tr("Forums"));
    addValue(forums, 0, names::kForumsBox, info::kForums, names::kCopyForumsButton,
             tr("Copy the forums address"));
    window->addSpacing(8);
    QGridLayout* contact = addFrame(window, names::kContactFrame, tr("Contact me"));
    contact->setContentsMargins(5, 0, 5, 3);
    addLabel(contact, 0, names::kEmailLabel, tr("Email"),
             addValue(contact, 1, names::kEmailBox, info::kEmail, names::kCopyEmailButton,
                      tr("Copy the e-mail address")));
    contact->setRowMinimumHeight(2, 7);
    addLabel(contact, 3, names::kChatLabel, tr("ICQ"),
             addValue(contact, 4, names::kChatNumberBox, info::kChatNumber, names::kCopyChatNumberButton,
                      tr("Copy the chat number")));

    auto* closeButton = new QPushButton(tr("Close"));
    closeButton->setObjectName(names::kCloseButton);
    setButtonSize(closeButton, 97, 25);
    connect(closeButton, &QPushButton::clicked, this, &QDialog::reject);
    window->addSpacing(8);
    window->addWidget(closeButton, 0, Qt::AlignRight);
    setContents(window);
    closeButton->setFocus();
}

}  // namespace flickerscribe::ui
