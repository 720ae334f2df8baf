#include "ui/wizard/WizardArt.h"

#include <QFont>
#include <QGuiApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <cmath>
#include <string>

#include "colour/Palette.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {
namespace {

QColor gameColour(char digit) {
    const Colour c = ColourFromDigit(std::string(1, digit));
    return QColor(static_cast<int>(RedOf(c)), static_cast<int>(GreenOf(c)), static_cast<int>(BlueOf(c)));
}

// A transparent picture of `width` x `height` logical pixels, sharp on a
// high-density screen too.
QPixmap canvas(int width, int height) {
    const qreal ratio = qGuiApp != nullptr ? qGuiApp->devicePixelRatio() : 1.0;
    QPixmap pixmap(qRound(width * ratio), qRound(height * ratio));
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

QFont pixelFont(const QString& family, int pixels, bool bold, QFont::StyleHint hint) {
    QFont font(family);
    font.setStyleHint(hint);
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

// Draws `text` at the baseline (x, y), each character in the colour of the
// digit at the same place in `digits`, with a soft shadow; gives the x behind
// the last character.
qreal drawColouredText(QPainter& p, qreal x, qreal y, const QString& text, const char* digits) {
    const QFontMetricsF metrics(p.font());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QString ch = text.mid(i, 1);
        p.setPen(QColor(0, 0, 0, 150));
        p.drawText(QPointF(x + 1, y + 1), ch);
        p.setPen(gameColour(digits[i]));
        p.drawText(QPointF(x, y), ch);
        x += metrics.horizontalAdvance(ch);
    }
    return x;
}

// A four-pointed star of radius r around (cx, cy).
void drawSparkle(QPainter& p, QPointF centre, qreal r, const QColor& colour) {
    QPainterPath star;
    const qreal w = r * 0.28;
    star.moveTo(centre.x(), centre.y() - r);
    star.quadTo(centre.x() + w, centre.y() - w, centre.x() + r, centre.y());
    star.quadTo(centre.x() + w, centre.y() + w, centre.x(), centre.y() + r);
    star.quadTo(centre.x() - w, centre.y() + w, centre.x() - r, centre.y());
    star.quadTo(centre.x() - w, centre.y() - w, centre.x(), centre.y() - r);
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    p.drawPath(star);
}

// The rounded tile that every band picture stands on.
void drawTile(QPainter& p, const QColor& top, const QColor& bottom) {
    QLinearGradient fill(0, 0, 55, 55);
    fill.setColorAt(0, top);
    fill.setColorAt(1, bottom);
    p.setPen(QPen(QColor(0, 0, 0, 90), 1));
    p.setBrush(fill);
    p.drawRoundedRect(QRectF(2.5, 2.5, 50, 50), 9, 9);
    // A gloss over the upper half.
    QLinearGradient gloss(0, 3, 0, 28);
    gloss.setColorAt(0, QColor(255, 255, 255, 90));
    gloss.setColorAt(1, QColor(255, 255, 255, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(gloss);
    p.drawRoundedRect(QRectF(4, 4, 47, 24), 7, 7);
}

void drawWand(QPainter& p) {
    drawTile(p, QColor(58, 82, 200), QColor(70, 24, 120));
    p.setPen(QPen(QColor(20, 20, 30), 5, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(14, 42), QPointF(32, 24));
    p.setPen(QPen(Qt::white, 5, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(32, 24), QPointF(36, 20));
    drawSparkle(p, QPointF(40, 15), 8, gameColour('3'));
    drawSparkle(p, QPointF(25, 12), 4, gameColour('5'));
    drawSparkle(p, QPointF(44, 31), 4.5, gameColour('6'));
    drawSparkle(p, QPointF(33, 36), 2.5, Qt::white);
}

void drawNameTag(QPainter& p) {
    drawTile(p, QColor(30, 150, 160), QColor(24, 50, 120));
    // A little grey pane holding a coloured name under its clan tag.
    p.setPen(QPen(QColor(40, 40, 40), 1));
    p.setBrush(QColor(128, 128, 128));
    p.drawRoundedRect(QRectF(7.5, 24.5, 40, 20), 3, 3);
    p.setFont(pixelFont(u"DejaVu Sans"_s, 9, true, QFont::SansSerif));
    p.setPen(Qt::white);
    p.drawText(QRectF(7, 9, 41, 13), Qt::AlignCenter, u"[QZT]"_s);
    p.setFont(pixelFont(u"DejaVu Sans"_s, 15, true, QFont::SansSerif));
    const QFontMetricsF metrics(p.font());
    const qreal width = metrics.horizontalAdvance(u"Kat"_s);
    drawColouredText(p, 27.5 - width / 2, 40, u"Kat"_s, "132");
}

void drawWave(QPainter& p) {
    drawTile(p, QColor(150, 40, 150), QColor(50, 20, 100));
    const auto waveY = [](qreal x) { return 29 - 7 * std::sin((x - 7) / 41.0 * 2 * M_PI); };
    QPainterPath curve;
    curve.moveTo(7, waveY(7));
    for (int x = 8; x <= 48; ++x) curve.lineTo(x, waveY(x));
    p.setPen(QPen(QColor(255, 255, 255, 110), 1.5));
    p.setBrush(Qt::NoBrush);
    p.drawPath(curve);

    // The letters ride the wave, each on the curve at its middle.
    p.setFont(pixelFont(u"DejaVu Sans"_s, 13, true, QFont::SansSerif));
    const QFontMetricsF metrics(p.font());
    const QString letters = u"Wave"_s;
    const char digits[] = "1352";
    qreal x = 27.5 - metrics.horizontalAdvance(letters) / 2;
    for (qsizetype i = 0; i < letters.size(); ++i) {
        const QString letter = letters.mid(i, 1);
        const qreal advance = metrics.horizontalAdvance(letter);
        const char digit[2] = {digits[i], '\0'};
        drawColouredText(p, x, waveY(x + advance / 2) + 4.5, letter, digit);
        x += advance;
    }
}

}  // namespace

QPixmap wizardSidePicture() {
    constexpr int kWidth = 164;
    constexpr int kHeight = 313;
    QPixmap pixmap = canvas(kWidth, kHeight);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);

    QLinearGradient sky(0, 0, 0, kHeight);
    sky.setColorAt(0, QColor(28, 44, 112));
    sky.setColorAt(0.55, QColor(62, 28, 112));
    sky.setColorAt(1, QColor(14, 12, 32));
    p.fillRect(QRect(0, 0, kWidth, kHeight), sky);

    QRadialGradient glow(QPointF(82, 110), 110);
    glow.setColorAt(0, QColor(255, 255, 255, 55));
    glow.setColorAt(1, QColor(255, 255, 255, 0));
    p.fillRect(QRect(0, 0, kWidth, kHeight), glow);

    // The film strip's edges with their sprocket holes.
    for (const int x : {0, kWidth - 14}) {
        p.fillRect(QRect(x, 0, 14, kHeight), QColor(8, 8, 16, 220));
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(70, 70, 96));
        for (int y = 6; y < kHeight; y += 16) {
            p.drawRoundedRect(QRectF(x + 4, y, 6, 8), 1.5, 1.5);
        }
    }

    // One frame a row: the tag, then the name growing by a letter each frame.
    const QString name = u"Quillon"_s;
    const char* digits = "1325637";
    p.setFont(pixelFont(u"DejaVu Sans Mono"_s, 14, true, QFont::TypeWriter));
    for (int k = 1; k <= name.size(); ++k) {
        const bool last = k == name.size();
        const QRectF frame(19.5, 14.5 + (k - 1) * 30, 125, 23);
        p.setPen(QPen(last ? QColor(255, 255, 255, 200) : QColor(0, 0, 0, 120), 1));
        p.setBrush(last ? QColor(128, 128, 128) : QColor(128, 128, 128, 60 + k * 15));
        p.drawRoundedRect(frame, 3, 3);
        const qreal baseline = frame.top() + 16.5;
        const qreal x = drawColouredText(p, frame.left() + 6, baseline, u"[QZT]"_s, "77777");
        drawColouredText(p, x, baseline, name.left(k), digits);
    }

    // A play button under the frames.
    const QPointF centre(82, 266);
    p.setPen(QPen(QColor(255, 255, 255, 210), 2));
    p.setBrush(QColor(255, 255, 255, 30));
    p.drawEllipse(centre, 20, 20);
    QPainterPath play;
    play.moveTo(centre + QPointF(-6, -10));
    play.lineTo(centre + QPointF(11, 0));
    play.lineTo(centre + QPointF(-6, 10));
    play.closeSubpath();
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 255, 220));
    p.drawPath(play);
    drawSparkle(p, QPointF(118, 246), 6, gameColour('3'));
    drawSparkle(p, QPointF(44, 290), 4, gameColour('5'));
    return pixmap;
}

QPixmap wizardBandPicture(int page) {
    QPixmap pixmap = canvas(55, 55);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    switch (page) {
        case 2:
            drawWand(p);
            break;
        case 3:
            drawNameTag(p);
            break;
        default:
            drawWave(p);
            break;
    }
    return pixmap;
}

}  // namespace flickerscribe::ui
