#include "RestoreErrors.h"

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

void RestoreErrors::readLine(const QString& line)
{
    if (!line.startsWith(start + u'/'))
        return;
    const QString text = line.mid(start.size()).trimmed();
    qsizetype end = text.indexOf(separator);
    for (qsizetype at = text.lastIndexOf(separator); at > 0; at = text.lastIndexOf(separator, at - 1)) {
        if (isThere_(text.left(at))) {
            end = at;
            break;
        }
    }
    if (end < 0)
        return;
    const QString path = text.left(end);
    const QString words = text.mid(end + separator.size());
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
