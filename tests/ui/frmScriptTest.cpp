#include <QApplication>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTimer>
#include <functional>

#include "FileTestSupport.h"
#include "MainWindowFixture.h"
#include "settings/Settings.h"
#include "ui/frmScript.h"

namespace fs::ui {
namespace {

using namespace testing_support;
using namespace Qt::Literals::StringLiterals;

// The empty first line and the seven banner lines, without a break at the end.
const std::string kBanner =
    "\r\n//--------------------------\\\\\r\n//----- SCRIPT MADE WITH ---\\\\\r\n"
    "//------ Flickerscribe -----\\\\\r\n//----- by: [QZT]Quillon ---\\\\\r\n"
    "//--------------------------\\\\\r\n//-quillon@qzt-clan.example-\\\\\r\n"
    "//--------------------------\\\\";

struct Line {
    const char* text;
    const char* time;
};

class ScriptWindow : public testing::Test {
protected:
    frmScript& Open(const std::vector<Line>& lines) {
        for (const Line& line : lines) EXPECT_TRUE(script.AppendLine(line.text, line.time, "[none]"));
        window = std::make_unique<frmScript>(script, dialogs, settings, &owner);
        window->Form_Load();
        return *window;
    }

    AnimationScript script;
    ScriptedDialogs dialogs;
    settings::Settings settings;
    QWidget owner;
    std::unique_ptr<frmScript> window;
};

TEST_F(ScriptWindow, IsASizableWindowCentredOnTheScreenWithTheBoxFillingIt) {
    owner.setGeometry(0, 0, 200, 200);
    owner.show();
    frmScript& w = Open({});
    EXPECT_EQ(w.windowTitle(), u"Generate Brennock Script"_s);
    EXPECT_LT(w.minimumSize().width(), w.maximumSize().width());
    auto* save = w.findChild<QAction*>(u"mnuSave"_s);
    ASSERT_NE(save, nullptr);
    EXPECT_EQ(save->text(), u"Save"_s);
    auto* bar = w.findChild<QMenuBar*>();
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(bar->actions(), QList<QAction*>{save});

    QPlainTextEdit* box = w.findChild<QPlainTextEdit*>(u"txtScript"_s);
    ASSERT_EQ(box, w.ScriptBox());
    EXPECT_FALSE(box->isReadOnly());
    EXPECT_EQ(box->lineWrapMode(), QPlainTextEdit::NoWrap);
    EXPECT_EQ(box->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    EXPECT_EQ(box->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    EXPECT_DOUBLE_EQ(box->font().pointSizeF(), 9.75);
    EXPECT_TRUE(QFontInfo(box->font()).fixedPitch());

    w.show();
    EXPECT_EQ(w.frameGeometry().center(), w.screen()->availableGeometry().center());
    w.resize(640, 333);
    EXPECT_EQ(box->geometry(), QRect(0, bar->height(), 640, 333 - bar->height()));
    w.close();
    owner.close();
}

struct TextCase {
    const char* name;
    std::vector<Line> lines;
    std::string script;
};

class ScriptText : public ScriptWindow, public testing::WithParamInterface<TextCase> {};

TEST_P(ScriptText, IsShownWithAnEmptyFirstLineAndSavedWithCrLf) {
    frmScript& w = Open(GetParam().lines);
    EXPECT_EQ(w.ScriptBox()->document()->blockCount(), 8 + 2 * static_cast<int>(GetParam().lines.size()));
    EXPECT_TRUE(w.ScriptBox()->document()->firstBlock().text().isEmpty());
    EXPECT_EQ(w.ScriptFileBytes(), GetParam().script + "\r\n");
    EXPECT_TRUE(dialogs.Calls().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Table, ScriptText,
    testing::Values(TextCase{"EmptyList", {}, kBanner},
                    TextCase{"WorkedExample",
                             {{"^1Fl^7ick", "15"}, {"", "250"}, {" ^2up", "0"}},
                             kBanner + "\r\nset name \"^1Fl^7ick\"\r\nwait 15\r\nset name \"^7 \"\r\nwait 99"
                                       "\r\nset name \"^7 ^2up\"\r\nwait 5"},
                    TextCase{"EightBitCharacters",
                             {{"\x80\xE9\xA0x", "1.5"}},
                             kBanner + "\r\nset name \"\x80\xE9\xA0x\"\r\nwait 1.5"}),
    [](const auto& info) { return std::string(info.param.name); });

struct TypedCase {
    const char* name;
    std::function<void(QPlainTextEdit*)> type;
    std::string bytes;  // what the file holds before the final CR LF
};

class TypedText : public ScriptWindow, public testing::WithParamInterface<TypedCase> {};

TEST_P(TypedText, IsSavedAsWindows1252WithCrLfBreaks) {
    QTemporaryDir dir;
    frmScript& w = Open({{"a", "15"}});
    w.ScriptBox()->clear();
    GetParam().type(w.ScriptBox());
    dialogs.QueueSave(dir.filePath(u"typed.cfg"_s));
    w.SaveScript();
    EXPECT_EQ(ReadBytes(dir.filePath(u"typed.cfg"_s)), GetParam().bytes + "\r\n");
}

INSTANTIATE_TEST_SUITE_P(
    Table, TypedText,
    testing::Values(
        TypedCase{"Cp1252Letters", [](auto* box) { TypeText(box, u"\u20AC\u00E9\u00A0"_s); }, "\x80\xE9\xA0"},
        TypedCase{"NoCp1252Form", [](auto* box) { TypeText(box, u"a\u6F22\u0100b"_s); }, "a??b"},
        TypedCase{"OutsideTheBasicPlane", [](auto* box) { TypeText(box, u"x\U0001F600y"_s); }, "x?y"},
        TypedCase{"LineBreaks",
                  [](auto* box) {
                      QTest::keyClicks(box, u"a"_s);
                      QTest::keyClick(box, Qt::Key_Return);
                      QTest::keyClicks(box, u"b"_s);
                      QTest::keyClick(box, Qt::Key_Return, Qt::ShiftModifier);
                      QTest::keyClicks(box, u"c"_s);
                  },
                  "a\r\nb\r\nc"}),
    [](const auto& info) { return std::string(info.param.name); });

// --- through Generate in the main window

// Runs `inspect` on the modal window once it is up, then closes it, so that
// the command that opened it with exec() returns.
void WhenModalShows(const std::function<void(frmScript&)>& inspect, int tries = 100) {
    QTimer::singleShot(0, [inspect, tries] {
        auto* w = qobject_cast<frmScript*>(QApplication::activeModalWidget());
        if (w == nullptr) {
            if (tries > 0) WhenModalShows(inspect, tries - 1);
            return;
        }
        inspect(*w);
        w->close();
    });
}

using Generate = MainWindowTest;

TEST_F(Generate, TellsBadTimesBeforeTheWindowAndOpensItAnewEachTime) {
    ASSERT_TRUE(Script().AppendLine("a", "abc", "[none]"));
    ASSERT_TRUE(Script().AppendLine("b", "15", "[none]"));
    ASSERT_TRUE(Script().AppendLine("c", "", "[none]"));
    bool windowUpAtAMessage = false;
    dialogs.onCall = [&](const DialogCall& call) {
        if (call.kind != DialogCall::Kind::Message) return;
        for (QWidget* w : QApplication::topLevelWidgets())
            windowUpAtAMessage |= qobject_cast<frmScript*>(w) != nullptr && w->isVisible();
    };
    QTemporaryDir dir;
    const QString path = dir.filePath(u"edited.cfg"_s);
    QString first, second;
    WhenModalShows([&](frmScript& w) {
        EXPECT_TRUE(w.isModal());
        first = w.ScriptBox()->toPlainText();
        w.ScriptBox()->moveCursor(QTextCursor::End);
        TypeText(w.ScriptBox(), u" \u6F22"_s);
        dialogs.QueueSave(path);
        w.findChild<QAction*>(u"mnuSave"_s)->trigger();
        EXPECT_TRUE(w.isVisible()) << "the window stays open after a save";
    });
    window->GenerateScript();
    WhenModalShows([&](frmScript& w) { second = w.ScriptBox()->toPlainText(); });
    window->GenerateScript();

    const QString abc = u"message  [none]: no number _abc_"_s, empty = u"message  [none]: no number __"_s;
    EXPECT_EQ(Asked(dialogs), (QStringList{abc, empty, u"save Save Script"_s, abc, empty}));
    EXPECT_FALSE(windowUpAtAMessage);
    EXPECT_TRUE(first.endsWith(u"set name \"c\"\nwait 15"_s)) << first.toStdString();
    EXPECT_EQ(second, first) << "the edits went with the window";
    const std::string saved = ReadBytes(path);
    EXPECT_TRUE(saved.starts_with("\r\n//---") && saved.ends_with("set name \"c\"\r\nwait 15 ?\r\n"))
        << saved;
}

}  // namespace
}  // namespace fs::ui
