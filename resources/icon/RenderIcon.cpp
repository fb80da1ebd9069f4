#include "DrawnSquare.h"

#include <QFile>

#include <cstdio>

using namespace Qt::StringLiterals;

/// render_icon DRAWING SIZE PICTURE: writes a square SVG drawing as a PNG picture of so many pixels on each side.
int main(int argc, char** argv)
{
    const int size = argc == 4 ? QByteArrayView(argv[2]).toInt() : 0;
    if (size < 1) {
        std::fputs("usage: render_icon DRAWING SIZE PICTURE\n", stderr);
        return 2;
    }
    QSvgRenderer drawing(QFile::decodeName(argv[1]));
    if (drawing.isValid() && quillon::drawnSquare(drawing, size).save(QFile::decodeName(argv[3]), "PNG"))
        return 0;
    std::fprintf(stderr, "render_icon: %s cannot be made of %s\n", argv[3], argv[1]);
    return 1;
}
