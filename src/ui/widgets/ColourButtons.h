#pragma once

#include <vector>

#include "colour/Palette.h"

class QBoxLayout;
class QPushButton;
class QWidget;

namespace flickerscribe::ui {

// The colour a painting window's button `index` stands for: the palette colour
// of digit index + 1 (button 8, digit 9, is the same red as button 0).
Colour colourOfButton(int index);

// Adds `count` colour buttons, named by their index, to `row`: 25 pixels
// square, 7 apart, each with the background of its colour and no caption.
// Tab reaches them and Enter or Space presses the focused one, in any window;
// a click takes no focus, so the pane keeps its caret and selection.
std::vector<QPushButton*> addColourButtons(QBoxLayout* row, int count);

// The layout of a strip of colour buttons: a row at the strip's top left,
// 3 pixels down, as high as the strip a pane beside it is.
QBoxLayout* colourStripRow(QWidget* strip);

}  // namespace flickerscribe::ui
