// The wizard's four pages and their controls, laid out by Qt's layouts.
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWizardPage>

#include "ui/widgets/SingleLine.h"
#include "ui/wizard/WizardArt.h"
#include "ui/wizard/WizardDialog.h"
#include "ui/wizard/WizardDialogNames.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {

namespace names = wizard_names;
namespace {

template <typename Control>
Control* named(Control* control, const QString& name) {
    control->setObjectName(name);
    return control;
}

// A page under the header band: its heading, its line of text and its picture
// stand in the wizard's header.
QWizardPage* bandPage(int page, const QString& heading, const QString& line) {
    auto* container = named(new QWizardPage, names::kPage.arg(page));
    container->setTitle(heading);
    container->setSubTitle(line);
    container->setPixmap(QWizard::LogoPixmap, wizardBandPicture(page));
    return container;
}

// The one frame that fills a band page, with the page's margins around it.
QGroupBox* addFrame(QWizardPage* page, const QString& name, const QString& caption) {
    auto* frame = named(new QGroupBox(caption), name);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(3, 6, 3, 8);
    layout->addWidget(frame);
    return frame;
}

// The column of rows inside a frame, clear of its edges and its caption.
QVBoxLayout* frameRows(QGroupBox* frame, int top, int bottom) {
    auto* rows = new QVBoxLayout(frame);
    rows->setContentsMargins(13, top, 13, bottom);
    rows->setSpacing(0);
    return rows;
}

// A row of boxes indented under an option: each box takes its parts of the
// row's width, and `rest` parts stay empty behind them.
QHBoxLayout* indentedRow(std::initializer_list<std::pair<QWidget*, int>> boxes, int rest) {
    auto* row = new QHBoxLayout;
    row->setSpacing(4);
    row->addSpacing(20);
    for (const auto& [box, parts] : boxes) {
        box->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        row->addWidget(box, parts);
    }
    row->addStretch(rest);
    return row;
}

}  // namespace

void WizardDialog::addWelcomePage() {
    auto* page = named(new QWizardPage, names::kWelcomePage);
    page->setPixmap(QWizard::WatermarkPixmap, wizardSidePicture());

    auto* heading = named(new QLabel(tr("Welcome to the Animation Script Wizard")), names::kWelcomeHeading);
    QFont large = heading->font();
    large.setPointSizeF(13.5);
    heading->setFont(large);
    heading->setWordWrap(true);
    auto* text = named(new QLabel(tr("With this wizard, you can create cool animation effects in just a few "
                                     "minutes.\n\nClick Next to continue or Cancel to exit.")),
                       names::kWelcomeText);
    text->setWordWrap(true);

    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(14, 14, 14, 14);
    layout->setSpacing(30);
    layout->addWidget(heading);
    layout->addWidget(text);
    layout->addStretch();
    setPage(WelcomePage, page);
}

void WizardDialog::addStylePage() {
    QWizardPage* page =
        bandPage(StylePage, tr("Select wizard type"), tr("Select the wizard style (simple/advanced)"));
    QGroupBox* frame = addFrame(page, names::kStyleFrame, tr("Animation wizard style"));
    styleOptions_[0] = named(new QRadioButton(tr("Simple")), names::kSimpleStyleOption);
    styleOptions_[1] = named(new QRadioButton(tr("Advanced")), names::kAdvancedStyleOption);
    styleOptions_[0]->setChecked(true);
    styleOptions_[1]->setEnabled(false);
    QVBoxLayout* rows = frameRows(frame, 6, 11);
    rows->addWidget(styleOptions_[0]);
    rows->addSpacing(9);
    rows->addWidget(styleOptions_[1]);
    // The frame keeps its height; the page below it stays empty.
    static_cast<QVBoxLayout*>(page->layout())->addStretch();
    setPage(StylePage, page);
}

void WizardDialog::addNamePage() {
    QWizardPage* page =
        bandPage(NamePage, tr("Type: Simple - Set name"), tr("Fill in your Clantag and name"));
    QGroupBox* frame = addFrame(page, names::kNameFrame, tr("Your name"));

    nameOptions_[0] = named(new QRadioButton(tr("Name Only")), names::kNameOnlyOption);
    nameBoxes_[0] = named(new QLineEdit, names::kNameOnlyBox);
    nameOptions_[1] = named(new QRadioButton(tr("Clantag and Name")), names::kTagAndNameOption);
    clanTagBox_ = named(new QLineEdit, names::kClanTagBox);
    nameBoxes_[1] = named(new QLineEdit, names::kTaggedNameBox);
    tagBehindNameCheck_ =
        named(new QCheckBox(tr("Reverse clantag-name (e.g. [QZT]Quillon -> Quillon[QZT]   )")),
              names::kTagBehindNameCheck);
    auto* colourEditorButton = named(new QPushButton(tr("Color editor")), names::kColourEditorButton);
    connect(colourEditorButton, &QPushButton::clicked, this, &WizardDialog::showColourNameEditor);

    // The name box of "Name Only" is as wide as the one of "Clantag and
    // Name", which stands behind the narrower tag box.
    QVBoxLayout* rows = frameRows(frame, 4, 12);
    rows->addWidget(nameOptions_[0]);
    rows->addSpacing(3);
    rows->addLayout(indentedRow({{nameBoxes_[0], 240}}, 172));
    rows->addSpacing(10);
    rows->addWidget(nameOptions_[1]);
    rows->addSpacing(3);
    rows->addLayout(indentedRow({{clanTagBox_, 90}, {nameBoxes_[1], 240}}, 78));
    rows->addSpacing(14);
    rows->addWidget(tagBehindNameCheck_);
    rows->addStretch();
    rows->addWidget(colourEditorButton, 0, Qt::AlignRight);

    for (QLineEdit* box : {nameBoxes_[0], clanTagBox_, nameBoxes_[1]}) {
        box->installEventFilter(this);
        // The effect engine decides what it can take.
        keepOnOneLine(box);
    }
    setPage(NamePage, page);
}

