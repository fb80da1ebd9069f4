#include "ContactSheet.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <vector>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int gap = 12;
constexpr int caption = 20;

struct Placed {
    QImage picture;
    QString name;
    QPoint place;
};

/// In rows of at most four of the widest picture, the highest pictures first, so that rows are well filled.
QSize arrange(std::vector<Placed>& pictures)
{
    std::stable_sort(pictures.begin(), pictures.end(),
                     [](const Placed& a, const Placed& b) { return a.picture.height() > b.picture.height(); });
    int widest = 0;
    for (const auto& placed : pictures)
        widest = std::max(widest, placed.picture.width());
    constexpr int columns = 4;
    const int width = columns * (widest + gap) + gap;
    QPoint next(gap, gap);
    int rowHeight = 0;
    for (auto& placed : pictures) {
        if (next.x() + placed.picture.width() + gap > width) {
            next = {gap, next.y() + rowHeight};
            rowHeight = 0;
        }
        placed.place = next;
        next.rx() += placed.picture.width() + gap;
        rowHeight = std::max(rowHeight, placed.picture.height() + caption + gap);
    }
    return {width, next.y() + rowHeight};
}

} // namespace

bool drawContactSheet(const QDir& folder, const QString& prefix, const QString& path)
{
    std::vector<Placed> pictures;
    for (const QString& name : folder.entryList({prefix + "*.png"_L1}, QDir::Files, QDir::Name)) {
        QImage picture(folder.filePath(name));
        picture.setDevicePixelRatio(1);
        pictures.push_back({picture, name.chopped(4), {}});
    }
    QImage sheet(arrange(pictures), QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    for (const auto& [picture, name, place] : pictures) {
        painter.drawImage(place, picture);
        painter.drawText(QRect(place.x(), place.y() + picture.height(), picture.width(), caption), Qt::AlignCenter,
                         name);
    }
    painter.end();
    return sheet.save(path);
}

} // namespace quillon
