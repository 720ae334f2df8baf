#include "ui/MainWindow.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "colour/ColouredText.h"
#include "picture/FramePainter.h"
#include "settings/SettingsStore.h"
#include "ui/ColourButtons.h"
#include "ui/DialogWindow.h"
#include "ui/LineListView.h"
#include "ui/MainIcons.h"
#include "ui/MainWindowNames.h"
#include "ui/MenuButtonAccessible.h"
#include "ui/OneLineRichEdit.h"
#include "ui/PaneStyle.h"
#include "ui/RichPane.h"
#include "ui/ScriptModel.h"
#include "ui/TextConv.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {
namespace names = main_window_names;
}

namespace flickerscribe::ui {

namespace {

// The window's first size under its menu bar, and its narrowest, in pixels.
constexpr int kClientWidth = 531;
constexpr int kClientHeight = 451;
constexpr int kMinimumWidth = 500;
// The pane, and the colour strip beside it, are one line high.
constexpr int kPaneTop = 2;
constexpr int kPaneHeight = 33;
constexpr int kStripWidth = 249;
constexpr int kColourButtons = 8;

QFont ListFont() {
    QFont font(u"Courier New"_s);
    font.setStyleHint(QFont::TypeWriter);
    font.setPointSizeF(9.75);
    return font;
}

QAction* AddEntry(QMenu* menu, const QString& name, const QString& caption,
                  const QList<QKeySequence>& shortcuts = {}) {
    QAction* action = menu->addAction(caption);
    action->setObjectName(name);
    action->setShortcuts(shortcuts);
    return action;
}

void AddSeparator(QMenu* menu, const QString& name) {
    menu->addSeparator()->setObjectName(name);
}

// The window-wide shortcuts of the Edit menu, which work on lines and on the
// animation's history wherever the focus is.
bool IsLineShortcut(const QKeyEvent* event, const QList<QAction*>& lineActions) {
    const QKeySequence pressed(event->keyCombination());
    return std::any_of(lineActions.begin(), lineActions.end(),
                       [&](const QAction* action) { return action->shortcuts().contains(pressed); });
}

}  // namespace

MainWindow::MainWindow(Dialogs& dialogs, settings::SettingsStore& store, QString keptFolder, QWidget* parent)
    : QMainWindow(parent), dialogs_(dialogs), store_(store), kept_(std::move(keptFolder)) {
    setObjectName(names::kWindow);
    setWindowTitle(tr("Flickerscribe - by [QZT]Quillon"));
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

    setMinimumWidth(kMinimumWidth);
    resize(kClientWidth, kClientHeight + menuBar()->sizeHint().height());
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());

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
    QMenu* file = menuBar()->addMenu(tr("File"));
    file->setObjectName(names::kFileMenu);
    connect(AddEntry(file, names::kNewEntry, tr("New")), &QAction::triggered, this,
            [this] { NewAnimation(); });
    connect(AddEntry(file, names::kOpenEntry, tr("Open")), &QAction::triggered, this,
            [this] { OpenAnimation(); });
    connect(AddEntry(file, names::kImportEntry, tr("Import")), &QAction::triggered, this,
            [this] { ImportScript(); });
    reopenAction_ = AddEntry(file, names::kReopenEntry, tr("Reopen last animation"));
    connect(reopenAction_, &QAction::triggered, this, [this] { ReopenLastAnimation(); });
    keptMenu_ = file->addMenu(tr("Kept animations"));
    keptMenu_->setObjectName(names::kKeptMenu);
    connect(keptMenu_, &QMenu::aboutToShow, this, [this] { FillKeptMenu(); });
    connect(file, &QMenu::aboutToShow, this, [this] { UpdateReopenAction(); });
    AddSeparator(file, names::kFileSeparator1);
    AddEntry(file, names::kSaveEntry, tr("Save"))->setEnabled(false);
    connect(AddEntry(file, names::kSaveAsEntry, tr("Save As")), &QAction::triggered, this,
            [this] { SaveAnimationAs(); });
    connect(AddEntry(file, names::kExportPictureEntry, tr("Export animated picture..."),
                     {QKeySequence(Qt::CTRL | Qt::Key_E)}),
            &QAction::triggered, this, [this] { ExportPicture(); });
    AddSeparator(file, names::kFileSeparator2);
    connect(AddEntry(file, names::kExitEntry, tr("Exit")), &QAction::triggered, this, [this] { Exit(); });

