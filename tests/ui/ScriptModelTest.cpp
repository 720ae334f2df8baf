#include <gmock/gmock.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include "ui/ScriptModel.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {
namespace {

// Collects what the model tester complains about.
class ModelWarnings {
public:
    ModelWarnings() { previous_ = qInstallMessageHandler(&ModelWarnings::Handle); }
    ~ModelWarnings() { qInstallMessageHandler(previous_); }
    static QStringList& Seen() {
        static QStringList seen;
        return seen;
    }

private:
    static void Handle(QtMsgType type, const QMessageLogContext&, const QString& message) {
        if (type != QtDebugMsg && type != QtInfoMsg) Seen() << message;
    }
    QtMessageHandler previous_;
};

class ScriptModelTest : public testing::Test {
protected:
    void SetUp() override { ModelWarnings::Seen().clear(); }
    void TearDown() override {
        EXPECT_TRUE(ModelWarnings::Seen().isEmpty()) << ModelWarnings::Seen().join(u'\n').toStdString();
    }

    QString Cell(int row, int column) const { return model.data(model.index(row, column)).toString(); }

    AnimationScript script;
    ScriptModel model{script};
    ModelWarnings warnings;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Warning};
};

TEST_F(ScriptModelTest, ShowsEachLineAsARowOfThreeColumns) {
    script.AppendLine("^1Fl\xE9", "007", "[none]");
    script.AppendLine("b", "abc", "x");
    EXPECT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.columnCount(), 3);
    EXPECT_EQ(Cell(0, 0), u"^1Fl\u00e9"_s);
    EXPECT_EQ(Cell(0, 1), u"007"_s);
    EXPECT_EQ(Cell(0, 2), u"[none]"_s);
    EXPECT_EQ(Cell(1, 1), u"abc"_s);
    EXPECT_EQ(model.headerData(0, Qt::Horizontal).toString(), u"Text"_s);
    EXPECT_EQ(model.headerData(2, Qt::Horizontal).toString(), u"Action"_s);
}

struct ChangeCase {
    const char* name;
    std::function<void(AnimationScript&)> change;
    int inserted;  // first row announced, -1 for none
    int removed;
    int resets;
    int changedRow;
    std::vector<const char*> rows;  // Text column afterwards
    friend void PrintTo(const ChangeCase& c, std::ostream* os) { *os << c.name; }
};

class ScriptModelChanges : public ScriptModelTest, public testing::WithParamInterface<ChangeCase> {};

TEST_P(ScriptModelChanges, AreAnnouncedToTheView) {
    script.AppendLine("a", "15", "[none]");
    script.AppendLine("b", "15", "[none]");
    script.AppendLine("c", "15", "[none]");
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    GetParam().change(script);
    const auto rowOf = [](const QSignalSpy& spy) { return spy.isEmpty() ? -1 : spy[0][1].toInt(); };
    EXPECT_EQ(rowOf(inserted), GetParam().inserted);
    EXPECT_EQ(rowOf(removed), GetParam().removed);
    EXPECT_EQ(reset.count(), GetParam().resets);
    EXPECT_EQ(changed.isEmpty() ? -1 : changed[0][0].toModelIndex().row(), GetParam().changedRow);
    std::vector<std::string> rows;
    for (int row = 0; row < model.rowCount(); ++row) rows.push_back(Cell(row, 0).toStdString());
    EXPECT_EQ(rows, std::vector<std::string>(GetParam().rows.begin(), GetParam().rows.end()));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ScriptModelChanges,
    testing::Values(
        ChangeCase{"Append",
                   [](AnimationScript& s) { s.AppendLine("d", "15", "[none]"); },
                   3,
                   -1,
                   0,
                   -1,
                   {"a", "b", "c", "d"}},
        ChangeCase{"InsertFirst",
                   [](AnimationScript& s) { s.InsertLine(1, "z", "15", "[none]"); },
                   0,
                   -1,
                   0,
                   -1,
                   {"z", "a", "b", "c"}},
        ChangeCase{"RemoveMiddle", [](AnimationScript& s) { s.RemoveLine(2); }, -1, 1, 0, -1, {"a", "c"}},
        ChangeCase{"Clear", [](AnimationScript& s) { s.ClearLines(); }, -1, -1, 1, -1, {}},
        ChangeCase{
            "SetText", [](AnimationScript& s) { s.SetLineText(3, "C"); }, -1, -1, 0, 2, {"a", "b", "C"}},
        ChangeCase{
            "SetTime", [](AnimationScript& s) { s.SetLineTime(1, "99"); }, -1, -1, 0, 0, {"a", "b", "c"}},
        ChangeCase{"Batch",
                   [](AnimationScript& s) {
                       AnimationScript::Batch batch(s);
                       s.ClearLines();
                       for (int i = 0; i < 100; ++i) s.AppendLine("n", "15", "[none]");
                   },
                   -1, -1, 1, -1, std::vector<const char*>(100, "n")},
        ChangeCase{"RefusedInsert",
                   [](AnimationScript& s) { s.InsertLine(9, "z", "15", "[none]"); },
                   -1,
                   -1,
                   0,
                   -1,
                   {"a", "b", "c"}}),
    testing::PrintToStringParamName());

TEST_F(ScriptModelTest, TellsOfTheScriptsSelection) {
    QSignalSpy selected(&model, &ScriptModel::SelectedLineChanged);
    script.AppendLine("a", "15", "[none]");
    script.AppendLine("b", "15", "[none]");
    script.SelectLine(2);
    script.RemoveLine(2);
    ASSERT_EQ(selected.count(), 3);
    EXPECT_EQ(selected[0][0].toInt(), 1);
    EXPECT_EQ(selected[1][0].toInt(), 2);
    EXPECT_EQ(selected[2][0].toInt(), 1);
}

TEST_F(ScriptModelTest, IsChangingOnlyWhileTheScriptChanges) {
    bool changingDuringInsert = false;
    QObject::connect(&model, &QAbstractItemModel::rowsAboutToBeInserted,
                     [&] { changingDuringInsert = model.Changing(); });
    script.AppendLine("a", "15", "[none]");
    EXPECT_TRUE(changingDuringInsert);
    EXPECT_FALSE(model.Changing());
}

// The model passes an edit of a Text on; the window makes it a step.
TEST_F(ScriptModelTest, OnlyTheTextColumnTakesAnEdit) {
    script.AppendLine("a", "15", "[none]");
    QStringList edits;
    QObject::connect(&model, &ScriptModel::TextEdited,
                     [&](int index, const QString& text) { edits << u"%1:%2"_s.arg(index).arg(text); });
    EXPECT_TRUE(model.setData(model.index(0, 0), u"^3b"_s));
    EXPECT_FALSE(model.setData(model.index(0, 1), u"1"_s));
    EXPECT_FALSE(model.setData(model.index(0, 2), u"x"_s));
    EXPECT_FALSE(model.setData(model.index(0, 0), u"y"_s, Qt::DisplayRole + 100));
    EXPECT_EQ(edits, QStringList{u"1:^3b"_s});
}

TEST(ScriptModel, LetsGoOfTheScriptWhenDestroyed) {
    AnimationScript other;
    { ScriptModel model(other); }
    // The script no longer calls into the destroyed model.
    EXPECT_TRUE(other.AppendLine("a", "15", "[none]"));
}

}  // namespace
}  // namespace flickerscribe::ui
