// Keys and settings around the main window's other windows. That each menu
// entry opens its window is checked by the end-to-end session of every command.
#include <QAbstractButton>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <functional>

#include "MainWindowFixture.h"
#include "ui/LineListView.h"

namespace flickerscribe::ui::testing_support {
namespace {

using namespace Qt::StringLiterals;

class WindowOpeners : public MainWindowTest {
protected:
    // Does `act` and gives back the objectName of the modal window that came
    // up (which is then closed), or an empty text.
    QString OpenedBy(const std::function<void()>& act) {
        QString opened;
        QTimer::singleShot(0, [&opened] {
            if (QWidget* modal = QApplication::activeModalWidget()) {
                opened = modal->objectName();
                modal->close();
            }
        });
        act();
        return opened;
    }
};

TEST_F(WindowOpeners, F1OpensAboutNotHelp) {
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QSignalSpy help(Named(u"mnuHelpHelp"_s), &QAction::triggered);
    EXPECT_EQ(OpenedBy([this] { QTest::keyClick(window->LineList(), Qt::Key_F1); }), u"frmAbout"_s);
    EXPECT_EQ(help.count(), 0);
}

TEST_F(WindowOpeners, OptionsOkAppliesTheSettingsAtOnce) {
    window->show();
    QTimer::singleShot(0, [] {
        QWidget* modal = QApplication::activeModalWidget();
        ASSERT_NE(modal, nullptr);
        if (auto* ok = modal->findChild<QAbstractButton*>(u"cmdOK"_s)) ok->click();
    });
    store.WriteValue(u"Name"_s, u"Quillon"_s);
    Named(u"mnuEditOptions"_s)->trigger();
    EXPECT_EQ(window->Settings().name, u"Quillon"_s);
    EXPECT_EQ(store.ReadValue(u"GenerateDir"_s, u"missing"_s), QString());
}

}  // namespace
}  // namespace flickerscribe::ui::testing_support
