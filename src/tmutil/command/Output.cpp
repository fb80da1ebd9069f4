#include "Output.h"

#include "Failure.h"
#include "PropertyList.h"
#include "ShownText.h"

#include <cstdio>

namespace quillon {

using namespace Qt::StringLiterals;

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
