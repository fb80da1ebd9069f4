#include "IconFamily.h"

#include <QBuffer>
#include <QtEndian>

#include <algorithm>

namespace quillon {

namespace {

// Kinds of elements: <IconStorage.h> and the format's public descriptions.
struct PngElement {
    const char* type;
    int side;
};

constexpr PngElement pngElements[] = {
    {"ic11", 32},  // 16 points, twice as dense
    {"ic12", 64},  // 32 points, twice as dense
    {"ic07", 128}, //
    {"ic13", 256}, // 128 points, twice as dense
    {"ic08", 256}, //
    {"ic14", 512}, // 256 points, twice as dense
    {"ic09", 512}, //
    {"ic10", 1024} // 512 points, twice as dense
};

/// The two smallest sizes, in which applications' icons are not shown as PNG: packed colours, and a mask beside them.
struct PackedElement {
    const char* colors;
    const char* mask;
    int side;
};

constexpr PackedElement packedElements[] = {{"is32", "s8mk", 16}, {"il32", "l8mk", 32}};

QByteArray bigEndian(qsizetype number)
{
    QByteArray bytes(4, Qt::Uninitialized);
    qToBigEndian(static_cast<quint32>(number), bytes.data());
    return bytes;
}

QByteArray element(const char* type, const QByteArray& data)
{
    constexpr qsizetype headSize = 8; // counted in the size
    return type + bigEndian(headSize + data.size()) + data;
}

QByteArray png(const QImage& image)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

QByteArray channel(const QImage& image, int (*value)(QRgb))
{
    QByteArray values;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            values.append(static_cast<char>(value(image.pixel(x, y))));
    }
    return values;
}

/// The format's packing of one colour, all of it in stretches that repeat nothing: their length less one, and the
/// bytes as they are.
QByteArray packed(const QByteArray& bytes)
{
    constexpr qsizetype longestStretch = 128;
    QByteArray result;
    for (qsizetype at = 0; at < bytes.size(); at += longestStretch) {
        const QByteArray stretch = bytes.mid(at, longestStretch);
        result += static_cast<char>(stretch.size() - 1);
        result += stretch;
    }
    return result;
}

} // namespace

QByteArray iconFamily(const std::function<QImage(int side)>& draw)
{
    QByteArray elements;
    for (const auto& [colors, mask, side] : packedElements) {
        const QImage image = draw(side);
        elements += element(colors, packed(channel(image, qRed)) + packed(channel(image, qGreen)) +
                                        packed(channel(image, qBlue)));
        elements += element(mask, channel(image, qAlpha));
    }
    for (const auto& [type, side] : pngElements)
        elements += element(type, png(draw(side)));
    return element("icns", elements);
}

} // namespace quillon
