// The animated picture as Qt's GIF reader sees it: frames, delays, the loop.
#include <gmock/gmock.h>

#include <QBuffer>
#include <QImageReader>
#include <map>

#include "picture/AnimatedPicture.h"
#include "picture/FramePainter.h"

namespace flickerscribe::picture {
namespace {

struct Decoded {
    std::vector<QImage> frames;  // as shown, each over the ones before
    std::vector<int> delays;     // in ms
    int loops = 0;               // -1: for ever
};

Decoded Draw(const std::vector<std::string>& texts) {
    QByteArray bytes = QByteArray::fromStdString(DrawAnimatedPicture(texts).value());
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "gif");
    Decoded decoded;
    for (QImage frame; reader.read(&frame);) {
        decoded.frames.push_back(frame.convertToFormat(QImage::Format_RGB32));
        decoded.delays.push_back(reader.nextImageDelay());
    }
    decoded.loops = reader.loopCount();
    return decoded;
}

// Frames that look the same make one frame that stays as long as they did
// together; the picture loops for ever, every frame of one size.
TEST(Picture, FramesStayTheirTimeAndThePictureLoops) {
#ifdef _WIN32
    GTEST_SKIP() << "under Wine Qt's offscreen platform finds no fonts, and every glyph draws alike";
#endif
    const std::pair<std::vector<std::string>, std::vector<int>> cases[] = {
        {{"^1Fl^7ick", "^1Fl^7ick", "^1Fl^7ick", "x"}, {300, 100}},
        {{"a", "b", "a"}, {100, 100, 100}},
        {{"^1a", "^9a", "^1a", "^3a"}, {300, 100}},  // other codes, one picture
        {{"", "", "wide text", "^1"}, {200, 100, 100}},
        {{"one\ntwo", "one two"}, {200}},                        // a line break shows as a blank
        {std::vector<std::string>(7000, "a"), {655300, 44700}},  // longer than a GIF's 16-bit delay
    };
    for (const auto& [texts, delays] : cases) {
        const Decoded d = Draw(texts);
        EXPECT_EQ(d.delays, delays) << texts.front();
        EXPECT_EQ(d.loops, -1);
        for (const QImage& frame : d.frames) EXPECT_EQ(frame.size(), d.frames.front().size());
    }
    EXPECT_EQ(Draw({std::string(6000, 'a')}).frames.at(0).width(), 65535);  // cut off at a GIF's widest
}

// Each frame shows its own line, whatever the frame before it left: drawn
// alone, first of the same animation, it has the same pixels.
TEST(Picture, EveryFrameShowsItsLine) {
    const std::vector<std::string> animations[] = {
        {"Q", "Qu", "Qui", "Quil"},       // typing
        {"abcdef", "abc", "", "abcdef"},  // shrinking and growing
        {"^1abc", "^2abc", "^1abc"},      // colours alone
    };
    for (const auto& texts : animations) {
        const Decoded all = Draw(texts);
        ASSERT_EQ(all.frames.size(), texts.size());
        for (std::size_t k = 0; k < texts.size(); ++k) {
            std::vector<std::string> first = texts;
            first.insert(first.begin(), texts[k]);
            EXPECT_EQ(all.frames[k], Draw(first).frames.front()) << texts[k];
        }
    }
}

// Each glyph has its character's colour, all else the pane's grey; character i
// fills the i-th equal part behind the margin.
TEST(Picture, GlyphsTakeTheirCharactersColours) {
#ifdef _WIN32
    GTEST_SKIP() << "under Wine Qt's offscreen platform finds no fonts, and every glyph draws alike";
#endif
    const std::map<char, QRgb> kColours = {{'R', qRgb(255, 0, 0)},     {'G', qRgb(0, 255, 0)},
                                           {'Y', qRgb(255, 255, 0)},   {'B', qRgb(0, 0, 255)},
                                           {'C', qRgb(0, 255, 255)},   {'M', qRgb(255, 0, 255)},
                                           {'W', qRgb(255, 255, 255)}, {'K', qRgb(0, 0, 0)}};
    const std::pair<std::string, std::string> cases[] = {{"^1Fl^7ick", "RRWWW"},
                                                         {"^2a^3b^4c^5d^6e^8f", "GYBCMK"},
                                                         {"Quillon ^4[QZT]", "WWWWWWW BBBBB"},
                                                         {"^9x^0y", "RW"}};
    for (const auto& [text, colours] : cases) {
        const QImage frame = Draw({text}).frames.at(0);
        const double advance = double(frame.width() - 2 * kFrameMargin) / double(colours.size());
        std::vector<int> inked(colours.size());
        for (int y = 0; y < frame.height(); ++y) {
            for (int x = 0; x < frame.width(); ++x) {
                const QRgb pixel = frame.pixel(x, y);
                if (pixel == qRgb(128, 128, 128)) continue;  // the pane's grey
                ASSERT_TRUE(x >= kFrameMargin && y >= kFrameMargin && y < frame.height() - kFrameMargin)
                    << text << " inks the margin at " << x << "," << y;
                const auto cell = std::size_t(std::max(0.0, (x - kFrameMargin) / advance));
                ASSERT_LT(cell, colours.size()) << text << " at " << x << "," << y;
                ASSERT_EQ(pixel, kColours.at(colours[cell]))
                    << text << " at " << x << "," << y << " in character " << cell;
                ++inked[cell];
            }
        }
        for (std::size_t i = 0; i < colours.size(); ++i)
            EXPECT_EQ(inked[i] > 0, colours[i] != ' ') << text << " character " << i;
    }
}

// Small files: a frame that types one more letter holds little more than it.
TEST(Picture, LaterFramesHoldOnlyWhatChanged) {
    const std::string wide(60, ' ');
    const std::size_t typing = DrawAnimatedPicture({"Q", "Qu", "Qui", "Quil", "Quill", wide})->size();
    EXPECT_LT(typing, DrawAnimatedPicture({"Q", wide})->size() + 4 * 75);
}

}  // namespace
}  // namespace flickerscribe::picture
