#pragma once

#include "AlertPresenter.h"

#include <QWidget>

namespace quillon {

/// The sign of an alert's style, sharp at every scale: an i in a circle, an exclamation mark in a triangle or an
/// octagon.
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
