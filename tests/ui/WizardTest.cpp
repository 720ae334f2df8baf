#include <gmock/gmock.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "ScriptedDialogs.h"
#include "WindowChecks.h"
#include "document/AnimationScript.h"
#include "settings/Settings.h"
#include "ui/AnimationHistory.h"
#include "ui/WizardDialog.h"

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

namespace flickerscribe::ui {
namespace {

class WizardTest : public ::testing::Test {
protected:
    void TearDown() override {
        if (wizard) wizard->close();
    }

    WizardDialog& Open() {
        wizard = std::make_unique<WizardDialog>(history, dialogs, settings);
        wizard->show();
        return *wizard;
    }

    template <typename Control = QWidget>
    Control& Find(const QString& name) const {
        auto* control = wizard->findChild<Control*>(name);
        if (control == nullptr) throw std::runtime_error("no control " + name.toStdString());
        return *control;
    }

    void Click(const QString& name) { QTest::mouseClick(&Find<QPushButton>(name), Qt::LeftButton); }

    void GoToPage(int page) {
        while (wizard->CurrentPage() < page) Click(u"cmdNext"_s);
        ASSERT_EQ(wizard->CurrentPage(), page);
    }

    void ChooseOption(int index) { Find<QRadioButton>(u"optNameOnly_%1"_s.arg(index)).click(); }

    void Type(const QString& box, const QString& text) {
        auto& edit = Find<QLineEdit>(box);
        edit.clear();
        // Typed key by key where the test keyboard has the keys; pasted otherwise.
        bool ascii = true;
        for (const QChar c : text) ascii = ascii && c.unicode() < 0x80;
        if (ascii) {
            QTest::keyClicks(&edit, text);
        } else {
            edit.insert(text);
        }
    }

    void AddEffect(const QString& effect) {
        auto& combo = Find<QComboBox>(u"cmbEffects"_s);
        combo.setCurrentIndex(combo.findText(effect));
        Click(u"cmdAddEffect"_s);
    }

    void ClickRow(int row) {
        auto& list = Find<QTreeWidget>(u"lvwEffects"_s);
        const QRect place = list.visualItemRect(list.topLevelItem(row));
        ASSERT_TRUE(place.isValid());
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place.center());
    }

    // Each row of the effect list as its three texts.
    std::vector<std::vector<QString>> Rows() const {
        std::vector<std::vector<QString>> rows;
        const auto& list = Find<QTreeWidget>(u"lvwEffects"_s);
        for (int i = 0; i < list.topLevelItemCount(); ++i) {
            const QTreeWidgetItem* item = list.topLevelItem(i);
            rows.push_back({item->text(0), item->text(1), item->text(2)});
        }
        return rows;
    }

    // The one message asked since the last ClearCalls, put over the wizard.
    void ExpectOneMessage(const QString& text, const QString& title, MsgIcon icon, MsgButtons buttons) const {
        const auto messages = dialogs.Messages();
        ASSERT_EQ(messages.size(), 1u);
        EXPECT_EQ(messages[0].text, text);
        EXPECT_EQ(messages[0].title, title);
        EXPECT_EQ(messages[0].icon, icon);
        EXPECT_EQ(messages[0].buttons, buttons);
        EXPECT_EQ(messages[0].parent, wizard.get());
    }

    std::vector<std::string> Texts() const {
        std::vector<std::string> texts;
        for (int i = 1; i <= script.Count(); ++i) texts.push_back(script.LineAt(i).Text);
        return texts;
    }

