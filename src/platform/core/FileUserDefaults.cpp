#include "FileUserDefaults.h"

#include "PropertyList.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QThread>

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <iostream>
#include <sys/file.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// Writing takes a few milliseconds: who cannot get the lock in this time tries again with the next change.
constexpr std::chrono::milliseconds lockPatience{100};
constexpr std::chrono::milliseconds pauseBetweenTries{2};

/// The kernel's lock on a folder: it leaves nothing behind, and ends with its process at whatever instant that dies.
class FolderLock {
public:
    explicit FolderLock(const QString& folder)
        : descriptor_(open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    {
    }
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    ~FolderLock()
    {
        if (descriptor_ >= 0)
            close(descriptor_);
    }

    bool tryLock(std::chrono::milliseconds patience) const
    {
        const QDeadlineTimer deadline(patience);
        while (flock(descriptor_, LOCK_EX | LOCK_NB) != 0) {
            if (errno != EWOULDBLOCK || deadline.hasExpired())
                return false;
            QThread::msleep(pauseBetweenTries.count());
        }
        return true;
    }

private:
    const int descriptor_;
};

void apply(const QVariantMap& changes, QVariantMap& values)
{
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (change.value().isValid())
            values.insert(change.key(), change.value());
        else
            values.remove(change.key());
    }
}

/// The change of one key, with the value that a program reads which starts next; nothing when it cannot be written.
std::optional<QVariantMap> asFileGivesItBack(const QString& key, const QVariant& value)
{
    if (!value.isValid())
        return QVariantMap{{key, value}};
    const auto text = propertylist::toXml(QVariantMap{{key, value}});
    const auto back = text ? propertylist::parse(*text) : std::nullopt;
    return back ? std::optional(back->toMap()) : std::nullopt;
}

} // namespace

FileUserDefaults::FileUserDefaults(const QString& path, DefaultsAccess access)
    : path_(path)
    , access_(access)
{
    values_ = fileValues().value_or(QVariantMap());
}

FileUserDefaults::~FileUserDefaults()
{
    if (!unsaved_.isEmpty())
        save();
}

QVariant FileUserDefaults::storedValue(const QString& key) const
{
    return values_.value(key);
}

void FileUserDefaults::storeValue(const QString& key, const QVariant& value)
{
    const auto change = asFileGivesItBack(key, value);
    if (!change) {
        complain(u"the value of %1 cannot be stored"_s.arg(key));
        return;
    }
    if (unsaved_.isEmpty() && change->value(key) == values_.value(key))
        return;
    apply(*change, values_);
    if (access_ == DefaultsAccess::ReadOnly)
        return;
    unsaved_.insert(*change);
    if (save()) {
        unsaved_.clear();
        lastTrouble_.clear();
    }
}

std::optional<QVariantMap> FileUserDefaults::fileValues()
{
    QFile file(path_);
    if (!file.exists())
        return values_;
    if (!file.open(QIODevice::ReadOnly)) {
        complain(u"%1 cannot be read: %2"_s.arg(path_, file.errorString()));
        return std::nullopt;
    }
    const QByteArray bytes = file.readAll();
    if (file.error() != QFile::NoError) {
        complain(u"%1 cannot be read: %2"_s.arg(path_, file.errorString()));
        return std::nullopt;
    }
    propertylist::ParseError error;
    const auto value = propertylist::parse(bytes, &error);
    if (value && value->typeId() == QMetaType::QVariantMap)
        return value->toMap();
    if (!setAside(value ? u"it is no dictionary"_s : error.message))
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

bool FileUserDefaults::save()
{
    const QString folder = QFileInfo(path_).path();
    if (!QDir().mkpath(folder))
        return complain(u"the folder of %1 cannot be made; settings are not saved"_s.arg(path_));
    const FolderLock lock(folder);
    if (!lock.tryLock(lockPatience))
        return complain(u"%1 cannot be locked; settings are not saved"_s.arg(path_));
    return saveLocked();
}

bool FileUserDefaults::saveLocked()
{
    auto values = fileValues();
    if (!values)
        return false;
    apply(unsaved_, *values);
    auto text = propertylist::toXml(*values);
    if (!text) // what others put into a binary file may be more than XML can hold
        text = propertylist::toBinary(*values);
    if (!text)
        return complain(u"%1 holds values that cannot be stored; settings are not saved"_s.arg(path_));
    QSaveFile file(path_);
    if (!file.open(QIODevice::WriteOnly) || file.write(*text) != text->size() || !file.commit())
        return complain(u"%1 cannot be written: %2; settings are not saved"_s.arg(path_, file.errorString()));
    values_ = *std::move(values);
    return true;
}

bool FileUserDefaults::complain(const QString& trouble)
{
    if (trouble != lastTrouble_)
        std::cerr << "quillon: " << trouble.toStdString() << std::endl;
    lastTrouble_ = trouble;
    return false;
}

} // namespace quillon
