#include "KeyStore.h"

#include "Failure.h"
#include "Folders.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSaveFile>
#include <QUuid>

#include <array>

namespace quillon {

using namespace Qt::StringLiterals;

KeyStore::KeyStore(const QString& configurationFolder)
    : folder_(configurationFolder + "/keys"_L1)
{
}

QString KeyStore::path(const QString& destinationId) const
{
    return folder_ + u'/' + destinationId + ".key"_L1;
}

bool KeyStore::contains(const QString& destinationId) const
{
    return QFileInfo::exists(path(destinationId));
}

QString KeyStore::makeKey()
{
    std::array<quint32, 8> words{};
    QRandomGenerator::system()->fillRange(words.data(), words.size());
    return QString::fromLatin1(QByteArray(reinterpret_cast<const char*>(words.data()), sizeof words).toBase64());
}

void KeyStore::ensure(const QString& destinationId) const
{
    if (!contains(destinationId))
        store(destinationId, makeKey());
}

void KeyStore::store(const QString& destinationId, const QString& key) const
{
    makePrivateFolder(folder_);
    const QString aside = path(destinationId) + u'.' + QUuid::createUuid().toString(QUuid::Id128).left(8);
    const QByteArray line = key.toUtf8() + '\n';
    QSaveFile file(path(destinationId));
    if ((contains(destinationId) && !QFile::copy(path(destinationId), aside)) || !file.open(QIODevice::WriteOnly) ||
        !file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) || file.write(line) != line.size() ||
        !file.commit())
        throw Failure(ExitStatus::CannotWrite,
                      u"The key file \"%1\" cannot be written: %2."_s.arg(path(destinationId), file.errorString()));
}

} // namespace quillon
