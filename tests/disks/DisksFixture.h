#pragma once

#include "DisksWindow.h"
#include "FakeServices.h"
#include "ListPage.h"
#include "LocalizedString.h"
#include "PropertyList.h"
#include "VirtualLauncher.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Plays tmutil and lsblk, which a test tells how to answer: by the first word, or "--try" for a trial.
class PlayedTools final : public VirtualLauncher {
public:
    using VirtualLauncher::VirtualLauncher;

    QMap<QString, TmutilScript::Call> answers;
    QStringList changes; ///< the calls that do not only read

    void answer(const QString& word, const QVariant& list) { answers[word].output = propertylist::toXml(list).value(); }

protected:
    TmutilScript::Call behaviour(const TaskRequest& request) override
    {
        static const QStringList reading{u"destinationinfo"_s, u"diskusage"_s, u"listsources"_s,
                                         u"listexclusions"_s,  u"--json"_s,    u"--try"_s};
        const QString word = request.arguments.contains(u"--try"_s) ? u"--try"_s : request.arguments.first();
        if (!reading.contains(word))
            changes.append(request.arguments.join(u' '));
        return answers.value(word);
    }
};

/// The real window in virtual time.
class DisksWindowFixture : public testing::Test {
protected:
    enum Page { Disks, Sources, Exclusions };

    DisksWindowFixture()
    {
        QFile(path(u"file"_s)).open(QIODevice::WriteOnly);
        tell({disk(u"A"_s)});
        tools_.answer(u"listsources"_s, QVariantList{u"/home/you"_s, u"/srv/photos"_s});
        tools_.answer(u"listexclusions"_s, QVariantMap{{u"Paths"_s, QVariantList{u"/srv/-out"_s}},
                                                       {u"Names"_s, QVariantList{u"*.iso"_s}},
                                                       {u"LargestFile"_s, 2'000'000LL}});
        tools_.answer(u"--try"_s, QVariantMap{{u"Files"_s, 1LL}, {u"Bytes"_s, 1500LL}});
        tools_.answer(u"recoverykey"_s, QVariantMap{{u"RecoveryKey"_s, u"8K2VT-QX4MN"_s}, {u"KeyID"_s, u"6c2a"_s}});
    }

    void open()
    {
        window_ = std::make_unique<DisksWindow>(Setup::Services{tools_, runLoop_, alerts_, u"tmutil"_s}, u"lsblk"_s);
        window_->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
        runLoop_.advance(1s);
    }

    QString path(const QString& name) const { return QDir(folder_.path()).canonicalPath() + u'/' + name; }
    static QVariantMap disk(const QString& name, const QVariantMap& more = {{u"MountPoint"_s, u"/"_s}})
    {
        QVariantMap entry{{u"ID"_s, name}, {u"Name"_s, name}, {u"Path"_s, u"/media/"_s + name}};
        entry.insert(more);
        return entry;
    }
    void tell(const QVariantList& disks)
    {
        tools_.answer(u"destinationinfo"_s, QVariantMap{{u"Destinations"_s, disks}});
    }
    ListPage* page(Page which) const
    {
        auto* tabs = window_->findChild<QTabWidget*>();
        tabs->setCurrentIndex(which);
        return qobject_cast<ListPage*>(tabs->currentWidget());
    }
    QListWidget* list(Page which) const { return page(which)->findChild<QListWidget*>(); }
    QStringList titles(Page which) const
    {
        QStringList titles;
        const QListWidget* entries = list(which);
        for (int row = 0; row < entries->count(); ++row)
            titles.append(entries->item(row)->text());
        return titles;
    }

    /// What is on the screen with that object name or text.
    template<typename Widget>
    Widget* shown(const QString& name) const
    {
        for (Widget* widget : window_->findChildren<Widget*>()) {
            if (widget->isVisible() && (widget->objectName() == name || widget->property("text") == name))
                return widget;
        }
        return nullptr;
    }
    bool isReady(const QString& name) const
    {
        const auto* button = shown<QPushButton>(name);
        return button && button->isEnabled();
    }
    void click(const QString& name)
    {
        ASSERT_TRUE(isReady(name)) << name.toStdString();
        QTest::mouseClick(shown<QPushButton>(name), Qt::LeftButton);
        runLoop_.advance(1s);
    }
    QLineEdit* fieldNamed(const QString& accessibleName) const
    {
        for (QLineEdit* field : window_->findChildren<QLineEdit*>()) {
            if (field->isVisible() && field->accessibleName() == accessibleName)
                return field;
        }
        return nullptr;
    }
    void choose(const QString& file)
    {
        for (QFileDialog* dialog : window_->findChildren<QFileDialog*>()) {
            if (!dialog->isVisible())
                continue;
            dialog->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(file);
            static_cast<QDialog*>(dialog)->accept();
        }
        runLoop_.advance(1s);
    }
    /// Chooses that item of the menu of the exclusions' button.
    void chooseToAdd(const QString& key) { page(Exclusions)->findChild<QAction*>(key)->trigger(); }
    /// The texts of the latest alert, which is answered with that button.
    QStringList answer(int response)
    {
        if (alerts_.presented.empty())
            return {};
        const auto [request, block] = alerts_.presented.back();
        alerts_.presented.pop_back();
        if (block)
            block(response);
        runLoop_.advance(1s);
        return {request.messageText, request.informativeText};
    }

    QTemporaryDir folder_;
    VirtualRunLoop runLoop_{Date(1'795'245'778s)};
    PlayedTools tools_{runLoop_};
    FakeAlerts alerts_;
    std::unique_ptr<DisksWindow> window_;
};

} // namespace quillon
