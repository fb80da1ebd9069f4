#pragma once

#include "DateFormatter.h"
#include "LocalDates.h"
#include "PlayedProgram.h"
#include "ScopedEnvironment.h"
#include "StoredAndSent.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace quillon {

/// Where and in what language a played program runs; set up ahead of it.
struct PlayedPlace {
    ScopedEnvironment zone{"TZ", "Europe/Berlin"};
    ScopedEnvironment language{"LC_ALL", "en_GB.UTF-8"};
};

/// A played program on a Saturday morning, with two disks, and what can be seen of it.
struct PlayedSaturday : PlayedPlace, PlayedProgram {
    using Fault = TmutilScript::Fault;

    explicit PlayedSaturday(int hour = 10, int minute = 0)
        : PlayedProgram(today(hour, minute))
    {
        using namespace Qt::StringLiterals;
        machine.destinations = {{u"A"_s, u"First"_s}, {u"B"_s, u"Second"_s}};
    }

    static Date today(int hour, int minute = 0, int second = 0) { return local(2026, 11, 21, hour, minute, second); }
    StatusMenu& menu() const { return controller->statusMenu(); }
    MenuBarIconState icon() const { return controller->menuBarIconState(); }

    /// An item as it is seen: "-" for a separator, in brackets what cannot be chosen, ">" behind what opens a submenu,
    /// "*" ahead of what is checked; nothing of what is hidden.
    static QString row(const QAction* action)
    {
        using namespace Qt::StringLiterals;
        if (!action->isVisible())
            return {};
        const QString title =
            (action->isChecked() ? u"*"_s : u""_s) + action->text() + (action->menu() ? u" >"_s : u""_s);
        return action->isSeparator() ? u"-"_s : action->isEnabled() ? title : u'(' + title + u')';
    }
    static QStringList rows(const QMenu* menu)
    {
        QStringList rows;
        const auto actions = menu ? menu->actions() : QList<QAction*>();
        for (const QAction* action : actions)
            rows.append(row(action));
        rows.removeAll(QString());
        return rows;
    }

    /// In one line: what the tool has been told to start and to stop since the last look; icon, title, what the
    /// backup-now item offers, when the next start or retry is due.
    std::string seen()
    {
        using namespace Qt::StringLiterals;
        QStringList commands;
        for (; looked_ < machine.launched().size(); ++looked_) {
            const auto& words = machine.launched()[looked_].arguments;
            if (words.first().endsWith(u"backup"_s))
                commands.append(words.join(u' ') + u';');
        }
        const auto next = manager->nextScheduledBackupDate();
        commands.append({QString::number(int(icon())) + u',', QString(item.title).replace(u'\n', u' ') + u',',
                         row(menu().backupNowMenuItem).remove(u" >"_s) + u',',
                         manager->retryBackupDate() ? u"retry"_s : u"next"_s,
                         next ? DateFormatter::string(*next, u"d HH:mm"_s) : u"never"_s});
        return commands.join(u' ').toStdString();
    }

    /// Spoils the next call, of that command where one is named.
    void spoilNext(Fault fault, int status = 0, const QString& command = {})
    {
        const auto made = std::ranges::count_if(machine.launched(), [&](const TaskRequest& request) {
            return command.isEmpty() || request.arguments.first() == command;
        });
        machine.injection = {int(made) + 1, fault, status, command};
    }

    /// The only alert that was presented, which is taken away.
    std::pair<AlertRequest, std::function<void(int)>> takeAlert()
    {
        EXPECT_EQ(alerts.presented.size(), 1U);
        return std::exchange(alerts.presented, {}).at(0);
    }

    void wait(double seconds) { runLoop.advance(Seconds(seconds)); }
    void until(Date date) { runLoop.advanceTo(date); }
    /// The item, or "Let Time Machine Choose" where it opens the disks.
    void click()
    {
        QAction* chosen = menu().backupNowMenuItem;
        if (QMenu* disks = chosen->menu()) {
            Q_EMIT disks->aboutToShow();
            chosen = disks->actions().first();
        }
        chosen->trigger();
    }
    void openMenuAndWait()
    {
        Q_EMIT menu().aboutToShow();
        wait(0.3);
    }
    /// Runs fail from now on, after twenty seconds.
    void letRunsFail() { machine.phases = {{QStringLiteral("Copying"), 20, true}}; }
    /// Somebody else starts a backup, which is found out unless that is short.
    void runElsewhere(double seconds)
    {
        machine.start(QStringLiteral("A"));
        wait(seconds);
    }

private:
    qsizetype looked_ = 0;
};

class ControllerFixture : public testing::Test, protected PlayedSaturday {
protected:
    void expect(const char* expected, int line = __builtin_LINE()) { EXPECT_EQ(seen(), expected) << "line " << line; }
    void after(double seconds, const char* expected, int line = __builtin_LINE())
    {
        wait(seconds);
        expect(expected, line);
    }
};

} // namespace quillon
