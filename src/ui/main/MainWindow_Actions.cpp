#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <functional>
#include <tuple>

#include "ui/main/MainIcons.h"
#include "ui/main/MainWindow.h"
#include "ui/main/MainWindowNames.h"
#include "ui/widgets/MenuButtonAccessible.h"

using namespace Qt::Literals::StringLiterals;

// The main window's actions: the menus and the toolbar, each entry connected
// to the command it runs.

namespace flickerscribe::ui {

namespace names = main_window_names;

namespace {

QAction* addEntry(QMenu* menu, const QString& name, const QString& caption,
                  const QList<QKeySequence>& shortcuts = {}) {
    QAction* action = menu->addAction(caption);
    action->setObjectName(name);
    action->setShortcuts(shortcuts);
    return action;
}

void addSeparator(QMenu* menu, const QString& name) {
    menu->addSeparator()->setObjectName(name);
}

// The window-wide shortcuts of the Edit menu, which work on lines and on the
// animation's history wherever the focus is.

}  // namespace

void MainWindow::buildMenus() {
    QMenu* file = menuBar()->addMenu(tr("File"));
    file->setObjectName(names::kFileMenu);
    connect(addEntry(file, names::kNewEntry, tr("New")), &QAction::triggered, this,
            [this] { newAnimation(); });
    connect(addEntry(file, names::kOpenEntry, tr("Open")), &QAction::triggered, this,
            [this] { openAnimation(); });
    connect(addEntry(file, names::kImportEntry, tr("Import")), &QAction::triggered, this,
            [this] { importScript(); });
    reopenAction_ = addEntry(file, names::kReopenEntry, tr("Reopen last animation"));
    connect(reopenAction_, &QAction::triggered, this, [this] { reopenLastAnimation(); });
    keptMenu_ = file->addMenu(tr("Kept animations"));
    keptMenu_->setObjectName(names::kKeptMenu);
    connect(keptMenu_, &QMenu::aboutToShow, this, [this] { fillKeptMenu(); });
    connect(file, &QMenu::aboutToShow, this, [this] { updateReopenAction(); });
    addSeparator(file, names::kFileSeparator1);
    addEntry(file, names::kSaveEntry, tr("Save"))->setEnabled(false);
    connect(addEntry(file, names::kSaveAsEntry, tr("Save As")), &QAction::triggered, this,
            [this] { saveAnimationAs(); });
    connect(addEntry(file, names::kExportPictureEntry, tr("Export animated picture..."),
                     {QKeySequence(Qt::CTRL | Qt::Key_E)}),
            &QAction::triggered, this, [this] { exportPicture(); });
    addSeparator(file, names::kFileSeparator2);
    connect(addEntry(file, names::kExitEntry, tr("Exit")), &QAction::triggered, this, [this] { exit(); });

    QMenu* edit = menuBar()->addMenu(tr("Edit"));
    edit->setObjectName(names::kEditMenu);
    undoAction_ =
        addEntry(edit, names::kUndoEntry, tr("Undo"), QKeySequence::keyBindings(QKeySequence::Undo));
    connect(undoAction_, &QAction::triggered, this, [this] { undo(); });
    // Ctrl+Y and Ctrl+Shift+Z on every desktop, whatever else it binds.
    QList<QKeySequence> redoKeys = QKeySequence::keyBindings(QKeySequence::Redo);
    for (const QKeySequence& key :
         {QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)})
        if (!redoKeys.contains(key)) redoKeys << key;
    redoAction_ = addEntry(edit, names::kRedoEntry, tr("Redo"), redoKeys);
    connect(redoAction_, &QAction::triggered, this, [this] { redo(); });
    addSeparator(edit, names::kEditSeparator0);
    QAction* cut = addEntry(edit, names::kCutEntry, tr("Cut"), QKeySequence::keyBindings(QKeySequence::Cut));
    connect(cut, &QAction::triggered, this, [this] { cutLine(); });
    QAction* copy =
        addEntry(edit, names::kCopyEntry, tr("Copy"), QKeySequence::keyBindings(QKeySequence::Copy));
    connect(copy, &QAction::triggered, this, [this] { copyLine(); });
    QAction* paste =
        addEntry(edit, names::kPasteEntry, tr("Paste"), QKeySequence::keyBindings(QKeySequence::Paste));
    connect(paste, &QAction::triggered, this, [this] { pasteLine(); });
    lineActions_ = {undoAction_, redoAction_, cut, copy, paste};
    addSeparator(edit, names::kEditSeparator1);
    showColoursAction_ = addEntry(edit, names::kShowColoursEntry, tr("Show colors"));
    showColoursAction_->setCheckable(true);
    connect(showColoursAction_, &QAction::triggered, this, [this] { toggleColours(); });
    connect(addEntry(edit, names::kColourNameEditorEntry, tr("Color name editor")), &QAction::triggered, this,
            [this] { showColourNameEditor(); });
    connect(addEntry(edit, names::kSimpleEditEntry, tr("Simple Edit")), &QAction::triggered, this,
            [this] { showSimpleEdit(); });
    addSeparator(edit, names::kEditSeparator2);
    connect(addEntry(edit, names::kOptionsEntry, tr("Options")), &QAction::triggered, this,
            [this] { showOptions(); });

