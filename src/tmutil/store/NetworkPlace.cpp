#include "NetworkPlace.h"

#include "Failure.h"
#include "Paths.h"
#include "PropertyList.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

struct Scheme {
    QLatin1StringView begin;  ///< of what the user gives
    QLatin1StringView prefix; ///< of that what restic has besides the URL
    NetworkPlace::Kind kind;
};

constexpr std::array schemes{Scheme{"sftp://"_L1, ""_L1, NetworkPlace::Kind::Sftp},
                             Scheme{"rest:https://"_L1, "rest:"_L1, NetworkPlace::Kind::Rest},
                             Scheme{"rest:http://"_L1, "rest:"_L1, NetworkPlace::Kind::Rest},
                             Scheme{"s3:https://"_L1, "s3:"_L1, NetworkPlace::Kind::S3},
                             Scheme{"s3:http://"_L1, "s3:"_L1, NetworkPlace::Kind::S3}};

const Scheme* schemeOf(const QString& text)
{
    const auto* const found = std::ranges::find_if(
        schemes, [&](const Scheme& one) { return text.startsWith(one.begin, Qt::CaseInsensitive); });
    return found == schemes.end() ? nullptr : found;
}

QLatin1StringView prefixOf(NetworkPlace::Kind kind)
{
    return std::ranges::find(schemes, kind, &Scheme::kind)->prefix;
}

[[noreturn]] void refuseUrl(const QString& reason)
{
    throw Failure(ExitStatus::Usage, reason +
                                         u" URLs are sftp://[USER@]HOST[:PORT]/PATH, rest:https://HOST[:PORT]/PATH "
                                         "or s3:https://HOST[:PORT]/BUCKET[/PREFIX]."_s);
}

[[noreturn]] void refuseCredentials(const QString& reason)
{
    throw Failure(ExitStatus::NoInput, u"The credentials cannot be used: %1."_s.arg(reason));
}

constexpr auto urlKey = "URL"_L1;
constexpr auto credentialsKey = "Credentials"_L1;
constexpr auto uploadKey = "UploadLimit"_L1;
constexpr auto downloadKey = "DownloadLimit"_L1;

QString folderOf(const Folders& folders)
{
    return folders.configuration + "/places"_L1;
}

QString fileOf(const Folders& folders, const QString& destinationId)
{
    return folderOf(folders) + u'/' + destinationId + ".plist"_L1;
}

void write(const Folders& folders, const QString& destinationId, const QVariantMap& contents)
{
    const QString file = fileOf(folders, destinationId);
    needPrivateFolder(folderOf(folders));
    if (!writePropertyListFile(file, contents))
        throw Failure(ExitStatus::CannotWrite, u"\"%1\" cannot be written."_s.arg(file));
}

QStringList credentialNames(NetworkPlace::Kind kind)
{
    switch (kind) {
    case NetworkPlace::Kind::Sftp:
        return {u"user"_s, u"key-file"_s};
    case NetworkPlace::Kind::Rest:
        return {u"user"_s, u"password"_s, u"ca-file"_s};
    case NetworkPlace::Kind::S3:
        break;
    }
    return {u"access-key"_s, u"secret-key"_s, u"region"_s, u"ca-file"_s};
}

/// As one word of an option of ssh, which splits at blanks and replaces what follows a percent sign.
QString sshWord(const QString& path)
{
    QString word;
    for (const QChar character : path) {
        if (u"\\\"' \t"_s.contains(character))
            word += u'\\';
        word += character == u'%' ? u"%%"_s : QString(character);
    }
    return word;
}

/// As one word of restic's option sftp.command. A quote in it follows a backslash, and so does not end it.
QString resticWord(const QString& word)
{
    return u'\'' + word + u'\'';
}

} // namespace

bool NetworkPlace::isUrl(const QString& text)
{
    static constexpr std::array begins{"sftp:"_L1, "rest:"_L1, "s3:"_L1};
    return std::ranges::any_of(begins, [&](auto begin) { return text.startsWith(begin, Qt::CaseInsensitive); });
}

