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

namespace fs {
class AnimationScript;
}

namespace fs::settings {
struct Settings;
}

namespace fs::ui {

class Dialogs;

// The animation wizard: four pages on which the user gives a name, an optional
// clan tag and a list of effects. Finish replaces the whole script with what
// the effect engine makes of them and closes the window. It is shown beside
// the main window, not over it, and touches the script only at Finish.
// Every opening is a new window: it starts on page 1 with an empty effect list
// and the name, tag and reverse flag of the settings.
class frmWizard : public QDialog {
    Q_OBJECT

public:
    static constexpr int kPageCount = 4;
    // The window is 7530 x 5790 twips from edge to edge; a fixed single border
    // of 45 twips on each side and a caption bar of 315 leave this client area.
    static constexpr int kClientWidth = 7440;
    static constexpr int kClientHeight = 5385;

    frmWizard(AnimationScript& script, Dialogs& dialogs, const settings::Settings& settings,
              QWidget* parent = nullptr);
    ~frmWizard() override;

    int CurrentPage() const { return CurrentPage_; }

    // One page on; on the last page, Finish.
    void cmdNext_Click();
    void cmdBack_Click();
    // Asks whether to leave; Yes closes the window and leaves the script alone.
    void cmdCancel_Click();
    // Adds the effect chosen in the drop-down list as a new last row.
    void cmdAddEffect_Click();
    void cmdPreview_Click();
    // Opens the colour name editor over the wizard and waits for it.
    void cmdColor_Click();
    // Loads the parameters and their labels from `row` (0-based).
    void lvwEffects_ItemClick(int row);

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

    void Form_Load(const settings::Settings& settings);
    void ShowPage();
    void Finish();
    void txtParam_Change(int column, const QString& text);
    QTreeWidgetItem* SelectedRow() const;

    AnimationScript& script_;
    Dialogs& dialogs_;
    int CurrentPage_ = 1;
    int PageCount_ = kPageCount;
    // Set while "Add" makes the first row current, which must not load it.
    bool adding_ = false;

    QLabel* imgPage1_ = nullptr;
    std::array<QWidget*, kPageCount> picPage_{};
    QLabel* lblWelcome_ = nullptr;
    QLabel* lblText_ = nullptr;

    QGroupBox* fraWizStyle_ = nullptr;
    std::array<QRadioButton*, 2> optWizStyle_{};

    QGroupBox* fraName_ = nullptr;
    std::array<QRadioButton*, 2> optNameOnly_{};
    std::array<QLineEdit*, 2> txtNameOnly_{};
    QLineEdit* txtClanTag_ = nullptr;
    QCheckBox* chkClanTag_ = nullptr;
    QPushButton* cmdColor_ = nullptr;

    QGroupBox* fraEffects_ = nullptr;
    QComboBox* cmbEffects_ = nullptr;
    QPushButton* cmdAddEffect_ = nullptr;
    QPushButton* cmdPreview_ = nullptr;
    QLabel* lblEffectList_ = nullptr;
    QTreeWidget* lvwEffects_ = nullptr;
    QLabel* lblParam1_ = nullptr;
    QLineEdit* txtParam1_ = nullptr;
    QLabel* lblParam2_ = nullptr;
    QLineEdit* txtParam2_ = nullptr;

    QPushButton* cmdBack_ = nullptr;
    QPushButton* cmdNext_ = nullptr;
    QPushButton* cmdCancel_ = nullptr;
};

}  // namespace fs::ui
