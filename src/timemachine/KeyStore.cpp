#include "KeyStore.h"

#include "Failure.h"
#include "Folders.h"

#include <QFileInfo>
#include <QRandomGenerator>
#include <QSaveFile>

#include <array>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QByteArray randomKey()
{
    std::array<quint32, 8> words{};
    QRandomGenerator::system()->fillRange(words.data(), words.size());
    return QByteArray(reinterpret_cast<const char*>(words.data()), sizeof words).toBase64();
}

} // namespace

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

void KeyStore::ensure(const QString& destinationId) const
{
    if (contains(destinationId))
        return;
    makePrivateFolder(folder_);
    const QByteArray line = randomKey() + '\n';
    QSaveFile file(path(destinationId));
    if (!file.open(QIODevice::WriteOnly) || !file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) ||
        file.write(line) != line.size() || !file.commit())
        throw Failure(ExitStatus::CannotWrite,
                      u"The key file \"%1\" cannot be written: %2."_s.arg(path(destinationId), file.errorString()));
}

} // namespace quillon
