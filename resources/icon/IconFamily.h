#pragma once

#include <QByteArray>
#include <QImage>

#include <functional>

namespace quillon {

/// An icon in every size that macOS asks for, as an icon family file (.icns).
/// @param draw the icon as a square of that many pixels, with transparency
QByteArray iconFamily(const std::function<QImage(int side)>& draw);

} // namespace quillon
