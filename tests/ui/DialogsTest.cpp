// Options, the painting windows, About, the real dialogs, the rich text pane.
#include <algorithm>
#include <cstdlib>
#include <random>

#include "MainWindowFixture.h"
#include "MemoryPane.h"
#include "colour/Palette.h"
#include "ui/common/QtDialogs.h"
#include "ui/dialogs/AboutDialog.h"
#include "ui/widgets/RichPane.h"

namespace flickerscribe::ui::testing_support {
namespace {

using Dialog = DialogTest;

// The Options dialog shows what the store holds; OK writes all seven values
// and has them take effect; Cancel writes nothing, even after browsing.
TEST_F(Dialog, OptionsShowTheStoreAndOkWritesAllSevenValues) {
    const QMap<QString, QString> stored = {{u"Name"_s, u"Quillon"_s},    {u"Clantag"_s, u"[QZT]"_s},
                                           {u"OpenDir"_s, u"/q/open"_s}, {u"SaveDir"_s, u"/q/save"_s},
                                           {u"Reverse"_s, u" 1"_s},      {u"EditItem"_s, u"1"_s}};
    for (auto it = stored.begin(); it != stored.end(); ++it) store.writeValue(it.key(), it.value());
    const auto written = store.Writes().size();
    Open(u"frmOptions"_s);
    const auto shown = [this] {
        QStringList values;
        for (const QString& box : {u"txtName"_s, u"txtClan"_s, u"txtOpen"_s, u"txtSave"_s})
            values << Child<QLineEdit>(box)->text();
        for (const QString& check : {u"chkReverse"_s, u"chkEditItem"_s})
            values << (Child<QCheckBox>(check)->isChecked() ? u"1"_s : u"0"_s);
        return values.join(u'|');
    };
    EXPECT_EQ(shown(), u"Quillon|[QZT]|/q/open|/q/save|0|1"_s) << "only the text 1 ticks a box";

    dialogs.QueueFolder(u"/new/save"_s);
    dialogs.QueueFolder(QString());  // cancelling the folder dialog empties the box
    QTest::mouseClick(Child<QPushButton>(u"cmdBrowse2"_s), Qt::LeftButton);
    QTest::mouseClick(Child<QPushButton>(u"cmdBrowse1"_s), Qt::LeftButton);
    QGuiApplication::clipboard()->setText(u"!\r\n"_s);  // a pasted line break becomes a blank
    QTest::keyClick(Child<QLineEdit>(u"txtClan"_s), Qt::Key_V, Qt::ControlModifier);
    QTest::keyClicks(Child<QLineEdit>(u"txtSave"_s), u"typed"_s);  // a folder is chosen, not typed
    Child<QCheckBox>(u"chkReverse"_s)->click();
    Child<QCheckBox>(u"chkEditItem"_s)->click();
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_TRUE(dialog->isVisible()) << "Escape does nothing special";
    QTest::mouseClick(Child<QPushButton>(u"cmdOK"_s), Qt::LeftButton);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(store.Writes().size(), written + 7);
    EXPECT_EQ(QStringList(store.Values().values()).join(u'|'), u"[QZT]! |0|/new/save|Quillon||1|/new/save"_s);
    EXPECT_EQ(reloads, 1);

    Open(u"frmOptions"_s);
    EXPECT_EQ(shown(), u"Quillon|[QZT]! ||/new/save|1|0"_s);
    dialogs.QueueFolder(u"/elsewhere"_s);
    QTest::mouseClick(Child<QPushButton>(u"cmdBrowse1"_s), Qt::LeftButton);
    QTest::mouseClick(Child<QPushButton>(u"Command2"_s), Qt::LeftButton);
    EXPECT_EQ(store.Writes().size(), written + 7) << "Cancel writes nothing";
    EXPECT_TRUE(reloads == 1 && !dialog->isVisible()) << "Cancel closes, reloading nothing";
}

// --- the painting windows, step by step

struct PaintCase {
    const char* window;
    // Typed text, where "[s,l]" selects l characters from s, "#n" clicks
    // colour button n, "\n" is Enter and "\r" Shift+Enter.
    const char* steps;
    const char* result;  // the clipboard, or the saved lines joined by '|'
    friend void PrintTo(const PaintCase& c, std::ostream* os) { *os << c.window << ' ' << c.steps; }
};

class Painting : public DialogTest, public testing::WithParamInterface<PaintCase> {};

// The colour name editor copies its pane as coded text; Simple Edit's Save
// replaces the list by the pane's lines, asks nothing and stays open.
TEST_P(Painting, GivesThePaneAsCodedText) {
    const PaintCase& c = GetParam();
    const bool editor = c.window == std::string("frmColorEditor");
    Start({"^1old/40", "older/abc"}, 2);
    Open(QString::fromLatin1(c.window));
    Pane& pane = editor ? static_cast<ColourNameEditor&>(*dialog).previewPane()
                        : static_cast<SimpleEditWindow&>(*dialog).previewPane();
    auto* edit = Child<QTextEdit>(u"txtPreview"_s);
    for (const char* step = c.steps; *step != '\0'; ++step) {
        char* end = nullptr;
        if (*step == '[') {
            pane.SetSelStart(int(std::strtol(step + 1, &end, 10)));
            pane.SetSelLength(int(std::strtol(end + 1, &end, 10)));
            step = end;
        } else if (*step == '#') {
            QTest::mouseClick(Child<QPushButton>(u"cmdColor_"_s + QChar::fromLatin1(*++step)),
                              Qt::LeftButton);
        } else if (*step == '\n' || *step == '\r') {
            QTest::keyClick(edit, Qt::Key_Return, *step == '\r' ? Qt::ShiftModifier : Qt::NoModifier);
        } else {
            QTest::keyClicks(edit, QString(QChar::fromLatin1(*step)),
                             QChar::fromLatin1(*step).isUpper() ? Qt::ShiftModifier : Qt::NoModifier);
        }
    }
    EXPECT_TRUE(dialog->isVisible()) << "Enter in the pane presses no button";
    QTest::mouseClick(Child<QPushButton>(editor ? u"cmdClipboard"_s : u"cmdSave"_s), Qt::LeftButton);
    std::string lines;
    for (const AnimationLine& line : script().Lines())
        lines += (lines.empty() ? "" : "|") + line.Text + "/" + line.Time;
    EXPECT_EQ(editor ? dialogs.clipboard.toStdString() : lines, c.result);
    EXPECT_EQ(script().SelectedIndex(), editor ? 2 : script().Count() > 0 ? 1 : 0);
    EXPECT_TRUE(!editor || pane.SelStart() + pane.SelLength() == int(pane.Text().size())) << "last selected";
    EXPECT_EQ(dialogs.Calls().size(), editor ? 1u : 0u);
    editor ? QTest::mouseClick(Child<QPushButton>(u"cmdClose"_s), Qt::LeftButton)
           : QTest::keyClick(edit, Qt::Key_Escape);
    EXPECT_EQ(dialog->isVisible(), !editor) << "Escape would throw Simple Edit's pane away";
}

INSTANTIATE_TEST_SUITE_P(
    Table, Painting,
    testing::Values(PaintCase{"frmColorEditor", "Name[0,2]#0", "^1Na^8me"},
                    PaintCase{"frmColorEditor", "Name[0,4]#8", "^1Name"},  // the ninth button is code 1
                    PaintCase{"frmColorEditor", "ab#2xy", "ab^3xy"},
                    PaintCase{"frmColorEditor", "ab\ncd", "abcd"},
                    // Pane positions: "ab" 0-1, break 2, "cde" 3-5, break 6,
                    // blanks 7-9, breaks 10 and 11, "f" 12.
                    PaintCase{"frmSimpleEdit", "ab\ncde\n   \n\nf[0,2]#0[3,2]#0[5,1]#1[7,3]#1[12,1]#6",
                              "^1ab/15|cd^2e/15|^7f/15"},
                    PaintCase{"frmSimpleEdit", "", ""},
                    PaintCase{"frmSimpleEdit", "Ab\rcd", "^8Ab/15|cd/15"}));

// --- About and the real dialogs

TEST(About, ShowsNameVersionAndMakerAndClosesByEnterOrEscape) {
    AboutDialog window;
    EXPECT_EQ(window.previewPane().Text(), "Flickerscribe\n\nVersion 0.5.0\nMade by [QZT]Quillon\n");
    EXPECT_EQ(window.windowTitle(), u"About Flickerscribe"_s);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        window.show();
        QTest::keyClick(&window, key);
        EXPECT_FALSE(window.isVisible());
        EXPECT_EQ(window.result(), key == Qt::Key_Return ? QDialog::Accepted : QDialog::Rejected);
    }
}

// The real input box gives what the box holds on OK and nothing on Cancel.
TEST(QtDialogs, TheRealInputBoxGivesItsTextOnlyOnOk) {
    QtDialogs dialogs;
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        QTimer::singleShot(0, [key] {
            QWidget* box = QApplication::activeModalWidget()->findChild<QLineEdit*>();
            QTest::keyClick(box, Qt::Key_End);
            QTest::keyClicks(box, u"7"_s);
            QTest::keyClick(box, key);
        });
        EXPECT_EQ(dialogs.inputBox(nullptr, u"How many?"_s, u"Copy"_s, u"2"_s),
                  key == Qt::Key_Return ? std::optional(u"27"_s) : std::nullopt);
    }
}

