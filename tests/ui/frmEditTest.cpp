#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "WindowChecks.h"
#include "document/AnimationScript.h"
#include "ui/frmEdit.h"

using namespace Qt::Literals::StringLiterals;

namespace fs::ui {
namespace {

using testing_support::ExpectFixedDialog;
using testing_support::ExpectLayout;

// The Edit dialog over the lines A, B, C with the times 10, 20, 30, B selected.
struct Fixture {
    Fixture() {
        script.AppendLine("A", "10", "[none]");
        script.AppendLine("B", "20", "[none]");
        script.AppendLine("C", "30", "[none]");
        script.SelectLine(2);
    }

    template <typename T>
    T* Get(const char* name) {
        auto* control = window.findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(control, nullptr) << name;
        return control;
    }
    QLineEdit* Time() { return Get<QLineEdit>("txtTime"); }

    std::vector<std::string> Times() {
        std::vector<std::string> out;
        for (int i = 1; i <= script.Count(); ++i) out.push_back(script.LineAt(i).Time);
        return out;
    }

    AnimationScript script;
    frmEdit window{script};
};

TEST(EditDialog, WindowAsDesigned) {
    Fixture f;
    EXPECT_EQ(f.window.windowTitle(), u"Edit"_s);
    ExpectFixedDialog(f.window, 4530, 1950);
    ExpectLayout(f.window, {
                               {"Label1", "Time", 120, 120, 495, 255},
                               {"txtTime", "15", 120, 360, 495, 300},
                               {"Label2", "Action", 120, 1080, 1935, 255},
                               {"cmbAction", nullptr, 120, 1320, 2055, 315},
                               {"cmdOK", "OK", 3360, 120, 1095, 350},
                               {"cmdCancel", "Cancel", 3360, 600, 1095, 350},
                               {"lblSpeed", "15 = fast\n20 = regular\n30 = slow", 960, 360, 1935, 615},
                           });
    auto* action = f.Get<QComboBox>("cmbAction");
    EXPECT_EQ(action->currentText(), u"Under construction"_s);
    EXPECT_EQ(action->count(), 0);
    EXPECT_TRUE(f.Get<QPushButton>("cmdOK")->isDefault());
    EXPECT_FALSE(f.Get<QPushButton>("cmdCancel")->isDefault());
}

TEST(EditDialog, TabGoesFromTheTimeToTheActionAndTheButtons) {
    Fixture f;
    f.window.show();
    f.window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&f.window));
    EXPECT_EQ(QApplication::focusWidget(), f.Time());
    std::vector<QWidget*> order;
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QWidget* focus = QApplication::focusWidget();
        // The combo box takes the focus in its edit field.
        if (focus != nullptr && qobject_cast<QComboBox*>(focus->parentWidget()))
            focus = focus->parentWidget();
        order.push_back(focus);
    }
    EXPECT_EQ(order, (std::vector<QWidget*>{f.Get<QComboBox>("cmbAction"), f.Get<QPushButton>("cmdOK"),
                                            f.Get<QPushButton>("cmdCancel"), f.Time()}));
    f.window.close();
}

TEST(EditDialog, OpensWithFifteenWhateverTheLineHolds) {
    Fixture f;
    f.script.SetLineTime(2, "30");
    frmEdit again(f.script);
    EXPECT_EQ(again.findChild<QLineEdit*>(u"txtTime"_s)->text(), u"15"_s);
    again.findChild<QPushButton*>(u"cmdOK"_s)->click();
    EXPECT_EQ(f.Times(), (std::vector<std::string>{"10", "15", "30"}));
}

struct TimeCase {
    const char* name;
    QString set;
    QString shown;
};

class TimeBox : public testing::TestWithParam<TimeCase> {};

// Only the number test decides: what passes stands as typed, anything else
// becomes "20" at once.
TEST_P(TimeBox, HoldsOnlyNumbers) {
    Fixture f;
    f.Time()->setText(GetParam().set);
    EXPECT_EQ(f.Time()->text(), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, TimeBox,
    testing::Values(TimeCase{"Whole", u"25"_s, u"25"_s}, TimeCase{"Negative", u"-5"_s, u"-5"_s},
                    TimeCase{"Fraction", u"1.5"_s, u"1.5"_s}, TimeCase{"Blanks", u" 25 "_s, u" 25 "_s},
                    TimeCase{"Exponent", u"1e1"_s, u"1e1"_s}, TimeCase{"Empty", u""_s, u"20"_s},
                    TimeCase{"Word", u"abc"_s, u"20"_s}, TimeCase{"TooBig", u"32768"_s, u"20"_s},
                    TimeCase{"NumberThenWord", u"15a"_s, u"20"_s}),
    [](const testing::TestParamInfo<TimeCase>& info) { return std::string(info.param.name); });

TEST(EditDialog, TypedLettersAndAnEmptiedBoxGiveTwenty) {
    Fixture f;
    f.Time()->selectAll();
    QTest::keyClick(f.Time(), Qt::Key_A);
    EXPECT_EQ(f.Time()->text(), u"20"_s) << "at the first letter";
    QTest::keyClicks(f.Time(), u"bc"_s);
    EXPECT_EQ(f.Time()->text(), u"20"_s);
    f.Time()->setText(u"7"_s);
    QTest::keyClick(f.Time(), Qt::Key_Backspace);
    EXPECT_EQ(f.Time()->text(), u"20"_s);
}

struct CloseCase {
    const char* name;
    void (*close)(Fixture&);
    bool stores;
};

class ClosingTheDialog : public testing::TestWithParam<CloseCase> {};

TEST_P(ClosingTheDialog, OnlyOkStoresTheTimeOfTheSelectedLine) {
    Fixture f;
    f.window.show();
    f.Time()->setText(u"25"_s);
    GetParam().close(f);
    EXPECT_FALSE(f.window.isVisible());
    const std::vector<std::string> expected = {"10", GetParam().stores ? "25" : "20", "30"};
    EXPECT_EQ(f.Times(), expected);
    EXPECT_EQ(f.script.LineAt(2).Text, "B");
    EXPECT_EQ(f.script.LineAt(2).Action, "[none]");
}

INSTANTIATE_TEST_SUITE_P(
    Ways, ClosingTheDialog,
    testing::Values(
        CloseCase{"Ok", [](Fixture& f) { QTest::mouseClick(f.Get<QPushButton>("cmdOK"), Qt::LeftButton); },
                  true},
        CloseCase{"Enter", [](Fixture& f) { QTest::keyClick(f.Time(), Qt::Key_Return); }, true},
        CloseCase{"Cancel",
                  [](Fixture& f) { QTest::mouseClick(f.Get<QPushButton>("cmdCancel"), Qt::LeftButton); },
                  false},
        CloseCase{"Escape", [](Fixture& f) { QTest::keyClick(f.Time(), Qt::Key_Escape); }, false},
        CloseCase{"CloseBox", [](Fixture& f) { f.window.close(); }, false}),
    [](const testing::TestParamInfo<CloseCase>& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace fs::ui
