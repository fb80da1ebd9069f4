#include "Output.h"

#include "Failure.h"
#include "PropertyList.h"
#include "ShownText.h"

#include <cstdio>
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

void printError(const QString& sentence)
{
    std::fprintf(stderr, "tmutil: %s\n", shownText(sentence, sentence.size()).toUtf8().constData());
}

} // namespace quillon
