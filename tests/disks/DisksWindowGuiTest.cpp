#include "DisksFixture.h"

#include <QScreen>
#include <QSpinBox>

#include <functional>

namespace quillon {

using DisksWindowTest = DisksWindowFixture;

TEST_F(DisksWindowTest, EveryChangeIsOneCallOfTheTool)
{
    using Act = std::function<void()>;
    const auto adding = [this](Page which) -> Act {
        return [=, this] {
            page(which);
            click(panelTitle("disksAddFolderTitle"));
            choose(folder_.path());
        };
    };
    const auto leavingOut = [this](const QString& key, const QString& file) -> Act {
        return [=, this] {
            chooseToAdd(key);
            choose(file);
        };
    };
    const auto leavingOutBy = [this](const QString& key, const std::function<void(QDialog*)>& fill) -> Act {
        return [=, this] {
            chooseToAdd(key);
            fill(shown<QDialog>(u"exclusion"_s));
            runLoop_.advance(1s);
            click(u"leaveOut"_s);
        };
    };
    const auto removing = [this](Page which, int row) -> Act {
        return [=, this] {
            list(which)->setCurrentRow(row);
            click(localizedString("disksRemoveTitle"));
            answer(alertSecondButtonReturn);
        };
    };
    const auto type = [](QDialog* in) { in->findChild<QLineEdit*>()->setText(u"-*.tmp"_s); };
    const auto turn = [](QDialog* in) { in->findChild<QSpinBox*>()->setValue(2); };
    const std::pair<Act, QString> rows[] = {
        {adding(Disks), u"setdestination -a -- "_s + folder_.path()},
        {adding(Sources), u"addsource -- "_s + folder_.path()},
        {leavingOut(u"disksAddFolderTitle"_s, folder_.path()), u"addexclusion -- "_s + folder_.path()},
        {leavingOut(u"disksAddFileTitle"_s, path(u"file"_s)), u"addexclusion -- "_s + path(u"file"_s)},
        {leavingOutBy(u"disksAddNameTitle"_s, type), u"excludename -- -*.tmp"_s},
        {leavingOutBy(u"disksAddSizeTitle"_s, turn), u"excludelarger -- 2"_s},
        {removing(Disks, 0), u"removedestination -- A"_s},
        {removing(Sources, 1), u"removesource -- /srv/photos"_s},
        {removing(Exclusions, 0), u"removeexclusion -- /srv/-out"_s},
        {removing(Exclusions, 1), u"includename -- *.iso"_s},
        {removing(Exclusions, 2), u"excludelarger 0"_s},
    };
    for (const auto& [act, call] : rows) {
        open();
        tools_.changes.clear();
        act();
        EXPECT_EQ(tools_.changes, QStringList(call));
        EXPECT_TRUE(alerts_.presented.empty());
        window_.reset();
    }
}

TEST_F(DisksWindowTest, ShowsWhatTheToolTellsAndADiskThatComesWithoutAnybodysDoing)
{
    tools_.answer(u"diskusage"_s, QVariantList{QVariantMap{{u"ID"_s, u"A"_s}, {u"Bytes"_s, 1'500'000LL}}});
    tell({disk(u"A"_s), disk(u"Away"_s, {})});
    open();
    EXPECT_EQ(titles(Sources), (QStringList{u"you"_s, u"photos"_s}));
    EXPECT_EQ(titles(Exclusions).first(), u"-out"_s);
    EXPECT_EQ(titles(Disks), (QStringList{u"A"_s, u"Away"_s}));
    const auto spoken = [this](int row) { return list(Disks)->item(row)->data(Qt::AccessibleTextRole).toString(); };
    EXPECT_TRUE(spoken(0).contains(localizedString("disksTaken").arg(u"1.5 MB"_s)));
    EXPECT_TRUE(spoken(1).startsWith(u"Away, /media/Away, "_s + localizedString("disksNotConnected")));
    list(Disks)->setCurrentRow(1);
    tell({disk(u"Away"_s)});
    runLoop_.advance(6s);
    EXPECT_EQ(titles(Disks), QStringList(u"Away"_s));
    EXPECT_TRUE(spoken(0).contains(localizedString("disksConnected")));
    EXPECT_EQ(list(Disks)->currentRow(), 0) << "what was selected stays so";
    EXPECT_FALSE(shown<QLabel>(localizedString("disksNoDisks")));
    tell({});
    runLoop_.advance(6s);
    EXPECT_TRUE(shown<QLabel>(localizedString("disksNoDisks")));
}

TEST_F(DisksWindowTest, OneChangeIsMadeAtATimeAndADiskGoesOnlyWhenThatIsConfirmed)
{
    open();
    const QString title = localizedString("disksRemoveTitle");
    page(Disks);
    EXPECT_FALSE(isReady(title)) << "nothing is selected";
    list(Disks)->setCurrentRow(0);
    QTest::keyClick(list(Disks), Qt::Key_Delete);
    EXPECT_EQ(answer(alertFirstButtonReturn).first(), localizedString("disksRemoveAlertMessage").arg(u"A"_s));
    EXPECT_TRUE(tools_.changes.isEmpty());

    tools_.answers[u"removedestination"_s] = {.expected = {}, .output = {}, .status = 1, .delay = 50};
    click(title);
    answer(alertSecondButtonReturn);
    for (const QString& button : {title, localizedString("disksAddDiskTitle"), panelTitle("disksAddFolderTitle")})
        EXPECT_FALSE(isReady(button)) << button.toStdString();
    QTest::keyClick(list(Disks), Qt::Key_Delete);
    EXPECT_TRUE(alerts_.presented.empty());
    runLoop_.advance(51s);
    EXPECT_TRUE(isReady(title));
    EXPECT_EQ(answer(0), (QStringList{localizedString("disksRemoveFailed").arg(u"A"_s),
                                      localizedString("disksToolFailed").arg(1)}));
}

TEST_F(DisksWindowTest, TheHomeFolderIsNeitherLostNorBackedUpUnawares)
{
    const auto removeFirst = [this] {
        list(Sources)->setCurrentRow(0);
        click(localizedString("disksRemoveTitle"));
    };
    tools_.answer(u"listsources"_s, QVariantList{u"/srv/photos"_s});
    open();
    removeFirst();
    EXPECT_TRUE(tools_.changes.isEmpty());
    EXPECT_EQ(answer(alertSecondButtonReturn).first(), localizedString("disksHomeAlertMessage"));
    EXPECT_EQ(tools_.changes, QStringList(u"removesource -- /srv/photos"_s));

    tools_.answer(u"listsources"_s, QVariantList{QDir::homePath()});
    open();
    tools_.changes.clear();
    page(Sources);
    click(panelTitle("disksAddFolderTitle"));
    choose(folder_.path());
    EXPECT_EQ(tools_.changes,
              (QStringList{u"addsource -- "_s + QDir::homePath(), u"addsource -- "_s + folder_.path()}));
    removeFirst();
    EXPECT_EQ(tools_.changes.last(), u"removesource -- "_s + QDir::homePath()) << "nothing else takes its place";
}

TEST_F(DisksWindowTest, AMountedDiskIsOfferedUnlessItIsOneAlready)
{
    tools_.answers[u"--json"_s].output = R"({"blockdevices":[
        {"label":"B & C","mountpoints":["/media/B"],"fsavail":2000000000,"ro":false},
        {"label":null,"mountpoints":["/media/A"],"fsavail":1,"ro":false}]})";
    const auto offered = [this] {
        QMenu* const menu = shown<QPushButton>(localizedString("disksAddDiskTitle"))->menu();
        Q_EMIT menu->aboutToShow();
        EXPECT_EQ(menu->actions().size(), 3) << "it, and a network place";
        return menu->actions().first();
    };
    open();
    EXPECT_EQ(offered()->text(), localizedString("disksFree").arg(u"B && C"_s, u"2.0 GB"_s));
    offered()->trigger();
    EXPECT_EQ(tools_.changes, QStringList(u"setdestination -a -- /media/B"_s));
    tell({disk(u"A"_s), disk(u"B"_s)});
    runLoop_.advance(6s);
    EXPECT_EQ(offered()->text(), localizedString("disksNoOtherDisk"));
}

