// make_icns SVG ICNS: renders a drawing into an icon file for macOS.

#include "IconFamily.h"

#include <QCoreApplication>
#include <QPainter>
#include <QSaveFile>
#include <QSvgRenderer>

#include <cstdio>

namespace {

QImage drawn(QSvgRenderer& drawing, int side)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.render(&painter);
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() != 3) {
        std::fputs("usage: make_icns SVG ICNS\n", stderr);
        return 2;
    }
    QSvgRenderer drawing(words[1]);
    if (!drawing.isValid()) {
        std::fprintf(stderr, "make_icns: %s is no drawing\n", qPrintable(words[1]));
        return 1;
    }
    const QByteArray family = quillon::iconFamily([&drawing](int side) { return drawn(drawing, side); });
    QSaveFile file(words[2]);
    if (!file.open(QIODevice::WriteOnly) || file.write(family) != family.size() || !file.commit()) {
        std::fprintf(stderr, "make_icns: cannot write %s: %s\n", qPrintable(words[2]), qPrintable(file.errorString()));
        return 1;
    }
    return 0;
}
