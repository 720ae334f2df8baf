#include "ui/dialogs/OptionsDialog.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <utility>

#include "settings/SettingsStore.h"
#include "ui/common/Dialogs.h"
#include "ui/dialogs/DialogIcons.h"
#include "ui/widgets/SingleLine.h"

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
Control* named(Control* control, const QString& name) {
    control->setObjectName(name);
    return control;
}

// The rows of a frame: a label 16 pixels high, a box (or button) 23 high,
// and a check box in a row of its own.
constexpr int kLabelRow = 16;
constexpr int kBoxHeight = 23;

QLabel* addLabel(QGridLayout* grid, const QString& name, const QString& caption, int row, int column) {
    auto* label = named(new QLabel(caption), name);
    grid->addWidget(label, row, column);
    grid->setRowMinimumHeight(row, kLabelRow);
    return label;
}

QLineEdit* addBox(QGridLayout* grid, const QString& name, int row, int column) {
    auto* box = named(new QLineEdit, name);
    box->setFixedHeight(kBoxHeight);
    grid->addWidget(box, row, column, Qt::AlignLeft | Qt::AlignTop);
    return box;
}

QGroupBox* addFrame(QWidget* parent, const QString& name, const QString& caption, QGridLayout* grid) {
    auto* frame = named(new QGroupBox(caption, parent), name);
    frame->setLayout(grid);
    grid->setContentsMargins(5, 6, 5, 6);
    grid->setVerticalSpacing(0);
    return frame;
}

}  // namespace

