#include "ui/frmEdit.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "colour/NumberText.h"
#include "document/AnimationScript.h"
#include "ui/DialogWindow.h"
#include "ui/SingleLine.h"
#include "ui/TextConv.h"
#include "ui/Twips.h"

using namespace Qt::Literals::StringLiterals;

namespace fs::ui {
namespace {

template <typename Control>
Control* Place(Control* control, const QString& name, int left, int top, int width, int height) {
    control->setObjectName(name);
    control->setGeometry(TwipsRect(left, top, width, height));
    return control;
}

}  // namespace

frmEdit::frmEdit(AnimationScript& script, QWidget* parent) : QDialog(parent), script_(script) {
    MakeFixedDialog(*this, u"frmEdit"_s, u"Edit"_s, 4530, 1950);

    Label1_ = Place(new QLabel(u"Time"_s, this), u"Label1"_s, 120, 120, 495, 255);
    txtTime_ = Place(new QLineEdit(u"15"_s, this), u"txtTime"_s, 120, 360, 495, 300);
    KeepOnOneLine(txtTime_);
    Label1_->setBuddy(txtTime_);
    Label2_ = Place(new QLabel(u"Action"_s, this), u"Label2"_s, 120, 1080, 1935, 255);
    // A box with no entries that only shows its words: actions can't be
    // chosen yet, and nothing reads it.
    cmbAction_ = Place(new QComboBox(this), u"cmbAction"_s, 120, 1320, 2055, 315);
    cmbAction_->setEditable(true);
    cmbAction_->setEditText(u"Under construction"_s);
    KeepOnOneLine(cmbAction_->lineEdit());
    Label2_->setBuddy(cmbAction_);
    cmdOK_ = Place(new QPushButton(u"OK"_s, this), u"cmdOK"_s, 3360, 120, 1095, 350);
    cmdOK_->setDefault(true);
    cmdCancel_ = Place(new QPushButton(u"Cancel"_s, this), u"cmdCancel"_s, 3360, 600, 1095, 350);
    cmdCancel_->setAutoDefault(false);
    lblSpeed_ = Place(new QLabel(this), u"lblSpeed"_s, 960, 360, 1935, 615);
    lblSpeed_->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    setTabOrder(txtTime_, cmbAction_);
    setTabOrder(cmbAction_, cmdOK_);
    setTabOrder(cmdOK_, cmdCancel_);
    txtTime_->setFocus();

    connect(txtTime_, &QLineEdit::textChanged, this, [this] { txtTime_Change(); });
    connect(cmdOK_, &QPushButton::clicked, this, &frmEdit::cmdOK_Click);
    // Escape and the close box reject the dialog the same way.
    connect(cmdCancel_, &QPushButton::clicked, this, &frmEdit::cmdCancel_Click);

    Form_Load();
}

void frmEdit::Form_Load() {
    lblSpeed_->setText(u"15 = fast\n20 = regular\n30 = slow"_s);
}

void frmEdit::txtTime_Change() {
    // Setting "20" raises this handler once more, and "20" passes.
    if (!IsNumberText(FromQString(txtTime_->text()))) txtTime_->setText(u"20"_s);
}

void frmEdit::cmdOK_Click() {
    script_.SetLineTime(script_.SelectedIndex(), FromQString(txtTime_->text()));
    accept();
}

void frmEdit::cmdCancel_Click() {
    reject();
}

}  // namespace fs::ui