    QMenu* edit = menuBar()->addMenu(tr("Edit"));
    edit->setObjectName(names::kEditMenu);
    undoAction_ =
        AddEntry(edit, names::kUndoEntry, tr("Undo"), QKeySequence::keyBindings(QKeySequence::Undo));
    connect(undoAction_, &QAction::triggered, this, [this] { Undo(); });
    // Ctrl+Y and Ctrl+Shift+Z on every desktop, whatever else it binds.
    QList<QKeySequence> redoKeys = QKeySequence::keyBindings(QKeySequence::Redo);
    for (const QKeySequence& key :
         {QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)})
        if (!redoKeys.contains(key)) redoKeys << key;
    redoAction_ = AddEntry(edit, names::kRedoEntry, tr("Redo"), redoKeys);
    connect(redoAction_, &QAction::triggered, this, [this] { Redo(); });
    AddSeparator(edit, names::kEditSeparator0);
    QAction* cut = AddEntry(edit, names::kCutEntry, tr("Cut"), QKeySequence::keyBindings(QKeySequence::Cut));
    connect(cut, &QAction::triggered, this, [this] { CutLine(); });
    QAction* copy =
        AddEntry(edit, names::kCopyEntry, tr("Copy"), QKeySequence::keyBindings(QKeySequence::Copy));
    connect(copy, &QAction::triggered, this, [this] { CopyLine(); });
    QAction* paste =
        AddEntry(edit, names::kPasteEntry, tr("Paste"), QKeySequence::keyBindings(QKeySequence::Paste));
    connect(paste, &QAction::triggered, this, [this] { PasteLine(); });
    lineActions_ = {undoAction_, redoAction_, cut, copy, paste};
    AddSeparator(edit, names::kEditSeparator1);
    showColoursAction_ = AddEntry(edit, names::kShowColoursEntry, tr("Show colors"));
    showColoursAction_->setCheckable(true);
    connect(showColoursAction_, &QAction::triggered, this, [this] { ToggleColours(); });
    connect(AddEntry(edit, names::kColourNameEditorEntry, tr("Color name editor")), &QAction::triggered, this,
            [this] { ShowColourNameEditor(); });
    connect(AddEntry(edit, names::kSimpleEditEntry, tr("Simple Edit")), &QAction::triggered, this,
            [this] { ShowSimpleEdit(); });
    AddSeparator(edit, names::kEditSeparator2);
    connect(AddEntry(edit, names::kOptionsEntry, tr("Options")), &QAction::triggered, this,
            [this] { ShowOptions(); });

    QMenu* help = menuBar()->addMenu(tr("Help"));
    help->setObjectName(names::kHelpMenu);
    connect(AddEntry(help, names::kHelpEntry, tr("Help!")), &QAction::triggered, this,
            [this] { ShowHelp(); });
    AddSeparator(help, names::kHelpSeparator);
    connect(AddEntry(help, names::kAboutEntry, tr("About"), {QKeySequence(Qt::Key_F1)}), &QAction::triggered,
            this, [this] { ShowAbout(); });
}

