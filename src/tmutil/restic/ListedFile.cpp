#include "ListedFile.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <sys/stat.h>
#include <tuple>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

ListedFile::Kind kindOf(const QString& type)
{
    if (type == "file"_L1)
        return ListedFile::Kind::File;
    if (type == "dir"_L1)
        return ListedFile::Kind::Folder;
    return type == "symlink"_L1 ? ListedFile::Kind::Link : ListedFile::Kind::Other;
}

/// restic writes modes as Go has them, where special rights have bits of their own: pkg.go.dev/io/fs#FileMode.
mode_t rightsOf(qint64 mode)
{
    static constexpr std::array specials{std::pair{23, S_ISUID}, std::pair{22, S_ISGID}, std::pair{20, S_ISVTX}};
    auto rights = static_cast<mode_t>(mode & (S_IRWXU | S_IRWXG | S_IRWXO));
    for (const auto& [bit, special] : specials) {
        if ((mode >> bit & 1) != 0)
            rights |= static_cast<mode_t>(special);
    }
    return rights;
}

bool isByte(QChar unit)
{
    return unit.unicode() >= 0xDC80 && unit.unicode() <= 0xDCFF;
}

} // namespace

std::optional<ListedFile> ListedFile::fromJson(const QByteArray& object)
{
    const QJsonObject node = QJsonDocument::fromJson(object).object();
    const QString path = node.value("path"_L1).toString();
    const QString type = node.value("type"_L1).toString();
    if (path.isEmpty() || type.isEmpty())
        return std::nullopt;
    return ListedFile{.path = path,
                      .kind = kindOf(type),
                      .size = node.value("size"_L1).toInteger(),
                      .modified = QDateTime::fromString(node.value("mtime"_L1).toString(), Qt::ISODateWithMs).toUTC(),
                      .mode = rightsOf(node.value("mode"_L1).toInteger()),
                      .owner = static_cast<uid_t>(node.value("uid"_L1).toInteger()),
                      .group = static_cast<gid_t>(node.value("gid"_L1).toInteger()),
                      .target = node.value("linktarget"_L1).toString()};
}

QString toldPath(const QString& path)
{
    QString told = path;
    for (qsizetype at = 0; at < told.size(); ++at) {
        if (isByte(told[at]) && (at == 0 || !told[at - 1].isHighSurrogate()))
            told[at] = QChar::ReplacementCharacter;
    }
    return told;
}

bool isTold(const QString& path)
{
    return !toldPath(path).contains(QChar::ReplacementCharacter);
}

NamePattern::NamePattern(const QString& pattern)
{
    const QString whole = pattern.contains(u'*') || pattern.contains(u'?') ? pattern : u'*' + pattern + u'*';
    QString expression;
    for (const QChar character : whole) {
        const bool isWildcard = character == u'*' || character == u'?';
        expression += character == u'*' ? u".*"_s
                      : isWildcard      ? u"."_s
                                        : QRegularExpression::escape(QString(character));
        // Only of ASCII does every version of restic know the letters that differ in case alone.
        const bool isPlain = character.unicode() < 0x80 && character != u'\\' && character != u'[';
        if (const QChar found = isPlain ? character : u'*'; found != u'*' || !forRestic_.endsWith(found))
            forRestic_ += found;
    }
    expression_ =
        QRegularExpression(QRegularExpression::anchoredPattern(expression),
                           QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption |
                               QRegularExpression::UseUnicodePropertiesOption);
}

std::vector<Version> distinctVersions(std::vector<Version> all)
{
    std::ranges::stable_sort(all, std::greater(), &Version::date);
    const auto isLike = [](const Version& a, const Version& b) {
        const auto content = [](const ListedFile& file) {
            return std::tuple(file.kind, file.size, file.modified, file.target);
        };
        return content(a.file) == content(b.file);
    };
    // Of libstdc++ 12 clang 14 cannot compile std::ranges::unique().
    all.erase(std::unique(all.begin(), all.end(), isLike), all.end());
    return all;
}

FindOutput::FindOutput(FileHandler onFile, BackupHandler onBackup)
    : onFile_(std::move(onFile))
    , onBackup_(std::move(onBackup))
{
}

void FindOutput::read(const QByteArray& piece)
{
    for (const char byte : piece) {
        if (braces_ > 1)
            readInside(byte);
        else
            readOutside(byte);
    }
}

/// Around the objects of files. All that is said of a backup as a whole stands before and behind its list of files.
void FindOutput::readOutside(char byte)
{
    const bool isOfBackup = braces_ == 1 && brackets_ == 1;
    switch (byte) {
    case '{':
        ++braces_;
        (braces_ == 1 ? backup_ : file_) = "{";
        return;
    case '}':
        braces_ = 0;
        onBackup_(QJsonDocument::fromJson(backup_ + '}').object().value("snapshot"_L1).toString());
        return;
    case '[':
        ++brackets_;
        break;
    case ']':
        --brackets_;
        break;
    default:
        if (!isOfBackup && std::strchr(", \n", byte) == nullptr)
            isWhole_ = false;
        if (!isOfBackup)
            return;
    }
    if (braces_ == 1)
        backup_ += byte;
}

void FindOutput::readInside(char byte)
{
    file_ += byte;
    if (isText_) {
        isText_ = isEscaped_ || byte != '"';
        isEscaped_ = !isEscaped_ && byte == '\\';
        return;
    }
    isText_ = byte == '"';
    if (byte == '{')
        ++braces_;
    else if (byte == '}' && --braces_ == 1) {
        if (const auto file = ListedFile::fromJson(file_))
            onFile_(*file);
    }
}

} // namespace quillon
