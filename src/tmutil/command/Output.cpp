#include "Output.h"

#include "Failure.h"
#include "ListedFile.h"
#include "Paths.h"
#include "PropertyList.h"
#include "ShownText.h"

#include <QJsonDocument>

#include <cstdio>
#include <map>
#include <sys/socket.h>

namespace quillon {

using namespace Qt::StringLiterals;

void CallerChannel::tellReady() const
{
    send("ready\n");
}

void CallerChannel::tellEnd(ExitStatus status, const QString& message) const
{
    send(QByteArray::number(static_cast<int>(status)) + ' ' + message.simplified().toUtf8() + '\n');
}

void CallerChannel::send(const QByteArray& line)
{
    // Lines this short go out whole. That nobody listens any more is no concern of the backup's.
    [[maybe_unused]] const auto sent =
        ::send(descriptor, line.constData(), static_cast<size_t>(line.size()), MSG_NOSIGNAL);
}

void print(const QByteArray& text)
{
    const auto size = static_cast<size_t>(text.size());
    if (std::fwrite(text.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0)
        throw Failure(ExitStatus::CannotWrite, u"Standard output cannot be written to."_s);
}

void print(const QStringList& lines)
{
    for (const QString& line : lines)
        print(line.toUtf8() + '\n');
}

void printForPeople(const QStringList& lines)
{
    for (const QString& line : lines)
        print(QStringList(shownText(line, line.size())));
}

void printXml(const QVariant& value)
{
    const auto list = propertylist::toXml(value);
    if (!list)
        throw Failure(ExitStatus::Configuration, u"A path cannot be written as XML."_s);
    print(*list);
}

void printJson(const QJsonObject& object)
{
    print(QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n');
}

QJsonObject jsonOf(const ListedFile& file)
{
    static const std::map<ListedFile::Kind, QString> types{{ListedFile::Kind::File, u"file"_s},
                                                           {ListedFile::Kind::Folder, u"folder"_s},
                                                           {ListedFile::Kind::Link, u"link"_s},
                                                           {ListedFile::Kind::Other, u"other"_s}};
    QJsonObject object{{u"path"_s, file.path},
                       {u"type"_s, types.at(file.kind)},
                       {u"modified"_s, file.modified.toString(Qt::ISODateWithMs)},
                       {u"mode"_s, static_cast<qint64>(file.mode)}};
    if (file.kind == ListedFile::Kind::File)
        object.insert(u"size"_s, file.size);
    if (file.kind == ListedFile::Kind::Link)
        object.insert(u"target"_s, file.target);
    return object;
}

QByteArray lineOf(const ListedFile& file, const QString& name)
{
    constexpr int widthOfSize = 12;
    const bool isFile = file.kind == ListedFile::Kind::File;
    QString line = (isFile ? QString::number(file.size) : QString()).rightJustified(widthOfSize) + "  "_L1 +
                   file.modified.toLocalTime().toString(u"yyyy-MM-dd HH:mm:ss"_s) + "  "_L1 + shownPath(name);
    if (file.kind == ListedFile::Kind::Folder)
        line += u'/';
    else if (file.kind == ListedFile::Kind::Link)
        line += " -> "_L1 + shownPath(file.target);
    return line.toUtf8() + '\n';
}

void printError(const QString& sentence)
{
    std::fprintf(stderr, "tmutil: %s\n", shownText(sentence, sentence.size()).toUtf8().constData());
}

} // namespace quillon
