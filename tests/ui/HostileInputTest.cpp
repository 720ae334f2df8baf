// What users really do to the windows: choose a folder as the file, open a
// file of random bytes, fill the preview pane and the script window to their
// limits. Each ends in the command's message or its silence, never in a crash
// or a lost file.
#include <QDir>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <random>

#include "FileCommandFixture.h"
#include "FileTestSupport.h"
#include "colour/ColouredText.h"
#include "document/TextFile.h"
#include "script/ScriptText.h"
#include "ui/LineListView.h"
#include "ui/ScriptWindow.h"

namespace flickerscribe::ui {
namespace {

using namespace testing_support;
using namespace Qt::Literals::StringLiterals;

class HostileInput : public FileCommandTest {
protected:
    std::vector<std::string> Texts() {
        std::vector<std::string> out;
        for (int i = 1; i <= Script().Count(); ++i) out.push_back(Script().LineAt(i).Text);
        return out;
    }
};

class FolderAsFile : public HostileInput, public testing::WithParamInterface<Command> {};

TEST_P(FolderAsFile, SavingIntoAFolderNameTellsTheErrorAndLosesNothing) {
    AddLines({"a", "b"});
    const QString shownScript = GeneratedScript().ScriptBox()->toPlainText();
    ASSERT_TRUE(QDir(dir.path()).mkdir(u"folder"_s));
    WriteBytes(dir.filePath(u"folder/inside.fsq"_s), "kept");
    Run(GetParam(), {dir.filePath(u"folder"_s)});

    EXPECT_EQ(Asked(dialogs).last(), u"message Error [stop]: Error saving script!\n%1\n%2"_s.arg(EISDIR).arg(
                                         QString::fromLocal8Bit(std::strerror(EISDIR))));
    EXPECT_EQ(QDir(dir.filePath(u"folder"_s)).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
              QStringList{u"inside.fsq"_s});
    EXPECT_EQ(ReadBytes(dir.filePath(u"folder/inside.fsq"_s)), "kept");
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries), QStringList{u"folder"_s});
    EXPECT_EQ(Texts(), (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(GeneratedScript().ScriptBox()->toPlainText(), shownScript);
}

INSTANTIATE_TEST_SUITE_P(Table, FolderAsFile, testing::Values(Command::SaveAs, Command::SaveScript));

class RandomFile : public HostileInput, public testing::WithParamInterface<std::tuple<Command, unsigned>> {};

TEST_P(RandomFile, OpensOrImportsWithoutAWord) {
    const auto [command, seed] = GetParam();
    std::mt19937 gen(seed);
    std::string bytes(256 * 1024, '\0');
    for (char& c : bytes) c = static_cast<char>(gen() & 0xFF);
    const QString path = dir.filePath(u"noise"_s);
    WriteBytes(path, bytes);
    AddLines({"old"});
    Run(command, {path});

    const QString note = u"message Import note [info]: Note: Currently only .cfg files can be imported!"_s;
    const QStringList silence = command == Command::Open ? QStringList{u"open Open Brennock Animation"_s}
                                                         : QStringList{note, u"open Import file"_s};
    EXPECT_EQ(Asked(dialogs), silence);
    if (command == Command::Open) {
        std::vector<std::string> expected;
        for (std::string_view line : SplitTextLines(bytes)) expected.emplace_back(line);
        expected.erase(expected.begin());
        EXPECT_EQ(Texts(), expected);
    } else {
        EXPECT_TRUE(Texts().empty());
    }
    EXPECT_EQ(window->LineList()->model()->rowCount(), Script().Count());
    EXPECT_EQ(ReadBytes(path), bytes);
}

INSTANTIATE_TEST_SUITE_P(Table, RandomFile,
                         testing::Combine(testing::Values(Command::Open, Command::Import),
                                          testing::Values(1u, 2u)));

struct LongText {
    const char* name;
    std::string text;
    std::size_t shown;
};
void PrintTo(const LongText& c, std::ostream* os) {
    *os << c.name;
}

class LongPreview : public HostileInput, public testing::WithParamInterface<LongText> {};

// The pane holds a text of the most characters its positions can count, and
// typing behind the last one still reaches the line.
TEST_P(LongPreview, ShowsA32767CharacterLineAndTakesTypingAtItsEnd) {
    const LongText& c = GetParam();
    ASSERT_TRUE(Script().AppendLine(c.text, "15", "[none]"));
    Script().SelectLine(1);
    window->SetPreview();
    EXPECT_EQ(PaneText().size(), c.shown);
    EXPECT_EQ(window->PaneEdit()->toPlainText().size(), qsizetype(c.shown));
    EXPECT_EQ(window->PreviewPane().SelStart(), int(c.shown));

    QTest::keyClicks(window->PaneEdit(), u"z"_s);
    const std::string& line = Script().LineAt(1).Text;
    EXPECT_EQ(RenderRuns(line), RenderRuns(c.text + "z"));
    EXPECT_EQ(PaneText().size(), c.shown + 1);
}

INSTANTIATE_TEST_SUITE_P(Table, LongPreview,
                         testing::Values(LongText{"plain", std::string(32767, 'a'), 32767},
                                         LongText{"coloured", "^1" + std::string(32765, 'b'), 32765},
                                         LongText{"many codes",
                                                  [] {
                                                      std::string t;
                                                      for (int i = 0; t.size() + 3 <= 32767; ++i)
                                                          t += "^" + std::to_string(1 + i % 8) + "c";
                                                      return t;
                                                  }(),
                                                  32766 / 3}));

TEST_F(HostileInput, TheScriptWindowShowsAndSavesAFullList) {
    {
        AnimationScript::Batch batch(Script());
        for (int i = 1; i <= kMaxLines; ++i)
            ASSERT_TRUE(Script().AppendLine("n" + std::to_string(i), std::to_string(i % 120), "[none]"));
    }
    // The file is what the box shows, ended by a line break.
    const std::string expected = BuildScriptText(Script(), nullptr) + "\r\n";
    EXPECT_EQ(GeneratedScript().ScriptBox()->blockCount(), 1 + 7 + 2 * kMaxLines);
    EXPECT_EQ(GeneratedScript().ScriptBox()->toPlainText().endsWith(u"set name \"n32767\"\nwait 7"_s), true);

    Run(Command::SaveScript, {dir.filePath(u"full.cfg"_s)});
    // Compared whole: a failure shows where the file first differs, not a
    // diff of two megabytes.
    const std::string saved = ReadBytes(dir.filePath(u"full.cfg"_s));
    const auto differs = std::mismatch(saved.begin(), saved.end(), expected.begin(), expected.end());
    EXPECT_EQ(saved.size(), expected.size());
    EXPECT_TRUE(differs.first == saved.end())
        << "first difference at byte " << (differs.first - saved.begin()) << ": "
        << saved.substr(differs.first - saved.begin(), 40);
    EXPECT_EQ(Asked(dialogs), QStringList{u"save Save Script"_s});
}

}  // namespace
}  // namespace flickerscribe::ui
