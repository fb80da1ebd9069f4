#include "LocalizedString.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

class StringTableTest : public testing::Test {
protected:
    void TearDown() override { installStringTable(u"en"_s); }
};

TEST_F(StringTableTest, WhatATableLacksIsEnglishAndWhatThatLacksIsTheKey)
{
    installStringTable(u"eo"_s);
    EXPECT_EQ(localizedString("todayTitle"), u"Hodiaŭ"_s);
    EXPECT_EQ(localizedString("tomorrowTitle"), u"Tomorrow"_s);
    EXPECT_EQ(localizedString("noSuchKeyTitle"), u"noSuchKeyTitle"_s);
}

TEST_F(StringTableTest, ANewLanguageLeavesNothingOfTheOneBeforeItNorOfQtsOwn)
{
    const auto shown = [] {
        return localizedString("todayTitle") + u'|' + QCoreApplication::translate("QPlatformTheme", "Cancel");
    };
    installStringTable(u"zh_CN"_s);
    EXPECT_EQ(shown(), u"今天|取消"_s);
    installStringTable(u"pt_BR"_s);
    EXPECT_EQ(shown(), u"Hoje|Cancelar"_s);
    installStringTable(u"eo"_s);
    EXPECT_EQ(shown(), u"Hodiaŭ|Cancel"_s);
}

} // namespace
} // namespace quillon
