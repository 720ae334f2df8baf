#include "ui/MainWindow.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include "colour/ColouredText.h"
#include "settings/SettingsStore.h"
#include "ui/ColourButtons.h"
#include "ui/DialogWindow.h"
#include "ui/LineListView.h"
#include "ui/MainIcons.h"
#include "ui/MainLayout.h"
#include "ui/MainWindowNames.h"
#include "ui/OneLineRichEdit.h"
#include "ui/PaneStyle.h"
#include "ui/RichPane.h"
#include "ui/ScriptModel.h"
#include "ui/TextConv.h"
#include "ui/Twips.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {
namespace names = main_window_names;
}

namespace flickerscribe::ui {

namespace {

constexpr int kClientWidth = 7965;
constexpr int kClientHeight = 6765;
constexpr int kColourButtons = 8;
constexpr int kColourButtonsTop = 50;

QFont ListFont() {
    QFont font(u"Courier New"_s);
    font.setStyleHint(QFont::TypeWriter);
    font.setPointSizeF(9.75);
    return font;
}

QAction* AddEntry(QMenu* menu, const QString& name, const QString& caption,
                  const QKeySequence& shortcut = QKeySequence()) {
    QAction* action = menu->addAction(caption);
    action->setObjectName(name);
    if (!shortcut.isEmpty()) action->setShortcut(shortcut);
    return action;
}

void AddSeparator(QMenu* menu, const QString& name) {
    menu->addSeparator()->setObjectName(name);
}

// The window-wide shortcuts of the Edit menu, which work on lines and on the
// animation's history wherever the focus is.
bool IsLineShortcut(const QKeyEvent* event) {
    const QKeyCombination combination = event->keyCombination();
    for (const Qt::Key key : {Qt::Key_X, Qt::Key_C, Qt::Key_V, Qt::Key_Z, Qt::Key_Y})
        if (combination == QKeyCombination(Qt::ControlModifier, key)) return true;
    return combination == QKeyCombination(Qt::ControlModifier | Qt::ShiftModifier, Qt::Key_Z);
}

}  // namespace

MainWindow::MainWindow(Dialogs& dialogs, settings::SettingsStore& store, QString keptFolder, QWidget* parent)
    : QMainWindow(parent), dialogs_(dialogs), store_(store), kept_(std::move(keptFolder)) {
    setObjectName(names::kWindow);
    setWindowTitle(u"Flickerscribe - by [QZT]Quillon"_s);
    setWindowIcon(AppIcon());
    playIcon_ = ToolbarIcon(u"play"_s);
    stopIcon_ = ToolbarIcon(u"stop"_s);

    BuildMenus();
    BuildToolbar();
    BuildControls();

    playTimer_ = new QTimer(this);
    playTimer_->setObjectName(names::kPlayTimer);
    playTimer_->setInterval(100);
    connect(playTimer_, &QTimer::timeout, this, [this] { ShowNextFrame(); });

    // The animation is kept at most 30 seconds after the first change that
    // its file doesn't hold yet, however the work goes on meanwhile; at the
    // end of the program; and when the desktop session ends.
    keepTimer_ = new QTimer(this);
    keepTimer_->setObjectName(names::kKeepTimer);
    keepTimer_->setSingleShot(true);
    keepTimer_->setInterval(30'000);
    connect(keepTimer_, &QTimer::timeout, this, [this] { KeepAnimation(); });
    connect(&history_, &AnimationHistory::Changed, this, [this] {
        keptCurrent_ = false;
        if (!keepTimer_->isActive()) keepTimer_->start();
        UpdateUndoActions();
    });
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this] { KeepAnimation(); });
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { KeepAnimation(); });

    setMinimumWidth(MinimumWindowWidth());
    resize(Twips(kClientWidth), Twips(kClientHeight) + menuBar()->sizeHint().height());
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());

    // Enter on a focused colour button presses it.
    PressFocusedButtonOnEnter(*this);
    // The strip starts hidden; the settings apply, and the empty list shows
    // "Preview" in a locked pane.
    coloursVisible_ = false;
    LoadSettings();
    SetPreview();
    UpdateUndoActions();
    UpdateReopenAction();
}

MainWindow::~MainWindow() {
    // The model listens to the script, which goes before the widgets do: the
    // model goes first, and the list is left without one.
    delete model_;
}

