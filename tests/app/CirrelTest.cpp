#include "Cirrel.h"

#include "FakePoster.h"
#include "MemoryDefaults.h"
#include "VirtualRunLoop.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Answers = std::vector<std::pair<QByteArray, std::string>>;

const QString id = u"id"_s;
const QString key = u"key"_s;
const QString server = u"https://example.com/api"_s;
const std::string noParameter = " ! CirrelErrorDomain -102 Missing JSON parameter.";

QByteArray result(const QByteArray& json)
{
    return R"({"result": )" + json + '}';
}

QByteArray config(const QByteArray& type, const QByteArray& value)
{
    return result(R"({"type": ")" + type + R"(", "value": )" + value + '}');
}

class CirrelTest : public testing::Test {
protected:
    /// As after a start whose question for the server's address has been settled.
    CirrelTest()
    {
        Cirrel::setAppId(id);
        Cirrel::setApiKey(key);
        Cirrel::setServer(server);
    }

    /// Adds to the reports: type and text of the value, and what went wrong.
    void note(const QVariant& value, const std::optional<Error>& error)
    {
        reports += value.isValid() ? value.typeName() + (u' ' + value.toString()).toStdString() : "nothing";
        if (error)
            reports += " ! " + error->domain.toStdString();
        if (error && error->domain == Cirrel::errorDomain())
            reports += u" %1 %2"_s.arg(error->code).arg(error->message).toStdString();
    }
    void get(const QString& parameter = u"P"_s, double interval = 0, const QVariant& fallback = u"default"_s)
    {
        Cirrel::getConfigForParameter(parameter, interval, fallback, std::bind_front(&CirrelTest::note, this));
    }
    void track(const QString& name = u"E"_s)
    {
        Cirrel::trackEventInBackground(name, std::bind_front(&CirrelTest::note, this));
    }
    void call(const QString& function = u"v1/Other"_s)
    {
        Cirrel::callFunctionInBackground(function, {}, [this](const auto& text, const auto& error) {
            note(text ? QVariant(*text) : QVariant(), error);
        });
    }
    /// What has been reported since the last time.
    std::string reported() { return std::exchange(reports, {}); }

    void expectReports(const std::function<void()>& ask, const Answers& answers)
    {
        for (const auto& [answer, report] : answers) {
            ask();
            network->answer(answer);
            EXPECT_EQ(reported(), report) << answer.toStdString();
        }
    }

    VirtualRunLoop runLoop{Date{24h}};
    MemoryDefaults defaults;
    FakePoster* network = new FakePoster; // the services' own
    std::unique_ptr<Cirrel::Services> services =
        std::make_unique<Cirrel::Services>(runLoop, defaults, std::unique_ptr<FormPoster>(network));
    std::string reports;
};

} // namespace

TEST_F(CirrelTest, ARequestNamesTheFunctionTheParameterAndTheProgram)
{
    get(u"LatestAppVersion"_s);
    EXPECT_EQ(network->last.address, QUrl(u"https://example.com/api/v1/Config/"_s));
    EXPECT_EQ(network->last.fields, (QMap<QString, QString>{{u"parameter"_s, u"LatestAppVersion"_s}}));
    EXPECT_EQ(network->last.headers, (QMap<QString, QString>{{u"X-Application-Id"_s, id}, {u"X-Api-Key"_s, key}}));
    EXPECT_EQ(network->last.timeout, 5s);
    track(u"start"_s);
    EXPECT_EQ(network->last.address, QUrl(u"https://example.com/api/v1/Event/"_s));
    EXPECT_EQ(network->last.fields, (QMap<QString, QString>{{u"name"_s, u"start"_s}}));
    EXPECT_EQ(Cirrel::domain(), u"example.com"_s);
}

TEST_F(CirrelTest, WhatCannotBeAskedIsToldApartAndSendsNothing)
{
    const std::string missing = "CirrelErrorDomain -100 Missing parameter";
    get({}, 0, {});
    EXPECT_EQ(reported(), "nothing ! " + missing + " 'parameter'.");
    get(u"P"_s, 0, {});
    EXPECT_EQ(reported(), "nothing ! CirrelErrorDomain -101 Missing default value.");
    get(u"P"_s, 0, QVariantList{1});
    EXPECT_EQ(reported(), "nothing ! CirrelErrorDomain -102 Incorrect default value, should be NSString or NSNumber.");
    track({});
    EXPECT_EQ(reported(), "bool false ! " + missing + " 'name'.");
    call({});
    EXPECT_EQ(reported(), "nothing ! " + missing + " 'function'.");
    for (int absent = 0; absent < 4; ++absent) {
        EXPECT_EQ(network->posted, 0);
        if (absent == 3)
            services.reset();
        Cirrel::initWithAppId(absent == 0 ? QString() : id, absent == 1 ? QString() : key,
                              absent == 2 ? QString() : server);
        const QString error = u" ! CirrelErrorDomain -900 Cirrel is not initialised. Call "
                              "'+initWithAppId:apiKey:andServer:' to resolve this issue."_s;
        get({});
        track({});
        call({});
        EXPECT_EQ(reported(), u"nothing%1bool false%1nothing%1"_s.arg(error).toStdString());
    }
    EXPECT_EQ(Cirrel::domain(), QString());
}