// The real Save dialog opens in the folder asked for, with Qt's filters, and
// asks no overwrite question: the command asks its own.
TEST(QtDialogs, TheRealSaveDialogLeavesTheOverwriteQuestionToUs) {
    QTemporaryDir folder;
    WriteBytes(folder.filePath(u"old.cfg"_s), "old");
    QStringList seen;
    QTimer questions;  // answers, and notes, any question box that comes up
    QObject::connect(&questions, &QTimer::timeout, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            seen << box->text();
            box->button(QMessageBox::Yes) ? box->button(QMessageBox::Yes)->click() : box->reject();
        }
    });
    questions.start(20);
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        seen << dialog->directory().path() + u' ' + dialog->nameFilters().join(u'|');
        auto* name = dialog->findChild<QLineEdit*>(u"fileNameEdit"_s);
        QTest::keyClicks(name, u"old.cfg"_s);
        QTest::keyClick(name, Qt::Key_Return);
    });
    FileDialogState state{{}, u"Scripts (*.cfg);;All Files(*.*)"_s, folder.path(), {}};
    EXPECT_TRUE(QtDialogs().showSave(nullptr, state));
    EXPECT_EQ(seen, QStringList{folder.path() + u" Scripts (*.cfg)|All Files(*.*)"_s});
    EXPECT_EQ(QDir::fromNativeSeparators(state.fileName), folder.filePath(u"old.cfg"_s));
}