void MainWindow::BuildToolbar() {
    toolbar_ = addToolBar(tr("Toolbar"));
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
        std::function<void()> command;
        QAction** kept = nullptr;  // where the window keeps the action
    };
    const Button buttons[] = {
        {names::kNewButton, tr("New"), tr("New Animation Script"), u"new"_s, [this] { NewAnimation(); }},
        {names::kOpenButton, tr("Open"), tr("Open Animation Script"), u"open"_s, [this] { OpenAnimation(); }},
        {names::kSaveButton, tr("Save"), tr("Save Animation Script"), u"save"_s,
         [this] { SaveAnimationAs(); }},
        {},
        {names::kAddButton, tr("Add"), tr("Add line"), u"add"_s, [this] { AddLine(true); }, &addAction_},
        {names::kRemoveButton, tr("Remove"), tr("Remove Line"), u"remove"_s, [this] { RemoveSelectedLine(); },
         &removeAction_},
        {names::kEditButton, tr("Edit"), tr("Edit Line"), u"edit"_s, [this] { EditSelectedLine(); }},
        {},
        {names::kWizardButton, tr("Wizard"), tr("Animation Script Wizard"), u"wizard"_s,
         [this] { ShowWizard(); }},
        {names::kPlayButton, tr("Play"), tr("Preview animation"), u"play"_s, [this] { TogglePlayback(); },
         &playAction_},
        {names::kGenerateButton, tr("Generate"), tr("Generate Brennock Script"), u"generate"_s,
         [this] { GenerateScript(); }},
    };
    for (const Button& b : buttons) {
        if (b.name.isEmpty()) {
            toolbar_->addSeparator();
            continue;
        }
        QAction* action = toolbar_->addAction(ToolbarIcon(b.image), b.caption);
        action->setObjectName(b.name);
        action->setToolTip(b.tip);
        connect(action, &QAction::triggered, this, b.command);
        if (b.kept != nullptr) *b.kept = action;
    }

    // The Add button's drop-down menu.
    auto* addMenu = new QMenu(this);
    addMenu->setObjectName(names::kAddMenu);
    const std::tuple<QString, QString, std::function<void()>> entries[] = {
        {names::kAddBeforeEntry, tr("Before selection"), [this] { AddLine(false); }},
        {names::kAddAfterEntry, tr("After selection"), [this] { AddLine(true); }},
        {},
        {names::kCopySelectedEntry, tr("Copy selected line"), [this] { CopyLines(CopyMode::SelectedLine); }},
        {names::kCopySelectedTimesEntry, tr("Copy selected line x times"),
         [this] { CopyLines(CopyMode::SelectedLineTimes); }},
        {},
        {names::kCopyAllEntry, tr("Copy all lines"), [this] { CopyLines(CopyMode::AllLines); }},
        {names::kCopyAllReversedEntry, tr("Copy all lines (reverse)"),
         [this] { CopyLines(CopyMode::AllLinesReversed); }},
    };
    for (const auto& [name, caption, command] : entries) {
        if (name.isEmpty()) {
            addMenu->addSeparator();
            continue;
        }
        QAction* entry = addMenu->addAction(caption);
        entry->setObjectName(name);
        connect(entry, &QAction::triggered, this, command);
    }
    // Playback swaps these two images on its button.
    playAction_->setIcon(playIcon_);

    QAction* add = addAction_;
    if (auto* button = qobject_cast<QToolButton*>(toolbar_->widgetForAction(add))) {
        // The button's own menu: through it the entries reach the
        // accessibility tree, as the menu bar's entries do. It has to come
        // before the action's menu, which would otherwise stand in for the
        // menu's own action and push the button's action out.
        button->setMenu(addMenu);
        button->setPopupMode(QToolButton::MenuButtonPopup);
        GiveMenuButtonItsPressAction(button);
    }
    add->setMenu(addMenu);

    // One width for "Play" and "Stop": no button moves when playback starts.
    if (auto* button = qobject_cast<QToolButton*>(toolbar_->widgetForAction(playAction_))) {
        int width = button->sizeHint().width();
        playAction_->setText(tr("Stop"));
        width = std::max(width, button->sizeHint().width());
        playAction_->setText(tr("Play"));
        button->setMinimumWidth(width);
    }
}

