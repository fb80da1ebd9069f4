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
constexpr auto tablePrefix = "quillon_"_L1;
constexpr auto english = "en"_L1;

QStringList tableLanguages()
{
    QStringList tags;
    for (const auto& table : QDir(tableFolder).entryInfoList({tablePrefix + "*.qm"_L1}))
        tags.append(table.completeBaseName().mid(tablePrefix.size()));
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

QString userLanguage()
{
    // QTranslator::load() would take the second of a user's languages when its name fits exactly and the first's does
    // not: German for "en_GB:de".
    const QStringList tables = tableLanguages();
    for (const auto& preferred : preferredLanguages()) {
        const QLocale wanted(preferred);
        for (const auto& tag : tables) {
            const QLocale offered(tag);
            if (offered.language() == wanted.language() && offered.script() == wanted.script())
                return tag;
        }
    }
    return english;
}

void installStringTable(const QString& language)
{
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>(Qt::FindDirectChildrenOnly));
    // The one installed last is asked first.
    install(tablePrefix + english, tableFolder);
    if (language != english)
        install(tablePrefix + language, tableFolder);
    install("qtbase_"_L1 + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

} // namespace quillon
