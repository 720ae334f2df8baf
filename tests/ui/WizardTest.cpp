// The animation wizard: its pages, its boxes, the effect list and Finish.

#include "MainWindowFixture.h"

namespace flickerscribe::ui::testing_support {
namespace {

class WizardTest : public DialogTest {
public:
    void OpenWith(const QString& name, const QString& tag, bool reverse) {
        store.writeValue(u"Name"_s, name);
        store.writeValue(u"Clantag"_s, tag);
        store.writeValue(u"Reverse"_s, reverse ? u"1"_s : u"0"_s);
        Open(u"frmWizard"_s);
    }
    void Click(const QString& name) { QTest::mouseClick(Child<QPushButton>(name), Qt::LeftButton); }
    void Type(const QString& box, const QString& text) {
        Child<QLineEdit>(box)->clear();
        QTest::keyClicks(Child<QLineEdit>(box), text);
    }
    // Pages on to the effects and adds one.
    void AddEffect(const QString& effect) {
        ToWizardPage(4);
        auto* choice = Child<QComboBox>(u"cmbEffects"_s);
        choice->setCurrentIndex(choice->findText(effect));
        Click(u"cmdAddEffect"_s);
    }
    void ClickRow(int row) {
        auto* list = Child<QTreeWidget>(u"lvwEffects"_s);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->topLevelItem(row)).center());
    }
    // The effect list and the parameter boxes with their labels, as shown.
    QString Effects() {
        QStringList rows;
        for (const QTreeWidgetItem* row :
             Child<QTreeWidget>(u"lvwEffects"_s)->findItems({}, Qt::MatchContains))
            rows << row->text(0) + u',' + row->text(1) + u',' + row->text(2);
        return rows.join(u';') + u" | "_s + Child<QLabel>(u"lblParam1"_s)->text() + u'=' +
               Child<QLineEdit>(u"txtParam1"_s)->text() + u' ' + Child<QLabel>(u"lblParam2"_s)->text() +
               u'=' + Child<QLineEdit>(u"txtParam2"_s)->text();
    }
    std::string Texts() {
        std::string texts;
        for (const AnimationLine& line : script().Lines()) texts += line.Text + " ";
        return texts;
    }
};

// It opens with the settings' name, tag and reverse flag, under the option they fit.
TEST_F(WizardTest, OpensWithTheSettingsAndEndsWithFinish) {
    for (const auto& [tag, reverse] : {std::pair{u"[QZT]"_s, false}, std::pair{QString(), true}}) {
        OpenWith(u"Quillon"_s, tag, reverse);
        const int option = tag.isEmpty() ? 0 : 1;
        EXPECT_FALSE(dialog->isModal());
        EXPECT_TRUE(Child<QRadioButton>(u"optNameOnly_%1"_s.arg(option))->isChecked());
        EXPECT_EQ(Child<QLineEdit>(u"txtNameOnly_%1"_s.arg(option))->text(), u"Quillon"_s);
        EXPECT_EQ(Child<QLineEdit>(u"txtNameOnly_%1"_s.arg(1 - option))->text(), QString());
        EXPECT_EQ(Child<QLineEdit>(u"txtClanTag"_s)->text(), tag);
        EXPECT_EQ(Child<QCheckBox>(u"chkClanTag"_s)->isChecked(), reverse);
    }
    // Back is off on the first page; the button beside it reads Finish on the last.
    EXPECT_FALSE(Child(u"cmdBack"_s)->isEnabled());
    ToWizardPage(4);
    EXPECT_TRUE(Child(u"picPage4"_s)->isVisible() && !Child(u"picPage3"_s)->isVisible());
    EXPECT_EQ(Child<QPushButton>(u"cmdNext"_s)->text(), u"Finish"_s);
    EXPECT_TRUE(dialogs.Calls().empty());
}

// Finish takes the boxes of the selected option as typed, and the reverse
// flag under either option; a box taking the focus selects its option.
TEST_F(WizardTest, FinishTakesTheBoxesOfTheSelectedOption) {
    const struct {
        const char* focus;  // the box clicked last
        bool reverse;
        const char* texts;
    } cases[] = {
        {"txtNameOnly_0", false, "A Ab "},
        {"txtClanTag", false, "[T]X [T]Xy "},
        {"txtNameOnly_1", true, "X^0[T] Xy^0[T] "},
        {"txtNameOnly_0", true, ""},  // the empty tag becomes "^0": every frame ends in a code
    };
    for (const auto& c : cases) {
        Start({"before/15"});
        OpenWith({}, {}, c.reverse);
        ToWizardPage(3);
        dialog->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
        Type(u"txtNameOnly_0"_s, u"Ab"_s);
        Type(u"txtClanTag"_s, u"[T]"_s);
        Type(u"txtNameOnly_1"_s, u"Xy"_s);
        Child(c.focus == std::string("txtNameOnly_0") ? u"txtNameOnly_1"_s : u"txtNameOnly_0"_s)->setFocus();
        Child(QString::fromLatin1(c.focus))->setFocus();
        AddEffect(u"Wave 2"_s);
        Click(u"cmdNext"_s);
        EXPECT_EQ(Texts(), c.texts) << c.focus;
        EXPECT_FALSE(dialog->isVisible());
        Trigger(u"btnnew"_s);
    }
}

