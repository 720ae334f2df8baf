#pragma once

#include <QWizard>
#include <array>
#include <vector>

#include "effects/EffectRun.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace flickerscribe::settings {
struct Settings;
}

namespace flickerscribe::ui {

class AnimationHistory;
class Dialogs;

// The animation wizard: four pages on which the user gives a name, an optional
// clan tag and a list of effects. Finish replaces the whole script with what
// the effect engine makes of them and closes the window. It is shown beside
// the main window, not over it, and touches the script only at Finish.
// Every opening is a new window: it starts on page 1 with an empty effect list
// and the name, tag and reverse flag of the settings. The page ids are the
// page numbers, 1 to 4.
class WizardDialog : public QWizard {
    Q_OBJECT

public:
    // The effects the list offers.
    enum class Effect { Wave2, Bounce };
    Q_ENUM(Effect)

    WizardDialog(AnimationHistory& history, Dialogs& dialogs, const settings::Settings& settings,
                 QWidget* parent = nullptr);
    ~WizardDialog() override;

    // Finish: runs the effect list into the script, then closes.
    void accept() override;
    // Esc and Cancel ask first; Yes closes and leaves the script alone.
    void reject() override;

protected:
    // The close box leaves at once, without the question.
    void closeEvent(QCloseEvent* event) override;
    // A name or tag box that takes the focus selects its option.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum Page { WelcomePage = 1, StylePage, NamePage, EffectsPage };

    void addWelcomePage();
    void addStylePage();
    void addNamePage();
    void addEffectsPage();
    void setUpButtons();
    void loadDefaults(const settings::Settings& settings);

    // Adds the effect chosen in the drop-down list as a new last row.
    void addEffect();
    void showEffectPreview();
    // Opens the colour name editor over the wizard and waits for it.
    void showColourNameEditor();
    // Shows the parameters of `row` and names them as its effect does.
    void loadEffectRow(QTreeWidgetItem* row);
    void storeParameter(int column, const QString& text);
    QTreeWidgetItem* selectedRow() const;
    // The rows of the effect list, first to last, as the engine takes them.
    std::vector<EffectRow> effectRows() const;

    AnimationHistory& history_;
    Dialogs& dialogs_;

    std::array<QRadioButton*, 2> styleOptions_{};

    std::array<QRadioButton*, 2> nameOptions_{};
    std::array<QLineEdit*, 2> nameBoxes_{};
    QLineEdit* clanTagBox_ = nullptr;
    QCheckBox* tagBehindNameCheck_ = nullptr;

    QComboBox* effectChoice_ = nullptr;
    QTreeWidget* effectList_ = nullptr;
    QLabel* parameter1Label_ = nullptr;
    QLineEdit* parameter1Box_ = nullptr;
    QLabel* parameter2Label_ = nullptr;
    QLineEdit* parameter2Box_ = nullptr;
};

}  // namespace flickerscribe::ui
