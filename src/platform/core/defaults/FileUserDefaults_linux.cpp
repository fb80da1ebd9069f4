#include "FileUserDefaults_linux.h"

#include "FileLock.h"
#include "PropertyList.h"
#include "UserDefaults.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QVariantList>

#include <algorithm>
#include <chrono>
#include <iostream>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// Writing takes a few milliseconds: whoever holds the lock has let go of it by then.
constexpr std::chrono::seconds untilNextTry{1};

void apply(const QVariantMap& changes, QVariantMap& values)
{
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (change.value().isValid())
            values.insert(change.key(), change.value());
        else
            values.remove(change.key());
    }
}

/// The value as a program reads it that starts next.
QVariant asFileGivesItBack(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
        return value.toLongLong();
    case QMetaType::Float:
        return value.toDouble();
    case QMetaType::QDateTime: {
        const std::chrono::milliseconds exact(value.toDateTime().toMSecsSinceEpoch());
        return QDateTime::fromSecsSinceEpoch(std::chrono::floor<std::chrono::seconds>(exact).count(), Qt::UTC);
    }
    case QMetaType::QVariantList: {
        QVariantList elements = value.toList();
        std::transform(elements.begin(), elements.end(), elements.begin(), asFileGivesItBack);
        return elements;
    }
    case QMetaType::QVariantMap: {
        QVariantMap entries = value.toMap();
        std::transform(entries.begin(), entries.end(), entries.begin(), asFileGivesItBack);
        return entries;
    }
    default:
        return value;
    }
}

} // namespace

FileUserDefaults::FileUserDefaults(const QString& path, DefaultsAccess access, RunLoop& runLoop)
    : path_(path)
    , access_(access)
    , runLoop_(runLoop)
{
    values_ = fileValues().value_or(QVariantMap());
}

FileUserDefaults::~FileUserDefaults()
{
    // Written without the lock, this may undo a change that another program makes at this very instant; unwritten, ours
    // would be lost for certain.
    if (!unsaved_.isEmpty())
        write();
}

QVariant FileUserDefaults::storedValue(const QString& key) const
{
    return values_.value(key);
}

void FileUserDefaults::storeValue(const QString& key, const QVariant& value)
{
    const QVariantMap change{{key, asFileGivesItBack(value)}};
    if (value.isValid() && !propertylist::toXml(change)) {
        complain(u"the value of %1 cannot be stored"_s.arg(key));
        return;
    }
    if (unsaved_.isEmpty() && change.value(key) == values_.value(key))
        return;
    apply(change, values_);
    if (access_ == DefaultsAccess::ReadOnly)
        return;
    unsaved_.insert(change);
    save();
}

std::optional<QVariantMap> FileUserDefaults::fileValues()
{
    using State = FoundPropertyList::State;
    const auto found = findPropertyList(path_);
    if (found.state == State::Read)
        return found.contents;
    if (found.state == State::Unreadable)
        complain(u"%1 cannot be read: %2"_s.arg(path_, found.trouble));
    if (found.state == State::Unreadable || (found.state == State::Damaged && !setAside(found.trouble)))
        return std::nullopt;
    return values_;
}

bool FileUserDefaults::setAside(const QString& reason)
{
    const QString damage = u"%1 is damaged (%2)"_s.arg(path_, reason);
    if (access_ == DefaultsAccess::ReadOnly)
        return complain(damage + u"; the standard settings are used"_s);
    QString aside;
    for (int number = 1; aside.isEmpty() || QFileInfo::exists(aside); ++number)
        aside = u"%1.damaged-%2"_s.arg(path_, QString::number(number));
    if (!QFile::rename(path_, aside))
        return complain(damage + u" and cannot be set aside; changes are not saved"_s);
    complain(damage + u"; it was set aside as %1"_s.arg(aside));
    return true;
}

void FileUserDefaults::save()
{
    if (!makePrivateFolder(QFileInfo(path_).path())) {
        complain(u"the folder of %1 cannot be made; settings are not saved"_s.arg(path_));
        return;
    }
    // Where the file system has no locks, there is nobody to wait for.
    FileLock lock(path_ + ".lock"_L1);
    if (lock.tryLock() == FileLock::Outcome::Anothers) {
        complain(u"%1 is locked by another program; settings are saved once it is free"_s.arg(path_));
        nextTry_ = runLoop_.scheduleAfter(untilNextTry, [this] { save(); });
        return;
    }
    nextTry_.invalidate();
    if (write()) {
        unsaved_.clear();
        lastTrouble_.clear();
    }
}

bool FileUserDefaults::write()
{
    auto values = fileValues();
    if (!values)
        return false;
    apply(unsaved_, *values);
    QString trouble;
    if (!writePropertyListFile(path_, *values, &trouble))
        return complain(u"%1 cannot be written: %2; settings are not saved"_s.arg(path_, trouble));
    values_ = *std::move(values);
    return true;
}

bool FileUserDefaults::complain(const QString& trouble)
{
    if (trouble != lastTrouble_)
        std::cerr << QFileInfo(QCoreApplication::applicationFilePath()).fileName().toStdString() << ": "
                  << trouble.toStdString() << std::endl;
    lastTrouble_ = trouble;
    return false;
}

std::unique_ptr<UserDefaults> openUserDefaults(const QString& identifier, DefaultsAccess access, RunLoop& runLoop)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return std::make_unique<FileUserDefaults>(folder + u'/' + identifier + ".plist"_L1, access, runLoop);
}

} // namespace quillon