void WizardDialog::addEffectsPage() {
    QWizardPage* page =
        bandPage(EffectsPage, tr("Type: Simple - Select effects"), tr("Select the animation effects"));
    page->setFinalPage(true);
    QGroupBox* frame = addFrame(page, names::kEffectsFrame, tr("Effects"));

    effectChoice_ = named(new QComboBox, names::kEffectChoice);
    effectChoice_->addItem(tr("Wave 2"), QVariant::fromValue(Effect::Wave2));
    effectChoice_->addItem(tr("Bounce"), QVariant::fromValue(Effect::Bounce));
    effectChoice_->setCurrentIndex(-1);
    effectChoice_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* addButton = named(new QPushButton(tr("Add")), names::kAddEffectButton);
    connect(addButton, &QPushButton::clicked, this, &WizardDialog::addEffect);
    auto* previewButton = named(new QPushButton(tr("Preview")), names::kEffectPreviewButton);
    connect(previewButton, &QPushButton::clicked, this, &WizardDialog::showEffectPreview);

    auto* listLabel = named(new QLabel(tr("Effect list")), names::kEffectListLabel);
    effectList_ = named(new QTreeWidget, names::kEffectList);
    effectList_->setHeaderLabels({tr("Effect name"), tr("Parameter 1"), tr("Parameter 2")});
    effectList_->setRootIsDecorated(false);
    effectList_->setItemsExpandable(false);
    effectList_->setSelectionMode(QAbstractItemView::SingleSelection);
    effectList_->setAllColumnsShowFocus(true);
    effectList_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    effectList_->header()->setStretchLastSection(true);
    effectList_->header()->resizeSection(0, 105);
    effectList_->header()->resizeSection(1, 85);
    listLabel->setBuddy(effectList_);
    connect(effectList_, &QTreeWidget::itemClicked, this, &WizardDialog::loadEffectRow);
    // Moving through the list by keyboard loads the row just as a click does.
    connect(effectList_, &QTreeWidget::currentItemChanged, this, &WizardDialog::loadEffectRow);

    parameter1Label_ = named(new QLabel(tr("Parameter 1")), names::kParameter1Label);
    parameter1Box_ = named(new QLineEdit, names::kParameter1Box);
    parameter2Label_ = named(new QLabel(tr("Parameter 2")), names::kParameter2Label);
    parameter2Box_ = named(new QLineEdit, names::kParameter2Box);
    connect(parameter1Box_, &QLineEdit::textChanged, this,
            [this](const QString& text) { storeParameter(1, text); });
    connect(parameter2Box_, &QLineEdit::textChanged, this,
            [this](const QString& text) { storeParameter(2, text); });
    for (const auto& [label, box] :
         {std::pair{parameter1Label_, parameter1Box_}, std::pair{parameter2Label_, parameter2Box_}}) {
        label->setBuddy(box);
        box->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        keepOnOneLine(box);
    }

    // The drop-down list and its buttons in a row; under it the list, which
    // takes 296 parts of the width, and the parameters, 124 parts beside it.
    QVBoxLayout* rows = frameRows(frame, 11, 13);
    auto* chooser = new QHBoxLayout;
    chooser->setSpacing(5);
    chooser->addWidget(effectChoice_, 166);
    chooser->addWidget(addButton);
    chooser->addWidget(previewButton);
    chooser->addStretch(96);
    rows->addLayout(chooser);
    rows->addSpacing(9);
    auto* parameters = new QVBoxLayout;
    parameters->setSpacing(5);
    parameters->addWidget(parameter1Label_);
    parameters->addWidget(parameter1Box_);
    parameters->addSpacing(7);
    parameters->addWidget(parameter2Label_);
    parameters->addWidget(parameter2Box_);
    parameters->addStretch();
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(5);
    grid->setColumnStretch(0, 296);
    grid->setColumnStretch(1, 124);
    grid->addWidget(listLabel, 0, 0);
    grid->addWidget(effectList_, 1, 0);
    grid->addLayout(parameters, 1, 1);
    rows->addLayout(grid);
    setPage(EffectsPage, page);
}

}  // namespace flickerscribe::ui
