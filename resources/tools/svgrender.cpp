// Build-time tool: renders an SVG icon source to a PNG of the requested size.
//   svgrender input.svg output.png WIDTH HEIGHT
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 5) {
        std::fprintf(stderr, "usage: svgrender input.svg output.png WIDTH HEIGHT\n");
        return 2;
    }
    QSvgRenderer renderer(args.at(1));
    if (!renderer.isValid()) {
        std::fprintf(stderr, "svgrender: cannot read %s\n", qPrintable(args.at(1)));
        return 1;
    }
    QImage image(args.at(3).toInt(), args.at(4).toInt(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    renderer.render(&painter);
    painter.end();
    if (!image.save(args.at(2), "PNG")) {
        std::fprintf(stderr, "svgrender: cannot write %s\n", qPrintable(args.at(2)));
        return 1;
    }
    return 0;
}
