#include "Commands.h"
#include "Configuration.h"
#include "Failure.h"
#include "Output.h"
#include "Paths.h"
#include "SourceSet.h"

#include <QFileInfo>
#include <QVariantMap>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

void tryExclusion(const Folders& folders, const QStringList& names, qlonglong largest, bool xml)
{
    Configuration::requireNames(names);
    const auto omission = SourceSet::of(Configuration(folders), folders).omittedBy(names, largest);
    if (xml)
        return printXml(QVariantMap{{u"Files"_s, omission.files}, {u"Bytes"_s, omission.bytes}});
    print(
        QStringList(omission.files == 1
                        ? u"1 file of %1 bytes would be left out."_s.arg(omission.bytes)
                        : u"%1 files of %2 bytes in all would be left out."_s.arg(omission.files).arg(omission.bytes)));
}

} // namespace

void listExclusions(const Folders& folders, bool xml)
{
    const Configuration configuration(folders);
    const QStringList paths = configuration.exclusions();
    const QStringList names = configuration.excludedNames();
    if (!xml)
        return print(paths);
    printXml(QVariantMap{{u"Paths"_s, QVariantList(paths.begin(), paths.end())},
                         {u"Names"_s, QVariantList(names.begin(), names.end())},
                         {u"LargestFile"_s, configuration.largestFile()}});
}

/// Those that nobody has named come with the reason why they are left out.
void listAllExclusions(const Folders& folders)
{
    const Configuration configuration(folders);
    QStringList lines = configuration.exclusions();
    for (const QString& name : configuration.excludedNames())
        lines.append(u"%1 (by name)"_s.arg(name));
    if (configuration.largestFile() > 0)
        lines.append(u"files of more than %1 bytes"_s.arg(configuration.largestFile()));
    for (const auto& [path, reason] : SourceSet::of(configuration, folders).automatic)
        lines.append(u"%1 (%2)"_s.arg(path, reason));
    print(lines << u"folders with a CACHEDIR.TAG (caches)"_s);
}

void isExcluded(const Folders& folders, const QStringList& paths)
{
    const SourceSet set = SourceSet::of(Configuration(folders), folders);
    QStringList lines;
    for (const QString& path : paths) {
        const QString own = ownPath(path);
        if (const QFileInfo file(own); !file.exists() && !file.isSymLink())
            throw Failure(ExitStatus::NoInput, u"\"%1\" does not exist."_s.arg(path));
        lines.append((set.contains(own) ? "[Included]    "_L1 : "[Excluded]    "_L1) + own);
    }
    print(lines);
}

void excludeNames(const Folders& folders, const QStringList& patterns, bool trial, bool xml)
{
    if (trial)
        return tryExclusion(folders, patterns, 0, xml);
    Configuration(folders).addExcludedNames(patterns);
}

void excludeLarger(const Folders& folders, const QString& megabytes, bool trial, bool xml)
{
    bool isNumber = false;
    const qlonglong number = megabytes.toLongLong(&isNumber);
    constexpr qlonglong most = 1'000'000'000;
    if (!isNumber || number < 0 || number > most)
        throw Failure(ExitStatus::Usage, u"\"%1\" is no number of megabytes."_s.arg(megabytes));
    constexpr qlonglong bytes = 1'000'000;
    if (trial)
        return tryExclusion(folders, {}, number * bytes, xml);
    Configuration(folders).setLargestFile(number * bytes);
}

} // namespace quillon