// --- the rich text pane and the wizard's pictures

constexpr Colour kColours[] = {kBlack, kWhite, Rgb(255, 0, 0), Rgb(0, 255, 0), Rgb(128, 0, 0)};

std::string State(const Pane& pane) {
    std::string state = pane.Text() + " @" + std::to_string(pane.SelStart()) + "+" +
                        std::to_string(pane.SelLength()) + " colour " + std::to_string(pane.SelColour()) +
                        " runs";
    for (const ColouredRun& run : pane.Runs()) state += " " + run.text + "=" + std::to_string(run.colour);
    return state;
}

// The same random gestures leave both panes alike: text, selection and colours.
TEST(RichPane, BehavesAsThePaneInMemory) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        std::mt19937 random(seed);
        const auto pick = [&random](int n) { return static_cast<int>(random() % unsigned(n)); };
        QTextEdit edit;
        RichPane rich(&edit);
        MemoryPane memory;
        for (int step = 0; step < 60; ++step) {
            const std::string text(std::size_t(pick(4)), char('a' + pick(26)));
            const Colour colour = kColours[pick(5)];
            const Colour other = kColours[pick(5)];
            const int position = pick(12) - 1;
            const int gesture = step % 7 == 0 ? 0 : pick(7);
            if (gesture == 6 && position < static_cast<int>(memory.Text().size())) {
                // The user selects from the right to the left, in the widget.
                const int length = static_cast<int>(memory.Text().size());
                const int start = std::clamp(position, 0, length),
                          end = std::min(start + 1 + pick(3), length);
                QTextCursor cursor = edit.textCursor();
                cursor.setPosition(end);
                cursor.setPosition(start, QTextCursor::KeepAnchor);
                edit.setTextCursor(cursor);
                memory.SetSelStart(start);
                memory.SetSelLength(end - start);
            }
            for (Pane* pane : {static_cast<Pane*>(&rich), static_cast<Pane*>(&memory)}) {
                if (gesture == 0) pane->SetRuns({{text, colour}, {"xy", other}, {"", colour}});
                if (gesture == 1) pane->SetSelStart(position);
                if (gesture == 2) pane->SetSelLength(position);
                if (gesture == 3) pane->SetSelColour(colour);
                if (gesture == 4) pane->SetSelText(text);
                if (gesture == 5) pane->SetText(text);
            }
            ASSERT_EQ(State(rich), State(memory)) << "seed " << seed << " step " << step;
        }
        rich.SetLocked(true);
        EXPECT_TRUE(rich.Locked() && edit.isReadOnly());
    }
}

}  // namespace
}  // namespace flickerscribe::ui::testing_support
