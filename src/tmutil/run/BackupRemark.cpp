#include "BackupRemark.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// A tenth of the data is read each week; a backup soon after may cut one short, but not month after month.
constexpr int verificationDays = 28;

QString counted(qlonglong files)
{
    return files == 1 ? u"One file could not be read."_s : u"%1 files could not be read."_s.arg(files);
}

} // namespace

QString BackupRemark::removal() const
{
    if (removed.empty())
        return {};
    return removed.size() == 1 ? u"The disk was full, and the backup \"%1\" was removed."_s.arg(removed.front().name())
                               : u"The disk was full, and %1 old backups, from \"%2\" to \"%3\", were removed."_s.arg(
                                     QString::number(removed.size()), removed.front().name(), removed.back().name());
}

std::optional<std::pair<QString, QString>> BackupRemark::text(const QDateTime& now) const
{
    QString cause;
    QStringList sentences;
    const auto add = [&](const QString& word, const QStringList& some) {
        if (some.isEmpty())
            return;
        if (cause.isEmpty())
            cause = word;
        sentences += some;
    };
    add(u"SourceLost"_s, lostSources);
    if (lostBackups > 0)
        add(u"BackupsLost"_s,
            {u"%1 earlier backups, the latest among them, are gone from the disk, and this program has not removed "
             u"them. "
             "\"restic recover\" may bring their files back within the coming week."_s.arg(lostBackups)});
    if (damagedRecords > 0)
        add(u"Damaged"_s, {u"The records of %1 backups were damaged and have been put aside."_s.arg(damagedRecords)});
    if (unreadFiles > 0)
        add(u"UnreadFiles"_s, {counted(unreadFiles)});
    add(u"MissingSource"_s, lackingSources);
    if (!removed.empty())
        add(u"SpaceMade"_s, {removal()});
    if (!thinningProblem.isEmpty())
        add(u"Thinning"_s, {u"Old backups could not be thinned: %1"_s.arg(thinningProblem)});
    if (lastVerification.isValid() && lastVerification.addDays(verificationDays) < now)
        add(u"NotVerified"_s, {u"The backups on this disk have not been verified since %1. Leave the disk and the "
                               u"computer on for a while "
                               "after a backup, or call \"tmutil verify\"."_s.arg(
                                   lastVerification.toLocalTime().toString(u"yyyy-MM-dd"_s))});
    if (cause.isEmpty())
        return std::nullopt;
    return std::pair(cause, sentences.join(u' '));
}

} // namespace quillon
