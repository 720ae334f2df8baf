#include "ui/WizardDialog.h"

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
#include "ui/AnimationHistory.h"
#include "ui/ColourNameEditor.h"
#include "ui/DialogWindow.h"
#include "ui/Dialogs.h"
#include "ui/LineLimit.h"
#include "ui/TextConv.h"
#include "ui/WizardDialogNames.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {

namespace names = wizard_names;
namespace {

// Columns of the effect list.
constexpr int kNameColumn = 0;

}  // namespace

WizardDialog::WizardDialog(AnimationHistory& history, Dialogs& dialogs, const settings::Settings& settings,
                           QWidget* parent)
    : QDialog(parent), history_(history), dialogs_(dialogs) {
    MakeFixedDialog(*this, names::kWindow, u"Animation Script Wizard"_s, kClientWidth, kClientHeight);
    // The main window stays usable while the wizard is open.
    setModal(false);
    BuildPage1();
    BuildPage2();
    BuildPage3();
    BuildPage4();
    BuildFrame();
    LoadDefaults(settings);
}

WizardDialog::~WizardDialog() = default;

void WizardDialog::LoadDefaults(const settings::Settings& settings) {
    effectChoice_->clear();
    effectChoice_->addItem(u"Wave 2"_s);
    effectChoice_->addItem(u"Bounce"_s);
    effectChoice_->setCurrentIndex(-1);

    clanTagBox_->setText(settings.clanTag);
    const int option = clanTagBox_->text().isEmpty() ? 0 : 1;
    nameBoxes_[static_cast<std::size_t>(option)]->setText(settings.name);
    nameOptions_[static_cast<std::size_t>(option)]->setChecked(true);
    tagBehindNameCheck_->setChecked(settings.reverse);

    pageCount_ = kPageCount;
    currentPage_ = 1;
    welcomeText_->setText(
        u"With this wizard, you can create cool animation effects in just a few minutes.\n\n"
        "Click Next to continue or Cancel to exit."_s);
    ShowPage();
}

// Shows the current page and hides its neighbours; paging moves one step at
// a time, so no other page can be on show.
void WizardDialog::ShowPage() {
    const auto page = [this](int number) { return pages_[static_cast<std::size_t>(number - 1)]; };
    switch (currentPage_) {
        case 1:
            backButton_->setEnabled(false);
            sidePicture_->show();
            page(1)->show();
            page(2)->hide();
            break;
        case 2:
            backButton_->setEnabled(true);
            page(2)->show();
            sidePicture_->hide();
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
    nextButton_->setText(currentPage_ == pageCount_ ? u"Finish"_s : u"Next >"_s);
}

void WizardDialog::NextPage() {
    if (currentPage_ < pageCount_) {
        ++currentPage_;
        ShowPage();
    } else {
        Finish();
    }
}

void WizardDialog::PreviousPage() {
    if (currentPage_ > 1) {
        --currentPage_;
        ShowPage();
    }
}

void WizardDialog::AskToLeave() {
    if (dialogs_.Message(this, u"Are you sure you want to exit the wizard?"_s, u"Exit wizard?"_s,
                         MsgIcon::Question, MsgButtons::YesNo) == MsgAnswer::Yes) {
        close();
    }
}

void WizardDialog::reject() {
    AskToLeave();
}

void WizardDialog::closeEvent(QCloseEvent* event) {
    // Leaving by the close box asks nothing. QDialog's own handling would
    // route it through reject(), which asks.
    event->accept();
}

void WizardDialog::Finish() {
    // The boxes of the selected option count; the other option's text is ignored.
    const bool nameOnly = nameOptions_[0]->isChecked();
    const std::string name = FromQString(nameBoxes_[nameOnly ? 0 : 1]->text());
    const std::string clanTag = nameOnly ? std::string() : FromQString(clanTagBox_->text());
    const bool reverse = tagBehindNameCheck_->isChecked();

    const YesNoQuestion ask = [this](const std::string& title, const std::string& text) {
        return dialogs_.Message(this, ToQString(text), ToQString(title), MsgIcon::Question,
                                MsgButtons::YesNo) == MsgAnswer::Yes;
    };
    const EffectRunResult result = history_.ReplaceLines(u"Wizard"_s, [&](AnimationScript& script) {
        return RunEffectList(script, name, clanTag, reverse, EffectRows(), ask);
    });
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

void WizardDialog::AddEffect() {
    const int chosen = effectChoice_->currentIndex();
    if (chosen < 0) return;
    auto* row = new QTreeWidgetItem({effectChoice_->itemText(chosen), u"0"_s, u"0"_s});
    const bool first = effectList_->topLevelItemCount() == 0;
    effectList_->addTopLevelItem(row);
    if (first) {
        // The first row of an empty list becomes the selected one, but only a
        // click loads its parameters.
        adding_ = true;
        effectList_->setCurrentItem(row);
        adding_ = false;
    }
}

void WizardDialog::ShowEffectPreview() {
    dialogs_.Message(this, u"Preview not available yet!"_s, u"Effect - Preview"_s, MsgIcon::Information,
                     MsgButtons::Ok);
}

void WizardDialog::ShowColourNameEditor() {
    ColourNameEditor editor(dialogs_, this);
    editor.exec();
}

void WizardDialog::LoadEffectRow(int row) {
    QTreeWidgetItem* item = effectList_->topLevelItem(row);
    if (item == nullptr) return;
    if (effectList_->currentItem() != item) effectList_->setCurrentItem(item);
    parameter1Box_->setText(item->text(1));
    parameter2Box_->setText(item->text(2));

    // Bounce repeats; Wave 2 takes no options.
    const bool bounce = item->text(kNameColumn) == u"Bounce"_s;
    parameter1Label_->setText(bounce ? u"Repeat"_s : u"No options"_s);
    parameter2Label_->setText(u"No options"_s);
}

void WizardDialog::StoreParameter(int column, const QString& text) {
    // With no row selected the text just stays in the box.
    if (QTreeWidgetItem* row = SelectedRow()) row->setText(column, text);
}

QTreeWidgetItem* WizardDialog::SelectedRow() const {
    QTreeWidgetItem* row = effectList_->currentItem();
    return row != nullptr && row->isSelected() ? row : nullptr;
}

std::vector<EffectRow> WizardDialog::EffectRows() const {
    std::vector<EffectRow> rows;
    rows.reserve(static_cast<std::size_t>(effectList_->topLevelItemCount()));
    for (int i = 0; i < effectList_->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* item = effectList_->topLevelItem(i);
        rows.push_back({FromQString(item->text(0)), FromQString(item->text(1)), FromQString(item->text(2))});
    }
    return rows;
}

bool WizardDialog::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        if (watched == nameBoxes_[0]) {
            nameOptions_[0]->setChecked(true);
        } else if (watched == clanTagBox_ || watched == nameBoxes_[1]) {
            nameOptions_[1]->setChecked(true);
        }
    }
    return QDialog::eventFilter(watched, event);
}

}  // namespace flickerscribe::ui
