#include "ui/EditTimeDialog.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "colour/NumberText.h"
#include "ui/DialogWindow.h"
#include "ui/SingleLine.h"
#include "ui/TextConv.h"
#include "ui/Twips.h"

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

template <typename Control>
Control* Place(Control* control, const QString& name, int left, int top, int width, int height) {
    control->setObjectName(name);
    control->setGeometry(TwipsRect(left, top, width, height));
    return control;
}

}  // namespace

EditTimeDialog::EditTimeDialog(QWidget* parent) : QDialog(parent) {
    MakeFixedDialog(*this, names::kWindow, u"Edit"_s, 4530, 1950);

    timeLabel_ = Place(new QLabel(u"Time"_s, this), names::kTimeLabel, 120, 120, 495, 255);
    timeBox_ = Place(new QLineEdit(u"15"_s, this), names::kTimeBox, 120, 360, 495, 300);
    KeepOnOneLine(timeBox_);
    timeLabel_->setBuddy(timeBox_);
    actionLabel_ = Place(new QLabel(u"Action"_s, this), names::kActionLabel, 120, 1080, 1935, 255);
    // A box with no entries that only shows its words: actions can't be
    // chosen yet, and nothing reads it.
    actionBox_ = Place(new QComboBox(this), names::kActionBox, 120, 1320, 2055, 315);
    actionBox_->setEditable(true);
    actionBox_->setEditText(u"Under construction"_s);
    KeepOnOneLine(actionBox_->lineEdit());
    actionLabel_->setBuddy(actionBox_);
    okButton_ = Place(new QPushButton(u"OK"_s, this), names::kOkButton, 3360, 120, 1095, 350);
    okButton_->setDefault(true);
    cancelButton_ = Place(new QPushButton(u"Cancel"_s, this), names::kCancelButton, 3360, 600, 1095, 350);
    cancelButton_->setAutoDefault(false);
    speedGuide_ = Place(new QLabel(this), names::kSpeedGuide, 960, 360, 1935, 615);
    speedGuide_->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    // Tab goes the way the controls were made: time, action, OK, Cancel.
    timeBox_->setFocus();

    connect(timeBox_, &QLineEdit::textChanged, this, [this] { CheckTime(); });
    connect(okButton_, &QPushButton::clicked, this, &QDialog::accept);
    // Escape and the close box reject the dialog the same way.
    connect(cancelButton_, &QPushButton::clicked, this, &QDialog::reject);

    speedGuide_->setText(u"15 = fast\n20 = regular\n30 = slow"_s);
}

QString EditTimeDialog::Time() const {
    return timeBox_->text();
}

void EditTimeDialog::CheckTime() {
    // Setting "20" raises this handler once more, and "20" passes.
    if (!IsNumberText(FromQString(timeBox_->text()))) timeBox_->setText(u"20"_s);
}

}  // namespace flickerscribe::ui
