#pragma once

#include <QRect>

namespace flickerscribe::ui {

// Windows are laid out in twips, 1/1440 inch: 15 to a pixel at normal
// density. Qt scales pixels for high-density screens by itself.
constexpr int kTwipsPerPixel = 15;

// Twips to pixels, to the nearest pixel.
constexpr int Twips(int twips) {
    return twips >= 0 ? (twips + kTwipsPerPixel / 2) / kTwipsPerPixel
                      : -((-twips + kTwipsPerPixel / 2) / kTwipsPerPixel);
}

// A control's place given as left, top, width and height in twips.
constexpr QRect TwipsRect(int left, int top, int width, int height) {
    return QRect(Twips(left), Twips(top), Twips(width), Twips(height));
}

}  // namespace flickerscribe::ui
