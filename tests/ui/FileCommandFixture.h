#pragma once

#include <QTemporaryDir>
#include <array>
#include <memory>
#include <optional>
#include <ostream>
#include <vector>

#include "MainWindowFixture.h"
#include "ui/ScriptWindow.h"

namespace flickerscribe::ui::testing_support {

// The four commands that go through a file dialog.
enum class Command { Open, SaveAs, Import, SaveScript };
inline void PrintTo(Command command, std::ostream* os) {
    *os << std::array{"Open", "SaveAs", "Import", "SaveScript"}[static_cast<std::size_t>(command)];
}

// A main window, a folder of the test's own, and the script window of the
// window's animation, made on first use.
class FileCommandTest : public MainWindowTest {
protected:
    ScriptWindow& GeneratedScript() {
        if (!scriptWindow) {
            scriptWindow =
                std::make_unique<ScriptWindow>(Script(), dialogs, window->Settings(), window.get());
        }
        return *scriptWindow;
    }
    // Runs the command with these answers queued for its file dialog
    // (nullopt is Cancel).
    void Run(Command command, const std::vector<std::optional<QString>>& files) {
        const bool save = command == Command::SaveAs || command == Command::SaveScript;
        for (const auto& file : files) save ? dialogs.QueueSave(file) : dialogs.QueueOpen(file);
        switch (command) {
            case Command::Open:
                return window->OpenAnimation();
            case Command::SaveAs:
                return window->SaveAnimationAs();
            case Command::Import:
                return window->ImportScript();
            case Command::SaveScript:
                return GeneratedScript().SaveScript();
        }
    }
    QString PathOf(const QString& name) const { return dir.filePath(name); }

    QTemporaryDir dir;
    std::unique_ptr<ScriptWindow> scriptWindow;
};

}  // namespace flickerscribe::ui::testing_support