TEST_F(DisksWindowTest, WhatIsLeftOutIsShownFirst)
{
    open();
    chooseToAdd(u"disksAddNameTitle"_s);
    const auto type = [this](const QString& name) {
        shown<QDialog>(u"exclusion"_s)->findChild<QLineEdit*>()->setText(name);
    };
    const auto preview = [this] { return shown<QLabel>(u"preview"_s)->text(); };
    EXPECT_FALSE(isReady(u"leaveOut"_s));
    type(u"*.iso"_s);
    EXPECT_EQ(preview(), localizedString("disksCounting"));
    runLoop_.advance(300ms);
    type(u"*.tmp"_s);
    runLoop_.advance(300ms);
    EXPECT_FALSE(isReady(u"leaveOut"_s)) << "somebody still types";
    runLoop_.advance(200ms);
    EXPECT_EQ(preview(), localizedString("disksPreview").arg(u"1"_s, u"1.5 kB"_s));
    EXPECT_EQ(tools_.launched().last().arguments.join(u' '), u"excludename --try -X -- *.tmp"_s);
    EXPECT_TRUE(isReady(u"leaveOut"_s));
    type(u"none"_s);
    EXPECT_FALSE(isReady(u"leaveOut"_s)) << "what was shown is another pattern's";
    tools_.answers[u"--try"_s].status = 2;
    type(u"deep/name"_s);
    runLoop_.advance(1s);
    EXPECT_EQ(preview(), localizedString("disksToolFailed").arg(2));
    EXPECT_FALSE(isReady(u"leaveOut"_s));
}

