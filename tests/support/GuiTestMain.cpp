#include <gmock/gmock.h>

#include <QApplication>
#include <QStandardPaths>

// One QApplication for the tests, on the offscreen platform unless one is chosen.
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Flickerscribe"));
    // Whatever a test writes by mistake lands in a test folder, never in the
    // user's own settings.
    QStandardPaths::setTestModeEnabled(true);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