// Add appends the chosen effect; a clicked row shows its parameters under their names.
TEST_F(WizardTest, TheEffectListTakesRowsAndTheirParameters) {
    OpenWith(u"^1Ka^2t"_s, u"^4[QZT]"_s, false);
    ToWizardPage(4);
    Click(u"cmdAddEffect"_s);
    EXPECT_EQ(Effects(), u" | Parameter 1= Parameter 2="_s) << "nothing chosen, nothing added";
    AddEffect(u"Wave 2"_s);
    AddEffect(u"Bounce"_s);
    AddEffect(u"Wave 2"_s);
    EXPECT_EQ(Effects(), u"Wave 2,0,0;Bounce,0,0;Wave 2,0,0 | Parameter 1= Parameter 2="_s);
    ClickRow(1);
    EXPECT_EQ(Effects(), u"Wave 2,0,0;Bounce,0,0;Wave 2,0,0 | Repeat=0 No options=0"_s);
    Type(u"txtParam1"_s, u"1"_s);
    Type(u"txtParam2"_s, u"x"_s);
    ClickRow(0);
    EXPECT_EQ(Effects(), u"Wave 2,0,0;Bounce,1,x;Wave 2,0,0 | No options=0 No options=0"_s);
    QTest::keyClick(Child(u"lvwEffects"_s), Qt::Key_Down);  // the keys choose a row as a click does
    EXPECT_EQ(Effects(), u"Wave 2,0,0;Bounce,1,x;Wave 2,0,0 | Repeat=1 No options=x"_s);
    ClickRow(0);
    Click(u"cmdBack"_s);
    Click(u"cmdNext"_s);
    EXPECT_EQ(Effects(), u"Wave 2,0,0;Bounce,1,x;Wave 2,0,0 | No options=0 No options=0"_s);
    Click(u"cmdNext"_s);
    EXPECT_EQ(Texts(),
              "^4[QZT]^1K ^4[QZT]^1Ka ^4[QZT]^1Ka^2t [QZT]Kat K[QZT]at Ka[QZT]t Kat[QZT] Ka[QZT]t K[QZT]at "
              "[QZT]Kat ^4[QZT]^1Ka^2t ^4[QZT]^1Ka ^4[QZT]^1K [QZT]K [QZT]Ka [QZT]Kat ");
    EXPECT_TRUE(dialogs.Calls().empty());
}

// A repeat of 5 or more asks over the wizard first (No skips that row); the
// line limit and an over-long name are told; the script is never restored.
TEST_F(WizardTest, QuestionsAndLimitsOfARun) {
    const std::tuple<int, const char*, std::optional<MsgAnswer>, const char*, int> cases[] = {
        {2, "5", MsgAnswer::No,
         "Processing effect list... [question]: Are you sure you want to repeat the BOUNCE EFFECT 5 times?",
         0},
        {7, "12", MsgAnswer::Yes, "Line limit reached [warning]: An", kMaxLines},
        {32768, "1", std::nullopt,
         "Animation Script Wizard [warning]: A name or a clan tag can hold at most 32767 characters. The "
         "animation was left as it was.",
         1},
    };
    for (const auto& [nameLength, repeat, answer, asked, lines] : cases) {
        Trigger(u"btnnew"_s);
        Start({"kept/15"});
        OpenWith(QString(nameLength, u'K'), u"[T]"_s, false);
        AddEffect(u"Bounce"_s);
        ClickRow(0);
        Type(u"txtParam1"_s, QString::fromLatin1(repeat));
        if (answer) dialogs.QueueMessageAnswer(*answer);
        Click(u"cmdNext"_s);
        EXPECT_TRUE(dialogs.Asked().last().startsWith(QString::fromLatin1(asked)))
            << dialogs.Asked().last().toStdString();
        EXPECT_EQ(dialogs.Calls().back().parent, dialog.get());
        EXPECT_EQ(script().Count(), lines);
        EXPECT_FALSE(dialog->isVisible());
    }
}

}  // namespace
}  // namespace flickerscribe::ui::testing_support
