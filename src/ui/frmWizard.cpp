#include "ui/frmWizard.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>

#include "document/AnimationScript.h"
#include "settings/Settings.h"
#include "ui/DialogWindow.h"
#include "ui/Dialogs.h"
#include "ui/LineLimit.h"
#include "ui/TextConv.h"
#include "ui/frmColorEditor.h"

using namespace Qt::Literals::StringLiterals;

namespace fs::ui {
namespace {

// Columns of lvwEffects.
constexpr int kNameColumn = 0;

}  // namespace

frmWizard::frmWizard(AnimationScript& script, Dialogs& dialogs, const settings::Settings& settings,
                     QWidget* parent)
    : QDialog(parent), script_(script), dialogs_(dialogs) {
    MakeFixedDialog(*this, u"frmWizard"_s, u"Animation Script Wizard"_s, kClientWidth, kClientHeight);
    // The main window stays usable while the wizard is open.
    setModal(false);
    BuildPage1();
    BuildPage2();
    BuildPage3();
    BuildPage4();
    BuildFrame();
    Form_Load(settings);
}

frmWizard::~frmWizard() = default;

void frmWizard::Form_Load(const settings::Settings& settings) {
    cmbEffects_->clear();
    cmbEffects_->addItem(u"Wave 2"_s);
    cmbEffects_->addItem(u"Bounce"_s);
    cmbEffects_->setCurrentIndex(-1);

    txtClanTag_->setText(settings.Clantag);
    const int option = txtClanTag_->text().isEmpty() ? 0 : 1;
    txtNameOnly_[static_cast<std::size_t>(option)]->setText(settings.Name);
    optNameOnly_[static_cast<std::size_t>(option)]->setChecked(true);
    chkClanTag_->setChecked(settings.Reverse);

    PageCount_ = kPageCount;
    CurrentPage_ = 1;
    lblText_->setText(
        u"With this wizard, you can create cool animation effects in just a few minutes.\n\n"
        "Click Next to continue or Cancel to exit."_s);
    ShowPage();
}

// Shows the current page and hides its neighbours; paging moves one step at
// a time, so no other page can be on show.
void frmWizard::ShowPage() {
    const auto page = [this](int number) { return picPage_[static_cast<std::size_t>(number - 1)]; };
    switch (CurrentPage_) {
        case 1:
            cmdBack_->setEnabled(false);
            imgPage1_->show();
            page(1)->show();
            page(2)->hide();
            break;
        case 2:
            cmdBack_->setEnabled(true);
            page(2)->show();
            imgPage1_->hide();
            page(1)->hide();
            page(3)->hide();
            break;
        case 3:
            page(3)->show();
            page(2)->hide();
            page(4)->hide();
            break;
        case 4:
            page(4)->show();
            page(3)->hide();
            break;
        default:
            break;
    }
    cmdNext_->setText(CurrentPage_ == PageCount_ ? u"Finish"_s : u"Next >"_s);
}

void frmWizard::cmdNext_Click() {
    if (CurrentPage_ < PageCount_) {
        ++CurrentPage_;
        ShowPage();
    } else {
        Finish();
    }
}

void frmWizard::cmdBack_Click() {
    if (CurrentPage_ > 1) {
        --CurrentPage_;
        ShowPage();
    }
}

void frmWizard::cmdCancel_Click() {
    if (dialogs_.Message(this, u"Are you sure you want to exit the wizard?"_s, u"Exit wizard?"_s,
                         MsgIcon::Question, MsgButtons::YesNo) == MsgAnswer::Yes) {
        close();
    }
}

void frmWizard::reject() {
    cmdCancel_Click();
}

void frmWizard::closeEvent(QCloseEvent* event) {
    // Leaving by the close box asks nothing. QDialog's own handling would
    // route it through reject(), which asks.
    event->accept();
}

void frmWizard::Finish() {
    // The boxes of the selected option count; the other option's text is ignored.
    const bool nameOnly = optNameOnly_[0]->isChecked();
    const std::string name = FromQString(txtNameOnly_[nameOnly ? 0 : 1]->text());
    const std::string clanTag = nameOnly ? std::string() : FromQString(txtClanTag_->text());
    const bool reverse = chkClanTag_->isChecked();

    const YesNoQuestion ask = [this](const std::string& title, const std::string& text) {
        return dialogs_.Message(this, ToQString(text), ToQString(title), MsgIcon::Question,
                                MsgButtons::YesNo) == MsgAnswer::Yes;
    };
    const EffectRunResult result = RunEffectList(script_, name, clanTag, reverse, EffectRows(), ask);
    if (result.inputRefused) {
        dialogs_.Message(
            this,
            u"A name or a clan tag can hold at most %1 characters. The animation was left as it was."_s.arg(
                kMaxEffectTextLength),
            u"Animation Script Wizard"_s, MsgIcon::Exclamation, MsgButtons::Ok);
    } else if (result.lineLimitReached) {
        ShowLineLimitMessage(dialogs_, this);
    }
    close();
}

void frmWizard::cmdAddEffect_Click() {
    const int chosen = cmbEffects_->currentIndex();
    if (chosen < 0) return;
    auto* row = new QTreeWidgetItem({cmbEffects_->itemText(chosen), u"0"_s, u"0"_s});
    const bool first = lvwEffects_->topLevelItemCount() == 0;
    lvwEffects_->addTopLevelItem(row);
    if (first) {
        // The first row of an empty list becomes the selected one, but only a
        // click loads its parameters.
        adding_ = true;
        lvwEffects_->setCurrentItem(row);
        adding_ = false;
    }
}

void frmWizard::cmdPreview_Click() {
    dialogs_.Message(this, u"Preview not available yet!"_s, u"Effect - Preview"_s, MsgIcon::Information,
                     MsgButtons::Ok);
}

void frmWizard::cmdColor_Click() {
    frmColorEditor editor(dialogs_, this);
    editor.exec();
}

void frmWizard::lvwEffects_ItemClick(int row) {
    QTreeWidgetItem* item = lvwEffects_->topLevelItem(row);
    if (item == nullptr) return;
    if (lvwEffects_->currentItem() != item) lvwEffects_->setCurrentItem(item);
    txtParam1_->setText(item->text(1));
    txtParam2_->setText(item->text(2));

    const QString effect = item->text(kNameColumn);
    if (effect == u"Wave 2"_s) {
        lblParam1_->setText(u"No options"_s);
        lblParam2_->setText(u"No options"_s);
    } else if (effect == u"Bounce"_s) {
        lblParam1_->setText(u"Repeat"_s);
        lblParam2_->setText(u"No options"_s);
    } else {
        lblParam1_->setText(u"Parameter 1"_s);
        lblParam2_->setText(u"Parameter 2"_s);
    }
}

void frmWizard::txtParam_Change(int column, const QString& text) {
    // With no row selected the text just stays in the box.
    if (QTreeWidgetItem* row = SelectedRow()) row->setText(column, text);
}

QTreeWidgetItem* frmWizard::SelectedRow() const {
    QTreeWidgetItem* row = lvwEffects_->currentItem();
    return row != nullptr && row->isSelected() ? row : nullptr;
}

std::vector<EffectRow> frmWizard::EffectRows() const {
    std::vector<EffectRow> rows;
    rows.reserve(static_cast<std::size_t>(lvwEffects_->topLevelItemCount()));
    for (int i = 0; i < lvwEffects_->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* item = lvwEffects_->topLevelItem(i);
        rows.push_back({FromQString(item->text(0)), FromQString(item->text(1)), FromQString(item->text(2))});
    }
    return rows;
}

bool frmWizard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        if (watched == txtNameOnly_[0]) {
            optNameOnly_[0]->setChecked(true);
        } else if (watched == txtClanTag_ || watched == txtNameOnly_[1]) {
            optNameOnly_[1]->setChecked(true);
        }
    }
    return QDialog::eventFilter(watched, event);
}

}  // namespace fs::ui
