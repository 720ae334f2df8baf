#pragma once

#include <string>
#include <vector>

#include "MainWindowFixture.h"
#include "colour/ColouredText.h"

namespace fs::ui::testing_support {

// The main window with helpers for the commands over lines.
class LinesTest : public MainWindowTest {
protected:
    // The lines A, B, C with the times 10, 20, 30, and B selected.
    void AddABC() {
        ASSERT_TRUE(Script().AppendLine("A", "10", "[none]"));
        ASSERT_TRUE(Script().AppendLine("B", "20", "[none]"));
        ASSERT_TRUE(Script().AppendLine("C", "30", "[none]"));
        Script().SelectLine(2);
    }

    // Text and time of each line, as "text/time".
    std::vector<std::string> Lines() {
        std::vector<std::string> out;
        for (int i = 1; i <= Script().Count(); ++i)
            out.push_back(Script().LineAt(i).Text + "/" + Script().LineAt(i).Time);
        return out;
    }

    // Draws a text into the pane the way the program draws, without touching
    // the list: a later check of the pane tells whether SetPreview ran since.
    void MarkPane(const char* coded = "marker") {
        window->PreviewBusy = true;
        RenderCodedText(coded, window->PreviewPane());
        window->PreviewBusy = false;
    }

    // Fills the list up to `count` lines of "x" in one go.
    void FillTo(int count) {
        AnimationScript::Batch batch(Script());
        while (Script().Count() < count) ASSERT_TRUE(Script().AppendLine("x", "15", "[none]"));
    }

    std::vector<QString> MessageTexts() {
        std::vector<QString> out;
        for (const DialogCall& call : dialogs.Messages()) out.push_back(call.text);
        return out;
    }
};

inline const QString kLimitTitle = QStringLiteral("Line limit reached");

}  // namespace fs::ui::testing_support
