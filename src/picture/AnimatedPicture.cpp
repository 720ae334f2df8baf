#include "picture/AnimatedPicture.h"

#include <algorithm>

#include "picture/AnimatedGif.h"
#include "picture/FramePainter.h"

namespace flickerscribe::picture {
namespace {

constexpr int kLargestWidth = 65535;

}  // namespace

std::optional<std::string> DrawAnimatedPicture(const std::vector<std::string>& codedTexts,
                                               const PictureProgress& progress) {
    FramePainter painter;
    int width = 0;
    for (const std::string& coded : codedTexts) width = std::max(width, painter.TextWidth(coded));
    // A GIF is at most 65535 pixels wide: a longer text (some 5,900
    // characters) is cut off there.
    const QSize frame(std::min(width + 2 * kFrameMargin, kLargestWidth),
                      painter.LineHeight() + 2 * kFrameMargin);

    AnimatedGif gif(frame.width(), frame.height(), kFrameColours);
    const int total = static_cast<int>(codedTexts.size());
    for (int i = 0; i < total; ++i) {
        gif.AddFrame(painter.Draw(codedTexts[static_cast<std::size_t>(i)], frame), kFrameDelay);
        if (progress && !progress(i + 1, total)) return std::nullopt;
    }
    return gif.Finish();
}

}  // namespace flickerscribe::picture
