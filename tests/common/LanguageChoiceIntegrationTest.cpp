#include <QProcess>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

/// Qt reads the language variables once in a process, so each environment gets a process of its own.
TEST(LanguageChoice, IsTheFirstOfTheUsersLanguagesThatHasATableInItsScriptOrElseEnglish)
{
    const struct {
        QStringList variables;
        const char* shown; ///< language, a text of ours, one of Qt's
    } rows[] = {
        {{u"LANGUAGE=de"_s, u"LC_ALL=C"_s}, "en|Today|Cancel"},
        {{u"LANG=pt_PT.UTF-8"_s}, "pt_BR|Hoje|Cancelar"},
        {{u"LANG=zh_TW"_s}, "en|Today|Cancel"},
        {{u"LANG=fi_FI"_s, u"LANGUAGE=fi:fr"_s}, "fr|Aujourd’hui|Annuler"},
        {{u"LANG=en_GB"_s, u"LANGUAGE=en_GB:de"_s}, "en|Today|Cancel"},
    };
    for (const auto& [variables, shown] : rows) {
        QProcess probe;
        probe.setEnvironment(variables);
        probe.start(QStringLiteral(LANGUAGE_PROBE), QStringList());
        ASSERT_TRUE(probe.waitForFinished(-1));
        EXPECT_EQ(probe.readAllStandardOutput(), shown) << variables.join(u' ').toStdString();
    }
}

} // namespace quillon
