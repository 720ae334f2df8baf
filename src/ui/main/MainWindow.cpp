#include "ui/main/MainWindow.h"

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
#include <QSignalBlocker>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "colour/ColouredText.h"
#include "picture/FramePainter.h"
#include "settings/SettingsStore.h"
#include "ui/common/TextConv.h"
#include "ui/main/MainIcons.h"
#include "ui/main/MainWindowNames.h"
#include "ui/widgets/ColourButtons.h"
#include "ui/widgets/LineListView.h"
#include "ui/widgets/MenuButtonAccessible.h"
#include "ui/widgets/OneLineRichEdit.h"
#include "ui/widgets/PaneStyle.h"
#include "ui/widgets/RichPane.h"
#include "ui/widgets/ScriptModel.h"

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

QFont listFont() {
    QFont font(u"Courier New"_s);
    font.setStyleHint(QFont::TypeWriter);
    font.setPointSizeF(9.75);
    return font;
}

bool isLineShortcut(const QKeyEvent* event, const QList<QAction*>& lineActions) {
    const QKeySequence pressed(event->keyCombination());
    return std::any_of(lineActions.begin(), lineActions.end(),
                       [&](const QAction* action) { return action->shortcuts().contains(pressed); });
}

}  // namespace

MainWindow::MainWindow(AnimationScript& animation, Dialogs& dialogs, settings::SettingsStore& store,
                       QString keptFolder, QWidget* parent)
    : QMainWindow(parent),
      dialogs_(dialogs),
      store_(store),
      script_(animation),
      kept_(std::move(keptFolder)) {
    setObjectName(names::kWindow);
    setWindowTitle(tr("Flickerscribe - by [QZT]Quillon"));
    setWindowIcon(appIcon());
    playIcon_ = toolbarIcon(u"play"_s);
    stopIcon_ = toolbarIcon(u"stop"_s);

    buildMenus();
    buildToolbar();
    buildControls();

    playTimer_ = new QTimer(this);
    playTimer_->setObjectName(names::kPlayTimer);
    playTimer_->setInterval(100);
    connect(playTimer_, &QTimer::timeout, this, [this] { showNextFrame(); });

    // The animation is kept at most 30 seconds after the first change that
    // its file doesn't hold yet, however the work goes on meanwhile; at the
    // end of the program; and when the desktop session ends.
    keepTimer_ = new QTimer(this);
    keepTimer_->setObjectName(names::kKeepTimer);
    keepTimer_->setSingleShot(true);
    keepTimer_->setInterval(30'000);
    connect(keepTimer_, &QTimer::timeout, this, [this] { keepAnimation(); });
    connect(&history_, &AnimationHistory::changed, this, [this] {
        keptCurrent_ = false;
        if (!keepTimer_->isActive()) keepTimer_->start();
        updateUndoActions();
    });
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this] { keepAnimation(); });
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { keepAnimation(); });

    setMinimumWidth(kMinimumWidth);
    resize(kClientWidth, kClientHeight + menuBar()->sizeHint().height());
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());

    // The strip starts hidden; the settings apply, and the pane shows the
    // selected line, or "Preview" locked for an empty list, before the list's
    // row follows that line.
    loadSettings();
    setPreview();
    followSelectedLine(script_.SelectedIndex());
    updateUndoActions();
    updateReopenAction();
}

MainWindow::~MainWindow() {
    // The model listens to the script, which goes before the widgets do: the
    // model goes first, and the list is left without one.
    delete model_;
}

