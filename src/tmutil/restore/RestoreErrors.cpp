#include "RestoreErrors.h"

#include "Paths.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView start{"ignoring error for "};
constexpr QLatin1StringView separator{": "};

bool isOfAttributes(const QString& words)
{
    // The calls that give a file its owner, rights, times and attributes back (restic, internal/restic/node.go). Its
    // contents are there by then.
    static const QRegularExpression calls(u"^(?:lchown|chmod|UtimesNano|xattr\\.\\w+) "_s);
    return calls.match(words).hasMatch();
}

bool isOfTarget(const QString& words)
{
    constexpr std::array ends{"no space left on device"_L1, "disk quota exceeded"_L1, "read-only file system"_L1};
    return std::ranges::any_of(ends, [&words](QLatin1StringView end) { return words.endsWith(end); });
}

} // namespace

RestoreErrors::RestoreErrors(std::function<bool(const QString& path)> isThere)
    : isThere_(std::move(isThere))
{
}

void RestoreErrors::read(const QByteArray& text)
{
    QByteArray message;
    const auto endMessage = [&] {
        if (!message.isEmpty())
            readMessage(decodePath(message.sliced(start.size(), message.size() - start.size() - 1)));
        message.clear();
    };
    // A line that begins nothing is the rest of a name.
    for (const QByteArray& line : text.split('\n')) {
        const bool begins = line.startsWith(QByteArray(start.data(), start.size()) + '/');
        if (begins || line.startsWith("Fatal: ") || line.isEmpty())
            endMessage();
        if (begins || !message.isEmpty())
            message += line + '\n';
    }
    endMessage();
}

void RestoreErrors::readMessage(const QString& text)
{
    qsizetype end = text.indexOf(separator);
    for (qsizetype at = text.lastIndexOf(separator); at > 0; at = text.lastIndexOf(separator, at - 1)) {
        if (isThere_(text.left(at))) {
            end = at;
            break;
        }
    }
    const QString path = end < 0 ? text : text.left(end);
    const QString words = end < 0 ? QString() : text.mid(end + separator.size());
    if (isOfAttributes(words))
        lackAttributes_ = true;
    else if (!isOfTarget(words))
        damaged_.append(path);
    else if (targetProblem_.isEmpty())
        targetProblem_ = words;
}

QStringList RestoreErrors::damaged() const
{
    QStringList once = damaged_;
    once.removeDuplicates();
    return once;
}

} // namespace quillon
