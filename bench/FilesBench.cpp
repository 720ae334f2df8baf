// The speed of the file commands as the user sees them: the generated script
// window over a full animation, and Open of a full project file into the
// shown list.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <string>

#include "GuiBenchSupport.h"
#include "document/AnimationFile.h"
#include "settings/Settings.h"
#include "ui/dialogs/ScriptWindow.h"

namespace {

using flickerscribe::AnimationScript;

// Dialogs that choose one file and say OK to everything else.
class ChosenFile : public flickerscribe::ui::Dialogs {
public:
    explicit ChosenFile(QString path) : path_(std::move(path)) {}
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
    bool showSave(QWidget* parent, flickerscribe::ui::FileDialogState& state) override {
        return showOpen(parent, state);
    }
    QString browseForFolder(QWidget*, const QString&) override { return {}; }
    void setClipboardText(const QString&) override {}
    std::optional<QString> clipboardText() override { return QString(); }

private:
    QString path_;
};

void BM_ScriptWindowOfAFullAnimationToFirstPaint(benchmark::State& state) {
    AnimationScript script;
    flickerscribe::bench::FillNames(script, flickerscribe::kMaxLines);
    ChosenFile dialogs({});
    const flickerscribe::settings::Settings settings;
    for (auto _ : state) {
        flickerscribe::ui::ScriptWindow window(script, dialogs, settings);
        window.show();
        window.repaint();
        window.scriptBox()->viewport()->repaint();
        state.PauseTiming();
        window.close();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * flickerscribe::kMaxLines);
}
BENCHMARK(BM_ScriptWindowOfAFullAnimationToFirstPaint)->Unit(benchmark::kMillisecond);

void BM_OpenAFullFileIntoTheShownList(benchmark::State& state) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("full.fsq"));
    {
        AnimationScript script;
        flickerscribe::bench::FillNames(script, flickerscribe::kMaxLines);
        if (flickerscribe::SaveAnimationFile(path.toStdString(), script)) {
            state.SkipWithError("can't write the file");
            return;
        }
    }
    ChosenFile dialogs(path);
    flickerscribe::bench::ShownWindow shown(0, &dialogs);
    for (auto _ : state) {
        shown.Trigger(QStringLiteral("mnuFileOpen"));
        shown.PaintList();
    }
    if (shown.animation.Count() != flickerscribe::kMaxLines)
        state.SkipWithError("the file didn't load whole");
    state.SetItemsProcessed(state.iterations() * flickerscribe::kMaxLines);
}
BENCHMARK(BM_OpenAFullFileIntoTheShownList)->Unit(benchmark::kMillisecond);

}  // namespace
