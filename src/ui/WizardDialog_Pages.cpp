// The controls of the wizard's frame and of its four pages. Places are in
// twips, left, top, width and height, relative to the parent control.
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>

#include "ui/SingleLine.h"
#include "ui/Twips.h"
#include "ui/WizardArt.h"
#include "ui/WizardDialog.h"
#include "ui/WizardDialogNames.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {

namespace names = wizard_names;
namespace {

// Pages fill the window above the separator and the button row.
constexpr int kPageHeight = 4695;
// The white band at the top of pages 2 to 4.
constexpr int kBandHeight = 885;

template <typename Control>
Control* Place(Control* control, const QString& name, int left, int top, int width, int height) {
    control->setObjectName(name);
    control->setGeometry(TwipsRect(left, top, width, height));
    return control;
}

void Fill(QWidget* widget, const QColor& colour) {
    widget->setAutoFillBackground(true);
    QPalette palette = widget->palette();
    palette.setColor(QPalette::Window, colour);
    widget->setPalette(palette);
}

// The etched line: a dark pixel row over a white one, across the parent.
void AddSeparator(QWidget* parent, int top) {
    for (int stroke = 0; stroke < 2; ++stroke) {
        auto* line = new QWidget(parent);
        line->setGeometry(0, Twips(top) + stroke, Twips(WizardDialog::kClientWidth), 1);
        Fill(line, stroke == 0 ? QColor(128, 128, 128) : QColor(Qt::white));
    }
}

QPushButton* AddButton(QWidget* parent, const QString& name, const QString& caption, int left, int top,
                       int width, int height) {
    return Place(new QPushButton(caption, parent), name, left, top, width, height);
}

QLabel* AddLabel(QWidget* parent, const QString& name, const QString& caption, int left, int top, int width,
                 int height) {
    return Place(new QLabel(caption, parent), name, left, top, width, height);
}

QFont PointFont(const QWidget* widget, qreal points, bool bold) {
    QFont font = widget->font();
    font.setPointSizeF(points);
    font.setBold(bold);
    return font;
}

}  // namespace

void WizardDialog::BuildFrame() {
    AddSeparator(this, kPageHeight);
    backButton_ = AddButton(this, names::kBackButton, u"< Back"_s, 3750, 4890, 1125, 345);
    connect(backButton_, &QPushButton::clicked, this, &WizardDialog::PreviousPage);
    nextButton_ = AddButton(this, names::kNextButton, u"Next >"_s, 4875, 4890, 1125, 345);
    nextButton_->setDefault(true);
    connect(nextButton_, &QPushButton::clicked, this, &WizardDialog::NextPage);
    cancelButton_ = AddButton(this, names::kCancelButton, u"Cancel"_s, 6135, 4890, 1125, 345);
    connect(cancelButton_, &QPushButton::clicked, this, &WizardDialog::AskToLeave);
}

