#include "picture/AnimatedPicture.h"

#include "picture/AnimatedGif.h"
#include "picture/FramePainter.h"

namespace flickerscribe::picture {

std::optional<std::string> DrawAnimatedPicture(const std::vector<std::string>& codedTexts,
                                               const PictureProgress& progress) {
    FramePainter painter;
    QSize text(0, 0);
    for (const std::string& coded : codedTexts) text = text.expandedTo(painter.TextSize(coded));
    const QSize frame = text.grownBy(QMargins(kFrameMargin, kFrameMargin, kFrameMargin, kFrameMargin));

    AnimatedGif gif(frame.width(), frame.height(), kFrameColours);
    const int total = static_cast<int>(codedTexts.size());
    for (int i = 0; i < total; ++i) {
        gif.AddFrame(painter.Draw(codedTexts[static_cast<std::size_t>(i)], frame), kFrameDelay);
        if (progress && !progress(i + 1, total)) return std::nullopt;
    }
    return gif.Finish();
}

}  // namespace flickerscribe::picture
