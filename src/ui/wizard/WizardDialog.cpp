#include "ui/wizard/WizardDialog.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTreeWidget>

#include "document/AnimationScript.h"
#include "settings/Settings.h"
#include "ui/common/AnimationHistory.h"
#include "ui/common/Dialogs.h"
#include "ui/common/LineLimit.h"
#include "ui/common/TextConv.h"
#include "ui/dialogs/ColourNameEditor.h"
#include "ui/dialogs/DialogWindow.h"
#include "ui/wizard/WizardDialogNames.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {

namespace names = wizard_names;
namespace {

// The effect list's rows carry their effect in the first column.
constexpr int kEffectRole = Qt::UserRole;

// The name by which the effect engine knows an effect.
std::string engineName(WizardDialog::Effect effect) {
    return effect == WizardDialog::Effect::Bounce ? "Bounce" : "Wave 2";
}

}  // namespace

WizardDialog::WizardDialog(AnimationHistory& history, Dialogs& dialogs, const settings::Settings& settings,
                           QWidget* parent)
    : QWizard(parent), history_(history), dialogs_(dialogs) {
    // The wizard keeps one size, 502 x 386 pixels with its frame and caption:
    // the pages and the side picture are drawn for it.
    setUpDialog(*this, names::kWindow, tr("Animation Script Wizard"), WindowSize::Fixed);
    setFixedSize(496, 359);
    // A white header over each page, the picture down the side of the first.
    setWizardStyle(QWizard::ModernStyle);
    // The etched lines under the header and over the buttons: a dark grey one
    // over a white one.
    QPalette lines = palette();
    lines.setColor(QPalette::Mid, QColor(128, 128, 128));
    setPalette(lines);
    // The main window stays usable while the wizard is open.
    setModal(false);
    addWelcomePage();
    addStylePage();
    addNamePage();
    addEffectsPage();
    setUpButtons();
    loadDefaults(settings);
}

WizardDialog::~WizardDialog() = default;

void WizardDialog::setUpButtons() {
    setButtonText(BackButton, tr("< Back"));
    setButtonText(NextButton, tr("Next >"));
    setButtonText(FinishButton, tr("Finish"));
    setButtonText(CancelButton, tr("Cancel"));
    button(BackButton)->setObjectName(names::kBackButton);
    button(CancelButton)->setObjectName(names::kCancelButton);
    // Next and Finish stand in the same place, one at a time; the one on show
    // carries the name of that place.
    const auto nameNextOrFinish = [this](int page) {
        const bool last = page == EffectsPage;
        button(NextButton)->setObjectName(last ? QString() : names::kNextButton);
        button(FinishButton)->setObjectName(last ? names::kNextButton : QString());
    };
    connect(this, &QWizard::currentIdChanged, this, nameNextOrFinish);
    nameNextOrFinish(WelcomePage);
}

void WizardDialog::loadDefaults(const settings::Settings& settings) {
    clanTagBox_->setText(settings.clanTag);
    const int option = clanTagBox_->text().isEmpty() ? 0 : 1;
    nameBoxes_[static_cast<std::size_t>(option)]->setText(settings.name);
    nameOptions_[static_cast<std::size_t>(option)]->setChecked(true);
    tagBehindNameCheck_->setChecked(settings.reverse);
}

void WizardDialog::reject() {
    if (dialogs_.message(this, tr("Are you sure you want to exit the wizard?"), tr("Exit wizard?"),
                         MsgIcon::Question, MsgButtons::YesNo) == MsgAnswer::Yes) {
        QWizard::reject();
    }
}

void WizardDialog::closeEvent(QCloseEvent* event) {
    // QDialog's own handling would route the close box through reject(),
    // which asks.
    event->accept();
}

void WizardDialog::accept() {
    // The boxes of the selected option count; the other option's text is ignored.
    const bool nameOnly = nameOptions_[0]->isChecked();
    const std::string name = fromQString(nameBoxes_[nameOnly ? 0 : 1]->text());
    const std::string clanTag = nameOnly ? std::string() : fromQString(clanTagBox_->text());
    const bool reverse = tagBehindNameCheck_->isChecked();

    const YesNoQuestion ask = [this](const std::string& title, const std::string& text) {
        return dialogs_.message(this, toQString(text), toQString(title), MsgIcon::Question,
                                MsgButtons::YesNo) == MsgAnswer::Yes;
    };
    const EffectRunResult result = history_.replaceLines(tr("Wizard"), [&](AnimationScript& script) {
        return RunEffectList(script, name, clanTag, reverse, effectRows(), ask);
    });
    if (result.inputRefused) {
        dialogs_.message(
            this,
            tr("A name or a clan tag can hold at most %1 characters. The animation was left as it was.")
                .arg(kMaxEffectTextLength),
            tr("Animation Script Wizard"), MsgIcon::Exclamation, MsgButtons::Ok);
    } else if (result.lineLimitReached) {
        showLineLimitMessage(dialogs_, this);
    }
    QWizard::accept();
}

void WizardDialog::addEffect() {
    const int chosen = effectChoice_->currentIndex();
    if (chosen < 0) return;
    auto* row = new QTreeWidgetItem({effectChoice_->itemText(chosen), u"0"_s, u"0"_s});
    row->setData(0, kEffectRole, effectChoice_->itemData(chosen));
    const bool first = effectList_->topLevelItemCount() == 0;
    effectList_->addTopLevelItem(row);
    if (first) {
        // The first row of an empty list becomes the selected one, but only a
        // click loads its parameters.
        const QSignalBlocker quiet(effectList_);
        effectList_->setCurrentItem(row);
    }
}

void WizardDialog::showEffectPreview() {
    dialogs_.message(this, tr("Preview not available yet!"), tr("Effect - Preview"), MsgIcon::Information,
                     MsgButtons::Ok);
}

void WizardDialog::showColourNameEditor() {
    ColourNameEditor editor(dialogs_, this);
    editor.exec();
}

void WizardDialog::loadEffectRow(QTreeWidgetItem* row) {
    if (row == nullptr) return;
    parameter1Box_->setText(row->text(1));
    parameter2Box_->setText(row->text(2));
    // Bounce repeats; Wave 2 takes no options.
    const bool bounce = row->data(0, kEffectRole).value<Effect>() == Effect::Bounce;
    parameter1Label_->setText(bounce ? tr("Repeat") : tr("No options"));
    parameter2Label_->setText(tr("No options"));
}

void WizardDialog::storeParameter(int column, const QString& text) {
    // With no row selected the text just stays in the box.
    if (QTreeWidgetItem* row = selectedRow()) row->setText(column, text);
}

QTreeWidgetItem* WizardDialog::selectedRow() const {
    QTreeWidgetItem* row = effectList_->currentItem();
    return row != nullptr && row->isSelected() ? row : nullptr;
}

std::vector<EffectRow> WizardDialog::effectRows() const {
    std::vector<EffectRow> rows;
    rows.reserve(static_cast<std::size_t>(effectList_->topLevelItemCount()));
    for (int i = 0; i < effectList_->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* item = effectList_->topLevelItem(i);
        rows.push_back({engineName(item->data(0, kEffectRole).value<Effect>()), fromQString(item->text(1)),
                        fromQString(item->text(2))});
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
    return QWizard::eventFilter(watched, event);
}

}  // namespace flickerscribe::ui
