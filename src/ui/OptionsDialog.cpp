#include "ui/OptionsDialog.h"

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

namespace flickerscribe::ui {
namespace {

namespace names {

// The object names of this window's controls, all in one place: the stable
// identities by which tests and the accessibility tree find them. They keep
// their values whatever the code calls the things they name.
const QString kWindow = QStringLiteral("frmOptions");
const QString kOkButton = QStringLiteral("cmdOK");
const QString kCancelButton = QStringLiteral("Command2");
const QString kEditorFrame = QStringLiteral("fraMain");
const QString kEditInPlaceCheck = QStringLiteral("chkEditItem");
const QString kOpenFolderLabel = QStringLiteral("lblOpenDir");
const QString kOpenFolderBox = QStringLiteral("txtOpen");
const QString kBrowseOpenFolderButton = QStringLiteral("cmdBrowse1");
const QString kSaveFolderLabel = QStringLiteral("lblSave");
const QString kSaveFolderBox = QStringLiteral("txtSave");
const QString kBrowseSaveFolderButton = QStringLiteral("cmdBrowse2");
const QString kWizardFrame = QStringLiteral("fraWizardDefaults");
const QString kClanTagLabel = QStringLiteral("lblClanTag");
const QString kClanTagBox = QStringLiteral("txtClan");
const QString kNameLabel = QStringLiteral("lblName");
const QString kNameBox = QStringLiteral("txtName");
const QString kReverseCheck = QStringLiteral("chkReverse");

}  // namespace names

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

OptionsDialog::OptionsDialog(settings::SettingsStore& store, Dialogs& dialogs,
                             std::function<void()> loadSettings, QWidget* parent)
    : QDialog(parent), store_(store), dialogs_(dialogs), loadSettings_(std::move(loadSettings)) {
    MakeFixedDialog(*this, names::kWindow, u"Options"_s, 6810, 4125);

    okButton_ = AddButton(this, names::kOkButton, u"OK"_s, 5280, 120, 1455, 350);
    connect(okButton_, &QPushButton::clicked, this, &OptionsDialog::StoreSettings);
    cancelButton_ = AddButton(this, names::kCancelButton, u"Cancel"_s, 5280, 600, 1455, 350);
    connect(cancelButton_, &QPushButton::clicked, this, &OptionsDialog::Cancel);

    editorFrame_ = Place(new QGroupBox(u"Editor"_s, this), names::kEditorFrame, 120, 120, 4935, 2055);
    editInPlaceCheck_ = Place(new QCheckBox(u"Selected item edit"_s, editorFrame_), names::kEditInPlaceCheck,
                              120, 360, 3855, 255);
    editInPlaceCheck_->setToolTip(u"Edit item by clicking on the selected item"_s);
    openFolderLabel_ =
        AddLabel(editorFrame_, names::kOpenFolderLabel, u"Default Open directory"_s, 120, 720, 2055, 255);
    openFolderBox_ = AddFolderBox(editorFrame_, names::kOpenFolderBox, 960);
    browseOpenFolderButton_ = AddBrowseButton(editorFrame_, names::kBrowseOpenFolderButton, 960,
                                              u"Browse for the default Open directory"_s);
    connect(browseOpenFolderButton_, &QPushButton::clicked, this, &OptionsDialog::BrowseOpenFolder);
    saveFolderLabel_ =
        AddLabel(editorFrame_, names::kSaveFolderLabel, u"Default Save directory"_s, 120, 1320, 2055, 255);
    saveFolderBox_ = AddFolderBox(editorFrame_, names::kSaveFolderBox, 1560);
    browseSaveFolderButton_ = AddBrowseButton(editorFrame_, names::kBrowseSaveFolderButton, 1560,
                                              u"Browse for the default Save directory"_s);
    connect(browseSaveFolderButton_, &QPushButton::clicked, this, &OptionsDialog::BrowseSaveFolder);

    wizardFrame_ =
        Place(new QGroupBox(u"Wizard Defaults"_s, this), names::kWizardFrame, 120, 2280, 4935, 1695);
    clanTagLabel_ = AddLabel(wizardFrame_, names::kClanTagLabel, u"Clantag"_s, 120, 360, 1335, 255);
    clanTagBox_ = Place(new QLineEdit(wizardFrame_), names::kClanTagBox, 120, 600, 1335, 350);
    clanTagLabel_->setBuddy(clanTagBox_);
    nameLabel_ = AddLabel(wizardFrame_, names::kNameLabel, u"Name"_s, 1680, 360, 975, 255);
    nameBox_ = Place(new QLineEdit(wizardFrame_), names::kNameBox, 1680, 600, 3015, 350);
    nameLabel_->setBuddy(nameBox_);
    KeepOnOneLine(clanTagBox_);
    KeepOnOneLine(nameBox_);
    reverseCheck_ =
        Place(new QCheckBox(u"Reverse clantag"_s, wizardFrame_), names::kReverseCheck, 120, 1080, 4575, 255);

    // The tab order starts at the two buttons, then runs through the frames.
    QWidget* const order[] = {
        okButton_,      cancelButton_,           editInPlaceCheck_, openFolderBox_, browseOpenFolderButton_,
        saveFolderBox_, browseSaveFolderButton_, clanTagBox_,       nameBox_,       reverseCheck_};
    for (std::size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
    okButton_->setFocus();

    ShowStoredSettings();
}

void OptionsDialog::ShowStoredSettings() {
    nameBox_->setText(store_.ReadValue(u"Name"_s));
    clanTagBox_->setText(store_.ReadValue(u"Clantag"_s));
    openFolderBox_->setText(store_.ReadValue(u"OpenDir"_s));
    saveFolderBox_->setText(store_.ReadValue(u"SaveDir"_s));
    reverseCheck_->setChecked(store_.ReadValue(u"Reverse"_s) == u"1"_s);
    editInPlaceCheck_->setChecked(store_.ReadValue(u"EditItem"_s) == u"1"_s);
}

void OptionsDialog::BrowseOpenFolder() {
    openFolderBox_->setText(dialogs_.BrowseForFolder(this, u"Select default 'Open script' directory"_s));
}

void OptionsDialog::BrowseSaveFolder() {
    saveFolderBox_->setText(dialogs_.BrowseForFolder(this, u"Select default 'Save script' directory"_s));
}

void OptionsDialog::StoreSettings() {
    store_.WriteValue(u"EditItem"_s, Flag(editInPlaceCheck_->isChecked()));
    store_.WriteValue(u"Name"_s, nameBox_->text());
    store_.WriteValue(u"Clantag"_s, clanTagBox_->text());
    store_.WriteValue(u"Reverse"_s, Flag(reverseCheck_->isChecked()));
    store_.WriteValue(u"OpenDir"_s, openFolderBox_->text());
    store_.WriteValue(u"SaveDir"_s, saveFolderBox_->text());
    store_.WriteValue(u"GenerateDir"_s, saveFolderBox_->text());
    if (loadSettings_) loadSettings_();
    accept();
}

void OptionsDialog::Cancel() {
    reject();
}

void OptionsDialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

}  // namespace flickerscribe::ui