OptionsDialog::OptionsDialog(settings::SettingsStore& store, Dialogs& dialogs,
                             std::function<void()> loadSettings, QWidget* parent)
    : DialogWindow(names::kWindow, tr("Options"), WindowSize::Fixed,
                   {.enterOnlyOnButtons = true, .escapeKeepsOpen = true}, parent),
      store_(store),
      dialogs_(dialogs),
      loadSettings_(std::move(loadSettings)) {
    auto* okButton = named(new QPushButton(tr("OK")), names::kOkButton);
    connect(okButton, &QPushButton::clicked, this, &OptionsDialog::storeSettings);
    auto* cancelButton = named(new QPushButton(tr("Cancel")), names::kCancelButton);
    connect(cancelButton, &QPushButton::clicked, this, &QDialog::reject);

    // Editor: the in-place edit, and the two folders, each with its browse button.
    auto* editor = new QGridLayout;
    editInPlaceCheck_ = named(new QCheckBox(tr("Selected item edit")), names::kEditInPlaceCheck);
    editInPlaceCheck_->setToolTip(tr("Edit item by clicking on the selected item"));
    editor->addWidget(editInPlaceCheck_, 0, 0, 1, 2, Qt::AlignTop);
    editor->setRowMinimumHeight(0, 24);
    const auto addFolder = [&](int row, const QString& labelName, const QString& caption,
                               const QString& boxName, const QString& buttonName, const QString& what,
                               const QString& title) {
        addLabel(editor, labelName, caption, row, 0);
        QLineEdit* box = addBox(editor, boxName, row + 1, 0);
        box->setReadOnly(true);
        box->setMinimumWidth(281);
        editor->setRowMinimumHeight(row + 1, kBoxHeight + 1);
        auto* browse = named(new QPushButton, buttonName);
        browse->setIcon(folderIcon());
        browse->setAccessibleName(what);
        browse->setFixedSize(25, kBoxHeight);
        editor->addWidget(browse, row + 1, 1, Qt::AlignTop);
        connect(browse, &QPushButton::clicked, this, [this, box, title] { browseFolder(box, title); });
        return box;
    };
    openFolderBox_ =
        addFolder(1, names::kOpenFolderLabel, tr("Default Open directory"), names::kOpenFolderBox,
                  names::kBrowseOpenFolderButton, tr("Browse for the default Open directory"),
                  tr("Select default 'Open script' directory"));
    saveFolderBox_ =
        addFolder(3, names::kSaveFolderLabel, tr("Default Save directory"), names::kSaveFolderBox,
                  names::kBrowseSaveFolderButton, tr("Browse for the default Save directory"),
                  tr("Select default 'Save script' directory"));
    editor->setHorizontalSpacing(7);

    // Wizard defaults: clan tag and name side by side, then the order.
    auto* wizard = new QGridLayout;
    clanTagBox_ = addBox(wizard, names::kClanTagBox, 1, 0);
    nameBox_ = addBox(wizard, names::kNameBox, 1, 1);
    addLabel(wizard, names::kClanTagLabel, tr("Clantag"), 0, 0)->setBuddy(clanTagBox_);
    addLabel(wizard, names::kNameLabel, tr("Name"), 0, 1)->setBuddy(nameBox_);
    wizard->setRowMinimumHeight(1, kBoxHeight + 9);
    clanTagBox_->setFixedWidth(89);
    nameBox_->setFixedWidth(201);
    keepOnOneLine(clanTagBox_);
    keepOnOneLine(nameBox_);
    reverseCheck_ = named(new QCheckBox(tr("Reverse clantag")), names::kReverseCheck);
    wizard->addWidget(reverseCheck_, 2, 0, 1, 2, Qt::AlignTop);
    wizard->setRowMinimumHeight(2, 32);
    wizard->setHorizontalSpacing(15);
    wizard->setColumnStretch(1, 1);

    auto* frames = new QVBoxLayout;
    frames->setSpacing(7);
    frames->addWidget(addFrame(this, names::kEditorFrame, tr("Editor"), editor));
    frames->addWidget(addFrame(this, names::kWizardFrame, tr("Wizard Defaults"), wizard));
    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(9);
    for (QPushButton* button : {okButton, cancelButton}) {
        button->setMinimumSize(97, kBoxHeight);
        buttons->addWidget(button);
    }
    buttons->addStretch();
    auto* window = new QHBoxLayout;
    window->setContentsMargins(8, 8, 5, 10);
    window->setSpacing(15);
    window->addLayout(frames);
    window->addLayout(buttons);
    setContents(window);

    // The tab order starts at the two buttons, then runs through the frames.
    QWidget* const order[] = {okButton,       cancelButton, editInPlaceCheck_, openFolderBox_,
                              saveFolderBox_, clanTagBox_,  nameBox_,          reverseCheck_};
    for (std::size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
    setTabOrder(openFolderBox_, findChild<QPushButton*>(names::kBrowseOpenFolderButton));
    setTabOrder(saveFolderBox_, findChild<QPushButton*>(names::kBrowseSaveFolderButton));
    okButton->setFocus();

    showStoredSettings();
}

void OptionsDialog::showStoredSettings() {
    const settings::Settings stored = settings::loadSettings(store_);
    nameBox_->setText(stored.name);
    clanTagBox_->setText(stored.clanTag);
    openFolderBox_->setText(stored.openFolder);
    saveFolderBox_->setText(stored.saveFolder);
    reverseCheck_->setChecked(stored.reverse);
    editInPlaceCheck_->setChecked(stored.editInPlace);
}

void OptionsDialog::browseFolder(QLineEdit* box, const QString& title) {
    box->setText(dialogs_.browseForFolder(this, title));
}

void OptionsDialog::storeSettings() {
    settings::Settings chosen;
    chosen.editInPlace = editInPlaceCheck_->isChecked();
    chosen.name = nameBox_->text();
    chosen.clanTag = clanTagBox_->text();
    chosen.reverse = reverseCheck_->isChecked();
    chosen.openFolder = openFolderBox_->text();
    chosen.saveFolder = saveFolderBox_->text();
    settings::saveSettings(store_, chosen);
    if (loadSettings_) loadSettings_();
    accept();
}

}  // namespace flickerscribe::ui
