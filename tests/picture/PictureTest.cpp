// The animated picture as a reader sees it: Qt's GIF reader for the frames as
// shown, their delays and the loop; giflib's decoder for what each frame holds.
#include <gif_lib.h>
#include <gmock/gmock.h>

#include <QBuffer>
#include <QImageReader>
#include <map>

#include "colour/Palette.h"
#include "picture/AnimatedPicture.h"
#include "picture/FramePainter.h"

namespace flickerscribe::picture {
namespace {

struct Decoded {
    std::vector<QImage> frames;  // as shown, each over the ones before
    std::vector<int> delays;     // in ms
    int loops = 0;               // -1: for ever
};

Decoded Decode(const std::string& gif) {
    QByteArray bytes = QByteArray::fromStdString(gif);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "gif");
    Decoded decoded;
    QImage frame;
    while (reader.read(&frame)) {
        decoded.frames.push_back(frame.convertToFormat(QImage::Format_RGB32));
        decoded.delays.push_back(reader.nextImageDelay());
    }
    decoded.loops = reader.loopCount();
    return decoded;
}

Decoded Draw(const std::vector<std::string>& texts) {
    const auto gif = DrawAnimatedPicture(texts);
    EXPECT_TRUE(gif.has_value());
    return Decode(gif.value_or(""));
}

QRgb Qt(Colour colour) {
    return qRgb(int(RedOf(colour)), int(GreenOf(colour)), int(BlueOf(colour)));
}

// Frames that look the same make one frame that stays as long as they did
// together; the picture loops for ever, every frame of one size.
TEST(Picture, FramesStayTheirTimeAndThePictureLoops) {
    const struct {
        std::vector<std::string> texts;
        std::vector<int> delays;
    } cases[] = {
        {{"a"}, {100}},
        {{"^1Fl^7ick", "^1Fl^7ick", "^1Fl^7ick", "x"}, {300, 100}},
        {{"a", "b", "a"}, {100, 100, 100}},
        {{"^1a", "^9a", "^1a", "^3a"}, {300, 100}},  // other codes, one picture
        {{"", "", "wide text", "^1"}, {200, 100, 100}},
        {{"one\ntwo", "one two"}, {200}},                        // a line break shows as a blank
        {std::vector<std::string>(7000, "a"), {655300, 44700}},  // longer than a GIF's 16-bit delay
    };
    for (const auto& c : cases) {
        const Decoded d = Draw(c.texts);
        EXPECT_EQ(d.delays, c.delays) << c.texts.front();
        EXPECT_EQ(d.loops, -1);
        for (const QImage& frame : d.frames) EXPECT_EQ(frame.size(), d.frames.front().size());
    }
    // Wider than a GIF can be: cut off at its largest width.
    EXPECT_EQ(Draw({std::string(6000, 'a')}).frames.at(0).width(), 65535);
}

// Each frame shows its own line, whatever the frame before it left: drawn
// alone, first of the same animation, it has the same pixels.
TEST(Picture, EveryFrameShowsItsLine) {
    const std::vector<std::string> animations[] = {
        {"Q", "Qu", "Qui", "Quil"},                                        // typing
        {"^4[QZT]^7Quillon", "^7Q^4[QZT]^7uillon", "^7Qu^4[QZT]^7illon"},  // bouncing
        {"abcdef", "abc", "", "abcdef"},                                   // shrinking and growing
        {"^1abc", "^2abc", "^2abc", "^1abc"},                              // colours alone
        {"one\ntwo", "one", "^3three\n^5four"},                            // line breaks
    };
    for (const auto& texts : animations) {
        const Decoded all = Draw(texts);
        ASSERT_EQ(all.frames.size(), texts.size() - (texts[1] == texts[2]));
        for (std::size_t k = 0, shown = 0; k < texts.size(); ++k) {
            if (k > 0 && texts[k] == texts[k - 1]) continue;
            std::vector<std::string> first = texts;
            first.insert(first.begin(), texts[k]);
            EXPECT_EQ(all.frames[shown++], Draw(first).frames.front()) << texts[k];
        }
    }
}

// Each character's glyph has that character's colour, and everything else is
// the pane's grey. The face is fixed-pitch: character i stands in the i-th
// equal part of the frame behind the margin. Colours by letter: Red, Green,
// Yellow, Blue, Cyan, Magenta, White, blacK; a blank has no glyph.
TEST(Picture, GlyphsTakeTheirCharactersColours) {
    const std::map<char, Colour> kColours = {
        {'R', Rgb(255, 0, 0)},   {'G', Rgb(0, 255, 0)},   {'Y', Rgb(255, 255, 0)}, {'B', Rgb(0, 0, 255)},
        {'C', Rgb(0, 255, 255)}, {'M', Rgb(255, 0, 255)}, {'W', kWhite},           {'K', kBlack}};
    const struct {
        std::string text, colours;
    } cases[] = {
        {"^1Fl^7ick", "RRWWW"},
        {"^2a^3b^4c^5d^6e^8f", "GYBCMK"},
        {"Quillon ^4[QZT]", "WWWWWWW BBBBB"},
        {"^9x^0y", "RW"},
    };
    for (const auto& c : cases) {
        const QImage frame = Draw({c.text}).frames.at(0);
        const double advance = double(frame.width() - 2 * kFrameMargin) / double(c.colours.size());
        std::vector<int> inked(c.colours.size());
        for (int y = 0; y < frame.height(); ++y) {
            for (int x = 0; x < frame.width(); ++x) {
                const QRgb pixel = frame.pixel(x, y);
                if (pixel == Qt(kPaneGrey)) continue;
                const auto cell = std::size_t(std::max(0.0, (x - kFrameMargin) / advance));
                ASSERT_LT(cell, c.colours.size()) << c.text << " at " << x << "," << y;
                ASSERT_EQ(pixel, Qt(kColours.at(c.colours[cell])))
                    << c.text << " at " << x << "," << y << " in character " << cell;
                ++inked[cell];
            }
        }
        for (std::size_t i = 0; i < c.colours.size(); ++i)
            EXPECT_EQ(inked[i] > 0, c.colours[i] != ' ') << c.text << " character " << i;
    }
}

// Typing a name: each frame after the first holds the new letter's place
// only, to the right of the one before.
TEST(Picture, LaterFramesHoldOnlyWhatChanged) {
    struct Source {
        std::string bytes;
        std::size_t at = 0;
    } source{DrawAnimatedPicture({"Q", "Qu", "Qui", "Quil", "Quill"}).value()};
    int error = 0;
    GifFileType* gif = DGifOpen(
        &source,
        [](GifFileType* file, GifByteType* out, int length) {
            auto& s = *static_cast<Source*>(file->UserData);
            const std::size_t n = std::min(std::size_t(length), s.bytes.size() - s.at);
            std::copy_n(s.bytes.data() + s.at, n, out);
            s.at += n;
            return int(n);
        },
        &error);
    ASSERT_NE(gif, nullptr);
    ASSERT_EQ(DGifSlurp(gif), GIF_OK);
    ASSERT_EQ(gif->ImageCount, 5);
    for (int k = 1; k < gif->ImageCount; ++k) {
        const GifImageDesc& now = gif->SavedImages[k].ImageDesc;
        const GifImageDesc& before = gif->SavedImages[k - 1].ImageDesc;
        EXPECT_GT(now.Left, before.Left) << k;
        EXPECT_LT(now.Width, gif->SWidth / 4) << k;
        EXPECT_LT(now.Height, gif->SHeight) << k;
    }
    DGifCloseFile(gif, &error);
}

}  // namespace
}  // namespace flickerscribe::picture
