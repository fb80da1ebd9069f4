#include "LocalizedString.h"

#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using Texts = QMap<QString, QString>;

const QString tree = QStringLiteral(QUILLON_TREE);

QString contents(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

/// The finished texts of a table, by key.
Texts readTable(const QString& path)
{
    // Any other type is unfinished, vanished or obsolete.
    static const QRegularExpression message(
        uR"re(<message id="(\w+)">\s*<source></source>\s*<translation>([^<]*)<)re"_s);
    Texts texts;
    const QString table = contents(path);
    for (const auto& match : message.globalMatch(table))
        texts.insert(match.captured(1), match.captured(2));
    EXPECT_EQ(texts.size(), table.count("<message"_L1)) << "unfinished or twice: " << path.toStdString();
    return texts;
}

QSet<QString> matches(const QRegularExpression& pattern, const QString& text)
{
    QSet<QString> found;
    for (const auto& match : pattern.globalMatch(text))
        found.insert(match.captured(1));
    return found;
}

/// The keys that the code looks up.
QSet<QString> wantedKeys()
{
    static const QRegularExpression word(uR"re((?<!\w)"(\w+)"(?!_))re"_s);
    static const QRegularExpression lookUp(uR"re(localizedString\(([^"()]*"[^()]*)\))re"_s);
    static const QRegularExpression interfaceText(uR"re(<string id="(\w+)")re"_s);
    // Keys that reach a look-up by way of a table or a variable show themselves by their form.
    static const QRegularExpression keyForm(
        u"^(tmPhase|status|settings|disks|Alert(Button|Title|Message))[A-Z]\\w*$|\\w(Title|Message)(Ventura)?$"_s);
    QSet<QString> keys;
    for (const auto& folder : {"/src"_L1, "/resources"_L1}) {
        QDirIterator files(tree + folder, {u"*.cpp"_s, u"*.h"_s, u"*.mm"_s, u"*.ui"_s}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString text = contents(files.next());
            for (const QString& quoted : matches(word, text)) {
                if (keyForm.match(quoted).hasMatch())
                    keys.insert(quoted);
            }
            keys += matches(interfaceText, text);
            for (const auto& call : lookUp.globalMatch(text))
                keys += matches(word, call.captured(1));
        }
    }
    return keys;
}

TEST(StringTableFiles, HoldAFinishedTextForEveryKeyInEveryLanguage)
{
    static const QRegularExpression placeholder(u"(%.)"_s);
    static const QRegularExpression unwanted(u"[\"']|&quot;|&apos;|(:|：|\\.\\.\\.)$|^ | $| \n|^\n|\n$"_s);
    const Texts english = readTable(tree + "/resources/strings/quillon_en.ts"_L1);
    QDirIterator files(tree + "/resources/strings"_L1, {u"*.ts"_s}, QDir::Files);
    while (files.hasNext()) {
        const QString file = files.next();
        const Texts table = readTable(file);
        EXPECT_EQ(table.keys(), english.keys()) << file.toStdString();
        for (const auto& [key, text] : table.asKeyValueRange()) {
            SCOPED_TRACE((file + u' ' + key).toStdString());
            EXPECT_FALSE(text.isEmpty());
            EXPECT_EQ(matches(placeholder, text), matches(placeholder, english.value(key)));
            // Shown as it stands, above a caption that gets its colon from the code.
            EXPECT_TRUE(key == "scheduleTitle"_L1 || !unwanted.match(text).hasMatch())
                << "typewriter quotes, or what the code adds";
        }
    }
    const QSet<QString> keys = wantedKeys();
    EXPECT_GT(keys.size(), 40);
    for (const auto& key : keys)
        EXPECT_TRUE(english.contains(key)) << "missing: " << key.toStdString();
}

TEST(StringTable, WhatATableLacksIsEnglishAndWhatThatLacksIsTheKey)
{
    installStringTable(u"eo"_s);
    EXPECT_EQ(localizedString("todayTitle"), u"Hodiaŭ"_s);
    EXPECT_EQ(localizedString("tomorrowTitle"), u"Tomorrow"_s);
    EXPECT_EQ(localizedString("noSuchKeyTitle"), u"noSuchKeyTitle"_s);
    installStringTable(u"en"_s);
}

} // namespace
} // namespace quillon
