#pragma once

#include <QWidget>

namespace quillon {

/// A faint line between two groups of controls.
class Divider final : public QWidget {
public:
    explicit Divider(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillon
