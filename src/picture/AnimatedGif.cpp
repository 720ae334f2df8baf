#include "picture/AnimatedGif.h"

#include <gif_lib.h>

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace flickerscribe::picture {
namespace {

// The longest a frame can stay: a GIF's delay is a 16-bit number.
constexpr int kLongestDelay = 65535;

int Append(GifFileType* gif, const GifByteType* data, int length) {
    static_cast<std::string*>(gif->UserData)
        ->append(reinterpret_cast<const char*>(data), static_cast<std::size_t>(length));
    return length;
}

// Writing to memory fails only when memory runs out.
void Check(GifFileType* gif, int result) {
    if (result == GIF_ERROR) throw std::runtime_error(std::string("GIF: ") + GifErrorString(gif->Error));
}

}  // namespace

AnimatedGif::AnimatedGif(int width, int height, std::span<const Colour> palette)
    : width_(width), height_(height) {
    int error = 0;
    gif_ = EGifOpen(&bytes_, Append, &error);
    if (gif_ == nullptr) throw std::runtime_error(std::string("GIF: ") + GifErrorString(error));
    // The loop and the delays are GIF89a's.
    EGifSetGifVersion(gif_, true);

    // A colour table has a power of two entries; the ones beyond the palette are black.
    int entries = 2;
    while (entries < static_cast<int>(palette.size())) entries *= 2;
    std::vector<GifColorType> colours(static_cast<std::size_t>(entries), GifColorType{0, 0, 0});
    for (std::size_t i = 0; i < palette.size(); ++i) {
        colours[i] = GifColorType{static_cast<GifByteType>(RedOf(palette[i])),
                                  static_cast<GifByteType>(GreenOf(palette[i])),
                                  static_cast<GifByteType>(BlueOf(palette[i]))};
    }
    ColorMapObject* map = GifMakeMapObject(entries, colours.data());
    const int described = EGifPutScreenDesc(gif_, width, height, 8, 0, map);
    GifFreeMapObject(map);  // the file keeps a copy
    Check(gif_, described);

    // Loop for ever: the application extension every browser reads, with a
    // repeat count of 0.
    static const GifByteType kLoopForEver[3] = {1, 0, 0};
    Check(gif_, EGifPutExtensionLeader(gif_, APPLICATION_EXT_FUNC_CODE));
    Check(gif_, EGifPutExtensionBlock(gif_, 11, "NETSCAPE2.0"));
    Check(gif_, EGifPutExtensionBlock(gif_, 3, kLoopForEver));
    Check(gif_, EGifPutExtensionTrailer(gif_));
}

AnimatedGif::~AnimatedGif() {
    int error = 0;
    if (gif_ != nullptr) EGifCloseFile(gif_, &error);
}

void AnimatedGif::AddFrame(std::vector<std::uint8_t> pixels, int delay) {
    if (!pending_.empty() && pixels == pending_ && pendingDelay_ + delay <= kLongestDelay) {
        pendingDelay_ += delay;
        return;
    }
    if (!pending_.empty()) WritePending();
    pending_ = std::move(pixels);
    pendingDelay_ = delay;
}

void AnimatedGif::WritePending() {
    const auto width = static_cast<std::size_t>(width_);
    // The rectangle that differs from the frame on screen; all of the first.
    int left = 0, top = 0, right = width_, bottom = height_;
    if (!shown_.empty()) {
        left = width_, top = height_, right = 0, bottom = 0;
        for (int y = 0; y < height_; ++y) {
            const std::uint8_t* now = pending_.data() + static_cast<std::size_t>(y) * width;
            const std::uint8_t* before = shown_.data() + static_cast<std::size_t>(y) * width;
            if (std::memcmp(now, before, width) == 0) continue;
            int first = 0, last = width_ - 1;
            while (now[first] == before[first]) ++first;
            while (now[last] == before[last]) --last;
            left = std::min(left, first);
            right = std::max(right, last + 1);
            top = std::min(top, y);
            bottom = y + 1;
        }
        // A frame that only lengthens the one before (its delay was full)
        // still needs a picture: one pixel that stays as it is.
        if (bottom == 0) left = 0, top = 0, right = 1, bottom = 1;
    }

    GraphicsControlBlock control{};
    control.DisposalMode = DISPOSE_DO_NOT;
    control.UserInputFlag = false;
    control.DelayTime = pendingDelay_;
    control.TransparentColor = NO_TRANSPARENT_COLOR;
    GifByteType extension[4];
    EGifGCBToExtension(&control, extension);
    Check(gif_, EGifPutExtension(gif_, GRAPHICS_EXT_FUNC_CODE, 4, extension));

    const int w = right - left, h = bottom - top;
    Check(gif_, EGifPutImageDesc(gif_, left, top, w, h, false, nullptr));
    std::vector<GifPixelType> rectangle(static_cast<std::size_t>(w) * static_cast<std::size_t>(h));
    for (int y = 0; y < h; ++y) {
        const std::uint8_t* row = pending_.data() + static_cast<std::size_t>(top + y) * width + left;
        std::copy(row, row + w, rectangle.begin() + static_cast<std::ptrdiff_t>(y) * w);
    }
    Check(gif_, EGifPutLine(gif_, rectangle.data(), w * h));

    shown_ = std::move(pending_);
    pending_.clear();
}

std::string AnimatedGif::Finish() {
    if (!pending_.empty()) WritePending();
    int error = 0;
    const int closed = EGifCloseFile(gif_, &error);
    gif_ = nullptr;
    if (closed == GIF_ERROR) throw std::runtime_error(std::string("GIF: ") + GifErrorString(error));
    return std::move(bytes_);
}

}  // namespace flickerscribe::picture