    QMenu* help = menuBar()->addMenu(tr("Help"));
    help->setObjectName(names::kHelpMenu);
    connect(addEntry(help, names::kHelpEntry, tr("Help!")), &QAction::triggered, this,
            [this] { showHelp(); });
    addSeparator(help, names::kHelpSeparator);
    connect(addEntry(help, names::kAboutEntry, tr("About"), {QKeySequence(Qt::Key_F1)}), &QAction::triggered,
            this, [this] { showAbout(); });
}

void MainWindow::buildToolbar() {
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
        {names::kNewButton, tr("New"), tr("New Animation Script"), u"new"_s, [this] { newAnimation(); }},
        {names::kOpenButton, tr("Open"), tr("Open Animation Script"), u"open"_s, [this] { openAnimation(); }},
        {names::kSaveButton, tr("Save"), tr("Save Animation Script"), u"save"_s,
         [this] { saveAnimationAs(); }},
        {},
        {names::kAddButton, tr("Add"), tr("Add line"), u"add"_s, [this] { addLine(true); }, &addAction_},
        {names::kRemoveButton, tr("Remove"), tr("Remove Line"), u"remove"_s, [this] { removeSelectedLine(); },
         &removeAction_},
        {names::kEditButton, tr("Edit"), tr("Edit Line"), u"edit"_s, [this] { editSelectedLine(); }},
        {},
        {names::kWizardButton, tr("Wizard"), tr("Animation Script Wizard"), u"wizard"_s,
         [this] { showWizard(); }},
        {names::kPlayButton, tr("Play"), tr("Preview animation"), u"play"_s, [this] { togglePlayback(); },
         &playAction_},
        {names::kGenerateButton, tr("Generate"), tr("Generate Brennock Script"), u"generate"_s,
         [this] { generateScript(); }},
    };
    for (const Button& b : buttons) {
        if (b.name.isEmpty()) {
            toolbar_->addSeparator();
            continue;
        }
        QAction* action = toolbar_->addAction(toolbarIcon(b.image), b.caption);
        action->setObjectName(b.name);
        action->setToolTip(b.tip);
        connect(action, &QAction::triggered, this, b.command);
        if (b.kept != nullptr) *b.kept = action;
    }

    // The Add button's drop-down menu.
    auto* addMenu = new QMenu(this);
    addMenu->setObjectName(names::kAddMenu);
    const std::tuple<QString, QString, std::function<void()>> entries[] = {
        {names::kAddBeforeEntry, tr("Before selection"), [this] { addLine(false); }},
        {names::kAddAfterEntry, tr("After selection"), [this] { addLine(true); }},
        {},
        {names::kCopySelectedEntry, tr("Copy selected line"), [this] { copyLines(CopyMode::SelectedLine); }},
        {names::kCopySelectedTimesEntry, tr("Copy selected line x times"),
         [this] { copyLines(CopyMode::SelectedLineTimes); }},
        {},
        {names::kCopyAllEntry, tr("Copy all lines"), [this] { copyLines(CopyMode::AllLines); }},
        {names::kCopyAllReversedEntry, tr("Copy all lines (reverse)"),
         [this] { copyLines(CopyMode::AllLinesReversed); }},
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
        giveMenuButtonItsPressAction(button);
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

}  // namespace flickerscribe::ui
