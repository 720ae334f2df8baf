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
#include "ui/OneLineRichEdit.h"
#include "ui/PaneStyle.h"
#include "ui/RichPane.h"
#include "ui/ScriptModel.h"
#include "ui/Twips.h"

using namespace Qt::Literals::StringLiterals;

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

// The window-wide shortcuts of the Edit menu, which work on lines wherever
// the focus is.
bool IsLineShortcut(const QKeyEvent* event) {
    const QKeyCombination combination = event->keyCombination();
    return combination == QKeyCombination(Qt::ControlModifier, Qt::Key_X) ||
           combination == QKeyCombination(Qt::ControlModifier, Qt::Key_C) ||
           combination == QKeyCombination(Qt::ControlModifier, Qt::Key_V);
}

}  // namespace

MainWindow::MainWindow(Dialogs& dialogs, settings::SettingsStore& store, QWidget* parent)
    : QMainWindow(parent), dialogs_(dialogs), store_(store) {
    setObjectName(u"frmMain"_s);
    setWindowTitle(u"Flickerscribe - by [QZT]Quillon"_s);
    setWindowIcon(AppIcon());
    playIcon_ = ToolbarIcon(u"imgplay"_s);
    stopIcon_ = ToolbarIcon(u"imgstop"_s);

    BuildMenus();
    BuildToolbar();
    BuildControls();

    playTimer_ = new QTimer(this);
    playTimer_->setObjectName(u"timAni"_s);
    playTimer_->setInterval(100);
    connect(playTimer_, &QTimer::timeout, this, [this] { ShowNextFrame(); });

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
}

MainWindow::~MainWindow() {
    // The model listens to the script, which goes before the widgets do.
    lineList_->setModel(nullptr);
    delete model_;
}

Pane& MainWindow::PreviewPane() {
    return *preview_;
}

void MainWindow::BuildMenus() {
    QMenu* file = menuBar()->addMenu(u"File"_s);
    file->setObjectName(u"mnuFile"_s);
    connect(AddEntry(file, u"mnuFileNew"_s, u"New"_s), &QAction::triggered, this, [this] { NewAnimation(); });
    connect(AddEntry(file, u"mnuFileOpen"_s, u"Open"_s), &QAction::triggered, this,
            [this] { OpenAnimation(); });
    connect(AddEntry(file, u"mnuFileImport"_s, u"Import"_s), &QAction::triggered, this,
            [this] { ImportScript(); });
    AddSeparator(file, u"mnuFileLine"_s);
    AddEntry(file, u"mnuFileSave"_s, u"Save"_s)->setEnabled(false);
    connect(AddEntry(file, u"mnuFileSaveAs"_s, u"Save As"_s), &QAction::triggered, this,
            [this] { SaveAnimationAs(); });
    AddSeparator(file, u"mnuFileLine2"_s);
    connect(AddEntry(file, u"mnuFileExit"_s, u"Exit"_s), &QAction::triggered, this,
            [this] { Exit(); });

    QMenu* edit = menuBar()->addMenu(u"Edit"_s);
    edit->setObjectName(u"mnuEdit"_s);
    connect(AddEntry(edit, u"mnuEditCut"_s, u"Cut"_s, QKeySequence(Qt::CTRL | Qt::Key_X)),
            &QAction::triggered, this, [this] { CutLine(); });
    connect(AddEntry(edit, u"mnuEditCopy"_s, u"Copy"_s, QKeySequence(Qt::CTRL | Qt::Key_C)),
            &QAction::triggered, this, [this] { CopyLine(); });
    connect(AddEntry(edit, u"mnuEditPaste"_s, u"Paste"_s, QKeySequence(Qt::CTRL | Qt::Key_V)),
            &QAction::triggered, this, [this] { PasteLine(); });
    AddSeparator(edit, u"mnuEditLine"_s);
    showColoursAction_ = AddEntry(edit, u"mnuEditShowColors"_s, u"Show colors"_s);
    showColoursAction_->setCheckable(true);
    connect(showColoursAction_, &QAction::triggered, this, [this] { ToggleColours(); });
    connect(AddEntry(edit, u"mnuHelpColor"_s, u"Color name editor"_s), &QAction::triggered, this,
            [this] { ShowColourNameEditor(); });
    connect(AddEntry(edit, u"mnuEditSimple"_s, u"Simple Edit"_s), &QAction::triggered, this,
            [this] { ShowSimpleEdit(); });
    AddSeparator(edit, u"mnuEditLine3"_s);
    connect(AddEntry(edit, u"mnuEditOptions"_s, u"Options"_s), &QAction::triggered, this,
            [this] { ShowOptions(); });

    QMenu* help = menuBar()->addMenu(u"Help"_s);
    help->setObjectName(u"mnuHelp"_s);
    connect(AddEntry(help, u"mnuHelpHelp"_s, u"Help!"_s), &QAction::triggered, this, [this] { ShowHelp(); });
    AddSeparator(help, u"mnuHelpLine1"_s);
    connect(AddEntry(help, u"mnuHelpAbout"_s, u"About"_s, QKeySequence(Qt::Key_F1)), &QAction::triggered,
            this, [this] { ShowAbout(); });
}