void WizardDialog::BuildPage1() {
    sidePicture_ = Place(new QLabel(this), names::kSidePicture, 0, 0, 2460, kPageHeight);
    sidePicture_->setPixmap(WizardSidePicture());

    QWidget* page = Place(new QWidget(this), names::kWelcomePage, 2460, 0, kClientWidth - 2460, kPageHeight);
    Fill(page, Qt::white);
    pages_[0] = page;

    welcomeHeading_ = AddLabel(page, names::kWelcomeHeading, u"Welcome to the Animation Script Wizard"_s, 240,
                               240, 4500, 840);
    welcomeHeading_->setFont(PointFont(this, 13.5, false));
    welcomeHeading_->setWordWrap(true);
    welcomeHeading_->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    welcomeText_ = AddLabel(page, names::kWelcomeText, QString(), 240, 1320, 4500, 1440);
    welcomeText_->setWordWrap(true);
    welcomeText_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

QWidget* WizardDialog::AddBandPage(int page, const QString& heading, const QString& line) {
    QWidget* container = Place(new QWidget(this), names::kPage.arg(page), 0, 0, kClientWidth, kPageHeight);
    pages_[static_cast<std::size_t>(page - 1)] = container;
    // Only the welcome page is on show until the user pages on.
    container->hide();

    QWidget* band = Place(new QWidget(container), names::kBand.arg(page), 0, 0, kClientWidth, kBandHeight);
    Fill(band, Qt::white);
    // The heading of page 2 has a name of its own; the others are named by their page.
    const QString headingName = page == 2 ? names::kStyleHeading : names::kHeading.arg(page);
    QLabel* title = AddLabel(band, headingName, heading, 240, 150, 5700, 255);
    title->setFont(PointFont(this, 8.25, true));
    AddLabel(band, names::kBandLine.arg(page), line, 480, 435, 5700, 255);
    QLabel* picture = AddLabel(band, names::kBandPicture.arg(page), QString(), 6495, 30, 825, 825);
    picture->setPixmap(WizardBandPicture(page));
    AddSeparator(container, kBandHeight);
    return container;
}

void WizardDialog::BuildPage2() {
    QWidget* page = AddBandPage(2, u"Select wizard type"_s, u"Select the wizard style (simple/advanced)"_s);
    styleFrame_ =
        Place(new QGroupBox(u"Animation wizard style"_s, page), names::kStyleFrame, 240, 1080, 6960, 1275);
    styleOptions_[0] =
        Place(new QRadioButton(u"Simple"_s, styleFrame_), names::kSimpleStyleOption, 240, 360, 3000, 300);
    styleOptions_[1] =
        Place(new QRadioButton(u"Advanced"_s, styleFrame_), names::kAdvancedStyleOption, 240, 780, 3000, 300);
    styleOptions_[0]->setChecked(true);
    styleOptions_[1]->setEnabled(false);
}

void WizardDialog::BuildPage3() {
    QWidget* page = AddBandPage(3, u"Type: Simple - Set name"_s, u"Fill in your Clantag and name"_s);
    nameFrame_ = Place(new QGroupBox(u"Your name"_s, page), names::kNameFrame, 240, 1080, 6960, 3450);

    nameOptions_[0] =
        Place(new QRadioButton(u"Name Only"_s, nameFrame_), names::kNameOnlyOption, 240, 330, 3000, 300);
    nameBoxes_[0] = Place(new QLineEdit(nameFrame_), names::kNameOnlyBox, 540, 660, 3600, 330);

    nameOptions_[1] = Place(new QRadioButton(u"Clantag and Name"_s, nameFrame_), names::kTagAndNameOption,
                            240, 1140, 3000, 300);
    clanTagBox_ = Place(new QLineEdit(nameFrame_), names::kClanTagBox, 540, 1470, 1350, 330);
    nameBoxes_[1] = Place(new QLineEdit(nameFrame_), names::kTaggedNameBox, 1950, 1470, 3600, 330);

    tagBehindNameCheck_ =
        Place(new QCheckBox(u"Reverse clantag-name (e.g. [QZT]Quillon -> Quillon[QZT]   )"_s, nameFrame_),
              names::kTagBehindNameCheck, 240, 2010, 6480, 300);

    colourEditorButton_ =
        AddButton(nameFrame_, names::kColourEditorButton, u"Color editor"_s, 5220, 2850, 1500, 375);
    connect(colourEditorButton_, &QPushButton::clicked, this, &WizardDialog::ShowColourNameEditor);

    for (QLineEdit* box : {nameBoxes_[0], clanTagBox_, nameBoxes_[1]}) {
        box->installEventFilter(this);
        // The effect engine decides what it can take.
        KeepOnOneLine(box);
    }
    setTabOrder(nameOptions_[0], nameBoxes_[0]);
    setTabOrder(nameBoxes_[0], nameOptions_[1]);
    setTabOrder(nameOptions_[1], clanTagBox_);
    setTabOrder(clanTagBox_, nameBoxes_[1]);
    setTabOrder(nameBoxes_[1], tagBehindNameCheck_);
    setTabOrder(tagBehindNameCheck_, colourEditorButton_);
}

void WizardDialog::BuildPage4() {
    QWidget* page = AddBandPage(4, u"Type: Simple - Select effects"_s, u"Select the animation effects"_s);
    effectsFrame_ = Place(new QGroupBox(u"Effects"_s, page), names::kEffectsFrame, 240, 1080, 6960, 3450);

    // The same margins as the name page: 240 twips at the sides, and the first
    // row clear of the frame's top edge.
    effectChoice_ = Place(new QComboBox(effectsFrame_), names::kEffectChoice, 240, 435, 2490, 330);
    effectChoice_->setEditable(false);
    addEffectButton_ = AddButton(effectsFrame_, names::kAddEffectButton, u"Add"_s, 2820, 420, 1125, 360);
    connect(addEffectButton_, &QPushButton::clicked, this, &WizardDialog::AddEffect);
    effectPreviewButton_ =
        AddButton(effectsFrame_, names::kEffectPreviewButton, u"Preview"_s, 4020, 420, 1125, 360);
    connect(effectPreviewButton_, &QPushButton::clicked, this, &WizardDialog::ShowEffectPreview);

    effectListLabel_ =
        AddLabel(effectsFrame_, names::kEffectListLabel, u"Effect list"_s, 240, 900, 3000, 240);
    effectList_ = Place(new QTreeWidget(effectsFrame_), names::kEffectList, 240, 1170, 4440, 2040);
    effectList_->setColumnCount(3);
    effectList_->setHeaderLabels({u"Effect name"_s, u"Parameter 1"_s, u"Parameter 2"_s});
    effectList_->setRootIsDecorated(false);
    effectList_->setItemsExpandable(false);
    effectList_->setSortingEnabled(false);
    effectList_->setSelectionMode(QAbstractItemView::SingleSelection);
    effectList_->setAllColumnsShowFocus(true);
    effectList_->setColumnWidth(0, Twips(1575));
    effectList_->setColumnWidth(1, Twips(1275));
    effectList_->header()->setStretchLastSection(true);
    connect(effectList_, &QTreeWidget::itemClicked, this,
            [this](QTreeWidgetItem* item) { LoadEffectRow(effectList_->indexOfTopLevelItem(item)); });
    // Moving through the list by keyboard loads the row just as a click does.
    connect(effectList_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item != nullptr && !adding_) LoadEffectRow(effectList_->indexOfTopLevelItem(item));
    });

    parameter1Label_ =
        AddLabel(effectsFrame_, names::kParameter1Label, u"Parameter 1"_s, 4860, 1170, 1860, 240);
    parameter1Box_ = Place(new QLineEdit(effectsFrame_), names::kParameter1Box, 4860, 1440, 1860, 330);
    connect(parameter1Box_, &QLineEdit::textChanged, this,
            [this](const QString& text) { StoreParameter(1, text); });
    parameter2Label_ =
        AddLabel(effectsFrame_, names::kParameter2Label, u"Parameter 2"_s, 4860, 1950, 1860, 240);
    parameter2Box_ = Place(new QLineEdit(effectsFrame_), names::kParameter2Box, 4860, 2220, 1860, 330);
    connect(parameter2Box_, &QLineEdit::textChanged, this,
            [this](const QString& text) { StoreParameter(2, text); });
    KeepOnOneLine(parameter1Box_);
    KeepOnOneLine(parameter2Box_);
    parameter1Label_->setBuddy(parameter1Box_);
    parameter2Label_->setBuddy(parameter2Box_);
    effectListLabel_->setBuddy(effectList_);
}

}  // namespace flickerscribe::ui