NetworkPlace NetworkPlace::fromUrl(const QString& text)
{
    const Scheme* const scheme = schemeOf(text);
    if (scheme == nullptr)
        refuseUrl(u"That names no place on a network."_s);
    NetworkPlace place{scheme->kind, QUrl(text.mid(scheme->prefix.size()), QUrl::StrictMode)};
    QUrl& url = place.url;
    if (!url.password().isEmpty())
        refuseUrl(u"A password in the URL could be seen by others; it belongs to the credentials."_s);
    if (!url.isValid() || url.host().isEmpty() || url.host().startsWith(u'-') || url.hasQuery() || url.hasFragment() ||
        text.contains(QChar::ReplacementCharacter))
        refuseUrl(u"The URL makes no sense."_s);
    QString path = QDir::cleanPath(u'/' + url.path());
    if (path.startsWith("//"_L1))
        path.remove(0, 1);
    const bool isNamed = path.size() > 1 && path != "/~"_L1;
    if (scheme->kind == Kind::S3 && !url.userName().isEmpty())
        refuseUrl(u"A user of such storage is an access key, which belongs to the credentials."_s);
    if (!isNamed && scheme->kind != Kind::Rest)
        refuseUrl(u"The URL names no folder on the server."_s);
    url.setPath(path == "/"_L1 ? QString() : path);
    return place;
}

QString NetworkPlace::text() const
{
    return prefixOf(kind) + url.toString(QUrl::FullyEncoded);
}

QString NetworkPlace::name() const
{
    const QString last = url.path().section(u'/', -1);
    return last.isEmpty() ? url.host() : last;
}

NetworkAccess NetworkAccess::load(const Folders& folders, const QString& destinationId)
{
    const QString file = fileOf(folders, destinationId);
    const auto contents = readPropertyListFile(file);
    if (!contents || !contents->contains(urlKey))
        throw Failure(ExitStatus::Configuration,
                      u"\"%1\", which tells how to reach a network place, is damaged or missing. Set the place again "
                      "with \"tmutil setdestination -a\"."_s.arg(file));
    return {.place = NetworkPlace::fromUrl(contents->value(urlKey).toString()),
            .credentials = contents->value(credentialsKey).toMap(),
            .uploadLimit = std::clamp(contents->value(uploadKey).toInt(), 0, mostLimit),
            .downloadLimit = std::clamp(contents->value(downloadKey).toInt(), 0, mostLimit),
            .knownHosts = knownHostsFile(folders)};
}

QString NetworkAccess::identifierOf(const Folders& folders, const NetworkPlace& place)
{
    for (const QFileInfo& file : QDir(folderOf(folders)).entryInfoList({u"*.plist"_s}, QDir::Files)) {
        const auto contents = readPropertyListFile(file.filePath());
        if (contents && contents->value(urlKey).toString() == place.text())
            return file.completeBaseName();
    }
    return {};
}

void NetworkAccess::save(const Folders& folders, const QString& destinationId) const
{
    write(folders, destinationId,
          {{urlKey, place.text()},
           {credentialsKey, credentials},
           {uploadKey, qlonglong{uploadLimit}},
           {downloadKey, qlonglong{downloadLimit}}});
}

void NetworkAccess::removeSecrets(const Folders& folders, const QString& destinationId)
{
    if (const auto contents = readPropertyListFile(fileOf(folders, destinationId));
        contents && contents->contains(urlKey))
        write(folders, destinationId, {{urlKey, contents->value(urlKey)}});
}

QString NetworkAccess::knownHostsFile(const Folders& folders)
{
    return folders.configuration + "/known_hosts"_L1;
}

void NetworkAccess::parseCredentials(const QByteArray& lines)
{
    const QStringList names = credentialNames(place.kind);
    QVariantMap read;
    for (const QByteArray& line : lines.split('\n')) {
        const QString text = QString::fromUtf8(line.endsWith('\r') ? line.chopped(1) : line);
        if (text.trimmed().isEmpty() || text.startsWith(u'#'))
            continue;
        const QString name = text.section(u'=', 0, 0).trimmed();
        const QString value = text.section(u'=', 1);
        if (!text.contains(u'='))
            refuseCredentials(u"a line is no \"name=value\""_s); // it may be a secret
        if (!names.contains(name))
            refuseCredentials(u"\"%1\" is none of %2"_s.arg(name, names.join(u", "_s)));
        if (read.contains(name) || value.isEmpty())
            refuseCredentials(u"\"%1\" is given twice, or is empty"_s.arg(name));
        if (value.contains(QChar::ReplacementCharacter) || !propertylist::toXml(value))
            refuseCredentials(u"\"%1\" has characters that cannot be kept"_s.arg(name));
        read.insert(name, value);
    }
    if (const QString user = read.take(u"user"_s).toString(); !user.isEmpty()) {
        if (!place.url.userName().isEmpty() && place.url.userName() != user)
            refuseCredentials(u"they are of another user than the URL"_s);
        place.url.setUserName(user, QUrl::DecodedMode);
    }
    credentials = read;
}

