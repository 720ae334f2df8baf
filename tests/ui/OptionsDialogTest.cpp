#include <gmock/gmock.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "MemorySettingsStore.h"
#include "ScriptedDialogs.h"
#include "WindowChecks.h"
#include "ui/OptionsDialog.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {
namespace {

using settings::MemorySettingsStore;
using testing_support::ExpectFixedDialog;
using testing_support::ExpectLayout;

const QStringList kWriteOrder = {u"EditItem"_s, u"Name"_s,    u"Clantag"_s,    u"Reverse"_s,
                                 u"OpenDir"_s,  u"SaveDir"_s, u"GenerateDir"_s};

// One Options dialog over a store, counting the reloads of the settings and
// how many values had been written when each happened.
struct Fixture {
    explicit Fixture(QMap<QString, QString> stored = {}) : store(std::move(stored)) {}

    MemorySettingsStore store;
    ScriptedDialogs dialogs;
    QList<qsizetype> writesAtReload;
    OptionsDialog window{store, dialogs, [this] { writesAtReload.append(store.Writes().size()); }};

    template <typename T>
    T* Get(const char* name) {
        auto* control = window.findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(control, nullptr) << name;
        return control;
    }

    // What the controls show, by the name of the value each stands for.
    QMap<QString, QString> Shown() {
        const auto flag = [this](const char* box) {
            return Get<QCheckBox>(box)->isChecked() ? u"1"_s : u"0"_s;
        };
        return {{u"Name"_s, Get<QLineEdit>("txtName")->text()},
                {u"Clantag"_s, Get<QLineEdit>("txtClan")->text()},
                {u"OpenDir"_s, Get<QLineEdit>("txtOpen")->text()},
                {u"SaveDir"_s, Get<QLineEdit>("txtSave")->text()},
                {u"Reverse"_s, flag("chkReverse")},
                {u"EditItem"_s, flag("chkEditItem")}};
    }
};

TEST(Options, WindowAsDesigned) {
    Fixture f;
    EXPECT_EQ(f.window.windowTitle(), u"Options"_s);
    ExpectFixedDialog(f.window, 6810, 4125);
    ExpectLayout(f.window, {
                               {"fraMain", "Editor", 120, 120, 4935, 2055},
                               {"chkEditItem", "Selected item edit", 120, 360, 3855, 255},
                               {"lblOpenDir", "Default Open directory", 120, 720, 2055, 255},
                               {"txtOpen", "", 120, 960, 4215, 350},
                               {"cmdBrowse1", "", 4440, 960, 375, 350},
                               {"lblSave", "Default Save directory", 120, 1320, 2055, 255},
                               {"txtSave", "", 120, 1560, 4215, 350},
                               {"cmdBrowse2", "", 4440, 1560, 375, 350},
                               {"fraWizardDefaults", "Wizard Defaults", 120, 2280, 4935, 1695},
                               {"lblClanTag", "Clantag", 120, 360, 1335, 255},
                               {"txtClan", "", 120, 600, 1335, 350},
                               {"lblName", "Name", 1680, 360, 975, 255},
                               {"txtName", "", 1680, 600, 3015, 350},
                               {"chkReverse", "Reverse clantag", 120, 1080, 4575, 255},
                               {"cmdOK", "OK", 5280, 120, 1455, 350},
                               {"Command2", "Cancel", 5280, 600, 1455, 350},
                           });
    EXPECT_EQ(f.Get<QCheckBox>("chkEditItem")->toolTip(), u"Edit item by clicking on the selected item"_s);
    EXPECT_EQ(f.Get<QWidget>("cmdOK")->nextInFocusChain(), f.Get<QWidget>("Command2"));
}

TEST(Options, LoadReadsTheStoreInOrder) {
    const QMap<QString, QString> stored = {{u"Name"_s, u"Quillon"_s},    {u"Clantag"_s, u"[QZT]"_s},
                                           {u"OpenDir"_s, u"/q/open"_s}, {u"SaveDir"_s, u"/q/save"_s},
                                           {u"Reverse"_s, u"1"_s},       {u"EditItem"_s, u"1"_s}};
    Fixture f(stored);
    EXPECT_EQ(f.store.Reads(), QStringList({u"Name"_s, u"Clantag"_s, u"OpenDir"_s, u"SaveDir"_s, u"Reverse"_s,
                                            u"EditItem"_s}));
    EXPECT_EQ(f.Shown(), stored);
    EXPECT_FALSE(f.store.Written()) << "opening writes nothing";
}

class OptionsFlagText : public testing::TestWithParam<std::pair<const char*, bool>> {};

TEST_P(OptionsFlagText, OnlyTheTextOneChecksTheBox) {
    const QString text = QString::fromLatin1(GetParam().first);
    Fixture f({{u"Reverse"_s, text}, {u"EditItem"_s, text}});
    const QString shown = GetParam().second ? u"1"_s : u"0"_s;
    EXPECT_EQ(f.Shown().value(u"Reverse"_s), shown);
    EXPECT_EQ(f.Shown().value(u"EditItem"_s), shown);
}

INSTANTIATE_TEST_SUITE_P(Texts, OptionsFlagText,
                         testing::Values(std::pair{"1", true}, std::pair{"0", false},
                                         std::pair{"true", false}, std::pair{" 1", false}));

TEST(Options, OkWritesAllSevenValuesEvenWhenNothingChanged) {
    Fixture f;  // a first run: nothing stored
    f.window.show();
    QTest::mouseClick(f.Get<QPushButton>("cmdOK"), Qt::LeftButton);

    EXPECT_EQ(f.store.Writes(), kWriteOrder);
    EXPECT_EQ(f.store.Values().value(u"EditItem"_s), u"0"_s);
    EXPECT_EQ(f.writesAtReload, QList<qsizetype>({7})) << "settings reloaded once, after every write";
    EXPECT_FALSE(f.window.isVisible());
    EXPECT_EQ(f.window.result(), QDialog::Accepted);
}

TEST(Options, OkStoresWhatTheUserChose) {
    Fixture f({{u"OpenDir"_s, u"/old/open"_s}, {u"Reverse"_s, u"1"_s}, {u"GenerateDir"_s, u"/stale"_s}});
    f.window.show();
    f.dialogs.QueueFolder(u"/new/save"_s);
    QTest::keyClicks(f.Get<QLineEdit>("txtName"), u"Quillon"_s);
    QTest::keyClicks(f.Get<QLineEdit>("txtClan"), u"=QZT="_s);
    f.Get<QCheckBox>("chkEditItem")->click();
    f.Get<QCheckBox>("chkReverse")->click();
    f.Get<QPushButton>("cmdBrowse2")->click();

    f.window.StoreSettings();

    const QMap<QString, QString> expected = {
        {u"EditItem"_s, u"1"_s},           {u"Name"_s, u"Quillon"_s},
        {u"Clantag"_s, u"=QZT="_s},        {u"Reverse"_s, u"0"_s},
        {u"OpenDir"_s, u"/old/open"_s},    {u"SaveDir"_s, u"/new/save"_s},
        {u"GenerateDir"_s, u"/new/save"_s}};
    EXPECT_EQ(f.store.Values(), expected);
    EXPECT_EQ(f.writesAtReload.size(), 1);
}

struct BrowseCase {
    const char* button;
    const char* box;
    const char* title;
    const char* value;  // stored from the box
    friend void PrintTo(const BrowseCase& c, std::ostream* os) { *os << c.button; }
};

class OptionsBrowse : public testing::TestWithParam<BrowseCase> {};

TEST_P(OptionsBrowse, AnswerFillsTheBoxAndCancelEmptiesIt) {
    Fixture f({{u"OpenDir"_s, u"/stored/open"_s}, {u"SaveDir"_s, u"/stored/save"_s}});
    f.window.show();
    auto* box = f.Get<QLineEdit>(GetParam().box);
    auto* button = f.Get<QPushButton>(GetParam().button);

    f.dialogs.QueueFolder(u"/chosen"_s);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(box->text(), u"/chosen"_s);

    f.dialogs.QueueFolder(QString());  // the user cancels the folder dialog
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(box->text(), QString());

    const auto calls = f.dialogs.CallsOf(DialogCall::Kind::BrowseForFolder);
    ASSERT_EQ(calls.size(), 2u);
    for (const DialogCall& call : calls) {
        EXPECT_EQ(call.title, QString::fromLatin1(GetParam().title));
        EXPECT_EQ(call.parent, &f.window);
    }
    EXPECT_FALSE(f.store.Written()) << "browsing alone writes nothing";

    f.window.StoreSettings();  // the emptied box clears the stored folder
    EXPECT_EQ(f.store.Values().value(QString::fromLatin1(GetParam().value), u"missing"_s), QString());
}

INSTANTIATE_TEST_SUITE_P(
    Buttons, OptionsBrowse,
    testing::Values(BrowseCase{"cmdBrowse1", "txtOpen", "Select default 'Open script' directory", "OpenDir"},
                    BrowseCase{"cmdBrowse2", "txtSave", "Select default 'Save script' directory", "SaveDir"}),
    [](const auto& info) { return std::string(info.param.button); });

TEST(Options, CancelAfterBrowsingChangesNothing) {
    const QMap<QString, QString> stored = {{u"OpenDir"_s, u"/stored/open"_s}, {u"Name"_s, u"Quillon"_s}};
    Fixture f(stored);
    f.window.show();
    f.dialogs.QueueFolder(u"/elsewhere"_s);
    f.window.BrowseOpenFolder();
    QTest::keyClicks(f.Get<QLineEdit>("txtName"), u"X"_s);

    QTest::mouseClick(f.Get<QPushButton>("Command2"), Qt::LeftButton);

    EXPECT_FALSE(f.store.Written());
    EXPECT_EQ(f.store.Values(), stored);
    EXPECT_TRUE(f.writesAtReload.isEmpty()) << "the settings in memory are left alone";
    EXPECT_FALSE(f.window.isVisible());
}

struct KeyCase {
    const char* name;
    const char* target;
    Qt::Key key;
    friend void PrintTo(const KeyCase& c, std::ostream* os) { *os << c.name; }
};

class OptionsKeys : public testing::TestWithParam<KeyCase> {};

TEST_P(OptionsKeys, EnterAndEscapeDoNothingSpecial) {
    Fixture f;
    f.window.show();
    QWidget* target =
        GetParam().target == std::string("frmOptions") ? &f.window : f.Get<QWidget>(GetParam().target);
    target->setFocus();
    QTest::keyClick(target, GetParam().key);
    EXPECT_TRUE(f.window.isVisible());
    EXPECT_FALSE(f.store.Written());
    EXPECT_TRUE(f.writesAtReload.isEmpty());
    f.window.close();
}

INSTANTIATE_TEST_SUITE_P(Keys, OptionsKeys,
                         testing::Values(KeyCase{"EscapeInName", "txtName", Qt::Key_Escape},
                                         KeyCase{"EnterInName", "txtName", Qt::Key_Return},
                                         KeyCase{"EscapeOnWindow", "frmOptions", Qt::Key_Escape}),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace flickerscribe::ui
