#include "LocalizedString.h"

#include <QCoreApplication>

#include <cstdio>

/// Prints, in the language of its environment: the language, one text of the string table, one of Qt's own.
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    quillon::installStringTable();
    std::printf("%s|%s|%s", qUtf8Printable(quillon::userLanguage()),
                qUtf8Printable(quillon::localizedString("todayTitle")),
                qUtf8Printable(QCoreApplication::translate("QPlatformTheme", "Cancel")));
    return 0;
}
