#include "TimePicker.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QStylePainter>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QString fieldFormat(QChar field, qsizetype width)
{
    switch (field.unicode()) {
    case u'h':
    case u'K':
        return QString(width, u'h');
    case u'H':
    case u'k':
        return QString(width, u'H');
    case u'm':
        return u"mm"_s;
    case u'a':
    case u'b':
    case u'B':
        return u"Ap"_s; // as it is written in the language
    default:
        return {};
    }
}

bool isField(QChar character)
{
    return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z');
}

} // namespace

QString timePickerFormat(const QString& pattern)
{
    QString format;
    bool quoted = false;
    for (qsizetype place = 0; place < pattern.size();) {
        const QChar character = pattern[place];
        qsizetype end = place + 1;
        if (character == u'\'')
            quoted = !quoted;
        if (!quoted && isField(character)) {
            while (end < pattern.size() && pattern[end] == character)
                ++end;
            format += fieldFormat(character, end - place);
        } else {
            // Nobody types a narrow no-break space.
            format += character.isSpace() ? QChar(u' ') : character;
        }
        place = end;
    }
    return format.trimmed();
}

Stepper::Stepper(QWidget* parent)
    : QSpinBox(parent)
{
    lineEdit()->hide();
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

/// Of the whole spin box; the arrows are at its right end.
QStyleOptionSpinBox Stepper::wholeSpinBox() const
{
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    option.rect = QRect(QPoint(), QSpinBox::sizeHint());
    return option;
}

QSize Stepper::sizeHint() const
{
    const QStyleOptionSpinBox whole = wholeSpinBox();
    const QRect arrow = style()->subControlRect(QStyle::CC_SpinBox, &whole, QStyle::SC_SpinBoxUp, this);
    return {whole.rect.width() - arrow.left(), whole.rect.height()};
}

QSize Stepper::minimumSizeHint() const
{
    return sizeHint();
}

/// The text field, to the left of the arrows, is drawn outside of the widget.
void Stepper::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionSpinBox whole = wholeSpinBox();
    whole.rect.setHeight(height());
    painter.translate(width() - whole.rect.width(), 0);
    painter.drawComplexControl(QStyle::CC_SpinBox, whole);
    painter.resetTransform();
    if (!hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

namespace {

constexpr int noon = 12;
constexpr int halfDay = noon * 3600;

} // namespace

TimePicker::TimePicker(QWidget* parent)
    : QTimeEdit(parent)
{
    setWrapping(true);
    lineEdit()->installEventFilter(this);
}

void TimePicker::stepBy(int steps)
{
    if (currentSection() != AmPmSection) {
        QTimeEdit::stepBy(steps);
        return;
    }
    setTime(time().addSecs(steps * halfDay)); // Qt stops in the afternoon: half a day further would be another day
    setSelectedSection(AmPmSection);
}

/// Where nothing is selected Qt drops what is typed into a part that is full, and they all are.
bool TimePicker::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != lineEdit() || event->type() != QEvent::MouseButtonRelease)
        return QTimeEdit::eventFilter(watched, event);
    lineEdit()->event(event);
    typedDigits_ = 0;
    setSelectedSection(currentSection());
    return true;
}

bool TimePicker::event(QEvent* event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::Hide)
        typedDigits_ = 0;
    return QTimeEdit::event(event);
}

void TimePicker::keyPressEvent(QKeyEvent* event)
{
    const bool isPlain = (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
    const int digit = isPlain && event->text().size() == 1 ? event->text().front().digitValue() : -1;
    if (lineEdit()->selectedText() == text() && digit >= 0)
        setSelectedSection(HourSection);
    if (digit >= 0 && currentSection() != AmPmSection) {
        type(digit);
        return;
    }
    typedDigits_ = 0;
    switch (isPlain ? event->key() : 0) {
    case Qt::Key_Left:
        selectPart(currentSectionIndex() - 1);
        return;
    case Qt::Key_Right:
        selectPart(currentSectionIndex() + 1);
        return;
    case Qt::Key_Home:
        selectPart(0);
        return;
    case Qt::Key_End:
        selectPart(sectionCount() - 1);
        return;
    case Qt::Key_A:
    case Qt::Key_P:
        if (currentSection() != AmPmSection)
            break;
        // Qt takes the whole marker or nothing: a single letter would be dropped without a word.
        if ((event->key() == Qt::Key_P) != (time().hour() >= noon))
            stepBy(1);
        return;
    default:
        break;
    }
    QTimeEdit::keyPressEvent(event);
}

/// Qt drops a digit that a part has no use for, and whatever is typed over more than one part.
void TimePicker::type(int digit)
{
    constexpr int ten = 10;
    if (typedPart_ != currentSection())
        typedDigits_ = 0;
    if (typedDigits_ > 0 && ten * typed_ + digit > largest(currentSection())) {
        if (currentSection() == HourSection)
            setSelectedSection(MinuteSection);
        typedDigits_ = 0;
    }
    const Section part = currentSection();
    typedPart_ = part;
    typed_ = typedDigits_ > 0 ? ten * typed_ + digit : digit;
    ++typedDigits_;
    setPart(part, typed_);
    setSelectedSection(part);
    if (typedDigits_ == 2 || typed_ > largest(part) / ten) {
        typedDigits_ = 0;
        selectPart(currentSectionIndex() + 1);
    }
}

int TimePicker::largest(Section part) const
{
    constexpr int lastMinute = 59;
    constexpr int lastHour = 23;
    if (part == MinuteSection)
        return lastMinute;
    return displayedSections().testFlag(AmPmSection) ? noon : lastHour;
}

void TimePicker::setPart(Section part, int value)
{
    const QTime before = time();
    if (part == MinuteSection) {
        setTime(QTime(before.hour(), value));
        return;
    }
    const bool twelveHours = displayedSections().testFlag(AmPmSection);
    const int half = twelveHours && before.hour() >= noon ? noon : 0;
    setTime(QTime(twelveHours ? half + value % noon : value, before.minute()));
}

void TimePicker::selectPart(int index)
{
    setSelectedSection(sectionAt(std::clamp(index, 0, sectionCount() - 1)));
}

} // namespace quillon
