// Build-time tool: draws an SVG icon into a square PNG of the given size.
// Usage: fs_render_icon INPUT.svg OUTPUT.png SIZE

#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fputs("usage: fs_render_icon INPUT.svg OUTPUT.png SIZE\n", stderr);
        return 2;
    }
    const int size = std::atoi(argv[3]);
    QSvgRenderer svg(QString::fromLocal8Bit(argv[1]));
    if (!svg.isValid() || size <= 0) {
        std::fprintf(stderr, "fs_render_icon: cannot draw %s at size %s\n", argv[1], argv[3]);
        return 1;
    }
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        svg.render(&painter);
    }
    if (!image.save(QString::fromLocal8Bit(argv[2]), "PNG")) {
        std::fprintf(stderr, "fs_render_icon: cannot write %s\n", argv[2]);
        return 1;
    }
    return 0;
}
