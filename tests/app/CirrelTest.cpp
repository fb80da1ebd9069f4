#include "Cirrel.h"

#include "FakePoster.h"
#include "FileUserDefaults.h"
#include "MemoryDefaults.h"
#include "VirtualRunLoop.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <memory>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QByteArray config(const QByteArray& type, const QByteArray& value)
{
    return R"({"result": {"type": ")" + type + R"(", "value": )" + value + "}}";
}

class CirrelTest : public testing::Test {
protected:
    /// As after a start whose question for the server's address has been settled.
    CirrelTest()
    {
        Cirrel::setAppId(u"id"_s);
        Cirrel::setApiKey(u"key"_s);
        Cirrel::setServer(u"https://example.com/api"_s);
    }

    void get(const QString& parameter, double interval = 0, const QVariant& fallback = u"default"_s)
    {
        Cirrel::getConfigForParameter(parameter, interval, fallback,
                                      [this](const QVariant& result, const std::optional<Error>& failure) {
                                          ++ends;
                                          value = result;
                                          error = failure;
                                      });
    }

    QVariant answered(const QByteArray& answer)
    {
        get(u"P"_s);
        network->answer(answer);
        EXPECT_FALSE(error) << error->message.toStdString();
        return value;
    }

    void track(const QString& name)
    {
        Cirrel::trackEventInBackground(name, [this](bool result, const std::optional<Error>& failure) {
            ++ends;
            value = result;
            error = failure;
        });
    }

    void expectError(int code, const QString& message)
    {
        ASSERT_TRUE(error);
        EXPECT_EQ(error->domain, u"CirrelErrorDomain"_s);
        EXPECT_EQ(error->code, code);
        EXPECT_EQ(error->message, message);
        error.reset();
    }

    VirtualRunLoop runLoop{Date{24h}};
    MemoryDefaults defaults;
    FakePoster* network = new FakePoster; // the services' own
    std::unique_ptr<Cirrel::Services> services =
        std::make_unique<Cirrel::Services>(runLoop, defaults, std::unique_ptr<FormPoster>(network));
    int ends = 0;
    QVariant value;
    std::optional<Error> error;
};

} // namespace

TEST_F(CirrelTest, ARequestNamesTheFunctionTheParameterAndTheProgram)
{
    get(u"LatestAppVersion"_s);
    EXPECT_EQ(network->last.address, QUrl(u"https://example.com/api/v1/Config/"_s));
    EXPECT_EQ(network->last.fields, (QMap<QString, QString>{{u"parameter"_s, u"LatestAppVersion"_s}}));
    EXPECT_EQ(network->last.headers,
              (QMap<QString, QString>{{u"X-Application-Id"_s, u"id"_s}, {u"X-Api-Key"_s, u"key"_s}}));
    EXPECT_EQ(network->last.timeout, 5s);
    track(u"start"_s);
    EXPECT_EQ(network->last.address, QUrl(u"https://example.com/api/v1/Event/"_s));
    EXPECT_EQ(network->last.fields, (QMap<QString, QString>{{u"name"_s, u"start"_s}}));
    EXPECT_EQ(Cirrel::domain(), u"example.com"_s);
}

TEST_F(CirrelTest, WithoutItsValuesNothingIsEverAsked)
{
    const QString message =
        u"Cirrel is not initialised. Call '+initWithAppId:apiKey:andServer:' to resolve this issue."_s;
    Cirrel::setServer({});
    get(u"P"_s);
    expectError(-900, message);
    EXPECT_FALSE(value.isValid());
    Cirrel::initWithAppId({}, u"key"_s, u"https://example.com"_s);
    track({});
    expectError(-900, message);
    Cirrel::initWithAppId(u"id"_s, {}, u"https://example.com"_s);
    Cirrel::callFunctionInBackground({}, {}, [this](const auto&, const auto& failure) { error = failure; });
    expectError(-900, message);
    EXPECT_EQ(network->posted, 0);
    services.reset();
    Cirrel::initWithAppId(u"id"_s, u"key"_s, u"https://example.com"_s);
    get(u"P"_s);
    expectError(-900, message);
    EXPECT_EQ(Cirrel::domain(), QString());
}

TEST_F(CirrelTest, WrongCallsAreToldApartAndSendNothing)
{
    get({});
    expectError(-100, u"Missing parameter 'parameter'."_s);
    track({});
    expectError(-100, u"Missing parameter 'name'."_s);
    Cirrel::callFunctionInBackground({}, {}, [this](const auto&, const auto& failure) { error = failure; });
    expectError(-100, u"Missing parameter 'function'."_s);
    get({}, 0, {});
    expectError(-100, u"Missing parameter 'parameter'."_s);
    get(u"P"_s, 0, {});
    expectError(-101, u"Missing default value."_s);
    get(u"P"_s, 0, QVariantList{1});
    expectError(-102, u"Incorrect default value, should be NSString or NSNumber."_s);
    Cirrel::getConfigForParameter({}, 0, {}, {});
    EXPECT_EQ(network->posted, 0);
    get(u"P"_s, 0, 1.5);
    Cirrel::getConfigForParameter(u"P"_s, 0, 0LL, {});
    Cirrel::trackEventInBackground(u"E"_s, {});
    EXPECT_EQ(network->posted, 3);
    network->fail();
    EXPECT_EQ(value, QVariant(1.5));
    network->answer("rubbish"); // for nobody
    network->answer("rubbish");
}

TEST_F(CirrelTest, ValuesAreConvertedByTheTypeThatTheServiceNames)
{
    EXPECT_EQ(answered(config("String", R"("2.10")")), QVariant(u"2.10"_s));
    EXPECT_EQ(answered(config("String", "5")), QVariant(5LL));
    for (const auto& yes : {"true", "1", "0.5", R"("YES")", R"("t")", R"("+007")"})
        EXPECT_EQ(answered(config("Boolean", yes)), QVariant(true)) << yes;
    for (const auto& no : {"false", "0", R"("NO")", R"("0")", R"("")"})
        EXPECT_EQ(answered(config("Boolean", no)), QVariant(false)) << no;
    EXPECT_EQ(answered(config("Integer", R"("42")")), QVariant(42LL));
    EXPECT_EQ(answered(config("Integer", "1.9")), QVariant(1LL));
    EXPECT_EQ(answered(config("Integer", "-1.9")), QVariant(-1LL));
    EXPECT_EQ(answered(config("Integer", R"(" 12.7 disks")")), QVariant(12LL));
    EXPECT_EQ(answered(config("Integer", "9007199254740993")), QVariant(9007199254740993LL)) << "more than a double";
    for (const auto& misfit : {"[1]", "{}"}) {
        EXPECT_FALSE(answered(config("Integer", misfit)).isValid()) << misfit;
        EXPECT_FALSE(answered(config("Boolean", misfit)).isValid()) << misfit;
    }
}

TEST_F(CirrelTest, AnUnknownTypeIsCachedButGivesNoValueUntilTheCacheFallsBackToTheDefault)
{
    get(u"P"_s, 100);
    network->answer(config("Float", "1.5"));
    EXPECT_FALSE(error);
    EXPECT_FALSE(value.isValid());
    EXPECT_TRUE(defaults.stored.contains(u"Cirrel_Config_P"_s));
    get(u"P"_s, 100);
    EXPECT_EQ(value, QVariant(u"default"_s));
    EXPECT_EQ(network->posted, 1);
}

TEST_F(CirrelTest, TheCacheAnswersAtOnceUntilTheIntervalHasPassed)
{
    get(u"P"_s, 100);
    network->answer(config("String", R"("cached")"));
    EXPECT_EQ(defaults.stored.value(u"Cirrel_Config_P"_s).toMap(),
              (QVariantMap{{u"type"_s, u"String"_s}, {u"value"_s, u"cached"_s}}));
    EXPECT_EQ(defaults.date(u"Cirrel_Config_P_lastDate"_s), runLoop.now());
    runLoop.advance(99.9s);
    value.clear();
    get(u"P"_s, 100);
    EXPECT_EQ(value, QVariant(u"cached"_s));
    EXPECT_FALSE(error);
    EXPECT_EQ(network->posted, 1);
    get(u"P"_s, 0); // asks whatever there is
    get(u"Q"_s, 100);
    EXPECT_EQ(network->posted, 3);
    runLoop.advance(0.1s);
    get(u"P"_s, 100);
    EXPECT_EQ(network->posted, 4);
    EXPECT_EQ(ends, 2) << "nothing is reported before the service has answered";
    defaults.stored.remove(u"Cirrel_Config_P"_s);
    defaults.setDate(u"Cirrel_Config_P_lastDate"_s, runLoop.now());
    get(u"P"_s, 100);
    EXPECT_EQ(value, QVariant(u"default"_s)) << "a fresh date without an answer";
    EXPECT_FALSE(error);
    defaults.setDate(u"Cirrel_Config_P_lastDate"_s, dateByAdding(runLoop.now(), 1000h));
    get(u"P"_s, 100);
    EXPECT_EQ(network->posted, 4) << "a date in the future is fresh";
}

TEST_F(CirrelTest, AFunctionsAnswerIsItsTextOrNothingWhereItIsNoText)
{
    std::optional<QString> response;
    const auto call = [&](const QByteArray& body) {
        Cirrel::callFunctionInBackground(u"v1/Other"_s, {}, [&](const auto& text, const auto& failure) {
            ++ends;
            response = text;
            error = failure;
        });
        network->answer(body);
        EXPECT_FALSE(error);
        return response;
    };
    EXPECT_EQ(call("für"), u"für"_s);
    EXPECT_EQ(call(""), QString());
    EXPECT_EQ(call("\xff"), std::nullopt);
    EXPECT_EQ(network->last.address, QUrl(u"https://example.com/api/v1/Other/"_s));
    EXPECT_EQ(ends, 3);
}

TEST_F(CirrelTest, AFailedRefreshGivesTheCachedOrTheDefaultValueAndLeavesTheCache)
{
    const QByteArrayList failures =
        QByteArrayList{"", "rubbish", "{", "\xff", "[]", "{}", R"({"result": null})", R"({"result": [1]})"} +
        QByteArrayList{R"({"result": {"type": "String"}})", R"({"result": {"value": "x", "type": null}})"} +
        QByteArrayList{config("String", "null"), R"({"result": {"type": "String", "value": ")"
                                                 "\xff\"}}"};
    for (const bool isCached : {false, true}) {
        if (isCached)
            answered(config("String", R"("cached")"));
        const auto before = defaults.stored;
        const QVariant expected = isCached ? u"cached"_s : u"default"_s;
        for (const auto& failure : failures) {
            value.clear();
            get(u"P"_s);
            network->answer(failure);
            EXPECT_TRUE(error) << failure.toStdString();
            EXPECT_EQ(value, expected) << failure.toStdString();
            EXPECT_EQ(defaults.stored, before) << failure.toStdString();
        }
        get(u"P"_s);
        network->answer(R"({"result": {"value": "x"}})");
        expectError(-102, u"Missing JSON parameter."_s);
        get(u"P"_s);
        network->fail();
        ASSERT_TRUE(error);
        EXPECT_EQ(error->domain, u"Network"_s);
        EXPECT_EQ(value, expected);
        EXPECT_EQ(defaults.stored, before);
        runLoop.advance(1s);
    }
}

