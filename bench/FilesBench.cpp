// The speed of the file commands as the user sees them: the generated script
// window over a full animation, and Open of a full project file into the
// shown list.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <string>

#include "document/AnimationFile.h"
#include "document/AnimationScript.h"
#include "settings/Settings.h"
#include "settings/SettingsStore.h"
#include "ui/Dialogs.h"
#include "ui/LineListView.h"
#include "ui/frmMain.h"
#include "ui/frmScript.h"

namespace {

using fs::AnimationScript;

class NoSettings : public fs::settings::SettingsStore {
public:
    QString ReadRegistryString(const QString&, const QString& defaultValue) const override {
        return defaultValue;
    }
    void WriteRegistryString(const QString&, const QString&) override {}
};

// Dialogs that choose one file and say OK to everything else.
class ChosenFile : public fs::ui::Dialogs {
public:
    explicit ChosenFile(QString path) : path_(std::move(path)) {}
    fs::ui::MsgAnswer Message(QWidget*, const QString&, const QString&, fs::ui::MsgIcon,
                              fs::ui::MsgButtons) override {
        return fs::ui::MsgAnswer::Ok;
    }
    std::optional<QString> InputBox(QWidget*, const QString&, const QString&, const QString&) override {
        return std::nullopt;
    }
    bool ShowOpen(QWidget*, fs::ui::FileDialogState& state) override {
        state.FileName = path_;
        return true;
    }
    bool ShowSave(QWidget* parent, fs::ui::FileDialogState& state) override {
        return ShowOpen(parent, state);
    }
    QString BrowseForFolder(QWidget*, const QString&) override { return {}; }
    void SetClipboardText(const QString&) override {}
    std::optional<QString> ClipboardText() override { return QString(); }

private:
    QString path_;
};

// A full animation of names with a few colours each.
void FillFull(AnimationScript& script) {
    AnimationScript::Batch batch(script);
    for (int i = 0; i < fs::kMaxLines; ++i)
        script.AppendLine("^1Fl^2ick^3er ^7" + std::to_string(i), std::to_string(1 + i % 99), "[none]");
}

void BM_ScriptWindowOfAFullAnimationToFirstPaint(benchmark::State& state) {
    AnimationScript script;
    FillFull(script);
    ChosenFile dialogs({});
    const fs::settings::Settings settings;
    for (auto _ : state) {
        fs::ui::frmScript window(script, dialogs, settings);
        window.Form_Load();
        window.show();
        window.repaint();
        window.ScriptBox()->viewport()->repaint();
        state.PauseTiming();
        window.close();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * fs::kMaxLines);
}
BENCHMARK(BM_ScriptWindowOfAFullAnimationToFirstPaint)->Unit(benchmark::kMillisecond);

void BM_OpenAFullFileIntoTheShownList(benchmark::State& state) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("full.fsq"));
    {
        AnimationScript script;
        FillFull(script);
        if (fs::SaveAnimationFile(path.toStdString(), script)) {
            state.SkipWithError("can't write the file");
            return;
        }
    }
    ChosenFile dialogs(path);
    NoSettings store;
    fs::ui::frmMain window(dialogs, store);
    window.show();
    QCoreApplication::processEvents();
    for (auto _ : state) {
        window.OpenAnimation();
        window.ListView()->viewport()->repaint();
    }
    if (window.Script().Count() != fs::kMaxLines) state.SkipWithError("the file didn't load whole");
    state.SetItemsProcessed(state.iterations() * fs::kMaxLines);
}
BENCHMARK(BM_OpenAFullFileIntoTheShownList)->Unit(benchmark::kMillisecond);

}  // namespace

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