Pane& MainWindow::PreviewPane() {
    return *preview_;
}

void MainWindow::BuildMenus() {
    QMenu* file = menuBar()->addMenu(u"File"_s);
    file->setObjectName(names::kFileMenu);
    connect(AddEntry(file, names::kNewEntry, u"New"_s), &QAction::triggered, this,
            [this] { NewAnimation(); });
    connect(AddEntry(file, names::kOpenEntry, u"Open"_s), &QAction::triggered, this,
            [this] { OpenAnimation(); });
    connect(AddEntry(file, names::kImportEntry, u"Import"_s), &QAction::triggered, this,
            [this] { ImportScript(); });
    reopenAction_ = AddEntry(file, names::kReopenEntry, u"Reopen last animation"_s);
    connect(reopenAction_, &QAction::triggered, this, [this] { ReopenLastAnimation(); });
    keptMenu_ = file->addMenu(u"Kept animations"_s);
    keptMenu_->setObjectName(names::kKeptMenu);
    connect(keptMenu_, &QMenu::aboutToShow, this, [this] { FillKeptMenu(); });
    connect(file, &QMenu::aboutToShow, this, [this] { UpdateReopenAction(); });
    AddSeparator(file, names::kFileSeparator1);
    AddEntry(file, names::kSaveEntry, u"Save"_s)->setEnabled(false);
    connect(AddEntry(file, names::kSaveAsEntry, u"Save As"_s), &QAction::triggered, this,
            [this] { SaveAnimationAs(); });
    AddSeparator(file, names::kFileSeparator2);
    connect(AddEntry(file, names::kExitEntry, u"Exit"_s), &QAction::triggered, this, [this] { Exit(); });

    QMenu* edit = menuBar()->addMenu(u"Edit"_s);
    edit->setObjectName(names::kEditMenu);
    undoAction_ = AddEntry(edit, names::kUndoEntry, u"Undo"_s, QKeySequence(Qt::CTRL | Qt::Key_Z));
    connect(undoAction_, &QAction::triggered, this, [this] { Undo(); });
    redoAction_ = AddEntry(edit, names::kRedoEntry, u"Redo"_s, QKeySequence(Qt::CTRL | Qt::Key_Y));
    redoAction_->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
    connect(redoAction_, &QAction::triggered, this, [this] { Redo(); });
    AddSeparator(edit, names::kEditSeparator0);
    connect(AddEntry(edit, names::kCutEntry, u"Cut"_s, QKeySequence(Qt::CTRL | Qt::Key_X)),
            &QAction::triggered, this, [this] { CutLine(); });
    connect(AddEntry(edit, names::kCopyEntry, u"Copy"_s, QKeySequence(Qt::CTRL | Qt::Key_C)),
            &QAction::triggered, this, [this] { CopyLine(); });
    connect(AddEntry(edit, names::kPasteEntry, u"Paste"_s, QKeySequence(Qt::CTRL | Qt::Key_V)),
            &QAction::triggered, this, [this] { PasteLine(); });
    AddSeparator(edit, names::kEditSeparator1);
    showColoursAction_ = AddEntry(edit, names::kShowColoursEntry, u"Show colors"_s);
    showColoursAction_->setCheckable(true);
    connect(showColoursAction_, &QAction::triggered, this, [this] { ToggleColours(); });
    connect(AddEntry(edit, names::kColourNameEditorEntry, u"Color name editor"_s), &QAction::triggered, this,
            [this] { ShowColourNameEditor(); });
    connect(AddEntry(edit, names::kSimpleEditEntry, u"Simple Edit"_s), &QAction::triggered, this,
            [this] { ShowSimpleEdit(); });
    AddSeparator(edit, names::kEditSeparator2);
    connect(AddEntry(edit, names::kOptionsEntry, u"Options"_s), &QAction::triggered, this,
            [this] { ShowOptions(); });

    QMenu* help = menuBar()->addMenu(u"Help"_s);
    help->setObjectName(names::kHelpMenu);
    connect(AddEntry(help, names::kHelpEntry, u"Help!"_s), &QAction::triggered, this, [this] { ShowHelp(); });
    AddSeparator(help, names::kHelpSeparator);
    connect(AddEntry(help, names::kAboutEntry, u"About"_s, QKeySequence(Qt::Key_F1)), &QAction::triggered,
            this, [this] { ShowAbout(); });
}

