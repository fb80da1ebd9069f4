#include "LocalizedString.h"

#include <QCoreApplication>
#include <QTranslator>

namespace quillon {

QString localizedString(const char* key)
{
    return qtTrId(key);
}

void installStringTable()
{
    auto* table = new QTranslator(QCoreApplication::instance());
    if (table->load(QStringLiteral(":/strings/quillon_en.qm")))
        QCoreApplication::installTranslator(table);
}

} // namespace quillon
