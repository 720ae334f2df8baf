#include <QComboBox>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

#include "MainWindowFixture.h"
#include "ui/LineListView.h"
#include "ui/WizardDialog.h"

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;

namespace flickerscribe::ui {
namespace {

class WizardFromMainTest : public testing_support::MainWindowTest {
protected:
    WizardDialog* PressWizard() {
        window->RunToolbarCommand(u"btnwizard"_s);
        return window->findChild<WizardDialog*>();
    }

    std::vector<std::string> Texts() {
        std::vector<std::string> texts;
        for (int i = 1; i <= Script().Count(); ++i) texts.push_back(Script().LineAt(i).Text);
        return texts;
    }

    static bool Gone(const QPointer<WizardDialog>& wizard) {
        return QTest::qWaitFor([&] { return wizard.isNull(); }, 1000);
    }
};

// The wizard stands beside the main window, which goes on working; Finish
// then replaces whatever the list holds, and the pane shows the first line.
TEST_F(WizardFromMainTest, MainWindowStaysUsableAndFinishReplacesItsLines) {
    store.WriteValue(u"Name"_s, u"Kat"_s);
    MakeWindow();
    window->show();
    AddLines({"^1first"});
    window->ShowClickedLine(1);

    QPointer<WizardDialog> wizard = PressWizard();
    ASSERT_FALSE(wizard.isNull());
    EXPECT_TRUE(wizard->isVisible());
    EXPECT_FALSE(wizard->isModal());
    EXPECT_EQ(wizard->parentWidget(), window.get());
    EXPECT_EQ(wizard->findChild<QLineEdit*>(u"txtNameOnly_0"_s)->text(), u"Kat"_s);

    // The main window's commands work meanwhile.
    window->RunToolbarCommand(u"btnnew"_s);
    EXPECT_EQ(Script().Count(), 0);
    AddLines({"made meanwhile", "and another"});

    while (wizard->CurrentPage() < WizardDialog::kPageCount) wizard->NextPage();
    wizard->findChild<QComboBox*>(u"cmbEffects"_s)->setCurrentIndex(0);
    wizard->AddEffect();
    wizard->NextPage();

    EXPECT_THAT(Texts(), ElementsAre("K", "Ka", "Kat"));
    EXPECT_EQ(Script().SelectedIndex(), 1);
    EXPECT_EQ(window->LineList()->model()->rowCount(), 3);
    EXPECT_EQ(window->LineList()->currentIndex().row(), 0);
    EXPECT_EQ(PaneText(), "K");
    EXPECT_TRUE(Gone(wizard));
}

TEST_F(WizardFromMainTest, ASecondPressOnlyBringsTheOpenWizardForward) {
    window->show();
    QPointer<WizardDialog> first = PressWizard();
    ASSERT_FALSE(first.isNull());
    first->NextPage();

    EXPECT_EQ(PressWizard(), first.data());
    EXPECT_EQ(window->findChildren<WizardDialog*>().size(), 1);
    EXPECT_EQ(first->CurrentPage(), 2);

    // Once closed, the next press opens a new wizard from page 1.
    first->close();
    ASSERT_TRUE(Gone(first));
    WizardDialog* second = PressWizard();
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(second->CurrentPage(), 1);
    EXPECT_TRUE(second->isVisible());
}

}  // namespace
}  // namespace flickerscribe::ui
