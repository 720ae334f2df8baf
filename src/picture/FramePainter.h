#pragma once

#include <QFont>
#include <QImage>
#include <QSize>
#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "colour/Palette.h"

// The frames of an animated picture, drawn as the preview pane draws a line:
// the pane's font, the colours of the codes and the pane's grey.
namespace flickerscribe::picture {

// The preview pane's font: bold Courier New of 14.25 points (a fixed-pitch
// face where that is missing), with neither shaping nor kerning.
QFont PreviewFont();

// The grey around the text of a frame, in pixels.
inline constexpr int kFrameMargin = 4;

// Every colour a frame can hold: the pane's grey first (index 0), then the
// codes' colours. A frame is drawn without anti-aliasing, so no other colour
// ever shows.
inline constexpr std::array<Colour, 9> kFrameColours = {
    kPaneGrey,        Rgb(255, 0, 0),   Rgb(0, 255, 0),     Rgb(255, 255, 0), Rgb(0, 0, 255),
    Rgb(0, 255, 255), Rgb(255, 0, 255), Rgb(255, 255, 255), kBlack,
};

// One frame: an index into kFrameColours for each pixel, row by row.
using FramePixels = std::vector<std::uint8_t>;

// Draws coded texts as frames. The font's size is taken at 96 dots per inch,
// whatever the screen, so that every machine and both programs (the window
// and the command line) draw the same pixels.
class FramePainter {
public:
    FramePainter();

    // The width the shown text of `codedText` takes, without the margin.
    int TextWidth(std::string_view codedText) const;
    // The height of a line of text.
    int LineHeight() const { return lineHeight_; }

    // Draws `codedText` on a frame of `size` (which holds the margin), in one
    // line as the pane shows it, left-aligned behind the margin and centred
    // in height. A line break shows as a blank, as in a pasted text.
    FramePixels Draw(std::string_view codedText, QSize size);

private:
    QFont font_;
    int lineHeight_ = 0;
    QImage canvas_;
    QImage metricsDevice_;
};

}  // namespace flickerscribe::picture
