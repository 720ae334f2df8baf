#include "ui/dialogs/EditTimeDialog.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QValidator>
#include <algorithm>
#include <utility>

#include "colour/NumberText.h"
#include "document/AnimationScript.h"
#include "ui/common/TextConv.h"
#include "ui/widgets/SingleLine.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {
namespace {

namespace names {

// The object names of this window's controls, all in one place: the stable
// identities by which tests and the accessibility tree find them. They keep
// their values whatever the code calls the things they name.
const QString kWindow = QStringLiteral("frmEdit");
const QString kTimeLabel = QStringLiteral("Label1");
const QString kTimeBox = QStringLiteral("txtTime");
const QString kActionLabel = QStringLiteral("Label2");
const QString kActionBox = QStringLiteral("cmbAction");
const QString kOkButton = QStringLiteral("cmdOK");
const QString kCancelButton = QStringLiteral("cmdCancel");
const QString kSpeedGuide = QStringLiteral("lblSpeed");

}  // namespace names

// A time is whatever the script's number test takes, on one line like every
// box's text. Anything else never stands in the box: typed, pasted or set, it
// becomes the regular speed, 20. QLineEdit takes the rewritten text.
class TimeValidator : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString& input, int& position) const override {
        input = onOneLine(std::move(input));
        if (!IsNumberText(fromQString(input))) {
            input = u"20"_s;
            position = static_cast<int>(input.size());
        }
        position = std::min(position, static_cast<int>(input.size()));
        return Acceptable;
    }
};

template <typename Control>
Control* named(Control* control, const QString& name) {
    control->setObjectName(name);
    return control;
}

}  // namespace

EditTimeDialog::EditTimeDialog(QWidget* parent)
    : DialogWindow(names::kWindow, tr("Edit"), WindowSize::Fixed, {}, parent) {
    auto* timeLabel = named(new QLabel(tr("Time")), names::kTimeLabel);
    timeBox_ = named(new QLineEdit(QString::fromStdString(AnimationLine{}.Time)), names::kTimeBox);
    timeBox_->setFixedSize(33, 20);
    timeBox_->setValidator(new TimeValidator(timeBox_));
    timeLabel->setBuddy(timeBox_);
    auto* speedGuide = named(new QLabel(tr("15 = fast\n20 = regular\n30 = slow")), names::kSpeedGuide);
    speedGuide->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* actionLabel = named(new QLabel(tr("Action")), names::kActionLabel);
    // A box with no entries that only shows its words: actions can't be
    // chosen yet, and nothing reads it.
    auto* actionBox = named(new QComboBox, names::kActionBox);
    actionBox->setEditable(true);
    actionBox->setEditText(tr("Under construction"));
    actionBox->setFixedSize(137, 21);
    keepOnOneLine(actionBox->lineEdit());
    actionLabel->setBuddy(actionBox);

    auto* okButton = named(new QPushButton(tr("OK")), names::kOkButton);
    okButton->setDefault(true);
    connect(okButton, &QPushButton::clicked, this, &QDialog::accept);
    // Escape and the close box reject the dialog the same way.
    auto* cancelButton = named(new QPushButton(tr("Cancel")), names::kCancelButton);
    connect(cancelButton, &QPushButton::clicked, this, &QDialog::reject);

    // Time and its guide, Action below; OK and Cancel stand at the right.
    auto* window = new QGridLayout;
    window->setContentsMargins(8, 8, 5, 21);
    window->setSpacing(0);
    window->addWidget(timeLabel, 0, 0, 1, 2);
    window->setRowMinimumHeight(0, 16);
    window->addWidget(timeBox_, 1, 0, Qt::AlignLeft | Qt::AlignTop);
    window->addWidget(speedGuide, 1, 1, Qt::AlignLeft | Qt::AlignTop);
    window->setRowMinimumHeight(1, 48);
    window->setColumnMinimumWidth(0, 56);
    window->setColumnMinimumWidth(1, 160);
    window->addWidget(actionLabel, 2, 0, 1, 2);
    window->setRowMinimumHeight(2, 16);
    window->addWidget(actionBox, 3, 0, 1, 2, Qt::AlignLeft | Qt::AlignTop);
    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(9);
    for (QPushButton* button : {okButton, cancelButton}) {
        setButtonSize(button, 73, 23);
        buttons->addWidget(button);
    }
    window->addLayout(buttons, 0, 2, 4, 1, Qt::AlignTop);
    setContents(window);

    // Tab goes the way the controls were made: time, action, OK, Cancel.
    setTabOrder(timeBox_, actionBox);
    setTabOrder(actionBox, okButton);
    setTabOrder(okButton, cancelButton);
    timeBox_->setFocus();
}

QString EditTimeDialog::time() const {
    return timeBox_->text();
}

}  // namespace flickerscribe::ui
