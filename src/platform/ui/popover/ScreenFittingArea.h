#pragma once

#include <QScrollArea>

namespace quillon {

/// The content of a popover: as large as what is in it, and scrolling where the screen has no room for that. What is in
/// it needs a layout.
class ScreenFittingArea final : public QScrollArea {
    Q_OBJECT

public:
    explicit ScreenFittingArea(QWidget* parent = nullptr);

    /// Takes ownership. Transparent: the ground is that of the popover.
    void setContent(QWidget* content);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
};

} // namespace quillon