TEST_F(DisksWindowTest, SaysWhatCannotBeReadUntilItCan)
{
    const auto isTold = [this](const QString& line) {
        return shown<QLabel>(localizedString("disksReadFailed").arg(line)) != nullptr;
    };
    tools_.answers[u"listsources"_s] = tools_.answers[u"destinationinfo"_s];
    open();
    EXPECT_TRUE(isTold(localizedString("disksToolUnreadable")));
    tools_.answers[u"listsources"_s].fault = TmutilScript::Fault::Refused;
    click(localizedString("disksTryAgainTitle"));
    EXPECT_TRUE(isTold(localizedString("disksToolMissing").arg(u"tmutil"_s)));
    tools_.answers[u"listsources"_s] = {};
    tools_.answer(u"listsources"_s, QVariantList{u"/home/you"_s});
    click(localizedString("disksTryAgainTitle"));
    EXPECT_FALSE(isReady(localizedString("disksTryAgainTitle")));
    EXPECT_EQ(titles(Sources), QStringList(u"you"_s));

    window_.reset();
    tools_.answers[u"destinationinfo"_s].fault = TmutilScript::Fault::Hang;
    open();
    page(Disks);
    EXPECT_TRUE(shown<QLabel>(localizedString("disksReading")));
    runLoop_.advance(60s);
    EXPECT_TRUE(isTold(localizedString("disksToolHangs")));
    click(localizedString("disksTryAgainTitle"));
    window_.reset();
    EXPECT_EQ(tools_.liveChildren(), 0);
}

TEST_F(DisksWindowTest, RowsMakeRoomForRemarksAsTheWidthChanges)
{
    const QVariantMap failure{{u"Description"_s, u"Words of a remark. "_s.repeated(6)}};
    tell({disk(u"A"_s, {{u"LastFailure"_s, failure}}), disk(u"B"_s)});
    open();
    QListWidget* const disks = list(Disks);
    disks->setFixedHeight(disks->height()); // or what stands above it changes that
    const auto second = [disks] { return disks->visualItemRect(disks->item(1)).top(); };
    window_->resize(3000, window_->height());
    ASSERT_TRUE(QTest::qWaitFor([&] { return disks->viewport()->width() > 2000; }));
    const int wide = second();
    window_->resize(0, window_->height());
    EXPECT_TRUE(QTest::qWaitFor([&] { return second() > wide; })) << "the first lies over it";
}

TEST_F(DisksWindowTest, TheKeyboardReachesEverythingAndNothingIsCutOffAtLargeFonts)
{
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSize(22);
    QApplication::setFont(large);
    open();
    EXPECT_TRUE(window_->screen()->availableGeometry().contains(QRect({}, window_->size())));
    for (const Page which : {Disks, Sources, Exclusions}) {
        QListWidget* const entries = list(which);
        entries->setFocus();
        EXPECT_TRUE(entries->selectedItems().isEmpty());
        QTest::keyClick(entries, Qt::Key_Down);
        EXPECT_EQ(entries->currentRow(), 0) << "be it a single entry";
        for (const QPushButton* reached : page(which)->findChildren<QPushButton*>()) {
            EXPECT_GE(reached->width(), reached->sizeHint().width()) << reached->text().toStdString();
            for (int presses = 0; presses < 10 && reached->isVisible() && !reached->hasFocus(); ++presses)
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            EXPECT_EQ(reached->hasFocus(), reached->isVisible()) << reached->text().toStdString();
        }
    }
    EXPECT_GE(list(Disks)->visualItemRect(list(Disks)->item(0)).height(), 3 * QFontMetrics(large).height());
    QApplication::setFont(before);
}

} // namespace quillon
