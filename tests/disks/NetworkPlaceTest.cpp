#include "NetworkPlace.h"

#include "LocalizedString.h"
#include "PropertyList.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
using enum NetworkPlace::Kind;
using enum NetworkPlace::Field;

TEST(NetworkPlace, IsWhatTmutilTakesAndReadsBack)
{
    const struct {
        NetworkPlace place;
        QString url;
        QByteArray credentials;
    } rows[] = {
        {{Sftp, true, {{Server, u" nas "_s}, {Path, u"/srv/a b#1"_s}}}, u"sftp://nas/srv/a%20b%231"_s, ""},
        {{Sftp,
          true,
          {{Server, u"fe80::1"_s}, {Port, u"2222"_s}, {Path, u"~/b"_s}, {User, u"a@b"_s}, {KeyFile, u"/k"_s}}},
         u"sftp://a%40b@[fe80::1]:2222/~/b"_s,
         "key-file=/k\n"},
        {{Rest, false, {{Server, u"nas"_s}, {Certificate, u"/c"_s}, {KeyFile, u"/k"_s}}}, u"rest:http://nas"_s, ""},
        {{Rest,
          true,
          {{Server, u"nas"_s}, {Path, u"anna"_s}, {User, u"anna"_s}, {Password, u" p=% "_s}, {Certificate, u"/c"_s}}},
         u"rest:https://anna@nas/anna"_s,
         "password= p=% \nca-file=/c\n"},
        {{S3,
          true,
          {{Server, u"s3"_s},
           {Path, u"b/deep"_s},
           {User, u"anna"_s},
           {AccessKey, u"A"_s},
           {SecretKey, u"S\n"_s},
           {Region, u"eu"_s}}},
         u"s3:https://s3/b/deep"_s,
         "access-key=A\nsecret-key=S\nregion=eu\n"},
    };
    for (const auto& [place, url, credentials] : rows) {
        EXPECT_EQ(place.url(), url);
        EXPECT_EQ(place.credentials(), credentials) << url.toStdString();
        EXPECT_EQ(place.lack(), QString()) << url.toStdString();
        ASSERT_TRUE(NetworkPlace::fromUrl(url));
        EXPECT_EQ(NetworkPlace::fromUrl(url)->url(), url);
    }
    for (const QString& url : {u"nas"_s, u"/srv"_s, u"https://nas/x"_s, u"s3:sftp://nas/x"_s, u"rest:https:///x"_s})
        EXPECT_FALSE(NetworkPlace::fromUrl(url)) << url.toStdString();
}

TEST(NetworkPlace, SaysWhatIsLackingOrMakesNoSense)
{
    const auto needed = [](const QStringList& keys) {
        QStringList titles;
        for (const QString& key : keys)
            titles.append(localizedString(key.toLatin1().constData()));
        return localizedString("disksPlaceNeeded").arg(titles.join(u", "_s));
    };
    const struct {
        NetworkPlace place;
        QString lack;
    } rows[] = {
        {{Sftp}, needed({u"disksPlaceServer"_s, u"disksPlaceFolder"_s})},
        {{Rest}, needed({u"disksPlaceServer"_s})},
        {{S3, true, {{Server, u"s"_s}, {Path, u"/"_s}, {AccessKey, u" "_s}}},
         needed({u"disksPlaceBucket"_s, u"disksPlaceAccessKey"_s, u"disksPlaceSecretKey"_s})},
        {{Sftp, true, {{Server, u"sftp://nas"_s}}}, localizedString("disksPlaceBadServer")},
        {{Sftp, true, {{Server, u"-oProxyCommand"_s}}}, localizedString("disksPlaceBadServer")},
        {{Sftp, true, {{Port, u"0"_s}}}, localizedString("disksPlaceBadPort")},
        {{Sftp, true, {{Port, u"65536"_s}}}, localizedString("disksPlaceBadPort")},
        {{Sftp, true, {{Path, u"backups"_s}}}, localizedString("disksPlaceBadFolder")},
        {{Sftp, true, {{KeyFile, u"id"_s}}}, localizedString("disksPlaceBadFile")},
        {{Rest, true, {{Server, u"s"_s}, {User, u"u"_s}}}, localizedString("disksPlaceUserAndPassword")},
        {{Rest, true, {{Server, u"s"_s}, {Password, u"p"_s}}}, localizedString("disksPlaceUserAndPassword")},
        {{Rest, false, {{Server, u"s"_s}, {Certificate, u"c"_s}}}, QString()},
    };
    for (const auto& [place, lack] : rows)
        EXPECT_EQ(place.lack(), lack);
}