void MainWindow::BuildToolbar() {
    toolbar_ = addToolBar(u"Toolbar"_s);
    toolbar_->setObjectName(u"tlbMain"_s);
    toolbar_->setMovable(false);
    toolbar_->setFloatable(false);
    toolbar_->toggleViewAction()->setEnabled(false);
    toolbar_->setContextMenuPolicy(Qt::PreventContextMenu);
    toolbar_->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    toolbar_->setIconSize(QSize(27, 32));

    struct Button {
        const char16_t* key;
        const char16_t* caption;
        const char16_t* tip;
        const char16_t* image;
    };
    static constexpr Button kButtons[] = {
        {u"btnnew", u"New", u"New Animation Script", u"imgnew"},
        {u"btnopen", u"Open", u"Open Animation Script", u"imgopen"},
        {u"btnsave", u"Save", u"Save Animation Script", u"imgsave"},
        {nullptr, nullptr, nullptr, nullptr},
        {u"btnadd", u"Add", u"Add line", u"imgadd"},
        {u"btnremove", u"Remove", u"Remove Line", u"imgremove"},
        {u"btnedit", u"Edit", u"Edit Line", u"imgedit"},
        {nullptr, nullptr, nullptr, nullptr},
        {u"btnwizard", u"Wizard", u"Animation Script Wizard", u"imgwizard"},
        {u"btnpreview", u"Play", u"Preview animation", u"imgplay"},
        {u"btngenerate", u"Generate", u"Generate Brennock Script", u"imggenerate"},
    };
    for (const Button& b : kButtons) {
        if (b.key == nullptr) {
            toolbar_->addSeparator();
            continue;
        }
        const QString key = QString::fromUtf16(b.key);
        QAction* action =
            toolbar_->addAction(ToolbarIcon(QString::fromUtf16(b.image)), QString::fromUtf16(b.caption));
        action->setObjectName(key);
        action->setToolTip(QString::fromUtf16(b.tip));
        connect(action, &QAction::triggered, this, [this, key] { RunToolbarCommand(key); });
    }

    // The Add button's drop-down menu.
    auto* addMenu = new QMenu(this);
    addMenu->setObjectName(u"btnaddMenu"_s);
    static constexpr std::pair<const char16_t*, const char16_t*> kEntries[] = {
        {u"btnaddbefore", u"Before selection"},
        {u"btnaddafter", u"After selection"},
        {nullptr, nullptr},
        {u"btncopylast", u"Copy selected line"},
        {u"btncopylastx", u"Copy selected line x times"},
        {nullptr, nullptr},
        {u"btncopyall", u"Copy all lines"},
        {u"btncopyallreverse", u"Copy all lines (reverse)"},
    };
    for (const auto& [keyText, caption] : kEntries) {
        if (keyText == nullptr) {
            addMenu->addSeparator();
            continue;
        }
        const QString key = QString::fromUtf16(keyText);
        QAction* entry = addMenu->addAction(QString::fromUtf16(caption));
        entry->setObjectName(key);
        connect(entry, &QAction::triggered, this, [this, key] { RunAddMenuCommand(key); });
    }
    // Playback swaps these two images on its button.
    ToolbarAction(u"btnpreview"_s)->setIcon(playIcon_);

    QAction* add = ToolbarAction(u"btnadd"_s);
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
    QAction* play = ToolbarAction(u"btnpreview"_s);
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
    client_->setObjectName(u"client"_s);
    setCentralWidget(client_);

    auto* pane = new OneLineRichEdit(client_);
    pane->setObjectName(u"txtPreview"_s);
    QFont paneFont = BoldFont(u"Courier New"_s, 14.25, QFont::TypeWriter);
    // A name of single characters in ever new colours needs no shaping: this
    // keeps the longest text fast to draw.
    paneFont.setStyleStrategy(QFont::PreferNoShaping);
    paneFont.setKerning(false);
    StyleGreyPane(pane, paneFont);
    pane->document()->setDocumentMargin(2);
    paneEdit_ = pane;
    preview_ = std::make_unique<RichPane>(paneEdit_);
    connect(paneEdit_, &QTextEdit::textChanged, this, [this] { OnPaneEdited(); });
    paneEdit_->installEventFilter(this);

    lineList_ = new LineListView(client_);
    lineList_->setObjectName(u"lvwMain"_s);
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
    lineList_->onKeyDown = [this](int key, Qt::KeyboardModifiers modifiers) {
        OnListKeyPress(key, modifiers);
    };
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
        KeepPaneOnSelectedLine();
    });
    connect(model_, &QAbstractItemModel::dataChanged, this, [this] { KeepPaneOnSelectedLine(); });
    connect(model_, &QAbstractItemModel::modelReset, this, [this] { KeepPaneOnSelectedLine(); });

    colourStrip_ = new QWidget(client_);
    colourStrip_->setObjectName(u"picColors"_s);
    colourStrip_->setGeometry(QRect(0, PaneTop(), StripWidth(), PaneHeight()));
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
    if (watched == client_ && event->type() == QEvent::Resize) {
        LayOutControls();
    } else if (watched == paneEdit_ || watched == lineList_) {
        if (event->type() == QEvent::ShortcutOverride && IsLineShortcut(static_cast<QKeyEvent*>(event))) {
            // Not the widget's own cut, copy and paste of characters: the
            // Edit menu's commands on lines.
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
    const bool shown = selected == 0 ? paneShows_ == PaneShows::Placeholder
                                     : paneShows_ == PaneShows::Line && shownText_ == script_.LineAt(selected).Text;
    if (!shown) SetPreview();
}

void MainWindow::NewAnimation() {
    script_.ClearLines();
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
    lineList_->setEditTriggers(settings_.EditItem ? QAbstractItemView::SelectedClicked
                                                 : QAbstractItemView::NoEditTriggers);
}

void MainWindow::RunToolbarCommand(const QString& key) {
    if (key == u"btnnew"_s) {
        NewAnimation();
    } else if (key == u"btnopen"_s) {
        OpenAnimation();
    } else if (key == u"btnsave"_s) {
        SaveAnimationAs();
    } else if (key == u"btnadd"_s) {
        AddLine(true);
    } else if (key == u"btnremove"_s) {
        RemoveSelectedLine();
    } else if (key == u"btnedit"_s) {
        EditSelectedLine();
    } else if (key == u"btnwizard"_s) {
        ShowWizard();
    } else if (key == u"btnpreview"_s) {
        TogglePlayback();
    } else if (key == u"btngenerate"_s) {
        GenerateScript();
    }
}

void MainWindow::RunAddMenuCommand(const QString& key) {
    if (key == u"btnaddbefore"_s) {
        AddLine(false);
    } else if (key == u"btnaddafter"_s) {
        AddLine(true);
    } else if (key == u"btncopylast"_s) {
        CopyLines(1);
    } else if (key == u"btncopylastx"_s) {
        CopyLines(2);
    } else if (key == u"btncopyall"_s) {
        CopyLines(3);
    } else if (key == u"btncopyallreverse"_s) {
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
