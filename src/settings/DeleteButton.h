#pragma once

#include <QAbstractButton>

namespace quillon {

/// A round red button with a minus sign, which removes what it stands beside. Main thread only.
class DeleteButton final : public QAbstractButton {
    Q_OBJECT

public:
    explicit DeleteButton(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    bool hitButton(const QPoint& position) const override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillon
