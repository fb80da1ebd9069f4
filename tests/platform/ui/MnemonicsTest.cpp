#include "Accessibility.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(Mnemonics, EveryTitleGetsALetterOfItsOwnFromTheBeginningOfAWordIfItCanOrElseBehindIt)
{
    EXPECT_EQ(titlesWithMnemonics({u"Retry after a miss"_s, u"Retry after a fault"_s, u"Retry"_s, u"Rare"_s}),
              (QStringList{u"&Retry after a miss"_s, u"Retry &after a fault"_s, u"R&etry"_s, u"Rare(&B)"_s}));
    EXPECT_EQ(titlesWithMnemonics({u"追加"_s, u"Ärger"_s, u"& more"_s}),
              (QStringList{u"追加(&A)"_s, u"Ä&rger"_s, u"&& &more"_s}));
}

} // namespace quillon
