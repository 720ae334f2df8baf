#include "picture/FramePainter.h"

#include <QFontMetricsF>
#include <QList>
#include <QPainter>
#include <QTextLayout>
#include <QTextOption>
#include <cmath>
#include <limits>

#include "colour/ColouredText.h"
#include "document/Cp1252.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::picture {
namespace {

// 96 dots per inch: QImage keeps its resolution in dots per metre.
constexpr int kDotsPerMetre = 3780;

QRgb ToRgb(Colour colour) {
    return qRgb(static_cast<int>(RedOf(colour)), static_cast<int>(GreenOf(colour)),
                static_cast<int>(BlueOf(colour)));
}

// The frame colour nearest to `rgb`; without anti-aliasing every pixel is one
// of them exactly.
std::uint8_t NearestIndex(QRgb rgb) {
    std::uint8_t best = 0;
    int bestDistance = std::numeric_limits<int>::max();
    for (std::size_t i = 0; i < kFrameColours.size(); ++i) {
        const QRgb c = ToRgb(kFrameColours[i]);
        const int dr = qRed(c) - qRed(rgb), dg = qGreen(c) - qGreen(rgb), db = qBlue(c) - qBlue(rgb);
        const int distance = dr * dr + dg * dg + db * db;
        if (distance < bestDistance) {
            bestDistance = distance;
            best = static_cast<std::uint8_t>(i);
        }
    }
    return best;
}

QImage ImageAt96Dpi(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.setDotsPerMeterX(kDotsPerMetre);
    image.setDotsPerMeterY(kDotsPerMetre);
    return image;
}

// The shown characters of a coded text with one format for each colour run.
struct ShownText {
    QString text;
    QList<QTextLayout::FormatRange> formats;
};

ShownText Shown(std::string_view codedText) {
    ShownText shown;
    for (const ColouredRun& run : RenderRuns(codedText)) {
        QTextLayout::FormatRange range;
        range.start = static_cast<int>(shown.text.size());
        range.length = static_cast<int>(run.text.size());
        range.format.setForeground(QColor(ToRgb(run.colour)));
        for (const char c : run.text) {
            const char32_t u = Cp1252ToUnicode(static_cast<unsigned char>(c));
            shown.text += u == U'\n' ? QChar(u' ') : QChar(static_cast<char16_t>(u));
        }
        shown.formats.append(range);
    }
    return shown;
}

// One line without wrapping, however long.
QTextLayout& LaidOut(QTextLayout& layout) {
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    if (line.isValid()) line.setLineWidth(1e7);
    layout.endLayout();
    return layout;
}

}  // namespace

QFont PreviewFont() {
    QFont font(u"Courier New"_s);
    font.setStyleHint(QFont::TypeWriter);
    font.setPointSizeF(14.25);
    font.setBold(true);
    // A name of single characters in ever new colours needs no shaping: this
    // keeps the longest text fast to draw.
    font.setStyleStrategy(QFont::PreferNoShaping);
    font.setKerning(false);
    return font;
}

FramePainter::FramePainter() : font_(PreviewFont()), metricsDevice_(ImageAt96Dpi(QSize(1, 1))) {
    // Whole pixels in the codes' colours only, and the same glyphs whatever
    // the desktop's settings for hinting say.
    font_.setStyleStrategy(QFont::StyleStrategy(QFont::PreferNoShaping | QFont::NoAntialias));
    font_.setHintingPreference(QFont::PreferFullHinting);
    lineHeight_ = static_cast<int>(std::ceil(QFontMetricsF(font_, &metricsDevice_).height()));
}

int FramePainter::TextWidth(std::string_view codedText) const {
    QTextLayout layout(Shown(codedText).text, font_, &metricsDevice_);
    const QTextLine line = LaidOut(layout).lineAt(0);
    return static_cast<int>(std::ceil(line.horizontalAdvance()));
}

FramePixels FramePainter::Draw(std::string_view codedText, QSize size) {
    if (canvas_.size() != size) canvas_ = ImageAt96Dpi(size);
    canvas_.fill(ToRgb(kPaneGrey));

    ShownText shown = Shown(codedText);
    QTextLayout layout(shown.text, font_, &canvas_);
    layout.setFormats(shown.formats);
    {
        QPainter painter(&canvas_);
        LaidOut(layout).draw(&painter, QPointF(kFrameMargin, (size.height() - lineHeight_) / 2));
    }

    FramePixels pixels(static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height()));
    auto out = pixels.begin();
    QRgb lastRgb = ToRgb(kPaneGrey);
    std::uint8_t lastIndex = 0;
    for (int y = 0; y < size.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(canvas_.constScanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const QRgb rgb = row[x] | 0xFF000000u;
            if (rgb != lastRgb) {
                lastRgb = rgb;
                lastIndex = NearestIndex(rgb);
            }
            *out++ = lastIndex;
        }
    }
    return pixels;
}

}  // namespace flickerscribe::picture