TEST_F(CirrelTest, ValuesAreConvertedByTheTypeThatTheServiceNames)
{
    expectReports([&] { get(); },
                  {{config("String", R"("2.10")"), "QString 2.10"},
                   {config("String", "5"), "qlonglong 5"},
                   {config("Integer", "-1.9"), "qlonglong -1"},
                   {config("Integer", "9007199254740993"), "qlonglong 9007199254740993"}, // more than a double holds
                   {config("Integer", R"(" 42.7 disks")"), "qlonglong 42"},
                   {config("Boolean", "0.5"), "bool true"},
                   {config("Boolean", R"("NO")"), "bool false"},
                   {config("Float", "1.5"), "nothing"},
                   {config("Integer", "[1]"), "nothing"},
                   {result(R"({"type": "String", "value": "x", "note": null})"), "QString x"}});
}

TEST_F(CirrelTest, AFunctionsAnswerIsItsTextAndAnEventIsRecordedWhenTheServiceSaysSo)
{
    expectReports([&] { call(); }, {{"für", "QString für"}, {"", "QString "}, {"\xff", "nothing"}});
    EXPECT_EQ(network->last.address, QUrl(u"https://example.com/api/v1/Other/"_s));
    expectReports([&] { track(); }, {{result("true"), "bool true"},
                                     {result(R"("YES")"), "bool true"},
                                     {"{}", "bool false" + noParameter},
                                     {result("[true]"), "bool false" + noParameter},
                                     {"rubbish", "bool false ! JsonErrorDomain"}});
    track();
    network->fail();
    EXPECT_EQ(reported(), "bool false ! Network");
}

TEST_F(CirrelTest, AFailedRefreshGivesTheCachedValueAndLeavesTheCache)
{
    expectReports([&] { get(); }, {{config("String", R"("cached")"), "QString cached"}});
    const auto before = defaults.stored;
    Answers answers;
    for (const char* rubbish : {"", "{", "\xff"})
        answers.emplace_back(rubbish, "QString cached ! JsonErrorDomain");
    for (const char* incomplete : {"null", "[1]", R"({"type": "String"})", R"({"value": "x"})",
                                   R"({"value": "x", "type": null})", R"({"type": "String", "value": null})"})
        answers.emplace_back(result(incomplete), "QString cached" + noParameter);
    expectReports([&] { get(); }, answers);
    get();
    network->fail();
    EXPECT_EQ(reported(), "QString cached ! Network");
    EXPECT_EQ(defaults.stored, before);
}

TEST_F(CirrelTest, TheCacheAnswersAtOnceUntilTheIntervalHasPassed)
{
    get(u"P"_s, 100);
    network->answer(config("String", R"("cached")"));
    EXPECT_EQ(defaults.stored.value(u"Cirrel_Config_P"_s).toMap(),
              (QVariantMap{{u"type"_s, u"String"_s}, {u"value"_s, u"cached"_s}}));
    EXPECT_EQ(defaults.date(u"Cirrel_Config_P_lastDate"_s), runLoop.now());
    reported();
    defaults.refuses = u"Cirrel_Config_R"_s;
    get(u"R"_s, 100);
    network->answer(config("String", R"("too strange")"));
    EXPECT_EQ(reported(), "QString too strange");
    EXPECT_FALSE(defaults.date(u"Cirrel_Config_R_lastDate"_s)) << "what was not stored is asked for again";
    get(u"P"_s, 0.5);
    EXPECT_EQ(reported(), "QString cached");
    runLoop.advance(99.9s);
    get(u"P"_s, 100);
    EXPECT_EQ(reported(), "QString cached");
    EXPECT_EQ(network->posted, 2);
    get(u"P"_s, 0); // asks whatever there is
    get(u"Q"_s, 100);
    runLoop.advance(0.1s);
    get(u"P"_s, 100);
    EXPECT_EQ(network->posted, 5);
    EXPECT_EQ(reported(), "") << "nothing is reported before the service has answered";
    defaults.setDate(u"Cirrel_Config_P_lastDate"_s, dateByAdding(runLoop.now(), 1000h));
    get(u"P"_s, 100);
    EXPECT_EQ(reported(), "QString cached") << "a date in the future is fresh";
    get(u"P"_s, 0);
    EXPECT_EQ(network->posted, 6);
    for (const auto& unusable : {QVariant(), QVariant(u"damaged"_s)}) {
        defaults.stored[u"Cirrel_Config_P"_s] = unusable;
        get(u"P"_s, 100);
        EXPECT_EQ(reported(), "QString default") << "a fresh date without an answer";
        EXPECT_FALSE(Cirrel::getConfigFromCacheFor(u"P"_s).isValid());
    }
    EXPECT_EQ(network->posted, 6);
}

TEST_F(CirrelTest, TheServiceMovesTheClientForFourteenDays)
{
    const auto start = [] { Cirrel::initWithAppId(id, key, server); };
    start();
    EXPECT_EQ(network->last.fields.value(u"parameter"_s), u"ServerUrl"_s);
    network->fail();
    EXPECT_EQ(Cirrel::getServer(), server);
    start();
    network->answer(config("Integer", "7"));
    EXPECT_EQ(Cirrel::getServer(), server) << "no text";
    runLoop.advance(14 * 24h);
    start();
    network->answer(config("String", R"("https://moved.example.com")"));
    get();
    EXPECT_EQ(network->last.address, QUrl(u"https://moved.example.com/v1/Config/"_s));
    runLoop.advance(14 * 24h - 1s);
    start();
    EXPECT_EQ(Cirrel::getServer(), u"https://moved.example.com"_s);
    EXPECT_EQ(network->posted, 4);
    runLoop.advance(1s);
    start();
    EXPECT_EQ(network->posted, 5);
    EXPECT_EQ(network->last.address.host(), u"example.com"_s) << "the address of the build finds the way back";
}

} // namespace quillon
