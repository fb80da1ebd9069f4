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

/// Unicode of the bytes 128 to 255 in the NEXTSTEP encoding, which octal escapes of old-style property lists use.
/// Source: the table VENDORS/NEXT/NEXTSTEP.TXT of the Unicode Consortium.
inline constexpr char16_t nextStepUpperHalf[128] = {
    // clang-format off
    u'\u00A0', u'\u00C0', u'\u00C1', u'\u00C2', u'\u00C3', u'\u00C4', u'\u00C5', u'\u00C7',
    u'\u00C8', u'\u00C9', u'\u00CA', u'\u00CB', u'\u00CC', u'\u00CD', u'\u00CE', u'\u00CF',
    u'\u00D0', u'\u00D1', u'\u00D2', u'\u00D3', u'\u00D4', u'\u00D5', u'\u00D6', u'\u00D9',
    u'\u00DA', u'\u00DB', u'\u00DC', u'\u00DD', u'\u00DE', u'\u00B5', u'\u00D7', u'\u00F7',
    u'\u00A9', u'\u00A1', u'\u00A2', u'\u00A3', u'\u2044', u'\u00A5', u'\u0192', u'\u00A7',
    u'\u00A4', u'\u2019', u'\u201C', u'\u00AB', u'\u2039', u'\u203A', u'\uFB01', u'\uFB02',
    u'\u00AE', u'\u2013', u'\u2020', u'\u2021', u'\u00B7', u'\u00A6', u'\u00B6', u'\u2022',
    u'\u201A', u'\u201E', u'\u201D', u'\u00BB', u'\u2026', u'\u2030', u'\u00AC', u'\u00BF',
    u'\u00B9', u'\u02CB', u'\u00B4', u'\u02C6', u'\u02DC', u'\u00AF', u'\u02D8', u'\u02D9',
    u'\u00A8', u'\u00B2', u'\u02DA', u'\u00B8', u'\u00B3', u'\u02DD', u'\u02DB', u'\u02C7',
    u'\u2014', u'\u00B1', u'\u00BC', u'\u00BD', u'\u00BE', u'\u00E0', u'\u00E1', u'\u00E2',
    u'\u00E3', u'\u00E4', u'\u00E5', u'\u00E7', u'\u00E8', u'\u00E9', u'\u00EA', u'\u00EB',
    u'\u00EC', u'\u00C6', u'\u00ED', u'\u00AA', u'\u00EE', u'\u00EF', u'\u00F0', u'\u00F1',
    u'\u0141', u'\u00D8', u'\u0152', u'\u00BA', u'\u00F2', u'\u00F3', u'\u00F4', u'\u00F5',
    u'\u00F6', u'\u00E6', u'\u00F9', u'\u00FA', u'\u00FB', u'\u0131', u'\u00FC', u'\u00FD',
    u'\u0142', u'\u00F8', u'\u0153', u'\u00DF', u'\u00FE', u'\u00FF', u'\uFFFD', u'\uFFFD',
    // clang-format on
};

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
