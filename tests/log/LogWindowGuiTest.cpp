#include "FakeServices.h"
#include "LocalDates.h"
#include "LogWindow.h"
#include "MemoryLedger.h"
#include "VirtualRunLoop.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

class LogWindowFixture : public testing::Test {
protected:
    void add(int hour, LedgerEntry::Outcome outcome, const QString& disk = {})
    {
        LedgerEntry entry{.date = local(2026, 11, 21, hour),
                          .outcome = outcome,
                          .reason = outcome == LedgerEntry::Outcome::Missed ? LedgerEntry::Reason::Asleep
                                                                            : LedgerEntry::Reason::None,
                          .diskIdentifier = disk,
                          .diskName = disk};
        ledger_.write({&entry, 1}, runLoop_.now());
    }
    /// Outcomes of the rows, or the sentence in their place.
    std::string shown() const
    {
        const auto& list = part<QTreeView>("log");
        if (!list.isVisible())
            return part<QLabel>("emptyLog").text().toStdString();
        QStringList rows;
        for (int row = 0; row < list.model()->rowCount(); ++row)
            rows.append(list.model()->index(row, LogModel::Outcome).data().toString());
        return rows.join(u' ').toStdString();
    }
    void choose(const char* box, const QString& item)
    {
        auto& combo = part<QComboBox>(box);
        combo.setFocus();
        QTest::keyClick(&combo, Qt::Key_Home);
        while (combo.currentText() != item && combo.currentIndex() + 1 < combo.count())
            QTest::keyClick(&combo, Qt::Key_Down);
    }
    template<typename Part>
    Part& part(const char* name) const
    {
        return *window_.findChild<Part*>(QLatin1StringView(name));
    }

    VirtualRunLoop runLoop_{local(2026, 11, 21, 20)};
    MemoryLedger ledger_;
    FakeAlerts alerts_;
    LogWindow window_{{runLoop_, ledger_, alerts_}};
};

TEST_F(LogWindowFixture, ShowsWhatIsWantedAndFollowsTheLedgerWithoutLosingWhatIsChosen)
{
    ledger_.isReadable = false;
    window_.show();
    EXPECT_EQ(shown(), "The log could not be read. Backups are made all the same.");
    ledger_.isReadable = true;
    add(9, LedgerEntry::Outcome::Missed);
    add(10, LedgerEntry::Outcome::Completed, u"A"_s);
    EXPECT_EQ(shown(), "Completed Missed");
    auto& list = part<QTreeView>("log");
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_TRUE(part<QLabel>("logDetails").text().startsWith(u"The computer was asleep."_s));
    add(11, LedgerEntry::Outcome::Completed, u"B"_s);
    EXPECT_EQ(shown(), "Completed Completed Missed");
    EXPECT_EQ(list.currentIndex().row(), 2);
    EXPECT_TRUE(part<QLabel>("logDetails").text().startsWith(u"The computer was asleep."_s));

    choose("outcomes", u"Completed"_s);
    EXPECT_EQ(shown(), "Completed Completed");
    choose("disks", u"A"_s);
    EXPECT_EQ(shown(), "Completed");
    choose("outcomes", u"Failed"_s);
    EXPECT_EQ(shown(), "No entry matches.");
    window_.close();
    window_.show();
    EXPECT_EQ(shown(), "No entry matches.");
}

TEST_F(LogWindowFixture, GivesItsEntriesAwayAndTellsOfAFileThatCannotBeWritten)
{
    add(9, LedgerEntry::Outcome::Missed);
    add(10, LedgerEntry::Outcome::Completed, u"A"_s);
    window_.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
    QTest::keyClick(&part<QTreeView>("log"), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text().count(u'\n'), 1);
    part<QAbstractButton>("copyLog").click();
    EXPECT_EQ(QGuiApplication::clipboard()->text().count(u'\n'), 2);

    const QTemporaryDir folder;
    for (const QString& name : {u"log.csv"_s, u"none/log.csv"_s}) {
        part<QAbstractButton>("saveLog").click();
        Q_EMIT window_.findChild<QFileDialog*>()->fileSelected(folder.filePath(name));
        delete window_.findChild<QFileDialog*>();
    }
    QFile saved(folder.filePath(u"log.csv"_s));
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    EXPECT_EQ(saved.readAll().count("\r\n"), 3);
    EXPECT_EQ(alerts_.presented.size(), 1U);
}

} // namespace quillon
