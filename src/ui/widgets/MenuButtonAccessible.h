#pragma once

class QToolButton;

namespace flickerscribe::ui {

// A tool button that presses and also opens a menu by its arrow (the Add
// button) offers assistive technology both: Press, which does the button's
// own command, and ShowMenu, with the menu's entries as its child. Qt's own
// interface offers only ShowMenu for it. Call once the button has its menu
// and its popup mode.
void giveMenuButtonItsPressAction(QToolButton* button);

}  // namespace flickerscribe::ui
