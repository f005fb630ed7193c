// Renders the SVG icon as the PNG sizes desktops look for: rendericon SVG SIZE OUTPUT.PNG
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    bool isNumber = false;
    const int size = arguments.value(2).toInt(&isNumber);
    if (arguments.size() != 4 || !isNumber || size <= 0) {
        std::fputs("usage: rendericon SVG SIZE OUTPUT.PNG\n", stderr);
        return 2;
    }
    QSvgRenderer renderer(arguments.at(1));
    if (!renderer.isValid()) {
        std::fprintf(stderr, "rendericon: cannot read %s\n", qPrintable(arguments.at(1)));
        return 1;
    }
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    if (!image.save(arguments.at(3), "PNG")) {
        std::fprintf(stderr, "rendericon: cannot write %s\n", qPrintable(arguments.at(3)));
        return 1;
    }
    return 0;
}