void MainWindow::BuildControls() {
    client_ = new QWidget(this);
    client_->setObjectName(names::kClientArea);
    setCentralWidget(client_);

    auto* pane = new OneLineRichEdit(client_);
    pane->setObjectName(names::kPane);
    // The font the animated picture draws its frames in, too.
    styleGreyPane(pane, picture::PreviewFont());
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
    lineList_->setColumnWidth(0, 333);
    lineList_->setColumnWidth(1, 96);
    lineList_->setColumnWidth(2, 96);
    // Tab leaves the list for the colour strip rather than walking its cells.
    lineList_->setTabKeyNavigation(false);
    lineList_->setShowGrid(false);
    lineList_->setWordWrap(false);
    lineList_->installEventFilter(this);
    connect(lineList_, &LineListView::KeyPressed, this, &MainWindow::OnListKeyPress);
    connect(lineList_, &QAbstractItemView::clicked, this, [this](const QModelIndex& index) {
        if (index.isValid()) ShowClickedLine(ScriptModel::LineOfRow(index.row()));
    });
    // The user's move of the current row selects that line; the script's own
    // changes of its selection move the current row.
    connect(lineList_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) {
                if (model_->Changing() || !current.isValid()) return;
                const int line = ScriptModel::LineOfRow(current.row());
                if (line != script_.SelectedIndex()) script_.SelectLine(line);
            });
    connect(model_, &ScriptModel::SelectedLineChanged, this, [this](int index) {
        if (index == 0) {
            lineList_->selectionModel()->clear();
        } else {
            lineList_->selectionModel()->setCurrentIndex(
                model_->IndexOfLine(index), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        }
        // Typing into another line is a step of its own.
        history_.EndTyping();
        KeepPaneOnSelectedLine();
    });
    connect(model_, &QAbstractItemModel::dataChanged, this, [this] { KeepPaneOnSelectedLine(); });
    connect(model_, &QAbstractItemModel::modelReset, this, [this] { KeepPaneOnSelectedLine(); });
    // What the list's in-place editor commits is a step like any other edit.
    connect(model_, &ScriptModel::TextEdited, this, [this](int index, const QString& text) {
        history_.SetText(tr("Edit text"), index, FromQString(text));
    });

    colourStrip_ = new QWidget(client_);
    colourStrip_->setObjectName(names::kColourStrip);
    colourButtons_ = addColourButtons(colourStripRow(colourStrip_), kColourButtons);
    for (int index = 0; index < kColourButtons; ++index)
        connect(colourButtons_[static_cast<std::size_t>(index)], &QPushButton::clicked, this,
                [this, index] { PaintSelection(index); });
    colourStrip_->hide();

    // The pane, with the strip beside it when shown, and under them the list,
    // which takes whatever room the window has.
    paneEdit_->setFixedHeight(kPaneHeight);
    colourStrip_->setFixedSize(kStripWidth, kPaneHeight);
    auto* top = new QHBoxLayout;
    top->setSpacing(0);
    top->addWidget(paneEdit_);
    top->addWidget(colourStrip_);
    auto* layout = new QVBoxLayout(client_);
    layout->setContentsMargins(0, kPaneTop, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(top);
    layout->addWidget(lineList_, 1);

    setTabOrder(paneEdit_, lineList_);
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
    if (watched == paneEdit_ || watched == lineList_) {
        if (event->type() == QEvent::ShortcutOverride &&
            IsLineShortcut(static_cast<QKeyEvent*>(event), lineActions_)) {
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
    history_.ReplaceLines(tr("New"), [](AnimationScript& script) { script.ClearLines(); });
}

void MainWindow::ToggleColours() {
    coloursVisible_ = !coloursVisible_;
    showColoursAction_->setChecked(coloursVisible_);
    colourStrip_->setVisible(coloursVisible_);
}

void MainWindow::LoadSettings() {
    settings_ = settings::LoadSettings(store_);
    // Only the Text column can be edited in place, by a click on the line
    // that is already selected, and only when the setting is on.
    lineList_->setEditTriggers(settings_.editInPlace ? QAbstractItemView::SelectedClicked
                                                     : QAbstractItemView::NoEditTriggers);
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