TEST(PlaceTrial, EveryAnswerHasWordsAndANextStep)
{
    using Step = PlaceAdvice::Step;
    const auto failure = [](const QString& cause) {
        const QVariantMap told{{u"Cause"_s, cause},
                               {u"Description"_s, u"Why."_s},
                               {u"HostKey"_s, QVariantMap{{u"Fingerprint"_s, u"SHA256:x"_s}}}};
        return TmutilAnswer{false, propertylist::toXml(told).value(), u"tmutil's line"_s, 1};
    };
    const auto success = [](const QVariantMap& told) {
        return TmutilAnswer{true, propertylist::toXml(told).value(), {}, 0};
    };
    const auto withDetail = [](const char* key) {
        return localizedString("reasonWithDetail").arg(localizedString(key), u"Why."_s);
    };
    const QString reason = withDetail("reasonLocked");
    const QString untrusted = withDetail("reasonUntrusted");
    // NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding): fields stand as rows are read
    const struct {
        TmutilAnswer answer;
        const char* key;
        Step step = Step::Try;
        QString trusted{};
        QString about = u"nas"_s;
        NetworkPlace::Kind kind = Sftp;
    } rows[] = {
        {success({{u"Contents"_s, u"Empty"_s}}), "disksPlaceEmpty", Step::Keep},
        {success({{u"Contents"_s, u"Backups"_s}}), "disksPlaceBackups", Step::Keep},
        {success({{u"Contents"_s, u"Else"_s}}),
         "disksPlaceFailed",
         Step::Try,
         {},
         localizedString("disksToolUnreadable")},
        {failure(u"WrongKey"_s), "disksPlaceWrongKey", Step::TakeUp},
        {failure(u"UnknownHostKey"_s), "disksPlaceUnknownKey", Step::Trust},
        {failure(u"UnknownHostKey"_s), "disksPlaceUnknownKey", Step::Trust, u"SHA256:other"_s},
        {failure(u"ChangedHostKey"_s), "disksPlaceChangedKey", Step::Trust},
        {failure(u"UnknownHostKey"_s), "disksPlaceFailed", Step::Try, u"SHA256:x"_s, untrusted},
        {failure(u"BadCertificate"_s), "disksPlaceBadCertificate"},
        {failure(u"AccessDenied"_s), "disksPlaceAccessDeniedKey"},
        {failure(u"AccessDenied"_s), "disksPlaceAccessDenied", Step::Try, {}, u"nas"_s, S3},
        {failure(u"NoPermission"_s), "disksPlaceNoPermission"},
        {failure(u"DestinationMissing"_s), "disksPlaceNoAnswer"},
        {failure(u"NoSpace"_s), "disksPlaceNoSpace"},
        {failure(u"Locked"_s), "disksPlaceFailed", Step::Try, {}, reason},
        {failure(u"SomethingNew"_s), "disksPlaceFailed", Step::Try, {}, u"Why."_s},
        {{false, {}, u"tmutil's line"_s, 9}, "disksPlaceFailed", Step::Try, {}, u"tmutil's line"_s},
    };
    for (const auto& row : rows) {
        const NetworkPlace place{row.kind, true, {{Server, u"nas"_s}}};
        const auto advice = PlaceAdvice::on(PlaceTrial::read(row.answer), place, row.trusted);
        const QString text = localizedString(row.key);
        EXPECT_EQ(advice.text, text.contains(u"%1"_s) ? text.arg(row.about) : text);
        EXPECT_EQ(advice.step, row.step) << row.key;
    }
}

} // namespace quillon
