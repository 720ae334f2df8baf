#include <QComboBox>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

#include "MainWindowFixture.h"
#include "ui/LineListView.h"
#include "ui/frmWizard.h"

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;

namespace fs::ui {
namespace {

class WizardFromMainTest : public testing_support::MainWindowTest {
protected:
    frmWizard* PressWizard() {
        window->tlbMain_ButtonClick(u"btnwizard"_s);
        return window->findChild<frmWizard*>();
    }

    std::vector<std::string> Texts() {
        std::vector<std::string> texts;
        for (int i = 1; i <= Script().Count(); ++i) texts.push_back(Script().LineAt(i).Text);
        return texts;
    }

    static bool Gone(const QPointer<frmWizard>& wizard) {
        return QTest::qWaitFor([&] { return wizard.isNull(); }, 1000);
    }
};

// The wizard stands beside the main window, which goes on working; Finish
// then replaces whatever the list holds, and the pane shows the first line.
TEST_F(WizardFromMainTest, MainWindowStaysUsableAndFinishReplacesItsLines) {
    store.WriteRegistryString(u"Name"_s, u"Kat"_s);
    MakeWindow();
    window->show();
    AddLines({"^1first"});
    window->lvwMain_ItemClick(1);

    QPointer<frmWizard> wizard = PressWizard();
    ASSERT_FALSE(wizard.isNull());
    EXPECT_TRUE(wizard->isVisible());
    EXPECT_FALSE(wizard->isModal());
    EXPECT_EQ(wizard->parentWidget(), window.get());
    EXPECT_EQ(wizard->findChild<QLineEdit*>(u"txtNameOnly_0"_s)->text(), u"Kat"_s);

    // The main window's commands work meanwhile.
    window->tlbMain_ButtonClick(u"btnnew"_s);
    EXPECT_EQ(Script().Count(), 0);
    AddLines({"made meanwhile", "and another"});

    while (wizard->CurrentPage() < frmWizard::kPageCount) wizard->cmdNext_Click();
    wizard->findChild<QComboBox*>(u"cmbEffects"_s)->setCurrentIndex(0);
    wizard->cmdAddEffect_Click();
    wizard->cmdNext_Click();

    EXPECT_THAT(Texts(), ElementsAre("K", "Ka", "Kat"));
    EXPECT_EQ(Script().SelectedIndex(), 1);
    EXPECT_EQ(window->ListView()->model()->rowCount(), 3);
    EXPECT_EQ(window->ListView()->currentIndex().row(), 0);
    EXPECT_EQ(PaneText(), "K");
    EXPECT_TRUE(Gone(wizard));
}

TEST_F(WizardFromMainTest, ASecondPressOnlyBringsTheOpenWizardForward) {
    window->show();
    QPointer<frmWizard> first = PressWizard();
    ASSERT_FALSE(first.isNull());
    first->cmdNext_Click();

    EXPECT_EQ(PressWizard(), first.data());
    EXPECT_EQ(window->findChildren<frmWizard*>().size(), 1);
    EXPECT_EQ(first->CurrentPage(), 2);

    // Once closed, the next press opens a new wizard from page 1.
    first->close();
    ASSERT_TRUE(Gone(first));
    frmWizard* second = PressWizard();
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(second->CurrentPage(), 1);
    EXPECT_TRUE(second->isVisible());
}

}  // namespace
}  // namespace fs::ui
