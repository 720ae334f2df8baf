#pragma once

#include <QPixmap>

namespace flickerscribe::ui {

// The wizard's own pictures, painted in code in the colours of the game's
// palette, at the screen's pixel density.

// The tall picture down the left side of the welcome page, 164 x 313 pixels:
// a strip of film whose frames spell a name letter by letter.
QPixmap wizardSidePicture();

// The 55 x 55 picture at the right end of the white band of page 2, 3 or 4:
// a wand for the style, a coloured name tag for the name, a wave of letters
// for the effects.
QPixmap wizardBandPicture(int page);

}  // namespace flickerscribe::ui
