#pragma once

#include <QIcon>
#include <QMainWindow>
#include <QPointer>
#include <memory>
#include <vector>

#include "document/AnimationScript.h"
#include "settings/Settings.h"
#include "ui/Dialogs.h"

class QAction;
class QPushButton;
class QTextEdit;
class QTimer;
class QToolBar;

namespace fs {
class Pane;
}
namespace fs::settings {
class SettingsStore;
}

namespace fs::ui {

class LineListView;
class RichPane;
class ScriptModel;

// The main window: the line list, the preview pane, the colour strip, menus
// and toolbar. It owns the one animation for the life of the program.
//
// The commands live in files by concern: frmMain.cpp (the shell),
// frmMain_Playback.cpp, frmMain_LineCommands.cpp, frmMain_Clipboard.cpp,
// frmMain_Editing.cpp, frmMain_Files.cpp and frmMain_Windows.cpp.
class frmMain : public QMainWindow {
    Q_OBJECT

public:
    frmMain(Dialogs& dialogs, settings::SettingsStore& store, QWidget* parent = nullptr);
    ~frmMain() override;

    AnimationScript& Script() { return script_; }
    const AnimationScript& Script() const { return script_; }
    // The settings in memory, as LoadSettings last read them.
    const settings::Settings& Settings() const { return settings_; }
    // The preview pane txtPreview as the core's walks see it.
    Pane& PreviewPane();
    QTextEdit* PreviewEdit() const { return txtPreview_; }
    LineListView* ListView() const { return lvwMain_; }
    bool ColorsVisible() const { return colorsVisible_; }

    // While true, nothing that happens in the pane reaches a line: the
    // program's own drawing, and playback for as long as it runs.
    bool PreviewBusy = false;

    // --- the shell (frmMain.cpp)
    // Draws the selected line into the pane, or locks it with "Preview" when
    // the list is empty.
    void SetPreview();
    // Redraws the pane when it no longer shows the selected line: after the
    // selection moved, by whatever gesture or command, or the selected line's
    // text changed elsewhere than in the pane. Playback keeps its frames.
    void KeepPaneOnSelectedLine();
    void NewAnimation();
    void ToggleColors();
    // Reads the settings store into memory and applies the in-place edit mode.
    void LoadSettings();
    void tlbMain_ButtonClick(const QString& key);
    void tlbMain_ButtonMenuClick(const QString& key);
    // A click on the line with this 1-based index.
    void lvwMain_ItemClick(int index);
    void mnuFileExit_Click();
    // The layout rule: pane and strip on top, the list filling the rest.
    void Form_Resize();

    // --- playback (frmMain_Playback.cpp)
    void TogglePlayback();
    void timAni_Timer();
    bool Playing() const;

    // --- line commands (frmMain_LineCommands.cpp)
    void AddLine(bool after);
    void RemoveSelectedLine();
    void CopyLines(int mode);

    // --- clipboard (frmMain_Clipboard.cpp)
    void mnuEditCut_Click();
    void mnuEditCopy_Click();
    void mnuEditPaste_Click();

    // --- editing in the pane and the list (frmMain_Editing.cpp)
    void txtPreview_Change();
    void cmdColor_Click(int index);
    void txtPreview_KeyDown(int key, Qt::KeyboardModifiers modifiers);
    void lvwMain_KeyDown(int key, Qt::KeyboardModifiers modifiers);
    void EditSelectedLine();

    // --- files (frmMain_Files.cpp)
    void OpenAnimation();
    void SaveAnimationAs();
    void ImportScript();
    void GenerateScript();
    // The one file dialog of Open, Save As and Import: it keeps its file name
    // and folder between uses.
    FileDialogState dlgFileOps;

    // --- other windows (frmMain_Windows.cpp)
    void ShowWizard();
    void ShowColorEditor();
    void ShowSimpleEdit();
    void ShowOptions();
    void ShowHelp();
    void ShowAbout();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildMenus();
    void BuildToolbar();
    void BuildControls();
    void Form_Load();
    QAction* ToolbarAction(const QString& key) const;

    Dialogs& dialogs_;
    settings::SettingsStore& store_;
    AnimationScript script_;
    settings::Settings settings_;
    bool colorsVisible_ = false;
    // What the pane shows: "Preview", the selected line as `shownText_`
    // (drawn by SetPreview or typed in the pane), or a frame of playback.
    enum class PaneShows { Placeholder, Line, Frame };
    PaneShows paneShows_ = PaneShows::Placeholder;
    std::string shownText_;
    // Set while the pane writes its text to the line, which is no change to follow.
    bool writingFromPane_ = false;
    // The 1-based index of the next line that playback shows.
    int PlayIndex = 1;
    // The wizard, the one window shown beside this one, while it is open.
    QPointer<QWidget> wizard_;

    QToolBar* tlbMain_ = nullptr;
    QWidget* client_ = nullptr;
    QTextEdit* txtPreview_ = nullptr;
    std::unique_ptr<RichPane> preview_;
    QWidget* picColors_ = nullptr;
    std::vector<QPushButton*> cmdColor_;
    LineListView* lvwMain_ = nullptr;
    ScriptModel* model_ = nullptr;
    QTimer* timAni_ = nullptr;
    QAction* mnuEditShowColors_ = nullptr;
    QIcon imgplay_;
    QIcon imgstop_;
};

}  // namespace fs::ui
