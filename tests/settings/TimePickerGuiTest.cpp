#include "TimePicker.h"

#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>
#include <span>

namespace quillon {

using namespace Qt::StringLiterals;

/// Types digits and letters. The other characters: < > ^ v the arrows, { Home, } End, T Tab, * selects all, ! presses
/// the next key with Ctrl, # on the keypad, % clicks at its left end.
void press(QTimeEdit& picker, const QString& keys)
{
    static const QMap<QChar, Qt::Key> named{{u'<', Qt::Key_Left}, {u'>', Qt::Key_Right}, {u'^', Qt::Key_Up},
                                            {u'v', Qt::Key_Down}, {u'{', Qt::Key_Home},  {u'}', Qt::Key_End},
                                            {u'T', Qt::Key_Tab}};
    auto* text = picker.findChild<QLineEdit*>();
    Qt::KeyboardModifiers modifiers;
    for (const QChar key : keys) {
        if (key == u'!' || key == u'#') {
            modifiers = key == u'!' ? Qt::ControlModifier : Qt::KeypadModifier;
            continue;
        }
        if (key == u'%')
            QTest::mouseClick(text, Qt::LeftButton, {}, QPoint(3, text->height() / 2));
        else if (key == u'*')
            QTest::keyClick(&picker, Qt::Key_A, Qt::ControlModifier);
        else if (named.contains(key))
            QTest::keyClick(&picker, named[key], modifiers);
        else
            QTest::keyClick(&picker, key.toLatin1(), modifiers);
        modifiers = {};
    }
}

/// What the field shows, with brackets around what the next key replaces.
QString shown(const QTimeEdit& picker)
{
    const auto* text = picker.findChild<QLineEdit*>();
    const int from = text->selectionStart();
    return from < 0 ? text->text() : text->text().insert(from + text->selectedText().size(), u']').insert(from, u'[');
}

using KeysAndOutcome = std::pair<const char*, const char*>;

// Digits fill the time from the hours on, or all of it where all is selected, and begin the minutes where they cannot
// go on with the hours; whatever comes between two digits has the second one begin anew.
constexpr KeysAndOutcome onTwelveHours[] = {
    {"0815", "8:15 [PM]"},      {"130", "1:30 [PM]"},       {"1215A", "12:15 [AM]"},   {"1><2", "2:[45] PM"},
    {"12<1", "[1]:45 PM"},      {"1%2", "2:[45] PM"},       {"1T2", "1:[02] PM"},      {">>*0930", "9:30 [PM]"},
    {"%0745A", "7:45 [AM]"},    {">", "12:[45] PM"},        {">><", "12:[45] PM"},     {">>>", "12:45 [PM]"},
    {"}<<<", "[12]:45 PM"},     {"}", "12:45 [PM]"},        {"}{", "[12]:45 PM"},      {"0905A{3", "3:[05] AM"},
    {"0905A{1", "[1]:05 AM"},   {"0905A{12", "12:[05] AM"}, {"0905A{}P", "9:05 [PM]"}, {"0905A{}A", "9:05 [AM]"},
    {"0905A{}^", "9:05 [PM]"},  {"0905A{}v", "9:05 [PM]"},  {"0905A{P", "[9]:05 AM"},  {"0905A{^", "[10]:05 AM"},
    {"1205P{}P", "12:05 [PM]"}, {"1205P{}A", "12:05 [AM]"}, {"0905P{}^", "9:05 [AM]"}};
constexpr KeysAndOutcome onTwentyFourHours[] = {
    {"0815", "08:[15]"}, {"130", "13:[00]"}, {"245", "02:[45]"}, {"24", "02:[04]"},   {"23", "23:[45]"},
    {"97", "09:[07]"},   {"00", "00:[45]"},  {">60", "12:[00]"}, {">59", "12:[59]"},  {">053", "12:[03]"},
    {">%07", "07:[45]"}, {"#9", "09:[45]"},  {"!9", "[12]:45"},  {"23<^", "[00]:45"}, {"0900{>v", "09:[59]"}};

TEST(TimePickerTest, KeysChangeThePartOfTheTimeWhereTheCursorIs)
{
    QWidget window;
    QVBoxLayout layout(&window);
    for (const auto& [format, table] : {std::pair{u"h:mm Ap"_s, std::span<const KeysAndOutcome>(onTwelveHours)},
                                        {u"HH:mm"_s, std::span<const KeysAndOutcome>(onTwentyFourHours)}}) {
        for (const auto& [keys, outcome] : table) {
            TimePicker picker;
            picker.setLocale(QLocale(QLocale::English));
            picker.setDisplayFormat(format);
            picker.setTime({12, 45});
            layout.addWidget(&picker);
            picker.show(); // now, and not when the layout gets round to it
            window.show();
            ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
            picker.setFocus();
            picker.setSelectedSection(QDateTimeEdit::HourSection);
            press(picker, QString::fromLatin1(keys));
            EXPECT_EQ(shown(picker), QString::fromLatin1(outcome)) << format.toStdString() << ' ' << keys;
            EXPECT_EQ(picker.time().second(), 0);
        }
    }
}

TEST(TimePickerTest, ADigitThatComesBackToTheFieldBeginsAnew)
{
    QWidget window;
    QVBoxLayout layout(&window);
    TimePicker picker;
    picker.setDisplayFormat(u"HH:mm"_s);
    picker.setTime({12, 45});
    layout.addWidget(&picker);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    for (const QTime time : {QTime(1, 45), QTime(2, 45)}) {
        picker.setFocus();
        picker.setSelectedSection(QDateTimeEdit::HourSection);
        QTest::keyClick(&picker, static_cast<char>('0' + time.hour()));
        EXPECT_EQ(picker.time(), time);
        picker.clearFocus();
    }
}

TEST(TimePickerFormat, KeepsOrderAndSeparatorsOfThePattern)
{
    const std::pair<QString, QString> table[] = {
        {u"HH:mm"_s, u"HH:mm"_s},           {u"h:mm\u202fa"_s, u"h:mm Ap"_s}, {u"ah:mm"_s, u"Aph:mm"_s},
        {u"Bh:mm"_s, u"Aph:mm"_s},          {u"HH 'h' mm"_s, u"HH 'h' mm"_s}, {u"H.mm"_s, u"H.mm"_s},
        {u"kk:mm"_s, u"HH:mm"_s},           {u"HH:mm zzzz"_s, u"HH:mm"_s},    {u"K:mm b"_s, u"h:mm Ap"_s},
        {u"HH:mm ZZ"_s, u"HH:mm"_s},        {u"A H:mm"_s, u"H:mm"_s},         {u"{H}:mm"_s, u"{H}:mm"_s},
        {u"H\u00e9mm"_s, u"Hémm"_s},        {u"[H]@mm"_s, u"[H]@mm"_s},       {u"ss'ss'H"_s, u"'ss'H"_s},
        {u"'Uhr' HHmm"_s, u"'Uhr' HHmm"_s},
    };
    for (const auto& [pattern, format] : table)
        EXPECT_EQ(timePickerFormat(pattern), format) << pattern.toStdString();
}

} // namespace quillon
