#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "WindowChecks.h"
#include "ui/EditTimeDialog.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {
namespace {

using testing_support::ExpectFixedDialog;
using testing_support::ExpectLayout;

// A fresh Edit dialog.
struct Fixture {
    template <typename T>
    T* Get(const char* name) {
        auto* control = window.findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(control, nullptr) << name;
        return control;
    }
    QLineEdit* Time() { return Get<QLineEdit>("txtTime"); }

    EditTimeDialog window;
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

struct TimeCase {
    const char* name;
    QString set;
    QString shown;
    friend void PrintTo(const TimeCase& c, std::ostream* os) { *os << c.name; }
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
    testing::PrintToStringParamName());

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
    const char* typed;  // nullptr: the box as it opened
    void (*close)(Fixture&);
    const char* stored;  // the time OK gives the line, or "-" when nothing is stored
    friend void PrintTo(const CloseCase& c, std::ostream* os) { *os << c.name; }
};

class ClosingTheDialog : public testing::TestWithParam<CloseCase> {};

// Only OK gives a time to store, the box's text; the box opens with "15".
TEST_P(ClosingTheDialog, OnlyOkGivesTheTimeToStore) {
    Fixture f;
    f.window.show();
    if (GetParam().typed) f.Time()->setText(QString::fromLatin1(GetParam().typed));
    GetParam().close(f);
    EXPECT_FALSE(f.window.isVisible());
    EXPECT_EQ(f.window.result() == QDialog::Accepted ? f.window.Time().toStdString() : "-", GetParam().stored);
}

void ClickOk(Fixture& f) {
    QTest::mouseClick(f.Get<QPushButton>("cmdOK"), Qt::LeftButton);
}

INSTANTIATE_TEST_SUITE_P(
    Ways, ClosingTheDialog,
    testing::Values(
        CloseCase{"Ok", "25", ClickOk, "25"}, CloseCase{"OkUnchanged", nullptr, ClickOk, "15"},
        CloseCase{"Enter", "25", [](Fixture& f) { QTest::keyClick(f.Time(), Qt::Key_Return); }, "25"},
        CloseCase{"Cancel", "25",
                  [](Fixture& f) { QTest::mouseClick(f.Get<QPushButton>("cmdCancel"), Qt::LeftButton); },
                  "-"},
        CloseCase{"Escape", "25", [](Fixture& f) { QTest::keyClick(f.Time(), Qt::Key_Escape); }, "-"},
        CloseCase{"CloseBox", "25", [](Fixture& f) { f.window.close(); }, "-"}),
    testing::PrintToStringParamName());

}  // namespace
}  // namespace flickerscribe::ui
