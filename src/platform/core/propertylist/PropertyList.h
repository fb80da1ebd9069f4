#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <QVariantMap>

#include <optional>

namespace quillon::propertylist {

/// Arrays and dictionaries inside one another, at most: far more than real lists have, few enough for any stack.
inline constexpr int maximumNesting = 512;

} // namespace quillon::propertylist

namespace quillon {

/// Property lists in the old-style text, XML and binary formats.
///
/// Values are QVariants of QString, QByteArray, bool, qlonglong, double, QDateTime (UTC), QVariantList and QVariantMap.
/// In the old-style text format every scalar is a QString or a QByteArray. A number or date of the other two that none
/// of these holds is left out of its array or dictionary, and the rest of the list stays.
namespace propertylist {

/// Why a text was refused.
struct ParseError {
    QString message;
    int line = 0;   ///< counted from 1; 0 where the format has no lines
    int column = 0; ///< in bytes, counted from 1
};

/// Reads a property list of any format; nothing when the bytes are not one, with the reason in `error`.
std::optional<QVariant> parse(const QByteArray& bytes, ParseError* error = nullptr);

/// Reads the old-style text format only.
std::optional<QVariant> parseOldStyle(QByteArrayView bytes, ParseError* error = nullptr);

/// Both give nothing for a value that the format cannot hold. XML has no fractions of a second: they are cut off.
std::optional<QByteArray> toXml(const QVariant& value);
std::optional<QByteArray> toBinary(const QVariant& value);

/// The old-style text format, one entry a line, indented by four blanks, keys sorted.
std::optional<QByteArray> toOldStyle(const QVariant& value);

/// Typed reads of a scalar that follow the string conversions of macOS: blanks skipped, the longest numeric
/// prefix counts, integers saturate, nothing numeric is 0. Numbers and booleans of XML and binary lists are taken as
/// they are; a value of any other kind reads as 0 or false.
float toFloat(const QVariant& value);
qlonglong toInteger(const QVariant& value);
bool toBoolean(const QVariant& value);

/// The value of a key when it is a single value; a missing key or a container gives an invalid QVariant.
inline QVariant scalar(const QVariantMap& dictionary, const QString& key)
{
    const QVariant value = dictionary.value(key);
    const auto type = value.typeId();
    return type == QMetaType::QVariantMap || type == QMetaType::QVariantList ? QVariant() : value;
}

/// The dictionary of a key; nothing when the key is missing or holds something else.
inline std::optional<QVariantMap> dictionary(const QVariantMap& outer, const QString& key)
{
    const QVariant value = outer.value(key);
    return value.typeId() == QMetaType::QVariantMap ? std::optional(value.toMap()) : std::nullopt;
}

} // namespace propertylist

/// What lies in the place of a property list whose top level is a dictionary.
struct FoundPropertyList {
    enum class State {
        Read,
        Absent,
        Unreadable, ///< may well be a property list: it cannot be opened, is too large, or would be waited for
        Damaged     ///< is no property list, or none that is a dictionary
    };
    State state = State::Absent;
    QVariantMap contents; ///< empty unless Read
    QString trouble;      ///< why it is unreadable or damaged: English, for "... (%1)"
};

/// Reads the file in any format. Pipes and devices are not waited for.
FoundPropertyList findPropertyList(const QString& path);

/// The contents; empty where there is no file, nothing where it is unreadable or damaged.
std::optional<QVariantMap> readPropertyListFile(const QString& path);

/// Replaces the file in one step, readable by the user only: whoever reads it, and whenever the power fails, finds the
/// old contents or the new. It becomes an XML list, or a binary one where it holds values that XML cannot. False with
/// the reason in `trouble` when it could not be written; the old contents then stand.
bool writePropertyListFile(const QString& path, const QVariantMap& contents, QString* trouble = nullptr);

/// The same for what changes several times a second: it is not flushed to the disk, so that a power failure may leave
/// damaged contents. One writer at a time.
bool replacePropertyListFile(const QString& path, const QVariantMap& contents);

} // namespace quillon