void MainWindow::BuildToolbar() {
    toolbar_ = addToolBar(u"Toolbar"_s);
    toolbar_->setObjectName(names::kToolbar);
    toolbar_->setMovable(false);
    toolbar_->toggleViewAction()->setEnabled(false);
    toolbar_->setContextMenuPolicy(Qt::PreventContextMenu);
    toolbar_->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    toolbar_->setIconSize(QSize(27, 32));

    struct Button {
        QString name;  // empty for a separator
        QString caption;
        QString tip;
        QString image;
    };
    const Button buttons[] = {
        {names::kNewButton, u"New"_s, u"New Animation Script"_s, u"new"_s},
        {names::kOpenButton, u"Open"_s, u"Open Animation Script"_s, u"open"_s},
        {names::kSaveButton, u"Save"_s, u"Save Animation Script"_s, u"save"_s},
        {},
        {names::kAddButton, u"Add"_s, u"Add line"_s, u"add"_s},
        {names::kRemoveButton, u"Remove"_s, u"Remove Line"_s, u"remove"_s},
        {names::kEditButton, u"Edit"_s, u"Edit Line"_s, u"edit"_s},
        {},
        {names::kWizardButton, u"Wizard"_s, u"Animation Script Wizard"_s, u"wizard"_s},
        {names::kPlayButton, u"Play"_s, u"Preview animation"_s, u"play"_s},
        {names::kGenerateButton, u"Generate"_s, u"Generate Brennock Script"_s, u"generate"_s},
    };
    for (const Button& b : buttons) {
        if (b.name.isEmpty()) {
            toolbar_->addSeparator();
            continue;
        }
        QAction* action = toolbar_->addAction(ToolbarIcon(b.image), b.caption);
        action->setObjectName(b.name);
        action->setToolTip(b.tip);
        connect(action, &QAction::triggered, this, [this, key = b.name] { RunToolbarCommand(key); });
    }

    // The Add button's drop-down menu.
    auto* addMenu = new QMenu(this);
    addMenu->setObjectName(names::kAddMenu);
    const std::pair<QString, QString> entries[] = {
        {names::kAddBeforeEntry, u"Before selection"_s},
        {names::kAddAfterEntry, u"After selection"_s},
        {},
        {names::kCopySelectedEntry, u"Copy selected line"_s},
        {names::kCopySelectedTimesEntry, u"Copy selected line x times"_s},
        {},
        {names::kCopyAllEntry, u"Copy all lines"_s},
        {names::kCopyAllReversedEntry, u"Copy all lines (reverse)"_s},
    };
    for (const auto& [name, caption] : entries) {
        if (name.isEmpty()) {
            addMenu->addSeparator();
            continue;
        }
        QAction* entry = addMenu->addAction(caption);
        entry->setObjectName(name);
        connect(entry, &QAction::triggered, this, [this, key = name] { RunAddMenuCommand(key); });
    }
    // Playback swaps these two images on its button.
    ToolbarAction(names::kPlayButton)->setIcon(playIcon_);

    QAction* add = ToolbarAction(names::kAddButton);
    if (auto* button = qobject_cast<QToolButton*>(toolbar_->widgetForAction(add))) {
        // The button's own menu: through it the entries reach the
        // accessibility tree, as the menu bar's entries do. It has to come
        // before the action's menu, which would otherwise stand in for the
        // menu's own action and push the button's action out.
        button->setMenu(addMenu);
        button->setPopupMode(QToolButton::MenuButtonPopup);
    }
    add->setMenu(addMenu);

    // One width for "Play" and "Stop": no button moves when playback starts.
    QAction* play = ToolbarAction(names::kPlayButton);
    if (auto* button = qobject_cast<QToolButton*>(toolbar_->widgetForAction(play))) {
        int width = button->sizeHint().width();
        play->setText(u"Stop"_s);
        width = std::max(width, button->sizeHint().width());
        play->setText(u"Play"_s);
        button->setMinimumWidth(width);
    }
}

