#pragma once

#include <QRect>
#include <QSize>

namespace flickerscribe::ui {

// Where the main window's controls stand for a given size of the area under
// the toolbar. The pane and the strip keep their designed tops and heights;
// the list fills the rest below them.
struct MainLayout {
    QRect pane;
    QRect strip;  // flush right when shown
    bool stripVisible = false;
    int listWidth = 0;
    // The new height of the list, or -1 when the window is too low for any:
    // the list then keeps the height it had.
    int listHeight = -1;
};

// The list's top and the pane's and strip's, in pixels under the toolbar.
int ListTop();
int PaneTop();
int PaneHeight();
int StripWidth();
// The narrowest the window may become, in pixels.
int MinimumWindowWidth();

MainLayout LayOutMainWindow(QSize area, bool colorsVisible);

}  // namespace flickerscribe::ui
