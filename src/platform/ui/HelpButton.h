#pragma once

#include <QAbstractButton>

namespace quillon {

/// A round button with a question mark that explains what it stands beside. Main thread only.
class HelpButton final : public QAbstractButton {
    Q_OBJECT

public:
    explicit HelpButton(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    bool hitButton(const QPoint& position) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillon
