#include "GuiBenchSupport.h"

#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QTextEdit>
#include <string>

#include "ui/widgets/LineListView.h"

namespace flickerscribe::bench {

void FillNames(AnimationScript& script, int lines) {
    AnimationScript::Batch batch(script);
    for (int i = 0; i < lines; ++i)
        script.AppendLine("^1Fl^2ick^3er ^7" + std::to_string(i), std::to_string(1 + i % 99), "[none]");
}

ShownWindow::ShownWindow(int lines, ui::Dialogs* dialogs)
    : window(animation, dialogs != nullptr ? *dialogs : qtDialogs, store) {
    FillNames(animation, lines);
    window.show();
    QCoreApplication::processEvents();
}

void ShownWindow::PaintList() {
    window.findChild<ui::LineListView*>()->viewport()->repaint();
}

void ShownWindow::Trigger(const QString& name) {
    window.findChild<QAction*>(name)->trigger();
}

QTextEdit* ShownWindow::Pane() const {
    return window.findChild<QTextEdit*>(QStringLiteral("txtPreview"));
}

}  // namespace flickerscribe::bench

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Flickerscribe"));
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
