#pragma once

#include "AlertPresenter.h"

#include <QWidget>

class QPainter;

namespace quillon {

/// Draws the sign of an alert's style: an i in a circle, an exclamation mark in a triangle or an octagon.
void paintAlertSign(QPainter& painter, const QRectF& area, AlertStyle alertStyle);

/// The sign beside an alert's text, sharp at every scale.
class AlertIcon final : public QWidget {
    Q_OBJECT

public:
    AlertIcon(AlertStyle alertStyle, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const AlertStyle alertStyle_;
};

} // namespace quillon
