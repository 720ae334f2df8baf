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
#include "ui/frmWizard.h"

using namespace Qt::Literals::StringLiterals;

namespace fs::ui {
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
        line->setGeometry(0, Twips(top) + stroke, Twips(frmWizard::kClientWidth), 1);
        Fill(line, stroke == 0 ? QColor(128, 128, 128) : QColor(Qt::white));
    }
}

QPushButton* AddButton(QWidget* parent, const QString& name, const QString& caption, int left, int top,
                       int width, int height) {
    auto* button = Place(new QPushButton(caption, parent), name, left, top, width, height);
    button->setAutoDefault(false);
    return button;
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

void frmWizard::BuildFrame() {
    AddSeparator(this, kPageHeight);
    cmdBack_ = AddButton(this, u"cmdBack"_s, u"< Back"_s, 3750, 4890, 1125, 345);
    connect(cmdBack_, &QPushButton::clicked, this, &frmWizard::cmdBack_Click);
    cmdNext_ = AddButton(this, u"cmdNext"_s, u"Next >"_s, 4875, 4890, 1125, 345);
    cmdNext_->setDefault(true);
    connect(cmdNext_, &QPushButton::clicked, this, &frmWizard::cmdNext_Click);
    cmdCancel_ = AddButton(this, u"cmdCancel"_s, u"Cancel"_s, 6135, 4890, 1125, 345);
    connect(cmdCancel_, &QPushButton::clicked, this, &frmWizard::cmdCancel_Click);
}

void frmWizard::BuildPage1() {
    imgPage1_ = Place(new QLabel(this), u"imgPage1"_s, 0, 0, 2460, kPageHeight);
    imgPage1_->setPixmap(WizardSidePicture());

    QWidget* page = Place(new QWidget(this), u"picPage1"_s, 2460, 0, kClientWidth - 2460, kPageHeight);
    Fill(page, Qt::white);
    picPage_[0] = page;

    lblWelcome_ =
        AddLabel(page, u"lblWelcome"_s, u"Welcome to the Animation Script Wizard"_s, 240, 240, 4500, 840);
    lblWelcome_->setFont(PointFont(this, 13.5, false));
    lblWelcome_->setWordWrap(true);
    lblWelcome_->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    lblText_ = AddLabel(page, u"lblText"_s, QString(), 240, 1320, 4500, 1440);
    lblText_->setWordWrap(true);
    lblText_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

QWidget* frmWizard::AddBandPage(int page, const QString& heading, const QString& line) {
    QWidget* container = Place(new QWidget(this), u"picPage%1"_s.arg(page), 0, 0, kClientWidth, kPageHeight);
    picPage_[static_cast<std::size_t>(page - 1)] = container;
    // Only the welcome page is on show until the user pages on.
    container->hide();

    QWidget* band = Place(new QWidget(container), u"picBand%1"_s.arg(page), 0, 0, kClientWidth, kBandHeight);
    Fill(band, Qt::white);
    // The heading of page 2 carries the name lblPage1; the others have none of their own.
    const QString headingName = page == 2 ? u"lblPage1"_s : u"lblHeading%1"_s.arg(page);
    QLabel* title = AddLabel(band, headingName, heading, 240, 150, 5700, 255);
    title->setFont(PointFont(this, 8.25, true));
    AddLabel(band, u"lblLine%1"_s.arg(page), line, 480, 435, 5700, 255);
    QLabel* picture = AddLabel(band, u"imgBand%1"_s.arg(page), QString(), 6495, 30, 825, 825);
    picture->setPixmap(WizardBandPicture(page));
    AddSeparator(container, kBandHeight);
    return container;
}

void frmWizard::BuildPage2() {
    QWidget* page = AddBandPage(2, u"Select wizard type"_s, u"Select the wizard style (simple/advanced)"_s);
    fraWizStyle_ =
        Place(new QGroupBox(u"Animation wizard style"_s, page), u"fraWizStyle"_s, 240, 1080, 6960, 1275);
    optWizStyle_[0] =
        Place(new QRadioButton(u"Simple"_s, fraWizStyle_), u"optWizStyle_0"_s, 240, 360, 3000, 300);
    optWizStyle_[1] =
        Place(new QRadioButton(u"Advanced"_s, fraWizStyle_), u"optWizStyle_1"_s, 240, 780, 3000, 300);
    optWizStyle_[0]->setChecked(true);
    optWizStyle_[1]->setEnabled(false);
}

void frmWizard::BuildPage3() {
    QWidget* page = AddBandPage(3, u"Type: Simple - Set name"_s, u"Fill in your Clantag and name"_s);
    fraName_ = Place(new QGroupBox(u"Your name"_s, page), u"fraName"_s, 240, 1080, 6960, 3450);

    optNameOnly_[0] =
        Place(new QRadioButton(u"Name Only"_s, fraName_), u"optNameOnly_0"_s, 240, 330, 3000, 300);
    txtNameOnly_[0] = Place(new QLineEdit(fraName_), u"txtNameOnly_0"_s, 540, 660, 3600, 330);

    optNameOnly_[1] =
        Place(new QRadioButton(u"Clantag and Name"_s, fraName_), u"optNameOnly_1"_s, 240, 1140, 3000, 300);
    txtClanTag_ = Place(new QLineEdit(fraName_), u"txtClanTag"_s, 540, 1470, 1350, 330);
    txtNameOnly_[1] = Place(new QLineEdit(fraName_), u"txtNameOnly_1"_s, 1950, 1470, 3600, 330);

    chkClanTag_ =
        Place(new QCheckBox(u"Reverse clantag-name (e.g. [QZT]Quillon -> Quillon[QZT]   )"_s, fraName_),
              u"chkClanTag"_s, 240, 2010, 6480, 300);

    cmdColor_ = AddButton(fraName_, u"cmdColor"_s, u"Color editor"_s, 5220, 2850, 1500, 375);
    connect(cmdColor_, &QPushButton::clicked, this, &frmWizard::cmdColor_Click);

    for (QLineEdit* box : {txtNameOnly_[0], txtClanTag_, txtNameOnly_[1]}) {
        box->installEventFilter(this);
        // The effect engine decides what it can take.
        KeepOnOneLine(box);
    }
    setTabOrder(optNameOnly_[0], txtNameOnly_[0]);
    setTabOrder(txtNameOnly_[0], optNameOnly_[1]);
    setTabOrder(optNameOnly_[1], txtClanTag_);
    setTabOrder(txtClanTag_, txtNameOnly_[1]);
    setTabOrder(txtNameOnly_[1], chkClanTag_);
    setTabOrder(chkClanTag_, cmdColor_);
}

void frmWizard::BuildPage4() {
    QWidget* page = AddBandPage(4, u"Type: Simple - Select effects"_s, u"Select the animation effects"_s);
    fraEffects_ = Place(new QGroupBox(u"Effects"_s, page), u"fraEffects"_s, 240, 1080, 6960, 3450);

    // The same margins as the name page: 240 twips at the sides, and the first
    // row clear of the frame's top edge.
    cmbEffects_ = Place(new QComboBox(fraEffects_), u"cmbEffects"_s, 240, 435, 2490, 330);
    cmbEffects_->setEditable(false);
    cmdAddEffect_ = AddButton(fraEffects_, u"cmdAddEffect"_s, u"Add"_s, 2820, 420, 1125, 360);
    connect(cmdAddEffect_, &QPushButton::clicked, this, &frmWizard::cmdAddEffect_Click);
    cmdPreview_ = AddButton(fraEffects_, u"cmdPreview"_s, u"Preview"_s, 4020, 420, 1125, 360);
    connect(cmdPreview_, &QPushButton::clicked, this, &frmWizard::cmdPreview_Click);

    lblEffectList_ = AddLabel(fraEffects_, u"lblEffectList"_s, u"Effect list"_s, 240, 900, 3000, 240);
    lvwEffects_ = Place(new QTreeWidget(fraEffects_), u"lvwEffects"_s, 240, 1170, 4440, 2040);
    lvwEffects_->setColumnCount(3);
    lvwEffects_->setHeaderLabels({u"Effect name"_s, u"Parameter 1"_s, u"Parameter 2"_s});
    lvwEffects_->setRootIsDecorated(false);
    lvwEffects_->setItemsExpandable(false);
    lvwEffects_->setSortingEnabled(false);
    lvwEffects_->setSelectionMode(QAbstractItemView::SingleSelection);
    lvwEffects_->setAllColumnsShowFocus(true);
    lvwEffects_->setColumnWidth(0, Twips(1575));
    lvwEffects_->setColumnWidth(1, Twips(1275));
    lvwEffects_->header()->setStretchLastSection(true);
    connect(lvwEffects_, &QTreeWidget::itemClicked, this,
            [this](QTreeWidgetItem* item) { lvwEffects_ItemClick(lvwEffects_->indexOfTopLevelItem(item)); });
    // Moving through the list by keyboard loads the row just as a click does.
    connect(lvwEffects_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item != nullptr && !adding_) lvwEffects_ItemClick(lvwEffects_->indexOfTopLevelItem(item));
    });

    lblParam1_ = AddLabel(fraEffects_, u"lblParam1"_s, u"Parameter 1"_s, 4860, 1170, 1860, 240);
    txtParam1_ = Place(new QLineEdit(fraEffects_), u"txtParam1"_s, 4860, 1440, 1860, 330);
    connect(txtParam1_, &QLineEdit::textChanged, this,
            [this](const QString& text) { txtParam_Change(1, text); });
    lblParam2_ = AddLabel(fraEffects_, u"lblParam2"_s, u"Parameter 2"_s, 4860, 1950, 1860, 240);
    txtParam2_ = Place(new QLineEdit(fraEffects_), u"txtParam2"_s, 4860, 2220, 1860, 330);
    connect(txtParam2_, &QLineEdit::textChanged, this,
            [this](const QString& text) { txtParam_Change(2, text); });
    KeepOnOneLine(txtParam1_);
    KeepOnOneLine(txtParam2_);
    lblParam1_->setBuddy(txtParam1_);
    lblParam2_->setBuddy(txtParam2_);
    lblEffectList_->setBuddy(lvwEffects_);
}

}  // namespace fs::ui
