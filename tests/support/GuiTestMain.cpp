#include <gmock/gmock.h>

#include <QApplication>

// Runs the tests inside one QApplication on the offscreen platform, unless the
// caller chose another platform.
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Flickerscribe"));
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
