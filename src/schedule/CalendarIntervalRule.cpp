#include "CalendarIntervalRule.h"

#include "PropertyList.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

bool isRule(const QVariant& entry)
{
    return entry.typeId() == QMetaType::QVariantMap;
}

} // namespace

CalendarIntervalRule CalendarIntervalRule::fromDictionary(const QVariantMap& dictionary)
{
    CalendarIntervalRule rule;
    rule.others = dictionary;
    rule.day = propertylist::toInteger(rule.others.take(u"day"_s));
    rule.time = propertylist::toInteger(rule.others.take(u"time"_s));
    return rule;
}

QVariantMap CalendarIntervalRule::toDictionary() const
{
    QVariantMap dictionary = others;
    dictionary.insert(u"day"_s, day);
    dictionary.insert(u"time"_s, time);
    return dictionary;
}

QList<CalendarIntervalRule> CalendarIntervalRule::listFromArray(const QVariantList& array)
{
    QList<CalendarIntervalRule> rules;
    for (const auto& entry : array) {
        if (isRule(entry))
            rules.append(fromDictionary(entry.toMap()));
    }
    return rules;
}

QList<CalendarIntervalRule::Foreign> CalendarIntervalRule::foreignInArray(const QVariantList& array)
{
    QList<Foreign> foreign;
    qsizetype rules = 0;
    for (const auto& entry : array) {
        if (isRule(entry))
            ++rules;
        else
            foreign.append({rules, entry});
    }
    return foreign;
}

QVariantList CalendarIntervalRule::listToArray(const QList<CalendarIntervalRule>& rules, const QList<Foreign>& foreign)
{
    QVariantList array;
    for (const auto& rule : rules)
        array.append(rule.toDictionary());
    for (qsizetype i = 0; i < foreign.size(); ++i)
        array.insert(foreign[i].rulesAhead + i, foreign[i].entry);
    return array;
}

bool CalendarIntervalRule::allowsWeekday(int weekday) const
{
    if (day == everyDay)
        return true;
    if (day == mondayToFriday)
        return weekday >= 2 && weekday <= 6;
    return weekday == day;
}

} // namespace quillon