void MainWindow::buildControls() {
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
    connect(paneEdit_, &QTextEdit::textChanged, this, [this] { onPaneEdited(); });
    paneEdit_->installEventFilter(this);
    paneEdit_->viewport()->installEventFilter(this);

    lineList_ = new LineListView(client_);
    lineList_->setObjectName(names::kLineList);
    lineList_->setFont(listFont());
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
    connect(lineList_, &LineListView::keyPressed, this, &MainWindow::onListKeyPress);
    connect(lineList_, &QAbstractItemView::clicked, this, [this](const QModelIndex& index) {
        if (index.isValid()) showClickedLine(ScriptModel::lineOfRow(index.row()));
    });
    // The user's move of the current row selects that line; the script's own
    // changes of its selection move the current row.
    connect(lineList_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) {
                if (model_->changing() || !current.isValid()) return;
                const int line = ScriptModel::lineOfRow(current.row());
                if (line != script_.SelectedIndex()) script_.SelectLine(line);
            });
    connect(model_, &ScriptModel::selectedLineChanged, this, &MainWindow::followSelectedLine);
    connect(model_, &QAbstractItemModel::dataChanged, this, [this] { keepPaneOnSelectedLine(); });
    connect(model_, &QAbstractItemModel::modelReset, this, [this] { keepPaneOnSelectedLine(); });
    // What the list's in-place editor commits is a step like any other edit.
    connect(model_, &ScriptModel::textEdited, this, [this](int index, const QString& text) {
        history_.setText(tr("Edit text"), index, fromQString(text));
    });

    colourStrip_ = new QWidget(client_);
    colourStrip_->setObjectName(names::kColourStrip);
    colourButtons_ = addColourButtons(colourStripRow(colourStrip_), kColourButtons);
    for (int index = 0; index < kColourButtons; ++index)
        connect(colourButtons_[static_cast<std::size_t>(index)], &QPushButton::clicked, this,
                [this, index] { paintSelection(index); });
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
    if (inPane && paneShows_ == PaneShows::Frame && !playing() &&
        (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress ||
         event->type() == QEvent::DragEnter)) {
        // A frame left by playback gives way to the selected line before the
        // user's click, key or drop reaches the pane.
        setPreview();
    }
    if (watched == paneEdit_ || watched == lineList_) {
        if (event->type() == QEvent::ShortcutOverride &&
            isLineShortcut(static_cast<QKeyEvent*>(event), lineActions_)) {
            // Not the widget's own cut, copy, paste, undo and redo of
            // characters: the Edit menu's commands on lines and the animation.
            return true;
        }
        if (watched == paneEdit_ && event->type() == QEvent::KeyPress) {
            const auto* key = static_cast<QKeyEvent*>(event);
            onPaneKeyPress(key->key());
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::setPreview() {
    // The program's own drawing is no edit of the line.
    const QSignalBlocker quiet(paneEdit_);
    if (script_.Count() > 0) {
        // While playback runs, the line a click shows takes no edit either.
        preview_->SetLocked(playing());
        shownText_ = script_.LineAt(script_.SelectedIndex()).Text;
        RenderCodedText(shownText_, *preview_);
        paneShows_ = PaneShows::Line;
    } else {
        preview_->SetLocked(true);
        preview_->SetText("Preview");
        paneShows_ = PaneShows::Placeholder;
    }
}

void MainWindow::followSelectedLine(int index) {
    if (index == 0) {
        lineList_->selectionModel()->clear();
    } else {
        lineList_->selectionModel()->setCurrentIndex(
            model_->indexOfLine(index), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    // Typing into another line is a step of its own.
    history_.endTyping();
    keepPaneOnSelectedLine();
}

void MainWindow::keepPaneOnSelectedLine() {
    if (playing()) return;
    const int selected = script_.SelectedIndex();
    const bool shown = selected == 0
                           ? paneShows_ == PaneShows::Placeholder
                           : paneShows_ == PaneShows::Line && shownText_ == script_.LineAt(selected).Text;
    if (!shown) setPreview();
}

void MainWindow::newAnimation() {
    history_.replaceLines(tr("New"), [](AnimationScript& script) { script.ClearLines(); });
}

void MainWindow::toggleColours() {
    coloursVisible_ = !coloursVisible_;
    showColoursAction_->setChecked(coloursVisible_);
    colourStrip_->setVisible(coloursVisible_);
}

void MainWindow::loadSettings() {
    settings_ = settings::loadSettings(store_);
    // Only the Text column can be edited in place, by a click on the line
    // that is already selected, and only when the setting is on.
    lineList_->setEditTriggers(settings_.editInPlace ? QAbstractItemView::SelectedClicked
                                                     : QAbstractItemView::NoEditTriggers);
}

void MainWindow::showClickedLine(int index) {
    script_.SelectLine(index);
    setPreview();
}

void MainWindow::exit() {
    // No question and nothing written: every window goes at once.
    close();
    QCoreApplication::quit();
}

}  // namespace flickerscribe::ui