    AnimationScript script;
    AnimationHistory history{script};
    ScriptedDialogs dialogs;
    settings::Settings settings;
    std::unique_ptr<WizardDialog> wizard;
};

TEST_F(WizardTest, OpensAsAFixedWindowWithItsCaptions) {
    Open();
    EXPECT_EQ(wizard->windowTitle(), u"Animation Script Wizard"_s);
    testing_support::ExpectFixedDialog(*wizard, WizardDialog::kClientWidth, WizardDialog::kClientHeight);
    EXPECT_FALSE(wizard->isModal());

    const std::vector<std::pair<QString, QString>> captions = {
        {u"lblWelcome"_s, u"Welcome to the Animation Script Wizard"_s},
        {u"lblText"_s,
         u"With this wizard, you can create cool animation effects in just a few minutes.\n\n"
         "Click Next to continue or Cancel to exit."_s},
        {u"lblPage1"_s, u"Select wizard type"_s},
        {u"fraWizStyle"_s, u"Animation wizard style"_s},
        {u"optWizStyle_0"_s, u"Simple"_s},
        {u"optWizStyle_1"_s, u"Advanced"_s},
        {u"fraName"_s, u"Your name"_s},
        {u"optNameOnly_0"_s, u"Name Only"_s},
        {u"optNameOnly_1"_s, u"Clantag and Name"_s},
        {u"chkClanTag"_s, u"Reverse clantag-name (e.g. [QZT]Quillon -> Quillon[QZT]   )"_s},
        {u"cmdColor"_s, u"Color editor"_s},
        {u"fraEffects"_s, u"Effects"_s},
        {u"cmdAddEffect"_s, u"Add"_s},
        {u"cmdPreview"_s, u"Preview"_s},
        {u"lblEffectList"_s, u"Effect list"_s},
        {u"lblParam1"_s, u"Parameter 1"_s},
        {u"lblParam2"_s, u"Parameter 2"_s},
        {u"cmdBack"_s, u"< Back"_s},
        {u"cmdNext"_s, u"Next >"_s},
        {u"cmdCancel"_s, u"Cancel"_s},
    };
    for (const auto& [name, caption] : captions) {
        SCOPED_TRACE(name.toStdString());
        EXPECT_EQ(testing_support::CaptionOf(&Find(name)), caption);
    }
    EXPECT_EQ(Find<QLabel>(u"lblWelcome"_s).font().pointSizeF(), 13.5);
    EXPECT_FALSE(Find<QLabel>(u"lblWelcome"_s).font().bold());
    EXPECT_TRUE(Find<QLabel>(u"lblPage1"_s).font().bold());
    EXPECT_EQ(Find<QLabel>(u"imgPage1"_s).pixmap().deviceIndependentSize().toSize(), QSize(164, 313));

    EXPECT_TRUE(Find<QRadioButton>(u"optWizStyle_0"_s).isChecked());
    EXPECT_FALSE(Find<QRadioButton>(u"optWizStyle_1"_s).isEnabled());
    EXPECT_TRUE(Find<QPushButton>(u"cmdNext"_s).isDefault());

    const auto& combo = Find<QComboBox>(u"cmbEffects"_s);
    EXPECT_FALSE(combo.isEditable());
    ASSERT_EQ(combo.count(), 2);
    EXPECT_EQ(combo.itemText(0), u"Wave 2"_s);
    EXPECT_EQ(combo.itemText(1), u"Bounce"_s);
    EXPECT_EQ(combo.currentIndex(), -1);
    EXPECT_EQ(Find<QTreeWidget>(u"lvwEffects"_s).headerItem()->text(2), u"Parameter 2"_s);
}

// Paging forth and back: one page on show at a time, Back off on page 1 only,
// and Next reading Finish on the last page.
TEST_F(WizardTest, PagesFollowNextAndBack) {
    Open();
    struct Step {
        const char* press;  // nullptr: as opened; "Enter" presses the key
        int page;
        bool backEnabled;
        QString next;
    };
    const Step steps[] = {
        {nullptr, 1, false, u"Next >"_s},   {"Enter", 2, true, u"Next >"_s},
        {"cmdNext", 3, true, u"Next >"_s},  {"cmdNext", 4, true, u"Finish"_s},
        {"cmdBack", 3, true, u"Next >"_s},  {"cmdBack", 2, true, u"Next >"_s},
        {"cmdBack", 1, false, u"Next >"_s}, {"cmdNext", 2, true, u"Next >"_s},
    };
    for (const Step& step : steps) {
        SCOPED_TRACE(step.page);
        if (step.press != nullptr && QString::fromLatin1(step.press) == u"Enter"_s) {
            QTest::keyClick(wizard.get(), Qt::Key_Return);
        } else if (step.press != nullptr) {
            Click(QString::fromLatin1(step.press));
        }
        EXPECT_EQ(wizard->CurrentPage(), step.page);
        for (int page = 1; page <= WizardDialog::kPageCount; ++page) {
            EXPECT_EQ(Find(u"picPage%1"_s.arg(page)).isVisible(), page == step.page) << "page " << page;
        }
        EXPECT_EQ(Find(u"imgPage1"_s).isVisible(), step.page == 1);
        EXPECT_EQ(Find(u"cmdBack"_s).isEnabled(), step.backEnabled);
        EXPECT_EQ(Find<QPushButton>(u"cmdNext"_s).text(), step.next);
    }
    EXPECT_THAT(dialogs.Calls(), IsEmpty());
}

TEST_F(WizardTest, NextThroughEveryPageAndFinishWithNoEffectEmptiesTheScript) {
    script.AppendLine("old", "15", "[none]");
    script.AppendLine("lines", "15", "[none]");
    settings.name = u"Quillon"_s;
    Open();
    GoToPage(4);
    Click(u"cmdNext"_s);
    EXPECT_EQ(script.Count(), 0);
    EXPECT_FALSE(wizard->isVisible());
    EXPECT_THAT(dialogs.Calls(), IsEmpty());
}

TEST_F(WizardTest, OpensWithTheNameTagAndReverseOfTheSettings) {
    struct Case {
        QString name, clantag;
        bool reverse;
        int option;
        QString box0, tag, box1;
    };
    const Case cases[] = {
        {u"Quillon"_s, u"[QZT]"_s, false, 1, u""_s, u"[QZT]"_s, u"Quillon"_s},
        {u"Quillon"_s, u""_s, true, 0, u"Quillon"_s, u""_s, u""_s},
        {u""_s, u"^4[QZT]"_s, true, 1, u""_s, u"^4[QZT]"_s, u""_s},
        {u""_s, u""_s, false, 0, u""_s, u""_s, u""_s},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name.toStdString() + "/" + c.clantag.toStdString());
        settings.name = c.name;
        settings.clanTag = c.clantag;
        settings.reverse = c.reverse;
        Open();
        EXPECT_TRUE(Find<QRadioButton>(u"optNameOnly_%1"_s.arg(c.option)).isChecked());
        EXPECT_FALSE(Find<QRadioButton>(u"optNameOnly_%1"_s.arg(1 - c.option)).isChecked());
        EXPECT_EQ(Find<QLineEdit>(u"txtNameOnly_0"_s).text(), c.box0);
        EXPECT_EQ(Find<QLineEdit>(u"txtClanTag"_s).text(), c.tag);
        EXPECT_EQ(Find<QLineEdit>(u"txtNameOnly_1"_s).text(), c.box1);
        EXPECT_EQ(Find<QCheckBox>(u"chkClanTag"_s).isChecked(), c.reverse);
    }
}

