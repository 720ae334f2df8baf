#include <QApplication>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>

#include "FileTestSupport.h"
#include "MainWindowFixture.h"
#include "settings/Settings.h"
#include "ui/ScriptWindow.h"

namespace flickerscribe::ui {
namespace {

using namespace testing_support;
using namespace Qt::Literals::StringLiterals;

// The empty first line and the seven banner lines, without a break at the end.
const std::string kBanner =
    "\r\n//--------------------------\\\\\r\n//----- SCRIPT MADE WITH ---\\\\\r\n"
    "//------ Flickerscribe -----\\\\\r\n//----- by: [QZT]Quillon "
    "---\\\\\r\n//--------------------------\\\\\r\n"
    "//-quillon@qzt-clan.example-\\\\\r\n//--------------------------\\\\";

// Types `text` a character a key press: "\n" is Return, U+2028 Shift+Return.
void TypeText(QWidget* widget, const QString& text) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'\n' || text[i] == QChar::LineSeparator) {
            QTest::keyClick(widget, Qt::Key_Return, text[i] == u'\n' ? Qt::NoModifier : Qt::ShiftModifier);
            continue;
        }
        const qsizetype length = text[i].isHighSurrogate() ? 2 : 1;
        QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, text.mid(i, length), Qt::NoModifier);
        i += length - 1;
    }
}

class ScriptWindowTest : public testing::Test {
protected:
    ScriptWindow& Open(const std::vector<std::pair<const char*, const char*>>& lines) {
        for (const auto& [text, time] : lines) EXPECT_TRUE(script.AppendLine(text, time, "[none]"));
        window = std::make_unique<ScriptWindow>(script, dialogs, settings, &owner);
        return *window;
    }

    AnimationScript script;
    ScriptedDialogs dialogs;
    settings::Settings settings;
    QWidget owner;
    std::unique_ptr<ScriptWindow> window;
};

TEST_F(ScriptWindowTest, IsASizableWindowCentredOnTheScreenWithTheBoxFillingIt) {
    owner.setGeometry(0, 0, 200, 200);
    owner.show();
    ScriptWindow& w = Open({});
    EXPECT_EQ(w.windowTitle(), u"Generate Brennock Script"_s);
    EXPECT_LT(w.minimumSize().width(), w.maximumSize().width());
    auto* bar = w.findChild<QMenuBar*>();
    ASSERT_NE(bar, nullptr);
    ASSERT_EQ(bar->actions().size(), 1);
    EXPECT_EQ(bar->actions()[0]->objectName() + u' ' + bar->actions()[0]->text(), u"mnuSave Save"_s);
    QPlainTextEdit* box = w.findChild<QPlainTextEdit*>(u"txtScript"_s);
    ASSERT_EQ(box, w.ScriptBox());
    EXPECT_FALSE(box->isReadOnly());
    EXPECT_EQ(box->lineWrapMode(), QPlainTextEdit::NoWrap);
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
    std::vector<std::pair<const char*, const char*>> lines;
    std::string script;
};
void PrintTo(const TextCase& c, std::ostream* os) {
    *os << c.name;
}
class ScriptText : public ScriptWindowTest, public testing::WithParamInterface<TextCase> {};

TEST_P(ScriptText, IsShownWithAnEmptyFirstLineAndWrittenWithCrLf) {
    EXPECT_EQ(Open(GetParam().lines).ScriptFileBytes(), GetParam().script + "\r\n");
}

INSTANTIATE_TEST_SUITE_P(
    Table, ScriptText,
    testing::Values(TextCase{"EmptyList", {}, kBanner},
                    TextCase{"WorkedExample",
                             {{"^1Fl^7ick", "15"}, {"", "250"}, {" ^2up", "0"}},
                             kBanner + "\r\nset name \"^1Fl^7ick\"\r\nwait 15\r\nset name \"^7 \"\r\nwait 99"
                                       "\r\nset name \"^7 ^2up\"\r\nwait 5"},
                    TextCase{"EightBit",
                             {{"\x80\xE9\xA0x", "1.5"}},
                             kBanner + "\r\nset name \"\x80\xE9\xA0x\"\r\nwait 1.5"}),
    testing::PrintToStringParamName());

