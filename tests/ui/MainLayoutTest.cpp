#include <QTest>
#include <QToolBar>

#include "MainWindowFixture.h"
#include "ui/LineListView.h"
#include "ui/MainLayout.h"
#include "ui/Twips.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui::testing_support {
namespace {

// --- the rule on its own, in pixels under the toolbar

struct RuleCase {
    const char* name;
    QSize area;
    bool colours;
    QRect pane;
    QRect strip;  // checked only with colours on
    int listHeight;
    friend void PrintTo(const RuleCase& c, std::ostream* os) { *os << c.name; }
};

class LayoutRule : public testing::TestWithParam<RuleCase> {};

TEST_P(LayoutRule, PlacesPaneStripAndList) {
    const RuleCase& c = GetParam();
    const MainLayout layout = LayOutMainWindow(c.area, c.colours);
    EXPECT_EQ(layout.pane, c.pane);
    EXPECT_EQ(layout.stripVisible, c.colours);
    if (c.colours) {
        EXPECT_EQ(layout.strip, c.strip);
    }
    EXPECT_EQ(layout.listWidth, c.area.width());
    EXPECT_EQ(layout.listHeight, c.listHeight);
}

// The designed window: 7965 twips wide (531 px); pane 495 twips high (33 px)
// at 30 twips under the toolbar (2 px); strip 3735 twips (249 px); the list
// starts 510 twips under the toolbar (34 px) and ends at the bottom.
INSTANTIATE_TEST_SUITE_P(
    Cases, LayoutRule,
    testing::Values(RuleCase{"Designed", {531, 397}, false, {0, 2, 531, 33}, {}, 363},
                    RuleCase{
                        "DesignedWithColours", {531, 397}, true, {0, 2, 282, 33}, {282, 2, 249, 33}, 363},
                    RuleCase{"Wide", {1000, 600}, true, {0, 2, 751, 33}, {751, 2, 249, 33}, 566},
                    RuleCase{"Minimum", {500, 397}, false, {0, 2, 500, 33}, {}, 363},
                    // Narrower than the strip: the pane has no width, never a negative one.
                    RuleCase{"NarrowerThanTheStrip", {200, 397}, true, {0, 2, 0, 33}, {-49, 2, 249, 33}, 363},
                    RuleCase{"JustHighEnough", {531, 35}, false, {0, 2, 531, 33}, {}, 1},
                    // Too low: the list keeps whatever height it had.
                    RuleCase{"TooLow", {531, 34}, false, {0, 2, 531, 33}, {}, -1},
                    RuleCase{"NoRoomAtAll", {0, 0}, true, {0, 2, 0, 33}, {-249, 2, 249, 33}, -1}),
    testing::PrintToStringParamName());

// --- the rule applied to the real window

class MainWindowLayout : public MainWindowTest {
protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }

    void ResizeClient(int width, int height) {
        window->resize(width, height);
        QCoreApplication::processEvents();
    }

    QWidget* Client() const { return window->centralWidget(); }
    QWidget* Pane() const { return window->PaneEdit(); }
    QWidget* Strip() const { return Named<QWidget>(u"picColors"_s); }
    QWidget* List() const { return window->LineList(); }
};

TEST_F(MainWindowLayout, OpensAtItsDesignedClientSize) {
    const int toolbarAndClient = window->height() - window->menuWidget()->height();
    EXPECT_EQ(window->width(), Twips(7965));
    EXPECT_EQ(toolbarAndClient, Twips(6765));
}

TEST_F(MainWindowLayout, WithoutColoursThePaneTakesTheWholeWidth) {
    ResizeClient(700, 500);
    EXPECT_EQ(Pane()->geometry(), QRect(0, 2, Client()->width(), 33));
    EXPECT_FALSE(Strip()->isVisible());
    EXPECT_EQ(List()->geometry(), QRect(0, 34, Client()->width(), Client()->height() - 34));
}

TEST_F(MainWindowLayout, ColoursNarrowThePaneAndStandFlushRight) {
    ResizeClient(700, 500);
    window->ToggleColours();
    const int width = Client()->width();
    EXPECT_TRUE(Strip()->isVisible());
    EXPECT_EQ(Pane()->geometry(), QRect(0, 2, width - 249, 33));
    EXPECT_EQ(Strip()->geometry(), QRect(width - 249, 2, 249, 33));
    EXPECT_EQ(Strip()->geometry().right(), width - 1);

    // The rule runs again at each resize.
    ResizeClient(800, 500);
    EXPECT_EQ(Strip()->geometry().right(), Client()->width() - 1);

    window->ToggleColours();
    EXPECT_FALSE(Strip()->isVisible());
    EXPECT_EQ(Pane()->width(), Client()->width());
}

TEST_F(MainWindowLayout, TheWindowGoesNoNarrowerThanItsMinimum) {
    EXPECT_EQ(window->minimumWidth(), Twips(7500));
    ResizeClient(300, 500);
    EXPECT_EQ(window->width(), Twips(7500));
    window->ToggleColours();
    EXPECT_EQ(Pane()->width(), Twips(7500) - 249);
}

TEST_F(MainWindowLayout, AVeryLowWindowKeepsTheListsLastHeight) {
    ResizeClient(600, 500);
    const int before = List()->height();
    ASSERT_GT(before, 0);
    ResizeClient(600, window->height() - Client()->height() + 20);  // 20 px under the toolbar
    EXPECT_EQ(List()->height(), before);
    EXPECT_EQ(Pane()->geometry().top(), 2) << "nothing moves up or down";
    EXPECT_EQ(List()->geometry().top(), 34);
}

TEST_F(MainWindowLayout, MinimizingAndRestoringChangesNothing) {
    ResizeClient(650, 450);
    window->ToggleColours();
    const QRect pane = Pane()->geometry(), strip = Strip()->geometry(), list = List()->geometry();
    window->showMinimized();
    QCoreApplication::processEvents();
    window->showNormal();
    QCoreApplication::processEvents();
    EXPECT_EQ(Pane()->geometry(), pane);
    EXPECT_EQ(Strip()->geometry(), strip);
    EXPECT_EQ(List()->geometry(), list);
}

}  // namespace
}  // namespace flickerscribe::ui::testing_support
