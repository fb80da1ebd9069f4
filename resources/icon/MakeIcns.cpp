#include "DrawnSquare.h"
#include "IconFamily.h"

#include <QFile>
#include <QSaveFile>

#include <cstdio>

/// make_icns DRAWING ICNS: writes a square SVG drawing as the icon of an application for macOS.
int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fputs("usage: make_icns DRAWING ICNS\n", stderr);
        return 2;
    }
    QSvgRenderer drawing(QFile::decodeName(argv[1]));
    QSaveFile file(QFile::decodeName(argv[2]));
    if (drawing.isValid() && file.open(QIODevice::WriteOnly)) {
        file.write(quillon::iconFamily([&drawing](int side) { return quillon::drawnSquare(drawing, side); }));
        if (file.commit())
            return 0;
    }
    std::fprintf(stderr, "make_icns: %s cannot be made of %s\n", argv[2], argv[1]);
    return 1;
}