void NetworkAccess::requireCredentials() const
{
    const auto isGiven = [this](const QString& name) { return !credential(name).isEmpty(); };
    if (place.kind == NetworkPlace::Kind::S3 && !(isGiven(u"access-key"_s) && isGiven(u"secret-key"_s)))
        refuseCredentials(u"\"access-key\" and \"secret-key\" are needed"_s);
    if (place.kind == NetworkPlace::Kind::Rest && isGiven(u"password"_s) == place.url.userName().isEmpty())
        refuseCredentials(u"a user needs a password, and a password a user"_s);
    for (const QString& name : {u"key-file"_s, u"ca-file"_s}) {
        const QFileInfo file(credential(name));
        if (isGiven(name) && !(file.isAbsolute() && file.isFile() && file.isReadable()))
            refuseCredentials(u"\"%1\" is no file that can be read, by its whole path"_s.arg(file.filePath()));
    }
}

QStringList NetworkAccess::environment() const
{
    QUrl url = place.url;
    switch (place.kind) {
    case NetworkPlace::Kind::Sftp:
        // To restic a path is relative to the folder after login unless it begins with a second slash.
        url.setPath(url.path().startsWith("/~/"_L1) ? url.path().mid(2) : u'/' + url.path());
        break;
    case NetworkPlace::Kind::Rest:
        url.setPassword(credential(u"password"_s), QUrl::DecodedMode);
        break;
    case NetworkPlace::Kind::S3:
        break;
    }
    QStringList environment{u"RESTIC_REPOSITORY="_s + prefixOf(place.kind) + url.toString(QUrl::FullyEncoded)};
    static constexpr std::array variables{std::pair{"access-key"_L1, "AWS_ACCESS_KEY_ID="_L1},
                                          std::pair{"secret-key"_L1, "AWS_SECRET_ACCESS_KEY="_L1},
                                          std::pair{"region"_L1, "AWS_DEFAULT_REGION="_L1}};
    for (const auto& [name, variable] : variables) {
        if (const QString value = credential(name); !value.isEmpty())
            environment.append(variable + value);
    }
    return environment;
}

QStringList NetworkAccess::options() const
{
    QStringList options;
    if (place.kind == NetworkPlace::Kind::Sftp) {
        QStringList words = sshCommand();
        std::ranges::transform(words, words.begin(), resticWord);
        options << u"-o"_s << u"sftp.command="_s + words.join(u' ');
    }
    if (const QString file = credential(u"ca-file"_s); !file.isEmpty())
        options << u"--cacert"_s << file;
    for (const auto& [name, limit] :
         {std::pair{u"--limit-upload"_s, uploadLimit}, std::pair{u"--limit-download"_s, downloadLimit}}) {
        if (limit > 0)
            options << name << QString::number(limit);
    }
    return options;
}

QStringList NetworkAccess::sshCommand() const
{
    // A connection that says nothing for a minute is over. One that other programs share would not obey these options.
    QStringList settings{
        u"BatchMode=yes"_s,          u"ConnectTimeout=8"_s,
        u"ServerAliveInterval=15"_s, u"ServerAliveCountMax=4"_s,
        u"ControlPath=none"_s,       u"StrictHostKeyChecking=yes"_s,
        u"HashKnownHosts=no"_s,      u"UserKnownHostsFile=%1 ~/.ssh/known_hosts"_s.arg(sshWord(knownHosts))};
    if (const QString file = credential(u"key-file"_s); !file.isEmpty())
        settings << u"IdentityFile="_s + sshWord(file) << u"IdentitiesOnly=yes"_s;
    if (const QString user = place.url.userName(QUrl::FullyDecoded); !user.isEmpty())
        settings << u"User="_s + sshWord(user);
    if (place.url.port() > 0)
        settings << u"Port=%1"_s.arg(place.url.port());
    QStringList command{u"ssh"_s};
    for (const QString& setting : std::as_const(settings))
        command << u"-o"_s << setting;
    return command << place.url.host() << u"-s"_s << u"sftp"_s;
}

} // namespace quillon
