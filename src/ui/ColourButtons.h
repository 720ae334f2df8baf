#pragma once

#include <vector>

#include "colour/Palette.h"

class QPushButton;
class QWidget;

namespace flickerscribe::ui {

// The colour a painting window's button `index` stands for: the palette colour
// of digit index + 1 (button 8, digit 9, is the same red as button 0).
Colour ColourOfButton(int index);

// Adds `count` colour buttons, named by their index, to `parent`: square
// buttons of 375 twips, 480 twips apart from `left` on, at `top`, each with
// the background of its colour and no caption. Tab reaches them, but a click
// takes no focus, so the pane keeps its caret and selection.
std::vector<QPushButton*> AddColourButtons(QWidget* parent, int count, int left, int top);

}  // namespace flickerscribe::ui
