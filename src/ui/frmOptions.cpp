#include "ui/frmOptions.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <utility>

#include "settings/SettingsStore.h"
#include "ui/DialogIcons.h"
#include "ui/DialogWindow.h"
#include "ui/Dialogs.h"
#include "ui/SingleLine.h"
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

QLabel* AddLabel(QWidget* parent, const QString& name, const QString& caption, int left, int top, int width,
                 int height) {
    return Place(new QLabel(caption, parent), name, left, top, width, height);
}

QPushButton* AddButton(QWidget* parent, const QString& name, const QString& caption, int left, int top,
                       int width, int height) {
    auto* button = Place(new QPushButton(caption, parent), name, left, top, width, height);
    // Neither default nor cancel: Enter on a button does nothing special.
    button->setAutoDefault(false);
    return button;
}

QPushButton* AddBrowseButton(QWidget* parent, const QString& name, int top, const QString& what) {
    QPushButton* button = AddButton(parent, name, QString(), 4440, top, 375, 350);
    button->setIcon(FolderIcon());
    button->setAccessibleName(what);
    return button;
}

QLineEdit* AddFolderBox(QWidget* parent, const QString& name, int top) {
    auto* box = Place(new QLineEdit(parent), name, 120, top, 4215, 350);
    box->setReadOnly(true);
    return box;
}

QString Flag(bool on) {
    return on ? u"1"_s : u"0"_s;
}

}  // namespace

frmOptions::frmOptions(settings::SettingsStore& store, Dialogs& dialogs, std::function<void()> loadSettings,
                       QWidget* parent)
    : QDialog(parent), store_(store), dialogs_(dialogs), loadSettings_(std::move(loadSettings)) {
    MakeFixedDialog(*this, u"frmOptions"_s, u"Options"_s, 6810, 4125);

    cmdOK_ = AddButton(this, u"cmdOK"_s, u"OK"_s, 5280, 120, 1455, 350);
    connect(cmdOK_, &QPushButton::clicked, this, &frmOptions::cmdOK_Click);
    Command2_ = AddButton(this, u"Command2"_s, u"Cancel"_s, 5280, 600, 1455, 350);
    connect(Command2_, &QPushButton::clicked, this, &frmOptions::Command2_Click);

    fraMain_ = Place(new QGroupBox(u"Editor"_s, this), u"fraMain"_s, 120, 120, 4935, 2055);
    chkEditItem_ =
        Place(new QCheckBox(u"Selected item edit"_s, fraMain_), u"chkEditItem"_s, 120, 360, 3855, 255);
    chkEditItem_->setToolTip(u"Edit item by clicking on the selected item"_s);
    lblOpenDir_ = AddLabel(fraMain_, u"lblOpenDir"_s, u"Default Open directory"_s, 120, 720, 2055, 255);
    txtOpen_ = AddFolderBox(fraMain_, u"txtOpen"_s, 960);
    cmdBrowse1_ = AddBrowseButton(fraMain_, u"cmdBrowse1"_s, 960, u"Browse for the default Open directory"_s);
    connect(cmdBrowse1_, &QPushButton::clicked, this, &frmOptions::cmdBrowse1_Click);
    lblSave_ = AddLabel(fraMain_, u"lblSave"_s, u"Default Save directory"_s, 120, 1320, 2055, 255);
    txtSave_ = AddFolderBox(fraMain_, u"txtSave"_s, 1560);
    cmdBrowse2_ =
        AddBrowseButton(fraMain_, u"cmdBrowse2"_s, 1560, u"Browse for the default Save directory"_s);
    connect(cmdBrowse2_, &QPushButton::clicked, this, &frmOptions::cmdBrowse2_Click);

    fraWizardDefaults_ =
        Place(new QGroupBox(u"Wizard Defaults"_s, this), u"fraWizardDefaults"_s, 120, 2280, 4935, 1695);
    lblClanTag_ = AddLabel(fraWizardDefaults_, u"lblClanTag"_s, u"Clantag"_s, 120, 360, 1335, 255);
    txtClan_ = Place(new QLineEdit(fraWizardDefaults_), u"txtClan"_s, 120, 600, 1335, 350);
    lblClanTag_->setBuddy(txtClan_);
    lblName_ = AddLabel(fraWizardDefaults_, u"lblName"_s, u"Name"_s, 1680, 360, 975, 255);
    txtName_ = Place(new QLineEdit(fraWizardDefaults_), u"txtName"_s, 1680, 600, 3015, 350);
    lblName_->setBuddy(txtName_);
    KeepOnOneLine(txtClan_);
    KeepOnOneLine(txtName_);
    chkReverse_ =
        Place(new QCheckBox(u"Reverse clantag"_s, fraWizardDefaults_), u"chkReverse"_s, 120, 1080, 4575, 255);

    // The tab order starts at the two buttons, then runs through the frames.
    QWidget* const order[] = {cmdOK_,   Command2_,   chkEditItem_, txtOpen_, cmdBrowse1_,
                              txtSave_, cmdBrowse2_, txtClan_,     txtName_, chkReverse_};
    for (std::size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
    cmdOK_->setFocus();

    Form_Load();
}

void frmOptions::Form_Load() {
    txtName_->setText(store_.ReadRegistryString(u"Name"_s));
    txtClan_->setText(store_.ReadRegistryString(u"Clantag"_s));
    txtOpen_->setText(store_.ReadRegistryString(u"OpenDir"_s));
    txtSave_->setText(store_.ReadRegistryString(u"SaveDir"_s));
    chkReverse_->setChecked(store_.ReadRegistryString(u"Reverse"_s) == u"1"_s);
    chkEditItem_->setChecked(store_.ReadRegistryString(u"EditItem"_s) == u"1"_s);
}

void frmOptions::cmdBrowse1_Click() {
    txtOpen_->setText(dialogs_.BrowseForFolder(this, u"Select default 'Open script' directory"_s));
}

void frmOptions::cmdBrowse2_Click() {
    txtSave_->setText(dialogs_.BrowseForFolder(this, u"Select default 'Save script' directory"_s));
}

void frmOptions::cmdOK_Click() {
    store_.WriteRegistryString(u"EditItem"_s, Flag(chkEditItem_->isChecked()));
    store_.WriteRegistryString(u"Name"_s, txtName_->text());
    store_.WriteRegistryString(u"Clantag"_s, txtClan_->text());
    store_.WriteRegistryString(u"Reverse"_s, Flag(chkReverse_->isChecked()));
    store_.WriteRegistryString(u"OpenDir"_s, txtOpen_->text());
    store_.WriteRegistryString(u"SaveDir"_s, txtSave_->text());
    store_.WriteRegistryString(u"GenerateDir"_s, txtSave_->text());
    if (loadSettings_) loadSettings_();
    accept();
}

void frmOptions::Command2_Click() {
    reject();
}

void frmOptions::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

}  // namespace fs::ui
