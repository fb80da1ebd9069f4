#pragma once

#include "LogWords.h"

#include <QIcon>
#include <QWidget>

#include <vector>

namespace quillon {

/// The mark beside a line of text: its form tells it without its colour.
QIcon markIcon(logwords::Mark mark);

/// A row of days with a mark each; the latest one is the last.
class DayStrip final : public QWidget {
public:
    explicit DayStrip(QWidget* parent = nullptr);

    void setDays(std::vector<logwords::Day> days);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    /// Tells of the day under the pointer.
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QRect placeOf(std::size_t day) const;

    std::vector<logwords::Day> days_;
};

} // namespace quillon
