#pragma once

#include <QList>
#include <QVariant>
#include <QVariantMap>

namespace quillon {

/// One rule of the schedule: on which days, at what time of day.
struct CalendarIntervalRule {
    static constexpr qlonglong everyDay = 0;
    static constexpr qlonglong mondayToFriday = 8;

    qlonglong day = everyDay; ///< everyDay, mondayToFriday, or a weekday: 1 Sunday to 7 Saturday
    qlonglong time = 43200;   ///< seconds since local midnight
    QVariantMap others = {};  ///< what else the stored dictionary holds; not ours to lose

    /// A missing value, or one that is no number, reads as 0.
    static CalendarIntervalRule fromDictionary(const QVariantMap& dictionary);
    QVariantMap toDictionary() const;

    /// An entry of the stored array that is no dictionary, and how many rules stand ahead of it; not ours to lose.
    struct Foreign {
        qsizetype rulesAhead = 0;
        QVariant entry;
    };

    /// Foreign entries are left out.
    static QList<CalendarIntervalRule> listFromArray(const QVariantList& array);
    static QList<Foreign> foreignInArray(const QVariantList& array);
    static QVariantList listToArray(const QList<CalendarIntervalRule>& rules, const QList<Foreign>& foreign = {});

    /// Whether the rule applies on a weekday, 1 Sunday to 7 Saturday.
    bool allowsWeekday(int weekday) const;

    bool operator==(const CalendarIntervalRule&) const = default;
};

} // namespace quillon
