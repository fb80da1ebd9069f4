#pragma once

#include "AlertPresenter.h"

#include <QAbstractButton>

namespace quillon {

/// A button that shows the sign of the alert that it brings up, a little higher than a line of text. Main thread only.
class SignButton final : public QAbstractButton {
    Q_OBJECT

public:
    explicit SignButton(QWidget* parent = nullptr);

    /// The default is Warning.
    void setAlertStyle(AlertStyle alertStyle);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    AlertStyle alertStyle_ = AlertStyle::Warning;
};

} // namespace quillon
