#include "BackupProgress.h"

namespace quillon {

using namespace Qt::StringLiterals;

QVariantMap BackupProgress::toDictionary() const
{
    QVariantMap entry{{u"Percent"_s, fraction ? QVariant(*fraction) : QVariant(qlonglong{-1})},
                      {u"bytes"_s, bytes},
                      {u"totalBytes"_s, totalBytes},
                      {u"files"_s, files},
                      {u"totalFiles"_s, totalFiles}};
    if (secondsRemaining)
        entry.insert(u"TimeRemaining"_s, *secondsRemaining);
    return entry;
}

} // namespace quillon
