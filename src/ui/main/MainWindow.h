#pragma once

#include <QIcon>
#include <QMainWindow>
#include <QPointer>
#include <memory>
#include <vector>

#include "document/AnimationScript.h"
#include "settings/Settings.h"
#include "ui/common/AnimationHistory.h"
#include "ui/common/Dialogs.h"
#include "ui/main/KeptAnimations.h"

class QAction;
class QLabel;
class QMenu;
class QPushButton;
class QTextEdit;
class QTimer;
class QToolBar;

namespace flickerscribe {
class Pane;
enum class LoadStatus;
}  // namespace flickerscribe
namespace flickerscribe::settings {
class SettingsStore;
}

namespace flickerscribe::ui {

class LineListView;
class RichPane;
class ScriptModel;

// The main window: the line list, the preview pane, the colour strip, menus
// and toolbar. It owns the one animation for the life of the program.
//
// The commands live in files by concern: MainWindow.cpp (the shell),
// MainWindow_Actions.cpp (the menus and the toolbar),
// MainWindow_Playback.cpp, MainWindow_LineCommands.cpp, MainWindow_Clipboard.cpp,
// MainWindow_Editing.cpp, MainWindow_Files.cpp and MainWindow_Windows.cpp.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    // The window shows and changes `animation`, which outlives it: the one
    // animation of the program. `keptFolder` is where runs keep their
    // animations (none when empty).
    MainWindow(AnimationScript& animation, Dialogs& dialogs, settings::SettingsStore& store,
               QString keptFolder = {}, QWidget* parent = nullptr);
    ~MainWindow() override;

public slots:
    // Open of a file named without the dialog: the one the program was
    // started with (a project file opened from the desktop).
    void openAnimationFile(const QString& path);
    // Ends the program at once, asking nothing; the animation is kept.
    void exit();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    // --- the shell (MainWindow.cpp)
    // Draws the selected line into the pane, or locks it with "Preview" when
    // the list is empty.
    void setPreview();
    // The list's current row, and the pane, follow the animation's selected
    // line (1-based; 0 for none).
    void followSelectedLine(int index);
    // Redraws the pane when it no longer shows the selected line: after the
    // selection moved, by whatever gesture or command, or the selected line's
    // text changed elsewhere than in the pane. Playback keeps its frames.
    void keepPaneOnSelectedLine();
    void newAnimation();
    void toggleColours();
    // Reads the settings store into memory and applies the in-place edit mode.
    void loadSettings();
    // A click on the line with this 1-based index.
    void showClickedLine(int index);

    // --- playback (MainWindow_Playback.cpp)
    void togglePlayback();
    void showNextFrame();
    bool playing() const;

    // --- line commands (MainWindow_LineCommands.cpp)
    // Which lines the Add button's copy entries copy behind the last line.
    enum class CopyMode { SelectedLine, SelectedLineTimes, AllLines, AllLinesReversed };
    void addLine(bool after);
    void removeSelectedLine();
    void copyLines(CopyMode mode);

    // --- clipboard (MainWindow_Clipboard.cpp)
    void cutLine();
    void copyLine();
    void pasteLine();

    // --- editing in the pane and the list (MainWindow_Editing.cpp)
    void onPaneEdited();
    void paintSelection(int index);
    void onPaneKeyPress(int key);
    void onListKeyPress(int key);
    void editSelectedLine();

    // --- files (MainWindow_Files.cpp)
    void openAnimation();
    void saveAnimationAs();
    void importScript();
    void generateScript();
    // The animation as an animated GIF (MainWindow_Picture.cpp).
    void exportPicture();
    // --- undo, redo and the kept animation (MainWindow_History.cpp)
    void undo();
    void redo();
    // Writes the animation to this run's kept file, when there are lines and
    // the file doesn't hold them yet. A failure shows in the status bar and is
    // tried again by the timer and at the end, never in a message box.
    void keepAnimation();
    // Loads the newest animation that another run kept, like Open.
    void reopenLastAnimation();
    // Loads a kept animation like Open.
    void openKeptAnimation(const QString& path);

    // --- other windows (MainWindow_Windows.cpp)
    void showWizard();
    void showColourNameEditor();
    void showSimpleEdit();
    void showOptions();
    void showHelp();
    void showAbout();

    void buildMenus();
    void buildToolbar();
    void buildControls();
    void writePaneToLine(const QString& stepName, bool typing);
    // Undo and Redo are on while there is something to take back or do again
    // and no playback runs; their captions name the step.
    void updateUndoActions();
    void updateReopenAction();
    void fillKeptMenu();
    void showKeepProblem(const std::optional<SaveError>& error);
    // Replaces the list by what `load` reads from `path`, as one step; a file
    // that can't be read gets `notFound` as a stop message titled `title`, and
    // a file cut at the line limit the limit's message.
    using FileLoader = LoadStatus (*)(const std::string& path, AnimationScript& script);
    void loadIntoList(const QString& stepName, const QString& path, FileLoader load, const QString& notFound,
                      const QString& title);

    Dialogs& dialogs_;
    settings::SettingsStore& store_;
    AnimationScript& script_;
    AnimationHistory history_{script_};
    KeptAnimations kept_;
    bool keptCurrent_ = true;  // this run's kept file holds the animation of the moment
    QTimer* keepTimer_ = nullptr;
    QMenu* keptMenu_ = nullptr;
    QLabel* keepProblem_ = nullptr;
    QAction* undoAction_ = nullptr;
    QAction* redoAction_ = nullptr;
    QAction* reopenAction_ = nullptr;
    // Undo, Redo, Cut, Copy and Paste: their keys work on lines and the
    // animation wherever the focus is, never on the characters of a box.
    QList<QAction*> lineActions_;
    settings::Settings settings_;
    bool coloursVisible_ = false;
    // The one file dialog of Open, Save As and Import: it keeps its file name
    // and folder between uses.
    FileDialogState fileDialog_;
    // What the pane shows: "Preview", the selected line as `shownText_`
    // (drawn by setPreview or typed in the pane), or a frame of playback.
    enum class PaneShows { Placeholder, Line, Frame };
    PaneShows paneShows_ = PaneShows::Placeholder;
    std::string shownText_;
    // The 1-based index of the next line that playback shows.
    int playIndex_ = 1;
    // The wizard, the one window shown beside this one, while it is open.
    QPointer<QWidget> wizard_;

    QToolBar* toolbar_ = nullptr;
    QWidget* client_ = nullptr;
    QTextEdit* paneEdit_ = nullptr;
    std::unique_ptr<RichPane> preview_;
    QWidget* colourStrip_ = nullptr;
    std::vector<QPushButton*> colourButtons_;
    LineListView* lineList_ = nullptr;
    ScriptModel* model_ = nullptr;
    QTimer* playTimer_ = nullptr;
    QAction* addAction_ = nullptr;
    QAction* removeAction_ = nullptr;
    QAction* playAction_ = nullptr;
    QAction* showColoursAction_ = nullptr;
    QIcon playIcon_;
    QIcon stopIcon_;
};

}  // namespace flickerscribe::ui