class TypedText : public ScriptWindowTest,
                  public testing::WithParamInterface<std::pair<std::u16string, std::string>> {};

TEST_P(TypedText, IsSavedAsWindows1252WithCrLfBreaks) {
    QTemporaryDir dir;
    ScriptWindow& w = Open({});
    w.ScriptBox()->clear();
    TypeText(w.ScriptBox(), QString::fromStdU16String(GetParam().first));
    dialogs.QueueSave(dir.filePath(u"typed.cfg"_s));
    w.SaveScript();
    EXPECT_EQ(ReadBytes(dir.filePath(u"typed.cfg"_s)), GetParam().second + "\r\n");
}

INSTANTIATE_TEST_SUITE_P(
    Table, TypedText,
    testing::Values(std::pair{std::u16string(u"\u20AC\u00E9\u00A0"), std::string("\x80\xE9\xA0")},
                    std::pair{std::u16string(u"a\u6F22\u0100b"), std::string("a??b")},
                    std::pair{std::u16string(u"x\U0001F600y"), std::string("x?y")},
                    std::pair{std::u16string(u"a\nb\u2028c"), std::string("a\r\nb\r\nc")}));

// Runs `inspect` on the modal window once it is up, then closes it, so that
// the command that opened it with exec() returns.
void WhenModalShows(const std::function<void(ScriptWindow&)>& inspect, int tries = 100) {
    QTimer::singleShot(0, [inspect, tries] {
        auto* w = qobject_cast<ScriptWindow*>(QApplication::activeModalWidget());
        if (w == nullptr && tries > 0) WhenModalShows(inspect, tries - 1);
        if (w == nullptr) return;
        inspect(*w);
        w->close();
    });
}

using Generate = MainWindowTest;

TEST_F(Generate, TellsBadTimesBeforeTheWindowAndOpensItAnewEachTime) {
    AddLines({"a", "b"});
    Script().SetLineTime(1, "abc");
    Script().SetLineTime(2, "");
    bool windowUpAtAMessage = false;
    dialogs.onCall = [&](const DialogCall& call) {
        for (QWidget* w : QApplication::topLevelWidgets())
            windowUpAtAMessage |=
                call.kind == DialogCall::Kind::Message && qobject_cast<ScriptWindow*>(w) && w->isVisible();
    };
    QTemporaryDir dir;
    QString first, second;
    WhenModalShows([&](ScriptWindow& w) {
        first = w.ScriptBox()->toPlainText();
        w.ScriptBox()->moveCursor(QTextCursor::End);
        TypeText(w.ScriptBox(), u" \u6F22"_s);
        dialogs.QueueSave(dir.filePath(u"edited.cfg"_s));
        w.findChild<QAction*>(u"mnuSave"_s)->trigger();
        EXPECT_TRUE(w.isModal() && w.isVisible()) << "the window stays open after a save";
    });
    window->GenerateScript();
    WhenModalShows([&](ScriptWindow& w) { second = w.ScriptBox()->toPlainText(); });
    window->GenerateScript();

    const QString abc = u"message  [none]: no number _abc_"_s, empty = u"message  [none]: no number __"_s;
    EXPECT_EQ(Asked(dialogs), (QStringList{abc, empty, u"save Save Script"_s, abc, empty}));
    EXPECT_FALSE(windowUpAtAMessage);
    EXPECT_TRUE(first.endsWith(u"set name \"b\"\nwait 15"_s)) << first.toStdString();
    EXPECT_EQ(second, first) << "the edits went with the window";
    EXPECT_TRUE(ReadBytes(dir.filePath(u"edited.cfg"_s)).ends_with("set name \"b\"\r\nwait 15 ?\r\n"));
}

}  // namespace
}  // namespace flickerscribe::ui
