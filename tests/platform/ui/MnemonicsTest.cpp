#include "Accessibility.h"

#include <QSet>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(Mnemonics, EveryTitleGetsALetterOfItsOwnFromTheBeginningOfAWordIfItCan)
{
    EXPECT_EQ(titlesWithMnemonics({u"Retry after a miss"_s, u"Retry after a fault"_s, u"Retry"_s, u"Rare"_s}),
              (QStringList{u"&Retry after a miss"_s, u"Retry &after a fault"_s, u"R&etry"_s, u"Rare(&B)"_s}));
}

TEST(Mnemonics, ATitleWithoutLatinLettersGetsOneBehindIt)
{
    EXPECT_EQ(titlesWithMnemonics({u"追加"_s, u"Ärger"_s, u"削除"_s}),
              (QStringList{u"追加(&A)"_s, u"Ä&rger"_s, u"削除(&B)"_s}));
}

TEST(Mnemonics, AmpersandsOfATitleStayAmpersands)
{
    EXPECT_EQ(titlesWithMnemonics({u"& more"_s}), QStringList{u"&& &more"_s});
    QStringList many;
    for (int i = 0; i < 27; ++i)
        many.append(u"&"_s);
    EXPECT_EQ(titlesWithMnemonics(many).last(), u"&&"_s) << "the alphabet has ended";
}

} // namespace quillon
