#include <gmock/gmock.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "MemorySettingsStore.h"
#include "ScriptedDialogs.h"
#include "WindowChecks.h"
#include "ui/frmOptions.h"

using namespace Qt::Literals::StringLiterals;

namespace fs::ui {
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
    frmOptions window{store, dialogs, [this] { writesAtReload.append(store.Writes().size()); }};

    template <typename T>
    T* Get(const char* name) {
        auto* control = window.findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(control, nullptr) << name;
        return control;
    }
};

TEST(Options, WindowAsDesigned) {
    Fixture f;
    EXPECT_EQ(f.window.objectName(), u"frmOptions"_s);
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
    EXPECT_EQ(f.Get<QWidget>("chkEditItem")->parentWidget()->objectName(), u"fraMain"_s);
    EXPECT_EQ(f.Get<QWidget>("txtName")->parentWidget()->objectName(), u"fraWizardDefaults"_s);
    EXPECT_TRUE(f.Get<QLineEdit>("txtOpen")->isReadOnly());
    EXPECT_TRUE(f.Get<QLineEdit>("txtSave")->isReadOnly());
    EXPECT_FALSE(f.Get<QLineEdit>("txtName")->isReadOnly());
    for (const char* name : {"cmdBrowse1", "cmdBrowse2"}) {
        EXPECT_FALSE(f.Get<QPushButton>(name)->icon().isNull()) << name;
    }
    for (const char* name : {"cmdOK", "Command2", "cmdBrowse1", "cmdBrowse2"}) {
        EXPECT_FALSE(f.Get<QPushButton>(name)->isDefault()) << name;
        EXPECT_FALSE(f.Get<QPushButton>(name)->autoDefault()) << name;
    }
    EXPECT_EQ(f.Get<QWidget>("cmdOK")->nextInFocusChain(), f.Get<QWidget>("Command2"));
}

TEST(Options, LoadReadsTheStoreInOrder) {
    Fixture f({{u"Name"_s, u"Quillon"_s},
               {u"Clantag"_s, u"[QZT]"_s},
               {u"OpenDir"_s, u"/home/q/open"_s},
               {u"SaveDir"_s, u"/home/q/save"_s},
               {u"Reverse"_s, u"1"_s},
               {u"EditItem"_s, u"1"_s}});
    EXPECT_EQ(f.store.Reads(), QStringList({u"Name"_s, u"Clantag"_s, u"OpenDir"_s, u"SaveDir"_s, u"Reverse"_s,
                                            u"EditItem"_s}));
    EXPECT_EQ(f.Get<QLineEdit>("txtName")->text(), u"Quillon"_s);
    EXPECT_EQ(f.Get<QLineEdit>("txtClan")->text(), u"[QZT]"_s);
    EXPECT_EQ(f.Get<QLineEdit>("txtOpen")->text(), u"/home/q/open"_s);
    EXPECT_EQ(f.Get<QLineEdit>("txtSave")->text(), u"/home/q/save"_s);
    EXPECT_TRUE(f.Get<QCheckBox>("chkReverse")->isChecked());
    EXPECT_TRUE(f.Get<QCheckBox>("chkEditItem")->isChecked());
    EXPECT_FALSE(f.store.Written()) << "opening writes nothing";
}

class OptionsFlagText : public testing::TestWithParam<std::pair<const char*, bool>> {};

TEST_P(OptionsFlagText, OnlyTheTextOneChecksTheBox) {
    const QString text = QString::fromLatin1(GetParam().first);
    Fixture f({{u"Reverse"_s, text}, {u"EditItem"_s, text}});
    EXPECT_EQ(f.Get<QCheckBox>("chkReverse")->isChecked(), GetParam().second);
    EXPECT_EQ(f.Get<QCheckBox>("chkEditItem")->isChecked(), GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(Texts, OptionsFlagText,
                         testing::Values(std::pair{"1", true}, std::pair{"0", false}, std::pair{"", false},
                                         std::pair{"true", false}, std::pair{" 1", false},
                                         std::pair{"1 ", false}));

TEST(Options, OkWritesAllSevenValuesEvenWhenNothingChanged) {
    Fixture f;  // a first run: nothing stored
    f.window.show();
    QTest::mouseClick(f.Get<QPushButton>("cmdOK"), Qt::LeftButton);

    EXPECT_EQ(f.store.Writes(), kWriteOrder);
    const QMap<QString, QString> expected = {{u"EditItem"_s, u"0"_s},      {u"Name"_s, QString()},
                                             {u"Clantag"_s, QString()},    {u"Reverse"_s, u"0"_s},
                                             {u"OpenDir"_s, QString()},    {u"SaveDir"_s, QString()},
                                             {u"GenerateDir"_s, QString()}};
    EXPECT_EQ(f.store.Values(), expected);
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

    f.window.cmdOK_Click();

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
    f.window.close();
}

INSTANTIATE_TEST_SUITE_P(
    Buttons, OptionsBrowse,
    testing::Values(BrowseCase{"cmdBrowse1", "txtOpen", "Select default 'Open script' directory"},
                    BrowseCase{"cmdBrowse2", "txtSave", "Select default 'Save script' directory"}),
    [](const auto& info) { return std::string(info.param.button); });

TEST(Options, BrowseCancelThenOkStoresAnEmptyFolder) {
    Fixture f({{u"OpenDir"_s, u"/stored/open"_s}});
    f.dialogs.QueueFolder(QString());
    f.window.cmdBrowse1_Click();
    f.window.cmdOK_Click();
    EXPECT_EQ(f.store.Values().value(u"OpenDir"_s, u"missing"_s), QString());
}

TEST(Options, CancelAfterBrowsingChangesNothing) {
    const QMap<QString, QString> stored = {{u"OpenDir"_s, u"/stored/open"_s}, {u"Name"_s, u"Quillon"_s}};
    Fixture f(stored);
    f.window.show();
    f.dialogs.QueueFolder(u"/elsewhere"_s);
    f.window.cmdBrowse1_Click();
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
                                         KeyCase{"EscapeOnOk", "cmdOK", Qt::Key_Escape},
                                         KeyCase{"EnterOnOk", "cmdOK", Qt::Key_Return},
                                         KeyCase{"EnterOnCancel", "Command2", Qt::Key_Enter},
                                         KeyCase{"EscapeOnWindow", "frmOptions", Qt::Key_Escape}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(Options, NextOpeningShowsWhatOkStored) {
    MemorySettingsStore store;
    ScriptedDialogs dialogs;
    {
        frmOptions first(store, dialogs, {});
        QTest::keyClicks(first.findChild<QLineEdit*>(u"txtName"_s), u"Quillon"_s);
        first.findChild<QCheckBox*>(u"chkReverse"_s)->click();
        first.cmdOK_Click();
    }
    frmOptions second(store, dialogs, {});
    EXPECT_EQ(second.findChild<QLineEdit*>(u"txtName"_s)->text(), u"Quillon"_s);
    EXPECT_TRUE(second.findChild<QCheckBox*>(u"chkReverse"_s)->isChecked());
}

}  // namespace
}  // namespace fs::ui
