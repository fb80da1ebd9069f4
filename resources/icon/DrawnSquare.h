#pragma once

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace quillon {

/// A square drawing as a picture of so many pixels on each side, transparent where nothing is drawn.
inline QImage drawnSquare(QSvgRenderer& drawing, int side)
{
    QImage picture(side, side, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawing.render(&painter);
    painter.end();
    return picture;
}

} // namespace quillon
