#include "RecoveryKey.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(RecoveryKey, IsReadAsPeopleWriteItAndRefusedWithAMistake)
{
    const QString key = makeRecoveryKey();
    EXPECT_TRUE(QRegularExpression(u"^([0-9A-HJKMNP-TV-Z]{5}-){5}[0-9A-HJKMNP-TV-Z]{5}$"_s).match(key).hasMatch())
        << key.toStdString();
    EXPECT_NE(key, makeRecoveryKey());
    QString typed = QString(key).replace(u'-', u' ').toLower();
    EXPECT_EQ(recoveryKeyFrom(u" "_s + typed + u'\n'), key);
    EXPECT_EQ(recoveryKeyFrom(typed.replace(u'0', u'o').replace(u'1', u'l')), key);

    for (qsizetype at = 0; at + 1 < key.size(); ++at) {
        if (key[at] == u'-')
            continue;
        QString mistaken = key;
        mistaken[at] = key[at] == u'7' ? u'8' : u'7';
        EXPECT_EQ(recoveryKeyFrom(mistaken), QString()) << mistaken.toStdString();
        QString exchanged = key;
        std::swap(exchanged[at], exchanged[at + 1]);
        if (key[at + 1] == u'-' || exchanged == key)
            continue;
        EXPECT_EQ(recoveryKeyFrom(exchanged), QString()) << exchanged.toStdString();
    }
    for (const QString& other : {QString(), key.left(29), key + u'7', u"a passphrase of restic's"_s})
        EXPECT_EQ(recoveryKeyFrom(other), QString()) << other.toStdString();
}

} // namespace quillon
