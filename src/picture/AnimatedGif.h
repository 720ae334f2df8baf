#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "colour/Palette.h"

struct GifFileType;

namespace flickerscribe::picture {

// Writes an animated GIF that loops for ever, in memory, frame by frame. All
// frames have one size and are indices into one palette of at most 256
// colours; the first colour is the background.
//
// The file stays small: a frame that is the same as the one before makes no
// frame of its own but lengthens that one, and every frame after the first
// holds only the rectangle that differs from the frame before it (the frames
// are laid over each other, never cleared).
class AnimatedGif {
public:
    AnimatedGif(int width, int height, std::span<const Colour> palette);
    ~AnimatedGif();
    AnimatedGif(const AnimatedGif&) = delete;
    AnimatedGif& operator=(const AnimatedGif&) = delete;

    // Adds a frame of width * height indices, shown for `delay` hundredths of
    // a second.
    void AddFrame(std::vector<std::uint8_t> pixels, int delay);

    // The bytes of the whole file. Nothing may be added afterwards.
    std::string Finish();

private:
    // Writes the frame held back, which waited for frames that are the same.
    void WritePending();

    int width_;
    int height_;
    GifFileType* gif_ = nullptr;
    std::string bytes_;
    // The frame on screen before the pending one (empty before the first), and
    // the pending one with the time it stays.
    std::vector<std::uint8_t> shown_;
    std::vector<std::uint8_t> pending_;
    int pendingDelay_ = 0;
};

}  // namespace flickerscribe::picture
