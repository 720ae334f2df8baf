#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

// The animation as an animated picture (GIF), the same bytes from the window
// and from the command line.
namespace flickerscribe::picture {

// Each frame shows for 100 ms, as in playback.
inline constexpr int kFrameDelay = 10;  // hundredths of a second

// Told after each frame how many of how many are drawn; false stops the work.
using PictureProgress = std::function<bool(int done, int total)>;

// The GIF of an animation: one frame for each coded text, in order, each drawn
// as the preview pane shows it, all of the size of the largest; it loops for
// ever. nullopt when `progress` stopped the work.
std::optional<std::string> DrawAnimatedPicture(const std::vector<std::string>& codedTexts,
                                               const PictureProgress& progress = {});

}  // namespace flickerscribe::picture
