// The resident memory of the real main window holding a full animation, and
// holding it after a hundred replacements of the whole list:
// a project file of 32767 lines is opened through File > Open, the window is
// shown and painted with the last line selected, and the process's resident
// size (VmRSS) and its peak (VmHWM) are read from /proc/self/status.
// The target is under 80 MB. Runs on the offscreen platform unless
// QT_QPA_PLATFORM says otherwise (e.g. xcb under xvfb-run -a).

#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <fstream>
#include <string>

#include "document/AnimationFile.h"
#include "document/AnimationScript.h"
#include "settings/SettingsStore.h"
#include "ui/common/Dialogs.h"
#include "ui/main/MainWindow.h"
#include "ui/widgets/LineListView.h"

namespace {

class NoSettings : public flickerscribe::settings::SettingsStore {
public:
    QString readValue(const QString&, const QString& defaultValue) const override { return defaultValue; }
    void writeValue(const QString&, const QString&) override {}
};

// Dialogs whose open dialog chooses one file; nothing else is asked.
class OpenOneFile : public flickerscribe::ui::Dialogs {
public:
    explicit OpenOneFile(QString path) : path_(std::move(path)) {}
    flickerscribe::ui::MsgAnswer message(QWidget*, const QString&, const QString&, flickerscribe::ui::MsgIcon,
                                         flickerscribe::ui::MsgButtons) override {
        return flickerscribe::ui::MsgAnswer::Ok;
    }
    std::optional<QString> inputBox(QWidget*, const QString&, const QString&, const QString&) override {
        return std::nullopt;
    }
    bool showOpen(QWidget*, flickerscribe::ui::FileDialogState& state) override {
        state.fileName = path_;
        return true;
    }
    bool showSave(QWidget*, flickerscribe::ui::FileDialogState&) override { return false; }
    QString browseForFolder(QWidget*, const QString&) override { return {}; }
    void setClipboardText(const QString&) override {}
    std::optional<QString> clipboardText() override { return QString(); }

private:
    QString path_;
};

// A value of /proc/self/status in kB ("VmRSS", "VmHWM").
double StatusKb(const std::string& field) {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line))
        if (line.rfind(field + ":", 0) == 0) return std::stod(line.substr(field.size() + 1));
    return 0;
}

void BM_ResidentWithFullAnimationShown(benchmark::State& state) {
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("full.fsq"));
    {
        flickerscribe::AnimationScript full;
        for (int i = 0; i < flickerscribe::kMaxLines; ++i)
            full.AppendLine("^1[QZT]^7Quil^" + std::to_string(1 + i % 8) + "lon " + std::to_string(i), "15",
                            "[none]");
        if (flickerscribe::SaveAnimationFile(path.toStdString(), full)) {
            state.SkipWithError("cannot write the project file");
            return;
        }
    }
    const double baseKb = StatusKb("VmRSS");

    for (auto _ : state) {
        NoSettings store;
        OpenOneFile dialogs(path);
        flickerscribe::AnimationScript animation;
        flickerscribe::ui::MainWindow window(animation, dialogs, store);
        window.resize(800, 600);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window)) state.SkipWithError("the window never showed");
        window.findChild<QAction*>(QStringLiteral("mnuFileOpen"))->trigger();
        if (animation.Count() != flickerscribe::kMaxLines) state.SkipWithError("not all lines");
        // Down to the last line, drawn in the pane, and a full paint.
        animation.SelectLine(animation.Count());
        window.repaint();
        QApplication::processEvents();
        benchmark::DoNotOptimize(window.grab());

        state.counters["VmRSS_MB"] = StatusKb("VmRSS") / 1024;
        state.counters["VmHWM_MB"] = StatusKb("VmHWM") / 1024;
        state.counters["BeforeWindow_MB"] = baseKb / 1024;
    }
}
BENCHMARK(BM_ResidentWithFullAnimationShown)->Iterations(1)->Unit(benchmark::kMillisecond);

// The same window after the full animation was opened a hundred times more:
// every Open is a step of the history that keeps the list it replaced, as far
// as the history's 64 MB go. The target is under 200 MB.
void BM_ResidentAfterAHundredReplacements(benchmark::State& state) {
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("full.fsq"));
    {
        flickerscribe::AnimationScript full;
        for (int i = 0; i < flickerscribe::kMaxLines; ++i)
            full.AppendLine("^1[QZT]^7Quil^" + std::to_string(1 + i % 8) + "lon " + std::to_string(i), "15",
                            "[none]");
        if (flickerscribe::SaveAnimationFile(path.toStdString(), full)) {
            state.SkipWithError("cannot write the project file");
            return;
        }
    }
    for (auto _ : state) {
        NoSettings store;
        OpenOneFile dialogs(path);
        flickerscribe::AnimationScript animation;
        flickerscribe::ui::MainWindow window(animation, dialogs, store);
        window.resize(800, 600);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window)) state.SkipWithError("the window never showed");
        for (int i = 0; i <= 100; ++i) {
            // Every other line changes, so that each Open replaces something.
            if (i > 0) animation.SetLineText(1, std::to_string(i));
            window.findChild<QAction*>(QStringLiteral("mnuFileOpen"))->trigger();
            QApplication::processEvents();
        }
        window.repaint();
        state.counters["VmRSS_MB"] = StatusKb("VmRSS") / 1024;
        state.counters["VmHWM_MB"] = StatusKb("VmHWM") / 1024;
    }
}
BENCHMARK(BM_ResidentAfterAHundredReplacements)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