// Finish hands the engine the boxes of the selected option, as typed, and the
// reverse flag under either option. One "Wave 2" shows what it was given.
TEST_F(WizardTest, FinishTakesTheBoxesOfTheSelectedOption) {
    struct Case {
        const char* what;
        int option;
        bool reverse;
        QString name0;
        std::vector<std::string> lines;
    };
    const Case cases[] = {
        {"name only ignores the tag box", 0, false, u"Ab"_s, {"A", "Ab"}},
        {"tag and name", 1, false, u"Ab"_s, {"[T]X", "[T]Xy"}},
        {"reversed behind the name", 1, true, u"Ab"_s, {"X^0[T]", "Xy^0[T]"}},
        // The empty tag of Name Only becomes "^0" and every frame ends in a code.
        {"reverse applies under name only", 0, true, u"Ab"_s, {}},
        {"blanks stay", 0, false, u" K"_s, {" K"}},
        {"text goes over as Windows-1252", 0, false, u"\u00e9\u20ac"_s, {"\xE9", "\xE9\x80"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        script.AppendLine("before", "15", "[none]");
        Open();
        GoToPage(3);
        Type(u"txtNameOnly_0"_s, c.name0);
        Type(u"txtClanTag"_s, u"[T]"_s);
        Type(u"txtNameOnly_1"_s, u"Xy"_s);
        ChooseOption(c.option);
        if (c.reverse) Find<QCheckBox>(u"chkClanTag"_s).click();
        GoToPage(4);
        AddEffect(u"Wave 2"_s);
        Click(u"cmdNext"_s);
        EXPECT_THAT(Texts(), ElementsAreArray(c.lines));
        EXPECT_FALSE(wizard->isVisible());
    }
}

TEST_F(WizardTest, ANameBoxTakingTheFocusSelectsItsOption) {
    settings.clanTag = u"[QZT]"_s;
    Open();
    GoToPage(3);
    wizard->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(wizard.get()));
    struct Case {
        QString box;
        int option;
    };
    const Case cases[] = {
        {u"txtNameOnly_0"_s, 0},
        {u"txtClanTag"_s, 1},
        {u"txtNameOnly_0"_s, 0},
        {u"txtNameOnly_1"_s, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.box.toStdString());
        Find<QLineEdit>(c.box).setFocus();
        EXPECT_TRUE(Find<QRadioButton>(u"optNameOnly_%1"_s.arg(c.option)).isChecked());
    }
    // Nothing was typed: the boxes hold what they held.
    EXPECT_EQ(Find<QLineEdit>(u"txtClanTag"_s).text(), u"[QZT]"_s);
}

TEST_F(WizardTest, AddAppendsTheChosenEffectAndLeavesTheParameterBoxesAlone) {
    Open();
    GoToPage(4);
    auto& combo = Find<QComboBox>(u"cmbEffects"_s);
    // With nothing chosen, Add does nothing.
    Click(u"cmdAddEffect"_s);
    EXPECT_THAT(Rows(), IsEmpty());
    // Text typed with no row selected just stays in the box.
    Type(u"txtParam1"_s, u"7"_s);
    AddEffect(u"Bounce"_s);
    Click(u"cmdAddEffect"_s);
    AddEffect(u"Wave 2"_s);
    EXPECT_EQ(combo.currentText(), u"Wave 2"_s);
    EXPECT_THAT(Rows(), ElementsAre(ElementsAre(u"Bounce"_s, u"0"_s, u"0"_s),
                                    ElementsAre(u"Bounce"_s, u"0"_s, u"0"_s),
                                    ElementsAre(u"Wave 2"_s, u"0"_s, u"0"_s)));
    EXPECT_EQ(Find<QLineEdit>(u"txtParam1"_s).text(), u"7"_s);
    EXPECT_EQ(Find<QLabel>(u"lblParam1"_s).text(), u"Parameter 1"_s);
    // The first row of the list is the selected one, though nothing loaded it.
    EXPECT_EQ(Find<QTreeWidget>(u"lvwEffects"_s).currentItem(),
              Find<QTreeWidget>(u"lvwEffects"_s).topLevelItem(0));
}

// A click loads the row's parameters and names them; typing goes straight
// into the selected row, keystroke by keystroke.
TEST_F(WizardTest, ClickedRowLoadsAndTakesItsParameters) {
    Open();
    GoToPage(4);
    AddEffect(u"Wave 2"_s);
    AddEffect(u"Bounce"_s);
    struct Step {
        int click;                           // the row clicked, -1 for none
        QString param1;                      // then typed into Parameter 1, when not empty
        QString param2;                      // then typed into Parameter 2, when not empty
        QString label1, label2, box1, box2;  // afterwards
    };
    const Step steps[] = {
        {1, {}, {}, u"Repeat"_s, u"No options"_s, u"0"_s, u"0"_s},
        {-1, u"5"_s, u"x"_s, u"Repeat"_s, u"No options"_s, u"5"_s, u"x"_s},
        {0, {}, {}, u"No options"_s, u"No options"_s, u"0"_s, u"0"_s},
        {-1, u"abc"_s, {}, u"No options"_s, u"No options"_s, u"abc"_s, u"0"_s},
        {1, {}, {}, u"Repeat"_s, u"No options"_s, u"5"_s, u"x"_s},
    };
    for (std::size_t i = 0; i < std::size(steps); ++i) {
        const Step& step = steps[i];
        SCOPED_TRACE(i);
        if (step.click >= 0) ClickRow(step.click);
        if (!step.param1.isEmpty()) Type(u"txtParam1"_s, step.param1);
        if (!step.param2.isEmpty()) Type(u"txtParam2"_s, step.param2);
        EXPECT_EQ(Find<QLabel>(u"lblParam1"_s).text(), step.label1);
        EXPECT_EQ(Find<QLabel>(u"lblParam2"_s).text(), step.label2);
        EXPECT_EQ(Find<QLineEdit>(u"txtParam1"_s).text(), step.box1);
        EXPECT_EQ(Find<QLineEdit>(u"txtParam2"_s).text(), step.box2);
    }
    EXPECT_THAT(Rows(), ElementsAre(ElementsAre(u"Wave 2"_s, u"abc"_s, u"0"_s),
                                    ElementsAre(u"Bounce"_s, u"5"_s, u"x"_s)));
}

TEST_F(WizardTest, BackAndNextKeepTheRowsAndTheParameterBoxes) {
    Open();
    GoToPage(4);
    AddEffect(u"Bounce"_s);
    ClickRow(0);
    Type(u"txtParam1"_s, u"3"_s);
    EXPECT_EQ(Find<QPushButton>(u"cmdNext"_s).text(), u"Finish"_s);
    Click(u"cmdBack"_s);
    EXPECT_EQ(Find<QPushButton>(u"cmdNext"_s).text(), u"Next >"_s);
    Click(u"cmdNext"_s);
    EXPECT_EQ(Find<QPushButton>(u"cmdNext"_s).text(), u"Finish"_s);
    EXPECT_THAT(Rows(), ElementsAre(ElementsAre(u"Bounce"_s, u"3"_s, u"0"_s)));
    EXPECT_EQ(Find<QLineEdit>(u"txtParam1"_s).text(), u"3"_s);
    EXPECT_EQ(Find<QLabel>(u"lblParam1"_s).text(), u"Repeat"_s);
    EXPECT_TRUE(wizard->isVisible());
}

TEST_F(WizardTest, FinishRunsTheEffectListFromTheWindow) {
    settings.name = u"^1Ka^2t"_s;
    settings.clanTag = u"^4[QZT]"_s;
    Open();
    GoToPage(4);
    AddEffect(u"Wave 2"_s);
    AddEffect(u"Bounce"_s);
    AddEffect(u"Wave 2"_s);
    ClickRow(1);
    Type(u"txtParam1"_s, u"1"_s);
    Click(u"cmdNext"_s);

    EXPECT_THAT(Texts(),
                ElementsAre("^4[QZT]^1K", "^4[QZT]^1Ka", "^4[QZT]^1Ka^2t", "[QZT]Kat", "K[QZT]at", "Ka[QZT]t",
                            "Kat[QZT]", "Ka[QZT]t", "K[QZT]at", "[QZT]Kat", "^4[QZT]^1Ka^2t", "^4[QZT]^1Ka",
                            "^4[QZT]^1K", "[QZT]K", "[QZT]Ka", "[QZT]Kat"));
    for (int i = 1; i <= script.Count(); ++i) {
        EXPECT_EQ(script.LineAt(i).Time, "15");
        EXPECT_EQ(script.LineAt(i).Action, "[none]");
    }
    EXPECT_EQ(script.SelectedIndex(), 1);
    EXPECT_THAT(dialogs.Calls(), IsEmpty());
    EXPECT_FALSE(wizard->isVisible());
}

// A repeat of 5 or more asks over the wizard first; No skips that row alone.
// (Yes is what lets the line-limit case below reach the limit.)
TEST_F(WizardTest, NoToTheRepeatQuestionSkipsTheBounce) {
    settings.name = u"Ka"_s;
    settings.clanTag = u"[T]"_s;
    Open();
    GoToPage(4);
    AddEffect(u"Bounce"_s);
    AddEffect(u"Wave 2"_s);
    ClickRow(0);
    Type(u"txtParam1"_s, u"5"_s);
    dialogs.QueueMessageAnswer(MsgAnswer::No);
    Click(u"cmdNext"_s);

    ExpectOneMessage(u"Are you sure you want to repeat the BOUNCE EFFECT 5 times?"_s,
                     u"Processing effect list..."_s, MsgIcon::Question, MsgButtons::YesNo);
    EXPECT_THAT(Texts(), ElementsAre("[T]K", "[T]Ka"));
    EXPECT_FALSE(wizard->isVisible());
}

TEST_F(WizardTest, WorkStoppedByALimitIsReported) {
    struct Case {
        const char* what;
        int nameLength;
        const char* repeat;
        QString title;
        int lines;  // -1: the script as it was before
    };
    const Case cases[] = {
        {"the line limit", 7, "12", u"Line limit reached"_s, kMaxLines},
        {"an over-long name", 32768, "1", u"Animation Script Wizard"_s, -1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        script.ClearLines();
        script.AppendLine("kept", "15", "[none]");
        settings.name = QString(c.nameLength, u'K');
        settings.clanTag = u"[T]"_s;
        Open();
        GoToPage(4);
        AddEffect(u"Bounce"_s);
        ClickRow(0);
        Type(u"txtParam1"_s, QString::fromLatin1(c.repeat));
        dialogs.ClearCalls();
        if (QString::fromLatin1(c.repeat).toInt() >= 5) dialogs.QueueMessageAnswer(MsgAnswer::Yes);
        Click(u"cmdNext"_s);

        const auto messages = dialogs.Messages();
        ASSERT_FALSE(messages.empty());
        EXPECT_EQ(messages.back().title, c.title);
        EXPECT_EQ(messages.back().parent, wizard.get());
        if (c.lines < 0) {
            EXPECT_THAT(Texts(), ElementsAre("kept"));
        } else {
            EXPECT_EQ(script.Count(), c.lines);
        }
        EXPECT_FALSE(wizard->isVisible());
    }
}

// Cancel and Esc ask; the close box doesn't. Leaving never touches the script.
TEST_F(WizardTest, LeavingWithoutFinish) {
    struct Case {
        const char* how;
        MsgAnswer answer;  // ignored for the close box
        bool asks, stays;
    };
    const Case cases[] = {
        {"cmdCancel", MsgAnswer::No, true, true},    {"cmdCancel", MsgAnswer::Yes, true, false},
        {"Escape", MsgAnswer::No, true, true},       {"Escape", MsgAnswer::Yes, true, false},
        {"close box", MsgAnswer::Yes, false, false},
    };
    for (const Case& c : cases) {
        const QString how = QString::fromLatin1(c.how);
        SCOPED_TRACE(c.how);
        script.ClearLines();
        script.AppendLine("mine", "20", "say hi");
        Open();
        GoToPage(4);
        AddEffect(u"Wave 2"_s);
        dialogs.ClearCalls();
        if (c.asks) dialogs.QueueMessageAnswer(c.answer);
        if (how == u"cmdCancel"_s) {
            Click(how);
        } else if (how == u"Escape"_s) {
            QTest::keyClick(wizard.get(), Qt::Key_Escape);
        } else {
            wizard->close();
        }
        if (c.asks) {
            ExpectOneMessage(u"Are you sure you want to exit the wizard?"_s, u"Exit wizard?"_s,
                             MsgIcon::Question, MsgButtons::YesNo);
        } else {
            EXPECT_THAT(dialogs.Calls(), IsEmpty());
        }
        EXPECT_EQ(wizard->isVisible(), c.stays);
        EXPECT_EQ(wizard->CurrentPage(), 4);
        EXPECT_EQ(Rows().size(), 1u);
        EXPECT_EQ(script.Count(), 1);
        EXPECT_EQ(script.LineAt(1), (AnimationLine{"mine", "20", "say hi"}));
    }
}

TEST_F(WizardTest, PreviewOnlyShowsAMessage) {
    Open();
    GoToPage(4);
    AddEffect(u"Bounce"_s);
    Click(u"cmdPreview"_s);
    ExpectOneMessage(u"Preview not available yet!"_s, u"Effect - Preview"_s, MsgIcon::Information,
                     MsgButtons::Ok);
    EXPECT_EQ(Rows().size(), 1u);
    EXPECT_TRUE(wizard->isVisible());
}

TEST_F(WizardTest, ColorEditorOpensModallyOverTheWizard) {
    Open();
    GoToPage(3);
    QString seen;
    bool modal = false;
    QWidget* owner = nullptr;
    // Closes the editor once it stands, so that the click returns.
    QTimer::singleShot(0, [&] {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == u"frmColorEditor"_s && window->isVisible()) {
                seen = window->objectName();
                modal = window->isModal();
                owner = window->parentWidget();
                window->close();
            }
        }
    });
    Click(u"cmdColor"_s);
    EXPECT_EQ(seen, u"frmColorEditor"_s);
    EXPECT_TRUE(modal);
    EXPECT_EQ(owner, wizard.get());
    EXPECT_EQ(wizard->CurrentPage(), 3);
    EXPECT_TRUE(wizard->isVisible());
}

}  // namespace
}  // namespace flickerscribe::ui