void MainWindow::BuildControls() {
    client_ = new QWidget(this);
    client_->setObjectName(names::kClientArea);
    setCentralWidget(client_);

    auto* pane = new OneLineRichEdit(client_);
    pane->setObjectName(names::kPane);
    QFont paneFont = BoldFont(u"Courier New"_s, 14.25, QFont::TypeWriter);
    // A name of single characters in ever new colours needs no shaping: this
    // keeps the longest text fast to draw.
    paneFont.setStyleStrategy(QFont::PreferNoShaping);
    paneFont.setKerning(false);
    StyleGreyPane(pane, paneFont);
    pane->document()->setDocumentMargin(2);
    // The pane keeps no history of its own: Undo is the animation's.
    pane->setUndoRedoEnabled(false);
    paneEdit_ = pane;
    preview_ = std::make_unique<RichPane>(paneEdit_);
    connect(paneEdit_, &QTextEdit::textChanged, this, [this] { OnPaneEdited(); });
    paneEdit_->installEventFilter(this);
    paneEdit_->viewport()->installEventFilter(this);

    lineList_ = new LineListView(client_);
    lineList_->setObjectName(names::kLineList);
    lineList_->setFont(ListFont());
    model_ = new ScriptModel(script_, this);
    lineList_->setModel(model_);
    lineList_->verticalHeader()->hide();
    lineList_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    lineList_->verticalHeader()->setDefaultSectionSize(QFontMetrics(lineList_->font()).height() + 4);
    lineList_->horizontalHeader()->setHighlightSections(false);
    lineList_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    lineList_->horizontalHeader()->setSectionsClickable(false);
    lineList_->setColumnWidth(0, Twips(5000));
    lineList_->setColumnWidth(1, Twips(1440));
    lineList_->setColumnWidth(2, Twips(1440));
    // Tab leaves the list for the colour strip rather than walking its cells.
    lineList_->setTabKeyNavigation(false);
    lineList_->setShowGrid(false);
    lineList_->setWordWrap(false);
    lineList_->setGeometry(0, ListTop(), Twips(5415), Twips(4335));
    lineList_->installEventFilter(this);
    connect(lineList_, &LineListView::KeyPressed, this, &MainWindow::OnListKeyPress);
    connect(lineList_, &QAbstractItemView::clicked, this, [this](const QModelIndex& index) {
        if (index.isValid()) ShowClickedLine(index.row() + 1);
    });
    // The user's move of the current row selects that line; the script's own
    // changes of its selection move the current row.
    connect(lineList_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) {
                if (model_->Changing() || !current.isValid()) return;
                if (current.row() + 1 != script_.SelectedIndex()) script_.SelectLine(current.row() + 1);
            });
    connect(model_, &ScriptModel::SelectedLineChanged, this, [this](int index) {
        if (index == 0) {
            lineList_->selectionModel()->clear();
        } else {
            lineList_->selectionModel()->setCurrentIndex(
                model_->index(index - 1, 0), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        }
        // Typing into another line is a step of its own.
        history_.EndTyping();
        KeepPaneOnSelectedLine();
    });
    connect(model_, &QAbstractItemModel::dataChanged, this, [this] { KeepPaneOnSelectedLine(); });
    connect(model_, &QAbstractItemModel::modelReset, this, [this] { KeepPaneOnSelectedLine(); });
    // What the list's in-place editor commits is a step like any other edit.
    connect(model_, &ScriptModel::TextEdited, this, [this](int index, const QString& text) {
        history_.SetText(u"Edit text"_s, index, FromQString(text));
    });

    colourStrip_ = new QWidget(client_);
    colourStrip_->setObjectName(names::kColourStrip);
    colourButtons_ = AddColourButtons(colourStrip_, kColourButtons, 0, kColourButtonsTop);
    for (int index = 0; index < kColourButtons; ++index)
        connect(colourButtons_[static_cast<std::size_t>(index)], &QPushButton::clicked, this,
                [this, index] { PaintSelection(index); });
    colourStrip_->hide();

    setTabOrder(paneEdit_, lineList_);
    client_->installEventFilter(this);
}

