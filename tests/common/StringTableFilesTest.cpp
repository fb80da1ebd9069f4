#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using Texts = QMap<QString, QString>;

QString contents(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

/// The finished texts of a table, by key.
Texts readTable(const QString& path)
{
    Texts texts;
    QString key;
    QXmlStreamReader reader(contents(path));
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == "message"_L1) {
            key = reader.attributes().value("id"_L1).toString();
        } else if (reader.name() == "translation"_L1) {
            EXPECT_FALSE(texts.contains(key)) << "twice: " << key.toStdString();
            if (!reader.attributes().hasAttribute("type"_L1)) // unfinished, vanished or obsolete
                texts.insert(key, reader.readElementText());
        }
    }
    EXPECT_FALSE(reader.hasError()) << path.toStdString() << ": " << reader.errorString().toStdString();
    return texts;
}

QStringList sortedMatches(const QRegularExpression& pattern, const QString& text)
{
    QStringList found;
    for (const auto& match : pattern.globalMatch(text))
        found.append(match.captured());
    found.sort();
    return found;
}

void addMatches(QSet<QString>& found, const QRegularExpression& pattern, const QString& text)
{
    for (const auto& match : pattern.globalMatch(text))
        found.insert(match.captured(1));
}

/// The tables in the order of their names, the code that looks texts up, and what follows from its words.
class StringTableFiles : public testing::Test {
protected:
    StringTableFiles()
    {
        const QString tree = QStringLiteral(QUILLON_TREE);
        QDirIterator files({tree + "/resources/strings"_L1}, {u"*.ts"_s}, QDir::Files);
        while (files.hasNext()) {
            const QString path = files.next();
            tables.insert(QFileInfo(path).completeBaseName(), readTable(path));
        }
        english = tables.value(u"quillon_en"_s);
        for (const auto& folder : {"/src"_L1, "/resources"_L1})
            readSources(tree + folder);
    }

    void readSources(const QString& folder)
    {
        static const QRegularExpression word(uR"re((?<!\w)"(\w+)"(?!_))re"_s);
        static const QRegularExpression lookUp(uR"re(localizedString\(([^"()]*"[^()]*)\))re"_s);
        static const QRegularExpression interfaceText(uR"re(<string id="(\w+)")re"_s);
        QDirIterator files(folder, {u"*.cpp"_s, u"*.h"_s, u"*.mm"_s, u"*.ui"_s}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString text = contents(files.next());
            addMatches(words, word, text);
            addMatches(wanted, interfaceText, text);
            for (const auto& call : lookUp.globalMatch(text))
                addMatches(wanted, word, call.captured(1));
        }
    }

    QMap<QString, Texts> tables;
    Texts english;
    QSet<QString> words; ///< quoted in the code, plain and without blanks: keys in tables among them
    QSet<QString> wanted;
};

TEST_F(StringTableFiles, HoldAFinishedTextForEveryKeyInEveryLanguage)
{
    EXPECT_EQ(tables.size(), 9);
    for (auto table = tables.cbegin(); table != tables.cend(); ++table) {
        EXPECT_EQ(table->keys(), english.keys()) << table.key().toStdString();
        for (auto text = table->cbegin(); text != table->cend(); ++text) {
            static const QRegularExpression placeholder(u"%."_s);
            EXPECT_FALSE(text->isEmpty()) << table.key().toStdString() << ' ' << text.key().toStdString();
            EXPECT_EQ(sortedMatches(placeholder, *text), sortedMatches(placeholder, english.value(text.key())))
                << table.key().toStdString() << ' ' << text.key().toStdString();
        }
    }
}

TEST_F(StringTableFiles, HoldNeitherTypewriterQuotesNorWhatTheCodeAdds)
{
    static const QRegularExpression unwanted(u"[\"']|(:|：|\\.\\.\\.)$|^ | $| \n|^\n|\n$"_s);
    for (auto table = tables.cbegin(); table != tables.cend(); ++table) {
        for (auto text = table->cbegin(); text != table->cend(); ++text) {
            if (text.key() ==
                "scheduleTitle"_L1) // shown as it stands, above a caption that gets its colon from the code
                continue;
            EXPECT_FALSE(unwanted.match(*text).hasMatch())
                << table.key().toStdString() << ' ' << text.key().toStdString();
        }
    }
}

TEST_F(StringTableFiles, HoldEveryKeyThatTheCodeLooksUp)
{
    // Keys that reach a look-up by way of a table or a variable show themselves by their form.
    static const QRegularExpression keyForm(
        u"^(tmPhase|status|settings|disks|Alert(Button|Title|Message))[A-Z]\\w*$|\\w(Title|Message)(Ventura)?$"_s);
    for (const auto& word : std::as_const(words)) {
        if (keyForm.match(word).hasMatch())
            wanted.insert(word);
    }
    EXPECT_GT(wanted.size(), 40);
    for (const auto& key : std::as_const(wanted))
        EXPECT_TRUE(english.contains(key)) << key.toStdString();
}

TEST_F(StringTableFiles, HoldNoKeyThatNothingLooksUp)
{
    QStringList unused;
    for (const auto& key : english.keys()) {
        if (!words.contains(key) && !wanted.contains(key))
            unused.append(key);
    }
    EXPECT_TRUE(unused.isEmpty()) << unused.join(u' ').toStdString();
}

} // namespace
} // namespace quillon
