#include "DestinationReport.h"

#include "Configuration.h"
#include "Failure.h"
#include "History.h"
#include "KeyStore.h"
#include "PropertyList.h"
#include "ShownText.h"

#include <QStorageInfo>

namespace quillon {

using namespace Qt::StringLiterals;

QByteArray destinationText(const std::vector<Destination>& destinations, const History& history, const KeyStore& keys)
{
    if (destinations.empty())
        return "No destinations configured.\n";
    QString text;
    for (const Destination& destination : destinations) {
        text += destination.id == history.lastDestination() ? "> "_L1 + QString(50, u'=') : QString(52, u'=');
        text += "\nName          : "_L1 + shownText(destination.name) + "\nKind          : Local\n"_L1;
        if (destination.isPresent())
            text += "Mount Point   : "_L1 + shownText(destination.path, destination.path.size()) + u'\n';
        text += "ID            : "_L1 + destination.id + u'\n';
        if (keys.keptRecoveryKey(destination.id).isEmpty())
            text += "Recovery Key  : not kept yet; \"tmutil recoverykey -d ID\" makes one and shows it\n"_L1;
    }
    return text.toUtf8();
}

QByteArray destinationXml(const Configuration& configuration, const History& history, const KeyStore& keys,
                          const MountTable& mounts)
{
    QVariantList entries;
    for (const Destination& destination : configuration.destinations()) {
        QVariantMap entry{{u"ID"_s, destination.id},
                          {u"Name"_s, destination.name},
                          {u"Kind"_s, u"Local"_s},
                          {u"Path"_s, destination.path},
                          {u"LastDestination"_s, qlonglong{destination.id == history.lastDestination() ? 1 : 0}}};
        if (destination.isPresent()) {
            entry.insert(u"MountPoint"_s, destination.path);
            const QStorageInfo room(destination.path);
            entry.insert(u"BytesFree"_s, room.bytesAvailable());
            entry.insert(u"BytesTotal"_s, room.bytesTotal());
            if (const QString source = configuration.sourceOnDisk(destination.path, mounts); !source.isEmpty())
                entry.insert(u"SourceOnDisk"_s, source);
        }
        if (const QVariantMap failure = history.lastFailure(destination.id); !failure.isEmpty())
            entry.insert(u"LastFailure"_s, failure);
        if (const QDateTime last = history.lastBackup(destination.id); last.isValid())
            entry.insert(u"LastBackup"_s, last);
        if (const QVariantList backups = history.backups(destination.id); !backups.isEmpty())
            entry.insert(u"Backups"_s, backups);
        if (keys.keptRecoveryKey(destination.id).isEmpty())
            entry.insert(u"RecoveryKeyMissing"_s, qlonglong{1});
        entries.append(entry);
    }
    const auto xml = propertylist::toXml(QVariantMap{{u"Destinations"_s, entries}});
    if (!xml)
        throw Failure(ExitStatus::Configuration, u"The name of a backup disk cannot be written as XML."_s);
    return *xml;
}

} // namespace quillon
