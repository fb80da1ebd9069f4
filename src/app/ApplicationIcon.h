#pragma once

#include <QSvgRenderer>
#include <QWidget>

namespace quillon {

/// The application's icon, drawn when it is needed, so that it is sharp on every screen.
class ApplicationIcon final : public QWidget {
public:
    explicit ApplicationIcon(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSvgRenderer renderer_;
};

} // namespace quillon
