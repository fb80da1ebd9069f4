#include "LocalizedString.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QMap>
#include <QTranslator>

#include <memory>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr auto tableFolder = ":/strings"_L1;
constexpr auto english = "en"_L1;

/// Tables by their languages; each is named NAME_TAG.qm.
QMap<QString, QString> tablesByLanguage()
{
    QMap<QString, QString> tables;
    const QStringList names = QDir(tableFolder).entryList();
    for (const QString& name : names)
        tables.insert(name.chopped(3).section(u'_', 1), name);
    return tables;
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
    const QStringList tags = tablesByLanguage().keys();
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
        install(tablesByLanguage().value(tag), tableFolder);
    install("qtbase_"_L1 + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

} // namespace quillon
