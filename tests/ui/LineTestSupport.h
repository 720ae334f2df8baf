#pragma once

#include <string>
#include <vector>

#include "MainWindowFixture.h"
#include "colour/ColouredText.h"

namespace flickerscribe::ui::testing_support {

// Lines written "text/time", all with the action "[none]".
using TextTimes = std::vector<std::string>;

// The main window with helpers for the commands over lines.
class LinesTest : public MainWindowTest {
protected:
    void Start(const TextTimes& lines, int selected) {
        for (const std::string& line : lines) {
            const auto slash = line.find('/');
            ASSERT_TRUE(Script().AppendLine(line.substr(0, slash), line.substr(slash + 1), "[none]"));
        }
        Script().SelectLine(selected);
    }

    TextTimes Lines() {
        TextTimes out;
        for (int i = 1; i <= Script().Count(); ++i) {
            EXPECT_EQ(Script().LineAt(i).Action, "[none]");
            out.push_back(Script().LineAt(i).Text + "/" + Script().LineAt(i).Time);
        }
        return out;
    }

    // Draws a text into the pane without touching the list: a later look at
    // the pane tells whether SetPreview ran since.
    void MarkPane() {
        window->SetPreviewBusy(true);
        RenderCodedText("marker", window->PreviewPane());
        window->SetPreviewBusy(false);
    }

    void FillTo(int count) {
        AnimationScript::Batch batch(Script());
        while (Script().Count() < count) ASSERT_TRUE(Script().AppendLine("x", "15", "[none]"));
    }
};

inline const TextTimes kABC = {"A/10", "B/20", "C/30"};

}  // namespace flickerscribe::ui::testing_support
