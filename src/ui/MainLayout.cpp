#include "ui/MainLayout.h"

#include <algorithm>

#include "ui/Twips.h"

namespace flickerscribe::ui {

namespace {

// The designed places in twips, counted from the top of the window's client
// area, the toolbar included.
constexpr int kToolbarHeight = 810;
constexpr int kPaneTop = 840;
constexpr int kPaneHeight = 495;
constexpr int kStripWidth = 3735;
constexpr int kListTop = 1320;
// The list ends this far above the pane's bottom plus the toolbar, measured
// from the bottom of the client area.
constexpr int kListGap = 20;
constexpr int kMinimumWidth = 7500;

}  // namespace

int ListTop() {
    return Twips(kListTop - kToolbarHeight);
}
int PaneTop() {
    return Twips(kPaneTop - kToolbarHeight);
}
int PaneHeight() {
    return Twips(kPaneHeight);
}
int StripWidth() {
    return Twips(kStripWidth);
}
int MinimumWindowWidth() {
    return Twips(kMinimumWidth);
}

MainLayout LayOutMainWindow(QSize area, bool colorsVisible) {
    MainLayout layout;
    const int width = area.width();
    layout.listWidth = width;
    layout.stripVisible = colorsVisible;
    if (colorsVisible) {
        // While the window is narrower than the strip the pane has no room at
        // all; the strip still stands flush right.
        layout.pane = QRect(0, PaneTop(), std::max(0, width - StripWidth()), PaneHeight());
        layout.strip = QRect(width - StripWidth(), PaneTop(), StripWidth(), PaneHeight());
    } else {
        layout.pane = QRect(0, PaneTop(), width, PaneHeight());
    }
    // The area under the toolbar is the client height less the toolbar.
    const int height = area.height() - Twips(kPaneHeight + kListGap);
    if (height > 0) layout.listHeight = height;
    return layout;
}

}  // namespace flickerscribe::ui
