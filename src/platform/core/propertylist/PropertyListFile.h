#pragma once

#include <QString>
#include <QVariantMap>

#include <optional>

namespace quillon {

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
