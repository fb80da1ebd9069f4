#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>
#include <QSet>

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
            words += matches(word, text);
            wanted += matches(interfaceText, text);
            for (const auto& call : lookUp.globalMatch(text))
                wanted += matches(word, call.captured(1));
        }
    }

    QMap<QString, Texts> tables;
    Texts english;
    QSet<QString> words; ///< quoted in the code, plain and without blanks: keys in tables among them
    QSet<QString> wanted;
};

TEST_F(StringTableFiles, HoldAFinishedTextForEveryKeyInEveryLanguage)
{
    static const QRegularExpression placeholder(u"(%.)"_s);
    static const QRegularExpression unwanted(u"[\"']|&quot;|&apos;|(:|：|\\.\\.\\.)$|^ | $| \n|^\n|\n$"_s);
    EXPECT_EQ(tables.size(), 9);
    for (auto table = tables.cbegin(); table != tables.cend(); ++table) {
        EXPECT_EQ(table->keys(), english.keys()) << table.key().toStdString();
        for (auto text = table->cbegin(); text != table->cend(); ++text) {
            SCOPED_TRACE((table.key() + u' ' + text.key()).toStdString());
            EXPECT_FALSE(text->isEmpty());
            EXPECT_EQ(matches(placeholder, *text), matches(placeholder, english.value(text.key())));
            // Shown as it stands, above a caption that gets its colon from the code.
            EXPECT_TRUE(text.key() == "scheduleTitle"_L1 || !unwanted.match(*text).hasMatch())
                << "typewriter quotes, or what the code adds";
        }
    }
}

TEST_F(StringTableFiles, HoldTheKeysThatTheCodeLooksUpAndNoOthers)
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
        EXPECT_TRUE(english.contains(key)) << "missing: " << key.toStdString();
    for (const auto& key : english.keys())
        EXPECT_TRUE(words.contains(key) || wanted.contains(key)) << "looked up by nothing: " << key.toStdString();
}

} // namespace
} // namespace quillon
