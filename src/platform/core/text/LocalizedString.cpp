#include "LocalizedString.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr auto tableFolder = ":/strings"_L1;
constexpr auto english = "en"_L1;

/// Names of tables, each NAME_TAG.qm.
QStringList tables(const QString& tag)
{
    return QDir(tableFolder).entryList({"*_"_L1 + tag + ".qm"_L1});
}

QStringList tableLanguages()
{
    QStringList tags;
    for (const QString& table : tables(u"*"_s))
        tags.append(table.chopped(3).section(u'_', 1));
    return tags;
}

QStringList preferredLanguages()
{
    const QLocale system = QLocale::system();
    // In the C locale LANGUAGE counts for nothing (GNU gettext manual, "Specifying a Priority List of Languages"),
    // yet Qt lists it.
    return system.language() == QLocale::C ? QStringList() : system.uiLanguages();
}

void install(const QString& name, const QString& folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (translator->load(name, folder) && QCoreApplication::installTranslator(translator.get()))
        translator.release()->setParent(QCoreApplication::instance());
}

} // namespace

QString localizedString(const char* key)
{
    return qtTrId(key);
}

QString tableLanguage(const QStringList& preferred)
{
    // QTranslator::load() would take the second of a user's languages when its name fits exactly and the first's does
    // not: German for "en_GB:de".
    const QStringList tags = tableLanguages();
    for (const auto& language : preferred) {
        const QLocale wanted(language);
        for (const auto& tag : tags) {
            const QLocale offered(tag);
            if (offered.language() == wanted.language() && offered.script() == wanted.script())
                return tag;
        }
    }
    return english;
}

QString userLanguage()
{
    return tableLanguage(preferredLanguages());
}

void installStringTable(const QString& language)
{
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>(Qt::FindDirectChildrenOnly));
    // The one installed last is asked first.
    for (const QString& tag : {QString(english), language})
        install(tables(tag).value(0), tableFolder);
    install("qtbase_"_L1 + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

} // namespace quillon
