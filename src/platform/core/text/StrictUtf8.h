#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace quillon {

/// The text that the bytes encode; nothing when they are not UTF-8. A byte order mark in front is a character like any
/// other, where QString drops it.
std::optional<QString> strictUtf8(QByteArrayView bytes);

/// The bytes behind a byte order mark in front, if there is one.
QByteArrayView withoutByteOrderMark(QByteArrayView bytes);

} // namespace quillon