TEST_F(CirrelTest, TheCacheOutlivesWhatSettingsCannotHold)
{
    const QTemporaryDir folder;
    FileUserDefaults settings(folder.filePath(u"settings.plist"_s), DefaultsAccess::ReadWrite, runLoop);
    services.reset(); // one at a time
    network = new FakePoster;
    services = std::make_unique<Cirrel::Services>(runLoop, settings, std::unique_ptr<FormPoster>(network));
    Cirrel::initWithAppId(u"id"_s, u"key"_s, u"https://example.com"_s);
    network->fail();
    answered(config("String", R"("cached")"));
    runLoop.advance(60s);
    const QByteArray tooDeep = QByteArray(511, '[') + QByteArray(511, ']'); // with the two objects around it
    for (const auto& text : {QByteArray(R"("a\u0001b")"), QByteArray("[null]"), tooDeep}) {
        EXPECT_TRUE(answered(config("String", text)).isValid()) << "handed over all the same";
        EXPECT_EQ(Cirrel::getConfigFromCacheFor(u"P"_s), QVariant(u"cached"_s));
        const int asked = network->posted;
        get(u"P"_s, 60);
        EXPECT_EQ(network->posted, asked + 1) << "the older answer stays as old as it is";
        network->fail();
    }
    services.reset();
}

TEST_F(CirrelTest, MembersThatAreNullAreMissingAndADamagedCacheIsNone)
{
    answered(R"({"result": {"type": "String", "value": "x", "note": null}})");
    EXPECT_EQ(Cirrel::getConfigFromCacheFor(u"P"_s), QVariant(u"x"_s));
    defaults.stored[u"Cirrel_Config_P"_s] = u"damaged"_s;
    EXPECT_FALSE(Cirrel::getConfigFromCacheFor(u"P"_s).isValid());
}

TEST_F(CirrelTest, TheServiceMovesTheClientForFourteenDays)
{
    const QString built = u"https://example.com"_s;
    const auto start = [&] { Cirrel::initWithAppId(u"id"_s, u"key"_s, built); };
    start();
    EXPECT_EQ(network->last.fields.value(u"parameter"_s), u"ServerUrl"_s);
    network->fail();
    EXPECT_EQ(Cirrel::getServer(), built);
    start();
    network->answer(config("Integer", "7"));
    EXPECT_EQ(Cirrel::getServer(), built) << "no text";
    runLoop.advance(14 * 24h);
    start();
    network->answer(config("String", R"("https://moved.example.com")"));
    get(u"P"_s);
    EXPECT_EQ(network->last.address, QUrl(u"https://moved.example.com/v1/Config/"_s));
    EXPECT_EQ(network->posted, 4);
    runLoop.advance(14 * 24h - 1s);
    start();
    EXPECT_EQ(Cirrel::getServer(), u"https://moved.example.com"_s);
    EXPECT_EQ(network->posted, 4);
    runLoop.advance(1s);
    start();
    EXPECT_EQ(network->posted, 5);
    EXPECT_EQ(network->last.address.host(), u"example.com"_s) << "the address of the build finds the way back";
}

TEST_F(CirrelTest, AnEventIsRecordedWhenTheServiceSaysSo)
{
    const auto recorded = [this](const QByteArray& answer) {
        track(u"start"_s);
        network->answer(answer);
        return !error && value.toBool();
    };
    EXPECT_TRUE(recorded(R"({"result": true})"));
    EXPECT_TRUE(recorded(R"({"result": "YES"})"));
    EXPECT_FALSE(recorded(R"({"result": 0})"));
    EXPECT_FALSE(error);
    for (const auto& answer : {"{}", R"({"result": null})", R"({"result": [true]})"}) {
        EXPECT_FALSE(recorded(answer)) << answer;
        expectError(-102, u"Missing JSON parameter."_s);
    }
    EXPECT_FALSE(recorded("rubbish"));
    EXPECT_EQ(error->domain, u"JsonErrorDomain"_s);
    track(u"start"_s);
    network->fail();
    EXPECT_EQ(error->domain, u"Network"_s);
}

} // namespace quillon
