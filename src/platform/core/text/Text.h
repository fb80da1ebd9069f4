#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringConverter>

#include <compare>
#include <optional>

namespace quillon {

/// The text that the bytes encode; nothing when they are not UTF-8. A byte order mark in front is a character like any
/// other, where QString drops it.
inline std::optional<QString> strictUtf8(QByteArrayView bytes)
{
    if (!bytes.isValidUtf8())
        return std::nullopt;
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::ConvertInitialBom);
    return decoder.decode(bytes);
}

/// The bytes behind a byte order mark in front, if there is one.
inline QByteArrayView withoutByteOrderMark(QByteArrayView bytes)
{
    constexpr QByteArrayView mark = "\xEF\xBB\xBF";
    return bytes.startsWith(mark) ? bytes.sliced(mark.size()) : bytes;
}

/// Compares texts as version numbers are compared: runs of digits as numbers, everything else by code point; of two
/// texts with an equal beginning the longer one is the later.
std::strong_ordering compareNumerically(QStringView a, QStringView b);

/// Orders texts by code point, whatever the locale.
bool precedesByCodePoint(QStringView a, QStringView b);

/// Removes percent-encoding; nothing when a sequence is malformed or the bytes are not UTF-8.
std::optional<QString> removePercentEncoding(const QString& text);

/// A text from outside, such as the name of a disk, as it can stand among texts of ours: on one line, without marks
/// that would turn around or hide what stands beside it, and no longer than so many characters, of which those in the
/// middle go.
QString shownText(const QString& text, qsizetype longest = 80);

/// The same of a path, or of a sentence that may hold one.
QString shownLongText(const QString& text);

/// The same of a disk's name as Time Machine gives it, without its percent-encoding, and with the spaces at its ends.
QString displayedName(const QString& name);

} // namespace quillon
