#include "FileUserDefaults.h"

#include "PrivateFolder.h"
#include "PropertyList.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QVariantList>

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <iostream>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// Writing takes a few milliseconds: whoever holds the lock has let go of it by then.
constexpr std::chrono::seconds untilNextTry{1};

constexpr qint64 largestFile = 16 << 20; // bytes; settings have a few thousand

/// The kernel's lock on a file that only the user can open, for whoever can open a file can hold it. The lock ends with
/// its process at whatever instant that dies; the file stays, since removing it would let two hold a lock of that name.
class FileLock {
public:
    explicit FileLock(const QString& path)
        : descriptor_(
              open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR))
    {
    }
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    ~FileLock()
    {
        if (descriptor_ >= 0)
            close(descriptor_);
    }

    /// Takes the lock. Where the file system has none, or nothing can be written, there is nobody to wait for.
    bool isHeldByAnother() const { return flock(descriptor_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK; }

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
    // Without the lock at worst a change that another program makes in this very instant is lost, not ours for certain.
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
    QFile file(path_);
    if (!file.exists())
        return values_;
    // Reading a pipe would wait for ever, and a device gives no end.
    if (const QFileInfo found(path_); !found.isFile() || found.size() > largestFile) {
        complain(u"%1 cannot be read: it is %2"_s.arg(path_, found.isFile() ? u"too large"_s : u"no file"_s));
        return std::nullopt;
    }
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

void FileUserDefaults::save()
{
    if (!makePrivateFolder(QFileInfo(path_).path())) {
        complain(u"the folder of %1 cannot be made; settings are not saved"_s.arg(path_));
        return;
    }
    const FileLock lock(path_ + ".lock"_L1);
    if (lock.isHeldByAnother()) {
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
