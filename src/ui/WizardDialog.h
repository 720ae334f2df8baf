#pragma once

#include <QDialog>
#include <array>
#include <vector>

#include "effects/EffectRun.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
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
// and the name, tag and reverse flag of the settings.
class WizardDialog : public QDialog {
    Q_OBJECT

public:
    static constexpr int kPageCount = 4;
    // The window is 7530 x 5790 twips from edge to edge; a fixed single border
    // of 45 twips on each side and a caption bar of 315 leave this client area.
    static constexpr int kClientWidth = 7440;
    static constexpr int kClientHeight = 5385;

    WizardDialog(AnimationHistory& history, Dialogs& dialogs, const settings::Settings& settings,
                 QWidget* parent = nullptr);
    ~WizardDialog() override;

    int CurrentPage() const { return currentPage_; }

    // One page on; on the last page, Finish.
    void NextPage();
    void PreviousPage();
    // Asks whether to leave; Yes closes the window and leaves the script alone.
    void AskToLeave();
    // Adds the effect chosen in the drop-down list as a new last row.
    void AddEffect();
    void ShowEffectPreview();
    // Opens the colour name editor over the wizard and waits for it.
    void ShowColourNameEditor();
    // Loads the parameters and their labels from `row` (0-based).
    void LoadEffectRow(int row);

    // The rows of the effect list, first to last.
    std::vector<EffectRow> EffectRows() const;

protected:
    // Esc and Cancel ask first; the close box leaves at once.
    void reject() override;
    void closeEvent(QCloseEvent* event) override;
    // A name or tag box that takes the focus selects its option.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildFrame();
    void BuildPage1();
    void BuildPage2();
    void BuildPage3();
    void BuildPage4();
    QWidget* AddBandPage(int page, const QString& heading, const QString& line);

    void LoadDefaults(const settings::Settings& settings);
    void ShowPage();
    void Finish();
    void StoreParameter(int column, const QString& text);
    QTreeWidgetItem* SelectedRow() const;

    AnimationHistory& history_;
    Dialogs& dialogs_;
    int currentPage_ = 1;
    int pageCount_ = kPageCount;
    // Set while "Add" makes the first row current, which must not load it.
    bool adding_ = false;

    QLabel* sidePicture_ = nullptr;
    std::array<QWidget*, kPageCount> pages_{};
    QLabel* welcomeHeading_ = nullptr;
    QLabel* welcomeText_ = nullptr;

    QGroupBox* styleFrame_ = nullptr;
    std::array<QRadioButton*, 2> styleOptions_{};

    QGroupBox* nameFrame_ = nullptr;
    std::array<QRadioButton*, 2> nameOptions_{};
    std::array<QLineEdit*, 2> nameBoxes_{};
    QLineEdit* clanTagBox_ = nullptr;
    QCheckBox* tagBehindNameCheck_ = nullptr;
    QPushButton* colourEditorButton_ = nullptr;

    QGroupBox* effectsFrame_ = nullptr;
    QComboBox* effectChoice_ = nullptr;
    QPushButton* addEffectButton_ = nullptr;
    QPushButton* effectPreviewButton_ = nullptr;
    QLabel* effectListLabel_ = nullptr;
    QTreeWidget* effectList_ = nullptr;
    QLabel* parameter1Label_ = nullptr;
    QLineEdit* parameter1Box_ = nullptr;
    QLabel* parameter2Label_ = nullptr;
    QLineEdit* parameter2Box_ = nullptr;

    QPushButton* backButton_ = nullptr;
    QPushButton* nextButton_ = nullptr;
    QPushButton* cancelButton_ = nullptr;
};

}  // namespace flickerscribe::ui
