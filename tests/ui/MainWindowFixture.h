#pragma once

#include <gmock/gmock.h>

#include <QAction>
#include <QTextEdit>
#include <initializer_list>
#include <memory>
#include <string>

#include "MemorySettingsStore.h"
#include "ScriptedDialogs.h"
#include "colour/Pane.h"
#include "ui/MainWindow.h"

namespace flickerscribe::ui::testing_support {

constexpr Colour kRed = Rgb(255, 0, 0);
constexpr Colour kGreen = Rgb(0, 255, 0);

// A fresh main window for each test, with scripted dialogs and a settings
// store in memory (a first run unless the test fills `store` before
// MakeWindow).
class MainWindowTest : public testing::Test {
protected:
    void SetUp() override { MakeWindow(); }

    void MakeWindow() {
        window.reset();
        window = std::make_unique<MainWindow>(dialogs, store, keptAnimation);
    }

    AnimationScript& Script() { return window->Script(); }

    void AddLines(std::initializer_list<const char*> texts) {
        for (const char* text : texts) ASSERT_TRUE(Script().AppendLine(text, "15", "[none]"));
    }

    template <class T = QAction>
    T* Named(const QString& name) const {
        T* found = window->findChild<T*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return found;
    }

    std::string PaneText() { return window->PreviewPane().Text(); }
    std::vector<ColouredRun> PaneRuns() { return window->PreviewPane().Runs(); }
    bool PaneLocked() { return window->PreviewPane().Locked(); }

    ScriptedDialogs dialogs;
    settings::MemorySettingsStore store;
    // Where the window keeps the last animation: nowhere unless a test says.
    QString keptAnimation;
    std::unique_ptr<MainWindow> window;
};

}  // namespace flickerscribe::ui::testing_support
