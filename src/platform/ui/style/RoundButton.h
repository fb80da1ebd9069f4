#pragma once

#include <QAbstractButton>

namespace quillon {

/// A button that is a disc as high as a line of text and `verticalPadding` logical pixels above and below it. The
/// keyboard reaches it, and clicks in its corners miss it. Main thread only.
class RoundButton : public QAbstractButton {
    Q_OBJECT

public:
    QSize sizeHint() const override;

protected:
    RoundButton(int verticalPadding, QWidget* parent);

    bool hitButton(const QPoint& position) const override;

private:
    const int verticalPadding_;
};

} // namespace quillon
