#include <QProcess>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr auto languageProbe = LANGUAGE_PROBE;

/// Qt reads the language variables once in a process, so each environment gets a process of its own.
std::string shownIn(const QStringList& variables)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const auto& name : environment.keys()) {
        if (name.startsWith("LC_"_L1) || name.startsWith("LANG"_L1))
            environment.remove(name);
    }
    for (const auto& variable : variables)
        environment.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    QProcess probe;
    probe.setProcessEnvironment(environment);
    probe.start(QString::fromUtf8(languageProbe), QStringList());
    probe.waitForFinished(-1);
    return probe.readAllStandardOutput().toStdString();
}

} // namespace

TEST(LanguageChoice, FollowsTheVariablesOfTheSystemInTheirOrder)
{
    constexpr auto english = "en|Today|Cancel";
    EXPECT_EQ(shownIn({u"LANG=de_DE.UTF-8"_s}), "de|Heute|Abbrechen");
    EXPECT_EQ(shownIn({u"LANG=de_DE"_s, u"LC_MESSAGES=fr_FR"_s}), "fr|Aujourd’hui|Annuler");
    EXPECT_EQ(shownIn({u"LANG=de_DE"_s, u"LC_MESSAGES=fr_FR"_s, u"LC_ALL=it_IT"_s}), "it|Oggi|Annulla");
    EXPECT_EQ(shownIn({u"LANG=en_US"_s, u"LANGUAGE=ja:de"_s}), "ja|今日|キャンセル");
    EXPECT_EQ(shownIn({u"LANG=de_DE"_s, u"LC_ALL=C"_s}), english);
    EXPECT_EQ(shownIn({u"LANGUAGE=de"_s, u"LC_ALL=C"_s}), english);
    EXPECT_EQ(shownIn({u"LANG=en_US"_s, u"LC_TIME=de_DE"_s, u"LC_NUMERIC=de_DE"_s}), english);
    EXPECT_EQ(shownIn({}), english);
}

TEST(LanguageChoice, TakesTheTableOfTheSameLanguageAndScriptOrElseEnglish)
{
    EXPECT_EQ(shownIn({u"LANG=de_AT"_s}), "de|Heute|Abbrechen");
    EXPECT_EQ(shownIn({u"LANG=es_MX.UTF-8"_s}), "es|Hoy|Cancelar");
    EXPECT_EQ(shownIn({u"LANG=nl_BE@euro"_s}), "nl|Vandaag|Annuleren");
    EXPECT_EQ(shownIn({u"LANGUAGE=pt"_s, u"LANG=en_US"_s}), "pt_BR|Hoje|Cancelar");
    EXPECT_EQ(shownIn({u"LANG=pt_PT"_s}), "pt_BR|Hoje|Cancelar");
    EXPECT_EQ(shownIn({u"LANGUAGE=zh-Hans-CN"_s, u"LANG=en_US"_s}), "zh_CN|今天|取消");
    EXPECT_EQ(shownIn({u"LANG=zh_TW"_s}), "en|Today|Cancel");
    EXPECT_EQ(shownIn({u"LANG=fi_FI"_s}), "en|Today|Cancel");
    EXPECT_EQ(shownIn({u"LANG=fi_FI"_s, u"LANGUAGE=fi:fr"_s}), "fr|Aujourd’hui|Annuler");
    EXPECT_EQ(shownIn({u"LANG=en_GB"_s, u"LANGUAGE=en_GB:de"_s}), "en|Today|Cancel");
}

} // namespace quillon