QAction* MainWindow::ToolbarAction(const QString& key) const {
    return toolbar_->findChild<QAction*>(key);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    const bool inPane = watched == paneEdit_ || watched == paneEdit_->viewport();
    if (inPane && paneShows_ == PaneShows::Frame && !Playing() &&
        (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress ||
         event->type() == QEvent::DragEnter)) {
        // A frame left by playback gives way to the selected line before the
        // user's click, key or drop reaches the pane.
        SetPreview();
    }
    if (watched == client_ && event->type() == QEvent::Resize) {
        LayOutControls();
    } else if (watched == paneEdit_ || watched == lineList_) {
        if (event->type() == QEvent::ShortcutOverride && IsLineShortcut(static_cast<QKeyEvent*>(event))) {
            // Not the widget's own cut, copy, paste, undo and redo of
            // characters: the Edit menu's commands on lines and the animation.
            return true;
        }
        if (watched == paneEdit_ && event->type() == QEvent::KeyPress) {
            const auto* key = static_cast<QKeyEvent*>(event);
            OnPaneKeyPress(key->key(), key->modifiers());
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::LayOutControls() {
    if (isMinimized() || client_ == nullptr) return;
    const MainLayout layout = LayOutMainWindow(client_->size(), coloursVisible_);
    paneEdit_->setGeometry(layout.pane);
    if (layout.stripVisible) {
        colourStrip_->setGeometry(layout.strip);
        colourStrip_->show();
    } else {
        colourStrip_->hide();
    }
    const int listHeight = layout.listHeight > 0 ? layout.listHeight : lineList_->height();
    lineList_->setGeometry(0, ListTop(), layout.listWidth, listHeight);
}

void MainWindow::SetPreview() {
    const bool wasBusy = previewBusy_;
    previewBusy_ = true;
    if (script_.Count() > 0) {
        preview_->SetLocked(false);
        shownText_ = script_.LineAt(script_.SelectedIndex()).Text;
        RenderCodedText(shownText_, *preview_);
        paneShows_ = PaneShows::Line;
    } else {
        preview_->SetLocked(true);
        preview_->SetText("Preview");
        paneShows_ = PaneShows::Placeholder;
    }
    previewBusy_ = wasBusy;
}

void MainWindow::KeepPaneOnSelectedLine() {
    if (writingFromPane_ || Playing()) return;
    const int selected = script_.SelectedIndex();
    const bool shown = selected == 0
                           ? paneShows_ == PaneShows::Placeholder
                           : paneShows_ == PaneShows::Line && shownText_ == script_.LineAt(selected).Text;
    if (!shown) SetPreview();
}

void MainWindow::NewAnimation() {
    history_.ReplaceLines(u"New"_s, [](AnimationScript& script) { script.ClearLines(); });
}

void MainWindow::ToggleColours() {
    coloursVisible_ = !coloursVisible_;
    showColoursAction_->setChecked(coloursVisible_);
    LayOutControls();
}

void MainWindow::LoadSettings() {
    settings_ = settings::LoadSettings(store_);
    // Only the Text column can be edited in place, by a click on the line
    // that is already selected, and only when the setting is on.
    lineList_->setEditTriggers(settings_.editInPlace ? QAbstractItemView::SelectedClicked
                                                     : QAbstractItemView::NoEditTriggers);
}

void MainWindow::RunToolbarCommand(const QString& key) {
    if (key == names::kNewButton) {
        NewAnimation();
    } else if (key == names::kOpenButton) {
        OpenAnimation();
    } else if (key == names::kSaveButton) {
        SaveAnimationAs();
    } else if (key == names::kAddButton) {
        AddLine(true);
    } else if (key == names::kRemoveButton) {
        RemoveSelectedLine();
    } else if (key == names::kEditButton) {
        EditSelectedLine();
    } else if (key == names::kWizardButton) {
        ShowWizard();
    } else if (key == names::kPlayButton) {
        TogglePlayback();
    } else if (key == names::kGenerateButton) {
        GenerateScript();
    }
}

void MainWindow::RunAddMenuCommand(const QString& key) {
    if (key == names::kAddBeforeEntry) {
        AddLine(false);
    } else if (key == names::kAddAfterEntry) {
        AddLine(true);
    } else if (key == names::kCopySelectedEntry) {
        CopyLines(1);
    } else if (key == names::kCopySelectedTimesEntry) {
        CopyLines(2);
    } else if (key == names::kCopyAllEntry) {
        CopyLines(3);
    } else if (key == names::kCopyAllReversedEntry) {
        CopyLines(4);
    }
}

void MainWindow::ShowClickedLine(int index) {
    script_.SelectLine(index);
    SetPreview();
}

void MainWindow::Exit() {
    // No question and nothing written: every window goes at once.
    close();
    QCoreApplication::quit();
}

}  // namespace flickerscribe::ui
